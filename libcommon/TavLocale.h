#pragma once

#include <QList>
#include <QString>

/// Chooses the language of the user interface.
///
/// Each language has a translation catalog in the program's resources, ":/" + code + ".qm", named
/// by a three-letter code of our own ("enu", "cht", "deu", …). The position of a code in the list
/// of languages is its numeric id. All operations are static, keep no state and may run on any
/// thread once the program has started.
class TavLocale {
 public:
  TavLocale() = delete;

  /// The code of the language for the system's locale.
  ///
  /// Chinese is traditional in the regions TW, HK and MO and simplified elsewhere; Portuguese is
  /// European for "pt" and "pt_PT" and Brazilian elsewhere. For all others only the language
  /// counts. English when the language is not in our list or its catalog is missing. Never empty.
  /// Writes what it read and what it chose to Qt's debug output.
  static QString getDefaultLanguage();

  /// Whether the resources contain the catalog of `code`.
  static bool isLanguageInstalled(const QString& code);

  /// All codes in the order of their ids.
  static QList<QString> getSupportedLanguages();

  /// The code used when the catalog that is wanted is missing: "enu".
  static QString getStrLanguageFallSafe();

  /// The code with the numeric id `id`; empty if there is none.
  static QString getLanguageAbbrByID(int id);
};
