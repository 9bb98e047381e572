// The 8-bit code page question sets have always been written in, and the
// rule that tells it from UTF-8 when a file is read.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace Windows1252 {

QString decode(QByteArrayView bytes);

// The bytes of text, or an empty array with *ok false when a character has
// no place in the code page.
QByteArray encode(const QString &text, bool *ok);

} // namespace Windows1252

namespace Utf8 {

// Feeds bytes through a UTF-8 validator, chunk by chunk, so that a file can
// be judged while it streams past.
class Validator {
public:
    void feed(QByteArrayView bytes);
    // All bytes so far form valid UTF-8 (a sequence cut at the end of the
    // last chunk counts as valid until finish()).
    bool valid() const { return valid_; }
    // At least one multi-byte sequence was seen.
    bool sawMultiByte() const { return multiByte_; }
    // No more bytes: a sequence left open makes the whole invalid.
    void finish() { if (pending_ > 0) valid_ = false; }

private:
    bool valid_ = true;
    bool multiByte_ = false;
    int pending_ = 0;       // continuation bytes still expected
    unsigned char lowest_ = 0x80, highest_ = 0xBF; // bounds of the next continuation byte
};

// UTF-8 with at least one multi-byte sequence, or starting with the
// byte-order mark: the rule by which a question set is read as UTF-8.
bool looksLikeUtf8(QByteArrayView wholeFile);

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

} // namespace Utf8
