<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
    <context>
        <name></name>
        <message id="VTULocalization.klAdmin">
            <source>Admin</source>
            <translation>Admin</translation>
        </message>
        <message id="VTULocalization.klAdminLock">
            <source>Admin Lock</source>
            <translation>Blokada administracji</translation>
        </message>
        <message id="VTULocalization.klAdminPasswordRequired">
            <source>Admin Password Required</source>
            <translation>Wymagane hasło administratora</translation>
        </message>
        <message id="VTULocalization.klAutoMount">
            <source>Auto Mount</source>
            <translation>Automontaż</translation>
        </message>
        <message id="VTULocalization.klBackup">
            <source>Backup</source>
            <translation>Kopia zapasowa</translation>
        </message>
        <message id="VTULocalization.klBackupDescription">
            <source>Select a directory where a backup of your tasks will be stored.</source>
            <translation>Wybierz folder, w którym zostanie zapisana kopia zapasowa zadań.</translation>
        </message>
        <message id="VTULocalization.klCancel">
            <source>Cancel</source>
            <translation>Anuluj</translation>
        </message>
        <message id="VTULocalization.klCheckandConnect">
            <source>Check and Connect</source>
            <translation>Sprawdź i połącz</translation>
        </message>
        <message id="VTULocalization.klCheckForUpdates">
            <source>Check For Updates</source>
            <translation>Sprawdź aktualizacje</translation>
        </message>
        <message id="VTULocalization.klClear">
            <source>Clear</source>
            <translation>Czyść</translation>
        </message>
        <message id="VTULocalization.klClearLog">
            <source>Clear Log</source>
            <translation>Wyczyść widok</translation>
        </message>
        <message id="VTULocalization.klClearProcessDateStamp">
            <source>Clear Process Date Stamp</source>
            <translation>Wyczyść datę przetwarzania</translation>
        </message>
        <message id="VTULocalization.klCouldNotMount">
            <source>Error Mounting</source>
            <translation>Błąd montowania</translation>
        </message>
        <message id="VTULocalization.klDeleteLog">
            <source>Delete Log History</source>
            <translation>Usuń dziennik</translation>
        </message>
        <message id="VTULocalization.klDeleteTaskConfirmation">
            <source>Are you sure you want to delete this task?</source>
            <translation>Czy na pewno usunąć to zadanie?</translation>
        </message>
        <message id="VTULocalization.klDisableTask">
            <source>Disable Task</source>
            <translation>Wyłącz zadanie</translation>
        </message>
        <message id="VTULocalization.klDuplicate">
            <source>Duplicate</source>
            <translation>Powiel</translation>
        </message>
        <message id="VTULocalization.klEdit">
            <source>Edit</source>
            <translation>Edytuj</translation>
        </message>
        <message id="VTULocalization.klEditTask">
            <source>Edit Task</source>
            <translation>Edycja zadania</translation>
        </message>
        <message id="VTULocalization.klEnteradminpassword">
            <source>Enter admin password</source>
            <translation>Hasło administratora</translation>
        </message>
        <message id="VTULocalization.klExporttotxt">
            <source>Export to txt</source>
            <translation>Eksport do txt</translation>
        </message>
        <message id="VTULocalization.klField">
            <source>Field</source>
            <translation>Pole</translation>
        </message>
        <message id="VTULocalization.klFiles">
            <source>Files</source>
            <translation>Pliki</translation>
        </message>
        <message id="VTULocalization.klIncorrectPassword">
            <source>Incorrect Administrator Password Entered</source>
            <translation>Wprowadzono nieprawidłowe hasło administratora</translation>
        </message>
        <message id="VTULocalization.klInputFolder">
            <source>Input Folder</source>
            <translation>Folder wejścia</translation>
        </message>
        <message id="VTULocalization.KLInputFolderURL">
            <source>Input Folder URL</source>
            <translation>URL folderu wejścia</translation>
        </message>
        <message id="VTULocalization.klInputLogin">
            <source>Input Login</source>
            <translation>Login wejścia</translation>
        </message>
        <message id="VTULocalization.klWarden">
            <source>Warden</source>
            <translation>Warden</translation>
        </message>
        <message id="VTULocalization.klInstrument">
            <source>Instrument</source>
            <translation>Przyrząd</translation>
        </message>
        <message id="VTULocalization.klLoad">
            <source>Load</source>
            <translation>Wczytaj</translation>
        </message>
        <message id="VTULocalization.klLoadConfiguration">
            <source>Load Configuration</source>
            <translation>Wczytaj konfigurację</translation>
        </message>
        <message id="VTULocalization.klLoadConfigurationDescription">
            <source>Select a folder containing a backup of uploader tasks to be restored.</source>
            <translation>Wybierz folder z kopią zapasową zadań, które mają zostać przywrócone.</translation>
        </message>
        <message id="VTULocalization.klLocktasklist">
            <source>Lock task list</source>
            <translation>Zablokuj listę zadań</translation>
        </message>
        <message id="VTULocalization.klNA">
            <source>n/a</source>
            <translation>brak</translation>
        </message>
        <message id="VTULocalization.klNew">
            <source>New</source>
            <translation>Nowe</translation>
        </message>
        <message id="VTULocalization.klNoTasksToSave">
            <source>There are no tasks avaible to backup</source>
            <translation>Brak zadań do zapisania w kopii zapasowej</translation>
        </message>
        <message id="VTULocalization.klOK">
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message id="VTULocalization.klOutputLogin">
            <source>Output Login</source>
            <translation>Login wyjścia</translation>
        </message>
        <message id="VTULocalization.klOutputPassword">
            <source>Output Password</source>
            <translation>Hasło wyjścia</translation>
        </message>
        <message id="VTULocalization.klPassword">
            <source>Password</source>
            <translation>Hasło</translation>
        </message>
        <message id="VTULocalization.KLPrint">
            <source>Print</source>
            <translation>Druk</translation>
        </message>
        <message id="VTULocalization.klProxy">
            <source>Proxy</source>
            <translation>Proxy</translation>
        </message>
        <message id="VTULocalization.klProxyAddress">
            <source>Proxy Address</source>
            <translation>Adres proxy</translation>
        </message>
        <message id="VTULocalization.klProxyPort">
            <source>Proxy Port</source>
            <translation>Port proxy</translation>
        </message>
        <message id="VTULocalization.klReenteradminpassword">
            <source>Re-enter admin password</source>
            <translation>Powtórz hasło</translation>
        </message>
        <message id="VTULocalization.klRefreshLog">
            <source>Refresh Log</source>
            <translation>Odśwież</translation>
        </message>
        <message id="VTULocalization.klRemove">
            <source>Remove</source>
            <translation>Usuń</translation>
        </message>
        <message id="VTULocalization.klReplaceFileName">
            <source>Replace Name</source>
            <translation>Zastąp nazwę</translation>
        </message>
        <message id="VTULocalization.klSave">
            <source>Save</source>
            <translation>Zapisz</translation>
        </message>
        <message id="VTULocalization.klSaveConfiguration">
            <source>Save Configuration</source>
            <translation>Zapisz konfigurację</translation>
        </message>
        <message id="VTULocalization.klSelectBackupDirectory">
            <source>Backup Directory</source>
            <translation>Folder kopii zapasowej</translation>
        </message>
        <message id="VTULocalization.KLSelectInstrument">
            <source>Select Instrument</source>
            <translation>Wybierz przyrząd</translation>
        </message>
        <message id="VTULocalization.klSelectPress">
            <source>Select Press</source>
            <translation>Wybierz maszynę drukującą</translation>
        </message>
        <message id="VTULocalization.klSelectTarget">
            <source>Select Target</source>
            <translation>Wybierz wzorzec</translation>
        </message>
        <message id="VTULocalization.klSEt">
            <source>Set</source>
            <translation>Ustaw</translation>
        </message>
        <message id="VTULocalization.klShowLog">
            <source>Show Log...</source>
            <translation>Dziennik...</translation>
        </message>
        <message id="VTULocalization.klSOAPConnection">
            <source>SOAP Connection</source>
            <translation>Połączenie SOAP</translation>
        </message>
        <message id="VTULocalization.klSOAPLogin">
            <source>SOAP Login</source>
            <translation>Login SOAP</translation>
        </message>
        <message id="VTULocalization.klSoapPassword">
            <source>SOAP Password</source>
            <translation>Hasło SOAP</translation>
        </message>
        <message id="VTULocalization.klSoftwareUpToDate">
            <source>Your software is up to date</source>
            <translation>Oprogramowanie jest aktualne</translation>
        </message>
        <message id="VTULocalization.klStatus">
            <source>Status</source>
            <translation>Stan</translation>
        </message>
        <message id="VTULocalization.klSureYouWantToQuit">
            <source>Are you sure you want to quit?

Uploads will stop processing when the application quit.</source>
            <translation>Czy na pewno zakończyć program?

