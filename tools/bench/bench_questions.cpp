// Benchmark (not a test): how long the question-set reads take.
//   one key from a typical set; "Description" of each of 1,000 sets in a
//   folder; one key from a 100 MB file (missing key, and a key at its end).

#include "platform/GetPrivateProfileString.h"
#include "questions/GameReads.h"
#include "questions/QuestionSet.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QuestionSet fullSet()
{
    QuestionSet s;
    s.Description = QStringLiteral("A typical set of two full rounds");
    for (auto &round : s.Categories) {
        for (CategoryEntry &e : round) {
            e.Title = QStringLiteral("Category title");
            for (int j = 0; j < 5; ++j) {
                e.Answer[size_t(j)] = QString(120, QLatin1Char('a'));
                e.Question[size_t(j)] = QStringLiteral("What is the response?");
            }
        }
    }
    return s;
}

template <typename F>
double microsecondsPer(int repeats, F f)
{
    QElapsedTimer t;
    t.start();
    for (int i = 0; i < repeats; ++i)
        f();
    return double(t.nsecsElapsed()) / 1000.0 / repeats;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir dir;
    const QString typical = dir.filePath(QStringLiteral("Typical.QZ2"));
    WriteQuestionSet(fullSet(), typical);

    out << "one key from a typical set (166 lines):\n";
    out << "  first section, [Round1] Timer:        "
        << microsecondsPer(2000, [&] { GameReads::AnswerTimerMs(typical); }) << " us\n";
    out << "  last section, [Final] Category:       "
        << microsecondsPer(2000, [&] { GameReads::RoundExists(typical, 3); }) << " us\n";
    out << "  a whole set loaded by the editor:     "
        << microsecondsPer(50, [&] { LoadQuestionSet(typical); }) / 1000.0 << " ms\n";

    const QString folder = dir.filePath(QStringLiteral("many"));
    QDir().mkpath(folder);
    for (int i = 0; i < 1000; ++i)
        QFile::copy(typical, folder + QStringLiteral("/Set%1.QZ2").arg(i));
    QElapsedTimer t;
    t.start();
    const QStringList names = QDir(folder).entryList({QStringLiteral("*.QZ2")}, QDir::Files);
    int listed = 0;
    for (const QString &name : names)
        listed += GameReads::IsQuestionSet(GameReads::Description(folder + QLatin1Char('/') + name));
    out << "\"Description\" of each of " << listed << " sets in a folder: " << t.elapsed() << " ms\n";

    const QString big = dir.filePath(QStringLiteral("Big.QZ2"));
    {
        QFile f(big);
        f.open(QIODevice::WriteOnly);
        f.write("[Round1]\r\nDescription=big\r\n[Filler]\r\n");
        const QByteArray line = QByteArray("Key=") + QByteArray(96, 'x') + "\r\n";
        QByteArray block;
        for (int i = 0; i < 10'000; ++i)
            block += line;
        for (int i = 0; i < 100; ++i)
            f.write(block);
        f.write("[Final]\r\nCategory=found at the end\r\n");
    }
    out << "one key from a " << QFileInfo(big).size() / 1'000'000 << " MB file:\n";
    t.restart();
    GameReads::Description(big);
    out << "  key at its start:   " << t.nsecsElapsed() / 1000 << " us\n";
    t.restart();
    const bool final = GameReads::RoundExists(big, 3);
    out << "  key at its end:     " << t.elapsed() << " ms (" << (final ? "found" : "NOT FOUND") << ")\n";
    t.restart();
    GameReads::RoundExists(big, 2);
    out << "  missing section:    " << t.elapsed() << " ms\n";
    return 0;
}
