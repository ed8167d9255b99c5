<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs_CZ" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Vyberte místní složku, kterou chcete synchronizovat se serverem.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Nepodařilo se spojit se službou ZephLink. Zkontrolujte připojení k síti a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Pravidla filtrování</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Přípojný bod není povolen</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Heslo</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Rozsah dat</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Tato sdílená složka již na serveru neexistuje. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Zadejte uživatelské jméno.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Soubory s těmito názvy se nebudou synchronizovat.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Nepodařilo se připojit k serveru. Zkontrolujte připojení k síti a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Opravit</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Pouze stahování</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Směr synchronizace</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Vaše první úloha synchronizace na tomto serveru</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Obnoví chybějící nebo poškozené soubory, zástupce a položky registru.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cíl</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Kliknutím sem spustíte aktualizaci</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Cesta ke složce</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Sdílené složky</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Ne, děkuji</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Upozornění na certifikát</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Změnit nastavení připojení</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testování připojení…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Instalace aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dnes</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Instalační program je připraven nainstalovat aplikaci Lumivo Drive do tohoto počítače.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nová sdílená složka</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Nebyla nalezena žádná použitelná složka. Požádejte správce o přístup ke sdílené složce.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Nepodařilo se zapnout synchronizaci této sdílené složky. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Upravit</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Znovu synchronizovat tuto složku</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>Před %1 d</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>Složka „%1“ je přípojným bodem a nelze ji synchronizovat. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Tento počítač je již propojen se serverem „%1“. Místo toho upravte stávající připojení.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Je k dispozici aktualizace</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Zadejte číslo portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Otevřít synchronizovanou složku</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Aplikace Lumivo Drive byla nainstalována</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Zrušit propojení</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Tato složka se překrývá se složkou jiné úlohy synchronizace. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Nepodařilo se načíst seznam složek na serveru. Zkontrolujte připojení k síti a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Vyžaduje pozornost</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Certifikát serveru se změnil. Než budete pokračovat, zkontrolujte ho.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Poslední stránka</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Probíhá</translation>
    </message>
    <message>
        <source>June</source>
        <translation>červen</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Aktualizace se nezdařila. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Certifikát serveru se nepodařilo ověřit.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Čekejte prosím. Může to trvat několik minut.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Zvolit, které součásti budou nainstalovány</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Vaše soubory všude, kde pracujete</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Znovu synchronizovat tyto složky</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Disk tohoto počítače je plný. Chcete-li v synchronizaci pokračovat, uvolněte místo.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Používat černobílou ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Některá pole nejsou správně vyplněna. Opravte je a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Instalace byla přerušena. V počítači nebyly provedeny žádné změny.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Složka nebyla nalezena</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pozastaveno</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Zvolte složky k synchronizaci</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Odstranit</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Zvolte složku na serveru a místní složku, se kterou se bude synchronizovat.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Vynechávat soubory a složky, jejichž názvy začínají tečkou</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Vlastní rozsah</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Uživatelské jméno nebo heslo není správné. Zkontrolujte oba údaje a zkuste to znovu.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Tato adresa patří jinému serveru. Zkontrolujte adresu a zkuste to znovu.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ souboru</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Zvolte způsob nastavení</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>pondělí</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Vaše kvóta na serveru je vyčerpána. Odstraňte některé soubory nebo požádejte správce o více místa.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>srpen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Spouštění…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikaci</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Bylo dosaženo maximálního počtu sdílených složek. Nejprve přestaňte jednu z nich synchronizovat.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Používat systémové nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Zachovat obě verze a místní přejmenovat</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>Synchronizace „%1“ se zastavila. Podrobnosti zobrazíte otevřením aplikace Lumivo Drive.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetovat</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Směr synchronizace neodpovídá vašim oprávněním k této složce. Zvolte jiný směr.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Další podrobnosti</translation>
    </message>
    <message>
        <source>October</source>
        <translation>říjen</translation>
    </message>
    <message>
        <source>February</source>
        <translation>únor</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Tato verze aplikace Lumivo Drive Server je příliš stará. Aktualizujte ji na serveru.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Pravidla synchronizace</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Tento soubor nelze stáhnout. Zkontrolujte svá oprávnění na serveru.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Nepoužívat proxy server</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Sdílená složka</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Obnovit toto připojení</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Získat odkaz</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Možnosti</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Ikona v oznamovací oblasti na první pohled ukazuje, zda jsou soubory synchronizovány.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Znovu propojit</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Pouze pro čtení</translation>
    </message>
    <message>
        <source>April</source>
        <translation>duben</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Nastavení sítě</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Instalační program provádí zvolené změny.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Složky, jejichž zaškrtnutí zde zrušíte, budou z tohoto počítače odebrány. Na serveru zůstanou.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Disk serveru je plný. Chcete-li v synchronizaci pokračovat, uvolněte na něm místo.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Stahování se nezdařilo. Zkontrolujte připojení k síti a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Uložit a zkopírovat odkaz</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Zadejte adresu serveru a údaje svého účtu.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Začněme</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Nejsou žádné změny k uložení.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>O %1 str. zpět</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Chcete-li aplikaci Lumivo Drive nainstalovat později, spusťte instalační program znovu.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Kliknutím pravým tlačítkem na soubor v synchronizované složce ho můžete sdílet nebo zobrazit jeho starší verze.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Včera</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informace o stavu</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Aplikaci Lumivo Drive se nepodařilo spustit. Restartujte počítač a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Zachovat verzi na serveru</translation>
    </message>
    <message>
        <source>January</source>
        <translation>leden</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Tato verze aplikace Lumivo Drive je pro váš server příliš stará. Aktualizujte ji na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Změna, oprava nebo odebrání aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Připojovat se přes ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Začněte kliknutím na tlačítko Nainstalovat. Své volby zkontrolujete nebo změníte kliknutím na tlačítko Zpět. Instalaci ukončíte kliknutím na tlačítko Zrušit.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Došlo k chybě. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Souhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Výběrová synchronizace zatím není k dispozici. Chcete-li ji používat, aktualizujte na serveru aplikaci Lumivo Drive Server.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Přejmenováno</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Tato složka je pouze pro čtení</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Připraveno k odebrání aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Zvolte, co se má s tímto počítačem synchronizovat a kam se to má ukládat.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Nahráno</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Váš přístup byl zrušen a synchronizované soubory byly z tohoto počítače odebrány. Obraťte se na správce.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>V pohotovosti</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Nahrávání…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Uplatňování nastavení…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Přečtěte si prosím pozorně následující licenční smlouvu.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Režim sloučení</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Nesynchronizovat tyto složky</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Začněte kliknutím na tlačítko Opravit. Svou volbu zkontrolujete kliknutím na tlačítko Zpět. Instalaci ukončíte kliknutím na tlačítko Zrušit.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Do této složky nemůžete zapisovat. Změňte oprávnění k této složce nebo vyberte jinou.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Výběrová synchronizace</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Uživatelské jméno</translation>
    </message>
    <message>
        <source>December</source>
        <translation>prosinec</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Zadejte velikost souboru od %1 do %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Přestat synchronizovat „%1“? Soubory, které již v tomto počítači jsou, zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Rychlé nastavení</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Pokročilé nastavení</translation>
    </message>
    <message>
        <source>November</source>
        <translation>listopad</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Vybrat složku</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adresa serveru</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Vaše kvóta na serveru je vyčerpána.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Po dvojitém kliknutí na ikonu v oznamovací oblasti</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Aplikace Lumivo Drive se připravuje…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Kontrola souborů…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Tento počítač je nyní propojen se serverem „%1“. Synchronizace se ihned spustí.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Vše synchronizováno</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizace…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Vlastní doba</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Sledujte stav synchronizace</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Načítání…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Neaktivní</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Následující aplikace používají soubory, které musí instalační program aktualizovat:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Otevřít Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Zvolte si složky, směr a pravidla synchronizace sami.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Opravit nainstalované soubory</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Zadejte počet verzí větší než nula.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Toto uživatelské jméno na serveru neexistuje. Zkontrolujte ho a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Aktualizace aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Další informace</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Vytvořeno</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Udržujte soubory v tomto počítači a na serveru synchronizované.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Tuto složku již synchronizuje jiná cloudová aplikace. Vyberte jinou složku, aby nedocházelo ke konfliktům.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Název počítače</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorovat</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Proxy server vyžaduje uživatelské jméno a heslo</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Server požadavek nepřijal. Zkontrolujte zadané údaje a zkuste to znovu.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Tato verze aplikace Lumivo Drive Server je pro aplikaci Lumivo Drive v tomto počítači příliš stará. Aktualizujte ji na serveru na verzi %1 nebo novější.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Odeslat do</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>Služba ZephLink ohlásila chybu. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Ukončete tyto aplikace a klikněte na tlačítko Opakovat, nebo klikněte na tlačítko Ignorovat a restartujte počítač později.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Umožňuje změnit, které součásti jsou nainstalovány.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Chcete zrušit propojení tohoto počítače se serverem „%1“?\nSoubory, které již v tomto počítači jsou, zůstanou zachovány.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Tuto složku používá úloha zálohování. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Disk tohoto počítače je plný.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Tato složka není prázdná</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Zobrazit ve složce</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Typ připojení</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Toto ZephLink ID neexistuje. Zkontrolujte ho a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Nesynchronizovat tyto soubory</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Odebrat Lumivo Drive z tohoto počítače</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Váš účet vyžaduje dvoufázové ověření. Nastavte ho na serveru a potom se znovu přihlaste.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Souborová služba je na serveru vypnuta. Požádejte správce, aby ji zapnul.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Odstraněno</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Přidat úlohu synchronizace</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Sdílejte s ostatními</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Uzamčený soubor</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Neukončovat aplikace (počítač bude později nutné restartovat)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>O aplikaci Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Souborová služba vypnuta</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>O %1 str. vpřed</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Místní synchronizovaná složka byla přesunuta nebo odstraněna. Vraťte ji zpět nebo zvolte novou.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Tento soubor nelze sdílet. Zkontrolujte svá oprávnění na serveru.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Obnovit</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Instalaci ukončíte kliknutím na tlačítko Dokončit.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Doba platnosti</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Pozastavit toto připojení</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>– tato položka s vámi byla sdílena.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Používané soubory</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Instalace byla předčasně ukončena</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Sdílení souborů přes ZephLink je na serveru vypnuto. Požádejte správce, aby ho zapnul.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Odkaz</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Jednosměrná synchronizace (pouze stahování)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Soubory v obou složkách budou sloučeny.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Tato složka na serveru se již s tímto počítačem synchronizuje.\nKvůli druhé úloze synchronizace by na disku zabírala dvojnásobek místa.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Instalace byla přerušena</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Ověřovací kód není správný. Zadejte aktuální kód a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Obousměrná synchronizace</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Zapnuto</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Server blokuje adresu tohoto počítače. Požádejte správce, aby ji povolil.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Kontrola uživatelského jména a hesla…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Vytisknout</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Vítá vás instalační program aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Maximální počet znaků je %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Sloučit</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Synchronizovat všechny atributy a oprávnění souborů</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>Na serveru „%2“ je k dispozici sdílená složka „%1“. Kliknutím sem ji začnete synchronizovat.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Klíčové slovo</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Vytvořit prázdnou složku pro aplikaci Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtr souborů</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Vše, co vložíte do synchronizované složky, se objeví na serveru a ve vašich ostatních počítačích.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Instalační program může aplikaci Lumivo Drive změnit, opravit nebo odebrat. Pokračujte kliknutím na tlačítko Další.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Vyberte složku na serveru a složku v tomto počítači.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Zadejte adresu a port proxy serveru.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Sledování změn…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Změnit</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>Soubor „%1“ byl aktualizován</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Spustit Lumivo Drive nyní</translation>
    </message>
    <message>
        <source>March</source>
        <translation>březen</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Vyberte, co chcete udělat.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Domovské složky jsou na serveru vypnuty. Požádejte správce, aby je zapnul.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Úlohy synchronizace</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Připraveno k opravě aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Vynechané soubory</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Aplikace Lumivo Drive je nyní v tomto počítači nainstalována.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Příprava…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opakovat</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Jazyk systému</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Změny nebyly uloženy.\nChcete odejít bez uložení?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Složka se již synchronizuje</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizace…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Aplikaci Lumivo Drive odeberete z tohoto počítače kliknutím na tlačítko Odebrat. Svou volbu zkontrolujete kliknutím na tlačítko Zpět. Instalaci ukončíte kliknutím na tlačítko Zrušit.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Znovu vás vítá instalační program aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Přímé</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Tuto složku již používá jiná úloha synchronizace. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Nedostatek místa</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Načítání sdílených složek…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Rušení propojení…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Právě synchronizované soubory</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Všechna nastavení můžete později změnit.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Zobrazit stav synchronizace</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Složka na serveru není připojena. Připojte ji tam a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Označovat vynechané soubory ikonou</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Zjišťování typu připojení…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Další</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>U souborů s rozdílným obsahem zůstanou zachovány obě verze.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Tato složka se již synchronizuje. Chcete ji přidat znovu?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Pokročilá nastavení</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Verze tohoto souboru nelze zobrazit. Zkontrolujte svá oprávnění na serveru.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Odpověď serveru se nepodařilo zpracovat. Aktualizujte aplikaci Lumivo Drive a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Opravdu chcete zrušit instalaci aplikace Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Na této adrese byl nalezen jiný server</translation>
    </message>
    <message>
        <source>July</source>
        <translation>červenec</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Některé soubory, které je nutné aktualizovat, se právě používají.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Aplikace Lumivo Drive je připravena.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>Databáze synchronizace je poškozena. Zrušte propojení tohoto počítače a znovu ho propojte.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>V tomto počítači je již nainstalována novější verze aplikace Lumivo Drive. Před instalací této verze ji odeberte.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Vítejte</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synchronizovat tuto sdílenou složku</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Otevřít hlavní okno</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktuální krok:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Omezit přístup</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Instalační program nainstaluje aplikaci Lumivo Drive do tohoto počítače. Pokračujte kliknutím na tlačítko Další, nebo instalaci ukončete kliknutím na tlačítko Zrušit.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Zadejte adresu serveru nebo jeho ZephLink ID, své uživatelské jméno a heslo.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Složku „%1“ se nepodařilo vytvořit. Zkontrolujte cestu k ní a svá oprávnění.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Instalace byla ukončena kvůli chybě.\nV počítači nebyly provedeny žádné změny.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Vaše kvóta na serveru je vyčerpána. Chcete-li v synchronizaci pokračovat, odstraňte některé soubory.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Filtr složek</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Certifikát serveru se nepodařilo ověřit. Zkontrolujte ho v nastavení připojení.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Zvolit jinou složku</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Aplikaci Lumivo Drive můžete kdykoli otevřít z oznamovací oblasti.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Soubor byl změněn současně na dvou místech. Obě verze zůstaly zachovány. Odstraňte tu, kterou nepotřebujete.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Certifikát serveru se změnil. Zkontrolujte ho v nastavení připojení.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Šifrovat připojení (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Název složky</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Vytvořte odkaz na soubor a pošlete ho komukoli, podle potřeby s heslem a datem konce platnosti.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Zadejte ověřovací kód pro svůj účet.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Zvolili jste odebrání aplikace Lumivo Drive z tohoto počítače.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Změny na síťovém disku nelze sledovat. Vyberte složku na místním disku.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Složka s tímto názvem již existuje. Zadejte jiný název.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>pátek</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Nastavení proxy serveru</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otevřít soubor</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Upravit připojení</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Vše je aktuální</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Připojení k serveru bylo ztraceno. Bude automaticky obnoveno.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Chybí oprávnění</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Staženo</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Počet položek: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Chcete přestat synchronizovat „%1“ s „%2“?\nŽádné soubory nebudou odstraněny.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Změnit místní složku</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Připojení funguje.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Nastavení dokončeno</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Ikony v oznamovací oblasti</translation>
    </message>
    <message>
        <source>May</source>
        <translation>květen</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Režim synchronizace</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Minulý měsíc</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Procházet starší verze</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>Před %1 h</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Soubory a složky, které odpovídají těmto pravidlům, se nesynchronizují.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Odebere aplikaci Lumivo Drive z tohoto počítače. Synchronizované soubory zůstanou zachovány.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Spravovat připojení</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Na tomto disku není dost místa. Vyberte složku na jiném disku.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Názvy souborů k vynechání</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>čtvrtek</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Obnovit synchronizaci</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nedávno změněné soubory</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Složka</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP adresa, název domény nebo ZephLink ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Zobrazovat Lumivo Drive v místní nabídce</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Tato verze aplikace Lumivo Drive je příliš stará. Aktualizujte ji v tomto počítači.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Tuto složku nelze synchronizovat. Vyberte jinou složku.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Stahování bylo zrušeno.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Omezit počet stažení</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Zobrazovat u souborů ikony stavu synchronizace</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Toto pole je povinné.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Zobrazit výukový program</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Propojit s dalším serverem</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Nesouhlasím s podmínkami licenční smlouvy</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Neshoda verzí</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>První stránka</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Nainstalovat</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Přístup odepřen</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Zadejte šestimístný ověřovací kód</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumím</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Disk s místní synchronizovanou složkou není připojen. Chcete-li v synchronizaci pokračovat, připojte ho.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Tuto zprávu již nezobrazovat</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Začít hned</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Hledat v místní síti</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Nastavit proxy server ručně</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Soubory v této složce můžete otevírat, ale ne měnit.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Příliš mnoho neúspěšných pokusů. Počkejte několik minut a zkuste to znovu.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>září</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Složka není prázdná. Její soubory budou sloučeny se soubory na serveru.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Minulý týden</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Stahování bylo dokončeno.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Můžete obnovit verzi, kterou jste přepsali nebo odstranili.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>neděle</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synchronizovaná složka</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Je nutná aktualizace</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Sdílení</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>úterý</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Spouštět Lumivo Drive po přihlášení</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Spravovat sdílené složky</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>Před %1 min</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Tato sdílená složka se již nebude synchronizovat. Soubory, které již v tomto počítači jsou, zůstanou zachovány.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Přípony souborů k vynechání</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Zprostředkované</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Přihlášení se nezdařilo</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Aplikace Lumivo Drive nemá žádné samostatně volitelné součásti.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Nejste přihlášeni jako správce. Aplikace Lumivo Drive bude nainstalována pouze pro vás.\nChcete pokračovat?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Odkazy nelze vytvářet, protože je vypnuta souborová služba. Požádejte správce, aby ji zapnul.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Ukončit aplikace a poté se je pokusit znovu spustit</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licenční smlouva</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Složku se kvůli systémové chybě nepodařilo zkontrolovat. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Tato verze aplikace Lumivo Drive je již nainstalována. Chcete ji nainstalovat znovu?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Nastavit počáteční datum</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Spravovat</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Tato sdílená složka není na serveru připojena. Připojte ji tam a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Místní síť</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Všechny události</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Zrušit toto propojení</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Připojení je nestabilní</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Tyto složky se nyní synchronizují mezi tímto počítačem a serverem.\nDalší úlohy synchronizace můžete přidat kdykoli.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Nesynchronizovat tuto složku</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Certifikát serveru se změnil.\nPokračujte pouze v případě, že víte proč.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maximální velikost souboru (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Zachovat naposledy změněnou verzi</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Najít servery v místní síti</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Váš účet nemá povoleno tuto složku synchronizovat. Požádejte správce o oprávnění.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Složky</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Právě teď</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Instalační program je připraven opravit aplikaci Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Tuto složku můžete pouze číst. Změny v tomto počítači se nebudou nahrávat.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>K této složce nemáte přístup. Požádejte správce o oprávnění.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Nebyly nalezeny žádné záznamy</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Soubory se synchronizují. Mezitím můžete dál pracovat.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Certifikát serveru se nepodařilo ověřit.\nPokračujte pouze v případě, že této síti důvěřujete.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Zbývá synchronizovat souborů: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Vítá vás Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Nastavit koncové datum</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Úlohu synchronizace se nepodařilo odebrat. Zkuste to znovu později.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Kliknutím na ikonu zobrazíte soubory, které se právě synchronizují.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Vaše synchronizovaná složka</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Certifikát serveru se nepodařilo ověřit. Požádejte správce, aby nainstaloval platný certifikát.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Server byl vyměněn. Propojte tento počítač znovu.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Podle těchto kroků propojíte tento počítač se serverem.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxy server</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Aktualizované soubory</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Přesto pokračovat</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Dokončit</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Ikony u místních souborů</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Není k dispozici žádná akce</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Název souboru</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Synchronizace zastavena</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Místní synchronizovaná složka</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Vypnuto</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Server ještě indexuje složku „%1“. Synchronizovat ji můžete po dokončení indexování.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Pokud byl soubor změněn na dvou místech</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>Složka „%1“ není prázdná.\nChcete ji přesto použít?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Změnit složku</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Synchronizujte domovskou složku pomocí doporučeného nastavení.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Načítání složek…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>středa</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Šifrování SSL</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Připraveno k instalaci aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Až budete chtít aplikaci Lumivo Drive nainstalovat, spusťte instalační program znovu.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Vaše domovská složka na serveru se nyní synchronizuje s tímto počítačem.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Přehled serveru</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pozastavit synchronizaci</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sobota</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Kvóta této sdílené složky je vyčerpána. Chcete-li v synchronizaci pokračovat, odstraňte některé soubory.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Souhrn</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Vaše nová úloha synchronizace</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historie stahování</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Stahování…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Nový jazyk se použije při příštím spuštění aplikace Lumivo Drive.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Probíhá instalace aplikace Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Zobrazovat oznámení na ploše</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Rychlé nastavení vyhovuje většině uživatelů. Vše můžete později změnit.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Disk serveru je plný.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Vraťte se v čase</translation>
    </message>
</context>
</TS>
