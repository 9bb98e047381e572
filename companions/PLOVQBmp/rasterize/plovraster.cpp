// plovraster: renders one picture of the picture library from its SVG source.
//
//   plovraster IN.svg OUT.png WIDTH HEIGHT
//
// The SVG is scaled to fill WIDTH x HEIGHT, so its viewBox must have the same
// aspect ratio as the size asked for (the tool refuses a mismatch rather than
// stretch a picture out of shape). Runs at build time, without a display.

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextStream>

#include <cmath>
#include <cstdio>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv); // the SVG's text needs the font database

    QTextStream err(stderr);
    const QStringList args = app.arguments();
    bool okW = false, okH = false;
    const int width = args.value(3).toInt(&okW);
    const int height = args.value(4).toInt(&okH);
    if (args.size() != 5 || !okW || !okH || width <= 0 || height <= 0) {
        err << "usage: plovraster IN.svg OUT.png WIDTH HEIGHT\n";
        return 2;
    }

    QSvgRenderer svg(args.at(1));
    if (!svg.isValid()) {
        err << args.at(1) << ": not a valid SVG\n";
        return 1;
    }
    const QRectF box = svg.viewBoxF();
    const double wanted = double(width) / height;
    const double given = box.width() / box.height();
    if (std::abs(wanted - given) > 0.01 * given) {
        err << args.at(1) << ": viewBox aspect " << given << " does not match " << width << "x" << height << "\n";
        return 1;
    }

    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
        svg.render(&painter, QRectF(0, 0, width, height));
    }
    if (!image.save(args.at(2), "PNG")) {
        err << args.at(2) << ": cannot write\n";
        return 1;
    }
    return 0;
}
