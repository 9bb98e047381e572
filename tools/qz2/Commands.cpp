#include "Commands.h"

#include "Json.h"
#include "SetCheck.h"
#include "TableCommands.h"
#include "platform/GetPrivateProfileString.h"
#include "questions/QuestionSet.h"

#include <QFile>
#include <QFileInfo>


namespace {

const char kUsage[] = "usage: qz2 get FILE SECTION KEY DEFAULT | qz2 show FILE | qz2 convert IN [OUT] | qz2 check FILE... | "
                      "qz2 sheet SET OUT.pdf | qz2 import TABLE [OUT] [--description TEXT] [--timer SECONDS] | "
                      "qz2 export SET TABLE";

const char kHelp[] = "\n"
                     "  get FILE SECTION KEY DEFAULT  one value, as the game reads it\n"
                     "  show FILE                     the whole set as JSON\n"
                     "  convert IN [OUT]              a set (a legacy .QZA too) in the current layout,\n"
                     "                                as OUT or beside IN\n"
                     "  check FILE...                 what the game will make of each file\n"
                     "  sheet SET OUT.pdf             the host's sheet, to print\n"
                     "  import TABLE [OUT]            a set from a .csv, .xlsx or .ods table, as OUT or\n"
                     "                                beside it; --description TEXT, --timer 5-60\n"
                     "  export SET TABLE              the set as an .xlsx or .csv table\n"
                     "  --help, --version             this text; the version\n"
                     "\n"
                     "Exit status: 0 done, 1 a file could not be read or written or is not playable,\n"
                     "2 bad arguments.\n";

bool readable(const QString &path, QTextStream &err)
{
    const QString why = UnreadableFile(path);
    if (why.isEmpty())
        return true;
    err << "qz2: cannot read " << path << ": " << why << "\n";
    return false;
}

QString categoryJson(const CategoryEntry &c)
{
    QStringList answers, questions;
    for (int j = 0; j < 5; ++j) {
        answers << Json::string(c.Answer[size_t(j)]);
        questions << Json::string(c.Question[size_t(j)]);
    }
    QList<std::pair<QString, QString>> members{{QStringLiteral("title"), Json::string(c.Title)},
                                               {QStringLiteral("answers"), Json::array(answers)},
                                               {QStringLiteral("questions"), Json::array(questions)}};
    // Only a category with pictures lists them: the JSON of a set without
    // stays as it was.
    if (std::any_of(c.Picture.begin(), c.Picture.end(), [](const QString &p) { return !p.isEmpty(); })) {
        QStringList pictures;
        for (const QString &p : c.Picture)
            pictures << Json::string(p);
        members.append({QStringLiteral("pictures"), Json::array(pictures)});
    }
    return Json::object(members);
}

// As the game reads: a file that cannot be read gives the default, which
// is an answer like any other; the warning only says why.
int get(const QStringList &a, QTextStream &out, QTextStream &err)
{
    const QString why = UnreadableFile(a[0]);
    if (!why.isEmpty())
        err << "qz2: warning: cannot read " << a[0] << ": " << why << "; the read gives the default\n";
    out << GetPrivateProfileString(a[1], a[2], a[3], a[0]) << "\n";
    return 0;
}

QString finalJson(const CategoryEntry &final)
{
    QList<std::pair<QString, QString>> members{{QStringLiteral("title"), Json::string(final.Title)},
                                               {QStringLiteral("answer"), Json::string(final.Answer[0])},
                                               {QStringLiteral("question"), Json::string(final.Question[0])}};
    if (!final.Picture[0].isEmpty())
        members.append({QStringLiteral("picture"), Json::string(final.Picture[0])});
    return Json::object(members);
}

int show(const QString &path, QTextStream &out, QTextStream &err)
{
    if (!readable(path, err))
        return 1;
    const QuestionSet set = LoadQuestionSet(path);
    QStringList counts, rounds;
    for (int r = 0; r < set.RoundCount; ++r) {
        counts << QString::number(set.CategoryCount[size_t(r)]);
        QStringList categories;
        for (int i = 0; i < set.CategoryCount[size_t(r)]; ++i)
            categories << categoryJson(set.Categories[size_t(r)][size_t(i)]);
        rounds << Json::array(categories);
    }
    const CategoryEntry &final = set.Categories[2][0];
    out << Json::object({{QStringLiteral("description"), Json::string(set.Description)},
                         {QStringLiteral("timer"), QString::number(set.Timer)},
                         {QStringLiteral("roundCount"), QString::number(set.RoundCount)},
                         {QStringLiteral("categoryCount"), Json::array(counts)},
                         {QStringLiteral("rounds"), Json::array(rounds)},
                         {QStringLiteral("final"), finalJson(final)}})
        << "\n";
    return 0;
}

int convert(const QStringList &a, QTextStream &out, QTextStream &err)
{
    if (!readable(a[0], err))
        return 1;
    const QString target = WithQz2Extension(a.size() > 1 ? a[1] : FileBaseOf(a[0]));
    const FileError error = WriteQuestionSet(LoadQuestionSet(a[0]), target);
    if (error) {
        err << "qz2: cannot write " << target << ": error #" << error.number << ": " << error.description << "\n";
        return 1;
    }
    out << "wrote " << target << "\n";
    return 0;
}

int check(const QStringList &files, QTextStream &out, QTextStream &err)
{
    int status = 0;
    for (const QString &path : files) {
        if (!readable(path, err)) {
            status = 1;
            continue;
        }
        const SetReport report = CheckQuestionSet(path);
        out << FormatReport(path, report) << "\n";
        if (!report.playable())
            status = 1;
    }
    return status;
}

} // namespace

int RunQz2(const QStringList &args, QTextStream &out, QTextStream &err)
{
    const QString command = args.value(0);
    const QStringList rest = args.mid(1);
    if (command == QStringLiteral("--help") && rest.isEmpty()) {
        out << kUsage << "\n" << kHelp;
        return 0;
    }
    if (command == QStringLiteral("--version") && rest.isEmpty()) {
        out << "qz2 " << QUIZZARR_VERSION << "\n";
        return 0;
    }
    if (command == QStringLiteral("get") && rest.size() == 4)
        return get(rest, out, err);
    if (command == QStringLiteral("show") && rest.size() == 1)
        return show(rest[0], out, err);
    if (command == QStringLiteral("convert") && (rest.size() == 1 || rest.size() == 2))
        return convert(rest, out, err);
    if (command == QStringLiteral("check") && !rest.isEmpty())
        return check(rest, out, err);
    if (command == QStringLiteral("sheet") && rest.size() == 2)
        return sheet(rest, out, err);
    if (command == QStringLiteral("import"))
        return ImportTable(rest, out, err);
    if (command == QStringLiteral("export") && rest.size() == 2)
        return ExportTable(rest, out, err);
    err << kUsage << "\n";
    return 2;
}
