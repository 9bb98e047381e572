// Any bytes as a message from a phone, to the checker that stands before
// everything the server does: a message or nothing, never a crash, a leak or
// a wait; and what it accepts keeps within the form (sizes, ranges, one line
// of text without control characters).

#include "FuzzFiles.h"

#include "players/PlayerMessages.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const std::optional<PlayerMessage> m = ParsePlayerMessage(bytes);
    if (!m)
        return 0;
    const auto broken = [](const QString &what) {
        Fuzz::diverged(QStringLiteral("an accepted message"), QStringLiteral("within its form"), what);
    };
    if (bytes.size() > kMostMessageBytes)
        broken(QStringLiteral("more than a kilobyte"));
    if (m->type == PlayerMessage::Join &&
        (m->team < 0 || m->team > 9 || m->name.isEmpty() || m->name.size() > kLongestPlayerName ||
         CleanPlayerText(m->name) != m->name || m->room.isEmpty() || m->room.size() > 8))
        broken(QStringLiteral("a join: ") + Fuzz::visible(m->name));
    if (m->type == PlayerMessage::Wager && (m->amount < 0 || m->amount > 9'999'999))
        broken(QStringLiteral("a wager of %1").arg(m->amount));
    if (m->type == PlayerMessage::Response && (m->text.size() > kLongestResponse || CleanPlayerText(m->text) != m->text))
        broken(QStringLiteral("a response: ") + Fuzz::visible(m->text));
    if (m->type == PlayerMessage::Hello && m->token.size() != 32)
        broken(QStringLiteral("a token: ") + m->token);
    return 0;
}
