<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
    <context>
        <name></name>
        <message id="VTULocalization.klAdmin">
            <source>Admin</source>
            <translation>Admin</translation>
        </message>
        <message id="VTULocalization.klAdminLock">
            <source>Admin Lock</source>
            <translation>Blocco admin</translation>
        </message>
        <message id="VTULocalization.klAdminPasswordRequired">
            <source>Admin Password Required</source>
            <translation>Password admin richiesta</translation>
        </message>
        <message id="VTULocalization.klAutoMount">
            <source>Auto Mount</source>
            <translation>Auto-mount</translation>
        </message>
        <message id="VTULocalization.klBackup">
            <source>Backup</source>
            <translation>Backup</translation>
        </message>
        <message id="VTULocalization.klBackupDescription">
            <source>Select a directory where a backup of your tasks will be stored.</source>
            <translation>Selezionare la cartella in cui salvare il backup delle attività.</translation>
        </message>
        <message id="VTULocalization.klCancel">
            <source>Cancel</source>
            <translation>Annulla</translation>
        </message>
        <message id="VTULocalization.klCheckandConnect">
            <source>Check and Connect</source>
            <translation>Verifica e connetti</translation>
        </message>
        <message id="VTULocalization.klCheckForUpdates">
            <source>Check For Updates</source>
            <translation>Cerca aggiornamenti</translation>
        </message>
        <message id="VTULocalization.klClear">
            <source>Clear</source>
            <translation>Azzera</translation>
        </message>
        <message id="VTULocalization.klClearLog">
            <source>Clear Log</source>
            <translation>Svuota vista</translation>
        </message>
        <message id="VTULocalization.klClearProcessDateStamp">
            <source>Clear Process Date Stamp</source>
            <translation>Azzera data elaborazione</translation>
        </message>
        <message id="VTULocalization.klCouldNotMount">
            <source>Error Mounting</source>
            <translation>Errore di montaggio</translation>
        </message>
        <message id="VTULocalization.klDeleteLog">
            <source>Delete Log History</source>
            <translation>Elimina registro</translation>
        </message>
        <message id="VTULocalization.klDeleteTaskConfirmation">
            <source>Are you sure you want to delete this task?</source>
            <translation>Eliminare davvero questa attività?</translation>
        </message>
        <message id="VTULocalization.klDisableTask">
            <source>Disable Task</source>
            <translation>Disattiva</translation>
        </message>
        <message id="VTULocalization.klDuplicate">
            <source>Duplicate</source>
            <translation>Duplica</translation>
        </message>
        <message id="VTULocalization.klEdit">
            <source>Edit</source>
            <translation>Modifica</translation>
        </message>
        <message id="VTULocalization.klEditTask">
            <source>Edit Task</source>
            <translation>Modifica attività</translation>
        </message>
        <message id="VTULocalization.klEnteradminpassword">
            <source>Enter admin password</source>
            <translation>Password admin</translation>
        </message>
        <message id="VTULocalization.klExporttotxt">
            <source>Export to txt</source>
            <translation>Esporta in txt</translation>
        </message>
        <message id="VTULocalization.klField">
            <source>Field</source>
            <translation>Campo</translation>
        </message>
        <message id="VTULocalization.klFiles">
            <source>Files</source>
            <translation>File</translation>
        </message>
        <message id="VTULocalization.klIncorrectPassword">
            <source>Incorrect Administrator Password Entered</source>
            <translation>La password amministratore inserita non è corretta</translation>
        </message>
        <message id="VTULocalization.klInputFolder">
            <source>Input Folder</source>
            <translation>Cartella input</translation>
        </message>
        <message id="VTULocalization.KLInputFolderURL">
            <source>Input Folder URL</source>
            <translation>URL cartella input</translation>
        </message>
        <message id="VTULocalization.klInputLogin">
            <source>Input Login</source>
            <translation>Login input</translation>
        </message>
        <message id="VTULocalization.klWarden">
            <source>Warden</source>
            <translation>Warden</translation>
        </message>
        <message id="VTULocalization.klInstrument">
            <source>Instrument</source>
            <translation>Strumento</translation>
        </message>
        <message id="VTULocalization.klLoad">
            <source>Load</source>
            <translation>Carica</translation>
        </message>
        <message id="VTULocalization.klLoadConfiguration">
            <source>Load Configuration</source>
            <translation>Carica configurazione</translation>
        </message>
        <message id="VTULocalization.klLoadConfigurationDescription">
            <source>Select a folder containing a backup of uploader tasks to be restored.</source>
            <translation>Selezionare una cartella che contiene un backup delle attività da ripristinare.</translation>
        </message>
        <message id="VTULocalization.klLocktasklist">
            <source>Lock task list</source>
            <translation>Blocca elenco attività</translation>
        </message>
        <message id="VTULocalization.klNA">
            <source>n/a</source>
            <translation>n/d</translation>
        </message>
        <message id="VTULocalization.klNew">
            <source>New</source>
            <translation>Nuova</translation>
        </message>
        <message id="VTULocalization.klNoTasksToSave">
            <source>There are no tasks avaible to backup</source>
            <translation>Non ci sono attività di cui eseguire il backup</translation>
        </message>
        <message id="VTULocalization.klOK">
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message id="VTULocalization.klOutputLogin">
            <source>Output Login</source>
            <translation>Login output</translation>
        </message>
        <message id="VTULocalization.klOutputPassword">
            <source>Output Password</source>
            <translation>Password output</translation>
        </message>
        <message id="VTULocalization.klPassword">
            <source>Password</source>
            <translation>Password</translation>
        </message>
        <message id="VTULocalization.KLPrint">
            <source>Print</source>
            <translation>Stampa</translation>
        </message>
        <message id="VTULocalization.klProxy">
            <source>Proxy</source>
            <translation>Proxy</translation>
        </message>
        <message id="VTULocalization.klProxyAddress">
            <source>Proxy Address</source>
            <translation>Indirizzo proxy</translation>
        </message>
        <message id="VTULocalization.klProxyPort">
            <source>Proxy Port</source>
            <translation>Porta proxy</translation>
        </message>
        <message id="VTULocalization.klReenteradminpassword">
            <source>Re-enter admin password</source>
            <translation>Ripeti password admin</translation>
        </message>
        <message id="VTULocalization.klRefreshLog">
            <source>Refresh Log</source>
            <translation>Aggiorna</translation>
        </message>
        <message id="VTULocalization.klRemove">
            <source>Remove</source>
            <translation>Rimuovi</translation>
        </message>
        <message id="VTULocalization.klReplaceFileName">
            <source>Replace Name</source>
            <translation>Sostituisci nome</translation>
        </message>
        <message id="VTULocalization.klSave">
            <source>Save</source>
            <translation>Salva</translation>
        </message>
        <message id="VTULocalization.klSaveConfiguration">
            <source>Save Configuration</source>
            <translation>Salva configurazione</translation>
        </message>
        <message id="VTULocalization.klSelectBackupDirectory">
            <source>Backup Directory</source>
            <translation>Cartella di backup</translation>
        </message>
        <message id="VTULocalization.KLSelectInstrument">
            <source>Select Instrument</source>
            <translation>Scegli strumento</translation>
        </message>
        <message id="VTULocalization.klSelectPress">
            <source>Select Press</source>
            <translation>Scegli macchina da stampa</translation>
        </message>
        <message id="VTULocalization.klSelectTarget">
            <source>Select Target</source>
            <translation>Scegli target</translation>
        </message>
        <message id="VTULocalization.klSEt">
            <source>Set</source>
            <translation>Scegli</translation>
        </message>
        <message id="VTULocalization.klShowLog">
            <source>Show Log...</source>
            <translation>Registro...</translation>
        </message>
        <message id="VTULocalization.klSOAPConnection">
            <source>SOAP Connection</source>
            <translation>Connessione SOAP</translation>
        </message>
        <message id="VTULocalization.klSOAPLogin">
            <source>SOAP Login</source>
            <translation>Login SOAP</translation>
        </message>
        <message id="VTULocalization.klSoapPassword">
            <source>SOAP Password</source>
            <translation>Password SOAP</translation>
        </message>
        <message id="VTULocalization.klSoftwareUpToDate">
            <source>Your software is up to date</source>
            <translation>Il software è aggiornato</translation>
        </message>
        <message id="VTULocalization.klStatus">
            <source>Status</source>
            <translation>Stato</translation>
        </message>
        <message id="VTULocalization.klSureYouWantToQuit">
            <source>Are you sure you want to quit?

Uploads will stop processing when the application quit.</source>
            <translation>Uscire davvero dal programma?

