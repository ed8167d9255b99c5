#pragma once

/// The TZ value that the launcher sets for itself when TZ is unset: the file that the C library
/// would read anyway. With TZ unset, the C library examines that file again for every time it
/// converts, several times for each entry of a package. The client must not inherit the value.

/// Sets TZ unless it is set, even if to nothing. Once, before other threads start.
void SetOwnTimeZone();

/// Whether `entry`, one of `environ`, is what SetOwnTimeZone() put there. The same text set by the
/// user is not.
bool IsOwnTimeZone(const char* entry);
