<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
    <context>
        <name></name>
        <message id="VTULocalization.klAdmin">
            <source>Admin</source>
            <translation>Admin</translation>
        </message>
        <message id="VTULocalization.klAdminLock">
            <source>Admin Lock</source>
            <translation>Verrou admin</translation>
        </message>
        <message id="VTULocalization.klAdminPasswordRequired">
            <source>Admin Password Required</source>
            <translation>Mot de passe admin requis</translation>
        </message>
        <message id="VTULocalization.klAutoMount">
            <source>Auto Mount</source>
            <translation>Montage auto</translation>
        </message>
        <message id="VTULocalization.klBackup">
            <source>Backup</source>
            <translation>Sauvegarde</translation>
        </message>
        <message id="VTULocalization.klBackupDescription">
            <source>Select a directory where a backup of your tasks will be stored.</source>
            <translation>Choisissez le dossier dans lequel vos tâches seront sauvegardées.</translation>
        </message>
        <message id="VTULocalization.klCancel">
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
        <message id="VTULocalization.klCheckandConnect">
            <source>Check and Connect</source>
            <translation>Vérifier et connecter</translation>
        </message>
        <message id="VTULocalization.klCheckForUpdates">
            <source>Check For Updates</source>
            <translation>Rechercher les mises à jour</translation>
        </message>
        <message id="VTULocalization.klClear">
            <source>Clear</source>
            <translation>Vider</translation>
        </message>
        <message id="VTULocalization.klClearLog">
            <source>Clear Log</source>
            <translation>Vider la vue</translation>
        </message>
        <message id="VTULocalization.klClearProcessDateStamp">
            <source>Clear Process Date Stamp</source>
            <translation>Effacer la date traitée</translation>
        </message>
        <message id="VTULocalization.klCouldNotMount">
            <source>Error Mounting</source>
            <translation>Échec du montage</translation>
        </message>
        <message id="VTULocalization.klDeleteLog">
            <source>Delete Log History</source>
            <translation>Supprimer le journal</translation>
        </message>
        <message id="VTULocalization.klDeleteTaskConfirmation">
            <source>Are you sure you want to delete this task?</source>
            <translation>Voulez-vous vraiment supprimer cette tâche ?</translation>
        </message>
        <message id="VTULocalization.klDisableTask">
            <source>Disable Task</source>
            <translation>Désactiver</translation>
        </message>
        <message id="VTULocalization.klDuplicate">
            <source>Duplicate</source>
            <translation>Dupliquer</translation>
        </message>
        <message id="VTULocalization.klEdit">
            <source>Edit</source>
            <translation>Modifier</translation>
        </message>
        <message id="VTULocalization.klEditTask">
            <source>Edit Task</source>
            <translation>Modifier la tâche</translation>
        </message>
        <message id="VTULocalization.klEnteradminpassword">
            <source>Enter admin password</source>
            <translation>Mot de passe admin</translation>
        </message>
        <message id="VTULocalization.klExporttotxt">
            <source>Export to txt</source>
            <translation>Exporter en txt</translation>
        </message>
        <message id="VTULocalization.klField">
            <source>Field</source>
            <translation>Champ</translation>
        </message>
        <message id="VTULocalization.klFiles">
            <source>Files</source>
            <translation>Fichiers</translation>
        </message>
        <message id="VTULocalization.klIncorrectPassword">
            <source>Incorrect Administrator Password Entered</source>
            <translation>Le mot de passe administrateur saisi est incorrect</translation>
        </message>
        <message id="VTULocalization.klInputFolder">
            <source>Input Folder</source>
            <translation>Dossier entrée</translation>
        </message>
        <message id="VTULocalization.KLInputFolderURL">
            <source>Input Folder URL</source>
            <translation>URL du dossier d’entrée</translation>
        </message>
        <message id="VTULocalization.klInputLogin">
            <source>Input Login</source>
            <translation>Login entrée</translation>
        </message>
        <message id="VTULocalization.klWarden">
            <source>Warden</source>
            <translation>Warden</translation>
        </message>
        <message id="VTULocalization.klInstrument">
            <source>Instrument</source>
            <translation>Instrument</translation>
        </message>
        <message id="VTULocalization.klLoad">
            <source>Load</source>
            <translation>Charger</translation>
        </message>
        <message id="VTULocalization.klLoadConfiguration">
            <source>Load Configuration</source>
            <translation>Charger la configuration</translation>
        </message>
        <message id="VTULocalization.klLoadConfigurationDescription">
            <source>Select a folder containing a backup of uploader tasks to be restored.</source>
            <translation>Choisissez un dossier contenant une sauvegarde des tâches à restaurer.</translation>
        </message>
        <message id="VTULocalization.klLocktasklist">
            <source>Lock task list</source>
            <translation>Verrouiller la liste</translation>
        </message>
        <message id="VTULocalization.klNA">
            <source>n/a</source>
            <translation>n/d</translation>
        </message>
        <message id="VTULocalization.klNew">
            <source>New</source>
            <translation>Nouveau</translation>
        </message>
        <message id="VTULocalization.klNoTasksToSave">
            <source>There are no tasks avaible to backup</source>
            <translation>Il n’y a aucune tâche à sauvegarder</translation>
        </message>
        <message id="VTULocalization.klOK">
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message id="VTULocalization.klOutputLogin">
            <source>Output Login</source>
            <translation>Login sortie</translation>
        </message>
        <message id="VTULocalization.klOutputPassword">
            <source>Output Password</source>
            <translation>Mot de passe sortie</translation>
        </message>
        <message id="VTULocalization.klPassword">
            <source>Password</source>
            <translation>Mot de passe</translation>
        </message>
        <message id="VTULocalization.KLPrint">
            <source>Print</source>
            <translation>Impression</translation>
        </message>
        <message id="VTULocalization.klProxy">
            <source>Proxy</source>
            <translation>Proxy</translation>
        </message>
        <message id="VTULocalization.klProxyAddress">
            <source>Proxy Address</source>
            <translation>Adresse du proxy</translation>
        </message>
        <message id="VTULocalization.klProxyPort">
            <source>Proxy Port</source>
            <translation>Port du proxy</translation>
        </message>
        <message id="VTULocalization.klReenteradminpassword">
            <source>Re-enter admin password</source>
            <translation>Confirmer le mot de passe</translation>
        </message>
        <message id="VTULocalization.klRefreshLog">
            <source>Refresh Log</source>
            <translation>Actualiser</translation>
        </message>
        <message id="VTULocalization.klRemove">
            <source>Remove</source>
            <translation>Supprimer</translation>
        </message>
        <message id="VTULocalization.klReplaceFileName">
            <source>Replace Name</source>
            <translation>Remplacer le nom</translation>
        </message>
        <message id="VTULocalization.klSave">
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message id="VTULocalization.klSaveConfiguration">
            <source>Save Configuration</source>
            <translation>Enregistrer la configuration</translation>
        </message>
        <message id="VTULocalization.klSelectBackupDirectory">
            <source>Backup Directory</source>
            <translation>Dossier de sauvegarde</translation>
        </message>
        <message id="VTULocalization.KLSelectInstrument">
            <source>Select Instrument</source>
            <translation>Choisir l’instrument</translation>
        </message>
        <message id="VTULocalization.klSelectPress">
            <source>Select Press</source>
            <translation>Choisir la presse</translation>
        </message>
        <message id="VTULocalization.klSelectTarget">
            <source>Select Target</source>
            <translation>Choisir la mire</translation>
        </message>
        <message id="VTULocalization.klSEt">
            <source>Set</source>
            <translation>Choisir</translation>
        </message>
        <message id="VTULocalization.klShowLog">
            <source>Show Log...</source>
            <translation>Journal...</translation>
        </message>
        <message id="VTULocalization.klSOAPConnection">
            <source>SOAP Connection</source>
            <translation>Connexion SOAP</translation>
        </message>
        <message id="VTULocalization.klSOAPLogin">
            <source>SOAP Login</source>
            <translation>Login SOAP</translation>
        </message>
        <message id="VTULocalization.klSoapPassword">
            <source>SOAP Password</source>
            <translation>Mot de passe SOAP</translation>
        </message>
        <message id="VTULocalization.klSoftwareUpToDate">
            <source>Your software is up to date</source>
            <translation>Votre logiciel est à jour</translation>
        </message>
        <message id="VTULocalization.klStatus">
            <source>Status</source>
            <translation>État</translation>
        </message>
        <message id="VTULocalization.klSureYouWantToQuit">
            <source>Are you sure you want to quit?

Uploads will stop processing when the application quit.</source>
            <translation>Voulez-vous vraiment quitter ?

Plus aucun fichier ne sera envoyé une fois l’application fermée.</translation>
        </message>
        <message id="VTULocalization.klTaskCurrentlyProcessing">
            <source>This task is currently processing. Please try again in a moment</source>
            <translation>Cette tâche est en cours de traitement. Veuillez réessayer dans un instant.</translation>
        </message>
        <message id="VTULocalization.klTaskDescription">
            <source>Task Description</source>
            <translation>Description</translation>
        </message>
        <message id="VTULocalization.klTaskName">
            <source>Task Name</source>
            <translation>Nom de la tâche</translation>
        </message>
        <message id="VTULocalization.kltest">
            <source>Test</source>
            <translation>Tester</translation>
        </message>
        <message id="VTULocalization.klValue">
            <source>Value</source>
            <translation>Valeur</translation>
        </message>
        <message id="VTULocalization.klVerifyDateStamp">
            <source>Are you sure you want to clear the last processed date?