Dopo la chiusura non verranno più inviati file.</translation>
        </message>
        <message id="VTULocalization.klTaskCurrentlyProcessing">
            <source>This task is currently processing. Please try again in a moment</source>
            <translation>Questa attività è in fase di elaborazione. Riprovare tra un momento.</translation>
        </message>
        <message id="VTULocalization.klTaskDescription">
            <source>Task Description</source>
            <translation>Descrizione</translation>
        </message>
        <message id="VTULocalization.klTaskName">
            <source>Task Name</source>
            <translation>Nome attività</translation>
        </message>
        <message id="VTULocalization.kltest">
            <source>Test</source>
            <translation>Prova</translation>
        </message>
        <message id="VTULocalization.klValue">
            <source>Value</source>
            <translation>Valore</translation>
        </message>
        <message id="VTULocalization.klVerifyDateStamp">
            <source>Are you sure you want to clear the last processed date?

This will force all files in the input folder to be processed regardless of age or if they have previously been processed.</source>
            <translation>Azzerare davvero la data dell’ultima elaborazione?

Tutti i file della cartella di input verranno elaborati, indipendentemente dalla loro data e anche se già elaborati in precedenza.</translation>
        </message>
        <message id="VTULocalization.klStripSending">
            <source>Sending $1: $2 ($3 %)</source>
            <translation>$1: invio di $2 ($3 %)</translation>
        </message>
        <message id="VTULocalization.klStripAllWell">
            <source>All is well since $1</source>
            <translation>Tutto in ordine da: $1</translation>
        </message>
        <message id="VTULocalization.klStripConnecting">
            <source>Connecting to the service...</source>
            <translation>Connessione al servizio...</translation>
        </message>
        <message id="VTULocalization.klStripChecking">
            <source>Checking the input folders...</source>
            <translation>Verifica delle cartelle di input...</translation>
        </message>
        <message id="VTULocalization.klUploadingHeld">
            <source>Uploading is held until the task editor or the Admin window is closed and what was changed there is in force.</source>
            <translation>L’invio è sospeso finché l’editor delle attività o la finestra Admin non è chiusa e le modifiche non sono applicate.</translation>
        </message>
        <message id="VTULocalization.klStripNoLogin">
            <source>No login is stored, so nothing can be sent. Enter the service login under Admin.</source>
            <translation>Nessun login è memorizzato, quindi non si può inviare nulla. Inserire il login del servizio in Admin.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFileSkipped">
            <source>Task file &quot;$1&quot; was skipped: $2. The other tasks run. Repair or remove the file and start the program again.</source>
            <translation>Il file di attività «$1» è stato ignorato: $2. Le altre attività funzionano. Riparare o rimuovere il file e riavviare il programma.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFolderUnreadable">
            <source>The tasks can't be read, so nothing is sent: $2. Check the task folder and start the program again.</source>
            <translation>Impossibile leggere le attività, quindi non viene inviato nulla: $2. Controllare la cartella delle attività e riavviare il programma.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesSetAside">
            <source>The settings file was damaged and is kept as &quot;$1&quot;. Enter the service login again under Admin.</source>
            <translation>Il file delle impostazioni era danneggiato ed è conservato come «$1». Inserire di nuovo il login del servizio in Admin.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesNotSaved">
            <source>The settings can't be saved: $2. Check the settings folder, its permissions and the space on its disk.</source>
            <translation>Impossibile salvare le impostazioni: $2. Controllare la cartella delle impostazioni, i suoi permessi e lo spazio su disco.</translation>
        </message>
        <message id="VTULocalization.klStripLogSetAside">
            <source>The log was damaged and is kept as &quot;$1&quot;. A new log has begun; uploads are not affected.</source>
            <translation>Il registro era danneggiato ed è conservato come «$1». Ne è stato iniziato uno nuovo; gli invii non ne risentono.</translation>
        </message>
        <message id="VTULocalization.klStripLogUnavailable">
            <source>Uploads go on, but nothing is logged: $2. When this is repaired, start the program again.</source>
            <translation>Gli invii proseguono, ma non viene registrato nulla: $2. Risolto il problema, riavviare il programma.</translation>
        </message>
        <message id="VTULocalization.klStripLogRowLost">
            <source>Uploads go on, but an entry could not be logged: $2. Check the space on the disk.</source>
            <translation>Gli invii proseguono, ma una voce non è stata registrata: $2. Controllare lo spazio su disco.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionInvalid">
            <source>Task &quot;$1&quot; excludes no files, because its exclusion pattern is not valid: $2. Correct the pattern.</source>
            <translation>L’attività «$1» non esclude alcun file, perché il suo criterio di esclusione non è valido: $2. Correggere il criterio.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionTooCostly">
            <source>Task &quot;$1&quot; keeps back &quot;$2&quot;, because its exclusion pattern takes too long on that name. Simplify the pattern.</source>
            <translation>L’attività «$1» trattiene «$2», perché il suo criterio di esclusione richiede troppo tempo su quel nome. Semplificare il criterio.</translation>
        </message>
        <message id="VTULocalization.klStripInputFolderUnreadable">
            <source>Task &quot;$1&quot; can't read its input folder: $2. Check that the folder is there and connected.</source>
            <translation>L’attività «$1» non può leggere la sua cartella di input: $2. Controllare che la cartella esista e sia connessa.</translation>
        </message>
        <message id="VTULocalization.klStripFolderSilent">
            <source>The folders of task &quot;$1&quot; do not answer. The other tasks run, and this one goes on by itself when its server is back.</source>
            <translation>Le cartelle dell’attività «$1» non rispondono. Le altre attività continuano e questa riprende da sola quando il suo server torna.</translation>
        </message>
        <message id="VTULocalization.klStripNothingMounted">
            <source>Task &quot;$1&quot; waits for the share at $2, where nothing is mounted. To use the folder as it is, set it anew in the task.</source>
            <translation>L’attività «$1» attende la condivisione in $2, dove non è montato nulla. Per usare la cartella così com’è, impostarla di nuovo nell’attività.</translation>
        </message>
        <message id="VTULocalization.klStripShareNotMounted">
            <source>The share $1 could not be mounted: $2. It is tried again after 10 minutes.</source>
            <translation>Non è stato possibile montare la condivisione $1: $2. Si riproverà dopo 10 minuti.</translation>
        </message>
        <message id="VTULocalization.klStripCopyFailed">
            <source>Task &quot;$1&quot; could not save a copy: $2. The input file was not deleted. Check the output folder.</source>
            <translation>L’attività «$1» non ha potuto salvare una copia: $2. Il file di input non è stato eliminato. Controllare la cartella di output.</translation>
        </message>
        <message id="VTULocalization.klStripDeleteFailed">
            <source>Task &quot;$1&quot; sent a file but could not delete it: $2. Check the permissions of the input folder and delete the file yourself.</source>
            <translation>L’attività «$1» ha inviato un file ma non ha potuto eliminarlo: $2. Controllare i permessi della cartella di input ed eliminare il file a mano.</translation>
        </message>
        <message id="VTULocalization.klStripUploadFailed">
            <source>Task &quot;$1&quot; could not send a file: $2. When this is repaired, save the file into the input folder again.</source>
            <translation>L’attività «$1» non ha potuto inviare un file: $2. Risolto il problema, salvare di nuovo il file nella cartella di input.</translation>
        </message>
        <message id="VTULocalization.klStripFileWaits">
            <source>Task &quot;$1&quot; can't read a file at the moment: $2. It is tried again by itself.</source>
            <translation>L’attività «$1» al momento non può leggere un file: $2. Verrà ritentata automaticamente.</translation>
        </message>
        <message id="VTULocalization.klStripRunFailed">
            <source>Task &quot;$1&quot; was stopped by a fault: $2. It is tried again by itself; if this line stays, start the program again.</source>
            <translation>L’attività «$1» è stata fermata da un errore: $2. Verrà ritentata automaticamente; se questa riga rimane, riavviare il programma.</translation>
        </message>
        <message id="VTULocalization.klStripServiceUnreachable">
            <source>The service can't be reached: $2. It is tried again by itself; check the network and the proxy settings.</source>
            <translation>Il servizio non è raggiungibile: $2. Nuovi tentativi avvengono automaticamente; controllare la rete e le impostazioni del proxy.</translation>
        </message>
        <message id="VTULocalization.klStripServiceRefuses">
            <source>The service answers with an error: $2. It is asked again by itself; check the login under Admin.</source>
            <translation>Il servizio risponde con un errore: $2. Nuovi tentativi avvengono automaticamente; controllare il login in Admin.</translation>
        </message>
        <message id="VTULocalization.klMountNoSession">
            <source>there is no desktop session with a mount service</source>
            <translation>non c’è una sessione desktop con un servizio di montaggio</translation>
        </message>
        <message id="VTULocalization.klMountLoginRefused">
            <source>the server refuses the login</source>
            <translation>il server rifiuta l’accesso</translation>
        </message>
        <message id="VTULocalization.klMountQuestion">
            <source>the server's key or certificate is not trusted; open it once in the file manager, or install its certificate</source>
            <translation>la chiave o il certificato del server non è attendibile; aprirlo una volta nel gestore di file, o installare il suo certificato</translation>
        </message>
        <message id="VTULocalization.klMountUnreachable">
            <source>the server can't be reached</source>
            <translation>il server non è raggiungibile</translation>
        </message>
        <message id="VTULocalization.klMountNotThere">
            <source>the server has no such share or folder</source>
            <translation>il server non ha questa condivisione o cartella</translation>
        </message>
        <message id="VTULocalization.klMountTimedOut">
            <source>the server does not answer</source>
            <translation>il server non risponde</translation>
        </message>
        <message id="VTULocalization.klMountNotSupported">
            <source>no installed program mounts that kind of address</source>
            <translation>nessun programma installato monta questo tipo di indirizzo</translation>
        </message>
        <message id="VTULocalization.klMountNoFolder">
            <source>it is mounted, but not shown as a folder; name a share in the address, or install gvfs-fuse and log in again</source>
            <translation>è montata, ma non appare come cartella; indicare una condivisione nell’indirizzo, o installare gvfs-fuse ed effettuare di nuovo l’accesso</translation>
        </message>
        <message id="VTULocalization.klMountServiceEnded">
            <source>the mount service broke down over it; check the address and the login</source>
            <translation>il servizio di montaggio si è interrotto; controllare l’indirizzo e l’accesso</translation>
        </message>
        <message id="VTULocalization.klMountFailed">
            <source>error $1</source>
            <translation>errore $1</translation>
        </message>
        <message id="VTULocalization.klPreferencesSetAside">
            <source>The settings file was damaged and could not be read. It is kept as &quot;$1&quot;.

