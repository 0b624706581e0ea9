<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
    <context>
        <name></name>
        <message id="VTULocalization.klAdmin">
            <source>Admin</source>
            <translation>Admin</translation>
        </message>
        <message id="VTULocalization.klAdminLock">
            <source>Admin Lock</source>
            <translation>Bloqueo de admin</translation>
        </message>
        <message id="VTULocalization.klAdminPasswordRequired">
            <source>Admin Password Required</source>
            <translation>Se requiere contraseña de admin</translation>
        </message>
        <message id="VTULocalization.klAutoMount">
            <source>Auto Mount</source>
            <translation>Automontar</translation>
        </message>
        <message id="VTULocalization.klBackup">
            <source>Backup</source>
            <translation>Copia de seguridad</translation>
        </message>
        <message id="VTULocalization.klBackupDescription">
            <source>Select a directory where a backup of your tasks will be stored.</source>
            <translation>Seleccione la carpeta en la que se guardará la copia de seguridad de las tareas.</translation>
        </message>
        <message id="VTULocalization.klCancel">
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message id="VTULocalization.klCheckandConnect">
            <source>Check and Connect</source>
            <translation>Comprobar y conectar</translation>
        </message>
        <message id="VTULocalization.klCheckForUpdates">
            <source>Check For Updates</source>
            <translation>Buscar actualizaciones</translation>
        </message>
        <message id="VTULocalization.klClear">
            <source>Clear</source>
            <translation>Quitar</translation>
        </message>
        <message id="VTULocalization.klClearLog">
            <source>Clear Log</source>
            <translation>Vaciar vista</translation>
        </message>
        <message id="VTULocalization.klClearProcessDateStamp">
            <source>Clear Process Date Stamp</source>
            <translation>Borrar fecha de proceso</translation>
        </message>
        <message id="VTULocalization.klCouldNotMount">
            <source>Error Mounting</source>
            <translation>Error al montar</translation>
        </message>
        <message id="VTULocalization.klDeleteLog">
            <source>Delete Log History</source>
            <translation>Eliminar registro</translation>
        </message>
        <message id="VTULocalization.klDeleteTaskConfirmation">
            <source>Are you sure you want to delete this task?</source>
            <translation>¿Seguro que desea eliminar esta tarea?</translation>
        </message>
        <message id="VTULocalization.klDisableTask">
            <source>Disable Task</source>
            <translation>Desactivar</translation>
        </message>
        <message id="VTULocalization.klDuplicate">
            <source>Duplicate</source>
            <translation>Duplicar</translation>
        </message>
        <message id="VTULocalization.klEdit">
            <source>Edit</source>
            <translation>Editar</translation>
        </message>
        <message id="VTULocalization.klEditTask">
            <source>Edit Task</source>
            <translation>Editar tarea</translation>
        </message>
        <message id="VTULocalization.klEnteradminpassword">
            <source>Enter admin password</source>
            <translation>Contraseña de admin</translation>
        </message>
        <message id="VTULocalization.klExporttotxt">
            <source>Export to txt</source>
            <translation>Exportar a txt</translation>
        </message>
        <message id="VTULocalization.klField">
            <source>Field</source>
            <translation>Campo</translation>
        </message>
        <message id="VTULocalization.klFiles">
            <source>Files</source>
            <translation>Archivos</translation>
        </message>
        <message id="VTULocalization.klIncorrectPassword">
            <source>Incorrect Administrator Password Entered</source>
            <translation>La contraseña de administrador introducida no es correcta</translation>
        </message>
        <message id="VTULocalization.klInputFolder">
            <source>Input Folder</source>
            <translation>Carpeta entrada</translation>
        </message>
        <message id="VTULocalization.KLInputFolderURL">
            <source>Input Folder URL</source>
            <translation>URL carpeta de entrada</translation>
        </message>
        <message id="VTULocalization.klInputLogin">
            <source>Input Login</source>
            <translation>Usuario entrada</translation>
        </message>
        <message id="VTULocalization.klWarden">
            <source>Warden</source>
            <translation>Warden</translation>
        </message>
        <message id="VTULocalization.klInstrument">
            <source>Instrument</source>
            <translation>Instrumento</translation>
        </message>
        <message id="VTULocalization.klLoad">
            <source>Load</source>
            <translation>Cargar</translation>
        </message>
        <message id="VTULocalization.klLoadConfiguration">
            <source>Load Configuration</source>
            <translation>Cargar configuración</translation>
        </message>
        <message id="VTULocalization.klLoadConfigurationDescription">
            <source>Select a folder containing a backup of uploader tasks to be restored.</source>
            <translation>Seleccione una carpeta con una copia de seguridad de las tareas que desea restaurar.</translation>
        </message>
        <message id="VTULocalization.klLocktasklist">
            <source>Lock task list</source>
            <translation>Bloquear lista de tareas</translation>
        </message>
        <message id="VTULocalization.klNA">
            <source>n/a</source>
            <translation>n/d</translation>
        </message>
        <message id="VTULocalization.klNew">
            <source>New</source>
            <translation>Nueva</translation>
        </message>
        <message id="VTULocalization.klNoTasksToSave">
            <source>There are no tasks avaible to backup</source>
            <translation>No hay tareas que guardar</translation>
        </message>
        <message id="VTULocalization.klOK">
            <source>OK</source>
            <translation>Aceptar</translation>
        </message>
        <message id="VTULocalization.klOutputLogin">
            <source>Output Login</source>
            <translation>Usuario salida</translation>
        </message>
        <message id="VTULocalization.klOutputPassword">
            <source>Output Password</source>
            <translation>Contraseña salida</translation>
        </message>
        <message id="VTULocalization.klPassword">
            <source>Password</source>
            <translation>Contraseña</translation>
        </message>
        <message id="VTULocalization.KLPrint">
            <source>Print</source>
            <translation>Impresión</translation>
        </message>
        <message id="VTULocalization.klProxy">
            <source>Proxy</source>
            <translation>Proxy</translation>
        </message>
        <message id="VTULocalization.klProxyAddress">
            <source>Proxy Address</source>
            <translation>Dirección del proxy</translation>
        </message>
        <message id="VTULocalization.klProxyPort">
            <source>Proxy Port</source>
            <translation>Puerto</translation>
        </message>
        <message id="VTULocalization.klReenteradminpassword">
            <source>Re-enter admin password</source>
            <translation>Repetir contraseña</translation>
        </message>
        <message id="VTULocalization.klRefreshLog">
            <source>Refresh Log</source>
            <translation>Actualizar</translation>
        </message>
        <message id="VTULocalization.klRemove">
            <source>Remove</source>
            <translation>Quitar</translation>
        </message>
        <message id="VTULocalization.klReplaceFileName">
            <source>Replace Name</source>
            <translation>Sustituir el nombre</translation>
        </message>
        <message id="VTULocalization.klSave">
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message id="VTULocalization.klSaveConfiguration">
            <source>Save Configuration</source>
            <translation>Guardar configuración</translation>
        </message>
        <message id="VTULocalization.klSelectBackupDirectory">
            <source>Backup Directory</source>
            <translation>Carpeta de copia de seguridad</translation>
        </message>
        <message id="VTULocalization.KLSelectInstrument">
            <source>Select Instrument</source>
            <translation>Elegir instrumento</translation>
        </message>
        <message id="VTULocalization.klSelectPress">
            <source>Select Press</source>
            <translation>Elegir máquina de impresión</translation>
        </message>
        <message id="VTULocalization.klSelectTarget">
            <source>Select Target</source>
            <translation>Elegir carta de referencia</translation>
        </message>
        <message id="VTULocalization.klSEt">
            <source>Set</source>
            <translation>Elegir</translation>
        </message>
        <message id="VTULocalization.klShowLog">
            <source>Show Log...</source>
            <translation>Registro...</translation>
        </message>
        <message id="VTULocalization.klSOAPConnection">
            <source>SOAP Connection</source>
            <translation>Conexión SOAP</translation>
        </message>
        <message id="VTULocalization.klSOAPLogin">
            <source>SOAP Login</source>
            <translation>Usuario SOAP</translation>
        </message>
        <message id="VTULocalization.klSoapPassword">
            <source>SOAP Password</source>
            <translation>Contraseña SOAP</translation>
        </message>
        <message id="VTULocalization.klSoftwareUpToDate">
            <source>Your software is up to date</source>
            <translation>Su software está actualizado</translation>
        </message>
        <message id="VTULocalization.klStatus">
            <source>Status</source>
            <translation>Estado</translation>
        </message>
        <message id="VTULocalization.klSureYouWantToQuit">
            <source>Are you sure you want to quit?

Uploads will stop processing when the application quit.</source>
            <translation>¿Seguro que desea salir?

