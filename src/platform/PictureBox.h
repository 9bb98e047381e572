// A hidden drawing surface, as the screens use it: it takes the size of
// the last picture drawn into it, and its image serves as the background
// picture of other controls. Until a picture is drawn (and after every
// resize) it is a plain surface of its own colour.
#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

class PictureBox {
public:
    // The design size of the screens' scratch picture, and the plain deep
    // blue that stands in for the screen face when there are no pictures.
    explicit PictureBox(QSize size = QSize(73, 41), QColor plain = QColor(12, 28, 140));

    // The picture drawn last, or a plain surface of the current size.
    QImage image() const;
    QSize size() const { return size_; }
    int width() const { return size_.width(); }
    int height() const { return size_.height(); }

    // Takes the picture whole: the surface becomes its size.
    void setImage(const QImage &image);
    // Resizes and clears the surface.
    void resize(QSize size);

private:
    QSize size_;
    QColor plain_;
    QImage image_;
};
