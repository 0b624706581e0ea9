<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
    <context>
        <name></name>
        <message id="VTULocalization.klAdmin">
            <source>Admin</source>
            <translation>Admin</translation>
        </message>
        <message id="VTULocalization.klAdminLock">
            <source>Admin Lock</source>
            <translation>Bloqueio de admin</translation>
        </message>
        <message id="VTULocalization.klAdminPasswordRequired">
            <source>Admin Password Required</source>
            <translation>Senha de admin necessária</translation>
        </message>
        <message id="VTULocalization.klAutoMount">
            <source>Auto Mount</source>
            <translation>Automontar</translation>
        </message>
        <message id="VTULocalization.klBackup">
            <source>Backup</source>
            <translation>Backup</translation>
        </message>
        <message id="VTULocalization.klBackupDescription">
            <source>Select a directory where a backup of your tasks will be stored.</source>
            <translation>Selecione a pasta em que o backup das tarefas será guardado.</translation>
        </message>
        <message id="VTULocalization.klCancel">
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
        <message id="VTULocalization.klCheckandConnect">
            <source>Check and Connect</source>
            <translation>Verificar e conectar</translation>
        </message>
        <message id="VTULocalization.klCheckForUpdates">
            <source>Check For Updates</source>
            <translation>Verificar atualizações</translation>
        </message>
        <message id="VTULocalization.klClear">
            <source>Clear</source>
            <translation>Limpar</translation>
        </message>
        <message id="VTULocalization.klClearLog">
            <source>Clear Log</source>
            <translation>Limpar lista</translation>
        </message>
        <message id="VTULocalization.klClearProcessDateStamp">
            <source>Clear Process Date Stamp</source>
            <translation>Limpar data de processo</translation>
        </message>
        <message id="VTULocalization.klCouldNotMount">
            <source>Error Mounting</source>
            <translation>Erro ao montar</translation>
        </message>
        <message id="VTULocalization.klDeleteLog">
            <source>Delete Log History</source>
            <translation>Excluir registro</translation>
        </message>
        <message id="VTULocalization.klDeleteTaskConfirmation">
            <source>Are you sure you want to delete this task?</source>
            <translation>Tem certeza de que deseja excluir esta tarefa?</translation>
        </message>
        <message id="VTULocalization.klDisableTask">
            <source>Disable Task</source>
            <translation>Desativar</translation>
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
            <translation>Editar tarefa</translation>
        </message>
        <message id="VTULocalization.klEnteradminpassword">
            <source>Enter admin password</source>
            <translation>Senha de admin</translation>
        </message>
        <message id="VTULocalization.klExporttotxt">
            <source>Export to txt</source>
            <translation>Exportar txt</translation>
        </message>
        <message id="VTULocalization.klField">
            <source>Field</source>
            <translation>Campo</translation>
        </message>
        <message id="VTULocalization.klFiles">
            <source>Files</source>
            <translation>Arquivos</translation>
        </message>
        <message id="VTULocalization.klIncorrectPassword">
            <source>Incorrect Administrator Password Entered</source>
            <translation>A senha de administrador informada está incorreta</translation>
        </message>
        <message id="VTULocalization.klInputFolder">
            <source>Input Folder</source>
            <translation>Pasta de entrada</translation>
        </message>
        <message id="VTULocalization.KLInputFolderURL">
            <source>Input Folder URL</source>
            <translation>URL da pasta de entrada</translation>
        </message>
        <message id="VTULocalization.klInputLogin">
            <source>Input Login</source>
            <translation>Login de entrada</translation>
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
            <translation>Carregar</translation>
        </message>
        <message id="VTULocalization.klLoadConfiguration">
            <source>Load Configuration</source>
            <translation>Carregar configuração</translation>
        </message>
        <message id="VTULocalization.klLoadConfigurationDescription">
            <source>Select a folder containing a backup of uploader tasks to be restored.</source>
            <translation>Selecione uma pasta com um backup das tarefas a restaurar.</translation>
        </message>
        <message id="VTULocalization.klLocktasklist">
            <source>Lock task list</source>
            <translation>Bloquear lista de tarefas</translation>
        </message>
        <message id="VTULocalization.klNA">
            <source>n/a</source>
            <translation>n/d</translation>
        </message>
        <message id="VTULocalization.klNew">
            <source>New</source>
            <translation>Nova</translation>
        </message>
        <message id="VTULocalization.klNoTasksToSave">
            <source>There are no tasks avaible to backup</source>
            <translation>Não há tarefas para o backup</translation>
        </message>
        <message id="VTULocalization.klOK">
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message id="VTULocalization.klOutputLogin">
            <source>Output Login</source>
            <translation>Login de saída</translation>
        </message>
        <message id="VTULocalization.klOutputPassword">
            <source>Output Password</source>
            <translation>Senha de saída</translation>
        </message>
        <message id="VTULocalization.klPassword">
            <source>Password</source>
            <translation>Senha</translation>
        </message>
        <message id="VTULocalization.KLPrint">
            <source>Print</source>
            <translation>Impressão</translation>
        </message>
        <message id="VTULocalization.klProxy">
            <source>Proxy</source>
            <translation>Proxy</translation>
        </message>
        <message id="VTULocalization.klProxyAddress">
            <source>Proxy Address</source>
            <translation>Endereço do proxy</translation>
        </message>
        <message id="VTULocalization.klProxyPort">
            <source>Proxy Port</source>
            <translation>Porta do proxy</translation>
        </message>
        <message id="VTULocalization.klReenteradminpassword">
            <source>Re-enter admin password</source>
            <translation>Repetir senha de admin</translation>
        </message>
        <message id="VTULocalization.klRefreshLog">
            <source>Refresh Log</source>
            <translation>Atualizar</translation>
        </message>
        <message id="VTULocalization.klRemove">
            <source>Remove</source>
            <translation>Remover</translation>
        </message>
        <message id="VTULocalization.klReplaceFileName">
            <source>Replace Name</source>
            <translation>Substituir nome</translation>
        </message>
        <message id="VTULocalization.klSave">
            <source>Save</source>
            <translation>Salvar</translation>
        </message>
        <message id="VTULocalization.klSaveConfiguration">
            <source>Save Configuration</source>
            <translation>Salvar configuração</translation>
        </message>
        <message id="VTULocalization.klSelectBackupDirectory">
            <source>Backup Directory</source>
            <translation>Pasta de backup</translation>
        </message>
        <message id="VTULocalization.KLSelectInstrument">
            <source>Select Instrument</source>
            <translation>Escolher instrumento</translation>
        </message>
        <message id="VTULocalization.klSelectPress">
            <source>Select Press</source>
            <translation>Escolher impressora</translation>
        </message>
        <message id="VTULocalization.klSelectTarget">
            <source>Select Target</source>
            <translation>Escolher carta de referência</translation>
        </message>
        <message id="VTULocalization.klSEt">
            <source>Set</source>
            <translation>Definir</translation>
        </message>
        <message id="VTULocalization.klShowLog">
            <source>Show Log...</source>
            <translation>Registro...</translation>
        </message>
        <message id="VTULocalization.klSOAPConnection">
            <source>SOAP Connection</source>
            <translation>Conexão SOAP</translation>
        </message>
        <message id="VTULocalization.klSOAPLogin">
            <source>SOAP Login</source>
            <translation>Login SOAP</translation>
        </message>
        <message id="VTULocalization.klSoapPassword">
            <source>SOAP Password</source>
            <translation>Senha SOAP</translation>
        </message>
        <message id="VTULocalization.klSoftwareUpToDate">
            <source>Your software is up to date</source>
            <translation>Seu software está atualizado</translation>
        </message>
        <message id="VTULocalization.klStatus">
            <source>Status</source>
            <translation>Status</translation>
        </message>
        <message id="VTULocalization.klSureYouWantToQuit">
            <source>Are you sure you want to quit?

Uploads will stop processing when the application quit.</source>
            <translation>Tem certeza de que deseja sair?

Os arquivos deixarão de ser enviados quando o aplicativo for fechado.</translation>
        </message>
        <message id="VTULocalization.klTaskCurrentlyProcessing">
            <source>This task is currently processing. Please try again in a moment</source>
            <translation>Esta tarefa está em processamento. Tente novamente em instantes.</translation>
        </message>
        <message id="VTULocalization.klTaskDescription">
            <source>Task Description</source>
            <translation>Descrição</translation>
        </message>
        <message id="VTULocalization.klTaskName">
            <source>Task Name</source>
            <translation>Nome da tarefa</translation>
        </message>
        <message id="VTULocalization.kltest">
            <source>Test</source>
            <translation>Testar</translation>
        </message>
        <message id="VTULocalization.klValue">
            <source>Value</source>
            <translation>Valor</translation>
        </message>
        <message id="VTULocalization.klVerifyDateStamp">
            <source>Are you sure you want to clear the last processed date?