This will force all files in the input folder to be processed regardless of age or if they have previously been processed.</source>
            <translation>Voulez-vous vraiment effacer la date du dernier traitement ?

Tous les fichiers du dossier d’entrée seront alors traités, quel que soit leur âge et même s’ils l’ont déjà été.</translation>
        </message>
        <message id="VTULocalization.klStripSending">
            <source>Sending $1: $2 ($3 %)</source>
            <translation>$1 : envoi de $2 ($3 %)</translation>
        </message>
        <message id="VTULocalization.klStripAllWell">
            <source>All is well since $1</source>
            <translation>Tout va bien depuis $1</translation>
        </message>
        <message id="VTULocalization.klStripConnecting">
            <source>Connecting to the service...</source>
            <translation>Connexion au service...</translation>
        </message>
        <message id="VTULocalization.klStripChecking">
            <source>Checking the input folders...</source>
            <translation>Vérification des dossiers d’entrée...</translation>
        </message>
        <message id="VTULocalization.klUploadingHeld">
            <source>Uploading is held until the task editor or the Admin window is closed and what was changed there is in force.</source>
            <translation>L’envoi est suspendu jusqu’à ce que l’éditeur de tâches ou la fenêtre Admin soit fermé et que les modifications soient appliquées.</translation>
        </message>
        <message id="VTULocalization.klStripNoLogin">
            <source>No login is stored, so nothing can be sent. Enter the service login under Admin.</source>
            <translation>Aucun login n’est enregistré, rien ne peut donc être envoyé. Saisissez le login du service sous Admin.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFileSkipped">
            <source>Task file &quot;$1&quot; was skipped: $2. The other tasks run. Repair or remove the file and start the program again.</source>
            <translation>Le fichier de tâche « $1 » a été ignoré : $2. Les autres tâches fonctionnent. Réparez ou retirez le fichier, puis redémarrez le programme.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFolderUnreadable">
            <source>The tasks can't be read, so nothing is sent: $2. Check the task folder and start the program again.</source>
            <translation>Les tâches ne peuvent pas être lues, rien n’est donc envoyé : $2. Vérifiez le dossier des tâches, puis redémarrez le programme.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesSetAside">
            <source>The settings file was damaged and is kept as &quot;$1&quot;. Enter the service login again under Admin.</source>
            <translation>Le fichier de réglages était endommagé et a été conservé sous le nom « $1 ». Saisissez de nouveau le login du service sous Admin.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesNotSaved">
            <source>The settings can't be saved: $2. Check the settings folder, its permissions and the space on its disk.</source>
            <translation>Les réglages ne peuvent pas être enregistrés : $2. Vérifiez le dossier des réglages, ses droits d’accès et l’espace disque.</translation>
        </message>
        <message id="VTULocalization.klStripLogSetAside">
            <source>The log was damaged and is kept as &quot;$1&quot;. A new log has begun; uploads are not affected.</source>
            <translation>Le journal était endommagé et a été conservé sous le nom « $1 ». Un nouveau journal a été commencé ; les envois ne sont pas affectés.</translation>
        </message>
        <message id="VTULocalization.klStripLogUnavailable">
            <source>Uploads go on, but nothing is logged: $2. When this is repaired, start the program again.</source>
            <translation>Les envois continuent, mais rien n’est consigné dans le journal : $2. Une fois le problème résolu, redémarrez le programme.</translation>
        </message>
        <message id="VTULocalization.klStripLogRowLost">
            <source>Uploads go on, but an entry could not be logged: $2. Check the space on the disk.</source>
            <translation>Les envois continuent, mais une entrée n’a pas pu être consignée dans le journal : $2. Vérifiez l’espace disque.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionInvalid">
            <source>Task &quot;$1&quot; excludes no files, because its exclusion pattern is not valid: $2. Correct the pattern.</source>
            <translation>La tâche « $1 » n’exclut aucun fichier, car son motif d’exclusion n’est pas valide : $2. Corrigez le motif.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionTooCostly">
            <source>Task &quot;$1&quot; keeps back &quot;$2&quot;, because its exclusion pattern takes too long on that name. Simplify the pattern.</source>
            <translation>La tâche « $1 » retient « $2 », car son motif d’exclusion prend trop de temps sur ce nom. Simplifiez le motif.</translation>
        </message>
        <message id="VTULocalization.klStripInputFolderUnreadable">
            <source>Task &quot;$1&quot; can't read its input folder: $2. Check that the folder is there and connected.</source>
            <translation>La tâche « $1 » ne peut pas lire son dossier d’entrée : $2. Vérifiez que le dossier existe et qu’il est connecté.</translation>
        </message>
        <message id="VTULocalization.klStripFolderSilent">
            <source>The folders of task &quot;$1&quot; do not answer. The other tasks run, and this one goes on by itself when its server is back.</source>
            <translation>Les dossiers de la tâche « $1 » ne répondent pas. Les autres tâches continuent, et celle-ci reprendra d’elle-même au retour de son serveur.</translation>
        </message>
        <message id="VTULocalization.klStripNothingMounted">
            <source>Task &quot;$1&quot; waits for the share at $2, where nothing is mounted. To use the folder as it is, set it anew in the task.</source>
            <translation>La tâche « $1 » attend le partage à $2, où rien n’est monté. Pour utiliser le dossier tel quel, choisissez-le de nouveau dans la tâche.</translation>
        </message>
        <message id="VTULocalization.klStripShareNotMounted">
            <source>The share $1 could not be mounted: $2. It is tried again after 10 minutes.</source>
            <translation>Le partage $1 n’a pas pu être monté : $2. Un nouvel essai aura lieu dans 10 minutes.</translation>
        </message>
        <message id="VTULocalization.klStripCopyFailed">
            <source>Task &quot;$1&quot; could not save a copy: $2. The input file was not deleted. Check the output folder.</source>
            <translation>La tâche « $1 » n’a pas pu enregistrer de copie : $2. Le fichier d’entrée n’a pas été supprimé. Vérifiez le dossier de sortie.</translation>
        </message>
        <message id="VTULocalization.klStripDeleteFailed">
            <source>Task &quot;$1&quot; sent a file but could not delete it: $2. Check the permissions of the input folder and delete the file yourself.</source>
            <translation>La tâche « $1 » a envoyé un fichier mais n’a pas pu le supprimer : $2. Vérifiez les droits sur le dossier d’entrée et supprimez le fichier vous-même.</translation>
        </message>
        <message id="VTULocalization.klStripUploadFailed">
            <source>Task &quot;$1&quot; could not send a file: $2. When this is repaired, save the file into the input folder again.</source>
            <translation>La tâche « $1 » n’a pas pu envoyer un fichier : $2. Une fois le problème résolu, enregistrez de nouveau le fichier dans le dossier d’entrée.</translation>
        </message>
        <message id="VTULocalization.klStripFileWaits">
            <source>Task &quot;$1&quot; can't read a file at the moment: $2. It is tried again by itself.</source>
            <translation>La tâche « $1 » ne peut pas lire un fichier pour le moment : $2. Une nouvelle tentative aura lieu automatiquement.</translation>
        </message>
        <message id="VTULocalization.klStripRunFailed">
            <source>Task &quot;$1&quot; was stopped by a fault: $2. It is tried again by itself; if this line stays, start the program again.</source>
            <translation>La tâche « $1 » a été arrêtée par une erreur : $2. Elle sera relancée automatiquement ; si cette ligne persiste, redémarrez le programme.</translation>
        </message>
        <message id="VTULocalization.klStripServiceUnreachable">
            <source>The service can't be reached: $2. It is tried again by itself; check the network and the proxy settings.</source>
            <translation>Le service est injoignable : $2. De nouveaux essais ont lieu automatiquement ; vérifiez le réseau et les réglages du proxy.</translation>
        </message>
        <message id="VTULocalization.klStripServiceRefuses">
            <source>The service answers with an error: $2. It is asked again by itself; check the login under Admin.</source>
            <translation>Le service répond par une erreur : $2. De nouveaux essais ont lieu automatiquement ; vérifiez le login sous Admin.</translation>
        </message>
        <message id="VTULocalization.klMountNoSession">
            <source>there is no desktop session with a mount service</source>
            <translation>il n’y a pas de session de bureau avec un service de montage</translation>
        </message>
        <message id="VTULocalization.klMountLoginRefused">
            <source>the server refuses the login</source>
            <translation>le serveur refuse l’identifiant ou le mot de passe</translation>
        </message>
        <message id="VTULocalization.klMountQuestion">
            <source>the server's key or certificate is not trusted; open it once in the file manager, or install its certificate</source>
            <translation>la clé ou le certificat du serveur n’est pas approuvé ; ouvrez-le une fois dans le gestionnaire de fichiers, ou installez son certificat</translation>
        </message>
        <message id="VTULocalization.klMountUnreachable">
            <source>the server can't be reached</source>
            <translation>le serveur est injoignable</translation>
        </message>
        <message id="VTULocalization.klMountNotThere">
            <source>the server has no such share or folder</source>
            <translation>le serveur n’a ni ce partage ni ce dossier</translation>
        </message>
        <message id="VTULocalization.klMountTimedOut">
            <source>the server does not answer</source>
            <translation>le serveur ne répond pas</translation>
        </message>
        <message id="VTULocalization.klMountNotSupported">
            <source>no installed program mounts that kind of address</source>
            <translation>aucun programme installé ne monte ce type d’adresse</translation>
        </message>
        <message id="VTULocalization.klMountNoFolder">
            <source>it is mounted, but not shown as a folder; name a share in the address, or install gvfs-fuse and log in again</source>
            <translation>il est monté, mais n’apparaît pas comme dossier ; nommez un partage dans l’adresse, ou installez gvfs-fuse et ouvrez une nouvelle session</translation>
        </message>
        <message id="VTULocalization.klMountServiceEnded">
            <source>the mount service broke down over it; check the address and the login</source>
            <translation>le service de montage a échoué ; vérifiez l’adresse et l’identifiant</translation>
        </message>
        <message id="VTULocalization.klMountFailed">
            <source>error $1</source>
            <translation>erreur $1</translation>
        </message>
        <message id="VTULocalization.klPreferencesSetAside">
            <source>The settings file was damaged and could not be read. It is kept as &quot;$1&quot;.

