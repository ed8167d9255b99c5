#pragma once

#include <QString>

/// The time zone that the launcher names to itself where none is set: the very file that the C
/// library would use. Unnamed, it would look at the file again for every time that it converts,
/// several times for each entry of a package. A client that OpenBundle() starts does not get to see
/// it.
constexpr char kOwnTimeZone[] = ":/etc/localtime";

/// What the platform's LaunchServices do for an application bundle. Any thread.

/// Has the registration tool forget the bundle, and waits for it. The tool's exit code; negative
/// when it is missing, could not be started or crashed.
int UnregisterBundle(const QString& bundle);

/// Starts the application of the bundle, which goes on when this process has ended and inherits
/// none of its open files.
///
/// On macOS the desktop services open the bundle. Elsewhere the bundle's executable is started in a
/// session of its own: the `CFBundleExecutable` of its Contents/Info.plist where that names one,
/// else "lumivo-drive-ui".
///
/// @return whether the platform accepted to start it; how it fares afterwards is not waited for
bool OpenBundle(const QString& bundle);
