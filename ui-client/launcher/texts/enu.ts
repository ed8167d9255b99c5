<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>global</name>
    <message>
        <source>Select the local folder that you want to sync with your server.</source>
        <translation>Select the local folder that you want to sync with your server.</translation>
    </message>
    <message>
        <source>Could not reach the ZephLink service. Check your network connection and try again.</source>
        <translation>Could not reach the ZephLink service. Check your network connection and try again.</translation>
    </message>
    <message>
        <source>Filter rules</source>
        <translation>Filter rules</translation>
    </message>
    <message>
        <source>Mount point not allowed</source>
        <translation>Mount point not allowed</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Date range</source>
        <translation>Date range</translation>
    </message>
    <message>
        <source>This shared folder no longer exists on your server. Select another folder.</source>
        <translation>This shared folder no longer exists on your server. Select another folder.</translation>
    </message>
    <message>
        <source>Enter your username.</source>
        <translation>Enter your username.</translation>
    </message>
    <message>
        <source>Files with these names will not be synced.</source>
        <translation>Files with these names will not be synced.</translation>
    </message>
    <message>
        <source>Could not connect to your server. Check your network connection and try again.</source>
        <translation>Could not connect to your server. Check your network connection and try again.</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Repair</translation>
    </message>
    <message>
        <source>Download only</source>
        <translation>Download only</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>Sync direction</source>
        <translation>Sync direction</translation>
    </message>
    <message>
        <source>Your first sync task on this server</source>
        <translation>Your first sync task on this server</translation>
    </message>
    <message>
        <source>Restores missing or damaged files, shortcuts and registry entries.</source>
        <translation>Restores missing or damaged files, shortcuts and registry entries.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Click here to update</source>
        <translation>Click here to update</translation>
    </message>
    <message>
        <source>Folder path</source>
        <translation>Folder path</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Shared folders</source>
        <translation>Shared folders</translation>
    </message>
    <message>
        <source>No, thanks</source>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Certificate warning</source>
        <translation>Certificate warning</translation>
    </message>
    <message>
        <source>Change connection settings</source>
        <translation>Change connection settings</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>Testing the connection...</translation>
    </message>
    <message>
        <source>Lumivo Drive Setup</source>
        <translation>Lumivo Drive Setup</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Setup is ready to install Lumivo Drive on this computer.</source>
        <translation>Setup is ready to install Lumivo Drive on this computer.</translation>
    </message>
    <message>
        <source>New shared folder</source>
        <translation>New shared folder</translation>
    </message>
    <message>
        <source>No usable folder was found. Ask your administrator for access to a shared folder.</source>
        <translation>No usable folder was found. Ask your administrator for access to a shared folder.</translation>
    </message>
    <message>
        <source>Could not enable syncing for this shared folder. Try again later.</source>
        <translation>Could not enable syncing for this shared folder. Try again later.</translation>
    </message>
    <message>
        <source>To</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Sync this folder again</source>
        <translation>Sync this folder again</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>%1 d ago</source>
        <translation>%1 d ago</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</source>
        <translation>The folder &quot;%1&quot; is a mount point and cannot be synced. Select another folder.</translation>
    </message>
    <message>
        <source>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</source>
        <translation>This computer is already linked to &quot;%1&quot;. Edit the existing connection instead.</translation>
    </message>
    <message>
        <source>Update available</source>
        <translation>Update available</translation>
    </message>
    <message>
        <source>Enter a port number from 1 to 65535.</source>
        <translation>Enter a port number from 1 to 65535.</translation>
    </message>
    <message>
        <source>Open sync folder</source>
        <translation>Open sync folder</translation>
    </message>
    <message>
        <source>Lumivo Drive has been installed</source>
        <translation>Lumivo Drive has been installed</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>Unlink</translation>
    </message>
    <message>
        <source>This folder overlaps with the folder of another sync task. Select another folder.</source>
        <translation>This folder overlaps with the folder of another sync task. Select another folder.</translation>
    </message>
    <message>
        <source>The folders on your server could not be listed. Check your network connection and try again.</source>
        <translation>The folders on your server could not be listed. Check your network connection and try again.</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>Needs attention</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it before you continue.</source>
        <translation>Your server&apos;s certificate has changed. Check it before you continue.</translation>
    </message>
    <message>
        <source>Last page</source>
        <translation>Last page</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Running</translation>
    </message>
    <message>
        <source>June</source>
        <translation>June</translation>
    </message>
    <message>
        <source>The update failed. Try again later.</source>
        <translation>The update failed. Try again later.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.</source>
        <translation>Your server&apos;s certificate could not be verified.</translation>
    </message>
    <message>
        <source>Please wait. This may take several minutes.</source>
        <translation>Please wait. This may take several minutes.</translation>
    </message>
    <message>
        <source>Choose which features are installed</source>
        <translation>Choose which features are installed</translation>
    </message>
    <message>
        <source>Your files, wherever you work</source>
        <translation>Your files, wherever you work</translation>
    </message>
    <message>
        <source>Sync these folders again</source>
        <translation>Sync these folders again</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full. Free up some space to continue syncing.</source>
        <translation>This computer&apos;s disk is full. Free up some space to continue syncing.</translation>
    </message>
    <message>
        <source>Use a black-and-white tray icon</source>
        <translation>Use a black-and-white tray icon</translation>
    </message>
    <message>
        <source>Some fields are not filled in correctly. Correct them and try again.</source>
        <translation>Some fields are not filled in correctly. Correct them and try again.</translation>
    </message>
    <message>
        <source>Setup was interrupted. Your computer has not been changed.</source>
        <translation>Setup was interrupted. Your computer has not been changed.</translation>
    </message>
    <message>
        <source>Folder not found</source>
        <translation>Folder not found</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Choose the folders to sync</source>
        <translation>Choose the folders to sync</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Choose a folder on your server and the local folder to sync it with.</source>
        <translation>Choose a folder on your server and the local folder to sync it with.</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Skip files and folders whose names start with a dot</source>
        <translation>Skip files and folders whose names start with a dot</translation>
    </message>
    <message>
        <source>Custom range</source>
        <translation>Custom range</translation>
    </message>
    <message>
        <source>Internet</source>
        <translation>Internet</translation>
    </message>
    <message>
        <source>The username or password is incorrect. Check both and try again.</source>
        <translation>The username or password is incorrect. Check both and try again.</translation>
    </message>
    <message>
        <source>This address belongs to another server. Check the address and try again.</source>
        <translation>This address belongs to another server. Check the address and try again.</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>File type</translation>
    </message>
    <message>
        <source>Choose a setup type</source>
        <translation>Choose a setup type</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>Monday</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files or ask your administrator for more space.</source>
        <translation>Your quota on the server is used up. Delete some files or ask your administrator for more space.</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Starting...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>The maximum number of shared folders has been reached. Stop syncing one of them first.</source>
        <translation>The maximum number of shared folders has been reached. Stop syncing one of them first.</translation>
    </message>
    <message>
        <source>Use the system proxy settings</source>
        <translation>Use the system proxy settings</translation>
    </message>
    <message>
        <source>Keep both versions and rename the local one</source>
        <translation>Keep both versions and rename the local one</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</source>
        <translation>&quot;%1&quot; has stopped syncing. Open Lumivo Drive for details.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>ZephLink ID</source>
        <translation>ZephLink ID</translation>
    </message>
    <message>
        <source>The sync direction does not match your permissions for this folder. Choose another direction.</source>
        <translation>The sync direction does not match your permissions for this folder. Choose another direction.</translation>
    </message>
    <message>
        <source>More details</source>
        <translation>More details</translation>
    </message>
    <message>
        <source>October</source>
        <translation>October</translation>
    </message>
    <message>
        <source>February</source>
        <translation>February</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old. Update it on your server.</source>
        <translation>This version of Lumivo Drive Server is too old. Update it on your server.</translation>
    </message>
    <message>
        <source>Sync rules</source>
        <translation>Sync rules</translation>
    </message>
    <message>
        <source>This file cannot be downloaded. Check your permissions on the server.</source>
        <translation>This file cannot be downloaded. Check your permissions on the server.</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Do not use a proxy</source>
        <translation>Do not use a proxy</translation>
    </message>
    <message>
        <source>Shared folder</source>
        <translation>Shared folder</translation>
    </message>
    <message>
        <source>Resume this connection</source>
        <translation>Resume this connection</translation>
    </message>
    <message>
        <source>Get link</source>
        <translation>Get link</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>The icon in the tray shows at a glance whether your files are in sync.</source>
        <translation>The icon in the tray shows at a glance whether your files are in sync.</translation>
    </message>
    <message>
        <source>From</source>
        <translation>From</translation>
    </message>
    <message>
        <source>Link again</source>
        <translation>Link again</translation>
    </message>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>Network settings</source>
        <translation>Network settings</translation>
    </message>
    <message>
        <source>Setup is applying your choices.</source>
        <translation>Setup is applying your choices.</translation>
    </message>
    <message>
        <source>Folders that you deselect here will be removed from this computer. They will remain on your server.</source>
        <translation>Folders that you deselect here will be removed from this computer. They will remain on your server.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full. Free up some space on it to continue syncing.</source>
        <translation>Your server&apos;s disk is full. Free up some space on it to continue syncing.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>The download failed. Check your network connection and try again.</source>
        <translation>The download failed. Check your network connection and try again.</translation>
    </message>
    <message>
        <source>Lumivo Drive</source>
        <translation>Lumivo Drive</translation>
    </message>
    <message>
        <source>Save and copy link</source>
        <translation>Save and copy link</translation>
    </message>
    <message>
        <source>Enter your server&apos;s address and your account details.</source>
        <translation>Enter your server&apos;s address and your account details.</translation>
    </message>
    <message>
        <source>Let&apos;s get started</source>
        <translation>Let&apos;s get started</translation>
    </message>
    <message>
        <source>There are no changes to save.</source>
        <translation>There are no changes to save.</translation>
    </message>
    <message>
        <source>Previous %1 pages</source>
        <translation>Previous %1 pages</translation>
    </message>
    <message>
        <source>To install Lumivo Drive later, run Setup again.</source>
        <translation>To install Lumivo Drive later, run Setup again.</translation>
    </message>
    <message>
        <source>Right-click a file in a synced folder to share it or to see its earlier versions.</source>
        <translation>Right-click a file in a synced folder to share it or to see its earlier versions.</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Yesterday</translation>
    </message>
    <message>
        <source>Status information</source>
        <translation>Status information</translation>
    </message>
    <message>
        <source>Lumivo Drive could not be started. Restart the computer and try again.</source>
        <translation>Lumivo Drive could not be started. Restart the computer and try again.</translation>
    </message>
    <message>
        <source>Keep the version on the server</source>
        <translation>Keep the version on the server</translation>
    </message>
    <message>
        <source>January</source>
        <translation>January</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</source>
        <translation>This version of Lumivo Drive is too old for your server. Update it to version %1 or later.</translation>
    </message>
    <message>
        <source>Change, repair or remove Lumivo Drive</source>
        <translation>Change, repair or remove Lumivo Drive</translation>
    </message>
    <message>
        <source>Connect through ZephLink</source>
        <translation>Connect through ZephLink</translation>
    </message>
    <message>
        <source>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</source>
        <translation>Click Install to begin. Click Back to review or change your choices. Click Cancel to exit Setup.</translation>
    </message>
    <message>
        <source>Something went wrong. Try again later.</source>
        <translation>Something went wrong. Try again later.</translation>
    </message>
    <message>
        <source>I accept the terms of the license agreement</source>
        <translation>I accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</source>
        <translation>Selective sync is not available yet. Update Lumivo Drive Server on your server to use it.</translation>
    </message>
    <message>
        <source>Renamed</source>
        <translation>Renamed</translation>
    </message>
    <message>
        <source>This folder is read-only</source>
        <translation>This folder is read-only</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Ready to remove Lumivo Drive</source>
        <translation>Ready to remove Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose what to sync with this computer and where to keep it.</source>
        <translation>Choose what to sync with this computer and where to keep it.</translation>
    </message>
    <message>
        <source>Uploaded</source>
        <translation>Uploaded</translation>
    </message>
    <message>
        <source>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</source>
        <translation>Your access was revoked, and the synced files were removed from this computer. Contact your administrator.</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>Standby</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Uploading...</source>
        <translation>Uploading...</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Applying settings...</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>Please read the following license agreement carefully.</translation>
    </message>
    <message>
        <source>Merge mode</source>
        <translation>Merge mode</translation>
    </message>
    <message>
        <source>Do not sync these folders</source>
        <translation>Do not sync these folders</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup.</translation>
    </message>
    <message>
        <source>You cannot write to this folder. Change its permissions or select another folder.</source>
        <translation>You cannot write to this folder. Change its permissions or select another folder.</translation>
    </message>
    <message>
        <source>Selective sync</source>
        <translation>Selective sync</translation>
    </message>
    <message>
        <source>Username</source>
        <translation>Username</translation>
    </message>
    <message>
        <source>December</source>
        <translation>December</translation>
    </message>
    <message>
        <source>Enter a file size from %1 to %2 MB.</source>
        <translation>Enter a file size from %1 to %2 MB.</translation>
    </message>
    <message>
        <source>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</source>
        <translation>Stop syncing &quot;%1&quot;? The files that are already on this computer will be kept.</translation>
    </message>
    <message>
        <source>Quick setup</source>
        <translation>Quick setup</translation>
    </message>
    <message>
        <source>Advanced setup</source>
        <translation>Advanced setup</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>Select a folder</source>
        <translation>Select a folder</translation>
    </message>
    <message>
        <source>Server address</source>
        <translation>Server address</translation>
    </message>
    <message>
        <source>Your quota on the server is used up.</source>
        <translation>Your quota on the server is used up.</translation>
    </message>
    <message>
        <source>When the tray icon is double-clicked</source>
        <translation>When the tray icon is double-clicked</translation>
    </message>
    <message>
        <source>Lumivo Drive is initializing...</source>
        <translation>Lumivo Drive is initializing...</translation>
    </message>
    <message>
        <source>Checking files...</source>
        <translation>Checking files...</translation>
    </message>
    <message>
        <source>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</source>
        <translation>This computer is now linked to &quot;%1&quot;. Syncing starts right away.</translation>
    </message>
    <message>
        <source>Everything in sync</source>
        <translation>Everything in sync</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>Updating...</translation>
    </message>
    <message>
        <source>Custom period</source>
        <translation>Custom period</translation>
    </message>
    <message>
        <source>Check the sync status</source>
        <translation>Check the sync status</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>The following applications are using files that Setup needs to update:</source>
        <translation>The following applications are using files that Setup needs to update:</translation>
    </message>
    <message>
        <source>Open Lumivo Drive</source>
        <translation>Open Lumivo Drive</translation>
    </message>
    <message>
        <source>Choose the folders, the sync direction and the sync rules yourself.</source>
        <translation>Choose the folders, the sync direction and the sync rules yourself.</translation>
    </message>
    <message>
        <source>Repair the installed files</source>
        <translation>Repair the installed files</translation>
    </message>
    <message>
        <source>Enter a number of versions greater than zero.</source>
        <translation>Enter a number of versions greater than zero.</translation>
    </message>
    <message>
        <source>This username does not exist on your server. Check it and try again.</source>
        <translation>This username does not exist on your server. Check it and try again.</translation>
    </message>
    <message>
        <source>Update Lumivo Drive</source>
        <translation>Update Lumivo Drive</translation>
    </message>
    <message>
        <source>Learn more</source>
        <translation>Learn more</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>Created</translation>
    </message>
    <message>
        <source>Keep the files on this computer and on your server in sync.</source>
        <translation>Keep the files on this computer and on your server in sync.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</source>
        <translation>This folder is already synced by another cloud sync app. Select another folder to avoid conflicts.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Computer name</source>
        <translation>Computer name</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>The proxy requires a username and a password</source>
        <translation>The proxy requires a username and a password</translation>
    </message>
    <message>
        <source>The server did not accept the request. Check your entries and try again.</source>
        <translation>The server did not accept the request. Check your entries and try again.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</source>
        <translation>This version of Lumivo Drive Server is too old for Lumivo Drive on this computer. Update it on your server to version %1 or later.</translation>
    </message>
    <message>
        <source>Send to</source>
        <translation>Send to</translation>
    </message>
    <message>
        <source>The ZephLink service reported an error. Try again later.</source>
        <translation>The ZephLink service reported an error. Try again later.</translation>
    </message>
    <message>
        <source>Close these applications and click Retry, or click Ignore and restart the computer later.</source>
        <translation>Close these applications and click Retry, or click Ignore and restart the computer later.</translation>
    </message>
    <message>
        <source>Lets you change which features are installed.</source>
        <translation>Lets you change which features are installed.</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</source>
        <translation>Do you want to unlink this computer from &quot;%1&quot;?\nThe files that are already on this computer will be kept.</translation>
    </message>
    <message>
        <source>This folder is used by a backup task. Select another folder.</source>
        <translation>This folder is used by a backup task. Select another folder.</translation>
    </message>
    <message>
        <source>This computer&apos;s disk is full.</source>
        <translation>This computer&apos;s disk is full.</translation>
    </message>
    <message>
        <source>This folder is not empty</source>
        <translation>This folder is not empty</translation>
    </message>
    <message>
        <source>Open containing folder</source>
        <translation>Open containing folder</translation>
    </message>
    <message>
        <source>Connection type</source>
        <translation>Connection type</translation>
    </message>
    <message>
        <source>This ZephLink ID does not exist. Check it and try again.</source>
        <translation>This ZephLink ID does not exist. Check it and try again.</translation>
    </message>
    <message>
        <source>Do not sync these files</source>
        <translation>Do not sync these files</translation>
    </message>
    <message>
        <source>Remove Lumivo Drive from this computer</source>
        <translation>Remove Lumivo Drive from this computer</translation>
    </message>
    <message>
        <source>Your account requires two-step verification. Set it up on your server, then sign in again.</source>
        <translation>Your account requires two-step verification. Set it up on your server, then sign in again.</translation>
    </message>
    <message>
        <source>The file service is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>The file service is turned off on your server. Ask your administrator to turn it on.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Deleted</source>
        <translation>Deleted</translation>
    </message>
    <message>
        <source>Add a sync task</source>
        <translation>Add a sync task</translation>
    </message>
    <message>
        <source>Share with others</source>
        <translation>Share with others</translation>
    </message>
    <message>
        <source>Locked file</source>
        <translation>Locked file</translation>
    </message>
    <message>
        <source>Do not close the applications (you will have to restart the computer later)</source>
        <translation>Do not close the applications (you will have to restart the computer later)</translation>
    </message>
    <message>
        <source>About Lumivo Drive</source>
        <translation>About Lumivo Drive</translation>
    </message>
    <message>
        <source>File service off</source>
        <translation>File service off</translation>
    </message>
    <message>
        <source>Next %1 pages</source>
        <translation>Next %1 pages</translation>
    </message>
    <message>
        <source>The local sync folder was moved or deleted. Put it back or choose a new one.</source>
        <translation>The local sync folder was moved or deleted. Put it back or choose a new one.</translation>
    </message>
    <message>
        <source>This file cannot be shared. Check your permissions on the server.</source>
        <translation>This file cannot be shared. Check your permissions on the server.</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Click Finish to exit Setup.</source>
        <translation>Click Finish to exit Setup.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Expires after</source>
        <translation>Expires after</translation>
    </message>
    <message>
        <source>Pause this connection</source>
        <translation>Pause this connection</translation>
    </message>
    <message>
        <source>has been shared with you.</source>
        <translation>has been shared with you.</translation>
    </message>
    <message>
        <source>Files in use</source>
        <translation>Files in use</translation>
    </message>
    <message>
        <source>Setup ended prematurely</source>
        <translation>Setup ended prematurely</translation>
    </message>
    <message>
        <source>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</source>
        <translation>File sharing through ZephLink is turned off on your server. Ask your administrator to turn it on.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>One-way sync (download only)</source>
        <translation>One-way sync (download only)</translation>
    </message>
    <message>
        <source>The files in both folders will be merged.</source>
        <translation>The files in both folders will be merged.</translation>
    </message>
    <message>
        <source>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</source>
        <translation>This folder on your server is already synced with this computer.\nA second sync task for it would take up twice the disk space.</translation>
    </message>
    <message>
        <source>Setup was interrupted</source>
        <translation>Setup was interrupted</translation>
    </message>
    <message>
        <source>The verification code is incorrect. Enter the current code and try again.</source>
        <translation>The verification code is incorrect. Enter the current code and try again.</translation>
    </message>
    <message>
        <source>Two-way sync</source>
        <translation>Two-way sync</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</source>
        <translation>Your server is blocking this computer&apos;s address. Ask your administrator to allow it.</translation>
    </message>
    <message>
        <source>Checking your username and password...</source>
        <translation>Checking your username and password...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive Setup</source>
        <translation>Welcome to Lumivo Drive Setup</translation>
    </message>
    <message>
        <source>Enter no more than %1 characters.</source>
        <translation>Enter no more than %1 characters.</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Merge</translation>
    </message>
    <message>
        <source>Sync all file attributes and permissions</source>
        <translation>Sync all file attributes and permissions</translation>
    </message>
    <message>
        <source>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</source>
        <translation>The shared folder &quot;%1&quot; is available on &quot;%2&quot;. Click here to sync it.</translation>
    </message>
    <message>
        <source>Keyword</source>
        <translation>Keyword</translation>
    </message>
    <message>
        <source>Create an empty folder for Lumivo Drive</source>
        <translation>Create an empty folder for Lumivo Drive</translation>
    </message>
    <message>
        <source>File filter</source>
        <translation>File filter</translation>
    </message>
    <message>
        <source>Everything that you put into your sync folder appears on your server and on your other computers.</source>
        <translation>Everything that you put into your sync folder appears on your server and on your other computers.</translation>
    </message>
    <message>
        <source>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</source>
        <translation>Setup can change, repair or remove Lumivo Drive. Click Next to continue.</translation>
    </message>
    <message>
        <source>Select a folder on your server and a folder on this computer.</source>
        <translation>Select a folder on your server and a folder on this computer.</translation>
    </message>
    <message>
        <source>Enter the address and port of the proxy server.</source>
        <translation>Enter the address and port of the proxy server.</translation>
    </message>
    <message>
        <source>Watching for changes...</source>
        <translation>Watching for changes...</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Change</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was updated</source>
        <translation>&quot;%1&quot; was updated</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Start Lumivo Drive now</source>
        <translation>Start Lumivo Drive now</translation>
    </message>
    <message>
        <source>March</source>
        <translation>March</translation>
    </message>
    <message>
        <source>Select what you want to do.</source>
        <translation>Select what you want to do.</translation>
    </message>
    <message>
        <source>Home folders are turned off on your server. Ask your administrator to turn them on.</source>
        <translation>Home folders are turned off on your server. Ask your administrator to turn them on.</translation>
    </message>
    <message>
        <source>Sync tasks</source>
        <translation>Sync tasks</translation>
    </message>
    <message>
        <source>Ready to repair Lumivo Drive</source>
        <translation>Ready to repair Lumivo Drive</translation>
    </message>
    <message>
        <source>Skipped files</source>
        <translation>Skipped files</translation>
    </message>
    <message>
        <source>Lumivo Drive is now installed on this computer.</source>
        <translation>Lumivo Drive is now installed on this computer.</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>Preparing...</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>System language</source>
        <translation>System language</translation>
    </message>
    <message>
        <source>Your changes have not been saved.\nDo you want to leave without saving them?</source>
        <translation>Your changes have not been saved.\nDo you want to leave without saving them?</translation>
    </message>
    <message>
        <source>Folder already synced</source>
        <translation>Folder already synced</translation>
    </message>
    <message>
        <source>Syncing...</source>
        <translation>Syncing...</translation>
    </message>
    <message>
        <source>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</source>
        <translation>Click Remove to remove Lumivo Drive from this computer. Click Back to review your choice. Click Cancel to exit Setup.</translation>
    </message>
    <message>
        <source>Welcome back to Lumivo Drive Setup</source>
        <translation>Welcome back to Lumivo Drive Setup</translation>
    </message>
    <message>
        <source>Direct</source>
        <translation>Direct</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>This folder is already used by another sync task. Select another folder.</source>
        <translation>This folder is already used by another sync task. Select another folder.</translation>
    </message>
    <message>
        <source>No space left</source>
        <translation>No space left</translation>
    </message>
    <message>
        <source>Loading shared folders...</source>
        <translation>Loading shared folders...</translation>
    </message>
    <message>
        <source>Unlinking...</source>
        <translation>Unlinking...</translation>
    </message>
    <message>
        <source>Files being synced</source>
        <translation>Files being synced</translation>
    </message>
    <message>
        <source>You can change all settings later.</source>
        <translation>You can change all settings later.</translation>
    </message>
    <message>
        <source>Show sync status</source>
        <translation>Show sync status</translation>
    </message>
    <message>
        <source>The folder on your server is not mounted. Mount it there and try again.</source>
        <translation>The folder on your server is not mounted. Mount it there and try again.</translation>
    </message>
    <message>
        <source>Mark skipped files with an icon</source>
        <translation>Mark skipped files with an icon</translation>
    </message>
    <message>
        <source>Checking the connection type...</source>
        <translation>Checking the connection type...</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Both versions of files with different contents are kept.</source>
        <translation>Both versions of files with different contents are kept.</translation>
    </message>
    <message>
        <source>This folder is already synced. Do you want to add it again?</source>
        <translation>This folder is already synced. Do you want to add it again?</translation>
    </message>
    <message>
        <source>Advanced settings</source>
        <translation>Advanced settings</translation>
    </message>
    <message>
        <source>The versions of this file cannot be listed. Check your permissions on the server.</source>
        <translation>The versions of this file cannot be listed. Check your permissions on the server.</translation>
    </message>
    <message>
        <source>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</source>
        <translation>The server&apos;s response could not be understood. Update Lumivo Drive and try again.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the installation of Lumivo Drive?</source>
        <translation>Are you sure you want to cancel the installation of Lumivo Drive?</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>A different server was found at this address</source>
        <translation>A different server was found at this address</translation>
    </message>
    <message>
        <source>July</source>
        <translation>July</translation>
    </message>
    <message>
        <source>Some files that need to be updated are in use.</source>
        <translation>Some files that need to be updated are in use.</translation>
    </message>
    <message>
        <source>Lumivo Drive is ready.</source>
        <translation>Lumivo Drive is ready.</translation>
    </message>
    <message>
        <source>The sync database is damaged. Unlink this computer and link it again.</source>
        <translation>The sync database is damaged. Unlink this computer and link it again.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</source>
        <translation>A newer version of Lumivo Drive is already installed on this computer. Remove it before you install this version.</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Sync this shared folder</source>
        <translation>Sync this shared folder</translation>
    </message>
    <message>
        <source>Open the main window</source>
        <translation>Open the main window</translation>
    </message>
    <message>
        <source>Current step:</source>
        <translation>Current step:</translation>
    </message>
    <message>
        <source>Restrict access</source>
        <translation>Restrict access</translation>
    </message>
    <message>
        <source>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</source>
        <translation>Setup will install Lumivo Drive on this computer. Click Next to continue or Cancel to exit Setup.</translation>
    </message>
    <message>
        <source>Enter the address of your server or its ZephLink ID, your username and your password.</source>
        <translation>Enter the address of your server or its ZephLink ID, your username and your password.</translation>
    </message>
    <message>
        <source>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</source>
        <translation>Could not create the folder &quot;%1&quot;. Check its path and your permissions.</translation>
    </message>
    <message>
        <source>Setup ended because of an error.\nYour computer has not been changed.</source>
        <translation>Setup ended because of an error.\nYour computer has not been changed.</translation>
    </message>
    <message>
        <source>Your quota on the server is used up. Delete some files to continue syncing.</source>
        <translation>Your quota on the server is used up. Delete some files to continue syncing.</translation>
    </message>
    <message>
        <source>Folder filter</source>
        <translation>Folder filter</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Check it in the connection settings.</source>
        <translation>Your server&apos;s certificate could not be verified. Check it in the connection settings.</translation>
    </message>
    <message>
        <source>Choose another folder</source>
        <translation>Choose another folder</translation>
    </message>
    <message>
        <source>You can open Lumivo Drive at any time from the tray.</source>
        <translation>You can open Lumivo Drive at any time from the tray.</translation>
    </message>
    <message>
        <source>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</source>
        <translation>The file was changed in two places at the same time. Both versions have been kept. Delete the one that you do not need.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed. Check it in the connection settings.</source>
        <translation>Your server&apos;s certificate has changed. Check it in the connection settings.</translation>
    </message>
    <message>
        <source>Encrypt the connection (SSL)</source>
        <translation>Encrypt the connection (SSL)</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Folder name</translation>
    </message>
    <message>
        <source>Create a link to a file and send it to anyone, with a password and an end date if you like.</source>
        <translation>Create a link to a file and send it to anyone, with a password and an end date if you like.</translation>
    </message>
    <message>
        <source>Enter the verification code for your account.</source>
        <translation>Enter the verification code for your account.</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>You have chosen to remove Lumivo Drive from this computer.</source>
        <translation>You have chosen to remove Lumivo Drive from this computer.</translation>
    </message>
    <message>
        <source>Changes on a network drive cannot be detected. Select a folder on a local disk.</source>
        <translation>Changes on a network drive cannot be detected. Select a folder on a local disk.</translation>
    </message>
    <message>
        <source>A folder with this name already exists. Enter another name.</source>
        <translation>A folder with this name already exists. Enter another name.</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>Friday</translation>
    </message>
    <message>
        <source>Proxy settings</source>
        <translation>Proxy settings</translation>
    </message>
    <message>
        <source>Open file</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>Edit connection</source>
        <translation>Edit connection</translation>
    </message>
    <message>
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message>
        <source>The connection to your server was lost. It will be restored automatically.</source>
        <translation>The connection to your server was lost. It will be restored automatically.</translation>
    </message>
    <message>
        <source>No permission</source>
        <translation>No permission</translation>
    </message>
    <message>
        <source>Downloaded</source>
        <translation>Downloaded</translation>
    </message>
    <message>
        <source>Items: %1</source>
        <translation>Items: %1</translation>
    </message>
    <message>
        <source>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</source>
        <translation>Do you want to stop syncing &quot;%1&quot; with &quot;%2&quot;?\nNo files will be deleted.</translation>
    </message>
    <message>
        <source>Change local folder</source>
        <translation>Change local folder</translation>
    </message>
    <message>
        <source>The connection works.</source>
        <translation>The connection works.</translation>
    </message>
    <message>
        <source>Setup complete</source>
        <translation>Setup complete</translation>
    </message>
    <message>
        <source>Icons in the tray</source>
        <translation>Icons in the tray</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Sync mode</source>
        <translation>Sync mode</translation>
    </message>
    <message>
        <source>Last month</source>
        <translation>Last month</translation>
    </message>
    <message>
        <source>Browse earlier versions</source>
        <translation>Browse earlier versions</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>%1 h ago</source>
        <translation>%1 h ago</translation>
    </message>
    <message>
        <source>Files and folders that match these rules are not synced.</source>
        <translation>Files and folders that match these rules are not synced.</translation>
    </message>
    <message>
        <source>Removes Lumivo Drive from this computer. Your synced files are kept.</source>
        <translation>Removes Lumivo Drive from this computer. Your synced files are kept.</translation>
    </message>
    <message>
        <source>Manage connections</source>
        <translation>Manage connections</translation>
    </message>
    <message>
        <source>There is not enough space on this disk. Select a folder on another disk.</source>
        <translation>There is not enough space on this disk. Select a folder on another disk.</translation>
    </message>
    <message>
        <source>File names to skip</source>
        <translation>File names to skip</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>Thursday</translation>
    </message>
    <message>
        <source>Resume syncing</source>
        <translation>Resume syncing</translation>
    </message>
    <message>
        <source>Recently changed files</source>
        <translation>Recently changed files</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>IP address, domain name or ZephLink ID</source>
        <translation>IP address, domain name or ZephLink ID</translation>
    </message>
    <message>
        <source>Show Lumivo Drive in the context menu</source>
        <translation>Show Lumivo Drive in the context menu</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is too old. Update it on this computer.</source>
        <translation>This version of Lumivo Drive is too old. Update it on this computer.</translation>
    </message>
    <message>
        <source>This folder cannot be synced. Select another folder.</source>
        <translation>This folder cannot be synced. Select another folder.</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>The download was canceled.</source>
        <translation>The download was canceled.</translation>
    </message>
    <message>
        <source>Limit the number of downloads</source>
        <translation>Limit the number of downloads</translation>
    </message>
    <message>
        <source>Show sync status icons on files</source>
        <translation>Show sync status icons on files</translation>
    </message>
    <message>
        <source>This field is required.</source>
        <translation>This field is required.</translation>
    </message>
    <message>
        <source>Show the tutorial</source>
        <translation>Show the tutorial</translation>
    </message>
    <message>
        <source>Link another server</source>
        <translation>Link another server</translation>
    </message>
    <message>
        <source>I do not accept the terms of the license agreement</source>
        <translation>I do not accept the terms of the license agreement</translation>
    </message>
    <message>
        <source>Version mismatch</source>
        <translation>Version mismatch</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>First page</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Install</translation>
    </message>
    <message>
        <source>Access denied</source>
        <translation>Access denied</translation>
    </message>
    <message>
        <source>Enter the 6-digit verification code</source>
        <translation>Enter the 6-digit verification code</translation>
    </message>
    <message>
        <source>Got it</source>
        <translation>Got it</translation>
    </message>
    <message>
        <source>The disk with the local sync folder is not connected. Connect it to continue syncing.</source>
        <translation>The disk with the local sync folder is not connected. Connect it to continue syncing.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Do not show this message again</translation>
    </message>
    <message>
        <source>Start now</source>
        <translation>Start now</translation>
    </message>
    <message>
        <source>Search the local network</source>
        <translation>Search the local network</translation>
    </message>
    <message>
        <source>Set up the proxy manually</source>
        <translation>Set up the proxy manually</translation>
    </message>
    <message>
        <source>You can open the files in this folder but not change them.</source>
        <translation>You can open the files in this folder but not change them.</translation>
    </message>
    <message>
        <source>Too many failed attempts. Wait a few minutes and try again.</source>
        <translation>Too many failed attempts. Wait a few minutes and try again.</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>The folder is not empty. Its files will be merged with the files on your server.</source>
        <translation>The folder is not empty. Its files will be merged with the files on your server.</translation>
    </message>
    <message>
        <source>Last week</source>
        <translation>Last week</translation>
    </message>
    <message>
        <source>The download is complete.</source>
        <translation>The download is complete.</translation>
    </message>
    <message>
        <source>You can bring back a version that you overwrote or deleted.</source>
        <translation>You can bring back a version that you overwrote or deleted.</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>Sunday</translation>
    </message>
    <message>
        <source>Sync folder</source>
        <translation>Sync folder</translation>
    </message>
    <message>
        <source>Update required</source>
        <translation>Update required</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>Sharing</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>Tuesday</translation>
    </message>
    <message>
        <source>Start Lumivo Drive when you sign in</source>
        <translation>Start Lumivo Drive when you sign in</translation>
    </message>
    <message>
        <source>Manage shared folders</source>
        <translation>Manage shared folders</translation>
    </message>
    <message>
        <source>%1 min ago</source>
        <translation>%1 min ago</translation>
    </message>
    <message>
        <source>This shared folder will no longer be synced. The files that are already on this computer will be kept.</source>
        <translation>This shared folder will no longer be synced. The files that are already on this computer will be kept.</translation>
    </message>
    <message>
        <source>File extensions to skip</source>
        <translation>File extensions to skip</translation>
    </message>
    <message>
        <source>Relay</source>
        <translation>Relay</translation>
    </message>
    <message>
        <source>Sign-in failed</source>
        <translation>Sign-in failed</translation>
    </message>
    <message>
        <source>Lumivo Drive has no features that can be chosen separately.</source>
        <translation>Lumivo Drive has no features that can be chosen separately.</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</source>
        <translation>You are not signed in as an administrator. Lumivo Drive will be installed only for you.\nDo you want to continue?</translation>
    </message>
    <message>
        <source>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</source>
        <translation>Links cannot be created because the file service is turned off. Ask your administrator to turn it on.</translation>
    </message>
    <message>
        <source>Close the applications and try to restart them afterward</source>
        <translation>Close the applications and try to restart them afterward</translation>
    </message>
    <message>
        <source>License agreement</source>
        <translation>License agreement</translation>
    </message>
    <message>
        <source>The folder could not be checked because of a system error. Try again later.</source>
        <translation>The folder could not be checked because of a system error. Try again later.</translation>
    </message>
    <message>
        <source>This version of Lumivo Drive is already installed. Do you want to install it again?</source>
        <translation>This version of Lumivo Drive is already installed. Do you want to install it again?</translation>
    </message>
    <message>
        <source>Set a start date</source>
        <translation>Set a start date</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>Manage</translation>
    </message>
    <message>
        <source>This shared folder is not mounted on your server. Mount it there and try again.</source>
        <translation>This shared folder is not mounted on your server. Mount it there and try again.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Local network</translation>
    </message>
    <message>
        <source>All events</source>
        <translation>All events</translation>
    </message>
    <message>
        <source>Unlink this connection</source>
        <translation>Unlink this connection</translation>
    </message>
    <message>
        <source>The connection is unstable</source>
        <translation>The connection is unstable</translation>
    </message>
    <message>
        <source>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</source>
        <translation>This computer and your server now keep these folders in sync.\nYou can add more sync tasks at any time.</translation>
    </message>
    <message>
        <source>Do not sync this folder</source>
        <translation>Do not sync this folder</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate has changed.\nContinue only if you know why.</source>
        <translation>Your server&apos;s certificate has changed.\nContinue only if you know why.</translation>
    </message>
    <message>
        <source>Maximum file size (MB)</source>
        <translation>Maximum file size (MB)</translation>
    </message>
    <message>
        <source>Keep the version that was changed last</source>
        <translation>Keep the version that was changed last</translation>
    </message>
    <message>
        <source>Find servers on the local network</source>
        <translation>Find servers on the local network</translation>
    </message>
    <message>
        <source>Your account is not allowed to sync this folder. Ask your administrator for permission.</source>
        <translation>Your account is not allowed to sync this folder. Ask your administrator for permission.</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>Just now</source>
        <translation>Just now</translation>
    </message>
    <message>
        <source>Setup is ready to repair Lumivo Drive.</source>
        <translation>Setup is ready to repair Lumivo Drive.</translation>
    </message>
    <message>
        <source>You can only read this folder. Changes on this computer will not be uploaded.</source>
        <translation>You can only read this folder. Changes on this computer will not be uploaded.</translation>
    </message>
    <message>
        <source>You do not have access to this folder. Ask your administrator for permission.</source>
        <translation>You do not have access to this folder. Ask your administrator for permission.</translation>
    </message>
    <message>
        <source>No entries found</source>
        <translation>No entries found</translation>
    </message>
    <message>
        <source>Your files are being synced. You can keep working in the meantime.</source>
        <translation>Your files are being synced. You can keep working in the meantime.</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</source>
        <translation>Your server&apos;s certificate could not be verified.\nContinue only if you trust this network.</translation>
    </message>
    <message>
        <source>Files left to sync: %1</source>
        <translation>Files left to sync: %1</translation>
    </message>
    <message>
        <source>Welcome to Lumivo Drive</source>
        <translation>Welcome to Lumivo Drive</translation>
    </message>
    <message>
        <source>Set an end date</source>
        <translation>Set an end date</translation>
    </message>
    <message>
        <source>The sync task could not be removed. Try again later.</source>
        <translation>The sync task could not be removed. Try again later.</translation>
    </message>
    <message>
        <source>Click the icon to see which files are being synced.</source>
        <translation>Click the icon to see which files are being synced.</translation>
    </message>
    <message>
        <source>Your sync folder</source>
        <translation>Your sync folder</translation>
    </message>
    <message>
        <source>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</source>
        <translation>Your server&apos;s certificate could not be verified. Ask your administrator to install a valid one.</translation>
    </message>
    <message>
        <source>The server has been replaced. Link this computer again.</source>
        <translation>The server has been replaced. Link this computer again.</translation>
    </message>
    <message>
        <source>Follow these steps to link this computer to your server.</source>
        <translation>Follow these steps to link this computer to your server.</translation>
    </message>
    <message>
        <source>Proxy server</source>
        <translation>Proxy server</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Updated files</source>
        <translation>Updated files</translation>
    </message>
    <message>
        <source>Continue anyway</source>
        <translation>Continue anyway</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Icons on local files</source>
        <translation>Icons on local files</translation>
    </message>
    <message>
        <source>No actions available</source>
        <translation>No actions available</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Syncing stopped</source>
        <translation>Syncing stopped</translation>
    </message>
    <message>
        <source>Local sync folder</source>
        <translation>Local sync folder</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</source>
        <translation>Your server is still indexing &quot;%1&quot;. You can sync it when indexing is complete.</translation>
    </message>
    <message>
        <source>When a file has been changed in two places</source>
        <translation>When a file has been changed in two places</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</source>
        <translation>The folder &quot;%1&quot; is not empty.\nDo you want to use it anyway?</translation>
    </message>
    <message>
        <source>Change folder</source>
        <translation>Change folder</translation>
    </message>
    <message>
        <source>Sync your home folder using the recommended settings.</source>
        <translation>Sync your home folder using the recommended settings.</translation>
    </message>
    <message>
        <source>Loading folders...</source>
        <translation>Loading folders...</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>Wednesday</translation>
    </message>
    <message>
        <source>SSL encryption</source>
        <translation>SSL encryption</translation>
    </message>
    <message>
        <source>Ready to install Lumivo Drive</source>
        <translation>Ready to install Lumivo Drive</translation>
    </message>
    <message>
        <source>Run Setup again whenever you want to install Lumivo Drive.</source>
        <translation>Run Setup again whenever you want to install Lumivo Drive.</translation>
    </message>
    <message>
        <source>Your home folder on the server now syncs with this computer.</source>
        <translation>Your home folder on the server now syncs with this computer.</translation>
    </message>
    <message>
        <source>Server overview</source>
        <translation>Server overview</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Pause syncing</source>
        <translation>Pause syncing</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>Saturday</translation>
    </message>
    <message>
        <source>The quota of this shared folder is used up. Delete some files to continue syncing.</source>
        <translation>The quota of this shared folder is used up. Delete some files to continue syncing.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Your new sync task</source>
        <translation>Your new sync task</translation>
    </message>
    <message>
        <source>Download history</source>
        <translation>Download history</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>Downloading...</translation>
    </message>
    <message>
        <source>The new language takes effect the next time Lumivo Drive starts.</source>
        <translation>The new language takes effect the next time Lumivo Drive starts.</translation>
    </message>
    <message>
        <source>Installing Lumivo Drive</source>
        <translation>Installing Lumivo Drive</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>Show desktop notifications</translation>
    </message>
    <message>
        <source>Quick setup suits most users. You can change everything later.</source>
        <translation>Quick setup suits most users. You can change everything later.</translation>
    </message>
    <message>
        <source>Your server&apos;s disk is full.</source>
        <translation>Your server&apos;s disk is full.</translation>
    </message>
    <message>
        <source>Go back in time</source>
        <translation>Go back in time</translation>
    </message>
</context>
</TS>
