#include "ShadowLabel.h"

#include "FormLook.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QPainter>

ShadowLabel::ShadowLabel(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFont(ArialFont(font().pointSizeF(), true)); // refits through changeEvent
}

void ShadowLabel::setCaption(const QString &caption)
{
    caption_ = caption;
    fitSize();
    update();
}

void ShadowLabel::setFontSize(qreal points)
{
    QFont f = font();
    f.setPointSizeF(qMax<qreal>(1.0, points));
    setFont(f); // refits through changeEvent
}

int ShadowLabel::captionWidth() const
{
    return int(std::ceil(QFontMetricsF(font()).horizontalAdvance(caption_))) + 2;
}

void ShadowLabel::fitSize()
{
    resize(captionWidth(), int(std::ceil(QFontMetricsF(font()).height())));
}

void ShadowLabel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitSize();
}

void ShadowLabel::setColor(const QColor &color)
{
    if (color == color_)
        return;
    color_ = color;
    update();
}

void ShadowLabel::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setFont(font());
    const QFontMetricsF fm(font());
    const qreal y = (height() - fm.height()) / 2.0 + fm.ascent();
    const qreal shadow = qMax<qreal>(1.0, fm.height() / 16.0);
    p.setPen(QColor(0, 0, 0, 200));
    p.drawText(QPointF(shadow, y + shadow), caption_);
    p.setPen(color_);
    p.drawText(QPointF(0, y), caption_);
}
