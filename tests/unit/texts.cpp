// The UI texts: the table, the choice of the language, and the twenty catalogs.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QMap>
#include <QSet>
#include <QTranslator>
#include <utility>

#include "StrTable.h"
#include "TavLocale.h"
#include "progress-dialog.h"
#include "support/temp-dir.h"
#include "text-ids.h"

namespace {

constexpr int kRows = 523;
constexpr int kTexts = 474;

// The languages in the order of their ids, each with a locale that speaks it.
const std::pair<const char*, const char*> kLanguages[] = {
    {"enu", "en_US"}, {"cht", "zh_TW"}, {"chs", "zh_CN"}, {"jpn", "ja_JP"}, {"deu", "de_DE"},
    {"krn", "ko_KR"}, {"fra", "fr_FR"}, {"ita", "it_IT"}, {"esn", "es_ES"}, {"ptb", "pt_BR"},
    {"rus", "ru_RU"}, {"dan", "da_DK"}, {"nor", "nb_NO"}, {"sve", "sv_SE"}, {"nld", "nl_NL"},
    {"plk", "pl_PL"}, {"hun", "hu_HU"}, {"ptg", "pt_PT"}, {"trk", "tr_TR"}, {"csy", "cs_CZ"}};

// A catalog as it is built in, in use for as long as it lives.
struct Catalog : QTranslator {
  explicit Catalog(const QString& code) {
    EXPECT_TRUE(load(":/" + code + ".qm"));
    QCoreApplication::installTranslator(this);
  }
};

TEST(Texts, AreFoundByKeyAndUnescapedAndFallBackToEnglish) {
  const std::pair<const char*, int> ids[] = {
      {"APP_NAME", 116}, {"app_name ", -1}, {"tutorial_third_title", 522}};
  for (const auto& [key, id] : ids) EXPECT_EQ(StrTable::LookupStrID(key), id) << key;

  struct Translator : QTranslator {
    QString translate(const char* context, const char* source, const char*, int) const override {
      return context == QByteArray("global") && source == QByteArray("Lumivo Drive")
                 ? "a\\nb\\tc\\r%1"
                 : QString();
    }
  } translator;
  QCoreApplication::installTranslator(&translator);
  EXPECT_EQ(StrTable::LoadStr(kTextAppName), QStringLiteral("a\nb\tc\\r%1"));
  EXPECT_EQ(StrTable::LoadStr(kTextReady), QStringLiteral("Lumivo Drive is ready."));
}

TEST(Texts, EveryCatalogTranslatesEveryTextOfTheTable) {
  QSet<QString> sources;
  for (int id = 0; id < kRows; ++id) sources << StrTable::LoadStr(id).replace('\n', "\\n");
  EXPECT_EQ(sources.size(), kTexts);

  // Names, and words that a language took over as they are: a line "CODE TEXT" each.
  const QStringList loanWords = QString::fromStdString(ReadFile(LUMIVO_LOAN_WORDS)).split('\n');
  QStringList codes;
  for (const auto& [code, locale] : kLanguages) {
    SCOPED_TRACE(code);
    const Catalog catalog(code);
    EXPECT_EQ(TavLocale::getLanguageAbbrByID(codes.size()), code);
    codes << code;
    // What the catalog itself says of its texts is lost when it is built in.
    const QString file =
        QString::fromStdString(ReadFile(LUMIVO_CATALOGS "/" + std::string(code) + ".ts"));
    EXPECT_EQ(file.count("<message>"), kTexts);
    EXPECT_FALSE(file.contains(" type=")) << "something is unfinished or vanished";
    const QLocale english("en_US"), own(locale);
    QMap<QString, QString> dates;
    for (int i = 1; i <= 12; ++i)
      dates[english.standaloneMonthName(i)] = own.standaloneMonthName(i);
    for (int i = 1; i <= 7; ++i) dates[english.standaloneDayName(i)] = own.standaloneDayName(i);
    for (const QString& source : sources) {
      SCOPED_TRACE(qPrintable(source));
      const QString text = catalog.translate("global", source.toUtf8());
      EXPECT_FALSE(text.isEmpty());
      EXPECT_EQ(text, text.trimmed());
      for (const char* mark : {"%", "%1", "%2", "\\n", "\\t"})
        EXPECT_EQ(text.count(mark), source.count(mark)) << mark;
      if (dates.contains(source)) {
        EXPECT_EQ(text.toLower(), dates[source].toLower())
            << qPrintable(text + " is not " + dates[source]);
      } else {
        EXPECT_EQ(text == source, own == english || loanWords.contains(code + (' ' + source)))
            << qPrintable(text);
      }
    }
  }
  EXPECT_EQ(TavLocale::getSupportedLanguages(), codes);
  EXPECT_EQ(TavLocale::getLanguageAbbrByID(-1) + TavLocale::getLanguageAbbrByID(codes.size()),
            QString());
}

// With the dialog's own layout: what its label offers, and what the style leaves of a title bar's
// 400 pixels.
TEST(Texts, WhatTheDialogShowsFitsIntoItInEveryLanguage) {
  constexpr int kTitleButtonsAndIcon = 120;
  for (const QString& code : TavLocale::getSupportedLanguages()) {
    SCOPED_TRACE(qPrintable(code));
    const Catalog catalog(code);
    ProcessingProgressDialog dialog;
    dialog.setCancelButton(nullptr);
    dialog.show();
    const auto* label = dialog.findChild<QLabel*>();
    for (const int id : {kTextPreparing, kTextReady}) {
      dialog.setLabelText(StrTable::LoadStr(id));
      EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()),
                label->contentsRect().width())
          << qPrintable(label->text());
    }
    EXPECT_LE(dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()),
              dialog.width() - kTitleButtonsAndIcon);
  }
}

}  // namespace
