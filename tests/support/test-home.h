#pragma once

#include <QByteArray>
#include <string>

#include "log.h"
#include "support/temp-dir.h"

/// A scratch home, with a log that takes every level of every component. One at a time: the log is
/// closed with it.
struct TestHome {
  TestHome() {
    qputenv("HOME", folder.path.c_str());
    std::filesystem::create_directories(folder / ".Lumivo");
    WriteFile(folder / "levels", "launcher_debug=7\nservice_debug=7\nextractor_debug=7\n");
    Logger::Initialize(Logger::TYPE_FILE, folder / "log", folder / "levels", 50);
  }
  ~TestHome() { Logger::Destroy(); }

  std::string Log() const { return ReadFile(folder / "log"); }
  bool Logged(const std::string& text) const { return Log().find(text) != std::string::npos; }

  TempDir folder;
};
