<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Selecione a pasta local que pretende sincronizar com o servidor.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Não foi possível contactar o serviço ZephLink. Verifique a ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Regras de filtragem</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Ponto de montagem não permitido</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervalo de datas</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Esta pasta partilhada já não existe no servidor. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Introduza o nome de utilizador.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Os ficheiros com estes nomes não serão sincronizados.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Não foi possível estabelecer ligação ao servidor. Verifique a ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Apenas descarregar</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sentido da sincronização</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>A primeira tarefa de sincronização neste servidor</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Restaura ficheiros, atalhos e entradas do Registo em falta ou danificados.</translation>
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
        <translation>Pastas partilhadas</translation>
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
        <translation>Alterar definições da ligação</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A testar a ligação...</translation>
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
        <translation>Nova pasta partilhada</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Não foi encontrada nenhuma pasta utilizável. Peça ao administrador acesso a uma pasta partilhada.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Não foi possível ativar a sincronização desta pasta partilhada. Tente novamente mais tarde.</translation>
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
        <translation>Voltar a sincronizar esta pasta</translation>
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
        <translation>Este computador já está associado a “%1”. Em vez disso, edite a ligação existente.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Atualização disponível</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Introduza um número de porta de 1 a 65535.</translation>
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
        <translation>Desassociar</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Esta pasta sobrepõe-se à pasta de outra tarefa de sincronização. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Não foi possível listar as pastas do servidor. Verifique a ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Requer atenção</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>O certificado do servidor foi alterado. Verifique-o antes de continuar.</translation>
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
        <translation>A atualização falhou. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Não foi possível verificar o certificado do servidor.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Aguarde. Esta operação pode demorar vários minutos.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Escolher as funcionalidades a instalar</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Os seus ficheiros, onde quer que trabalhe</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Voltar a sincronizar estas pastas</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>O disco deste computador está cheio. Liberte espaço para continuar a sincronizar.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usar um ícone a preto e branco na área de notificação</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Alguns campos não estão preenchidos corretamente. Corrija-os e tente novamente.</translation>
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
        <translation>Escolher as pastas a sincronizar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Escolha uma pasta no servidor e a pasta local com a qual a pretende sincronizar.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Ignorar ficheiros e pastas cujo nome começa por um ponto</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervalo personalizado</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>O nome de utilizador ou a palavra-passe estão incorretos. Verifique ambos e tente novamente.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Este endereço pertence a outro servidor. Verifique o endereço e tente novamente.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo de ficheiro</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Escolher o modo de configuração</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>segunda-feira</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>A sua quota no servidor está esgotada. Elimine alguns ficheiros ou peça mais espaço ao administrador.</translation>
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
        <translation>A iniciar...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Foi atingido o número máximo de pastas partilhadas. Primeiro, deixe de sincronizar uma delas.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usar as definições de proxy do sistema</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Manter ambas as versões e mudar o nome da local</translation>
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
        <translation>Repor</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ID do ZephLink</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>O sentido da sincronização não é compatível com as suas permissões nesta pasta. Escolha outro sentido.</translation>
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
        <translation>Esta versão do Lumivo Drive Server é demasiado antiga. Atualize-a no servidor.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Regras de sincronização</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Não é possível descarregar este ficheiro. Verifique as suas permissões no servidor.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>A ligar...</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Não usar um proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Pasta partilhada</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Retomar esta ligação</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Obter hiperligação</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>O ícone na área de notificação mostra de imediato se os seus ficheiros estão sincronizados.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Voltar a associar</translation>
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
        <translation>Só de leitura</translation>
    </message>
    <message>
        <source>April</source>
        <translation>abril</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Definições de rede</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>O programa de instalação está a aplicar as suas escolhas.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>As pastas que desmarcar aqui serão removidas deste computador. Permanecerão no servidor.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>O disco do servidor está cheio. Liberte espaço no disco para continuar a sincronizar.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>A descarga falhou. Verifique a ligação de rede e tente novamente.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Guardar e copiar hiperligação</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Introduza o endereço do servidor e os dados da sua conta.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Vamos começar</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Não existem alterações para guardar.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 páginas anteriores</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Para instalar o Lumivo Drive mais tarde, execute novamente o programa de instalação.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Clique com o botão direito do rato num ficheiro de uma pasta sincronizada para o partilhar ou ver as versões anteriores.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ontem</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informações de estado</translation>
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
        <translation>Esta versão do Lumivo Drive é demasiado antiga para o servidor. Atualize-a para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Alterar, reparar ou remover o Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Ligar através do ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Clique em “Instalar” para começar. Clique em “Anterior” para rever ou alterar as suas escolhas. Clique em “Cancelar” para sair da instalação.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Ocorreu um erro. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Aceito os termos do contrato de licença</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>A sincronização seletiva ainda não está disponível. Para a usar, atualize o Lumivo Drive Server no servidor.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Nome alterado</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Esta pasta é só de leitura</translation>
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
        <translation>Escolha o que pretende sincronizar com este computador e onde pretende guardá-lo.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>O seu acesso foi revogado e os ficheiros sincronizados foram removidos deste computador. Contacte o administrador.</translation>
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
        <translation>A enviar...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>A aplicar as definições...</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leia atentamente o contrato de licença seguinte.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modo de combinação</translation>
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
        <translation>Clique em “Reparar” para começar. Clique em “Anterior” para rever a sua escolha. Clique em “Cancelar” para sair da instalação.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Não pode escrever nesta pasta. Altere as permissões da pasta ou selecione outra.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronização seletiva</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome de utilizador</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dezembro</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Introduza um tamanho de ficheiro entre %1 e %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Pretende deixar de sincronizar “%1”? Os ficheiros que já estão neste computador serão mantidos.</translation>
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
        <translation>A sua quota no servidor está esgotada.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ao fazer duplo clique no ícone da área de notificação</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>A inicializar o Lumivo Drive...</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>A verificar ficheiros...</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Este computador está agora associado a “%1”. A sincronização começa de imediato.</translation>
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
        <translation>A atualizar...</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Período personalizado</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Consultar o estado da sincronização</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>A carregar...</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inativo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>As seguintes aplicações estão a utilizar ficheiros que o programa de instalação tem de atualizar:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Abrir o Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Escolha manualmente as pastas, o sentido e as regras de sincronização.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Reparar os ficheiros instalados</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Introduza um número de versões superior a zero.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Este nome de utilizador não existe no servidor. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Atualizar o Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Saber mais</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Criado em</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Mantenha sincronizados os ficheiros deste computador e do servidor.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Esta pasta já é sincronizada por outra aplicação de sincronização na nuvem. Selecione outra pasta para evitar conflitos.</translation>
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
        <translation>O proxy exige um nome de utilizador e uma palavra-passe</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>O servidor não aceitou o pedido. Verifique os dados introduzidos e tente novamente.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Esta versão do Lumivo Drive Server é demasiado antiga para a versão do Lumivo Drive instalada neste computador. Atualize o Lumivo Drive Server para a versão %1 ou posterior.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Enviar para</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>O serviço ZephLink comunicou um erro. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Feche estas aplicações e clique em “Tentar novamente”, ou clique em “Ignorar” e reinicie o computador mais tarde.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Permite alterar as funcionalidades instaladas.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Pretende desassociar este computador de “%1”?\nOs ficheiros que já estão neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Esta pasta é utilizada por uma tarefa de cópia de segurança. Selecione outra pasta.</translation>
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
        <translation>Abrir localização do ficheiro</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo de ligação</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Este ID do ZephLink não existe. Verifique-o e tente novamente.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Não sincronizar estes ficheiros</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Remover o Lumivo Drive deste computador</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>A sua conta exige a verificação em dois passos. Configure-a no servidor e inicie sessão novamente.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>O serviço de ficheiros está desativado no servidor. Peça ao administrador que o ative.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Adicionar tarefa de sincronização</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Partilhar com outras pessoas</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Ficheiro bloqueado</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Não fechar as aplicações (terá de reiniciar o computador mais tarde)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Acerca do Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Serviço de ficheiros desativado</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 páginas seguintes</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>A pasta de sincronização local foi movida ou eliminada. Reponha-a no lugar ou escolha uma nova.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Não é possível partilhar este ficheiro. Verifique as suas permissões no servidor.</translation>
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
        <translation>Colocar esta ligação em pausa</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>foi partilhado consigo.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Ficheiros em utilização</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>A instalação terminou prematuramente</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>A partilha de ficheiros através do ZephLink está desativada no servidor. Peça ao administrador que a ative.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Hiperligação</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Sincronização unidirecional (apenas descarregar)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Os ficheiros de ambas as pastas serão combinados.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Esta pasta do servidor já está sincronizada com este computador.\nUma segunda tarefa de sincronização da mesma pasta ocuparia o dobro do espaço em disco.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>A instalação foi interrompida</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>O código de verificação está incorreto. Introduza o código atual e tente novamente.</translation>
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
        <translation>O servidor está a bloquear o endereço deste computador. Peça ao administrador que o permita.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>A verificar o nome de utilizador e a palavra-passe...</translation>
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
        <translation>Introduza, no máximo, %1 caracteres.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Combinar</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Sincronizar todos os atributos e permissões dos ficheiros</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>A pasta partilhada “%1” está disponível em “%2”. Clique aqui para a sincronizar.</translation>
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
        <translation>Filtro de ficheiros</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Tudo o que colocar na pasta de sincronização aparece no servidor e nos seus outros computadores.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>O programa de instalação pode alterar, reparar ou remover o Lumivo Drive. Clique em “Seguinte” para continuar.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Selecione uma pasta no servidor e uma pasta neste computador.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Introduza o endereço e a porta do servidor proxy.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>A monitorizar as alterações...</translation>
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
        <translation>Selecione o que pretende fazer.</translation>
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
        <translation>Ficheiros ignorados</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>O Lumivo Drive está agora instalado neste computador.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>A preparar...</translation>
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
        <translation>As suas alterações não foram guardadas.\nPretende sair sem as guardar?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Pasta já sincronizada</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>A sincronizar...</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Clique em “Remover” para remover o Lumivo Drive deste computador. Clique em “Anterior” para rever a sua escolha. Clique em “Cancelar” para sair da instalação.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Damos-lhe novamente as boas-vindas à instalação do Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direta</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Esta pasta já é utilizada por outra tarefa de sincronização. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Sem espaço livre</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>A carregar as pastas partilhadas...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>A desassociar...</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Ficheiros em sincronização</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Pode alterar todas as definições mais tarde.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostrar o estado da sincronização</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>A pasta no servidor não está montada. Monte-a no servidor e tente novamente.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Assinalar os ficheiros ignorados com um ícone</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>A verificar o tipo de ligação...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Seguinte</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>São mantidas ambas as versões dos ficheiros com conteúdo diferente.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Esta pasta já está sincronizada. Pretende adicioná-la novamente?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Definições avançadas</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Não é possível listar as versões deste ficheiro. Verifique as suas permissões no servidor.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Não foi possível interpretar a resposta do servidor. Atualize o Lumivo Drive e tente novamente.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Tem a certeza de que pretende cancelar a instalação do Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Foi encontrado outro servidor neste endereço</translation>
    </message>
    <message>
        <source>July</source>
        <translation>julho</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Alguns ficheiros que têm de ser atualizados estão em utilização.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>O Lumivo Drive está pronto.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>A base de dados de sincronização está danificada. Desassocie este computador e volte a associá-lo.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Já está instalada neste computador uma versão mais recente do Lumivo Drive. Remova-a antes de instalar esta versão.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Boas-vindas</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sincronizar esta pasta partilhada</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Abrir a janela principal</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Passo atual:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restringir o acesso</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>O programa de instalação irá instalar o Lumivo Drive neste computador. Clique em “Seguinte” para continuar ou em “Cancelar” para sair da instalação.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Introduza o endereço do servidor ou o respetivo ID do ZephLink, o seu nome de utilizador e a sua palavra-passe.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Não foi possível criar a pasta “%1”. Verifique o caminho e as suas permissões.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>A instalação terminou devido a um erro.\nNada foi alterado no computador.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>A sua quota no servidor está esgotada. Elimine alguns ficheiros para continuar a sincronizar.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Filtro de pastas</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Não foi possível verificar o certificado do servidor. Consulte-o nas definições da ligação.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Escolher outra pasta</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Pode abrir o Lumivo Drive em qualquer altura a partir da área de notificação.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>O ficheiro foi alterado em dois locais ao mesmo tempo. Foram mantidas ambas as versões. Elimine aquela de que não precisa.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>O certificado do servidor foi alterado. Verifique-o nas definições da ligação.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Encriptar a ligação (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome da pasta</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Crie uma hiperligação para um ficheiro e envie-a a quem quiser, com palavra-passe e data de fim, se preferir.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Introduza o código de verificação da sua conta.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Optou por remover o Lumivo Drive deste computador.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Não é possível detetar as alterações numa unidade de rede. Selecione uma pasta num disco local.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Já existe uma pasta com este nome. Introduza outro nome.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>sexta-feira</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Definições de proxy</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Abrir ficheiro</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Editar ligação</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Perdeu-se a ligação ao servidor. Será restabelecida automaticamente.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Sem permissão</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Descarregado</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Itens: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Pretende deixar de sincronizar “%1” com “%2”?\nNão será eliminado nenhum ficheiro.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Alterar pasta local</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>A ligação funciona.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Configuração concluída</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Ícones na área de notificação</translation>
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
        <translation>Os ficheiros e as pastas que correspondem a estas regras não são sincronizados.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Remove o Lumivo Drive deste computador. Os seus ficheiros sincronizados são mantidos.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gerir ligações</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Não há espaço suficiente neste disco. Selecione uma pasta noutro disco.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Nomes de ficheiro a ignorar</translation>
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
        <translation>Ficheiros alterados recentemente</translation>
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
        <translation>Esta versão do Lumivo Drive é demasiado antiga. Atualize-a neste computador.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Não é possível sincronizar esta pasta. Selecione outra pasta.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>A descarga foi cancelada.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Limitar o número de descargas</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Mostrar ícones do estado da sincronização nos ficheiros</translation>
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
        <translation>Associar outro servidor</translation>
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
        <translation>Introduza o código de verificação de 6 dígitos</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Compreendi</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>O disco da pasta de sincronização local não está ligado. Ligue-o para continuar a sincronizar.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Não voltar a mostrar esta mensagem</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Começar agora</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Procurar na rede local</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configurar o proxy manualmente</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Pode abrir os ficheiros desta pasta, mas não pode alterá-los.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Demasiadas tentativas falhadas. Aguarde alguns minutos e tente novamente.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>setembro</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>A pasta não está vazia. Os ficheiros nela contidos serão combinados com os do servidor.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Semana passada</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>A descarga está concluída.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Pode recuperar uma versão que tenha substituído ou eliminado.</translation>
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
        <translation>Partilha</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>terça-feira</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Iniciar o Lumivo Drive ao iniciar sessão</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gerir pastas partilhadas</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>Há %1 min</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Esta pasta partilhada deixará de ser sincronizada. Os ficheiros que já estão neste computador serão mantidos.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Extensões de ficheiro a ignorar</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Retransmissão</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Falha no início de sessão</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>O Lumivo Drive não tem funcionalidades que possam ser escolhidas separadamente.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Não iniciou sessão como administrador. O Lumivo Drive será instalado apenas para si.\nPretende continuar?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Não é possível criar hiperligações porque o serviço de ficheiros está desativado. Peça ao administrador que o ative.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Fechar as aplicações e tentar voltar a abri-las depois</translation>
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
        <translation>Esta versão do Lumivo Drive já está instalada. Pretende instalá-la novamente?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Definir uma data de início</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gerir</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Esta pasta partilhada não está montada no servidor. Monte-a no servidor e tente novamente.</translation>
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
        <translation>Desassociar esta ligação</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A ligação está instável</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>A partir de agora, este computador e o servidor mantêm estas pastas sincronizadas.\nPode adicionar mais tarefas de sincronização em qualquer altura.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Não sincronizar esta pasta</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>O certificado do servidor foi alterado.\nContinue apenas se souber o motivo.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Tamanho máximo dos ficheiros (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Manter a versão alterada mais recentemente</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Localizar servidores na rede local</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>A sua conta não tem permissão para sincronizar esta pasta. Peça autorização ao administrador.</translation>
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
        <translation>Só pode ler esta pasta. As alterações feitas neste computador não serão enviadas.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Não tem acesso a esta pasta. Peça autorização ao administrador.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Nenhuma entrada encontrada</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Os seus ficheiros estão a ser sincronizados. Entretanto, pode continuar a trabalhar.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Não foi possível verificar o certificado do servidor.\nContinue apenas se confiar nesta rede.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Ficheiros por sincronizar: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Boas-vindas ao Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Definir uma data de fim</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Não foi possível remover a tarefa de sincronização. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Clique no ícone para ver que ficheiros estão a ser sincronizados.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>A sua pasta de sincronização</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Não foi possível verificar o certificado do servidor. Peça ao administrador que instale um certificado válido.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>O servidor foi substituído. Volte a associar este computador.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Siga estes passos para associar este computador ao servidor.</translation>
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
        <translation>Ficheiros atualizados</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continuar mesmo assim</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Concluir</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Ícones nos ficheiros locais</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Nenhuma ação disponível</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome do ficheiro</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Sincronização parada</translation>
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
        <translation>O servidor ainda está a indexar “%1”. Poderá sincronizar a pasta quando a indexação terminar.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Quando um ficheiro for alterado em dois locais</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>A pasta “%1” não está vazia.\nPretende usá-la mesmo assim?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Alterar pasta</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Sincronize a sua pasta pessoal com as definições recomendadas.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>A carregar as pastas...</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>quarta-feira</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Encriptação SSL</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Pronto para instalar o Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Execute novamente o programa de instalação quando pretender instalar o Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>A sua pasta pessoal no servidor é agora sincronizada com este computador.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Vista geral do servidor</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Colocar em pausa</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Colocar sincronização em pausa</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sábado</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>A quota desta pasta partilhada está esgotada. Elimine alguns ficheiros para continuar a sincronizar.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>A nova tarefa de sincronização</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Histórico de descargas</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>A descarregar...</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>O novo idioma será aplicado da próxima vez que o Lumivo Drive for iniciado.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>A instalar o Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostrar notificações no ambiente de trabalho</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>A configuração rápida é adequada à maioria dos utilizadores. Pode alterar tudo mais tarde.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>O disco do servidor está cheio.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Voltar atrás no tempo</translation>
    </message>
</context>
</TS>
