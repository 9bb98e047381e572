#include "GetPrivateProfileString.h"

#include "Windows1252.h"

#include <QFile>
#include <QStringDecoder>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr qsizetype kChunkBytes = 64 * 1024;
// The most of a name or a value that a line keeps: no value can use more
// (1999 characters take at most four bytes each), and a name longer than
// the one asked for cannot match it. Whatever lies beyond only streams past.
constexpr qsizetype kKeptBytes = 64 * 1024;

// An ordinary file open for reading, or nothing: a pipe or a device could
// block or never end. Listing ten thousand sets reads ten thousand files,
// so each read costs only the calls it needs (open, one status, the reads,
// close), without Qt's buffering and its own checks.
class OrdinaryFile {
public:
    explicit OrdinaryFile(const QString &fileName)
    {
        // Non-blocking, so that opening a pipe never waits for a writer.
        fd_ = ::open(QFile::encodeName(fileName).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
        struct stat st;
        if (fd_ >= 0 && (::fstat(fd_, &st) != 0 || !S_ISREG(st.st_mode))) {
            ::close(fd_);
            fd_ = -1;
        }
    }
    ~OrdinaryFile()
    {
        if (fd_ >= 0)
            ::close(fd_);
    }
    OrdinaryFile(const OrdinaryFile &) = delete;
    OrdinaryFile &operator=(const OrdinaryFile &) = delete;

    bool isOpen() const { return fd_ >= 0; }

    // The next chunk of at most kChunkBytes; empty at the end or on an error.
    void read(QByteArray &chunk)
    {
        chunk.resize(kChunkBytes);
        ssize_t n = -1;
        do
            n = fd_ >= 0 ? ::read(fd_, chunk.data(), size_t(kChunkBytes)) : 0;
        while (n < 0 && errno == EINTR);
        chunk.resize(n > 0 ? qsizetype(n) : 0);
    }

private:
    int fd_ = -1;
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

bool isAscii(QByteArrayView v)
{
    for (char c : v) {
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    }
    return true;
}

// Whether the whole file reads as UTF-8: it starts with the byte-order
// mark, or is valid UTF-8 with at least one multi-byte sequence.
bool fileIsUtf8(const QString &fileName, bool startsWithMark)
{
    if (startsWithMark)
        return true;
    OrdinaryFile file(fileName);
    if (!file.isOpen())
        return false;
    Utf8::Validator v;
    QByteArray chunk;
    while (v.valid()) {
        file.read(chunk);
        if (chunk.isEmpty())
            break;
        v.feed(chunk);
    }
    v.finish();
    return v.valid() && v.sawMultiByte();
}

// The file's encoding, one verdict for every name and value in it. Only
// bytes beyond ASCII need it, and only then is it judged, by streaming the
// file once more, at most once per read.
class FileEncoding {
public:
    explicit FileEncoding(const QString &fileName) : fileName_(fileName) {}

    // Known once the file's first chunk has been read.
    void setStartsWithMark(bool mark) { mark_ = mark; }

    QString decode(QByteArrayView bytes)
    {
        if (isAscii(bytes))
            return QLatin1StringView(bytes.data(), bytes.size()).toString();
        if (!judged_) {
            utf8_ = fileIsUtf8(fileName_, mark_);
            judged_ = true;
        }
        if (!utf8_)
            return Windows1252::decode(bytes);
        // A byte-order mark inside a name or a value is a character of it:
        // only the one at the very start of the file tells the encoding.
        // Bytes that are no UTF-8 (in a file marked as UTF-8) each become a
        // replacement character, at the end too: nothing is held back for
        // bytes to come.
        QStringDecoder decoder(QStringDecoder::Utf8,
                               QStringDecoder::Flag::ConvertInitialBom | QStringDecoder::Flag::Stateless);
        return decoder.decode(bytes);
    }

    bool sameName(QByteArrayView bytes, const QString &name)
    {
        if (isAscii(bytes))
            return QLatin1StringView(bytes.data(), bytes.size()).compare(name, Qt::CaseInsensitive) == 0;
        return decode(bytes).compare(name, Qt::CaseInsensitive) == 0;
    }

private:
    const QString &fileName_;
    bool mark_ = false;
    bool judged_ = false;
    bool utf8_ = false;
};

// One part of a line (a name or a value) as it streams past, without the
// blanks around it, and no more of it than a limit. Blanks are kept back
// until a later byte shows that they lie inside the part.
class Field {
public:
    void reset(qsizetype limit)
    {
        bytes_.resize(0);
        blanks_.resize(0);
        started_ = cut_ = false;
        last_ = 0;
        limit_ = limit;
    }

    void feed(QByteArrayView part)
    {
        if (!started_) {
            while (!part.isEmpty() && isBlank(part.front()))
                part = part.sliced(1);
            if (part.isEmpty())
                return;
            started_ = true;
        }
        qsizetype end = part.size();
        while (end > 0 && isBlank(part[end - 1]))
            --end;
        if (end > 0) {
            last_ = part[end - 1];
            keep(blanks_);
            blanks_.resize(0);
            keep(part.first(end));
        }
        holdBlanks(part.sliced(end));
    }

    QByteArrayView bytes() const { return bytes_; }
    // Longer than the limit: bytes() holds its start only.
    bool cut() const { return cut_; }
    // The last byte that is not a blank, also past the limit.
    char last() const { return last_; }

private:
    void keep(QByteArrayView v)
    {
        if (cut_)
            return;
        const qsizetype room = limit_ - bytes_.size();
        if (v.size() > room) {
            cut_ = true;
            v = v.first(room);
        }
        bytes_.append(v);
    }

    void holdBlanks(QByteArrayView v)
    {
        // Blanks past the room left need not be kept: a byte after them
        // would not fit either, and tells so when it comes.
        const qsizetype room = limit_ - bytes_.size() - blanks_.size();
        if (!cut_ && room > 0)
            blanks_.append(v.first(qMin(room, v.size())));
    }

    QByteArray bytes_;
    QByteArray blanks_;
    bool started_ = false;
    bool cut_ = false;
    char last_ = 0;
    qsizetype limit_ = kKeptBytes;
};

// What a line is, found while it streams past in parts: a section line
// ("[" name "]", the first "]" closing it), or a key line (key "=" value).
// Only what the read needs is gathered: section names always; keys only
// inside the wanted section; the value only of the wanted key.
class LineScan {
public:
    LineScan(const QString &section, const QString &key, FileEncoding &encoding)
        : section_(section), key_(key), encoding_(encoding)
    {
        nameLimit_ = qMax(kKeptBytes, 4 * qMax(section.size(), key.size()));
    }

    // A new line begins; each field is emptied only once the line needs it.
    void start(bool inSection)
    {
        inSection_ = inSection;
        begun_ = bracket_ = closed_ = equals_ = keyMatches_ = false;
    }

    void feed(QByteArrayView part)
    {
        if (!begun_) {
            while (!part.isEmpty() && isBlank(part.front()))
                part = part.sliced(1);
            if (part.isEmpty())
                return;
            begun_ = true;
            bracket_ = part.front() == '[';
            if (inSection_)
                keyName_.reset(nameLimit_);
            if (bracket_) {
                name_.reset(nameLimit_);
                feedName(part.sliced(1));
            }
        } else if (bracket_) {
            feedName(part);
        }
        if (!inSection_ || (equals_ && !keyMatches_))
            return;
        if (!equals_) {
            const qsizetype equals = part.indexOf('=');
            keyName_.feed(equals < 0 ? part : part.first(equals));
            if (equals < 0)
                return;
            equals_ = true;
            keyMatches_ = !keyName_.cut() && encoding_.sameName(keyName_.bytes(), key_);
            value_.reset(kKeptBytes);
            part = part.sliced(equals + 1);
        }
        if (keyMatches_)
            value_.feed(part);
    }

    bool isSectionLine() const { return bracket_ && closed_; }
    bool sectionMatches() const { return !name_.cut() && encoding_.sameName(name_.bytes(), section_); }
    bool isWantedKey() const { return inSection_ && keyMatches_ && !isSectionLine(); }
    const Field &value() const { return value_; }

private:
    void feedName(QByteArrayView part)
    {
        if (closed_)
            return;
        const qsizetype close = part.indexOf(']');
        name_.feed(close < 0 ? part : part.first(close));
        closed_ = close >= 0;
    }

    const QString &section_;
    const QString &key_;
    FileEncoding &encoding_;
    qsizetype nameLimit_ = kKeptBytes;
    bool inSection_ = false;
    bool begun_ = false, bracket_ = false, closed_ = false, equals_ = false, keyMatches_ = false;
    Field name_, keyName_, value_;
};

// Hands a file out in parts of lines, each a view of the chunk just read:
// nothing is copied and no line is ever held whole.
class LineReader {
public:
    explicit LineReader(const QString &fileName) : file_(fileName) {}

    bool open() const { return file_.isOpen(); }

    // The next part of the current line; lineEnds when the line ends with
    // it. The part stays valid until the next call.
    bool next(QByteArrayView &part, bool &lineEnds)
    {
        if (pos_ >= chunk_.size() && !refill()) {
            if (!lineOpen_)
                return false;
            lineOpen_ = false; // the last line, without a line end
            part = {};
            lineEnds = true;
            return true;
        }
        const char *start = chunk_.constData() + pos_;
        const qsizetype left = chunk_.size() - pos_;
        const void *nl = std::memchr(start, '\n', size_t(left));
        const qsizetype n = nl ? static_cast<const char *>(nl) - start : left;
        pos_ += n + (nl ? 1 : 0);
        part = QByteArrayView(start, n);
        lineEnds = nl != nullptr;
        lineOpen_ = !lineEnds;
        return true;
    }

    bool startsWithByteOrderMark() const { return bom_; }

private:
    bool refill()
    {
        file_.read(chunk_);
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

    OrdinaryFile file_;
    QByteArray chunk_;
    qsizetype pos_ = 0;
    bool first_ = true;
    bool bom_ = false;
    bool lineOpen_ = false;
};

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

QString valueOf(const Field &field, FileEncoding &encoding)
{
    QByteArrayView value = field.bytes();
    // One pair of enclosing quotation marks goes; past the limit, the
    // closing one lies beyond what was kept.
    if (!value.isEmpty() && (value.front() == '"' || value.front() == '\'') && field.last() == value.front() &&
        (field.cut() || value.size() >= 2))
        value = field.cut() ? value.sliced(1) : value.sliced(1, value.size() - 2);
    return cutToLimit(encoding.decode(value));
}

} // namespace

QString GetPrivateProfileString(const QString &section, const QString &key, const QString &defaultValue,
                                const QString &fileName)
{
    const QString fallback = cutToLimit(defaultValue);
    LineReader reader(fileName);
    if (!reader.open())
        return fallback;
    FileEncoding encoding(fileName);
    LineScan line(section, key, encoding);
    bool inSection = false;
    line.start(inSection);
    QByteArrayView part;
    bool lineEnds = false;
    while (reader.next(part, lineEnds)) {
        encoding.setStartsWithMark(reader.startsWithByteOrderMark());
        line.feed(part);
        if (!lineEnds)
            continue;
        if (line.isSectionLine()) {
            if (inSection)
                return fallback; // the section ended without the key
            inSection = line.sectionMatches();
        } else if (line.isWantedKey()) {
            return valueOf(line.value(), encoding);
        }
        line.start(inSection);
    }
    return fallback;
}
