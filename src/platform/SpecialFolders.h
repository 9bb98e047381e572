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

// Where a removable disk shows up for this user (the first folder under
// /media/<user> or /run/media/<user>), or the home folder when none is in.
QString removableMedia();

// Test seams: a fake path for a folder number, or for the removable disk
// (a null text drops the fake).
void overridePath(int csidl, const QString &folder);
void overrideRemovableMedia(const QString &folder);

} // namespace SpecialFolders
