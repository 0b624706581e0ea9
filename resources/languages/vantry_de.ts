<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
    <context>
        <name></name>
        <message id="VTULocalization.klAdmin">
            <source>Admin</source>
            <translation>Admin</translation>
        </message>
        <message id="VTULocalization.klAdminLock">
            <source>Admin Lock</source>
            <translation>Admin-Sperre</translation>
        </message>
        <message id="VTULocalization.klAdminPasswordRequired">
            <source>Admin Password Required</source>
            <translation>Admin-Passwort erforderlich</translation>
        </message>
        <message id="VTULocalization.klAutoMount">
            <source>Auto Mount</source>
            <translation>Auto-Mount</translation>
        </message>
        <message id="VTULocalization.klBackup">
            <source>Backup</source>
            <translation>Sicherung</translation>
        </message>
        <message id="VTULocalization.klBackupDescription">
            <source>Select a directory where a backup of your tasks will be stored.</source>
            <translation>Wählen Sie den Ordner, in dem Ihre Aufgaben gesichert werden sollen.</translation>
        </message>
        <message id="VTULocalization.klCancel">
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
        <message id="VTULocalization.klCheckandConnect">
            <source>Check and Connect</source>
            <translation>Prüfen und verbinden</translation>
        </message>
        <message id="VTULocalization.klCheckForUpdates">
            <source>Check For Updates</source>
            <translation>Nach Updates suchen</translation>
        </message>
        <message id="VTULocalization.klClear">
            <source>Clear</source>
            <translation>Leeren</translation>
        </message>
        <message id="VTULocalization.klClearLog">
            <source>Clear Log</source>
            <translation>Anzeige leeren</translation>
        </message>
        <message id="VTULocalization.klClearProcessDateStamp">
            <source>Clear Process Date Stamp</source>
            <translation>Verarbeitungsdatum löschen</translation>
        </message>
        <message id="VTULocalization.klCouldNotMount">
            <source>Error Mounting</source>
            <translation>Fehler beim Einbinden</translation>
        </message>
        <message id="VTULocalization.klDeleteLog">
            <source>Delete Log History</source>
            <translation>Protokoll löschen</translation>
        </message>
        <message id="VTULocalization.klDeleteTaskConfirmation">
            <source>Are you sure you want to delete this task?</source>
            <translation>Möchten Sie diese Aufgabe wirklich löschen?</translation>
        </message>
        <message id="VTULocalization.klDisableTask">
            <source>Disable Task</source>
            <translation>Deaktivieren</translation>
        </message>
        <message id="VTULocalization.klDuplicate">
            <source>Duplicate</source>
            <translation>Duplizieren</translation>
        </message>
        <message id="VTULocalization.klEdit">
            <source>Edit</source>
            <translation>Bearbeiten</translation>
        </message>
        <message id="VTULocalization.klEditTask">
            <source>Edit Task</source>
            <translation>Aufgabe bearbeiten</translation>
        </message>
        <message id="VTULocalization.klEnteradminpassword">
            <source>Enter admin password</source>
            <translation>Admin-Passwort eingeben</translation>
        </message>
        <message id="VTULocalization.klExporttotxt">
            <source>Export to txt</source>
            <translation>Als txt sichern</translation>
        </message>
        <message id="VTULocalization.klField">
            <source>Field</source>
            <translation>Feld</translation>
        </message>
        <message id="VTULocalization.klFiles">
            <source>Files</source>
            <translation>Dateien</translation>
        </message>
        <message id="VTULocalization.klIncorrectPassword">
            <source>Incorrect Administrator Password Entered</source>
            <translation>Das eingegebene Administratorpasswort ist falsch</translation>
        </message>
        <message id="VTULocalization.klInputFolder">
            <source>Input Folder</source>
            <translation>Eingabeordner</translation>
        </message>
        <message id="VTULocalization.KLInputFolderURL">
            <source>Input Folder URL</source>
            <translation>URL des Eingabeordners</translation>
        </message>
        <message id="VTULocalization.klInputLogin">
            <source>Input Login</source>
            <translation>Eingabe-Login</translation>
        </message>
        <message id="VTULocalization.klWarden">
            <source>Warden</source>
            <translation>Warden</translation>
        </message>
        <message id="VTULocalization.klInstrument">
            <source>Instrument</source>
            <translation>Messgerät</translation>
        </message>
        <message id="VTULocalization.klLoad">
            <source>Load</source>
            <translation>Laden</translation>
        </message>
        <message id="VTULocalization.klLoadConfiguration">
            <source>Load Configuration</source>
            <translation>Konfiguration laden</translation>
        </message>
        <message id="VTULocalization.klLoadConfigurationDescription">
            <source>Select a folder containing a backup of uploader tasks to be restored.</source>
            <translation>Wählen Sie einen Ordner mit gesicherten Aufgaben, die wiederhergestellt werden sollen.</translation>
        </message>
        <message id="VTULocalization.klLocktasklist">
            <source>Lock task list</source>
            <translation>Aufgabenliste sperren</translation>
        </message>
        <message id="VTULocalization.klNA">
            <source>n/a</source>
            <translation>k. A.</translation>
        </message>
        <message id="VTULocalization.klNew">
            <source>New</source>
            <translation>Neu</translation>
        </message>
        <message id="VTULocalization.klNoTasksToSave">
            <source>There are no tasks avaible to backup</source>
            <translation>Es sind keine Aufgaben zum Sichern vorhanden</translation>
        </message>
        <message id="VTULocalization.klOK">
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message id="VTULocalization.klOutputLogin">
            <source>Output Login</source>
            <translation>Ausgabe-Login</translation>
        </message>
        <message id="VTULocalization.klOutputPassword">
            <source>Output Password</source>
            <translation>Ausgabe-Passwort</translation>
        </message>
        <message id="VTULocalization.klPassword">
            <source>Password</source>
            <translation>Passwort</translation>
        </message>
        <message id="VTULocalization.KLPrint">
            <source>Print</source>
            <translation>Druck</translation>
        </message>
        <message id="VTULocalization.klProxy">
            <source>Proxy</source>
            <translation>Proxy</translation>
        </message>
        <message id="VTULocalization.klProxyAddress">
            <source>Proxy Address</source>
            <translation>Proxy-Adresse</translation>
        </message>
        <message id="VTULocalization.klProxyPort">
            <source>Proxy Port</source>
            <translation>Proxy-Port</translation>
        </message>
        <message id="VTULocalization.klReenteradminpassword">
            <source>Re-enter admin password</source>
            <translation>Admin-Passwort wiederholen</translation>
        </message>
        <message id="VTULocalization.klRefreshLog">
            <source>Refresh Log</source>
            <translation>Aktualisieren</translation>
        </message>
        <message id="VTULocalization.klRemove">
            <source>Remove</source>
            <translation>Entfernen</translation>
        </message>
        <message id="VTULocalization.klReplaceFileName">
            <source>Replace Name</source>
            <translation>Namen ersetzen</translation>
        </message>
        <message id="VTULocalization.klSave">
            <source>Save</source>
            <translation>Sichern</translation>
        </message>
        <message id="VTULocalization.klSaveConfiguration">
            <source>Save Configuration</source>
            <translation>Konfiguration sichern</translation>
        </message>
        <message id="VTULocalization.klSelectBackupDirectory">
            <source>Backup Directory</source>
            <translation>Sicherungsordner</translation>
        </message>
        <message id="VTULocalization.KLSelectInstrument">
            <source>Select Instrument</source>
            <translation>Messgerät wählen</translation>
        </message>
        <message id="VTULocalization.klSelectPress">
            <source>Select Press</source>
            <translation>Druckmaschine wählen</translation>
        </message>
        <message id="VTULocalization.klSelectTarget">
            <source>Select Target</source>
            <translation>Messvorlage wählen</translation>
        </message>
        <message id="VTULocalization.klSEt">
            <source>Set</source>
            <translation>Wählen</translation>
        </message>
        <message id="VTULocalization.klShowLog">
            <source>Show Log...</source>
            <translation>Protokoll...</translation>
        </message>
        <message id="VTULocalization.klSOAPConnection">
            <source>SOAP Connection</source>
            <translation>SOAP-Verbindung</translation>
        </message>
        <message id="VTULocalization.klSOAPLogin">
            <source>SOAP Login</source>
            <translation>SOAP-Login</translation>
        </message>
        <message id="VTULocalization.klSoapPassword">
            <source>SOAP Password</source>
            <translation>SOAP-Passwort</translation>
        </message>
        <message id="VTULocalization.klSoftwareUpToDate">
            <source>Your software is up to date</source>
            <translation>Ihre Software ist auf dem neuesten Stand</translation>
        </message>
        <message id="VTULocalization.klStatus">
            <source>Status</source>
            <translation>Status</translation>
        </message>
        <message id="VTULocalization.klSureYouWantToQuit">
            <source>Are you sure you want to quit?

Uploads will stop processing when the application quit.</source>
            <translation>Möchten Sie das Programm wirklich beenden?

Danach werden keine Dateien mehr hochgeladen.</translation>
        </message>
        <message id="VTULocalization.klTaskCurrentlyProcessing">
            <source>This task is currently processing. Please try again in a moment</source>
            <translation>Diese Aufgabe wird gerade verarbeitet. Bitte versuchen Sie es gleich noch einmal.</translation>
        </message>
        <message id="VTULocalization.klTaskDescription">
            <source>Task Description</source>
            <translation>Beschreibung</translation>
        </message>
        <message id="VTULocalization.klTaskName">
            <source>Task Name</source>
            <translation>Aufgabenname</translation>
        </message>
        <message id="VTULocalization.kltest">
            <source>Test</source>
            <translation>Testen</translation>
        </message>
        <message id="VTULocalization.klValue">
            <source>Value</source>
            <translation>Wert</translation>
        </message>
        <message id="VTULocalization.klVerifyDateStamp">
            <source>Are you sure you want to clear the last processed date?

