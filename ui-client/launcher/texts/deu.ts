<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Wählen Sie den lokalen Ordner aus, den Sie mit Ihrem Server synchronisieren möchten.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Der ZephLink-Dienst ist nicht erreichbar. Prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Filterregeln</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Einhängepunkt nicht zulässig</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Dieser freigegebene Ordner ist auf Ihrem Server nicht mehr vorhanden. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Geben Sie Ihren Benutzernamen ein.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Dateien mit diesen Namen werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Die Verbindung zu Ihrem Server konnte nicht hergestellt werden. Prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Nur herunterladen</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisierungsrichtung</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Ihre erste Synchronisierungsaufgabe auf diesem Server</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Stellt fehlende oder beschädigte Dateien, Verknüpfungen und Registrierungseinträge wieder her.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Zum Aktualisieren hier klicken</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ordnerpfad</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Freigegebene Ordner</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nein, danke</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Zertifikatwarnung</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Verbindungseinstellungen ändern</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbindung wird getestet&#xa0;…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Setup von Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Das Setup ist bereit, Lumivo Drive auf diesem Computer zu installieren.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Neuer freigegebener Ordner</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Es wurde kein verwendbarer Ordner gefunden. Bitten Sie Ihren Administrator um Zugriff auf einen freigegebenen Ordner.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Die Synchronisierung dieses freigegebenen Ordners konnte nicht aktiviert werden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Diesen Ordner wieder synchronisieren</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>Vor %1 Tg.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>Der Ordner „%1“ ist ein Einhängepunkt und kann nicht synchronisiert werden. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Dieser Computer ist bereits mit „%1“ verknüpft. Bearbeiten Sie stattdessen die vorhandene Verbindung.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Geben Sie eine Portnummer von 1 bis 65535 ein.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Synchronisierungsordner öffnen</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive wurde installiert</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Dieser Ordner überschneidet sich mit dem Ordner einer anderen Synchronisierungsaufgabe. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Die Ordner auf Ihrem Server konnten nicht aufgelistet werden. Prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Eingreifen erforderlich</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Das Zertifikat Ihres Servers hat sich geändert. Prüfen Sie es, bevor Sie fortfahren.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Wird ausgeführt</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Das Update ist fehlgeschlagen. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Das Zertifikat Ihres Servers konnte nicht überprüft werden.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Bitte warten Sie. Dies kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Auswählen, welche Funktionen installiert werden</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Ihre Dateien, wo immer Sie arbeiten</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Diese Ordner wieder synchronisieren</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Der Datenträger dieses Computers ist voll. Geben Sie Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Schwarz-weißes Symbol im Infobereich verwenden</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Einige Felder sind nicht richtig ausgefüllt. Korrigieren Sie sie und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Das Setup wurde unterbrochen. An Ihrem Computer wurden keine Änderungen vorgenommen.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Wählen Sie die Ordner aus, die Sie synchronisieren möchten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Wählen Sie einen Ordner auf Ihrem Server und den lokalen Ordner aus, mit dem er synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Dateien und Ordner überspringen, deren Name mit einem Punkt beginnt</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Benutzerdefinierter Zeitraum</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Der Benutzername oder das Passwort ist falsch. Prüfen Sie beides und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Diese Adresse gehört zu einem anderen Server. Prüfen Sie die Adresse und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Wählen Sie die Art der Einrichtung aus</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Montag</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Ihr Kontingent auf dem Server ist aufgebraucht. Löschen Sie einige Dateien oder bitten Sie Ihren Administrator um mehr Speicherplatz.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Wird gestartet&#xa0;…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Die maximale Anzahl freigegebener Ordner ist erreicht. Beenden Sie zuerst die Synchronisierung eines dieser Ordner.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Proxyeinstellungen des Systems verwenden</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Beide Versionen behalten und die lokale umbenennen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>Die Synchronisierung von „%1“ wurde gestoppt. Öffnen Sie Lumivo Drive, um Details anzuzeigen.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink-ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Die Synchronisierungsrichtung passt nicht zu Ihren Berechtigungen für diesen Ordner. Wählen Sie eine andere Richtung.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Weitere Details</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Diese Version von Lumivo Drive Server ist zu alt. Aktualisieren Sie Lumivo Drive Server auf Ihrem Server.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Synchronisierungsregeln</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Diese Datei kann nicht heruntergeladen werden. Prüfen Sie Ihre Berechtigungen auf dem Server.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt&#xa0;…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Keinen Proxy verwenden</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Freigegebener Ordner</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Diese Verbindung fortsetzen</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Link abrufen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Am Symbol im Infobereich sehen Sie auf einen Blick, ob Ihre Dateien synchron sind.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Erneut verknüpfen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
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
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Das Setup wendet Ihre Auswahl an.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Ordner, die Sie hier abwählen, werden von diesem Computer entfernt. Auf Ihrem Server bleiben sie erhalten.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Der Datenträger Ihres Servers ist voll. Geben Sie dort Speicherplatz frei, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Der Download ist fehlgeschlagen. Prüfen Sie Ihre Netzwerkverbindung und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Speichern und Link kopieren</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Geben Sie die Adresse Ihres Servers und Ihre Kontodaten ein.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Los geht’s</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Es gibt keine Änderungen zu speichern.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorherige %1 Seiten</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Um Lumivo Drive später zu installieren, starten Sie das Setup erneut.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Klicken Sie mit der rechten Maustaste auf eine Datei in einem synchronisierten Ordner, um sie freizugeben oder ihre früheren Versionen anzuzeigen.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformationen</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Lumivo Drive konnte nicht gestartet werden. Starten Sie den Computer neu und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Die Version auf dem Server behalten</translation>
    </message>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Diese Version von Lumivo Drive ist zu alt für Ihren Server. Aktualisieren Sie Lumivo Drive auf Version %1 oder höher.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Lumivo Drive ändern, reparieren oder entfernen</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Verbindung über ZephLink herstellen</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Klicken Sie auf „Installieren“, um zu beginnen. Klicken Sie auf „Zurück“, um Ihre Auswahl zu prüfen oder zu ändern. Klicken Sie auf „Abbrechen“, um das Setup zu beenden.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Ein Fehler ist aufgetreten. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Ich stimme den Bedingungen der Lizenzvereinbarung zu</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Die selektive Synchronisierung ist noch nicht verfügbar. Aktualisieren Sie Lumivo Drive Server auf Ihrem Server, um sie zu verwenden.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Umbenannt</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Dieser Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Bereit zum Entfernen von Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Wählen Sie aus, was mit diesem Computer synchronisiert und wo es gespeichert werden soll.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Hochgeladen</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Ihr Zugriff wurde widerrufen und die synchronisierten Dateien wurden von diesem Computer entfernt. Wenden Sie sich an Ihren Administrator.</translation>
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
        <translation>Wird hochgeladen&#xa0;…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Einstellungen werden angewendet&#xa0;…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Bitte lesen Sie die folgende Lizenzvereinbarung sorgfältig durch.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Zusammenführungsmodus</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Diese Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klicken Sie auf „Reparieren“, um zu beginnen. Klicken Sie auf „Zurück“, um Ihre Auswahl zu prüfen. Klicken Sie auf „Abbrechen“, um das Setup zu beenden.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Sie haben keine Schreibberechtigung für diesen Ordner. Ändern Sie die Berechtigungen des Ordners oder wählen Sie einen anderen aus.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selektive Synchronisierung</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Benutzername</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Geben Sie eine Dateigröße von %1 bis %2 MB ein.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Synchronisierung von „%1“ beenden? Die Dateien, die sich bereits auf diesem Computer befinden, bleiben erhalten.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Schnelle Einrichtung</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Erweiterte Einrichtung</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradresse</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Ihr Kontingent auf dem Server ist aufgebraucht.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bei Doppelklick auf das Symbol im Infobereich</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive wird initialisiert&#xa0;…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Dateien werden geprüft&#xa0;…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Dieser Computer ist jetzt mit „%1“ verknüpft. Die Synchronisierung beginnt sofort.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Alles synchron</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Wird aktualisiert&#xa0;…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Benutzerdefinierte Dauer</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Synchronisierungsstatus im Blick</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wird geladen&#xa0;…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inaktiv</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Die folgenden Anwendungen verwenden Dateien, die das Setup aktualisieren muss:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Lumivo Drive öffnen</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Legen Sie die Ordner, die Synchronisierungsrichtung und die Synchronisierungsregeln selbst fest.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Die installierten Dateien reparieren</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Geben Sie eine Anzahl von Versionen ein, die größer als null ist.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Dieser Benutzername existiert auf Ihrem Server nicht. Prüfen Sie ihn und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Lumivo Drive aktualisieren</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Weitere Informationen</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Erstellt</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Halten Sie die Dateien auf diesem Computer und auf Ihrem Server synchron.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Dieser Ordner wird bereits von einer anderen Cloud-Synchronisierungs-App synchronisiert. Wählen Sie einen anderen Ordner aus, um Konflikte zu vermeiden.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computername</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorieren</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Der Proxy erfordert einen Benutzernamen und ein Passwort</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Der Server hat die Anfrage nicht angenommen. Prüfen Sie Ihre Eingaben und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Diese Version von Lumivo Drive Server ist zu alt für Lumivo Drive auf diesem Computer. Aktualisieren Sie Lumivo Drive Server auf Ihrem Server auf Version %1 oder höher.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Senden an</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>Der ZephLink-Dienst hat einen Fehler gemeldet. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Schließen Sie diese Anwendungen und klicken Sie auf „Wiederholen“, oder klicken Sie auf „Ignorieren“ und starten Sie den Computer später neu.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Hier können Sie ändern, welche Funktionen installiert sind.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Möchten Sie die Verknüpfung dieses Computers mit „%1“ aufheben?\nDie Dateien, die sich bereits auf diesem Computer befinden, bleiben erhalten.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Dieser Ordner wird von einer Sicherungsaufgabe verwendet. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Der Datenträger dieses Computers ist voll.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Dieser Ordner ist nicht leer</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Übergeordneten Ordner öffnen</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Verbindungsart</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Diese ZephLink-ID existiert nicht. Prüfen Sie sie und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Diese Dateien nicht synchronisieren</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Lumivo Drive von diesem Computer entfernen</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Für Ihr Konto ist die Bestätigung in zwei Schritten erforderlich. Richten Sie sie auf Ihrem Server ein und melden Sie sich dann erneut an.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Der Dateidienst ist auf Ihrem Server deaktiviert. Bitten Sie Ihren Administrator, ihn zu aktivieren.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Synchronisierungsaufgabe hinzufügen</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Für andere freigeben</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Gesperrte Datei</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Anwendungen nicht schließen (Sie müssen den Computer später neu starten)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Über Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Dateidienst deaktiviert</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Nächste %1 Seiten</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Der lokale Synchronisierungsordner wurde verschoben oder gelöscht. Legen Sie ihn an den ursprünglichen Ort zurück oder wählen Sie einen neuen aus.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Diese Datei kann nicht freigegeben werden. Prüfen Sie Ihre Berechtigungen auf dem Server.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Klicken Sie auf „Fertigstellen“, um das Setup zu beenden.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Läuft ab nach</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Diese Verbindung pausieren</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>wurde für Sie freigegeben.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Dateien werden verwendet</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Das Setup wurde vorzeitig beendet</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Die Dateifreigabe über ZephLink ist auf Ihrem Server deaktiviert. Bitten Sie Ihren Administrator, sie zu aktivieren.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Einweg-Synchronisierung (nur herunterladen)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Die Dateien in beiden Ordnern werden zusammengeführt.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Dieser Ordner auf Ihrem Server wird bereits mit diesem Computer synchronisiert.\nEine zweite Synchronisierungsaufgabe dafür würde doppelt so viel Speicherplatz belegen.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Das Setup wurde unterbrochen</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Der Bestätigungscode ist falsch. Geben Sie den aktuellen Code ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Zwei-Wege-Synchronisierung</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Ihr Server blockiert die Adresse dieses Computers. Bitten Sie Ihren Administrator, sie zuzulassen.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Benutzername und Passwort werden überprüft&#xa0;…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Willkommen beim Setup von Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Geben Sie höchstens %1 Zeichen ein.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenführen</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Alle Dateiattribute und Berechtigungen synchronisieren</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>Der freigegebene Ordner „%1“ ist auf „%2“ verfügbar. Klicken Sie hier, um ihn zu synchronisieren.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Suchbegriff</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Einen leeren Ordner für Lumivo Drive erstellen</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Dateifilter</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Alles, was Sie in Ihren Synchronisierungsordner legen, erscheint auf Ihrem Server und auf Ihren anderen Computern.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Das Setup kann Lumivo Drive ändern, reparieren oder entfernen. Klicken Sie auf „Weiter“, um fortzufahren.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Wählen Sie einen Ordner auf Ihrem Server und einen Ordner auf diesem Computer aus.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Geben Sie die Adresse und den Port des Proxyservers ein.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Änderungen werden überwacht&#xa0;…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>„%1“ wurde aktualisiert</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Lumivo Drive jetzt starten</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Wählen Sie aus, was Sie tun möchten.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Persönliche Ordner sind auf Ihrem Server deaktiviert. Bitten Sie Ihren Administrator, sie zu aktivieren.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisierungsaufgaben</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Bereit zum Reparieren von Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Übersprungene Dateien</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive ist jetzt auf diesem Computer installiert.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Wird vorbereitet&#xa0;…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systemsprache</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Ihre Änderungen wurden nicht gespeichert.\nMöchten Sie die Einstellungen verlassen, ohne zu speichern?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Ordner wird bereits synchronisiert</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Wird synchronisiert&#xa0;…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klicken Sie auf „Entfernen“, um Lumivo Drive von diesem Computer zu entfernen. Klicken Sie auf „Zurück“, um Ihre Auswahl zu prüfen. Klicken Sie auf „Abbrechen“, um das Setup zu beenden.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Willkommen zurück beim Setup von Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direkt</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Dieser Ordner wird bereits von einer anderen Synchronisierungsaufgabe verwendet. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Kein Speicherplatz mehr</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Freigegebene Ordner werden geladen&#xa0;…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Verknüpfung wird aufgehoben&#xa0;…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Dateien, die gerade synchronisiert werden</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Sie können alle Einstellungen später ändern.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Synchronisierungsstatus anzeigen</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Der Ordner auf Ihrem Server ist nicht eingehängt. Hängen Sie ihn dort ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Übersprungene Dateien mit einem Symbol kennzeichnen</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Verbindungsart wird geprüft&#xa0;…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Bei Dateien mit unterschiedlichem Inhalt bleiben beide Versionen erhalten.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Dieser Ordner wird bereits synchronisiert. Möchten Sie ihn erneut hinzufügen?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Erweiterte Einstellungen</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Die Versionen dieser Datei können nicht aufgelistet werden. Prüfen Sie Ihre Berechtigungen auf dem Server.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Die Antwort des Servers konnte nicht ausgewertet werden. Aktualisieren Sie Lumivo Drive und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Möchten Sie die Installation von Lumivo Drive wirklich abbrechen?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Unter dieser Adresse wurde ein anderer Server gefunden</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Einige Dateien, die aktualisiert werden müssen, werden gerade verwendet.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive ist bereit.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>Die Synchronisierungsdatenbank ist beschädigt. Heben Sie die Verknüpfung dieses Computers auf und verknüpfen Sie ihn erneut.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Auf diesem Computer ist bereits eine neuere Version von Lumivo Drive installiert. Entfernen Sie sie, bevor Sie diese Version installieren.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Diesen freigegebenen Ordner synchronisieren</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Hauptfenster öffnen</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Aktueller Schritt:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Zugriff einschränken</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Das Setup installiert Lumivo Drive auf diesem Computer. Klicken Sie auf „Weiter“, um fortzufahren, oder auf „Abbrechen“, um das Setup zu beenden.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Geben Sie die Adresse oder die ZephLink-ID Ihres Servers, Ihren Benutzernamen und Ihr Passwort ein.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Der Ordner „%1“ konnte nicht erstellt werden. Prüfen Sie den Pfad und Ihre Berechtigungen.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Das Setup wurde aufgrund eines Fehlers beendet.\nAn Ihrem Computer wurden keine Änderungen vorgenommen.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Ihr Kontingent auf dem Server ist aufgebraucht. Löschen Sie einige Dateien, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Ordnerfilter</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Das Zertifikat Ihres Servers konnte nicht überprüft werden. Prüfen Sie es in den Verbindungseinstellungen.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Anderen Ordner auswählen</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Sie können Lumivo Drive jederzeit über den Infobereich öffnen.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Die Datei wurde gleichzeitig an zwei Orten geändert. Beide Versionen sind erhalten geblieben. Löschen Sie die Version, die Sie nicht benötigen.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Das Zertifikat Ihres Servers hat sich geändert. Prüfen Sie es in den Verbindungseinstellungen.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Verbindung verschlüsseln (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Erstellen Sie einen Link zu einer Datei und senden Sie ihn an beliebige Personen, auf Wunsch mit Passwort und Enddatum.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Geben Sie den Bestätigungscode für Ihr Konto ein.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Sie möchten Lumivo Drive von diesem Computer entfernen.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Änderungen auf einem Netzlaufwerk können nicht erkannt werden. Wählen Sie einen Ordner auf einem lokalen Datenträger aus.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Ein Ordner mit diesem Namen ist bereits vorhanden. Geben Sie einen anderen Namen ein.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Freitag</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyeinstellungen</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Datei öffnen</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbindung bearbeiten</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Die Verbindung zu Ihrem Server wurde unterbrochen. Sie wird automatisch wiederhergestellt.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Keine Berechtigung</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Heruntergeladen</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Elemente: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Möchten Sie die Synchronisierung von „%1“ mit „%2“ beenden?\nEs werden keine Dateien gelöscht.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Lokalen Ordner ändern</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Die Verbindung funktioniert.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Einrichtung abgeschlossen</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Symbole im Infobereich</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisierungsmodus</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Letzter Monat</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Frühere Versionen durchsuchen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>Vor %1 Std.</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Dateien und Ordner, auf die diese Regeln zutreffen, werden nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Entfernt Lumivo Drive von diesem Computer. Ihre synchronisierten Dateien bleiben erhalten.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Verbindungen verwalten</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Auf diesem Datenträger ist nicht genügend Speicherplatz vorhanden. Wählen Sie einen Ordner auf einem anderen Datenträger aus.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Zu überspringende Dateinamen</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Donnerstag</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Synchronisierung fortsetzen</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Zuletzt geänderte Dateien</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP-Adresse, Domainname oder ZephLink-ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Lumivo Drive im Kontextmenü anzeigen</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Diese Version von Lumivo Drive ist zu alt. Aktualisieren Sie Lumivo Drive auf diesem Computer.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Dieser Ordner kann nicht synchronisiert werden. Wählen Sie einen anderen Ordner aus.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Der Download wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Anzahl der Downloads begrenzen</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Symbole für den Synchronisierungsstatus auf Dateien anzeigen</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Dieses Feld muss ausgefüllt werden.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Einführung anzeigen</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Weiteren Server verknüpfen</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Ich stimme den Bedingungen der Lizenzvereinbarung nicht zu</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versionen nicht kompatibel</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Zugriff verweigert</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Geben Sie den 6-stelligen Bestätigungscode ein</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Verstanden</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Der Datenträger mit dem lokalen Synchronisierungsordner ist nicht angeschlossen. Schließen Sie ihn an, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr anzeigen</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Jetzt starten</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Lokales Netzwerk durchsuchen</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Proxy manuell einrichten</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Sie können die Dateien in diesem Ordner öffnen, aber nicht ändern.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Zu viele fehlgeschlagene Versuche. Warten Sie einige Minuten und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Der Ordner ist nicht leer. Seine Dateien werden mit den Dateien auf Ihrem Server zusammengeführt.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Letzte Woche</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Der Download ist abgeschlossen.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Sie können eine Version wiederherstellen, die Sie überschrieben oder gelöscht haben.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sonntag</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Update erforderlich</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Freigabe</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Dienstag</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Lumivo Drive beim Anmelden starten</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Freigegebene Ordner verwalten</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>Vor %1 Min.</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Dieser freigegebene Ordner wird nicht mehr synchronisiert. Die Dateien, die sich bereits auf diesem Computer befinden, bleiben erhalten.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Zu überspringende Dateiendungen</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Relaisserver</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Anmeldung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive hat keine Funktionen, die einzeln ausgewählt werden können.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Sie sind nicht als Administrator angemeldet. Lumivo Drive wird nur für Sie installiert.\nMöchten Sie fortfahren?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Links können nicht erstellt werden, da der Dateidienst deaktiviert ist. Bitten Sie Ihren Administrator, ihn zu aktivieren.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Anwendungen schließen und danach versuchen, sie wieder zu starten</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Lizenzvereinbarung</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Der Ordner konnte aufgrund eines Systemfehlers nicht geprüft werden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Diese Version von Lumivo Drive ist bereits installiert. Möchten Sie sie erneut installieren?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Startdatum festlegen</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Verwalten</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Dieser freigegebene Ordner ist auf Ihrem Server nicht eingehängt. Hängen Sie ihn dort ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokales Netzwerk</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle Ereignisse</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Diese Verknüpfung aufheben</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Die Verbindung ist instabil</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Dieser Computer und Ihr Server halten diese Ordner jetzt synchron.\nSie können jederzeit weitere Synchronisierungsaufgaben hinzufügen.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Diesen Ordner nicht synchronisieren</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Das Zertifikat Ihres Servers hat sich geändert.\nFahren Sie nur fort, wenn Sie den Grund kennen.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maximale Dateigröße (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Die zuletzt geänderte Version behalten</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Server im lokalen Netzwerk suchen</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Mit Ihrem Konto dürfen Sie diesen Ordner nicht synchronisieren. Bitten Sie Ihren Administrator um die Berechtigung.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Gerade eben</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Das Setup ist bereit, Lumivo Drive zu reparieren.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Sie können diesen Ordner nur lesen. Änderungen auf diesem Computer werden nicht hochgeladen.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Sie haben keinen Zugriff auf diesen Ordner. Bitten Sie Ihren Administrator um die Berechtigung.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Keine Einträge gefunden</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Ihre Dateien werden synchronisiert. Sie können währenddessen weiterarbeiten.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Das Zertifikat Ihres Servers konnte nicht überprüft werden.\nFahren Sie nur fort, wenn Sie diesem Netzwerk vertrauen.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Noch zu synchronisierende Dateien: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Willkommen bei Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Enddatum festlegen</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Die Synchronisierungsaufgabe konnte nicht entfernt werden. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Klicken Sie auf das Symbol, um zu sehen, welche Dateien gerade synchronisiert werden.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Ihr Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Das Zertifikat Ihres Servers konnte nicht überprüft werden. Bitten Sie Ihren Administrator, ein gültiges zu installieren.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Der Server wurde ausgetauscht. Verknüpfen Sie diesen Computer erneut.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Führen Sie diese Schritte aus, um diesen Computer mit Ihrem Server zu verknüpfen.</translation>
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
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Aktualisierte Dateien</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Trotzdem fortfahren</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Fertigstellen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Symbole auf lokalen Dateien</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Keine Aktionen verfügbar</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Synchronisierung gestoppt</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokaler Synchronisierungsordner</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Ihr Server indiziert „%1“ noch. Sie können den Ordner synchronisieren, sobald die Indizierung abgeschlossen ist.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Wenn eine Datei an zwei Orten geändert wurde</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>Der Ordner „%1“ ist nicht leer.\nMöchten Sie ihn trotzdem verwenden?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Ordner ändern</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Synchronisieren Sie Ihren persönlichen Ordner mit den empfohlenen Einstellungen.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Ordner werden geladen&#xa0;…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Mittwoch</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-Verschlüsselung</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Bereit zum Installieren von Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Starten Sie das Setup erneut, wenn Sie Lumivo Drive installieren möchten.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Ihr persönlicher Ordner auf dem Server wird jetzt mit diesem Computer synchronisiert.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serverübersicht</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Synchronisierung pausieren</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Samstag</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Das Kontingent dieses freigegebenen Ordners ist aufgebraucht. Löschen Sie einige Dateien, um die Synchronisierung fortzusetzen.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Ihre neue Synchronisierungsaufgabe</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadverlauf</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Wird heruntergeladen&#xa0;…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Die neue Sprache wird beim nächsten Start von Lumivo Drive wirksam.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Lumivo Drive wird installiert</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Desktopbenachrichtigungen anzeigen</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Die schnelle Einrichtung eignet sich für die meisten Benutzer. Sie können alles später ändern.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Der Datenträger Ihres Servers ist voll.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>In der Zeit zurückgehen</translation>
    </message>
</context>
</TS>
