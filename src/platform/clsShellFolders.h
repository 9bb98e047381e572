// Turns a special-folder number into a folder path ready for a file name
// to be appended: it ends in "/", or is "" when the folder is unknown.
#pragma once

#include <QString>

#include <cstdint>

class clsShellFolders {
public:
    // hwnd: the calling screen (owner of anything the system would show).
    QString GetSpecialFolderLocation(uintptr_t hwnd, int32_t CSIDL) const;

private:
    static QString TrimNull(const QString &text);
};
