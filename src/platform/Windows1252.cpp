#include "Windows1252.h"

#include <array>

namespace {

// 0x80..0x9F; the five bytes the code page leaves undefined map to the C1
// controls of the same value, as Windows itself maps them, so that every
// byte survives a round trip.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char16_t toUnicode(unsigned char b)
{
    return b >= 0x80 && b < 0xA0 ? kHigh[b - 0x80] : char16_t(b);
}

} // namespace

namespace Windows1252 {

QString decode(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (qsizetype i = 0; i < bytes.size(); ++i)
        out[i] = QChar(toUnicode(static_cast<unsigned char>(bytes[i])));
    return text;
}

QByteArray encode(const QString &text, bool *ok)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if ((u < 0x80) || (u >= 0xA0 && u <= 0xFF)) {
            bytes.append(char(u));
            continue;
        }
        int found = -1;
        for (int k = 0; k < 32 && found < 0; ++k)
            found = kHigh[k] == u ? k : -1;
        if (found < 0) {
            if (ok)
                *ok = false;
            return {};
        }
        bytes.append(char(0x80 + found));
    }
    if (ok)
        *ok = true;
    return bytes;
}

} // namespace Windows1252

namespace Utf8 {

void Validator::feed(QByteArrayView bytes)
{
    for (qsizetype i = 0; i < bytes.size() && valid_; ++i) {
        const auto b = static_cast<unsigned char>(bytes[i]);
        if (pending_ > 0) {
            if (b < lowest_ || b > highest_) {
                valid_ = false;
                return;
            }
            lowest_ = 0x80;
            highest_ = 0xBF;
            --pending_;
            continue;
        }
        if (b < 0x80)
            continue;
        multiByte_ = true;
        // Lead bytes and the first continuation's bounds (no overlongs,
        // no surrogates, nothing past U+10FFFF).
        if (b >= 0xC2 && b <= 0xDF) { pending_ = 1; }
        else if (b == 0xE0) { pending_ = 2; lowest_ = 0xA0; }
        else if (b >= 0xE1 && b <= 0xEC) { pending_ = 2; }
        else if (b == 0xED) { pending_ = 2; highest_ = 0x9F; }
        else if (b >= 0xEE && b <= 0xEF) { pending_ = 2; }
        else if (b == 0xF0) { pending_ = 3; lowest_ = 0x90; }
        else if (b >= 0xF1 && b <= 0xF3) { pending_ = 3; }
        else if (b == 0xF4) { pending_ = 3; highest_ = 0x8F; }
        else valid_ = false;
    }
}

bool looksLikeUtf8(QByteArrayView wholeFile)
{
    if (wholeFile.startsWith(QByteArrayView(kByteOrderMark)))
        return true;
    Validator v;
    v.feed(wholeFile);
    v.finish();
    return v.valid() && v.sawMultiByte();
}

} // namespace Utf8
