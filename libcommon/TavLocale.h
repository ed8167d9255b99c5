#pragma once

#include <QList>
#include <QString>

/// Chooses the language of the user interface.
///
/// Twenty languages ship as translation catalogs in the program's resources, ":/" + code + ".qm",
/// each under a three-letter code of our own ("enu", "cht", "deu", ...). The position of a code in
/// the list of languages is its numeric id. All operations are static, keep no state and may run on
/// any thread once the program has started.
class TavLocale {
 public:
  TavLocale() = delete;

  /// The code of the language for the system's locale.
  ///
  /// Traditional Chinese for the regions TW, HK and MO, European Portuguese for "pt" and "pt_PT",
  /// otherwise by the language alone; English when the language has no catalog, in our list or in
  /// the resources. Never empty. Says on the toolkit's debug channel what it read and what it
  /// chose.
  static QString getDefaultLanguage();

  /// Whether the catalog of `code` is among the resources.
  static bool isLanguageInstalled(const QString& code);

  /// The twenty codes in the order of their ids.
  static QList<QString> getSupportedLanguages();

  /// The code that is used when the wanted catalog is missing: "enu".
  static QString getStrLanguageFallSafe();

  /// The code with the numeric id `id`, 0 to 19; empty for every other value.
  static QString getLanguageAbbrByID(int id);
};
