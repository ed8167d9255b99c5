#pragma once

#include <QString>

/// The texts of the user interface, by number.
///
/// Code names a text by its id, 0 to 522; a row holds a key, for people and tools, and the English
/// text, which is also what the translation catalogs are looked up by (context "global"). Ids are
/// part of the interface: a row never moves. Call InitStrTable() once before any other thread uses
/// the table; from then on the table is never written again, and LoadStr() and LookupStrID() may
/// run on any thread.
namespace StrTable {

/// Fills the table. Allocates nothing and reads no file.
void InitStrTable();

/// The text of row `id` in the language of the installed translators, in English where they have
/// none.
///
/// The two-character sequences backslash-n and backslash-t come back as a line break and a tab;
/// placeholders such as %1 stay, for the caller to fill in.
///
/// @param id  0 to 522; not checked
QString LoadStr(int id);

/// The id of the row with the key `key`, upper and lower case being the same; -1 when there is
/// none.
int LookupStrID(QString key);

}  // namespace StrTable
