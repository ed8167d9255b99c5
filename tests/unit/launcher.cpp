#include "launcher.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QProgressDialog>
#include <QPushButton>
#include <memory>
#include <thread>

#include "notify-adapter.h"
#include "support/test-home.h"

namespace {

// The only window that there is.
QProgressDialog* Dialog() {
  return qobject_cast<QProgressDialog*>(QApplication::topLevelWidgets().value(0));
}

struct Report {
  int total;
  int steps;
  int value;  // that the dialog shows then
};

TEST(Launcher, DialogShowsWhatIsReportedAndCannotBeCanceled) {
  const TestHome home;
  const Launcher launcher;
  QProgressDialog* dialog = Dialog();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->windowModality(), Qt::WindowModal);
  EXPECT_EQ(dialog->font().toString().toStdString(), QFont("Arial").toString().toStdString());
  EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty());
  dialog->show();
  const Report reports[] = {
      {120, 37, 30}, {0, 5, 30}, {-3, 1, 30}, {21474836, 21474836, 100}, {3, 1, 33}};
  for (const Report& row : reports) {
    Notify_Adapter::GetInstance()->UpdateProgress(row.total, row.steps);
    EXPECT_EQ(dialog->value(), row.value) << row.steps << " of " << row.total;
    EXPECT_TRUE(dialog->isVisible()) << "100% must not hide it";
  }
  Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("text"));
  EXPECT_EQ(dialog->labelText(), QStringLiteral("text"));
}

TEST(Launcher, NothingButTheWorkerEndsTheRun) {
  const TestHome home;
  const Launcher launcher;
  QProgressDialog* dialog = Dialog();
  for (const bool isVisible : {false, true}) {
    SCOPED_TRACE(isVisible ? "the dialog is visible" : "the dialog is hidden");
    dialog->setVisible(isVisible);

    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
    EXPECT_FALSE(quit.isAccepted());

    QCloseEvent closeAll;
    QCoreApplication::sendEvent(qApp, &closeAll);
    EXPECT_FALSE(closeAll.isAccepted());

    QCloseEvent closeDialog;
    QCoreApplication::sendEvent(dialog, &closeDialog);
    EXPECT_FALSE(closeDialog.isAccepted());

    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(dialog, &escape);
    EXPECT_EQ(dialog->isVisible(), isVisible);
  }
}

// Nothing can be installed here: the bundle beside the test has no package. The run comes to its
// end all the same.
TEST(Launcher, DestroyingItWaitsForTheRunningWorker) {
  const TestHome home;
  auto launcher = std::make_unique<Launcher>();
  launcher->Run();
  launcher->Start();
  while (!home.Logged("running\n")) {
    std::this_thread::yield();
  }
  launcher.reset();
  EXPECT_TRUE(home.Logged("): done\n"));
  QCoreApplication::processEvents();  // what the worker still reported has no receiver any more
}

}  // namespace
