<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
    <context>
        <name></name>
        <message id="VTULocalization.klAdmin">
            <source>Admin</source>
            <translation>管理</translation>
        </message>
        <message id="VTULocalization.klAdminLock">
            <source>Admin Lock</source>
            <translation>管理ロック</translation>
        </message>
        <message id="VTULocalization.klAdminPasswordRequired">
            <source>Admin Password Required</source>
            <translation>管理パスワードが必要です</translation>
        </message>
        <message id="VTULocalization.klAutoMount">
            <source>Auto Mount</source>
            <translation>自動マウント</translation>
        </message>
        <message id="VTULocalization.klBackup">
            <source>Backup</source>
            <translation>バックアップ</translation>
        </message>
        <message id="VTULocalization.klBackupDescription">
            <source>Select a directory where a backup of your tasks will be stored.</source>
            <translation>タスクのバックアップを保存するフォルダーを選択してください。</translation>
        </message>
        <message id="VTULocalization.klCancel">
            <source>Cancel</source>
            <translation>キャンセル</translation>
        </message>
        <message id="VTULocalization.klCheckandConnect">
            <source>Check and Connect</source>
            <translation>確認して接続</translation>
        </message>
        <message id="VTULocalization.klCheckForUpdates">
            <source>Check For Updates</source>
            <translation>更新の確認</translation>
        </message>
        <message id="VTULocalization.klClear">
            <source>Clear</source>
            <translation>クリア</translation>
        </message>
        <message id="VTULocalization.klClearLog">
            <source>Clear Log</source>
            <translation>表示をクリア</translation>
        </message>
        <message id="VTULocalization.klClearProcessDateStamp">
            <source>Clear Process Date Stamp</source>
            <translation>処理日時をクリア</translation>
        </message>
        <message id="VTULocalization.klCouldNotMount">
            <source>Error Mounting</source>
            <translation>マウントエラー</translation>
        </message>
        <message id="VTULocalization.klDeleteLog">
            <source>Delete Log History</source>
            <translation>ログ履歴を削除</translation>
        </message>
        <message id="VTULocalization.klDeleteTaskConfirmation">
            <source>Are you sure you want to delete this task?</source>
            <translation>このタスクを削除してもよろしいですか？</translation>
        </message>
        <message id="VTULocalization.klDisableTask">
            <source>Disable Task</source>
            <translation>無効にする</translation>
        </message>
        <message id="VTULocalization.klDuplicate">
            <source>Duplicate</source>
            <translation>複製</translation>
        </message>
        <message id="VTULocalization.klEdit">
            <source>Edit</source>
            <translation>編集</translation>
        </message>
        <message id="VTULocalization.klEditTask">
            <source>Edit Task</source>
            <translation>タスクの編集</translation>
        </message>
        <message id="VTULocalization.klEnteradminpassword">
            <source>Enter admin password</source>
            <translation>管理パスワードを入力</translation>
        </message>
        <message id="VTULocalization.klExporttotxt">
            <source>Export to txt</source>
            <translation>txtに書き出し</translation>
        </message>
        <message id="VTULocalization.klField">
            <source>Field</source>
            <translation>項目</translation>
        </message>
        <message id="VTULocalization.klFiles">
            <source>Files</source>
            <translation>件数</translation>
        </message>
        <message id="VTULocalization.klIncorrectPassword">
            <source>Incorrect Administrator Password Entered</source>
            <translation>入力された管理者パスワードが正しくありません</translation>
        </message>
        <message id="VTULocalization.klInputFolder">
            <source>Input Folder</source>
            <translation>入力フォルダー</translation>
        </message>
        <message id="VTULocalization.KLInputFolderURL">
            <source>Input Folder URL</source>
            <translation>入力フォルダーのURL</translation>
        </message>
        <message id="VTULocalization.klInputLogin">
            <source>Input Login</source>
            <translation>入力側ログイン名</translation>
        </message>
        <message id="VTULocalization.klWarden">
            <source>Warden</source>
            <translation>Warden</translation>
        </message>
        <message id="VTULocalization.klInstrument">
            <source>Instrument</source>
            <translation>測定器</translation>
        </message>
        <message id="VTULocalization.klLoad">
            <source>Load</source>
            <translation>読み込み</translation>
        </message>
        <message id="VTULocalization.klLoadConfiguration">
            <source>Load Configuration</source>
            <translation>構成を読み込む</translation>
        </message>
        <message id="VTULocalization.klLoadConfigurationDescription">
            <source>Select a folder containing a backup of uploader tasks to be restored.</source>
            <translation>復元するタスクのバックアップが入っているフォルダーを選択してください。</translation>
        </message>
        <message id="VTULocalization.klLocktasklist">
            <source>Lock task list</source>
            <translation>タスク一覧をロック</translation>
        </message>
        <message id="VTULocalization.klNA">
            <source>n/a</source>
            <translation>なし</translation>
        </message>
        <message id="VTULocalization.klNew">
            <source>New</source>
            <translation>新規</translation>
        </message>
        <message id="VTULocalization.klNoTasksToSave">
            <source>There are no tasks avaible to backup</source>
            <translation>バックアップするタスクがありません</translation>
        </message>
        <message id="VTULocalization.klOK">
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message id="VTULocalization.klOutputLogin">
            <source>Output Login</source>
            <translation>出力側ログイン名</translation>
        </message>
        <message id="VTULocalization.klOutputPassword">
            <source>Output Password</source>
            <translation>出力側パスワード</translation>
        </message>
        <message id="VTULocalization.klPassword">
            <source>Password</source>
            <translation>パスワード</translation>
        </message>
        <message id="VTULocalization.KLPrint">
            <source>Print</source>
            <translation>印刷</translation>
        </message>
        <message id="VTULocalization.klProxy">
            <source>Proxy</source>
            <translation>プロキシ</translation>
        </message>
        <message id="VTULocalization.klProxyAddress">
            <source>Proxy Address</source>
            <translation>プロキシアドレス</translation>
        </message>
        <message id="VTULocalization.klProxyPort">
            <source>Proxy Port</source>
            <translation>プロキシポート</translation>
        </message>
        <message id="VTULocalization.klReenteradminpassword">
            <source>Re-enter admin password</source>
            <translation>管理パスワードを再入力</translation>
        </message>
        <message id="VTULocalization.klRefreshLog">
            <source>Refresh Log</source>
            <translation>ログを更新</translation>
        </message>
        <message id="VTULocalization.klRemove">
            <source>Remove</source>
            <translation>削除</translation>
        </message>
        <message id="VTULocalization.klReplaceFileName">
            <source>Replace Name</source>
            <translation>名前を置き換える</translation>
        </message>
        <message id="VTULocalization.klSave">
            <source>Save</source>
            <translation>保存</translation>
        </message>
        <message id="VTULocalization.klSaveConfiguration">
            <source>Save Configuration</source>
            <translation>構成を保存</translation>
        </message>
        <message id="VTULocalization.klSelectBackupDirectory">
            <source>Backup Directory</source>
            <translation>バックアップフォルダー</translation>
        </message>
        <message id="VTULocalization.KLSelectInstrument">
            <source>Select Instrument</source>
            <translation>測定器を選択</translation>
        </message>
        <message id="VTULocalization.klSelectPress">
            <source>Select Press</source>
            <translation>印刷機を選択</translation>
        </message>
        <message id="VTULocalization.klSelectTarget">
            <source>Select Target</source>
            <translation>ターゲットを選択</translation>
        </message>
        <message id="VTULocalization.klSEt">
            <source>Set</source>
            <translation>設定</translation>
        </message>
        <message id="VTULocalization.klShowLog">
            <source>Show Log...</source>
            <translation>ログ表示...</translation>
        </message>
        <message id="VTULocalization.klSOAPConnection">
            <source>SOAP Connection</source>
            <translation>SOAP接続</translation>
        </message>
        <message id="VTULocalization.klSOAPLogin">
            <source>SOAP Login</source>
            <translation>SOAPログイン名</translation>
        </message>
        <message id="VTULocalization.klSoapPassword">
            <source>SOAP Password</source>
            <translation>SOAPパスワード</translation>
        </message>
        <message id="VTULocalization.klSoftwareUpToDate">
            <source>Your software is up to date</source>
            <translation>ソフトウェアは最新です</translation>
        </message>
        <message id="VTULocalization.klStatus">
            <source>Status</source>
            <translation>状態</translation>
        </message>
        <message id="VTULocalization.klSureYouWantToQuit">
            <source>Are you sure you want to quit?

Uploads will stop processing when the application quit.</source>
            <translation>終了してもよろしいですか？

アプリケーションを終了すると、アップロードの処理は停止します。</translation>
        </message>
        <message id="VTULocalization.klTaskCurrentlyProcessing">
            <source>This task is currently processing. Please try again in a moment</source>
            <translation>このタスクは処理中です。しばらくしてからもう一度お試しください。</translation>
        </message>
        <message id="VTULocalization.klTaskDescription">
            <source>Task Description</source>
            <translation>タスクの説明</translation>
        </message>
        <message id="VTULocalization.klTaskName">
            <source>Task Name</source>
            <translation>タスク名</translation>
        </message>
        <message id="VTULocalization.kltest">
            <source>Test</source>
            <translation>テスト</translation>
        </message>
        <message id="VTULocalization.klValue">
            <source>Value</source>
            <translation>値</translation>
        </message>
        <message id="VTULocalization.klVerifyDateStamp">
            <source>Are you sure you want to clear the last processed date?

