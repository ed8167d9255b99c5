#pragma once

#include <QObject>
#include <QString>

/// Carries progress and label texts from code that knows nothing of the UI to whoever shows them.
///
/// The one instance is made by the first caller of GetInstance(), which must be the main thread so
/// that the object lives there. Receivers on the main thread get reports of other threads through
/// their event queue, in the order of emission.
class Notify_Adapter : public QObject {
  Q_OBJECT

 public:
  /// The instance of this process; any thread. It lives until the process ends.
  static Notify_Adapter* GetInstance();

  /// Reports that `current` of `total` steps are done. Any thread. `total` is positive: receivers
  /// ignore other reports.
  void UpdateProgress(int total, int current);

  /// Reports the text that the dialog should show from now on, already translated. Any thread.
  void UpdateDialogText(QString text);

 signals:
  void sigUpdateProgress(int total, int current);
  void sigUpdateDialogText(QString);

 private:
  Notify_Adapter() = default;
};
