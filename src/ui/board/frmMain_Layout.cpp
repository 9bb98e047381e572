// The board's layout: backdrop, banner, team labels, the category row and
// the five tile rows, and the fitting of every caption into its box.

#include "frmMain.h"

#include "game/GameRules.h"
#include "game/GameState.h"
#include "ui/controls/Backdrop.h"
#include "ui/controls/ShadowLabel.h"
#include "board/TextFitting.h"
#include "ui/controls/CaptionControl.h"
#include "ui/controls/FormLook.h"
#include "shell/Libraries.h"

#include <QPaintEvent>
#include <QPainter>

QRect frmMain::boardArea() const
{
    return BoardArea(QSizeF(size())).toRect();
}

QSizeF frmMain::boardSize() const
{
    return QSizeF(area_->size());
}

void frmMain::Form_Resize()
{
    area_->setGeometry(boardArea());
    const qreal W = area_->width();

    libraries_.DrawLibraryBitmap(picText, state_.PicIdBackdrop);
    banner_ = libraries_.hPictureLib ? picText.image() : QImage();

    const QFont reference = ArialFont(ReferencePointSize(state_.PicIdBackdrop, W), true);
    geometry_ = LayOutBoard(W, CaptionText::lineHeight(reference));
    scaleBanner();
    layOutTeamLabels(reference.pointSizeF());

    // A hidden window gets its resize events only when shown: the rows
    // place their tiles at once, so the board is right before it shows.
    vseCategories->setGeometry(geometry_.categories.toRect());
    vseCategories->refresh();
    for (size_t k = 0; k < vseQuestions.size(); ++k) {
        vseQuestions[k]->setGeometry(geometry_.rows[k].toRect());
        vseQuestions[k]->refresh();
    }
    background_ = QPixmap();
    update();
}

void frmMain::layOutTeamLabels(qreal referencePoints)
{
    const qreal points = 0.6 * referencePoints;
    const int h = qRound(geometry_.labelHeight);
    for (int i = 0; i < lblTeam.size(); ++i) {
        const QRectF team = geometry_.teamLabel(i), score = geometry_.scoreLabel(i);
        lblTeam[i]->setFontSize(points);
        lblScore[i]->setFontSize(points);
        lblTeam[i]->setCaption(TeamName(i, state_.TeamNames[size_t(i)]) + QLatin1Char(':'));
        lblScore[i]->setCaption(QStringLiteral("$ ") + QString::number(state_.Scores[size_t(i)]));
        lblTeam[i]->setGeometry(qRound(team.x()), qRound(team.y()), lblTeam[i]->captionWidth(), h);
        lblScore[i]->setGeometry(qRound(score.x()), qRound(score.y()), lblScore[i]->captionWidth(), h);
        // The answer screen's copies sit further in, at the same heights.
        for (auto [board, screen] : {std::pair{lblTeam[i], lblTeam2[i]}, std::pair{lblScore[i], lblScore2[i]}}) {
            screen->setFontSize(points);
            screen->setCaption(board->caption());
            screen->setGeometry(8 * board->x(), board->y(), board->width(), h);
        }
    }
}

void frmMain::scaleBanner()
{
    // The banner is scaled to the band above the board, keeping its shape;
    // wider than the window, it is cut at both sides (its middle carries the
    // title).
    const int band = qRound(geometry_.bannerHeight);
    if (banner_.isNull() || band < 1) {
        scaledBanner_ = QPixmap();
        return;
    }
    if (scaledBanner_.height() != band || scaledBanner_.isNull())
        scaledBanner_ = QPixmap::fromImage(banner_.scaledToHeight(band, Qt::SmoothTransformation));
}

void frmMain::vseCategory_RealignFrame(int Index)
{
    CaptionControl *header = vseCategory[size_t(Index)];
    header->showFitted(CramText(header->caption(), header->font(), 8, 0.8 * header->width(), 0.8 * header->height()));
}

void frmMain::vseQuestion_RealignFrame(int Index)
{
    CaptionControl *tile = vseQuestion[size_t(Index)];
    tile->showFitted(CramText(tile->caption(), tile->font(), 8, 0.8 * tile->width(), 0.8 * tile->height()));
}

void frmMain::paintEvent(QPaintEvent *event)
{
    const qreal dpr = devicePixelRatioF();
    if (background_.size() != size() * dpr) {
        background_ = QPixmap(size() * dpr);
        background_.setDevicePixelRatio(dpr);
        QPainter p(&background_);
        PaintBackdrop(p, rect());
        if (!scaledBanner_.isNull())
            p.drawPixmap((width() - scaledBanner_.width()) / 2, boardArea().top(), scaledBanner_);
    }
    QPainter p(this);
    const QRect r = event->rect();
    p.drawPixmap(r, background_, QRectF(QPointF(r.topLeft()) * dpr, QSizeF(r.size()) * dpr));
}

void frmMain::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    Form_Resize();
    if (joinScreenShown())
        showJoinScreen(true); // over the whole window again
}
