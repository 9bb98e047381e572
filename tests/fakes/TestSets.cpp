#include "TestSets.h"

#include <QFile>
#include <QProcess>

QByteArray setText(const QList<const char *> &round1, const QList<const char *> &round2, const char *final)
{
    QByteArray s = "[Round1]\r\nDescription=test\r\nTimer=10\r\n";
    auto round = [&](int n, const QList<const char *> &titles) {
        if (n == 2)
            s += "[Round2]\r\n";
        for (int c = 0; c < titles.size(); ++c) {
            if (titles[c])
                s += "Category" + QByteArray::number(c) + "=" + titles[c] + "\r\n";
        }
        for (int c = 0; c < 6; ++c) {
            s += "[Round" + QByteArray::number(n) + "Category" + QByteArray::number(c) + "]\r\n";
            for (int j = 0; j < 5; ++j) {
                const QByteArray id = "r" + QByteArray::number(n) + "c" + QByteArray::number(c);
                s += "Answer" + QByteArray::number(j) + "=" + id + "a" + QByteArray::number(j) + "\r\n";
                s += "Question" + QByteArray::number(j) + "=" + id + "q" + QByteArray::number(j) + "\r\n";
            }
        }
    };
    if (!round1.isEmpty())
        round(1, round1);
    if (!round2.isEmpty())
        round(2, round2);
    if (final)
        s += QByteArray("[Final]\r\nCategory=") + final + "\r\nAnswer=final clue\r\nQuestion=final response\r\n";
    return s;
}

QString writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

QuestionSet distinctSet()
{
    QuestionSet s;
    s.Description = QStringLiteral("Sample set for the first class");
    s.Timer = 25;
    for (int r = 0; r < 3; ++r) {
        for (int c = 0; c < 6; ++c) {
            CategoryEntry &e = s.Categories[size_t(r)][size_t(c)];
            e.Title = QStringLiteral("R%1C%2 title").arg(r).arg(c);
            for (int j = 0; j < 5; ++j) {
                e.Answer[size_t(j)] = QStringLiteral("clue %1.%2.%3 = yes").arg(r).arg(c).arg(j);
                e.Question[size_t(j)] = QStringLiteral("What is %1.%2.%3?").arg(r).arg(c).arg(j);
            }
        }
    }
    return s;
}

bool sameTexts(const QuestionSet &a, const QuestionSet &b, QString *where)
{
    for (int r = 0; r < 3; ++r) {
        const int count = r == 2 ? 1 : a.CategoryCount[size_t(r)];
        if (r == 1 && a.RoundCount == 1)
            continue;
        for (int c = 0; c < count; ++c) {
            const CategoryEntry &x = a.Categories[size_t(r)][size_t(c)];
            const CategoryEntry &y = b.Categories[size_t(r)][size_t(c)];
            const int rows = r == 2 ? 1 : 5;
            bool same = x.Title == y.Title;
            for (int j = 0; j < rows; ++j)
                same = same && x.Answer[size_t(j)] == y.Answer[size_t(j)] && x.Question[size_t(j)] == y.Question[size_t(j)];
            if (!same) {
                *where = QStringLiteral("round %1 category %2: '%3' vs '%4'").arg(r).arg(c).arg(x.Title, y.Title);
                return false;
            }
        }
    }
    return a.Description == b.Description;
}

QByteArray playableSet(const QByteArray &description)
{
    return "[Round1]\r\nDescription=" + description + "\r\nCategory0=Rivers\r\n\r\n[Round1Category0]\r\n"
           "Answer0=a\r\nQuestion0=q\r\n";
}

QByteArray crlf(const QStringList &lines)
{
    return lines.join(QStringLiteral("\r\n")).toUtf8() + "\r\n";
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString programFile(const QString &name)
{
    return QStringLiteral(QUIZZARR_PROGRAM_DIR "/") + name;
}

int runQz2(const QStringList &args, QByteArray *out, QByteArray *err)
{
    QProcess p;
    p.start(programFile(QStringLiteral("qz2")), args);
    if (!p.waitForFinished(20000)) {
        p.kill();
        p.waitForFinished();
        return -1;
    }
    if (out)
        *out = p.readAllStandardOutput();
    if (err)
        *err = p.readAllStandardError();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}