This will force all files in the input folder to be processed regardless of age or if they have previously been processed.</source>
            <translation>Tem certeza de que deseja limpar a data do último processamento?

Todos os arquivos da pasta de entrada serão processados, qualquer que seja a idade deles e mesmo que já tenham sido processados.</translation>
        </message>
        <message id="VTULocalization.klStripSending">
            <source>Sending $1: $2 ($3 %)</source>
            <translation>$1: enviando $2 ($3 %)</translation>
        </message>
        <message id="VTULocalization.klStripAllWell">
            <source>All is well since $1</source>
            <translation>Tudo em ordem desde $1</translation>
        </message>
        <message id="VTULocalization.klStripConnecting">
            <source>Connecting to the service...</source>
            <translation>Conectando ao serviço...</translation>
        </message>
        <message id="VTULocalization.klStripChecking">
            <source>Checking the input folders...</source>
            <translation>Verificando as pastas de entrada...</translation>
        </message>
        <message id="VTULocalization.klUploadingHeld">
            <source>Uploading is held until the task editor or the Admin window is closed and what was changed there is in force.</source>
            <translation>O envio fica suspenso até que o editor de tarefas ou a janela Admin seja fechada e as alterações sejam aplicadas.</translation>
        </message>
        <message id="VTULocalization.klStripNoLogin">
            <source>No login is stored, so nothing can be sent. Enter the service login under Admin.</source>
            <translation>Não há login salvo, portanto nada pode ser enviado. Informe o login do serviço em Admin.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFileSkipped">
            <source>Task file &quot;$1&quot; was skipped: $2. The other tasks run. Repair or remove the file and start the program again.</source>
            <translation>O arquivo de tarefa “$1” foi ignorado: $2. As outras tarefas funcionam. Repare ou remova o arquivo e reinicie o programa.</translation>
        </message>
        <message id="VTULocalization.klStripTaskFolderUnreadable">
            <source>The tasks can't be read, so nothing is sent: $2. Check the task folder and start the program again.</source>
            <translation>Não é possível ler as tarefas, portanto nada é enviado: $2. Verifique a pasta de tarefas e reinicie o programa.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesSetAside">
            <source>The settings file was damaged and is kept as &quot;$1&quot;. Enter the service login again under Admin.</source>
            <translation>O arquivo de configurações estava danificado e foi guardado como “$1”. Informe novamente o login do serviço em Admin.</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesNotSaved">
            <source>The settings can't be saved: $2. Check the settings folder, its permissions and the space on its disk.</source>
            <translation>Não é possível salvar as configurações: $2. Verifique a pasta de configurações, suas permissões e o espaço em disco.</translation>
        </message>
        <message id="VTULocalization.klStripLogSetAside">
            <source>The log was damaged and is kept as &quot;$1&quot;. A new log has begun; uploads are not affected.</source>
            <translation>O registro estava danificado e foi guardado como “$1”. Um novo foi iniciado; os envios não são afetados.</translation>
        </message>
        <message id="VTULocalization.klStripLogUnavailable">
            <source>Uploads go on, but nothing is logged: $2. When this is repaired, start the program again.</source>
            <translation>Os envios continuam, mas nada é registrado: $2. Depois de resolver isso, reinicie o programa.</translation>
        </message>
        <message id="VTULocalization.klStripLogRowLost">
            <source>Uploads go on, but an entry could not be logged: $2. Check the space on the disk.</source>
            <translation>Os envios continuam, mas uma entrada não pôde ser registrada: $2. Verifique o espaço em disco.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionInvalid">
            <source>Task &quot;$1&quot; excludes no files, because its exclusion pattern is not valid: $2. Correct the pattern.</source>
            <translation>A tarefa “$1” não exclui nenhum arquivo, porque seu padrão de exclusão é inválido: $2. Corrija o padrão.</translation>
        </message>
        <message id="VTULocalization.klStripExclusionTooCostly">
            <source>Task &quot;$1&quot; keeps back &quot;$2&quot;, because its exclusion pattern takes too long on that name. Simplify the pattern.</source>
            <translation>A tarefa “$1” retém “$2”, porque seu padrão de exclusão demora demais com esse nome. Simplifique o padrão.</translation>
        </message>
        <message id="VTULocalization.klStripInputFolderUnreadable">
            <source>Task &quot;$1&quot; can't read its input folder: $2. Check that the folder is there and connected.</source>
            <translation>A tarefa “$1” não consegue ler sua pasta de entrada: $2. Verifique se a pasta existe e está conectada.</translation>
        </message>
        <message id="VTULocalization.klStripFolderSilent">
            <source>The folders of task &quot;$1&quot; do not answer. The other tasks run, and this one goes on by itself when its server is back.</source>
            <translation>As pastas da tarefa “$1” não respondem. As outras tarefas continuam, e esta prossegue sozinha quando o servidor voltar.</translation>
        </message>
        <message id="VTULocalization.klStripNothingMounted">
            <source>Task &quot;$1&quot; waits for the share at $2, where nothing is mounted. To use the folder as it is, set it anew in the task.</source>
            <translation>A tarefa “$1” espera o compartilhamento em $2, onde nada está montado. Para usar a pasta como está, defina-a de novo na tarefa.</translation>
        </message>
        <message id="VTULocalization.klStripShareNotMounted">
            <source>The share $1 could not be mounted: $2. It is tried again after 10 minutes.</source>
            <translation>Não foi possível montar o compartilhamento $1: $2. Uma nova tentativa será feita após 10 minutos.</translation>
        </message>
        <message id="VTULocalization.klStripCopyFailed">
            <source>Task &quot;$1&quot; could not save a copy: $2. The input file was not deleted. Check the output folder.</source>
            <translation>A tarefa “$1” não conseguiu salvar uma cópia: $2. O arquivo de entrada não foi excluído. Verifique a pasta de saída.</translation>
        </message>
        <message id="VTULocalization.klStripDeleteFailed">
            <source>Task &quot;$1&quot; sent a file but could not delete it: $2. Check the permissions of the input folder and delete the file yourself.</source>
            <translation>A tarefa “$1” enviou um arquivo, mas não conseguiu excluí-lo: $2. Verifique as permissões da pasta de entrada e exclua o arquivo você mesmo.</translation>
        </message>
        <message id="VTULocalization.klStripUploadFailed">
            <source>Task &quot;$1&quot; could not send a file: $2. When this is repaired, save the file into the input folder again.</source>
            <translation>A tarefa “$1” não conseguiu enviar um arquivo: $2. Depois de resolver isso, salve o arquivo novamente na pasta de entrada.</translation>
        </message>
        <message id="VTULocalization.klStripFileWaits">
            <source>Task &quot;$1&quot; can't read a file at the moment: $2. It is tried again by itself.</source>
            <translation>A tarefa “$1” não consegue ler um arquivo no momento: $2. Uma nova tentativa será feita automaticamente.</translation>
        </message>
        <message id="VTULocalization.klStripRunFailed">
            <source>Task &quot;$1&quot; was stopped by a fault: $2. It is tried again by itself; if this line stays, start the program again.</source>
            <translation>A tarefa “$1” foi interrompida por uma falha: $2. Ela será tentada de novo automaticamente; se esta linha permanecer, reinicie o programa.</translation>
        </message>
        <message id="VTULocalization.klStripServiceUnreachable">
            <source>The service can't be reached: $2. It is tried again by itself; check the network and the proxy settings.</source>
            <translation>Não é possível acessar o serviço: $2. Novas tentativas são automáticas; verifique a rede e as configurações do proxy.</translation>
        </message>
        <message id="VTULocalization.klStripServiceRefuses">
            <source>The service answers with an error: $2. It is asked again by itself; check the login under Admin.</source>
            <translation>O serviço responde com um erro: $2. Novas tentativas são automáticas; verifique o login em Admin.</translation>
        </message>
        <message id="VTULocalization.klMountNoSession">
            <source>there is no desktop session with a mount service</source>
            <translation>não há sessão de área de trabalho com um serviço de montagem</translation>
        </message>
        <message id="VTULocalization.klMountLoginRefused">
            <source>the server refuses the login</source>
            <translation>o servidor recusa o login</translation>
        </message>
        <message id="VTULocalization.klMountQuestion">
            <source>the server's key or certificate is not trusted; open it once in the file manager, or install its certificate</source>
            <translation>a chave ou o certificado do servidor não é confiável; abra-o uma vez no gerenciador de arquivos ou instale o certificado</translation>
        </message>
        <message id="VTULocalization.klMountUnreachable">
            <source>the server can't be reached</source>
            <translation>não é possível alcançar o servidor</translation>
        </message>
        <message id="VTULocalization.klMountNotThere">
            <source>the server has no such share or folder</source>
            <translation>o servidor não tem esse compartilhamento nem essa pasta</translation>
        </message>
        <message id="VTULocalization.klMountTimedOut">
            <source>the server does not answer</source>
            <translation>o servidor não responde</translation>
        </message>
        <message id="VTULocalization.klMountNotSupported">
            <source>no installed program mounts that kind of address</source>
            <translation>nenhum programa instalado monta esse tipo de endereço</translation>
        </message>
        <message id="VTULocalization.klMountNoFolder">
            <source>it is mounted, but not shown as a folder; name a share in the address, or install gvfs-fuse and log in again</source>
            <translation>está montado, mas não aparece como pasta; informe um compartilhamento no endereço, ou instale o gvfs-fuse e entre de novo na sessão</translation>
        </message>
        <message id="VTULocalization.klMountServiceEnded">
            <source>the mount service broke down over it; check the address and the login</source>
            <translation>o serviço de montagem falhou; verifique o endereço e o login</translation>
        </message>
        <message id="VTULocalization.klMountFailed">
            <source>error $1</source>
            <translation>erro $1</translation>
        </message>
        <message id="VTULocalization.klPreferencesSetAside">
            <source>The settings file was damaged and could not be read. It is kept as &quot;$1&quot;.

