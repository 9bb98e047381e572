#include "GetPrivateProfileString.h"

#include "Windows1252.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#include <cstring>

namespace {

// Lines longer than this keep only their start (plus their last non-blank
// byte, for the quotation-mark rule): no value can use more.
constexpr qsizetype kMaxLineBytes = 64 * 1024;
constexpr qsizetype kChunkBytes = 64 * 1024;

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

QByteArrayView trimmed(QByteArrayView v)
{
    qsizetype b = 0, e = v.size();
    while (b < e && isBlank(v[b]))
        ++b;
    while (e > b && isBlank(v[e - 1]))
        --e;
    return v.sliced(b, e - b);
}

bool isAscii(QByteArrayView v)
{
    for (char c : v) {
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    }
    return true;
}

// A byte-order mark inside a name or a value is a character of it: only the
// one at the very start of the file tells the file's encoding.
QString decodeUtf8(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

// Names are compared as text; a name with other than ASCII letters is read
// as UTF-8 when it is valid UTF-8, else in the 8-bit code page.
bool sameName(QByteArrayView bytes, const QString &name)
{
    if (isAscii(bytes))
        return QLatin1StringView(bytes.data(), bytes.size()).compare(name, Qt::CaseInsensitive) == 0;
    Utf8::Validator v;
    v.feed(bytes);
    v.finish();
    const QString decoded = v.valid() ? decodeUtf8(bytes) : Windows1252::decode(bytes);
    return decoded.compare(name, Qt::CaseInsensitive) == 0;
}

struct Line {
    QByteArrayView bytes;  // at most kMaxLineBytes, without the line feed
    char lastNonBlank = 0; // of the whole line, also past the cut
    bool cut = false;
};

// Reads a file line by line in chunks. A line inside one chunk is handed
// out as a view of it; only a line across chunks is copied.
class LineReader {
public:
    explicit LineReader(const QString &fileName) : file_(fileName) {}

    bool open() { return file_.open(QIODevice::ReadOnly); }

    // The line stays valid until the next call.
    bool next(Line &line)
    {
        spill_.clear();
        line = Line{};
        bool any = false;
        for (;;) {
            if (pos_ >= chunk_.size() && !refill()) {
                line.bytes = spill_;
                return any;
            }
            any = true;
            const char *start = chunk_.constData() + pos_;
            const qsizetype left = chunk_.size() - pos_;
            const void *nl = std::memchr(start, '\n', size_t(left));
            const qsizetype n = nl ? static_cast<const char *>(nl) - start : left;
            pos_ += n + (nl ? 1 : 0);
            if (nl && spill_.isEmpty() && !line.cut) {
                line.bytes = QByteArrayView(start, n);
                line.lastNonBlank = lastNonBlankOf(line.bytes, 0);
                return true;
            }
            append(line, QByteArrayView(start, n));
            if (nl) {
                line.bytes = spill_;
                return true;
            }
        }
    }

    bool startsWithByteOrderMark() const { return bom_; }

private:
    static char lastNonBlankOf(QByteArrayView part, char otherwise)
    {
        for (qsizetype i = part.size(); i > 0; --i) {
            if (!isBlank(part[i - 1]))
                return part[i - 1];
        }
        return otherwise;
    }

    bool refill()
    {
        chunk_ = file_.read(kChunkBytes);
        pos_ = 0;
        if (chunk_.isEmpty())
            return false;
        if (first_) {
            first_ = false;
            bom_ = chunk_.startsWith(Utf8::kByteOrderMark);
            if (bom_)
                pos_ = 3;
        }
        return true;
    }

    void append(Line &line, QByteArrayView part)
    {
        line.lastNonBlank = lastNonBlankOf(part, line.lastNonBlank);
        const qsizetype room = kMaxLineBytes - spill_.size();
        if (part.size() > room) {
            line.cut = true;
            part = part.first(room);
        }
        spill_.append(part);
    }

    QFile file_;
    QByteArray chunk_;
    QByteArray spill_;
    qsizetype pos_ = 0;
    bool first_ = true;
    bool bom_ = false;
};

// Whether the whole file reads as UTF-8: it starts with the byte-order
// mark, or is valid UTF-8 with at least one multi-byte sequence. Streams
// the file once more; needed only for values beyond ASCII.
bool fileIsUtf8(const QString &fileName, bool startsWithMark)
{
    if (startsWithMark)
        return true;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    Utf8::Validator v;
    QByteArray chunk;
    while (v.valid() && !(chunk = file.read(kChunkBytes)).isEmpty())
        v.feed(chunk);
    v.finish();
    return v.valid() && v.sawMultiByte();
}

// "[name]" -> name; anything else is not a section line.
bool sectionName(QByteArrayView line, QByteArrayView &name)
{
    const QByteArrayView t = trimmed(line);
    if (!t.startsWith('['))
        return false;
    const qsizetype close = t.indexOf(']');
    if (close < 0)
        return false;
    name = trimmed(t.sliced(1, close - 1));
    return true;
}

QString decodeValue(QByteArrayView bytes, bool utf8)
{
    return utf8 ? decodeUtf8(bytes) : Windows1252::decode(bytes);
}

QString cutToLimit(QString value)
{
    if (value.size() <= kProfileValueMax)
        return value;
    qsizetype n = kProfileValueMax;
    if (value.at(n - 1).isHighSurrogate())
        --n; // never half a character
    value.truncate(n);
    return value;
}

QString valueOf(const Line &line, qsizetype equals, const LineReader &reader, const QString &fileName)
{
    QByteArrayView value = trimmed(line.bytes.sliced(equals + 1));
    // One pair of enclosing quotation marks goes.
    if (!value.isEmpty() && (value.front() == '"' || value.front() == '\'')) {
        const char last = line.cut ? line.lastNonBlank : value.back();
        if (last == value.front() && (line.cut || value.size() >= 2))
            value = line.cut ? value.sliced(1) : value.sliced(1, value.size() - 2);
    }
    if (isAscii(value))
        return cutToLimit(decodeValue(value, false));
    return cutToLimit(decodeValue(value, fileIsUtf8(fileName, reader.startsWithByteOrderMark())));
}

} // namespace

QString GetPrivateProfileString(const QString &section, const QString &key, const QString &defaultValue,
                                const QString &fileName)
{
    const QString fallback = cutToLimit(defaultValue);
    // Only ordinary files: a pipe or a device could block or never end.
    if (!QFileInfo(fileName).isFile())
        return fallback;
    LineReader reader(fileName);
    if (!reader.open())
        return fallback;
    Line line;
    bool inSection = false;
    while (reader.next(line)) {
        QByteArrayView name;
        if (sectionName(line.bytes, name)) {
            if (inSection)
                return fallback; // the section ended without the key
            inSection = sameName(name, section);
            continue;
        }
        if (!inSection)
            continue;
        const qsizetype equals = line.bytes.indexOf('=');
        if (equals >= 0 && sameName(trimmed(line.bytes.first(equals)), key))
            return valueOf(line, equals, reader, fileName);
    }
    return fallback;
}