This will force all files in the input folder to be processed regardless of age or if they have previously been processed.</source>
            <translation>最終処理日時をクリアしてもよろしいですか？

入力フォルダー内のすべてのファイルが、日時や処理済みかどうかに関係なく処理されます。</translation>
        </message>
        <message id="VTULocalization.klStripSending">
            <source>Sending $1: $2 ($3 %)</source>
            <translation>$1: $2 を送信中 ($3 %)</translation>
        </message>
        <message id="VTULocalization.klStripAllWell">
            <source>All is well since $1</source>
            <translation>$1 から正常に動作しています</translation>
        </message>
        <message id="VTULocalization.klStripConnecting">
            <source>Connecting to the service...</source>
            <translation>サービスに接続しています...</translation>
        </message>
        <message id="VTULocalization.klStripChecking">
            <source>Checking the input folders...</source>
            <translation>入力フォルダーを確認しています...</translation>
        </message>
        <message id="VTULocalization.klUploadingHeld">
            <source>Uploading is held until the task editor or the Admin window is closed and what was changed there is in force.</source>
            <translation>タスクエディターまたは管理ウィンドウが閉じられ、変更が反映されるまで、アップロードは停止します。</translation>
        </message>
        <message id="VTULocalization.klStripNoLogin">
            <source>No login is stored, so nothing can be sent. Enter the service login under Admin.</source>
            <translation>ログイン情報が保存されていないため、送信できません。「管理」でサービスのログイン情報を入力してください。</translation>
        </message>
        <message id="VTULocalization.klStripTaskFileSkipped">
            <source>Task file &quot;$1&quot; was skipped: $2. The other tasks run. Repair or remove the file and start the program again.</source>
            <translation>タスクファイル「$1」を読み飛ばしました: $2。ほかのタスクは動作しています。このファイルを修復または削除し、プログラムを再起動してください。</translation>
        </message>
        <message id="VTULocalization.klStripTaskFolderUnreadable">
            <source>The tasks can't be read, so nothing is sent: $2. Check the task folder and start the program again.</source>
            <translation>タスクを読み込めないため、何も送信されません: $2。タスクフォルダーを確認し、プログラムを再起動してください。</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesSetAside">
            <source>The settings file was damaged and is kept as &quot;$1&quot;. Enter the service login again under Admin.</source>
            <translation>設定ファイルが破損していたため、「$1」として保管しました。「管理」でサービスのログイン情報をもう一度入力してください。</translation>
        </message>
        <message id="VTULocalization.klStripPreferencesNotSaved">
            <source>The settings can't be saved: $2. Check the settings folder, its permissions and the space on its disk.</source>
            <translation>設定を保存できません: $2。設定フォルダー、そのアクセス権、ディスクの空き容量を確認してください。</translation>
        </message>
        <message id="VTULocalization.klStripLogSetAside">
            <source>The log was damaged and is kept as &quot;$1&quot;. A new log has begun; uploads are not affected.</source>
            <translation>ログが破損していたため、「$1」として保管しました。新しいログを開始しました。アップロードに影響はありません。</translation>
        </message>
        <message id="VTULocalization.klStripLogUnavailable">
            <source>Uploads go on, but nothing is logged: $2. When this is repaired, start the program again.</source>
            <translation>アップロードは続いていますが、ログに記録されていません: $2。解決したらプログラムを再起動してください。</translation>
        </message>
        <message id="VTULocalization.klStripLogRowLost">
            <source>Uploads go on, but an entry could not be logged: $2. Check the space on the disk.</source>
            <translation>アップロードは続いていますが、ログに記録できない項目がありました: $2。ディスクの空き容量を確認してください。</translation>
        </message>
        <message id="VTULocalization.klStripExclusionInvalid">
            <source>Task &quot;$1&quot; excludes no files, because its exclusion pattern is not valid: $2. Correct the pattern.</source>
            <translation>タスク「$1」の除外パターンが正しくないため、ファイルが除外されていません: $2。パターンを修正してください。</translation>
        </message>
        <message id="VTULocalization.klStripExclusionTooCostly">
            <source>Task &quot;$1&quot; keeps back &quot;$2&quot;, because its exclusion pattern takes too long on that name. Simplify the pattern.</source>
            <translation>タスク「$1」は「$2」を保留しています。除外パターンがこの名前に時間をかけすぎるためです。パターンを簡単にしてください。</translation>
        </message>
        <message id="VTULocalization.klStripInputFolderUnreadable">
            <source>Task &quot;$1&quot; can't read its input folder: $2. Check that the folder is there and connected.</source>
            <translation>タスク「$1」は入力フォルダーを読み取れません: $2。フォルダーがあり、接続されていることを確認してください。</translation>
        </message>
        <message id="VTULocalization.klStripFolderSilent">
            <source>The folders of task &quot;$1&quot; do not answer. The other tasks run, and this one goes on by itself when its server is back.</source>
            <translation>タスク「$1」のフォルダーが応答しません。ほかのタスクは動作しており、このタスクもサーバーが復帰すると自動的に再開します。</translation>
        </message>
        <message id="VTULocalization.klStripNothingMounted">
            <source>Task &quot;$1&quot; waits for the share at $2, where nothing is mounted. To use the folder as it is, set it anew in the task.</source>
            <translation>タスク「$1」は $2 の共有を待っていますが、そこには何もマウントされていません。このフォルダーをそのまま使うには、タスクで設定し直してください。</translation>
        </message>
        <message id="VTULocalization.klStripShareNotMounted">
            <source>The share $1 could not be mounted: $2. It is tried again after 10 minutes.</source>
            <translation>共有 $1 をマウントできませんでした: $2。10 分後に再試行します。</translation>
        </message>
        <message id="VTULocalization.klStripCopyFailed">
            <source>Task &quot;$1&quot; could not save a copy: $2. The input file was not deleted. Check the output folder.</source>
            <translation>タスク「$1」はコピーを保存できませんでした: $2。入力ファイルは削除されていません。出力フォルダーを確認してください。</translation>
        </message>
        <message id="VTULocalization.klStripDeleteFailed">
            <source>Task &quot;$1&quot; sent a file but could not delete it: $2. Check the permissions of the input folder and delete the file yourself.</source>
            <translation>タスク「$1」はファイルを送信しましたが、削除できませんでした: $2。入力フォルダーのアクセス権を確認し、ファイルを手動で削除してください。</translation>
        </message>
        <message id="VTULocalization.klStripUploadFailed">
            <source>Task &quot;$1&quot; could not send a file: $2. When this is repaired, save the file into the input folder again.</source>
            <translation>タスク「$1」はファイルを送信できませんでした: $2。解決したら、ファイルを入力フォルダーにもう一度保存してください。</translation>
        </message>
        <message id="VTULocalization.klStripFileWaits">
            <source>Task &quot;$1&quot; can't read a file at the moment: $2. It is tried again by itself.</source>
            <translation>タスク「$1」は現在ファイルを読み取れません: $2。自動的に再試行されます。</translation>
        </message>
        <message id="VTULocalization.klStripRunFailed">
            <source>Task &quot;$1&quot; was stopped by a fault: $2. It is tried again by itself; if this line stays, start the program again.</source>
            <translation>タスク「$1」はエラーで停止しました: $2。自動的に再試行されます。この表示が消えない場合は、プログラムを再起動してください。</translation>
        </message>
        <message id="VTULocalization.klStripServiceUnreachable">
            <source>The service can't be reached: $2. It is tried again by itself; check the network and the proxy settings.</source>
            <translation>サービスに接続できません: $2。自動的に再試行されます。ネットワークとプロキシの設定を確認してください。</translation>
        </message>
        <message id="VTULocalization.klStripServiceRefuses">
            <source>The service answers with an error: $2. It is asked again by itself; check the login under Admin.</source>
            <translation>サービスがエラーを返しました: $2。自動的に再試行されます。「管理」でログイン情報を確認してください。</translation>
        </message>
        <message id="VTULocalization.klMountNoSession">
            <source>there is no desktop session with a mount service</source>
            <translation>マウントサービスのあるデスクトップセッションがありません</translation>
        </message>
        <message id="VTULocalization.klMountLoginRefused">
            <source>the server refuses the login</source>
            <translation>サーバーがログインを拒否しました</translation>
        </message>
        <message id="VTULocalization.klMountQuestion">
            <source>the server's key or certificate is not trusted; open it once in the file manager, or install its certificate</source>
            <translation>サーバーの鍵または証明書が信頼されていません。ファイルマネージャーで一度開くか、証明書をインストールしてください</translation>
        </message>
        <message id="VTULocalization.klMountUnreachable">
            <source>the server can't be reached</source>
            <translation>サーバーに接続できません</translation>
        </message>
        <message id="VTULocalization.klMountNotThere">
            <source>the server has no such share or folder</source>
            <translation>サーバーにその共有またはフォルダーがありません</translation>
        </message>
        <message id="VTULocalization.klMountTimedOut">
            <source>the server does not answer</source>
            <translation>サーバーが応答しません</translation>
        </message>
        <message id="VTULocalization.klMountNotSupported">
            <source>no installed program mounts that kind of address</source>
            <translation>この種類のアドレスをマウントできるプログラムがインストールされていません</translation>
        </message>
        <message id="VTULocalization.klMountNoFolder">
            <source>it is mounted, but not shown as a folder; name a share in the address, or install gvfs-fuse and log in again</source>
            <translation>マウントされていますが、フォルダーとして表示されません。アドレスに共有名を含めるか、gvfs-fuse をインストールして、ログインし直してください</translation>
        </message>
        <message id="VTULocalization.klMountServiceEnded">
            <source>the mount service broke down over it; check the address and the login</source>
            <translation>マウントサービスが異常終了しました。アドレスとログインを確認してください</translation>
        </message>
        <message id="VTULocalization.klMountFailed">
            <source>error $1</source>
            <translation>エラー $1</translation>
        </message>
        <message id="VTULocalization.klPreferencesSetAside">
            <source>The settings file was damaged and could not be read. It is kept as &quot;$1&quot;.