Al cerrar la aplicación dejarán de enviarse archivos.</translation>
        </message>
        <message id="VTULocalization.klTaskCurrentlyProcessing">
            <source>This task is currently processing. Please try again in a moment</source>
            <translation>Esta tarea se está procesando. Inténtelo de nuevo en un momento.</translation>
        </message>
        <message id="VTULocalization.klTaskDescription">
            <source>Task Description</source>
            <translation>Descripción</translation>
        </message>
        <message id="VTULocalization.klTaskName">
            <source>Task Name</source>
            <translation>Nombre de tarea</translation>
        </message>
        <message id="VTULocalization.kltest">
            <source>Test</source>
            <translation>Probar</translation>
        </message>
        <message id="VTULocalization.klValue">
            <source>Value</source>
            <translation>Valor</translation>
        </message>
        <message id="VTULocalization.klVerifyDateStamp">
            <source>Are you sure you want to clear the last processed date?

This will force all files in the input folder to be processed regardless of age or if they have previously been processed.</source>
            <translation>¿Seguro que desea borrar la fecha del último proceso?

Se procesarán todos los archivos de la carpeta de entrada, sea cual sea su antigüedad y aunque ya se hayan procesado.</translation>
        </message>
        <message id="VTULocalization.klStripSending">
            <source>Sending $1: $2 ($3 %)</source>
            <translation>$1: enviando $2 ($3 %)</translation>
        </message>
        <message id="VTULocalization.klStripAllWell">
            <source>All is well since $1</source>
            <translation>Todo en orden desde $1</translation>
        </message>
        <message id="VTULocalization.klStripConnecting">
            <source>Connecting to the service...</source>
            <translation>Conectando con el servicio...</translation>
        </message>
        <message id="VTULocalization.klStripChecking">
            <source>Checking the input folders...</source>
            <translation>Comprobando las carpetas de entrada...</translation>
        </message>
        <message id="VTULocalization.klUploadingHeld">
            <source>Uploading is held until the task editor or the Admin window is closed and what was changed there is in force.</source>
            <translation>El envío está en pausa hasta que se cierre el editor de tareas o la ventana Admin y se apliquen los cambios.</translation>
        </message>
        <message id="VTULocalization.klStripNoLogin">
            <source>No login is stored, so nothing can be sent. Enter the service login under Admin.</source>
            <translation>No hay ningún usuario guardado, por lo que no se puede enviar nada. Introduzca el usuario del servicio en Admin.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFileSkipped">
            <source>Task file &quot;$1&quot; was skipped: $2. The other tasks run. Repair or remove the file and start the program again.</source>
            <translation>Se omitió el archivo de tarea «$1»: $2. Las demás tareas funcionan. Repare o quite el archivo y reinicie el programa.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFolderUnreadable">
            <source>The tasks can't be read, so nothing is sent: $2. Check the task folder and start the program again.</source>
            <translation>No se pueden leer las tareas, por lo que no se envía nada: $2. Compruebe la carpeta de tareas y reinicie el programa.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesSetAside">
            <source>The settings file was damaged and is kept as &quot;$1&quot;. Enter the service login again under Admin.</source>
            <translation>El archivo de ajustes estaba dañado y se conserva como «$1». Vuelva a introducir el usuario del servicio en Admin.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesNotSaved">
            <source>The settings can't be saved: $2. Check the settings folder, its permissions and the space on its disk.</source>
            <translation>No se pueden guardar los ajustes: $2. Compruebe la carpeta de ajustes, sus permisos y el espacio en disco.</translation>
        </message>
        <message id="VTULocalization.klStripLogSetAside">
            <source>The log was damaged and is kept as &quot;$1&quot;. A new log has begun; uploads are not affected.</source>
            <translation>El registro estaba dañado y se conserva como «$1». Se ha empezado uno nuevo; los envíos no se ven afectados.</translation>
        </message>
        <message id="VTULocalization.klStripLogUnavailable">
            <source>Uploads go on, but nothing is logged: $2. When this is repaired, start the program again.</source>
            <translation>Los envíos continúan, pero no se registra nada: $2. Cuando esté resuelto, reinicie el programa.</translation>
        </message>
        <message id="VTULocalization.klStripLogRowLost">
            <source>Uploads go on, but an entry could not be logged: $2. Check the space on the disk.</source>
            <translation>Los envíos continúan, pero no se pudo registrar una entrada: $2. Compruebe el espacio en disco.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionInvalid">
            <source>Task &quot;$1&quot; excludes no files, because its exclusion pattern is not valid: $2. Correct the pattern.</source>
            <translation>La tarea «$1» no excluye ningún archivo, porque su patrón de exclusión no es válido: $2. Corrija el patrón.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionTooCostly">
            <source>Task &quot;$1&quot; keeps back &quot;$2&quot;, because its exclusion pattern takes too long on that name. Simplify the pattern.</source>
            <translation>La tarea «$1» retiene «$2», porque su patrón de exclusión tarda demasiado con ese nombre. Simplifique el patrón.</translation>
        </message>
        <message id="VTULocalization.klStripInputFolderUnreadable">
            <source>Task &quot;$1&quot; can't read its input folder: $2. Check that the folder is there and connected.</source>
            <translation>La tarea «$1» no puede leer su carpeta de entrada: $2. Compruebe que la carpeta existe y está conectada.</translation>
        </message>
        <message id="VTULocalization.klStripFolderSilent">
            <source>The folders of task &quot;$1&quot; do not answer. The other tasks run, and this one goes on by itself when its server is back.</source>
            <translation>Las carpetas de la tarea «$1» no responden. Las demás tareas siguen y esta continúa por sí sola cuando vuelva su servidor.</translation>
        </message>
        <message id="VTULocalization.klStripNothingMounted">
            <source>Task &quot;$1&quot; waits for the share at $2, where nothing is mounted. To use the folder as it is, set it anew in the task.</source>
            <translation>La tarea «$1» espera el recurso compartido en $2, donde no hay nada montado. Para usar la carpeta tal como está, vuelva a elegirla en la tarea.</translation>
        </message>
        <message id="VTULocalization.klStripShareNotMounted">
            <source>The share $1 could not be mounted: $2. It is tried again after 10 minutes.</source>
            <translation>No se pudo montar el recurso compartido $1: $2. Se volverá a intentar dentro de 10 minutos.</translation>
        </message>
        <message id="VTULocalization.klStripCopyFailed">
            <source>Task &quot;$1&quot; could not save a copy: $2. The input file was not deleted. Check the output folder.</source>
            <translation>La tarea «$1» no pudo guardar una copia: $2. El archivo de entrada no se eliminó. Compruebe la carpeta de salida.</translation>
        </message>
        <message id="VTULocalization.klStripDeleteFailed">
            <source>Task &quot;$1&quot; sent a file but could not delete it: $2. Check the permissions of the input folder and delete the file yourself.</source>
            <translation>La tarea «$1» envió un archivo pero no pudo eliminarlo: $2. Compruebe los permisos de la carpeta de entrada y elimine usted el archivo.</translation>
        </message>
        <message id="VTULocalization.klStripUploadFailed">
            <source>Task &quot;$1&quot; could not send a file: $2. When this is repaired, save the file into the input folder again.</source>
            <translation>La tarea «$1» no pudo enviar un archivo: $2. Cuando esté resuelto, guarde de nuevo el archivo en la carpeta de entrada.</translation>
        </message>
        <message id="VTULocalization.klStripFileWaits">
            <source>Task &quot;$1&quot; can't read a file at the moment: $2. It is tried again by itself.</source>
            <translation>La tarea «$1» no puede leer un archivo por el momento: $2. Se volverá a intentar automáticamente.</translation>
        </message>
        <message id="VTULocalization.klStripRunFailed">
            <source>Task &quot;$1&quot; was stopped by a fault: $2. It is tried again by itself; if this line stays, start the program again.</source>
            <translation>Un fallo detuvo la tarea «$1»: $2. Se volverá a intentar automáticamente; si esta línea permanece, reinicie el programa.</translation>
        </message>
        <message id="VTULocalization.klStripServiceUnreachable">
            <source>The service can't be reached: $2. It is tried again by itself; check the network and the proxy settings.</source>
            <translation>No se puede acceder al servicio: $2. Se volverá a intentar automáticamente; compruebe la red y los ajustes del proxy.</translation>
        </message>
        <message id="VTULocalization.klStripServiceRefuses">
            <source>The service answers with an error: $2. It is asked again by itself; check the login under Admin.</source>
            <translation>El servicio responde con un error: $2. Se volverá a intentar automáticamente; compruebe el usuario del servicio en Admin.</translation>
        </message>
        <message id="VTULocalization.klMountNoSession">
            <source>there is no desktop session with a mount service</source>
            <translation>no hay ninguna sesión de escritorio con un servicio de montaje</translation>
        </message>
        <message id="VTULocalization.klMountLoginRefused">
            <source>the server refuses the login</source>
            <translation>el servidor rechaza el inicio de sesión</translation>
        </message>
        <message id="VTULocalization.klMountQuestion">
            <source>the server's key or certificate is not trusted; open it once in the file manager, or install its certificate</source>
            <translation>la clave o el certificado del servidor no es de confianza; ábralo una vez en el gestor de archivos o instale su certificado</translation>
        </message>
        <message id="VTULocalization.klMountUnreachable">
            <source>the server can't be reached</source>
            <translation>no se puede acceder al servidor</translation>
        </message>
        <message id="VTULocalization.klMountNotThere">
            <source>the server has no such share or folder</source>
            <translation>el servidor no tiene ese recurso compartido ni esa carpeta</translation>
        </message>
        <message id="VTULocalization.klMountTimedOut">
            <source>the server does not answer</source>
            <translation>el servidor no responde</translation>
        </message>
        <message id="VTULocalization.klMountNotSupported">
            <source>no installed program mounts that kind of address</source>
            <translation>ningún programa instalado monta ese tipo de dirección</translation>
        </message>
        <message id="VTULocalization.klMountNoFolder">
            <source>it is mounted, but not shown as a folder; name a share in the address, or install gvfs-fuse and log in again</source>
            <translation>está montado, pero no aparece como carpeta; indique un recurso en la dirección, o instale gvfs-fuse y vuelva a iniciar la sesión</translation>
        </message>
        <message id="VTULocalization.klMountServiceEnded">
            <source>the mount service broke down over it; check the address and the login</source>
            <translation>el servicio de montaje falló con él; compruebe la dirección y el inicio de sesión</translation>
        </message>
        <message id="VTULocalization.klMountFailed">
            <source>error $1</source>
            <translation>error $1</translation>
        </message>
        <message id="VTULocalization.klPreferencesSetAside">
            <source>The settings file was damaged and could not be read. It is kept as &quot;$1&quot;.

