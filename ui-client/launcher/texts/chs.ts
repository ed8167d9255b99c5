<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>请选择要与您的服务器同步的本地文件夹。</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>无法连接到 ZephLink 服务。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>过滤规则</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>不允许使用挂载点</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>此共享文件夹在您的服务器上已不存在。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>请输入用户名。</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>使用这些名称的文件将不会同步。</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>无法连接到您的服务器。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>修复</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>仅下载</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>同步方向</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>您在此服务器上的第一个同步任务</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>恢复缺失或损坏的文件、快捷方式和注册表项。</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>目标位置</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>单击此处更新</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>文件夹路径</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>不用了，谢谢</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>证书警告</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>更改连接设置</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>正在测试连接...</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Lumivo Drive 安装程序</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>安装程序已准备好在这台电脑上安装 Lumivo Drive。</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>新的共享文件夹</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>未找到可用的文件夹。请联系管理员为您开通共享文件夹的访问权限。</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>无法为此共享文件夹启用同步。请稍后重试。</translation>
    </message>
    <message>
        <source>To</source>
        <translation>至</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>恢复同步此文件夹</translation>
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
        <translation>文件夹“%1”是挂载点，无法同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>这台电脑已绑定到“%1”。请改为编辑现有的连接。</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>请输入 1 到 65535 之间的端口号。</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>打开同步文件夹</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive 安装完成</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>解除绑定</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>此文件夹与其他同步任务的文件夹重叠。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>无法列出您服务器上的文件夹。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>需要处理</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>您服务器的证书已更改。请先核对证书再继续。</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>最后一页</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>June</source>
        <translation>六月</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>更新失败。请稍后重试。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>无法验证您服务器的证书。</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>请稍候，这可能需要几分钟时间。</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>选择要安装的功能</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>无论在哪里工作，文件触手可及</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>恢复同步这些文件夹</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>这台电脑的磁盘已满。请释放一些空间以继续同步。</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>使用黑白托盘图标</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>部分内容填写有误。请更正后重试。</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>安装已中断。您的电脑未发生任何更改。</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>未找到文件夹</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>选择要同步的文件夹</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>请选择您服务器上的文件夹，以及要与其同步的本地文件夹。</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>跳过名称以点开头的文件和文件夹</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>自定义范围</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>互联网</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>用户名或密码不正确。请检查后重试。</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>此地址属于另一台服务器。请检查地址，然后重试。</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>选择配置方式</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>您在服务器上的配额已用完。请删除一些文件，或联系管理员获取更多空间。</translation>
    </message>
    <message>
        <source>August</source>
        <translation>八月</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>正在启动...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>共享文件夹数量已达上限。请先停止同步其中一个。</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>使用系统代理设置</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>保留两个版本，并重命名本地版本</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>“%1”的同步已停止。请打开 Lumivo Drive 查看详细信息。</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>同步方向与您对此文件夹的权限不匹配。请选择其他方向。</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>更多详细信息</translation>
    </message>
    <message>
        <source>October</source>
        <translation>十月</translation>
    </message>
    <message>
        <source>February</source>
        <translation>二月</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>当前 Lumivo Drive Server 版本过旧。请在您的服务器上更新。</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>同步规则</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>无法下载此文件。请检查您在服务器上的权限。</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>不使用代理</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>共享文件夹</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>恢复此连接</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>获取链接</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>系统托盘中的图标让您一眼就能看出文件是否已同步。</translation>
    </message>
    <message>
        <source>From</source>
        <translation>从</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>重新绑定</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
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
        <translation>只读</translation>
    </message>
    <message>
        <source>April</source>
        <translation>四月</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>网络设置</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>安装程序正在应用您的选择。</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>在此处取消勾选的文件夹将从这台电脑上移除，但会保留在您的服务器上。</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>您服务器的磁盘已满。请在服务器上释放一些空间以继续同步。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>下载失败。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>保存并复制链接</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>请输入您的服务器地址和账号信息。</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>开始使用</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>没有需要保存的更改。</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>前 %1 页</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>如果以后要安装 Lumivo Drive，请再次运行安装程序。</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>右键单击同步文件夹中的文件，即可分享文件或查看历史版本。</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>昨天</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>状态信息</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>无法启动 Lumivo Drive。请重启电脑，然后重试。</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>保留服务器上的版本</translation>
    </message>
    <message>
        <source>January</source>
        <translation>一月</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>当前 Lumivo Drive 版本对您的服务器来说过旧。请更新到 %1 或更高版本。</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>更改、修复或移除 Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>通过 ZephLink 连接</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>单击“安装”开始安装。单击“上一步”查看或更改您的选择。单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>出现问题。请稍后重试。</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>我接受许可协议中的条款</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>选择性同步暂不可用。要使用此功能，请更新您服务器上的 Lumivo Drive Server。</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>已重命名</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>此文件夹为只读</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>已准备好移除 Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>请选择要与这台电脑同步的内容及其存放位置。</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>已上传</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>您的访问权限已被撤销，同步的文件也已从这台电脑上移除。请联系管理员。</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>待机</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>正在上传...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>正在应用设置...</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>请仔细阅读以下许可协议。</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>合并模式</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>不同步这些文件夹</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>单击“修复”开始修复。单击“上一步”查看您的选择。单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>您无法写入此文件夹。请更改其权限或选择其他文件夹。</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>选择性同步</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>December</source>
        <translation>十二月</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>请输入 %1 到 %2 MB 之间的文件大小。</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>要停止同步“%1”吗？这台电脑上已有的文件将会保留。</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>快速配置</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>高级配置</translation>
    </message>
    <message>
        <source>November</source>
        <translation>十一月</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>服务器地址</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>您在服务器上的配额已用完。</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>双击托盘图标时</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive 正在初始化...</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>正在检查文件...</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>这台电脑现已绑定到“%1”，同步将立即开始。</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>一切保持同步</translation>
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
        <translation>自定义时长</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>随时了解同步状态</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>正在加载...</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>以下应用程序正在使用安装程序需要更新的文件：</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>打开 Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>请自行选择文件夹、同步方向和同步规则。</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>修复已安装的文件</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>请输入大于零的版本数。</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>您的服务器上不存在此用户名。请检查后重试。</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>更新 Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>了解更多</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>让这台电脑与您服务器上的文件保持同步。</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>其他云同步应用已在同步此文件夹。请选择其他文件夹以避免冲突。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>电脑名称</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>代理服务器需要用户名和密码</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>服务器未接受该请求。请检查您输入的内容，然后重试。</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>当前 Lumivo Drive Server 版本对这台电脑上的 Lumivo Drive 来说过旧。请在您的服务器上更新到 %1 或更高版本。</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>发送到</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>ZephLink 服务报告了错误。请稍后重试。</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>请关闭这些应用程序并单击“重试”，或者单击“忽略”并稍后重启电脑。</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>可以更改要安装的功能。</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>要解除这台电脑与“%1”的绑定吗？\n这台电脑上已有的文件将会保留。</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>此文件夹已被某个备份任务使用。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>这台电脑的磁盘已满。</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>此文件夹不为空</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>打开所在文件夹</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>连接类型</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>此 ZephLink ID 不存在。请检查后重试。</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>不同步这些文件</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>从这台电脑上移除 Lumivo Drive</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>您的账号需要两步验证。请先在服务器上完成设置，然后重新登录。</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>您服务器上的文件服务已关闭。请联系管理员将其开启。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>添加同步任务</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>与他人分享</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>已锁定的文件</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>不关闭应用程序（稍后需要重启电脑）</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>关于 Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>文件服务已关闭</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>后 %1 页</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>本地同步文件夹已被移动或删除。请将其放回原处或选择新的文件夹。</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>无法分享此文件。请检查您在服务器上的权限。</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>单击“完成”退出安装程序。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>有效期</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>暂停此连接</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>已分享给您。</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>正在使用的文件</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>安装程序提前结束</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>您服务器上通过 ZephLink 分享文件的功能已关闭。请联系管理员将其开启。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>单向同步（仅下载）</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>两个文件夹中的文件将会合并。</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>您服务器上的此文件夹已与这台电脑同步。\n再创建一个同步任务将占用双倍的磁盘空间。</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>安装已中断</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>验证码不正确。请输入当前的验证码，然后重试。</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>双向同步</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>您的服务器屏蔽了这台电脑的地址。请联系管理员允许此地址访问。</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>正在验证您的用户名和密码...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>欢迎使用 Lumivo Drive 安装程序</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>最多可输入 %1 个字符。</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>同步所有文件属性和权限</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>“%2”上有可用的共享文件夹“%1”。单击此处即可同步。</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>为 Lumivo Drive 创建空文件夹</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>文件过滤</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>您放入同步文件夹的所有内容都会出现在您的服务器和其他电脑上。</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>安装程序可以更改、修复或移除 Lumivo Drive。单击“下一步”继续。</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>请选择您服务器上的文件夹和这台电脑上的文件夹。</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>请输入代理服务器的地址和端口。</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>正在监视更改...</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>更改</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>“%1”已更新</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>立即启动 Lumivo Drive</translation>
    </message>
    <message>
        <source>March</source>
        <translation>三月</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>请选择您要执行的操作。</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>您服务器上的个人文件夹功能已关闭。请联系管理员将其开启。</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>同步任务</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>已准备好修复 Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>已跳过的文件</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive 现已安装到这台电脑上。</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>正在准备...</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>系统语言</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>您的更改尚未保存。\n要直接离开而不保存吗？</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>文件夹已在同步中</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>正在同步...</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>单击“移除”从这台电脑上移除 Lumivo Drive。单击“上一步”查看您的选择。单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>欢迎再次使用 Lumivo Drive 安装程序</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>直连</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>此文件夹已被其他同步任务使用。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>空间不足</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>正在加载共享文件夹...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>正在解除绑定...</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>正在同步的文件</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>您可以稍后更改所有设置。</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>显示同步状态</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>您服务器上的文件夹未挂载。请在服务器上挂载，然后重试。</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>用图标标记已跳过的文件</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>正在检查连接类型...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>内容不同的文件将保留两个版本。</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>此文件夹已在同步中。要再次添加吗？</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>高级设置</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>无法列出此文件的版本。请检查您在服务器上的权限。</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>无法识别服务器的响应。请更新 Lumivo Drive，然后重试。</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>确定要取消安装 Lumivo Drive 吗？</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>在此地址发现了另一台服务器</translation>
    </message>
    <message>
        <source>July</source>
        <translation>七月</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>部分需要更新的文件正在使用中。</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive 已准备就绪。</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>同步数据库已损坏。请解除这台电脑的绑定，然后重新绑定。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>这台电脑上已安装较新版本的 Lumivo Drive。请先将其移除，再安装此版本。</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>同步此共享文件夹</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>打开主窗口</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>当前步骤：</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>限制访问</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>安装程序将在这台电脑上安装 Lumivo Drive。单击“下一步”继续，或单击“取消”退出安装程序。</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>请输入您的服务器地址或其 ZephLink ID，以及您的用户名和密码。</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>无法创建文件夹“%1”。请检查路径和您的权限。</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>安装程序因出错而结束。\n您的电脑未发生任何更改。</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>您在服务器上的配额已用完。请删除一些文件以继续同步。</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>文件夹过滤</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>无法验证您服务器的证书。请在连接设置中检查证书。</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>选择其他文件夹</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>您可以随时从系统托盘打开 Lumivo Drive。</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>此文件在两处同时被更改，两个版本均已保留。请删除您不需要的版本。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>您服务器的证书已更改。请在连接设置中检查证书。</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>加密连接（SSL）</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>文件夹名称</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>为文件创建链接并发送给任何人，还可以根据需要设置密码和结束日期。</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>请输入您账号的验证码。</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>您已选择从这台电脑上移除 Lumivo Drive。</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>无法检测网络驱动器上的更改。请选择本地磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>同名文件夹已存在。请输入其他名称。</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>代理设置</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>编辑连接</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>已是最新状态</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>与您服务器的连接已断开，稍后将自动恢复。</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>没有权限</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>已下载</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>共 %1 项</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>要停止“%1”与“%2”的同步吗？\n不会删除任何文件。</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>更改本地文件夹</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>连接正常。</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>配置完成</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>系统托盘中的图标</translation>
    </message>
    <message>
        <source>May</source>
        <translation>五月</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>同步模式</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>浏览历史版本</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 小时前</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>符合这些规则的文件和文件夹不会同步。</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>从这台电脑上移除 Lumivo Drive。您已同步的文件会保留。</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>管理连接</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>此磁盘空间不足。请选择其他磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>要跳过的文件名</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>恢复同步</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>最近更改的文件</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP 地址、域名或 ZephLink ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>在右键菜单中显示 Lumivo Drive</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>当前 Lumivo Drive 版本过旧。请在这台电脑上更新。</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>此文件夹无法同步。请选择其他文件夹。</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>下载已取消。</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>限制下载次数</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>在文件上显示同步状态图标</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>此项为必填项。</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>显示教程</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>绑定其他服务器</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>我不接受许可协议中的条款</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>版本不匹配</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>第一页</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>安装</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>拒绝访问</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>请输入 6 位验证码</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>知道了</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>本地同步文件夹所在的磁盘未连接。请连接该磁盘以继续同步。</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>不再显示此消息</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>搜索局域网</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>手动设置代理</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>您可以打开此文件夹中的文件，但不能更改它们。</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>失败次数过多。请等待几分钟，然后重试。</translation>
    </message>
    <message>
        <source>September</source>
        <translation>九月</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>此文件夹不为空。其中的文件将与您服务器上的文件合并。</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>上周</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>下载已完成。</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>您可以找回被覆盖或删除的版本。</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>同步文件夹</translation>
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
        <translation>登录时启动 Lumivo Drive</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>管理共享文件夹</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 分钟前</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>此共享文件夹将不再同步。这台电脑上已有的文件将会保留。</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>要跳过的文件扩展名</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>中继</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>登录失败</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive 没有可单独选择的功能。</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>您未以管理员身份登录。Lumivo Drive 将仅为当前用户安装。\n要继续吗？</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>由于文件服务已关闭，无法创建链接。请联系管理员将其开启。</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>关闭应用程序，并在完成后尝试重新启动这些应用程序</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>许可协议</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>由于系统错误，无法检查此文件夹。请稍后重试。</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>已安装此版本的 Lumivo Drive。要重新安装吗？</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>设置开始日期</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>管理</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>此共享文件夹未在您的服务器上挂载。请在服务器上挂载，然后重试。</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>局域网</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>所有事件</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>解除此连接的绑定</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>连接不稳定</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>这些文件夹现在会在这台电脑和您的服务器之间保持同步。\n您可以随时添加更多同步任务。</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>不同步此文件夹</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>您服务器的证书已更改。\n除非您清楚原因，否则请勿继续。</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>最大文件大小（MB）</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>保留最后更改的版本</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>在局域网中查找服务器</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>您的账号无权同步此文件夹。请联系管理员获取权限。</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>刚刚</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>安装程序已准备好修复 Lumivo Drive。</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>您只能读取此文件夹。这台电脑上的更改将不会上传。</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>您无权访问此文件夹。请联系管理员获取权限。</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>未找到任何记录</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>您的文件正在同步。在此期间您可以继续工作。</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>无法验证您服务器的证书。\n除非您信任此网络，否则请勿继续。</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>待同步的文件：%1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>欢迎使用 Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>设置结束日期</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>无法移除同步任务。请稍后重试。</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>单击图标即可查看正在同步的文件。</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>您的同步文件夹</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>无法验证您服务器的证书。请联系管理员安装有效的证书。</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>服务器已更换。请重新绑定这台电脑。</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>请按照以下步骤将这台电脑绑定到您的服务器。</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>代理服务器</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>已更新的文件</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>仍要继续</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>本地文件上的图标</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>没有可用的操作</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>同步已停止</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>本地同步文件夹</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>您的服务器仍在为“%1”建立索引，完成后即可同步。</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>文件在两处都被更改时</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>文件夹“%1”不为空。\n仍要使用吗？</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>更改文件夹</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>使用推荐设置同步您的个人文件夹。</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>正在加载文件夹...</translation>
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
        <translation>已准备好安装 Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>需要安装 Lumivo Drive 时，可随时再次运行安装程序。</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>您在服务器上的个人文件夹现在会与这台电脑同步。</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>服务器概览</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>暂停同步</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>此共享文件夹的配额已用完。请删除一些文件以继续同步。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>您的新同步任务</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>下载历史记录</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>正在下载...</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>新语言将在下次启动 Lumivo Drive 时生效。</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>正在安装 Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>显示桌面通知</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>快速配置适合大多数用户。您可以稍后更改所有设置。</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>您服务器的磁盘已满。</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>找回过去的版本</translation>
    </message>
</context>
</TS>
