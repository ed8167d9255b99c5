<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>請選擇要與您的伺服器同步的本機資料夾。</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>無法連上 ZephLink 服務。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>篩選規則</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>不允許使用掛載點</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密碼</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期範圍</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>您的伺服器上已沒有此共用資料夾。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>請輸入使用者名稱。</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>使用這些名稱的檔案將不會同步。</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>無法連線到您的伺服器。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>僅下載</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>您在此伺服器上的第一個同步工作</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>還原遺失或損壞的檔案、捷徑和登錄項目。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目的地</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>按一下這裡進行更新</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>資料夾路徑</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，謝謝</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>憑證警告</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>變更連線設定</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在測試連線...</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Lumivo Drive 安裝程式</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>安裝程式已準備好在這台電腦上安裝 Lumivo Drive。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共用資料夾</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>找不到可用的資料夾。請洽系統管理員，取得共用資料夾的存取權限。</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>無法啟用此共用資料夾的同步。請稍後再試。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>到</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編輯</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>恢復同步此資料夾</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 天前</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>資料夾「%1」是掛載點，無法同步。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>這台電腦已經連結到「%1」。請改為編輯現有的連線。</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>有可用的更新</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>請輸入 1 到 65535 之間的連接埠號碼。</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>開啟同步資料夾</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive 已安裝完成</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除連結</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>此資料夾與其他同步工作的資料夾重疊。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>無法列出您伺服器上的資料夾。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>需要處理</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>您伺服器的憑證已變更。請先確認憑證再繼續。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最後一頁</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>執行中</translation>
    </message>
    <message>
        <source>June</source>
        <translation>6月</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>更新失敗。請稍後再試。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>無法驗證您伺服器的憑證。</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>請稍候，這可能需要幾分鐘。</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>選擇要安裝的功能</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>無論在哪裡工作，檔案隨時在手</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>恢復同步這些資料夾</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>這台電腦的磁碟已滿。請釋出一些空間以繼續同步。</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>使用黑白的系統匣圖示</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>部分欄位填寫不正確。請修正後再試一次。</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>安裝已中斷。您的電腦沒有任何變更。</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>找不到資料夾</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>選擇要同步的資料夾</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>刪除</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>請選擇您伺服器上的資料夾，以及要與其同步的本機資料夾。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>狀態</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>略過名稱開頭為句點的檔案和資料夾</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自訂範圍</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>網際網路</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>使用者名稱或密碼不正確。請檢查後再試一次。</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>此位址屬於另一台伺服器。請檢查位址，然後再試一次。</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>檔案類型</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>選擇設定方式</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>您在伺服器上的配額已用完。請刪除一些檔案，或洽系統管理員取得更多空間。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>8月</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進度</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>正在啟動...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>關於</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>共用資料夾的數量已達上限。請先停止同步其中一個。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系統的代理伺服器設定</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>保留兩個版本，並重新命名本機版本</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>「%1」的同步已停止。請開啟 Lumivo Drive 查看詳細資料。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>同步方向與您對此資料夾的權限不符。請選擇其他方向。</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>更多詳細資料</translation>
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
        <translation>目前的 Lumivo Drive Server 版本過舊。請在您的伺服器上更新。</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>同步規則</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>無法下載此檔案。請檢查您在伺服器上的權限。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在連線...</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>不使用代理伺服器</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共用資料夾</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>恢復此連線</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>取得連結</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>選項</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>系統匣中的圖示讓您一眼就能看出檔案是否已同步。</translation>
    </message>
    <message>
        <source>From</source>
        <translation>從</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>重新連結</translation>
    </message>
    <message>
        <source>History</source>
        <translation>歷程記錄</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>唯讀</translation>
    </message>
    <message>
        <source>April</source>
        <translation>4月</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>網路設定</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>安裝程式正在套用您的選擇。</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>在此取消勾選的資料夾將從這台電腦移除，但會保留在您的伺服器上。</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>您伺服器的磁碟已滿。請在伺服器上釋出一些空間以繼續同步。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>下載失敗。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>儲存並複製連結</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>請輸入您伺服器的位址和您的帳號資訊。</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>開始使用</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>沒有要儲存的變更。</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 頁</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>若要在日後安裝 Lumivo Drive，請再次執行安裝程式。</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>在同步資料夾中的檔案上按一下滑鼠右鍵，即可分享檔案或查看舊版本。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>狀態資訊</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>無法啟動 Lumivo Drive。請重新啟動電腦，然後再試一次。</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>保留伺服器上的版本</translation>
    </message>
    <message>
        <source>January</source>
        <translation>1月</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>目前的 Lumivo Drive 版本對您的伺服器而言過舊。請更新到 %1 或更新的版本。</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>變更、修復或移除 Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>透過 ZephLink 連線</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>按一下「安裝」即可開始。按一下「上一步」檢視或變更您的選擇。按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>發生問題。請稍後再試。</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>我接受授權合約的條款</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>選擇性同步目前無法使用。請更新您伺服器上的 Lumivo Drive Server，才能使用此功能。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重新命名</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>此資料夾為唯讀</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>已準備好移除 Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>請選擇要與這台電腦同步的內容，以及存放的位置。</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上傳</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>您的存取權限已被撤銷，同步的檔案也已從這台電腦移除。請洽系統管理員。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待命</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上傳...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在套用設定...</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>請仔細閱讀以下授權合約。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>合併模式</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>不要同步這些資料夾</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>按一下「修復」即可開始。按一下「上一步」檢視您的選擇。按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>您無法寫入此資料夾。請變更其權限或選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>選擇性同步</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>使用者名稱</translation>
    </message>
    <message>
        <source>December</source>
        <translation>12月</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>請輸入 %1 到 %2 MB 之間的檔案大小。</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>要停止同步「%1」嗎？已在這台電腦上的檔案將會保留。</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速設定模式</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>進階設定模式</translation>
    </message>
    <message>
        <source>November</source>
        <translation>11月</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>選擇資料夾</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>伺服器位址</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>您在伺服器上的配額已用完。</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>按兩下系統匣圖示時</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive 正在初始化...</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在檢查檔案...</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>這台電腦現在已連結到「%1」，將立即開始同步。</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>讓一切保持同步</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>正在更新...</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>自訂期間</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>掌握同步狀態</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在載入...</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非作用中</translation>
    </message>
    <message>
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>下列應用程式正在使用安裝程式必須更新的檔案：</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>開啟 Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>請自行選擇資料夾、同步方向和同步規則。</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>修復已安裝的檔案</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>請輸入大於零的版本數量。</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>您的伺服器上沒有此使用者名稱。請檢查後再試一次。</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>更新 Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>深入了解</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>建立時間</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>讓這台電腦與您伺服器上的檔案保持同步。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>另一個雲端同步應用程式已在同步此資料夾。請選擇其他資料夾以避免衝突。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>電腦名稱</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>代理伺服器需要使用者名稱和密碼</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>伺服器未接受此要求。請檢查您輸入的內容，然後再試一次。</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>目前的 Lumivo Drive Server 版本對這台電腦上的 Lumivo Drive 而言過舊。請在您的伺服器上更新到 %1 或更新的版本。</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>傳送到</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>ZephLink 服務回報錯誤。請稍後再試。</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>請關閉這些應用程式並按一下「重試」，或按一下「忽略」並稍後重新啟動電腦。</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>讓您變更要安裝的功能。</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>要解除這台電腦與「%1」的連結嗎？\n已在這台電腦上的檔案將會保留。</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>此資料夾已用於備份工作。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>這台電腦的磁碟已滿。</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>此資料夾不是空的</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>開啟檔案所在資料夾</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>連線類型</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>此 ZephLink ID 不存在。請檢查後再試一次。</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>不要同步這些檔案</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>從這台電腦移除 Lumivo Drive</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>您的帳號需要兩步驟驗證。請先在伺服器上完成設定，再重新登入。</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>您伺服器上的檔案服務已關閉。請洽系統管理員開啟此服務。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已刪除</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>新增同步工作</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>與他人分享</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>已鎖定的檔案</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>不要關閉應用程式（稍後必須重新啟動電腦）</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>關於 Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>檔案服務已關閉</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>後 %1 頁</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>本機同步資料夾已被移動或刪除。請將其放回原處或選擇新的資料夾。</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>無法分享此檔案。請檢查您在伺服器上的權限。</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢復</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>按一下「完成」結束安裝程式。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>有效期間</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>暫停此連線</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>已分享給您。</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>使用中的檔案</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>安裝程式提前結束</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>您伺服器上透過 ZephLink 分享檔案的功能已關閉。請洽系統管理員開啟此功能。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>連結</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>單向同步（僅下載）</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>兩個資料夾中的檔案將會合併。</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>您伺服器上的此資料夾已與這台電腦同步。\n再建立一個同步工作將會佔用兩倍的磁碟空間。</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>安裝已中斷</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>驗證碼不正確。請輸入目前的驗證碼，然後再試一次。</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>雙向同步</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>新增</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>您的伺服器封鎖了這台電腦的位址。請洽系統管理員允許此位址連線。</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>正在檢查您的使用者名稱和密碼...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>歡迎使用 Lumivo Drive 安裝程式</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>最多可輸入 %1 個字元。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合併</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>同步所有的檔案屬性和權限</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>「%2」上有可用的共用資料夾「%1」。按一下這裡開始同步。</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>關鍵字</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>為 Lumivo Drive 建立空的資料夾</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>檔案篩選</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>您放入同步資料夾的所有內容，都會出現在您的伺服器和其他電腦上。</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>安裝程式可以變更、修復或移除 Lumivo Drive。按一下「下一步」繼續。</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>請選擇您伺服器上的資料夾和這台電腦上的資料夾。</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>請輸入代理伺服器的位址和連接埠。</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>正在監看變更...</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>套用</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>「%1」已更新</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>立即啟動 Lumivo Drive</translation>
    </message>
    <message>
        <source>March</source>
        <translation>3月</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>請選擇您要執行的作業。</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>您伺服器上的個人資料夾功能已關閉。請洽系統管理員開啟此功能。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步工作</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>已準備好修復 Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>已略過的檔案</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive 現已安裝在這台電腦上。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在準備...</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重試</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>系統語言</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>您的變更尚未儲存。\n要直接離開而不儲存嗎？</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>資料夾已在同步中</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>按一下「移除」從這台電腦移除 Lumivo Drive。按一下「上一步」檢視您的選擇。按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>歡迎再次使用 Lumivo Drive 安裝程式</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>直接連線</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>此資料夾已用於另一個同步工作。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>空間不足</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>正在載入共用資料夾...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在解除連結...</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>正在同步的檔案</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>您可以在日後變更所有設定。</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>顯示同步狀態</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>您伺服器上的資料夾尚未掛載。請在伺服器上掛載，然後再試一次。</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>以圖示標示已略過的檔案</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>正在檢查連線類型...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>內容不同的檔案會保留兩個版本。</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>此資料夾已在同步中。要再次新增嗎？</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>進階設定</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>無法列出此檔案的版本。請檢查您在伺服器上的權限。</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>無法解讀伺服器的回應。請更新 Lumivo Drive，然後再試一次。</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>確定要取消安裝 Lumivo Drive 嗎？</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>連接埠</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>在此位址找到另一台伺服器</translation>
    </message>
    <message>
        <source>July</source>
        <translation>7月</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>部分必須更新的檔案正在使用中。</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive 已準備就緒。</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>同步資料庫已損毀。請解除這台電腦的連結，然後重新連結。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>這台電腦已安裝較新版本的 Lumivo Drive。請先將其移除，再安裝此版本。</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>歡迎</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>同步此共用資料夾</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>開啟主視窗</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>目前步驟：</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>限制存取</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>安裝程式將在這台電腦上安裝 Lumivo Drive。按一下「下一步」繼續，或按一下「取消」結束安裝程式。</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>請輸入您伺服器的位址或 ZephLink ID，以及您的使用者名稱和密碼。</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>無法建立資料夾「%1」。請檢查路徑和您的權限。</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>安裝程式因發生錯誤而結束。\n您的電腦沒有任何變更。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>您在伺服器上的配額已用完。請刪除一些檔案以繼續同步。</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>資料夾篩選</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>無法驗證您伺服器的憑證。請在連線設定中檢查憑證。</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>選擇其他資料夾</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>您隨時可以從系統匣開啟 Lumivo Drive。</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>此檔案同時在兩個位置被變更，兩個版本均已保留。請刪除您不需要的版本。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>您伺服器的憑證已變更。請在連線設定中檢查憑證。</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>加密連線（SSL）</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>資料夾名稱</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>為檔案建立連結並傳送給任何人，還可以視需要設定密碼和結束日期。</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>請輸入您帳號的驗證碼。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>您已選擇從這台電腦移除 Lumivo Drive。</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>無法偵測網路磁碟機上的變更。請選擇本機磁碟上的資料夾。</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>已有同名的資料夾。請輸入其他名稱。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理伺服器設定</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>開啟檔案</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>編輯連線</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新狀態</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>與您伺服器的連線已中斷。連線將會自動恢復。</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>沒有權限</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下載</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>共 %1 個項目</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>要停止「%1」與「%2」的同步嗎？\n不會刪除任何檔案。</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>變更本機資料夾</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>連線正常。</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>設定完成</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>系統匣中的圖示</translation>
    </message>
    <message>
        <source>May</source>
        <translation>5月</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上個月</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>瀏覽舊版本</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 小時前</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>符合這些規則的檔案和資料夾不會同步。</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>從這台電腦移除 Lumivo Drive。您已同步的檔案會保留。</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>管理連線</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>此磁碟的空間不足。請選擇其他磁碟上的資料夾。</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>要略過的檔案名稱</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>恢復同步</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近變更的檔案</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP 位址、網域名稱或 ZephLink ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>在右鍵選單中顯示 Lumivo Drive</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>目前的 Lumivo Drive 版本過舊。請在這台電腦上更新。</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>無法同步此資料夾。請選擇其他資料夾。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>下載已取消。</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>限制下載次數</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>在檔案上顯示同步狀態圖示</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>此欄位為必填。</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>顯示教學</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>連結其他伺服器</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>我不接受授權合約的條款</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不符</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一頁</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安裝</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>拒絕存取</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>請輸入 6 位數的驗證碼</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>存放本機同步資料夾的磁碟尚未連接。請連接該磁碟以繼續同步。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不要再顯示此訊息</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即開始</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>搜尋區域網路</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>手動設定代理伺服器</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>您可以開啟此資料夾中的檔案，但無法變更。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>失敗次數過多。請等待幾分鐘，然後再試一次。</translation>
    </message>
    <message>
        <source>September</source>
        <translation>9月</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>此資料夾不是空的。其中的檔案將與您伺服器上的檔案合併。</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上週</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>下載完成。</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>您可以找回被覆寫或刪除的版本。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>同步資料夾</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>需要更新</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>分享</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>登入時啟動 Lumivo Drive</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>管理共用資料夾</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分鐘前</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>此共用資料夾將不再同步。已在這台電腦上的檔案將會保留。</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>要略過的副檔名</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>中繼</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>登入失敗</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive 沒有可個別選擇的功能。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>您不是以系統管理員身分登入。Lumivo Drive 只會為目前的使用者安裝。\n要繼續嗎？</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>檔案服務已關閉，因此無法建立連結。請洽系統管理員開啟此服務。</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>關閉應用程式，並在完成後嘗試重新啟動這些應用程式</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>授權合約</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>因系統錯誤而無法檢查此資料夾。請稍後再試。</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>已安裝此版本的 Lumivo Drive。要重新安裝嗎？</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>設定開始日期</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>此共用資料夾尚未在您的伺服器上掛載。請在伺服器上掛載，然後再試一次。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>區域網路</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>解除此連線的連結</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>連線不穩定</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>這些資料夾現在會在這台電腦和您的伺服器之間保持同步。\n您隨時可以新增更多同步工作。</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>不要同步此資料夾</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>您伺服器的憑證已變更。\n除非您知道原因，否則請勿繼續。</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>檔案大小上限（MB）</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>保留最後變更的版本</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>在區域網路上尋找伺服器</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>您的帳號未獲准同步此資料夾。請洽系統管理員取得權限。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>資料夾</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>剛剛</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>安裝程式已準備好修復 Lumivo Drive。</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>您只能讀取此資料夾。這台電腦上的變更將不會上傳。</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>您沒有此資料夾的存取權限。請洽系統管理員取得權限。</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>找不到任何記錄</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>您的檔案正在同步。在此期間您可以繼續工作。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>無法驗證您伺服器的憑證。\n除非您信任此網路，否則請勿繼續。</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>尚待同步的檔案：%1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>歡迎使用 Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>設定結束日期</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>無法移除同步工作。請稍後再試。</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>按一下圖示即可查看正在同步的檔案。</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>您的同步資料夾</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>無法驗證您伺服器的憑證。請洽系統管理員安裝有效的憑證。</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>伺服器已更換。請重新連結這台電腦。</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>請依照下列步驟將這台電腦連結到您的伺服器。</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理伺服器</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>已更新的檔案</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>仍要繼續</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜尋</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>本機檔案上的圖示</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>沒有可用的動作</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>檔案名稱</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>同步已停止</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>本機同步資料夾</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已停用</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>您的伺服器仍在為「%1」建立索引，完成後即可同步。</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>檔案在兩個位置都被變更時</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>資料夾「%1」不是空的。\n仍要使用嗎？</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>變更資料夾</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>以建議的設定同步您的個人資料夾。</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>正在載入資料夾...</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL 加密</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>已準備好安裝 Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>想要安裝 Lumivo Drive 時，隨時可以再次執行安裝程式。</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>您在伺服器上的個人資料夾現在會與這台電腦同步。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>伺服器概觀</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>暫停同步</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>此共用資料夾的配額已用完。請刪除一些檔案以繼續同步。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>您的新同步工作</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下載歷程記錄</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下載...</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>新語言將在下次啟動 Lumivo Drive 時生效。</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>正在安裝 Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>顯示桌面通知</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>快速設定模式適合大多數使用者。您可以在日後變更所有設定。</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>您伺服器的磁碟已滿。</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>回到先前的版本</translation>
    </message>
</context>
</TS>