Vantry Uploader starts with empty settings: please enter the login, the proxy and the administrator password again under Admin. Your tasks are still there, but the record of what they have already processed is lost: files in the input folders may be sent once more.</source>
            <translation>O arquivo de configurações estava danificado e não pôde ser lido. Ele foi guardado como “$1”.

O Vantry Uploader começa com configurações vazias: informe novamente o login, o proxy e a senha de administrador em Admin. Suas tarefas continuam aí, mas o registro do que elas já processaram se perdeu: arquivos das pastas de entrada podem ser enviados mais uma vez.</translation>
        </message>
        <message id="VTULocalization.klStartFailed">
            <source>Vantry Uploader could not start and will close: $1

No files are being sent. Please start it again; if this message comes back, show it to your administrator.</source>
            <translation>O Vantry Uploader não pôde iniciar e será fechado: $1

Nenhum arquivo está sendo enviado. Inicie o programa novamente; se esta mensagem voltar, mostre-a ao administrador.</translation>
        </message>
        <message id="VTULocalization.klAlreadyRunning">
            <source>Vantry Uploader is already running. Please use its window.</source>
            <translation>O Vantry Uploader já está em execução. Use a janela dele.</translation>
        </message>
        <message id="VTULocalization.klWindowNotInBuild">
            <source>$1 is not part of this build yet.</source>
            <translation>$1: ainda não disponível nesta versão.</translation>
        </message>
        <message id="VTULocalization.klCopyFailedNote">
            <source> Copy not saved: $1</source>
            <translation> Cópia não salva: $1</translation>
        </message>
        <message id="VTULocalization.klDeleteFailedNote">
            <source> Input file not deleted: $1</source>
            <translation> Arquivo de entrada não excluído: $1</translation>
        </message>
        <message id="VTULocalization.klRunFailedNote">
            <source>Processing stopped: $1</source>
            <translation>Processamento interrompido: $1</translation>
        </message>
        <message id="VTULocalization.klSampleMatching">
            <source>$1 of $2 files match: $3</source>
            <translation>Arquivos correspondentes $1 de $2: $3</translation>
        </message>
        <message id="VTULocalization.klSampleOneOf">
            <source>1 of $1 files matches: $2</source>
            <translation>1 de $1 arquivos corresponde: $2</translation>
        </message>
        <message id="VTULocalization.klSampleNone">
            <source>None of the $1 files matches</source>
            <translation>Nenhum dos $1 arquivos corresponde</translation>
        </message>
        <message id="VTULocalization.klSampleOneMatches">
            <source>The only file matches: $1</source>
            <translation>O único arquivo corresponde: $1</translation>
        </message>
        <message id="VTULocalization.klSampleOneFails">
            <source>The only file doesn't match</source>
            <translation>O único arquivo não corresponde</translation>
        </message>
        <message id="VTULocalization.klSampleNoFiles">
            <source>There are no files in the input folder</source>
            <translation>Não há arquivos na pasta de entrada</translation>
        </message>
        <message id="VTULocalization.klSampleLooking">
            <source>Looking at the input folder...</source>
            <translation>Examinando a pasta de entrada...</translation>
        </message>
        <message id="VTULocalization.klSampleSlow">
            <source>The input folder is slow to answer, so there is no sample of its files</source>
            <translation>A pasta de entrada responde devagar, por isso falta a amostra dos arquivos</translation>
        </message>
        <message id="VTULocalization.klSampleFolderGone">
            <source>The input folder is not there</source>
            <translation>A pasta de entrada não existe</translation>
        </message>
        <message id="VTULocalization.klSampleFailed">
            <source>The input folder can't be read: $1</source>
            <translation>Não é possível ler a pasta de entrada: $1</translation>
        </message>
        <message id="VTULocalization.klSampleKeptOut">
            <source>Kept out:</source>
            <translation>Ficam de fora:</translation>
        </message>
        <message id="VTULocalization.klSampleAndMore">
            <source>and $1 more</source>
            <translation>e mais $1</translation>
        </message>
        <message id="VTULocalization.klSampleName">
            <source>What the rules select</source>
            <translation>O que as regras selecionam</translation>
        </message>
        <message id="VTULocalization.klWhyHidden">
            <source>hidden</source>
            <translation>oculto</translation>
        </message>
        <message id="VTULocalization.klWhyNotAFile">
            <source>not a plain file</source>
            <translation>não é um arquivo comum</translation>
        </message>
        <message id="VTULocalization.klWhyEnding">
            <source>another ending</source>
            <translation>outra extensão</translation>
        </message>
        <message id="VTULocalization.klWhyPattern">
            <source>doesn't fit the name pattern</source>
            <translation>não corresponde ao padrão de nome</translation>
        </message>
        <message id="VTULocalization.klWhyExcluded">
            <source>excluded</source>
            <translation>excluído pelas regras</translation>
        </message>
        <message id="VTULocalization.klWhyExclusionTooCostly">
            <source>the exclusion pattern takes too long on it</source>
            <translation>o padrão de exclusão demora demais</translation>
        </message>
        <message id="VTULocalization.klWhyEmpty">
            <source>empty</source>
            <translation>vazio</translation>
        </message>
        <message id="VTULocalization.klWhyOlder">
            <source>not changed since the last processed date</source>
            <translation>sem alteração desde o último processamento</translation>
        </message>
        <message id="VTULocalization.klWhyUnreadable">
            <source>can't be read</source>
            <translation>não pode ser lido</translation>
        </message>
        <message id="VTULocalization.klWhyStillMoving">
            <source>still being written</source>
            <translation>ainda sendo gravado</translation>
        </message>
        <message id="VTULocalization.klWhyDealtWith">
            <source>already processed</source>
            <translation>já processado</translation>
        </message>
        <message id="VTULocalization.klListFetching">
            <source>The list is being fetched from the service...</source>
            <translation>Obtendo a lista do serviço...</translation>
        </message>
        <message id="VTULocalization.klListFailed">
            <source>The list is empty because it could not be fetched from the service: $1</source>
            <translation>A lista está vazia porque não pôde ser obtida do serviço: $1</translation>
        </message>
        <message id="VTULocalization.klListRefused">
            <source>The list is empty because the service did not give it. Check the login under Admin.</source>
            <translation>A lista está vazia porque o serviço não a forneceu. Verifique o login em Admin.</translation>
        </message>
        <message id="VTULocalization.klListNoLogin">
            <source>The list is empty because no login is stored. Enter the service login under Admin.</source>
            <translation>A lista está vazia porque não há login salvo. Informe o login do serviço em Admin.</translation>
        </message>
        <message id="VTULocalization.klListNothingThere">
            <source>The service has nothing to choose from for this account.</source>
            <translation>O serviço não oferece nada para escolher nesta conta.</translation>
        </message>
        <message id="VTULocalization.klExclusionInvalid">
            <source>The file name exclusion is not a valid pattern: $1, at character $2</source>
            <translation>A exclusão por nome de arquivo não é um padrão válido: $1, no caractere $2</translation>
        </message>
        <message id="VTULocalization.klTaskNotSaved">
            <source>There was an error saving this task</source>
            <translation>Ocorreu um erro ao salvar esta tarefa</translation>
        </message>
        <message id="VTULocalization.klOldTaskNotRemoved">
            <source>The task was saved, but the file of its earlier settings could not be removed, so these will be back as a second task at the next start: $1</source>
            <translation>A tarefa foi salva, mas o arquivo com as configurações anteriores não pôde ser removido; elas voltarão como uma segunda tarefa no próximo início: $1</translation>
        </message>
        <message id="VTULocalization.klEditorFailed">
            <source>The task editor could not be opened: $1</source>
            <translation>O editor de tarefas não pôde ser aberto: $1</translation>
        </message>
        <message id="VTULocalization.klManualAddress">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>O navegador não pôde ser aberto. O manual está em $1</translation>
        </message>
        <message id="VTULocalization.klSameFolders">
            <source>The input and output folder cannot be the same</source>
            <translation>As pastas de entrada e de saída não podem ser a mesma</translation>
        </message>
        <message id="VTULocalization.klPleaseEnterAutoMountDetails">
            <source>Please enter the URL, the login and the password of the share first.</source>
            <translation>Informe primeiro a URL, o login e a senha do compartilhamento.</translation>
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
            <translation>Parar o teste de montagem</translation>
        </message>
        <message id="VTULocalization.klSelect">
            <source>Select</source>
            <translation>Selecionar</translation>
        </message>
        <message id="VTULocalization.klInputFolderPrompt">
            <source>Select the input folder for this task.
