// Start-up and end of the launcher. The order of the steps matters: see Run().

#include <QDir>
#include <QTranslator>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <memory>

#include "StrTable.h"
#include "TavLocale.h"
#include "bundle-layout.h"
#include "launcher.h"
#include "lumivo-service.h"
#include "own-time-zone.h"
#include "qt-text.h"
#include "qtsingleapplication.h"

#define LOG_UNIT "main"
#include "log.h"

namespace {

constexpr int kRotateCount = 50;

const ustring kComponent = "launcher_debug";

// Qt looks for its plug-ins nowhere but in the bundle, so that the bundle runs the same on every
// machine.
void SetPluginFolder(const char* program) {
  const QString folder =
      QDir::cleanPath(QString::fromUtf8(program) + QStringLiteral("/../../Frameworks/plugins"));
  QCoreApplication::setLibraryPaths(QStringList(folder));
  printf("lib path = '%s'\n", folder.toUtf8().constData());
  fflush(stdout);  // Qt aborts when the folder lacks its platform plug-in, and the line tells where
                   // it looked
}

// Without a log folder the Logger keeps its initial state, and the launcher does its work all the
// same.
void OpenLog() {
  const ustring levels = Service::GetRootLumivoInstallPath() + kLogLevels;
  const ustring folder = Service::GetUserLumivoInstallPath() + "/log";
  if (!QDir().mkpath(ToQt(folder))) return;
  Logger::Initialize(Logger::TYPE_FILE, folder + "/launcher.log", levels, kRotateCount);
}

void InstallTranslation(QTranslator* translator) {
  (void)translator->load(QStringLiteral(":/") + TavLocale::getDefaultLanguage() +
                         QStringLiteral(".qm"));
  if (!translator->isEmpty()) QCoreApplication::installTranslator(translator);
}

// The translator outlives the launcher, and the application both.
int Run(QtSingleApplication* app) {
  OpenLog();
  if (app->isRunning()) {
    LOG_DEBUG(kComponent, "app has already launched, return\n");
    return 0;
  }
  QTranslator translator;
  InstallTranslation(&translator);
  StrTable::InitStrTable();

  const auto launcher = std::make_unique<Launcher>();
  launcher->Run();
  launcher->Start();
  return QtSingleApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  setlocale(LC_ALL, "");
  SetOwnTimeZone();
  // Nothing may end an upgrade half-way, while no client is in place: neither a line that nobody
  // reads, nor the session's end, nor a limit on the size of files, which makes the write fail
  // anyway.
  for (const int number : {SIGPIPE, SIGHUP, SIGTERM, SIGXFSZ}) {
    signal(number, SIG_IGN);
  }
  Q_INIT_RESOURCE(texts);
  SetPluginFolder(argc > 0 && argv[0] != nullptr ? argv[0] : "");

  QtSingleApplication app(argc, argv, true);
  return Run(&app);
}