Vantry Uploader starts with empty settings: please enter the login, the proxy and the administrator password again under Admin. Your tasks are still there, but the record of what they have already processed is lost: files in the input folders may be sent once more.</source>
            <translation>Il file delle impostazioni era danneggiato e non è stato possibile leggerlo. È conservato come «$1».

Vantry Uploader parte con impostazioni vuote: inserire di nuovo login, proxy e password amministratore in Admin. Le attività ci sono ancora, ma la traccia di ciò che hanno già elaborato è perduta: i file nelle cartelle di input potrebbero essere inviati un’altra volta.</translation>
        </message>
        <message id="VTULocalization.klStartFailed">
            <source>Vantry Uploader could not start and will close: $1

No files are being sent. Please start it again; if this message comes back, show it to your administrator.</source>
            <translation>Vantry Uploader non è riuscito ad avviarsi e verrà chiuso: $1

Non viene inviato alcun file. Riavviare il programma; se il messaggio si ripresenta, mostrarlo all’amministratore.</translation>
        </message>
        <message id="VTULocalization.klAlreadyRunning">
            <source>Vantry Uploader is already running. Please use its window.</source>
            <translation>Vantry Uploader è già in esecuzione. Usare la sua finestra.</translation>
        </message>
        <message id="VTULocalization.klWindowNotInBuild">
            <source>$1 is not part of this build yet.</source>
            <translation>$1: non ancora disponibile in questa versione.</translation>
        </message>
        <message id="VTULocalization.klCopyFailedNote">
            <source> Copy not saved: $1</source>
            <translation> Copia non salvata: $1</translation>
        </message>
        <message id="VTULocalization.klDeleteFailedNote">
            <source> Input file not deleted: $1</source>
            <translation> File di input non eliminato: $1</translation>
        </message>
        <message id="VTULocalization.klRunFailedNote">
            <source>Processing stopped: $1</source>
            <translation>Elaborazione interrotta: $1</translation>
        </message>
        <message id="VTULocalization.klSampleMatching">
            <source>$1 of $2 files match: $3</source>
            <translation>File corrispondenti $1 su $2: $3</translation>
        </message>
        <message id="VTULocalization.klSampleOneOf">
            <source>1 of $1 files matches: $2</source>
            <translation>1 file su $1 corrisponde: $2</translation>
        </message>
        <message id="VTULocalization.klSampleNone">
            <source>None of the $1 files matches</source>
            <translation>Nessuno dei $1 file corrisponde</translation>
        </message>
        <message id="VTULocalization.klSampleOneMatches">
            <source>The only file matches: $1</source>
            <translation>L’unico file corrisponde: $1</translation>
        </message>
        <message id="VTULocalization.klSampleOneFails">
            <source>The only file doesn't match</source>
            <translation>L’unico file non corrisponde</translation>
        </message>
        <message id="VTULocalization.klSampleNoFiles">
            <source>There are no files in the input folder</source>
            <translation>Non ci sono file nella cartella di input</translation>
        </message>
        <message id="VTULocalization.klSampleLooking">
            <source>Looking at the input folder...</source>
            <translation>Esame della cartella di input...</translation>
        </message>
        <message id="VTULocalization.klSampleSlow">
            <source>The input folder is slow to answer, so there is no sample of its files</source>
            <translation>La cartella di input risponde lentamente, perciò manca l’anteprima dei file</translation>
        </message>
        <message id="VTULocalization.klSampleFolderGone">
            <source>The input folder is not there</source>
            <translation>La cartella di input non esiste</translation>
        </message>
        <message id="VTULocalization.klSampleFailed">
            <source>The input folder can't be read: $1</source>
            <translation>Impossibile leggere la cartella di input: $1</translation>
        </message>
        <message id="VTULocalization.klSampleKeptOut">
            <source>Kept out:</source>
            <translation>Esclusi:</translation>
        </message>
        <message id="VTULocalization.klSampleAndMore">
            <source>and $1 more</source>
            <translation>e ancora $1</translation>
        </message>
        <message id="VTULocalization.klSampleName">
            <source>What the rules select</source>
            <translation>Che cosa selezionano le regole</translation>
        </message>
        <message id="VTULocalization.klWhyHidden">
            <source>hidden</source>
            <translation>nascosto</translation>
        </message>
        <message id="VTULocalization.klWhyNotAFile">
            <source>not a plain file</source>
            <translation>non è un file normale</translation>
        </message>
        <message id="VTULocalization.klWhyEnding">
            <source>another ending</source>
            <translation>altra estensione</translation>
        </message>
        <message id="VTULocalization.klWhyPattern">
            <source>doesn't fit the name pattern</source>
            <translation>non corrisponde allo schema del nome</translation>
        </message>
        <message id="VTULocalization.klWhyExcluded">
            <source>excluded</source>
            <translation>escluso</translation>
        </message>
        <message id="VTULocalization.klWhyExclusionTooCostly">
            <source>the exclusion pattern takes too long on it</source>
            <translation>il criterio di esclusione richiede troppo tempo</translation>
        </message>
        <message id="VTULocalization.klWhyEmpty">
            <source>empty</source>
            <translation>vuoto</translation>
        </message>
        <message id="VTULocalization.klWhyOlder">
            <source>not changed since the last processed date</source>
            <translation>non modificato dopo l’ultima elaborazione</translation>
        </message>
        <message id="VTULocalization.klWhyUnreadable">
            <source>can't be read</source>
            <translation>non leggibile</translation>
        </message>
        <message id="VTULocalization.klWhyStillMoving">
            <source>still being written</source>
            <translation>ancora in scrittura</translation>
        </message>
        <message id="VTULocalization.klWhyDealtWith">
            <source>already processed</source>
            <translation>già elaborato</translation>
        </message>
        <message id="VTULocalization.klListFetching">
            <source>The list is being fetched from the service...</source>
            <translation>L’elenco viene richiesto al servizio...</translation>
        </message>
        <message id="VTULocalization.klListFailed">
            <source>The list is empty because it could not be fetched from the service: $1</source>
            <translation>L’elenco è vuoto perché non è stato possibile ottenerlo dal servizio: $1</translation>
        </message>
        <message id="VTULocalization.klListRefused">
            <source>The list is empty because the service did not give it. Check the login under Admin.</source>
            <translation>L’elenco è vuoto perché il servizio non lo ha fornito. Controllare il login in Admin.</translation>
        </message>
        <message id="VTULocalization.klListNoLogin">
            <source>The list is empty because no login is stored. Enter the service login under Admin.</source>
            <translation>L’elenco è vuoto perché nessun login è memorizzato. Inserire il login del servizio in Admin.</translation>
        </message>
        <message id="VTULocalization.klListNothingThere">
            <source>The service has nothing to choose from for this account.</source>
            <translation>Il servizio non offre nulla da scegliere per questo account.</translation>
        </message>
        <message id="VTULocalization.klExclusionInvalid">
            <source>The file name exclusion is not a valid pattern: $1, at character $2</source>
            <translation>L’esclusione dei nomi di file non è un criterio valido: $1, al carattere $2</translation>
        </message>
        <message id="VTULocalization.klTaskNotSaved">
            <source>There was an error saving this task</source>
            <translation>Si è verificato un errore nel salvataggio di questa attività</translation>
        </message>
        <message id="VTULocalization.klOldTaskNotRemoved">
            <source>The task was saved, but the file of its earlier settings could not be removed, so these will be back as a second task at the next start: $1</source>
            <translation>L’attività è stata salvata, ma non è stato possibile rimuovere il file con le impostazioni precedenti, che al prossimo avvio ricompariranno come seconda attività: $1</translation>
        </message>
        <message id="VTULocalization.klEditorFailed">
            <source>The task editor could not be opened: $1</source>
            <translation>Impossibile aprire l’editor delle attività: $1</translation>
        </message>
        <message id="VTULocalization.klManualAddress">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>Impossibile aprire il browser. Il manuale si trova all’indirizzo $1</translation>
        </message>
        <message id="VTULocalization.klSameFolders">
            <source>The input and output folder cannot be the same</source>
            <translation>La cartella di input e quella di output non possono coincidere</translation>
        </message>
        <message id="VTULocalization.klPleaseEnterAutoMountDetails">
            <source>Please enter the URL, the login and the password of the share first.</source>
            <translation>Inserire prima l’URL, il nome utente e la password della condivisione.</translation>
        </message>
        <message id="VTULocalization.klMountReason">
            <source>$1.</source>
            <translation>$1.</translation>
        </message>
        <message id="VTULocalization.klStop">
            <source>Stop</source>
            <translation>Ferma</translation>
        </message>
        <message id="VTULocalization.klStopMountTest">
            <source>Stop the mount test</source>
            <translation>Interrompere la prova di montaggio</translation>
        </message>
        <message id="VTULocalization.klSelect">
            <source>Select</source>
            <translation>Seleziona</translation>
        </message>
        <message id="VTULocalization.klInputFolderPrompt">
            <source>Select the input folder for this task.
