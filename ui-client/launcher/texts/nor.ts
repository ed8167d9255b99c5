<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nb_NO" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Velg den lokale mappen du vil synkronisere med serveren din.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Fikk ikke kontakt med ZephLink-tjenesten. Kontroller nettverkstilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Filterregler</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Monteringspunkt er ikke tillatt</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passord</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Datointervall</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Denne delte mappen finnes ikke lenger på serveren din. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Skriv inn brukernavnet ditt.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Filer med disse navnene blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Kunne ikke koble til serveren din. Kontroller nettverkstilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparer</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Bare nedlasting</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Åpne mappe</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsretning</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Din første synkroniseringsoppgave på denne serveren</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Gjenoppretter manglende eller skadde filer, snarveier og oppføringer i registeret.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Klikk her for å oppdatere</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappebane</translation>
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
        <translation>Nei takk</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Handling</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Sertifikatadvarsel</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Endre tilkoblingsinnstillinger</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Tester tilkoblingen…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Installasjon av Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Installasjonsprogrammet er klart til å installere Lumivo Drive på denne datamaskinen.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delt mappe</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Fant ingen mappe som kan brukes. Be administratoren om tilgang til en delt mappe.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Kunne ikke slå på synkronisering for denne delte mappen. Prøv på nytt senere.</translation>
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
        <translation>Synkroniser denne mappen igjen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nei</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>For %1 d siden</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>Mappen «%1» er et monteringspunkt og kan ikke synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Denne datamaskinen er allerede knyttet til «%1». Rediger den eksisterende tilkoblingen i stedet.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Oppdatering tilgjengelig</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Skriv inn et portnummer fra 1 til 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Åpne synkroniseringsmappe</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive er installert</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Fjern tilknytning</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Denne mappen overlapper med mappen til en annen synkroniseringsoppgave. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Mappene på serveren din kunne ikke vises. Kontroller nettverkstilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Krever oppmerksomhet</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Sertifikatet til serveren din er endret. Kontroller det før du fortsetter.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Siste side</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Kjører</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Oppdateringen mislyktes. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Sertifikatet til serveren din kunne ikke bekreftes.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Vent litt. Dette kan ta flere minutter.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Velg hvilke funksjoner som skal installeres</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Filene dine, uansett hvor du jobber</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkroniser disse mappene igjen</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Disken på denne datamaskinen er full. Frigjør plass for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Bruk et svart-hvitt ikon i systemstatusfeltet</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Noen felt er ikke riktig utfylt. Rett dem opp, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Installasjonen ble avbrutt. Det er ikke gjort noen endringer på datamaskinen din.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Fant ikke mappen</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Satt på pause</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Velg mappene som skal synkroniseres</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Slett</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Velg en mappe på serveren din og den lokale mappen den skal synkroniseres med.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Hopp over filer og mapper med navn som begynner med punktum</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egendefinert intervall</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internett</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Brukernavnet eller passordet er feil. Kontroller begge deler, og prøv på nytt.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Denne adressen tilhører en annen server. Kontroller adressen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtype</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Velg konfigurasjonsmetode</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>mandag</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Kvoten din på serveren er brukt opp. Slett noen filer, eller be administratoren om mer plass.</translation>
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
        <translation>Det maksimale antallet delte mapper er nådd. Stopp først synkroniseringen av en av dem.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Bruk systemets proxyinnstillinger</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Behold begge versjonene, og gi den lokale nytt navn</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>Synkroniseringen av «%1» har stoppet. Åpne Lumivo Drive for å se detaljer.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Tilbakestill</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink-ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Synkroniseringsretningen samsvarer ikke med tillatelsene dine for denne mappen. Velg en annen retning.</translation>
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
        <translation>Denne versjonen av Lumivo Drive Server er for gammel. Oppdater den på serveren din.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Synkroniseringsregler</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Denne filen kan ikke lastes ned. Kontroller tillatelsene dine på serveren.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kobler til…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Ikke bruk proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delt mappe</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Gjenoppta denne tilkoblingen</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hent lenke</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Valg</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Et blikk på ikonet i systemstatusfeltet viser om filene dine er synkronisert.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Fra</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Knytt til igjen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historikk</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versjon</translation>
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
        <translation>Nettverksinnstillinger</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Installasjonsprogrammet gjennomfører valgene dine.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Mapper du velger bort her, blir fjernet fra denne datamaskinen. De blir værende på serveren din.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Disken på serveren din er full. Frigjør plass på den for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjelp</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Nedlastingen mislyktes. Kontroller nettverkstilkoblingen, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Lagre og kopier lenke</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Skriv inn serveradressen og kontoopplysningene dine.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>La oss komme i gang</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Det er ingen endringer å lagre.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Forrige %1 sider</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Kjør installasjonsprogrammet på nytt hvis du vil installere Lumivo Drive senere.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Høyreklikk på en fil i en synkronisert mappe for å dele den eller se tidligere versjoner av den.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformasjon</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Lumivo Drive kunne ikke startes. Start datamaskinen på nytt, og prøv igjen.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Behold versjonen på serveren</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januar</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Denne versjonen av Lumivo Drive er for gammel for serveren din. Oppdater den til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Endre, reparer eller fjern Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Koble til via ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Klikk på Installer for å begynne. Klikk på Tilbake for å se gjennom eller endre valgene dine. Klikk på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Noe gikk galt. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Jeg godtar vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Selektiv synkronisering er ikke tilgjengelig ennå. Oppdater Lumivo Drive Server på serveren din for å bruke den.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Gitt nytt navn</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Denne mappen er skrivebeskyttet</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Klar til å fjerne Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Velg hva som skal synkroniseres med denne datamaskinen, og hvor det skal ligge.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Lastet opp</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Tilgangen din er trukket tilbake, og de synkroniserte filene er fjernet fra denne datamaskinen. Kontakt administratoren.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Ventemodus</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laster opp…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tar i bruk innstillingene…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Les følgende lisensavtale nøye.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Flettemodus</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Ikke synkroniser disse mappene</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avslutt</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klikk på Reparer for å begynne. Klikk på Tilbake for å se gjennom valget ditt. Klikk på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Du kan ikke skrive til denne mappen. Endre tillatelsene for den, eller velg en annen mappe.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Brukernavn</translation>
    </message>
    <message>
        <source>December</source>
        <translation>desember</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Skriv inn en filstørrelse fra %1 til %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Vil du slutte å synkronisere «%1»? Filene som allerede ligger på denne datamaskinen, beholdes.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Rask konfigurasjon</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avansert konfigurasjon</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Velg en mappe</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Kvoten din på serveren er brukt opp.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ved dobbeltklikk på ikonet i systemstatusfeltet</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive klargjøres…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerer filer…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Denne datamaskinen er nå knyttet til «%1». Synkroniseringen starter med en gang.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Alt er synkronisert</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dato</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Oppdaterer…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Egendefinert periode</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Følg med på synkroniseringsstatusen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laster inn…</translation>
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
        <translation>Følgende programmer bruker filer som installasjonsprogrammet må oppdatere:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Åpne Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Velg mappene, synkroniseringsretningen og synkroniseringsreglene selv.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Reparer de installerte filene</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Skriv inn et antall versjoner som er større enn null.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Dette brukernavnet finnes ikke på serveren din. Kontroller det, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Oppdater Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Finn ut mer</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Opprettet</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Hold filene på denne datamaskinen og på serveren din synkronisert.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tilbake</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Denne mappen synkroniseres allerede av en annen app for skysynkronisering. Velg en annen mappe for å unngå konflikter.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Størrelse</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datamaskinnavn</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Proxyen krever brukernavn og passord</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Serveren godtok ikke forespørselen. Kontroller det du har skrevet inn, og prøv på nytt.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Denne versjonen av Lumivo Drive Server er for gammel for Lumivo Drive på denne datamaskinen. Oppdater den på serveren din til versjon %1 eller nyere.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send til</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>ZephLink-tjenesten rapporterte en feil. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Lukk disse programmene, og klikk på Prøv på nytt, eller klikk på Ignorer, og start datamaskinen på nytt senere.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Her kan du endre hvilke funksjoner som er installert.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Vil du fjerne tilknytningen mellom denne datamaskinen og «%1»?\nFilene som allerede ligger på denne datamaskinen, beholdes.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Denne mappen brukes av en sikkerhetskopieringsoppgave. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Disken på denne datamaskinen er full.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Denne mappen er ikke tom</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Åpne filplassering</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Tilkoblingstype</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Denne ZephLink-ID-en finnes ikke. Kontroller den, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Ikke synkroniser disse filene</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Fjern Lumivo Drive fra denne datamaskinen</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Kontoen din krever totrinnsbekreftelse. Konfigurer den på serveren din, og logg deretter inn igjen.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Filtjenesten er slått av på serveren din. Be administratoren om å slå den på.</translation>
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
        <translation>Legg til en synkroniseringsoppgave</translation>
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
        <translation>Ikke lukk programmene (du må starte datamaskinen på nytt senere)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Om Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Filtjenesten er av</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Neste %1 sider</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Den lokale synkroniseringsmappen er flyttet eller slettet. Legg den tilbake, eller velg en ny.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Denne filen kan ikke deles. Kontroller tillatelsene dine på serveren.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Gjenoppta</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Klikk på Fullfør for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Navn</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Utløper etter</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Sett denne tilkoblingen på pause</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>er delt med deg.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer i bruk</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Installasjonen ble avsluttet for tidlig</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Fildeling via ZephLink er slått av på serveren din. Be administratoren om å slå den på.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsett</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lenke</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Enveis synkronisering (bare nedlasting)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Filene i begge mappene blir flettet.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Denne mappen på serveren din synkroniseres allerede med denne datamaskinen.\nEnda en synkroniseringsoppgave for den vil ta dobbelt så mye diskplass.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Installasjonen ble avbrutt</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Bekreftelseskoden er feil. Skriv inn den gjeldende koden, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Toveis synkronisering</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Legg til</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Slått på</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Feil</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Serveren din blokkerer adressen til denne datamaskinen. Be administratoren om å tillate den.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Kontrollerer brukernavnet og passordet ditt…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Velkommen til installasjonen av Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Skriv inn maksimalt %1 tegn.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Flett</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Synkroniser alle filattributter og tillatelser</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>Den delte mappen «%1» er tilgjengelig på «%2». Klikk her for å synkronisere den.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Søkeord</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Opprett en tom mappe for Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Alt du legger i synkroniseringsmappen, dukker opp på serveren din og på de andre datamaskinene dine.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Installasjonsprogrammet kan endre, reparere eller fjerne Lumivo Drive. Klikk på Neste for å fortsette.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Velg en mappe på serveren din og en mappe på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Skriv inn adressen og porten til proxyserveren.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Ser etter endringer…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Endre</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Bruk</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>«%1» ble oppdatert</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Start Lumivo Drive nå</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Velg hva du vil gjøre.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Hjemmemapper er slått av på serveren din. Be administratoren om å slå dem på.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsoppgaver</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Klar til å reparere Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Filer som hoppes over</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive er nå installert på denne datamaskinen.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Forbereder…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Prøv på nytt</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systemspråk</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Endringene dine er ikke lagret.\nVil du fortsette uten å lagre dem?</translation>
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
        <translation>Klikk på Fjern for å fjerne Lumivo Drive fra denne datamaskinen. Klikk på Tilbake for å se gjennom valget ditt. Klikk på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Velkommen tilbake til installasjonen av Lumivo Drive</translation>
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
        <translation>Denne mappen brukes allerede av en annen synkroniseringsoppgave. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Ikke mer plass</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Laster inn delte mapper…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Fjerner tilknytning…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Filer som synkroniseres</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Du kan endre alle innstillinger senere.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Vis synkroniseringsstatus</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Mappen på serveren din er ikke montert. Monter den der, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Vis et ikon på filer som hoppes over</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Kontrollerer tilkoblingstypen…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Begge versjonene av filer med ulikt innhold beholdes.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Denne mappen synkroniseres allerede. Vil du legge den til på nytt?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avanserte innstillinger</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Versjonene av denne filen kan ikke vises. Kontroller tillatelsene dine på serveren.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Svaret fra serveren kunne ikke tolkes. Oppdater Lumivo Drive, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Er du sikker på at du vil avbryte installasjonen av Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Fant en annen server på denne adressen</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Noen av filene som må oppdateres, er i bruk.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive er klar.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>Synkroniseringsdatabasen er skadet. Fjern tilknytningen for denne datamaskinen, og knytt den til igjen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Fjern</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>En nyere versjon av Lumivo Drive er allerede installert på denne datamaskinen. Fjern den før du installerer denne versjonen.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Velkommen</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synkroniser denne delte mappen</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Åpne hovedvinduet</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Nåværende trinn:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begrens tilgang</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Installasjonsprogrammet installerer Lumivo Drive på denne datamaskinen. Klikk på Neste for å fortsette eller på Avbryt for å avslutte installasjonsprogrammet.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Skriv inn adressen eller ZephLink-ID-en til serveren din, brukernavnet ditt og passordet ditt.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Kunne ikke opprette mappen «%1». Kontroller banen og tillatelsene dine.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Installasjonen ble avsluttet på grunn av en feil.\nDet er ikke gjort noen endringer på datamaskinen din.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Kvoten din på serveren er brukt opp. Slett noen filer for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Mappefilter</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Sertifikatet til serveren din kunne ikke bekreftes. Kontroller det i tilkoblingsinnstillingene.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Velg en annen mappe</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Du kan når som helst åpne Lumivo Drive fra systemstatusfeltet.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Filen ble endret to steder samtidig. Begge versjonene er beholdt. Slett den du ikke trenger.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Sertifikatet til serveren din er endret. Kontroller det i tilkoblingsinnstillingene.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Krypter tilkoblingen (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappenavn</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Opprett en lenke til en fil, og send den til hvem som helst – med passord og sluttdato hvis du vil.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Skriv inn bekreftelseskoden for kontoen din.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informasjon</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Du har valgt å fjerne Lumivo Drive fra denne datamaskinen.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Endringer på en nettverksstasjon kan ikke registreres. Velg en mappe på en lokal disk.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Det finnes allerede en mappe med dette navnet. Skriv inn et annet navn.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinnstillinger</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Åpne fil</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Rediger tilkobling</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Oppdatert</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Tilkoblingen til serveren din ble brutt. Den gjenopprettes automatisk.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Ingen tillatelse</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Lastet ned</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elementer: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Vil du slutte å synkronisere «%1» med «%2»?\nIngen filer blir slettet.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Bytt lokal mappe</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Tilkoblingen fungerer.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Konfigurasjonen er fullført</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Ikoner i systemstatusfeltet</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsmodus</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Forrige måned</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Bla gjennom tidligere versjoner</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tidspunkt</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>For %1 t siden</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Filer og mapper som samsvarer med disse reglene, blir ikke synkronisert.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Fjerner Lumivo Drive fra denne datamaskinen. De synkroniserte filene dine beholdes.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Administrer tilkoblinger</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Det er ikke nok plass på denne disken. Velg en mappe på en annen disk.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Filnavn som hoppes over</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Gjenoppta synkronisering</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nylig endrede filer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappe</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP-adresse, domenenavn eller ZephLink-ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Vis Lumivo Drive i hurtigmenyen</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Denne versjonen av Lumivo Drive er for gammel. Oppdater den på denne datamaskinen.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Denne mappen kan ikke synkroniseres. Velg en annen mappe.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Innstillinger</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Nedlastingen ble avbrutt.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Begrens antall nedlastinger</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Vis ikoner for synkroniseringsstatus på filer</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Dette feltet må fylles ut.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Vis introduksjonen</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Knytt til enda en server</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Jeg godtar ikke vilkårene i lisensavtalen</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versjonene passer ikke sammen</translation>
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
        <translation>Ingen tilgang</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Skriv inn den sekssifrede bekreftelseskoden</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Skjønner</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Disken med den lokale synkroniseringsmappen er ikke koblet til. Koble den til for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ikke vis denne meldingen igjen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start nå</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Søk på det lokale nettverket</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Konfigurer proxyen manuelt</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Du kan åpne filene i denne mappen, men ikke endre dem.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>For mange mislykkede forsøk. Vent noen minutter, og prøv på nytt.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Mappen er ikke tom. Filene i den blir flettet med filene på serveren din.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Forrige uke</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Nedlastingen er fullført.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Du kan hente tilbake en versjon du har overskrevet eller slettet.</translation>
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
        <translation>Krever oppdatering</translation>
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
        <translation>Start Lumivo Drive når du logger inn</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Administrer delte mapper</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>For %1 min siden</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Denne delte mappen blir ikke lenger synkronisert. Filene som allerede ligger på denne datamaskinen, beholdes.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Filendelser som hoppes over</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Reléserver</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Innloggingen mislyktes</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive har ingen funksjoner som kan velges separat.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Verdi</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Du er ikke logget inn som administrator. Lumivo Drive blir bare installert for deg.\nVil du fortsette?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Det kan ikke opprettes lenker fordi filtjenesten er slått av. Be administratoren om å slå den på.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Lukk programmene, og forsøk å starte dem på nytt etterpå</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lisensavtale</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Mappen kunne ikke kontrolleres på grunn av en systemfeil. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Denne versjonen av Lumivo Drive er allerede installert. Vil du installere den på nytt?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Angi en startdato</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Administrer</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Denne delte mappen er ikke montert på serveren din. Monter den der, og prøv på nytt.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nettverk</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle hendelser</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Fjern denne tilknytningen</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Tilkoblingen er ustabil</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Denne datamaskinen og serveren din holder nå disse mappene synkronisert.\nDu kan når som helst legge til flere synkroniseringsoppgaver.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Ikke synkroniser denne mappen</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Sertifikatet til serveren din er endret.\nFortsett bare hvis du vet hvorfor.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maksimal filstørrelse (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Behold versjonen som sist ble endret</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Finn servere på det lokale nettverket</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Kontoen din har ikke lov til å synkronisere denne mappen. Be administratoren om tillatelse.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mapper</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Akkurat nå</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Installasjonsprogrammet er klart til å reparere Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Du har bare lesetilgang til denne mappen. Endringer på denne datamaskinen blir ikke lastet opp.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Du har ikke tilgang til denne mappen. Be administratoren om tillatelse.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Fant ingen oppføringer</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Filene dine blir synkronisert. Du kan jobbe videre i mellomtiden.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Sertifikatet til serveren din kunne ikke bekreftes.\nFortsett bare hvis du stoler på dette nettverket.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Filer som gjenstår å synkronisere: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Velkommen til Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Angi en sluttdato</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Synkroniseringsoppgaven kunne ikke fjernes. Prøv på nytt senere.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Klikk på ikonet for å se hvilke filer som blir synkronisert.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Synkroniseringsmappen din</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Sertifikatet til serveren din kunne ikke bekreftes. Be administratoren om å installere et gyldig sertifikat.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Serveren er byttet ut. Knytt denne datamaskinen til serveren på nytt.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Følg disse trinnene for å knytte denne datamaskinen til serveren din.</translation>
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
        <translation>Ferdig</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Oppdaterte filer</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsett likevel</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fullfør</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Søk</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Ikoner på lokale filer</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Ingen tilgjengelige handlinger</translation>
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
        <translation>Slått av</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Serveren din indekserer fortsatt «%1». Du kan synkronisere mappen når indekseringen er fullført.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Når en fil er endret to steder</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>Mappen «%1» er ikke tom.\nVil du bruke den likevel?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Bytt mappe</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Synkroniser hjemmemappen din med de anbefalte innstillingene.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Laster inn mapper…</translation>
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
        <translation>Klar til å installere Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Kjør installasjonsprogrammet på nytt når du vil installere Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Hjemmemappen din på serveren synkroniseres nå med denne datamaskinen.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroversikt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Sett på pause</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Sett synkronisering på pause</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lørdag</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Kvoten for denne delte mappen er brukt opp. Slett noen filer for å fortsette synkroniseringen.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammendrag</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Din nye synkroniseringsoppgave</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedlastingshistorikk</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laster ned…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Det nye språket brukes neste gang Lumivo Drive starter.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Installerer Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Vis skrivebordsvarsler</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Rask konfigurasjon passer for de fleste brukere. Du kan endre alt senere.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Disken på serveren din er full.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Gå tilbake i tid</translation>
    </message>
</context>
</TS>
