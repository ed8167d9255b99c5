#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QXmlStreamReader>
#include <array>
#include <cstring>
#include <vector>

#include "bundle-layout.h"
#include "mac/launch-services.h"
#include "own-time-zone.h"

#define LOG_UNIT "mac/launch-services"
#include "log.h"

extern char** environ;

namespace {

const ustring kComponent = "service_debug";

constexpr int kToolMissing = -2;  // as QProcess::execute reports it

// The text of the string that follows the key in a property list; empty when there is none.
QString PropertyOf(const QString& list, const QString& key) {
  QFile file(list);
  if (!file.open(QIODevice::ReadOnly)) return QString();

  QXmlStreamReader xml(&file);
  bool isNext = false;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (isNext) {
      return xml.name() == QLatin1String("string") ? xml.readElementText().trimmed() : QString();
    }
    isNext = xml.name() == QLatin1String("key") && xml.readElementText().trimmed() == key;
  }
  return QString();
}

QString ProgramOf(const QString& bundle) {
  const QString name =
      PropertyOf(bundle + QLatin1String(kPropertyList), QStringLiteral("CFBundleExecutable"));
  return bundle + (name.isEmpty() ? QLatin1String(kClientProgram)
                                  : QStringLiteral("/Contents/MacOS/") + name);
}

// Owns what posix_spawn is told about the new process.
struct SpawnPlan {
  SpawnPlan() {
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_init(&attributes);
  }
  ~SpawnPlan() {
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
  }
  SpawnPlan(const SpawnPlan&) = delete;
  SpawnPlan& operator=(const SpawnPlan&) = delete;

  posix_spawn_file_actions_t files;
  posix_spawnattr_t attributes;
};

// What the launcher was started with.
std::vector<char*> EnvironmentForClient() {
  std::vector<char*> variables;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    if (!IsOwnTimeZone(*variable)) variables.push_back(*variable);
  }
  variables.push_back(nullptr);
  return variables;
}

// A session of its own, no terminal, no signal blocked or ignored: nothing that ends the launcher
// reaches the client. The standard streams go nowhere, since whoever reads the launcher's would
// wait for the client's end too.
bool StartDetached(const QByteArray& program) {
  SpawnPlan plan;
  for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_addopen(&plan.files, fd, "/dev/null", O_RDWR, 0);
  }
  // Our caller's descriptors too: a lock that it holds must not last as long as the client.
  posix_spawn_file_actions_addclosefrom_np(&plan.files, STDERR_FILENO + 1);
  sigset_t none;
  sigset_t all;
  sigemptyset(&none);
  sigfillset(&all);
  posix_spawnattr_setsigmask(&plan.attributes, &none);
  posix_spawnattr_setsigdefault(&plan.attributes, &all);
  posix_spawnattr_setflags(&plan.attributes,
                           POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);

  QByteArray name = program;
  std::array<char*, 2> arguments = {name.data(), nullptr};
  pid_t pid = 0;
  const int error = posix_spawn(&pid, program.constData(), &plan.files, &plan.attributes,
                                arguments.data(), EnvironmentForClient().data());
  if (error == 0) return true;
  LOG_ERROR(kComponent, "posix_spawn(%s): %s (%d)\n", program.constData(), strerror(error), error);
  return false;
}

}  // namespace

int UnregisterBundle(const QString& bundle) {
  // Where the tool is missing, a look costs less than a failed exec.
  if (access(kRegistrationTool, X_OK) != 0) return kToolMissing;
  return QProcess::execute(QLatin1String(kRegistrationTool), {QStringLiteral("-u"), bundle});
}

bool OpenBundle(const QString& bundle) {
  return StartDetached(ProgramOf(bundle).toUtf8());
}
