// The user's special folders, as the shell knows them: the desktop and the
// personal documents folder. Tests point them at temporary folders.
#pragma once

#include <QString>

namespace SpecialFolders {

// The shell's folder numbers for the two folders the game uses.
constexpr int kDesktop = 0;
constexpr int kDocuments = 5;

// The folder's absolute path, or "" when the system does not know it or
// the number is not one of the two.
QString path(int csidl);

// Test seam: a fake path for a folder number ("" drops the fake).
void overridePath(int csidl, const QString &folder);

} // namespace SpecialFolders