Vantry Uploader starts with empty settings: please enter the login, the proxy and the administrator password again under Admin. Your tasks are still there, but the record of what they have already processed is lost: files in the input folders may be sent once more.</source>
            <translation>El archivo de ajustes estaba dañado y no se pudo leer. Se conserva como «$1».

Vantry Uploader se inicia con los ajustes vacíos: vuelva a introducir el usuario, el proxy y la contraseña de administrador en Admin. Sus tareas siguen ahí, pero se ha perdido la constancia de lo que ya han procesado: los archivos de las carpetas de entrada podrían enviarse otra vez.</translation>
        </message>
        <message id="VTULocalization.klStartFailed">
            <source>Vantry Uploader could not start and will close: $1

No files are being sent. Please start it again; if this message comes back, show it to your administrator.</source>
            <translation>Vantry Uploader no pudo iniciarse y se cerrará: $1

No se está enviando ningún archivo. Inicie el programa de nuevo; si este mensaje vuelve a aparecer, muéstreselo a su administrador.</translation>
        </message>
        <message id="VTULocalization.klAlreadyRunning">
            <source>Vantry Uploader is already running. Please use its window.</source>
            <translation>Vantry Uploader ya está en marcha. Utilice su ventana.</translation>
        </message>
        <message id="VTULocalization.klWindowNotInBuild">
            <source>$1 is not part of this build yet.</source>
            <translation>$1: todavía no disponible en esta versión.</translation>
        </message>
        <message id="VTULocalization.klCopyFailedNote">
            <source> Copy not saved: $1</source>
            <translation> Copia no guardada: $1</translation>
        </message>
        <message id="VTULocalization.klDeleteFailedNote">
            <source> Input file not deleted: $1</source>
            <translation> Archivo de entrada no eliminado: $1</translation>
        </message>
        <message id="VTULocalization.klRunFailedNote">
            <source>Processing stopped: $1</source>
            <translation>Proceso detenido: $1</translation>
        </message>
        <message id="VTULocalization.klSampleMatching">
            <source>$1 of $2 files match: $3</source>
            <translation>Archivos que coinciden $1 de $2: $3</translation>
        </message>
        <message id="VTULocalization.klSampleOneOf">
            <source>1 of $1 files matches: $2</source>
            <translation>Coincide 1 de $1 archivos: $2</translation>
        </message>
        <message id="VTULocalization.klSampleNone">
            <source>None of the $1 files matches</source>
            <translation>No coincide ninguno de los $1 archivos</translation>
        </message>
        <message id="VTULocalization.klSampleOneMatches">
            <source>The only file matches: $1</source>
            <translation>El único archivo coincide: $1</translation>
        </message>
        <message id="VTULocalization.klSampleOneFails">
            <source>The only file doesn't match</source>
            <translation>El único archivo no coincide</translation>
        </message>
        <message id="VTULocalization.klSampleNoFiles">
            <source>There are no files in the input folder</source>
            <translation>No hay archivos en la carpeta de entrada</translation>
        </message>
        <message id="VTULocalization.klSampleLooking">
            <source>Looking at the input folder...</source>
            <translation>Examinando la carpeta de entrada...</translation>
        </message>
        <message id="VTULocalization.klSampleSlow">
            <source>The input folder is slow to answer, so there is no sample of its files</source>
            <translation>La carpeta de entrada responde con lentitud, por lo que falta la muestra de sus archivos</translation>
        </message>
        <message id="VTULocalization.klSampleFolderGone">
            <source>The input folder is not there</source>
            <translation>La carpeta de entrada no existe</translation>
        </message>
        <message id="VTULocalization.klSampleFailed">
            <source>The input folder can't be read: $1</source>
            <translation>No se puede leer la carpeta de entrada: $1</translation>
        </message>
        <message id="VTULocalization.klSampleKeptOut">
            <source>Kept out:</source>
            <translation>Quedan fuera:</translation>
        </message>
        <message id="VTULocalization.klSampleAndMore">
            <source>and $1 more</source>
            <translation>y $1 más</translation>
        </message>
        <message id="VTULocalization.klSampleName">
            <source>What the rules select</source>
            <translation>Lo que seleccionan las reglas</translation>
        </message>
        <message id="VTULocalization.klWhyHidden">
            <source>hidden</source>
            <translation>oculto</translation>
        </message>
        <message id="VTULocalization.klWhyNotAFile">
            <source>not a plain file</source>
            <translation>no es un archivo normal</translation>
        </message>
        <message id="VTULocalization.klWhyEnding">
            <source>another ending</source>
            <translation>otra extensión</translation>
        </message>
        <message id="VTULocalization.klWhyPattern">
            <source>doesn't fit the name pattern</source>
            <translation>no coincide con el patrón de nombre</translation>
        </message>
        <message id="VTULocalization.klWhyExcluded">
            <source>excluded</source>
            <translation>excluido</translation>
        </message>
        <message id="VTULocalization.klWhyExclusionTooCostly">
            <source>the exclusion pattern takes too long on it</source>
            <translation>el patrón de exclusión tarda demasiado</translation>
        </message>
        <message id="VTULocalization.klWhyEmpty">
            <source>empty</source>
            <translation>vacío</translation>
        </message>
        <message id="VTULocalization.klWhyOlder">
            <source>not changed since the last processed date</source>
            <translation>sin cambios desde el último proceso</translation>
        </message>
        <message id="VTULocalization.klWhyUnreadable">
            <source>can't be read</source>
            <translation>no se puede leer</translation>
        </message>
        <message id="VTULocalization.klWhyStillMoving">
            <source>still being written</source>
            <translation>aún se está escribiendo</translation>
        </message>
        <message id="VTULocalization.klWhyDealtWith">
            <source>already processed</source>
            <translation>ya procesado</translation>
        </message>
        <message id="VTULocalization.klListFetching">
            <source>The list is being fetched from the service...</source>
            <translation>Obteniendo la lista del servicio...</translation>
        </message>
        <message id="VTULocalization.klListFailed">
            <source>The list is empty because it could not be fetched from the service: $1</source>
            <translation>La lista está vacía porque no se pudo obtener del servicio: $1</translation>
        </message>
        <message id="VTULocalization.klListRefused">
            <source>The list is empty because the service did not give it. Check the login under Admin.</source>
            <translation>La lista está vacía porque el servicio no la entregó. Compruebe el usuario en Admin.</translation>
        </message>
        <message id="VTULocalization.klListNoLogin">
            <source>The list is empty because no login is stored. Enter the service login under Admin.</source>
            <translation>La lista está vacía porque no hay ningún usuario guardado. Introduzca el usuario del servicio en Admin.</translation>
        </message>
        <message id="VTULocalization.klListNothingThere">
            <source>The service has nothing to choose from for this account.</source>
            <translation>El servicio no ofrece nada que elegir para esta cuenta.</translation>
        </message>
        <message id="VTULocalization.klExclusionInvalid">
            <source>The file name exclusion is not a valid pattern: $1, at character $2</source>
            <translation>La exclusión de nombres de archivo no es un patrón válido: $1, en el carácter $2</translation>
        </message>
        <message id="VTULocalization.klTaskNotSaved">
            <source>There was an error saving this task</source>
            <translation>Se produjo un error al guardar esta tarea</translation>
        </message>
        <message id="VTULocalization.klOldTaskNotRemoved">
            <source>The task was saved, but the file of its earlier settings could not be removed, so these will be back as a second task at the next start: $1</source>
            <translation>La tarea se guardó, pero no se pudo quitar el archivo con sus ajustes anteriores, por lo que estos volverán como una segunda tarea en el próximo inicio: $1</translation>
        </message>
        <message id="VTULocalization.klEditorFailed">
            <source>The task editor could not be opened: $1</source>
            <translation>No se pudo abrir el editor de tareas: $1</translation>
        </message>
        <message id="VTULocalization.klManualAddress">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>No se pudo abrir el navegador. El manual está en $1</translation>
        </message>
        <message id="VTULocalization.klSameFolders">
            <source>The input and output folder cannot be the same</source>
            <translation>Las carpetas de entrada y de salida no pueden ser la misma</translation>
        </message>
        <message id="VTULocalization.klPleaseEnterAutoMountDetails">
            <source>Please enter the URL, the login and the password of the share first.</source>
            <translation>Introduzca primero la URL, el usuario y la contraseña del recurso compartido.</translation>
        </message>
        <message id="VTULocalization.klMountReason">
            <source>$1.</source>
            <translation>$1.</translation>
        </message>
        <message id="VTULocalization.klStop">
            <source>Stop</source>
            <translation>Parar</translation>
        </message>
        <message id="VTULocalization.klStopMountTest">
            <source>Stop the mount test</source>
            <translation>Detener la prueba de montaje</translation>
        </message>
        <message id="VTULocalization.klSelect">
            <source>Select</source>
            <translation>Seleccionar</translation>
        </message>
        <message id="VTULocalization.klInputFolderPrompt">
            <source>Select the input folder for this task.