This will force all files in the input folder to be processed regardless of age or if they have previously been processed.</source>
            <translation>Möchten Sie das Datum der letzten Verarbeitung wirklich löschen?

Dann werden alle Dateien im Eingabeordner verarbeitet, unabhängig von ihrem Alter und davon, ob sie schon einmal verarbeitet wurden.</translation>
        </message>
        <message id="VTULocalization.klStripSending">
            <source>Sending $1: $2 ($3 %)</source>
            <translation>$1: $2 wird gesendet ($3 %)</translation>
        </message>
        <message id="VTULocalization.klStripAllWell">
            <source>All is well since $1</source>
            <translation>Alles in Ordnung seit $1</translation>
        </message>
        <message id="VTULocalization.klStripConnecting">
            <source>Connecting to the service...</source>
            <translation>Verbindung zum Dienst wird aufgebaut...</translation>
        </message>
        <message id="VTULocalization.klStripChecking">
            <source>Checking the input folders...</source>
            <translation>Eingabeordner werden geprüft...</translation>
        </message>
        <message id="VTULocalization.klUploadingHeld">
            <source>Uploading is held until the task editor or the Admin window is closed and what was changed there is in force.</source>
            <translation>Das Hochladen ruht, bis der Aufgabeneditor oder das Admin-Fenster geschlossen ist und die Änderungen gelten.</translation>
        </message>
        <message id="VTULocalization.klStripNoLogin">
            <source>No login is stored, so nothing can be sent. Enter the service login under Admin.</source>
            <translation>Es sind keine Zugangsdaten gespeichert, daher kann nichts gesendet werden. Geben Sie sie unter Admin ein.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFileSkipped">
            <source>Task file &quot;$1&quot; was skipped: $2. The other tasks run. Repair or remove the file and start the program again.</source>
            <translation>Die Aufgabendatei „$1“ wurde übersprungen: $2. Die anderen Aufgaben laufen. Reparieren oder entfernen Sie die Datei und starten Sie das Programm neu.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFolderUnreadable">
            <source>The tasks can't be read, so nothing is sent: $2. Check the task folder and start the program again.</source>
            <translation>Die Aufgaben können nicht gelesen werden, daher wird nichts gesendet: $2. Prüfen Sie den Aufgabenordner und starten Sie das Programm neu.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesSetAside">
            <source>The settings file was damaged and is kept as &quot;$1&quot;. Enter the service login again under Admin.</source>
            <translation>Die Einstellungsdatei war beschädigt und wird als „$1“ aufbewahrt. Geben Sie die Zugangsdaten unter Admin neu ein.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesNotSaved">
            <source>The settings can't be saved: $2. Check the settings folder, its permissions and the space on its disk.</source>
            <translation>Die Einstellungen können nicht gespeichert werden: $2. Prüfen Sie den Einstellungsordner, seine Zugriffsrechte und den freien Speicherplatz.</translation>
        </message>
        <message id="VTULocalization.klStripLogSetAside">
            <source>The log was damaged and is kept as &quot;$1&quot;. A new log has begun; uploads are not affected.</source>
            <translation>Das Protokoll war beschädigt und wird als „$1“ aufbewahrt. Ein neues wurde begonnen; das Hochladen ist nicht betroffen.</translation>
        </message>
        <message id="VTULocalization.klStripLogUnavailable">
            <source>Uploads go on, but nothing is logged: $2. When this is repaired, start the program again.</source>
            <translation>Das Hochladen läuft weiter, aber es wird nichts protokolliert: $2. Starten Sie das Programm neu, wenn das behoben ist.</translation>
        </message>
        <message id="VTULocalization.klStripLogRowLost">
            <source>Uploads go on, but an entry could not be logged: $2. Check the space on the disk.</source>
            <translation>Das Hochladen läuft weiter, aber ein Eintrag konnte nicht protokolliert werden: $2. Prüfen Sie den freien Speicherplatz.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionInvalid">
            <source>Task &quot;$1&quot; excludes no files, because its exclusion pattern is not valid: $2. Correct the pattern.</source>
            <translation>Die Aufgabe „$1“ schließt keine Dateien aus, weil ihr Ausschlussmuster ungültig ist: $2. Korrigieren Sie das Muster.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionTooCostly">
            <source>Task &quot;$1&quot; keeps back &quot;$2&quot;, because its exclusion pattern takes too long on that name. Simplify the pattern.</source>
            <translation>Die Aufgabe „$1“ hält „$2“ zurück, weil ihr Ausschlussmuster bei diesem Namen zu lange braucht. Vereinfachen Sie das Muster.</translation>
        </message>
        <message id="VTULocalization.klStripInputFolderUnreadable">
            <source>Task &quot;$1&quot; can't read its input folder: $2. Check that the folder is there and connected.</source>
            <translation>Die Aufgabe „$1“ kann ihren Eingabeordner nicht lesen: $2. Prüfen Sie, ob der Ordner vorhanden und verbunden ist.</translation>
        </message>
        <message id="VTULocalization.klStripFolderSilent">
            <source>The folders of task &quot;$1&quot; do not answer. The other tasks run, and this one goes on by itself when its server is back.</source>
            <translation>Die Ordner der Aufgabe „$1“ antworten nicht. Die anderen Aufgaben laufen, und diese geht von selbst weiter, sobald ihr Server wieder da ist.</translation>
        </message>
        <message id="VTULocalization.klStripNothingMounted">
            <source>Task &quot;$1&quot; waits for the share at $2, where nothing is mounted. To use the folder as it is, set it anew in the task.</source>
            <translation>Die Aufgabe „$1“ wartet auf die Freigabe unter $2, wo nichts eingebunden ist. Um den Ordner so zu verwenden, wie er ist, setzen Sie ihn in der Aufgabe neu.</translation>
        </message>
        <message id="VTULocalization.klStripShareNotMounted">
            <source>The share $1 could not be mounted: $2. It is tried again after 10 minutes.</source>
            <translation>Die Freigabe $1 konnte nicht eingebunden werden: $2. Nach 10 Minuten wird es erneut versucht.</translation>
        </message>
        <message id="VTULocalization.klStripCopyFailed">
            <source>Task &quot;$1&quot; could not save a copy: $2. The input file was not deleted. Check the output folder.</source>
            <translation>Die Aufgabe „$1“ konnte keine Kopie speichern: $2. Die Eingabedatei wurde nicht gelöscht. Prüfen Sie den Ausgabeordner.</translation>
        </message>
        <message id="VTULocalization.klStripDeleteFailed">
            <source>Task &quot;$1&quot; sent a file but could not delete it: $2. Check the permissions of the input folder and delete the file yourself.</source>
            <translation>Die Aufgabe „$1“ hat eine Datei gesendet, konnte sie aber nicht löschen: $2. Prüfen Sie die Rechte am Eingabeordner und löschen Sie die Datei selbst.</translation>
        </message>
        <message id="VTULocalization.klStripUploadFailed">
            <source>Task &quot;$1&quot; could not send a file: $2. When this is repaired, save the file into the input folder again.</source>
            <translation>Die Aufgabe „$1“ konnte eine Datei nicht senden: $2. Wenn das behoben ist, speichern Sie die Datei noch einmal in den Eingabeordner.</translation>
        </message>
        <message id="VTULocalization.klStripFileWaits">
            <source>Task &quot;$1&quot; can't read a file at the moment: $2. It is tried again by itself.</source>
            <translation>Die Aufgabe „$1“ kann eine Datei zurzeit nicht lesen: $2. Es wird von selbst neu versucht.</translation>
        </message>
        <message id="VTULocalization.klStripRunFailed">
            <source>Task &quot;$1&quot; was stopped by a fault: $2. It is tried again by itself; if this line stays, start the program again.</source>
            <translation>Die Aufgabe „$1“ wurde durch einen Fehler angehalten: $2. Sie wird von selbst neu versucht; bleibt diese Zeile stehen, starten Sie das Programm neu.</translation>
        </message>
        <message id="VTULocalization.klStripServiceUnreachable">
            <source>The service can't be reached: $2. It is tried again by itself; check the network and the proxy settings.</source>
            <translation>Der Dienst ist nicht erreichbar: $2. Es wird von selbst weiter versucht; prüfen Sie das Netzwerk und die Proxy-Einstellungen.</translation>
        </message>
        <message id="VTULocalization.klStripServiceRefuses">
            <source>The service answers with an error: $2. It is asked again by itself; check the login under Admin.</source>
            <translation>Der Dienst antwortet mit einem Fehler: $2. Es wird von selbst weiter versucht; prüfen Sie die Zugangsdaten unter Admin.</translation>
        </message>
        <message id="VTULocalization.klMountNoSession">
            <source>there is no desktop session with a mount service</source>
            <translation>es gibt keine Desktop-Sitzung mit einem Dienst zum Einbinden</translation>
        </message>
        <message id="VTULocalization.klMountLoginRefused">
            <source>the server refuses the login</source>
            <translation>der Server weist die Anmeldung ab</translation>
        </message>
        <message id="VTULocalization.klMountQuestion">
            <source>the server's key or certificate is not trusted; open it once in the file manager, or install its certificate</source>
            <translation>dem Schlüssel oder Zertifikat des Servers wird nicht vertraut; öffnen Sie die Freigabe einmal im Dateimanager, oder installieren Sie sein Zertifikat</translation>
        </message>
        <message id="VTULocalization.klMountUnreachable">
            <source>the server can't be reached</source>
            <translation>der Server ist nicht erreichbar</translation>
        </message>
        <message id="VTULocalization.klMountNotThere">
            <source>the server has no such share or folder</source>
            <translation>der Server hat keine solche Freigabe und keinen solchen Ordner</translation>
        </message>
        <message id="VTULocalization.klMountTimedOut">
            <source>the server does not answer</source>
            <translation>der Server antwortet nicht</translation>
        </message>
        <message id="VTULocalization.klMountNotSupported">
            <source>no installed program mounts that kind of address</source>
            <translation>kein installiertes Programm bindet diese Art von Adresse ein</translation>
        </message>
        <message id="VTULocalization.klMountNoFolder">
            <source>it is mounted, but not shown as a folder; name a share in the address, or install gvfs-fuse and log in again</source>
            <translation>sie ist eingebunden, erscheint aber nicht als Ordner; nennen Sie in der Adresse eine Freigabe, oder installieren Sie gvfs-fuse und melden Sie sich neu an</translation>
        </message>
        <message id="VTULocalization.klMountServiceEnded">
            <source>the mount service broke down over it; check the address and the login</source>
            <translation>der Dienst zum Einbinden ist daran gescheitert; prüfen Sie Adresse und Anmeldung</translation>
        </message>
        <message id="VTULocalization.klMountFailed">
            <source>error $1</source>
            <translation>Fehler $1</translation>
        </message>
        <message id="VTULocalization.klPreferencesSetAside">
            <source>The settings file was damaged and could not be read. It is kept as &quot;$1&quot;.

