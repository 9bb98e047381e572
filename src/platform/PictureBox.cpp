#include "PictureBox.h"

PictureBox::PictureBox(QSize size)
{
    resize(size);
}

void PictureBox::setImage(const QImage &image)
{
    image_ = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void PictureBox::resize(QSize size)
{
    image_ = QImage(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    image_.fill(Qt::transparent);
}