This is the folder that will be watched for new files.</source>
            <translation>Seleccione la carpeta de entrada de esta tarea.
En esta carpeta se vigilará la llegada de archivos nuevos.</translation>
        </message>
        <message id="VTULocalization.klOutputFolderPrompt">
            <source>Select the output folder for this task.
This is the folder where processed files will be stored.</source>
            <translation>Seleccione la carpeta de salida de esta tarea.
En esta carpeta se guardarán los archivos procesados.</translation>
        </message>
        <message id="VTULocalization.klOutputFolder">
            <source>Output Folder</source>
            <translation>Carpeta salida</translation>
        </message>
        <message id="VTULocalization.klOutputFolderURL">
            <source>Output Folder URL</source>
            <translation>URL carpeta de salida</translation>
        </message>
        <message id="VTULocalization.klInputPassword">
            <source>Input Password</source>
            <translation>Contraseña entrada</translation>
        </message>
        <message id="VTULocalization.klRegExCue">
            <source>RegEx</source>
            <translation>RegEx</translation>
        </message>
        <message id="VTULocalization.klFileRecognitionHelp">
            <source>Help on file name recognition</source>
            <translation>Ayuda sobre el reconocimiento de nombres de archivo</translation>
        </message>
        <message id="VTULocalization.klRequired">
            <source>Required</source>
            <translation>Obligatorio</translation>
        </message>
        <message id="VTULocalization.klSetInputFolder">
            <source>Set the input folder</source>
            <translation>Elegir la carpeta de entrada</translation>
        </message>
        <message id="VTULocalization.klSetOutputFolder">
            <source>Set the output folder</source>
            <translation>Elegir la carpeta de salida</translation>
        </message>
        <message id="VTULocalization.klClearInputFolder">
            <source>Clear the input folder</source>
            <translation>Quitar la elección de carpeta de entrada</translation>
        </message>
        <message id="VTULocalization.klClearOutputFolder">
            <source>Clear the output folder</source>
            <translation>Quitar la elección de carpeta de salida</translation>
        </message>
        <message id="VTULocalization.klAutoMountInput">
            <source>Mount the input folder automatically</source>
            <translation>Montar automáticamente la carpeta de entrada</translation>
        </message>
        <message id="VTULocalization.klAutoMountOutput">
            <source>Mount the output folder automatically</source>
            <translation>Montar automáticamente la carpeta de salida</translation>
        </message>
        <message id="VTULocalization.klTestMountInput">
            <source>Test mounting the input folder</source>
            <translation>Probar el montaje de la carpeta de entrada</translation>
        </message>
        <message id="VTULocalization.klTestMountOutput">
            <source>Test mounting the output folder</source>
            <translation>Probar el montaje de la carpeta de salida</translation>
        </message>
        <message id="VTULocalization.klWhyNotSent">
            <source>Why was this file not sent?</source>
            <translation>¿Por qué no se envió este archivo?</translation>
        </message>
        <message id="VTULocalization.klWhyMenu">
            <source>Why was a file not sent?...</source>
            <translation>¿Por qué no se envió un archivo?...</translation>
        </message>
        <message id="VTULocalization.klWhyChoosePrompt">
            <source>Select the file that was not sent by the task &quot;$1&quot;.</source>
            <translation>Seleccione el archivo que la tarea «$1» no envió.</translation>
        </message>
        <message id="VTULocalization.klWhyHead">
            <source>&quot;$1&quot; and the task &quot;$2&quot;</source>
            <translation>«$1» y la tarea «$2»</translation>
        </message>
        <message id="VTULocalization.klWhyAnswers">
            <source>Answers</source>
            <translation>Respuestas</translation>
        </message>
        <message id="VTULocalization.klWhyLooking">
            <source>Looking at the file...</source>
            <translation>Examinando el archivo...</translation>
        </message>
        <message id="VTULocalization.klWhySlow">
            <source>The file's folder does not answer. Check that the folder is connected.</source>
            <translation>La carpeta del archivo no responde. Compruebe que la carpeta está conectada.</translation>
        </message>
        <message id="VTULocalization.klWhyFailed">
            <source>The file's folder can't be read: $1</source>
            <translation>No se puede leer la carpeta del archivo: $1</translation>
        </message>
        <message id="VTULocalization.klWhyOneFile">
            <source>Please drop one file at a time.</source>
            <translation>Suelte los archivos de uno en uno.</translation>
        </message>
        <message id="VTULocalization.klWhyNotLocal">
            <source>A file at a network address can't be looked at. Drop it from the folder where the share is mounted, or right-click the task and choose the file there.</source>
            <translation>No se puede examinar un archivo en una dirección de red. Arrástrelo desde la carpeta donde está montado el recurso compartido, o haga clic con el botón derecho en la tarea y elija allí el archivo.</translation>
        </message>
        <message id="VTULocalization.klWhyClose">
            <source>Close</source>
            <translation>Cerrar</translation>
        </message>
        <message id="VTULocalization.klWhyYes">
            <source>All right</source>
            <translation>En orden</translation>
        </message>
        <message id="VTULocalization.klWhyNo">
            <source>Keeps it back</source>
            <translation>Lo retiene</translation>
        </message>
        <message id="VTULocalization.klWhyDue">
            <source>Nothing keeps it back: it goes out with the next run.</source>
            <translation>Nada lo retiene: saldrá en la próxima pasada.</translation>
        </message>
        <message id="VTULocalization.klWhyNotDue">
            <source>It is not sent, for this reason:</source>
            <translation>No se envía por este motivo:</translation>
        </message>
        <message id="VTULocalization.klWhyNotDueSeveral">
            <source>It is not sent, for these $1 reasons:</source>
            <translation>No se envía por estos $1 motivos:</translation>
        </message>
        <message id="VTULocalization.klWhyReported">
            <source>The task reports: $1</source>
            <translation>La tarea comunica: $1</translation>
        </message>
        <message id="VTULocalization.klYesPlace">
            <source>It lies in the task's input folder.</source>
            <translation>Está en la carpeta de entrada de la tarea.</translation>
        </message>
        <message id="VTULocalization.klNoPlace">
            <source>It is not in the task's input folder, which is $1.</source>
            <translation>No está en la carpeta de entrada de la tarea, que es $1.</translation>
        </message>
        <message id="VTULocalization.klYesEnabled">
            <source>The task is switched on.</source>
            <translation>La tarea está activada.</translation>
        </message>
        <message id="VTULocalization.klNoEnabled">
            <source>The task is disabled. Edit it and clear &quot;Disable Task&quot;.</source>
            <translation>La tarea está desactivada. Edítela y desmarque «Desactivar».</translation>
        </message>
        <message id="VTULocalization.klNoFolders">
            <source>The task can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>La tarea no puede usar sus carpetas. Compruebe que las carpetas de entrada y salida existen, están conectadas y permiten escribir.</translation>
        </message>
        <message id="VTULocalization.klYesHidden">
            <source>It is not hidden.</source>
            <translation>No está oculto.</translation>
        </message>
        <message id="VTULocalization.klNoHidden">
            <source>It is hidden, because its name begins with a dot.</source>
            <translation>Está oculto, porque su nombre empieza por un punto.</translation>
        </message>
        <message id="VTULocalization.klYesAFile">
            <source>It is a plain file.</source>
            <translation>Es un archivo normal.</translation>
        </message>
        <message id="VTULocalization.klNoAFile">
            <source>It is not a plain file, or it is no longer there.</source>
            <translation>No es un archivo normal, o ya no existe.</translation>
        </message>
        <message id="VTULocalization.klYesEnding">
            <source>Its name ends in &quot;$1&quot;.</source>
            <translation>Su nombre termina en «$1».</translation>
        </message>
        <message id="VTULocalization.klNoEnding">
            <source>Its name does not end in &quot;$1&quot;.</source>
            <translation>Su nombre no termina en «$1».</translation>
        </message>
        <message id="VTULocalization.klYesPattern">
            <source>Its name fits the task's name pattern &quot;$1&quot;.</source>
            <translation>Su nombre coincide con el patrón «$1» de la tarea.</translation>
        </message>
        <message id="VTULocalization.klNoPattern">
            <source>Its name does not fit the task's name pattern &quot;$1&quot;.</source>
            <translation>Su nombre no coincide con el patrón «$1» de la tarea.</translation>
        </message>
        <message id="VTULocalization.klYesNoPattern">
            <source>The task takes every name with that ending.</source>
            <translation>La tarea acepta cualquier nombre con esa extensión.</translation>
        </message>
        <message id="VTULocalization.klNoNoPattern">
            <source>The ending of its name is not exactly &quot;$1&quot;.</source>
            <translation>La extensión de su nombre no es exactamente «$1».</translation>
        </message>
        <message id="VTULocalization.klYesExcluded">
            <source>The exclusion pattern &quot;$1&quot; does not match its name.</source>
            <translation>El patrón de exclusión «$1» no coincide con su nombre.</translation>
        </message>
        <message id="VTULocalization.klYesNoExclusion">
            <source>The task excludes no names.</source>
            <translation>La tarea no excluye ningún nombre.</translation>
        </message>
        <message id="VTULocalization.klNoExcluded">
            <source>The exclusion pattern &quot;$1&quot; matches its name.</source>
            <translation>El patrón de exclusión «$1» coincide con su nombre.</translation>
        </message>
        <message id="VTULocalization.klNoExclusionTooCostly">
            <source>The exclusion pattern &quot;$1&quot; takes too long on its name, so it is kept back. Simplify the pattern.</source>
            <translation>El patrón de exclusión «$1» tarda demasiado con su nombre, por lo que se retiene. Simplifique el patrón.</translation>
        </message>
        <message id="VTULocalization.klYesEmpty">
            <source>It is not empty.</source>
            <translation>No está vacío.</translation>
        </message>
        <message id="VTULocalization.klNoEmpty">
            <source>It is empty. It is sent when it has content.</source>
            <translation>Está vacío. Se enviará cuando tenga contenido.</translation>
        </message>
        <message id="VTULocalization.klYesReadable">
            <source>It can be read.</source>
            <translation>Se puede leer.</translation>
        </message>
        <message id="VTULocalization.klNoReadable">
            <source>It can't be read. Check its permissions.</source>
            <translation>No se puede leer. Compruebe sus permisos.</translation>
        </message>
        <message id="VTULocalization.klYesNewer">
            <source>It was changed at $1, and the task's last batch ended at $2.</source>
            <translation>Se modificó el $1, y el último lote de la tarea terminó el $2.</translation>
        </message>
        <message id="VTULocalization.klYesNeverProcessed">
            <source>It was changed at $1, and the task has no last processed date.</source>
            <translation>Se modificó el $1, y la tarea aún no tiene fecha de proceso.</translation>
        </message>
        <message id="VTULocalization.klNoOlder">
            <source>It was last changed at $1, $3 before the task's last batch ended at $2. Save it anew, or edit the task and press &quot;Clear Process Date Stamp&quot; to send all files again.</source>
            <translation>Se modificó por última vez el $1, $3 antes de que terminara el último lote de la tarea, el $2. Guárdelo de nuevo, o edite la tarea y pulse «Borrar fecha de proceso» para volver a enviar todos los archivos.</translation>
        </message>
        <message id="VTULocalization.klYesDealtWith">
            <source>This version of it has not been processed yet.</source>
            <translation>Esta versión del archivo aún no se ha procesado.</translation>
        </message>
        <message id="VTULocalization.klNoDealtWith">
            <source>This version of it, changed at $1, was processed already. The log tells how that ended.</source>
            <translation>Esta versión del archivo, modificada el $1, ya se procesó. El registro indica con qué resultado.</translation>
        </message>
        <message id="VTULocalization.klYesAtRest">
            <source>It is at rest.</source>
            <translation>Ya no se está escribiendo.</translation>
        </message>
        <message id="VTULocalization.klNoAtRest">
            <source>It is still being written, or changed a moment ago. It is sent when it has been at rest for two seconds.</source>
            <translation>Aún se está escribiendo o acaba de modificarse. Se enviará cuando lleve dos segundos sin cambios.</translation>
        </message>
        <message id="VTULocalization.klFolderSilent">
            <source>&quot;$1&quot; does not answer yet. You can wait, choose another folder, or cancel.</source>
            <translation>«$1» aún no responde. Puede esperar, elegir otra carpeta o cancelar.</translation>
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
            <translation>$1 días</translation>
        </message>
        <message id="VTULocalization.klAutoRefresh">
            <source>Auto Refresh</source>
            <translation>Actualización auto</translation>
        </message>
        <message id="VTULocalization.klFailuresOnly">
            <source>Failures only</source>
            <translation>Solo fallos</translation>
        </message>
        <message id="VTULocalization.klFind">
            <source>Find</source>
            <translation>Buscar</translation>
        </message>
        <message id="VTULocalization.klFindTip">
            <source>Shows the entries that hold this text in any column</source>
            <translation>Muestra las entradas que contienen este texto en cualquier columna</translation>
        </message>
        <message id="VTULocalization.klFailuresOnlyTip">
            <source>Shows the entries of files that were not sent, or not kept whole</source>
            <translation>Muestra las entradas de archivos que no se enviaron o no se guardaron por completo</translation>
        </message>
        <message id="VTULocalization.klLogRows">
            <source>Log entries</source>
            <translation>Entradas del registro</translation>
        </message>
        <message id="VTULocalization.klLogDetails">
            <source>Details of the selected entry</source>
            <translation>Detalles de la entrada seleccionada</translation>
        </message>
        <message id="VTULocalization.klLogDivider">
            <source>Divider between the lists</source>
            <translation>Divisor entre las listas</translation>
        </message>
        <message id="VTULocalization.klCopy">
            <source>Copy</source>
            <translation>Copiar</translation>
        </message>
        <message id="VTULocalization.klSendAgain">
            <source>Send Again</source>
            <translation>Enviar de nuevo</translation>
        </message>
        <message id="VTULocalization.klLogFailedRow">
            <source>Failed: $1</source>
            <translation>Fallido: $1</translation>
        </message>
        <message id="VTULocalization.klLogRowGone">
            <source>(deleted)</source>
            <translation>(eliminada)</translation>
        </message>
        <message id="VTULocalization.klLogNone">
            <source>There is no log. $1</source>
            <translation>No hay registro. $1</translation>
        </message>
        <message id="VTULocalization.klLogUnreadable">
            <source>The log can't be read. $1</source>
            <translation>No se puede leer el registro. $1</translation>
        </message>
        <message id="VTULocalization.klLogBusy">
            <source>The program is busy. Please try again in a moment.</source>
            <translation>El programa está ocupado. Inténtelo de nuevo en un momento.</translation>
        </message>
        <message id="VTULocalization.klLogEmpty">
            <source>The log is empty.</source>
            <translation>El registro está vacío.</translation>
        </message>
        <message id="VTULocalization.klLogCleared">
            <source>The view is cleared. The log itself is unchanged: press &quot;Refresh Log&quot; to see it again.</source>
            <translation>La vista está vacía. El registro no ha cambiado: pulse «Actualizar» para verlo de nuevo.</translation>
        </message>
        <message id="VTULocalization.klLogNoMatch">
            <source>No entry matches.</source>
            <translation>Ninguna entrada coincide.</translation>
        </message>
        <message id="VTULocalization.klLogNoRecords">
            <source>No records availble</source>
            <translation>No hay entradas disponibles</translation>
        </message>
        <message id="VTULocalization.klLogExporting">
            <source>Exporting to &quot;$1&quot;...</source>
            <translation>Exportando a «$1»...</translation>
        </message>
        <message id="VTULocalization.klLogNotExported">
            <source>The log was not exported safely. Under that name stands what was there before or the whole export, never a part of it.

