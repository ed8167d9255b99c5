#pragma once

#include <QProgressDialog>

/// The launcher's only window: title, label and a percentage bar, shown while the per-user
/// installation is prepared.
///
/// Created hidden, without parent, 400 pixels wide, with the texts of the installed translation and
/// the icon of the bundle (none when the file cannot be read). Needs the string table and the
/// application object. Main thread only.
class ProcessingProgressDialog : public QProgressDialog {
  Q_OBJECT

 public:
  ProcessingProgressDialog();
  ~ProcessingProgressDialog() override;
};
