#include "Commands.h"

#include "questions/HostSheet.h"

#include <QFileInfo>

int sheet(const QStringList &a, QTextStream &out, QTextStream &err)
{
    if (!QFileInfo(a[0]).isFile()) {
        err << "qz2: cannot read " << a[0] << ": no such file\n";
        return 1;
    }
    const FileError error = WriteHostSheet(LoadQuestionSet(a[0]), a[1]);
    if (error) {
        err << "qz2: cannot write " << a[1] << ": error #" << error.number << ": " << error.description << "\n";
        return 1;
    }
    out << "wrote " << a[1] << "\n";
    return 0;
}
