<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Wybierz folder lokalny, który chcesz synchronizować z serwerem.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Nie udało się połączyć z usługą ZephLink. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Reguły filtrowania</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Punkt montowania jest niedozwolony</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Hasło</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Zakres dat</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>Ten folder udostępniony już nie istnieje na serwerze. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Wprowadź nazwę użytkownika.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Pliki o tych nazwach nie będą synchronizowane.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Nie udało się połączyć z serwerem. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Napraw</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Tylko pobieranie</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Kierunek synchronizacji</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Twoje pierwsze zadanie synchronizacji na tym serwerze</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Przywraca brakujące lub uszkodzone pliki, skróty i wpisy rejestru.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Miejsce docelowe</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Kliknij tutaj, aby zaktualizować</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Ścieżka folderu</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Foldery udostępnione</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>Nie, dziękuję</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Czynność</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Ostrzeżenie dotyczące certyfikatu</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Zmień ustawienia połączenia</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Sprawdzanie połączenia…</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Instalator aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Instalator jest gotowy do zainstalowania aplikacji Lumivo Drive na tym komputerze.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>Nowy folder udostępniony</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>Nie znaleziono odpowiedniego folderu. Poproś administratora o dostęp do folderu udostępnionego.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Nie udało się włączyć synchronizacji tego folderu udostępnionego. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edytuj</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Wznów synchronizację tego folderu</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 d temu</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>Folder „%1” jest punktem montowania i nie można go synchronizować. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>Ten komputer jest już powiązany z serwerem „%1”. Zamiast tego edytuj istniejące połączenie.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Dostępna aktualizacja</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Wprowadź numer portu od 1 do 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Otwórz folder synchronizacji</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Aplikacja Lumivo Drive została zainstalowana</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Usuń powiązanie</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>Ten folder nakłada się na folder innego zadania synchronizacji. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>Nie udało się pobrać listy folderów z serwera. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Wymaga uwagi</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Certyfikat serwera się zmienił. Sprawdź go, zanim przejdziesz dalej.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Ostatnia strona</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>W toku</translation>
    </message>
    <message>
        <source>June</source>
        <translation>czerwiec</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>Aktualizacja nie powiodła się. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Nie udało się zweryfikować certyfikatu serwera.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Proszę czekać. Może to potrwać kilka minut.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Wybierz funkcje, które mają być zainstalowane</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Twoje pliki, gdziekolwiek pracujesz</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Wznów synchronizację tych folderów</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>Dysk tego komputera jest pełny. Zwolnij miejsce, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Używaj czarno-białej ikony w zasobniku</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Niektóre pola wypełniono niepoprawnie. Popraw je i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Instalacja została przerwana. Na komputerze nie wprowadzono żadnych zmian.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Nie znaleziono folderu</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Wybierz foldery do synchronizacji</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Wybierz folder na serwerze oraz folder lokalny, z którym ma być synchronizowany.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Pomijaj pliki i foldery o nazwach zaczynających się od kropki</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Inny zakres</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>Nazwa użytkownika lub hasło są niepoprawne. Sprawdź je i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>Ten adres należy do innego serwera. Sprawdź adres i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Typ pliku</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Wybierz sposób konfiguracji</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>poniedziałek</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Twój limit miejsca na serwerze został wyczerpany. Usuń część plików lub poproś administratora o więcej miejsca.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>sierpień</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Uruchamianie…</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O aplikacji</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>Osiągnięto maksymalną liczbę folderów udostępnionych. Najpierw zatrzymaj synchronizację jednego z nich.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Używaj systemowych ustawień proxy</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Zachowaj obie wersje i zmień nazwę wersji lokalnej</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Język</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>Synchronizacja „%1” została zatrzymana. Otwórz aplikację Lumivo Drive, aby poznać szczegóły.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>Kierunek synchronizacji jest niezgodny z Twoimi uprawnieniami do tego folderu. Wybierz inny kierunek.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>Więcej szczegółów</translation>
    </message>
    <message>
        <source>October</source>
        <translation>październik</translation>
    </message>
    <message>
        <source>February</source>
        <translation>luty</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>Ta wersja aplikacji Lumivo Drive Server jest zbyt stara. Zaktualizuj ją na serwerze.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Reguły synchronizacji</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>Nie można pobrać tego pliku. Sprawdź swoje uprawnienia na serwerze.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie…</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Nie używaj proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Folder udostępniony</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Wznów to połączenie</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Uzyskaj łącze</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>Ikona w zasobniku pokazuje od razu, czy pliki są zsynchronizowane.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Powiąż ponownie</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Tak</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Tylko do odczytu</translation>
    </message>
    <message>
        <source>April</source>
        <translation>kwiecień</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Ustawienia sieci</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Instalator wprowadza wybrane zmiany.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Foldery, które tutaj odznaczysz, zostaną usunięte z tego komputera. Na serwerze pozostaną.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Dysk serwera jest pełny. Zwolnij na nim miejsce, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>Pobieranie nie powiodło się. Sprawdź połączenie sieciowe i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Zapisz i skopiuj łącze</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Wprowadź adres serwera i dane swojego konta.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Zaczynamy</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>Brak zmian do zapisania.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>O %1 str. wstecz</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>Aby zainstalować aplikację Lumivo Drive później, uruchom instalator ponownie.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Kliknij plik w synchronizowanym folderze prawym przyciskiem myszy, aby go udostępnić lub zobaczyć jego wcześniejsze wersje.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Wczoraj</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Informacje o stanie</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Nie udało się uruchomić aplikacji Lumivo Drive. Uruchom komputer ponownie i spróbuj jeszcze raz.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Zachowaj wersję z serwera</translation>
    </message>
    <message>
        <source>January</source>
        <translation>styczeń</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>Ta wersja aplikacji Lumivo Drive jest zbyt stara dla tego serwera. Zaktualizuj ją do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Zmiana, naprawa lub usunięcie aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Łącz się przez ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Kliknij „Zainstaluj”, aby rozpocząć. Kliknij „Wstecz”, aby sprawdzić lub zmienić wybrane opcje. Kliknij „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Wystąpił błąd. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>Akceptuję warunki umowy licencyjnej</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Synchronizacja selektywna nie jest jeszcze dostępna. Aby z niej korzystać, zaktualizuj na serwerze aplikację Lumivo Drive Server.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Zmieniono nazwę</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>Ten folder jest tylko do odczytu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Wszystko gotowe do usunięcia aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Wybierz, co ma być synchronizowane z tym komputerem i gdzie ma być przechowywane.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Wysłano</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Twój dostęp został cofnięty, a zsynchronizowane pliki usunięto z tego komputera. Skontaktuj się z administratorem.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>W gotowości</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Wysyłanie…</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Stosowanie ustawień…</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Przeczytaj uważnie poniższą umowę licencyjną.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Tryb scalania</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Nie synchronizuj tych folderów</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Wyjdź</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Kliknij „Napraw”, aby rozpocząć. Kliknij „Wstecz”, aby sprawdzić swój wybór. Kliknij „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>Nie możesz zapisywać w tym folderze. Zmień jego uprawnienia lub wybierz inny folder.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Synchronizacja selektywna</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Nazwa użytkownika</translation>
    </message>
    <message>
        <source>December</source>
        <translation>grudzień</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Wprowadź rozmiar pliku od %1 do %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Czy chcesz zatrzymać synchronizację „%1”? Pliki, które są już na tym komputerze, zostaną zachowane.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Szybka konfiguracja</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Konfiguracja zaawansowana</translation>
    </message>
    <message>
        <source>November</source>
        <translation>listopad</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Wybierz folder</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Adres serwera</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Twój limit miejsca na serwerze został wyczerpany.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>Po dwukrotnym kliknięciu ikony w zasobniku</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Przygotowywanie aplikacji Lumivo Drive…</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Sprawdzanie plików…</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>Ten komputer jest teraz powiązany z serwerem „%1”. Synchronizacja rozpocznie się od razu.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Wszystko zsynchronizowane</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Aktualizowanie…</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Inny okres</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Sprawdzaj stan synchronizacji</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Wczytywanie…</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Nieaktywne</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>Następujące aplikacje używają plików, które instalator musi zaktualizować:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Otwórz Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Samodzielnie wybierz foldery, kierunek i reguły synchronizacji.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Napraw zainstalowane pliki</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Wprowadź liczbę wersji większą od zera.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>Ta nazwa użytkownika nie istnieje na serwerze. Sprawdź ją i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Aktualizacja aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Więcej informacji</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Utworzono</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Synchronizuj pliki między tym komputerem a serwerem.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>Ten folder jest już synchronizowany przez inną aplikację chmurową. Aby uniknąć konfliktów, wybierz inny folder.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Nazwa komputera</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignoruj</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>Serwer proxy wymaga nazwy użytkownika i hasła</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>Serwer nie przyjął żądania. Sprawdź wprowadzone dane i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>Ta wersja aplikacji Lumivo Drive Server jest zbyt stara dla aplikacji Lumivo Drive na tym komputerze. Zaktualizuj ją na serwerze do wersji %1 lub nowszej.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Wyślij do</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>Usługa ZephLink zgłosiła błąd. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Zamknij te aplikacje i kliknij „Ponów” albo kliknij „Ignoruj” i uruchom komputer ponownie później.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Pozwala zmienić zainstalowane funkcje.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Czy chcesz usunąć powiązanie tego komputera z serwerem „%1”?\nPliki, które są już na tym komputerze, zostaną zachowane.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>Ten folder jest używany przez zadanie tworzenia kopii zapasowej. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>Dysk tego komputera jest pełny.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>Ten folder nie jest pusty</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Pokaż w folderze</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Rodzaj połączenia</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>Ten identyfikator ZephLink ID nie istnieje. Sprawdź go i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Nie synchronizuj tych plików</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Usuń Lumivo Drive z tego komputera</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Twoje konto wymaga weryfikacji dwuetapowej. Skonfiguruj ją na serwerze, a następnie zaloguj się ponownie.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Usługa plików jest wyłączona na serwerze. Poproś administratora o jej włączenie.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Dodaj zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Udostępniaj innym</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Zablokowany plik</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Nie zamykaj aplikacji (później trzeba będzie uruchomić komputer ponownie)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>O aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>Usługa plików wyłączona</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>O %1 str. dalej</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>Lokalny folder synchronizacji został przeniesiony lub usunięty. Przywróć go na miejsce lub wybierz nowy.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>Nie można udostępnić tego pliku. Sprawdź swoje uprawnienia na serwerze.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Wznów</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Kliknij „Zakończ”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Okres ważności</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Wstrzymaj to połączenie</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>– udostępniono Ci ten element.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Pliki w użyciu</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Instalacja została przedwcześnie zakończona</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>Udostępnianie plików przez ZephLink jest wyłączone na serwerze. Poproś administratora o jego włączenie.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Łącze</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>Synchronizacja jednokierunkowa (tylko pobieranie)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>Pliki z obu folderów zostaną scalone.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>Ten folder na serwerze jest już synchronizowany z tym komputerem.\nPrzy drugim zadaniu synchronizacji zajmowałby dwa razy więcej miejsca na dysku.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Instalacja została przerwana</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>Kod weryfikacyjny jest niepoprawny. Wprowadź aktualny kod i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Synchronizacja dwukierunkowa</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Serwer blokuje adres tego komputera. Poproś administratora o jego odblokowanie.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Sprawdzanie nazwy użytkownika i hasła…</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Witamy w instalatorze aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Maksymalna liczba znaków to %1.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Scal</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Synchronizuj wszystkie atrybuty i uprawnienia plików</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>Folder udostępniony „%1” jest dostępny na serwerze „%2”. Kliknij tutaj, aby go synchronizować.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Słowo kluczowe</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Utwórz pusty folder dla aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>Filtr plików</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Wszystko, co umieścisz w folderze synchronizacji, pojawi się na serwerze i na Twoich pozostałych komputerach.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Instalator może zmienić, naprawić lub usunąć aplikację Lumivo Drive. Kliknij „Dalej”, aby kontynuować.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Wybierz folder na serwerze i folder na tym komputerze.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Wprowadź adres i port serwera proxy.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Śledzenie zmian…</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Zmień</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>Zaktualizowano plik „%1”</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Uruchom Lumivo Drive teraz</translation>
    </message>
    <message>
        <source>March</source>
        <translation>marzec</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Wybierz, co chcesz zrobić.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Foldery domowe są wyłączone na serwerze. Poproś administratora o ich włączenie.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Zadania synchronizacji</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Wszystko gotowe do naprawy aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Pomijane pliki</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Aplikacja Lumivo Drive jest już zainstalowana na tym komputerze.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Przygotowywanie…</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>Język systemu</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Zmiany nie zostały zapisane.\nCzy chcesz wyjść bez zapisywania?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Folder jest już synchronizowany</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Synchronizowanie…</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Kliknij „Usuń”, aby usunąć aplikację Lumivo Drive z tego komputera. Kliknij „Wstecz”, aby sprawdzić swój wybór. Kliknij „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Witamy ponownie w instalatorze aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Bezpośrednie</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>Ten folder jest już używany przez inne zadanie synchronizacji. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>Brak miejsca</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Wczytywanie folderów udostępnionych…</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Usuwanie powiązania…</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Synchronizowane pliki</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>Wszystkie ustawienia możesz zmienić później.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Pokaż stan synchronizacji</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>Folder na serwerze nie jest zamontowany. Zamontuj go tam i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Oznaczaj pomijane pliki ikoną</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Sprawdzanie rodzaju połączenia…</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Jeśli pliki mają różną zawartość, zachowywane są obie wersje.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>Ten folder jest już synchronizowany. Czy chcesz dodać go ponownie?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Ustawienia zaawansowane</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>Nie można wyświetlić wersji tego pliku. Sprawdź swoje uprawnienia na serwerze.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>Nie udało się zinterpretować odpowiedzi serwera. Zaktualizuj aplikację Lumivo Drive i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Czy na pewno chcesz anulować instalację aplikacji Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>Pod tym adresem znaleziono inny serwer</translation>
    </message>
    <message>
        <source>July</source>
        <translation>lipiec</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Niektóre pliki, które trzeba zaktualizować, są w użyciu.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Aplikacja Lumivo Drive jest gotowa.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>Baza danych synchronizacji jest uszkodzona. Usuń powiązanie tego komputera i powiąż go ponownie.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>Na tym komputerze jest już zainstalowana nowsza wersja aplikacji Lumivo Drive. Usuń ją przed zainstalowaniem tej wersji.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Witamy</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Synchronizuj ten folder udostępniony</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Otwórz główne okno</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Bieżąca operacja:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Ogranicz dostęp</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Instalator zainstaluje aplikację Lumivo Drive na tym komputerze. Kliknij „Dalej”, aby kontynuować, lub „Anuluj”, aby zamknąć instalator.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Wprowadź adres serwera lub jego identyfikator ZephLink ID, nazwę użytkownika i hasło.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Nie udało się utworzyć folderu „%1”. Sprawdź jego ścieżkę i swoje uprawnienia.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Instalacja została przerwana z powodu błędu.\nNa komputerze nie wprowadzono żadnych zmian.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Twój limit miejsca na serwerze został wyczerpany. Usuń część plików, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Filtr folderów</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Nie udało się zweryfikować certyfikatu serwera. Sprawdź go w ustawieniach połączenia.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Wybierz inny folder</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Aplikację Lumivo Drive możesz w każdej chwili otworzyć z zasobnika.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>Plik zmieniono w dwóch miejscach jednocześnie. Zachowano obie wersje. Usuń tę, której nie potrzebujesz.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Certyfikat serwera się zmienił. Sprawdź go w ustawieniach połączenia.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Szyfruj połączenie (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nazwa folderu</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Utwórz łącze do pliku i wyślij je dowolnej osobie – jeśli chcesz, z hasłem i datą końcową.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Wprowadź kod weryfikacyjny swojego konta.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informacja</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Wybrano usunięcie aplikacji Lumivo Drive z tego komputera.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Nie można śledzić zmian na dysku sieciowym. Wybierz folder na dysku lokalnym.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>Folder o tej nazwie już istnieje. Wprowadź inną nazwę.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>piątek</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Ustawienia proxy</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Otwórz plik</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edytuj połączenie</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Wszystko aktualne</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>Utracono połączenie z serwerem. Zostanie automatycznie przywrócone.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>Brak uprawnień</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Pobrano</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Liczba elementów: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Czy chcesz zatrzymać synchronizację „%1” z „%2”?\nŻadne pliki nie zostaną usunięte.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Zmień folder lokalny</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>Połączenie działa.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Konfiguracja ukończona</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Ikony w zasobniku</translation>
    </message>
    <message>
        <source>May</source>
        <translation>maj</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Tryb synchronizacji</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Zeszły miesiąc</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Przeglądaj wcześniejsze wersje</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 godz. temu</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Pliki i foldery pasujące do tych reguł nie są synchronizowane.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Usuwa aplikację Lumivo Drive z tego komputera. Zsynchronizowane pliki zostaną zachowane.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Zarządzaj połączeniami</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>Na tym dysku jest za mało miejsca. Wybierz folder na innym dysku.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>Pomijane nazwy plików</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>czwartek</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Wznów synchronizację</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Ostatnio zmienione pliki</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>Adres IP, nazwa domeny lub ZephLink ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Pokazuj Lumivo Drive w menu kontekstowym</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>Ta wersja aplikacji Lumivo Drive jest zbyt stara. Zaktualizuj ją na tym komputerze.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>Tego folderu nie można synchronizować. Wybierz inny folder.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>Pobieranie zostało anulowane.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Ogranicz liczbę pobrań</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Pokazuj ikony stanu synchronizacji na plikach</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>To pole jest wymagane.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Pokaż samouczek</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Powiąż z innym serwerem</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>Nie akceptuję warunków umowy licencyjnej</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Niezgodność wersji</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Pierwsza strona</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Zainstaluj</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Odmowa dostępu</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Wprowadź 6-cyfrowy kod weryfikacyjny</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Rozumiem</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>Dysk z lokalnym folderem synchronizacji nie jest podłączony. Podłącz go, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Nie pokazuj więcej tego komunikatu</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Rozpocznij teraz</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Szukaj w sieci lokalnej</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Skonfiguruj proxy ręcznie</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>Pliki w tym folderze możesz otwierać, ale nie możesz ich zmieniać.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Zbyt wiele nieudanych prób. Odczekaj kilka minut i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>wrzesień</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>Folder nie jest pusty. Jego pliki zostaną scalone z plikami na serwerze.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Zeszły tydzień</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>Pobieranie zostało ukończone.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>Możesz przywrócić nadpisaną lub usuniętą wersję.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>niedziela</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Folder synchronizacji</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Wymagana aktualizacja</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Udostępnianie</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>wtorek</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Uruchamiaj Lumivo Drive po zalogowaniu</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Zarządzaj folderami udostępnionymi</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min temu</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>Ten folder udostępniony nie będzie już synchronizowany. Pliki, które są już na tym komputerze, zostaną zachowane.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>Pomijane rozszerzenia plików</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Pośrednie</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Błąd logowania</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Aplikacja Lumivo Drive nie ma funkcji, które można wybrać oddzielnie.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>Nie używasz konta administratora. Aplikacja Lumivo Drive zostanie zainstalowana tylko dla Ciebie.\nCzy chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Nie można tworzyć łączy, ponieważ usługa plików jest wyłączona. Poproś administratora o jej włączenie.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Zamknij aplikacje, a potem spróbuj uruchomić je ponownie</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>Umowa licencyjna</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>Nie udało się sprawdzić folderu z powodu błędu systemu. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>Ta wersja aplikacji Lumivo Drive jest już zainstalowana. Czy chcesz zainstalować ją ponownie?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Ustaw datę początkową</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Zarządzaj</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>Ten folder udostępniony nie jest zamontowany na serwerze. Zamontuj go tam i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Sieć lokalna</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>Wszystkie zdarzenia</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Usuń to powiązanie</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>Połączenie jest niestabilne</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>Te foldery są teraz synchronizowane między tym komputerem a serwerem.\nW każdej chwili możesz dodać kolejne zadania synchronizacji.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Nie synchronizuj tego folderu</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Certyfikat serwera się zmienił.\nKontynuuj tylko wtedy, gdy wiesz dlaczego.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maksymalny rozmiar pliku (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Zachowaj ostatnio zmienioną wersję</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Znajdź serwery w sieci lokalnej</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Twoje konto nie ma uprawnień do synchronizowania tego folderu. Poproś administratora o ich przyznanie.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Foldery</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Przed chwilą</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Instalator jest gotowy do naprawienia aplikacji Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>Ten folder możesz tylko odczytywać. Zmiany wprowadzone na tym komputerze nie będą wysyłane.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>Nie masz dostępu do tego folderu. Poproś administratora o uprawnienia.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>Nie znaleziono wpisów</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Trwa synchronizowanie plików. W tym czasie możesz dalej pracować.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Nie udało się zweryfikować certyfikatu serwera.\nKontynuuj tylko wtedy, gdy ufasz tej sieci.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Pliki pozostałe do synchronizacji: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Witamy w aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Ustaw datę końcową</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>Nie udało się usunąć zadania synchronizacji. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Kliknij ikonę, aby zobaczyć, które pliki są synchronizowane.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Twój folder synchronizacji</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Nie udało się zweryfikować certyfikatu serwera. Poproś administratora o zainstalowanie ważnego certyfikatu.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>Serwer został wymieniony. Powiąż ten komputer ponownie.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Wykonaj te czynności, aby powiązać ten komputer z serwerem.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Zaktualizowane pliki</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Kontynuuj mimo to</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Ikony na plikach lokalnych</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>Brak dostępnych czynności</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Synchronizacja zatrzymana</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Lokalny folder synchronizacji</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Wyłączone</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Serwer nadal indeksuje folder „%1”. Będzie można go synchronizować po zakończeniu indeksowania.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>Gdy plik zmieniono w dwóch miejscach</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>Folder „%1” nie jest pusty.\nCzy mimo to chcesz go użyć?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Zmień folder</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Synchronizuj folder domowy, używając zalecanych ustawień.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Wczytywanie folderów…</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>środa</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>Szyfrowanie SSL</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Wszystko gotowe do instalacji aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Gdy zechcesz zainstalować aplikację Lumivo Drive, uruchom instalator ponownie.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Twój folder domowy na serwerze jest teraz synchronizowany z tym komputerem.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Informacje o serwerze</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Wstrzymaj synchronizację</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>sobota</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>Limit miejsca tego folderu udostępnionego został wyczerpany. Usuń część plików, aby kontynuować synchronizację.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Twoje nowe zadanie synchronizacji</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Historia pobierania</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Pobieranie…</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>Nowy język zostanie użyty przy następnym uruchomieniu aplikacji Lumivo Drive.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Instalowanie aplikacji Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Pokazuj powiadomienia na pulpicie</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Szybka konfiguracja jest odpowiednia dla większości użytkowników. Wszystko możesz zmienić później.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Dysk serwera jest pełny.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Cofnij się w czasie</translation>
    </message>
</context>
</TS>