Vantry Uploader starts with empty settings: please enter the login, the proxy and the administrator password again under Admin. Your tasks are still there, but the record of what they have already processed is lost: files in the input folders may be sent once more.</source>
            <translation>Die Einstellungsdatei war beschädigt und konnte nicht gelesen werden. Sie wird als „$1“ aufbewahrt.

Vantry Uploader startet mit leeren Einstellungen: Bitte geben Sie Login, Proxy und Administratorpasswort unter Admin neu ein. Ihre Aufgaben sind noch da, aber der Nachweis, welche Dateien sie schon verarbeitet haben, ist verloren: Dateien in den Eingabeordnern können noch einmal gesendet werden.</translation>
        </message>
        <message id="VTULocalization.klStartFailed">
            <source>Vantry Uploader could not start and will close: $1

No files are being sent. Please start it again; if this message comes back, show it to your administrator.</source>
            <translation>Vantry Uploader konnte nicht starten und wird beendet: $1

Es werden keine Dateien gesendet. Bitte starten Sie das Programm noch einmal; erscheint diese Meldung wieder, zeigen Sie sie Ihrem Administrator.</translation>
        </message>
        <message id="VTULocalization.klAlreadyRunning">
            <source>Vantry Uploader is already running. Please use its window.</source>
            <translation>Vantry Uploader läuft bereits. Bitte verwenden Sie sein Fenster.</translation>
        </message>
        <message id="VTULocalization.klWindowNotInBuild">
            <source>$1 is not part of this build yet.</source>
            <translation>$1 ist in dieser Version noch nicht enthalten.</translation>
        </message>
        <message id="VTULocalization.klCopyFailedNote">
            <source> Copy not saved: $1</source>
            <translation> Kopie nicht gespeichert: $1</translation>
        </message>
        <message id="VTULocalization.klDeleteFailedNote">
            <source> Input file not deleted: $1</source>
            <translation> Eingabedatei nicht gelöscht: $1</translation>
        </message>
        <message id="VTULocalization.klRunFailedNote">
            <source>Processing stopped: $1</source>
            <translation>Verarbeitung angehalten: $1</translation>
        </message>
        <message id="VTULocalization.klSampleMatching">
            <source>$1 of $2 files match: $3</source>
            <translation>Passende Dateien $1 von $2: $3</translation>
        </message>
        <message id="VTULocalization.klSampleOneOf">
            <source>1 of $1 files matches: $2</source>
            <translation>1 von $1 Dateien passt: $2</translation>
        </message>
        <message id="VTULocalization.klSampleNone">
            <source>None of the $1 files matches</source>
            <translation>Keine der $1 Dateien passt</translation>
        </message>
        <message id="VTULocalization.klSampleOneMatches">
            <source>The only file matches: $1</source>
            <translation>Die einzige Datei passt: $1</translation>
        </message>
        <message id="VTULocalization.klSampleOneFails">
            <source>The only file doesn't match</source>
            <translation>Die einzige Datei passt nicht</translation>
        </message>
        <message id="VTULocalization.klSampleNoFiles">
            <source>There are no files in the input folder</source>
            <translation>Im Eingabeordner sind keine Dateien</translation>
        </message>
        <message id="VTULocalization.klSampleLooking">
            <source>Looking at the input folder...</source>
            <translation>Der Eingabeordner wird durchgesehen...</translation>
        </message>
        <message id="VTULocalization.klSampleSlow">
            <source>The input folder is slow to answer, so there is no sample of its files</source>
            <translation>Der Eingabeordner antwortet langsam, daher fehlt die Vorschau seiner Dateien</translation>
        </message>
        <message id="VTULocalization.klSampleFolderGone">
            <source>The input folder is not there</source>
            <translation>Der Eingabeordner ist nicht vorhanden</translation>
        </message>
        <message id="VTULocalization.klSampleFailed">
            <source>The input folder can't be read: $1</source>
            <translation>Der Eingabeordner kann nicht gelesen werden: $1</translation>
        </message>
        <message id="VTULocalization.klSampleKeptOut">
            <source>Kept out:</source>
            <translation>Nicht dabei:</translation>
        </message>
        <message id="VTULocalization.klSampleAndMore">
            <source>and $1 more</source>
            <translation>und $1 weitere</translation>
        </message>
        <message id="VTULocalization.klSampleName">
            <source>What the rules select</source>
            <translation>Was die Regeln auswählen</translation>
        </message>
        <message id="VTULocalization.klWhyHidden">
            <source>hidden</source>
            <translation>versteckt</translation>
        </message>
        <message id="VTULocalization.klWhyNotAFile">
            <source>not a plain file</source>
            <translation>keine gewöhnliche Datei</translation>
        </message>
        <message id="VTULocalization.klWhyEnding">
            <source>another ending</source>
            <translation>andere Endung</translation>
        </message>
        <message id="VTULocalization.klWhyPattern">
            <source>doesn't fit the name pattern</source>
            <translation>passt nicht zum Namensmuster</translation>
        </message>
        <message id="VTULocalization.klWhyExcluded">
            <source>excluded</source>
            <translation>ausgeschlossen</translation>
        </message>
        <message id="VTULocalization.klWhyExclusionTooCostly">
            <source>the exclusion pattern takes too long on it</source>
            <translation>das Ausschlussmuster braucht dafür zu lange</translation>
        </message>
        <message id="VTULocalization.klWhyEmpty">
            <source>empty</source>
            <translation>leer</translation>
        </message>
        <message id="VTULocalization.klWhyOlder">
            <source>not changed since the last processed date</source>
            <translation>seit der letzten Verarbeitung nicht geändert</translation>
        </message>
        <message id="VTULocalization.klWhyUnreadable">
            <source>can't be read</source>
            <translation>nicht lesbar</translation>
        </message>
        <message id="VTULocalization.klWhyStillMoving">
            <source>still being written</source>
            <translation>wird noch geschrieben</translation>
        </message>
        <message id="VTULocalization.klWhyDealtWith">
            <source>already processed</source>
            <translation>schon verarbeitet</translation>
        </message>
        <message id="VTULocalization.klListFetching">
            <source>The list is being fetched from the service...</source>
            <translation>Die Liste wird vom Dienst abgerufen...</translation>
        </message>
        <message id="VTULocalization.klListFailed">
            <source>The list is empty because it could not be fetched from the service: $1</source>
            <translation>Die Liste ist leer, weil sie nicht vom Dienst abgerufen werden konnte: $1</translation>
        </message>
        <message id="VTULocalization.klListRefused">
            <source>The list is empty because the service did not give it. Check the login under Admin.</source>
            <translation>Die Liste ist leer, weil der Dienst sie nicht herausgegeben hat. Prüfen Sie das Login unter Admin.</translation>
        </message>
        <message id="VTULocalization.klListNoLogin">
            <source>The list is empty because no login is stored. Enter the service login under Admin.</source>
            <translation>Die Liste ist leer, weil keine Zugangsdaten gespeichert sind. Geben Sie sie unter Admin ein.</translation>
        </message>
        <message id="VTULocalization.klListNothingThere">
            <source>The service has nothing to choose from for this account.</source>
            <translation>Der Dienst hat für dieses Konto nichts zur Auswahl.</translation>
        </message>
        <message id="VTULocalization.klExclusionInvalid">
            <source>The file name exclusion is not a valid pattern: $1, at character $2</source>
            <translation>Der Dateinamen-Ausschluss ist kein gültiges Muster: $1, bei Zeichen $2</translation>
        </message>
        <message id="VTULocalization.klTaskNotSaved">
            <source>There was an error saving this task</source>
            <translation>Beim Speichern der Aufgabe ist ein Fehler aufgetreten</translation>
        </message>
        <message id="VTULocalization.klOldTaskNotRemoved">
            <source>The task was saved, but the file of its earlier settings could not be removed, so these will be back as a second task at the next start: $1</source>
            <translation>Die Aufgabe wurde gespeichert, aber die Datei mit ihren früheren Einstellungen konnte nicht entfernt werden. Diese erscheinen daher beim nächsten Start als zweite Aufgabe: $1</translation>
        </message>
        <message id="VTULocalization.klEditorFailed">
            <source>The task editor could not be opened: $1</source>
            <translation>Der Aufgabeneditor konnte nicht geöffnet werden: $1</translation>
        </message>
        <message id="VTULocalization.klManualAddress">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>Der Browser konnte nicht geöffnet werden. Das Handbuch finden Sie unter $1</translation>
        </message>
        <message id="VTULocalization.klSameFolders">
            <source>The input and output folder cannot be the same</source>
            <translation>Eingabe- und Ausgabeordner dürfen nicht derselbe sein</translation>
        </message>
        <message id="VTULocalization.klPleaseEnterAutoMountDetails">
            <source>Please enter the URL, the login and the password of the share first.</source>
            <translation>Bitte geben Sie zuerst URL, Anmeldung und Passwort der Freigabe ein.</translation>
        </message>
        <message id="VTULocalization.klMountReason">
            <source>$1.</source>
            <translation>$1.</translation>
        </message>
        <message id="VTULocalization.klStop">
            <source>Stop</source>
            <translation>Stopp</translation>
        </message>
        <message id="VTULocalization.klStopMountTest">
            <source>Stop the mount test</source>
            <translation>Einbindetest abbrechen</translation>
        </message>
        <message id="VTULocalization.klSelect">
            <source>Select</source>
            <translation>Auswählen</translation>
        </message>
        <message id="VTULocalization.klInputFolderPrompt">
            <source>Select the input folder for this task.
