#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

#include "mac/launch-services.h"

int UnregisterBundle(const QString& bundle) {
  return QProcess::execute(QLatin1String(kRegistrationTool), {QStringLiteral("-u"), bundle});
}

bool OpenBundle(const QString& bundle) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(bundle));
}