Vantry Uploader starts with empty settings: please enter the login, the proxy and the administrator password again under Admin. Your tasks are still there, but the record of what they have already processed is lost: files in the input folders may be sent once more.</source>
            <translation>Le fichier de réglages était endommagé et n’a pas pu être lu. Il a été conservé sous le nom « $1 ».

Vantry Uploader démarre avec des réglages vides : saisissez de nouveau le login, le proxy et le mot de passe administrateur sous Admin. Vos tâches sont toujours là, mais la trace de ce qu’elles ont déjà traité est perdue : des fichiers des dossiers d’entrée peuvent être envoyés une nouvelle fois.</translation>
        </message>
        <message id="VTULocalization.klStartFailed">
            <source>Vantry Uploader could not start and will close: $1

No files are being sent. Please start it again; if this message comes back, show it to your administrator.</source>
            <translation>Vantry Uploader n’a pas pu démarrer et va se fermer : $1

Aucun fichier n’est envoyé. Redémarrez le programme ; si ce message réapparaît, montrez-le à votre administrateur.</translation>
        </message>
        <message id="VTULocalization.klAlreadyRunning">
            <source>Vantry Uploader is already running. Please use its window.</source>
            <translation>Vantry Uploader est déjà ouvert. Veuillez utiliser sa fenêtre.</translation>
        </message>
        <message id="VTULocalization.klWindowNotInBuild">
            <source>$1 is not part of this build yet.</source>
            <translation>$1 : pas encore disponible dans cette version.</translation>
        </message>
        <message id="VTULocalization.klCopyFailedNote">
            <source> Copy not saved: $1</source>
            <translation> Copie non enregistrée : $1</translation>
        </message>
        <message id="VTULocalization.klDeleteFailedNote">
            <source> Input file not deleted: $1</source>
            <translation> Fichier d’entrée non supprimé : $1</translation>
        </message>
        <message id="VTULocalization.klRunFailedNote">
            <source>Processing stopped: $1</source>
            <translation>Traitement arrêté : $1</translation>
        </message>
        <message id="VTULocalization.klSampleMatching">
            <source>$1 of $2 files match: $3</source>
            <translation>Fichiers retenus $1 sur $2 : $3</translation>
        </message>
        <message id="VTULocalization.klSampleOneOf">
            <source>1 of $1 files matches: $2</source>
            <translation>1 fichier retenu sur $1 : $2</translation>
        </message>
        <message id="VTULocalization.klSampleNone">
            <source>None of the $1 files matches</source>
            <translation>Aucun des $1 fichiers n’est retenu</translation>
        </message>
        <message id="VTULocalization.klSampleOneMatches">
            <source>The only file matches: $1</source>
            <translation>Le seul fichier est retenu : $1</translation>
        </message>
        <message id="VTULocalization.klSampleOneFails">
            <source>The only file doesn't match</source>
            <translation>Le seul fichier n’est pas retenu</translation>
        </message>
        <message id="VTULocalization.klSampleNoFiles">
            <source>There are no files in the input folder</source>
            <translation>Il n’y a aucun fichier dans le dossier d’entrée</translation>
        </message>
        <message id="VTULocalization.klSampleLooking">
            <source>Looking at the input folder...</source>
            <translation>Examen du dossier d’entrée...</translation>
        </message>
        <message id="VTULocalization.klSampleSlow">
            <source>The input folder is slow to answer, so there is no sample of its files</source>
            <translation>Le dossier d’entrée répond lentement, l’aperçu de ses fichiers manque donc</translation>
        </message>
        <message id="VTULocalization.klSampleFolderGone">
            <source>The input folder is not there</source>
            <translation>Le dossier d’entrée est introuvable</translation>
        </message>
        <message id="VTULocalization.klSampleFailed">
            <source>The input folder can't be read: $1</source>
            <translation>Le dossier d’entrée ne peut pas être lu : $1</translation>
        </message>
        <message id="VTULocalization.klSampleKeptOut">
            <source>Kept out:</source>
            <translation>Écartés :</translation>
        </message>
        <message id="VTULocalization.klSampleAndMore">
            <source>and $1 more</source>
            <translation>et $1 de plus</translation>
        </message>
        <message id="VTULocalization.klSampleName">
            <source>What the rules select</source>
            <translation>Ce que les règles sélectionnent</translation>
        </message>
        <message id="VTULocalization.klWhyHidden">
            <source>hidden</source>
            <translation>fichier caché</translation>
        </message>
        <message id="VTULocalization.klWhyNotAFile">
            <source>not a plain file</source>
            <translation>pas un fichier ordinaire</translation>
        </message>
        <message id="VTULocalization.klWhyEnding">
            <source>another ending</source>
            <translation>autre extension</translation>
        </message>
        <message id="VTULocalization.klWhyPattern">
            <source>doesn't fit the name pattern</source>
            <translation>ne correspond pas au motif de nom</translation>
        </message>
        <message id="VTULocalization.klWhyExcluded">
            <source>excluded</source>
            <translation>exclu</translation>
        </message>
        <message id="VTULocalization.klWhyExclusionTooCostly">
            <source>the exclusion pattern takes too long on it</source>
            <translation>le motif d’exclusion y prend trop de temps</translation>
        </message>
        <message id="VTULocalization.klWhyEmpty">
            <source>empty</source>
            <translation>vide</translation>
        </message>
        <message id="VTULocalization.klWhyOlder">
            <source>not changed since the last processed date</source>
            <translation>pas modifié depuis le dernier traitement</translation>
        </message>
        <message id="VTULocalization.klWhyUnreadable">
            <source>can't be read</source>
            <translation>illisible</translation>
        </message>
        <message id="VTULocalization.klWhyStillMoving">
            <source>still being written</source>
            <translation>en cours d’écriture</translation>
        </message>
        <message id="VTULocalization.klWhyDealtWith">
            <source>already processed</source>
            <translation>déjà traité</translation>
        </message>
        <message id="VTULocalization.klListFetching">
            <source>The list is being fetched from the service...</source>
            <translation>Récupération de la liste auprès du service...</translation>
        </message>
        <message id="VTULocalization.klListFailed">
            <source>The list is empty because it could not be fetched from the service: $1</source>
            <translation>La liste est vide, car elle n’a pas pu être récupérée auprès du service : $1</translation>
        </message>
        <message id="VTULocalization.klListRefused">
            <source>The list is empty because the service did not give it. Check the login under Admin.</source>
            <translation>La liste est vide, car le service ne l’a pas fournie. Vérifiez le login sous Admin.</translation>
        </message>
        <message id="VTULocalization.klListNoLogin">
            <source>The list is empty because no login is stored. Enter the service login under Admin.</source>
            <translation>La liste est vide, car aucun login n’est enregistré. Saisissez le login du service sous Admin.</translation>
        </message>
        <message id="VTULocalization.klListNothingThere">
            <source>The service has nothing to choose from for this account.</source>
            <translation>Le service ne propose rien pour ce compte.</translation>
        </message>
        <message id="VTULocalization.klExclusionInvalid">
            <source>The file name exclusion is not a valid pattern: $1, at character $2</source>
            <translation>L’exclusion de noms de fichier n’est pas un motif valide : $1, au caractère $2</translation>
        </message>
        <message id="VTULocalization.klTaskNotSaved">
            <source>There was an error saving this task</source>
            <translation>Une erreur est survenue lors de l’enregistrement de cette tâche</translation>
        </message>
        <message id="VTULocalization.klOldTaskNotRemoved">
            <source>The task was saved, but the file of its earlier settings could not be removed, so these will be back as a second task at the next start: $1</source>
            <translation>La tâche a été enregistrée, mais le fichier de ses anciens réglages n’a pas pu être supprimé ; ils réapparaîtront donc comme une deuxième tâche au prochain démarrage : $1</translation>
        </message>
        <message id="VTULocalization.klEditorFailed">
            <source>The task editor could not be opened: $1</source>
            <translation>L’éditeur de tâches n’a pas pu être ouvert : $1</translation>
        </message>
        <message id="VTULocalization.klManualAddress">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>Le navigateur n’a pas pu être ouvert. Le manuel se trouve à l’adresse $1</translation>
        </message>
        <message id="VTULocalization.klSameFolders">
            <source>The input and output folder cannot be the same</source>
            <translation>Les dossiers d’entrée et de sortie ne peuvent pas être identiques</translation>
        </message>
        <message id="VTULocalization.klPleaseEnterAutoMountDetails">
            <source>Please enter the URL, the login and the password of the share first.</source>
            <translation>Veuillez d’abord saisir l’URL, l’identifiant et le mot de passe du partage.</translation>
        </message>
        <message id="VTULocalization.klMountReason">
            <source>$1.</source>
            <translation>$1.</translation>
        </message>
        <message id="VTULocalization.klStop">
            <source>Stop</source>
            <translation>Arrêter</translation>
        </message>
        <message id="VTULocalization.klStopMountTest">
            <source>Stop the mount test</source>
            <translation>Arrêter le test de montage</translation>
        </message>
        <message id="VTULocalization.klSelect">
            <source>Select</source>
            <translation>Choisir</translation>
        </message>
        <message id="VTULocalization.klInputFolderPrompt">
            <source>Select the input folder for this task.
