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

QProgressDialog* Dialog() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* dialog = qobject_cast<QProgressDialog*>(widget)) return dialog;
  }
  return nullptr;
}

TEST(Launcher, DialogIsAsDesigned) {
  const TestHome home;
  const Launcher launcher;
  const QProgressDialog* dialog = Dialog();
  ASSERT_NE(dialog, nullptr);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Lumivo Drive"));
  EXPECT_EQ(dialog->labelText(), QStringLiteral("Lumivo Drive is initializing..."));
  EXPECT_EQ(dialog->value(), 0);
  EXPECT_EQ(dialog->minimumWidth(), 400);
  EXPECT_EQ(dialog->maximumWidth(), 400);
  EXPECT_EQ(dialog->font().family(), QStringLiteral("Arial"));
  EXPECT_EQ(dialog->windowModality(), Qt::WindowModal);
  EXPECT_EQ(dialog->windowFlags() & ~Qt::WindowType_Mask, Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
  EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty());
}

TEST(Launcher, PercentagesAreRoundedDownAndOddReportsIgnored) {
  const TestHome home;
  const Launcher launcher;
  QProgressDialog* dialog = Dialog();
  dialog->show();
  const struct {
    int total, steps, value;
  } reports[] = {{120, 37, 30}, {0, 5, 30}, {-3, 1, 30}, {21474836, 21474836, 100}, {100, 250, 100}, {3, 1, 33}};
  for (const auto& report : reports) {
    Notify_Adapter::GetInstance()->UpdateProgress(report.total, report.steps);
    EXPECT_EQ(dialog->value(), report.value) << report.steps << " of " << report.total;
  }
  EXPECT_TRUE(dialog->isVisible()) << "100% must not hide it";
  Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("text"));
  EXPECT_EQ(dialog->labelText(), QStringLiteral("text"));
}

TEST(Launcher, DialogCannotBeClosed) {
  const TestHome home;
  const Launcher launcher;
  QProgressDialog* dialog = Dialog();
  dialog->show();
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QCloseEvent close;
  QApplication::sendEvent(dialog, &escape);
  QApplication::sendEvent(dialog, &close);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(close.isAccepted());
  EXPECT_FALSE(dialog->wasCanceled());
}

// Nothing can be installed here: the bundle beside the test has no package. The run ends all the same, as it should.
TEST(Launcher, RunEndsTheEventLoopWhateverHappens) {
  const TestHome home;
  const auto launcher = std::make_unique<Launcher>();
  launcher->Run();
  launcher->Start();
  EXPECT_EQ(QApplication::exec(), 0);
  EXPECT_FALSE(Dialog()->isVisible());
  const std::string log = home.Log();
  size_t position = 0;
  for (const char* line :
       {"launcher(", "): running\n", "target_version = (", "extract package: '", "Failed to upgrade package\n",
        "removing aged app folder", "Failed to launch Lumivo UI\n", "): done\n"}) {
    position = log.find(line, position);
    ASSERT_NE(position, std::string::npos) << line << "\n" << log;
  }
}

TEST(Launcher, DestroyingItWaitsForTheRunningWorker) {
  const TestHome home;
  auto launcher = std::make_unique<Launcher>();
  launcher->Run();
  launcher->Start();
  while (!home.Logged("running\n")) std::this_thread::yield();
  launcher.reset();
  EXPECT_TRUE(home.Logged("): done\n"));
  QCoreApplication::processEvents();  // what the worker still reported has no receiver any more
}

}  // namespace
