#pragma once

#include <QString>

#include "ustring.h"

/// Converts between Qt's strings and ours, through UTF-8.
inline ustring FromQt(const QString& text) {
  return ustring(text.toUtf8().constData());
}

inline QString ToQt(const ustring& text) {
  return QString::fromUtf8(text.c_str());
}
