<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Selezionare la cartella locale da sincronizzare con il server.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Impossibile raggiungere il servizio ZephLink. Controllare la connessione di rete e riprovare.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Regole di filtro</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Punto di montaggio non consentito</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Intervallo di date</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Questa cartella condivisa non esiste più sul server. Selezionare un’altra cartella.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Immettere il nome utente.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>I file con questi nomi non verranno sincronizzati.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Impossibile connettersi al server. Controllare la connessione di rete e riprovare.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Ripara</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Solo download</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Direzione di sincronizzazione</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Prima attività di sincronizzazione su questo server</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Ripristina i file, i collegamenti e le voci del Registro di sistema mancanti o danneggiati.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Fare clic qui per aggiornare</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Percorso della cartella</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Cartelle condivise</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, grazie</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Avviso relativo al certificato</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Modifica impostazioni di connessione</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verifica della connessione…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Installazione di Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Oggi</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Il programma di installazione è pronto per installare Lumivo Drive su questo computer.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nuova cartella condivisa</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Nessuna cartella utilizzabile trovata. Chiedere all’amministratore l’accesso a una cartella condivisa.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Impossibile attivare la sincronizzazione di questa cartella condivisa. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Al</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Sincronizza di nuovo questa cartella</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 g fa</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>La cartella “%1” è un punto di montaggio e non può essere sincronizzata. Selezionare un’altra cartella.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Questo computer è già collegato a “%1”. Modificare invece la connessione esistente.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Aggiornamento disponibile</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Immettere un numero di porta compreso tra 1 e 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Apri cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive è stato installato</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Scollega</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Questa cartella si sovrappone a quella di un’altra attività di sincronizzazione. Selezionare un’altra cartella.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Impossibile elencare le cartelle del server. Controllare la connessione di rete e riprovare.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Intervento richiesto</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Il certificato del server è cambiato. Controllarlo prima di continuare.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ultima pagina</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>In esecuzione</translation>
    </message>
    <message>
        <source>June</source>
        <translation>giugno</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Aggiornamento non riuscito. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Impossibile verificare il certificato del server.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Attendere. L’operazione potrebbe richiedere alcuni minuti.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Scegli le funzionalità da installare</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>I file sempre a disposizione, ovunque si lavori</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Sincronizza di nuovo queste cartelle</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Il disco di questo computer è pieno. Liberare spazio per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Usa un’icona in bianco e nero nell’area di notifica</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Alcuni campi non sono compilati correttamente. Correggerli e riprovare.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>L’installazione è stata interrotta. Il computer non è stato modificato.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Cartella non trovata</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Scegliere le cartelle da sincronizzare</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Scegliere una cartella sul server e la cartella locale con cui sincronizzarla.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Ignora i file e le cartelle il cui nome inizia con un punto</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Intervallo personalizzato</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Nome utente o password non corretti. Controllare entrambi e riprovare.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Questo indirizzo appartiene a un altro server. Controllare l’indirizzo e riprovare.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Tipo di file</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Scegliere la modalità di configurazione</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>lunedì</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>La quota sul server è esaurita. Eliminare alcuni file o chiedere più spazio all’amministratore.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>agosto</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Avvio in corso…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>È stato raggiunto il numero massimo di cartelle condivise. Interrompere prima la sincronizzazione di una di esse.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Usa le impostazioni proxy di sistema</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Conserva entrambe le versioni e rinomina quella locale</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>La sincronizzazione di “%1” si è interrotta. Aprire Lumivo Drive per i dettagli.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ID ZephLink</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>La direzione di sincronizzazione non corrisponde alle autorizzazioni dell’utente per questa cartella. Scegliere un’altra direzione.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Altri dettagli</translation>
    </message>
    <message>
        <source>October</source>
        <translation>ottobre</translation>
    </message>
    <message>
        <source>February</source>
        <translation>febbraio</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Questa versione di Lumivo Drive Server è troppo vecchia. Aggiornarla sul server.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Regole di sincronizzazione</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Impossibile scaricare questo file. Controllare le autorizzazioni sul server.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Non usare un proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Cartella condivisa</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Riprendi questa connessione</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Ottieni link</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>L’icona nell’area di notifica mostra a colpo d’occhio se i file sono sincronizzati.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Dal</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Collega di nuovo</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Sola lettura</translation>
    </message>
    <message>
        <source>April</source>
        <translation>aprile</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Impostazioni di rete</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Il programma di installazione sta applicando le scelte effettuate.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Le cartelle deselezionate qui verranno rimosse da questo computer. Rimarranno sul server.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Il disco del server è pieno. Liberare spazio sul server per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Download non riuscito. Controllare la connessione di rete e riprovare.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Salva e copia link</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Immettere l’indirizzo del server e i dati dell’account.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Per iniziare</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Nessuna modifica da salvare.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>%1 pagine precedenti</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Per installare Lumivo Drive in un secondo momento, eseguire di nuovo il programma di installazione.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Fare clic con il pulsante destro su un file di una cartella sincronizzata per condividerlo o vederne le versioni precedenti.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Ieri</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informazioni sullo stato</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Impossibile avviare Lumivo Drive. Riavviare il computer e riprovare.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Conserva la versione sul server</translation>
    </message>
    <message>
        <source>January</source>
        <translation>gennaio</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Questa versione di Lumivo Drive è troppo vecchia per il server. Aggiornarla alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Modifica, riparazione o rimozione di Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Connetti tramite ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Fare clic su “Installa” per iniziare. Fare clic su “Indietro” per rivedere o modificare le scelte. Fare clic su “Annulla” per uscire dall’installazione.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Si è verificato un errore. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>La sincronizzazione selettiva non è ancora disponibile. Per usarla, aggiornare Lumivo Drive Server sul server.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Rinominato</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Questa cartella è di sola lettura</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Pronto per rimuovere Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Scegliere cosa sincronizzare con questo computer e dove salvarlo.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Caricato sul server</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>L’accesso è stato revocato e i file sincronizzati sono stati rimossi da questo computer. Contattare l’amministratore.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Caricamento sul server…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applicazione delle impostazioni…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Leggere attentamente il seguente contratto di licenza.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Modalità di unione</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Non sincronizzare queste cartelle</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Fare clic su “Ripara” per iniziare. Fare clic su “Indietro” per rivedere la scelta. Fare clic su “Annulla” per uscire dall’installazione.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Impossibile scrivere in questa cartella. Modificarne le autorizzazioni o selezionare un’altra cartella.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Sincronizzazione selettiva</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nome utente</translation>
    </message>
    <message>
        <source>December</source>
        <translation>dicembre</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Immettere una dimensione file compresa tra %1 e %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Interrompere la sincronizzazione di “%1”? I file già presenti su questo computer verranno conservati.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Configurazione rapida</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Configurazione avanzata</translation>
    </message>
    <message>
        <source>November</source>
        <translation>novembre</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selezionare una cartella</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Indirizzo del server</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>La quota sul server è esaurita.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Quando si fa doppio clic sull’icona nell’area di notifica</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Inizializzazione di Lumivo Drive…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Controllo dei file…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Questo computer è ora collegato a “%1”. La sincronizzazione si avvia subito.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Tutto sincronizzato</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aggiornamento in corso…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Periodo personalizzato</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Controllare lo stato della sincronizzazione</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Caricamento in corso…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inattivo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Le seguenti applicazioni stanno usando file che il programma di installazione deve aggiornare:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Apri Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Consente di scegliere le cartelle, la direzione e le regole di sincronizzazione.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Ripara i file installati</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Immettere un numero di versioni maggiore di zero.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Questo nome utente non esiste sul server. Controllarlo e riprovare.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Aggiorna Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Altre informazioni</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Data di creazione</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>I file su questo computer e sul server restano sempre sincronizzati.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Questa cartella è già sincronizzata da un’altra app di sincronizzazione cloud. Selezionare un’altra cartella per evitare conflitti.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nome del computer</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignora</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Il proxy richiede un nome utente e una password</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Il server non ha accettato la richiesta. Controllare i dati immessi e riprovare.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Questa versione di Lumivo Drive Server è troppo vecchia per la versione di Lumivo Drive installata su questo computer. Aggiornare Lumivo Drive Server alla versione %1 o successiva.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Invia a</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>Il servizio ZephLink ha segnalato un errore. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Chiudere queste applicazioni e fare clic su “Riprova”, oppure fare clic su “Ignora” e riavviare il computer in un secondo momento.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Consente di modificare le funzionalità installate.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Scollegare questo computer da “%1”?\nI file già presenti su questo computer verranno conservati.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Questa cartella è usata da un’attività di backup. Selezionare un’altra cartella.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Il disco di questo computer è pieno.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Questa cartella non è vuota</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Apri percorso file</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tipo di connessione</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Questo ID ZephLink non esiste. Controllarlo e riprovare.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Non sincronizzare questi file</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Rimuovi Lumivo Drive da questo computer</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>L’account richiede la verifica in due passaggi. Configurarla sul server, quindi accedere di nuovo.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Il servizio file è disattivato sul server. Chiedere all’amministratore di attivarlo.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generali</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Eliminato</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Aggiungere un’attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Condividere con altri</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>File bloccato</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Non chiudere le applicazioni (in seguito sarà necessario riavviare il computer)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Informazioni su Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Servizio file disattivato</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>%1 pagine successive</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>La cartella di sincronizzazione locale è stata spostata o eliminata. Ripristinarla o sceglierne una nuova.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Impossibile condividere questo file. Controllare le autorizzazioni sul server.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Riprendi</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Fare clic su “Fine” per uscire dall’installazione.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Scade dopo</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Metti in pausa questa connessione</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>è ora condiviso con questo account.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>File in uso</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>L’installazione è terminata prematuramente</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>La condivisione di file tramite ZephLink è disattivata sul server. Chiedere all’amministratore di attivarla.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Sincronizzazione unidirezionale (solo download)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>I file delle due cartelle verranno uniti.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Questa cartella del server è già sincronizzata con questo computer.\nUna seconda attività di sincronizzazione occuperebbe il doppio dello spazio su disco.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>L’installazione è stata interrotta</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Il codice di verifica non è corretto. Immettere il codice attuale e riprovare.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Sincronizzazione bidirezionale</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Il server blocca l’indirizzo di questo computer. Chiedere all’amministratore di consentirlo.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Verifica del nome utente e della password…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Benvenuti nell’installazione di Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Immettere al massimo %1 caratteri.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Sincronizza tutti gli attributi e le autorizzazioni dei file</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>La cartella condivisa “%1” è disponibile su “%2”. Fare clic qui per sincronizzarla.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Parola chiave</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Crea una cartella vuota per Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtro dei file</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Tutto ciò che si inserisce nella cartella di sincronizzazione compare sul server e sugli altri computer.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Il programma di installazione può modificare, riparare o rimuovere Lumivo Drive. Fare clic su “Avanti” per continuare.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Selezionare una cartella sul server e una cartella su questo computer.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Immettere l’indirizzo e la porta del server proxy.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Monitoraggio delle modifiche…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” è stato aggiornato</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Avvia Lumivo Drive ora</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzo</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Selezionare l’operazione da eseguire.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Le cartelle personali sono disattivate sul server. Chiedere all’amministratore di attivarle.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Pronto per riparare Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>File ignorati</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive è ora installato su questo computer.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparazione in corso…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Riprova</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Lingua di sistema</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Le modifiche non sono state salvate.\nUscire senza salvarle?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Cartella già sincronizzata</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Sincronizzazione in corso…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Fare clic su “Rimuovi” per rimuovere Lumivo Drive da questo computer. Fare clic su “Indietro” per rivedere la scelta. Fare clic su “Annulla” per uscire dall’installazione.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Bentornati nell’installazione di Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Diretta</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Questa cartella è già usata da un’altra attività di sincronizzazione. Selezionare un’altra cartella.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Spazio esaurito</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Caricamento delle cartelle condivise…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Scollegamento in corso…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>File in fase di sincronizzazione</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Tutte le impostazioni potranno essere modificate in seguito.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Mostra stato della sincronizzazione</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>La cartella sul server non è montata. Montarla sul server e riprovare.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Contrassegna i file ignorati con un’icona</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Verifica del tipo di connessione…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Dei file con contenuti diversi vengono conservate entrambe le versioni.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Questa cartella è già sincronizzata. Aggiungerla di nuovo?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Impostazioni avanzate</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Impossibile elencare le versioni di questo file. Controllare le autorizzazioni sul server.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Impossibile interpretare la risposta del server. Aggiornare Lumivo Drive e riprovare.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Annullare davvero l’installazione di Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>È stato trovato un altro server a questo indirizzo</translation>
    </message>
    <message>
        <source>July</source>
        <translation>luglio</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Alcuni file da aggiornare sono in uso.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive è pronto.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>Il database di sincronizzazione è danneggiato. Scollegare questo computer e collegarlo di nuovo.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Su questo computer è già installata una versione più recente di Lumivo Drive. Rimuoverla prima di installare questa versione.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Benvenuti</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sincronizza questa cartella condivisa</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Apri la finestra principale</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Passaggio corrente:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Limita l’accesso</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Il programma di installazione installerà Lumivo Drive su questo computer. Fare clic su “Avanti” per continuare o su “Annulla” per uscire dall’installazione.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Immettere l’indirizzo o l’ID ZephLink del server, il nome utente e la password.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Impossibile creare la cartella “%1”. Controllare il percorso e le autorizzazioni.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>L’installazione è terminata a causa di un errore.\nIl computer non è stato modificato.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>La quota sul server è esaurita. Eliminare alcuni file per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Filtro delle cartelle</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Impossibile verificare il certificato del server. Controllarlo nelle impostazioni di connessione.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Scegli un’altra cartella</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>È possibile aprire Lumivo Drive in qualsiasi momento dall’area di notifica.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Il file è stato modificato in due posizioni contemporaneamente. Entrambe le versioni sono state conservate. Eliminare quella non necessaria.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Il certificato del server è cambiato. Controllarlo nelle impostazioni di connessione.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Crittografa la connessione (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nome della cartella</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>È possibile creare un link a un file e inviarlo a chiunque, facoltativamente con una password e una data di fine.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Immettere il codice di verifica dell’account.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Si è scelto di rimuovere Lumivo Drive da questo computer.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Non è possibile rilevare le modifiche su un’unità di rete. Selezionare una cartella su un disco locale.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Esiste già una cartella con questo nome. Immettere un altro nome.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>venerdì</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Impostazioni proxy</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Apri file</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Modifica connessione</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>La connessione al server è stata persa. Verrà ripristinata automaticamente.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nessuna autorizzazione</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Scaricato</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elementi: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Interrompere la sincronizzazione di “%1” con “%2”?\nNessun file verrà eliminato.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Cambia cartella locale</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>La connessione funziona.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Configurazione completata</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Icone nell’area di notifica</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maggio</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Modalità di sincronizzazione</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Mese scorso</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Sfoglia versioni precedenti</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 h fa</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>I file e le cartelle che corrispondono a queste regole non vengono sincronizzati.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Rimuove Lumivo Drive da questo computer. I file sincronizzati vengono conservati.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Gestisci connessioni</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Spazio insufficiente su questo disco. Selezionare una cartella su un altro disco.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Nomi di file da ignorare</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>giovedì</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Riprendi la sincronizzazione</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>File modificati di recente</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>Indirizzo IP, nome di dominio o ID ZephLink</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Mostra Lumivo Drive nel menu contestuale</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Questa versione di Lumivo Drive è troppo vecchia. Aggiornarla su questo computer.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Questa cartella non può essere sincronizzata. Selezionare un’altra cartella.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Il download è stato annullato.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Limita il numero di download</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Mostra le icone di stato della sincronizzazione sui file</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Questo campo è obbligatorio.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Mostra il tutorial</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Collega un altro server</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Non accetto i termini del contratto di licenza</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versioni incompatibili</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Prima pagina</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installa</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Accesso negato</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Immettere il codice di verifica a 6 cifre</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Ho capito</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Il disco con la cartella di sincronizzazione locale non è connesso. Connetterlo per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Non mostrare più questo messaggio</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Inizia ora</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Cerca nella rete locale</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Configura il proxy manualmente</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>È possibile aprire i file di questa cartella, ma non modificarli.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Troppi tentativi non riusciti. Attendere alcuni minuti e riprovare.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>settembre</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>La cartella non è vuota. I file che contiene verranno uniti a quelli sul server.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Settimana scorsa</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Il download è completato.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>È possibile recuperare una versione sovrascritta o eliminata.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>domenica</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Aggiornamento richiesto</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Condivisione</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>martedì</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Avvia Lumivo Drive all’accesso</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gestisci cartelle condivise</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min fa</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Questa cartella condivisa non verrà più sincronizzata. I file già presenti su questo computer verranno conservati.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Estensioni di file da ignorare</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Inoltro</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Accesso non riuscito</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive non ha funzionalità selezionabili separatamente.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>L’accesso non è stato effettuato come amministratore. Lumivo Drive verrà installato solo per l’utente corrente.\nContinuare?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Impossibile creare link perché il servizio file è disattivato. Chiedere all’amministratore di attivarlo.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Chiudi le applicazioni e tenta di riavviarle in seguito</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Contratto di licenza</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Impossibile controllare la cartella a causa di un errore di sistema. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Questa versione di Lumivo Drive è già installata. Installarla di nuovo?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Imposta una data di inizio</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Gestisci</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Questa cartella condivisa non è montata sul server. Montarla sul server e riprovare.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Rete locale</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Tutti gli eventi</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Scollega questa connessione</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>La connessione è instabile</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Questo computer e il server mantengono ora sincronizzate queste cartelle.\nÈ possibile aggiungere altre attività di sincronizzazione in qualsiasi momento.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Non sincronizzare questa cartella</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Il certificato del server è cambiato.\nContinuare solo se se ne conosce il motivo.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Dimensione massima dei file (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Conserva la versione modificata per ultima</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Trova i server nella rete locale</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>L’account non è autorizzato a sincronizzare questa cartella. Chiedere l’autorizzazione all’amministratore.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Adesso</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Il programma di installazione è pronto per riparare Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Questa cartella è di sola lettura. Le modifiche su questo computer non verranno caricate sul server.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Accesso a questa cartella non consentito. Chiedere l’autorizzazione all’amministratore.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Nessuna voce trovata</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Sincronizzazione dei file in corso. Nel frattempo è possibile continuare a lavorare.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Impossibile verificare il certificato del server.\nContinuare solo se si considera attendibile questa rete.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>File ancora da sincronizzare: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Benvenuti in Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Imposta una data di fine</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Impossibile rimuovere l’attività di sincronizzazione. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Fare clic sull’icona per vedere quali file sono in fase di sincronizzazione.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>La cartella di sincronizzazione</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Impossibile verificare il certificato del server. Chiedere all’amministratore di installarne uno valido.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Il server è stato sostituito. Collegare di nuovo questo computer.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Seguire questi passaggi per collegare questo computer al server.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Server proxy</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fatto</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>File aggiornati</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continua comunque</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Icone sui file locali</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Nessuna azione disponibile</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Sincronizzazione interrotta</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Cartella di sincronizzazione locale</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Il server sta ancora indicizzando “%1”. Sarà possibile sincronizzare la cartella al termine dell’indicizzazione.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Quando un file è stato modificato in due posizioni</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>La cartella “%1” non è vuota.\nUsarla comunque?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Cambia cartella</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Sincronizza la cartella personale con le impostazioni consigliate.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Caricamento delle cartelle…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>mercoledì</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Crittografia SSL</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Pronto per installare Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Eseguire di nuovo il programma di installazione quando si desidera installare Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>La cartella personale sul server è ora sincronizzata con questo computer.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Panoramica del server</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Metti in pausa</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Metti in pausa la sincronizzazione</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sabato</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>La quota di questa cartella condivisa è esaurita. Eliminare alcuni file per continuare la sincronizzazione.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Nuova attività di sincronizzazione</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Cronologia dei download</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Download in corso…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>La nuova lingua avrà effetto al prossimo avvio di Lumivo Drive.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Installazione di Lumivo Drive in corso</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Mostra le notifiche sul desktop</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>La configurazione rapida è adatta alla maggior parte degli utenti. Sarà possibile modificare tutto in seguito.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Il disco del server è pieno.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Tornare indietro nel tempo</translation>
    </message>
</context>
</TS>
