// Benchmark (not a test): the home screen with a big library of sets.
//   the home screen built and painted with 10,000 sets, against 5 sets;
//   a key press in the list with 10,000 sets, to the list repainted.

#include "game/GameState.h"
#include "platform/ModuleFileName.h"
#include "platform/SpecialFolders.h"
#include "shell/Libraries.h"
#include "select/QuestionSetList.h"
#include "ui/select/frmSelect.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

namespace {

void writeSets(const QString &folder, int count)
{
    for (int i = 0; i < count; ++i) {
        QFile f(folder + QStringLiteral("/Set %1 of the library.QZ2").arg(i, 5, 10, QLatin1Char('0')));
        f.open(QIODevice::WriteOnly);
        f.write("[Round1]\r\nDescription=A set of questions, number " + QByteArray::number(i) +
                "\r\nTimer=20\r\nCategory0=Rivers\r\n");
    }
}

double median(QList<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

// Milliseconds from building the home screen to its first full paint.
double homeMs(GameState &state, Libraries &libraries)
{
    QElapsedTimer t;
    t.start();
    frmSelect home(state, libraries);
    home.resize(640, 480);
    home.grab();
    return t.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QTextStream out(stdout);
    GameState state;
    Libraries libraries;
    libraries.hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
    QTemporaryDir few, many, empty;
    writeSets(few.path(), 5);
    writeSets(many.path(), 10000);
    SpecialFolders::overridePath(SpecialFolders::kDocuments, empty.path());

    {
        QElapsedTimer t;
        t.start();
        const auto entries = ListQuestionSets(many.path() + QLatin1Char('/'), QString());
        out << "listing 10,000 sets (reading every description): " << t.elapsed() << " ms, " << entries.size()
            << " entries\n";
    }
    QList<double> small, large;
    for (int run = 0; run < 5; ++run) {
        ModuleFileName::overrideProgramFolder(few.path());
        small << homeMs(state, libraries);
        ModuleFileName::overrideProgramFolder(many.path());
        large << homeMs(state, libraries);
    }
    out << "home screen painted: 5 sets " << QString::number(median(small), 'f', 1) << " ms, 10,000 sets "
        << QString::number(median(large), 'f', 1) << " ms (" << QString::number(median(large) / median(small), 'f', 2)
        << "x)\n";

    frmSelect home(state, libraries);
    home.show();
    home.lstQuestions->setFocus();
    home.grab();
    QList<double> keys;
    for (int k = 0; k < 20; ++k) {
        QElapsedTimer t;
        t.start();
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QCoreApplication::sendEvent(home.lstQuestions, &down);
        home.lstQuestions->viewport()->repaint();
        keys << t.nsecsElapsed() / 1e6;
    }
    out << "a key press in the list of 10,000 sets, to repainted: " << QString::number(median(keys), 'f', 2) << " ms\n";
    return 0;
}
