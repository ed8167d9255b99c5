// The UI texts: the table, the choice of the language, and the twenty catalogs.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QFontMetrics>
#include <QLabel>
#include <QLocale>
#include <QMap>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>

#include "StrTable.h"
#include "TavLocale.h"
#include "progress-dialog.h"
#include "text-ids.h"

namespace {

constexpr int kRows = 523;
constexpr int kTexts = 474;

const QMap<QString, QString> kLocales = {{"enu", "en_US"}, {"cht", "zh_TW"}, {"chs", "zh_CN"}, {"jpn", "ja_JP"},
                                         {"deu", "de_DE"}, {"krn", "ko_KR"}, {"fra", "fr_FR"}, {"ita", "it_IT"},
                                         {"esn", "es_ES"}, {"ptb", "pt_BR"}, {"rus", "ru_RU"}, {"dan", "da_DK"},
                                         {"nor", "nb_NO"}, {"sve", "sv_SE"}, {"nld", "nl_NL"}, {"plk", "pl_PL"},
                                         {"hun", "hu_HU"}, {"ptg", "pt_PT"}, {"trk", "tr_TR"}, {"csy", "cs_CZ"}};

// Names, and words that a language took over as they are: a line "CODE TEXT" each.
QSet<QString> LoanWords() {
  QFile file(QStringLiteral(LUMIVO_LOAN_WORDS));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << LUMIVO_LOAN_WORDS;
  const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  return QSet<QString>(lines.begin(), lines.end());
}

struct Message {
  QString translation;
  bool finished;
};

QMap<QString, Message> ReadCatalog(const QString& code) {
  QFile file(QStringLiteral(LUMIVO_CATALOGS "/%1.ts").arg(code));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
  QMap<QString, Message> messages;
  QXmlStreamReader xml(&file);
  for (QString source; !xml.atEnd();) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("name")) {
      EXPECT_EQ(xml.readElementText(), QStringLiteral("global"));
    } else if (xml.name() == QLatin1String("source")) {
      source = xml.readElementText();
      EXPECT_FALSE(messages.contains(source)) << "twice: " << qPrintable(source);
    } else if (xml.name() == QLatin1String("translation")) {
      const bool finished = xml.attributes().isEmpty();  // no type: neither unfinished nor vanished
      messages.insert(source, {xml.readElementText(), finished});
    }
  }
  EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
  return messages;
}

// What a translation has to carry over: placeholders in any order, and how many line breaks and tabs.
QStringList Marks(const QString& text) {
  QStringList marks;
  auto matches = QRegularExpression(QStringLiteral("%\\d|\\\\[nt]")).globalMatch(text);
  while (matches.hasNext()) marks << matches.next().captured();
  marks.sort();
  return marks;
}

QMap<QString, QString> DateNames(const QString& locale) {
  const QLocale english(QStringLiteral("en_US"));
  const QLocale own(locale);
  QMap<QString, QString> names;
  for (int month = 1; month <= 12; ++month) names[english.standaloneMonthName(month)] = own.standaloneMonthName(month);
  for (int day = 1; day <= 7; ++day) names[english.standaloneDayName(day)] = own.standaloneDayName(day);
  return names;
}

TEST(Texts, LookUpByKeyIgnoresCase) {
  const QMap<QString, int> ids = {{"APP_NAME", 116},
                                  {"app_name ", -1},
                                  {"msg_seldir_description", 0},
                                  {"tutorial_third_title", 522},
                                  {"desc_lmvo_env_preparing", 170},
                                  {"", -1}};
  for (auto id = ids.begin(); id != ids.end(); ++id) EXPECT_EQ(StrTable::LookupStrID(id.key()), id.value());
}

TEST(Texts, TranslationsAreUnescapedAndFallBackToEnglish) {
  struct Translator : QTranslator {
    QString translate(const char* context, const char* source, const char*, int) const override {
      const bool known = qstrcmp(context, "global") == 0 && qstrcmp(source, "Lumivo Drive is ready.") == 0;
      return known ? QStringLiteral("a\\nb\\tc\\r%1") : QString();
    }
    bool isEmpty() const override { return false; }
  } translator;
  QCoreApplication::installTranslator(&translator);
  EXPECT_EQ(StrTable::LoadStr(kTextReady), QStringLiteral("a\nb\tc\\r%1"));
  EXPECT_EQ(StrTable::LoadStr(kTextAppName), QStringLiteral("Lumivo Drive"));
  QCoreApplication::removeTranslator(&translator);
  EXPECT_EQ(StrTable::LoadStr(kTextReady), QStringLiteral("Lumivo Drive is ready."));
}

