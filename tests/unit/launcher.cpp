#include "launcher.h"

#include <gtest/gtest.h>

#include <QApplication>
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

TEST(Launcher, DialogShowsWhatIsReportedAndCannotBeCancelled) {
  const TestHome home;
  const Launcher launcher;
  QProgressDialog* dialog = Dialog();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty());
  dialog->show();
  const int reports[][3] = {
      {120, 37, 30}, {0, 5, 30}, {-3, 1, 30}, {21474836, 21474836, 100}, {3, 1, 33}};
  for (const auto& [total, steps, value] : reports) {
    Notify_Adapter::GetInstance()->UpdateProgress(total, steps);
    EXPECT_EQ(dialog->value(), value) << steps << " of " << total;
    EXPECT_TRUE(dialog->isVisible()) << "100% must not hide it";
  }
  Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("text"));
  EXPECT_EQ(dialog->labelText(), QStringLiteral("text"));
}

// Nothing can be installed here: the bundle beside the test has no package. The run comes to its
// end all the same.
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