This is the folder that will be watched for new files.</source>
            <translation>Selecione a pasta de entrada desta tarefa.
Esta pasta será monitorada à espera de novos arquivos.</translation>
        </message>
        <message id="VTULocalization.klOutputFolderPrompt">
            <source>Select the output folder for this task.
This is the folder where processed files will be stored.</source>
            <translation>Selecione a pasta de saída desta tarefa.
Nesta pasta serão guardados os arquivos processados.</translation>
        </message>
        <message id="VTULocalization.klOutputFolder">
            <source>Output Folder</source>
            <translation>Pasta de saída</translation>
        </message>
        <message id="VTULocalization.klOutputFolderURL">
            <source>Output Folder URL</source>
            <translation>URL da pasta de saída</translation>
        </message>
        <message id="VTULocalization.klInputPassword">
            <source>Input Password</source>
            <translation>Senha de entrada</translation>
        </message>
        <message id="VTULocalization.klRegExCue">
            <source>RegEx</source>
            <translation>RegEx</translation>
        </message>
        <message id="VTULocalization.klFileRecognitionHelp">
            <source>Help on file name recognition</source>
            <translation>Ajuda sobre o reconhecimento de nomes de arquivo</translation>
        </message>
        <message id="VTULocalization.klRequired">
            <source>Required</source>
            <translation>Obrigatório</translation>
        </message>
        <message id="VTULocalization.klSetInputFolder">
            <source>Set the input folder</source>
            <translation>Definir a pasta de entrada</translation>
        </message>
        <message id="VTULocalization.klSetOutputFolder">
            <source>Set the output folder</source>
            <translation>Definir a pasta de saída</translation>
        </message>
        <message id="VTULocalization.klClearInputFolder">
            <source>Clear the input folder</source>
            <translation>Limpar a escolha da pasta de entrada</translation>
        </message>
        <message id="VTULocalization.klClearOutputFolder">
            <source>Clear the output folder</source>
            <translation>Limpar a escolha da pasta de saída</translation>
        </message>
        <message id="VTULocalization.klAutoMountInput">
            <source>Mount the input folder automatically</source>
            <translation>Montar a pasta de entrada automaticamente</translation>
        </message>
        <message id="VTULocalization.klAutoMountOutput">
            <source>Mount the output folder automatically</source>
            <translation>Montar a pasta de saída automaticamente</translation>
        </message>
        <message id="VTULocalization.klTestMountInput">
            <source>Test mounting the input folder</source>
            <translation>Testar a montagem da pasta de entrada</translation>
        </message>
        <message id="VTULocalization.klTestMountOutput">
            <source>Test mounting the output folder</source>
            <translation>Testar a montagem da pasta de saída</translation>
        </message>
        <message id="VTULocalization.klWhyNotSent">
            <source>Why was this file not sent?</source>
            <translation>Por que este arquivo não foi enviado?</translation>
        </message>
        <message id="VTULocalization.klWhyMenu">
            <source>Why was a file not sent?...</source>
            <translation>Por que um arquivo não foi enviado?...</translation>
        </message>
        <message id="VTULocalization.klWhyChoosePrompt">
            <source>Select the file that was not sent by the task &quot;$1&quot;.</source>
            <translation>Selecione o arquivo que a tarefa “$1” não enviou.</translation>
        </message>
        <message id="VTULocalization.klWhyHead">
            <source>&quot;$1&quot; and the task &quot;$2&quot;</source>
            <translation>“$1” e a tarefa “$2”</translation>
        </message>
        <message id="VTULocalization.klWhyAnswers">
            <source>Answers</source>
            <translation>Respostas</translation>
        </message>
        <message id="VTULocalization.klWhyLooking">
            <source>Looking at the file...</source>
            <translation>Examinando o arquivo...</translation>
        </message>
        <message id="VTULocalization.klWhySlow">
            <source>The file's folder does not answer. Check that the folder is connected.</source>
            <translation>A pasta do arquivo não responde. Verifique se a pasta está conectada.</translation>
        </message>
        <message id="VTULocalization.klWhyFailed">
            <source>The file's folder can't be read: $1</source>
            <translation>Não é possível ler a pasta do arquivo: $1</translation>
        </message>
        <message id="VTULocalization.klWhyOneFile">
            <source>Please drop one file at a time.</source>
            <translation>Solte um arquivo de cada vez.</translation>
        </message>
        <message id="VTULocalization.klWhyNotLocal">
            <source>A file at a network address can't be looked at. Drop it from the folder where the share is mounted, or right-click the task and choose the file there.</source>
            <translation>Não é possível examinar um arquivo em um endereço de rede. Arraste-o da pasta onde o compartilhamento está montado, ou clique com o botão direito na tarefa e escolha o arquivo ali.</translation>
        </message>
        <message id="VTULocalization.klWhyClose">
            <source>Close</source>
            <translation>Fechar</translation>
        </message>
        <message id="VTULocalization.klWhyYes">
            <source>All right</source>
            <translation>Em ordem</translation>
        </message>
        <message id="VTULocalization.klWhyNo">
            <source>Keeps it back</source>
            <translation>Retém o arquivo</translation>
        </message>
        <message id="VTULocalization.klWhyDue">
            <source>Nothing keeps it back: it goes out with the next run.</source>
            <translation>Nada o retém: será enviado na próxima passagem.</translation>
        </message>
        <message id="VTULocalization.klWhyNotDue">
            <source>It is not sent, for this reason:</source>
            <translation>Ele não é enviado por este motivo:</translation>
        </message>
        <message id="VTULocalization.klWhyNotDueSeveral">
            <source>It is not sent, for these $1 reasons:</source>
            <translation>Ele não é enviado por estes $1 motivos:</translation>
        </message>
        <message id="VTULocalization.klWhyReported">
            <source>The task reports: $1</source>
            <translation>A tarefa informa: $1</translation>
        </message>
        <message id="VTULocalization.klYesPlace">
            <source>It lies in the task's input folder.</source>
            <translation>Está na pasta de entrada da tarefa.</translation>
        </message>
        <message id="VTULocalization.klNoPlace">
            <source>It is not in the task's input folder, which is $1.</source>
            <translation>Não está na pasta de entrada da tarefa, que é $1.</translation>
        </message>
        <message id="VTULocalization.klYesEnabled">
            <source>The task is switched on.</source>
            <translation>A tarefa está ativada.</translation>
        </message>
        <message id="VTULocalization.klNoEnabled">
            <source>The task is disabled. Edit it and clear &quot;Disable Task&quot;.</source>
            <translation>A tarefa está desativada. Edite-a e desmarque “Desativar”.</translation>
        </message>
        <message id="VTULocalization.klNoFolders">
            <source>The task can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>A tarefa não consegue usar suas pastas. Verifique se as pastas de entrada e saída existem, estão conectadas e permitem gravação.</translation>
        </message>
        <message id="VTULocalization.klYesHidden">
            <source>It is not hidden.</source>
            <translation>Não está oculto.</translation>
        </message>
        <message id="VTULocalization.klNoHidden">
            <source>It is hidden, because its name begins with a dot.</source>
            <translation>Está oculto, porque seu nome começa com um ponto.</translation>
        </message>
        <message id="VTULocalization.klYesAFile">
            <source>It is a plain file.</source>
            <translation>É um arquivo comum.</translation>
        </message>
        <message id="VTULocalization.klNoAFile">
            <source>It is not a plain file, or it is no longer there.</source>
            <translation>Não é um arquivo comum, ou não existe mais.</translation>
        </message>
        <message id="VTULocalization.klYesEnding">
            <source>Its name ends in &quot;$1&quot;.</source>
            <translation>Seu nome termina em “$1”.</translation>
        </message>
        <message id="VTULocalization.klNoEnding">
            <source>Its name does not end in &quot;$1&quot;.</source>
            <translation>Seu nome não termina em “$1”.</translation>
        </message>
        <message id="VTULocalization.klYesPattern">
            <source>Its name fits the task's name pattern &quot;$1&quot;.</source>
            <translation>Seu nome corresponde ao padrão “$1” da tarefa.</translation>
        </message>
        <message id="VTULocalization.klNoPattern">
            <source>Its name does not fit the task's name pattern &quot;$1&quot;.</source>
            <translation>Seu nome não corresponde ao padrão “$1” da tarefa.</translation>
        </message>
        <message id="VTULocalization.klYesNoPattern">
            <source>The task takes every name with that ending.</source>
            <translation>A tarefa aceita qualquer nome com essa extensão.</translation>
        </message>
        <message id="VTULocalization.klNoNoPattern">
            <source>The ending of its name is not exactly &quot;$1&quot;.</source>
            <translation>A extensão do seu nome não é exatamente “$1”.</translation>
        </message>
        <message id="VTULocalization.klYesExcluded">
            <source>The exclusion pattern &quot;$1&quot; does not match its name.</source>
            <translation>O padrão de exclusão “$1” não corresponde ao seu nome.</translation>
        </message>
        <message id="VTULocalization.klYesNoExclusion">
            <source>The task excludes no names.</source>
            <translation>A tarefa não exclui nenhum nome.</translation>
        </message>
        <message id="VTULocalization.klNoExcluded">
            <source>The exclusion pattern &quot;$1&quot; matches its name.</source>
            <translation>O padrão de exclusão “$1” corresponde ao seu nome.</translation>
        </message>
        <message id="VTULocalization.klNoExclusionTooCostly">
            <source>The exclusion pattern &quot;$1&quot; takes too long on its name, so it is kept back. Simplify the pattern.</source>
            <translation>O padrão de exclusão “$1” demora demais com o seu nome, por isso ele é retido. Simplifique o padrão.</translation>
        </message>
        <message id="VTULocalization.klYesEmpty">
            <source>It is not empty.</source>
            <translation>Não está vazio.</translation>
        </message>
        <message id="VTULocalization.klNoEmpty">
            <source>It is empty. It is sent when it has content.</source>
            <translation>Está vazio. Será enviado quando tiver conteúdo.</translation>
        </message>
        <message id="VTULocalization.klYesReadable">
            <source>It can be read.</source>
            <translation>Pode ser lido.</translation>
        </message>
        <message id="VTULocalization.klNoReadable">
            <source>It can't be read. Check its permissions.</source>
            <translation>Não pode ser lido. Verifique suas permissões.</translation>
        </message>
        <message id="VTULocalization.klYesNewer">
            <source>It was changed at $1, and the task's last batch ended at $2.</source>
            <translation>Foi alterado em $1, e o último lote da tarefa terminou em $2.</translation>
        </message>
        <message id="VTULocalization.klYesNeverProcessed">
            <source>It was changed at $1, and the task has no last processed date.</source>
            <translation>Foi alterado em $1, e a tarefa ainda não tem data de processamento.</translation>
        </message>
        <message id="VTULocalization.klNoOlder">
            <source>It was last changed at $1, $3 before the task's last batch ended at $2. Save it anew, or edit the task and press &quot;Clear Process Date Stamp&quot; to send all files again.</source>
            <translation>Foi alterado pela última vez em $1, $3 antes do fim do último lote da tarefa, em $2. Salve-o novamente, ou edite a tarefa e clique em “Limpar data de processo” para enviar todos os arquivos outra vez.</translation>
        </message>
        <message id="VTULocalization.klYesDealtWith">
            <source>This version of it has not been processed yet.</source>
            <translation>Esta versão do arquivo ainda não foi processada.</translation>
        </message>
        <message id="VTULocalization.klNoDealtWith">
            <source>This version of it, changed at $1, was processed already. The log tells how that ended.</source>
            <translation>Esta versão do arquivo, alterada em $1, já foi processada. O registro informa o resultado.</translation>
        </message>
        <message id="VTULocalization.klYesAtRest">
            <source>It is at rest.</source>
            <translation>Não está mais sendo gravado.</translation>
        </message>
        <message id="VTULocalization.klNoAtRest">
            <source>It is still being written, or changed a moment ago. It is sent when it has been at rest for two seconds.</source>
            <translation>Ainda está sendo gravado ou acabou de ser alterado. Será enviado após dois segundos sem alterações.</translation>
        </message>
        <message id="VTULocalization.klFolderSilent">
            <source>&quot;$1&quot; does not answer yet. You can wait, choose another folder, or cancel.</source>
            <translation>“$1” ainda não responde. Você pode esperar, escolher outra pasta ou cancelar.</translation>
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
            <translation>$1 dias</translation>
        </message>
        <message id="VTULocalization.klAutoRefresh">
            <source>Auto Refresh</source>
            <translation>Atualização autom.</translation>
        </message>
        <message id="VTULocalization.klFailuresOnly">
            <source>Failures only</source>
            <translation>Só falhas</translation>
        </message>
        <message id="VTULocalization.klFind">
            <source>Find</source>
            <translation>Localizar</translation>
        </message>
        <message id="VTULocalization.klFindTip">
            <source>Shows the entries that hold this text in any column</source>
            <translation>Mostra as entradas que contêm este texto em qualquer coluna</translation>
        </message>
        <message id="VTULocalization.klFailuresOnlyTip">
            <source>Shows the entries of files that were not sent, or not kept whole</source>
            <translation>Mostra as entradas de arquivos que não foram enviados ou não foram guardados por inteiro</translation>
        </message>
        <message id="VTULocalization.klLogRows">
            <source>Log entries</source>
            <translation>Entradas do registro</translation>
        </message>
        <message id="VTULocalization.klLogDetails">
            <source>Details of the selected entry</source>
            <translation>Detalhes da entrada selecionada</translation>
        </message>
        <message id="VTULocalization.klLogDivider">
            <source>Divider between the lists</source>
            <translation>Divisor entre as listas</translation>
        </message>
        <message id="VTULocalization.klCopy">
            <source>Copy</source>
            <translation>Copiar</translation>
        </message>
        <message id="VTULocalization.klSendAgain">
            <source>Send Again</source>
            <translation>Enviar novamente</translation>
        </message>
        <message id="VTULocalization.klLogFailedRow">
            <source>Failed: $1</source>
            <translation>Falhou: $1</translation>
        </message>
        <message id="VTULocalization.klLogRowGone">
            <source>(deleted)</source>
            <translation>(excluída)</translation>
        </message>
        <message id="VTULocalization.klLogNone">
            <source>There is no log. $1</source>
            <translation>Não há registro. $1</translation>
        </message>
        <message id="VTULocalization.klLogUnreadable">
            <source>The log can't be read. $1</source>
            <translation>O registro não pode ser lido. $1</translation>
        </message>
        <message id="VTULocalization.klLogBusy">
            <source>The program is busy. Please try again in a moment.</source>
            <translation>O programa está ocupado. Tente novamente em um momento.</translation>
        </message>
        <message id="VTULocalization.klLogEmpty">
            <source>The log is empty.</source>
            <translation>O registro está vazio.</translation>
        </message>
        <message id="VTULocalization.klLogCleared">
            <source>The view is cleared. The log itself is unchanged: press &quot;Refresh Log&quot; to see it again.</source>
            <translation>A lista está limpa. O registro em si não mudou: pressione “Atualizar” para vê-lo novamente.</translation>
        </message>
        <message id="VTULocalization.klLogNoMatch">
            <source>No entry matches.</source>
            <translation>Nenhuma entrada corresponde.</translation>
        </message>
        <message id="VTULocalization.klLogNoRecords">
            <source>No records availble</source>
            <translation>Nenhuma entrada disponível</translation>
        </message>
        <message id="VTULocalization.klLogExporting">
            <source>Exporting to &quot;$1&quot;...</source>
            <translation>Exportando para “$1”...</translation>
        </message>
        <message id="VTULocalization.klLogNotExported">
            <source>The log was not exported safely. Under that name stands what was there before or the whole export, never a part of it.