$1</source>
            <translation>El registro no se ha exportado de forma segura. Con ese nombre está lo que había antes o la exportación completa, nunca una parte.

$1</translation>
        </message>
        <message id="VTULocalization.klLogRowsGone">
            <source>Some of the entries are no longer in the log. Press &quot;Refresh Log&quot; and export again.</source>
            <translation>Algunas entradas ya no están en el registro. Pulse «Actualizar» y exporte de nuevo.</translation>
        </message>
        <message id="VTULocalization.klLogStopExport">
            <source>The export is not finished. Do you want to close the window and cancel it?</source>
            <translation>La exportación no ha terminado. ¿Desea cerrar la ventana y cancelarla?</translation>
        </message>
        <message id="VTULocalization.klLogCopyTooMany">
            <source>These are too many entries for the clipboard. Please use &quot;Export to txt&quot;.</source>
            <translation>Son demasiadas entradas para el portapapeles. Use «Exportar a txt».</translation>
        </message>
        <message id="VTULocalization.klSendAgainQuestion">
            <source>Do you want to send these files again?

$1

The date of each file is set to now, so that its task sends it with its next run.</source>
            <translation>¿Desea enviar de nuevo estos archivos?

$1

La fecha de cada archivo pasa a ser la actual, de modo que su tarea lo envía en la próxima pasada.</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainQuestion">
            <source>Do you want to send this file again?

