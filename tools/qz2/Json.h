// Just enough JSON writing for qz2: keys stay in the order they are given.
#pragma once

#include <QString>
#include <QStringList>

namespace Json {

QString string(const QString &text);
QString array(const QStringList &items);
// pairs of key and already-written value
QString object(const QList<std::pair<QString, QString>> &members);

} // namespace Json