This is the folder that will be watched for new files.</source>
            <translation>Wählen Sie den Eingabeordner für diese Aufgabe.
Dieser Ordner wird auf neue Dateien überwacht.</translation>
        </message>
        <message id="VTULocalization.klOutputFolderPrompt">
            <source>Select the output folder for this task.
This is the folder where processed files will be stored.</source>
            <translation>Wählen Sie den Ausgabeordner für diese Aufgabe.
In diesem Ordner werden verarbeitete Dateien abgelegt.</translation>
        </message>
        <message id="VTULocalization.klOutputFolder">
            <source>Output Folder</source>
            <translation>Ausgabeordner</translation>
        </message>
        <message id="VTULocalization.klOutputFolderURL">
            <source>Output Folder URL</source>
            <translation>URL des Ausgabeordners</translation>
        </message>
        <message id="VTULocalization.klInputPassword">
            <source>Input Password</source>
            <translation>Eingabe-Passwort</translation>
        </message>
        <message id="VTULocalization.klRegExCue">
            <source>RegEx</source>
            <translation>RegEx</translation>
        </message>
        <message id="VTULocalization.klFileRecognitionHelp">
            <source>Help on file name recognition</source>
            <translation>Hilfe zur Dateinamen-Erkennung</translation>
        </message>
        <message id="VTULocalization.klRequired">
            <source>Required</source>
            <translation>Erforderlich</translation>
        </message>
        <message id="VTULocalization.klSetInputFolder">
            <source>Set the input folder</source>
            <translation>Eingabeordner wählen</translation>
        </message>
        <message id="VTULocalization.klSetOutputFolder">
            <source>Set the output folder</source>
            <translation>Ausgabeordner wählen</translation>
        </message>
        <message id="VTULocalization.klClearInputFolder">
            <source>Clear the input folder</source>
            <translation>Wahl des Eingabeordners aufheben</translation>
        </message>
        <message id="VTULocalization.klClearOutputFolder">
            <source>Clear the output folder</source>
            <translation>Wahl des Ausgabeordners aufheben</translation>
        </message>
        <message id="VTULocalization.klAutoMountInput">
            <source>Mount the input folder automatically</source>
            <translation>Eingabeordner automatisch einbinden</translation>
        </message>
        <message id="VTULocalization.klAutoMountOutput">
            <source>Mount the output folder automatically</source>
            <translation>Ausgabeordner automatisch einbinden</translation>
        </message>
        <message id="VTULocalization.klTestMountInput">
            <source>Test mounting the input folder</source>
            <translation>Einbinden des Eingabeordners testen</translation>
        </message>
        <message id="VTULocalization.klTestMountOutput">
            <source>Test mounting the output folder</source>
            <translation>Einbinden des Ausgabeordners testen</translation>
        </message>
        <message id="VTULocalization.klWhyNotSent">
            <source>Why was this file not sent?</source>
            <translation>Warum wurde diese Datei nicht gesendet?</translation>
        </message>
        <message id="VTULocalization.klWhyMenu">
            <source>Why was a file not sent?...</source>
            <translation>Warum wurde eine Datei nicht gesendet?...</translation>
        </message>
        <message id="VTULocalization.klWhyChoosePrompt">
            <source>Select the file that was not sent by the task &quot;$1&quot;.</source>
            <translation>Wählen Sie die Datei, die von der Aufgabe „$1“ nicht gesendet wurde.</translation>
        </message>
        <message id="VTULocalization.klWhyHead">
            <source>&quot;$1&quot; and the task &quot;$2&quot;</source>
            <translation>„$1“ und die Aufgabe „$2“</translation>
        </message>
        <message id="VTULocalization.klWhyAnswers">
            <source>Answers</source>
            <translation>Antworten</translation>
        </message>
        <message id="VTULocalization.klWhyLooking">
            <source>Looking at the file...</source>
            <translation>Die Datei wird geprüft...</translation>
        </message>
        <message id="VTULocalization.klWhySlow">
            <source>The file's folder does not answer. Check that the folder is connected.</source>
            <translation>Der Ordner der Datei antwortet nicht. Prüfen Sie, ob der Ordner verbunden ist.</translation>
        </message>
        <message id="VTULocalization.klWhyFailed">
            <source>The file's folder can't be read: $1</source>
            <translation>Der Ordner der Datei kann nicht gelesen werden: $1</translation>
        </message>
        <message id="VTULocalization.klWhyOneFile">
            <source>Please drop one file at a time.</source>
            <translation>Bitte ziehen Sie immer nur eine Datei hierher.</translation>
        </message>
        <message id="VTULocalization.klWhyNotLocal">
            <source>A file at a network address can't be looked at. Drop it from the folder where the share is mounted, or right-click the task and choose the file there.</source>
            <translation>Eine Datei unter einer Netzwerkadresse kann nicht geprüft werden. Ziehen Sie sie aus dem Ordner hierher, in dem die Freigabe eingebunden ist, oder klicken Sie mit der rechten Maustaste auf die Aufgabe und wählen Sie die Datei dort.</translation>
        </message>
        <message id="VTULocalization.klWhyClose">
            <source>Close</source>
            <translation>Schließen</translation>
        </message>
        <message id="VTULocalization.klWhyYes">
            <source>All right</source>
            <translation>In Ordnung</translation>
        </message>
        <message id="VTULocalization.klWhyNo">
            <source>Keeps it back</source>
            <translation>Hält sie zurück</translation>
        </message>
        <message id="VTULocalization.klWhyDue">
            <source>Nothing keeps it back: it goes out with the next run.</source>
            <translation>Nichts hält sie zurück: Sie wird beim nächsten Durchlauf gesendet.</translation>
        </message>
        <message id="VTULocalization.klWhyNotDue">
            <source>It is not sent, for this reason:</source>
            <translation>Sie wird aus diesem Grund nicht gesendet:</translation>
        </message>
        <message id="VTULocalization.klWhyNotDueSeveral">
            <source>It is not sent, for these $1 reasons:</source>
            <translation>Sie wird aus diesen $1 Gründen nicht gesendet:</translation>
        </message>
        <message id="VTULocalization.klWhyReported">
            <source>The task reports: $1</source>
            <translation>Die Aufgabe meldet: $1</translation>
        </message>
        <message id="VTULocalization.klYesPlace">
            <source>It lies in the task's input folder.</source>
            <translation>Sie liegt im Eingabeordner der Aufgabe.</translation>
        </message>
        <message id="VTULocalization.klNoPlace">
            <source>It is not in the task's input folder, which is $1.</source>
            <translation>Sie liegt nicht im Eingabeordner der Aufgabe, nämlich $1.</translation>
        </message>
        <message id="VTULocalization.klYesEnabled">
            <source>The task is switched on.</source>
            <translation>Die Aufgabe ist eingeschaltet.</translation>
        </message>
        <message id="VTULocalization.klNoEnabled">
            <source>The task is disabled. Edit it and clear &quot;Disable Task&quot;.</source>
            <translation>Die Aufgabe ist deaktiviert. Bearbeiten Sie sie und entfernen Sie das Häkchen bei „Deaktivieren“.</translation>
        </message>
        <message id="VTULocalization.klNoFolders">
            <source>The task can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>Die Aufgabe kann ihre Ordner nicht verwenden. Prüfen Sie, ob Eingabe- und Ausgabeordner vorhanden, verbunden und beschreibbar sind.</translation>
        </message>
        <message id="VTULocalization.klYesHidden">
            <source>It is not hidden.</source>
            <translation>Sie ist nicht versteckt.</translation>
        </message>
        <message id="VTULocalization.klNoHidden">
            <source>It is hidden, because its name begins with a dot.</source>
            <translation>Sie ist versteckt, weil ihr Name mit einem Punkt beginnt.</translation>
        </message>
        <message id="VTULocalization.klYesAFile">
            <source>It is a plain file.</source>
            <translation>Sie ist eine gewöhnliche Datei.</translation>
        </message>
        <message id="VTULocalization.klNoAFile">
            <source>It is not a plain file, or it is no longer there.</source>
            <translation>Sie ist keine gewöhnliche Datei oder nicht mehr vorhanden.</translation>
        </message>
        <message id="VTULocalization.klYesEnding">
            <source>Its name ends in &quot;$1&quot;.</source>
            <translation>Ihr Name endet auf „$1“.</translation>
        </message>
        <message id="VTULocalization.klNoEnding">
            <source>Its name does not end in &quot;$1&quot;.</source>
            <translation>Ihr Name endet nicht auf „$1“.</translation>
        </message>
        <message id="VTULocalization.klYesPattern">
            <source>Its name fits the task's name pattern &quot;$1&quot;.</source>
            <translation>Ihr Name passt zum Namensmuster „$1“ der Aufgabe.</translation>
        </message>
        <message id="VTULocalization.klNoPattern">
            <source>Its name does not fit the task's name pattern &quot;$1&quot;.</source>
            <translation>Ihr Name passt nicht zum Namensmuster „$1“ der Aufgabe.</translation>
        </message>
        <message id="VTULocalization.klYesNoPattern">
            <source>The task takes every name with that ending.</source>
            <translation>Die Aufgabe nimmt jeden Namen mit dieser Endung.</translation>
        </message>
        <message id="VTULocalization.klNoNoPattern">
            <source>The ending of its name is not exactly &quot;$1&quot;.</source>
            <translation>Die Endung ihres Namens ist nicht genau „$1“.</translation>
        </message>
        <message id="VTULocalization.klYesExcluded">
            <source>The exclusion pattern &quot;$1&quot; does not match its name.</source>
            <translation>Das Ausschlussmuster „$1“ trifft auf ihren Namen nicht zu.</translation>
        </message>
        <message id="VTULocalization.klYesNoExclusion">
            <source>The task excludes no names.</source>
            <translation>Die Aufgabe schließt keine Namen aus.</translation>
        </message>
        <message id="VTULocalization.klNoExcluded">
            <source>The exclusion pattern &quot;$1&quot; matches its name.</source>
            <translation>Das Ausschlussmuster „$1“ trifft auf ihren Namen zu.</translation>
        </message>
        <message id="VTULocalization.klNoExclusionTooCostly">
            <source>The exclusion pattern &quot;$1&quot; takes too long on its name, so it is kept back. Simplify the pattern.</source>
            <translation>Das Ausschlussmuster „$1“ braucht für ihren Namen zu lange, daher wird sie zurückgehalten. Vereinfachen Sie das Muster.</translation>
        </message>
        <message id="VTULocalization.klYesEmpty">
            <source>It is not empty.</source>
            <translation>Sie ist nicht leer.</translation>
        </message>
        <message id="VTULocalization.klNoEmpty">
            <source>It is empty. It is sent when it has content.</source>
            <translation>Sie ist leer. Sie wird gesendet, sobald sie Inhalt hat.</translation>
        </message>
        <message id="VTULocalization.klYesReadable">
            <source>It can be read.</source>
            <translation>Sie ist lesbar.</translation>
        </message>
        <message id="VTULocalization.klNoReadable">
            <source>It can't be read. Check its permissions.</source>
            <translation>Sie ist nicht lesbar. Prüfen Sie ihre Zugriffsrechte.</translation>
        </message>
        <message id="VTULocalization.klYesNewer">
            <source>It was changed at $1, and the task's last batch ended at $2.</source>
            <translation>Sie wurde am $1 geändert, und der letzte Durchgang der Aufgabe endete am $2.</translation>
        </message>
        <message id="VTULocalization.klYesNeverProcessed">
            <source>It was changed at $1, and the task has no last processed date.</source>
            <translation>Sie wurde am $1 geändert, und die Aufgabe hat noch kein Verarbeitungsdatum.</translation>
        </message>
        <message id="VTULocalization.klNoOlder">
            <source>It was last changed at $1, $3 before the task's last batch ended at $2. Save it anew, or edit the task and press &quot;Clear Process Date Stamp&quot; to send all files again.</source>
            <translation>Sie wurde zuletzt am $1 geändert, $3 vor dem Ende des letzten Durchgangs der Aufgabe am $2. Speichern Sie sie neu, oder bearbeiten Sie die Aufgabe und drücken Sie „Verarbeitungsdatum löschen“, um alle Dateien noch einmal zu senden.</translation>
        </message>
        <message id="VTULocalization.klYesDealtWith">
            <source>This version of it has not been processed yet.</source>
            <translation>Diese Fassung der Datei wurde noch nicht verarbeitet.</translation>
        </message>
        <message id="VTULocalization.klNoDealtWith">
            <source>This version of it, changed at $1, was processed already. The log tells how that ended.</source>
            <translation>Diese Fassung der Datei, geändert am $1, wurde schon verarbeitet. Das Protokoll sagt, mit welchem Ergebnis.</translation>
        </message>
        <message id="VTULocalization.klYesAtRest">
            <source>It is at rest.</source>
            <translation>Sie ruht.</translation>
        </message>
        <message id="VTULocalization.klNoAtRest">
            <source>It is still being written, or changed a moment ago. It is sent when it has been at rest for two seconds.</source>
            <translation>Sie wird noch geschrieben oder wurde eben erst geändert. Sie wird gesendet, wenn sie zwei Sekunden lang unverändert ist.</translation>
        </message>
        <message id="VTULocalization.klFolderSilent">
            <source>&quot;$1&quot; does not answer yet. You can wait, choose another folder, or cancel.</source>
            <translation>„$1“ antwortet noch nicht. Sie können warten, einen anderen Ordner wählen oder abbrechen.</translation>
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
            <translation>$1 Tage</translation>
        </message>
        <message id="VTULocalization.klAutoRefresh">
            <source>Auto Refresh</source>
            <translation>Autom. aktualisieren</translation>
        </message>
        <message id="VTULocalization.klFailuresOnly">
            <source>Failures only</source>
            <translation>Nur Fehler</translation>
        </message>
        <message id="VTULocalization.klFind">
            <source>Find</source>
            <translation>Suchen</translation>
        </message>
        <message id="VTULocalization.klFindTip">
            <source>Shows the entries that hold this text in any column</source>
            <translation>Zeigt die Einträge, in denen dieser Text in irgendeiner Spalte steht</translation>
        </message>
        <message id="VTULocalization.klFailuresOnlyTip">
            <source>Shows the entries of files that were not sent, or not kept whole</source>
            <translation>Zeigt die Einträge von Dateien, die nicht gesendet oder nicht vollständig gesichert wurden</translation>
        </message>
        <message id="VTULocalization.klLogRows">
            <source>Log entries</source>
            <translation>Protokolleinträge</translation>
        </message>
        <message id="VTULocalization.klLogDetails">
            <source>Details of the selected entry</source>
            <translation>Einzelheiten des gewählten Eintrags</translation>
        </message>
        <message id="VTULocalization.klLogDivider">
            <source>Divider between the lists</source>
            <translation>Trennlinie zwischen den Listen</translation>
        </message>
        <message id="VTULocalization.klCopy">
            <source>Copy</source>
            <translation>Kopieren</translation>
        </message>
        <message id="VTULocalization.klSendAgain">
            <source>Send Again</source>
            <translation>Erneut senden</translation>
        </message>
        <message id="VTULocalization.klLogFailedRow">
            <source>Failed: $1</source>
            <translation>Fehlgeschlagen: $1</translation>
        </message>
        <message id="VTULocalization.klLogRowGone">
            <source>(deleted)</source>
            <translation>(gelöscht)</translation>
        </message>
        <message id="VTULocalization.klLogNone">
            <source>There is no log. $1</source>
            <translation>Es gibt kein Protokoll. $1</translation>
        </message>
        <message id="VTULocalization.klLogUnreadable">
            <source>The log can't be read. $1</source>
            <translation>Das Protokoll kann nicht gelesen werden. $1</translation>
        </message>
        <message id="VTULocalization.klLogBusy">
            <source>The program is busy. Please try again in a moment.</source>
            <translation>Das Programm ist beschäftigt. Bitte versuchen Sie es gleich noch einmal.</translation>
        </message>
        <message id="VTULocalization.klLogEmpty">
            <source>The log is empty.</source>
            <translation>Das Protokoll ist leer.</translation>
        </message>
        <message id="VTULocalization.klLogCleared">
            <source>The view is cleared. The log itself is unchanged: press &quot;Refresh Log&quot; to see it again.</source>
            <translation>Die Anzeige ist geleert. Das Protokoll selbst ist unverändert: Mit „Aktualisieren“ sehen Sie es wieder.</translation>
        </message>
        <message id="VTULocalization.klLogNoMatch">
            <source>No entry matches.</source>
            <translation>Kein Eintrag passt.</translation>
        </message>
        <message id="VTULocalization.klLogNoRecords">
            <source>No records availble</source>
            <translation>Keine Einträge vorhanden</translation>
        </message>
        <message id="VTULocalization.klLogExporting">
            <source>Exporting to &quot;$1&quot;...</source>
            <translation>„$1“ wird geschrieben …</translation>
        </message>
        <message id="VTULocalization.klLogNotExported">
            <source>The log was not exported safely. Under that name stands what was there before or the whole export, never a part of it.