Po jego zamknięciu pliki nie będą wysyłane.</translation>
        </message>
        <message id="VTULocalization.klTaskCurrentlyProcessing">
            <source>This task is currently processing. Please try again in a moment</source>
            <translation>To zadanie jest teraz przetwarzane. Spróbuj ponownie za chwilę.</translation>
        </message>
        <message id="VTULocalization.klTaskDescription">
            <source>Task Description</source>
            <translation>Opis zadania</translation>
        </message>
        <message id="VTULocalization.klTaskName">
            <source>Task Name</source>
            <translation>Nazwa zadania</translation>
        </message>
        <message id="VTULocalization.kltest">
            <source>Test</source>
            <translation>Test</translation>
        </message>
        <message id="VTULocalization.klValue">
            <source>Value</source>
            <translation>Wartość</translation>
        </message>
        <message id="VTULocalization.klVerifyDateStamp">
            <source>Are you sure you want to clear the last processed date?

This will force all files in the input folder to be processed regardless of age or if they have previously been processed.</source>
            <translation>Czy na pewno wyczyścić datę ostatniego przetwarzania?

Zostaną wtedy przetworzone wszystkie pliki z folderu wejścia, niezależnie od ich daty i od tego, czy były już przetwarzane.</translation>
        </message>
        <message id="VTULocalization.klStripSending">
            <source>Sending $1: $2 ($3 %)</source>
            <translation>$1: wysyłanie $2 ($3 %)</translation>
        </message>
        <message id="VTULocalization.klStripAllWell">
            <source>All is well since $1</source>
            <translation>Wszystko w porządku od: $1</translation>
        </message>
        <message id="VTULocalization.klStripConnecting">
            <source>Connecting to the service...</source>
            <translation>Łączenie z usługą...</translation>
        </message>
        <message id="VTULocalization.klStripChecking">
            <source>Checking the input folders...</source>
            <translation>Sprawdzanie folderów wejścia...</translation>
        </message>
        <message id="VTULocalization.klUploadingHeld">
            <source>Uploading is held until the task editor or the Admin window is closed and what was changed there is in force.</source>
            <translation>Wysyłanie jest wstrzymane do zamknięcia edytora zadań lub okna Admin i wprowadzenia zmian.</translation>
        </message>
        <message id="VTULocalization.klStripNoLogin">
            <source>No login is stored, so nothing can be sent. Enter the service login under Admin.</source>
            <translation>Nie zapisano loginu, więc nic nie może zostać wysłane. Wpisz login usługi w oknie Admin.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFileSkipped">
            <source>Task file &quot;$1&quot; was skipped: $2. The other tasks run. Repair or remove the file and start the program again.</source>
            <translation>Pominięto plik zadania „$1”: $2. Pozostałe zadania działają. Napraw lub usuń ten plik i uruchom program ponownie.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFolderUnreadable">
            <source>The tasks can't be read, so nothing is sent: $2. Check the task folder and start the program again.</source>
            <translation>Nie można odczytać zadań, więc nic nie jest wysyłane: $2. Sprawdź folder zadań i uruchom program ponownie.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesSetAside">
            <source>The settings file was damaged and is kept as &quot;$1&quot;. Enter the service login again under Admin.</source>
            <translation>Plik ustawień był uszkodzony i został zachowany jako „$1”. Wpisz ponownie login usługi w oknie Admin.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesNotSaved">
            <source>The settings can't be saved: $2. Check the settings folder, its permissions and the space on its disk.</source>
            <translation>Nie można zapisać ustawień: $2. Sprawdź folder ustawień, jego uprawnienia i wolne miejsce na dysku.</translation>
        </message>
        <message id="VTULocalization.klStripLogSetAside">
            <source>The log was damaged and is kept as &quot;$1&quot;. A new log has begun; uploads are not affected.</source>
            <translation>Dziennik był uszkodzony i został zachowany jako „$1”. Rozpoczęto nowy; wysyłanie działa bez zmian.</translation>
        </message>
        <message id="VTULocalization.klStripLogUnavailable">
            <source>Uploads go on, but nothing is logged: $2. When this is repaired, start the program again.</source>
            <translation>Wysyłanie trwa, ale nic nie jest zapisywane w dzienniku: $2. Po usunięciu przyczyny uruchom program ponownie.</translation>
        </message>
        <message id="VTULocalization.klStripLogRowLost">
            <source>Uploads go on, but an entry could not be logged: $2. Check the space on the disk.</source>
            <translation>Wysyłanie trwa, ale nie udało się zapisać wpisu w dzienniku: $2. Sprawdź wolne miejsce na dysku.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionInvalid">
            <source>Task &quot;$1&quot; excludes no files, because its exclusion pattern is not valid: $2. Correct the pattern.</source>
            <translation>Zadanie „$1” nie wyklucza żadnych plików, bo jego wzór wykluczeń jest nieprawidłowy: $2. Popraw wzór.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionTooCostly">
            <source>Task &quot;$1&quot; keeps back &quot;$2&quot;, because its exclusion pattern takes too long on that name. Simplify the pattern.</source>
            <translation>Zadanie „$1” wstrzymuje „$2”, bo sprawdzanie tej nazwy wzorem wykluczeń trwa zbyt długo. Uprość wzór.</translation>
        </message>
        <message id="VTULocalization.klStripInputFolderUnreadable">
            <source>Task &quot;$1&quot; can't read its input folder: $2. Check that the folder is there and connected.</source>
            <translation>Zadanie „$1” nie może odczytać folderu wejścia: $2. Sprawdź, czy folder istnieje i jest podłączony.</translation>
        </message>
        <message id="VTULocalization.klStripFolderSilent">
            <source>The folders of task &quot;$1&quot; do not answer. The other tasks run, and this one goes on by itself when its server is back.</source>
            <translation>Foldery zadania „$1” nie odpowiadają. Pozostałe zadania działają, a to ruszy samo, gdy jego serwer wróci.</translation>
        </message>
        <message id="VTULocalization.klStripNothingMounted">
            <source>Task &quot;$1&quot; waits for the share at $2, where nothing is mounted. To use the folder as it is, set it anew in the task.</source>
            <translation>Zadanie „$1” czeka na udział w $2, gdzie nic nie jest zamontowane. Aby użyć folderu takiego, jaki jest, ustaw go w zadaniu ponownie.</translation>
        </message>
        <message id="VTULocalization.klStripShareNotMounted">
            <source>The share $1 could not be mounted: $2. It is tried again after 10 minutes.</source>
            <translation>Nie można było zamontować udziału $1: $2. Kolejna próba nastąpi po 10 minutach.</translation>
        </message>
        <message id="VTULocalization.klStripCopyFailed">
            <source>Task &quot;$1&quot; could not save a copy: $2. The input file was not deleted. Check the output folder.</source>
            <translation>Zadanie „$1” nie mogło zapisać kopii: $2. Plik wejściowy nie został usunięty. Sprawdź folder wyjścia.</translation>
        </message>
        <message id="VTULocalization.klStripDeleteFailed">
            <source>Task &quot;$1&quot; sent a file but could not delete it: $2. Check the permissions of the input folder and delete the file yourself.</source>
            <translation>Zadanie „$1” wysłało plik, ale nie mogło go usunąć: $2. Sprawdź uprawnienia do folderu wejścia i usuń plik samodzielnie.</translation>
        </message>
        <message id="VTULocalization.klStripUploadFailed">
            <source>Task &quot;$1&quot; could not send a file: $2. When this is repaired, save the file into the input folder again.</source>
            <translation>Zadanie „$1” nie mogło wysłać pliku: $2. Po usunięciu przyczyny zapisz plik ponownie w folderze wejścia.</translation>
        </message>
        <message id="VTULocalization.klStripFileWaits">
            <source>Task &quot;$1&quot; can't read a file at the moment: $2. It is tried again by itself.</source>
            <translation>Zadanie „$1” nie może w tej chwili odczytać pliku: $2. Próba zostanie ponowiona automatycznie.</translation>
        </message>
        <message id="VTULocalization.klStripRunFailed">
            <source>Task &quot;$1&quot; was stopped by a fault: $2. It is tried again by itself; if this line stays, start the program again.</source>
            <translation>Zadanie „$1” zatrzymał błąd: $2. Próba zostanie ponowiona automatycznie; jeśli ten wiersz nie zniknie, uruchom program ponownie.</translation>
        </message>
        <message id="VTULocalization.klStripServiceUnreachable">
            <source>The service can't be reached: $2. It is tried again by itself; check the network and the proxy settings.</source>
            <translation>Usługa jest nieosiągalna: $2. Próby są ponawiane automatycznie; sprawdź sieć i ustawienia proxy.</translation>
        </message>
        <message id="VTULocalization.klStripServiceRefuses">
            <source>The service answers with an error: $2. It is asked again by itself; check the login under Admin.</source>
            <translation>Usługa odpowiada błędem: $2. Próby są ponawiane automatycznie; sprawdź login w oknie Admin.</translation>
        </message>
        <message id="VTULocalization.klMountNoSession">
            <source>there is no desktop session with a mount service</source>
            <translation>nie ma sesji pulpitu z usługą montowania</translation>
        </message>
        <message id="VTULocalization.klMountLoginRefused">
            <source>the server refuses the login</source>
            <translation>serwer odrzuca dane logowania</translation>
        </message>
        <message id="VTULocalization.klMountQuestion">
            <source>the server's key or certificate is not trusted; open it once in the file manager, or install its certificate</source>
            <translation>klucz lub certyfikat serwera nie jest zaufany; otwórz udział raz w menedżerze plików albo zainstaluj jego certyfikat</translation>
        </message>
        <message id="VTULocalization.klMountUnreachable">
            <source>the server can't be reached</source>
            <translation>serwer jest nieosiągalny</translation>
        </message>
        <message id="VTULocalization.klMountNotThere">
            <source>the server has no such share or folder</source>
            <translation>serwer nie ma takiego udziału ani folderu</translation>
        </message>
        <message id="VTULocalization.klMountTimedOut">
            <source>the server does not answer</source>
            <translation>serwer nie odpowiada</translation>
        </message>
        <message id="VTULocalization.klMountNotSupported">
            <source>no installed program mounts that kind of address</source>
            <translation>żaden zainstalowany program nie montuje adresów tego rodzaju</translation>
        </message>
        <message id="VTULocalization.klMountNoFolder">
            <source>it is mounted, but not shown as a folder; name a share in the address, or install gvfs-fuse and log in again</source>
            <translation>jest zamontowany, ale nie pojawia się jako folder; podaj udział w adresie albo zainstaluj gvfs-fuse i zaloguj się ponownie</translation>
        </message>
        <message id="VTULocalization.klMountServiceEnded">
            <source>the mount service broke down over it; check the address and the login</source>
            <translation>usługa montowania uległa przy tym awarii; sprawdź adres i dane logowania</translation>
        </message>
        <message id="VTULocalization.klMountFailed">
            <source>error $1</source>
            <translation>błąd $1</translation>
        </message>
        <message id="VTULocalization.klPreferencesSetAside">
            <source>The settings file was damaged and could not be read. It is kept as &quot;$1&quot;.

