<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Selecione a pasta local que você deseja sincronizar com o servidor.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Não foi possível acessar o serviço ZephLink. Verifique a conexão de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Regras de filtro</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Ponto de montagem não permitido</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Período</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Esta pasta compartilhada não existe mais no servidor. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Digite o nome de usuário.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Arquivos com estes nomes não serão sincronizados.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Não foi possível conectar-se ao servidor. Verifique a conexão de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Somente download</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direção da sincronização</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Sua primeira tarefa de sincronização neste servidor</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Restaura arquivos, atalhos e entradas do Registro ausentes ou danificados.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Clique aqui para atualizar</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Caminho da pasta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Pastas compartilhadas</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Aviso de certificado</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Alterar configurações de conexão</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testando a conexão...</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Instalação do Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Hoje</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>O programa de instalação está pronto para instalar o Lumivo Drive neste computador.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nova pasta compartilhada</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Nenhuma pasta utilizável foi encontrada. Peça ao administrador acesso a uma pasta compartilhada.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Não foi possível ativar a sincronização desta pasta compartilhada. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Sincronizar esta pasta novamente</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>Há %1 d</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>A pasta “%1” é um ponto de montagem e não pode ser sincronizada. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Este computador já está vinculado a “%1”. Em vez disso, edite a conexão existente.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Digite um número de porta de 1 a 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Abrir pasta de sincronização</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>O Lumivo Drive foi instalado</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Desvincular</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Esta pasta se sobrepõe à pasta de outra tarefa de sincronização. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Não foi possível listar as pastas do servidor. Verifique a conexão de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requer atenção</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>O certificado do servidor mudou. Verifique-o antes de continuar.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Última página</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em execução</translation>
    </message>
    <message>
        <source>June</source>
        <translation>junho</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Falha na atualização. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Não foi possível verificar o certificado do servidor.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Aguarde. Isso pode levar alguns minutos.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Escolher os recursos que serão instalados</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Seus arquivos, onde quer que você trabalhe</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Sincronizar estas pastas novamente</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>O disco deste computador está cheio. Libere espaço para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usar um ícone em preto e branco na bandeja do sistema</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Alguns campos não foram preenchidos corretamente. Corrija-os e tente novamente.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>A instalação foi interrompida. Nada foi alterado no computador.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Pasta não encontrada</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Escolha as pastas a sincronizar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Escolha uma pasta no servidor e a pasta local que será sincronizada com ela.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Ignorar arquivos e pastas cujo nome começa com ponto</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Período personalizado</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>O nome de usuário ou a senha estão incorretos. Verifique ambos e tente novamente.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Este endereço pertence a outro servidor. Verifique o endereço e tente novamente.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de arquivo</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Escolha o modo de configuração</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>segunda-feira</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Sua cota no servidor se esgotou. Exclua alguns arquivos ou peça mais espaço ao administrador.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>O número máximo de pastas compartilhadas foi atingido. Primeiro, pare de sincronizar uma delas.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar as configurações de proxy do sistema</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Manter as duas versões e renomear a local</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>A sincronização de “%1” parou. Abra o Lumivo Drive para ver os detalhes.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ID do ZephLink</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>A direção da sincronização não é compatível com as suas permissões nesta pasta. Escolha outra direção.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mais detalhes</translation>
    </message>
    <message>
        <source>October</source>
        <translation>outubro</translation>
    </message>
    <message>
        <source>February</source>
        <translation>fevereiro</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Esta versão do Lumivo Drive Server é antiga demais. Atualize-a no servidor.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Regras de sincronização</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Não é possível baixar este arquivo. Verifique suas permissões no servidor.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Não usar proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta compartilhada</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Retomar esta conexão</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obter link</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>O ícone na bandeja do sistema mostra de imediato se os seus arquivos estão sincronizados.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Vincular novamente</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Somente leitura</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Configurações de rede</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>O programa de instalação está aplicando as suas escolhas.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>As pastas que você desmarcar aqui serão removidas deste computador. Elas continuarão no servidor.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>O disco do servidor está cheio. Libere espaço nele para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>O download falhou. Verifique a conexão de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Salvar e copiar link</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Digite o endereço do servidor e os dados da sua conta.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Vamos começar</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Não há alterações a salvar.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Para instalar o Lumivo Drive mais tarde, execute o programa de instalação novamente.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Clique com o botão direito em um arquivo de uma pasta sincronizada para compartilhá-lo ou ver suas versões anteriores.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informações de status</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Não foi possível iniciar o Lumivo Drive. Reinicie o computador e tente novamente.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Manter a versão do servidor</translation>
    </message>
    <message>
        <source>January</source>
        <translation>janeiro</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Esta versão do Lumivo Drive é antiga demais para o servidor. Atualize-a para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Alterar, reparar ou remover o Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Conectar pelo ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Clique em “Instalar” para começar. Clique em “Voltar” para revisar ou alterar as suas escolhas. Clique em “Cancelar” para sair da instalação.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Algo deu errado. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>A sincronização seletiva ainda não está disponível. Para usá-la, atualize o Lumivo Drive Server no servidor.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renomeado</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Esta pasta é somente leitura</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Pronto para remover o Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Escolha o que sincronizar com este computador e onde guardar os arquivos.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Seu acesso foi revogado e os arquivos sincronizados foram removidos deste computador. Entre em contato com o administrador.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Enviando...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Aplicando as configurações...</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia com atenção o contrato de licença a seguir.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de mesclagem</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Não sincronizar estas pastas</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Clique em “Reparar” para começar. Clique em “Voltar” para revisar a sua escolha. Clique em “Cancelar” para sair da instalação.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Você não pode gravar nesta pasta. Altere as permissões da pasta ou selecione outra.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de usuário</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dezembro</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Digite um tamanho de arquivo de %1 a %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Parar de sincronizar “%1”? Os arquivos que já estão neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configuração rápida</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configuração avançada</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembro</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecionar uma pasta</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Endereço do servidor</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Sua cota no servidor se esgotou.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ao clicar duas vezes no ícone da bandeja do sistema</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Inicializando o Lumivo Drive...</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Verificando arquivos...</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Este computador agora está vinculado a “%1”. A sincronização começa imediatamente.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Tudo sincronizado</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Atualizando...</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Período personalizado</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Consulte o status da sincronização</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Os aplicativos a seguir estão usando arquivos que o programa de instalação precisa atualizar:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Abrir o Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Escolha por conta própria as pastas, a direção e as regras de sincronização.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Reparar os arquivos instalados</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Digite um número de versões maior que zero.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Este nome de usuário não existe no servidor. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Atualizar o Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Saiba mais</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Mantenha sincronizados os arquivos deste computador e do servidor.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Esta pasta já é sincronizada por outro aplicativo de sincronização na nuvem. Selecione outra pasta para evitar conflitos.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome do computador</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>O proxy exige nome de usuário e senha</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>O servidor não aceitou a solicitação. Verifique os dados digitados e tente novamente.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Esta versão do Lumivo Drive Server é antiga demais para a versão do Lumivo Drive instalada neste computador. Atualize o Lumivo Drive Server para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar para</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>O serviço ZephLink relatou um erro. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Feche esses aplicativos e clique em “Tentar novamente”, ou clique em “Ignorar” e reinicie o computador mais tarde.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Permite alterar os recursos instalados.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Deseja desvincular este computador de “%1”?\nOs arquivos que já estão neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Esta pasta é usada por uma tarefa de backup. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>O disco deste computador está cheio.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Esta pasta não está vazia</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Abrir local do arquivo</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de conexão</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Este ID do ZephLink não existe. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Não sincronizar estes arquivos</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Remover o Lumivo Drive deste computador</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Sua conta exige a verificação em duas etapas. Configure-a no servidor e entre novamente.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>O serviço de arquivos está desativado no servidor. Peça ao administrador que o ative.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Excluído</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Adicione uma tarefa de sincronização</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Compartilhe com outras pessoas</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Arquivo bloqueado</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Não fechar os aplicativos (você precisará reiniciar o computador mais tarde)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Sobre o Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Serviço de arquivos desativado</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Próximas %1 páginas</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>A pasta de sincronização local foi movida ou excluída. Coloque-a de volta no lugar ou escolha outra.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Não é possível compartilhar este arquivo. Verifique suas permissões no servidor.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Retomar</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Clique em “Concluir” para sair da instalação.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expira após</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Pausar esta conexão</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>foi compartilhado com você.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Arquivos em uso</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>A instalação foi encerrada prematuramente</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>O compartilhamento de arquivos pelo ZephLink está desativado no servidor. Peça ao administrador que o ative.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Sincronização unidirecional (somente download)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Os arquivos das duas pastas serão mesclados.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Esta pasta do servidor já está sincronizada com este computador.\nUma segunda tarefa de sincronização para ela ocuparia o dobro do espaço em disco.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>A instalação foi interrompida</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>O código de verificação está incorreto. Digite o código atual e tente novamente.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronização bidirecional</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>O servidor está bloqueando o endereço deste computador. Peça ao administrador que o permita.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Verificando o nome de usuário e a senha...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Boas-vindas à instalação do Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Digite no máximo %1 caracteres.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Mesclar</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Sincronizar todos os atributos e permissões dos arquivos</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>A pasta compartilhada “%1” está disponível em “%2”. Clique aqui para sincronizá-la.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Palavra-chave</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Criar uma pasta vazia para o Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro de arquivos</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Tudo o que você colocar na pasta de sincronização aparecerá no servidor e nos seus outros computadores.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>O programa de instalação pode alterar, reparar ou remover o Lumivo Drive. Clique em “Avançar” para continuar.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Selecione uma pasta no servidor e uma pasta neste computador.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Digite o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Monitorando alterações...</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alterar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” foi atualizado</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Iniciar o Lumivo Drive agora</translation>
    </message>
    <message>
        <source>March</source>
        <translation>março</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Selecione o que você deseja fazer.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>As pastas pessoais estão desativadas no servidor. Peça ao administrador que as ative.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Tarefas de sincronização</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Pronto para reparar o Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Arquivos ignorados</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>O Lumivo Drive agora está instalado neste computador.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparando...</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Idioma do sistema</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Suas alterações não foram salvas.\nDeseja sair sem salvá-las?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Pasta já sincronizada</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizando...</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Clique em “Remover” para remover o Lumivo Drive deste computador. Clique em “Voltar” para revisar a sua escolha. Clique em “Cancelar” para sair da instalação.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Boas-vindas de volta à instalação do Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direta</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Esta pasta já é usada por outra tarefa de sincronização. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Sem espaço livre</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Carregando as pastas compartilhadas...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Desvinculando...</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Arquivos em sincronização</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Você pode alterar todas as configurações mais tarde.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar status da sincronização</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>A pasta no servidor não está montada. Monte-a no servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Marcar arquivos ignorados com um ícone</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Verificando o tipo de conexão...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>As duas versões dos arquivos com conteúdo diferente são mantidas.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Esta pasta já está sincronizada. Deseja adicioná-la novamente?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Configurações avançadas</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Não é possível listar as versões deste arquivo. Verifique suas permissões no servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Não foi possível entender a resposta do servidor. Atualize o Lumivo Drive e tente novamente.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Tem certeza de que deseja cancelar a instalação do Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Outro servidor foi encontrado neste endereço</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julho</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Alguns arquivos que precisam ser atualizados estão em uso.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>O Lumivo Drive está pronto.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>O banco de dados de sincronização está danificado. Desvincule este computador e vincule-o novamente.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Uma versão mais recente do Lumivo Drive já está instalada neste computador. Remova-a antes de instalar esta versão.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Boas-vindas</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sincronizar esta pasta compartilhada</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Abrir a janela principal</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Etapa atual:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restringir acesso</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>O programa de instalação instalará o Lumivo Drive neste computador. Clique em “Avançar” para continuar ou em “Cancelar” para sair da instalação.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Digite o endereço do servidor ou o ID do ZephLink, o seu nome de usuário e a sua senha.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Não foi possível criar a pasta “%1”. Verifique o caminho e as suas permissões.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>A instalação foi encerrada devido a um erro.\nNada foi alterado no computador.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Sua cota no servidor se esgotou. Exclua alguns arquivos para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Filtro de pastas</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Não foi possível verificar o certificado do servidor. Confira-o nas configurações de conexão.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Você pode abrir o Lumivo Drive a qualquer momento pela bandeja do sistema.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>O arquivo foi alterado em dois lugares ao mesmo tempo. As duas versões foram mantidas. Exclua aquela de que você não precisa.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>O certificado do servidor mudou. Verifique-o nas configurações de conexão.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Criptografar a conexão (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Crie um link para um arquivo e envie-o a quem quiser, com senha e data de término, se preferir.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Digite o código de verificação da sua conta.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Você escolheu remover o Lumivo Drive deste computador.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Não é possível detectar alterações em uma unidade de rede. Selecione uma pasta em um disco local.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Já existe uma pasta com este nome. Digite outro nome.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>sexta-feira</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Configurações de proxy</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir arquivo</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar conexão</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>A conexão com o servidor foi perdida. Ela será restaurada automaticamente.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sem permissão</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Baixado</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Itens: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Deseja parar de sincronizar “%1” com “%2”?\nNenhum arquivo será excluído.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Alterar pasta local</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>A conexão funciona.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Configuração concluída</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Ícones na bandeja do sistema</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maio</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modo de sincronização</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mês passado</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Ver versões anteriores</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>Há %1 h</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Os arquivos e pastas que correspondem a estas regras não são sincronizados.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Remove o Lumivo Drive deste computador. Seus arquivos sincronizados são mantidos.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gerenciar conexões</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Não há espaço suficiente neste disco. Selecione uma pasta em outro disco.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Nomes de arquivo a ignorar</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>quinta-feira</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Retomar sincronização</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Arquivos alterados recentemente</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>Endereço IP, nome de domínio ou ID do ZephLink</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Mostrar o Lumivo Drive no menu de contexto</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Esta versão do Lumivo Drive é antiga demais. Atualize-a neste computador.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Esta pasta não pode ser sincronizada. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>O download foi cancelado.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Limitar o número de downloads</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Mostrar ícones de status da sincronização nos arquivos</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Este campo é obrigatório.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostrar o tutorial</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Vincular outro servidor</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Não aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versão incompatível</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primeira página</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Instalar</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Acesso negado</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Digite o código de verificação de 6 dígitos</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Entendi</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>O disco da pasta de sincronização local não está conectado. Conecte-o para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não mostrar esta mensagem novamente</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Começar agora</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Pesquisar na rede local</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurar o proxy manualmente</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Você pode abrir os arquivos desta pasta, mas não alterá-los.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Muitas tentativas sem sucesso. Aguarde alguns minutos e tente novamente.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>setembro</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>A pasta não está vazia. Os arquivos dela serão mesclados com os do servidor.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Download concluído.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Você pode recuperar uma versão que substituiu ou excluiu.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domingo</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Pasta de sincronização</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Atualização necessária</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Compartilhamento</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>terça-feira</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Iniciar o Lumivo Drive ao entrar no sistema</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gerenciar pastas compartilhadas</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>Há %1 min</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Esta pasta compartilhada não será mais sincronizada. Os arquivos que já estão neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Extensões de arquivo a ignorar</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Retransmissão</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Falha ao entrar</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>O Lumivo Drive não tem recursos que possam ser escolhidos separadamente.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Você não entrou como administrador. O Lumivo Drive será instalado somente para você.\nDeseja continuar?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Não é possível criar links porque o serviço de arquivos está desativado. Peça ao administrador que o ative.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Fechar os aplicativos e tentar iniciá-los novamente depois</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contrato de licença</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Não foi possível verificar a pasta devido a um erro do sistema. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Esta versão do Lumivo Drive já está instalada. Deseja instalá-la novamente?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Definir uma data de início</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerenciar</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Esta pasta compartilhada não está montada no servidor. Monte-a no servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rede local</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Todos os eventos</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Desvincular esta conexão</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A conexão está instável</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Agora este computador e o servidor mantêm estas pastas sincronizadas.\nVocê pode adicionar mais tarefas de sincronização a qualquer momento.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Não sincronizar esta pasta</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>O certificado do servidor mudou.\nContinue somente se você souber o motivo.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Tamanho máximo de arquivo (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Manter a versão alterada por último</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Localizar servidores na rede local</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Sua conta não tem permissão para sincronizar esta pasta. Peça permissão ao administrador.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Agora mesmo</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>O programa de instalação está pronto para reparar o Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Você só pode ler esta pasta. As alterações feitas neste computador não serão enviadas.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Você não tem acesso a esta pasta. Peça permissão ao administrador.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Nenhuma entrada encontrada</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Seus arquivos estão sendo sincronizados. Enquanto isso, você pode continuar trabalhando.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Não foi possível verificar o certificado do servidor.\nContinue somente se você confiar nesta rede.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Arquivos pendentes de sincronização: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Boas-vindas ao Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Definir uma data de término</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Não foi possível remover a tarefa de sincronização. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Clique no ícone para ver quais arquivos estão sendo sincronizados.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Sua pasta de sincronização</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Não foi possível verificar o certificado do servidor. Peça ao administrador que instale um certificado válido.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>O servidor foi substituído. Vincule este computador novamente.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Siga estas etapas para vincular este computador ao servidor.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Servidor proxy</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Arquivos atualizados</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar assim mesmo</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Ícones nos arquivos locais</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Nenhuma ação disponível</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Sincronização interrompida</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Pasta de sincronização local</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>O servidor ainda está indexando “%1”. Você poderá sincronizar a pasta quando a indexação terminar.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Quando um arquivo for alterado em dois lugares</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>A pasta “%1” não está vazia.\nDeseja usá-la mesmo assim?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Sincronize a sua pasta pessoal com as configurações recomendadas.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Carregando as pastas...</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>quarta-feira</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Criptografia SSL</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Pronto para instalar o Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Execute o programa de instalação novamente quando quiser instalar o Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Sua pasta pessoal no servidor agora é sincronizada com este computador.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Visão geral do servidor</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausar sincronização</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>A cota desta pasta compartilhada se esgotou. Exclua alguns arquivos para continuar a sincronização.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Sua nova tarefa de sincronização</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de downloads</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Baixando...</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>O novo idioma será aplicado na próxima vez que o Lumivo Drive for iniciado.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Instalando o Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações na área de trabalho</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>A configuração rápida é adequada para a maioria dos usuários. Você pode alterar tudo mais tarde.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>O disco do servidor está cheio.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Volte no tempo</translation>
    </message>
</context>
</TS>
