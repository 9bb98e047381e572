#include "Json.h"

namespace Json {

QString string(const QString &text)
{
    QString out;
    out.reserve(text.size() + 2);
    out += QLatin1Char('"');
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '"': out += QStringLiteral("\\\""); break;
        case '\\': out += QStringLiteral("\\\\"); break;
        case '\n': out += QStringLiteral("\\n"); break;
        case '\r': out += QStringLiteral("\\r"); break;
        case '\t': out += QStringLiteral("\\t"); break;
        default:
            if (c.unicode() < 0x20)
                out += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
            else
                out += c;
        }
    }
    out += QLatin1Char('"');
    return out;
}

QString array(const QStringList &items)
{
    return QLatin1Char('[') + items.join(QStringLiteral(", ")) + QLatin1Char(']');
}

QString object(const QList<std::pair<QString, QString>> &members)
{
    QStringList parts;
    for (const auto &[key, value] : members)
        parts << string(key) + QStringLiteral(": ") + value;
    return QLatin1Char('{') + parts.join(QStringLiteral(", ")) + QLatin1Char('}');
}

} // namespace Json
