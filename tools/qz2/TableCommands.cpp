#include "TableCommands.h"

#include "Commands.h"

#include "platform/ModuleFileName.h"
#include "platform/SpecialFolders.h"
#include "questions/QuestionSet.h"
#include "questions/TableFiles.h"

#include <QDir>
#include <QFileInfo>

namespace {

const char kImportUsage[] = "usage: qz2 import TABLE [OUT.QZ2] [--description TEXT] [--timer SECONDS]";

struct ImportArgs {
    QStringList files;
    QString description;
    bool hasDescription = false;
    QString timer;
};

// Splits files from options, "--name value" or "--name=value"; false for
// an option qz2 does not know or one without its value.
bool parseImportArgs(const QStringList &args, ImportArgs &parsed)
{
    for (qsizetype i = 0; i < args.size(); ++i) {
        QString name = args[i], value;
        if (!name.startsWith(QStringLiteral("--"))) {
            parsed.files << name;
            continue;
        }
        const qsizetype equals = name.indexOf(QLatin1Char('='));
        if (equals >= 0) {
            value = name.mid(equals + 1);
            name.truncate(equals);
        } else if (i + 1 < args.size()) {
            value = args[++i];
        } else {
            return false;
        }
        if (name == QStringLiteral("--description")) {
            parsed.description = value;
            parsed.hasDescription = true;
        } else if (name == QStringLiteral("--timer")) {
            parsed.timer = value;
        } else {
            return false;
        }
    }
    return parsed.files.size() == 1 || parsed.files.size() == 2;
}

// The editor's range of seconds; 20 when none is given, as for a new set.
bool timerSeconds(const QString &text, qint16 *seconds)
{
    if (text.isEmpty()) {
        *seconds = 20;
        return true;
    }
    bool ok = false;
    const int n = text.toInt(&ok);
    const bool digits = std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
    if (!ok || !digits || n < 5 || n > 60)
        return false;
    *seconds = qint16(n);
    return true;
}

bool sameFolder(const QString &a, const QString &b)
{
    return QFileInfo(a).canonicalFilePath() == QFileInfo(b).canonicalFilePath();
}

// Copies the pictures a set names from one folder to another, and tells
// the host of any that did not come along: named outside the set's folder,
// missing, or not written.
void copyPictures(const QuestionSet &set, const QString &from, const QString &to, QTextStream &err)
{
    if (sameFolder(from, to))
        return;
    QStringList behind;
    for (const auto &round : set.Categories) {
        for (const CategoryEntry &entry : round) {
            for (const QString &name : entry.Picture) {
                if (!name.isEmpty() && (!IsPictureInSetFolder(name) || !QFileInfo(QDir(from).filePath(name)).isFile()))
                    behind << name;
            }
        }
    }
    const FileError error = CopySetPictures(set, from, to);
    if (error)
        err << "qz2: warning: the pictures could not all be copied to " << to << ": " << error.description << "\n";
    if (!behind.isEmpty())
        err << "qz2: warning: not copied to " << to << " (outside " << from << ", or missing): "
            << behind.join(QStringLiteral(", ")) << "\n";
}

// The home screen lists the sets of two folders only; a set written
// elsewhere is played once it is moved there.
void noteWhereListed(const QString &set, QTextStream &out)
{
    const QString folder = QFileInfo(set).absolutePath();
    const QString documents = SpecialFolders::path(SpecialFolders::kDocuments);
    const QString program = ModuleFileName::programFolder();
    if (sameFolder(folder, program) || (!documents.isEmpty() && sameFolder(folder, documents)))
        return;
    out << "note: the home screen lists only the sets in the program folder (" << QDir::cleanPath(program)
        << ") and in Documents (" << (documents.isEmpty() ? QStringLiteral("none here") : documents)
        << "); move " << QFileInfo(set).fileName() << " there to play it\n";
}

} // namespace

int ImportTable(const QStringList &args, QTextStream &out, QTextStream &err)
{
    ImportArgs a;
    if (!parseImportArgs(args, a)) {
        err << kImportUsage << "\n";
        return 2;
    }
    qint16 timer = 20;
    if (!timerSeconds(a.timer, &timer)) {
        err << "qz2: --timer takes whole seconds from 5 to 60, not \"" << a.timer << "\"\n";
        return 2;
    }
    const QString table = a.files[0];
    const QString description = a.hasDescription ? a.description : DescriptionFromTableName(table);
    const QString fault = SetTextFault(description);
    if (!fault.isEmpty()) {
        err << "qz2: --description: " << fault << "\n";
        return 2;
    }
    const TableImport result = ImportQuestionTable(table, description, timer);
    if (!result.set) {
        if (result.unreadable)
            err << "qz2: cannot read " << table << ": " << result.error << "\n";
        else
            err << "qz2: " << table << ": " << result.error << "\n";
        return 1;
    }
    // As convert: beside the input under its name, unless OUT is given.
    const QString target = WithQz2Extension(a.files.size() > 1 ? a.files[1] : FileBaseOf(table));
    const FileError error = WriteQuestionSet(*result.set, target);
    if (error) {
        err << "qz2: cannot write " << target << ": error #" << error.number << ": " << error.description << "\n";
        return 1;
    }
    out << "wrote " << target << "\n";
    copyPictures(*result.set, QFileInfo(table).absolutePath(), QFileInfo(target).absolutePath(), err);
    noteWhereListed(target, out);
    return 0;
}

int ExportTable(const QStringList &args, QTextStream &out, QTextStream &err)
{
    const QString &setFile = args[0], &table = args[1];
    const QString why = UnreadableFile(setFile);
    if (!why.isEmpty()) {
        err << "qz2: cannot read " << setFile << ": " << why << "\n";
        return 1;
    }
    if (WritableTableFormat(table) == TableFormat::None) {
        err << "qz2: cannot write " << table << ": a spreadsheet is written as .csv or .xlsx\n";
        return 1;
    }
    const QuestionSet set = LoadQuestionSet(setFile);
    const Table rows = TableFromQuestionSet(set);
    const FileError error = WriteTableFile(rows, table);
    if (error) {
        err << "qz2: cannot write " << table << ": error #" << error.number << ": " << error.description << "\n";
        return 1;
    }
    out << "wrote " << table << "\n";
    // The table names the pictures as the set does: beside it they go too.
    copyPictures(set, QFileInfo(setFile).absolutePath(), QFileInfo(table).absolutePath(), err);
    // A half-made set is worth exporting to finish it in the spreadsheet;
    // the host learns now what import would refuse.
    const TableImport back = QuestionSetFromTable(rows, set.Description, set.Timer);
    if (!back.set)
        err << "qz2: warning: " << table << " will not import as it is: " << back.error << "\n";
    return 0;
}