$1</source>
            <translation>Das Protokoll wurde nicht sicher exportiert. Unter dem Namen steht, was vorher da war, oder der ganze Export, nie ein Teil davon.

$1</translation>
        </message>
        <message id="VTULocalization.klLogRowsGone">
            <source>Some of the entries are no longer in the log. Press &quot;Refresh Log&quot; and export again.</source>
            <translation>Einige der Einträge stehen nicht mehr im Protokoll. Drücken Sie „Aktualisieren“ und exportieren Sie noch einmal.</translation>
        </message>
        <message id="VTULocalization.klLogStopExport">
            <source>The export is not finished. Do you want to close the window and cancel it?</source>
            <translation>Der Export ist noch nicht fertig. Möchten Sie das Fenster schließen und ihn abbrechen?</translation>
        </message>
        <message id="VTULocalization.klLogCopyTooMany">
            <source>These are too many entries for the clipboard. Please use &quot;Export to txt&quot;.</source>
            <translation>Das sind zu viele Einträge für die Zwischenablage. Bitte verwenden Sie „Als txt sichern“.</translation>
        </message>
        <message id="VTULocalization.klSendAgainQuestion">
            <source>Do you want to send these files again?

$1

The date of each file is set to now, so that its task sends it with its next run.</source>
            <translation>Möchten Sie diese Dateien erneut senden?

