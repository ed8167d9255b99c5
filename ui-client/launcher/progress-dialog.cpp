#include "progress-dialog.h"

#include <QFont>
#include <QIcon>

#include "StrTable.h"
#include "bundle-layout.h"
#include "lumivo-service.h"
#include "qt-text.h"
#include "text-ids.h"

namespace {

constexpr int kWidthPixels = 400;

QString IconPath() {
  return ToQt(Service::GetRootLumivoResourceInstallPath() + kIcon);
}

}  // namespace

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags()) {
  const QFont font(QStringLiteral("Arial"), -1, -1, false);
  const QString icon = IconPath();

  setWindowTitle(StrTable::LoadStr(kTextAppName));
  setWindowIcon(QIcon(icon));
  setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
  setValue(0);
  setRange(0, 100);
  setLabelText(StrTable::LoadStr(kTextPreparing));
  setFont(font);
  setFixedWidth(kWidthPixels);
  setModal(true);
  setWindowModality(Qt::WindowModal);
  setStyleSheet(QStringLiteral(
      " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } "));
}

ProcessingProgressDialog::~ProcessingProgressDialog() = default;
