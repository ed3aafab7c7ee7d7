#include "model/ValueHistory.h"

#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"

#include <QTimeZone>
#include <sqlite3.h>

namespace ValueHistory {
namespace {

// A name kept to its first 256 bytes: enough to tell a coin by, and a huge imported field is
// not copied again. Taken as bytes, since SQLite would copy a whole text to read it as one.
QString shortName(const QString& column) {
    return QStringLiteral("CAST(substr(CAST(%1 AS BLOB), 1, 256) AS TEXT)").arg(column);
}

// What a trigger writes: when and why from the stamp the save set, otherwise the store's own
// clock and the cause the kind of change gives. A save's stamp carries a day never before the
// day of the event saved last (worked out once per save, not per row): with a clock set back, a
// change would otherwise be summed before the changes it follows, and a day could hold fewer
// pieces than the collection ever had.
QString trigger(const QString& name, const QString& when, const QString& row, const QString& before,
                const QString& after, const QString& cause, const QString& condition = {}) {
    return QStringLiteral(
               "CREATE TEMP TRIGGER %1 AFTER %2 ON main.Coins %3BEGIN "
               "INSERT INTO ValueEvents (time, day, coin, denomination, country, year, "
               "quantityBefore, valueBefore, quantityAfter, valueAfter, cause) "
               "SELECT coalesce(s.time, CAST(round((julianday('now') - 2440587.5) * 86400000) AS "
               "INTEGER)), coalesce(s.day, date('now', 'localtime')), %4.pk, "
               "%8, %9, %4.year, %5, %6, "
               "coalesce(s.cause, '%7') "
               "FROM (SELECT 1) LEFT JOIN ValueStamp s ON s.pk = 1; END")
        .arg(name, when, condition.isEmpty() ? QString() : condition + QLatin1Char(' '), row,
             before, after, cause, shortName(row + QStringLiteral(".denomination")),
             shortName(row + QStringLiteral(".country")));
}

Error failure(SqliteDatabase& db, const QString& doing) {
    return Error::because(db.errorCode(), db.errorMessage(), doing);
}

Event eventAt(SqliteStatement& row) {
    Event e;
    e.pk = row.columnInt(0);
    e.time = QDateTime::fromMSecsSinceEpoch(row.columnInt(1));
    e.day = QDate::fromString(row.columnText(2), Qt::ISODate);
    e.coin = row.columnInt(3);
    e.denomination = row.columnText(4);
    e.country = row.columnText(5);
    e.year = int(row.columnInt(6));
    e.quantityBefore = row.columnInt(7);
    e.valueBefore = row.columnDouble(8);
    e.quantityAfter = row.columnInt(9);
    e.valueAfter = row.columnDouble(10);
    e.cause = row.columnText(11);
    return e;
}

const QString kEventColumns =
    QStringLiteral("pk, time, day, coin, denomination, country, year, quantityBefore, "
                   "valueBefore, quantityAfter, valueAfter, cause");

Result<QList<Event>> events(ManagedObjectContext& context, const QString& sql,
                            const std::function<void(SqliteStatement&)>& bind) {
    SqliteDatabase& db = *context.database();
    SqliteStatement& st = db.cached(sql);
    if (!st.isValid())
        return failure(db, QStringLiteral("reading the value history"));
    bind(st);
    QList<Event> out;
    int rc;
    while ((rc = st.step()) == SQLITE_ROW)
        out.append(eventAt(st));
    st.reset();
    if (rc != SQLITE_DONE)
        return failure(db, QStringLiteral("reading the value history"));
    return out;
}

QString dayText(const QDate& day) {
    return day.toString(Qt::ISODate);
}

} // namespace

static std::function<QDateTime()>& clock() {
    static std::function<QDateTime()> c;
    return c;
}

QDateTime now() {
    return clock() ? clock()() : QDateTime::currentDateTime();
}

void setClock(std::function<QDateTime()> c) {
    clock() = std::move(c);
}

Cause::Cause(ManagedObjectContext& context, const QString& cause)
    : context_(context)
    , before_(context.changeCause()) {
    context_.setChangeCause(cause);
}

Cause::~Cause() {
    context_.setChangeCause(before_);
}

QStringList tables() {
    return {QStringLiteral("ValueEvents"), QStringLiteral("ValueDays"),
            QStringLiteral("ValueFold")};
}

QStringList schema() {
    return {
        QStringLiteral("CREATE TABLE ValueEvents (pk INTEGER PRIMARY KEY, time INTEGER NOT NULL, "
                       "day TEXT NOT NULL, coin INTEGER NOT NULL, denomination TEXT, country TEXT, "
                       "year INTEGER NOT NULL DEFAULT 0, quantityBefore INTEGER NOT NULL, "
                       "valueBefore REAL NOT NULL, quantityAfter INTEGER NOT NULL, "
                       "valueAfter REAL NOT NULL, cause TEXT NOT NULL)"),
        // What each day added up to, with the events up to ValueFold.folded added in: the
        // series reads a row a day, not every event, and writing an event costs no more than
        // the row itself.
        QStringLiteral("CREATE TABLE ValueDays (day TEXT PRIMARY KEY, pieces INTEGER NOT NULL, "
                       "value REAL NOT NULL) WITHOUT ROWID"),
        QStringLiteral("CREATE TABLE ValueFold (pk INTEGER PRIMARY KEY CHECK (pk = 1), "
                       "folded INTEGER NOT NULL DEFAULT 0)"),
        QStringLiteral("INSERT INTO ValueFold (pk) VALUES (1)"),
    };
}

QStringList connection() {
    const QString before = QStringLiteral("old.quantity, old.value");
    const QString after = QStringLiteral("new.quantity, new.value");
    const QString none = QStringLiteral("0, 0");
    return {
        // The stamp lives in the connection's own memory: setting it at every save writes no
        // page of the store.
        QStringLiteral("CREATE TEMP TABLE ValueStamp (pk INTEGER PRIMARY KEY, time INTEGER, day "
                       "TEXT, cause TEXT)"),
        QStringLiteral("INSERT INTO temp.ValueStamp (pk) VALUES (1)"),
        trigger(QStringLiteral("Coins_added"), QStringLiteral("INSERT"), QStringLiteral("new"),
                none, after, Added),
        trigger(QStringLiteral("Coins_changed"), QStringLiteral("UPDATE OF quantity, value"),
                QStringLiteral("new"), before, after, Edited,
                QStringLiteral("WHEN old.quantity IS NOT new.quantity OR old.value IS NOT "
                               "new.value")),
        trigger(QStringLiteral("Coins_deleted"), QStringLiteral("DELETE"), QStringLiteral("old"),
                before, none, Deleted),
    };
}

QStringList fold() {
    return {QStringLiteral(
                "INSERT INTO ValueDays (day, pieces, value) SELECT day, "
                "sum(quantityAfter - quantityBefore), sum(quantityAfter * valueAfter - "
                "quantityBefore * valueBefore) FROM ValueEvents WHERE pk > (SELECT folded FROM "
                "ValueFold WHERE pk = 1) GROUP BY day ON CONFLICT (day) DO UPDATE SET "
                "pieces = pieces + excluded.pieces, value = value + excluded.value"),
            QStringLiteral("UPDATE ValueFold SET folded = coalesce((SELECT max(pk) FROM "
                           "ValueEvents), 0) WHERE pk = 1")};
}

QString baseline(const QDateTime& now) {
    return QStringLiteral("INSERT INTO ValueEvents (time, day, coin, denomination, country, year, "
                          "quantityBefore, valueBefore, quantityAfter, valueAfter, cause) "
                          "SELECT %1, '%2', pk, %4, %5, year, 0, 0, quantity, "
                          "value, '%3' FROM Coins ORDER BY pk")
        .arg(now.toMSecsSinceEpoch())
        .arg(dayText(now.toLocalTime().date()), Baseline, shortName(QStringLiteral("denomination")),
             shortName(QStringLiteral("country")));
}

Result<QList<DayTotal>> series(ManagedObjectContext& context) {
    SqliteDatabase& db = *context.database();
    // A row a day, with the days of the events not folded in yet (written by another program,
    // or by a save that is still to fold them), summed on as it goes.
    SqliteStatement& st = db.cached(QStringLiteral(
        "SELECT day, sum(pieces), sum(value) FROM (SELECT day, pieces, value FROM ValueDays "
        "UNION ALL SELECT day, quantityAfter - quantityBefore, quantityAfter * valueAfter - "
        "quantityBefore * valueBefore FROM ValueEvents WHERE pk > (SELECT folded FROM "
        "ValueFold WHERE pk = 1)) GROUP BY day ORDER BY day"));
    if (!st.isValid())
        return failure(db, QStringLiteral("reading the value history"));
    QList<DayTotal> out;
    qint64 pieces = 0;
    // Kept wider than a double so that the last day agrees with a sum over the coins.
    long double value = 0;
    int rc;
    while ((rc = st.step()) == SQLITE_ROW) {
        pieces += st.columnInt(1);
        value += static_cast<long double>(st.columnDouble(2));
        out.append({QDate::fromString(st.columnText(0), Qt::ISODate), pieces, double(value)});
    }
    st.reset();
    if (rc != SQLITE_DONE)
        return failure(db, QStringLiteral("reading the value history"));
    return out;
}

Result<QList<Event>> eventsOf(ManagedObjectContext& context, qint64 coin) {
    return events(context,
                  QStringLiteral("SELECT %1 FROM ValueEvents WHERE coin = ?1 ORDER BY time, pk")
                      .arg(kEventColumns),
                  [coin](SqliteStatement& st) { st.bindInt(1, coin); });
}

Result<QList<Event>> largestChanges(ManagedObjectContext& context, std::optional<QDate> from,
                                    int limit) {
    return events(
        context,
        QStringLiteral("SELECT %1 FROM ValueEvents WHERE day >= ?1 AND cause <> ?2 AND "
                       "quantityAfter * valueAfter <> quantityBefore * valueBefore "
                       "ORDER BY abs(quantityAfter * valueAfter - quantityBefore * valueBefore) "
                       "DESC, time DESC, pk DESC LIMIT ?3")
            .arg(kEventColumns),
        [&](SqliteStatement& st) {
            st.bindText(1, from ? dayText(*from) : QString(QLatin1String("")));
            st.bindText(2, Baseline);
            st.bindInt(3, limit);
        });
}

Result<qint64> count(ManagedObjectContext& context) {
    SqliteDatabase& db = *context.database();
    SqliteStatement& st = db.cached(QStringLiteral("SELECT count(*) FROM ValueEvents"));
    if (!st.isValid() || st.step() != SQLITE_ROW) {
        st.reset();
        return failure(db, QStringLiteral("reading the value history"));
    }
    const qint64 n = st.columnInt(0);
    st.reset();
    return n;
}

} // namespace ValueHistory
