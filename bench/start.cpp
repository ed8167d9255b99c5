// bench-start KIND PLUGINS CLIENT: what a start of the launcher is compared with. KIND is
//   same        the launcher's own toolkit calls in their order: application, one catalog, worker
//   thread, a dialog that
//               stays hidden, detached start of CLIENT by the worker, end of the event loop
//   bare        an application that starts CLIENT
//   translator  an application with a translator, which starts CLIENT too

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

namespace {

void InstallCatalog(QTranslator* translator) {
  if (translator->load(QStringLiteral(":/enu.qm"))) QCoreApplication::installTranslator(translator);
}

int StartClient(const QString& client) {
  return QProcess::startDetached(client, {}) ? 0 : 1;
}

// The dialog as the launcher makes it; it is never shown.
std::unique_ptr<QProgressDialog> MakeDialog() {
  const auto text = [](const char* source) {
    return QCoreApplication::translate("global", source);
  };
  auto dialog = std::make_unique<QProgressDialog>(nullptr, Qt::WindowFlags());
  const QFont font(QStringLiteral("Arial"), -1, -1, false);
  dialog->setWindowTitle(text("Lumivo Drive"));
  dialog->setWindowIcon(
      QIcon(QCoreApplication::applicationDirPath() + QStringLiteral("/icon.png")));
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

int StartAsTheLauncherDoes(const QString& client) {
  QTranslator translator;
  InstallCatalog(&translator);

  QThread thread;
  QObject worker;
  worker.moveToThread(&thread);
  const auto dialog = MakeDialog();
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
  if (argc != 4) {
    fprintf(stderr, "usage: bench-start same|bare|translator PLUGINS CLIENT\n");
    return 2;
  }
  setlocale(LC_ALL, "");
  const QString kind = QString::fromUtf8(argv[1]);
  const QString client = QString::fromUtf8(argv[3]);
  QCoreApplication::setLibraryPaths({QString::fromUtf8(argv[2])});
  QApplication app(argc, argv);
  if (kind == QLatin1String("same")) return StartAsTheLauncherDoes(client);

  QTranslator translator;
  if (kind == QLatin1String("translator")) InstallCatalog(&translator);
  return StartClient(client);
}