This is the folder that will be watched for new files.</source>
            <translation>Choisissez le dossier d’entrée de cette tâche.
L’arrivée de nouveaux fichiers y sera surveillée.</translation>
        </message>
        <message id="VTULocalization.klOutputFolderPrompt">
            <source>Select the output folder for this task.
This is the folder where processed files will be stored.</source>
            <translation>Choisissez le dossier de sortie de cette tâche.
Les fichiers traités y seront rangés.</translation>
        </message>
        <message id="VTULocalization.klOutputFolder">
            <source>Output Folder</source>
            <translation>Dossier sortie</translation>
        </message>
        <message id="VTULocalization.klOutputFolderURL">
            <source>Output Folder URL</source>
            <translation>URL du dossier de sortie</translation>
        </message>
        <message id="VTULocalization.klInputPassword">
            <source>Input Password</source>
            <translation>Mot de passe entrée</translation>
        </message>
        <message id="VTULocalization.klRegExCue">
            <source>RegEx</source>
            <translation>RegEx</translation>
        </message>
        <message id="VTULocalization.klFileRecognitionHelp">
            <source>Help on file name recognition</source>
            <translation>Aide sur la reconnaissance des noms de fichier</translation>
        </message>
        <message id="VTULocalization.klRequired">
            <source>Required</source>
            <translation>Obligatoire</translation>
        </message>
        <message id="VTULocalization.klSetInputFolder">
            <source>Set the input folder</source>
            <translation>Choisir le dossier d’entrée</translation>
        </message>
        <message id="VTULocalization.klSetOutputFolder">
            <source>Set the output folder</source>
            <translation>Choisir le dossier de sortie</translation>
        </message>
        <message id="VTULocalization.klClearInputFolder">
            <source>Clear the input folder</source>
            <translation>Effacer le choix du dossier d’entrée</translation>
        </message>
        <message id="VTULocalization.klClearOutputFolder">
            <source>Clear the output folder</source>
            <translation>Effacer le choix du dossier de sortie</translation>
        </message>
        <message id="VTULocalization.klAutoMountInput">
            <source>Mount the input folder automatically</source>
            <translation>Monter automatiquement le dossier d’entrée</translation>
        </message>
        <message id="VTULocalization.klAutoMountOutput">
            <source>Mount the output folder automatically</source>
            <translation>Monter automatiquement le dossier de sortie</translation>
        </message>
        <message id="VTULocalization.klTestMountInput">
            <source>Test mounting the input folder</source>
            <translation>Tester le montage du dossier d’entrée</translation>
        </message>
        <message id="VTULocalization.klTestMountOutput">
            <source>Test mounting the output folder</source>
            <translation>Tester le montage du dossier de sortie</translation>
        </message>
        <message id="VTULocalization.klWhyNotSent">
            <source>Why was this file not sent?</source>
            <translation>Pourquoi ce fichier n’a-t-il pas été envoyé ?</translation>
        </message>
        <message id="VTULocalization.klWhyMenu">
            <source>Why was a file not sent?...</source>
            <translation>Pourquoi un fichier n’a-t-il pas été envoyé ?...</translation>
        </message>
        <message id="VTULocalization.klWhyChoosePrompt">
            <source>Select the file that was not sent by the task &quot;$1&quot;.</source>
            <translation>Choisissez le fichier que la tâche « $1 » n’a pas envoyé.</translation>
        </message>
        <message id="VTULocalization.klWhyHead">
            <source>&quot;$1&quot; and the task &quot;$2&quot;</source>
            <translation>« $1 » et la tâche « $2 »</translation>
        </message>
        <message id="VTULocalization.klWhyAnswers">
            <source>Answers</source>
            <translation>Réponses</translation>
        </message>
        <message id="VTULocalization.klWhyLooking">
            <source>Looking at the file...</source>
            <translation>Examen du fichier...</translation>
        </message>
        <message id="VTULocalization.klWhySlow">
            <source>The file's folder does not answer. Check that the folder is connected.</source>
            <translation>Le dossier du fichier ne répond pas. Vérifiez que le dossier est connecté.</translation>
        </message>
        <message id="VTULocalization.klWhyFailed">
            <source>The file's folder can't be read: $1</source>
            <translation>Le dossier du fichier ne peut pas être lu : $1</translation>
        </message>
        <message id="VTULocalization.klWhyOneFile">
            <source>Please drop one file at a time.</source>
            <translation>Veuillez ne déposer qu’un fichier à la fois.</translation>
        </message>
        <message id="VTULocalization.klWhyNotLocal">
            <source>A file at a network address can't be looked at. Drop it from the folder where the share is mounted, or right-click the task and choose the file there.</source>
            <translation>Un fichier à une adresse réseau ne peut pas être examiné. Déposez-le depuis le dossier où le partage est monté, ou cliquez avec le bouton droit sur la tâche et choisissez-y le fichier.</translation>
        </message>
        <message id="VTULocalization.klWhyClose">
            <source>Close</source>
            <translation>Fermer</translation>
        </message>
        <message id="VTULocalization.klWhyYes">
            <source>All right</source>
            <translation>En ordre</translation>
        </message>
        <message id="VTULocalization.klWhyNo">
            <source>Keeps it back</source>
            <translation>Le retient</translation>
        </message>
        <message id="VTULocalization.klWhyDue">
            <source>Nothing keeps it back: it goes out with the next run.</source>
            <translation>Rien ne le retient : il partira au prochain passage.</translation>
        </message>
        <message id="VTULocalization.klWhyNotDue">
            <source>It is not sent, for this reason:</source>
            <translation>Il n’est pas envoyé, pour cette raison :</translation>
        </message>
        <message id="VTULocalization.klWhyNotDueSeveral">
            <source>It is not sent, for these $1 reasons:</source>
            <translation>Il n’est pas envoyé, pour ces $1 raisons :</translation>
        </message>
        <message id="VTULocalization.klWhyReported">
            <source>The task reports: $1</source>
            <translation>La tâche signale : $1</translation>
        </message>
        <message id="VTULocalization.klYesPlace">
            <source>It lies in the task's input folder.</source>
            <translation>Il se trouve dans le dossier d’entrée de la tâche.</translation>
        </message>
        <message id="VTULocalization.klNoPlace">
            <source>It is not in the task's input folder, which is $1.</source>
            <translation>Il n’est pas dans le dossier d’entrée de la tâche, qui est $1.</translation>
        </message>
        <message id="VTULocalization.klYesEnabled">
            <source>The task is switched on.</source>
            <translation>La tâche est activée.</translation>
        </message>
        <message id="VTULocalization.klNoEnabled">
            <source>The task is disabled. Edit it and clear &quot;Disable Task&quot;.</source>
            <translation>La tâche est désactivée. Modifiez-la et décochez « Désactiver ».</translation>
        </message>
        <message id="VTULocalization.klNoFolders">
            <source>The task can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>La tâche ne peut pas utiliser ses dossiers. Vérifiez que les dossiers d’entrée et de sortie existent, sont connectés et accessibles en écriture.</translation>
        </message>
        <message id="VTULocalization.klYesHidden">
            <source>It is not hidden.</source>
            <translation>Il n’est pas caché.</translation>
        </message>
        <message id="VTULocalization.klNoHidden">
            <source>It is hidden, because its name begins with a dot.</source>
            <translation>Il est caché, car son nom commence par un point.</translation>
        </message>
        <message id="VTULocalization.klYesAFile">
            <source>It is a plain file.</source>
            <translation>C’est un fichier ordinaire.</translation>
        </message>
        <message id="VTULocalization.klNoAFile">
            <source>It is not a plain file, or it is no longer there.</source>
            <translation>Ce n’est pas un fichier ordinaire, ou il n’existe plus.</translation>
        </message>
        <message id="VTULocalization.klYesEnding">
            <source>Its name ends in &quot;$1&quot;.</source>
            <translation>Son nom se termine par « $1 ».</translation>
        </message>
        <message id="VTULocalization.klNoEnding">
            <source>Its name does not end in &quot;$1&quot;.</source>
            <translation>Son nom ne se termine pas par « $1 ».</translation>
        </message>
        <message id="VTULocalization.klYesPattern">
            <source>Its name fits the task's name pattern &quot;$1&quot;.</source>
            <translation>Son nom correspond au motif de nom « $1 » de la tâche.</translation>
        </message>
        <message id="VTULocalization.klNoPattern">
            <source>Its name does not fit the task's name pattern &quot;$1&quot;.</source>
            <translation>Son nom ne correspond pas au motif de nom « $1 » de la tâche.</translation>
        </message>
        <message id="VTULocalization.klYesNoPattern">
            <source>The task takes every name with that ending.</source>
            <translation>La tâche accepte tout nom ayant cette extension.</translation>
        </message>
        <message id="VTULocalization.klNoNoPattern">
            <source>The ending of its name is not exactly &quot;$1&quot;.</source>
            <translation>L’extension de son nom n’est pas exactement « $1 ».</translation>
        </message>
        <message id="VTULocalization.klYesExcluded">
            <source>The exclusion pattern &quot;$1&quot; does not match its name.</source>
            <translation>Le motif d’exclusion « $1 » ne s’applique pas à son nom.</translation>
        </message>
        <message id="VTULocalization.klYesNoExclusion">
            <source>The task excludes no names.</source>
            <translation>La tâche n’exclut aucun nom.</translation>
        </message>
        <message id="VTULocalization.klNoExcluded">
            <source>The exclusion pattern &quot;$1&quot; matches its name.</source>
            <translation>Le motif d’exclusion « $1 » s’applique à son nom.</translation>
        </message>
        <message id="VTULocalization.klNoExclusionTooCostly">
            <source>The exclusion pattern &quot;$1&quot; takes too long on its name, so it is kept back. Simplify the pattern.</source>
            <translation>Le motif d’exclusion « $1 » prend trop de temps sur son nom, il est donc retenu. Simplifiez le motif.</translation>
        </message>
        <message id="VTULocalization.klYesEmpty">
            <source>It is not empty.</source>
            <translation>Il n’est pas vide.</translation>
        </message>
        <message id="VTULocalization.klNoEmpty">
            <source>It is empty. It is sent when it has content.</source>
            <translation>Il est vide. Il sera envoyé quand il aura un contenu.</translation>
        </message>
        <message id="VTULocalization.klYesReadable">
            <source>It can be read.</source>
            <translation>Il est lisible.</translation>
        </message>
        <message id="VTULocalization.klNoReadable">
            <source>It can't be read. Check its permissions.</source>
            <translation>Il est illisible. Vérifiez ses droits d’accès.</translation>
        </message>
        <message id="VTULocalization.klYesNewer">
            <source>It was changed at $1, and the task's last batch ended at $2.</source>
            <translation>Il a été modifié le $1, et le dernier lot de la tâche s’est terminé le $2.</translation>
        </message>
        <message id="VTULocalization.klYesNeverProcessed">
            <source>It was changed at $1, and the task has no last processed date.</source>
            <translation>Il a été modifié le $1, et la tâche n’a pas encore de date de traitement.</translation>
        </message>
        <message id="VTULocalization.klNoOlder">
            <source>It was last changed at $1, $3 before the task's last batch ended at $2. Save it anew, or edit the task and press &quot;Clear Process Date Stamp&quot; to send all files again.</source>
            <translation>Il a été modifié pour la dernière fois le $1, soit $3 avant la fin du dernier lot de la tâche, le $2. Enregistrez-le de nouveau, ou modifiez la tâche et appuyez sur « Effacer la date traitée » pour renvoyer tous les fichiers.</translation>
        </message>
        <message id="VTULocalization.klYesDealtWith">
            <source>This version of it has not been processed yet.</source>
            <translation>Cette version du fichier n’a pas encore été traitée.</translation>
        </message>
        <message id="VTULocalization.klNoDealtWith">
            <source>This version of it, changed at $1, was processed already. The log tells how that ended.</source>
            <translation>Cette version du fichier, modifiée le $1, a déjà été traitée. Le journal en indique le résultat.</translation>
        </message>
        <message id="VTULocalization.klYesAtRest">
            <source>It is at rest.</source>
            <translation>Il n’est plus en cours d’écriture.</translation>
        </message>
        <message id="VTULocalization.klNoAtRest">
            <source>It is still being written, or changed a moment ago. It is sent when it has been at rest for two seconds.</source>
            <translation>Il est encore en cours d’écriture ou vient d’être modifié. Il sera envoyé après deux secondes sans changement.</translation>
        </message>
        <message id="VTULocalization.klFolderSilent">
            <source>&quot;$1&quot; does not answer yet. You can wait, choose another folder, or cancel.</source>
            <translation>« $1 » ne répond pas encore. Vous pouvez attendre, choisir un autre dossier ou annuler.</translation>
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
            <translation>$1 jours</translation>
        </message>
        <message id="VTULocalization.klAutoRefresh">
            <source>Auto Refresh</source>
            <translation>Actualisation auto</translation>
        </message>
        <message id="VTULocalization.klFailuresOnly">
            <source>Failures only</source>
            <translation>Échecs seuls</translation>
        </message>
        <message id="VTULocalization.klFind">
            <source>Find</source>
            <translation>Rechercher</translation>
        </message>
        <message id="VTULocalization.klFindTip">
            <source>Shows the entries that hold this text in any column</source>
            <translation>Affiche les entrées qui contiennent ce texte dans une colonne quelconque</translation>
        </message>
        <message id="VTULocalization.klFailuresOnlyTip">
            <source>Shows the entries of files that were not sent, or not kept whole</source>
            <translation>Affiche les entrées des fichiers qui n’ont pas été envoyés ou pas conservés entièrement</translation>
        </message>
        <message id="VTULocalization.klLogRows">
            <source>Log entries</source>
            <translation>Entrées du journal</translation>
        </message>
        <message id="VTULocalization.klLogDetails">
            <source>Details of the selected entry</source>
            <translation>Détails de l’entrée sélectionnée</translation>
        </message>
        <message id="VTULocalization.klLogDivider">
            <source>Divider between the lists</source>
            <translation>Séparateur entre les listes</translation>
        </message>
        <message id="VTULocalization.klCopy">
            <source>Copy</source>
            <translation>Copier</translation>
        </message>
        <message id="VTULocalization.klSendAgain">
            <source>Send Again</source>
            <translation>Renvoyer</translation>
        </message>
        <message id="VTULocalization.klLogFailedRow">
            <source>Failed: $1</source>
            <translation>Échec : $1</translation>
        </message>
        <message id="VTULocalization.klLogRowGone">
            <source>(deleted)</source>
            <translation>(supprimée)</translation>
        </message>
        <message id="VTULocalization.klLogNone">
            <source>There is no log. $1</source>
            <translation>Il n’y a pas de journal. $1</translation>
        </message>
        <message id="VTULocalization.klLogUnreadable">
            <source>The log can't be read. $1</source>
            <translation>Le journal ne peut pas être lu. $1</translation>
        </message>
        <message id="VTULocalization.klLogBusy">
            <source>The program is busy. Please try again in a moment.</source>
            <translation>Le programme est occupé. Veuillez réessayer dans un instant.</translation>
        </message>
        <message id="VTULocalization.klLogEmpty">
            <source>The log is empty.</source>
            <translation>Le journal est vide.</translation>
        </message>
        <message id="VTULocalization.klLogCleared">
            <source>The view is cleared. The log itself is unchanged: press &quot;Refresh Log&quot; to see it again.</source>
            <translation>La vue est vidée. Le journal lui-même est inchangé : « Actualiser » l’affiche de nouveau.</translation>
        </message>
        <message id="VTULocalization.klLogNoMatch">
            <source>No entry matches.</source>
            <translation>Aucune entrée ne correspond.</translation>
        </message>
        <message id="VTULocalization.klLogNoRecords">
            <source>No records availble</source>
            <translation>Aucune entrée disponible</translation>
        </message>
        <message id="VTULocalization.klLogExporting">
            <source>Exporting to &quot;$1&quot;...</source>
            <translation>Exportation vers « $1 »...</translation>
        </message>
        <message id="VTULocalization.klLogNotExported">
            <source>The log was not exported safely. Under that name stands what was there before or the whole export, never a part of it.

