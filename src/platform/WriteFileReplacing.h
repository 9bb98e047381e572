// Writing a whole file so that a failure never destroys the one it was to
// replace: the bytes go to a temporary file in the same folder, which then
// takes the old file's place in one step.
#pragma once

#include <QByteArray>
#include <QString>

struct FileError {
    int number = 0;        // 0: no error; otherwise the system's error number
    QString description;   // the system's words for it
    explicit operator bool() const { return number != 0; }
};

// A file that is read-only is not replaced (as it could not be rewritten).
FileError WriteFileReplacing(const QString &path, const QByteArray &bytes);

// Copies a whole file byte for byte onto another, replacing it the same
// safe way. Copying a file onto itself fails and leaves it as it was.
FileError CopyFileReplacing(const QString &from, const QString &to);

// Whether a new file could be written into the folder: it exists, the
// system lets this user write there, and it is not marked read-only (which
// stops the administrator too, as above). An installed program folder is
// not, for a user.
bool IsWritableFolder(const QString &folder);