Vantry Uploader starts with empty settings: please enter the login, the proxy and the administrator password again under Admin. Your tasks are still there, but the record of what they have already processed is lost: files in the input folders may be sent once more.</source>
            <translation>設定ファイルが破損していて読み取れませんでした。「$1」として保管しました。

Vantry Uploader は空の設定で起動します。「管理」でログイン情報、プロキシ、管理者パスワードをもう一度入力してください。タスクは残っていますが、処理済みの記録は失われています。入力フォルダーのファイルがもう一度送信されることがあります。</translation>
        </message>
        <message id="VTULocalization.klStartFailed">
            <source>Vantry Uploader could not start and will close: $1

No files are being sent. Please start it again; if this message comes back, show it to your administrator.</source>
            <translation>Vantry Uploader を起動できなかったため、終了します: $1

ファイルは送信されていません。もう一度起動してください。このメッセージがまた表示される場合は、管理者に見せてください。</translation>
        </message>
        <message id="VTULocalization.klAlreadyRunning">
            <source>Vantry Uploader is already running. Please use its window.</source>
            <translation>Vantry Uploader はすでに起動しています。そのウィンドウをお使いください。</translation>
        </message>
        <message id="VTULocalization.klWindowNotInBuild">
            <source>$1 is not part of this build yet.</source>
            <translation>$1はこのバージョンにはまだ含まれていません。</translation>
        </message>
        <message id="VTULocalization.klCopyFailedNote">
            <source> Copy not saved: $1</source>
            <translation> コピーを保存できません: $1</translation>
        </message>
        <message id="VTULocalization.klDeleteFailedNote">
            <source> Input file not deleted: $1</source>
            <translation> 入力ファイルを削除できません: $1</translation>
        </message>
        <message id="VTULocalization.klRunFailedNote">
            <source>Processing stopped: $1</source>
            <translation>処理を停止しました: $1</translation>
        </message>
        <message id="VTULocalization.klSampleMatching">
            <source>$1 of $2 files match: $3</source>
            <translation>$2 ファイル中 $1 ファイルが該当: $3</translation>
        </message>
        <message id="VTULocalization.klSampleOneOf">
            <source>1 of $1 files matches: $2</source>
            <translation>$1 ファイル中 1 ファイルが該当: $2</translation>
        </message>
        <message id="VTULocalization.klSampleNone">
            <source>None of the $1 files matches</source>
            <translation>$1 ファイルのうち該当するものはありません</translation>
        </message>
        <message id="VTULocalization.klSampleOneMatches">
            <source>The only file matches: $1</source>
            <translation>唯一のファイルが該当: $1</translation>
        </message>
        <message id="VTULocalization.klSampleOneFails">
            <source>The only file doesn't match</source>
            <translation>唯一のファイルは該当しません</translation>
        </message>
        <message id="VTULocalization.klSampleNoFiles">
            <source>There are no files in the input folder</source>
            <translation>入力フォルダーにファイルがありません</translation>
        </message>
        <message id="VTULocalization.klSampleLooking">
            <source>Looking at the input folder...</source>
            <translation>入力フォルダーを調べています...</translation>
        </message>
        <message id="VTULocalization.klSampleSlow">
            <source>The input folder is slow to answer, so there is no sample of its files</source>
            <translation>入力フォルダーの応答が遅いため、ファイルの例を表示できません</translation>
        </message>
        <message id="VTULocalization.klSampleFolderGone">
            <source>The input folder is not there</source>
            <translation>入力フォルダーがありません</translation>
        </message>
        <message id="VTULocalization.klSampleFailed">
            <source>The input folder can't be read: $1</source>
            <translation>入力フォルダーを読み取れません: $1</translation>
        </message>
        <message id="VTULocalization.klSampleKeptOut">
            <source>Kept out:</source>
            <translation>対象外:</translation>
        </message>
        <message id="VTULocalization.klSampleAndMore">
            <source>and $1 more</source>
            <translation>ほか $1 件</translation>
        </message>
        <message id="VTULocalization.klSampleName">
            <source>What the rules select</source>
            <translation>ルールで選ばれるファイル</translation>
        </message>
        <message id="VTULocalization.klWhyHidden">
            <source>hidden</source>
            <translation>隠しファイル</translation>
        </message>
        <message id="VTULocalization.klWhyNotAFile">
            <source>not a plain file</source>
            <translation>通常のファイルではない</translation>
        </message>
        <message id="VTULocalization.klWhyEnding">
            <source>another ending</source>
            <translation>拡張子が違う</translation>
        </message>
        <message id="VTULocalization.klWhyPattern">
            <source>doesn't fit the name pattern</source>
            <translation>名前のパターンに合わない</translation>
        </message>
        <message id="VTULocalization.klWhyExcluded">
            <source>excluded</source>
            <translation>除外</translation>
        </message>
        <message id="VTULocalization.klWhyExclusionTooCostly">
            <source>the exclusion pattern takes too long on it</source>
            <translation>除外パターンに時間がかかりすぎる</translation>
        </message>
        <message id="VTULocalization.klWhyEmpty">
            <source>empty</source>
            <translation>空</translation>
        </message>
        <message id="VTULocalization.klWhyOlder">
            <source>not changed since the last processed date</source>
            <translation>最終処理日時以降に変更されていない</translation>
        </message>
        <message id="VTULocalization.klWhyUnreadable">
            <source>can't be read</source>
            <translation>読み取れない</translation>
        </message>
        <message id="VTULocalization.klWhyStillMoving">
            <source>still being written</source>
            <translation>書き込み中</translation>
        </message>
        <message id="VTULocalization.klWhyDealtWith">
            <source>already processed</source>
            <translation>処理済み</translation>
        </message>
        <message id="VTULocalization.klListFetching">
            <source>The list is being fetched from the service...</source>
            <translation>サービスから一覧を取得しています...</translation>
        </message>
        <message id="VTULocalization.klListFailed">
            <source>The list is empty because it could not be fetched from the service: $1</source>
            <translation>サービスから取得できなかったため、一覧は空です: $1</translation>
        </message>
        <message id="VTULocalization.klListRefused">
            <source>The list is empty because the service did not give it. Check the login under Admin.</source>
            <translation>サービスが応じなかったため、一覧は空です。「管理」でログイン情報を確認してください。</translation>
        </message>
        <message id="VTULocalization.klListNoLogin">
            <source>The list is empty because no login is stored. Enter the service login under Admin.</source>
            <translation>ログイン情報が保存されていないため、一覧は空です。「管理」でサービスのログイン情報を入力してください。</translation>
        </message>
        <message id="VTULocalization.klListNothingThere">
            <source>The service has nothing to choose from for this account.</source>
            <translation>このアカウントで選択できるものがサービスにありません。</translation>
        </message>
        <message id="VTULocalization.klExclusionInvalid">
            <source>The file name exclusion is not a valid pattern: $1, at character $2</source>
            <translation>ファイル名の除外が正しいパターンではありません: $1 ($2 文字目)</translation>
        </message>
        <message id="VTULocalization.klTaskNotSaved">
            <source>There was an error saving this task</source>
            <translation>このタスクの保存中にエラーが発生しました</translation>
        </message>
        <message id="VTULocalization.klOldTaskNotRemoved">
            <source>The task was saved, but the file of its earlier settings could not be removed, so these will be back as a second task at the next start: $1</source>
            <translation>タスクは保存されましたが、以前の設定のファイルを削除できませんでした。次回の起動時に、以前の設定が2つ目のタスクとして現れます: $1</translation>
        </message>
        <message id="VTULocalization.klEditorFailed">
            <source>The task editor could not be opened: $1</source>
            <translation>タスクエディターを開けませんでした: $1</translation>
        </message>
        <message id="VTULocalization.klManualAddress">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>ブラウザーを開けませんでした。マニュアルは $1 にあります</translation>
        </message>
        <message id="VTULocalization.klSameFolders">
            <source>The input and output folder cannot be the same</source>
            <translation>入力フォルダーと出力フォルダーを同じにすることはできません</translation>
        </message>
        <message id="VTULocalization.klPleaseEnterAutoMountDetails">
            <source>Please enter the URL, the login and the password of the share first.</source>
            <translation>先に共有の URL、ログイン名、パスワードを入力してください。</translation>
        </message>
        <message id="VTULocalization.klMountReason">
            <source>$1.</source>
            <translation>$1。</translation>
        </message>
        <message id="VTULocalization.klStop">
            <source>Stop</source>
            <translation>停止</translation>
        </message>
        <message id="VTULocalization.klStopMountTest">
            <source>Stop the mount test</source>
            <translation>マウントテストを停止</translation>
        </message>
        <message id="VTULocalization.klSelect">
            <source>Select</source>
            <translation>選択</translation>
        </message>
        <message id="VTULocalization.klInputFolderPrompt">
            <source>Select the input folder for this task.
