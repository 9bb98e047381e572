// Harness (not the product): plays a game on a question set in the real
// board, the way a host would, and saves each step as a PNG.
//
//   game_harness SET.QZ2 WIDTHxHEIGHT OUTDIR
//
// Three teams; no sound. Saves 1-board, 2-answer, 3-question, 4-dailydouble,
// 5-dailydouble-answer, 6-scores, 7-final, 8-final-category, 9-final-answer,
// 10-final-question and 11-standings.

#include "game/GameState.h"
#include "game/frmMain.h"
#include "platform/CaptionControl.h"
#include "platform/MsgBox.h"
#include "shell/PictureLibrary.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTextStream>
#include <QTimer>

namespace {

QString outDir;

void save(QWidget &w, const QString &name)
{
    w.grab().save(outDir + QLatin1Char('/') + name + QStringLiteral(".png"));
}

// Shows the box for a moment and saves it, then answers OK.
class GrabbingMsgBox final : public MsgBoxHandler {
public:
    MsgBoxResult show(const QString &text, int, const QString &caption) override
    {
        QMessageBox box(QMessageBox::NoIcon, caption, text, QMessageBox::Ok);
        box.show();
        QApplication::processEvents();
        save(box, QStringLiteral("11-standings"));
        QTextStream(stdout) << caption << ":\n" << text << "\n";
        return MsgBoxResult::OK;
    }
};

void key(frmMain &board, Qt::Key k, Qt::KeyboardModifiers m = Qt::NoModifier, quint32 scanCode = 0)
{
    QKeyEvent press(QEvent::KeyPress, k, m, scanCode, 0, 0);
    QApplication::sendEvent(&board, &press);
}

void press(CaptionControl *control, Qt::KeyboardModifiers m = Qt::NoModifier)
{
    emit control->pressed(Qt::LeftButton, m);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QStringList args = app.arguments();
    const QStringList size = args.value(2).split(QLatin1Char('x'));
    if (args.size() != 4 || size.size() != 2) {
        QTextStream(stderr) << "usage: game_harness SET.QZ2 WIDTHxHEIGHT OUTDIR\n";
        return 2;
    }
    outDir = args[3];
    QDir().mkpath(outDir);
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    basPLOVQuzr::hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
    const PictureIdSet ids = pictureIdsForScreenWidth(size[0].toInt());
    basPLOVQuzr::PicIdScreen = ids.screen;
    basPLOVQuzr::PicIdDailyDouble = ids.dailyDouble;
    basPLOVQuzr::PicIdFinal = ids.final;
    basPLOVQuzr::PicIdBackdrop = ids.backdrop;
    basPLOVQuzr::QuestionFile = args[1];
    GrabbingMsgBox boxes;
    installMsgBoxHandler(&boxes);

    auto *board = new frmMain;
    board->Teams = 3;
    board->PrepareTeamLabels(3);
    basPLOVQuzr::Scores.fill(0);
    board->resize(size[0].toInt(), size[1].toInt());
    board->Form_Resize();
    board->show();
    basPLOVQuzr::Round = 1;
    board->SetUpRound();
    save(*board, QStringLiteral("1-board"));

    // An ordinary tile: the first in play that is not a daily double.
    int tile = 0;
    while (tile == basPLOVQuzr::DailyDouble1 || tile == basPLOVQuzr::DailyDouble2)
        ++tile;
    press(board->vseQuestion[size_t(tile)]);
    save(*board, QStringLiteral("2-answer"));
    press(board->vseTV);
    save(*board, QStringLiteral("3-question"));
    press(board->vseTV);
    key(*board, Qt::Key_2, Qt::NoModifier, 11);
    key(*board, Qt::Key_At, Qt::ShiftModifier, 11); // SHIFT+2 on a US layout: team 2 again

    press(board->vseQuestion[size_t(basPLOVQuzr::DailyDouble1)]);
    save(*board, QStringLiteral("4-dailydouble"));
    press(board->vseTV);
    save(*board, QStringLiteral("5-dailydouble-answer"));
    press(board->vseTV);
    press(board->vseTV);
    key(*board, Qt::Key_1, Qt::NoModifier, 10);
    key(*board, Qt::Key_3, Qt::NoModifier, 12);
    save(*board, QStringLiteral("6-scores"));

    const Qt::KeyboardModifiers all = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    while (basPLOVQuzr::Round < 3)
        key(*board, Qt::Key_N, all);
    save(*board, QStringLiteral("7-final"));
    press(board->vseTV);
    save(*board, QStringLiteral("8-final-category"));
    press(board->vseTV);
    save(*board, QStringLiteral("9-final-answer"));
    press(board->vseTV);
    save(*board, QStringLiteral("10-final-question"));
    press(board->vseTV);
    key(*board, Qt::Key_3, Qt::NoModifier, 12);
    press(board->vseQuestion[0]); // scored: on to the standings
    return 0;
}
