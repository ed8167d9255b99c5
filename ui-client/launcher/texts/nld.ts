<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Selecteer de lokale map die je met je server wilt synchroniseren.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>De ZephLink-service is niet bereikbaar. Controleer je netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Filterregels</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Koppelpunt niet toegestaan</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Deze gedeelde map bestaat niet meer op je server. Selecteer een andere map.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Voer je gebruikersnaam in.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Bestanden met deze namen worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Kan geen verbinding maken met je server. Controleer je netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Alleen downloaden</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Synchronisatierichting</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Je eerste synchronisatietaak op deze server</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Herstelt ontbrekende of beschadigde bestanden, snelkoppelingen en registervermeldingen.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Klik hier om bij te werken</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Mappad</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Gedeelde mappen</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nee, bedankt</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certificaatwaarschuwing</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Verbindingsinstellingen wijzigen</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Verbinding testen…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Installatie van Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Vandaag</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Het installatieprogramma is gereed om Lumivo Drive op deze computer te installeren.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nieuwe gedeelde map</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Er is geen bruikbare map gevonden. Vraag je beheerder om toegang tot een gedeelde map.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Kan de synchronisatie van deze gedeelde map niet inschakelen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot en met</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bewerken</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Deze map weer synchroniseren</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 d geleden</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>De map “%1” is een koppelpunt en kan niet worden gesynchroniseerd. Selecteer een andere map.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Deze computer is al gekoppeld aan “%1”. Bewerk in plaats daarvan de bestaande verbinding.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update beschikbaar</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Voer een poortnummer in van 1 tot en met 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Synchronisatiemap openen</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive is geïnstalleerd</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Ontkoppelen</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Deze map overlapt met de map van een andere synchronisatietaak. Selecteer een andere map.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>De mappen op je server kunnen niet worden weergegeven. Controleer je netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Aandacht vereist</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Het certificaat van je server is gewijzigd. Controleer het voordat je doorgaat.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Laatste pagina</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Wordt uitgevoerd</translation>
    </message>
    <message>
        <source>June</source>
        <translation>juni</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>De update is mislukt. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Het certificaat van je server kan niet worden geverifieerd.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Een ogenblik geduld. Dit kan enkele minuten duren.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Kiezen welke onderdelen worden geïnstalleerd</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Je bestanden, waar je ook werkt</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Deze mappen weer synchroniseren</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>De schijf van deze computer is vol. Maak ruimte vrij om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Zwart-witpictogram in het systeemvak gebruiken</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Sommige velden zijn niet juist ingevuld. Corrigeer ze en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>De installatie is onderbroken. Er zijn geen wijzigingen op je computer aangebracht.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Map niet gevonden</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Kies de mappen die je wilt synchroniseren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Kies een map op je server en de lokale map waarmee je deze wilt synchroniseren.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Bestanden en mappen overslaan waarvan de naam met een punt begint</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Aangepaste periode</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>De gebruikersnaam of het wachtwoord is onjuist. Controleer beide en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Dit adres hoort bij een andere server. Controleer het adres en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Kies hoe je Lumivo Drive wilt configureren</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>maandag</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Je quotum op de server is opgebruikt. Verwijder enkele bestanden of vraag je beheerder om meer ruimte.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>augustus</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Voortgang</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Starten…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Het maximale aantal gedeelde mappen is bereikt. Stop eerst de synchronisatie van een van deze mappen.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Proxyinstellingen van het systeem gebruiken</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Beide versies bewaren en de naam van de lokale versie wijzigen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>De synchronisatie van “%1” is gestopt. Open Lumivo Drive voor meer informatie.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetten</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink-ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>De synchronisatierichting komt niet overeen met je machtigingen voor deze map. Kies een andere richting.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Meer details</translation>
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
        <translation>Deze versie van Lumivo Drive Server is te oud. Werk Lumivo Drive Server op je server bij.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Synchronisatieregels</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Dit bestand kan niet worden gedownload. Controleer je machtigingen op de server.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinding maken…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Geen proxy gebruiken</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Gedeelde map</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Deze verbinding hervatten</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Link ophalen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Aan het pictogram in het systeemvak zie je in één oogopslag of je bestanden gesynchroniseerd zijn.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Opnieuw koppelen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Alleen-lezen</translation>
    </message>
    <message>
        <source>April</source>
        <translation>april</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Netwerkinstellingen</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Het installatieprogramma past je keuzes toe.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Mappen die je hier uitvinkt, worden van deze computer verwijderd. Ze blijven op je server staan.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>De schijf van je server is vol. Maak daar ruimte vrij om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Het downloaden is mislukt. Controleer je netwerkverbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Opslaan en link kopiëren</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Voer het adres van je server en je accountgegevens in.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Aan de slag</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Er zijn geen wijzigingen om op te slaan.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Vorige %1 pagina’s</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Als je Lumivo Drive later wilt installeren, start je het installatieprogramma opnieuw.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Klik met de rechtermuisknop op een bestand in een gesynchroniseerde map om het te delen of eerdere versies ervan te bekijken.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gisteren</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Statusinformatie</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Kan Lumivo Drive niet starten. Start de computer opnieuw op en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>De versie op de server bewaren</translation>
    </message>
    <message>
        <source>January</source>
        <translation>januari</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Deze versie van Lumivo Drive is te oud voor je server. Werk Lumivo Drive bij naar versie %1 of hoger.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Lumivo Drive wijzigen, herstellen of verwijderen</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Verbinding maken via ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Klik op Installeren om te beginnen. Klik op Vorige om je keuzes te bekijken of te wijzigen. Klik op Annuleren om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Er is iets misgegaan. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Ik ga akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Selectieve synchronisatie is nog niet beschikbaar. Werk Lumivo Drive Server op je server bij om deze functie te gebruiken.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Naam gewijzigd</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Deze map is alleen-lezen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Gereed om Lumivo Drive te verwijderen</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Kies wat je met deze computer wilt synchroniseren en waar je het wilt bewaren.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Geüpload</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Je toegang is ingetrokken en de gesynchroniseerde bestanden zijn van deze computer verwijderd. Neem contact op met je beheerder.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Stand-by</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploaden…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Instellingen toepassen…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Lees de volgende licentieovereenkomst zorgvuldig door.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Samenvoegmodus</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Deze mappen niet synchroniseren</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klik op Herstellen om te beginnen. Klik op Vorige om je keuze te bekijken. Klik op Annuleren om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Je kunt niet naar deze map schrijven. Wijzig de machtigingen van de map of selecteer een andere map.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selectieve synchronisatie</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Gebruikersnaam</translation>
    </message>
    <message>
        <source>December</source>
        <translation>december</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Voer een bestandsgrootte in van %1 tot en met %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Stoppen met het synchroniseren van “%1”? De bestanden die al op deze computer staan, blijven bewaard.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Snelle configuratie</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Geavanceerde configuratie</translation>
    </message>
    <message>
        <source>November</source>
        <translation>november</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Selecteer een map</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Serveradres</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Je quotum op de server is opgebruikt.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Bij dubbelklikken op het pictogram in het systeemvak</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive wordt geïnitialiseerd…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Bestanden controleren…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Deze computer is nu gekoppeld aan “%1”. De synchronisatie begint meteen.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Alles gesynchroniseerd</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Bijwerken…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Aangepaste duur</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>De synchronisatiestatus controleren</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Laden…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Niet actief</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>De volgende toepassingen gebruiken bestanden die het installatieprogramma moet bijwerken:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Lumivo Drive openen</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Kies zelf de mappen, de synchronisatierichting en de synchronisatieregels.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>De geïnstalleerde bestanden herstellen</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Voer een aantal versies in dat groter is dan nul.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Deze gebruikersnaam bestaat niet op je server. Controleer de naam en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Lumivo Drive bijwerken</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Meer informatie</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Gemaakt</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Houd de bestanden op deze computer en op je server gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Vorige</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Deze map wordt al gesynchroniseerd door een andere app voor cloudsynchronisatie. Selecteer een andere map om conflicten te voorkomen.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computernaam</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Negeren</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>De proxy vereist een gebruikersnaam en een wachtwoord</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>De server heeft de aanvraag niet geaccepteerd. Controleer je invoer en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Deze versie van Lumivo Drive Server is te oud voor Lumivo Drive op deze computer. Werk Lumivo Drive Server op je server bij naar versie %1 of hoger.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Verzenden naar</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>De ZephLink-service heeft een fout gemeld. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Sluit deze toepassingen en klik op Opnieuw, of klik op Negeren en start de computer later opnieuw op.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Hiermee kun je wijzigen welke onderdelen zijn geïnstalleerd.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Wil je deze computer ontkoppelen van “%1”?\nDe bestanden die al op deze computer staan, blijven bewaard.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Deze map wordt gebruikt door een back-uptaak. Selecteer een andere map.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>De schijf van deze computer is vol.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Deze map is niet leeg</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Bovenliggende map openen</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Verbindingstype</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Deze ZephLink-ID bestaat niet. Controleer de ID en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Deze bestanden niet synchroniseren</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Lumivo Drive van deze computer verwijderen</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Voor je account is verificatie in twee stappen vereist. Stel deze in op je server en meld je daarna opnieuw aan.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>De bestandsservice is uitgeschakeld op je server. Vraag je beheerder om deze in te schakelen.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Synchronisatietaak toevoegen</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Delen met anderen</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Vergrendeld bestand</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>De toepassingen niet sluiten (je moet de computer later opnieuw opstarten)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Over Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Bestandsservice uit</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Volgende %1 pagina’s</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>De lokale synchronisatiemap is verplaatst of verwijderd. Zet de map terug of kies een nieuwe.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Dit bestand kan niet worden gedeeld. Controleer je machtigingen op de server.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Klik op Voltooien om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Verloopt na</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Deze verbinding pauzeren</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>is met je gedeeld.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Bestanden in gebruik</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>De installatie is voortijdig beëindigd</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Bestanden delen via ZephLink is uitgeschakeld op je server. Vraag je beheerder om dit in te schakelen.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Eenrichtingssynchronisatie (alleen downloaden)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>De bestanden in beide mappen worden samengevoegd.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Deze map op je server wordt al met deze computer gesynchroniseerd.\nEen tweede synchronisatietaak voor deze map zou twee keer zoveel schijfruimte in beslag nemen.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>De installatie is onderbroken</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>De verificatiecode is onjuist. Voer de huidige code in en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Tweerichtingssynchronisatie</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Ingeschakeld</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fout</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Je server blokkeert het adres van deze computer. Vraag je beheerder om het toe te staan.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Gebruikersnaam en wachtwoord controleren…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Welkom bij de installatie van Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Voer maximaal %1 tekens in.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Samenvoegen</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Alle bestandskenmerken en machtigingen synchroniseren</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>De gedeelde map “%1” is beschikbaar op “%2”. Klik hier om deze te synchroniseren.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Zoekterm</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Een lege map voor Lumivo Drive maken</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Bestandsfilter</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Alles wat je in je synchronisatiemap zet, verschijnt op je server en op je andere computers.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Het installatieprogramma kan Lumivo Drive wijzigen, herstellen of verwijderen. Klik op Volgende om door te gaan.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Selecteer een map op je server en een map op deze computer.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Voer het adres en de poort van de proxyserver in.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Controleren op wijzigingen…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Wijzigen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1” is bijgewerkt</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Lumivo Drive nu starten</translation>
    </message>
    <message>
        <source>March</source>
        <translation>maart</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Selecteer wat je wilt doen.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Thuismappen zijn uitgeschakeld op je server. Vraag je beheerder om ze in te schakelen.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Synchronisatietaken</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Gereed om Lumivo Drive te herstellen</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Overgeslagen bestanden</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive is nu op deze computer geïnstalleerd.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Voorbereiden…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Systeemtaal</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Je wijzigingen zijn niet opgeslagen.\nWil je de instellingen verlaten zonder op te slaan?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Map wordt al gesynchroniseerd</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchroniseren…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Klik op Verwijderen om Lumivo Drive van deze computer te verwijderen. Klik op Vorige om je keuze te bekijken. Klik op Annuleren om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Welkom terug bij de installatie van Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Deze map wordt al gebruikt door een andere synchronisatietaak. Selecteer een andere map.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Geen ruimte meer</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Gedeelde mappen laden…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Ontkoppelen…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Bestanden die worden gesynchroniseerd</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Je kunt alle instellingen later wijzigen.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Synchronisatiestatus weergeven</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>De map op je server is niet aangekoppeld. Koppel de map daar aan en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Overgeslagen bestanden met een pictogram markeren</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Verbindingstype controleren…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Van bestanden met verschillende inhoud worden beide versies bewaard.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Deze map wordt al gesynchroniseerd. Wil je de map opnieuw toevoegen?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Geavanceerde instellingen</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>De versies van dit bestand kunnen niet worden weergegeven. Controleer je machtigingen op de server.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Het antwoord van de server kan niet worden verwerkt. Werk Lumivo Drive bij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Weet je zeker dat je de installatie van Lumivo Drive wilt annuleren?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Er is een andere server gevonden op dit adres</translation>
    </message>
    <message>
        <source>July</source>
        <translation>juli</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Sommige bestanden die moeten worden bijgewerkt, zijn in gebruik.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive is gereed.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>De synchronisatiedatabase is beschadigd. Ontkoppel deze computer en koppel deze opnieuw.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Er is al een nieuwere versie van Lumivo Drive op deze computer geïnstalleerd. Verwijder die voordat je deze versie installeert.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welkom</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Deze gedeelde map synchroniseren</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Hoofdvenster openen</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Huidige stap:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Toegang beperken</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Het installatieprogramma installeert Lumivo Drive op deze computer. Klik op Volgende om door te gaan of op Annuleren om het installatieprogramma af te sluiten.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Voer het adres of de ZephLink-ID van je server, je gebruikersnaam en je wachtwoord in.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Kan de map “%1” niet maken. Controleer het pad en je machtigingen.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>De installatie is beëindigd door een fout.\nEr zijn geen wijzigingen op je computer aangebracht.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Je quotum op de server is opgebruikt. Verwijder enkele bestanden om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Mappenfilter</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Het certificaat van je server kan niet worden geverifieerd. Controleer het in de verbindingsinstellingen.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Een andere map kiezen</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Je kunt Lumivo Drive altijd openen via het systeemvak.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Het bestand is tegelijkertijd op twee plaatsen gewijzigd. Beide versies zijn bewaard. Verwijder de versie die je niet nodig hebt.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Het certificaat van je server is gewijzigd. Controleer het in de verbindingsinstellingen.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Verbinding versleutelen (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Maak een link naar een bestand en stuur die naar wie je wilt, eventueel met een wachtwoord en een einddatum.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Voer de verificatiecode voor je account in.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Je hebt ervoor gekozen om Lumivo Drive van deze computer te verwijderen.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Wijzigingen op een netwerkschijf kunnen niet worden gedetecteerd. Selecteer een map op een lokale schijf.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Er bestaat al een map met deze naam. Voer een andere naam in.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>vrijdag</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxyinstellingen</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Bestand openen</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Verbinding bewerken</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up-to-date</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>De verbinding met je server is verbroken. Deze wordt automatisch hersteld.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Geen machtiging</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Gedownload</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Items: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Wil je stoppen met het synchroniseren van “%1” met “%2”?\nEr worden geen bestanden verwijderd.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Lokale map wijzigen</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>De verbinding werkt.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Configuratie voltooid</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Pictogrammen in het systeemvak</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mei</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Synchronisatiemodus</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Vorige maand</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Eerdere versies bekijken</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 u geleden</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Bestanden en mappen die aan deze regels voldoen, worden niet gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Verwijdert Lumivo Drive van deze computer. Je gesynchroniseerde bestanden blijven bewaard.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Verbindingen beheren</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Er is niet genoeg ruimte op deze schijf. Selecteer een map op een andere schijf.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Over te slaan bestandsnamen</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>donderdag</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Synchronisatie hervatten</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Onlangs gewijzigde bestanden</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP-adres, domeinnaam of ZephLink-ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Lumivo Drive in het contextmenu weergeven</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Deze versie van Lumivo Drive is te oud. Werk Lumivo Drive op deze computer bij.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Deze map kan niet worden gesynchroniseerd. Selecteer een andere map.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Het downloaden is geannuleerd.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Aantal downloads beperken</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Pictogrammen voor de synchronisatiestatus op bestanden weergeven</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>Dit veld is verplicht.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Rondleiding weergeven</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Nog een server koppelen</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Ik ga niet akkoord met de voorwaarden van de licentieovereenkomst</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Versies komen niet overeen</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Eerste pagina</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installeren</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Toegang geweigerd</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Voer de 6-cijferige verificatiecode in</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Begrepen</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>De schijf met de lokale synchronisatiemap is niet aangesloten. Sluit de schijf aan om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Dit bericht niet meer weergeven</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Nu beginnen</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Lokaal netwerk doorzoeken</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Proxy handmatig instellen</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Je kunt de bestanden in deze map openen, maar niet wijzigen.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Te veel mislukte pogingen. Wacht enkele minuten en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>september</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>De map is niet leeg. De bestanden erin worden samengevoegd met de bestanden op je server.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Vorige week</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Het downloaden is voltooid.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Je kunt een versie herstellen die je hebt overschreven of verwijderd.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>zondag</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Synchronisatiemap</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Update vereist</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>dinsdag</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Lumivo Drive starten bij het aanmelden</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Gedeelde mappen beheren</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min geleden</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Deze gedeelde map wordt niet meer gesynchroniseerd. De bestanden die al op deze computer staan, blijven bewaard.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Over te slaan bestandsextensies</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Relayserver</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Aanmelden mislukt</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive heeft geen onderdelen die afzonderlijk kunnen worden gekozen.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Je bent niet aangemeld als beheerder. Lumivo Drive wordt alleen voor jou geïnstalleerd.\nWil je doorgaan?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Er kunnen geen links worden gemaakt omdat de bestandsservice is uitgeschakeld. Vraag je beheerder om deze in te schakelen.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>De toepassingen sluiten en daarna proberen ze weer te starten</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Licentieovereenkomst</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>De map kan door een systeemfout niet worden gecontroleerd. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Deze versie van Lumivo Drive is al geïnstalleerd. Wil je deze opnieuw installeren?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Begindatum instellen</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Beheren</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Deze gedeelde map is niet aangekoppeld op je server. Koppel de map daar aan en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Lokaal netwerk</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Alle gebeurtenissen</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Deze verbinding ontkoppelen</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>De verbinding is instabiel</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Deze computer en je server houden deze mappen nu gesynchroniseerd.\nJe kunt op elk moment meer synchronisatietaken toevoegen.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Deze map niet synchroniseren</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Het certificaat van je server is gewijzigd.\nGa alleen door als je weet waarom.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maximale bestandsgrootte (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>De laatst gewijzigde versie bewaren</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Servers op het lokale netwerk zoeken</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Met je account mag je deze map niet synchroniseren. Vraag je beheerder om toestemming.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Zojuist</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Het installatieprogramma is gereed om Lumivo Drive te herstellen.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Je kunt deze map alleen lezen. Wijzigingen op deze computer worden niet geüpload.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Je hebt geen toegang tot deze map. Vraag je beheerder om toestemming.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Geen items gevonden</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Je bestanden worden gesynchroniseerd. Je kunt intussen doorwerken.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Het certificaat van je server kan niet worden geverifieerd.\nGa alleen door als je dit netwerk vertrouwt.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Nog te synchroniseren bestanden: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Welkom bij Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Einddatum instellen</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Kan de synchronisatietaak niet verwijderen. Probeer het later opnieuw.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Klik op het pictogram om te zien welke bestanden worden gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Je synchronisatiemap</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Het certificaat van je server kan niet worden geverifieerd. Vraag je beheerder om een geldig certificaat te installeren.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>De server is vervangen. Koppel deze computer opnieuw.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Volg deze stappen om deze computer aan je server te koppelen.</translation>
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
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Bijgewerkte bestanden</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Toch doorgaan</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Voltooien</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Pictogrammen op lokale bestanden</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Geen acties beschikbaar</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Synchronisatie gestopt</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokale synchronisatiemap</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Uitgeschakeld</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>“%1” wordt nog geïndexeerd op je server. Je kunt de map synchroniseren zodra het indexeren is voltooid.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Als een bestand op twee plaatsen is gewijzigd</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>De map “%1” is niet leeg.\nWil je deze toch gebruiken?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Map wijzigen</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Synchroniseer je thuismap met de aanbevolen instellingen.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Mappen laden…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>woensdag</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL-versleuteling</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Gereed om Lumivo Drive te installeren</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Start het installatieprogramma opnieuw wanneer je Lumivo Drive wilt installeren.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Je thuismap op de server wordt nu met deze computer gesynchroniseerd.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Serveroverzicht</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Synchronisatie pauzeren</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>zaterdag</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Het quotum van deze gedeelde map is opgebruikt. Verwijder enkele bestanden om door te gaan met synchroniseren.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Je nieuwe synchronisatietaak</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Downloadgeschiedenis</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloaden…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>De nieuwe taal wordt van kracht zodra je Lumivo Drive opnieuw start.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Lumivo Drive wordt geïnstalleerd</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Bureaubladmeldingen weergeven</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>De snelle configuratie is geschikt voor de meeste gebruikers. Je kunt alles later wijzigen.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>De schijf van je server is vol.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Teruggaan in de tijd</translation>
    </message>
</context>
</TS>
