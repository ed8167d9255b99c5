#pragma once

#include <QString>

/// What the platform's LaunchServices do for an application bundle. Any thread.

/// The platform's registration tool, which exists on macOS only.
constexpr char kRegistrationTool[] =
    "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework/"
    "Support/lsregister";

/// Unregisters the bundle with the registration tool, and waits for that. Returns the tool's exit
/// code; negative when the tool is missing, could not be started or crashed.
int UnregisterBundle(const QString& bundle);

/// Starts the application of the bundle. It keeps running when this process has ended.
///
/// On macOS the desktop services open the bundle. Elsewhere its program is started: the
/// `CFBundleExecutable` of its property list, or "lumivo-drive-ui" where there is none. It runs in
/// a session of its own with the environment that the launcher was started with. Its standard
/// streams lead to /dev/null, no signal is blocked or ignored, and it inherits no other descriptor,
/// neither the launcher's nor one that the launcher inherited.
///
/// @return whether the platform accepted to start it, with the reason in the log where it names
/// one; what becomes of it is not waited for
bool OpenBundle(const QString& bundle);
