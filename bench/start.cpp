// bench-start KIND CONTENTS CLIENT: what a start of the launcher is compared with. CONTENTS is the
// folder of that name in the launcher's bundle, for Qt's plug-ins and the picture. KIND is
//
//   same   the launcher's own Qt calls in their order: application, one catalog, worker thread, a
//          dialog that stays hidden, detached start of CLIENT by the worker, end of the event loop
//   bare   an application that starts CLIENT

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QProcess>
#include <QProgressDialog>
#include <QThread>
#include <QTranslator>
#include <climits>
#include <clocale>
#include <cstdio>
#include <memory>
#include <string>

namespace {

void InstallCatalog(QTranslator* translator) {
  if (translator->load(QStringLiteral(":/enu.qm"))) QCoreApplication::installTranslator(translator);
}

int StartClient(const QString& client) {
  return QProcess::startDetached(client, {}) ? 0 : 1;
}

// The dialog as the launcher makes it; it is never shown.
std::unique_ptr<QProgressDialog> MakeDialog(const QString& contents) {
  const auto text = [](const char* source) {
    return QCoreApplication::translate("global", source);
  };
  auto dialog = std::make_unique<QProgressDialog>(nullptr, Qt::WindowFlags());
  const QFont font(QStringLiteral("Arial"), -1, -1, false);
  dialog->setWindowTitle(text("Lumivo Drive"));
  dialog->setWindowIcon(QIcon(contents + QStringLiteral("/Resources/images/ico_72_lumivo.png")));
  dialog->setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
  dialog->setValue(0);
  dialog->setRange(0, 100);
  dialog->setLabelText(text("Lumivo Drive is initializing..."));
  dialog->setFont(font);
  dialog->setFixedWidth(400);
  dialog->setModal(true);
  dialog->setWindowModality(Qt::WindowModal);
  dialog->setStyleSheet(QStringLiteral(
      " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } "));
  dialog->setCancelButton(nullptr);
  dialog->setAutoReset(false);
  return dialog;
}

int StartAsTheLauncherDoes(const QString& contents, const QString& client) {
  QTranslator translator;
  InstallCatalog(&translator);

  QThread thread;
  QObject worker;
  worker.moveToThread(&thread);
  const auto dialog = MakeDialog(contents);
  thread.start(QThread::InheritPriority);

  int result = 1;
  const auto done = [&] {
    dialog->setValue(100);
    dialog->hide();
    thread.quit();
    thread.wait(ULONG_MAX);
    QCoreApplication::quit();
  };
  QMetaObject::invokeMethod(&worker, [&] {
    result = StartClient(client);
    QMetaObject::invokeMethod(dialog.get(), done, Qt::QueuedConnection);
  });
  QApplication::exec();
  return result;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string kind = argc == 4 ? argv[1] : "";
  if (kind != "same" && kind != "bare") {
    fprintf(stderr, "usage: bench-start same|bare CONTENTS CLIENT\n");
    return 2;
  }
  setlocale(LC_ALL, "");
  const QString contents = QString::fromUtf8(argv[2]);
  const QString client = QString::fromUtf8(argv[3]);
  QCoreApplication::setLibraryPaths({contents + QStringLiteral("/Frameworks/plugins")});
  QApplication app(argc, argv);
  return kind == "same" ? StartAsTheLauncherDoes(contents, client) : StartClient(client);
}
