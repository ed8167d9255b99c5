#include "launcher.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <cerrno>
#include <climits>

#include "StrTable.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "progress-dialog.h"
#include "text-ids.h"

#define LOG_UNIT "launcher"
#include "log.h"

namespace {

const ustring kComponent = "launcher_debug";

constexpr int kTurnProbes = 600;
constexpr unsigned kTurnProbeMilliseconds = 100;

// The turn of one launcher to work on the per-user installation. Copies of it at other paths are
// instances of their own but share that; whoever comes second sees what the first has installed.
// Nobody waits longer than a minute, and where the folder cannot be locked nobody waits at all: a
// client that starts is worth more than the order.
class Turn {
 public:
  explicit Turn(const ustring& folder)
      : fd_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    for (int probe = 0; probe < kTurnProbes && fd_ >= 0; ++probe) {
      if (flock(fd_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK) return;
      QThread::msleep(kTurnProbeMilliseconds);
    }
  }
  Turn(const Turn&) = delete;
  Turn& operator=(const Turn&) = delete;
  ~Turn() {
    if (fd_ >= 0) close(fd_);
  }

 private:
  const int fd_;
};

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
  const Turn turn(Service::GetUserLumivoInstallPath());
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
  LOG_DEBUG(kComponent, "done\n");
  emit sigServiceDone();
}

Launcher::Launcher() : worker(new Worker), dialog(new ProcessingProgressDialog) {
  dialog->setCancelButton(nullptr);
  dialog->setAutoReset(false);
  dialog->installEventFilter(this);

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
  const bool closes = event->type() == QEvent::Close ||
                      (event->type() == QEvent::KeyPress &&
                       static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel));
  if (watched != dialog || !closes) return QObject::eventFilter(watched, event);
  event->ignore();
  return true;
}

void Launcher::LaunchDone() {
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
