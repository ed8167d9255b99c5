#include "version-file.h"

#include <QSettings>
#include <cstdlib>

#include "qt-text.h"

void ReadVersionFile(const ustring& path, VerInfo* version) {
  QSettings settings(ToQt(path), QSettings::IniFormat);
  settings.beginGroup(QStringLiteral("Version"));
  const auto read = [&settings](const QString& key, ustring* field) {
    if (settings.contains(key)) *field = FromQt(settings.value(key).toString());
  };
  read(QStringLiteral("major_version"), &version->major_version);
  read(QStringLiteral("minor_version"), &version->minor_version);
  read(QStringLiteral("build_version"), &version->build_version);
  read(QStringLiteral("icon_overlay_version"), &version->icon_overlay_version);
}

int BuildNumber(const VerInfo& version) {
  return atoi(version.build_version.c_str());
}
