#include "launcher.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <climits>

#include "StrTable.h"
#include "installation-lock.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "progress-dialog.h"
#include "text-ids.h"

#define LOG_UNIT "launcher"
#include "log.h"

namespace {

const ustring kComponent = "launcher_debug";

}  // namespace

void HandlerThread::run() {
  exec();
}

Worker::Worker() : service(new MacService) {
  thread = new HandlerThread;
  moveToThread(thread);
}

Worker::~Worker() {
  QuitThread();
  JoinThread();
  delete thread;
  delete service;
}

void Worker::StartThread() {
  thread->start(QThread::InheritPriority);
}

void Worker::QuitThread() {
  thread->quit();
}

void Worker::JoinThread() {
  thread->wait(ULONG_MAX);
}

void Worker::HandleServicce() {
  LOG_DEBUG(kComponent, "running\n");
  InstallationLock lock(Service::GetUserLumivoInstallPath());
  // Where another launcher keeps the installation, that one starts the client.
  if (lock.Acquire()) Serve();
  LOG_DEBUG(kComponent, "done\n");
  emit sigServiceDone();
}

void Worker::Serve() {
  service->PreUpgrade();

  if (!service->IsNeedUpgrade()) {
    LOG_DEBUG(kComponent, "no need to upgrade\n");
  } else {
    emit sigShowMsg();
    if (service->HandlePackageUpgrade() != 0) {
      LOG_ERROR(kComponent, "Failed to upgrade package\n");
    } else {
      emit sigUpdateProgress(100, 100);
      emit sigSetLabelText(StrTable::LoadStr(kTextReady));
    }
  }

  service->RemoveAgedFolders();
  service->PostUpgrade();
}

Launcher::Launcher() : worker(new Worker), dialog(new ProcessingProgressDialog) {
  dialog->setCancelButton(nullptr);
  dialog->setAutoReset(false);
  QCoreApplication::instance()->installEventFilter(this);

  connect(this, SIGNAL(sigStart()), worker, SLOT(HandleServicce()));
  connect(worker, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()));
  connect(worker, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()));
  connect(worker, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)));
  connect(worker, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)));
  connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)), this,
          SLOT(UpdateProgress(int, int)));
  connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)), this,
          SLOT(SetLabelText(QString)));
}

Launcher::~Launcher() {
  delete worker;
  delete dialog;
}

void Launcher::Run() {
  worker->StartThread();
}

void Launcher::Start() {
  emit sigStart();
}

bool Launcher::eventFilter(QObject* watched, QEvent* event) {
  if (!WouldEndTheRun(watched, event)) return QObject::eventFilter(watched, event);
  event->ignore();
  return true;
}

// Hiding the last window ends the event loop, and so does quitting the application: the Quit
// command of a menu or the Dock, or the end of the session.
bool Launcher::WouldEndTheRun(const QObject* watched, QEvent* event) const {
  if (watched == QCoreApplication::instance()) {
    return event->type() == QEvent::Quit || event->type() == QEvent::Close;
  }
  if (watched != dialog) return false;
  return event->type() == QEvent::Close ||
         (event->type() == QEvent::KeyPress &&
          static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel));
}

void Launcher::LaunchDone() {
  QCoreApplication::instance()->removeEventFilter(this);
  dialog->setValue(100);
  dialog->hide();
  worker->QuitThread();
  worker->JoinThread();
  QCoreApplication::quit();
}

void Launcher::UpdateProgress(int total, int steps) {
  if (total <= 0) return;
  dialog->setValue(steps * 100 / total);
}

void Launcher::SetLabelText(const QString& text) {
  dialog->setLabelText(text);
}

void Launcher::ShowMsgBox() {
  dialog->show();
}
