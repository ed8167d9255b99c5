// The rows are data: their order is the interface, and each text is spelled out inside
// QT_TRANSLATE_NOOP so that the translation tools find it.

#include "StrTable.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLatin1String>
#include <QtGlobal>

namespace {

constexpr int kRowCount = 523;

const char* stab[kRowCount];  // English texts, UTF-8
const char* ktab[kRowCount];  // keys, ASCII

inline void Row(int id, const char* key, const char* text) {
  stab[id] = text;
  ktab[id] = key;
}

}  // namespace

namespace StrTable {

void InitStrTable() {
  Row(0, "msg_seldir_description",
      QT_TRANSLATE_NOOP("global",
                        "Select the local folder that you want to sync with your server."));
  Row(1, "err_autoconn_ctrl",
      QT_TRANSLATE_NOOP(
          "global",
          "Could not reach the ZephLink service. Check your network connection and try again."));
  Row(2, "black_list_btn", QT_TRANSLATE_NOOP("global", "Filter rules"));
  Row(3, "err_share_mountpt_short", QT_TRANSLATE_NOOP("global", "Mount point not allowed"));
  Row(4, "manage_proxy_label_password", QT_TRANSLATE_NOOP("global", "Password"));
  Row(5, "history_date_range", QT_TRANSLATE_NOOP("global", "Date range"));
  Row(6, "wizard_share_nonexist_sync_folder_warning",
      QT_TRANSLATE_NOOP(
          "global", "This shared folder no longer exists on your server. Select another folder."));
  Row(7, "err_user_name_empty", QT_TRANSLATE_NOOP("global", "Enter your username."));
  Row(8, "block_file_name_tool_tip",
      QT_TRANSLATE_NOOP("global", "Files with these names will not be synced."));
  Row(9, "err_network",
      QT_TRANSLATE_NOOP(
          "global",
          "Could not connect to your server. Check your network connection and try again."));
  Row(10, "msi_button_repair", QT_TRANSLATE_NOOP("global", "Repair"));
  Row(11, "download_only", QT_TRANSLATE_NOOP("global", "Download only"));
  Row(12, "tray_opendir", QT_TRANSLATE_NOOP("global", "Open folder"));
  Row(13, "selective_sync_direction_title", QT_TRANSLATE_NOOP("global", "Sync direction"));
  Row(14, "wizard_sync_folder_new_nas",
      QT_TRANSLATE_NOOP("global", "Your first sync task on this server"));
  Row(15, "msi_maintenance_dlg_repair_text",
      QT_TRANSLATE_NOOP("global",
                        "Restores missing or damaged files, shortcuts and registry entries."));
  Row(16, "col_file_destination", QT_TRANSLATE_NOOP("global", "Destination"));
  Row(17, "tray_click_to_update", QT_TRANSLATE_NOOP("global", "Click here to update"));
  Row(18, "title_folderpath", QT_TRANSLATE_NOOP("global", "Folder path"));
  Row(19, "history_type", QT_TRANSLATE_NOOP("global", "Type"));
  Row(20, "manage_share_tab_name", QT_TRANSLATE_NOOP("global", "Shared folders"));
  Row(21, "no_need", QT_TRANSLATE_NOOP("global", "No, thanks"));
  Row(22, "history_action", QT_TRANSLATE_NOOP("global", "Action"));
  Row(23, "title_ssl_warning", QT_TRANSLATE_NOOP("global", "Certificate warning"));
  Row(24, "tray_setinfo", QT_TRANSLATE_NOOP("global", "Change connection settings"));
  Row(25, "msg_test_connect", QT_TRANSLATE_NOOP("global", "Testing the connection..."));
  Row(26, "msi_exit_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(27, "today", QT_TRANSLATE_NOOP("global", "Today"));
  Row(28, "msi_ready_dlg_description",
      QT_TRANSLATE_NOOP("global", "Setup is ready to install Lumivo Drive on this computer."));
  Row(29, "notify_new_share_short", QT_TRANSLATE_NOOP("global", "New shared folder"));
  Row(30, "no_valid_folder",
      QT_TRANSLATE_NOOP(
          "global",
          "No usable folder was found. Ask your administrator for access to a shared folder."));
  Row(31, "err_share_fail_enable",
      QT_TRANSLATE_NOOP("global",
                        "Could not enable syncing for this shared folder. Try again later."));
  Row(32, "history_to", QT_TRANSLATE_NOOP("global", "To"));
  Row(33, "edit", QT_TRANSLATE_NOOP("global", "Edit"));
  Row(34, "context_menu_resume_folder", QT_TRANSLATE_NOOP("global", "Sync this folder again"));
  Row(35, "msi_button_no", QT_TRANSLATE_NOOP("global", "No"));
  Row(36, "time_day_ago", QT_TRANSLATE_NOOP("global", "%1 d ago"));
  Row(37, "msg_folder_mount_point",
      QT_TRANSLATE_NOOP(
          "global",
          "The folder \"%1\" is a mount point and cannot be synced. Select another folder."));
  Row(38, "err_link_same_fb",
      QT_TRANSLATE_NOOP(
          "global",
          "This computer is already linked to \"%1\". Edit the existing connection instead."));
  Row(39, "tray_upgrade", QT_TRANSLATE_NOOP("global", "Update available"));
  Row(40, "err_invalid_port_number",
      QT_TRANSLATE_NOOP("global", "Enter a port number from 1 to 65535."));
  Row(41, "quick_mode_open_folder_btn", QT_TRANSLATE_NOOP("global", "Open sync folder"));
  Row(42, "msi_exit_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Lumivo Drive has been installed"));
  Row(43, "action_unlink", QT_TRANSLATE_NOOP("global", "Unlink"));
  Row(44, "err_share_folder_conflict",
      QT_TRANSLATE_NOOP(
          "global",
          "This folder overlaps with the folder of another sync task. Select another folder."));
  Row(45, "wizard_network_err_sync_folder_warning",
      QT_TRANSLATE_NOOP("global",
                        "The folders on your server could not be listed. Check your network "
                        "connection and try again."));
  Row(46, "status_desc_abnormal_short", QT_TRANSLATE_NOOP("global", "Needs attention"));
  Row(47, "err_ssl_change",
      QT_TRANSLATE_NOOP("global",
                        "Your server's certificate has changed. Check it before you continue."));
  Row(48, "last_page", QT_TRANSLATE_NOOP("global", "Last page"));
  Row(49, "msg_running", QT_TRANSLATE_NOOP("global", "Running"));
  Row(50, "month_jun", QT_TRANSLATE_NOOP("global", "June"));
  Row(51, "upgrade_failed", QT_TRANSLATE_NOOP("global", "The update failed. Try again later."));
  Row(52, "status_desc_ssl_verify_fail",
      QT_TRANSLATE_NOOP("global", "Your server's certificate could not be verified."));
  Row(53, "msi_progress_dlg_text",
      QT_TRANSLATE_NOOP("global", "Please wait. This may take several minutes."));
  Row(54, "msi_maintenance_dlg_change_tooltip",
      QT_TRANSLATE_NOOP("global", "Choose which features are installed"));
  Row(55, "msg_sub_slogan", QT_TRANSLATE_NOOP("global", "Your files, wherever you work"));
  Row(56, "context_menu_resume_folders", QT_TRANSLATE_NOOP("global", "Sync these folders again"));
  Row(57, "msg_localdiskfull",
      QT_TRANSLATE_NOOP("global",
                        "This computer's disk is full. Free up some space to continue syncing."));
  Row(58, "manage_option_use_black_white_icon",
      QT_TRANSLATE_NOOP("global", "Use a black-and-white tray icon"));
  Row(59, "common_forminvalid",
      QT_TRANSLATE_NOOP("global",
                        "Some fields are not filled in correctly. Correct them and try again."));
  Row(60, "msi_userexit_dlg_description1",
      QT_TRANSLATE_NOOP("global", "Setup was interrupted. Your computer has not been changed."));
  Row(61, "err_share_nonexist_short", QT_TRANSLATE_NOOP("global", "Folder not found"));
  Row(62, "msi_readyrepair_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(63, "status_desc_pause", QT_TRANSLATE_NOOP("global", "Paused"));
  Row(64, "wizard_set_sync_folder", QT_TRANSLATE_NOOP("global", "Choose the folders to sync"));
  Row(65, "del", QT_TRANSLATE_NOOP("global", "Delete"));
  Row(66, "advan_mode_set_share_folder_info",
      QT_TRANSLATE_NOOP("global",
                        "Choose a folder on your server and the local folder to sync it with."));
  Row(67, "col_file_status", QT_TRANSLATE_NOOP("global", "Status"));
  Row(68, "block_point_prefix",
      QT_TRANSLATE_NOOP("global", "Skip files and folders whose names start with a dot"));
  Row(69, "history_customize", QT_TRANSLATE_NOOP("global", "Custom range"));
  Row(70, "conn_mode_wan", QT_TRANSLATE_NOOP("global", "Internet"));
  Row(71, "err_auth",
      QT_TRANSLATE_NOOP("global",
                        "The username or password is incorrect. Check both and try again."));
  Row(72, "err_fb_not_match",
      QT_TRANSLATE_NOOP(
          "global", "This address belongs to another server. Check the address and try again."));
  Row(73, "history_file_type", QT_TRANSLATE_NOOP("global", "File type"));
  Row(74, "wizard_setup_mode_page_title", QT_TRANSLATE_NOOP("global", "Choose a setup type"));
  Row(75, "monday", QT_TRANSLATE_NOOP("global", "Monday"));
  Row(76, "wizard_quotafull_sync_folder_warning",
      QT_TRANSLATE_NOOP("global",
                        "Your quota on the server is used up. Delete some files or ask your "
                        "administrator for more space."));
  Row(77, "month_aug", QT_TRANSLATE_NOOP("global", "August"));
  Row(78, "msg_progress", QT_TRANSLATE_NOOP("global", "Progress"));
  Row(79, "msg_startup", QT_TRANSLATE_NOOP("global", "Starting..."));
  Row(80, "msg_about", QT_TRANSLATE_NOOP("global", "About"));
  Row(81, "err_share_limit",
      QT_TRANSLATE_NOOP("global",
                        "The maximum number of shared folders has been reached. Stop syncing one "
                        "of them first."));
  Row(82, "manage_proxy_chk_sys_proxy",
      QT_TRANSLATE_NOOP("global", "Use the system proxy settings"));
  Row(83, "conflict_policy_rename_conflict",
      QT_TRANSLATE_NOOP("global", "Keep both versions and rename the local one"));
  Row(84, "manage_option_language", QT_TRANSLATE_NOOP("global", "Language"));
  Row(85, "notify_abnormal",
      QT_TRANSLATE_NOOP("global", "\"%1\" has stopped syncing. Open Lumivo Drive for details."));
  Row(86, "history_reset", QT_TRANSLATE_NOOP("global", "Reset"));
  Row(87, "title_id", QT_TRANSLATE_NOOP("global", "ZephLink ID"));
  Row(88, "sync_direction_mismatch",
      QT_TRANSLATE_NOOP("global",
                        "The sync direction does not match your permissions for this folder. "
                        "Choose another direction."));
  Row(89, "quick_mode_finish_page_more_detail", QT_TRANSLATE_NOOP("global", "More details"));
  Row(90, "month_oct", QT_TRANSLATE_NOOP("global", "October"));
  Row(91, "month_feb", QT_TRANSLATE_NOOP("global", "February"));
  Row(92, "status_desc_errversion_server",
      QT_TRANSLATE_NOOP(
          "global", "This version of Lumivo Drive Server is too old. Update it on your server."));
  Row(93, "manage_sync_tab_name", QT_TRANSLATE_NOOP("global", "Sync rules"));
  Row(94, "desc_cannot_download",
      QT_TRANSLATE_NOOP("global",
                        "This file cannot be downloaded. Check your permissions on the server."));
  Row(95, "status_desc_linking", QT_TRANSLATE_NOOP("global", "Connecting..."));
  Row(96, "manage_proxy_chk_no_proxy", QT_TRANSLATE_NOOP("global", "Do not use a proxy"));
  Row(97, "manage_share_name", QT_TRANSLATE_NOOP("global", "Shared folder"));
  Row(98, "resume_connection", QT_TRANSLATE_NOOP("global", "Resume this connection"));
  Row(99, "context_menu_share_link", QT_TRANSLATE_NOOP("global", "Get link"));
  Row(100, "manage_option_title", QT_TRANSLATE_NOOP("global", "Options"));
  Row(101, "tutorial_second_desc",
      QT_TRANSLATE_NOOP("global",
                        "The icon in the tray shows at a glance whether your files are in sync."));
  Row(102, "history_from", QT_TRANSLATE_NOOP("global", "From"));
  Row(103, "tray_relink", QT_TRANSLATE_NOOP("global", "Link again"));
  Row(104, "history_page_title", QT_TRANSLATE_NOOP("global", "History"));
  Row(105, "yes", QT_TRANSLATE_NOOP("global", "Yes"));
  Row(106, "version", QT_TRANSLATE_NOOP("global", "Version"));
  Row(107, "msi_userexit_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(108, "read_only", QT_TRANSLATE_NOOP("global", "Read-only"));
  Row(109, "month_apr", QT_TRANSLATE_NOOP("global", "April"));
  Row(110, "network_management_page_btn", QT_TRANSLATE_NOOP("global", "Network settings"));
  Row(111, "msi_progress_dlg_description",
      QT_TRANSLATE_NOOP("global", "Setup is applying your choices."));
  Row(112, "selective_sync_remove_msg",
      QT_TRANSLATE_NOOP("global",
                        "Folders that you deselect here will be removed from this computer. They "
                        "will remain on your server."));
  Row(113, "msg_diskfull",
      QT_TRANSLATE_NOOP(
          "global", "Your server's disk is full. Free up some space on it to continue syncing."));
  Row(114, "btn_help", QT_TRANSLATE_NOOP("global", "Help"));
  Row(115, "msg_download_fail",
      QT_TRANSLATE_NOOP("global",
                        "The download failed. Check your network connection and try again."));
  Row(116, "app_name", QT_TRANSLATE_NOOP("global", "Lumivo Drive"));
  Row(117, "sharing_apply_and_copy_button", QT_TRANSLATE_NOOP("global", "Save and copy link"));
  Row(118, "msg_info_description",
      QT_TRANSLATE_NOOP("global", "Enter your server's address and your account details."));
  Row(119, "wizard_welcome_title", QT_TRANSLATE_NOOP("global", "Let's get started"));
  Row(120, "manage_setting_no_change",
      QT_TRANSLATE_NOOP("global", "There are no changes to save."));
  Row(121, "prev_x_pages", QT_TRANSLATE_NOOP("global", "Previous %1 pages"));
  Row(122, "msi_fatalerror_dlg_description2",
      QT_TRANSLATE_NOOP("global", "To install Lumivo Drive later, run Setup again."));
  Row(123, "tutorial_third_desc",
      QT_TRANSLATE_NOOP(
          "global",
          "Right-click a file in a synced folder to share it or to see its earlier versions."));
  Row(124, "history_yesterday", QT_TRANSLATE_NOOP("global", "Yesterday"));
  Row(125, "msi_error_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(126, "title_status_info", QT_TRANSLATE_NOOP("global", "Status information"));
  Row(127, "err_init_failed",
      QT_TRANSLATE_NOOP("global",
                        "Lumivo Drive could not be started. Restart the computer and try again."));
  Row(128, "conflict_policy_overwrite_client",
      QT_TRANSLATE_NOOP("global", "Keep the version on the server"));
  Row(129, "month_jan", QT_TRANSLATE_NOOP("global", "January"));
  Row(130, "err_version_client",
      QT_TRANSLATE_NOOP("global",
                        "This version of Lumivo Drive is too old for your server. Update it to "
                        "version %1 or later."));
  Row(131, "msi_maintenance_dlg_subtitle",
      QT_TRANSLATE_NOOP("global", "Change, repair or remove Lumivo Drive"));
  Row(132, "use_zephlink", QT_TRANSLATE_NOOP("global", "Connect through ZephLink"));
  Row(133, "msi_ready_dlg_text",
      QT_TRANSLATE_NOOP("global",
                        "Click Install to begin. Click Back to review or change your choices. "
                        "Click Cancel to exit Setup."));
  Row(134, "err_common", QT_TRANSLATE_NOOP("global", "Something went wrong. Try again later."));
  Row(135, "msi_eula_dlg_accept",
      QT_TRANSLATE_NOOP("global", "I accept the terms of the license agreement"));
  Row(136, "update_pkg_for_selective_sync",
      QT_TRANSLATE_NOOP("global",
                        "Selective sync is not available yet. Update Lumivo Drive Server on your "
                        "server to use it."));
  Row(137, "history_rename", QT_TRANSLATE_NOOP("global", "Renamed"));
  Row(138, "msi_fatalerror_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(139, "title_folder_readonly", QT_TRANSLATE_NOOP("global", "This folder is read-only"));
  Row(140, "msi_button_cancel", QT_TRANSLATE_NOOP("global", "Cancel"));
  Row(141, "msi_readyremove_dlg_subtitle",
      QT_TRANSLATE_NOOP("global", "Ready to remove Lumivo Drive"));
  Row(142, "wizard_new_sync_folder_desc",
      QT_TRANSLATE_NOOP("global", "Choose what to sync with this computer and where to keep it."));
  Row(143, "history_upload", QT_TRANSLATE_NOOP("global", "Uploaded"));
  Row(144, "err_auth_wipe",
      QT_TRANSLATE_NOOP("global",
                        "Your access was revoked, and the synced files were removed from this "
                        "computer. Contact your administrator."));
  Row(145, "title_standby", QT_TRANSLATE_NOOP("global", "Standby"));
  Row(146, "msi_button_ok", QT_TRANSLATE_NOOP("global", "OK"));
  Row(147, "label_uploading", QT_TRANSLATE_NOOP("global", "Uploading..."));
  Row(148, "msi_filesinuse_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(149, "msi_button_yes", QT_TRANSLATE_NOOP("global", "Yes"));
  Row(150, "manage_setting_applying", QT_TRANSLATE_NOOP("global", "Applying settings..."));
  Row(151, "msi_eula_dlg_description",
      QT_TRANSLATE_NOOP("global", "Please read the following license agreement carefully."));
  Row(152, "manage_option_merge_mode", QT_TRANSLATE_NOOP("global", "Merge mode"));
  Row(153, "context_menu_filter_folders", QT_TRANSLATE_NOOP("global", "Do not sync these folders"));
  Row(154, "msi_maintenance_welcome_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(155, "msi_button_exit", QT_TRANSLATE_NOOP("global", "Exit"));
  Row(156, "msi_readyrepair_dlg_text",
      QT_TRANSLATE_NOOP(
          "global",
          "Click Repair to begin. Click Back to review your choice. Click Cancel to exit Setup."));
  Row(157, "msg_folder_readonly",
      QT_TRANSLATE_NOOP(
          "global",
          "You cannot write to this folder. Change its permissions or select another folder."));
  Row(158, "selective_sync_mode_title", QT_TRANSLATE_NOOP("global", "Selective sync"));
  Row(159, "manage_proxy_label_username", QT_TRANSLATE_NOOP("global", "Username"));
  Row(160, "month_dec", QT_TRANSLATE_NOOP("global", "December"));
  Row(161, "file_max_size_limit",
      QT_TRANSLATE_NOOP("global", "Enter a file size from %1 to %2 MB."));
  Row(162, "msg_shareitem_delete",
      QT_TRANSLATE_NOOP(
          "global",
          "Stop syncing \"%1\"? The files that are already on this computer will be kept."));
  Row(163, "wizard_setup_quick_mode_title", QT_TRANSLATE_NOOP("global", "Quick setup"));
  Row(164, "advan_setup_wizard", QT_TRANSLATE_NOOP("global", "Advanced setup"));
  Row(165, "month_nov", QT_TRANSLATE_NOOP("global", "November"));
  Row(166, "msg_seldir", QT_TRANSLATE_NOOP("global", "Select a folder"));
  Row(167, "title_ip", QT_TRANSLATE_NOOP("global", "Server address"));
  Row(168, "status_desc_quotafull",
      QT_TRANSLATE_NOOP("global", "Your quota on the server is used up."));
  Row(169, "title_icon_double_clicked",
      QT_TRANSLATE_NOOP("global", "When the tray icon is double-clicked"));
  Row(170, "desc_lmvo_env_preparing",
      QT_TRANSLATE_NOOP("global", "Lumivo Drive is initializing..."));
  Row(171, "tray_data_checking", QT_TRANSLATE_NOOP("global", "Checking files..."));
  Row(172, "msg_finish",
      QT_TRANSLATE_NOOP("global",
                        "This computer is now linked to \"%1\". Syncing starts right away."));
  Row(173, "msg_slogan", QT_TRANSLATE_NOOP("global", "Everything in sync"));
  Row(174, "history_date", QT_TRANSLATE_NOOP("global", "Date"));
  Row(175, "btn_cancel", QT_TRANSLATE_NOOP("global", "Cancel"));
  Row(176, "msg_upgrading", QT_TRANSLATE_NOOP("global", "Updating..."));
  Row(177, "sharing_customize_duration", QT_TRANSLATE_NOOP("global", "Custom period"));
  Row(178, "tutorial_second_title", QT_TRANSLATE_NOOP("global", "Check the sync status"));
  Row(179, "loading", QT_TRANSLATE_NOOP("global", "Loading..."));
  Row(180, "desc_inactive", QT_TRANSLATE_NOOP("global", "Inactive"));
  Row(181, "history_file", QT_TRANSLATE_NOOP("global", "File"));
  Row(182, "msi_filesinuse_dlg_text",
      QT_TRANSLATE_NOOP("global",
                        "The following applications are using files that Setup needs to update:"));
  Row(183, "title_open_lumivo", QT_TRANSLATE_NOOP("global", "Open Lumivo Drive"));
  Row(184, "wizard_setup_advan_mode_desc",
      QT_TRANSLATE_NOOP("global",
                        "Choose the folders, the sync direction and the sync rules yourself."));
  Row(185, "msi_maintenance_dlg_repair_tooltip",
      QT_TRANSLATE_NOOP("global", "Repair the installed files"));
  Row(186, "error_zero_version",
      QT_TRANSLATE_NOOP("global", "Enter a number of versions greater than zero."));
  Row(187, "msg_test_username_fail",
      QT_TRANSLATE_NOOP("global",
                        "This username does not exist on your server. Check it and try again."));
  Row(188, "title_upgrade", QT_TRANSLATE_NOOP("global", "Update Lumivo Drive"));
  Row(189, "more_tutorial", QT_TRANSLATE_NOOP("global", "Learn more"));
  Row(190, "col_create_time", QT_TRANSLATE_NOOP("global", "Created"));
  Row(191, "msi_maintenance_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(192, "wizard_welcome_desc",
      QT_TRANSLATE_NOOP("global", "Keep the files on this computer and on your server in sync."));
  Row(193, "msi_button_back", QT_TRANSLATE_NOOP("global", "Back"));
  Row(194, "conflict_dropbox",
      QT_TRANSLATE_NOOP("global",
                        "This folder is already synced by another cloud sync app. Select another "
                        "folder to avoid conflicts."));
  Row(195, "col_file_size", QT_TRANSLATE_NOOP("global", "Size"));
  Row(196, "col_computer_name", QT_TRANSLATE_NOOP("global", "Computer name"));
  Row(197, "msi_button_ignore", QT_TRANSLATE_NOOP("global", "Ignore"));
  Row(198, "manage_proxy_chk_account",
      QT_TRANSLATE_NOOP("global", "The proxy requires a username and a password"));
  Row(199, "err_inval",
      QT_TRANSLATE_NOOP(
          "global", "The server did not accept the request. Check your entries and try again."));
  Row(200, "err_version_server",
      QT_TRANSLATE_NOOP("global",
                        "This version of Lumivo Drive Server is too old for Lumivo Drive on this "
                        "computer. Update it on your server to version %1 or later."));
  Row(201, "context_menu_sendto_prefix", QT_TRANSLATE_NOOP("global", "Send to"));
  Row(202, "err_autoconn_sys",
      QT_TRANSLATE_NOOP("global", "The ZephLink service reported an error. Try again later."));
  Row(203, "msi_filesinuse_dlg_text2",
      QT_TRANSLATE_NOOP("global",
                        "Close these applications and click Retry, or click Ignore and restart the "
                        "computer later."));
  Row(204, "msi_maintenance_dlg_change_text",
      QT_TRANSLATE_NOOP("global", "Lets you change which features are installed."));
  Row(205, "msg_confirm_unlink",
      QT_TRANSLATE_NOOP(
          "global",
          "Do you want to unlink this computer from \"%1\"?\\nThe files that are already on this "
          "computer will be kept."));
  Row(206, "wizard_conflict_backup_warning",
      QT_TRANSLATE_NOOP("global", "This folder is used by a backup task. Select another folder."));
  Row(207, "msi_cancel_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(208, "status_desc_localdisk_full",
      QT_TRANSLATE_NOOP("global", "This computer's disk is full."));
  Row(209, "title_folder_nonempty", QT_TRANSLATE_NOOP("global", "This folder is not empty"));
  Row(210, "msi_readyremove_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(211, "open_contain_folder", QT_TRANSLATE_NOOP("global", "Open containing folder"));
  Row(212, "title_conn_mode", QT_TRANSLATE_NOOP("global", "Connection type"));
  Row(213, "err_autoconn_invalidid",
      QT_TRANSLATE_NOOP("global", "This ZephLink ID does not exist. Check it and try again."));
  Row(214, "file_black_list_label", QT_TRANSLATE_NOOP("global", "Do not sync these files"));
  Row(215, "msi_maintenance_dlg_remove_tooltip",
      QT_TRANSLATE_NOOP("global", "Remove Lumivo Drive from this computer"));
  Row(216, "err_otp_enforced",
      QT_TRANSLATE_NOOP("global",
                        "Your account requires two-step verification. Set it up on your server, "
                        "then sign in again."));
  Row(217, "err_fxmdisable",
      QT_TRANSLATE_NOOP(
          "global",
          "The file service is turned off on your server. Ask your administrator to turn it on."));
  Row(218, "manage_option_tab_name", QT_TRANSLATE_NOOP("global", "General"));
  Row(219, "history_delete", QT_TRANSLATE_NOOP("global", "Deleted"));
  Row(220, "wizard_new_sync_folder_title", QT_TRANSLATE_NOOP("global", "Add a sync task"));
  Row(221, "tutorial_fourth_title", QT_TRANSLATE_NOOP("global", "Share with others"));
  Row(222, "label_locked_file", QT_TRANSLATE_NOOP("global", "Locked file"));
  Row(223, "msi_filesinuse_dlg_closenone",
      QT_TRANSLATE_NOOP(
          "global", "Do not close the applications (you will have to restart the computer later)"));
  Row(224, "tray_about", QT_TRANSLATE_NOOP("global", "About Lumivo Drive"));
  Row(225, "err_fxmdisable_short", QT_TRANSLATE_NOOP("global", "File service off"));
  Row(226, "next_x_pages", QT_TRANSLATE_NOOP("global", "Next %1 pages"));
  Row(227, "err_local_sync_folder_miss",
      QT_TRANSLATE_NOOP(
          "global",
          "The local sync folder was moved or deleted. Put it back or choose a new one."));
  Row(228, "desc_cannot_share_link",
      QT_TRANSLATE_NOOP("global",
                        "This file cannot be shared. Check your permissions on the server."));
  Row(229, "session_resume_btn", QT_TRANSLATE_NOOP("global", "Resume"));
  Row(230, "msi_exit_dlg_description", QT_TRANSLATE_NOOP("global", "Click Finish to exit Setup."));
  Row(231, "wizard_setup_advan_mode_title", QT_TRANSLATE_NOOP("global", "Advanced setup"));
  Row(232, "title_name", QT_TRANSLATE_NOOP("global", "Name"));
  Row(233, "sharing_exp_after", QT_TRANSLATE_NOOP("global", "Expires after"));
  Row(234, "pause_connection", QT_TRANSLATE_NOOP("global", "Pause this connection"));
  Row(235, "msg_share_bubble_suffix", QT_TRANSLATE_NOOP("global", "has been shared with you."));
  Row(236, "msi_filesinuse_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Files in use"));
  Row(237, "msi_fatalerror_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Setup ended prematurely"));
  Row(238, "err_zephlink_file_sharing",
      QT_TRANSLATE_NOOP("global",
                        "File sharing through ZephLink is turned off on your server. Ask your "
                        "administrator to turn it on."));
  Row(239, "title_pwd", QT_TRANSLATE_NOOP("global", "Password"));
  Row(240, "btn_continue", QT_TRANSLATE_NOOP("global", "Continue"));
  Row(241, "sharing_link", QT_TRANSLATE_NOOP("global", "Link"));
  Row(242, "one_way_download", QT_TRANSLATE_NOOP("global", "One-way sync (download only)"));
  Row(243, "wizard_setup_repeat_warning2",
      QT_TRANSLATE_NOOP("global", "The files in both folders will be merged."));
  Row(244, "wizard_setup_repeat_warning_desc",
      QT_TRANSLATE_NOOP("global",
                        "This folder on your server is already synced with this computer.\\nA "
                        "second sync task for it would take up twice the disk space."));
  Row(245, "title_usr", QT_TRANSLATE_NOOP("global", "Username"));
  Row(246, "msi_userexit_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Setup was interrupted"));
  Row(247, "err_otp_invalid",
      QT_TRANSLATE_NOOP(
          "global", "The verification code is incorrect. Enter the current code and try again."));
  Row(248, "two_way_sync", QT_TRANSLATE_NOOP("global", "Two-way sync"));
  Row(249, "session_add_btn", QT_TRANSLATE_NOOP("global", "Add"));
  Row(250, "session_selective_sync_btn", QT_TRANSLATE_NOOP("global", "Selective sync"));
  Row(251, "share_enabled", QT_TRANSLATE_NOOP("global", "Enabled"));
  Row(252, "err_short", QT_TRANSLATE_NOOP("global", "Error"));
  Row(253, "err_ip_not_allowed",
      QT_TRANSLATE_NOOP(
          "global",
          "Your server is blocking this computer's address. Ask your administrator to allow it."));
  Row(254, "session_unlink_btn", QT_TRANSLATE_NOOP("global", "Unlink"));
  Row(255, "msg_checkpass", QT_TRANSLATE_NOOP("global", "Checking your username and password..."));
  Row(256, "msi_button_print", QT_TRANSLATE_NOOP("global", "Print"));
  Row(257, "msi_welcome_dlg_subtitle",
      QT_TRANSLATE_NOOP("global", "Welcome to Lumivo Drive Setup"));
  Row(258, "common_maxlengthtext",
      QT_TRANSLATE_NOOP("global", "Enter no more than %1 characters."));
  Row(259, "btn_merge", QT_TRANSLATE_NOOP("global", "Merge"));
  Row(260, "selective_enable_entire_attribute_check",
      QT_TRANSLATE_NOOP("global", "Sync all file attributes and permissions"));
  Row(261, "notify_new_share",
      QT_TRANSLATE_NOOP("global",
                        "The shared folder \"%1\" is available on \"%2\". Click here to sync it."));
  Row(262, "history_keyword", QT_TRANSLATE_NOOP("global", "Keyword"));
  Row(263, "wizard_create_lumivo_folder",
      QT_TRANSLATE_NOOP("global", "Create an empty folder for Lumivo Drive"));
  Row(264, "file_selective_sync", QT_TRANSLATE_NOOP("global", "File filter"));
  Row(265, "tutorial_first_desc",
      QT_TRANSLATE_NOOP("global",
                        "Everything that you put into your sync folder appears on your server and "
                        "on your other computers."));
  Row(266, "msi_ready_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(267, "msi_maintenance_welcome_dlg_description",
      QT_TRANSLATE_NOOP(
          "global", "Setup can change, repair or remove Lumivo Drive. Click Next to continue."));
  Row(268, "wizard_set_sync_folder_desc",
      QT_TRANSLATE_NOOP("global", "Select a folder on your server and a folder on this computer."));
  Row(269, "err_proxy_ipport_empty",
      QT_TRANSLATE_NOOP("global", "Enter the address and port of the proxy server."));
  Row(270, "msg_catchevent", QT_TRANSLATE_NOOP("global", "Watching for changes..."));
  Row(271, "msi_maintenance_dlg_change_label", QT_TRANSLATE_NOOP("global", "Change"));
  Row(272, "management_proxy_apply_btn", QT_TRANSLATE_NOOP("global", "Apply"));
  Row(273, "tray_updatedfile", QT_TRANSLATE_NOOP("global", "\"%1\" was updated"));
  Row(274, "col_id", QT_TRANSLATE_NOOP("global", "ID"));
  Row(275, "msi_exit_dlg_launch", QT_TRANSLATE_NOOP("global", "Start Lumivo Drive now"));
  Row(276, "month_mar", QT_TRANSLATE_NOOP("global", "March"));
  Row(277, "msi_maintenance_dlg_description",
      QT_TRANSLATE_NOOP("global", "Select what you want to do."));
  Row(278, "err_user_home_disabled",
      QT_TRANSLATE_NOOP(
          "global",
          "Home folders are turned off on your server. Ask your administrator to turn them on."));
  Row(279, "main_sync_task", QT_TRANSLATE_NOOP("global", "Sync tasks"));
  Row(280, "msi_readyrepair_dlg_subtitle",
      QT_TRANSLATE_NOOP("global", "Ready to repair Lumivo Drive"));
  Row(281, "block_file_table_title", QT_TRANSLATE_NOOP("global", "Skipped files"));
  Row(282, "one_way_sync_download", QT_TRANSLATE_NOOP("global", "One-way sync (download only)"));
  Row(283, "msi_exit_dlg_text",
      QT_TRANSLATE_NOOP("global", "Lumivo Drive is now installed on this computer."));
  Row(284, "progress_preparing", QT_TRANSLATE_NOOP("global", "Preparing..."));
  Row(285, "selective_sync", QT_TRANSLATE_NOOP("global", "Selective sync"));
  Row(286, "msi_button_retry", QT_TRANSLATE_NOOP("global", "Retry"));
  Row(287, "language_default", QT_TRANSLATE_NOOP("global", "System language"));
  Row(288, "manage_setting_not_save",
      QT_TRANSLATE_NOOP(
          "global",
          "Your changes have not been saved.\\nDo you want to leave without saving them?"));
  Row(289, "wizard_setup_repeat_warning_title",
      QT_TRANSLATE_NOOP("global", "Folder already synced"));
  Row(290, "try_syncing", QT_TRANSLATE_NOOP("global", "Syncing..."));
  Row(291, "msi_readyremove_dlg_text",
      QT_TRANSLATE_NOOP("global",
                        "Click Remove to remove Lumivo Drive from this computer. Click Back to "
                        "review your choice. Click Cancel to exit Setup."));
  Row(292, "msi_maintenance_welcome_dlg_subtitle",
      QT_TRANSLATE_NOOP("global", "Welcome back to Lumivo Drive Setup"));
  Row(293, "conn_mode_direct", QT_TRANSLATE_NOOP("global", "Direct"));
  Row(294, "selective_sync_file_title", QT_TRANSLATE_NOOP("global", "Files"));
  Row(295, "wizard_conflict_sync_folder_warning",
      QT_TRANSLATE_NOOP(
          "global", "This folder is already used by another sync task. Select another folder."));
  Row(296, "err_full_short", QT_TRANSLATE_NOOP("global", "No space left"));
  Row(297, "manage_share_loading", QT_TRANSLATE_NOOP("global", "Loading shared folders..."));
  Row(298, "msg_unlinking", QT_TRANSLATE_NOOP("global", "Unlinking..."));
  Row(299, "tray_current_syncing", QT_TRANSLATE_NOOP("global", "Files being synced"));
  Row(300, "wizard_welcome_footer_info",
      QT_TRANSLATE_NOOP("global", "You can change all settings later."));
  Row(301, "open_sync_status", QT_TRANSLATE_NOOP("global", "Show sync status"));
  Row(302, "tray_updating", QT_TRANSLATE_NOOP("global", "Updating..."));
  Row(303, "err_remote_not_mounted",
      QT_TRANSLATE_NOOP("global",
                        "The folder on your server is not mounted. Mount it there and try again."));
  Row(304, "manage_option_show_filtered_icons",
      QT_TRANSLATE_NOOP("global", "Mark skipped files with an icon"));
  Row(305, "conn_mode_reading", QT_TRANSLATE_NOOP("global", "Checking the connection type..."));
  Row(306, "btn_next", QT_TRANSLATE_NOOP("global", "Next"));
  Row(307, "info_mergefolder",
      QT_TRANSLATE_NOOP("global", "Both versions of files with different contents are kept."));
  Row(308, "wizard_setup_repeat_warning",
      QT_TRANSLATE_NOOP("global", "This folder is already synced. Do you want to add it again?"));
  Row(309, "advanced_settings", QT_TRANSLATE_NOOP("global", "Advanced settings"));
  Row(310, "desc_cannot_list_version",
      QT_TRANSLATE_NOOP(
          "global",
          "The versions of this file cannot be listed. Check your permissions on the server."));
  Row(311, "err_proto",
      QT_TRANSLATE_NOOP(
          "global",
          "The server's response could not be understood. Update Lumivo Drive and try again."));
  Row(312, "msi_cancel_dlg_text",
      QT_TRANSLATE_NOOP("global",
                        "Are you sure you want to cancel the installation of Lumivo Drive?"));
  Row(313, "manage_proxy_server_port", QT_TRANSLATE_NOOP("global", "Port"));
  Row(314, "tray_fb_change",
      QT_TRANSLATE_NOOP("global", "A different server was found at this address"));
  Row(315, "month_jul", QT_TRANSLATE_NOOP("global", "July"));
  Row(316, "msi_filesinuse_dlg_description",
      QT_TRANSLATE_NOOP("global", "Some files that need to be updated are in use."));
  Row(317, "desc_lmvo_env_preparation_done", QT_TRANSLATE_NOOP("global", "Lumivo Drive is ready."));
  Row(318, "err_database",
      QT_TRANSLATE_NOOP("global",
                        "The sync database is damaged. Unlink this computer and link it again."));
  Row(319, "btn_shareitem_delete", QT_TRANSLATE_NOOP("global", "Remove"));
  Row(320, "open_folder", QT_TRANSLATE_NOOP("global", "Open folder"));
  Row(321, "NSIS_LUMIVO_INSTALLED_NEWER",
      QT_TRANSLATE_NOOP("global",
                        "A newer version of Lumivo Drive is already installed on this computer. "
                        "Remove it before you "
                        "install this version."));
  Row(322, "title_welcome", QT_TRANSLATE_NOOP("global", "Welcome"));
  Row(323, "manage_share_enable", QT_TRANSLATE_NOOP("global", "Sync this shared folder"));
  Row(324, "open_main_app", QT_TRANSLATE_NOOP("global", "Open the main window"));
  Row(325, "msi_progress_dlg_status_label", QT_TRANSLATE_NOOP("global", "Current step:"));
  Row(326, "sharing_restrict", QT_TRANSLATE_NOOP("global", "Restrict access"));
  Row(327, "msi_welcome_dlg_description",
      QT_TRANSLATE_NOOP("global",
                        "Setup will install Lumivo Drive on this computer. Click Next to continue "
                        "or Cancel to exit Setup."));
  Row(328, "wizard_connection_setting_desc",
      QT_TRANSLATE_NOOP(
          "global",
          "Enter the address of your server or its ZephLink ID, your username and your password."));
  Row(329, "wizard_create_local_folder_failed",
      QT_TRANSLATE_NOOP(
          "global", "Could not create the folder \"%1\". Check its path and your permissions."));
  Row(330, "msi_fatalerror_dlg_description1",
      QT_TRANSLATE_NOOP("global",
                        "Setup ended because of an error.\\nYour computer has not been changed."));
  Row(331, "msg_quotafull",
      QT_TRANSLATE_NOOP(
          "global", "Your quota on the server is used up. Delete some files to continue syncing."));
  Row(332, "btn_ok", QT_TRANSLATE_NOOP("global", "OK"));
  Row(333, "folder_selective_sync", QT_TRANSLATE_NOOP("global", "Folder filter"));
  Row(334, "wizard_ssl_verify_fail_sync_folder_warning",
      QT_TRANSLATE_NOOP(
          "global",
          "Your server's certificate could not be verified. Check it in the connection settings."));
  Row(335, "btn_choseother", QT_TRANSLATE_NOOP("global", "Choose another folder"));
  Row(336, "msg_finish_way",
      QT_TRANSLATE_NOOP("global", "You can open Lumivo Drive at any time from the tray."));
  Row(337, "err_conflict",
      QT_TRANSLATE_NOOP("global",
                        "The file was changed in two places at the same time. Both versions have "
                        "been kept. Delete the "
                        "one that you do not need."));
  Row(338, "wizard_ssl_change_sync_folder_warning",
      QT_TRANSLATE_NOOP(
          "global", "Your server's certificate has changed. Check it in the connection settings."));
  Row(339, "manage_option_enable_ssl", QT_TRANSLATE_NOOP("global", "Encrypt the connection (SSL)"));
  Row(340, "folder_name", QT_TRANSLATE_NOOP("global", "Folder name"));
  Row(341, "tutorial_fourth_desc",
      QT_TRANSLATE_NOOP("global",
                        "Create a link to a file and send it to anyone, with a password and an end "
                        "date if you like."));
  Row(342, "label_preparing", QT_TRANSLATE_NOOP("global", "Preparing..."));
  Row(343, "management_proxy_cancel_btn", QT_TRANSLATE_NOOP("global", "Cancel"));
  Row(344, "err_otp_required",
      QT_TRANSLATE_NOOP("global", "Enter the verification code for your account."));
  Row(345, "msg_info", QT_TRANSLATE_NOOP("global", "Information"));
  Row(346, "msi_readyremove_dlg_description",
      QT_TRANSLATE_NOOP("global", "You have chosen to remove Lumivo Drive from this computer."));
  Row(347, "msg_network_drive_watch",
      QT_TRANSLATE_NOOP(
          "global",
          "Changes on a network drive cannot be detected. Select a folder on a local disk."));
  Row(348, "wizard_share_name_duplicate_warning",
      QT_TRANSLATE_NOOP("global", "A folder with this name already exists. Enter another name."));
  Row(349, "friday", QT_TRANSLATE_NOOP("global", "Friday"));
  Row(350, "manage_proxy_title", QT_TRANSLATE_NOOP("global", "Proxy settings"));
  Row(351, "open_file", QT_TRANSLATE_NOOP("global", "Open file"));
  Row(352, "btn_edit_connection", QT_TRANSLATE_NOOP("global", "Edit connection"));
  Row(353, "col_file_action", QT_TRANSLATE_NOOP("global", "Action"));
  Row(354, "status_desc_uptodate", QT_TRANSLATE_NOOP("global", "Up to date"));
  Row(355, "err_disconn",
      QT_TRANSLATE_NOOP(
          "global", "The connection to your server was lost. It will be restored automatically."));
  Row(356, "status_desc_perm_short", QT_TRANSLATE_NOOP("global", "No permission"));
  Row(357, "history_download", QT_TRANSLATE_NOOP("global", "Downloaded"));
  Row(358, "history_items", QT_TRANSLATE_NOOP("global", "Items: %1"));
  Row(359, "session_unlink_confirm_msg",
      QT_TRANSLATE_NOOP(
          "global", "Do you want to stop syncing \"%1\" with \"%2\"?\\nNo files will be deleted."));
  Row(360, "manage_share_change_folder", QT_TRANSLATE_NOOP("global", "Change local folder"));
  Row(361, "msi_button_remove", QT_TRANSLATE_NOOP("global", "Remove"));
  Row(362, "msg_connectsucc", QT_TRANSLATE_NOOP("global", "The connection works."));
  Row(363, "msi_maintenance_dlg_repair_label", QT_TRANSLATE_NOOP("global", "Repair"));
  Row(364, "quick_mode_finish_page_title", QT_TRANSLATE_NOOP("global", "Setup complete"));
  Row(365, "title_chart_tray", QT_TRANSLATE_NOOP("global", "Icons in the tray"));
  Row(366, "month_may", QT_TRANSLATE_NOOP("global", "May"));
  Row(367, "manage_option_synchronization_mode", QT_TRANSLATE_NOOP("global", "Sync direction"));
  Row(368, "btn_back", QT_TRANSLATE_NOOP("global", "Back"));
  Row(369, "history_last_month", QT_TRANSLATE_NOOP("global", "Last month"));
  Row(370, "context_menu_version_browse", QT_TRANSLATE_NOOP("global", "Browse earlier versions"));
  Row(371, "col_time", QT_TRANSLATE_NOOP("global", "Time"));
  Row(372, "time_hour_ago", QT_TRANSLATE_NOOP("global", "%1 h ago"));
  Row(373, "black_list_desc",
      QT_TRANSLATE_NOOP("global", "Files and folders that match these rules are not synced."));
  Row(374, "msi_maintenance_dlg_remove_text",
      QT_TRANSLATE_NOOP("global",
                        "Removes Lumivo Drive from this computer. Your synced files are kept."));
  Row(375, "tray_management_page", QT_TRANSLATE_NOOP("global", "Manage connections"));
  Row(376, "wizard_diskfull_sync_folder_warning",
      QT_TRANSLATE_NOOP(
          "global", "There is not enough space on this disk. Select a folder on another disk."));
  Row(377, "block_file_name_label", QT_TRANSLATE_NOOP("global", "File names to skip"));
  Row(378, "thursday", QT_TRANSLATE_NOOP("global", "Thursday"));
  Row(379, "tray_resume", QT_TRANSLATE_NOOP("global", "Resume syncing"));
  Row(380, "recently_changed_title", QT_TRANSLATE_NOOP("global", "Recently changed files"));
  Row(381, "history_folder", QT_TRANSLATE_NOOP("global", "Folder"));
  Row(382, "title_ip_detail",
      QT_TRANSLATE_NOOP("global", "IP address, domain name or ZephLink ID"));
  Row(383, "tray_exit", QT_TRANSLATE_NOOP("global", "Exit"));
  Row(384, "manage_option_enable_context_menu",
      QT_TRANSLATE_NOOP("global", "Show Lumivo Drive in the context menu"));
  Row(385, "msi_eula_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(386, "status_desc_errversion_client",
      QT_TRANSLATE_NOOP("global",
                        "This version of Lumivo Drive is too old. Update it on this computer."));
  Row(387, "wizard_invalid_sync_folder_warning",
      QT_TRANSLATE_NOOP("global", "This folder cannot be synced. Select another folder."));
  Row(388, "main_settings", QT_TRANSLATE_NOOP("global", "Settings"));
  Row(389, "msg_download_aborted", QT_TRANSLATE_NOOP("global", "The download was canceled."));
  Row(390, "sharing_enable_expire_times",
      QT_TRANSLATE_NOOP("global", "Limit the number of downloads"));
  Row(391, "manage_option_enable_icon_overlay",
      QT_TRANSLATE_NOOP("global", "Show sync status icons on files"));
  Row(392, "common_fieldblank", QT_TRANSLATE_NOOP("global", "This field is required."));
  Row(393, "general_setting_show_tutorial", QT_TRANSLATE_NOOP("global", "Show the tutorial"));
  Row(394, "link_new_nas", QT_TRANSLATE_NOOP("global", "Link another server"));
  Row(395, "msi_eula_dlg_reject",
      QT_TRANSLATE_NOOP("global", "I do not accept the terms of the license agreement"));
  Row(396, "err_version_short", QT_TRANSLATE_NOOP("global", "Version mismatch"));
  Row(397, "first_page", QT_TRANSLATE_NOOP("global", "First page"));
  Row(398, "msi_button_install", QT_TRANSLATE_NOOP("global", "Install"));
  Row(399, "err_share_perm_short", QT_TRANSLATE_NOOP("global", "Access denied"));
  Row(400, "connection_enter_otp",
      QT_TRANSLATE_NOOP("global", "Enter the 6-digit verification code"));
  Row(401, "got_it", QT_TRANSLATE_NOOP("global", "Got it"));
  Row(402, "err_syncfolder_not_mounted",
      QT_TRANSLATE_NOOP(
          "global",
          "The disk with the local sync folder is not connected. Connect it to continue syncing."));
  Row(403, "dont_show_msg", QT_TRANSLATE_NOOP("global", "Do not show this message again"));
  Row(404, "btn_start_now", QT_TRANSLATE_NOOP("global", "Start now"));
  Row(405, "local_fb_search", QT_TRANSLATE_NOOP("global", "Search the local network"));
  Row(406, "manage_proxy_chk_manual", QT_TRANSLATE_NOOP("global", "Set up the proxy manually"));
  Row(407, "read_only_tooltip",
      QT_TRANSLATE_NOOP("global", "You can open the files in this folder but not change them."));
  Row(408, "err_max_tries",
      QT_TRANSLATE_NOOP("global", "Too many failed attempts. Wait a few minutes and try again."));
  Row(409, "manage_share_status", QT_TRANSLATE_NOOP("global", "Status"));
  Row(410, "month_sep", QT_TRANSLATE_NOOP("global", "September"));
  Row(411, "msg_mergefolder",
      QT_TRANSLATE_NOOP(
          "global",
          "The folder is not empty. Its files will be merged with the files on your server."));
  Row(412, "history_last_week", QT_TRANSLATE_NOOP("global", "Last week"));
  Row(413, "msg_download_done", QT_TRANSLATE_NOOP("global", "The download is complete."));
  Row(414, "tutorial_third_desc_2",
      QT_TRANSLATE_NOOP("global", "You can bring back a version that you overwrote or deleted."));
  Row(415, "sunday", QT_TRANSLATE_NOOP("global", "Sunday"));
  Row(416, "tray_status_paused", QT_TRANSLATE_NOOP("global", "Paused"));
  Row(417, "wizard_set_sync_folder_title", QT_TRANSLATE_NOOP("global", "Sync folder"));
  Row(418, "status_desc_version_short", QT_TRANSLATE_NOOP("global", "Update required"));
  Row(419, "title_bubble_sharing", QT_TRANSLATE_NOOP("global", "Sharing"));
  Row(420, "msi_maintenance_dlg_remove_label", QT_TRANSLATE_NOOP("global", "Remove"));
  Row(421, "tuesday", QT_TRANSLATE_NOOP("global", "Tuesday"));
  Row(422, "manage_option_enable_startup",
      QT_TRANSLATE_NOOP("global", "Start Lumivo Drive when you sign in"));
  Row(423, "msg_error", QT_TRANSLATE_NOOP("global", "Error"));
  Row(424, "manage_share_title", QT_TRANSLATE_NOOP("global", "Manage shared folders"));
  Row(425, "time_minute_ago", QT_TRANSLATE_NOOP("global", "%1 min ago"));
  Row(426, "share_enable_remove_msg",
      QT_TRANSLATE_NOOP("global",
                        "This shared folder will no longer be synced. The files that are already "
                        "on this computer will be kept."));
  Row(427, "file_ext_label", QT_TRANSLATE_NOOP("global", "File extensions to skip"));
  Row(428, "conn_mode_ez", QT_TRANSLATE_NOOP("global", "Relay"));
  Row(429, "msi_progress_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(430, "err_auth_short", QT_TRANSLATE_NOOP("global", "Sign-in failed"));
  Row(431, "msi_maintenance_dlg_change_text_disabled",
      QT_TRANSLATE_NOOP("global", "Lumivo Drive has no features that can be chosen separately."));
  Row(432, "title_value", QT_TRANSLATE_NOOP("global", "Value"));
  Row(433, "NSIS_NOT_ADMIN_CONFIRM",
      QT_TRANSLATE_NOOP("global",
                        "You are not signed in as an administrator. Lumivo Drive will be installed "
                        "only for you.\\nDo you want to continue?"));
  Row(434, "err_fxm_share_link",
      QT_TRANSLATE_NOOP("global",
                        "Links cannot be created because the file service is turned off. Ask your "
                        "administrator to turn it on."));
  Row(435, "msi_filesinuse_dlg_closeall",
      QT_TRANSLATE_NOOP("global", "Close the applications and try to restart them afterward"));
  Row(436, "msi_eula_dlg_subtitle", QT_TRANSLATE_NOOP("global", "License agreement"));
  Row(437, "msi_welcome_dlg_title", QT_TRANSLATE_NOOP("global", "Lumivo Drive Setup"));
  Row(438, "wizard_system_err_sync_folder_warning",
      QT_TRANSLATE_NOOP(
          "global", "The folder could not be checked because of a system error. Try again later."));
  Row(439, "msi_button_next", QT_TRANSLATE_NOOP("global", "Next"));
  Row(440, "NSIS_LUMIVO_INSTALLED_CURRENT",
      QT_TRANSLATE_NOOP(
          "global",
          "This version of Lumivo Drive is already installed. Do you want to install it again?"));
  Row(441, "sharing_enable_start_at", QT_TRANSLATE_NOOP("global", "Set a start date"));
  Row(442, "btn_manage", QT_TRANSLATE_NOOP("global", "Manage"));
  Row(443, "msg_linking", QT_TRANSLATE_NOOP("global", "Connecting..."));
  Row(444, "err_share_not_mounted",
      QT_TRANSLATE_NOOP(
          "global",
          "This shared folder is not mounted on your server. Mount it there and try again."));
  Row(445, "conn_mode_lan", QT_TRANSLATE_NOOP("global", "Local network"));
  Row(446, "history_all_event", QT_TRANSLATE_NOOP("global", "All events"));
  Row(447, "unlink_connection", QT_TRANSLATE_NOOP("global", "Unlink this connection"));
  Row(448, "tray_unstable", QT_TRANSLATE_NOOP("global", "The connection is unstable"));
  Row(449, "wizard_finish_pairing_desc",
      QT_TRANSLATE_NOOP("global",
                        "This computer and your server now keep these folders in sync.\\nYou can "
                        "add more sync tasks at any time."));
  Row(450, "context_menu_filter_folder", QT_TRANSLATE_NOOP("global", "Do not sync this folder"));
  Row(451, "msg_ssl_change",
      QT_TRANSLATE_NOOP("global",
                        "Your server's certificate has changed.\\nContinue only if you know why."));
  Row(452, "file_max_size_label", QT_TRANSLATE_NOOP("global", "Maximum file size (MB)"));
  Row(453, "conflict_policy_compare_mtime",
      QT_TRANSLATE_NOOP("global", "Keep the version that was changed last"));
  Row(454, "wizard_find_local_fb_tooltip",
      QT_TRANSLATE_NOOP("global", "Find servers on the local network"));
  Row(455, "wizard_user_disable_sync_folder_warning",
      QT_TRANSLATE_NOOP("global",
                        "Your account is not allowed to sync this folder. Ask your administrator "
                        "for permission."));
  Row(456, "selective_sync_folder_title", QT_TRANSLATE_NOOP("global", "Folders"));
  Row(457, "time_just_now", QT_TRANSLATE_NOOP("global", "Just now"));
  Row(458, "msi_readyrepair_dlg_description",
      QT_TRANSLATE_NOOP("global", "Setup is ready to repair Lumivo Drive."));
  Row(459, "wizard_readonly_sync_folder_warning",
      QT_TRANSLATE_NOOP(
          "global",
          "You can only read this folder. Changes on this computer will not be uploaded."));
  Row(460, "wizard_access_deny_sync_folder_warning",
      QT_TRANSLATE_NOOP(
          "global",
          "You do not have access to this folder. Ask your administrator for permission."));
  Row(461, "history_no_data", QT_TRANSLATE_NOOP("global", "No entries found"));
  Row(462, "quick_mode_end_msg",
      QT_TRANSLATE_NOOP("global",
                        "Your files are being synced. You can keep working in the meantime."));
  Row(463, "title_inactive", QT_TRANSLATE_NOOP("global", "Inactive"));
  Row(464, "msg_ssl_error",
      QT_TRANSLATE_NOOP("global",
                        "Your server's certificate could not be verified.\\nContinue only if you "
                        "trust this network."));
  Row(465, "tray_syncing_file_cnt", QT_TRANSLATE_NOOP("global", "Files left to sync: %1"));
  Row(466, "msg_welcome", QT_TRANSLATE_NOOP("global", "Welcome to Lumivo Drive"));
  Row(467, "sharing_enable_expire_at", QT_TRANSLATE_NOOP("global", "Set an end date"));
  Row(468, "err_shareitem_delete",
      QT_TRANSLATE_NOOP("global", "The sync task could not be removed. Try again later."));
  Row(469, "tutorial_second_desc_2",
      QT_TRANSLATE_NOOP("global", "Click the icon to see which files are being synced."));
  Row(470, "tutorial_first_title", QT_TRANSLATE_NOOP("global", "Your sync folder"));
  Row(471, "err_ssl_verify_fail",
      QT_TRANSLATE_NOOP("global",
                        "Your server's certificate could not be verified. Ask your administrator "
                        "to install a valid one."));
  Row(472, "status_desc_fb_changed",
      QT_TRANSLATE_NOOP("global", "The server has been replaced. Link this computer again."));
  Row(473, "wizard_welcome_mask_desc",
      QT_TRANSLATE_NOOP("global", "Follow these steps to link this computer to your server."));
  Row(474, "manage_proxy_server_ip", QT_TRANSLATE_NOOP("global", "Proxy server"));
  Row(475, "manage_proxy_tab_name", QT_TRANSLATE_NOOP("global", "Proxy"));
  Row(476, "btn_done", QT_TRANSLATE_NOOP("global", "Done"));
  Row(477, "files_update", QT_TRANSLATE_NOOP("global", "Updated files"));
  Row(478, "btn_ssl_continue", QT_TRANSLATE_NOOP("global", "Continue anyway"));
  Row(479, "status_desc_syncing", QT_TRANSLATE_NOOP("global", "Syncing..."));
  Row(480, "msi_button_finish", QT_TRANSLATE_NOOP("global", "Finish"));
  Row(481, "history_search", QT_TRANSLATE_NOOP("global", "Search"));
  Row(482, "title_chart_local", QT_TRANSLATE_NOOP("global", "Icons on local files"));
  Row(483, "context_menu_no_option_available", QT_TRANSLATE_NOOP("global", "No actions available"));
  Row(484, "history_file_name", QT_TRANSLATE_NOOP("global", "File name"));
  Row(485, "notify_abnormal_short", QT_TRANSLATE_NOOP("global", "Syncing stopped"));
  Row(486, "manage_share_local_syncfolder", QT_TRANSLATE_NOOP("global", "Local sync folder"));
  Row(487, "msg_disabled", QT_TRANSLATE_NOOP("global", "Disabled"));
  Row(488, "tooltip_folder_indexing",
      QT_TRANSLATE_NOOP(
          "global",
          "Your server is still indexing \"%1\". You can sync it when indexing is complete."));
  Row(489, "conflict_policy_desc",
      QT_TRANSLATE_NOOP("global", "When a file has been changed in two places"));
  Row(490, "msg_folder_not_empty",
      QT_TRANSLATE_NOOP("global",
                        "The folder \"%1\" is not empty.\\nDo you want to use it anyway?"));
  Row(491, "tray_uptodate", QT_TRANSLATE_NOOP("global", "Up to date"));
  Row(492, "col_file_name", QT_TRANSLATE_NOOP("global", "File name"));
  Row(493, "title_changefolder", QT_TRANSLATE_NOOP("global", "Change folder"));
  Row(494, "wizard_setup_quick_mode_desc",
      QT_TRANSLATE_NOOP("global", "Sync your home folder using the recommended settings."));
  Row(495, "selective_sync_loading", QT_TRANSLATE_NOOP("global", "Loading folders..."));
  Row(496, "wednesday", QT_TRANSLATE_NOOP("global", "Wednesday"));
  Row(497, "title_ssl_enable", QT_TRANSLATE_NOOP("global", "SSL encryption"));
  Row(498, "msi_ready_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Ready to install Lumivo Drive"));
  Row(499, "manage_option_sync_mode", QT_TRANSLATE_NOOP("global", "Sync mode"));
  Row(500, "msi_userexit_dlg_description2",
      QT_TRANSLATE_NOOP("global", "Run Setup again whenever you want to install Lumivo Drive."));
  Row(501, "quick_mode_finish_page_desc",
      QT_TRANSLATE_NOOP("global", "Your home folder on the server now syncs with this computer."));
  Row(502, "fb_overview", QT_TRANSLATE_NOOP("global", "Server overview"));
  Row(503, "msg_enabled", QT_TRANSLATE_NOOP("global", "Enabled"));
  Row(504, "session_pause_btn", QT_TRANSLATE_NOOP("global", "Pause"));
  Row(505, "tray_pause", QT_TRANSLATE_NOOP("global", "Pause syncing"));
  Row(506, "finish", QT_TRANSLATE_NOOP("global", "Finish"));
  Row(507, "add", QT_TRANSLATE_NOOP("global", "Add"));
  Row(508, "status_desc_auth_short", QT_TRANSLATE_NOOP("global", "Sign-in failed"));
  Row(509, "history_time", QT_TRANSLATE_NOOP("global", "Time"));
  Row(510, "saturday", QT_TRANSLATE_NOOP("global", "Saturday"));
  Row(511, "msg_share_quotafull",
      QT_TRANSLATE_NOOP(
          "global",
          "The quota of this shared folder is used up. Delete some files to continue syncing."));
  Row(512, "msg_summary", QT_TRANSLATE_NOOP("global", "Summary"));
  Row(513, "wizard_sync_folder_new_session", QT_TRANSLATE_NOOP("global", "Your new sync task"));
  Row(514, "main_download_history", QT_TRANSLATE_NOOP("global", "Download history"));
  Row(515, "msg_download_downloading", QT_TRANSLATE_NOOP("global", "Downloading..."));
  Row(516, "msg_language_restart",
      QT_TRANSLATE_NOOP("global",
                        "The new language takes effect the next time Lumivo Drive starts."));
  Row(517, "msi_progress_dlg_subtitle", QT_TRANSLATE_NOOP("global", "Installing Lumivo Drive"));
  Row(518, "manage_option_enable_desktop_notify",
      QT_TRANSLATE_NOOP("global", "Show desktop notifications"));
  Row(519, "wizard_setup_mode_page_desc",
      QT_TRANSLATE_NOOP("global",
                        "Quick setup suits most users. You can change everything later."));
  Row(520, "label_downloading", QT_TRANSLATE_NOOP("global", "Downloading..."));
  Row(521, "status_desc_diskfull", QT_TRANSLATE_NOOP("global", "Your server's disk is full."));
  Row(522, "tutorial_third_title", QT_TRANSLATE_NOOP("global", "Go back in time"));
}

QString LoadStr(int id) {
  QString text = QCoreApplication::translate("global", stab[id], nullptr, -1);
  text.replace(QLatin1String("\\n"), QLatin1String("\n"));
  text.replace(QLatin1String("\\t"), QLatin1String("\t"));
  return text;
}

int LookupStrID(QString key) {
  const QByteArray wanted = key.toLocal8Bit();
  for (int id = 0; id < kRowCount; ++id) {
    if (qstricmp(wanted.constData(), ktab[id]) == 0) return id;
  }
  return -1;
}

}  // namespace StrTable
