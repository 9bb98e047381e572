// Whether a file can be read whole, and in words why not: only ordinary
// files, since a pipe or a device could block or never end.
#pragma once

#include <QString>

// Empty when the file can be read; else why not ("no such file", "is a
// folder", "not an ordinary file", or the system's words).
QString UnreadableFile(const QString &path);
