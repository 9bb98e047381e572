#include "clsShellFolders.h"

#include "ModuleFileName.h"
#include "SpecialFolders.h"

#include <QDir>

QString clsShellFolders::GetSpecialFolderLocation(uintptr_t, int32_t CSIDL) const
{
    const QString path = TrimNull(SpecialFolders::path(CSIDL));
    // Only a folder the system knows is worth a separator: an unknown one
    // stays "", which every caller takes as "no such folder".
    if (path.isEmpty())
        return QString();
    return ModuleFileName::withTrailingSeparator(path);
}

QString clsShellFolders::GetExistingSpecialFolder(uintptr_t hwnd, int32_t CSIDL) const
{
    const QString path = GetSpecialFolderLocation(hwnd, CSIDL);
    return path.isEmpty() || QDir().mkpath(path) ? path : QString();
}

QString clsShellFolders::TrimNull(const QString &text)
{
    const qsizetype nul = text.indexOf(QChar(u'\0'));
    return nul < 0 ? text : text.left(nul);
}
