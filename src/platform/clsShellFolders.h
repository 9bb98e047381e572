// Turns a special-folder number into a folder path ready for a file name
// to be appended: it ends in "/", or is "" when the folder is unknown.
#pragma once

#include <QString>

#include <cstdint>

class clsShellFolders {
public:
    // hwnd: the calling screen (owner of anything the system would show).
    QString GetSpecialFolderLocation(uintptr_t hwnd, int32_t CSIDL) const;

    // The same folder, made first when the system names it but it is not
    // there yet (a fresh account has neither desktop nor documents folder);
    // "" when it is unknown or cannot be made. For every folder that a file
    // dialog starts in or that a file is copied into: a dialog given a
    // missing folder would start in the working directory instead.
    QString GetExistingSpecialFolder(uintptr_t hwnd, int32_t CSIDL) const;

private:
    static QString TrimNull(const QString &text);
};