$1

Das Datum jeder Datei wird auf jetzt gesetzt, sodass ihre Aufgabe sie beim nächsten Lauf sendet.</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainQuestion">
            <source>Do you want to send this file again?

$1

Its date is set to now, so that its task sends it with its next run.</source>
            <translation>Möchten Sie diese Datei erneut senden?

$1

Ihr Datum wird auf jetzt gesetzt, sodass ihre Aufgabe sie beim nächsten Lauf sendet.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNotTaken">
            <source>No task that is switched on takes these files. They will wait until one does:

$1</source>
            <translation>Keine eingeschaltete Aufgabe nimmt diese Dateien. Sie warten, bis eine es tut:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainNotTaken">
            <source>No task that is switched on takes this file. It will wait until one does:

$1</source>
            <translation>Keine eingeschaltete Aufgabe nimmt diese Datei. Sie wartet, bis eine es tut:

$1</translation>
        </message>
        <message id="VTULocalization.klSendAgainMore">
            <source>and $1 more</source>
            <translation>und $1 weitere</translation>
        </message>
        <message id="VTULocalization.klSendAgainTooMany">
            <source>No more than 1,000 entries can be sent again at once.</source>
            <translation>Es können höchstens 1.000 Einträge auf einmal erneut gesendet werden.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNone">
            <source>None of these files is in its input folder any more.</source>
            <translation>Keine dieser Dateien liegt noch im Eingabeordner.</translation>
        </message>
        <message id="VTULocalization.klSendAgainFailed">
            <source>These files are not sent again, because their date could not be set:

$1</source>
            <translation>Diese Dateien werden nicht erneut gesendet, weil ihr Datum nicht gesetzt werden konnte:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainFailed">
            <source>This file is not sent again, because its date could not be set:

$1</source>
            <translation>Diese Datei wird nicht erneut gesendet, weil ihr Datum nicht gesetzt werden konnte:

