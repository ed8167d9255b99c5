#pragma once

#include "ustring.h"

/// The texts of a version file: an INI file with the group "Version". The launcher only reads it.
struct VerInfo {
  ustring major_version;         ///< only logged
  ustring minor_version;         ///< only logged
  ustring build_version;         ///< the one that decides; read as a decimal integer
  ustring icon_overlay_version;  ///< only logged
};

/// Reads the version file at `path` into `version`. A key that is missing leaves its field as it
/// was, and so does a file that is missing or cannot be read. Any thread.
void ReadVersionFile(const ustring& path, VerInfo* version);

/// The build number that decides, as `atoi` reads it: 0 when the text is empty or does not begin
/// with a number.
int BuildNumber(const VerInfo& version);
