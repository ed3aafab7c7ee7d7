#include "platform/core/Error.h"

namespace {
// What a code means for the collection, by its primary part.
QString plainCause(int code) {
    switch (code & 0xff) {
    case 3: // SQLITE_PERM
        return QStringLiteral("the collection may not be opened");
    case ErrorCode::Busy:
    case ErrorCode::Locked:
        return QStringLiteral("another program holds the collection");
    case 7: // SQLITE_NOMEM
        return QStringLiteral("there is not enough memory");
    case 8: // SQLITE_READONLY
        return QStringLiteral("the collection cannot be written");
    case 10: // SQLITE_IOERR
        return QStringLiteral("the disk could not be read or written");
    case ErrorCode::Corrupt:
        return QStringLiteral("the collection is damaged");
    case 13: // SQLITE_FULL
        return QStringLiteral("the disk is full");
    case ErrorCode::CantOpen:
        return QStringLiteral("the collection cannot be opened");
    case 19: // SQLITE_CONSTRAINT
        return QStringLiteral("the collection refused the change");
    case ErrorCode::NotADb:
        return QStringLiteral("the collection file is no database");
    default:
        return QStringLiteral("the collection cannot be used");
    }
}
} // namespace

QString Error::description() const {
    return QStringLiteral("%1 (SQLite code %2)").arg(message).arg(code);
}

QString Error::stopText() const {
    // SQLite's reasons start in lower case and are said after what they mean for the
    // collection; the program's own are sentences in plain words already.
    const bool ours = !message.isEmpty() && message.front().isUpper();
    QString text = ours                ? message
                   : message.isEmpty() ? plainCause(code)
                                       : QStringLiteral("%1 (%2)").arg(plainCause(code), message);
    if (!file.isEmpty())
        text += QStringLiteral(", store %1").arg(file);
    return text + QStringLiteral(", SQLite code %1").arg(code);
}