$1</translation>
        </message>
        <message id="VTULocalization.klTestLineName">
            <source>Connection test</source>
            <translation>Verbindungstest</translation>
        </message>
        <message id="VTULocalization.klTestRunning">
            <source>Asking the service...</source>
            <translation>Der Dienst wird gefragt...</translation>
        </message>
        <message id="VTULocalization.klTestSucceeded">
            <source>The service took the login.</source>
            <translation>Der Dienst hat die Zugangsdaten angenommen.</translation>
        </message>
        <message id="VTULocalization.klTestSucceededProxy">
            <source>The service took the login, by way of the proxy ($1).</source>
            <translation>Der Dienst hat die Zugangsdaten angenommen, über den Proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestSucceededNoPort">
            <source>The service took the login, but without the proxy: its port is not valid.</source>
            <translation>Der Dienst hat die Zugangsdaten angenommen, aber ohne den Proxy: Dessen Port ist ungültig.</translation>
        </message>
        <message id="VTULocalization.klTestErrorAnswered">
            <source>The service answered with an error.</source>
            <translation>Der Dienst hat mit einem Fehler geantwortet.</translation>
        </message>
        <message id="VTULocalization.klTestNameUnknown">
            <source>No answer: the name of the service can't be found ($1).</source>
            <translation>Keine Antwort: Der Name des Dienstes ist nicht zu finden ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNameUnknown">
            <source>No answer: the name of the proxy can't be found ($1).</source>
            <translation>Keine Antwort: Der Name des Proxys ist nicht zu finden ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotReached">
            <source>No answer: the service can't be reached ($1).</source>
            <translation>Keine Antwort: Der Dienst ist nicht erreichbar ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNotReached">
            <source>No answer: the proxy can't be reached ($1).</source>
            <translation>Keine Antwort: Der Proxy ist nicht erreichbar ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyRefused">
            <source>No answer: the proxy did not connect to the service ($1).</source>
            <translation>Keine Antwort: Der Proxy hat nicht mit dem Dienst verbunden ($1).</translation>
        </message>
        <message id="VTULocalization.klTestTlsFailed">
            <source>No answer: no secure connection (TLS) with $1.</source>
            <translation>Keine Antwort: keine sichere Verbindung (TLS) mit $1.</translation>
        </message>
        <message id="VTULocalization.klTestTimedOut">
            <source>No answer in time from the service ($1).</source>
            <translation>Keine rechtzeitige Antwort des Dienstes ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyTimedOut">
            <source>No answer in time from the proxy ($1).</source>
            <translation>Keine rechtzeitige Antwort des Proxys ($1).</translation>
        </message>
        <message id="VTULocalization.klTestBroken">
            <source>No answer: the connection broke off ($1).</source>
            <translation>Keine Antwort: Die Verbindung ist abgebrochen ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotTheService">
            <source>No answer of the service: something else answered.</source>
            <translation>Keine Antwort des Dienstes: Etwas anderes hat geantwortet.</translation>
        </message>
        <message id="VTULocalization.klBackupLineName">
            <source>Backup of the tasks</source>
            <translation>Sicherung der Aufgaben</translation>
        </message>
        <message id="VTULocalization.klBackupUnderWay">
            <source>Saving the tasks...</source>
            <translation>Die Aufgaben werden gesichert...</translation>
        </message>
        <message id="VTULocalization.klBackupDone">
            <source>The tasks are saved.</source>
            <translation>Die Aufgaben sind gesichert.</translation>
        </message>
        <message id="VTULocalization.klRestoreUnderWay">
            <source>Loading the tasks...</source>
            <translation>Die Aufgaben werden geladen...</translation>
        </message>
        <message id="VTULocalization.klRestoreDone">
            <source>The tasks are loaded. They join the list when this window is closed.</source>
            <translation>Die Aufgaben sind geladen. Sie kommen in die Liste, wenn dieses Fenster geschlossen wird.</translation>
        </message>
        <message id="VTULocalization.klBackupSlow">
            <source>The folder is slow to answer. Closing this window stops the copying.</source>
            <translation>Der Ordner antwortet langsam. Das Schließen dieses Fensters beendet das Kopieren.</translation>
        </message>
        <message id="VTULocalization.klBackupFailed">
            <source>These task files could not be saved:</source>
            <translation>Diese Aufgabendateien konnten nicht gesichert werden:</translation>
        </message>
        <message id="VTULocalization.klRestoreFailed">
            <source>These task files could not be loaded:</source>
            <translation>Diese Aufgabendateien konnten nicht geladen werden:</translation>
        </message>
        <message id="VTULocalization.klCopyingStopped">
            <source>The copying was stopped, because the window was closed. These task files were not copied:</source>
            <translation>Das Kopieren wurde beendet, weil das Fenster geschlossen wurde. Diese Aufgabendateien wurden nicht kopiert:</translation>
        </message>
        <message id="VTULocalization.klNotBegun">
            <source>Earlier calls still wait for an answer. Please try again in a moment.</source>
            <translation>Frühere Anfragen warten noch auf eine Antwort. Bitte versuchen Sie es gleich noch einmal.</translation>
        </message>
        <message id="VTULocalization.klAdminFailed">
            <source>The admin window could not be opened: $1</source>
            <translation>Das Admin-Fenster konnte nicht geöffnet werden: $1</translation>
        </message>
        <message id="VTULocalization.klTheProxy">
            <source>the proxy $1</source>
            <translation>Proxy $1</translation>
        </message>
        <message id="VTULocalization.klAddressInvalid">
            <source>the address of the service is not valid</source>
            <translation>die Adresse des Dienstes ist ungültig</translation>
        </message>
        <message id="VTULocalization.klHeaderInvalid">
            <source>a header of the request can't be written on one line</source>
            <translation>eine Kopfzeile der Anfrage passt nicht in eine Zeile</translation>
        </message>
        <message id="VTULocalization.klNameInvalid">
            <source>$1 has no valid host name</source>
            <translation>$1 hat keinen gültigen Rechnernamen</translation>
        </message>
        <message id="VTULocalization.klNameUnknown">
            <source>the name of $1 is not known: $2</source>
            <translation>der Name von $1 ist nicht bekannt: $2</translation>
        </message>
        <message id="VTULocalization.klLookUpSlow">
            <source>the look-up of the name of $1 took too long</source>
            <translation>die Namensauflösung von $1 hat zu lange gedauert</translation>
        </message>
        <message id="VTULocalization.klLookUpsHang">
            <source>the name of $1 can't be looked up: earlier look-ups still hang</source>
            <translation>der Name von $1 kann nicht aufgelöst werden: frühere Anfragen hängen noch</translation>
        </message>
        <message id="VTULocalization.klConnectingSlow">
            <source>connecting to $1 took too long</source>
            <translation>der Verbindungsaufbau zu $1 hat zu lange gedauert</translation>
        </message>
        <message id="VTULocalization.klNoConnection">
            <source>no connection to $1: $2</source>
            <translation>keine Verbindung zu $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsLibraryFailed">
            <source>OpenSSL could not be set up</source>
            <translation>OpenSSL konnte nicht eingerichtet werden</translation>
        </message>
        <message id="VTULocalization.klTlsNotSetUp">
            <source>TLS with $1 could not be set up</source>
            <translation>TLS mit $1 konnte nicht eingerichtet werden</translation>
        </message>
        <message id="VTULocalization.klTlsSilent">
            <source>$1 did not answer in the TLS handshake</source>
            <translation>$1 hat beim TLS-Verbindungsaufbau nicht geantwortet</translation>
        </message>
        <message id="VTULocalization.klNoTlsConnection">
            <source>no TLS connection to $1: $2</source>
            <translation>keine TLS-Verbindung zu $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsError">
            <source>TLS error $1</source>
            <translation>TLS-Fehler $1</translation>
        </message>
        <message id="VTULocalization.klItClosed">
            <source>it closed the connection</source>
            <translation>die Gegenseite hat die Verbindung beendet</translation>
        </message>
        <message id="VTULocalization.klCertificateRefused">
            <source>the certificate of $1 is not accepted: $2</source>
            <translation>das Zertifikat von $1 wird nicht akzeptiert: $2</translation>
        </message>
        <message id="VTULocalization.klTrustFileUnusable">
            <source>the file of trusted certificates &quot;$1&quot; can't be used</source>
            <translation>die Datei „$1“ mit vertrauten Zertifikaten ist nicht verwendbar</translation>
        </message>
        <message id="VTULocalization.klRefusedWithStatus">
            <source>$1 refused with status $2</source>
            <translation>$1 hat mit Status $2 abgelehnt</translation>
        </message>
        <message id="VTULocalization.klNoAnswerWithin">
            <source>$1 did not answer within $2 s</source>
            <translation>$1 hat nicht innerhalb von $2 s geantwortet</translation>
        </message>
        <message id="VTULocalization.klRequestNotTaken">
            <source>$1 did not take the whole request within $2 s</source>
            <translation>$1 hat die Anfrage nicht innerhalb von $2 s vollständig angenommen</translation>
        </message>
        <message id="VTULocalization.klReplyStopped">
            <source>$1 fell silent in its reply for $2 s</source>
            <translation>$1 ist mitten in der Antwort $2 s lang verstummt</translation>
        </message>
        <message id="VTULocalization.klConnectionBroke">
            <source>the connection to $1 broke: $2</source>
            <translation>die Verbindung zu $1 ist abgerissen: $2</translation>
        </message>
        <message id="VTULocalization.klClosedConnection">
            <source>$1 closed the connection</source>
            <translation>$1 hat die Verbindung beendet</translation>
        </message>
        <message id="VTULocalization.klClosedInRequest">
            <source>$1 closed the connection before it had the whole request</source>
            <translation>$1 hat die Verbindung beendet, bevor die Anfrage vollständig war</translation>
        </message>
        <message id="VTULocalization.klClosedInReply">
            <source>$1 closed the connection before its reply was complete</source>
            <translation>$1 hat die Verbindung beendet, bevor die Antwort vollständig war</translation>
        </message>
        <message id="VTULocalization.klAnsweredEarly">
            <source>$1 answered before it had the whole request</source>
            <translation>$1 hat geantwortet, bevor die Anfrage vollständig war</translation>
        </message>
        <message id="VTULocalization.klReplyTooLarge">
            <source>the reply of $1 is too large</source>
            <translation>die Antwort von $1 ist zu groß</translation>
        </message>
        <message id="VTULocalization.klReplyBadLength">
            <source>$1 announced a reply of an impossible length</source>
            <translation>$1 hat eine Antwort von unmöglicher Länge angekündigt</translation>
        </message>
        <message id="VTULocalization.klContentShort">
            <source>the content could not be read to its end</source>
            <translation>der Inhalt konnte nicht bis zum Ende gelesen werden</translation>
        </message>
        <message id="VTULocalization.klFileChanged">
            <source>the file changed before it was sent whole</source>
            <translation>die Datei wurde geändert, bevor sie vollständig gesendet war</translation>
        </message>
        <message id="VTULocalization.klNoFileToSend">
            <source>there is no file to send</source>
            <translation>es gibt keine Datei zu senden</translation>
        </message>
        <message id="VTULocalization.klStopped">
            <source>stopped</source>
            <translation>angehalten</translation>
        </message>
        <message id="VTULocalization.klNoInputFolder">
            <source>the task has no input folder</source>
            <translation>die Aufgabe hat keinen Eingabeordner</translation>
        </message>
        <message id="EditTaskWindow.klAddDatetoFileName">
            <source>Add Date to File Name</source>
            <translation>Datum an Dateinamen anhängen</translation>
        </message>
        <message id="EditTaskWindow.klAutoRecognition">
            <source>Auto Recognition</source>
            <translation>Automatische Erkennung</translation>
        </message>
        <message id="EditTaskWindow.klDeleteFileAfterCopy">
            <source>Delete File After Copy</source>
            <translation>Datei nach dem Kopieren löschen</translation>
        </message>
        <message id="EditTaskWindow.klExtension">
            <source>Extension</source>
            <translation>Endung</translation>
        </message>
        <message id="EditTaskWindow.klFileNameExclusion">
            <source>File Name Exclusion</source>
            <translation>Dateinamen-Ausschluss</translation>
        </message>
        <message id="EditTaskWindow.klFileNameRecognition">
            <source>File Name Recognition</source>
            <translation>Dateinamen-Erkennung</translation>
        </message>
        <message id="EditTaskWindow.klPrefix">
            <source>Prefix</source>
            <translation>Präfix</translation>
        </message>
        <message id="EditTaskWindow.klSelectTrack">
            <source>Select Track</source>
            <translation>Track wählen</translation>
        </message>
        <message id="MainMenuBar.klFileMenu">
            <source>&amp;File</source>
            <translation>&amp;Datei</translation>
        </message>
        <message id="MainMenuBar.klFileAbout">
            <source>About Vantry Uploader...</source>
            <translation>Über Vantry Uploader...</translation>
        </message>
        <message id="MainMenuBar.klFileQuit">
            <source>&amp;Quit</source>
            <translation>&amp;Beenden</translation>
        </message>
        <message id="MainMenuBar.klEditMenu">
            <source>&amp;Edit</source>
            <translation>&amp;Bearbeiten</translation>
        </message>
        <message id="MainMenuBar.klEditUndo">
            <source>&amp;Undo</source>
            <translation>&amp;Rückgängig</translation>
        </message>
        <message id="MainMenuBar.klEditCut">
            <source>Cu&amp;t</source>
            <translation>&amp;Ausschneiden</translation>
        </message>
        <message id="MainMenuBar.klEditCopy">
            <source>&amp;Copy</source>
            <translation>&amp;Kopieren</translation>
        </message>
        <message id="MainMenuBar.klEditPaste">
            <source>&amp;Paste</source>
            <translation>&amp;Einfügen</translation>
        </message>
        <message id="MainMenuBar.klEditClear">
            <source>&amp;Delete</source>
            <translation>&amp;Löschen</translation>
        </message>
        <message id="MainMenuBar.klEditSelectAll">
            <source>Select &amp;All</source>
            <translation>Alles aus&amp;wählen</translation>
        </message>
        <message id="MainMenuBar.klAboutTitle">
            <source>About</source>
            <translation>Über</translation>
        </message>
        <message id="VantryUtil.E002">
            <source>No patches found. Check instrument/software settings.</source>
            <translation>Keine Messfelder gefunden. Prüfen Sie die Einstellungen von Messgerät und Software.</translation>
        </message>
        <message id="VantryUtil.E003">
            <source>Database connection issues. Check website/ server connection.</source>
            <translation>Probleme mit der Datenbankverbindung. Prüfen Sie die Verbindung zu Website und Server.</translation>
        </message>
        <message id="VantryUtil.E004">
            <source>Wrong measurement conditions - possible mismatch. Check both application and track/ tool preferences (M0, M1, M2, M3)</source>
            <translation>Falsche Messbedingungen – möglicherweise passen sie nicht zusammen. Prüfen Sie die Einstellungen der Anwendung und des Tracks/Werkzeugs (M0, M1, M2, M3)</translation>
        </message>
        <message id="VantryUtil.E005">
            <source>Wrong mode. Mode shall be either production or makeready.</source>
            <translation>Falscher Modus. Der Modus muss Fortdruck (production) oder Einrichten (makeready) sein.</translation>
        </message>
        <message id="VantryUtil.E006">
            <source>Wrong backing. Backing shall be either white or black.</source>
            <translation>Falsche Messunterlage. Die Messunterlage muss weiß (white) oder schwarz (black) sein.</translation>
        </message>
        <message id="VantryUtil.E007">
            <source>Filename cannot be empty.</source>
            <translation>Der Dateiname darf nicht leer sein.</translation>
        </message>
        <message id="VantryUtil.E008">
            <source>Requested track not found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Der gewünschte Track wurde nicht gefunden. Prüfen Sie bei automatischer Erkennung die Einstellungen: Anwendung und Website müssen genau übereinstimmen.</translation>
        </message>
        <message id="VantryUtil.E009">
            <source>Wrong login/password combination. Note: SOAP protocol uses separate login/ password combination. Consult user manual to learn more.</source>
            <translation>Falsche Kombination von Login und Passwort. Hinweis: Das SOAP-Protokoll verwendet ein eigenes Login und Passwort. Näheres steht im Handbuch.</translation>
        </message>
        <message id="VantryUtil.E010">
            <source>No tracks found.</source>
            <translation>Keine Tracks gefunden.</translation>
        </message>
        <message id="VantryUtil.E011">
            <source>Spectral data missing.</source>
            <translation>Spektraldaten fehlen.</translation>
        </message>
        <message id="VantryUtil.E012">
            <source>Wrong color definition.</source>
            <translation>Falsche Farbdefinition.</translation>
        </message>
        <message id="VantryUtil.E013">
            <source>Date format unrecognized.</source>
            <translation>Das Datumsformat wurde nicht erkannt.</translation>
        </message>
        <message id="VantryUtil.E014">
            <source>Sheet number must be an integer.</source>
            <translation>Die Bogennummer muss eine ganze Zahl sein.</translation>
        </message>
        <message id="VantryUtil.E015">
            <source>Unknown dryback value. (E015)</source>
            <translation>Unbekannter Dryback-Wert. (E015)</translation>
        </message>
        <message id="VantryUtil.E016">
            <source>User is registered on dedicated instance, API URL needs to be changed</source>
            <translation>Der Benutzer ist auf einer eigenen Instanz registriert, die API-URL muss geändert werden</translation>
        </message>
        <message id="VantryUtil.E017">
            <source>Operator is not authenticated, please check Your login/password combination.</source>
            <translation>Der Bediener ist nicht angemeldet, bitte prüfen Sie Login und Passwort.</translation>
        </message>
        <message id="VantryUtil.E018">
            <source>No devices found.</source>
            <translation>Keine Geräte gefunden.</translation>
        </message>
        <message id="VantryUtil.E019">
            <source>Selected operator is not assigned to any of printing devices</source>
            <translation>Der gewählte Bediener ist keinem Druckgerät zugeordnet</translation>
        </message>
        <message id="VantryUtil.E020">
            <source>No Scanning Templates found</source>
            <translation>Keine Messschablonen gefunden</translation>
        </message>
        <message id="VantryUtil.E021">
            <source>No measurement tasks avaliable</source>
            <translation>Keine Messaufgaben verfügbar</translation>
        </message>
        <message id="VantryUtil.E022">
            <source>Scanning Template not found</source>
            <translation>Messschablone nicht gefunden</translation>
        </message>
        <message id="VantryUtil.E023">
            <source>Control Strip not foundControl Strip not found</source>
            <translation>Kontrollstreifen nicht gefunden</translation>
        </message>
        <message id="VantryUtil.E024">
            <source>Control Strip patches not found</source>
            <translation>Messfelder des Kontrollstreifens nicht gefunden</translation>
        </message>
        <message id="VantryUtil.E025">
            <source>Selected job does not belong to selected track</source>
            <translation>Der gewählte Auftrag gehört nicht zum gewählten Track</translation>
        </message>
        <message id="VantryUtil.E026">
            <source>No jobs found</source>
            <translation>Keine Aufträge gefunden</translation>
        </message>
        <message id="VantryUtil.E027">
            <source>Color Library/Palette not found</source>
            <translation>Farbbibliothek/-palette nicht gefunden</translation>
        </message>
        <message id="VantryUtil.E028">
            <source>No instruments found</source>
            <translation>Keine Messgeräte gefunden</translation>
        </message>
        <message id="VantryUtil.E102">
            <source>No Instrument - Target pair found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Kein Paar aus Messgerät und Messvorlage gefunden. Prüfen Sie bei automatischer Erkennung die Einstellungen: Anwendung und Website müssen genau übereinstimmen.</translation>
        </message>
        <message id="VantryUtil.E103">
            <source>Measured file does not have required list of patches.</source>
            <translation>Die Messdatei enthält nicht die erforderlichen Messfelder.</translation>
        </message>
        <message id="VantryUtil.EUnknownError">
            <source>Unknown Error</source>
            <translation>Unbekannter Fehler</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateOff">
            <source>Off</source>
            <translation>Aus</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateProcessing">
            <source>Sending files</source>
            <translation>Sendet Dateien</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateReady">
            <source>Ready</source>
            <translation>Bereit</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateFault">
            <source>A folder is missing or can't be written</source>
            <translation>Ein Ordner fehlt oder ist nicht beschreibbar</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasks">
            <source>Tasks</source>
            <translation>Aufgaben</translation>
        </message>
        <message id="VTUploaderMainWIndow.klHelp">
            <source>Help</source>
            <translation>Hilfe</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNoTasks">
            <source>There are no tasks yet. Press &quot;$1&quot; to set up the first one.</source>
            <translation>Es gibt noch keine Aufgaben. Mit „$1“ richten Sie die erste ein.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskEditor">
            <source>The task editor</source>
            <translation>Der Aufgabeneditor</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripAndMore">
            <source>(and $1 more)</source>
            <translation>(und $1 weitere)</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasksAboutToLoad">
            <source>The restored tasks are loaded as soon as the files under way are sent.</source>
            <translation>Die wiederhergestellten Aufgaben werden geladen, sobald die laufenden Dateien gesendet sind.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripFolderFault">
            <source>Task &quot;$1&quot; can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>Die Aufgabe „$1“ kann ihre Ordner nicht verwenden. Prüfen Sie, ob Eingabe- und Ausgabeordner vorhanden, verbunden und beschreibbar sind.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotDuplicated">
            <source>The task could not be duplicated: $1</source>
            <translation>Die Aufgabe konnte nicht dupliziert werden: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotRemoved">
            <source>The task is off the list, but its file could not be removed, so it will be back at the next start: $1</source>
            <translation>Die Aufgabe ist aus der Liste entfernt, aber ihre Datei konnte nicht gelöscht werden. Sie erscheint daher beim nächsten Start wieder: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klManualNotOpened">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>Der Browser konnte nicht geöffnet werden. Das Handbuch finden Sie unter $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNewVersion">
            <source>Version $1 is availble newer and availbale.
