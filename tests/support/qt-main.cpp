// Runs tests that need the toolkit: without a display, with the string table filled.

#include <gtest/gtest.h>

#include <QApplication>

#include "StrTable.h"

extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}

// What the toolkit and its platform keep until the end is theirs; objects of ours are still told.
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libQt5\nleak:libqoffscreen\nleak:libfontconfig\n";
}

// The toolkit's queues and their locks were not built for the thread sanitizer, which takes what they hand over for
// races.
extern "C" const char* __tsan_default_options() {
  return "ignore_noninstrumented_modules=1";
}

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  Q_INIT_RESOURCE(texts);
  const QApplication app(argc, argv);
  StrTable::InitStrTable();
  return RUN_ALL_TESTS();
}
