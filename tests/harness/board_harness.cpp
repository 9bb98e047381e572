// Harness (not the product): opens the board on a question set at a given
// window size and saves what it shows as PNGs, for looking at the board
// while the game around it grows.
//
//   board_harness SET.QZ2 WIDTHxHEIGHT OUTDIR
//
// Saves board.png (round 1 laid out), answer.png (a 200-character clue on
// the answer screen), dailydouble.png and final.png (their pictures).

#include "game/GameState.h"
#include "game/frmMain.h"
#include "platform/CaptionControl.h"
#include "platform/ModuleFileName.h"
#include "questions/GameReads.h"
#include "shell/PictureLibrary.h"
#include "board/ShadowLabel.h"
#include "board/TextFitting.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QTextStream>

namespace {

void save(QWidget &w, const QString &dir, const QString &name)
{
    w.grab().save(dir + QLatin1Char('/') + name);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QTextStream err(stderr);
    const QStringList args = app.arguments();
    const QStringList size = args.value(2).split(QLatin1Char('x'));
    if (args.size() != 4 || size.size() != 2) {
        err << "usage: board_harness SET.QZ2 WIDTHxHEIGHT OUTDIR\n";
        return 2;
    }
    const int width = size[0].toInt(), height = size[1].toInt();
    QDir().mkpath(args[3]);
    QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
    ModuleFileName::overrideProgramFolder(QStringLiteral(QUIZZARR_PROGRAM_DIR));
    basPLOVQuzr::hPictureLib = PictureLibrary::load(QStringLiteral(QUIZZARR_PROGRAM_DIR "/PLOVQBmp.so"));
    const PictureIdSet ids = pictureIdsForScreenWidth(width);
    basPLOVQuzr::PicIdScreen = ids.screen;
    basPLOVQuzr::PicIdDailyDouble = ids.dailyDouble;
    basPLOVQuzr::PicIdFinal = ids.final;
    basPLOVQuzr::PicIdBackdrop = ids.backdrop;
    basPLOVQuzr::QuestionFile = args[1];
    basPLOVQuzr::Scores = {1200, -300, 0, 4500, 0, 0, 0, 0, 0, 0};

    auto *board = new frmMain;
    board->Teams = 4;
    board->PrepareTeamLabels(4);
    board->resize(width, height);
    for (int c = 0; c < 6; ++c)
        board->vseCategory[size_t(c)]->setCaption(GameReads::ColumnTitle(args[1], 1, c));
    board->vseCategory[5]->setCaption(QStringLiteral("A Rather Long Category Title Indeed"));
    board->show();
    board->Form_Resize();
    for (int c = 0; c < 6; ++c)
        board->vseCategory_RealignFrame(c);
    for (int i = 0; i < 30; ++i)
        board->vseQuestion_RealignFrame(i);
    save(*board, args[3], QStringLiteral("board.png"));

    board->vseTV->setCaption(board->vseQuestion[14]->caption());
    board->ZoomTV(board->vseQuestion[14], basPLOVQuzr::PicIdScreen);
    const QString clue = QStringLiteral(
        "This planet, the sixth from the Sun, is famous for its bright rings of ice and rock; it is so light "
        "for its size that it would float in a bathtub big enough to hold it, if such a tub could ever be.");
    const QSizeF tv = board->boardSize();
    CramText(clue, *board->vseTV, board->vseQuestion[0]->fontSize(), 0.8 * tv.width(), 0.75 * tv.height());
    board->lblCategory->setCaption(board->vseCategory[2]->caption());
    board->lblValue->setCaption(QStringLiteral("$300"));
    board->lblCategory->setFont(board->vseCategory[2]->font());
    board->lblValue->setFont(board->vseCategory[2]->font());
    board->lblCategory->fitSize();
    board->lblValue->fitSize();
    board->lblCategory->move(qRound(0.05 * tv.width()), qRound(0.05 * tv.height()));
    board->lblValue->move(qRound(0.95 * tv.width()) - board->lblValue->width(), qRound(0.05 * tv.height()));
    board->lblCategory->show();
    board->lblValue->show();
    save(*board, args[3], QStringLiteral("answer.png"));
    err << "clue of " << clue.size() << " characters at " << board->vseTV->fontSize() << " pt\n";

    board->lblCategory->hide();
    board->lblValue->hide();
    board->vseTV->setCaption(QString());
    board->ZoomTV(board->vseQuestion[7], basPLOVQuzr::PicIdDailyDouble);
    save(*board, args[3], QStringLiteral("dailydouble.png"));
    board->ZoomTV(board->vseQuestion[14], basPLOVQuzr::PicIdFinal);
    save(*board, args[3], QStringLiteral("final.png"));
    return 0;
}
