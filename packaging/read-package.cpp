// lumivo-read-package ARCHIVE FOLDER: extracts a package into a folder exactly as the launcher
// does, so that whoever makes one can look at what users will get. Exit status 0, 1 (failed; the
// log on standard error says why), 2 (usage).

#include <QCoreApplication>
#include <clocale>
#include <cstdio>

#include "extractor.h"

int main(int argc, char* argv[]) {
  if (argc != 3) {
    fprintf(stderr, "usage: lumivo-read-package ARCHIVE FOLDER\n");
    return 2;
  }
  // The extractor reports progress through objects that belong to an application.
  QCoreApplication app(argc, argv);
  setlocale(LC_ALL, "");
  Extractor extractor;
  extractor.archive = argv[1];
  extractor.destination = argv[2];
  return extractor.Extract() == 0 ? 0 : 1;
}
