#include "TavLocale.h"

#include <QFile>
#include <QLocale>
#include <QLoggingCategory>
#include <QMap>

namespace {

const char* const grgszLanguages[] = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra",
                                      "ita", "esn", "ptb", "rus", "dan", "nor", "sve",
                                      "nld", "plk", "hun", "ptg", "trk", "csy", nullptr};
constexpr unsigned kLanguageSlots = sizeof(grgszLanguages) / sizeof(grgszLanguages[0]);

const QString qstrLanguageFallSafe = QStringLiteral("enu");

// The line numbers in the debug messages. They stay the same when this file changes, so that the
// output of different releases can be compared.
constexpr char kUnitPath[] = "libcommon/TavLocale";
enum DebugPlace {
  kLocaleRead = 64,
  kLocaleLookedUp = 80,
  kLanguageChosen = 138,
  kCatalogFound = 161
};

// `lineBreak` is "\n" for the two values that matter most to a reader, and empty for the others.
void Debug(DebugPlace place, const char* expression, const QString& value,
           const char* lineBreak = "") {
  QMessageLogger(nullptr, 0, nullptr, "default")
      .debug("%s:%d %s=[%s%s] ", kUnitPath, int{place}, expression, value.toLocal8Bit().constData(),
             lineBreak);
}

QString CatalogName(const QString& code) {
  return QStringLiteral(":/") + code + QStringLiteral(".qm");
}

bool IsOneOf(const QString& name, std::initializer_list<const char*> names) {
  for (const char* candidate : names) {
    if (name == QLatin1String(candidate)) return true;
  }
  return false;
}

QString LanguageByPrefix(const QString& prefix) {
  const QMap<QString, QString> languages = {
      {QStringLiteral("en"), QStringLiteral("enu")}, {QStringLiteral("da"), QStringLiteral("dan")},
      {QStringLiteral("zh"), QStringLiteral("chs")}, {QStringLiteral("no"), QStringLiteral("nor")},
      {QStringLiteral("ja"), QStringLiteral("jpn")}, {QStringLiteral("nb"), QStringLiteral("nor")},
      {QStringLiteral("de"), QStringLiteral("deu")}, {QStringLiteral("nn"), QStringLiteral("nor")},
      {QStringLiteral("ko"), QStringLiteral("krn")}, {QStringLiteral("sv"), QStringLiteral("sve")},
      {QStringLiteral("fr"), QStringLiteral("fra")}, {QStringLiteral("nl"), QStringLiteral("nld")},
      {QStringLiteral("it"), QStringLiteral("ita")}, {QStringLiteral("pl"), QStringLiteral("plk")},
      {QStringLiteral("es"), QStringLiteral("esn")}, {QStringLiteral("hu"), QStringLiteral("hun")},
      {QStringLiteral("pt"), QStringLiteral("ptb")}, {QStringLiteral("tr"), QStringLiteral("trk")},
      {QStringLiteral("ru"), QStringLiteral("rus")}, {QStringLiteral("cs"), QStringLiteral("csy")},
  };
  return languages.value(prefix, languages.value(QStringLiteral("en")));
}

}  // namespace

QString TavLocale::getDefaultLanguage() {
  const QString qstrLocaleLower = QLocale::system().name().toLower();
  Debug(kLocaleRead, "qPrintable(qstrLocaleLower)", qstrLocaleLower, "\n");
  Debug(kLocaleLookedUp, "qPrintable(qstrLocaleLower)", qstrLocaleLower);

  // Whole names come first: in these regions the language is written differently.
  QString qstrDef;
  if (IsOneOf(qstrLocaleLower, {"zh_tw", "zh_hk", "zh_mo"})) {
    qstrDef = QStringLiteral("cht");
  } else if (IsOneOf(qstrLocaleLower, {"pt", "pt_pt"})) {
    qstrDef = QStringLiteral("ptg");
  } else {
    qstrDef = LanguageByPrefix(qstrLocaleLower.section(QLatin1Char('_'), 0, 0));
  }

  if (!isLanguageInstalled(qstrDef)) qstrDef = qstrLanguageFallSafe;
  Debug(kLanguageChosen, "qPrintable(qstrDef)", qstrDef, "\n");
  return qstrDef;
}

bool TavLocale::isLanguageInstalled(const QString& code) {
  const QString qstrLangFileName = CatalogName(code);
  if (!QFile::exists(qstrLangFileName)) return false;
  Debug(kCatalogFound, "qPrintable(qstrLangFileName)", qstrLangFileName);
  return true;
}

QList<QString> TavLocale::getSupportedLanguages() {
  QList<QString> languages;
  for (const char* const* code = grgszLanguages; *code != nullptr; ++code) {
    languages << QLatin1String(*code);
  }
  return languages;
}

QString TavLocale::getStrLanguageFallSafe() {
  return qstrLanguageFallSafe;
}

QString TavLocale::getLanguageAbbrByID(int id) {
  // As unsigned, a negative id is beyond the end, too. The last slot holds the null that ends the
  // table.
  if (static_cast<unsigned>(id) >= kLanguageSlots) return QString();
  return QLatin1String(grgszLanguages[id]);
}