This is the folder that will be watched for new files.</source>
            <translation>Selezionare la cartella di input di questa attività.
La cartella verrà controllata per rilevare nuovi file.</translation>
        </message>
        <message id="VTULocalization.klOutputFolderPrompt">
            <source>Select the output folder for this task.
This is the folder where processed files will be stored.</source>
            <translation>Selezionare la cartella di output di questa attività.
Qui verranno conservati i file elaborati.</translation>
        </message>
        <message id="VTULocalization.klOutputFolder">
            <source>Output Folder</source>
            <translation>Cartella output</translation>
        </message>
        <message id="VTULocalization.klOutputFolderURL">
            <source>Output Folder URL</source>
            <translation>URL cartella output</translation>
        </message>
        <message id="VTULocalization.klInputPassword">
            <source>Input Password</source>
            <translation>Password input</translation>
        </message>
        <message id="VTULocalization.klRegExCue">
            <source>RegEx</source>
            <translation>RegEx</translation>
        </message>
        <message id="VTULocalization.klFileRecognitionHelp">
            <source>Help on file name recognition</source>
            <translation>Aiuto sul riconoscimento dei nomi di file</translation>
        </message>
        <message id="VTULocalization.klRequired">
            <source>Required</source>
            <translation>Obbligatorio</translation>
        </message>
        <message id="VTULocalization.klSetInputFolder">
            <source>Set the input folder</source>
            <translation>Scegli la cartella di input</translation>
        </message>
        <message id="VTULocalization.klSetOutputFolder">
            <source>Set the output folder</source>
            <translation>Scegli la cartella di output</translation>
        </message>
        <message id="VTULocalization.klClearInputFolder">
            <source>Clear the input folder</source>
            <translation>Azzera la scelta della cartella di input</translation>
        </message>
        <message id="VTULocalization.klClearOutputFolder">
            <source>Clear the output folder</source>
            <translation>Azzera la scelta della cartella di output</translation>
        </message>
        <message id="VTULocalization.klAutoMountInput">
            <source>Mount the input folder automatically</source>
            <translation>Monta automaticamente la cartella di input</translation>
        </message>
        <message id="VTULocalization.klAutoMountOutput">
            <source>Mount the output folder automatically</source>
            <translation>Monta automaticamente la cartella di output</translation>
        </message>
        <message id="VTULocalization.klTestMountInput">
            <source>Test mounting the input folder</source>
            <translation>Prova il montaggio della cartella di input</translation>
        </message>
        <message id="VTULocalization.klTestMountOutput">
            <source>Test mounting the output folder</source>
            <translation>Prova il montaggio della cartella di output</translation>
        </message>
        <message id="VTULocalization.klWhyNotSent">
            <source>Why was this file not sent?</source>
            <translation>Perché questo file non è stato inviato?</translation>
        </message>
        <message id="VTULocalization.klWhyMenu">
            <source>Why was a file not sent?...</source>
            <translation>Perché un file non è stato inviato?...</translation>
        </message>
        <message id="VTULocalization.klWhyChoosePrompt">
            <source>Select the file that was not sent by the task &quot;$1&quot;.</source>
            <translation>Selezionare il file che l’attività «$1» non ha inviato.</translation>
        </message>
        <message id="VTULocalization.klWhyHead">
            <source>&quot;$1&quot; and the task &quot;$2&quot;</source>
            <translation>«$1» e l’attività «$2»</translation>
        </message>
        <message id="VTULocalization.klWhyAnswers">
            <source>Answers</source>
            <translation>Risposte</translation>
        </message>
        <message id="VTULocalization.klWhyLooking">
            <source>Looking at the file...</source>
            <translation>Esame del file...</translation>
        </message>
        <message id="VTULocalization.klWhySlow">
            <source>The file's folder does not answer. Check that the folder is connected.</source>
            <translation>La cartella del file non risponde. Controllare che la cartella sia connessa.</translation>
        </message>
        <message id="VTULocalization.klWhyFailed">
            <source>The file's folder can't be read: $1</source>
            <translation>Impossibile leggere la cartella del file: $1</translation>
        </message>
        <message id="VTULocalization.klWhyOneFile">
            <source>Please drop one file at a time.</source>
            <translation>Trascinare un solo file alla volta.</translation>
        </message>
        <message id="VTULocalization.klWhyNotLocal">
            <source>A file at a network address can't be looked at. Drop it from the folder where the share is mounted, or right-click the task and choose the file there.</source>
            <translation>Un file a un indirizzo di rete non può essere esaminato. Trascinarlo dalla cartella in cui è montata la condivisione, oppure fare clic con il tasto destro sull’attività e scegliere lì il file.</translation>
        </message>
        <message id="VTULocalization.klWhyClose">
            <source>Close</source>
            <translation>Chiudi</translation>
        </message>
        <message id="VTULocalization.klWhyYes">
            <source>All right</source>
            <translation>In ordine</translation>
        </message>
        <message id="VTULocalization.klWhyNo">
            <source>Keeps it back</source>
            <translation>Lo trattiene</translation>
        </message>
        <message id="VTULocalization.klWhyDue">
            <source>Nothing keeps it back: it goes out with the next run.</source>
            <translation>Nulla lo trattiene: verrà inviato al prossimo passaggio.</translation>
        </message>
        <message id="VTULocalization.klWhyNotDue">
            <source>It is not sent, for this reason:</source>
            <translation>Non viene inviato per questo motivo:</translation>
        </message>
        <message id="VTULocalization.klWhyNotDueSeveral">
            <source>It is not sent, for these $1 reasons:</source>
            <translation>Non viene inviato per questi $1 motivi:</translation>
        </message>
        <message id="VTULocalization.klWhyReported">
            <source>The task reports: $1</source>
            <translation>L’attività segnala: $1</translation>
        </message>
        <message id="VTULocalization.klYesPlace">
            <source>It lies in the task's input folder.</source>
            <translation>Si trova nella cartella di input dell’attività.</translation>
        </message>
        <message id="VTULocalization.klNoPlace">
            <source>It is not in the task's input folder, which is $1.</source>
            <translation>Non si trova nella cartella di input dell’attività, che è $1.</translation>
        </message>
        <message id="VTULocalization.klYesEnabled">
            <source>The task is switched on.</source>
            <translation>L’attività è attiva.</translation>
        </message>
        <message id="VTULocalization.klNoEnabled">
            <source>The task is disabled. Edit it and clear &quot;Disable Task&quot;.</source>
            <translation>L’attività è disattivata. Modificarla e togliere il segno di spunta da «Disattiva».</translation>
        </message>
        <message id="VTULocalization.klNoFolders">
            <source>The task can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>L’attività non può usare le sue cartelle. Controllare che le cartelle di input e output esistano, siano connesse e scrivibili.</translation>
        </message>
        <message id="VTULocalization.klYesHidden">
            <source>It is not hidden.</source>
            <translation>Non è nascosto.</translation>
        </message>
        <message id="VTULocalization.klNoHidden">
            <source>It is hidden, because its name begins with a dot.</source>
            <translation>È nascosto, perché il suo nome inizia con un punto.</translation>
        </message>
        <message id="VTULocalization.klYesAFile">
            <source>It is a plain file.</source>
            <translation>È un file normale.</translation>
        </message>
        <message id="VTULocalization.klNoAFile">
            <source>It is not a plain file, or it is no longer there.</source>
            <translation>Non è un file normale, oppure non esiste più.</translation>
        </message>
        <message id="VTULocalization.klYesEnding">
            <source>Its name ends in &quot;$1&quot;.</source>
            <translation>Il suo nome termina con «$1».</translation>
        </message>
        <message id="VTULocalization.klNoEnding">
            <source>Its name does not end in &quot;$1&quot;.</source>
            <translation>Il suo nome non termina con «$1».</translation>
        </message>
        <message id="VTULocalization.klYesPattern">
            <source>Its name fits the task's name pattern &quot;$1&quot;.</source>
            <translation>Il suo nome corrisponde allo schema «$1» dell’attività.</translation>
        </message>
        <message id="VTULocalization.klNoPattern">
            <source>Its name does not fit the task's name pattern &quot;$1&quot;.</source>
            <translation>Il suo nome non corrisponde allo schema «$1» dell’attività.</translation>
        </message>
        <message id="VTULocalization.klYesNoPattern">
            <source>The task takes every name with that ending.</source>
            <translation>L’attività accetta ogni nome con questa estensione.</translation>
        </message>
        <message id="VTULocalization.klNoNoPattern">
            <source>The ending of its name is not exactly &quot;$1&quot;.</source>
            <translation>L’estensione del suo nome non è esattamente «$1».</translation>
        </message>
        <message id="VTULocalization.klYesExcluded">
            <source>The exclusion pattern &quot;$1&quot; does not match its name.</source>
            <translation>Il criterio di esclusione «$1» non corrisponde al suo nome.</translation>
        </message>
        <message id="VTULocalization.klYesNoExclusion">
            <source>The task excludes no names.</source>
            <translation>L’attività non esclude alcun nome.</translation>
        </message>
        <message id="VTULocalization.klNoExcluded">
            <source>The exclusion pattern &quot;$1&quot; matches its name.</source>
            <translation>Il criterio di esclusione «$1» corrisponde al suo nome.</translation>
        </message>
        <message id="VTULocalization.klNoExclusionTooCostly">
            <source>The exclusion pattern &quot;$1&quot; takes too long on its name, so it is kept back. Simplify the pattern.</source>
            <translation>Il criterio di esclusione «$1» richiede troppo tempo sul suo nome, perciò viene trattenuto. Semplificare il criterio.</translation>
        </message>
        <message id="VTULocalization.klYesEmpty">
            <source>It is not empty.</source>
            <translation>Non è vuoto.</translation>
        </message>
        <message id="VTULocalization.klNoEmpty">
            <source>It is empty. It is sent when it has content.</source>
            <translation>È vuoto. Verrà inviato quando avrà un contenuto.</translation>
        </message>
        <message id="VTULocalization.klYesReadable">
            <source>It can be read.</source>
            <translation>È leggibile.</translation>
        </message>
        <message id="VTULocalization.klNoReadable">
            <source>It can't be read. Check its permissions.</source>
            <translation>Non è leggibile. Controllare i permessi.</translation>
        </message>
        <message id="VTULocalization.klYesNewer">
            <source>It was changed at $1, and the task's last batch ended at $2.</source>
            <translation>È stato modificato il $1, e l’ultimo lotto dell’attività è terminato il $2.</translation>
        </message>
        <message id="VTULocalization.klYesNeverProcessed">
            <source>It was changed at $1, and the task has no last processed date.</source>
            <translation>È stato modificato il $1, e l’attività non ha ancora una data di elaborazione.</translation>
        </message>
        <message id="VTULocalization.klNoOlder">
            <source>It was last changed at $1, $3 before the task's last batch ended at $2. Save it anew, or edit the task and press &quot;Clear Process Date Stamp&quot; to send all files again.</source>
            <translation>È stato modificato l’ultima volta il $1, $3 prima che l’ultimo lotto dell’attività terminasse, il $2. Salvarlo di nuovo, oppure modificare l’attività e premere «Azzera data elaborazione» per inviare ancora tutti i file.</translation>
        </message>
        <message id="VTULocalization.klYesDealtWith">
            <source>This version of it has not been processed yet.</source>
            <translation>Questa versione del file non è ancora stata elaborata.</translation>
        </message>
        <message id="VTULocalization.klNoDealtWith">
            <source>This version of it, changed at $1, was processed already. The log tells how that ended.</source>
            <translation>Questa versione del file, modificata il $1, è già stata elaborata. Il registro ne riporta l’esito.</translation>
        </message>
        <message id="VTULocalization.klYesAtRest">
            <source>It is at rest.</source>
            <translation>Non è più in scrittura.</translation>
        </message>
        <message id="VTULocalization.klNoAtRest">
            <source>It is still being written, or changed a moment ago. It is sent when it has been at rest for two seconds.</source>
            <translation>È ancora in scrittura o è stato appena modificato. Verrà inviato dopo due secondi senza modifiche.</translation>
        </message>
        <message id="VTULocalization.klFolderSilent">
            <source>&quot;$1&quot; does not answer yet. You can wait, choose another folder, or cancel.</source>
            <translation>«$1» non risponde ancora. È possibile attendere, scegliere un'altra cartella o annullare.</translation>
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
            <translation>$1 h</translation>
        </message>
        <message id="VTULocalization.klSpanDays">
            <source>$1 days</source>
            <translation>$1 giorni</translation>
        </message>
        <message id="VTULocalization.klAutoRefresh">
            <source>Auto Refresh</source>
            <translation>Aggiorna autom.</translation>
        </message>
        <message id="VTULocalization.klFailuresOnly">
            <source>Failures only</source>
            <translation>Solo errori</translation>
        </message>
        <message id="VTULocalization.klFind">
            <source>Find</source>
            <translation>Cerca</translation>
        </message>
        <message id="VTULocalization.klFindTip">
            <source>Shows the entries that hold this text in any column</source>
            <translation>Mostra le voci che contengono questo testo in una colonna qualsiasi</translation>
        </message>
        <message id="VTULocalization.klFailuresOnlyTip">
            <source>Shows the entries of files that were not sent, or not kept whole</source>
            <translation>Mostra le voci dei file non inviati o non conservati per intero</translation>
        </message>
        <message id="VTULocalization.klLogRows">
            <source>Log entries</source>
            <translation>Voci del registro</translation>
        </message>
        <message id="VTULocalization.klLogDetails">
            <source>Details of the selected entry</source>
            <translation>Dettagli della voce selezionata</translation>
        </message>
        <message id="VTULocalization.klLogDivider">
            <source>Divider between the lists</source>
            <translation>Divisore tra gli elenchi</translation>
        </message>
        <message id="VTULocalization.klCopy">
            <source>Copy</source>
            <translation>Copia</translation>
        </message>
        <message id="VTULocalization.klSendAgain">
            <source>Send Again</source>
            <translation>Invia di nuovo</translation>
        </message>
        <message id="VTULocalization.klLogFailedRow">
            <source>Failed: $1</source>
            <translation>Non riuscito: $1</translation>
        </message>
        <message id="VTULocalization.klLogRowGone">
            <source>(deleted)</source>
            <translation>(eliminata)</translation>
        </message>
        <message id="VTULocalization.klLogNone">
            <source>There is no log. $1</source>
            <translation>Non c’è alcun registro. $1</translation>
        </message>
        <message id="VTULocalization.klLogUnreadable">
            <source>The log can't be read. $1</source>
            <translation>Il registro non può essere letto. $1</translation>
        </message>
        <message id="VTULocalization.klLogBusy">
            <source>The program is busy. Please try again in a moment.</source>
            <translation>Il programma è occupato. Riprovare tra un momento.</translation>
        </message>
        <message id="VTULocalization.klLogEmpty">
            <source>The log is empty.</source>
            <translation>Il registro è vuoto.</translation>
        </message>
        <message id="VTULocalization.klLogCleared">
            <source>The view is cleared. The log itself is unchanged: press &quot;Refresh Log&quot; to see it again.</source>
            <translation>La vista è vuota. Il registro stesso è invariato: premere «Aggiorna» per rivederlo.</translation>
        </message>
        <message id="VTULocalization.klLogNoMatch">
            <source>No entry matches.</source>
            <translation>Nessuna voce corrisponde.</translation>
        </message>
        <message id="VTULocalization.klLogNoRecords">
            <source>No records availble</source>
            <translation>Nessuna voce disponibile</translation>
        </message>
        <message id="VTULocalization.klLogExporting">
            <source>Exporting to &quot;$1&quot;...</source>
            <translation>Esportazione in «$1»...</translation>
        </message>
        <message id="VTULocalization.klLogNotExported">
            <source>The log was not exported safely. Under that name stands what was there before or the whole export, never a part of it.

