<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hu_HU" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Válassza ki a szerverrel szinkronizálandó helyi mappát.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>A ZephLink szolgáltatás nem érhető el. Ellenőrizze a hálózati kapcsolatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Szűrési szabályok</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Nem megengedett csatolási pont</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Jelszó</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Dátumtartomány</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Ez a megosztott mappa már nem létezik a szerveren. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Adja meg a felhasználónevét.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Az ilyen nevű fájlok nem szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Nem sikerült kapcsolódni a szerverhez. Ellenőrizze a hálózati kapcsolatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Javítás</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Csak letöltés</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Mappa megnyitása</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Szinkronizálás iránya</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Az első szinkronizálási feladat ezen a szerveren</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Visszaállítja a hiányzó vagy sérült fájlokat, parancsikonokat és beállításjegyzék-bejegyzéseket.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Cél</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Kattintson ide a frissítéshez</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappa elérési útja</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Típus</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Megosztott mappák</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nem, köszönöm</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Művelet</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Tanúsítványfigyelmeztetés</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Kapcsolati beállítások módosítása</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>A kapcsolat ellenőrzése...</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>A Lumivo Drive telepítője</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>A telepítő készen áll a Lumivo Drive telepítésére ezen a számítógépen.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Új megosztott mappa</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Nem található használható mappa. Kérjen hozzáférést a rendszergazdától egy megosztott mappához.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Nem sikerült bekapcsolni a megosztott mappa szinkronizálását. Próbálja újra később.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Vége</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Szerkesztés</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Mappa ismételt szinkronizálása</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nem</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 napja</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>A(z) „%1” mappa csatolási pont, ezért nem szinkronizálható. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Ez a számítógép már össze van kapcsolva a következővel: „%1”. Szerkessze inkább a meglévő kapcsolatot.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Frissítés érhető el</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Adjon meg egy 1 és 65535 közötti portszámot.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Szinkronizálási mappa megnyitása</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>A Lumivo Drive telepítése befejeződött</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Leválasztás</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Ez a mappa átfedésben van egy másik szinkronizálási feladat mappájával. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Nem sikerült lekérni a szerver mappáinak listáját. Ellenőrizze a hálózati kapcsolatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Figyelmet igényel</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>A szerver tanúsítványa megváltozott. A folytatás előtt ellenőrizze.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Utolsó oldal</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Fut</translation>
    </message>
    <message>
        <source>June</source>
        <translation>június</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>A frissítés nem sikerült. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>A szerver tanúsítványát nem sikerült ellenőrizni.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Kis türelmet. Ez több percig is eltarthat.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>A telepítendő összetevők kiválasztása</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>A fájljai mindenhol, ahol dolgozik</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Mappák ismételt szinkronizálása</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Megtelt a számítógép lemeze. A szinkronizálás folytatásához szabadítson fel helyet.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Fekete-fehér ikon használata az értesítési területen</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Néhány mező nincs helyesen kitöltve. Javítsa ki, és próbálja újra.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>A telepítés megszakadt. A számítógépen semmi sem változott.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>A mappa nem található</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Szüneteltetve</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>A szinkronizálandó mappák kiválasztása</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Törlés</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Válasszon egy mappát a szerveren, valamint azt a helyi mappát, amellyel szinkronizálni szeretné.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Állapot</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>A ponttal kezdődő nevű fájlok és mappák kihagyása</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Egyéni tartomány</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>A felhasználónév vagy a jelszó helytelen. Ellenőrizze mindkettőt, és próbálja újra.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Ez a cím egy másik szerverhez tartozik. Ellenőrizze a címet, és próbálja újra.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Fájltípus</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>A beállítás módjának kiválasztása</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>hétfő</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Elfogyott a kvótája a szerveren. Töröljön néhány fájlt, vagy kérjen több helyet a rendszergazdától.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augusztus</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Előrehaladás</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Indítás...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Névjegy</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Elérte a megosztott mappák maximális számát. Előbb állítsa le az egyik szinkronizálását.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>A rendszer proxybeállításainak használata</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Mindkét verzió megtartása és a helyi átnevezése</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Nyelv</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>A(z) „%1” szinkronizálása leállt. A részletekért nyissa meg a Lumivo Drive alkalmazást.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Visszaállítás</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink-azonosító</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>A szinkronizálás iránya nem felel meg a mappára vonatkozó jogosultságainak. Válasszon másik irányt.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>További részletek</translation>
    </message>
    <message>
        <source>October</source>
        <translation>október</translation>
    </message>
    <message>
        <source>February</source>
        <translation>február</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>A Lumivo Drive Server e verziója túl régi. Frissítse a szerveren.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Szinkronizálási szabályok</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Ez a fájl nem tölthető le. Ellenőrizze a jogosultságait a szerveren.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Kapcsolódás...</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Proxy használata nélkül</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Megosztott mappa</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Kapcsolat folytatása</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Hivatkozás lekérése</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciók</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Az értesítési területen lévő ikon egy pillantásra megmutatja, hogy a fájlok szinkronban vannak-e.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Kezdete</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Ismételt összekapcsolás</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Előzmények</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Igen</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verzió</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Csak olvasható</translation>
    </message>
    <message>
        <source>April</source>
        <translation>április</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Hálózati beállítások</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>A telepítő érvényesíti a választott beállításokat.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>A program eltávolítja erről a számítógépről azokat a mappákat, amelyeknek itt törli a jelölését. A szerveren megmaradnak.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Megtelt a szerver lemeze. A szinkronizálás folytatásához szabadítson fel rajta helyet.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Súgó</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>A letöltés nem sikerült. Ellenőrizze a hálózati kapcsolatot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Mentés és a hivatkozás másolása</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Adja meg a szerver címét és a fiókja adatait.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Kezdjünk hozzá</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Nincs mentendő módosítás.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Előző %1 oldal</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Ha később szeretné telepíteni a Lumivo Drive alkalmazást, futtassa újra a telepítőt.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Kattintson a jobb gombbal egy szinkronizált mappában lévő fájlra, ha meg szeretné osztani vagy látni szeretné a korábbi verzióit.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Tegnap</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Állapotinformációk</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Nem sikerült elindítani a Lumivo Drive alkalmazást. Indítsa újra a számítógépet, és próbálja újra.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>A szerveren lévő verzió megtartása</translation>
    </message>
    <message>
        <source>January</source>
        <translation>január</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>A Lumivo Drive e verziója túl régi a szerverhez. Frissítse legalább a következő verzióra: %1.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>A Lumivo Drive módosítása, javítása vagy eltávolítása</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Kapcsolódás a ZephLink segítségével</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>A kezdéshez kattintson a Telepítés gombra. A választott beállítások áttekintéséhez vagy módosításához kattintson a Vissza gombra. A telepítőből való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Hiba történt. Próbálja újra később.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Elfogadom a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>A szelektív szinkronizálás még nem érhető el. A használatához frissítse a szerveren a Lumivo Drive Server alkalmazást.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Átnevezve</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Ez a mappa csak olvasható</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Mégse</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Készen áll a Lumivo Drive eltávolítására</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Válassza ki, mit szeretne szinkronizálni ezzel a számítógéppel, és hol szeretné tárolni.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Feltöltve</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>A hozzáférését visszavonták, és a szinkronizált fájlokat eltávolították erről a számítógépről. Forduljon a rendszergazdához.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Készenlét</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Feltöltés...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>A beállítások alkalmazása...</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Olvassa el figyelmesen az alábbi licencszerződést.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Egyesítési mód</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Mappák kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Kilépés</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>A kezdéshez kattintson a Javítás gombra. A választás áttekintéséhez kattintson a Vissza gombra. A telepítőből való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Ebbe a mappába nem írhat. Módosítsa a mappa jogosultságait, vagy válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Szelektív szinkronizálás</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Felhasználónév</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Adjon meg egy %1 és %2 MB közötti fájlméretet.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Leállítja a(z) „%1” szinkronizálását? A számítógépen már meglévő fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Gyors beállítás</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Speciális beállítás</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Mappa kiválasztása</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Szerver címe</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Elfogyott a kvótája a szerveren.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Ha duplán kattint az értesítési terület ikonjára</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>A Lumivo Drive előkészítése...</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Fájlok ellenőrzése...</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Ez a számítógép most már össze van kapcsolva a következővel: „%1”. A szinkronizálás azonnal elkezdődik.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Minden szinkronban</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Dátum</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Frissítés...</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Egyéni időtartam</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>A szinkronizálás állapotának megtekintése</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Betöltés...</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktív</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fájl</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>A következő alkalmazások olyan fájlokat használnak, amelyeket a telepítőnek frissítenie kell:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>A Lumivo Drive megnyitása</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Saját maga választhatja ki a mappákat, a szinkronizálás irányát és a szinkronizálási szabályokat.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>A telepített fájlok javítása</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>A verziók számának nullánál nagyobbnak kell lennie.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Ez a felhasználónév nem létezik a szerveren. Ellenőrizze, és próbálja újra.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>A Lumivo Drive frissítése</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>További információ</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Létrehozva</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Tartsa szinkronban a számítógépen és a szerveren lévő fájljait.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vissza</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Ezt a mappát már egy másik felhőszinkronizáló alkalmazás szinkronizálja. Az ütközések elkerülése érdekében válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Méret</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Számítógép neve</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Kihagyás</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>A proxyhoz felhasználónév és jelszó szükséges</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>A szerver nem fogadta el a kérést. Ellenőrizze a megadott adatokat, és próbálja újra.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>A Lumivo Drive Server e verziója túl régi a számítógépen lévő Lumivo Drive alkalmazáshoz. Frissítse a szerveren legalább a következő verzióra: %1.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Küldés ide:</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>A ZephLink szolgáltatás hibát jelzett. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Zárja be ezeket az alkalmazásokat, és kattintson az Újra gombra, vagy kattintson a Kihagyás gombra, és később indítsa újra a számítógépet.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Itt módosíthatja, hogy mely összetevők legyenek telepítve.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Leválasztja ezt a számítógépet a következőről: „%1”?\nA számítógépen már meglévő fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Ezt a mappát egy biztonsági mentési feladat használja. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Megtelt a számítógép lemeze.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Ez a mappa nem üres</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Tartalmazó mappa megnyitása</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Kapcsolat típusa</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Ez a ZephLink-azonosító nem létezik. Ellenőrizze, és próbálja újra.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>A szinkronizálásból kihagyandó fájlok</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>A Lumivo Drive eltávolítása erről a számítógépről</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>A fiókjához kétlépcsős azonosítás szükséges. Állítsa be a szerveren, majd jelentkezzen be újra.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>A fájlszolgáltatás ki van kapcsolva a szerveren. Kérje meg a rendszergazdát, hogy kapcsolja be.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Általános</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Törölve</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Szinkronizálási feladat hozzáadása</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Megosztás másokkal</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Zárolt fájl</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Az alkalmazások nyitva hagyása (később újra kell indítania a számítógépet)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>A Lumivo Drive névjegye</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Fájlszolgáltatás kikapcsolva</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Következő %1 oldal</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>A helyi szinkronizálási mappát áthelyezték vagy törölték. Tegye vissza, vagy válasszon újat.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Ez a fájl nem osztható meg. Ellenőrizze a jogosultságait a szerveren.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>A telepítőből való kilépéshez kattintson a Befejezés gombra.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Név</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Érvényességi idő</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Kapcsolat szüneteltetése</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>meg lett osztva Önnel.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Használatban lévő fájlok</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>A telepítés idő előtt véget ért</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>A ZephLink szolgáltatáson keresztüli fájlmegosztás ki van kapcsolva a szerveren. Kérje meg a rendszergazdát, hogy kapcsolja be.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Folytatás</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Hivatkozás</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Egyirányú szinkronizálás (csak letöltés)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>A program egyesíti a két mappában lévő fájlokat.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Ez a szerveren lévő mappa már szinkronizálva van ezzel a számítógéppel.\nEgy második szinkronizálási feladattal kétszer annyi lemezterületet foglalna.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>A telepítés megszakadt</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Az ellenőrző kód helytelen. Adja meg az aktuális kódot, és próbálja újra.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Kétirányú szinkronizálás</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hozzáadás</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Bekapcsolva</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Hiba</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>A szerver tiltja ennek a számítógépnek a címét. Kérje meg a rendszergazdát, hogy engedélyezze.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>A felhasználónév és a jelszó ellenőrzése...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Nyomtatás</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Üdvözli a Lumivo Drive telepítője</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Legfeljebb %1 karaktert adjon meg.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Egyesítés</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Az összes fájlattribútum és -jogosultság szinkronizálása</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>A(z) „%1” megosztott mappa elérhető itt: „%2”. A szinkronizáláshoz kattintson ide.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Kulcsszó</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Üres mappa létrehozása a Lumivo Drive számára</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Fájlszűrő</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Minden, amit a szinkronizálási mappába tesz, megjelenik a szerveren és a többi számítógépén.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>A telepítő módosíthatja, javíthatja vagy eltávolíthatja a Lumivo Drive alkalmazást. A folytatáshoz kattintson a Tovább gombra.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Válasszon egy mappát a szerveren és egy mappát ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Adja meg a proxyszerver címét és portját.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Változások figyelése...</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Módosítás</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Alkalmaz</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>A(z) „%1” fájl frissült</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>Azonosító</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>A Lumivo Drive indítása most</translation>
    </message>
    <message>
        <source>March</source>
        <translation>március</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Válassza ki a kívánt műveletet.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>A saját mappák ki vannak kapcsolva a szerveren. Kérje meg a rendszergazdát, hogy kapcsolja be őket.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Szinkronizálási feladatok</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Készen áll a Lumivo Drive javítására</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Kihagyott fájlok</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>A Lumivo Drive most már telepítve van ezen a számítógépen.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Előkészítés...</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Újra</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Rendszer nyelve</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>A módosítások nincsenek mentve.\nKilép mentés nélkül?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>A mappa már szinkronizálva van</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Szinkronizálás...</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Ha el szeretné távolítani a Lumivo Drive alkalmazást erről a számítógépről, kattintson az Eltávolítás gombra. A választás áttekintéséhez kattintson a Vissza gombra. A telepítőből való kilépéshez kattintson a Mégse gombra.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Újra üdvözli a Lumivo Drive telepítője</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Közvetlen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fájlok</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Ezt a mappát már egy másik szinkronizálási feladat használja. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Nincs több hely</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Megosztott mappák betöltése...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Leválasztás...</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Szinkronizálás alatt álló fájlok</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Később minden beállítást módosíthat.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Szinkronizálási állapot megjelenítése</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>A szerveren lévő mappa nincs csatolva. Csatolja ott, és próbálja újra.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>A kihagyott fájlok megjelölése ikonnal</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>A kapcsolat típusának ellenőrzése...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tovább</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Az eltérő tartalmú fájlok mindkét verziója megmarad.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Ez a mappa már szinkronizálva van. Újra hozzáadja?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Speciális beállítások</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Ennek a fájlnak a verziói nem jeleníthetők meg. Ellenőrizze a jogosultságait a szerveren.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>A szerver válasza nem értelmezhető. Frissítse a Lumivo Drive alkalmazást, és próbálja újra.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Biztosan megszakítja a Lumivo Drive telepítését?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Ezen a címen egy másik szerver található</translation>
    </message>
    <message>
        <source>July</source>
        <translation>július</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Néhány frissítendő fájl használatban van.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>A Lumivo Drive készen áll.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>A szinkronizálási adatbázis megsérült. Válassza le ezt a számítógépet, majd kapcsolja össze újra a szerverrel.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eltávolítás</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>A Lumivo Drive egy újabb verziója már telepítve van ezen a számítógépen. Távolítsa el, mielőtt ezt a verziót telepíti.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Üdvözöljük</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>A megosztott mappa szinkronizálása</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Főablak megnyitása</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktuális lépés:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Hozzáférés korlátozása</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>A telepítő telepíteni fogja a Lumivo Drive alkalmazást erre a számítógépre. A folytatáshoz kattintson a Tovább, a telepítőből való kilépéshez a Mégse gombra.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Adja meg a szerver címét vagy ZephLink-azonosítóját, valamint a felhasználónevét és a jelszavát.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Nem sikerült létrehozni a(z) „%1” mappát. Ellenőrizze az elérési utat és a jogosultságait.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>A telepítés hiba miatt véget ért.\nA számítógépen semmi sem változott.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Elfogyott a kvótája a szerveren. A szinkronizálás folytatásához töröljön néhány fájlt.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Mappaszűrő</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>A szerver tanúsítványát nem sikerült ellenőrizni. Nézze meg a kapcsolati beállításokban.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Másik mappa választása</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>A Lumivo Drive bármikor megnyitható az értesítési területről.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>A fájl egyszerre két helyen módosult. Mindkét verzió megmaradt. Törölje azt, amelyikre nincs szüksége.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>A szerver tanúsítványa megváltozott. Ellenőrizze a kapcsolati beállításokban.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Kapcsolat titkosítása (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mappa neve</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Hozzon létre egy fájlra mutató hivatkozást, és küldje el bárkinek, igény szerint jelszóval és záró dátummal.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Adja meg a fiókjához tartozó ellenőrző kódot.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Információ</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Úgy döntött, hogy eltávolítja a Lumivo Drive alkalmazást erről a számítógépről.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>A hálózati meghajtó változásai nem észlelhetők. Válasszon egy helyi lemezen lévő mappát.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Már létezik ilyen nevű mappa. Adjon meg másik nevet.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>péntek</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxybeállítások</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Fájl megnyitása</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Kapcsolat szerkesztése</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Naprakész</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Megszakadt a kapcsolat a szerverrel. Automatikusan helyre fog állni.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Nincs jogosultság</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Letöltve</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elemek: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Leállítja a(z) „%1” szinkronizálását a következővel: „%2”?\nA fájlok nem törlődnek.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Helyi mappa módosítása</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>A kapcsolat működik.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>A beállítás befejeződött</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Ikonok az értesítési területen</translation>
    </message>
    <message>
        <source>May</source>
        <translation>május</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Szinkronizálási mód</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Múlt hónap</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Korábbi verziók tallózása</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Időpont</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 órája</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Az ezeknek a szabályoknak megfelelő fájlok és mappák nem szinkronizálódnak.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Eltávolítja a Lumivo Drive alkalmazást erről a számítógépről. A szinkronizált fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Kapcsolatok kezelése</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Nincs elég hely ezen a lemezen. Válasszon másik lemezen lévő mappát.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Kihagyandó fájlnevek</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>csütörtök</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Szinkronizálás folytatása</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Nemrég módosított fájlok</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP-cím, tartománynév vagy ZephLink-azonosító</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>A Lumivo Drive megjelenítése a helyi menüben</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>A Lumivo Drive e verziója túl régi. Frissítse ezen a számítógépen.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Ez a mappa nem szinkronizálható. Válasszon másik mappát.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Beállítások</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>A letöltés meg lett szakítva.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>A letöltések számának korlátozása</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Szinkronizálási állapotikonok megjelenítése a fájlokon</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Ez a mező kötelező.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>A bemutató megjelenítése</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Összekapcsolás másik szerverrel</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Nem fogadom el a licencszerződés feltételeit</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Eltérő verzió</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Első oldal</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Telepítés</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Hozzáférés megtagadva</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Adja meg a 6 számjegyű ellenőrző kódot</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Értem</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>A helyi szinkronizálási mappát tartalmazó lemez nincs csatlakoztatva. A szinkronizálás folytatásához csatlakoztassa.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Ne jelenjen meg többé ez az üzenet</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Kezdés most</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Keresés a helyi hálózaton</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>A proxy kézi beállítása</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>A mappában lévő fájlokat megnyithatja, de nem módosíthatja.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Túl sok sikertelen kísérlet. Várjon néhány percet, és próbálja újra.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>szeptember</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>A mappa nem üres. A program a benne lévő fájlokat egyesíti a szerveren lévőkkel.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Múlt hét</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>A letöltés befejeződött.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>A felülírt vagy törölt verziók visszaállíthatók.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>vasárnap</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Szinkronizálási mappa</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Frissítés szükséges</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Megosztás</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>kedd</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>A Lumivo Drive indítása bejelentkezéskor</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Megosztott mappák kezelése</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 perce</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Ez a megosztott mappa a továbbiakban nem szinkronizálódik. A számítógépen már meglévő fájlok megmaradnak.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Kihagyandó fájlkiterjesztések</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Közvetítőn át</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Sikertelen bejelentkezés</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>A Lumivo Drive nem tartalmaz külön kiválasztható összetevőket.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Érték</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Nem rendszergazdaként jelentkezett be. A telepítő csak az Ön számára telepíti a Lumivo Drive alkalmazást.\nFolytatja?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Nem hozhatók létre hivatkozások, mert a fájlszolgáltatás ki van kapcsolva. Kérje meg a rendszergazdát, hogy kapcsolja be.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Az alkalmazások bezárása, majd az újraindításuk megkísérlése</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licencszerződés</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>A mappa rendszerhiba miatt nem ellenőrizhető. Próbálja újra később.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>A Lumivo Drive e verziója már telepítve van. Újratelepíti?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Kezdő dátum megadása</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Kezelés</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Ez a megosztott mappa nincs csatolva a szerveren. Csatolja ott, és próbálja újra.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Helyi hálózat</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Minden esemény</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Kapcsolat leválasztása</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>A kapcsolat instabil</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>A számítógép és a szerver mostantól szinkronban tartja ezeket a mappákat.\nBármikor hozzáadhat további szinkronizálási feladatokat.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Mappa kihagyása a szinkronizálásból</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>A szerver tanúsítványa megváltozott.\nCsak akkor folytassa, ha ismeri az okát.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maximális fájlméret (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>A legutóbb módosított verzió megtartása</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Szerverek keresése a helyi hálózaton</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>A fiókjával nem szinkronizálhatja ezt a mappát. Kérjen jogosultságot a rendszergazdától.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappák</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Az imént</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>A telepítő készen áll a Lumivo Drive javítására.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Ezt a mappát csak olvashatja. Az ezen a számítógépen végzett módosítások nem töltődnek fel.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Nincs hozzáférése ehhez a mappához. Kérjen jogosultságot a rendszergazdától.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Nem található bejegyzés</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>A fájlok szinkronizálása folyamatban van. Közben tovább dolgozhat.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>A szerver tanúsítványát nem sikerült ellenőrizni.\nCsak akkor folytassa, ha megbízik ebben a hálózatban.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Még szinkronizálandó fájlok: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Üdvözli a Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Záró dátum megadása</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>A szinkronizálási feladatot nem sikerült eltávolítani. Próbálja újra később.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Kattintson az ikonra, ha látni szeretné, mely fájlok szinkronizálása van folyamatban.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>A szinkronizálási mappa</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>A szerver tanúsítványát nem sikerült ellenőrizni. Kérje meg a rendszergazdát, hogy telepítsen érvényes tanúsítványt.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>A szervert lecserélték. Kapcsolja össze vele újra ezt a számítógépet.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Az alábbi lépésekkel kapcsolhatja össze ezt a számítógépet a szerverrel.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxyszerver</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Kész</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Frissített fájlok</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Folytatás mindenképp</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Befejezés</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Keresés</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Ikonok a helyi fájlokon</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Nincs elérhető művelet</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Fájl neve</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>A szinkronizálás leállt</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Helyi szinkronizálási mappa</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Kikapcsolva</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>A szerver még indexeli a(z) „%1” mappát. Az indexelés befejezése után szinkronizálhatja.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Ha egy fájl két helyen módosult</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>A(z) „%1” mappa nem üres.\nÍgy is használni szeretné?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Mappa módosítása</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Szinkronizálja a saját mappáját az ajánlott beállítások alapján.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Mappák betöltése...</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>szerda</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-titkosítás</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Készen áll a Lumivo Drive telepítésére</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Futtassa újra a telepítőt, amikor telepíteni szeretné a Lumivo Drive alkalmazást.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>A szerveren lévő saját mappája mostantól szinkronizálódik ezzel a számítógéppel.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Szerver áttekintése</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Szüneteltetés</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Szinkronizálás szüneteltetése</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>szombat</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Elfogyott a megosztott mappa kvótája. A szinkronizálás folytatásához töröljön néhány fájlt.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Összegzés</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Az új szinkronizálási feladat</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Letöltési előzmények</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Letöltés...</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Az új nyelv a Lumivo Drive következő indításakor lép életbe.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>A Lumivo Drive telepítése</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Asztali értesítések megjelenítése</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>A gyors beállítás a legtöbb felhasználónak megfelel. Később bármit módosíthat.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Megtelt a szerver lemeze.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Visszalépés az időben</translation>
    </message>
</context>
</TS>