Vantry Uploader starts with empty settings: please enter the login, the proxy and the administrator password again under Admin. Your tasks are still there, but the record of what they have already processed is lost: files in the input folders may be sent once more.</source>
            <translation>Plik ustawień był uszkodzony i nie dało się go odczytać. Został zachowany jako „$1”.

Vantry Uploader uruchamia się z pustymi ustawieniami: wpisz ponownie login, proxy i hasło administratora w oknie Admin. Zadania pozostały, ale zapis tego, co już przetworzyły, przepadł: pliki z folderów wejścia mogą zostać wysłane jeszcze raz.</translation>
        </message>
        <message id="VTULocalization.klStartFailed">
            <source>Vantry Uploader could not start and will close: $1

No files are being sent. Please start it again; if this message comes back, show it to your administrator.</source>
            <translation>Vantry Uploader nie mógł się uruchomić i zostanie zamknięty: $1

Pliki nie są wysyłane. Uruchom program ponownie; jeśli ten komunikat znów się pojawi, pokaż go administratorowi.</translation>
        </message>
        <message id="VTULocalization.klAlreadyRunning">
            <source>Vantry Uploader is already running. Please use its window.</source>
            <translation>Vantry Uploader jest już uruchomiony. Użyj jego okna.</translation>
        </message>
        <message id="VTULocalization.klWindowNotInBuild">
            <source>$1 is not part of this build yet.</source>
            <translation>$1: jeszcze niedostępne w tej wersji.</translation>
        </message>
        <message id="VTULocalization.klCopyFailedNote">
            <source> Copy not saved: $1</source>
            <translation> Nie zapisano kopii: $1</translation>
        </message>
        <message id="VTULocalization.klDeleteFailedNote">
            <source> Input file not deleted: $1</source>
            <translation> Nie usunięto pliku wejściowego: $1</translation>
        </message>
        <message id="VTULocalization.klRunFailedNote">
            <source>Processing stopped: $1</source>
            <translation>Przetwarzanie zatrzymane: $1</translation>
        </message>
        <message id="VTULocalization.klSampleMatching">
            <source>$1 of $2 files match: $3</source>
            <translation>Pasujące pliki $1 z $2: $3</translation>
        </message>
        <message id="VTULocalization.klSampleOneOf">
            <source>1 of $1 files matches: $2</source>
            <translation>Pasuje 1 plik z $1: $2</translation>
        </message>
        <message id="VTULocalization.klSampleNone">
            <source>None of the $1 files matches</source>
            <translation>Żaden z plików nie pasuje (liczba plików: $1)</translation>
        </message>
        <message id="VTULocalization.klSampleOneMatches">
            <source>The only file matches: $1</source>
            <translation>Jedyny plik pasuje: $1</translation>
        </message>
        <message id="VTULocalization.klSampleOneFails">
            <source>The only file doesn't match</source>
            <translation>Jedyny plik nie pasuje</translation>
        </message>
        <message id="VTULocalization.klSampleNoFiles">
            <source>There are no files in the input folder</source>
            <translation>W folderze wejścia nie ma plików</translation>
        </message>
        <message id="VTULocalization.klSampleLooking">
            <source>Looking at the input folder...</source>
            <translation>Przeglądanie folderu wejścia...</translation>
        </message>
        <message id="VTULocalization.klSampleSlow">
            <source>The input folder is slow to answer, so there is no sample of its files</source>
            <translation>Folder wejścia odpowiada powoli, dlatego brak podglądu jego plików</translation>
        </message>
        <message id="VTULocalization.klSampleFolderGone">
            <source>The input folder is not there</source>
            <translation>Folder wejścia nie istnieje</translation>
        </message>
        <message id="VTULocalization.klSampleFailed">
            <source>The input folder can't be read: $1</source>
            <translation>Nie można odczytać folderu wejścia: $1</translation>
        </message>
        <message id="VTULocalization.klSampleKeptOut">
            <source>Kept out:</source>
            <translation>Pominięte:</translation>
        </message>
        <message id="VTULocalization.klSampleAndMore">
            <source>and $1 more</source>
            <translation>i jeszcze $1</translation>
        </message>
        <message id="VTULocalization.klSampleName">
            <source>What the rules select</source>
            <translation>Co wybierają reguły</translation>
        </message>
        <message id="VTULocalization.klWhyHidden">
            <source>hidden</source>
            <translation>ukryty</translation>
        </message>
        <message id="VTULocalization.klWhyNotAFile">
            <source>not a plain file</source>
            <translation>nie jest zwykłym plikiem</translation>
        </message>
        <message id="VTULocalization.klWhyEnding">
            <source>another ending</source>
            <translation>inne rozszerzenie</translation>
        </message>
        <message id="VTULocalization.klWhyPattern">
            <source>doesn't fit the name pattern</source>
            <translation>nie pasuje do wzoru nazwy</translation>
        </message>
        <message id="VTULocalization.klWhyExcluded">
            <source>excluded</source>
            <translation>wykluczony</translation>
        </message>
        <message id="VTULocalization.klWhyExclusionTooCostly">
            <source>the exclusion pattern takes too long on it</source>
            <translation>sprawdzanie wzorem wykluczeń trwa zbyt długo</translation>
        </message>
        <message id="VTULocalization.klWhyEmpty">
            <source>empty</source>
            <translation>pusty</translation>
        </message>
        <message id="VTULocalization.klWhyOlder">
            <source>not changed since the last processed date</source>
            <translation>bez zmian od ostatniego przetwarzania</translation>
        </message>
        <message id="VTULocalization.klWhyUnreadable">
            <source>can't be read</source>
            <translation>nie można odczytać</translation>
        </message>
        <message id="VTULocalization.klWhyStillMoving">
            <source>still being written</source>
            <translation>jeszcze zapisywany</translation>
        </message>
        <message id="VTULocalization.klWhyDealtWith">
            <source>already processed</source>
            <translation>już przetworzony</translation>
        </message>
        <message id="VTULocalization.klListFetching">
            <source>The list is being fetched from the service...</source>
            <translation>Pobieranie listy z usługi...</translation>
        </message>
        <message id="VTULocalization.klListFailed">
            <source>The list is empty because it could not be fetched from the service: $1</source>
            <translation>Lista jest pusta, bo nie udało się jej pobrać z usługi: $1</translation>
        </message>
        <message id="VTULocalization.klListRefused">
            <source>The list is empty because the service did not give it. Check the login under Admin.</source>
            <translation>Lista jest pusta, bo usługa jej nie udostępniła. Sprawdź login w oknie Admin.</translation>
        </message>
        <message id="VTULocalization.klListNoLogin">
            <source>The list is empty because no login is stored. Enter the service login under Admin.</source>
            <translation>Lista jest pusta, bo nie zapisano loginu. Wpisz login usługi w oknie Admin.</translation>
        </message>
        <message id="VTULocalization.klListNothingThere">
            <source>The service has nothing to choose from for this account.</source>
            <translation>Usługa nie ma nic do wyboru dla tego konta.</translation>
        </message>
        <message id="VTULocalization.klExclusionInvalid">
            <source>The file name exclusion is not a valid pattern: $1, at character $2</source>
            <translation>Wykluczenie nazw plików nie jest prawidłowym wzorem: $1, przy znaku $2</translation>
        </message>
        <message id="VTULocalization.klTaskNotSaved">
            <source>There was an error saving this task</source>
            <translation>Wystąpił błąd podczas zapisywania tego zadania</translation>
        </message>
        <message id="VTULocalization.klOldTaskNotRemoved">
            <source>The task was saved, but the file of its earlier settings could not be removed, so these will be back as a second task at the next start: $1</source>
            <translation>Zadanie zapisano, ale nie udało się usunąć pliku z jego poprzednimi ustawieniami, więc przy następnym uruchomieniu wrócą one jako drugie zadanie: $1</translation>
        </message>
        <message id="VTULocalization.klEditorFailed">
            <source>The task editor could not be opened: $1</source>
            <translation>Nie można otworzyć edytora zadań: $1</translation>
        </message>
        <message id="VTULocalization.klManualAddress">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>Nie można otworzyć przeglądarki. Podręcznik znajduje się pod adresem $1</translation>
        </message>
        <message id="VTULocalization.klSameFolders">
            <source>The input and output folder cannot be the same</source>
            <translation>Folder wejścia i folder wyjścia nie mogą być tym samym folderem</translation>
        </message>
        <message id="VTULocalization.klPleaseEnterAutoMountDetails">
            <source>Please enter the URL, the login and the password of the share first.</source>
            <translation>Najpierw podaj adres URL, login i hasło udziału.</translation>
        </message>
        <message id="VTULocalization.klMountReason">
            <source>$1.</source>
            <translation>$1.</translation>
        </message>
        <message id="VTULocalization.klStop">
            <source>Stop</source>
            <translation>Stop</translation>
        </message>
        <message id="VTULocalization.klStopMountTest">
            <source>Stop the mount test</source>
            <translation>Zatrzymaj test montowania</translation>
        </message>
        <message id="VTULocalization.klSelect">
            <source>Select</source>
            <translation>Wybierz</translation>
        </message>
        <message id="VTULocalization.klInputFolderPrompt">
            <source>Select the input folder for this task.
