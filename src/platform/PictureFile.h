// A picture file, read as the screens show it. Only an ordinary file is
// read: a named pipe waits for a writer, a device may never end, and a
// socket or a folder is no picture, so each of those counts as missing and
// is never opened in a way that could block the game.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

struct PictureFile {
    QImage image;    // null when there is none to show
    QString problem; // why not, as a host reads it: "is missing", "cannot be read as a picture (...)"
};

// Reads the picture at path; one larger than fitInto (when given) is read
// at the size that fits, keeping its shape, and a drawing (SVG) always at
// that size, so it comes out sharp.
PictureFile ReadPictureFile(const QString &path, QSize fitInto = QSize());