$1

Its date is set to now, so that its task sends it with its next run.</source>
            <translation>¿Desea enviar de nuevo este archivo?

$1

Su fecha pasa a ser la actual, de modo que su tarea lo envía en la próxima pasada.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNotTaken">
            <source>No task that is switched on takes these files. They will wait until one does:

$1</source>
            <translation>Ninguna tarea activa toma estos archivos. Esperarán hasta que una lo haga:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainNotTaken">
            <source>No task that is switched on takes this file. It will wait until one does:

$1</source>
            <translation>Ninguna tarea activa toma este archivo. Esperará hasta que una lo haga:

$1</translation>
        </message>
        <message id="VTULocalization.klSendAgainMore">
            <source>and $1 more</source>
            <translation>y $1 más</translation>
        </message>
        <message id="VTULocalization.klSendAgainTooMany">
            <source>No more than 1,000 entries can be sent again at once.</source>
            <translation>No se pueden reenviar más de 1000 entradas a la vez.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNone">
            <source>None of these files is in its input folder any more.</source>
            <translation>Ninguno de estos archivos está ya en su carpeta de entrada.</translation>
        </message>
        <message id="VTULocalization.klSendAgainFailed">
            <source>These files are not sent again, because their date could not be set:

$1</source>
            <translation>Estos archivos no se envían de nuevo, porque no se pudo cambiar su fecha:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainFailed">
            <source>This file is not sent again, because its date could not be set:

$1</source>
            <translation>Este archivo no se envía de nuevo, porque no se pudo cambiar su fecha:

$1</translation>
        </message>
        <message id="VTULocalization.klTestLineName">
            <source>Connection test</source>
            <translation>Prueba de conexión</translation>
        </message>
        <message id="VTULocalization.klTestRunning">
            <source>Asking the service...</source>
            <translation>Consultando el servicio...</translation>
        </message>
        <message id="VTULocalization.klTestSucceeded">
            <source>The service took the login.</source>
            <translation>El servicio ha aceptado el usuario.</translation>
        </message>
        <message id="VTULocalization.klTestSucceededProxy">
            <source>The service took the login, by way of the proxy ($1).</source>
            <translation>El servicio ha aceptado el usuario, a través del proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestSucceededNoPort">
            <source>The service took the login, but without the proxy: its port is not valid.</source>
            <translation>El servicio ha aceptado el usuario, pero sin el proxy: su puerto no es válido.</translation>
        </message>
        <message id="VTULocalization.klTestErrorAnswered">
            <source>The service answered with an error.</source>
            <translation>El servicio ha respondido con un error.</translation>
        </message>
        <message id="VTULocalization.klTestNameUnknown">
            <source>No answer: the name of the service can't be found ($1).</source>
            <translation>Sin respuesta: no se encuentra el nombre del servicio ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNameUnknown">
            <source>No answer: the name of the proxy can't be found ($1).</source>
            <translation>Sin respuesta: no se encuentra el nombre del proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotReached">
            <source>No answer: the service can't be reached ($1).</source>
            <translation>Sin respuesta: no se puede acceder al servicio ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNotReached">
            <source>No answer: the proxy can't be reached ($1).</source>
            <translation>Sin respuesta: no se puede acceder al proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyRefused">
            <source>No answer: the proxy did not connect to the service ($1).</source>
            <translation>Sin respuesta: el proxy no se ha conectado al servicio ($1).</translation>
        </message>
        <message id="VTULocalization.klTestTlsFailed">
            <source>No answer: no secure connection (TLS) with $1.</source>
            <translation>Sin respuesta: no hay conexión segura (TLS) con $1.</translation>
        </message>
        <message id="VTULocalization.klTestTimedOut">
            <source>No answer in time from the service ($1).</source>
            <translation>El servicio no ha respondido a tiempo ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyTimedOut">
            <source>No answer in time from the proxy ($1).</source>
            <translation>El proxy no ha respondido a tiempo ($1).</translation>
        </message>
        <message id="VTULocalization.klTestBroken">
            <source>No answer: the connection broke off ($1).</source>
            <translation>Sin respuesta: la conexión se ha interrumpido ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotTheService">
            <source>No answer of the service: something else answered.</source>
            <translation>Sin respuesta del servicio: ha respondido otra cosa.</translation>
        </message>
        <message id="VTULocalization.klBackupLineName">
            <source>Backup of the tasks</source>
            <translation>Copia de seguridad de las tareas</translation>
        </message>
        <message id="VTULocalization.klBackupUnderWay">
            <source>Saving the tasks...</source>
            <translation>Guardando las tareas...</translation>
        </message>
        <message id="VTULocalization.klBackupDone">
            <source>The tasks are saved.</source>
            <translation>Las tareas están guardadas.</translation>
        </message>
        <message id="VTULocalization.klRestoreUnderWay">
            <source>Loading the tasks...</source>
            <translation>Cargando las tareas...</translation>
        </message>
        <message id="VTULocalization.klRestoreDone">
            <source>The tasks are loaded. They join the list when this window is closed.</source>
            <translation>Las tareas están cargadas. Se unirán a la lista al cerrar esta ventana.</translation>
        </message>
        <message id="VTULocalization.klBackupSlow">
            <source>The folder is slow to answer. Closing this window stops the copying.</source>
            <translation>La carpeta responde con lentitud. Al cerrar esta ventana se detiene la copia.</translation>
        </message>
        <message id="VTULocalization.klBackupFailed">
            <source>These task files could not be saved:</source>
            <translation>Estos archivos de tareas no se pudieron guardar:</translation>
        </message>
        <message id="VTULocalization.klRestoreFailed">
            <source>These task files could not be loaded:</source>
            <translation>Estos archivos de tareas no se pudieron cargar:</translation>
        </message>
        <message id="VTULocalization.klCopyingStopped">
            <source>The copying was stopped, because the window was closed. These task files were not copied:</source>
            <translation>La copia se ha detenido porque se ha cerrado la ventana. Estos archivos de tareas no se han copiado:</translation>
        </message>
        <message id="VTULocalization.klNotBegun">
            <source>Earlier calls still wait for an answer. Please try again in a moment.</source>
            <translation>Hay consultas anteriores que aún esperan respuesta. Vuelva a intentarlo dentro de un momento.</translation>
        </message>
        <message id="VTULocalization.klAdminFailed">
            <source>The admin window could not be opened: $1</source>
            <translation>La ventana Admin no se pudo abrir: $1</translation>
        </message>
        <message id="VTULocalization.klTheProxy">
            <source>the proxy $1</source>
            <translation>proxy $1</translation>
        </message>
        <message id="VTULocalization.klAddressInvalid">
            <source>the address of the service is not valid</source>
            <translation>la dirección del servicio no es válida</translation>
        </message>
        <message id="VTULocalization.klHeaderInvalid">
            <source>a header of the request can't be written on one line</source>
            <translation>una cabecera de la petición no cabe en una línea</translation>
        </message>
        <message id="VTULocalization.klNameInvalid">
            <source>$1 has no valid host name</source>
            <translation>$1 no tiene un nombre de host válido</translation>
        </message>
        <message id="VTULocalization.klNameUnknown">
            <source>the name of $1 is not known: $2</source>
            <translation>el nombre de $1 no se conoce: $2</translation>
        </message>
        <message id="VTULocalization.klLookUpSlow">
            <source>the look-up of the name of $1 took too long</source>
            <translation>la resolución del nombre de $1 tardó demasiado</translation>
        </message>
        <message id="VTULocalization.klLookUpsHang">
            <source>the name of $1 can't be looked up: earlier look-ups still hang</source>
            <translation>no se puede resolver el nombre de $1: hay consultas anteriores aún bloqueadas</translation>
        </message>
        <message id="VTULocalization.klConnectingSlow">
            <source>connecting to $1 took too long</source>
            <translation>la conexión con $1 tardó demasiado</translation>
        </message>
        <message id="VTULocalization.klNoConnection">
            <source>no connection to $1: $2</source>
            <translation>sin conexión con $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsLibraryFailed">
            <source>OpenSSL could not be set up</source>
            <translation>no se pudo preparar OpenSSL</translation>
        </message>
        <message id="VTULocalization.klTlsNotSetUp">
            <source>TLS with $1 could not be set up</source>
            <translation>no se pudo preparar TLS con $1</translation>
        </message>
        <message id="VTULocalization.klTlsSilent">
            <source>$1 did not answer in the TLS handshake</source>
            <translation>$1 no respondió en la negociación TLS</translation>
        </message>
        <message id="VTULocalization.klNoTlsConnection">
            <source>no TLS connection to $1: $2</source>
            <translation>sin conexión TLS con $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsError">
            <source>TLS error $1</source>
            <translation>error TLS $1</translation>
        </message>
        <message id="VTULocalization.klItClosed">
            <source>it closed the connection</source>
            <translation>el otro extremo cerró la conexión</translation>
        </message>
        <message id="VTULocalization.klCertificateRefused">
            <source>the certificate of $1 is not accepted: $2</source>
            <translation>no se acepta el certificado de $1: $2</translation>
        </message>
        <message id="VTULocalization.klTrustFileUnusable">
            <source>the file of trusted certificates &quot;$1&quot; can't be used</source>
            <translation>no se puede usar el archivo de certificados de confianza «$1»</translation>
        </message>
        <message id="VTULocalization.klRefusedWithStatus">
            <source>$1 refused with status $2</source>
            <translation>$1 rechazó con el estado $2</translation>
        </message>
        <message id="VTULocalization.klNoAnswerWithin">
            <source>$1 did not answer within $2 s</source>
            <translation>$1 no respondió en $2 s</translation>
        </message>
        <message id="VTULocalization.klRequestNotTaken">
            <source>$1 did not take the whole request within $2 s</source>
            <translation>$1 no recibió la petición completa en $2 s</translation>
        </message>
        <message id="VTULocalization.klReplyStopped">
            <source>$1 fell silent in its reply for $2 s</source>
            <translation>$1 quedó en silencio $2 s en medio de su respuesta</translation>
        </message>
        <message id="VTULocalization.klConnectionBroke">
            <source>the connection to $1 broke: $2</source>
            <translation>se cortó la conexión con $1: $2</translation>
        </message>
        <message id="VTULocalization.klClosedConnection">
            <source>$1 closed the connection</source>
            <translation>$1 cerró la conexión</translation>
        </message>
        <message id="VTULocalization.klClosedInRequest">
            <source>$1 closed the connection before it had the whole request</source>
            <translation>$1 cerró la conexión antes de recibir la petición completa</translation>
        </message>
        <message id="VTULocalization.klClosedInReply">
            <source>$1 closed the connection before its reply was complete</source>
            <translation>$1 cerró la conexión antes de completar su respuesta</translation>
        </message>
        <message id="VTULocalization.klAnsweredEarly">
            <source>$1 answered before it had the whole request</source>
            <translation>$1 respondió antes de recibir la petición completa</translation>
        </message>
        <message id="VTULocalization.klReplyTooLarge">
            <source>the reply of $1 is too large</source>
            <translation>la respuesta de $1 es demasiado grande</translation>
        </message>
        <message id="VTULocalization.klReplyBadLength">
            <source>$1 announced a reply of an impossible length</source>
            <translation>$1 anunció una respuesta de longitud imposible</translation>
        </message>
        <message id="VTULocalization.klContentShort">
            <source>the content could not be read to its end</source>
            <translation>no se pudo leer el contenido hasta el final</translation>
        </message>
        <message id="VTULocalization.klFileChanged">
            <source>the file changed before it was sent whole</source>
            <translation>el archivo cambió antes de enviarse por completo</translation>
        </message>
        <message id="VTULocalization.klNoFileToSend">
            <source>there is no file to send</source>
            <translation>no hay ningún archivo que enviar</translation>
        </message>
        <message id="VTULocalization.klStopped">
            <source>stopped</source>
            <translation>detenido</translation>
        </message>
        <message id="VTULocalization.klNoInputFolder">
            <source>the task has no input folder</source>
            <translation>la tarea no tiene carpeta de entrada</translation>
        </message>
        <message id="EditTaskWindow.klAddDatetoFileName">
            <source>Add Date to File Name</source>
            <translation>Añadir fecha al nombre</translation>
        </message>
        <message id="EditTaskWindow.klAutoRecognition">
            <source>Auto Recognition</source>
            <translation>Reconocimiento automático</translation>
        </message>
        <message id="EditTaskWindow.klDeleteFileAfterCopy">
            <source>Delete File After Copy</source>
            <translation>Eliminar archivo tras copiarlo</translation>
        </message>
        <message id="EditTaskWindow.klExtension">
            <source>Extension</source>
            <translation>Extensión</translation>
        </message>
        <message id="EditTaskWindow.klFileNameExclusion">
            <source>File Name Exclusion</source>
            <translation>Exclusión por nombre</translation>
        </message>
        <message id="EditTaskWindow.klFileNameRecognition">
            <source>File Name Recognition</source>
            <translation>Reconocimiento por nombre</translation>
        </message>
        <message id="EditTaskWindow.klPrefix">
            <source>Prefix</source>
            <translation>Prefijo</translation>
        </message>
        <message id="EditTaskWindow.klSelectTrack">
            <source>Select Track</source>
            <translation>Elegir track</translation>
        </message>
        <message id="MainMenuBar.klFileMenu">
            <source>&amp;File</source>
            <translation>&amp;Archivo</translation>
        </message>
        <message id="MainMenuBar.klFileAbout">
            <source>About Vantry Uploader...</source>
            <translation>Acerca de Vantry Uploader...</translation>
        </message>
        <message id="MainMenuBar.klFileQuit">
            <source>&amp;Quit</source>
            <translation>&amp;Salir</translation>
        </message>
        <message id="MainMenuBar.klEditMenu">
            <source>&amp;Edit</source>
            <translation>&amp;Edición</translation>
        </message>
        <message id="MainMenuBar.klEditUndo">
            <source>&amp;Undo</source>
            <translation>&amp;Deshacer</translation>
        </message>
        <message id="MainMenuBar.klEditCut">
            <source>Cu&amp;t</source>
            <translation>Cor&amp;tar</translation>
        </message>
        <message id="MainMenuBar.klEditCopy">
            <source>&amp;Copy</source>
            <translation>&amp;Copiar</translation>
        </message>
        <message id="MainMenuBar.klEditPaste">
            <source>&amp;Paste</source>
            <translation>&amp;Pegar</translation>
        </message>
        <message id="MainMenuBar.klEditClear">
            <source>&amp;Delete</source>
            <translation>&amp;Eliminar</translation>
        </message>
        <message id="MainMenuBar.klEditSelectAll">
            <source>Select &amp;All</source>
            <translation>&amp;Seleccionar todo</translation>
        </message>
        <message id="MainMenuBar.klAboutTitle">
            <source>About</source>
            <translation>Acerca de</translation>
        </message>
        <message id="VantryUtil.E002">
            <source>No patches found. Check instrument/software settings.</source>
            <translation>No se encontraron parches. Compruebe los ajustes del instrumento y del software.</translation>
        </message>
        <message id="VantryUtil.E003">
            <source>Database connection issues. Check website/ server connection.</source>
            <translation>Problemas de conexión con la base de datos. Compruebe la conexión con el sitio web y el servidor.</translation>
        </message>
        <message id="VantryUtil.E004">
            <source>Wrong measurement conditions - possible mismatch. Check both application and track/ tool preferences (M0, M1, M2, M3)</source>
            <translation>Condiciones de medición incorrectas, posiblemente no coinciden. Compruebe las preferencias de la aplicación y las del track/herramienta (M0, M1, M2, M3)</translation>
        </message>
        <message id="VantryUtil.E005">
            <source>Wrong mode. Mode shall be either production or makeready.</source>
            <translation>Modo incorrecto. El modo debe ser tirada (production) o puesta a punto (makeready).</translation>
        </message>
        <message id="VantryUtil.E006">
            <source>Wrong backing. Backing shall be either white or black.</source>
            <translation>Fondo de medición incorrecto. El fondo debe ser blanco (white) o negro (black).</translation>
        </message>
        <message id="VantryUtil.E007">
            <source>Filename cannot be empty.</source>
            <translation>El nombre de archivo no puede estar vacío.</translation>
        </message>
        <message id="VantryUtil.E008">
            <source>Requested track not found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>No se encontró el track solicitado. Con el reconocimiento automático, compruebe los ajustes: la aplicación y el sitio web deben coincidir exactamente.</translation>
        </message>
        <message id="VantryUtil.E009">
            <source>Wrong login/password combination. Note: SOAP protocol uses separate login/ password combination. Consult user manual to learn more.</source>
            <translation>Combinación de usuario y contraseña incorrecta. Nota: el protocolo SOAP usa un usuario y una contraseña distintos. Consulte el manual.</translation>
        </message>
        <message id="VantryUtil.E010">
            <source>No tracks found.</source>
            <translation>No se encontraron tracks.</translation>
        </message>
        <message id="VantryUtil.E011">
            <source>Spectral data missing.</source>
            <translation>Faltan los datos espectrales.</translation>
        </message>
        <message id="VantryUtil.E012">
            <source>Wrong color definition.</source>
            <translation>Definición de color incorrecta.</translation>
        </message>
        <message id="VantryUtil.E013">
            <source>Date format unrecognized.</source>
            <translation>Formato de fecha no reconocido.</translation>
        </message>
        <message id="VantryUtil.E014">
            <source>Sheet number must be an integer.</source>
            <translation>El número de pliego debe ser un entero.</translation>
        </message>
        <message id="VantryUtil.E015">
            <source>Unknown dryback value. (E015)</source>
            <translation>Valor de dryback desconocido. (E015)</translation>
        </message>
        <message id="VantryUtil.E016">
            <source>User is registered on dedicated instance, API URL needs to be changed</source>
            <translation>El usuario está registrado en una instancia dedicada, hay que cambiar la URL de la API</translation>
        </message>
        <message id="VantryUtil.E017">
            <source>Operator is not authenticated, please check Your login/password combination.</source>
            <translation>El operario no está autenticado, compruebe el usuario y la contraseña.</translation>
        </message>
        <message id="VantryUtil.E018">
            <source>No devices found.</source>
            <translation>No se encontraron dispositivos.</translation>
        </message>
        <message id="VantryUtil.E019">
            <source>Selected operator is not assigned to any of printing devices</source>
            <translation>El operario elegido no está asignado a ningún dispositivo de impresión</translation>
        </message>
        <message id="VantryUtil.E020">
            <source>No Scanning Templates found</source>
            <translation>No se encontraron plantillas de medición</translation>
        </message>
        <message id="VantryUtil.E021">
            <source>No measurement tasks avaliable</source>
            <translation>No hay tareas de medición disponibles</translation>
        </message>
        <message id="VantryUtil.E022">
            <source>Scanning Template not found</source>
            <translation>No se encontró la plantilla de medición</translation>
        </message>
        <message id="VantryUtil.E023">
            <source>Control Strip not foundControl Strip not found</source>
            <translation>No se encontró la tira de control</translation>
        </message>
        <message id="VantryUtil.E024">
            <source>Control Strip patches not found</source>
            <translation>No se encontraron los parches de la tira de control</translation>
        </message>
        <message id="VantryUtil.E025">
            <source>Selected job does not belong to selected track</source>
            <translation>El trabajo elegido no pertenece al track elegido</translation>
        </message>
        <message id="VantryUtil.E026">
            <source>No jobs found</source>
            <translation>No se encontraron trabajos</translation>
        </message>
        <message id="VantryUtil.E027">
            <source>Color Library/Palette not found</source>
            <translation>No se encontró la biblioteca o paleta de colores</translation>
        </message>
        <message id="VantryUtil.E028">
            <source>No instruments found</source>
            <translation>No se encontraron instrumentos</translation>
        </message>
        <message id="VantryUtil.E102">
            <source>No Instrument - Target pair found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>No se encontró ninguna pareja de instrumento y carta de referencia. Con el reconocimiento automático, compruebe los ajustes: la aplicación y el sitio web deben coincidir exactamente.</translation>
        </message>
        <message id="VantryUtil.E103">
            <source>Measured file does not have required list of patches.</source>
            <translation>El archivo medido no contiene la lista de parches necesaria.</translation>
        </message>
        <message id="VantryUtil.EUnknownError">
            <source>Unknown Error</source>
            <translation>Error desconocido</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateOff">
            <source>Off</source>
            <translation>Inactiva</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateProcessing">
            <source>Sending files</source>
            <translation>Enviando archivos</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateReady">
            <source>Ready</source>
            <translation>Lista</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateFault">
            <source>A folder is missing or can't be written</source>
            <translation>Falta una carpeta o no permite escribir</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasks">
            <source>Tasks</source>
            <translation>Tareas</translation>
        </message>
        <message id="VTUploaderMainWIndow.klHelp">
            <source>Help</source>
            <translation>Ayuda</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNoTasks">
            <source>There are no tasks yet. Press &quot;$1&quot; to set up the first one.</source>
            <translation>Todavía no hay tareas. Pulse «$1» para configurar la primera.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskEditor">
            <source>The task editor</source>
            <translation>El editor de tareas</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripAndMore">
            <source>(and $1 more)</source>
            <translation>(y $1 más)</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasksAboutToLoad">
            <source>The restored tasks are loaded as soon as the files under way are sent.</source>
            <translation>Las tareas restauradas se cargarán en cuanto se envíen los archivos en curso.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripFolderFault">
            <source>Task &quot;$1&quot; can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>La tarea «$1» no puede usar sus carpetas. Compruebe que las carpetas de entrada y salida existen, están conectadas y permiten escribir.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotDuplicated">
            <source>The task could not be duplicated: $1</source>
            <translation>No se pudo duplicar la tarea: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotRemoved">
            <source>The task is off the list, but its file could not be removed, so it will be back at the next start: $1</source>
            <translation>La tarea ya no está en la lista, pero no se pudo quitar su archivo, por lo que volverá en el próximo inicio: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klManualNotOpened">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>No se pudo abrir el navegador. El manual está en $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNewVersion">
            <source>Version $1 is availble newer and availbale.
