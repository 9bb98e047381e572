// The journal's reader on any bytes: a journal left behind may be cut
// short by a dying battery, or be anything at all. It must never crash,
// leak or hang, and whatever it accepts must write back and read again
// as the same record. The input is read as it is and sealed with its own
// checksum too, so that the rules behind the checksum are reached.

#include "FuzzFiles.h"

#include "game/GameJournal.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    (void)ReadJournal(bytes);
    const std::optional<JournalRecord> record = ReadJournal(SealJournal(bytes));
    if (!record)
        return 0;
    const QByteArray written = WriteJournal(*record);
    const std::optional<JournalRecord> again = ReadJournal(written);
    if (!again)
        Fuzz::diverged(QStringLiteral("an accepted journal, written again"), QStringLiteral("read back"),
                       QStringLiteral("refused"));
    if (WriteJournal(*again) != written)
        Fuzz::diverged(QStringLiteral("an accepted journal, written again"), QString::fromUtf8(written),
                       QString::fromUtf8(WriteJournal(*again)));
    return 0;
}
