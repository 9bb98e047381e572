// The resizing caption and container control that the board, the home
// screen, the editor and the help screen are built from: a caption (lines
// split at "\n", each centred) in its own font, a hidden tag text, a
// background picture drawn to fill it, a signal on every change of size, a
// mouse press with its button and SHIFT/CTRL/ALT, and, as a container,
// children placed in proportion to their design rectangles.
#pragma once

#include "board/TextFitting.h"

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QWidget>

class QPainter;

#include <vector>

class CaptionControl : public QWidget {
    Q_OBJECT
public:
    explicit CaptionControl(QWidget *parent = nullptr);

    QString caption() const { return caption_; }
    void setCaption(const QString &caption);

    QString tag() const { return tag_; }
    void setTag(const QString &tag) { tag_ = tag; }

    // The picture is stretched over the whole control; a null image draws
    // nothing, so whatever lies behind shows through.
    QImage picture() const { return picture_; }
    void setPicture(const QImage &picture);

    void setTextColor(const QColor &color);
    QColor textColor() const { return textColor_; }

    // Point size of the caption's font, in the font's own fractions.
    qreal fontSize() const { return font().pointSizeF(); }
    void setFontSize(qreal points);

    // Children keep their place in proportion: a child at design rectangle
    // d in a container of design size s covers d scaled by size()/s.
    void setDesignSize(QSizeF size);
    void addChild(QWidget *child, QRectF designRect);
    void setChildDesignRect(QWidget *child, QRectF designRect);
    // Lays the children out again (after design rectangles changed, or
    // children shown or hidden).
    void refresh();

    // A row: the visible children side by side in the order they were
    // added, sharing the width equally, whatever their design rectangles.
    void setRowLayout(bool row);
    // Children's fonts grow and shrink with the container (from the font
    // each had when it was added, at the design size).
    void setScaleFonts(bool scale);

    // While true (during an animation) the picture is stretched without
    // smoothing, which is many times faster on a big screen; turning it
    // off draws the smooth picture again.
    void setFastScaling(bool fast);

    // Shows a text fitted by CramText: its size, then its lines.
    void showFitted(const FittedText &fitted);

    // A picture shown inside the control at a place of its own, keeping its
    // shape, and the caption centred in an area of its own; a null picture
    // and a null area: the caption over the whole control, as ever.
    void setInset(const QImage &picture, const QRectF &pictureArea, const QRectF &captionArea);
    QImage inset() const { return inset_; }

signals:
    void resized();
    void pressed(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void placeChildren();
    QPixmap scaledPicture();
    // What the control shows, drawn once and kept until something changes:
    // a board repaints dozens of large captions at every animation frame.
    void compose();
    void drawCaption(QPainter &painter) const;
    void drawInset(QPainter &painter) const;
    void invalidate();

    QString caption_;
    QString tag_;
    QImage inset_;
    QRectF insetArea_;
    QRectF captionArea_;
    QImage picture_;
    QColor textColor_ = QColor(255, 255, 255);
    bool fastScaling_ = false;
    QPixmap composed_;
    bool composedValid_ = false;
    QSizeF designSize_;
    bool rowLayout_ = false;
    bool scaleFonts_ = false;
    struct Child {
        QWidget *widget;
        QRectF design;
        qreal designPoints;
    };
    std::vector<Child> children_;
};