$1</source>
            <translation>Il registro non è stato esportato in modo sicuro. Con quel nome c’è ciò che c’era prima o l’intera esportazione, mai una parte.

$1</translation>
        </message>
        <message id="VTULocalization.klLogRowsGone">
            <source>Some of the entries are no longer in the log. Press &quot;Refresh Log&quot; and export again.</source>
            <translation>Alcune voci non sono più nel registro. Premere «Aggiorna» ed esportare di nuovo.</translation>
        </message>
        <message id="VTULocalization.klLogStopExport">
            <source>The export is not finished. Do you want to close the window and cancel it?</source>
            <translation>L’esportazione non è terminata. Chiudere la finestra e annullarla?</translation>
        </message>
        <message id="VTULocalization.klLogCopyTooMany">
            <source>These are too many entries for the clipboard. Please use &quot;Export to txt&quot;.</source>
            <translation>Le voci sono troppe per gli appunti. Usare «Esporta in txt».</translation>
        </message>
        <message id="VTULocalization.klSendAgainQuestion">
            <source>Do you want to send these files again?

$1

The date of each file is set to now, so that its task sends it with its next run.</source>
            <translation>Inviare di nuovo questi file?

$1

La data di ogni file diventa quella attuale, così la sua attività lo invia al prossimo passaggio.</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainQuestion">
            <source>Do you want to send this file again?