This is the folder that will be watched for new files.</source>
            <translation>Wybierz folder wejścia dla tego zadania.
W tym folderze będą wykrywane nowe pliki.</translation>
        </message>
        <message id="VTULocalization.klOutputFolderPrompt">
            <source>Select the output folder for this task.
This is the folder where processed files will be stored.</source>
            <translation>Wybierz folder wyjścia dla tego zadania.
W tym folderze będą zapisywane przetworzone pliki.</translation>
        </message>
        <message id="VTULocalization.klOutputFolder">
            <source>Output Folder</source>
            <translation>Folder wyjścia</translation>
        </message>
        <message id="VTULocalization.klOutputFolderURL">
            <source>Output Folder URL</source>
            <translation>URL folderu wyjścia</translation>
        </message>
        <message id="VTULocalization.klInputPassword">
            <source>Input Password</source>
            <translation>Hasło wejścia</translation>
        </message>
        <message id="VTULocalization.klRegExCue">
            <source>RegEx</source>
            <translation>RegEx</translation>
        </message>
        <message id="VTULocalization.klFileRecognitionHelp">
            <source>Help on file name recognition</source>
            <translation>Pomoc: rozpoznawanie nazw plików</translation>
        </message>
        <message id="VTULocalization.klRequired">
            <source>Required</source>
            <translation>Wymagane</translation>
        </message>
        <message id="VTULocalization.klSetInputFolder">
            <source>Set the input folder</source>
            <translation>Ustaw folder wejścia</translation>
        </message>
        <message id="VTULocalization.klSetOutputFolder">
            <source>Set the output folder</source>
            <translation>Ustaw folder wyjścia</translation>
        </message>
        <message id="VTULocalization.klClearInputFolder">
            <source>Clear the input folder</source>
            <translation>Wyczyść wybór folderu wejścia</translation>
        </message>
        <message id="VTULocalization.klClearOutputFolder">
            <source>Clear the output folder</source>
            <translation>Wyczyść wybór folderu wyjścia</translation>
        </message>
        <message id="VTULocalization.klAutoMountInput">
            <source>Mount the input folder automatically</source>
            <translation>Montuj folder wejścia automatycznie</translation>
        </message>
        <message id="VTULocalization.klAutoMountOutput">
            <source>Mount the output folder automatically</source>
            <translation>Montuj folder wyjścia automatycznie</translation>
        </message>
        <message id="VTULocalization.klTestMountInput">
            <source>Test mounting the input folder</source>
            <translation>Testuj montowanie folderu wejścia</translation>
        </message>
        <message id="VTULocalization.klTestMountOutput">
            <source>Test mounting the output folder</source>
            <translation>Testuj montowanie folderu wyjścia</translation>
        </message>
        <message id="VTULocalization.klWhyNotSent">
            <source>Why was this file not sent?</source>
            <translation>Dlaczego ten plik nie został wysłany?</translation>
        </message>
        <message id="VTULocalization.klWhyMenu">
            <source>Why was a file not sent?...</source>
            <translation>Dlaczego plik nie został wysłany?...</translation>
        </message>
        <message id="VTULocalization.klWhyChoosePrompt">
            <source>Select the file that was not sent by the task &quot;$1&quot;.</source>
            <translation>Wybierz plik, którego zadanie „$1” nie wysłało.</translation>
        </message>
        <message id="VTULocalization.klWhyHead">
            <source>&quot;$1&quot; and the task &quot;$2&quot;</source>
            <translation>„$1” i zadanie „$2”</translation>
        </message>
        <message id="VTULocalization.klWhyAnswers">
            <source>Answers</source>
            <translation>Odpowiedzi</translation>
        </message>
        <message id="VTULocalization.klWhyLooking">
            <source>Looking at the file...</source>
            <translation>Sprawdzanie pliku...</translation>
        </message>
        <message id="VTULocalization.klWhySlow">
            <source>The file's folder does not answer. Check that the folder is connected.</source>
            <translation>Folder pliku nie odpowiada. Sprawdź, czy folder jest podłączony.</translation>
        </message>
        <message id="VTULocalization.klWhyFailed">
            <source>The file's folder can't be read: $1</source>
            <translation>Nie można odczytać folderu pliku: $1</translation>
        </message>
        <message id="VTULocalization.klWhyOneFile">
            <source>Please drop one file at a time.</source>
            <translation>Upuszczaj pliki pojedynczo.</translation>
        </message>
        <message id="VTULocalization.klWhyNotLocal">
            <source>A file at a network address can't be looked at. Drop it from the folder where the share is mounted, or right-click the task and choose the file there.</source>
            <translation>Nie można sprawdzić pliku pod adresem sieciowym. Upuść go z folderu, w którym udział jest zamontowany, albo kliknij zadanie prawym przyciskiem myszy i tam wybierz plik.</translation>
        </message>
        <message id="VTULocalization.klWhyClose">
            <source>Close</source>
            <translation>Zamknij</translation>
        </message>
        <message id="VTULocalization.klWhyYes">
            <source>All right</source>
            <translation>W porządku</translation>
        </message>
        <message id="VTULocalization.klWhyNo">
            <source>Keeps it back</source>
            <translation>Wstrzymuje go</translation>
        </message>
        <message id="VTULocalization.klWhyDue">
            <source>Nothing keeps it back: it goes out with the next run.</source>
            <translation>Nic go nie wstrzymuje: zostanie wysłany przy następnym przebiegu.</translation>
        </message>
        <message id="VTULocalization.klWhyNotDue">
            <source>It is not sent, for this reason:</source>
            <translation>Nie jest wysyłany z tego powodu:</translation>
        </message>
        <message id="VTULocalization.klWhyNotDueSeveral">
            <source>It is not sent, for these $1 reasons:</source>
            <translation>Nie jest wysyłany z następujących powodów ($1):</translation>
        </message>
        <message id="VTULocalization.klWhyReported">
            <source>The task reports: $1</source>
            <translation>Zadanie zgłasza: $1</translation>
        </message>
        <message id="VTULocalization.klYesPlace">
            <source>It lies in the task's input folder.</source>
            <translation>Znajduje się w folderze wejścia zadania.</translation>
        </message>
        <message id="VTULocalization.klNoPlace">
            <source>It is not in the task's input folder, which is $1.</source>
            <translation>Nie znajduje się w folderze wejścia zadania, którym jest $1.</translation>
        </message>
        <message id="VTULocalization.klYesEnabled">
            <source>The task is switched on.</source>
            <translation>Zadanie jest włączone.</translation>
        </message>
        <message id="VTULocalization.klNoEnabled">
            <source>The task is disabled. Edit it and clear &quot;Disable Task&quot;.</source>
            <translation>Zadanie jest wyłączone. Otwórz jego edycję i usuń zaznaczenie „Wyłącz zadanie”.</translation>
        </message>
        <message id="VTULocalization.klNoFolders">
            <source>The task can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>Zadanie nie może użyć swoich folderów. Sprawdź, czy foldery wejścia i wyjścia istnieją, są podłączone i można w nich zapisywać.</translation>
        </message>
        <message id="VTULocalization.klYesHidden">
            <source>It is not hidden.</source>
            <translation>Nie jest ukryty.</translation>
        </message>
        <message id="VTULocalization.klNoHidden">
            <source>It is hidden, because its name begins with a dot.</source>
            <translation>Jest ukryty, bo jego nazwa zaczyna się od kropki.</translation>
        </message>
        <message id="VTULocalization.klYesAFile">
            <source>It is a plain file.</source>
            <translation>Jest zwykłym plikiem.</translation>
        </message>
        <message id="VTULocalization.klNoAFile">
            <source>It is not a plain file, or it is no longer there.</source>
            <translation>Nie jest zwykłym plikiem albo już nie istnieje.</translation>
        </message>
        <message id="VTULocalization.klYesEnding">
            <source>Its name ends in &quot;$1&quot;.</source>
            <translation>Jego nazwa kończy się na „$1”.</translation>
        </message>
        <message id="VTULocalization.klNoEnding">
            <source>Its name does not end in &quot;$1&quot;.</source>
            <translation>Jego nazwa nie kończy się na „$1”.</translation>
        </message>
        <message id="VTULocalization.klYesPattern">
            <source>Its name fits the task's name pattern &quot;$1&quot;.</source>
            <translation>Jego nazwa pasuje do wzoru nazwy „$1” w zadaniu.</translation>
        </message>
        <message id="VTULocalization.klNoPattern">
            <source>Its name does not fit the task's name pattern &quot;$1&quot;.</source>
            <translation>Jego nazwa nie pasuje do wzoru nazwy „$1” w zadaniu.</translation>
        </message>
        <message id="VTULocalization.klYesNoPattern">
            <source>The task takes every name with that ending.</source>
            <translation>Zadanie przyjmuje każdą nazwę z tym rozszerzeniem.</translation>
        </message>
        <message id="VTULocalization.klNoNoPattern">
            <source>The ending of its name is not exactly &quot;$1&quot;.</source>
            <translation>Rozszerzenie jego nazwy nie jest dokładnie takie: „$1”.</translation>
        </message>
        <message id="VTULocalization.klYesExcluded">
            <source>The exclusion pattern &quot;$1&quot; does not match its name.</source>
            <translation>Wzór wykluczeń „$1” nie pasuje do jego nazwy.</translation>
        </message>
        <message id="VTULocalization.klYesNoExclusion">
            <source>The task excludes no names.</source>
            <translation>Zadanie nie wyklucza żadnych nazw.</translation>
        </message>
        <message id="VTULocalization.klNoExcluded">
            <source>The exclusion pattern &quot;$1&quot; matches its name.</source>
            <translation>Wzór wykluczeń „$1” pasuje do jego nazwy.</translation>
        </message>
        <message id="VTULocalization.klNoExclusionTooCostly">
            <source>The exclusion pattern &quot;$1&quot; takes too long on its name, so it is kept back. Simplify the pattern.</source>
            <translation>Sprawdzanie jego nazwy wzorem wykluczeń „$1” trwa zbyt długo, dlatego jest wstrzymany. Uprość wzór.</translation>
        </message>
        <message id="VTULocalization.klYesEmpty">
            <source>It is not empty.</source>
            <translation>Nie jest pusty.</translation>
        </message>
        <message id="VTULocalization.klNoEmpty">
            <source>It is empty. It is sent when it has content.</source>
            <translation>Jest pusty. Zostanie wysłany, gdy będzie miał zawartość.</translation>
        </message>
        <message id="VTULocalization.klYesReadable">
            <source>It can be read.</source>
            <translation>Można go odczytać.</translation>
        </message>
        <message id="VTULocalization.klNoReadable">
            <source>It can't be read. Check its permissions.</source>
            <translation>Nie można go odczytać. Sprawdź jego uprawnienia.</translation>
        </message>
        <message id="VTULocalization.klYesNewer">
            <source>It was changed at $1, and the task's last batch ended at $2.</source>
            <translation>Zmieniono go $1, a ostatnia partia zadania zakończyła się $2.</translation>
        </message>
        <message id="VTULocalization.klYesNeverProcessed">
            <source>It was changed at $1, and the task has no last processed date.</source>
            <translation>Zmieniono go $1, a zadanie nie ma jeszcze daty przetwarzania.</translation>
        </message>
        <message id="VTULocalization.klNoOlder">
            <source>It was last changed at $1, $3 before the task's last batch ended at $2. Save it anew, or edit the task and press &quot;Clear Process Date Stamp&quot; to send all files again.</source>
            <translation>Ostatnio zmieniono go $1, czyli $3 przed końcem ostatniej partii zadania, $2. Zapisz go ponownie albo otwórz edycję zadania i naciśnij „Wyczyść datę przetwarzania”, aby wysłać wszystkie pliki jeszcze raz.</translation>
        </message>
        <message id="VTULocalization.klYesDealtWith">
            <source>This version of it has not been processed yet.</source>
            <translation>Ta wersja pliku nie była jeszcze przetwarzana.</translation>
        </message>
        <message id="VTULocalization.klNoDealtWith">
            <source>This version of it, changed at $1, was processed already. The log tells how that ended.</source>
            <translation>Ta wersja pliku, zmieniona $1, została już przetworzona. Wynik jest w dzienniku.</translation>
        </message>
        <message id="VTULocalization.klYesAtRest">
            <source>It is at rest.</source>
            <translation>Nie jest już zapisywany.</translation>
        </message>
        <message id="VTULocalization.klNoAtRest">
            <source>It is still being written, or changed a moment ago. It is sent when it has been at rest for two seconds.</source>
            <translation>Jest jeszcze zapisywany albo został przed chwilą zmieniony. Zostanie wysłany po dwóch sekundach bez zmian.</translation>
        </message>
        <message id="VTULocalization.klFolderSilent">
            <source>&quot;$1&quot; does not answer yet. You can wait, choose another folder, or cancel.</source>
            <translation>„$1” jeszcze nie odpowiada. Można poczekać, wybrać inny folder lub anulować.</translation>
        </message>
        <message id="VTULocalization.klSpanSeconds">
            <source>$1 s</source>
            <translation>$1 s</translation>
        </message>
        <message id="VTULocalization.klSpanMinutes">
            <source>$1 min</source>
            <translation>$1 min</translation>
        </message>
        <message id="VTULocalization.klSpanHours">
            <source>$1 h</source>
            <translation>$1 godz.</translation>
        </message>
        <message id="VTULocalization.klSpanDays">
            <source>$1 days</source>
            <translation>$1 dni</translation>
        </message>
        <message id="VTULocalization.klAutoRefresh">
            <source>Auto Refresh</source>
            <translation>Odświeżanie auto</translation>
        </message>
        <message id="VTULocalization.klFailuresOnly">
            <source>Failures only</source>
            <translation>Tylko błędy</translation>
        </message>
        <message id="VTULocalization.klFind">
            <source>Find</source>
            <translation>Szukaj</translation>
        </message>
        <message id="VTULocalization.klFindTip">
            <source>Shows the entries that hold this text in any column</source>
            <translation>Pokazuje wpisy, które zawierają ten tekst w dowolnej kolumnie</translation>
        </message>
        <message id="VTULocalization.klFailuresOnlyTip">
            <source>Shows the entries of files that were not sent, or not kept whole</source>
            <translation>Pokazuje wpisy plików, których nie wysłano lub nie zapisano w całości</translation>
        </message>
        <message id="VTULocalization.klLogRows">
            <source>Log entries</source>
            <translation>Wpisy dziennika</translation>
        </message>
        <message id="VTULocalization.klLogDetails">
            <source>Details of the selected entry</source>
            <translation>Szczegóły wybranego wpisu</translation>
        </message>
        <message id="VTULocalization.klLogDivider">
            <source>Divider between the lists</source>
            <translation>Podział między listami</translation>
        </message>
        <message id="VTULocalization.klCopy">
            <source>Copy</source>
            <translation>Kopiuj</translation>
        </message>
        <message id="VTULocalization.klSendAgain">
            <source>Send Again</source>
            <translation>Wyślij ponownie</translation>
        </message>
        <message id="VTULocalization.klLogFailedRow">
            <source>Failed: $1</source>
            <translation>Niepowodzenie: $1</translation>
        </message>
        <message id="VTULocalization.klLogRowGone">
            <source>(deleted)</source>
            <translation>(usunięto)</translation>
        </message>
        <message id="VTULocalization.klLogNone">
            <source>There is no log. $1</source>
            <translation>Nie ma dziennika. $1</translation>
        </message>
        <message id="VTULocalization.klLogUnreadable">
            <source>The log can't be read. $1</source>
            <translation>Nie można odczytać dziennika. $1</translation>
        </message>
        <message id="VTULocalization.klLogBusy">
            <source>The program is busy. Please try again in a moment.</source>
            <translation>Program jest zajęty. Spróbuj ponownie za chwilę.</translation>
        </message>
        <message id="VTULocalization.klLogEmpty">
            <source>The log is empty.</source>
            <translation>Dziennik jest pusty.</translation>
        </message>
        <message id="VTULocalization.klLogCleared">
            <source>The view is cleared. The log itself is unchanged: press &quot;Refresh Log&quot; to see it again.</source>
            <translation>Widok jest pusty. Sam dziennik nie zmienił się: naciśnij „Odśwież”, aby zobaczyć go ponownie.</translation>
        </message>
        <message id="VTULocalization.klLogNoMatch">
            <source>No entry matches.</source>
            <translation>Żaden wpis nie pasuje.</translation>
        </message>
        <message id="VTULocalization.klLogNoRecords">
            <source>No records availble</source>
            <translation>Brak wpisów</translation>
        </message>
        <message id="VTULocalization.klLogExporting">
            <source>Exporting to &quot;$1&quot;...</source>
            <translation>Eksport do „$1”...</translation>
        </message>
        <message id="VTULocalization.klLogNotExported">
            <source>The log was not exported safely. Under that name stands what was there before or the whole export, never a part of it.

