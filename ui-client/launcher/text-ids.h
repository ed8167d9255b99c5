#pragma once

/// The rows of the UI string table that the launcher shows (StrTable::LoadStr).
enum TextId {
  kTextAppName = 116,    ///< the dialog's title
  kTextPreparing = 170,  ///< the dialog's label while the package is extracted
  kTextReady = 317,      ///< the dialog's label once the installation is ready
};
