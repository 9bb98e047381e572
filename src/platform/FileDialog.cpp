#include "FileDialog.h"

#include <QStringList>

namespace {

// "*.QZ2" -> "*.[Qq][Zz]2": the game's files come in any letter case.
QString anyCase(const QString &pattern)
{
    QString out;
    for (const QChar c : pattern) {
        if (c.isLetter() && c.toLower() != c.toUpper())
            out += QLatin1Char('[') + c.toUpper() + c.toLower() + QLatin1Char(']');
        else
            out += c;
    }
    return out;
}

FileDialogHandler *installed = nullptr;

} // namespace

QStringList CaseInsensitivePatterns(const QString &patterns)
{
    QStringList out;
    for (const QString &p : patterns.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        out << anyCase(p.trimmed());
    return out;
}

FileDialogResult RunFileDialog(const FileDialogRequest &request)
{
    // Without a handler there is nobody to choose: a cancel.
    return installed ? installed->run(request) : FileDialogResult{};
}

void installFileDialogHandler(FileDialogHandler *handler)
{
    installed = handler;
}