$1</source>
            <translation>Dziennik nie został bezpiecznie wyeksportowany. Pod tą nazwą jest to, co było tam wcześniej, albo cały eksport, nigdy jego część.

$1</translation>
        </message>
        <message id="VTULocalization.klLogRowsGone">
            <source>Some of the entries are no longer in the log. Press &quot;Refresh Log&quot; and export again.</source>
            <translation>Niektórych wpisów nie ma już w dzienniku. Naciśnij „Odśwież” i eksportuj ponownie.</translation>
        </message>
        <message id="VTULocalization.klLogStopExport">
            <source>The export is not finished. Do you want to close the window and cancel it?</source>
            <translation>Eksport nie jest zakończony. Czy chcesz zamknąć okno i go anulować?</translation>
        </message>
        <message id="VTULocalization.klLogCopyTooMany">
            <source>These are too many entries for the clipboard. Please use &quot;Export to txt&quot;.</source>
            <translation>Wpisów jest za dużo dla schowka. Użyj „Eksport do txt”.</translation>
        </message>
        <message id="VTULocalization.klSendAgainQuestion">
            <source>Do you want to send these files again?

$1

The date of each file is set to now, so that its task sends it with its next run.</source>
            <translation>Czy chcesz ponownie wysłać te pliki?

$1

