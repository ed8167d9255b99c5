#pragma once

#include <QString>

/// What the platform's LaunchServices do for an application bundle. Any thread.

/// Has the registration tool forget the bundle, and waits for it. The tool's exit code; negative when it is missing,
/// could not be started or crashed.
int UnregisterBundle(const QString& bundle);

/// Starts the application of the bundle, which goes on when this process has ended and inherits none of its open files.
///
/// On macOS the desktop services open the bundle. Elsewhere the bundle's executable is started in a session of its own:
/// the `CFBundleExecutable` of its Contents/Info.plist where that names one, else "lumivo-drive-ui".
///
/// @return whether the platform accepted to start it; how it fares afterwards is not waited for
bool OpenBundle(const QString& bundle);