Would you like to downlownload it now?</source>
            <translation>Hay disponible una versión más reciente: $1.
¿Desea descargarla ahora?</translation>
        </message>
        <message id="VTUploaderMainWIndow.klDownloadNotOpened">
            <source>The download can't be opened from here. Its address is $1</source>
            <translation>No se puede abrir la descarga desde aquí. Su dirección es $1</translation>
        </message>
        <message id="Reasons.klListing">
            <source>listing $1</source>
            <translation>al listar $1</translation>
        </message>
        <message id="Reasons.klReading">
            <source>reading $1</source>
            <translation>al leer $1</translation>
        </message>
        <message id="Reasons.klWriting">
            <source>writing $1</source>
            <translation>al escribir $1</translation>
        </message>
        <message id="Reasons.klCopying">
            <source>copying $1 to $2</source>
            <translation>al copiar $1 a $2</translation>
        </message>
        <message id="Reasons.klRenaming">
            <source>renaming $1</source>
            <translation>al cambiar el nombre de $1</translation>
        </message>
        <message id="Reasons.klRenamingTo">
            <source>renaming $1 to $2</source>
            <translation>al cambiar el nombre de $1 a $2</translation>
        </message>
        <message id="Reasons.klSettingDate">
            <source>setting the date of $1</source>
            <translation>cambio de la fecha de $1</translation>
        </message>
        <message id="Reasons.klDeleting">
            <source>deleting $1</source>
            <translation>al eliminar $1</translation>
        </message>
        <message id="Reasons.klMakingFolder">
            <source>making the folder $1</source>
            <translation>al crear la carpeta $1</translation>
        </message>
        <message id="Reasons.klFlushingFolder">
            <source>flushing the folder of $1</source>
            <translation>al asegurar en disco la carpeta de $1</translation>
        </message>
        <message id="Reasons.klEnciphering">
            <source>enciphering $1</source>
            <translation>al cifrar $1</translation>
        </message>
        <message id="Reasons.klWritingOver">
            <source>writing over $1, which could not be read</source>
            <translation>al sobrescribir $1, que no se pudo leer</translation>
        </message>
        <message id="Reasons.klSavingWithoutFile">
            <source>saving without a file</source>
            <translation>al guardar sin archivo</translation>
        </message>
        <message id="Reasons.klMakingIt">
            <source>making it</source>
            <translation>al crear el archivo</translation>
        </message>
        <message id="Reasons.klNotOurs">
            <source>it is not a settings file, or it is damaged</source>
            <translation>no es un archivo de ajustes, o está dañado</translation>
        </message>
        <message id="Reasons.klOtherProgram">
            <source>it is damaged, or another program wrote it</source>
            <translation>está dañado, o lo escribió otro programa</translation>
        </message>
        <message id="Reasons.klNotAnObject">
            <source>its content is not a JSON object</source>
            <translation>su contenido no es un objeto JSON</translation>
        </message>
        <message id="Reasons.klContentGone">
            <source>its content is gone</source>
            <translation>su contenido ha desaparecido</translation>
        </message>
        <message id="Reasons.klEndCutOff">
            <source>its end is cut off</source>
            <translation>su final está cortado</translation>
        </message>
        <message id="Reasons.klWriteProtected">
            <source>the file is write-protected</source>
            <translation>el archivo está protegido contra escritura</translation>
        </message>
    </context>
</TS>
