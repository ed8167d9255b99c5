<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="da_DK" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Vælg den lokale mappe, som du vil synkronisere med din server.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Der kunne ikke oprettes forbindelse til ZephLink-tjenesten. Kontroller netværksforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Filterregler</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Monteringspunkt ikke tilladt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Adgangskode</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointerval</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Denne delte mappe findes ikke længere på din server. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Indtast dit brugernavn.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Filer med disse navne synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Der kunne ikke oprettes forbindelse til din server. Kontroller netværksforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Kun download</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åbn mappe</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Din første synkroniseringsopgave på denne server</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Gendanner manglende eller beskadigede filer, genveje og poster i registreringsdatabasen.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Klik her for at opdatere</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappesti</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delte mapper</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tak</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certifikatadvarsel</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Ændr forbindelsesindstillinger</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester forbindelsen…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Installation af Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Installationsprogrammet er klar til at installere Lumivo Drive på denne computer.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Der blev ikke fundet nogen brugbar mappe. Bed din administrator om adgang til en delt mappe.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Synkronisering af denne delte mappe kunne ikke aktiveres. Prøv igen senere.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Til</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Rediger</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synkroniser denne mappe igen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>For %1 dg. siden</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>Mappen ”%1” er et monteringspunkt og kan ikke synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Denne computer er allerede tilknyttet ”%1”. Rediger i stedet den eksisterende forbindelse.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Opdatering tilgængelig</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Indtast et portnummer fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Åbn synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive er installeret</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Denne mappe overlapper med mappen for en anden synkroniseringsopgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Mapperne på din server kunne ikke vises. Kontroller netværksforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Kræver opmærksomhed</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Certifikatet for din server er ændret. Kontroller det, før du fortsætter.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sidste side</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Kører</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Opdateringen mislykkedes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Certifikatet for din server kunne ikke bekræftes.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Vent et øjeblik. Dette kan tage flere minutter.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Vælg, hvilke funktioner der installeres</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Dine filer, uanset hvor du arbejder</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkroniser disse mapper igen</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Disken på denne computer er fuld. Frigør plads for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Brug et sort-hvidt ikon i meddelelsesområdet</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Nogle felter er ikke udfyldt korrekt. Ret dem, og prøv igen.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Installationen blev afbrudt. Der er ikke foretaget ændringer på din computer.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Mappen blev ikke fundet</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Sat på pause</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Vælg de mapper, der skal synkroniseres</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slet</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Vælg en mappe på din server og den lokale mappe, som den skal synkroniseres med.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Udelad filer og mapper med navne, der begynder med et punktum</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Brugerdefineret interval</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Brugernavnet eller adgangskoden er forkert. Kontroller begge dele, og prøv igen.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Denne adresse tilhører en anden server. Kontroller adressen, og prøv igen.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Vælg konfigurationsmetode</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>mandag</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Din kvote på serveren er opbrugt. Slet nogle filer, eller bed din administrator om mere plads.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>august</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fremdrift</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Starter…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Det maksimale antal delte mapper er nået. Stop først synkroniseringen af en af dem.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Brug systemets proxyindstillinger</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Behold begge versioner, og omdøb den lokale</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprog</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>Synkroniseringen af ”%1” er stoppet. Åbn Lumivo Drive for at se detaljer.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Nulstil</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink-ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Synkroniseringsretningen passer ikke til dine rettigheder til denne mappe. Vælg en anden retning.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Flere detaljer</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februar</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Denne version af Lumivo Drive Server er for gammel. Opdater den på din server.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Synkroniseringsregler</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Denne fil kan ikke downloades. Kontroller dine rettigheder på serveren.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Opretter forbindelse…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Brug ingen proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Genoptag denne forbindelse</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hent link</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valgmuligheder</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Et enkelt blik på ikonet i meddelelsesområdet viser, om dine filer er synkroniseret.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Tilknyt igen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historik</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Skrivebeskyttet</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netværksindstillinger</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Installationsprogrammet gennemfører dine valg.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Mapper, som du fravælger her, fjernes fra denne computer. De bliver liggende på din server.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Disken på din server er fuld. Frigør plads på den for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjælp</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Downloaden mislykkedes. Kontroller netværksforbindelsen, og prøv igen.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Gem og kopier link</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Indtast adressen på din server og dine kontooplysninger.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Lad os komme i gang</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Der er ingen ændringer at gemme.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Kør installationsprogrammet igen, hvis du vil installere Lumivo Drive senere.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Højreklik på en fil i en synkroniseret mappe for at dele den eller se tidligere versioner af den.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusoplysninger</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Lumivo Drive kunne ikke startes. Genstart computeren, og prøv igen.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Behold versionen på serveren</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Denne version af Lumivo Drive er for gammel til din server. Opdater den til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Ændr, reparer eller fjern Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Opret forbindelse via ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Klik på Installer for at begynde. Klik på Tilbage for at gennemse eller ændre dine valg. Klik på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Noget gik galt. Prøv igen senere.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Jeg accepterer vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Selektiv synkronisering er ikke tilgængelig endnu. Opdater Lumivo Drive Server på din server for at bruge den.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdøbt</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Denne mappe er skrivebeskyttet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuller</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Klar til at fjerne Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Vælg, hvad der skal synkroniseres med denne computer, og hvor det skal ligge.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploadet</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Din adgang er blevet inddraget, og de synkroniserede filer er fjernet fra denne computer. Kontakt din administrator.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploader…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Anvender indstillinger…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Læs følgende licensaftale omhyggeligt.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Flettetilstand</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Synkroniser ikke disse mapper</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afslut</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klik på Reparer for at begynde. Klik på Tilbage for at gennemse dit valg. Klik på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Du kan ikke skrive til denne mappe. Ændr mappens rettigheder, eller vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brugernavn</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Indtast en filstørrelse fra %1 til %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Vil du stoppe synkroniseringen af ”%1”? De filer, der allerede findes på denne computer, beholdes.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Hurtig konfiguration</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avanceret konfiguration</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vælg en mappe</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Din kvote på serveren er opbrugt.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklik på ikonet i meddelelsesområdet</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive initialiseres…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Denne computer er nu tilknyttet ”%1”. Synkroniseringen starter med det samme.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Alt er synkroniseret</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Opdaterer…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Brugerdefineret periode</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Følg med i synkroniseringsstatus</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Indlæser…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fil</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Følgende programmer bruger filer, som installationsprogrammet skal opdatere:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Åbn Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Vælg selv mapper, synkroniseringsretning og synkroniseringsregler.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Reparer de installerede filer</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Indtast et antal versioner, der er større end nul.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Dette brugernavn findes ikke på din server. Kontroller det, og prøv igen.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Opdater Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Få mere at vide</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Oprettet</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Hold filerne på denne computer og på din server synkroniseret.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbage</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Denne mappe synkroniseres allerede af en anden app til cloudsynkronisering. Vælg en anden mappe for at undgå konflikter.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernavn</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Proxyen kræver et brugernavn og en adgangskode</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Serveren accepterede ikke anmodningen. Kontroller det, du har indtastet, og prøv igen.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Denne version af Lumivo Drive Server er for gammel til Lumivo Drive på denne computer. Opdater den på din server til version %1 eller nyere.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send til</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>ZephLink-tjenesten rapporterede en fejl. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Luk disse programmer, og klik på Prøv igen, eller klik på Ignorer, og genstart computeren senere.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Her kan du ændre, hvilke funktioner der er installeret.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Vil du fjerne denne computers tilknytning til ”%1”?\nDe filer, der allerede findes på denne computer, beholdes.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Denne mappe bruges af en sikkerhedskopieringsopgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Disken på denne computer er fuld.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Denne mappe er ikke tom</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Åbn filplacering</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Forbindelsestype</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Dette ZephLink-ID findes ikke. Kontroller det, og prøv igen.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Synkroniser ikke disse filer</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Fjern Lumivo Drive fra denne computer</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Din konto kræver totrinsbekræftelse. Konfigurer den på din server, og log derefter ind igen.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Filtjenesten er slået fra på din server. Bed din administrator om at slå den til.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generelt</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Slettet</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Tilføj en synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Del med andre</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Låst fil</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Luk ikke programmerne (du bliver nødt til at genstarte computeren senere)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Om Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Filtjeneste slået fra</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Næste %1 sider</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Den lokale synkroniseringsmappe er flyttet eller slettet. Læg den tilbage, eller vælg en ny.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Denne fil kan ikke deles. Kontroller dine rettigheder på serveren.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Genoptag</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Klik på Udfør for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Udløber efter</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Sæt denne forbindelse på pause</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>er blevet delt med dig.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer i brug</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Installationen blev afsluttet før tid</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Fildeling via ZephLink er slået fra på din server. Bed din administrator om at slå den til.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsæt</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Envejssynkronisering (kun download)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Filerne i begge mapper flettes.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Denne mappe på din server synkroniseres allerede med denne computer.\nEndnu en synkroniseringsopgave for mappen vil optage dobbelt så meget diskplads.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Installationen blev afbrudt</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Bekræftelseskoden er forkert. Indtast den aktuelle kode, og prøv igen.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tovejssynkronisering</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Tilføj</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiveret</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fejl</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Din server blokerer adressen på denne computer. Bed din administrator om at tillade den.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Kontrollerer dit brugernavn og din adgangskode…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Udskriv</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Velkommen til installationen af Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Indtast højst %1 tegn.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flet</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Synkroniser alle filattributter og rettigheder</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>Den delte mappe ”%1” er tilgængelig på ”%2”. Klik her for at synkronisere den.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søgeord</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Opret en tom mappe til Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Alt, hvad du lægger i din synkroniseringsmappe, dukker op på din server og på dine andre computere.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Installationsprogrammet kan ændre, reparere eller fjerne Lumivo Drive. Klik på Næste for at fortsætte.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Vælg en mappe på din server og en mappe på denne computer.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Indtast adressen og porten for proxyserveren.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Holder øje med ændringer…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ændr</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anvend</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>”%1” blev opdateret</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Start Lumivo Drive nu</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marts</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Vælg, hvad du vil gøre.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Hjemmemapper er slået fra på din server. Bed din administrator om at slå dem til.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsopgaver</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Klar til at reparere Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Udeladte filer</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive er nu installeret på denne computer.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv igen</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systemets sprog</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Dine ændringer er ikke gemt.\nVil du fortsætte uden at gemme dem?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Mappen synkroniseres allerede</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserer…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klik på Fjern for at fjerne Lumivo Drive fra denne computer. Klik på Tilbage for at gennemse dit valg. Klik på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Velkommen tilbage til installationen af Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direkte</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Denne mappe bruges allerede af en anden synkroniseringsopgave. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Ikke mere plads</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Indlæser delte mapper…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Filer, der synkroniseres</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Du kan ændre alle indstillinger senere.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Mappen på din server er ikke monteret. Monter den dér, og prøv igen.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Marker udeladte filer med et ikon</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Kontrollerer forbindelsestypen…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Næste</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Begge versioner af filer med forskelligt indhold bevares.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Denne mappe synkroniseres allerede. Vil du tilføje den igen?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerede indstillinger</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Versionerne af denne fil kan ikke vises. Kontroller dine rettigheder på serveren.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Svaret fra serveren kunne ikke forstås. Opdater Lumivo Drive, og prøv igen.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Er du sikker på, at du vil annullere installationen af Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Der blev fundet en anden server på denne adresse</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Nogle filer, der skal opdateres, er i brug.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive er klar.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>Synkroniseringsdatabasen er beskadiget. Fjern denne computers tilknytning, og tilknyt den igen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>En nyere version af Lumivo Drive er allerede installeret på denne computer. Fjern den, før du installerer denne version.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synkroniser denne delte mappe</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Åbn hovedvinduet</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktuelt trin:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begræns adgang</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Installationsprogrammet installerer Lumivo Drive på denne computer. Klik på Næste for at fortsætte eller på Annuller for at afslutte installationsprogrammet.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Indtast din servers adresse eller ZephLink-ID, dit brugernavn og din adgangskode.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Mappen ”%1” kunne ikke oprettes. Kontroller stien og dine rettigheder.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Installationen blev afsluttet på grund af en fejl.\nDer er ikke foretaget ændringer på din computer.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Din kvote på serveren er opbrugt. Slet nogle filer for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Mappefilter</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Certifikatet for din server kunne ikke bekræftes. Kontroller det i forbindelsesindstillingerne.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Vælg en anden mappe</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Du kan altid åbne Lumivo Drive fra meddelelsesområdet.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Filen blev ændret to steder på samme tid. Begge versioner er bevaret. Slet den, du ikke har brug for.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Certifikatet for din server er ændret. Kontroller det i forbindelsesindstillingerne.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Krypter forbindelsen (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Opret et link til en fil, og send det til hvem som helst, eventuelt med adgangskode og slutdato.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Indtast bekræftelseskoden til din konto.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Oplysninger</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Du har valgt at fjerne Lumivo Drive fra denne computer.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Ændringer på et netværksdrev kan ikke registreres. Vælg en mappe på en lokal disk.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Der findes allerede en mappe med dette navn. Indtast et andet navn.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyindstillinger</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åbn fil</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger forbindelse</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Opdateret</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Forbindelsen til din server blev afbrudt. Den genoprettes automatisk.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen rettigheder</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloadet</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elementer: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Vil du stoppe synkroniseringen af ”%1” med ”%2”?\nIngen filer slettes.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Skift lokal mappe</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Forbindelsen virker.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Konfigurationen er færdig</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Ikoner i meddelelsesområdet</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringstilstand</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Sidste måned</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Gennemse tidligere versioner</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>For %1 t. siden</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Filer og mapper, der matcher disse regler, synkroniseres ikke.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Fjerner Lumivo Drive fra denne computer. Dine synkroniserede filer beholdes.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Administrer forbindelser</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Der er ikke plads nok på denne disk. Vælg en mappe på en anden disk.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Filnavne, der udelades</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Genoptag synkronisering</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Senest ændrede filer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP-adresse, domænenavn eller ZephLink-ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Vis Lumivo Drive i genvejsmenuen</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Denne version af Lumivo Drive er for gammel. Opdater den på denne computer.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Denne mappe kan ikke synkroniseres. Vælg en anden mappe.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Indstillinger</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Downloaden blev annulleret.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Begræns antallet af downloads</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Dette felt skal udfyldes.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis introduktionen</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Tilknyt endnu en server</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Jeg accepterer ikke vilkårene i licensaftalen</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerne passer ikke sammen</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Første side</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Adgang nægtet</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Indtast den 6-cifrede bekræftelseskode</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Forstået</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Disken med den lokale synkroniseringsmappe er ikke tilsluttet. Tilslut den for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Vis ikke denne meddelelse igen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nu</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Søg på det lokale netværk</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Konfigurer proxyen manuelt</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Du kan åbne filerne i denne mappe, men ikke ændre dem.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>For mange mislykkede forsøg. Vent et par minutter, og prøv igen.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Mappen er ikke tom. Filerne i den flettes med filerne på din server.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Sidste uge</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Downloaden er fuldført.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Du kan gendanne en version, som du har overskrevet eller slettet.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>søndag</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Kræver opdatering</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Deling</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tirsdag</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Start Lumivo Drive, når du logger ind</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Administrer delte mapper</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>For %1 min. siden</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Denne delte mappe synkroniseres ikke længere. De filer, der allerede findes på denne computer, beholdes.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Filtypenavne, der udelades</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Relæserver</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Login mislykkedes</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive har ingen funktioner, der kan vælges hver for sig.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Værdi</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Du er ikke logget ind som administrator. Lumivo Drive installeres kun for dig.\nVil du fortsætte?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Der kan ikke oprettes links, fordi filtjenesten er slået fra. Bed din administrator om at slå den til.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Luk programmerne, og forsøg at starte dem igen bagefter</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensaftale</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Mappen kunne ikke kontrolleres på grund af en systemfejl. Prøv igen senere.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Denne version af Lumivo Drive er allerede installeret. Vil du installere den igen?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Angiv en startdato</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Denne delte mappe er ikke monteret på din server. Monter den dér, og prøv igen.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt netværk</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hændelser</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Fjern denne tilknytning</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Forbindelsen er ustabil</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Denne computer og din server holder nu disse mapper synkroniseret.\nDu kan til enhver tid tilføje flere synkroniseringsopgaver.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Synkroniser ikke denne mappe</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Certifikatet for din server er ændret.\nFortsæt kun, hvis du ved hvorfor.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maksimal filstørrelse (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Behold den version, der sidst blev ændret</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Find servere på det lokale netværk</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Din konto har ikke tilladelse til at synkronisere denne mappe. Bed din administrator om tilladelse.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Lige nu</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Installationsprogrammet er klar til at reparere Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Du har kun læseadgang til denne mappe. Ændringer på denne computer uploades ikke.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Du har ikke adgang til denne mappe. Bed din administrator om tilladelse.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Ingen poster fundet</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Dine filer synkroniseres. Du kan arbejde videre imens.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Certifikatet for din server kunne ikke bekræftes.\nFortsæt kun, hvis du har tillid til dette netværk.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Filer, der mangler at blive synkroniseret: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Velkommen til Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Angiv en slutdato</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Synkroniseringsopgaven kunne ikke fjernes. Prøv igen senere.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Klik på ikonet for at se, hvilke filer der synkroniseres.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Din synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Certifikatet for din server kunne ikke bekræftes. Bed din administrator om at installere et gyldigt certifikat.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Serveren er blevet udskiftet. Tilknyt denne computer igen.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Følg disse trin for at tilknytte denne computer til din server.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxyserver</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Færdig</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Opdaterede filer</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsæt alligevel</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Udfør</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søg</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Ikoner på lokale filer</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Ingen tilgængelige handlinger</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnavn</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Synkronisering stoppet</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiveret</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Din server er stadig ved at indeksere ”%1”. Du kan synkronisere mappen, når indekseringen er færdig.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Når en fil er ændret to steder</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>Mappen ”%1” er ikke tom.\nVil du bruge den alligevel?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Skift mappe</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Synkroniser din hjemmemappe med de anbefalede indstillinger.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Indlæser mapper…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>onsdag</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-kryptering</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Klar til at installere Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Kør installationsprogrammet igen, når du vil installere Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Din hjemmemappe på serveren synkroniseres nu med denne computer.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroversigt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sæt på pause</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sæt synkronisering på pause</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Kvoten for denne delte mappe er opbrugt. Slet nogle filer for at fortsætte synkroniseringen.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Opsummering</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Din nye synkroniseringsopgave</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadhistorik</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloader…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Det nye sprog bruges, næste gang Lumivo Drive starter.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Installerer Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis meddelelser på skrivebordet</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Hurtig konfiguration passer til de fleste brugere. Du kan ændre alt senere.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Disken på din server er fuld.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Gå tilbage i tiden</translation>
    </message>
</context>
</TS>
