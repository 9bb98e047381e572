#include "PictureBox.h"

PictureBox::PictureBox(QSize size, QColor plain) : size_(size.expandedTo(QSize(1, 1))), plain_(plain) {}

QImage PictureBox::image() const
{
    if (!image_.isNull())
        return image_;
    QImage plain(size_, QImage::Format_ARGB32_Premultiplied);
    plain.fill(plain_);
    return plain;
}

void PictureBox::setImage(const QImage &image)
{
    // Both forms draw fast; keeping the picture as it came keeps it shared.
    image_ = image.format() == QImage::Format_RGB32 ? image : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    size_ = image_.size();
}

void PictureBox::resize(QSize size)
{
    size_ = size.expandedTo(QSize(1, 1));
    image_ = QImage();
}