$1

Its date is set to now, so that its task sends it with its next run.</source>
            <translation>Inviare di nuovo questo file?

$1

La sua data diventa quella attuale, così la sua attività lo invia al prossimo passaggio.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNotTaken">
            <source>No task that is switched on takes these files. They will wait until one does:

$1</source>
            <translation>Nessuna attività attiva prende questi file. Aspetteranno finché una lo farà:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainNotTaken">
            <source>No task that is switched on takes this file. It will wait until one does:

$1</source>
            <translation>Nessuna attività attiva prende questo file. Aspetterà finché una lo farà:

$1</translation>
        </message>
        <message id="VTULocalization.klSendAgainMore">
            <source>and $1 more</source>
            <translation>e altri $1</translation>
        </message>
        <message id="VTULocalization.klSendAgainTooMany">
            <source>No more than 1,000 entries can be sent again at once.</source>
            <translation>Non è possibile inviare di nuovo più di 1.000 voci alla volta.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNone">
            <source>None of these files is in its input folder any more.</source>
            <translation>Nessuno di questi file si trova ancora nella cartella di input.</translation>
        </message>
        <message id="VTULocalization.klSendAgainFailed">
            <source>These files are not sent again, because their date could not be set:

$1</source>
            <translation>Questi file non vengono inviati di nuovo, perché la loro data non può essere modificata:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainFailed">
            <source>This file is not sent again, because its date could not be set:

$1</source>
            <translation>Questo file non viene inviato di nuovo, perché la sua data non può essere modificata:

$1</translation>
        </message>
        <message id="VTULocalization.klTestLineName">
            <source>Connection test</source>
            <translation>Prova di connessione</translation>
        </message>
        <message id="VTULocalization.klTestRunning">
            <source>Asking the service...</source>
            <translation>Richiesta al servizio...</translation>
        </message>
        <message id="VTULocalization.klTestSucceeded">
            <source>The service took the login.</source>
            <translation>Il servizio ha accettato il login.</translation>
        </message>
        <message id="VTULocalization.klTestSucceededProxy">
            <source>The service took the login, by way of the proxy ($1).</source>
            <translation>Il servizio ha accettato il login, tramite il proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestSucceededNoPort">
            <source>The service took the login, but without the proxy: its port is not valid.</source>
            <translation>Il servizio ha accettato il login, ma senza il proxy: la porta non è valida.</translation>
        </message>
        <message id="VTULocalization.klTestErrorAnswered">
            <source>The service answered with an error.</source>
            <translation>Il servizio ha risposto con un errore.</translation>
        </message>
        <message id="VTULocalization.klTestNameUnknown">
            <source>No answer: the name of the service can't be found ($1).</source>
            <translation>Nessuna risposta: il nome del servizio non si trova ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNameUnknown">
            <source>No answer: the name of the proxy can't be found ($1).</source>
            <translation>Nessuna risposta: il nome del proxy non si trova ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotReached">
            <source>No answer: the service can't be reached ($1).</source>
            <translation>Nessuna risposta: il servizio non è raggiungibile ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNotReached">
            <source>No answer: the proxy can't be reached ($1).</source>
            <translation>Nessuna risposta: il proxy non è raggiungibile ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyRefused">
            <source>No answer: the proxy did not connect to the service ($1).</source>
            <translation>Nessuna risposta: il proxy non si è connesso al servizio ($1).</translation>
        </message>
        <message id="VTULocalization.klTestTlsFailed">
            <source>No answer: no secure connection (TLS) with $1.</source>
            <translation>Nessuna risposta: nessuna connessione sicura (TLS) con $1.</translation>
        </message>
        <message id="VTULocalization.klTestTimedOut">
            <source>No answer in time from the service ($1).</source>
            <translation>Nessuna risposta in tempo dal servizio ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyTimedOut">
            <source>No answer in time from the proxy ($1).</source>
            <translation>Nessuna risposta in tempo dal proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestBroken">
            <source>No answer: the connection broke off ($1).</source>
            <translation>Nessuna risposta: la connessione si è interrotta ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotTheService">
            <source>No answer of the service: something else answered.</source>
            <translation>Nessuna risposta del servizio: ha risposto qualcos’altro.</translation>
        </message>
        <message id="VTULocalization.klBackupLineName">
            <source>Backup of the tasks</source>
            <translation>Backup delle attività</translation>
        </message>
        <message id="VTULocalization.klBackupUnderWay">
            <source>Saving the tasks...</source>
            <translation>Salvataggio delle attività...</translation>
        </message>
        <message id="VTULocalization.klBackupDone">
            <source>The tasks are saved.</source>
            <translation>Le attività sono salvate.</translation>
        </message>
        <message id="VTULocalization.klRestoreUnderWay">
            <source>Loading the tasks...</source>
            <translation>Caricamento delle attività...</translation>
        </message>
        <message id="VTULocalization.klRestoreDone">
            <source>The tasks are loaded. They join the list when this window is closed.</source>
            <translation>Le attività sono caricate. Entrano nell’elenco alla chiusura di questa finestra.</translation>
        </message>
        <message id="VTULocalization.klBackupSlow">
            <source>The folder is slow to answer. Closing this window stops the copying.</source>
            <translation>La cartella risponde lentamente. La chiusura di questa finestra interrompe la copia.</translation>
        </message>
        <message id="VTULocalization.klBackupFailed">
            <source>These task files could not be saved:</source>
            <translation>Impossibile salvare questi file di attività:</translation>
        </message>
        <message id="VTULocalization.klRestoreFailed">
            <source>These task files could not be loaded:</source>
            <translation>Impossibile caricare questi file di attività:</translation>
        </message>
        <message id="VTULocalization.klCopyingStopped">
            <source>The copying was stopped, because the window was closed. These task files were not copied:</source>
            <translation>La copia è stata interrotta perché la finestra è stata chiusa. Questi file di attività non sono stati copiati:</translation>
        </message>
        <message id="VTULocalization.klNotBegun">
            <source>Earlier calls still wait for an answer. Please try again in a moment.</source>
            <translation>Richieste precedenti attendono ancora una risposta. Riprovare tra un momento.</translation>
        </message>
        <message id="VTULocalization.klAdminFailed">
            <source>The admin window could not be opened: $1</source>
            <translation>Impossibile aprire la finestra Admin: $1</translation>
        </message>
        <message id="VTULocalization.klTheProxy">
            <source>the proxy $1</source>
            <translation>proxy $1</translation>
        </message>
        <message id="VTULocalization.klAddressInvalid">
            <source>the address of the service is not valid</source>
            <translation>l’indirizzo del servizio non è valido</translation>
        </message>
        <message id="VTULocalization.klHeaderInvalid">
            <source>a header of the request can't be written on one line</source>
            <translation>un’intestazione della richiesta non sta su una riga</translation>
        </message>
        <message id="VTULocalization.klNameInvalid">
            <source>$1 has no valid host name</source>
            <translation>$1 non ha un nome host valido</translation>
        </message>
        <message id="VTULocalization.klNameUnknown">
            <source>the name of $1 is not known: $2</source>
            <translation>il nome di $1 non è noto: $2</translation>
        </message>
        <message id="VTULocalization.klLookUpSlow">
            <source>the look-up of the name of $1 took too long</source>
            <translation>la risoluzione del nome di $1 ha richiesto troppo tempo</translation>
        </message>
        <message id="VTULocalization.klLookUpsHang">
            <source>the name of $1 can't be looked up: earlier look-ups still hang</source>
            <translation>impossibile risolvere il nome di $1: richieste precedenti sono ancora bloccate</translation>
        </message>
        <message id="VTULocalization.klConnectingSlow">
            <source>connecting to $1 took too long</source>
            <translation>la connessione a $1 ha richiesto troppo tempo</translation>
        </message>
        <message id="VTULocalization.klNoConnection">
            <source>no connection to $1: $2</source>
            <translation>nessuna connessione a $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsLibraryFailed">
            <source>OpenSSL could not be set up</source>
            <translation>impossibile inizializzare OpenSSL</translation>
        </message>
        <message id="VTULocalization.klTlsNotSetUp">
            <source>TLS with $1 could not be set up</source>
            <translation>impossibile preparare TLS con $1</translation>
        </message>
        <message id="VTULocalization.klTlsSilent">
            <source>$1 did not answer in the TLS handshake</source>
            <translation>$1 non ha risposto durante la negoziazione TLS</translation>
        </message>
        <message id="VTULocalization.klNoTlsConnection">
            <source>no TLS connection to $1: $2</source>
            <translation>nessuna connessione TLS a $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsError">
            <source>TLS error $1</source>
            <translation>errore TLS $1</translation>
        </message>
        <message id="VTULocalization.klItClosed">
            <source>it closed the connection</source>
            <translation>la controparte ha chiuso la connessione</translation>
        </message>
        <message id="VTULocalization.klCertificateRefused">
            <source>the certificate of $1 is not accepted: $2</source>
            <translation>il certificato di $1 non è accettato: $2</translation>
        </message>
        <message id="VTULocalization.klTrustFileUnusable">
            <source>the file of trusted certificates &quot;$1&quot; can't be used</source>
            <translation>il file dei certificati attendibili «$1» non è utilizzabile</translation>
        </message>
        <message id="VTULocalization.klRefusedWithStatus">
            <source>$1 refused with status $2</source>
            <translation>$1 ha rifiutato con lo stato $2</translation>
        </message>
        <message id="VTULocalization.klNoAnswerWithin">
            <source>$1 did not answer within $2 s</source>
            <translation>$1 non ha risposto entro $2 s</translation>
        </message>
        <message id="VTULocalization.klRequestNotTaken">
            <source>$1 did not take the whole request within $2 s</source>
            <translation>$1 non ha accettato l’intera richiesta entro $2 s</translation>
        </message>
        <message id="VTULocalization.klReplyStopped">
            <source>$1 fell silent in its reply for $2 s</source>
            <translation>$1 è rimasto in silenzio per $2 s durante la risposta</translation>
        </message>
        <message id="VTULocalization.klConnectionBroke">
            <source>the connection to $1 broke: $2</source>
            <translation>la connessione a $1 si è interrotta: $2</translation>
        </message>
        <message id="VTULocalization.klClosedConnection">
            <source>$1 closed the connection</source>
            <translation>$1 ha chiuso la connessione</translation>
        </message>
        <message id="VTULocalization.klClosedInRequest">
            <source>$1 closed the connection before it had the whole request</source>
            <translation>$1 ha chiuso la connessione prima di ricevere l’intera richiesta</translation>
        </message>
        <message id="VTULocalization.klClosedInReply">
            <source>$1 closed the connection before its reply was complete</source>
            <translation>$1 ha chiuso la connessione prima di completare la risposta</translation>
        </message>
        <message id="VTULocalization.klAnsweredEarly">
            <source>$1 answered before it had the whole request</source>
            <translation>$1 ha risposto prima di ricevere l’intera richiesta</translation>
        </message>
        <message id="VTULocalization.klReplyTooLarge">
            <source>the reply of $1 is too large</source>
            <translation>la risposta di $1 è troppo grande</translation>
        </message>
        <message id="VTULocalization.klReplyBadLength">
            <source>$1 announced a reply of an impossible length</source>
            <translation>$1 ha annunciato una risposta di lunghezza impossibile</translation>
        </message>
        <message id="VTULocalization.klContentShort">
            <source>the content could not be read to its end</source>
            <translation>impossibile leggere il contenuto fino alla fine</translation>
        </message>
        <message id="VTULocalization.klFileChanged">
            <source>the file changed before it was sent whole</source>
            <translation>il file è cambiato prima di essere inviato per intero</translation>
        </message>
        <message id="VTULocalization.klNoFileToSend">
            <source>there is no file to send</source>
            <translation>non c’è alcun file da inviare</translation>
        </message>
        <message id="VTULocalization.klStopped">
            <source>stopped</source>
            <translation>fermato</translation>
        </message>
        <message id="VTULocalization.klNoInputFolder">
            <source>the task has no input folder</source>
            <translation>l’attività non ha una cartella di input</translation>
        </message>
        <message id="EditTaskWindow.klAddDatetoFileName">
            <source>Add Date to File Name</source>
            <translation>Aggiungi data al nome del file</translation>
        </message>
        <message id="EditTaskWindow.klAutoRecognition">
            <source>Auto Recognition</source>
            <translation>Riconoscimento automatico</translation>
        </message>
        <message id="EditTaskWindow.klDeleteFileAfterCopy">
            <source>Delete File After Copy</source>
            <translation>Elimina il file dopo la copia</translation>
        </message>
        <message id="EditTaskWindow.klExtension">
            <source>Extension</source>
            <translation>Estensione</translation>
        </message>
        <message id="EditTaskWindow.klFileNameExclusion">
            <source>File Name Exclusion</source>
            <translation>Esclusione nomi di file</translation>
        </message>
        <message id="EditTaskWindow.klFileNameRecognition">
            <source>File Name Recognition</source>
            <translation>Riconoscimento nome file</translation>
        </message>
        <message id="EditTaskWindow.klPrefix">
            <source>Prefix</source>
            <translation>Prefisso</translation>
        </message>
        <message id="EditTaskWindow.klSelectTrack">
            <source>Select Track</source>
            <translation>Scegli track</translation>
        </message>
        <message id="MainMenuBar.klFileMenu">
            <source>&amp;File</source>
            <translation>&amp;File</translation>
        </message>
        <message id="MainMenuBar.klFileAbout">
            <source>About Vantry Uploader...</source>
            <translation>Informazioni su Vantry Uploader...</translation>
        </message>
        <message id="MainMenuBar.klFileQuit">
            <source>&amp;Quit</source>
            <translation>&amp;Esci</translation>
        </message>
        <message id="MainMenuBar.klEditMenu">
            <source>&amp;Edit</source>
            <translation>&amp;Modifica</translation>
        </message>
        <message id="MainMenuBar.klEditUndo">
            <source>&amp;Undo</source>
            <translation>&amp;Annulla</translation>
        </message>
        <message id="MainMenuBar.klEditCut">
            <source>Cu&amp;t</source>
            <translation>&amp;Taglia</translation>
        </message>
        <message id="MainMenuBar.klEditCopy">
            <source>&amp;Copy</source>
            <translation>&amp;Copia</translation>
        </message>
        <message id="MainMenuBar.klEditPaste">
            <source>&amp;Paste</source>
            <translation>&amp;Incolla</translation>
        </message>
        <message id="MainMenuBar.klEditClear">
            <source>&amp;Delete</source>
            <translation>&amp;Elimina</translation>
        </message>
        <message id="MainMenuBar.klEditSelectAll">
            <source>Select &amp;All</source>
            <translation>&amp;Seleziona tutto</translation>
        </message>
        <message id="MainMenuBar.klAboutTitle">
            <source>About</source>
            <translation>Informazioni</translation>
        </message>
        <message id="VantryUtil.E002">
            <source>No patches found. Check instrument/software settings.</source>
            <translation>Nessuna patch trovata. Controllare le impostazioni di strumento e software.</translation>
        </message>
        <message id="VantryUtil.E003">
            <source>Database connection issues. Check website/ server connection.</source>
            <translation>Problemi di connessione al database. Controllare la connessione al sito web e al server.</translation>
        </message>
        <message id="VantryUtil.E004">
            <source>Wrong measurement conditions - possible mismatch. Check both application and track/ tool preferences (M0, M1, M2, M3)</source>
            <translation>Condizioni di misura errate, forse non corrispondenti. Controllare le preferenze dell’applicazione e del track/strumento (M0, M1, M2, M3)</translation>
        </message>
        <message id="VantryUtil.E005">
            <source>Wrong mode. Mode shall be either production or makeready.</source>
            <translation>Modalità errata. La modalità deve essere tiratura (production) o avviamento (makeready).</translation>
        </message>
        <message id="VantryUtil.E006">
            <source>Wrong backing. Backing shall be either white or black.</source>
            <translation>Fondo di misura errato. Il fondo deve essere bianco (white) o nero (black).</translation>
        </message>
        <message id="VantryUtil.E007">
            <source>Filename cannot be empty.</source>
            <translation>Il nome del file non può essere vuoto.</translation>
        </message>
        <message id="VantryUtil.E008">
            <source>Requested track not found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Il track richiesto non è stato trovato. Con il riconoscimento automatico controllare le impostazioni: applicazione e sito web devono corrispondere esattamente.</translation>
        </message>
        <message id="VantryUtil.E009">
            <source>Wrong login/password combination. Note: SOAP protocol uses separate login/ password combination. Consult user manual to learn more.</source>
            <translation>Combinazione di login e password errata. Nota: il protocollo SOAP usa un login e una password distinti. Consultare il manuale.</translation>
        </message>
        <message id="VantryUtil.E010">
            <source>No tracks found.</source>
            <translation>Nessun track trovato.</translation>
        </message>
        <message id="VantryUtil.E011">
            <source>Spectral data missing.</source>
            <translation>Dati spettrali mancanti.</translation>
        </message>
        <message id="VantryUtil.E012">
            <source>Wrong color definition.</source>
            <translation>Definizione del colore errata.</translation>
        </message>
        <message id="VantryUtil.E013">
            <source>Date format unrecognized.</source>
            <translation>Formato della data non riconosciuto.</translation>
        </message>
        <message id="VantryUtil.E014">
            <source>Sheet number must be an integer.</source>
            <translation>Il numero del foglio deve essere un intero.</translation>
        </message>
        <message id="VantryUtil.E015">
            <source>Unknown dryback value. (E015)</source>
            <translation>Valore di dryback sconosciuto. (E015)</translation>
        </message>
        <message id="VantryUtil.E016">
            <source>User is registered on dedicated instance, API URL needs to be changed</source>
            <translation>L’utente è registrato su un’istanza dedicata, occorre cambiare l’URL dell’API</translation>
        </message>
        <message id="VantryUtil.E017">
            <source>Operator is not authenticated, please check Your login/password combination.</source>
            <translation>L’operatore non è autenticato, controllare login e password.</translation>
        </message>
        <message id="VantryUtil.E018">
            <source>No devices found.</source>
            <translation>Nessun dispositivo trovato.</translation>
        </message>
        <message id="VantryUtil.E019">
            <source>Selected operator is not assigned to any of printing devices</source>
            <translation>L’operatore scelto non è assegnato ad alcun dispositivo di stampa</translation>
        </message>
        <message id="VantryUtil.E020">
            <source>No Scanning Templates found</source>
            <translation>Nessun modello di misura trovato</translation>
        </message>
        <message id="VantryUtil.E021">
            <source>No measurement tasks avaliable</source>
            <translation>Nessuna attività di misura disponibile</translation>
        </message>
        <message id="VantryUtil.E022">
            <source>Scanning Template not found</source>
            <translation>Modello di misura non trovato</translation>
        </message>
        <message id="VantryUtil.E023">
            <source>Control Strip not foundControl Strip not found</source>
            <translation>Scala di controllo non trovata</translation>
        </message>
        <message id="VantryUtil.E024">
            <source>Control Strip patches not found</source>
            <translation>Patch della scala di controllo non trovate</translation>
        </message>
        <message id="VantryUtil.E025">
            <source>Selected job does not belong to selected track</source>
            <translation>Il lavoro scelto non appartiene al track scelto</translation>
        </message>
        <message id="VantryUtil.E026">
            <source>No jobs found</source>
            <translation>Nessun lavoro trovato</translation>
        </message>
        <message id="VantryUtil.E027">
            <source>Color Library/Palette not found</source>
            <translation>Libreria o tavolozza colori non trovata</translation>
        </message>
        <message id="VantryUtil.E028">
            <source>No instruments found</source>
            <translation>Nessuno strumento trovato</translation>
        </message>
        <message id="VantryUtil.E102">
            <source>No Instrument - Target pair found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Nessuna coppia strumento-target trovata. Con il riconoscimento automatico controllare le impostazioni: applicazione e sito web devono corrispondere esattamente.</translation>
        </message>
        <message id="VantryUtil.E103">
            <source>Measured file does not have required list of patches.</source>
            <translation>Il file misurato non contiene l’elenco di patch richiesto.</translation>
        </message>
        <message id="VantryUtil.EUnknownError">
            <source>Unknown Error</source>
            <translation>Errore sconosciuto</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateOff">
            <source>Off</source>
            <translation>Non attiva</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateProcessing">
            <source>Sending files</source>
            <translation>Invio di file</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateReady">
            <source>Ready</source>
            <translation>Pronta</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateFault">
            <source>A folder is missing or can't be written</source>
            <translation>Una cartella manca o non è scrivibile</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasks">
            <source>Tasks</source>
            <translation>Attività</translation>
        </message>
        <message id="VTUploaderMainWIndow.klHelp">
            <source>Help</source>
            <translation>Aiuto</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNoTasks">
            <source>There are no tasks yet. Press &quot;$1&quot; to set up the first one.</source>
            <translation>Non ci sono ancora attività. Premere «$1» per configurare la prima.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskEditor">
            <source>The task editor</source>
            <translation>L’editor delle attività</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripAndMore">
            <source>(and $1 more)</source>
            <translation>(e ancora $1)</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasksAboutToLoad">
            <source>The restored tasks are loaded as soon as the files under way are sent.</source>
            <translation>Le attività ripristinate vengono caricate non appena i file in corso sono inviati.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripFolderFault">
            <source>Task &quot;$1&quot; can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>L’attività «$1» non può usare le sue cartelle. Controllare che le cartelle di input e output esistano, siano connesse e scrivibili.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotDuplicated">
            <source>The task could not be duplicated: $1</source>
            <translation>Impossibile duplicare l’attività: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotRemoved">
            <source>The task is off the list, but its file could not be removed, so it will be back at the next start: $1</source>
            <translation>L’attività non è più nell’elenco, ma non è stato possibile rimuoverne il file; ricomparirà quindi al prossimo avvio: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klManualNotOpened">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>Impossibile aprire il browser. Il manuale si trova all’indirizzo $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNewVersion">
            <source>Version $1 is availble newer and availbale.