$1</source>
            <translation>Le journal n’a pas été exporté de manière sûre. Sous ce nom se trouve ce qui y était avant ou l’export complet, jamais une partie.

$1</translation>
        </message>
        <message id="VTULocalization.klLogRowsGone">
            <source>Some of the entries are no longer in the log. Press &quot;Refresh Log&quot; and export again.</source>
            <translation>Certaines entrées ne sont plus dans le journal. Appuyez sur « Actualiser » et exportez de nouveau.</translation>
        </message>
        <message id="VTULocalization.klLogStopExport">
            <source>The export is not finished. Do you want to close the window and cancel it?</source>
            <translation>L’exportation n’est pas terminée. Voulez-vous fermer la fenêtre et l’annuler ?</translation>
        </message>
        <message id="VTULocalization.klLogCopyTooMany">
            <source>These are too many entries for the clipboard. Please use &quot;Export to txt&quot;.</source>
            <translation>Il y a trop d’entrées pour le presse-papiers. Veuillez utiliser « Exporter en txt ».</translation>
        </message>
        <message id="VTULocalization.klSendAgainQuestion">
            <source>Do you want to send these files again?

$1

The date of each file is set to now, so that its task sends it with its next run.</source>
            <translation>Voulez-vous renvoyer ces fichiers ?