$1</source>
            <translation>O registro não foi exportado com segurança. Com esse nome está o que havia antes ou a exportação inteira, nunca uma parte.

$1</translation>
        </message>
        <message id="VTULocalization.klLogRowsGone">
            <source>Some of the entries are no longer in the log. Press &quot;Refresh Log&quot; and export again.</source>
            <translation>Algumas entradas não estão mais no registro. Pressione “Atualizar” e exporte novamente.</translation>
        </message>
        <message id="VTULocalization.klLogStopExport">
            <source>The export is not finished. Do you want to close the window and cancel it?</source>
            <translation>A exportação não terminou. Deseja fechar a janela e cancelá-la?</translation>
        </message>
        <message id="VTULocalization.klLogCopyTooMany">
            <source>These are too many entries for the clipboard. Please use &quot;Export to txt&quot;.</source>
            <translation>São entradas demais para a área de transferência. Use “Exportar txt”.</translation>
        </message>
        <message id="VTULocalization.klSendAgainQuestion">
            <source>Do you want to send these files again?

$1

The date of each file is set to now, so that its task sends it with its next run.</source>
            <translation>Deseja enviar estes arquivos novamente?

$1

A data de cada arquivo passa a ser a atual, para que a tarefa o envie na próxima passagem.</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainQuestion">
            <source>Do you want to send this file again?

