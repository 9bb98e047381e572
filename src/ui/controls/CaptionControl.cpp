#include "CaptionControl.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QPixmapCache>

CaptionControl::CaptionControl(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void CaptionControl::invalidate()
{
    composedValid_ = false;
    update();
}

void CaptionControl::setCaption(const QString &caption)
{
    if (caption == caption_)
        return;
    caption_ = caption;
    invalidate();
}

void CaptionControl::setPicture(const QImage &picture)
{
    // A picture without see-through parts covers the control whole: what
    // lies beneath need not be painted first (a 4K board has thirty-six
    // such captions over its backdrop).
    setAttribute(Qt::WA_OpaquePaintEvent, !picture.isNull() && !picture.hasAlphaChannel());
    picture_ = picture;
    invalidate();
}

void CaptionControl::setTextColor(const QColor &color)
{
    textColor_ = color;
    invalidate();
}

void CaptionControl::setFontSize(qreal points)
{
    QFont f = font();
    f.setPointSizeF(qMax<qreal>(1.0, points));
    setFont(f);
    invalidate();
}

void CaptionControl::setFastScaling(bool fast)
{
    if (fast == fastScaling_)
        return;
    fastScaling_ = fast;
    invalidate();
}

void CaptionControl::setDesignSize(QSizeF size)
{
    designSize_ = size;
    placeChildren();
}

void CaptionControl::addChild(QWidget *child, QRectF designRect)
{
    child->setParent(this);
    children_.push_back({child, designRect, child->font().pointSizeF()});
    placeChildren();
}

void CaptionControl::setRowLayout(bool row)
{
    rowLayout_ = row;
    placeChildren();
}

void CaptionControl::setScaleFonts(bool scale)
{
    scaleFonts_ = scale;
    placeChildren();
}

void CaptionControl::setChildDesignRect(QWidget *child, QRectF designRect)
{
    for (Child &c : children_) {
        if (c.widget == child)
            c.design = designRect;
    }
}

void CaptionControl::refresh()
{
    placeChildren();
    update();
}

void CaptionControl::placeChildren()
{
    if (rowLayout_) {
        std::vector<QWidget *> shown;
        for (const Child &c : children_) {
            if (!c.widget->isHidden())
                shown.push_back(c.widget);
        }
        for (size_t k = 0; k < shown.size(); ++k) {
            const int left = int(k * width() / shown.size()), right = int((k + 1) * width() / shown.size());
            shown[k]->setGeometry(left, 0, right - left, height());
        }
        return;
    }
    if (designSize_.isEmpty())
        return;
    const qreal sx = width() / designSize_.width();
    const qreal sy = height() / designSize_.height();
    for (const Child &c : children_) {
        // Edges are rounded, not sizes, so neighbours meet without gaps.
        const QRectF r(c.design.x() * sx, c.design.y() * sy, c.design.width() * sx, c.design.height() * sy);
        c.widget->setGeometry(QRect(qRound(r.x()), qRound(r.y()), qRound(r.right()) - qRound(r.x()),
                                    qRound(r.bottom()) - qRound(r.y())));
        if (scaleFonts_ && c.designPoints > 0 && sx > 0 && sy > 0) {
            QFont f = c.widget->font();
            f.setPointSizeF(qMax<qreal>(1.0, c.designPoints * qMin(sx, sy)));
            c.widget->setFont(f);
        }
    }
}

void CaptionControl::showFitted(const FittedText &fitted)
{
    setFontSize(fitted.points);
    setCaption(fitted.caption);
}

QPixmap CaptionControl::scaledPicture()
{
    // Every tile of a board has the same size and picture: one scaling
    // serves them all.
    const QSize target = size() * devicePixelRatioF();
    const QString key = QStringLiteral("caption-%1-%2x%3")
                            .arg(picture_.cacheKey())
                            .arg(target.width())
                            .arg(target.height());
    QPixmap scaled;
    if (!QPixmapCache::find(key, &scaled)) {
        scaled = QPixmap::fromImage(picture_.scaled(target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        QPixmapCache::insert(key, scaled);
    }
    return scaled;
}

void CaptionControl::compose()
{
    const qreal dpr = devicePixelRatioF();
    composed_ = QPixmap(size() * dpr);
    composed_.setDevicePixelRatio(dpr);
    // An opaque face covers it all: the pixmap stays without alpha, and
    // every later paint copies it instead of blending it, which at 4K is
    // most of the board's paint.
    if (!testAttribute(Qt::WA_OpaquePaintEvent))
        composed_.fill(Qt::transparent);
    composedValid_ = true;
    QPainter p(&composed_);
    if (!picture_.isNull()) {
        QPixmap face = scaledPicture();
        face.setDevicePixelRatio(dpr);
        p.drawPixmap(0, 0, face);
    }
    drawCaption(p);
}

void CaptionControl::setInset(const QImage &picture, const QRectF &pictureArea, const QRectF &captionArea)
{
    inset_ = picture;
    insetArea_ = pictureArea;
    captionArea_ = captionArea;
    invalidate();
}

void CaptionControl::drawInset(QPainter &p) const
{
    if (inset_.isNull() || insetArea_.isEmpty())
        return;
    QSizeF shown = QSizeF(inset_.size()).scaled(insetArea_.size(), Qt::KeepAspectRatio);
    const QRectF target(insetArea_.center() - QPointF(shown.width(), shown.height()) / 2, shown);
    p.setRenderHint(QPainter::SmoothPixmapTransform, !fastScaling_);
    p.drawImage(target, inset_);
}

void CaptionControl::drawCaption(QPainter &p) const
{
    drawInset(p);
    if (caption_.isEmpty())
        return;
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(font());
    const QFontMetricsF fm(font());
    const QStringList lines = caption_.split(QLatin1Char('\n'));
    const qreal line = CaptionText::lineHeight(font());
    const qreal shadow = qMax<qreal>(1.0, line / 16.0);
    const QRectF area = captionArea_.isEmpty() ? QRectF(rect()) : captionArea_;
    qreal y = area.top() + (area.height() - line * lines.size()) / 2.0 + fm.ascent();
    for (const QString &text : lines) {
        const qreal x = area.left() + (area.width() - fm.horizontalAdvance(text)) / 2.0;
        // A dark shadow keeps light text readable on any projector.
        p.setPen(QColor(0, 0, 0, 200));
        p.drawText(QPointF(x + shadow, y + shadow), text);
        p.setPen(textColor_);
        p.drawText(QPointF(x, y), text);
        y += line;
    }
}

void CaptionControl::paintEvent(QPaintEvent *event)
{
    if (width() <= 0 || height() <= 0 || (picture_.isNull() && caption_.isEmpty() && inset_.isNull()))
        return;
    QPainter p(this);
    if (fastScaling_) {
        // Each frame of an animation has a new size: stretching straight
        // onto the screen costs one pass instead of three.
        if (!picture_.isNull())
            p.drawImage(rect(), picture_);
        drawCaption(p);
        return;
    }
    if (!composedValid_ || composed_.size() != size() * devicePixelRatioF())
        compose();
    const qreal dpr = devicePixelRatioF();
    const QRect r = event->rect();
    p.drawPixmap(r, composed_, QRectF(QPointF(r.topLeft()) * dpr, QSizeF(r.size()) * dpr));
}

void CaptionControl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        invalidate();
}

void CaptionControl::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeChildren();
    emit resized();
}

void CaptionControl::mousePressEvent(QMouseEvent *event)
{
    emit pressed(event->button(), event->modifiers());
    event->accept();
}