This is the folder that will be watched for new files.</source>
            <translation>このタスクの入力フォルダーを選択してください。
このフォルダーで新しいファイルを監視します。</translation>
        </message>
        <message id="VTULocalization.klOutputFolderPrompt">
            <source>Select the output folder for this task.
This is the folder where processed files will be stored.</source>
            <translation>このタスクの出力フォルダーを選択してください。
処理済みのファイルはこのフォルダーに保存されます。</translation>
        </message>
        <message id="VTULocalization.klOutputFolder">
            <source>Output Folder</source>
            <translation>出力フォルダー</translation>
        </message>
        <message id="VTULocalization.klOutputFolderURL">
            <source>Output Folder URL</source>
            <translation>出力フォルダーのURL</translation>
        </message>
        <message id="VTULocalization.klInputPassword">
            <source>Input Password</source>
            <translation>入力側パスワード</translation>
        </message>
        <message id="VTULocalization.klRegExCue">
            <source>RegEx</source>
            <translation>正規表現</translation>
        </message>
        <message id="VTULocalization.klFileRecognitionHelp">
            <source>Help on file name recognition</source>
            <translation>ファイル名の認識についてのヘルプ</translation>
        </message>
        <message id="VTULocalization.klRequired">
            <source>Required</source>
            <translation>必須</translation>
        </message>
        <message id="VTULocalization.klSetInputFolder">
            <source>Set the input folder</source>
            <translation>入力フォルダーを設定</translation>
        </message>
        <message id="VTULocalization.klSetOutputFolder">
            <source>Set the output folder</source>
            <translation>出力フォルダーを設定</translation>
        </message>
        <message id="VTULocalization.klClearInputFolder">
            <source>Clear the input folder</source>
            <translation>入力フォルダーの選択をクリア</translation>
        </message>
        <message id="VTULocalization.klClearOutputFolder">
            <source>Clear the output folder</source>
            <translation>出力フォルダーの選択をクリア</translation>
        </message>
        <message id="VTULocalization.klAutoMountInput">
            <source>Mount the input folder automatically</source>
            <translation>入力フォルダーを自動的にマウント</translation>
        </message>
        <message id="VTULocalization.klAutoMountOutput">
            <source>Mount the output folder automatically</source>
            <translation>出力フォルダーを自動的にマウント</translation>
        </message>
        <message id="VTULocalization.klTestMountInput">
            <source>Test mounting the input folder</source>
            <translation>入力フォルダーのマウントをテスト</translation>
        </message>
        <message id="VTULocalization.klTestMountOutput">
            <source>Test mounting the output folder</source>
            <translation>出力フォルダーのマウントをテスト</translation>
        </message>
        <message id="VTULocalization.klWhyNotSent">
            <source>Why was this file not sent?</source>
            <translation>このファイルが送信されなかった理由</translation>
        </message>
        <message id="VTULocalization.klWhyMenu">
            <source>Why was a file not sent?...</source>
            <translation>ファイルが送信されなかった理由...</translation>
        </message>
        <message id="VTULocalization.klWhyChoosePrompt">
            <source>Select the file that was not sent by the task &quot;$1&quot;.</source>
            <translation>タスク「$1」で送信されなかったファイルを選択してください。</translation>
        </message>
        <message id="VTULocalization.klWhyHead">
            <source>&quot;$1&quot; and the task &quot;$2&quot;</source>
            <translation>「$1」とタスク「$2」</translation>
        </message>
        <message id="VTULocalization.klWhyAnswers">
            <source>Answers</source>
            <translation>回答</translation>
        </message>
        <message id="VTULocalization.klWhyLooking">
            <source>Looking at the file...</source>
            <translation>ファイルを調べています...</translation>
        </message>
        <message id="VTULocalization.klWhySlow">
            <source>The file's folder does not answer. Check that the folder is connected.</source>
            <translation>ファイルのフォルダーが応答しません。フォルダーが接続されていることを確認してください。</translation>
        </message>
        <message id="VTULocalization.klWhyFailed">
            <source>The file's folder can't be read: $1</source>
            <translation>ファイルのフォルダーを読み取れません: $1</translation>
        </message>
        <message id="VTULocalization.klWhyOneFile">
            <source>Please drop one file at a time.</source>
            <translation>ファイルは1つずつドロップしてください。</translation>
        </message>
        <message id="VTULocalization.klWhyNotLocal">
            <source>A file at a network address can't be looked at. Drop it from the folder where the share is mounted, or right-click the task and choose the file there.</source>
            <translation>ネットワークアドレスのファイルは確認できません。共有がマウントされているフォルダーからドロップするか、タスクを右クリックしてファイルを選択してください。</translation>
        </message>
        <message id="VTULocalization.klWhyClose">
            <source>Close</source>
            <translation>閉じる</translation>
        </message>
        <message id="VTULocalization.klWhyYes">
            <source>All right</source>
            <translation>問題なし</translation>
        </message>
        <message id="VTULocalization.klWhyNo">
            <source>Keeps it back</source>
            <translation>保留の原因</translation>
        </message>
        <message id="VTULocalization.klWhyDue">
            <source>Nothing keeps it back: it goes out with the next run.</source>
            <translation>保留の原因はありません。次の実行で送信されます。</translation>
        </message>
        <message id="VTULocalization.klWhyNotDue">
            <source>It is not sent, for this reason:</source>
            <translation>次の理由で送信されません:</translation>
        </message>
        <message id="VTULocalization.klWhyNotDueSeveral">
            <source>It is not sent, for these $1 reasons:</source>
            <translation>次の $1 つの理由で送信されません:</translation>
        </message>
        <message id="VTULocalization.klWhyReported">
            <source>The task reports: $1</source>
            <translation>タスクからの報告: $1</translation>
        </message>
        <message id="VTULocalization.klYesPlace">
            <source>It lies in the task's input folder.</source>
            <translation>タスクの入力フォルダーにあります。</translation>
        </message>
        <message id="VTULocalization.klNoPlace">
            <source>It is not in the task's input folder, which is $1.</source>
            <translation>タスクの入力フォルダー $1 にありません。</translation>
        </message>
        <message id="VTULocalization.klYesEnabled">
            <source>The task is switched on.</source>
            <translation>タスクは有効です。</translation>
        </message>
        <message id="VTULocalization.klNoEnabled">
            <source>The task is disabled. Edit it and clear &quot;Disable Task&quot;.</source>
            <translation>タスクは無効です。タスクを編集し、「無効にする」のチェックを外してください。</translation>
        </message>
        <message id="VTULocalization.klNoFolders">
            <source>The task can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>タスクはフォルダーを使用できません。入力フォルダーと出力フォルダーがあり、接続され、書き込めることを確認してください。</translation>
        </message>
        <message id="VTULocalization.klYesHidden">
            <source>It is not hidden.</source>
            <translation>隠しファイルではありません。</translation>
        </message>
        <message id="VTULocalization.klNoHidden">
            <source>It is hidden, because its name begins with a dot.</source>
            <translation>名前がドットで始まるため、隠しファイルです。</translation>
        </message>
        <message id="VTULocalization.klYesAFile">
            <source>It is a plain file.</source>
            <translation>通常のファイルです。</translation>
        </message>
        <message id="VTULocalization.klNoAFile">
            <source>It is not a plain file, or it is no longer there.</source>
            <translation>通常のファイルではないか、もう存在しません。</translation>
        </message>
        <message id="VTULocalization.klYesEnding">
            <source>Its name ends in &quot;$1&quot;.</source>
            <translation>名前が「$1」で終わっています。</translation>
        </message>
        <message id="VTULocalization.klNoEnding">
            <source>Its name does not end in &quot;$1&quot;.</source>
            <translation>名前が「$1」で終わっていません。</translation>
        </message>
        <message id="VTULocalization.klYesPattern">
            <source>Its name fits the task's name pattern &quot;$1&quot;.</source>
            <translation>名前がタスクの名前パターン「$1」に合っています。</translation>
        </message>
        <message id="VTULocalization.klNoPattern">
            <source>Its name does not fit the task's name pattern &quot;$1&quot;.</source>
            <translation>名前がタスクの名前パターン「$1」に合っていません。</translation>
        </message>
        <message id="VTULocalization.klYesNoPattern">
            <source>The task takes every name with that ending.</source>
            <translation>この拡張子なら、タスクはどの名前でも受け付けます。</translation>
        </message>
        <message id="VTULocalization.klNoNoPattern">
            <source>The ending of its name is not exactly &quot;$1&quot;.</source>
            <translation>名前の拡張子が正確に「$1」ではありません。</translation>
        </message>
        <message id="VTULocalization.klYesExcluded">
            <source>The exclusion pattern &quot;$1&quot; does not match its name.</source>
            <translation>除外パターン「$1」は名前に一致しません。</translation>
        </message>
        <message id="VTULocalization.klYesNoExclusion">
            <source>The task excludes no names.</source>
            <translation>タスクは名前を除外しません。</translation>
        </message>
        <message id="VTULocalization.klNoExcluded">
            <source>The exclusion pattern &quot;$1&quot; matches its name.</source>
            <translation>除外パターン「$1」が名前に一致します。</translation>
        </message>
        <message id="VTULocalization.klNoExclusionTooCostly">
            <source>The exclusion pattern &quot;$1&quot; takes too long on its name, so it is kept back. Simplify the pattern.</source>
            <translation>除外パターン「$1」が名前に時間をかけすぎるため、保留されています。パターンを簡単にしてください。</translation>
        </message>
        <message id="VTULocalization.klYesEmpty">
            <source>It is not empty.</source>
            <translation>空ではありません。</translation>
        </message>
        <message id="VTULocalization.klNoEmpty">
            <source>It is empty. It is sent when it has content.</source>
            <translation>空です。内容が入ると送信されます。</translation>
        </message>
        <message id="VTULocalization.klYesReadable">
            <source>It can be read.</source>
            <translation>読み取れます。</translation>
        </message>
        <message id="VTULocalization.klNoReadable">
            <source>It can't be read. Check its permissions.</source>
            <translation>読み取れません。アクセス権を確認してください。</translation>
        </message>
        <message id="VTULocalization.klYesNewer">
            <source>It was changed at $1, and the task's last batch ended at $2.</source>
            <translation>$1 に変更され、タスクの前回のバッチは $2 に終わりました。</translation>
        </message>
        <message id="VTULocalization.klYesNeverProcessed">
            <source>It was changed at $1, and the task has no last processed date.</source>
            <translation>$1 に変更され、タスクにはまだ処理日時がありません。</translation>
        </message>
        <message id="VTULocalization.klNoOlder">
            <source>It was last changed at $1, $3 before the task's last batch ended at $2. Save it anew, or edit the task and press &quot;Clear Process Date Stamp&quot; to send all files again.</source>
            <translation>最後に変更されたのは $1 で、タスクの前回のバッチが終わった $2 より $3前です。ファイルを保存し直すか、タスクを編集して「処理日時をクリア」を押すと、すべてのファイルがもう一度送信されます。</translation>
        </message>
        <message id="VTULocalization.klYesDealtWith">
            <source>This version of it has not been processed yet.</source>
            <translation>このファイルのこの版はまだ処理されていません。</translation>
        </message>
        <message id="VTULocalization.klNoDealtWith">
            <source>This version of it, changed at $1, was processed already. The log tells how that ended.</source>
            <translation>$1 に変更されたこのファイルの版は、すでに処理されています。結果はログにあります。</translation>
        </message>
        <message id="VTULocalization.klYesAtRest">
            <source>It is at rest.</source>
            <translation>書き込みは終わっています。</translation>
        </message>
        <message id="VTULocalization.klNoAtRest">
            <source>It is still being written, or changed a moment ago. It is sent when it has been at rest for two seconds.</source>
            <translation>まだ書き込み中か、変更されたばかりです。2秒間変更がなければ送信されます。</translation>
        </message>
        <message id="VTULocalization.klFolderSilent">
            <source>&quot;$1&quot; does not answer yet. You can wait, choose another folder, or cancel.</source>
            <translation>「$1」はまだ応答していません。待つか、別のフォルダーを選ぶか、キャンセルできます。</translation>
        </message>
        <message id="VTULocalization.klSpanSeconds">
            <source>$1 s</source>
            <translation>$1 秒</translation>
        </message>
        <message id="VTULocalization.klSpanMinutes">
            <source>$1 min</source>
            <translation>$1 分</translation>
        </message>
        <message id="VTULocalization.klSpanHours">
            <source>$1 h</source>
            <translation>$1 時間</translation>
        </message>
        <message id="VTULocalization.klSpanDays">
            <source>$1 days</source>
            <translation>$1 日</translation>
        </message>
        <message id="VTULocalization.klAutoRefresh">
            <source>Auto Refresh</source>
            <translation>自動更新</translation>
        </message>
        <message id="VTULocalization.klFailuresOnly">
            <source>Failures only</source>
            <translation>失敗のみ</translation>
        </message>
        <message id="VTULocalization.klFind">
            <source>Find</source>
            <translation>検索</translation>
        </message>
        <message id="VTULocalization.klFindTip">
            <source>Shows the entries that hold this text in any column</source>
            <translation>いずれかの列にこの文字列を含む項目を表示します</translation>
        </message>
        <message id="VTULocalization.klFailuresOnlyTip">
            <source>Shows the entries of files that were not sent, or not kept whole</source>
            <translation>送信できなかった、または完全に保存できなかったファイルの項目を表示します</translation>
        </message>
        <message id="VTULocalization.klLogRows">
            <source>Log entries</source>
            <translation>ログの項目</translation>
        </message>
        <message id="VTULocalization.klLogDetails">
            <source>Details of the selected entry</source>
            <translation>選択した項目の詳細</translation>
        </message>
        <message id="VTULocalization.klLogDivider">
            <source>Divider between the lists</source>
            <translation>リストの境界</translation>
        </message>
        <message id="VTULocalization.klCopy">
            <source>Copy</source>
            <translation>コピー</translation>
        </message>
        <message id="VTULocalization.klSendAgain">
            <source>Send Again</source>
            <translation>再送信</translation>
        </message>
        <message id="VTULocalization.klLogFailedRow">
            <source>Failed: $1</source>
            <translation>失敗: $1</translation>
        </message>
        <message id="VTULocalization.klLogRowGone">
            <source>(deleted)</source>
            <translation>(削除済み)</translation>
        </message>
        <message id="VTULocalization.klLogNone">
            <source>There is no log. $1</source>
            <translation>ログがありません。$1</translation>
        </message>
        <message id="VTULocalization.klLogUnreadable">
            <source>The log can't be read. $1</source>
            <translation>ログを読み込めません。$1</translation>
        </message>
        <message id="VTULocalization.klLogBusy">
            <source>The program is busy. Please try again in a moment.</source>
            <translation>プログラムは処理中です。しばらくしてからもう一度お試しください。</translation>
        </message>
        <message id="VTULocalization.klLogEmpty">
            <source>The log is empty.</source>
            <translation>ログは空です。</translation>
        </message>
        <message id="VTULocalization.klLogCleared">
            <source>The view is cleared. The log itself is unchanged: press &quot;Refresh Log&quot; to see it again.</source>
            <translation>表示をクリアしました。ログ自体は変わっていません。「ログを更新」を押すと再び表示されます。</translation>
        </message>
        <message id="VTULocalization.klLogNoMatch">
            <source>No entry matches.</source>
            <translation>一致する項目はありません。</translation>
        </message>
        <message id="VTULocalization.klLogNoRecords">
            <source>No records availble</source>
            <translation>項目がありません</translation>
        </message>
        <message id="VTULocalization.klLogExporting">
            <source>Exporting to &quot;$1&quot;...</source>
            <translation>「$1」に書き出しています...</translation>
        </message>
        <message id="VTULocalization.klLogNotExported">
            <source>The log was not exported safely. Under that name stands what was there before or the whole export, never a part of it.

