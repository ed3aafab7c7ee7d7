#include "model/Holdings.h"

#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"

#include <sqlite3.h>

namespace Holdings {

Result<QList<Share>> by(ManagedObjectContext& context, By by) {
    // An absent text and the empty text are one group, as everywhere else in the program. The
    // decade rounds down, also before the year 0.
    static const QString countries = QStringLiteral(
        "SELECT coalesce(country, ''), sum(quantity), sum(quantity * value) FROM Coins "
        "GROUP BY 1 ORDER BY 3 DESC, 1");
    static const QString denominations = QStringLiteral(
        "SELECT coalesce(denomination, ''), sum(quantity), sum(quantity * value) FROM Coins "
        "GROUP BY 1 ORDER BY 3 DESC, 1");
    static const QString decades =
        QStringLiteral("SELECT year - ((year % 10) + 10) % 10, sum(quantity), "
                       "sum(quantity * value) FROM Coins GROUP BY 1 ORDER BY 1");
    SqliteDatabase& db = *context.database();
    SqliteStatement& st = db.cached(by == By::Country        ? countries
                                    : by == By::Denomination ? denominations
                                                             : decades);
    auto failure = [&db] {
        return Error::because(db.errorCode(), db.errorMessage(),
                              QStringLiteral("reading the collection"));
    };
    if (!st.isValid())
        return failure();
    QList<Share> out;
    int rc;
    while ((rc = st.step()) == SQLITE_ROW) {
        Share s;
        if (by == By::Decade) {
            s.decade = int(st.columnInt(0));
            s.name = decadeName(s.decade);
        } else {
            s.name = st.columnText(0);
        }
        s.pieces = st.columnInt(1);
        s.value = st.columnDouble(2);
        out.append(s);
    }
    st.reset();
    if (rc != SQLITE_DONE)
        return failure();
    return out;
}

QList<Share> largest(const QList<Share>& shares, int count, const QString& other) {
    if (shares.size() <= count + 1)
        return shares;
    QList<Share> out = shares.first(count);
    Share rest;
    rest.name = other;
    for (qsizetype i = count; i < shares.size(); ++i) {
        rest.pieces += shares[i].pieces;
        rest.value += shares[i].value;
    }
    out.append(rest);
    return out;
}

QString decadeName(int decade) {
    return QStringLiteral("%1s").arg(decade);
}

} // namespace Holdings
