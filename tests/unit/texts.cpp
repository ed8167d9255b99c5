// The UI texts: the table, the choice of the language, and the twenty catalogs.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLocale>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <cstdlib>

#include "StrTable.h"
#include "TavLocale.h"
#include "progress-dialog.h"
#include "support/temp-dir.h"
#include "text-ids.h"

namespace {

constexpr int kRows = 523;
constexpr int kTexts = 474;

struct Language {
  const char* code;
  const char* locale;  // one that speaks it
};

// In the order of their ids.
const Language kLanguages[] = {
    {"enu", "en_US"}, {"cht", "zh_TW"}, {"chs", "zh_CN"}, {"jpn", "ja_JP"}, {"deu", "de_DE"},
    {"krn", "ko_KR"}, {"fra", "fr_FR"}, {"ita", "it_IT"}, {"esn", "es_ES"}, {"ptb", "pt_BR"},
    {"rus", "ru_RU"}, {"dan", "da_DK"}, {"nor", "nb_NO"}, {"sve", "sv_SE"}, {"nld", "nl_NL"},
    {"plk", "pl_PL"}, {"hun", "hu_HU"}, {"ptg", "pt_PT"}, {"trk", "tr_TR"}, {"csy", "cs_CZ"}};

// The dialog, page, menu or list that a row belongs to; a tab's name stands outside its page.
const char kDialog[] =
    "^(msi_\\w+_dlg|msi_button|manage_(?:option|proxy|setting|share)|history|sharing|tray|session|"
    "selective_sync|context_menu|conn_mode|conflict_policy|status_desc|tutorial)_(?!tab_name$)";

// A catalog as it is built in, in use for as long as it lives.
struct Catalog : QTranslator {
  explicit Catalog(const QString& code) {
    EXPECT_TRUE(load(":/" + code + ".qm"));
    QCoreApplication::installTranslator(this);
  }
};

QString Read(const QString& path) {
  return QString::fromStdString(ReadFile(path.toStdString()));
}

// By id, from the table's source: the program itself never asks for a key.
QStringList Keys() {
  const QString table = Read(LUMIVO_STR_TABLE);
  QStringList keys;
  auto row = QRegularExpression("Row\\(\\d+, \"(\\w+)").globalMatch(table);
  while (row.hasNext()) {
    keys << row.next().captured(1);
  }
  return keys;
}

// What the English names of months and days are called in `locale`.
QMap<QString, QString> Dates(const QLocale& locale) {
  const QLocale english("en_US");
  QMap<QString, QString> dates;
  for (int i = 1; i <= 12; ++i) {
    dates[english.standaloneMonthName(i)] = locale.standaloneMonthName(i);
  }
  for (int i = 1; i <= 7; ++i) {
    dates[english.standaloneDayName(i)] = locale.standaloneDayName(i);
  }
  return dates;
}

TEST(Texts, AreFoundByKeyAndUnescapedAndFallBackToEnglish) {
  const QStringList keys = Keys();
  ASSERT_EQ(keys.size(), kRows);
  for (int id = 0; id < kRows; ++id) {
    EXPECT_EQ(StrTable::LookupStrID(keys[id].toUpper()), id);
  }
  EXPECT_EQ(StrTable::LookupStrID("APP_NAME"), kTextAppName);
  EXPECT_EQ(StrTable::LookupStrID("app_name "), -1);

  struct Translator : QTranslator {
    QString translate(const char* context, const char* source, const char*, int) const override {
      if (context != QByteArray("global")) return QString();
      return source == QByteArray("Lumivo Drive") ? "a\\nb\\tc\\r%1" : QString();
    }
  } translator;
  QCoreApplication::installTranslator(&translator);
  EXPECT_EQ(StrTable::LoadStr(kTextAppName), QStringLiteral("a\nb\tc\\r%1"));
  EXPECT_EQ(StrTable::LoadStr(kTextReady), QStringLiteral("Lumivo Drive is ready."));
}

// Each in a process of its own: Qt reads the system's locale once.
TEST(Texts, EveryLanguageIsChosenByItsLocale) {
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  QStringList codes;
  for (const Language& language : kLanguages) {
    EXPECT_EQ(TavLocale::getLanguageAbbrByID(codes.size()), language.code);
    codes << language.code;
    qputenv("LC_ALL", language.locale);
    EXPECT_EXIT(std::exit(TavLocale::getDefaultLanguage() == language.code ? 0 : 1),
                testing::ExitedWithCode(0), "")
        << language.locale << " does not lead to " << language.code;
  }
  qunsetenv("LC_ALL");
  EXPECT_EQ(TavLocale::getSupportedLanguages(), codes);
  EXPECT_EQ(TavLocale::getLanguageAbbrByID(-1), QString());
  EXPECT_EQ(TavLocale::getLanguageAbbrByID(codes.size()), QString());
}

TEST(Texts, EveryCatalogTranslatesEveryTextOfTheTable) {
  QSet<QString> sources;
  for (int id = 0; id < kRows; ++id) {
    sources << StrTable::LoadStr(id).replace('\n', "\\n");
  }
  EXPECT_EQ(sources.size(), kTexts);

  // Names, and words that a language took over as they are: a line "CODE TEXT" each.
  const QStringList loanWords = Read(LUMIVO_LOAN_WORDS).split('\n');
  for (const auto& [code, locale] : kLanguages) {
    SCOPED_TRACE(code);
    const Catalog catalog(code);
    // What the catalog itself says of its texts is lost when it is built in.
    const QString file = Read(QStringLiteral(LUMIVO_CATALOGS "/%1.ts").arg(code));
    EXPECT_EQ(file.count("<message>"), kTexts);
    EXPECT_FALSE(file.contains(" type=")) << "something is unfinished or vanished";
    const bool isEnglish = code == TavLocale::getStrLanguageFallSafe();
    const QMap<QString, QString> dates = Dates(QLocale(locale));
    for (const QString& source : sources) {
      SCOPED_TRACE(qPrintable(source));
      const QString text = catalog.translate("global", source.toUtf8());
      ASSERT_FALSE(text.isEmpty());
      EXPECT_EQ(text, text.trimmed());
      for (const char* mark : {"%", "%1", "%2", "\\n", "\\t"}) {
        EXPECT_EQ(text.count(mark), source.count(mark)) << mark;
      }
      if (dates.contains(source)) {
        EXPECT_EQ(text.toLower(), dates[source].toLower());
        continue;
      }
      const bool isLoan = loanWords.contains(code + (' ' + source));
      EXPECT_EQ(text == source, isEnglish || isLoan) << qPrintable(text);
      if (source[0].isLower()) continue;
      EXPECT_FALSE(text[0].isLower()) << "no capital: " << qPrintable(text);
    }
  }
}

TEST(Texts, OfOneDialogDifferInEveryLanguage) {
  const QStringList keys = Keys();
  const QRegularExpression dialog(kDialog);
  for (const auto& [code, locale] : kLanguages) {
    const Catalog catalog(code);
    QMap<QString, QString> first;  // the key that came first, by dialog and text
    for (int id = 0; id < kRows; ++id) {
      const QString name = dialog.match(keys[id]).captured(1);
      if (name.isEmpty()) continue;
      QString& key = first[name + '\n' + StrTable::LoadStr(id)];
      EXPECT_TRUE(key.isEmpty()) << code << ": " << qPrintable(keys[id] + " reads like " + key);
      key = keys[id];
    }
  }
}

// A glossary ends with what its language never writes: lines "- `PATTERN`: INSTEAD".
TEST(Texts, KeepToTheGlossaries) {
  const QRegularExpression never("^- `(.+)`: (.+)$", QRegularExpression::MultilineOption);
  for (const auto& [code, locale] : kLanguages) {
    if (code == TavLocale::getStrLanguageFallSafe()) continue;
    const Catalog catalog(code);
    const QString glossary = Read(QStringLiteral(LUMIVO_CATALOGS "/%1.glossary.md").arg(code));
    auto rule = never.globalMatch(glossary);
    EXPECT_TRUE(rule.hasNext()) << code;
    while (rule.hasNext()) {
      const QRegularExpressionMatch match = rule.next();
      const QRegularExpression pattern(match.captured(1),
                                       QRegularExpression::UseUnicodePropertiesOption);
      ASSERT_TRUE(pattern.isValid()) << code << ": " << qPrintable(pattern.pattern());
      for (int id = 0; id < kRows; ++id) {
        EXPECT_FALSE(StrTable::LoadStr(id).contains(pattern))
            << code << ' ' << id << ": " << qPrintable(StrTable::LoadStr(id))
            << "\ninstead: " << qPrintable(match.captured(2));
      }
    }
  }
}

// With the dialog's own layout: what its label offers, and what the style leaves of a title bar's
// 400 pixels.
TEST(Texts, WhatTheDialogShowsFitsIntoItInEveryLanguage) {
  constexpr int kTitleButtonsAndIcon = 120;
  for (const Language& language : kLanguages) {
    SCOPED_TRACE(language.code);
    const Catalog catalog(language.code);
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
