// A hidden drawing surface, as the screens use it: it takes the size of
// the last picture drawn into it, and parts of it are copied onto windows.
// It also carries the font in which texts are measured.
#pragma once

#include <QFont>
#include <QImage>
#include <QSize>

class PictureBox {
public:
    explicit PictureBox(QSize size = QSize(73, 41));

    const QImage &image() const { return image_; }
    QSize size() const { return image_.size(); }
    int width() const { return image_.width(); }
    int height() const { return image_.height(); }

    // Takes the picture whole: the surface becomes its size.
    void setImage(const QImage &image);
    // Resizes and clears the surface.
    void resize(QSize size);

    QFont font;

private:
    QImage image_;
};