$1

La date de chaque fichier devient la date actuelle, si bien que sa tâche l’envoie à son prochain passage.</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainQuestion">
            <source>Do you want to send this file again?

$1

Its date is set to now, so that its task sends it with its next run.</source>
            <translation>Voulez-vous renvoyer ce fichier ?

$1

Sa date devient la date actuelle, si bien que sa tâche l’envoie à son prochain passage.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNotTaken">
            <source>No task that is switched on takes these files. They will wait until one does:

$1</source>
            <translation>Aucune tâche active ne prend ces fichiers. Ils attendront qu’une tâche le fasse :

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainNotTaken">
            <source>No task that is switched on takes this file. It will wait until one does:

$1</source>
            <translation>Aucune tâche active ne prend ce fichier. Il attendra qu’une tâche le fasse :

$1</translation>
        </message>
        <message id="VTULocalization.klSendAgainMore">
            <source>and $1 more</source>
            <translation>et $1 autres</translation>
        </message>
        <message id="VTULocalization.klSendAgainTooMany">
            <source>No more than 1,000 entries can be sent again at once.</source>
            <translation>Il n’est pas possible de renvoyer plus de 1 000 entrées à la fois.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNone">
            <source>None of these files is in its input folder any more.</source>
            <translation>Aucun de ces fichiers ne se trouve encore dans son dossier d’entrée.</translation>
        </message>
        <message id="VTULocalization.klSendAgainFailed">
            <source>These files are not sent again, because their date could not be set:

$1</source>
            <translation>Ces fichiers ne sont pas renvoyés, car leur date n’a pas pu être modifiée :

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainFailed">
            <source>This file is not sent again, because its date could not be set:

$1</source>
            <translation>Ce fichier n’est pas renvoyé, car sa date n’a pas pu être modifiée :