Każdy plik otrzyma bieżącą datę, więc jego zadanie wyśle go przy następnym przebiegu.</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainQuestion">
            <source>Do you want to send this file again?

$1

Its date is set to now, so that its task sends it with its next run.</source>
            <translation>Czy chcesz ponownie wysłać ten plik?

$1

Plik otrzyma bieżącą datę, więc jego zadanie wyśle go przy następnym przebiegu.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNotTaken">
            <source>No task that is switched on takes these files. They will wait until one does:

$1</source>
            <translation>Żadne włączone zadanie nie obejmuje tych plików. Poczekają, aż będzie takie zadanie:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainNotTaken">
            <source>No task that is switched on takes this file. It will wait until one does:

$1</source>
            <translation>Żadne włączone zadanie nie obejmuje tego pliku. Poczeka, aż będzie takie zadanie:

$1</translation>
        </message>
        <message id="VTULocalization.klSendAgainMore">
            <source>and $1 more</source>
            <translation>i jeszcze $1</translation>
        </message>
        <message id="VTULocalization.klSendAgainTooMany">
            <source>No more than 1,000 entries can be sent again at once.</source>
            <translation>Jednorazowo można ponownie wysłać najwyżej 1000 wpisów.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNone">
            <source>None of these files is in its input folder any more.</source>
            <translation>Żadnego z tych plików nie ma już w folderze wejścia.</translation>
        </message>
        <message id="VTULocalization.klSendAgainFailed">
            <source>These files are not sent again, because their date could not be set:

$1</source>
            <translation>Te pliki nie zostaną ponownie wysłane, bo nie udało się zmienić ich daty:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainFailed">
            <source>This file is not sent again, because its date could not be set:

$1</source>
            <translation>Ten plik nie zostanie ponownie wysłany, bo nie udało się zmienić jego daty:

$1</translation>
        </message>
        <message id="VTULocalization.klTestLineName">
            <source>Connection test</source>
            <translation>Test połączenia</translation>
        </message>
        <message id="VTULocalization.klTestRunning">
            <source>Asking the service...</source>
            <translation>Trwa pytanie usługi...</translation>
        </message>
        <message id="VTULocalization.klTestSucceeded">
            <source>The service took the login.</source>
            <translation>Usługa przyjęła login.</translation>
        </message>
        <message id="VTULocalization.klTestSucceededProxy">
            <source>The service took the login, by way of the proxy ($1).</source>
            <translation>Usługa przyjęła login, przez proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestSucceededNoPort">
            <source>The service took the login, but without the proxy: its port is not valid.</source>
            <translation>Usługa przyjęła login, ale bez proxy: jego port jest nieprawidłowy.</translation>
        </message>
        <message id="VTULocalization.klTestErrorAnswered">
            <source>The service answered with an error.</source>
            <translation>Usługa odpowiedziała błędem.</translation>
        </message>
        <message id="VTULocalization.klTestNameUnknown">
            <source>No answer: the name of the service can't be found ($1).</source>
            <translation>Brak odpowiedzi: nie znaleziono nazwy usługi ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNameUnknown">
            <source>No answer: the name of the proxy can't be found ($1).</source>
            <translation>Brak odpowiedzi: nie znaleziono nazwy proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotReached">
            <source>No answer: the service can't be reached ($1).</source>
            <translation>Brak odpowiedzi: usługa jest nieosiągalna ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNotReached">
            <source>No answer: the proxy can't be reached ($1).</source>
            <translation>Brak odpowiedzi: proxy jest nieosiągalne ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyRefused">
            <source>No answer: the proxy did not connect to the service ($1).</source>
            <translation>Brak odpowiedzi: proxy nie połączyło się z usługą ($1).</translation>
        </message>
        <message id="VTULocalization.klTestTlsFailed">
            <source>No answer: no secure connection (TLS) with $1.</source>
            <translation>Brak odpowiedzi: brak bezpiecznego połączenia (TLS) z $1.</translation>
        </message>
        <message id="VTULocalization.klTestTimedOut">
            <source>No answer in time from the service ($1).</source>
            <translation>Usługa nie odpowiedziała na czas ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyTimedOut">
            <source>No answer in time from the proxy ($1).</source>
            <translation>Proxy nie odpowiedziało na czas ($1).</translation>
        </message>
        <message id="VTULocalization.klTestBroken">
            <source>No answer: the connection broke off ($1).</source>
            <translation>Brak odpowiedzi: połączenie zostało przerwane ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotTheService">
            <source>No answer of the service: something else answered.</source>
            <translation>Brak odpowiedzi usługi: odpowiedziało coś innego.</translation>
        </message>
        <message id="VTULocalization.klBackupLineName">
            <source>Backup of the tasks</source>
            <translation>Kopia zapasowa zadań</translation>
        </message>
        <message id="VTULocalization.klBackupUnderWay">
            <source>Saving the tasks...</source>
            <translation>Zapisywanie zadań...</translation>
        </message>
        <message id="VTULocalization.klBackupDone">
            <source>The tasks are saved.</source>
            <translation>Zadania są zapisane.</translation>
        </message>
        <message id="VTULocalization.klRestoreUnderWay">
            <source>Loading the tasks...</source>
            <translation>Wczytywanie zadań...</translation>
        </message>
        <message id="VTULocalization.klRestoreDone">
            <source>The tasks are loaded. They join the list when this window is closed.</source>
            <translation>Zadania są wczytane. Trafią na listę po zamknięciu tego okna.</translation>
        </message>
        <message id="VTULocalization.klBackupSlow">
            <source>The folder is slow to answer. Closing this window stops the copying.</source>
            <translation>Folder odpowiada powoli. Zamknięcie tego okna przerwie kopiowanie.</translation>
        </message>
        <message id="VTULocalization.klBackupFailed">
            <source>These task files could not be saved:</source>
            <translation>Nie można zapisać tych plików zadań:</translation>
        </message>
        <message id="VTULocalization.klRestoreFailed">
            <source>These task files could not be loaded:</source>
            <translation>Nie można wczytać tych plików zadań:</translation>
        </message>
        <message id="VTULocalization.klCopyingStopped">
            <source>The copying was stopped, because the window was closed. These task files were not copied:</source>
            <translation>Kopiowanie przerwano, bo okno zostało zamknięte. Te pliki zadań nie zostały skopiowane:</translation>
        </message>
        <message id="VTULocalization.klNotBegun">
            <source>Earlier calls still wait for an answer. Please try again in a moment.</source>
            <translation>Wcześniejsze zapytania wciąż czekają na odpowiedź. Spróbuj ponownie za chwilę.</translation>
        </message>
        <message id="VTULocalization.klAdminFailed">
            <source>The admin window could not be opened: $1</source>
            <translation>Nie można otworzyć okna Admin: $1</translation>
        </message>
        <message id="VTULocalization.klTheProxy">
            <source>the proxy $1</source>
            <translation>proxy $1</translation>
        </message>
        <message id="VTULocalization.klAddressInvalid">
            <source>the address of the service is not valid</source>
            <translation>adres usługi jest nieprawidłowy</translation>
        </message>
        <message id="VTULocalization.klHeaderInvalid">
            <source>a header of the request can't be written on one line</source>
            <translation>nagłówek żądania nie mieści się w jednym wierszu</translation>
        </message>
        <message id="VTULocalization.klNameInvalid">
            <source>$1 has no valid host name</source>
            <translation>$1 nie ma prawidłowej nazwy hosta</translation>
        </message>
        <message id="VTULocalization.klNameUnknown">
            <source>the name of $1 is not known: $2</source>
            <translation>nazwa $1 jest nieznana: $2</translation>
        </message>
        <message id="VTULocalization.klLookUpSlow">
            <source>the look-up of the name of $1 took too long</source>
            <translation>rozpoznawanie nazwy $1 trwało zbyt długo</translation>
        </message>
        <message id="VTULocalization.klLookUpsHang">
            <source>the name of $1 can't be looked up: earlier look-ups still hang</source>
            <translation>nie można rozpoznać nazwy $1: wcześniejsze zapytania nadal czekają</translation>
        </message>
        <message id="VTULocalization.klConnectingSlow">
            <source>connecting to $1 took too long</source>
            <translation>łączenie z $1 trwało zbyt długo</translation>
        </message>
        <message id="VTULocalization.klNoConnection">
            <source>no connection to $1: $2</source>
            <translation>brak połączenia z $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsLibraryFailed">
            <source>OpenSSL could not be set up</source>
            <translation>nie można przygotować OpenSSL</translation>
        </message>
        <message id="VTULocalization.klTlsNotSetUp">
            <source>TLS with $1 could not be set up</source>
            <translation>nie można przygotować TLS z $1</translation>
        </message>
        <message id="VTULocalization.klTlsSilent">
            <source>$1 did not answer in the TLS handshake</source>
            <translation>$1 nie odpowiada podczas uzgadniania TLS</translation>
        </message>
        <message id="VTULocalization.klNoTlsConnection">
            <source>no TLS connection to $1: $2</source>
            <translation>brak połączenia TLS z $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsError">
            <source>TLS error $1</source>
            <translation>błąd TLS $1</translation>
        </message>
        <message id="VTULocalization.klItClosed">
            <source>it closed the connection</source>
            <translation>druga strona zamknęła połączenie</translation>
        </message>
        <message id="VTULocalization.klCertificateRefused">
            <source>the certificate of $1 is not accepted: $2</source>
            <translation>certyfikat $1 nie został przyjęty: $2</translation>
        </message>
        <message id="VTULocalization.klTrustFileUnusable">
            <source>the file of trusted certificates &quot;$1&quot; can't be used</source>
            <translation>nie można użyć pliku zaufanych certyfikatów „$1”</translation>
        </message>
        <message id="VTULocalization.klRefusedWithStatus">
            <source>$1 refused with status $2</source>
            <translation>odmowa ze strony $1, stan $2</translation>
        </message>
        <message id="VTULocalization.klNoAnswerWithin">
            <source>$1 did not answer within $2 s</source>
            <translation>brak odpowiedzi od $1 w ciągu $2 s</translation>
        </message>
        <message id="VTULocalization.klRequestNotTaken">
            <source>$1 did not take the whole request within $2 s</source>
            <translation>$1: całe żądanie nie zostało przyjęte w ciągu $2 s</translation>
        </message>
        <message id="VTULocalization.klReplyStopped">
            <source>$1 fell silent in its reply for $2 s</source>
            <translation>$1: przerwa w odpowiedzi przez $2 s</translation>
        </message>
        <message id="VTULocalization.klConnectionBroke">
            <source>the connection to $1 broke: $2</source>
            <translation>połączenie z $1 zostało przerwane: $2</translation>
        </message>
        <message id="VTULocalization.klClosedConnection">
            <source>$1 closed the connection</source>
            <translation>połączenie zamknięte przez $1</translation>
        </message>
        <message id="VTULocalization.klClosedInRequest">
            <source>$1 closed the connection before it had the whole request</source>
            <translation>połączenie zamknięte przez $1 przed odebraniem całego żądania</translation>
        </message>
        <message id="VTULocalization.klClosedInReply">
            <source>$1 closed the connection before its reply was complete</source>
            <translation>połączenie zamknięte przez $1 przed końcem odpowiedzi</translation>
        </message>
        <message id="VTULocalization.klAnsweredEarly">
            <source>$1 answered before it had the whole request</source>
            <translation>odpowiedź od $1 nadeszła przed odebraniem całego żądania</translation>
        </message>
        <message id="VTULocalization.klReplyTooLarge">
            <source>the reply of $1 is too large</source>
            <translation>odpowiedź od $1 jest za duża</translation>
        </message>
        <message id="VTULocalization.klReplyBadLength">
            <source>$1 announced a reply of an impossible length</source>
            <translation>$1: zapowiedziano odpowiedź o niemożliwej długości</translation>
        </message>
        <message id="VTULocalization.klContentShort">
            <source>the content could not be read to its end</source>
            <translation>nie można odczytać zawartości do końca</translation>
        </message>
        <message id="VTULocalization.klFileChanged">
            <source>the file changed before it was sent whole</source>
            <translation>plik zmienił się, zanim został wysłany w całości</translation>
        </message>
        <message id="VTULocalization.klNoFileToSend">
            <source>there is no file to send</source>
            <translation>nie ma pliku do wysłania</translation>
        </message>
        <message id="VTULocalization.klStopped">
            <source>stopped</source>
            <translation>zatrzymano</translation>
        </message>
        <message id="VTULocalization.klNoInputFolder">
            <source>the task has no input folder</source>
            <translation>zadanie nie ma folderu wejścia</translation>
        </message>
        <message id="EditTaskWindow.klAddDatetoFileName">
            <source>Add Date to File Name</source>
            <translation>Dodaj datę do nazwy pliku</translation>
        </message>
        <message id="EditTaskWindow.klAutoRecognition">
            <source>Auto Recognition</source>
            <translation>Automatyczne rozpoznawanie</translation>
        </message>
        <message id="EditTaskWindow.klDeleteFileAfterCopy">
            <source>Delete File After Copy</source>
            <translation>Usuń plik po skopiowaniu</translation>
        </message>
        <message id="EditTaskWindow.klExtension">
            <source>Extension</source>
            <translation>Rozszerzenie</translation>
        </message>
        <message id="EditTaskWindow.klFileNameExclusion">
            <source>File Name Exclusion</source>
            <translation>Wykluczenie nazw plików</translation>
        </message>
        <message id="EditTaskWindow.klFileNameRecognition">
            <source>File Name Recognition</source>
            <translation>Rozpoznawanie nazw plików</translation>
        </message>
        <message id="EditTaskWindow.klPrefix">
            <source>Prefix</source>
            <translation>Przedrostek</translation>
        </message>
        <message id="EditTaskWindow.klSelectTrack">
            <source>Select Track</source>
            <translation>Wybierz track</translation>
        </message>
        <message id="MainMenuBar.klFileMenu">
            <source>&amp;File</source>
            <translation>&amp;Plik</translation>
        </message>
        <message id="MainMenuBar.klFileAbout">
            <source>About Vantry Uploader...</source>
            <translation>O programie Vantry Uploader...</translation>
        </message>
        <message id="MainMenuBar.klFileQuit">
            <source>&amp;Quit</source>
            <translation>Za&amp;kończ</translation>
        </message>
        <message id="MainMenuBar.klEditMenu">
            <source>&amp;Edit</source>
            <translation>&amp;Edycja</translation>
        </message>
        <message id="MainMenuBar.klEditUndo">
            <source>&amp;Undo</source>
            <translation>&amp;Cofnij</translation>
        </message>
        <message id="MainMenuBar.klEditCut">
            <source>Cu&amp;t</source>
            <translation>Wy&amp;tnij</translation>
        </message>
        <message id="MainMenuBar.klEditCopy">
            <source>&amp;Copy</source>
            <translation>&amp;Kopiuj</translation>
        </message>
        <message id="MainMenuBar.klEditPaste">
            <source>&amp;Paste</source>
            <translation>Wk&amp;lej</translation>
        </message>
        <message id="MainMenuBar.klEditClear">
            <source>&amp;Delete</source>
            <translation>&amp;Usuń</translation>
        </message>
        <message id="MainMenuBar.klEditSelectAll">
            <source>Select &amp;All</source>
            <translation>Z&amp;aznacz wszystko</translation>
        </message>
        <message id="MainMenuBar.klAboutTitle">
            <source>About</source>
            <translation>O programie</translation>
        </message>
        <message id="VantryUtil.E002">
            <source>No patches found. Check instrument/software settings.</source>
            <translation>Nie znaleziono pól pomiarowych. Sprawdź ustawienia przyrządu i oprogramowania.</translation>
        </message>
        <message id="VantryUtil.E003">
            <source>Database connection issues. Check website/ server connection.</source>
            <translation>Problemy z połączeniem z bazą danych. Sprawdź połączenie ze stroną i serwerem.</translation>
        </message>
        <message id="VantryUtil.E004">
            <source>Wrong measurement conditions - possible mismatch. Check both application and track/ tool preferences (M0, M1, M2, M3)</source>
            <translation>Nieprawidłowe warunki pomiaru, być może niezgodne. Sprawdź ustawienia aplikacji i tracka/narzędzia (M0, M1, M2, M3)</translation>
        </message>
        <message id="VantryUtil.E005">
            <source>Wrong mode. Mode shall be either production or makeready.</source>
            <translation>Nieprawidłowy tryb. Tryb musi być drukiem nakładu (production) albo narządzaniem (makeready).</translation>
        </message>
        <message id="VantryUtil.E006">
            <source>Wrong backing. Backing shall be either white or black.</source>
            <translation>Nieprawidłowy podkład pomiarowy. Podkład musi być biały (white) albo czarny (black).</translation>
        </message>
        <message id="VantryUtil.E007">
            <source>Filename cannot be empty.</source>
            <translation>Nazwa pliku nie może być pusta.</translation>
        </message>
        <message id="VantryUtil.E008">
            <source>Requested track not found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Nie znaleziono żądanego tracka. Przy automatycznym rozpoznawaniu sprawdź ustawienia: aplikacja i strona muszą się dokładnie zgadzać.</translation>
        </message>
        <message id="VantryUtil.E009">
            <source>Wrong login/password combination. Note: SOAP protocol uses separate login/ password combination. Consult user manual to learn more.</source>
            <translation>Nieprawidłowy login lub hasło. Uwaga: protokół SOAP używa osobnego loginu i hasła. Więcej informacji w podręczniku.</translation>
        </message>
        <message id="VantryUtil.E010">
            <source>No tracks found.</source>
            <translation>Nie znaleziono tracków.</translation>
        </message>
        <message id="VantryUtil.E011">
            <source>Spectral data missing.</source>
            <translation>Brak danych spektralnych.</translation>
        </message>
        <message id="VantryUtil.E012">
            <source>Wrong color definition.</source>
            <translation>Nieprawidłowa definicja koloru.</translation>
        </message>
        <message id="VantryUtil.E013">
            <source>Date format unrecognized.</source>
            <translation>Nie rozpoznano formatu daty.</translation>
        </message>
        <message id="VantryUtil.E014">
            <source>Sheet number must be an integer.</source>
            <translation>Numer arkusza musi być liczbą całkowitą.</translation>
        </message>
        <message id="VantryUtil.E015">
            <source>Unknown dryback value. (E015)</source>
            <translation>Nieznana wartość dryback. (E015)</translation>
        </message>
        <message id="VantryUtil.E016">
            <source>User is registered on dedicated instance, API URL needs to be changed</source>
            <translation>Użytkownik jest zarejestrowany na wydzielonej instancji, trzeba zmienić adres URL API</translation>
        </message>
        <message id="VantryUtil.E017">
            <source>Operator is not authenticated, please check Your login/password combination.</source>
            <translation>Operator nie jest uwierzytelniony, sprawdź login i hasło.</translation>
        </message>
        <message id="VantryUtil.E018">
            <source>No devices found.</source>
            <translation>Nie znaleziono urządzeń.</translation>
        </message>
        <message id="VantryUtil.E019">
            <source>Selected operator is not assigned to any of printing devices</source>
            <translation>Wybrany operator nie jest przypisany do żadnego urządzenia drukującego</translation>
        </message>
        <message id="VantryUtil.E020">
            <source>No Scanning Templates found</source>
            <translation>Nie znaleziono szablonów pomiarowych</translation>
        </message>
        <message id="VantryUtil.E021">
            <source>No measurement tasks avaliable</source>
            <translation>Brak dostępnych zadań pomiarowych</translation>
        </message>
        <message id="VantryUtil.E022">
            <source>Scanning Template not found</source>
            <translation>Nie znaleziono szablonu pomiarowego</translation>
        </message>
        <message id="VantryUtil.E023">
            <source>Control Strip not foundControl Strip not found</source>
            <translation>Nie znaleziono paska kontrolnego</translation>
        </message>
        <message id="VantryUtil.E024">
            <source>Control Strip patches not found</source>
            <translation>Nie znaleziono pól paska kontrolnego</translation>
        </message>
        <message id="VantryUtil.E025">
            <source>Selected job does not belong to selected track</source>
            <translation>Wybrane zlecenie nie należy do wybranego tracka</translation>
        </message>
        <message id="VantryUtil.E026">
            <source>No jobs found</source>
            <translation>Nie znaleziono zleceń</translation>
        </message>
        <message id="VantryUtil.E027">
            <source>Color Library/Palette not found</source>
            <translation>Nie znaleziono biblioteki lub palety kolorów</translation>
        </message>
        <message id="VantryUtil.E028">
            <source>No instruments found</source>
            <translation>Nie znaleziono przyrządów</translation>
        </message>
        <message id="VantryUtil.E102">
            <source>No Instrument - Target pair found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Nie znaleziono pary przyrząd–wzorzec. Przy automatycznym rozpoznawaniu sprawdź ustawienia: aplikacja i strona muszą się dokładnie zgadzać.</translation>
        </message>
        <message id="VantryUtil.E103">
            <source>Measured file does not have required list of patches.</source>
            <translation>Plik pomiarowy nie zawiera wymaganej listy pól.</translation>
        </message>
        <message id="VantryUtil.EUnknownError">
            <source>Unknown Error</source>
            <translation>Nieznany błąd</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateOff">
            <source>Off</source>
            <translation>Wyłączone</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateProcessing">
            <source>Sending files</source>
            <translation>Wysyła pliki</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateReady">
            <source>Ready</source>
            <translation>Gotowe</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateFault">
            <source>A folder is missing or can't be written</source>
            <translation>Brakuje folderu lub nie można w nim zapisywać</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasks">
            <source>Tasks</source>
            <translation>Zadania</translation>
        </message>
        <message id="VTUploaderMainWIndow.klHelp">
            <source>Help</source>
            <translation>Pomoc</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNoTasks">
            <source>There are no tasks yet. Press &quot;$1&quot; to set up the first one.</source>
            <translation>Nie ma jeszcze zadań. Naciśnij „$1”, aby skonfigurować pierwsze.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskEditor">
            <source>The task editor</source>
            <translation>Edytor zadań</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripAndMore">
            <source>(and $1 more)</source>
            <translation>(i jeszcze $1)</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasksAboutToLoad">
            <source>The restored tasks are loaded as soon as the files under way are sent.</source>
            <translation>Przywrócone zadania zostaną wczytane po wysłaniu bieżących plików.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripFolderFault">
            <source>Task &quot;$1&quot; can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>Zadanie „$1” nie może użyć swoich folderów. Sprawdź, czy foldery wejścia i wyjścia istnieją, są podłączone i można w nich zapisywać.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotDuplicated">
            <source>The task could not be duplicated: $1</source>
            <translation>Nie udało się powielić zadania: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotRemoved">
            <source>The task is off the list, but its file could not be removed, so it will be back at the next start: $1</source>
            <translation>Zadania nie ma już na liście, ale nie udało się usunąć jego pliku, więc wróci przy następnym uruchomieniu: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klManualNotOpened">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>Nie można otworzyć przeglądarki. Podręcznik znajduje się pod adresem $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNewVersion">
            <source>Version $1 is availble newer and availbale.
