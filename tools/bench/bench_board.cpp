// Benchmark (not a test): a full board re-layout with its 36 captions
// fitted, at three screen sizes, and fitting a 1,999-character clue into the
// answer screen at 3840x2160.

#include "board/TextFitting.h"
#include "game/GameState.h"
#include "ui/board/frmMain.h"
#include "ui/controls/CaptionControl.h"
#include "shell/Libraries.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>

namespace {

const char *kTitles[] = {"Animal Kingdom", "Around the House", "Colors", "Numbers Game", "Music Notes",
                         "A Rather Long Category Title Indeed"};

// The board with its controls in reach of the benchmark.
class BenchBoard : public frmMain {
public:
    using frmMain::frmMain;
    using frmMain::Form_Resize;
    using frmMain::RotateTV;
    using frmMain::vseCategory;
    using frmMain::vseCategory_RealignFrame;
    using frmMain::vseQuestion;
    using frmMain::vseQuestion_RealignFrame;
    using frmMain::vseTV;
    using frmMain::ZoomTV;
};

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    QTextStream out(stdout);
    GameState state;
    Libraries libraries;
    libraries.hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
    const QList<QSize> sizes{{1024, 768}, {1920, 1080}, {3840, 2160}};
    for (const QSize &size : sizes) {
        state.choosePictures(pictureIdsForScreenWidth(size.width()));
        BenchBoard board(state, libraries);
        for (int c = 0; c < 6; ++c)
            board.vseCategory[size_t(c)]->setCaption(QString::fromLatin1(kTitles[c]));
        board.resize(size);
        board.show();
        constexpr int kRounds = 20;
        QElapsedTimer t;
        qint64 total = 0;
        for (int k = 0; k < kRounds; ++k) {
            // Alternate sizes so that every control really changes size and
            // fits its caption again.
            board.resize(size.width() - (k % 2), size.height() - (k % 2));
            t.start();
            board.Form_Resize();
            for (int c = 0; c < 6; ++c)
                board.vseCategory_RealignFrame(c);
            for (int i = 0; i < 30; ++i)
                board.vseQuestion_RealignFrame(i);
            total += t.nsecsElapsed();
        }
        // The first paints after a resize scale the pictures and allocate
        // (a grab, each time, a new 33 MB picture of the window at 4K until
        // the allocator keeps such blocks): counted apart from the paint
        // that every later change of the board costs.
        t.start();
        board.grab();
        const qint64 first = t.elapsed();
        QList<qint64> paints;
        for (int k = 0; k < 9; ++k) {
            t.start();
            board.grab();
            paints << t.nsecsElapsed();
        }
        std::sort(paints.begin(), paints.end());
        out << "re-layout with 36 captions at " << size.width() << "x" << size.height() << ": "
            << QString::number(total / kRounds / 1e6, 'f', 2) << " ms (a whole paint: "
            << QString::number(paints[4] / 1e6, 'f', 1) << " ms; the first after the resize: " << first << " ms)\n";

        t.start();
        board.ZoomTV({ZoomSource::Tile, 14}, state.PicIdScreen);
        const qint64 zoom = t.elapsed();
        t.start();
        board.RotateTV(state.PicIdScreen, state.PicIdScreen);
        const qint64 flip = t.elapsed();
        out << "  zoom: " << zoom << " ms (125 of them pauses); flip: " << flip
            << " ms (18 steps, at most one per 60 Hz frame: " << QString::number(flip / 18.0, 'f', 1) << " ms a step)\n";
        board.vseTV->hide();

        if (size.width() == 3840) {
            QString clue;
            while (clue.size() < 1999)
                clue += QStringLiteral("the quick brown fox jumps over the lazy dog ");
            clue.truncate(1999);
            const QSizeF tv = board.boardSize();
            t.start();
            board.vseTV->showFitted(CramText(clue, board.vseTV->font(), board.vseQuestion[0]->fontSize(), 0.8 * tv.width(), 0.75 * tv.height()));
            out << "a 1,999-character clue into the answer screen at 3840x2160: " << t.elapsed() << " ms ("
                << board.vseTV->fontSize() << " pt)\n";
            const QString short200 = clue.left(200);
            t.start();
            board.vseTV->showFitted(CramText(short200, board.vseTV->font(), board.vseQuestion[0]->fontSize(), 0.8 * tv.width(), 0.75 * tv.height()));
            out << "a 200-character clue: " << t.elapsed() << " ms (" << board.vseTV->fontSize() << " pt)\n";
        }
    }
    return 0;
}
