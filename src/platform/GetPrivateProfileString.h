// Reading one value of an INI file, the way every reader of question sets
// does: section and key found regardless of letter case, the value after
// the first "=" without surrounding blanks or one pair of enclosing quotes,
// at most 1999 characters, and the default when the file, the section or
// the key is missing.
//
// The file streams past, and so does each line: a huge file, a binary one
// or a line of any length gives its answer without being held in memory,
// and no input can crash or hang the read.
#pragma once

#include <QString>

// The longest value a read returns (the callers' buffers hold 2000
// characters with the terminator).
constexpr int kProfileValueMax = 1999;

QString GetPrivateProfileString(const QString &section, const QString &key, const QString &defaultValue,
                                const QString &fileName);
