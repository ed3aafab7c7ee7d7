#include "platform/core/Error.h"

#include <QStringList>

QString Error::description() const {
    return QStringLiteral("%1 (SQLite code %2)").arg(message).arg(code);
}

QString Error::userInfoDescription() const {
    QStringList parts;
    for (auto it = userInfo.begin(); it != userInfo.end(); ++it)
        parts << QStringLiteral("%1: %2").arg(it.key(), it.value());
    return QLatin1Char('[') + parts.join(QLatin1String(", ")) + QLatin1Char(']');
}