Would you like to downlownload it now?</source>
            <translation>È disponibile la versione più recente $1.
Scaricarla adesso?</translation>
        </message>
        <message id="VTUploaderMainWIndow.klDownloadNotOpened">
            <source>The download can't be opened from here. Its address is $1</source>
            <translation>Impossibile aprire il download da qui. Il suo indirizzo è $1</translation>
        </message>
        <message id="Reasons.klListing">
            <source>listing $1</source>
            <translation>elenco di $1</translation>
        </message>
        <message id="Reasons.klReading">
            <source>reading $1</source>
            <translation>lettura di $1</translation>
        </message>
        <message id="Reasons.klWriting">
            <source>writing $1</source>
            <translation>scrittura di $1</translation>
        </message>
        <message id="Reasons.klCopying">
            <source>copying $1 to $2</source>
            <translation>copia di $1 in $2</translation>
        </message>
        <message id="Reasons.klRenaming">
            <source>renaming $1</source>
            <translation>ridenominazione di $1</translation>
        </message>
        <message id="Reasons.klRenamingTo">
            <source>renaming $1 to $2</source>
            <translation>ridenominazione di $1 in $2</translation>
        </message>
        <message id="Reasons.klSettingDate">
            <source>setting the date of $1</source>
            <translation>modifica della data di $1</translation>
        </message>
        <message id="Reasons.klDeleting">
            <source>deleting $1</source>
            <translation>eliminazione di $1</translation>
        </message>
        <message id="Reasons.klMakingFolder">
            <source>making the folder $1</source>
            <translation>creazione della cartella $1</translation>
        </message>
        <message id="Reasons.klFlushingFolder">
            <source>flushing the folder of $1</source>
            <translation>scrittura su disco della cartella di $1</translation>
        </message>
        <message id="Reasons.klEnciphering">
            <source>enciphering $1</source>
            <translation>cifratura di $1</translation>
        </message>
        <message id="Reasons.klWritingOver">
            <source>writing over $1, which could not be read</source>
            <translation>sovrascrittura di $1, che non è stato possibile leggere</translation>
        </message>
        <message id="Reasons.klSavingWithoutFile">
            <source>saving without a file</source>
            <translation>salvataggio senza file</translation>
        </message>
        <message id="Reasons.klMakingIt">
            <source>making it</source>
            <translation>creazione del file</translation>
        </message>
        <message id="Reasons.klNotOurs">
            <source>it is not a settings file, or it is damaged</source>
            <translation>non è un file di impostazioni, oppure è danneggiato</translation>
        </message>
        <message id="Reasons.klOtherProgram">
            <source>it is damaged, or another program wrote it</source>
            <translation>è danneggiato, oppure lo ha scritto un altro programma</translation>
        </message>
        <message id="Reasons.klNotAnObject">
            <source>its content is not a JSON object</source>
            <translation>il suo contenuto non è un oggetto JSON</translation>
        </message>
        <message id="Reasons.klContentGone">
            <source>its content is gone</source>
            <translation>il suo contenuto è sparito</translation>
        </message>
        <message id="Reasons.klEndCutOff">
            <source>its end is cut off</source>
            <translation>la sua fine è troncata</translation>
        </message>
        <message id="Reasons.klWriteProtected">
            <source>the file is write-protected</source>
            <translation>il file è protetto da scrittura</translation>
        </message>
    </context>
</TS>