$1</translation>
        </message>
        <message id="VTULocalization.klTestLineName">
            <source>Connection test</source>
            <translation>Test de connexion</translation>
        </message>
        <message id="VTULocalization.klTestRunning">
            <source>Asking the service...</source>
            <translation>Interrogation du service...</translation>
        </message>
        <message id="VTULocalization.klTestSucceeded">
            <source>The service took the login.</source>
            <translation>Le service a accepté le login.</translation>
        </message>
        <message id="VTULocalization.klTestSucceededProxy">
            <source>The service took the login, by way of the proxy ($1).</source>
            <translation>Le service a accepté le login, par le proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestSucceededNoPort">
            <source>The service took the login, but without the proxy: its port is not valid.</source>
            <translation>Le service a accepté le login, mais sans le proxy : son port n’est pas valide.</translation>
        </message>
        <message id="VTULocalization.klTestErrorAnswered">
            <source>The service answered with an error.</source>
            <translation>Le service a répondu par une erreur.</translation>
        </message>
        <message id="VTULocalization.klTestNameUnknown">
            <source>No answer: the name of the service can't be found ($1).</source>
            <translation>Pas de réponse : le nom du service est introuvable ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNameUnknown">
            <source>No answer: the name of the proxy can't be found ($1).</source>
            <translation>Pas de réponse : le nom du proxy est introuvable ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotReached">
            <source>No answer: the service can't be reached ($1).</source>
            <translation>Pas de réponse : le service est injoignable ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNotReached">
            <source>No answer: the proxy can't be reached ($1).</source>
            <translation>Pas de réponse : le proxy est injoignable ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyRefused">
            <source>No answer: the proxy did not connect to the service ($1).</source>
            <translation>Pas de réponse : le proxy ne s’est pas connecté au service ($1).</translation>
        </message>
        <message id="VTULocalization.klTestTlsFailed">
            <source>No answer: no secure connection (TLS) with $1.</source>
            <translation>Pas de réponse : pas de connexion sécurisée (TLS) avec $1.</translation>
        </message>
        <message id="VTULocalization.klTestTimedOut">
            <source>No answer in time from the service ($1).</source>
            <translation>Pas de réponse du service à temps ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyTimedOut">
            <source>No answer in time from the proxy ($1).</source>
            <translation>Pas de réponse du proxy à temps ($1).</translation>
        </message>
        <message id="VTULocalization.klTestBroken">
            <source>No answer: the connection broke off ($1).</source>
            <translation>Pas de réponse : la connexion a été coupée ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotTheService">
            <source>No answer of the service: something else answered.</source>
            <translation>Pas de réponse du service : autre chose a répondu.</translation>
        </message>
        <message id="VTULocalization.klBackupLineName">
            <source>Backup of the tasks</source>
            <translation>Sauvegarde des tâches</translation>
        </message>
        <message id="VTULocalization.klBackupUnderWay">
            <source>Saving the tasks...</source>
            <translation>Sauvegarde des tâches en cours...</translation>
        </message>
        <message id="VTULocalization.klBackupDone">
            <source>The tasks are saved.</source>
            <translation>Les tâches sont sauvegardées.</translation>
        </message>
        <message id="VTULocalization.klRestoreUnderWay">
            <source>Loading the tasks...</source>
            <translation>Chargement des tâches...</translation>
        </message>
        <message id="VTULocalization.klRestoreDone">
            <source>The tasks are loaded. They join the list when this window is closed.</source>
            <translation>Les tâches sont chargées. Elles rejoignent la liste à la fermeture de cette fenêtre.</translation>
        </message>
        <message id="VTULocalization.klBackupSlow">
            <source>The folder is slow to answer. Closing this window stops the copying.</source>
            <translation>Le dossier répond lentement. Fermer cette fenêtre arrête la copie.</translation>
        </message>
        <message id="VTULocalization.klBackupFailed">
            <source>These task files could not be saved:</source>
            <translation>Ces fichiers de tâches n’ont pas pu être sauvegardés :</translation>
        </message>
        <message id="VTULocalization.klRestoreFailed">
            <source>These task files could not be loaded:</source>
            <translation>Ces fichiers de tâches n’ont pas pu être chargés :</translation>
        </message>
        <message id="VTULocalization.klCopyingStopped">
            <source>The copying was stopped, because the window was closed. These task files were not copied:</source>
            <translation>La copie a été arrêtée, car la fenêtre a été fermée. Ces fichiers de tâches n’ont pas été copiés :</translation>
        </message>
        <message id="VTULocalization.klNotBegun">
            <source>Earlier calls still wait for an answer. Please try again in a moment.</source>
            <translation>Des demandes antérieures attendent encore une réponse. Veuillez réessayer dans un instant.</translation>
        </message>
        <message id="VTULocalization.klAdminFailed">
            <source>The admin window could not be opened: $1</source>
            <translation>La fenêtre Admin n’a pas pu être ouverte : $1</translation>
        </message>
        <message id="VTULocalization.klTheProxy">
            <source>the proxy $1</source>
            <translation>proxy $1</translation>
        </message>
        <message id="VTULocalization.klAddressInvalid">
            <source>the address of the service is not valid</source>
            <translation>l’adresse du service n’est pas valide</translation>
        </message>
        <message id="VTULocalization.klHeaderInvalid">
            <source>a header of the request can't be written on one line</source>
            <translation>un en-tête de la requête ne tient pas sur une ligne</translation>
        </message>
        <message id="VTULocalization.klNameInvalid">
            <source>$1 has no valid host name</source>
            <translation>$1 n’a pas de nom d’hôte valide</translation>
        </message>
        <message id="VTULocalization.klNameUnknown">
            <source>the name of $1 is not known: $2</source>
            <translation>le nom de $1 est inconnu : $2</translation>
        </message>
        <message id="VTULocalization.klLookUpSlow">
            <source>the look-up of the name of $1 took too long</source>
            <translation>la résolution du nom de $1 a pris trop de temps</translation>
        </message>
        <message id="VTULocalization.klLookUpsHang">
            <source>the name of $1 can't be looked up: earlier look-ups still hang</source>
            <translation>le nom de $1 ne peut pas être résolu : d’anciennes demandes sont encore bloquées</translation>
        </message>
        <message id="VTULocalization.klConnectingSlow">
            <source>connecting to $1 took too long</source>
            <translation>la connexion à $1 a pris trop de temps</translation>
        </message>
        <message id="VTULocalization.klNoConnection">
            <source>no connection to $1: $2</source>
            <translation>pas de connexion à $1 : $2</translation>
        </message>
        <message id="VTULocalization.klTlsLibraryFailed">
            <source>OpenSSL could not be set up</source>
            <translation>OpenSSL n’a pas pu être initialisé</translation>
        </message>
        <message id="VTULocalization.klTlsNotSetUp">
            <source>TLS with $1 could not be set up</source>
            <translation>TLS avec $1 n’a pas pu être établi</translation>
        </message>
        <message id="VTULocalization.klTlsSilent">
            <source>$1 did not answer in the TLS handshake</source>
            <translation>$1 n’a pas répondu à la négociation TLS</translation>
        </message>
        <message id="VTULocalization.klNoTlsConnection">
            <source>no TLS connection to $1: $2</source>
            <translation>pas de connexion TLS à $1 : $2</translation>
        </message>
        <message id="VTULocalization.klTlsError">
            <source>TLS error $1</source>
            <translation>erreur TLS $1</translation>
        </message>
        <message id="VTULocalization.klItClosed">
            <source>it closed the connection</source>
            <translation>le correspondant a fermé la connexion</translation>
        </message>
        <message id="VTULocalization.klCertificateRefused">
            <source>the certificate of $1 is not accepted: $2</source>
            <translation>le certificat de $1 n’est pas accepté : $2</translation>
        </message>
        <message id="VTULocalization.klTrustFileUnusable">
            <source>the file of trusted certificates &quot;$1&quot; can't be used</source>
            <translation>le fichier de certificats approuvés « $1 » est inutilisable</translation>
        </message>
        <message id="VTULocalization.klRefusedWithStatus">
            <source>$1 refused with status $2</source>
            <translation>$1 a refusé avec le statut $2</translation>
        </message>
        <message id="VTULocalization.klNoAnswerWithin">
            <source>$1 did not answer within $2 s</source>
            <translation>$1 n’a pas répondu en $2 s</translation>
        </message>
        <message id="VTULocalization.klRequestNotTaken">
            <source>$1 did not take the whole request within $2 s</source>
            <translation>$1 n’a pas reçu toute la requête en $2 s</translation>
        </message>
        <message id="VTULocalization.klReplyStopped">
            <source>$1 fell silent in its reply for $2 s</source>
            <translation>$1 s’est tu pendant $2 s au milieu de sa réponse</translation>
        </message>
        <message id="VTULocalization.klConnectionBroke">
            <source>the connection to $1 broke: $2</source>
            <translation>la connexion à $1 a été coupée : $2</translation>
        </message>
        <message id="VTULocalization.klClosedConnection">
            <source>$1 closed the connection</source>
            <translation>$1 a fermé la connexion</translation>
        </message>
        <message id="VTULocalization.klClosedInRequest">
            <source>$1 closed the connection before it had the whole request</source>
            <translation>$1 a fermé la connexion avant d’avoir reçu toute la requête</translation>
        </message>
        <message id="VTULocalization.klClosedInReply">
            <source>$1 closed the connection before its reply was complete</source>
            <translation>$1 a fermé la connexion avant la fin de sa réponse</translation>
        </message>
        <message id="VTULocalization.klAnsweredEarly">
            <source>$1 answered before it had the whole request</source>
            <translation>$1 a répondu avant d’avoir reçu toute la requête</translation>
        </message>
        <message id="VTULocalization.klReplyTooLarge">
            <source>the reply of $1 is too large</source>
            <translation>la réponse de $1 est trop volumineuse</translation>
        </message>
        <message id="VTULocalization.klReplyBadLength">
            <source>$1 announced a reply of an impossible length</source>
            <translation>$1 a annoncé une réponse d’une longueur impossible</translation>
        </message>
        <message id="VTULocalization.klContentShort">
            <source>the content could not be read to its end</source>
            <translation>le contenu n’a pas pu être lu jusqu’au bout</translation>
        </message>
        <message id="VTULocalization.klFileChanged">
            <source>the file changed before it was sent whole</source>
            <translation>le fichier a changé avant d’être entièrement envoyé</translation>
        </message>
        <message id="VTULocalization.klNoFileToSend">
            <source>there is no file to send</source>
            <translation>il n’y a aucun fichier à envoyer</translation>
        </message>
        <message id="VTULocalization.klStopped">
            <source>stopped</source>
            <translation>arrêté</translation>
        </message>
        <message id="VTULocalization.klNoInputFolder">
            <source>the task has no input folder</source>
            <translation>la tâche n’a pas de dossier d’entrée</translation>
        </message>
        <message id="EditTaskWindow.klAddDatetoFileName">
            <source>Add Date to File Name</source>
            <translation>Ajouter la date au nom du fichier</translation>
        </message>
        <message id="EditTaskWindow.klAutoRecognition">
            <source>Auto Recognition</source>
            <translation>Reconnaissance automatique</translation>
        </message>
        <message id="EditTaskWindow.klDeleteFileAfterCopy">
            <source>Delete File After Copy</source>
            <translation>Supprimer le fichier après copie</translation>
        </message>
        <message id="EditTaskWindow.klExtension">
            <source>Extension</source>
            <translation>Extension</translation>
        </message>
        <message id="EditTaskWindow.klFileNameExclusion">
            <source>File Name Exclusion</source>
            <translation>Exclusion par nom</translation>
        </message>
        <message id="EditTaskWindow.klFileNameRecognition">
            <source>File Name Recognition</source>
            <translation>Reconnaissance par nom</translation>
        </message>
        <message id="EditTaskWindow.klPrefix">
            <source>Prefix</source>
            <translation>Préfixe</translation>
        </message>
        <message id="EditTaskWindow.klSelectTrack">
            <source>Select Track</source>
            <translation>Choisir le track</translation>
        </message>
        <message id="MainMenuBar.klFileMenu">
            <source>&amp;File</source>
            <translation>&amp;Fichier</translation>
        </message>
        <message id="MainMenuBar.klFileAbout">
            <source>About Vantry Uploader...</source>
            <translation>À propos de Vantry Uploader...</translation>
        </message>
        <message id="MainMenuBar.klFileQuit">
            <source>&amp;Quit</source>
            <translation>&amp;Quitter</translation>
        </message>
        <message id="MainMenuBar.klEditMenu">
            <source>&amp;Edit</source>
            <translation>É&amp;dition</translation>
        </message>
        <message id="MainMenuBar.klEditUndo">
            <source>&amp;Undo</source>
            <translation>&amp;Annuler</translation>
        </message>
        <message id="MainMenuBar.klEditCut">
            <source>Cu&amp;t</source>
            <translation>Cou&amp;per</translation>
        </message>
        <message id="MainMenuBar.klEditCopy">
            <source>&amp;Copy</source>
            <translation>&amp;Copier</translation>
        </message>
        <message id="MainMenuBar.klEditPaste">
            <source>&amp;Paste</source>
            <translation>C&amp;oller</translation>
        </message>
        <message id="MainMenuBar.klEditClear">
            <source>&amp;Delete</source>
            <translation>&amp;Supprimer</translation>
        </message>
        <message id="MainMenuBar.klEditSelectAll">
            <source>Select &amp;All</source>
            <translation>&amp;Tout sélectionner</translation>
        </message>
        <message id="MainMenuBar.klAboutTitle">
            <source>About</source>
            <translation>À propos</translation>
        </message>
        <message id="VantryUtil.E002">
            <source>No patches found. Check instrument/software settings.</source>
            <translation>Aucune plage trouvée. Vérifiez les réglages de l’instrument et du logiciel.</translation>
        </message>
        <message id="VantryUtil.E003">
            <source>Database connection issues. Check website/ server connection.</source>
            <translation>Problèmes de connexion à la base de données. Vérifiez la connexion au site web et au serveur.</translation>
        </message>
        <message id="VantryUtil.E004">
            <source>Wrong measurement conditions - possible mismatch. Check both application and track/ tool preferences (M0, M1, M2, M3)</source>
            <translation>Conditions de mesure incorrectes, peut-être discordantes. Vérifiez les préférences de l’application et celles du track/de l’outil (M0, M1, M2, M3)</translation>
        </message>
        <message id="VantryUtil.E005">
            <source>Wrong mode. Mode shall be either production or makeready.</source>
            <translation>Mode incorrect. Le mode doit être tirage (production) ou calage (makeready).</translation>
        </message>
        <message id="VantryUtil.E006">
            <source>Wrong backing. Backing shall be either white or black.</source>
            <translation>Support de mesure incorrect. Le support doit être blanc (white) ou noir (black).</translation>
        </message>
        <message id="VantryUtil.E007">
            <source>Filename cannot be empty.</source>
            <translation>Le nom de fichier ne peut pas être vide.</translation>
        </message>
        <message id="VantryUtil.E008">
            <source>Requested track not found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Le track demandé est introuvable. En reconnaissance automatique, vérifiez les réglages : ceux de l’application et du site web doivent correspondre exactement.</translation>
        </message>
        <message id="VantryUtil.E009">
            <source>Wrong login/password combination. Note: SOAP protocol uses separate login/ password combination. Consult user manual to learn more.</source>
            <translation>Combinaison login/mot de passe incorrecte. Remarque : le protocole SOAP utilise un login et un mot de passe distincts. Consultez le manuel.</translation>
        </message>
        <message id="VantryUtil.E010">
            <source>No tracks found.</source>
            <translation>Aucun track trouvé.</translation>
        </message>
        <message id="VantryUtil.E011">
            <source>Spectral data missing.</source>
            <translation>Données spectrales manquantes.</translation>
        </message>
        <message id="VantryUtil.E012">
            <source>Wrong color definition.</source>
            <translation>Définition de couleur incorrecte.</translation>
        </message>
        <message id="VantryUtil.E013">
            <source>Date format unrecognized.</source>
            <translation>Format de date non reconnu.</translation>
        </message>
        <message id="VantryUtil.E014">
            <source>Sheet number must be an integer.</source>
            <translation>Le numéro de feuille doit être un entier.</translation>
        </message>
        <message id="VantryUtil.E015">
            <source>Unknown dryback value. (E015)</source>
            <translation>Valeur de dryback inconnue. (E015)</translation>
        </message>
        <message id="VantryUtil.E016">
            <source>User is registered on dedicated instance, API URL needs to be changed</source>
            <translation>L’utilisateur est enregistré sur une instance dédiée, l’URL de l’API doit être modifiée</translation>
        </message>
        <message id="VantryUtil.E017">
            <source>Operator is not authenticated, please check Your login/password combination.</source>
            <translation>L’opérateur n’est pas authentifié, vérifiez le login et le mot de passe.</translation>
        </message>
        <message id="VantryUtil.E018">
            <source>No devices found.</source>
            <translation>Aucun appareil trouvé.</translation>
        </message>
        <message id="VantryUtil.E019">
            <source>Selected operator is not assigned to any of printing devices</source>
            <translation>L’opérateur choisi n’est affecté à aucun périphérique d’impression</translation>
        </message>
        <message id="VantryUtil.E020">
            <source>No Scanning Templates found</source>
            <translation>Aucun modèle de mesure trouvé</translation>
        </message>
        <message id="VantryUtil.E021">
            <source>No measurement tasks avaliable</source>
            <translation>Aucune tâche de mesure disponible</translation>
        </message>
        <message id="VantryUtil.E022">
            <source>Scanning Template not found</source>
            <translation>Modèle de mesure introuvable</translation>
        </message>
        <message id="VantryUtil.E023">
            <source>Control Strip not foundControl Strip not found</source>
            <translation>Gamme de contrôle introuvable</translation>
        </message>
        <message id="VantryUtil.E024">
            <source>Control Strip patches not found</source>
            <translation>Plages de la gamme de contrôle introuvables</translation>
        </message>
        <message id="VantryUtil.E025">
            <source>Selected job does not belong to selected track</source>
            <translation>Le travail choisi n’appartient pas au track choisi</translation>
        </message>
        <message id="VantryUtil.E026">
            <source>No jobs found</source>
            <translation>Aucun travail trouvé</translation>
        </message>
        <message id="VantryUtil.E027">
            <source>Color Library/Palette not found</source>
            <translation>Bibliothèque ou palette de couleurs introuvable</translation>
        </message>
        <message id="VantryUtil.E028">
            <source>No instruments found</source>
            <translation>Aucun instrument trouvé</translation>
        </message>
        <message id="VantryUtil.E102">
            <source>No Instrument - Target pair found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Aucune paire instrument-mire trouvée. En reconnaissance automatique, vérifiez les réglages : ceux de l’application et du site web doivent correspondre exactement.</translation>
        </message>
        <message id="VantryUtil.E103">
            <source>Measured file does not have required list of patches.</source>
            <translation>Le fichier mesuré ne contient pas la liste de plages requise.</translation>
        </message>
        <message id="VantryUtil.EUnknownError">
            <source>Unknown Error</source>
            <translation>Erreur inconnue</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateOff">
            <source>Off</source>
            <translation>Inactive</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateProcessing">
            <source>Sending files</source>
            <translation>Envoi de fichiers</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateReady">
            <source>Ready</source>
            <translation>Prête</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateFault">
            <source>A folder is missing or can't be written</source>
            <translation>Un dossier manque ou n’est pas accessible en écriture</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasks">
            <source>Tasks</source>
            <translation>Tâches</translation>
        </message>
        <message id="VTUploaderMainWIndow.klHelp">
            <source>Help</source>
            <translation>Aide</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNoTasks">
            <source>There are no tasks yet. Press &quot;$1&quot; to set up the first one.</source>
            <translation>Il n’y a pas encore de tâche. « $1 » permet de configurer la première.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskEditor">
            <source>The task editor</source>
            <translation>L’éditeur de tâches</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripAndMore">
            <source>(and $1 more)</source>
            <translation>(et $1 de plus)</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasksAboutToLoad">
            <source>The restored tasks are loaded as soon as the files under way are sent.</source>
            <translation>Les tâches restaurées sont chargées dès que les fichiers en cours sont envoyés.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripFolderFault">
            <source>Task &quot;$1&quot; can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>La tâche « $1 » ne peut pas utiliser ses dossiers. Vérifiez que les dossiers d’entrée et de sortie existent, sont connectés et accessibles en écriture.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotDuplicated">
            <source>The task could not be duplicated: $1</source>
            <translation>La tâche n’a pas pu être dupliquée : $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotRemoved">
            <source>The task is off the list, but its file could not be removed, so it will be back at the next start: $1</source>
            <translation>La tâche n’est plus dans la liste, mais son fichier n’a pas pu être supprimé ; elle réapparaîtra donc au prochain démarrage : $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klManualNotOpened">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>Le navigateur n’a pas pu être ouvert. Le manuel se trouve à l’adresse $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNewVersion">
            <source>Version $1 is availble newer and availbale.
