// The answer screen's animation: the zoom out of a tile or header, and the
// flip from one picture to another. Each step reaches the screen as its own
// frame, however fast the machine.

#include "frmMain.h"

#include "board/AnimationGeometry.h"
#include "ui/controls/ShadowLabel.h"
#include "ui/controls/CaptionControl.h"
#include "platform/Clock.h"
#include "shell/Libraries.h"


namespace {

constexpr int kZoomPauseMs = 25;
// A flip shows at most one step per frame of a 60 Hz display, so that it is
// seen on a fast machine too.
constexpr int kFlipFramesPerSecond = 60;

// Holds each step of an animation until its frame is due: the time a step
// takes to paint is part of its frame, not added to it, so a large screen
// keeps the pace as long as a step paints within a frame.
class FramePacer {
public:
    explicit FramePacer(int framesPerSecond) : perSecond_(framesPerSecond), start_(Clock::instance().steadyMs()) {}

    void waitForNextFrame()
    {
        ++frames_;
        const qint64 due = start_ + (frames_ * 1000 + perSecond_ - 1) / perSecond_;
        // Always a pause, even a late one of none: presses made meanwhile
        // are dropped, not left for after the animation.
        Clock::instance().pause(int(qMax<qint64>(0, due - Clock::instance().steadyMs())));
    }

private:
    const qint64 perSecond_;
    const qint64 start_;
    qint64 frames_ = 0;
};

QRect pixels(const QRectF &r)
{
    return QRect(qRound(r.x()), qRound(r.y()), qRound(r.right()) - qRound(r.x()),
                 qRound(r.bottom()) - qRound(r.y()));
}

} // namespace

void frmMain::showFrame(int pauseMs)
{
    vseTV->repaint();
    Clock::instance().pause(pauseMs);
}

void frmMain::ZoomTV(ZoomSource from, qint32 PictureID)
{
    const bool isTile = from.kind == ZoomSource::Tile;
    CaptionControl *source = isTile ? vseQuestion[size_t(qBound(0, from.index, 29))]
                                    : vseCategory[size_t(qBound(0, from.index, 5))];
    vseTV->hide();
    vseTV->setInset(QImage(), {}, {});
    lblCategory->hide();
    lblValue->hide();
    for (int i = 0; i < lblTeam2.size(); ++i) {
        lblTeam2[i]->hide();
        lblScore2[i]->hide();
    }

    if (!isTile)
        vseTV->setCaption(source->caption());
    // Our containers draw no frame: the screen starts exactly on the source.
    const QRectF start(source->mapTo(this, QPoint(0, 0)), QSizeF(source->size()));
    const std::array<QRectF, 6> steps = ZoomRects(start, screenSize());

    vseTV->setFastScaling(true);
    vseTV->setGeometry(pixels(steps[0]));
    libraries_.DrawLibraryBitmap(picText, PictureID);
    vseTV->setPicture(picText.image());
    vseTV->setFontSize(source->fontSize());
    vseTV->show();
    vseTV->raise();
    vseTV->repaint();
    for (int k = 1; k <= 5; ++k) {
        const QRectF &now = steps[size_t(k)], &before = steps[size_t(k - 1)];
        if (!vseTV->caption().isEmpty() && before.width() > 0)
            vseTV->setFontSize(vseTV->fontSize() * now.width() / before.width());
        vseTV->setGeometry(pixels(now));
        showFrame(kZoomPauseMs);
    }
    vseTV->setFastScaling(false);
    if (game_.state().Teams > 0) {
        for (int i = 0; i < lblTeam2.size(); ++i) {
            lblTeam2[i]->show();
            lblScore2[i]->show();
        }
    }
}

void frmMain::RotateTV(qint32 PictureID1, qint32 PictureID2)
{
    const QSizeF board = screenSize();
    vseTV->setInset(QImage(), {}, {});
    vseTV->setFastScaling(true);
    libraries_.DrawLibraryBitmap(picText, PictureID1);
    vseTV->setPicture(picText.image());
    FramePacer pacer(kFlipFramesPerSecond);
    for (const QRectF &r : FoldRects(board, vseTV->width())) {
        if (r.height() > 0)
            vseTV->setGeometry(pixels(r));
        vseTV->repaint();
        pacer.waitForNextFrame();
    }
    libraries_.DrawLibraryBitmap(picText, PictureID2);
    vseTV->setPicture(picText.image());
    for (const QRectF &r : UnfoldRects(board)) {
        vseTV->setGeometry(pixels(r));
        vseTV->repaint();
        pacer.waitForNextFrame();
    }
    vseTV->setFastScaling(false);
}