$1</source>
            <translation>ログを安全に書き出せませんでした。この名前のファイルは、以前の内容のままか、書き出したログの全体のどちらかで、途中までのものではありません。

$1</translation>
        </message>
        <message id="VTULocalization.klLogRowsGone">
            <source>Some of the entries are no longer in the log. Press &quot;Refresh Log&quot; and export again.</source>
            <translation>一部の項目はもうログにありません。「ログを更新」を押してから、もう一度書き出してください。</translation>
        </message>
        <message id="VTULocalization.klLogStopExport">
            <source>The export is not finished. Do you want to close the window and cancel it?</source>
            <translation>書き出しはまだ終わっていません。ウィンドウを閉じて中止しますか?</translation>
        </message>
        <message id="VTULocalization.klLogCopyTooMany">
            <source>These are too many entries for the clipboard. Please use &quot;Export to txt&quot;.</source>
            <translation>項目が多すぎてクリップボードに入りません。「txtに書き出し」を使ってください。</translation>
        </message>
        <message id="VTULocalization.klSendAgainQuestion">
            <source>Do you want to send these files again?

$1

The date of each file is set to now, so that its task sends it with its next run.</source>
            <translation>これらのファイルを再送信しますか?

$1

各ファイルの日付を現在の日時にするので、次の処理でタスクが送信します。</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainQuestion">
            <source>Do you want to send this file again?

