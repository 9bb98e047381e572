#include "ReferenceProfile.h"

#include <QStringDecoder>

namespace {

// Windows-1252 from 0x80 to 0x9F; the five bytes it leaves undefined stand
// for the C1 controls of the same number. Every other byte is Latin-1.
constexpr char16_t kCodePage80[32] = {
    u'\u20AC', u'\u0081', u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', u'\u008D', u'\u017D', u'\u008F',
    u'\u0090', u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', u'\u009D', u'\u017E', u'\u0178',
};

QString fromCodePage(QByteArrayView bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (const char b : bytes) {
        const auto u = static_cast<unsigned char>(b);
        text += QChar(u >= 0x80 && u < 0xA0 ? kCodePage80[u - 0x80] : char16_t(u));
    }
    return text;
}

// Strict UTF-8 (no overlong forms, no surrogates, nothing past U+10FFFF,
// no sequence cut short) holding at least one character beyond ASCII.
bool isUtf8WithMultiByte(QByteArrayView bytes)
{
    bool multiByte = false;
    for (qsizetype i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        if (lead < 0x80) {
            ++i;
            continue;
        }
        multiByte = true;
        int length = 0;
        char32_t code = 0, lowest = 0;
        if ((lead & 0xE0) == 0xC0) {
            length = 2, code = lead & 0x1F, lowest = 0x80;
        } else if ((lead & 0xF0) == 0xE0) {
            length = 3, code = lead & 0x0F, lowest = 0x800;
        } else if ((lead & 0xF8) == 0xF0) {
            length = 4, code = lead & 0x07, lowest = 0x10000;
        } else {
            return false;
        }
        if (i + length > bytes.size())
            return false;
        for (int k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(bytes[i + k]);
            if ((next & 0xC0) != 0x80)
                return false;
            code = (code << 6) | (next & 0x3F);
        }
        if (code < lowest || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF))
            return false;
        i += length;
    }
    return multiByte;
}

QString trimmed(QStringView text)
{
    qsizetype from = 0, to = text.size();
    while (from < to && ReferenceProfile::isBlank(text[from]))
        ++from;
    while (to > from && ReferenceProfile::isBlank(text[to - 1]))
        --to;
    return text.sliced(from, to - from).toString();
}

} // namespace

bool ReferenceProfile::isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\v' || c == u'\f';
}

QString ReferenceProfile::cut(const QString &text)
{
    if (text.size() <= 1999)
        return text;
    return text.left(text.at(1998).isHighSurrogate() ? 1998 : 1999);
}

QString ReferenceProfile::valueAsRead(const QString &raw)
{
    QString value = trimmed(raw);
    if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'') && value.back() == value.front())
        value = value.mid(1, value.size() - 2);
    return cut(value);
}

ReferenceProfile::ReferenceProfile(const QByteArray &wholeFile)
{
    const QByteArray mark("\xEF\xBB\xBF");
    const bool marked = wholeFile.startsWith(mark);
    utf8_ = marked || isUtf8WithMultiByte(wholeFile);
    const QByteArrayView body = QByteArrayView(wholeFile).sliced(marked ? mark.size() : 0);
    // A mark past the file's start is a character; bytes that are not
    // UTF-8 in a marked file become replacement characters, one each.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom | QStringDecoder::Flag::Stateless);
    const QString text = utf8_ ? QString(utf8.decode(body)) : fromCodePage(body);

    for (const QStringView line : QStringView(text).split(u'\n')) {
        const QString start = trimmed(line);
        const qsizetype close = start.indexOf(u']');
        if (start.startsWith(u'[') && close > 0) {
            lines_.push_back({Line::Section, trimmed(QStringView(start).sliced(1, close - 1)), {}});
            continue;
        }
        const qsizetype equals = line.indexOf(u'=');
        if (equals >= 0)
            lines_.push_back({Line::Key, trimmed(line.first(equals)), valueAsRead(line.sliced(equals + 1).toString())});
    }
}

QString ReferenceProfile::read(const QString &section, const QString &key, const QString &defaultValue) const
{
    // Only the first section of the name counts, and in it the first key.
    bool inSection = false;
    for (const Line &line : lines_) {
        if (line.kind == Line::Section) {
            if (inSection)
                break;
            inSection = line.name.compare(section, Qt::CaseInsensitive) == 0;
        } else if (inSection && line.name.compare(key, Qt::CaseInsensitive) == 0) {
            return line.value;
        }
    }
    return cut(defaultValue);
}

QList<std::pair<QString, QString>> ReferenceProfile::keys() const
{
    QList<std::pair<QString, QString>> keys;
    QString section;
    for (const Line &line : lines_) {
        if (line.kind == Line::Section)
            section = line.name;
        else
            keys.append({section, line.name});
    }
    return keys;
}
