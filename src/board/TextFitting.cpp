#include "TextFitting.h"

#include "platform/NumberText.h"

#include <QFontMetricsF>
#include <QStringList>

namespace {

// How many leading characters of text fit within width, adding up the
// characters' own widths (a pair of surrogates counts as one character).
qsizetype fittingCount(const QString &text, const QFontMetricsF &fm, qreal width)
{
    qreal used = 0;
    qsizetype i = 0;
    while (i < text.size()) {
        const qsizetype n = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        used += n == 1 ? fm.horizontalAdvance(text.at(i)) : fm.horizontalAdvance(text.mid(i, 2));
        if (used > width)
            break;
        i += n;
    }
    return i;
}

QString trimSpaces(const QString &s)
{
    qsizetype b = 0, e = s.size();
    while (b < e && s.at(b) == QLatin1Char(' '))
        ++b;
    while (e > b && s.at(e - 1) == QLatin1Char(' '))
        --e;
    return s.mid(b, e - b);
}

QFont sized(QFont font, qreal points)
{
    font.setPointSizeF(qMax<qreal>(1.0, points));
    return font;
}

} // namespace

QString WrapText(const QString &text, const QFont &font, int widthPixels)
{
    const QFontMetricsF fm(font);
    QString rest = text;
    QString result;
    auto append = [&](const QString &line) {
        if (!result.isEmpty())
            result += QLatin1Char('\n');
        result += line;
    };
    while (!rest.isEmpty()) {
        const qsizetype n = fittingCount(rest, fm, widthPixels);
        if (n < rest.size()) {
            // A space among the characters that fit, the last one first.
            qsizetype p = -1;
            for (qsizetype k = n - 1; k >= 0 && p < 0; --k)
                p = rest.at(k) == QLatin1Char(' ') ? k : -1;
            if (p >= 0) {
                append(trimSpaces(rest.left(p + 1)));
                rest = trimSpaces(rest.mid(p));
                continue;
            }
        }
        append(rest);
        break;
    }
    return result;
}

qreal CaptionText::lineHeight(const QFont &font)
{
    return QFontMetricsF(font).height();
}

qreal CaptionText::width(const QFont &font, const QString &wrapped)
{
    const QFontMetricsF fm(font);
    qreal widest = 0;
    for (const QString &line : wrapped.split(QLatin1Char('\n')))
        widest = qMax(widest, fm.horizontalAdvance(line));
    return widest;
}

qreal CaptionText::height(const QFont &font, const QString &wrapped)
{
    return lineHeight(font) * (wrapped.count(QLatin1Char('\n')) + 1);
}

bool TextFits(const QFont &font, const QString &wrapped, qreal maxWidth, qreal maxHeight)
{
    return CaptionText::width(font, wrapped) <= maxWidth && CaptionText::height(font, wrapped) <= maxHeight;
}

FittedText CramText(const QString &S, const QFont &startFont, qreal FS, qreal MaxWidth, qreal MaxHeight)
{
    if (S.isEmpty())
        return {startFont.pointSizeF(), QString()}; // nothing to fit; the font stays as it was
    const int width = int(RoundHalfEven(MaxWidth));
    QFont font = sized(startFont, FS);
    auto wrapped = [&] { return WrapText(S, font, width); };
    auto fits = [&](const QString &t) { return TextFits(font, t, MaxWidth, MaxHeight); };
    auto size = [&] { return font.pointSizeF(); };

    QString T = wrapped();
    constexpr qreal kLargest = 3000; // no screen needs more; ends any loop
    while (fits(T) && size() < kLargest) { // coarse growth overshoots in steps of 10
        font = sized(font, size() + 10);
        T = wrapped();
    }
    if (size() > 10)
        font = sized(font, size() - 9);
    while (fits(T = wrapped()) && size() < kLargest) // fine growth to the first size that fails
        font = sized(font, size() + 1);
    font = sized(font, size() - 1);
    T = wrapped();

    if (FS > 10 && !fits(T)) {
        // Halve the range until the largest fitting whole size is found.
        int low = 1, high = int(size());
        while (high - low > 1) {
            const int mid = (low + high) / 2;
            font = sized(font, mid);
            (fits(wrapped()) ? low : high) = mid;
        }
        font = sized(font, low);
        T = wrapped();
    }
    return {size(), T};
}