$1

Its date is set to now, so that its task sends it with its next run.</source>
            <translation>このファイルを再送信しますか?

$1

ファイルの日付を現在の日時にするので、次の処理でタスクが送信します。</translation>
        </message>
        <message id="VTULocalization.klSendAgainNotTaken">
            <source>No task that is switched on takes these files. They will wait until one does:

$1</source>
            <translation>これらのファイルを扱う有効なタスクがありません。そのようなタスクができるまで待ちます:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainNotTaken">
            <source>No task that is switched on takes this file. It will wait until one does:

$1</source>
            <translation>このファイルを扱う有効なタスクがありません。そのようなタスクができるまで待ちます:

$1</translation>
        </message>
        <message id="VTULocalization.klSendAgainMore">
            <source>and $1 more</source>
            <translation>ほか $1 件</translation>
        </message>
        <message id="VTULocalization.klSendAgainTooMany">
            <source>No more than 1,000 entries can be sent again at once.</source>
            <translation>一度に再送信できるのは 1,000 件までです。</translation>
        </message>
        <message id="VTULocalization.klSendAgainNone">
            <source>None of these files is in its input folder any more.</source>
            <translation>これらのファイルはどれも入力フォルダーに残っていません。</translation>
        </message>
        <message id="VTULocalization.klSendAgainFailed">
            <source>These files are not sent again, because their date could not be set:

$1</source>
            <translation>次のファイルは日付を変更できなかったため、再送信されません:

$1</translation>
        </message>
        <message id="VTULocalization.klSendOneAgainFailed">
            <source>This file is not sent again, because its date could not be set:

$1</source>
            <translation>次のファイルは日付を変更できなかったため、再送信されません:

$1</translation>
        </message>
        <message id="VTULocalization.klTestLineName">
            <source>Connection test</source>
            <translation>接続テスト</translation>
        </message>
        <message id="VTULocalization.klTestRunning">
            <source>Asking the service...</source>
            <translation>サービスに問い合わせています...</translation>
        </message>
        <message id="VTULocalization.klTestSucceeded">
            <source>The service took the login.</source>
            <translation>サービスがログイン情報を受け付けました。</translation>
        </message>
        <message id="VTULocalization.klTestSucceededProxy">
            <source>The service took the login, by way of the proxy ($1).</source>
            <translation>サービスがログイン情報を受け付けました (プロキシ経由: $1)。</translation>
        </message>
        <message id="VTULocalization.klTestSucceededNoPort">
            <source>The service took the login, but without the proxy: its port is not valid.</source>
            <translation>サービスがログイン情報を受け付けましたが、プロキシは使われていません。ポートが正しくありません。</translation>
        </message>
        <message id="VTULocalization.klTestErrorAnswered">
            <source>The service answered with an error.</source>
            <translation>サービスがエラーを返しました。</translation>
        </message>
        <message id="VTULocalization.klTestNameUnknown">
            <source>No answer: the name of the service can't be found ($1).</source>
            <translation>応答なし: サービスの名前が見つかりません ($1)。</translation>
        </message>
        <message id="VTULocalization.klTestProxyNameUnknown">
            <source>No answer: the name of the proxy can't be found ($1).</source>
            <translation>応答なし: プロキシの名前が見つかりません ($1)。</translation>
        </message>
        <message id="VTULocalization.klTestNotReached">
            <source>No answer: the service can't be reached ($1).</source>
            <translation>応答なし: サービスに接続できません ($1)。</translation>
        </message>
        <message id="VTULocalization.klTestProxyNotReached">
            <source>No answer: the proxy can't be reached ($1).</source>
            <translation>応答なし: プロキシに接続できません ($1)。</translation>
        </message>
        <message id="VTULocalization.klTestProxyRefused">
            <source>No answer: the proxy did not connect to the service ($1).</source>
            <translation>応答なし: プロキシがサービスに接続しませんでした ($1)。</translation>
        </message>
        <message id="VTULocalization.klTestTlsFailed">
            <source>No answer: no secure connection (TLS) with $1.</source>
            <translation>応答なし: $1 との安全な接続 (TLS) ができません。</translation>
        </message>
        <message id="VTULocalization.klTestTimedOut">
            <source>No answer in time from the service ($1).</source>
            <translation>サービスから時間内に応答がありません ($1)。</translation>
        </message>
        <message id="VTULocalization.klTestProxyTimedOut">
            <source>No answer in time from the proxy ($1).</source>
            <translation>プロキシから時間内に応答がありません ($1)。</translation>
        </message>
        <message id="VTULocalization.klTestBroken">
            <source>No answer: the connection broke off ($1).</source>
            <translation>応答なし: 接続が切れました ($1)。</translation>
        </message>
        <message id="VTULocalization.klTestNotTheService">
            <source>No answer of the service: something else answered.</source>
            <translation>サービスの応答がありません。別のものが応答しました。</translation>
        </message>
        <message id="VTULocalization.klBackupLineName">
            <source>Backup of the tasks</source>
            <translation>タスクのバックアップ</translation>
        </message>
        <message id="VTULocalization.klBackupUnderWay">
            <source>Saving the tasks...</source>
            <translation>タスクを保存しています...</translation>
        </message>
        <message id="VTULocalization.klBackupDone">
            <source>The tasks are saved.</source>
            <translation>タスクを保存しました。</translation>
        </message>
        <message id="VTULocalization.klRestoreUnderWay">
            <source>Loading the tasks...</source>
            <translation>タスクを読み込んでいます...</translation>
        </message>
        <message id="VTULocalization.klRestoreDone">
            <source>The tasks are loaded. They join the list when this window is closed.</source>
            <translation>タスクを読み込みました。このウィンドウを閉じると一覧に加わります。</translation>
        </message>
        <message id="VTULocalization.klBackupSlow">
            <source>The folder is slow to answer. Closing this window stops the copying.</source>
            <translation>フォルダーの応答が遅れています。このウィンドウを閉じるとコピーを中止します。</translation>
        </message>
        <message id="VTULocalization.klBackupFailed">
            <source>These task files could not be saved:</source>
            <translation>次のタスクファイルを保存できませんでした:</translation>
        </message>
        <message id="VTULocalization.klRestoreFailed">
            <source>These task files could not be loaded:</source>
            <translation>次のタスクファイルを読み込めませんでした:</translation>
        </message>
        <message id="VTULocalization.klCopyingStopped">
            <source>The copying was stopped, because the window was closed. These task files were not copied:</source>
            <translation>ウィンドウが閉じられたため、コピーを中止しました。次のタスクファイルはコピーされていません:</translation>
        </message>
        <message id="VTULocalization.klNotBegun">
            <source>Earlier calls still wait for an answer. Please try again in a moment.</source>
            <translation>以前の問い合わせがまだ応答を待っています。少し待ってからやり直してください。</translation>
        </message>
        <message id="VTULocalization.klAdminFailed">
            <source>The admin window could not be opened: $1</source>
            <translation>管理ウィンドウを開けませんでした: $1</translation>
        </message>
        <message id="VTULocalization.klTheProxy">
            <source>the proxy $1</source>
            <translation>プロキシ $1</translation>
        </message>
        <message id="VTULocalization.klAddressInvalid">
            <source>the address of the service is not valid</source>
            <translation>サービスのアドレスが正しくありません</translation>
        </message>
        <message id="VTULocalization.klHeaderInvalid">
            <source>a header of the request can't be written on one line</source>
            <translation>要求のヘッダーを1行で書けません</translation>
        </message>
        <message id="VTULocalization.klNameInvalid">
            <source>$1 has no valid host name</source>
            <translation>$1 のホスト名が正しくありません</translation>
        </message>
        <message id="VTULocalization.klNameUnknown">
            <source>the name of $1 is not known: $2</source>
            <translation>$1 の名前が見つかりません: $2</translation>
        </message>
        <message id="VTULocalization.klLookUpSlow">
            <source>the look-up of the name of $1 took too long</source>
            <translation>$1 の名前の検索に時間がかかりすぎました</translation>
        </message>
        <message id="VTULocalization.klLookUpsHang">
            <source>the name of $1 can't be looked up: earlier look-ups still hang</source>
            <translation>$1 の名前を検索できません: 以前の検索がまだ終わっていません</translation>
        </message>
        <message id="VTULocalization.klConnectingSlow">
            <source>connecting to $1 took too long</source>
            <translation>$1 への接続に時間がかかりすぎました</translation>
        </message>
        <message id="VTULocalization.klNoConnection">
            <source>no connection to $1: $2</source>
            <translation>$1 に接続できません: $2</translation>
        </message>
        <message id="VTULocalization.klTlsLibraryFailed">
            <source>OpenSSL could not be set up</source>
            <translation>OpenSSLを準備できません</translation>
        </message>
        <message id="VTULocalization.klTlsNotSetUp">
            <source>TLS with $1 could not be set up</source>
            <translation>$1 とのTLSを準備できません</translation>
        </message>
        <message id="VTULocalization.klTlsSilent">
            <source>$1 did not answer in the TLS handshake</source>
            <translation>$1 がTLSハンドシェイクに応答しません</translation>
        </message>
        <message id="VTULocalization.klNoTlsConnection">
            <source>no TLS connection to $1: $2</source>
            <translation>$1 にTLSで接続できません: $2</translation>
        </message>
        <message id="VTULocalization.klTlsError">
            <source>TLS error $1</source>
            <translation>TLSエラー $1</translation>
        </message>
        <message id="VTULocalization.klItClosed">
            <source>it closed the connection</source>
            <translation>相手側が接続を閉じました</translation>
        </message>
        <message id="VTULocalization.klCertificateRefused">
            <source>the certificate of $1 is not accepted: $2</source>
            <translation>$1 の証明書を受け入れられません: $2</translation>
        </message>
        <message id="VTULocalization.klTrustFileUnusable">
            <source>the file of trusted certificates &quot;$1&quot; can't be used</source>
            <translation>信頼する証明書のファイル「$1」を使用できません</translation>
        </message>
        <message id="VTULocalization.klRefusedWithStatus">
            <source>$1 refused with status $2</source>
            <translation>$1 がステータス $2 で拒否しました</translation>
        </message>
        <message id="VTULocalization.klNoAnswerWithin">
            <source>$1 did not answer within $2 s</source>
            <translation>$1 が $2 秒以内に応答しませんでした</translation>
        </message>
        <message id="VTULocalization.klRequestNotTaken">
            <source>$1 did not take the whole request within $2 s</source>
            <translation>$1 が $2 秒以内に要求をすべて受け取りませんでした</translation>
        </message>
        <message id="VTULocalization.klReplyStopped">
            <source>$1 fell silent in its reply for $2 s</source>
            <translation>$1 の応答が $2 秒間途絶えました</translation>
        </message>
        <message id="VTULocalization.klConnectionBroke">
            <source>the connection to $1 broke: $2</source>
            <translation>$1 との接続が切れました: $2</translation>
        </message>
        <message id="VTULocalization.klClosedConnection">
            <source>$1 closed the connection</source>
            <translation>$1 が接続を閉じました</translation>
        </message>
        <message id="VTULocalization.klClosedInRequest">
            <source>$1 closed the connection before it had the whole request</source>
            <translation>$1 が要求をすべて受け取る前に接続を閉じました</translation>
        </message>
        <message id="VTULocalization.klClosedInReply">
            <source>$1 closed the connection before its reply was complete</source>
            <translation>$1 が応答を終える前に接続を閉じました</translation>
        </message>
        <message id="VTULocalization.klAnsweredEarly">
            <source>$1 answered before it had the whole request</source>
            <translation>$1 が要求をすべて受け取る前に応答しました</translation>
        </message>
        <message id="VTULocalization.klReplyTooLarge">
            <source>the reply of $1 is too large</source>
            <translation>$1 の応答が大きすぎます</translation>
        </message>
        <message id="VTULocalization.klReplyBadLength">
            <source>$1 announced a reply of an impossible length</source>
            <translation>$1 があり得ない長さの応答を通知しました</translation>
        </message>
        <message id="VTULocalization.klContentShort">
            <source>the content could not be read to its end</source>
            <translation>内容を最後まで読み取れません</translation>
        </message>
        <message id="VTULocalization.klFileChanged">
            <source>the file changed before it was sent whole</source>
            <translation>送信が終わる前にファイルが変更されました</translation>
        </message>
        <message id="VTULocalization.klNoFileToSend">
            <source>there is no file to send</source>
            <translation>送信するファイルがありません</translation>
        </message>
        <message id="VTULocalization.klStopped">
            <source>stopped</source>
            <translation>停止しました</translation>
        </message>
        <message id="VTULocalization.klNoInputFolder">
            <source>the task has no input folder</source>
            <translation>タスクに入力フォルダーがありません</translation>
        </message>
        <message id="EditTaskWindow.klAddDatetoFileName">
            <source>Add Date to File Name</source>
            <translation>ファイル名に日付を追加</translation>
        </message>
        <message id="EditTaskWindow.klAutoRecognition">
            <source>Auto Recognition</source>
            <translation>自動認識</translation>
        </message>
        <message id="EditTaskWindow.klDeleteFileAfterCopy">
            <source>Delete File After Copy</source>
            <translation>コピー後にファイルを削除</translation>
        </message>
        <message id="EditTaskWindow.klExtension">
            <source>Extension</source>
            <translation>拡張子</translation>
        </message>
        <message id="EditTaskWindow.klFileNameExclusion">
            <source>File Name Exclusion</source>
            <translation>ファイル名の除外</translation>
        </message>
        <message id="EditTaskWindow.klFileNameRecognition">
            <source>File Name Recognition</source>
            <translation>ファイル名の認識</translation>
        </message>
        <message id="EditTaskWindow.klPrefix">
            <source>Prefix</source>
            <translation>接頭辞</translation>
        </message>
        <message id="EditTaskWindow.klSelectTrack">
            <source>Select Track</source>
            <translation>トラックを選択</translation>
        </message>
        <message id="MainMenuBar.klFileMenu">
            <source>&amp;File</source>
            <translation>ファイル(&amp;F)</translation>
        </message>
        <message id="MainMenuBar.klFileAbout">
            <source>About Vantry Uploader...</source>
            <translation>Vantry Uploader について...</translation>
        </message>
        <message id="MainMenuBar.klFileQuit">
            <source>&amp;Quit</source>
            <translation>終了(&amp;Q)</translation>
        </message>
        <message id="MainMenuBar.klEditMenu">
            <source>&amp;Edit</source>
            <translation>編集(&amp;E)</translation>
        </message>
        <message id="MainMenuBar.klEditUndo">
            <source>&amp;Undo</source>
            <translation>元に戻す(&amp;U)</translation>
        </message>
        <message id="MainMenuBar.klEditCut">
            <source>Cu&amp;t</source>
            <translation>切り取り(&amp;T)</translation>
        </message>
        <message id="MainMenuBar.klEditCopy">
            <source>&amp;Copy</source>
            <translation>コピー(&amp;C)</translation>
        </message>
        <message id="MainMenuBar.klEditPaste">
            <source>&amp;Paste</source>
            <translation>貼り付け(&amp;P)</translation>
        </message>
        <message id="MainMenuBar.klEditClear">
            <source>&amp;Delete</source>
            <translation>削除(&amp;D)</translation>
        </message>
        <message id="MainMenuBar.klEditSelectAll">
            <source>Select &amp;All</source>
            <translation>すべて選択(&amp;A)</translation>
        </message>
        <message id="MainMenuBar.klAboutTitle">
            <source>About</source>
            <translation>このプログラムについて</translation>
        </message>
        <message id="VantryUtil.E002">
            <source>No patches found. Check instrument/software settings.</source>
            <translation>パッチが見つかりません。測定器とソフトウェアの設定を確認してください。</translation>
        </message>
        <message id="VantryUtil.E003">
            <source>Database connection issues. Check website/ server connection.</source>
            <translation>データベース接続の問題です。ウェブサイトとサーバーの接続を確認してください。</translation>
        </message>
        <message id="VantryUtil.E004">
            <source>Wrong measurement conditions - possible mismatch. Check both application and track/ tool preferences (M0, M1, M2, M3)</source>
            <translation>測定条件が正しくありません。一致していない可能性があります。アプリケーションとトラック/ツールの両方の設定 (M0、M1、M2、M3) を確認してください</translation>
        </message>
        <message id="VantryUtil.E005">
            <source>Wrong mode. Mode shall be either production or makeready.</source>
            <translation>モードが正しくありません。モードは本刷り (production) または刷り出し (makeready) です。</translation>
        </message>
        <message id="VantryUtil.E006">
            <source>Wrong backing. Backing shall be either white or black.</source>
            <translation>バッキングが正しくありません。バッキングは白 (white) または黒 (black) です。</translation>
        </message>
        <message id="VantryUtil.E007">
            <source>Filename cannot be empty.</source>
            <translation>ファイル名を空にすることはできません。</translation>
        </message>
        <message id="VantryUtil.E008">
            <source>Requested track not found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>指定されたトラックが見つかりません。自動認識モードでは設定を確認してください。アプリケーションとウェブサイトの設定が完全に一致している必要があります。</translation>
        </message>
        <message id="VantryUtil.E009">
            <source>Wrong login/password combination. Note: SOAP protocol uses separate login/ password combination. Consult user manual to learn more.</source>
            <translation>ログイン名とパスワードの組み合わせが正しくありません。注: SOAPプロトコルでは別のログイン名とパスワードを使用します。詳しくはマニュアルをご覧ください。</translation>
        </message>
        <message id="VantryUtil.E010">
            <source>No tracks found.</source>
            <translation>トラックが見つかりません。</translation>
        </message>
        <message id="VantryUtil.E011">
            <source>Spectral data missing.</source>
            <translation>分光データがありません。</translation>
        </message>
        <message id="VantryUtil.E012">
            <source>Wrong color definition.</source>
            <translation>色の定義が正しくありません。</translation>
        </message>
        <message id="VantryUtil.E013">
            <source>Date format unrecognized.</source>
            <translation>日付の形式を認識できません。</translation>
        </message>
        <message id="VantryUtil.E014">
            <source>Sheet number must be an integer.</source>
            <translation>シート番号は整数でなければなりません。</translation>
        </message>
        <message id="VantryUtil.E015">
            <source>Unknown dryback value. (E015)</source>
            <translation>ドライバックの値が不明です。(E015)</translation>
        </message>
        <message id="VantryUtil.E016">
            <source>User is registered on dedicated instance, API URL needs to be changed</source>
            <translation>ユーザーは専用インスタンスに登録されています。APIのURLを変更する必要があります</translation>
        </message>
        <message id="VantryUtil.E017">
            <source>Operator is not authenticated, please check Your login/password combination.</source>
            <translation>オペレーターが認証されていません。ログイン名とパスワードを確認してください。</translation>
        </message>
        <message id="VantryUtil.E018">
            <source>No devices found.</source>
            <translation>機器が見つかりません。</translation>
        </message>
        <message id="VantryUtil.E019">
            <source>Selected operator is not assigned to any of printing devices</source>
            <translation>選択したオペレーターはどの印刷機器にも割り当てられていません</translation>
        </message>
        <message id="VantryUtil.E020">
            <source>No Scanning Templates found</source>
            <translation>測定テンプレートが見つかりません</translation>
        </message>
        <message id="VantryUtil.E021">
            <source>No measurement tasks avaliable</source>
            <translation>利用できる測定タスクがありません</translation>
        </message>
        <message id="VantryUtil.E022">
            <source>Scanning Template not found</source>
            <translation>測定テンプレートが見つかりません</translation>
        </message>
        <message id="VantryUtil.E023">
            <source>Control Strip not foundControl Strip not found</source>
            <translation>コントロールストリップが見つかりません</translation>
        </message>
        <message id="VantryUtil.E024">
            <source>Control Strip patches not found</source>
            <translation>コントロールストリップのパッチが見つかりません</translation>
        </message>
        <message id="VantryUtil.E025">
            <source>Selected job does not belong to selected track</source>
            <translation>選択したジョブは選択したトラックに属していません</translation>
        </message>
        <message id="VantryUtil.E026">
            <source>No jobs found</source>
            <translation>ジョブが見つかりません</translation>
        </message>
        <message id="VantryUtil.E027">
            <source>Color Library/Palette not found</source>
            <translation>カラーライブラリ/パレットが見つかりません</translation>
        </message>
        <message id="VantryUtil.E028">
            <source>No instruments found</source>
            <translation>測定器が見つかりません</translation>
        </message>
        <message id="VantryUtil.E102">
            <source>No Instrument - Target pair found. For auto-recognition mode check settings -  both application and website require a perfect match.</source>
            <translation>測定器とターゲットの組み合わせが見つかりません。自動認識モードでは設定を確認してください。アプリケーションとウェブサイトの設定が完全に一致している必要があります。</translation>
        </message>
        <message id="VantryUtil.E103">
            <source>Measured file does not have required list of patches.</source>
            <translation>測定ファイルに必要なパッチの一覧がありません。</translation>
        </message>
        <message id="VantryUtil.EUnknownError">
            <source>Unknown Error</source>
            <translation>不明なエラー</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateOff">
            <source>Off</source>
            <translation>停止</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateProcessing">
            <source>Sending files</source>
            <translation>ファイルを送信中</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateReady">
            <source>Ready</source>
            <translation>準備完了</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStateFault">
            <source>A folder is missing or can't be written</source>
            <translation>フォルダーがないか、書き込めません</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasks">
            <source>Tasks</source>
            <translation>タスク</translation>
        </message>
        <message id="VTUploaderMainWIndow.klHelp">
            <source>Help</source>
            <translation>ヘルプ</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNoTasks">
            <source>There are no tasks yet. Press &quot;$1&quot; to set up the first one.</source>
            <translation>タスクはまだありません。「$1」を押して最初のタスクを設定してください。</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskEditor">
            <source>The task editor</source>
            <translation>タスクエディター</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripAndMore">
            <source>(and $1 more)</source>
            <translation>(ほか $1 件)</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTasksAboutToLoad">
            <source>The restored tasks are loaded as soon as the files under way are sent.</source>
            <translation>復元したタスクは、送信中のファイルが終わりしだい読み込まれます。</translation>
        </message>
        <message id="VTUploaderMainWIndow.klStripFolderFault">
            <source>Task &quot;$1&quot; can't use its folders. Check that the input and output folders are there, connected and writable.</source>
            <translation>タスク「$1」はフォルダーを使用できません。入力フォルダーと出力フォルダーがあり、接続され、書き込めることを確認してください。</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotDuplicated">
            <source>The task could not be duplicated: $1</source>
            <translation>タスクを複製できませんでした: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klTaskNotRemoved">
            <source>The task is off the list, but its file could not be removed, so it will be back at the next start: $1</source>
            <translation>タスクは一覧から外れましたが、ファイルを削除できなかったため、次回の起動時に再び現れます: $1</translation>
        </message>
        <message id="VTUploaderMainWIndow.klManualNotOpened">
            <source>The browser could not be opened. The manual is at $1</source>
            <translation>ブラウザーを開けませんでした。マニュアルは $1 にあります</translation>
        </message>
        <message id="VTUploaderMainWIndow.klNewVersion">
            <source>Version $1 is availble newer and availbale.