TEST(Texts, LanguagesHaveIdsAndCatalogs) {
  EXPECT_EQ(TavLocale::getSupportedLanguages().size(), kLocales.size());
  for (int id = 0; id < kLocales.size(); ++id) {
    const QString code = TavLocale::getLanguageAbbrByID(id);
    EXPECT_EQ(code, TavLocale::getSupportedLanguages().at(id));
    EXPECT_TRUE(kLocales.contains(code) && TavLocale::isLanguageInstalled(code)) << qPrintable(code);
  }
  EXPECT_EQ(TavLocale::getLanguageAbbrByID(0), TavLocale::getStrLanguageFallSafe());
  for (const int id : {20, 21, -1}) EXPECT_TRUE(TavLocale::getLanguageAbbrByID(id).isEmpty()) << id;
  EXPECT_FALSE(TavLocale::isLanguageInstalled(QStringLiteral("fin")));
}

TEST(Texts, EveryCatalogTranslatesEveryTextOfTheTable) {
  QSet<QString> sources;
  int withPlaceholders = 0;
  for (int id = 0; id < kRows; ++id) {
    const QString text = StrTable::LoadStr(id).replace(QLatin1Char('\n'), QLatin1String("\\n"));
    withPlaceholders += !sources.contains(text) && text.contains(QRegularExpression(QStringLiteral("%\\d")));
    sources.insert(text);
  }
  EXPECT_EQ(sources.size(), kTexts);
  EXPECT_EQ(withPlaceholders, 23);

  const QSet<QString> loanWords = LoanWords();
  for (auto locale = kLocales.begin(); locale != kLocales.end(); ++locale) {
    SCOPED_TRACE(qPrintable(locale.key()));
    const QMap<QString, Message> catalog = ReadCatalog(locale.key());
    const QStringList keys = catalog.keys();
    EXPECT_EQ(QSet<QString>(keys.begin(), keys.end()), sources);
    const QMap<QString, QString> dates = DateNames(locale.value());
    for (auto message = catalog.begin(); message != catalog.end(); ++message) {
      const QString& source = message.key();
      const QString& text = message.value().translation;
      SCOPED_TRACE(qPrintable(source));
      EXPECT_TRUE(message.value().finished);
      EXPECT_FALSE(text.isEmpty());
      EXPECT_EQ(text, text.trimmed());
      EXPECT_EQ(Marks(text), Marks(source)) << qPrintable(text);
      if (dates.contains(source)) {
        EXPECT_EQ(text.compare(dates[source], Qt::CaseInsensitive), 0) << qPrintable(text + " is not " + dates[source]);
      } else if (locale.key() == QLatin1String("enu")) {
        EXPECT_EQ(text, source);
      } else {
        EXPECT_EQ(text == source, loanWords.contains(locale.key() + QLatin1Char(' ') + source)) << qPrintable(text);
      }
    }
  }
}

// With the dialog's own layout: what its label offers, and what the style leaves of a title bar's 400 pixels.
TEST(Texts, WhatTheDialogShowsFitsIntoItInEveryLanguage) {
  constexpr int kTitleButtonsAndIcon = 120;
  for (const QString& code : TavLocale::getSupportedLanguages()) {
    SCOPED_TRACE(qPrintable(code));
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/") + code + QStringLiteral(".qm")));
    QCoreApplication::installTranslator(&translator);
    ProcessingProgressDialog dialog;
    dialog.setCancelButton(nullptr);
    dialog.show();
    const auto* label = dialog.findChild<QLabel*>();
    ASSERT_NE(label, nullptr);
    for (const int id : {kTextPreparing, kTextReady}) {
      const QString text = StrTable::LoadStr(id);
      dialog.setLabelText(text);
      EXPECT_LE(QFontMetrics(label->font()).horizontalAdvance(text), label->contentsRect().width()) << qPrintable(text);
    }
    EXPECT_LE(dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()), dialog.width() - kTitleButtonsAndIcon);
    QCoreApplication::removeTranslator(&translator);
  }
}

}  // namespace
