#include "PlayerMessages.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

std::optional<qint64> wholeNumber(const QJsonValue &v, qint64 low, qint64 high)
{
    if (!v.isDouble())
        return std::nullopt;
    const double d = v.toDouble();
    if (!std::isfinite(d) || d != std::floor(d) || d < double(low) || d > double(high))
        return std::nullopt;
    return qint64(d);
}

// A room code as typed: checked against the room's by the server, which
// answers a wrong one; only its size is the message's business.
bool isRoomCode(const QString &s)
{
    return !s.isEmpty() && s.size() <= 8;
}

bool isToken(const QString &s)
{
    return s.size() == 32 && std::all_of(s.begin(), s.end(), [](QChar c) {
               return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
           });
}

} // namespace

QString CleanPlayerText(const QString &text)
{
    // Emoji are welcome, with the joiners that make one of several; controls,
    // other invisible format characters (which could turn a name around on
    // the screen) and broken surrogates are not.
    if (!text.isValidUtf16())
        return QString();
    for (const QChar c : text) {
        const bool joiner = c.unicode() == 0x200C || c.unicode() == 0x200D;
        if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator ||
            (c.category() == QChar::Other_Format && !joiner))
            return QString();
    }
    return text.simplified();
}

std::optional<PlayerMessage> ParsePlayerMessage(const QByteArray &bytes)
{
    if (bytes.size() > kMostMessageBytes)
        return std::nullopt;
    QJsonParseError error{};
    const QJsonDocument doc = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError || !doc.isObject())
        return std::nullopt;
    const QJsonObject o = doc.object();
    const QString type = o.value(QStringLiteral("type")).toString();
    PlayerMessage m;
    if (type == QStringLiteral("join")) {
        m.type = PlayerMessage::Join;
        m.room = o.value(QStringLiteral("room")).toString().trimmed().toUpper();
        m.name = CleanPlayerText(o.value(QStringLiteral("name")).toString());
        const auto team = wholeNumber(o.value(QStringLiteral("team")), 0, 9);
        if (!isRoomCode(m.room) || !team || m.name.isEmpty() || m.name.size() > kLongestPlayerName)
            return std::nullopt;
        m.team = int(*team);
    } else if (type == QStringLiteral("hello")) {
        m.type = PlayerMessage::Hello;
        m.token = o.value(QStringLiteral("token")).toString();
        if (!isToken(m.token))
            return std::nullopt;
    } else if (type == QStringLiteral("buzz")) {
        m.type = PlayerMessage::Buzz;
    } else if (type == QStringLiteral("wager")) {
        m.type = PlayerMessage::Wager;
        const auto amount = wholeNumber(o.value(QStringLiteral("amount")), 0, 9'999'999);
        if (!amount)
            return std::nullopt;
        m.amount = *amount;
    } else if (type == QStringLiteral("response")) {
        m.type = PlayerMessage::Response;
        const QJsonValue text = o.value(QStringLiteral("text"));
        m.text = CleanPlayerText(text.toString());
        if (!text.isString() || m.text.size() > kLongestResponse || (m.text.isEmpty() && !text.toString().trimmed().isEmpty()))
            return std::nullopt;
    } else {
        return std::nullopt;
    }
    return m;
}