$1

Its date is set to now, so that its task sends it with its next run.</source>
            <translation>Deseja enviar este arquivo novamente?

$1

A data dele passa a ser a atual, para que a tarefa o envie na próxima passagem.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNotTaken">
            <source>No task that is switched on takes these files. They will wait until one does:

$1</source>
            <translation>Nenhuma tarefa ativa aceita estes arquivos. Eles esperarão até que uma aceite:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainNotTaken">
            <source>No task that is switched on takes this file. It will wait until one does:

$1</source>
            <translation>Nenhuma tarefa ativa aceita este arquivo. Ele esperará até que uma aceite:

$1</translation>
        </message>
        <message id="VTULocalization.klSendAgainMore">
            <source>and $1 more</source>
            <translation>e mais $1</translation>
        </message>
        <message id="VTULocalization.klSendAgainTooMany">
            <source>No more than 1,000 entries can be sent again at once.</source>
            <translation>Não é possível reenviar mais de 1.000 entradas de uma vez.</translation>
        </message>
        <message id="VTULocalization.klSendAgainNone">
            <source>None of these files is in its input folder any more.</source>
            <translation>Nenhum destes arquivos está mais na pasta de entrada.</translation>
        </message>
        <message id="VTULocalization.klSendAgainFailed">
            <source>These files are not sent again, because their date could not be set:

$1</source>
            <translation>Estes arquivos não serão enviados novamente, porque a data deles não pôde ser alterada:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainFailed">
            <source>This file is not sent again, because its date could not be set:

$1</source>
            <translation>Este arquivo não será enviado novamente, porque a data dele não pôde ser alterada:

