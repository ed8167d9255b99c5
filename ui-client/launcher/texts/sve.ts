<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv_SE" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Välj den lokala mapp som du vill synkronisera med din server.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Det gick inte att nå ZephLink-tjänsten. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Filterregler</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Monteringspunkten tillåts inte</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Lösenord</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Tidsperiod</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Den här delade mappen finns inte längre på din server. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Ange ditt användarnamn.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Filer med de här namnen synkroniseras inte.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Det gick inte att ansluta till din server. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparera</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Endast nedladdning</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synkroniseringsriktning</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Din första synkroniseringsuppgift på den här servern</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Återställer saknade eller skadade filer, genvägar och registerposter.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Mål</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Klicka här för att uppdatera</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappsökväg</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Delade mappar</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nej tack</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certifikatvarning</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Ändra anslutningsinställningar</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testar anslutningen…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Installation av Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>I dag</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Installationsprogrammet är redo att installera Lumivo Drive på den här datorn.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Ny delad mapp</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Ingen användbar mapp hittades. Be administratören om åtkomst till en delad mapp.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Det gick inte att aktivera synkronisering för den här delade mappen. Försök igen senare.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Till</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Redigera</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Synkronisera den här mappen igen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nej</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>För %1 d sedan</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>Mappen ”%1” är en monteringspunkt och kan inte synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Den här datorn är redan kopplad till ”%1”. Redigera den befintliga anslutningen i stället.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Uppdatering tillgänglig</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Ange ett portnummer från 1 till 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Öppna synkroniseringsmappen</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive har installerats</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Koppla bort</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Den här mappen överlappar mappen för en annan synkroniseringsuppgift. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Mapparna på din server kunde inte visas. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Kräver åtgärd</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Certifikatet för din server har ändrats. Kontrollera det innan du fortsätter.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Sista sidan</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Körs</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Uppdateringen misslyckades. Försök igen senare.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Certifikatet för din server kunde inte verifieras.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Vänta. Det kan ta flera minuter.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Välj vilka funktioner som ska installeras</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Dina filer, var du än arbetar</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Synkronisera de här mapparna igen</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Datorns disk är full. Frigör utrymme för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Använd en svartvit ikon i meddelandefältet</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Vissa fält är inte korrekt ifyllda. Rätta dem och försök igen.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Installationen avbröts. Inga ändringar har gjorts på datorn.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Mappen hittades inte</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausad</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Välj vilka mappar som ska synkroniseras</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Radera</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Välj en mapp på din server och den lokala mapp som den ska synkroniseras med.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Hoppa över filer och mappar vars namn börjar med en punkt</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Anpassad tidsperiod</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Användarnamnet eller lösenordet är felaktigt. Kontrollera båda och försök igen.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Den här adressen tillhör en annan server. Kontrollera adressen och försök igen.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Filtyp</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Välj konfigurationssätt</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>måndag</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Din kvot på servern är slut. Radera några filer eller be administratören om mer utrymme.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusti</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Förlopp</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Startar…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Om</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Det högsta antalet delade mappar har nåtts. Sluta synkronisera en av dem först.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Använd systemets proxyinställningar</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Behåll båda versionerna och byt namn på den lokala</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Språk</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>Synkroniseringen av ”%1” har stoppats. Öppna Lumivo Drive för mer information.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Återställ</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink-ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Synkroniseringsriktningen stämmer inte med dina behörigheter för den här mappen. Välj en annan riktning.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Mer information</translation>
    </message>
    <message>
        <source>October</source>
        <translation>oktober</translation>
    </message>
    <message>
        <source>February</source>
        <translation>februari</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Den här versionen av Lumivo Drive Server är för gammal. Uppdatera den på din server.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Synkroniseringsregler</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Filen kan inte laddas ned. Kontrollera dina behörigheter på servern.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Ansluter…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Använd inte någon proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Delad mapp</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Återuppta den här anslutningen</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hämta länk</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Alternativ</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Med en blick på ikonen i meddelandefältet ser du om dina filer är synkroniserade.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Från</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Koppla igen</translation>
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
        <translation>Skrivskyddad</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nätverksinställningar</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Installationsprogrammet tillämpar dina val.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Mappar som du avmarkerar här tas bort från den här datorn. De finns kvar på din server.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Disken på din server är full. Frigör utrymme på den för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Nedladdningen misslyckades. Kontrollera nätverksanslutningen och försök igen.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Spara och kopiera länk</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Ange serverns adress och dina kontouppgifter.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Kom igång</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Det finns inga ändringar att spara.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Föregående %1 sidor</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Kör installationsprogrammet igen om du vill installera Lumivo Drive senare.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Högerklicka på en fil i en synkroniserad mapp för att dela den eller visa tidigare versioner av den.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>I går</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformation</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Det gick inte att starta Lumivo Drive. Starta om datorn och försök igen.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Behåll versionen på servern</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Den här versionen av Lumivo Drive är för gammal för din server. Uppdatera till version %1 eller senare.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Ändra, reparera eller ta bort Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Anslut via ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Klicka på Installera för att börja. Klicka på Tillbaka för att granska eller ändra dina val. Klicka på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Något gick fel. Försök igen senare.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Jag godkänner villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Selektiv synkronisering är inte tillgänglig ännu. Uppdatera Lumivo Drive Server på din server för att använda funktionen.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Omdöpt</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Den här mappen är skrivskyddad</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Redo att ta bort Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Välj vad som ska synkroniseras med den här datorn och var det ska sparas.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uppladdad</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Din åtkomst har återkallats och de synkroniserade filerna har tagits bort från den här datorn. Kontakta administratören.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Vänteläge</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Laddar upp…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Tillämpar inställningarna…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Läs följande licensavtal noggrant.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Sammanslagningsläge</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Synkronisera inte de här mapparna</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klicka på Reparera för att börja. Klicka på Tillbaka för att granska ditt val. Klicka på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Du kan inte skriva till den här mappen. Ändra mappens behörigheter eller välj en annan mapp.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektiv synkronisering</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Användarnamn</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Ange en filstorlek från %1 till %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Vill du sluta synkronisera ”%1”? Filerna som redan finns på den här datorn behålls.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snabbkonfiguration</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Avancerad konfiguration</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Välj en mapp</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradress</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Din kvot på servern är slut.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Vid dubbelklick på ikonen i meddelandefältet</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive initieras…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrollerar filer…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Den här datorn är nu kopplad till ”%1”. Synkroniseringen börjar direkt.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Allt synkroniserat</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Uppdaterar…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Anpassad varaktighet</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Håll koll på synkroniseringsstatusen</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Läser in…</translation>
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
        <translation>Följande program använder filer som installationsprogrammet måste uppdatera:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Öppna Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Välj själv mappar, synkroniseringsriktning och synkroniseringsregler.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Reparera de installerade filerna</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Ange ett antal versioner som är större än noll.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Användarnamnet finns inte på din server. Kontrollera det och försök igen.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Uppdatera Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Läs mer</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Skapad</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Håll filerna på den här datorn och på din server synkroniserade.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Tillbaka</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Den här mappen synkroniseras redan av en annan app för molnsynkronisering. Välj en annan mapp för att undvika konflikter.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Datornamn</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorera</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Proxyn kräver användarnamn och lösenord</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Servern godtog inte begäran. Kontrollera dina uppgifter och försök igen.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Den här versionen av Lumivo Drive Server är för gammal för Lumivo Drive på den här datorn. Uppdatera den på din server till version %1 eller senare.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Skicka till</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>ZephLink-tjänsten rapporterade ett fel. Försök igen senare.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Stäng de här programmen och klicka på Försök igen, eller klicka på Ignorera och starta om datorn senare.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Här kan du ändra vilka funktioner som är installerade.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Vill du koppla bort den här datorn från ”%1”?\nFilerna som redan finns på den här datorn behålls.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Den här mappen används av en säkerhetskopieringsuppgift. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Datorns disk är full.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Mappen är inte tom</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Öppna överordnad mapp</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Anslutningstyp</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Det här ZephLink-ID:t finns inte. Kontrollera det och försök igen.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Synkronisera inte de här filerna</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Ta bort Lumivo Drive från den här datorn</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Ditt konto kräver tvåstegsverifiering. Konfigurera den på din server och logga sedan in igen.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Filtjänsten är avstängd på din server. Be administratören att slå på den.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allmänt</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Raderad</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Lägg till en synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Dela med andra</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Låst fil</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Stäng inte programmen (du måste starta om datorn senare)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Om Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Filtjänsten avstängd</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nästa %1 sidor</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Den lokala synkroniseringsmappen har flyttats eller raderats. Lägg tillbaka den eller välj en ny.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Filen kan inte delas. Kontrollera dina behörigheter på servern.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Återuppta</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Klicka på Slutför för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Går ut efter</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Pausa den här anslutningen</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>har delats med dig.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Filer som används</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Installationen avslutades i förtid</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Fildelning via ZephLink är avstängd på din server. Be administratören att slå på den.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Länk</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Enkelriktad synkronisering (endast nedladdning)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Filerna i båda mapparna slås samman.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Den här mappen på din server synkroniseras redan med den här datorn.\nYtterligare en synkroniseringsuppgift för den skulle ta upp dubbelt så mycket diskutrymme.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Installationen avbröts</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Verifieringskoden är felaktig. Ange den aktuella koden och försök igen.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Dubbelriktad synkronisering</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiverad</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fel</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Din server blockerar den här datorns adress. Be administratören att tillåta den.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Kontrollerar användarnamn och lösenord…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Skriv ut</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Välkommen till installationen av Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Ange högst %1 tecken.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Slå samman</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Synkronisera alla filattribut och behörigheter</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>Den delade mappen ”%1” är tillgänglig på ”%2”. Klicka här för att synkronisera den.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Sökord</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Skapa en tom mapp för Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filfilter</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Allt som du lägger i synkroniseringsmappen dyker upp på din server och på dina andra datorer.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Installationsprogrammet kan ändra, reparera eller ta bort Lumivo Drive. Klicka på Nästa för att fortsätta.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Välj en mapp på din server och en mapp på den här datorn.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Ange proxyserverns adress och port.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Bevakar ändringar…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändra</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Tillämpa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>”%1” har uppdaterats</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Starta Lumivo Drive nu</translation>
    </message>
    <message>
        <source>March</source>
        <translation>mars</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Välj vad du vill göra.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Hemmappar är avstängda på din server. Be administratören att slå på dem.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synkroniseringsuppgifter</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Redo att reparera Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Överhoppade filer</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive har nu installerats på den här datorn.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Förbereder…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Försök igen</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systemspråk</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Dina ändringar har inte sparats.\nVill du lämna inställningarna utan att spara?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Mappen synkroniseras redan</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synkroniserar…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klicka på Ta bort för att ta bort Lumivo Drive från den här datorn. Klicka på Tillbaka för att granska ditt val. Klicka på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Välkommen tillbaka till installationen av Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Den här mappen används redan av en annan synkroniseringsuppgift. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Slut på utrymme</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Läser in delade mappar…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Kopplar bort…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Filer som synkroniseras</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Du kan ändra alla inställningar senare.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Visa synkroniseringsstatus</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Mappen på din server är inte monterad. Montera den där och försök igen.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Märk överhoppade filer med en ikon</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Kontrollerar anslutningstypen…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nästa</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>För filer med olika innehåll behålls båda versionerna.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Den här mappen synkroniseras redan. Vill du lägga till den igen?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Avancerade inställningar</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Versionerna av den här filen kan inte visas. Kontrollera dina behörigheter på servern.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Serverns svar kunde inte tolkas. Uppdatera Lumivo Drive och försök igen.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Vill du verkligen avbryta installationen av Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>En annan server hittades på den här adressen</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Vissa filer som måste uppdateras används just nu.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive är redo.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>Synkroniseringsdatabasen är skadad. Koppla bort den här datorn och koppla den igen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>En nyare version av Lumivo Drive är redan installerad på den här datorn. Ta bort den innan du installerar den här versionen.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Välkommen</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synkronisera den här delade mappen</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Öppna huvudfönstret</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktuellt steg:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Begränsa åtkomst</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Installationsprogrammet installerar Lumivo Drive på den här datorn. Klicka på Nästa för att fortsätta eller på Avbryt för att avsluta installationsprogrammet.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Ange serverns adress eller ZephLink-ID, ditt användarnamn och ditt lösenord.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Det gick inte att skapa mappen ”%1”. Kontrollera sökvägen och dina behörigheter.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Installationen avslutades på grund av ett fel.\nInga ändringar har gjorts på datorn.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Din kvot på servern är slut. Radera några filer för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Mappfilter</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Certifikatet för din server kunde inte verifieras. Kontrollera det i anslutningsinställningarna.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Välj en annan mapp</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Du kan när som helst öppna Lumivo Drive från meddelandefältet.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Filen ändrades på två ställen samtidigt. Båda versionerna har behållits. Radera den som du inte behöver.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Certifikatet för din server har ändrats. Kontrollera det i anslutningsinställningarna.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Kryptera anslutningen (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappnamn</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Skapa en länk till en fil och skicka den till vem som helst, med lösenord och slutdatum om du vill.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Ange verifieringskoden för ditt konto.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Du har valt att ta bort Lumivo Drive från den här datorn.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Ändringar på en nätverksenhet kan inte upptäckas. Välj en mapp på en lokal disk.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Det finns redan en mapp med det här namnet. Ange ett annat namn.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>fredag</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinställningar</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Öppna fil</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Redigera anslutning</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Allt är uppdaterat</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Anslutningen till din server bröts. Den återupprättas automatiskt.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Behörighet saknas</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Nedladdad</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Objekt: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Vill du sluta synkronisera ”%1” med ”%2”?\nInga filer raderas.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Byt lokal mapp</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Anslutningen fungerar.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Konfigurationen är klar</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Ikoner i meddelandefältet</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synkroniseringsläge</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Förra månaden</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Bläddra bland tidigare versioner</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tid</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>För %1 tim sedan</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Filer och mappar som matchar de här reglerna synkroniseras inte.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Tar bort Lumivo Drive från den här datorn. Dina synkroniserade filer behålls.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Hantera anslutningar</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Det finns inte tillräckligt med utrymme på den här disken. Välj en mapp på en annan disk.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Filnamn att hoppa över</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>torsdag</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Återuppta synkronisering</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nyligen ändrade filer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mapp</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP-adress, domännamn eller ZephLink-ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Visa Lumivo Drive på snabbmenyn</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Den här versionen av Lumivo Drive är för gammal. Uppdatera den på den här datorn.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Den här mappen kan inte synkroniseras. Välj en annan mapp.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Inställningar</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Nedladdningen avbröts.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Begränsa antalet nedladdningar</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Visa ikoner för synkroniseringsstatus på filer</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Det här fältet är obligatoriskt.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Visa introduktionen</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Koppla till ytterligare en server</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Jag godkänner inte villkoren i licensavtalet</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionerna är inte kompatibla</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Första sidan</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installera</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Åtkomst nekad</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Ange den 6-siffriga verifieringskoden</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Jag förstår</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Disken med den lokala synkroniseringsmappen är inte ansluten. Anslut den för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Visa inte det här meddelandet igen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Starta nu</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Sök i det lokala nätverket</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Konfigurera proxyn manuellt</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Du kan öppna filerna i den här mappen men inte ändra dem.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>För många misslyckade försök. Vänta några minuter och försök igen.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Mappen är inte tom. Filerna i den slås samman med filerna på din server.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Förra veckan</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Nedladdningen är klar.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Du kan återställa en version som du har skrivit över eller raderat.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>söndag</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Uppdatering krävs</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Delning</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>tisdag</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Starta Lumivo Drive vid inloggning</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Hantera delade mappar</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>För %1 min sedan</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Den här delade mappen kommer inte längre att synkroniseras. Filerna som redan finns på den här datorn behålls.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Filtillägg att hoppa över</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Reläserver</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Inloggningen misslyckades</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive har inga funktioner som kan väljas separat.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Värde</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Du är inte inloggad som administratör. Lumivo Drive installeras endast för dig.\nVill du fortsätta?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Länkar kan inte skapas eftersom filtjänsten är avstängd. Be administratören att slå på den.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Stäng programmen och försök starta dem igen efteråt</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licensavtal</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Mappen kunde inte kontrolleras på grund av ett systemfel. Försök igen senare.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Den här versionen av Lumivo Drive är redan installerad. Vill du installera den igen?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Ange startdatum</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Hantera</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Den här delade mappen är inte monterad på din server. Montera den där och försök igen.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokalt nätverk</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alla händelser</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Koppla bort den här anslutningen</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Anslutningen är instabil</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Den här datorn och din server håller nu de här mapparna synkroniserade.\nDu kan lägga till fler synkroniseringsuppgifter när som helst.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Synkronisera inte den här mappen</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Certifikatet för din server har ändrats.\nFortsätt bara om du vet varför.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maximal filstorlek (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Behåll den version som ändrades senast</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Hitta servrar i det lokala nätverket</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Ditt konto har inte rätt att synkronisera den här mappen. Be administratören om behörighet.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappar</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Alldeles nyss</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Installationsprogrammet är redo att reparera Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Du kan bara läsa den här mappen. Ändringar på den här datorn laddas inte upp.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Du har inte åtkomst till den här mappen. Be administratören om behörighet.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Inga poster hittades</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Dina filer synkroniseras. Du kan fortsätta arbeta under tiden.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Certifikatet för din server kunde inte verifieras.\nFortsätt bara om du litar på det här nätverket.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Filer kvar att synkronisera: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Välkommen till Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Ange slutdatum</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Det gick inte att ta bort synkroniseringsuppgiften. Försök igen senare.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Klicka på ikonen för att se vilka filer som synkroniseras.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Din synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Certifikatet för din server kunde inte verifieras. Be administratören att installera ett giltigt certifikat.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Servern har bytts ut. Koppla den här datorn igen.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Följ de här stegen för att koppla den här datorn till din server.</translation>
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
        <translation>Klar</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Uppdaterade filer</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Fortsätt ändå</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Slutför</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Sök</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Ikoner på lokala filer</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Inga tillgängliga åtgärder</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Filnamn</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Synkronisering stoppad</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokal synkroniseringsmapp</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Inaktiverad</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Din server indexerar fortfarande ”%1”. Du kan synkronisera mappen när indexeringen är klar.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>När en fil har ändrats på två ställen</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>Mappen ”%1” är inte tom.\nVill du använda den ändå?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Byt mapp</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Synkronisera din hemmapp med rekommenderade inställningar.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Läser in mappar…</translation>
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
        <translation>Redo att installera Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Kör installationsprogrammet igen när du vill installera Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Din hemmapp på servern synkroniseras nu med den här datorn.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveröversikt</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pausa synkronisering</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>lördag</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Kvoten för den här delade mappen är slut. Radera några filer för att fortsätta synkronisera.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Sammanfattning</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Din nya synkroniseringsuppgift</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Nedladdningshistorik</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Laddar ned…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Det nya språket används nästa gång Lumivo Drive startas.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Lumivo Drive installeras</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Visa skrivbordsaviseringar</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Snabbkonfigurationen passar de flesta användare. Du kan ändra allt senare.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Disken på din server är full.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Gå tillbaka i tiden</translation>
    </message>
</context>
</TS>