Would you like to downlownload it now?</source>
            <translation>Dostępna jest nowsza wersja $1.
Czy pobrać ją teraz?</translation>
        </message>
        <message id="VTUploaderMainWIndow.klDownloadNotOpened">
            <source>The download can't be opened from here. Its address is $1</source>
            <translation>Nie można stąd otworzyć pobierania. Jego adres to $1</translation>
        </message>
        <message id="Reasons.klListing">
            <source>listing $1</source>
            <translation>listowanie $1</translation>
        </message>
        <message id="Reasons.klReading">
            <source>reading $1</source>
            <translation>odczyt $1</translation>
        </message>
        <message id="Reasons.klWriting">
            <source>writing $1</source>
            <translation>zapis $1</translation>
        </message>
        <message id="Reasons.klCopying">
            <source>copying $1 to $2</source>
            <translation>kopiowanie $1 do $2</translation>
        </message>
        <message id="Reasons.klRenaming">
            <source>renaming $1</source>
            <translation>zmiana nazwy $1</translation>
        </message>
        <message id="Reasons.klRenamingTo">
            <source>renaming $1 to $2</source>
            <translation>zmiana nazwy $1 na $2</translation>
        </message>
        <message id="Reasons.klSettingDate">
            <source>setting the date of $1</source>
            <translation>zmiana daty $1</translation>
        </message>
        <message id="Reasons.klDeleting">
            <source>deleting $1</source>
            <translation>usuwanie $1</translation>
        </message>
        <message id="Reasons.klMakingFolder">
            <source>making the folder $1</source>
            <translation>tworzenie folderu $1</translation>
        </message>
        <message id="Reasons.klFlushingFolder">
            <source>flushing the folder of $1</source>
            <translation>utrwalanie na dysku folderu pliku $1</translation>
        </message>
        <message id="Reasons.klEnciphering">
            <source>enciphering $1</source>
            <translation>szyfrowanie $1</translation>
        </message>
        <message id="Reasons.klWritingOver">
            <source>writing over $1, which could not be read</source>
            <translation>nadpisywanie $1, którego nie dało się odczytać</translation>
        </message>
        <message id="Reasons.klSavingWithoutFile">
            <source>saving without a file</source>
            <translation>zapis bez pliku</translation>
        </message>
        <message id="Reasons.klMakingIt">
            <source>making it</source>
            <translation>tworzenie pliku</translation>
        </message>
        <message id="Reasons.klNotOurs">
            <source>it is not a settings file, or it is damaged</source>
            <translation>to nie jest plik ustawień albo jest uszkodzony</translation>
        </message>
        <message id="Reasons.klOtherProgram">
            <source>it is damaged, or another program wrote it</source>
            <translation>plik jest uszkodzony albo zapisał go inny program</translation>
        </message>
        <message id="Reasons.klNotAnObject">
            <source>its content is not a JSON object</source>
            <translation>zawartość nie jest obiektem JSON</translation>
        </message>
        <message id="Reasons.klContentGone">
            <source>its content is gone</source>
            <translation>zawartość zniknęła</translation>
        </message>
        <message id="Reasons.klEndCutOff">
            <source>its end is cut off</source>
            <translation>koniec jest ucięty</translation>
        </message>
        <message id="Reasons.klWriteProtected">
            <source>the file is write-protected</source>
            <translation>plik jest chroniony przed zapisem</translation>
        </message>
    </context>
</TS>
