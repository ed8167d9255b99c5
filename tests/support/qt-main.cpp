// Runs tests that need Qt: without a display, with the string table filled.

#include <gtest/gtest.h>

#include <QApplication>

#include "StrTable.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  Q_INIT_RESOURCE(texts);
  const QApplication app(argc, argv);
  StrTable::InitStrTable();
  return RUN_ALL_TESTS();
}