$1</translation>
        </message>
        <message id="VTULocalization.klTestLineName">
            <source>Connection test</source>
            <translation>Teste de conexão</translation>
        </message>
        <message id="VTULocalization.klTestRunning">
            <source>Asking the service...</source>
            <translation>Consultando o serviço...</translation>
        </message>
        <message id="VTULocalization.klTestSucceeded">
            <source>The service took the login.</source>
            <translation>O serviço aceitou o login.</translation>
        </message>
        <message id="VTULocalization.klTestSucceededProxy">
            <source>The service took the login, by way of the proxy ($1).</source>
            <translation>O serviço aceitou o login, por meio do proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestSucceededNoPort">
            <source>The service took the login, but without the proxy: its port is not valid.</source>
            <translation>O serviço aceitou o login, mas sem o proxy: a porta não é válida.</translation>
        </message>
        <message id="VTULocalization.klTestErrorAnswered">
            <source>The service answered with an error.</source>
            <translation>O serviço respondeu com um erro.</translation>
        </message>
        <message id="VTULocalization.klTestNameUnknown">
            <source>No answer: the name of the service can't be found ($1).</source>
            <translation>Sem resposta: o nome do serviço não foi encontrado ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNameUnknown">
            <source>No answer: the name of the proxy can't be found ($1).</source>
            <translation>Sem resposta: o nome do proxy não foi encontrado ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotReached">
            <source>No answer: the service can't be reached ($1).</source>
            <translation>Sem resposta: não é possível acessar o serviço ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyNotReached">
            <source>No answer: the proxy can't be reached ($1).</source>
            <translation>Sem resposta: não é possível acessar o proxy ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyRefused">
            <source>No answer: the proxy did not connect to the service ($1).</source>
            <translation>Sem resposta: o proxy não se conectou ao serviço ($1).</translation>
        </message>
        <message id="VTULocalization.klTestTlsFailed">
            <source>No answer: no secure connection (TLS) with $1.</source>
            <translation>Sem resposta: não há conexão segura (TLS) com $1.</translation>
        </message>
        <message id="VTULocalization.klTestTimedOut">
            <source>No answer in time from the service ($1).</source>
            <translation>O serviço não respondeu a tempo ($1).</translation>
        </message>
        <message id="VTULocalization.klTestProxyTimedOut">
            <source>No answer in time from the proxy ($1).</source>
            <translation>O proxy não respondeu a tempo ($1).</translation>
        </message>
        <message id="VTULocalization.klTestBroken">
            <source>No answer: the connection broke off ($1).</source>
            <translation>Sem resposta: a conexão foi interrompida ($1).</translation>
        </message>
        <message id="VTULocalization.klTestNotTheService">
            <source>No answer of the service: something else answered.</source>
            <translation>Sem resposta do serviço: outra coisa respondeu.</translation>
        </message>
        <message id="VTULocalization.klBackupLineName">
            <source>Backup of the tasks</source>
            <translation>Backup das tarefas</translation>
        </message>
        <message id="VTULocalization.klBackupUnderWay">
            <source>Saving the tasks...</source>
            <translation>Salvando as tarefas...</translation>
        </message>
        <message id="VTULocalization.klBackupDone">
            <source>The tasks are saved.</source>
            <translation>As tarefas estão salvas.</translation>
        </message>
        <message id="VTULocalization.klRestoreUnderWay">
            <source>Loading the tasks...</source>
            <translation>Carregando as tarefas...</translation>
        </message>
        <message id="VTULocalization.klRestoreDone">
            <source>The tasks are loaded. They join the list when this window is closed.</source>
            <translation>As tarefas estão carregadas. Elas entram na lista quando esta janela é fechada.</translation>
        </message>
        <message id="VTULocalization.klBackupSlow">
            <source>The folder is slow to answer. Closing this window stops the copying.</source>
            <translation>A pasta responde devagar. Fechar esta janela interrompe a cópia.</translation>
        </message>
        <message id="VTULocalization.klBackupFailed">
            <source>These task files could not be saved:</source>
            <translation>Não foi possível salvar estes arquivos de tarefas:</translation>
        </message>
        <message id="VTULocalization.klRestoreFailed">
            <source>These task files could not be loaded:</source>
            <translation>Não foi possível carregar estes arquivos de tarefas:</translation>
        </message>
        <message id="VTULocalization.klCopyingStopped">
            <source>The copying was stopped, because the window was closed. These task files were not copied:</source>
            <translation>A cópia foi interrompida porque a janela foi fechada. Estes arquivos de tarefas não foram copiados:</translation>
        </message>
        <message id="VTULocalization.klNotBegun">
            <source>Earlier calls still wait for an answer. Please try again in a moment.</source>
            <translation>Consultas anteriores ainda aguardam resposta. Tente novamente em instantes.</translation>
        </message>
        <message id="VTULocalization.klAdminFailed">
            <source>The admin window could not be opened: $1</source>
            <translation>A janela Admin não pôde ser aberta: $1</translation>
        </message>
        <message id="VTULocalization.klTheProxy">
            <source>the proxy $1</source>
            <translation>proxy $1</translation>
        </message>
        <message id="VTULocalization.klAddressInvalid">
            <source>the address of the service is not valid</source>
            <translation>o endereço do serviço é inválido</translation>
        </message>
        <message id="VTULocalization.klHeaderInvalid">
            <source>a header of the request can't be written on one line</source>
            <translation>um cabeçalho da solicitação não cabe em uma linha</translation>
        </message>
        <message id="VTULocalization.klNameInvalid">
            <source>$1 has no valid host name</source>
            <translation>$1 não tem um nome de host válido</translation>
        </message>
        <message id="VTULocalization.klNameUnknown">
            <source>the name of $1 is not known: $2</source>
            <translation>o nome de $1 não é conhecido: $2</translation>
        </message>
        <message id="VTULocalization.klLookUpSlow">
            <source>the look-up of the name of $1 took too long</source>
            <translation>a resolução do nome de $1 demorou demais</translation>
        </message>
        <message id="VTULocalization.klLookUpsHang">
            <source>the name of $1 can't be looked up: earlier look-ups still hang</source>
            <translation>não é possível resolver o nome de $1: consultas anteriores ainda estão presas</translation>
        </message>
        <message id="VTULocalization.klConnectingSlow">
            <source>connecting to $1 took too long</source>
            <translation>a conexão com $1 demorou demais</translation>
        </message>
        <message id="VTULocalization.klNoConnection">
            <source>no connection to $1: $2</source>
            <translation>sem conexão com $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsLibraryFailed">
            <source>OpenSSL could not be set up</source>
            <translation>não foi possível preparar o OpenSSL</translation>
        </message>
        <message id="VTULocalization.klTlsNotSetUp">
            <source>TLS with $1 could not be set up</source>
            <translation>não foi possível preparar o TLS com $1</translation>
        </message>
        <message id="VTULocalization.klTlsSilent">
            <source>$1 did not answer in the TLS handshake</source>
            <translation>$1 não respondeu na negociação TLS</translation>
        </message>
        <message id="VTULocalization.klNoTlsConnection">
            <source>no TLS connection to $1: $2</source>
            <translation>sem conexão TLS com $1: $2</translation>
        </message>
        <message id="VTULocalization.klTlsError">
            <source>TLS error $1</source>
            <translation>erro TLS $1</translation>
        </message>
        <message id="VTULocalization.klItClosed">
            <source>it closed the connection</source>
            <translation>o outro lado fechou a conexão</translation>
        </message>
        <message id="VTULocalization.klCertificateRefused">
            <source>the certificate of $1 is not accepted: $2</source>
            <translation>o certificado de $1 não é aceito: $2</translation>
        </message>
        <message id="VTULocalization.klTrustFileUnusable">
            <source>the file of trusted certificates &quot;$1&quot; can't be used</source>
            <translation>o arquivo de certificados confiáveis “$1” não pode ser usado</translation>
        </message>
        <message id="VTULocalization.klRefusedWithStatus">
            <source>$1 refused with status $2</source>
            <translation>$1 recusou com o status $2</translation>
        </message>
        <message id="VTULocalization.klNoAnswerWithin">
            <source>$1 did not answer within $2 s</source>
            <translation>$1 não respondeu em $2 s</translation>
        </message>
        <message id="VTULocalization.klRequestNotTaken">
            <source>$1 did not take the whole request within $2 s</source>
            <translation>$1 não recebeu a solicitação inteira em $2 s</translation>
        </message>
        <message id="VTULocalization.klReplyStopped">
            <source>$1 fell silent in its reply for $2 s</source>
            <translation>$1 ficou em silêncio por $2 s no meio da resposta</translation>
        </message>
        <message id="VTULocalization.klConnectionBroke">
            <source>the connection to $1 broke: $2</source>
            <translation>a conexão com $1 caiu: $2</translation>
        </message>
        <message id="VTULocalization.klClosedConnection">
            <source>$1 closed the connection</source>
            <translation>$1 fechou a conexão</translation>
        </message>
        <message id="VTULocalization.klClosedInRequest">
            <source>$1 closed the connection before it had the whole request</source>
            <translation>$1 fechou a conexão antes de receber a solicitação inteira</translation>
        </message>
        <message id="VTULocalization.klClosedInReply">
            <source>$1 closed the connection before its reply was complete</source>
            <translation>$1 fechou a conexão antes de completar a resposta</translation>
        </message>
        <message id="VTULocalization.klAnsweredEarly">
            <source>$1 answered before it had the whole request</source>
            <translation>$1 respondeu antes de receber a solicitação inteira</translation>
        </message>
        <message id="VTULocalization.klReplyTooLarge">
            <source>the reply of $1 is too large</source>
            <translation>a resposta de $1 é grande demais</translation>
        </message>
        <message id="VTULocalization.klReplyBadLength">
            <source>$1 announced a reply of an impossible length</source>
            <translation>$1 anunciou uma resposta de tamanho impossível</translation>
        </message>
        <message id="VTULocalization.klContentShort">
            <source>the content could not be read to its end</source>
            <translation>o conteúdo não pôde ser lido até o fim</translation>
        </message>
        <message id="VTULocalization.klFileChanged">
            <source>the file changed before it was sent whole</source>
            <translation>o arquivo mudou antes de ser enviado por inteiro</translation>
        </message>
        <message id="VTULocalization.klNoFileToSend">
            <source>there is no file to send</source>
            <translation>não há arquivo para enviar</translation>
        </message>
        <message id="VTULocalization.klStopped">
            <source>stopped</source>
            <translation>interrompido</translation>
        </message>
        <message id="VTULocalization.klNoInputFolder">
            <source>the task has no input folder</source>
            <translation>a tarefa não tem pasta de entrada</translation>
        </message>
        <message id="EditTaskWindow.klAddDatetoFileName">
            <source>Add Date to File Name</source>
            <translation>Adicionar data ao nome</translation>
        </message>
        <message id="EditTaskWindow.klAutoRecognition">
            <source>Auto Recognition</source>
            <translation>Reconhecimento automático</translation>
        </message>
        <message id="EditTaskWindow.klDeleteFileAfterCopy">
            <source>Delete File After Copy</source>
            <translation>Excluir arquivo após copiar</translation>
        </message>
        <message id="EditTaskWindow.klExtension">
            <source>Extension</source>
            <translation>Extensão</translation>
        </message>
        <message id="EditTaskWindow.klFileNameExclusion">
            <source>File Name Exclusion</source>
            <translation>Exclusão por nome</translation>
        </message>
        <message id="EditTaskWindow.klFileNameRecognition">
            <source>File Name Recognition</source>
            <translation>Reconhecimento por nome</translation>
        </message>
        <message id="EditTaskWindow.klPrefix">
            <source>Prefix</source>
            <translation>Prefixo</translation>
        </message>
        <message id="EditTaskWindow.klSelectTrack">
            <source>Select Track</source>
            <translation>Escolher track</translation>
        </message>
        <message id="MainMenuBar.klFileMenu">
            <source>&amp;File</source>
            <translation>&amp;Arquivo</translation>
        </message>
        <message id="MainMenuBar.klFileAbout">
            <source>About Vantry Uploader...</source>
            <translation>Sobre o Vantry Uploader...</translation>
        </message>
        <message id="MainMenuBar.klFileQuit">
            <source>&amp;Quit</source>
            <translation>&amp;Sair</translation>
        </message>
        <message id="MainMenuBar.klEditMenu">
            <source>&amp;Edit</source>
            <translation>&amp;Editar</translation>
        </message>
        <message id="MainMenuBar.klEditUndo">
            <source>&amp;Undo</source>
            <translation>&amp;Desfazer</translation>
        </message>
        <message id="MainMenuBar.klEditCut">
            <source>Cu&amp;t</source>
            <translation>Recor&amp;tar</translation>
        </message>
        <message id="MainMenuBar.klEditCopy">
            <source>&amp;Copy</source>
            <translation>&amp;Copiar</translation>
        </message>
        <message id="MainMenuBar.klEditPaste">
            <source>&amp;Paste</source>
            <translation>Co&amp;lar</translation>
        </message>
        <message id="MainMenuBar.klEditClear">
            <source>&amp;Delete</source>
            <translation>&amp;Excluir</translation>
        </message>
        <message id="MainMenuBar.klEditSelectAll">
            <source>Select &amp;All</source>
            <translation>&amp;Selecionar tudo</translation>
        </message>
        <message id="MainMenuBar.klAboutTitle">
            <source>About</source>
            <translation>Sobre</translation>
        </message>
        <message id="VantryUtil.E002">
            <source>No patches found. Check instrument/software settings.</source>
            <translation>Nenhum patch encontrado. Verifique as configurações do instrumento e do software.</translation>
        </message>
        <message id="VantryUtil.E003">
            <source>Database connection issues. Check website/ server connection.</source>
            <translation>Problemas de conexão com o banco de dados. Verifique a conexão com o site e o servidor.</translation>
        </message>
        <message id="VantryUtil.E004">
            <source>Wrong measurement conditions - possible mismatch. Check both application and track/ tool preferences (M0, M1, M2, M3)</source>
            <translation>Condições de medição incorretas, possivelmente divergentes. Verifique as preferências do aplicativo e do track/da ferramenta (M0, M1, M2, M3)</translation>
        </message>
        <message id="VantryUtil.E005">
            <source>Wrong mode. Mode shall be either production or makeready.</source>
            <translation>Modo incorreto. O modo deve ser tiragem (production) ou acerto (makeready).</translation>
        </message>
        <message id="VantryUtil.E006">
            <source>Wrong backing. Backing shall be either white or black.</source>
            <translation>Base de medição incorreta. A base deve ser branca (white) ou preta (black).</translation>
        </message>
        <message id="VantryUtil.E007">
            <source>Filename cannot be empty.</source>
            <translation>O nome do arquivo não pode estar vazio.</translation>
        </message>
        <message id="VantryUtil.E008">
            <source>Requested track not found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>O track solicitado não foi encontrado. No reconhecimento automático, verifique as configurações: o aplicativo e o site devem coincidir exatamente.</translation>
        </message>
        <message id="VantryUtil.E009">
            <source>Wrong login/password combination. Note: SOAP protocol uses separate login/ password combination. Consult user manual to learn more.</source>
            <translation>Combinação de login e senha incorreta. Observação: o protocolo SOAP usa login e senha próprios. Consulte o manual.</translation>
        </message>
        <message id="VantryUtil.E010">
            <source>No tracks found.</source>
            <translation>Nenhum track encontrado.</translation>
        </message>
        <message id="VantryUtil.E011">
            <source>Spectral data missing.</source>
            <translation>Faltam os dados espectrais.</translation>
        </message>
        <message id="VantryUtil.E012">
            <source>Wrong color definition.</source>
            <translation>Definição de cor incorreta.</translation>
        </message>
        <message id="VantryUtil.E013">
            <source>Date format unrecognized.</source>
            <translation>Formato de data não reconhecido.</translation>
        </message>
        <message id="VantryUtil.E014">
            <source>Sheet number must be an integer.</source>
            <translation>O número da folha deve ser um inteiro.</translation>
        </message>
        <message id="VantryUtil.E015">
            <source>Unknown dryback value. (E015)</source>
            <translation>Valor de dryback desconhecido. (E015)</translation>
        </message>
        <message id="VantryUtil.E016">
            <source>User is registered on dedicated instance, API URL needs to be changed</source>
            <translation>O usuário está registrado em uma instância dedicada, é preciso alterar a URL da API</translation>
        </message>
        <message id="VantryUtil.E017">
            <source>Operator is not authenticated, please check Your login/password combination.</source>
            <translation>O operador não está autenticado, verifique o login e a senha.</translation>
        </message>
        <message id="VantryUtil.E018">
            <source>No devices found.</source>
            <translation>Nenhum dispositivo encontrado.</translation>
        </message>
        <message id="VantryUtil.E019">
            <source>Selected operator is not assigned to any of printing devices</source>
            <translation>O operador escolhido não está associado a nenhum dispositivo de impressão</translation>
        </message>
        <message id="VantryUtil.E020">
            <source>No Scanning Templates found</source>
            <translation>Nenhum modelo de medição encontrado</translation>
        </message>
        <message id="VantryUtil.E021">
            <source>No measurement tasks avaliable</source>
            <translation>Nenhuma tarefa de medição disponível</translation>
        </message>
        <message id="VantryUtil.E022">
            <source>Scanning Template not found</source>
            <translation>Modelo de medição não encontrado</translation>
        </message>
        <message id="VantryUtil.E023">
            <source>Control Strip not foundControl Strip not found</source>
            <translation>Tira de controle não encontrada</translation>
        </message>
        <message id="VantryUtil.E024">
            <source>Control Strip patches not found</source>
            <translation>Patches da tira de controle não encontrados</translation>
        </message>
        <message id="VantryUtil.E025">
            <source>Selected job does not belong to selected track</source>
            <translation>O trabalho escolhido não pertence ao track escolhido</translation>
        </message>
        <message id="VantryUtil.E026">
            <source>No jobs found</source>
            <translation>Nenhum trabalho encontrado</translation>
        </message>
        <message id="VantryUtil.E027">
            <source>Color Library/Palette not found</source>
            <translation>Biblioteca ou paleta de cores não encontrada</translation>
        </message>
        <message id="VantryUtil.E028">
            <source>No instruments found</source>
            <translation>Nenhum instrumento encontrado</translation>
        </message>
        <message id="VantryUtil.E102">
            <source>No Instrument - Target pair found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>Nenhum par de instrumento e carta de referência encontrado. No reconhecimento automático, verifique as configurações: o aplicativo e o site devem coincidir exatamente.</translation>
        </message>
        <message id="VantryUtil.E103">
            <source>Measured file does not have required list of patches.</source>
            <translation>O arquivo medido não contém a lista de patches exigida.</translation>
        </message>
        <message id="VantryUtil.EUnknownError">
            <source>Unknown Error</source>
            <translation>Erro desconhecido</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateOff">
            <source>Off</source>
            <translation>Inativa</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateProcessing">
            <source>Sending files</source>
            <translation>Enviando arquivos</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateReady">
            <source>Ready</source>
            <translation>Pronta</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateFault">
            <source>A folder is missing or can't be written</source>
            <translation>Falta uma pasta ou ela não permite gravação</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasks">
            <source>Tasks</source>
            <translation>Tarefas</translation>
        </message>
        <message id="VTUploaderMainWIndow.klHelp">
            <source>Help</source>
            <translation>Ajuda</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNoTasks">
            <source>There are no tasks yet. Press &quot;$1&quot; to set up the first one.</source>
            <translation>Ainda não há tarefas. Pressione “$1” para configurar a primeira.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskEditor">
            <source>The task editor</source>
            <translation>O editor de tarefas</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripAndMore">
            <source>(and $1 more)</source>
            <translation>(e mais $1)</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasksAboutToLoad">
            <source>The restored tasks are loaded as soon as the files under way are sent.</source>
            <translation>As tarefas restauradas são carregadas assim que os arquivos em andamento forem enviados.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripFolderFault">
            <source>Task &quot;$1&quot; can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>A tarefa “$1” não consegue usar suas pastas. Verifique se as pastas de entrada e saída existem, estão conectadas e permitem gravação.</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotDuplicated">
            <source>The task could not be duplicated: $1</source>
            <translation>A tarefa não pôde ser duplicada: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotRemoved">
            <source>The task is off the list, but its file could not be removed, so it will be back at the next start: $1</source>
            <translation>A tarefa saiu da lista, mas seu arquivo não pôde ser removido; ela voltará no próximo início: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klManualNotOpened">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>O navegador não pôde ser aberto. O manual está em $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNewVersion">
            <source>Version $1 is availble newer and availbale.
