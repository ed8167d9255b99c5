<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>サーバーと同期するローカルフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>ZephLink サービスに接続できませんでした。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>フィルタールール</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>マウントポイントは使用不可</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>期間</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>この共有フォルダーはサーバー上に存在しなくなりました。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>ユーザー名を入力してください。</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>これらの名前のファイルは同期されません。</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>サーバーに接続できませんでした。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>ダウンロードのみ</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同期の方向</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>このサーバーでの最初の同期タスク</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>不足または破損しているファイル、ショートカット、レジストリエントリを復元します。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>ここをクリックして更新</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>いいえ、結構です</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>証明書の警告</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>接続設定を変更</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>接続をテストしています...</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Lumivo Drive セットアップ</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Lumivo Drive をこのコンピューターにインストールする準備ができました。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新しい共有フォルダー</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>使用できるフォルダーが見つかりませんでした。共有フォルダーへのアクセス権を付与するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>この共有フォルダーの同期を有効にできませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>終了日</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>このフォルダーの同期を再開</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 日前</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>フォルダー「%1」はマウントポイントであるため同期できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>このコンピューターはすでに「%1」にリンクされています。既存の接続を編集してください。</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>更新があります</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>1 から 65535 までのポート番号を入力してください。</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>同期フォルダーを開く</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive をインストールしました</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>リンク解除</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>このフォルダーは別の同期タスクのフォルダーと重複しています。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>サーバー上のフォルダーを一覧表示できませんでした。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>確認が必要</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>サーバーの証明書が変更されました。続行する前に確認してください。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後のページ</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>実行中</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>更新できませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>サーバーの証明書を検証できませんでした。</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>しばらくお待ちください。数分かかることがあります。</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>インストールする機能を選択します</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>どこで作業しても、ファイルはいつも手元に</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>これらのフォルダーの同期を再開</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>このコンピューターのディスクに空き容量がありません。同期を続けるには空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>白黒のトレイアイコンを使用</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>正しく入力されていない項目があります。修正してもう一度お試しください。</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>セットアップが中断されました。コンピューターに変更は加えられていません。</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>フォルダーが見つかりません</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>同期するフォルダーの選択</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>サーバー上のフォルダーと、それと同期するローカルフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>ステータス</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>名前がドットで始まるファイルとフォルダーを除外</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>期間を指定</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>インターネット</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>ユーザー名またはパスワードが正しくありません。両方を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>このアドレスは別のサーバーのものです。アドレスを確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>セットアップ方法の選択</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>月曜日</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>サーバーのクォータを使い切りました。ファイルを削除するか、容量の追加を管理者に依頼してください。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>起動しています...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>共有フォルダーの数が上限に達しました。まずいずれかの共有フォルダーの同期を停止してください。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>システムのプロキシ設定を使用</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>両方のバージョンを残し、ローカルのバージョンの名前を変更する</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>「%1」の同期が停止しました。詳細を確認するには Lumivo Drive を開いてください。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>同期の方向が、このフォルダーに対する権限と一致しません。別の方向を選択してください。</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>詳細を表示</translation>
    </message>
    <message>
        <source>October</source>
        <translation>10月</translation>
    </message>
    <message>
        <source>February</source>
        <translation>2月</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>このバージョンの Lumivo Drive Server は古すぎます。サーバーで更新してください。</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>同期ルール</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>このファイルをダウンロードできません。サーバーでの権限を確認してください。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>接続しています...</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>プロキシを使用しない</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共有フォルダー</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>この接続を再開</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>共有リンクを取得</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>トレイのアイコンを見れば、ファイルが同期されているかどうかがひと目でわかります。</translation>
    </message>
    <message>
        <source>From</source>
        <translation>開始日</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>再リンク</translation>
    </message>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>ネットワーク設定</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>選択した内容を適用しています。</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>ここで選択を解除したフォルダーは、このコンピューターから削除されます。サーバー上のフォルダーは残ります。</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>サーバーのディスクに空き容量がありません。同期を続けるには空き容量を増やしてください。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>ダウンロードできませんでした。ネットワーク接続を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>保存して共有リンクをコピー</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>サーバーのアドレスとアカウント情報を入力してください。</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>始めましょう</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>保存する変更はありません。</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前の %1 ページ</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>後で Lumivo Drive をインストールするには、セットアッププログラムをもう一度実行してください。</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>同期フォルダー内のファイルを右クリックすると、ファイルを共有したり以前のバージョンを表示したりできます。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨日</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>ステータス情報</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Lumivo Drive を起動できませんでした。コンピューターを再起動して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>サーバー上のバージョンを残す</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>このバージョンの Lumivo Drive は古すぎるため、このサーバーでは使用できません。バージョン %1 以降に更新してください。</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Lumivo Drive の変更、修復、または削除</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>ZephLink 経由で接続</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>開始するには「インストール」をクリックします。選択内容を確認または変更するには「戻る」をクリックします。セットアップを終了するには「キャンセル」をクリックします。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>問題が発生しました。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>使用許諾契約の条項に同意します</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>選択的同期はまだ利用できません。使用するには、サーバーの Lumivo Drive Server を更新してください。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>名前変更</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>このフォルダーは読み取り専用です</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Lumivo Drive を削除する準備ができました</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>このコンピューターと同期する内容とその保存先を選択してください。</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>アップロード</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>アクセス権が取り消され、同期されたファイルはこのコンピューターから削除されました。管理者に連絡してください。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>アップロードしています...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>設定を適用しています...</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>次の使用許諾契約をよくお読みください。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>統合モード</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>これらのフォルダーを同期しない</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>開始するには「修復」をクリックします。選択内容を確認するには「戻る」をクリックします。セットアップを終了するには「キャンセル」をクリックします。</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>このフォルダーには書き込めません。フォルダーの権限を変更するか、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選択的同期</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>ユーザー名</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>%1 から %2 MB までのファイルサイズを入力してください。</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>「%1」の同期を停止しますか? このコンピューターにすでにあるファイルは残ります。</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>クイックセットアップ</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>詳細セットアップ</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>サーバーのアドレス</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>サーバーのクォータを使い切りました。</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>トレイアイコンをダブルクリックしたときの動作</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive を初期化しています...</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>ファイルを確認しています...</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>このコンピューターは「%1」にリンクされました。すぐに同期が始まります。</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>すべてをいつも最新に</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>更新しています...</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>期間を指定</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>同期ステータスを確認</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>読み込んでいます...</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非アクティブ</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>セットアッププログラムが更新する必要のあるファイルを、次のアプリケーションが使用しています:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Lumivo Drive を開く</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>フォルダー、同期の方向、同期ルールを自分で選択します。</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>インストール済みのファイルを修復します</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>バージョン数には 0 より大きい値を入力してください。</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>このユーザー名はサーバーに存在しません。確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Lumivo Drive の更新</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>さらに詳しく</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>作成日時</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>このコンピューターとサーバーのファイルを常に同じ状態に保ちます。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>このフォルダーは別のクラウド同期アプリですでに同期されています。競合を避けるため、別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>コンピューター名</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>プロキシにユーザー名とパスワードが必要</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>サーバーが要求を受け付けませんでした。入力内容を確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>このバージョンの Lumivo Drive Server は古すぎるため、このコンピューターの Lumivo Drive では使用できません。サーバーでバージョン %1 以降に更新してください。</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>送信先:</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>ZephLink サービスでエラーが発生しました。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>これらのアプリケーションを閉じて「再試行」をクリックするか、「無視」をクリックして後でコンピューターを再起動してください。</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>インストールする機能を変更できます。</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>このコンピューターと「%1」のリンクを解除しますか?\nこのコンピューターにすでにあるファイルは残ります。</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>このフォルダーはバックアップタスクで使用されています。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>このコンピューターのディスクに空き容量がありません。</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>このフォルダーは空ではありません</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>ファイルのあるフォルダーを開く</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>接続の種類</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>この ZephLink ID は存在しません。確認して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>これらのファイルを同期しない</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Lumivo Drive をこのコンピューターから削除します</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>お使いのアカウントには 2 段階認証が必要です。サーバーで設定してから、もう一度サインインしてください。</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>サーバーのファイルサービスがオフになっています。オンにするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>同期タスクの追加</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>ほかのユーザーとの共有</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>ロック中のファイル</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>アプリケーションを閉じない (後でコンピューターの再起動が必要)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>Lumivo Drive のバージョン情報</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>ファイルサービスがオフ</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>次の %1 ページ</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>ローカル同期フォルダーが移動または削除されました。元の場所に戻すか、新しいフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>このファイルを共有できません。サーバーでの権限を確認してください。</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>「完了」をクリックしてセットアップを終了してください。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>有効期間</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>この接続を一時停止</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>があなたと共有されました。</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>使用中のファイル</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>セットアップが途中で終了しました</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>サーバーで ZephLink 経由のファイル共有がオフになっています。オンにするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>共有リンク</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>一方向の同期 (ダウンロードのみ)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>両方のフォルダーのファイルが統合されます。</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>サーバー上のこのフォルダーは、すでにこのコンピューターと同期されています。\n2 つ目の同期タスクを追加すると、ディスク容量が 2 倍必要になります。</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>セットアップが中断されました</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>確認コードが正しくありません。現在のコードを入力して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双方向の同期</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>サーバーがこのコンピューターのアドレスをブロックしています。許可するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>ユーザー名とパスワードを確認しています...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Lumivo Drive のセットアップへようこそ</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>%1 文字以内で入力してください。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>統合</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>すべてのファイル属性と権限を同期</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>共有フォルダー「%1」を「%2」で利用できるようになりました。同期するにはここをクリックしてください。</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Lumivo Drive 用の空のフォルダーを作成</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>ファイルフィルター</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>同期フォルダーに入れたものはすべて、サーバーとほかのコンピューターにも表示されます。</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>セットアッププログラムでは Lumivo Drive の変更、修復、または削除を行えます。続行するには「次へ」をクリックしてください。</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>サーバー上のフォルダーとこのコンピューター上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>プロキシサーバーのアドレスとポートを入力してください。</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>変更を監視しています...</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>「%1」が更新されました</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>今すぐ Lumivo Drive を起動</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>実行する操作を選択してください。</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>サーバーのホームフォルダー機能がオフになっています。オンにするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同期タスク</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Lumivo Drive を修復する準備ができました</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>除外されたファイル</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive がこのコンピューターにインストールされました。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>準備しています...</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>システムの言語</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>変更が保存されていません。\n保存せずにこの画面を閉じますか?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>同期済みのフォルダー</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>同期しています...</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Lumivo Drive をこのコンピューターから削除するには「削除」をクリックします。選択内容を確認するには「戻る」をクリックします。セットアップを終了するには「キャンセル」をクリックします。</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Lumivo Drive のセットアップへようこそ</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>直接接続</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>このフォルダーはすでに別の同期タスクで使用されています。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>空き容量なし</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>共有フォルダーを読み込んでいます...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>リンクを解除しています...</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>同期中のファイル</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>設定はすべて後で変更できます。</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>同期ステータスを表示</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>サーバー上のフォルダーがマウントされていません。サーバーでマウントして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>除外されたファイルにアイコンを表示</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>接続の種類を確認しています...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>内容の異なるファイルは、両方のバージョンが残されます。</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>このフォルダーはすでに同期されています。もう一度追加しますか?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>このファイルのバージョンを一覧表示できません。サーバーでの権限を確認してください。</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>サーバーの応答を解釈できませんでした。Lumivo Drive を更新して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Lumivo Drive のインストールをキャンセルしてもよろしいですか?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>ポート</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>このアドレスで別のサーバーが見つかりました</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>更新が必要なファイルの一部が使用中です。</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive の準備ができました。</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>同期データベースが破損しています。このコンピューターのリンクを解除してから、もう一度リンクしてください。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>このコンピューターには、より新しいバージョンの Lumivo Drive がすでにインストールされています。このバージョンをインストールする前に、新しいバージョンを削除してください。</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>ようこそ</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>この共有フォルダーを同期</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>メインウィンドウを開く</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>現在の処理:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>アクセスを制限</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>このコンピューターに Lumivo Drive をインストールします。続行するには「次へ」を、セットアップを終了するには「キャンセル」をクリックしてください。</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>サーバーのアドレスまたは ZephLink ID と、ユーザー名、パスワードを入力してください。</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>フォルダー「%1」を作成できませんでした。パスと権限を確認してください。</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>エラーのためセットアップが終了しました。\nコンピューターに変更は加えられていません。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>サーバーのクォータを使い切りました。同期を続けるにはファイルを削除してください。</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>フォルダーフィルター</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>サーバーの証明書を検証できませんでした。接続設定で確認してください。</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>別のフォルダーを選択</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>Lumivo Drive はトレイからいつでも開くことができます。</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>ファイルが 2 か所で同時に変更されました。両方のバージョンが残されています。不要なほうを削除してください。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>サーバーの証明書が変更されました。接続設定で確認してください。</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>接続を暗号化 (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>フォルダー名</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>ファイルの共有リンクを作成して、だれにでも送信できます。必要に応じてパスワードや終了日も設定できます。</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>アカウントの確認コードを入力してください。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>Lumivo Drive をこのコンピューターから削除しようとしています。</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>ネットワークドライブ上の変更は検出できません。ローカルディスク上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>この名前のフォルダーはすでに存在します。別の名前を入力してください。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>金曜日</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>プロキシ設定</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>接続を編集</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>最新の状態</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>サーバーとの接続が切断されました。自動的に再接続されます。</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>権限なし</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>項目数: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>「%1」と「%2」の同期を停止しますか?\nファイルは削除されません。</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>ローカルフォルダーを変更</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>正常に接続できました。</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>セットアップ完了</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>トレイのアイコン</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同期モード</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>先月</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>以前のバージョンを参照</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 時間前</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>これらのルールに一致するファイルとフォルダーは同期されません。</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Lumivo Drive をこのコンピューターから削除します。同期されたファイルは残ります。</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>接続を管理</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>このディスクには十分な空き容量がありません。別のディスク上のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>除外するファイル名</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>木曜日</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>同期を再開</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近変更されたファイル</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP アドレス、ドメイン名、または ZephLink ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>コンテキストメニューに Lumivo Drive を表示</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>このバージョンの Lumivo Drive は古すぎます。このコンピューターで更新してください。</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>このフォルダーは同期できません。別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>ダウンロードがキャンセルされました。</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>ダウンロード回数を制限</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>ファイルに同期ステータスアイコンを表示</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>この項目は必須です。</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>チュートリアルを表示</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>別のサーバーにリンク</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>使用許諾契約の条項に同意しません</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>バージョンの不一致</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>最初のページ</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>インストール</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>アクセス拒否</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>6 桁の確認コードを入力してください</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>了解</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>ローカル同期フォルダーのあるディスクが接続されていません。同期を続けるにはディスクを接続してください。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>今後このメッセージを表示しない</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>今すぐ開始</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>ローカルネットワークを検索</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>プロキシを手動で設定</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>このフォルダー内のファイルは開くことができますが、変更はできません。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>失敗した回数が多すぎます。数分待ってから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>フォルダーが空ではありません。中のファイルはサーバー上のファイルと統合されます。</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>先週</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>ダウンロードが完了しました。</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>上書きまたは削除したバージョンを復元できます。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>日曜日</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>同期フォルダー</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>更新が必要</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>共有</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>火曜日</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>サインイン時に Lumivo Drive を起動</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>共有フォルダーの管理</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分前</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>この共有フォルダーは今後同期されません。このコンピューターにすでにあるファイルは残ります。</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>除外するファイル拡張子</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>リレー接続</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>サインイン失敗</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive には個別に選択できる機能はありません。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>管理者としてサインインしていません。Lumivo Drive は現在のユーザーにのみインストールされます。\n続行しますか?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>ファイルサービスがオフになっているため、共有リンクを作成できません。オンにするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>アプリケーションを閉じて、後で再起動を試みる</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>使用許諾契約</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>システムエラーのためフォルダーを確認できませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>このバージョンの Lumivo Drive はすでにインストールされています。もう一度インストールしますか?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>開始日を設定</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>この共有フォルダーはサーバーでマウントされていません。サーバーでマウントして、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>ローカルネットワーク</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>すべてのイベント</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>この接続のリンクを解除</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>接続が不安定です</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>このコンピューターとサーバーの間で、これらのフォルダーが常に同期されるようになりました。\n同期タスクはいつでも追加できます。</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>このフォルダーを同期しない</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>サーバーの証明書が変更されました。\n変更の理由がわかっている場合にのみ続行してください。</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>最大ファイルサイズ (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>最後に変更されたバージョンを残す</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>ローカルネットワーク上のサーバーを検索</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>お使いのアカウントではこのフォルダーを同期できません。権限を付与するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>たった今</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Lumivo Drive を修復する準備ができました。</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>このフォルダーは読み取りのみ可能です。このコンピューターでの変更はアップロードされません。</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>このフォルダーへのアクセス権がありません。権限を付与するよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>項目が見つかりません</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>ファイルを同期しています。その間も作業を続けることができます。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>サーバーの証明書を検証できませんでした。\nこのネットワークを信頼できる場合にのみ続行してください。</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>同期待ちのファイル: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Lumivo Drive へようこそ</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>終了日を設定</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>同期タスクを削除できませんでした。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>アイコンをクリックすると、同期中のファイルを確認できます。</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>同期フォルダー</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>サーバーの証明書を検証できませんでした。有効な証明書をインストールするよう管理者に依頼してください。</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>サーバーが別のものに置き換えられています。このコンピューターをもう一度リンクしてください。</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>次の手順に従って、このコンピューターをサーバーにリンクしてください。</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>プロキシサーバー</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>更新されたファイル</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>このまま続行</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>ローカルファイルのアイコン</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>利用できる操作はありません</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>同期が停止しました</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>ローカル同期フォルダー</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>サーバーがまだ「%1」のインデックスを作成しています。完了すると同期できるようになります。</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>ファイルが 2 か所で変更されたとき</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>フォルダー「%1」は空ではありません。\nそれでもこのフォルダーを使用しますか?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>フォルダーを変更</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>推奨設定でホームフォルダーを同期します。</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>フォルダーを読み込んでいます...</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>水曜日</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL 暗号化</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Lumivo Drive をインストールする準備ができました</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Lumivo Drive をインストールするときは、いつでもセットアッププログラムをもう一度実行してください。</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>サーバーのホームフォルダーがこのコンピューターと同期されるようになりました。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>サーバーの概要</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>同期を一時停止</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>土曜日</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>この共有フォルダーのクォータを使い切りました。同期を続けるにはファイルを削除してください。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>新しい同期タスク</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>ダウンロード履歴</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>ダウンロードしています...</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>新しい言語は、次に Lumivo Drive を起動したときから適用されます。</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Lumivo Drive をインストールしています</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>デスクトップ通知を表示</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>ほとんどのユーザーにはクイックセットアップが適しています。設定はすべて後で変更できます。</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>サーバーのディスクに空き容量がありません。</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>以前の状態に戻す</translation>
    </message>
</context>
</TS>