Would you like to downlownload it now?</source>
            <translation>Die neuere Version $1 ist verfügbar.
Möchten Sie sie jetzt herunterladen?</translation>
        </message>
        <message id="VTUploaderMainWIndow.klDownloadNotOpened">
            <source>The download can't be opened from here. Its address is $1</source>
            <translation>Der Download kann von hier aus nicht geöffnet werden. Seine Adresse ist $1</translation>
        </message>
        <message id="Reasons.klListing">
            <source>listing $1</source>
            <translation>Auflisten von $1</translation>
        </message>
        <message id="Reasons.klReading">
            <source>reading $1</source>
            <translation>Lesen von $1</translation>
        </message>
        <message id="Reasons.klWriting">
            <source>writing $1</source>
            <translation>Schreiben von $1</translation>
        </message>
        <message id="Reasons.klCopying">
            <source>copying $1 to $2</source>
            <translation>Kopieren von $1 nach $2</translation>
        </message>
        <message id="Reasons.klRenaming">
            <source>renaming $1</source>
            <translation>Umbenennen von $1</translation>
        </message>
        <message id="Reasons.klRenamingTo">
            <source>renaming $1 to $2</source>
            <translation>Umbenennen von $1 in $2</translation>
        </message>
        <message id="Reasons.klSettingDate">
            <source>setting the date of $1</source>
            <translation>Datum von $1 setzen</translation>
        </message>
        <message id="Reasons.klDeleting">
            <source>deleting $1</source>
            <translation>Löschen von $1</translation>
        </message>
        <message id="Reasons.klMakingFolder">
            <source>making the folder $1</source>
            <translation>Anlegen des Ordners $1</translation>
        </message>
        <message id="Reasons.klFlushingFolder">
            <source>flushing the folder of $1</source>
            <translation>Sichern des Ordners von $1 auf den Datenträger</translation>
        </message>
        <message id="Reasons.klEnciphering">
            <source>enciphering $1</source>
            <translation>Verschlüsseln von $1</translation>
        </message>
        <message id="Reasons.klWritingOver">
            <source>writing over $1, which could not be read</source>
            <translation>Überschreiben von $1, das nicht gelesen werden konnte</translation>
        </message>
        <message id="Reasons.klSavingWithoutFile">
            <source>saving without a file</source>
            <translation>Speichern ohne Datei</translation>
        </message>
        <message id="Reasons.klMakingIt">
            <source>making it</source>
            <translation>Anlegen der Datei</translation>
        </message>
        <message id="Reasons.klNotOurs">
            <source>it is not a settings file, or it is damaged</source>
            <translation>es ist keine Einstellungsdatei, oder sie ist beschädigt</translation>
        </message>
        <message id="Reasons.klOtherProgram">
            <source>it is damaged, or another program wrote it</source>
            <translation>die Datei ist beschädigt oder stammt von einem anderen Programm</translation>
        </message>
        <message id="Reasons.klNotAnObject">
            <source>its content is not a JSON object</source>
            <translation>der Inhalt ist kein JSON-Objekt</translation>
        </message>
        <message id="Reasons.klContentGone">
            <source>its content is gone</source>
            <translation>der Inhalt ist verschwunden</translation>
        </message>
        <message id="Reasons.klEndCutOff">
            <source>its end is cut off</source>
            <translation>das Ende ist abgeschnitten</translation>
        </message>
        <message id="Reasons.klWriteProtected">
            <source>the file is write-protected</source>
            <translation>die Datei ist schreibgeschützt</translation>
        </message>
    </context>
</TS>