Would you like to downlownload it now?</source>
            <translation>Une version plus récente, $1, est disponible.
Voulez-vous la télécharger maintenant ?</translation>
        </message>
        <message id="VTUploaderMainWIndow.klDownloadNotOpened">
            <source>The download can't be opened from here. Its address is $1</source>
            <translation>Le téléchargement ne peut pas être ouvert d’ici. Son adresse est $1</translation>
        </message>
        <message id="Reasons.klListing">
            <source>listing $1</source>
            <translation>lecture du contenu de $1</translation>
        </message>
        <message id="Reasons.klReading">
            <source>reading $1</source>
            <translation>lecture de $1</translation>
        </message>
        <message id="Reasons.klWriting">
            <source>writing $1</source>
            <translation>écriture de $1</translation>
        </message>
        <message id="Reasons.klCopying">
            <source>copying $1 to $2</source>
            <translation>copie de $1 vers $2</translation>
        </message>
        <message id="Reasons.klRenaming">
            <source>renaming $1</source>
            <translation>renommage de $1</translation>
        </message>
        <message id="Reasons.klRenamingTo">
            <source>renaming $1 to $2</source>
            <translation>renommage de $1 en $2</translation>
        </message>
        <message id="Reasons.klSettingDate">
            <source>setting the date of $1</source>
            <translation>modification de la date de $1</translation>
        </message>
        <message id="Reasons.klDeleting">
            <source>deleting $1</source>
            <translation>suppression de $1</translation>
        </message>
        <message id="Reasons.klMakingFolder">
            <source>making the folder $1</source>
            <translation>création du dossier $1</translation>
        </message>
        <message id="Reasons.klFlushingFolder">
            <source>flushing the folder of $1</source>
            <translation>écriture sur le disque du dossier de $1</translation>
        </message>
        <message id="Reasons.klEnciphering">
            <source>enciphering $1</source>
            <translation>chiffrement de $1</translation>
        </message>
        <message id="Reasons.klWritingOver">
            <source>writing over $1, which could not be read</source>
            <translation>remplacement de $1, qui n’a pas pu être lu</translation>
        </message>
        <message id="Reasons.klSavingWithoutFile">
            <source>saving without a file</source>
            <translation>enregistrement sans fichier</translation>
        </message>
        <message id="Reasons.klMakingIt">
            <source>making it</source>
            <translation>création du fichier</translation>
        </message>
        <message id="Reasons.klNotOurs">
            <source>it is not a settings file, or it is damaged</source>
            <translation>ce n’est pas un fichier de réglages, ou il est endommagé</translation>
        </message>
        <message id="Reasons.klOtherProgram">
            <source>it is damaged, or another program wrote it</source>
            <translation>il est endommagé, ou un autre programme l’a écrit</translation>
        </message>
        <message id="Reasons.klNotAnObject">
            <source>its content is not a JSON object</source>
            <translation>son contenu n’est pas un objet JSON</translation>
        </message>
        <message id="Reasons.klContentGone">
            <source>its content is gone</source>
            <translation>son contenu a disparu</translation>
        </message>
        <message id="Reasons.klEndCutOff">
            <source>its end is cut off</source>
            <translation>sa fin est tronquée</translation>
        </message>
        <message id="Reasons.klWriteProtected">
            <source>the file is write-protected</source>
            <translation>le fichier est protégé en écriture</translation>
        </message>
    </context>
</TS>
