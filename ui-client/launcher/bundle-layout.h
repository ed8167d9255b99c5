#pragma once

/// Where things lie inside an application bundle, each path once. They are appended to the bundle's
/// own path, but for those that say otherwise. The launcher's bundle and the per-user one share the
/// layout; the comment says whose file it is.

/// The client's program in the per-user bundle. A bundle without it is incomplete.
constexpr char kClientProgram[] = "/Contents/MacOS/lumivo-drive-ui";

/// Names the program of a bundle.
constexpr char kPropertyList[] = "/Contents/Info.plist";

/// The version of the package (launcher's bundle), or of the installed client (per-user bundle).
constexpr char kVersionFile[] = "/Contents/Resources/INFO";

/// Files of the launcher's bundle: the client's package, and the dialog's icon. Both are
/// relative to the resource folder.
constexpr char kResourceFolder[] = "/Contents/Resources";
constexpr char kPackage[] = "/package/lumivo.lvp";
constexpr char kIcon[] = "/images/ico_72_lumivo.png";

/// The log levels, in the launcher's bundle.
constexpr char kLogLevels[] = "/log/launcher.debug";