Would you like to downlownload it now?</source>
            <translation>新しいバージョン $1 があります。
今すぐダウンロードしますか？</translation>
        </message>
        <message id="VTUploaderMainWIndow.klDownloadNotOpened">
            <source>The download can't be opened from here. Its address is $1</source>
            <translation>ここからダウンロードを開けません。アドレスは $1 です</translation>
        </message>
        <message id="Reasons.klListing">
            <source>listing $1</source>
            <translation>$1 の一覧の取得</translation>
        </message>
        <message id="Reasons.klReading">
            <source>reading $1</source>
            <translation>$1 の読み取り</translation>
        </message>
        <message id="Reasons.klWriting">
            <source>writing $1</source>
            <translation>$1 の書き込み</translation>
        </message>
        <message id="Reasons.klCopying">
            <source>copying $1 to $2</source>
            <translation>$1 から $2 へのコピー</translation>
        </message>
        <message id="Reasons.klRenaming">
            <source>renaming $1</source>
            <translation>$1 の名前の変更</translation>
        </message>
        <message id="Reasons.klRenamingTo">
            <source>renaming $1 to $2</source>
            <translation>$1 から $2 への名前の変更</translation>
        </message>
        <message id="Reasons.klSettingDate">
            <source>setting the date of $1</source>
            <translation>$1 の日付の変更</translation>
        </message>
        <message id="Reasons.klDeleting">
            <source>deleting $1</source>
            <translation>$1 の削除</translation>
        </message>
        <message id="Reasons.klMakingFolder">
            <source>making the folder $1</source>
            <translation>フォルダー $1 の作成</translation>
        </message>
        <message id="Reasons.klFlushingFolder">
            <source>flushing the folder of $1</source>
            <translation>$1 のフォルダーのディスクへの書き込み</translation>
        </message>
        <message id="Reasons.klEnciphering">
            <source>enciphering $1</source>
            <translation>$1 の暗号化</translation>
        </message>
        <message id="Reasons.klWritingOver">
            <source>writing over $1, which could not be read</source>
            <translation>読み取れなかった $1 への上書き</translation>
        </message>
        <message id="Reasons.klSavingWithoutFile">
            <source>saving without a file</source>
            <translation>ファイルなしの保存</translation>
        </message>
        <message id="Reasons.klMakingIt">
            <source>making it</source>
            <translation>ファイルの作成</translation>
        </message>
        <message id="Reasons.klNotOurs">
            <source>it is not a settings file, or it is damaged</source>
            <translation>設定ファイルではないか、破損しています</translation>
        </message>
        <message id="Reasons.klOtherProgram">
            <source>it is damaged, or another program wrote it</source>
            <translation>破損しているか、別のプログラムが書き込んだファイルです</translation>
        </message>
        <message id="Reasons.klNotAnObject">
            <source>its content is not a JSON object</source>
            <translation>内容がJSONオブジェクトではありません</translation>
        </message>
        <message id="Reasons.klContentGone">
            <source>its content is gone</source>
            <translation>内容がなくなっています</translation>
        </message>
        <message id="Reasons.klEndCutOff">
            <source>its end is cut off</source>
            <translation>末尾が切れています</translation>
        </message>
        <message id="Reasons.klWriteProtected">
            <source>the file is write-protected</source>
            <translation>ファイルは書き込み禁止です</translation>
        </message>
    </context>
</TS>