Would you like to downlownload it now?</source>
            <translation>Uma versão mais recente, $1, está disponível.
Deseja baixá-la agora?</translation>
        </message>
        <message id="VTUploaderMainWIndow.klDownloadNotOpened">
            <source>The download can't be opened from here. Its address is $1</source>
            <translation>Não é possível abrir o download daqui. O endereço dele é $1</translation>
        </message>
        <message id="Reasons.klListing">
            <source>listing $1</source>
            <translation>ao listar $1</translation>
        </message>
        <message id="Reasons.klReading">
            <source>reading $1</source>
            <translation>ao ler $1</translation>
        </message>
        <message id="Reasons.klWriting">
            <source>writing $1</source>
            <translation>ao gravar $1</translation>
        </message>
        <message id="Reasons.klCopying">
            <source>copying $1 to $2</source>
            <translation>ao copiar $1 para $2</translation>
        </message>
        <message id="Reasons.klRenaming">
            <source>renaming $1</source>
            <translation>ao renomear $1</translation>
        </message>
        <message id="Reasons.klRenamingTo">
            <source>renaming $1 to $2</source>
            <translation>ao renomear $1 para $2</translation>
        </message>
        <message id="Reasons.klSettingDate">
            <source>setting the date of $1</source>
            <translation>alteração da data de $1</translation>
        </message>
        <message id="Reasons.klDeleting">
            <source>deleting $1</source>
            <translation>ao excluir $1</translation>
        </message>
        <message id="Reasons.klMakingFolder">
            <source>making the folder $1</source>
            <translation>ao criar a pasta $1</translation>
        </message>
        <message id="Reasons.klFlushingFolder">
            <source>flushing the folder of $1</source>
            <translation>ao gravar em disco a pasta de $1</translation>
        </message>
        <message id="Reasons.klEnciphering">
            <source>enciphering $1</source>
            <translation>ao cifrar $1</translation>
        </message>
        <message id="Reasons.klWritingOver">
            <source>writing over $1, which could not be read</source>
            <translation>ao sobrescrever $1, que não pôde ser lido</translation>
        </message>
        <message id="Reasons.klSavingWithoutFile">
            <source>saving without a file</source>
            <translation>ao salvar sem arquivo</translation>
        </message>
        <message id="Reasons.klMakingIt">
            <source>making it</source>
            <translation>ao criar o arquivo</translation>
        </message>
        <message id="Reasons.klNotOurs">
            <source>it is not a settings file, or it is damaged</source>
            <translation>não é um arquivo de configurações, ou está danificado</translation>
        </message>
        <message id="Reasons.klOtherProgram">
            <source>it is damaged, or another program wrote it</source>
            <translation>está danificado, ou outro programa o gravou</translation>
        </message>
        <message id="Reasons.klNotAnObject">
            <source>its content is not a JSON object</source>
            <translation>seu conteúdo não é um objeto JSON</translation>
        </message>
        <message id="Reasons.klContentGone">
            <source>its content is gone</source>
            <translation>seu conteúdo desapareceu</translation>
        </message>
        <message id="Reasons.klEndCutOff">
            <source>its end is cut off</source>
            <translation>seu final está cortado</translation>
        </message>
        <message id="Reasons.klWriteProtected">
            <source>the file is write-protected</source>
            <translation>o arquivo está protegido contra gravação</translation>
        </message>
    </context>
</TS>
