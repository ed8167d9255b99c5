#pragma once

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

/// The thread that the Worker lives on: runs its own event loop.
class HandlerThread : public QThread {
  Q_OBJECT

 protected:
  void run() override;
};

/// Runs the upgrade service, once per process, on a thread of its own.
///
/// Created on the main thread and moved to its HandlerThread at once. Never touches the dialog: it
/// reports through its signals, and the service through Notify_Adapter.
class Worker : public QObject {
  Q_OBJECT

 public:
  Worker();

  /// Asks the thread to end and waits for it, however long the running upgrade still takes, then
  /// frees thread and service: a running thread is never destroyed. Main thread.
  ~Worker() override;

  /// Starts the thread. Work that was asked for before waits in its queue.
  void StartThread();

  /// Asks the thread to leave its event loop once the running slot has returned. Any thread.
  void QuitThread();

  /// Waits for the thread's end, without a time limit. Not to be called on the thread itself.
  void JoinThread();

 signals:
  /// The run is over. Always the last signal emitted.
  void sigServiceDone();
  /// An upgrade begins, and the dialog should be seen.
  void sigShowMsg();
  /// (total, steps), as Notify_Adapter reports them.
  void sigUpdateProgress(int, int);
  /// What the label says from now on, already translated.
  void sigSetLabelText(const QString&);

 private slots:
  /// One run: upgrades the per-user installation when it needs the package, cleans up, starts the
  /// client. Whatever fails on the way is logged, and the client is started all the same. If
  /// another launcher holds the lock on the installation, nothing is done here: that one does it
  /// all.
  void HandleServicce();

 private:
  void Serve();

  HandlerThread* thread;
  Service* service;
};

/// Owns the worker and the progress dialog, and carries the worker's reports to the dialog. Main
/// thread only.
///
/// Run(), then Start(), then the application's event loop, which the Launcher ends once the worker
/// is done. Until then nothing else ends it: the dialog refuses Escape and the close button, and
/// the application refuses QEvent::Quit and QEvent::Close, whether the dialog is visible or not.
class Launcher : public QObject {
  Q_OBJECT

 public:
  Launcher();
  ~Launcher() override;

  /// Starts the worker's thread.
  void Run();

  /// Has the worker begin its run, as soon as its thread is up.
  void Start();

 signals:
  /// Runs HandleServicce() in the worker's thread.
  void sigStart();

 protected:
  /// Sees every event of the application, and refuses those that would end the run.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private slots:
  /// Hides the dialog, joins the worker's thread and ends the application's event loop.
  void LaunchDone();

  /// Shows `steps` of `total` as a percentage, rounded down. A report with a `total` below 1 is
  /// ignored. `steps` stays below 21,474,837, so that the product fits 32 bits.
  void UpdateProgress(int total, int steps);

  void SetLabelText(const QString&);

  /// Shows the dialog, at whatever value and text it has, and does not wait for it.
  void ShowMsgBox();

 private:
  bool WouldEndTheRun(const QObject* watched, QEvent* event) const;

  Worker* worker;
  ProcessingProgressDialog* dialog;
};
