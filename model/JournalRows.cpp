#include "model/JournalRows.h"

#include "model/ContextSql.h"
#include "model/ManagedObjectContext.h"
#include "model/Sqlite.h"

#include <QCoreApplication>
#include <limits>
#include <sqlite3.h>

using namespace ContextSql;

namespace Journal::Rows {

namespace {
// A column of a row read back as the value the record holds: invalid for no value.
QVariant columnValue(SqliteStatement& st, int col, AttributeType type) {
    if (st.isNull(col))
        return {};
    switch (type) {
    case AttributeType::Text:
        return st.columnText(col);
    case AttributeType::Data:
        return st.columnBlob(col);
    case AttributeType::Int16:
        return st.columnInt(col);
    default:
        return st.columnDouble(col);
    }
}

// An empty text and no text read the same to a person (a form saves the one where the store
// held the other): no change worth listing.
bool same(const QVariant& a, const QVariant& b) {
    auto blank = [](const QVariant& v) {
        return !v.isValid() || (v.typeId() == QMetaType::QString && v.toString().isEmpty());
    };
    if (blank(a) || blank(b))
        return blank(a) && blank(b);
    return a == b;
}

} // namespace

QString tr(const char* text) {
    return QCoreApplication::translate("Journal", text);
}

const QList<Kept>& kept() {
    static const QList<Kept> all = [] {
        QList<Kept> out;
        for (const EntityDescription* e : Model::entities())
            for (bool pictures : {false, true}) {
                if (pictures && !e->hasData())
                    continue;
                Kept k{e,
                       pictures,
                       tableCode(*e, pictures),
                       pictures ? e->dataTable() : e->name,
                       {},
                       {},
                       {},
                       {}};
                k.columns = pictures ? dataColumns(*e) : mainColumns(*e);
                for (qsizetype c = 0; c < k.columns.size(); ++c)
                    k.values << QStringLiteral("v%1").arg(c);
                for (std::size_t i = 0; i < e->attributes.size(); ++i)
                    if ((e->attributes[i].type == AttributeType::Data) == pictures) {
                        k.types << e->attributes[i].type;
                        k.attributes << int(i);
                    }
                out << k;
            }
        return out;
    }();
    return all;
}

} // namespace Journal::Rows

namespace Journal {
int tableCode(const EntityDescription& e, bool pictures) {
    return e.index * 2 + (pictures ? 2 : 1);
}

QString headerSql(const QString& sql) {
    static const char* const fields[] = {"time",     "kind",     "subject", "detail",
                                         "reverses", "undoneBy", "steps",   "state"};
    QString out = sql;
    for (int i = 0; i < 8; ++i)
        out.replace(QLatin1Char('{') + QLatin1String(fields[i]) + QLatin1Char('}'),
                    QStringLiteral("v%1").arg(i));
    return out;
}
} // namespace Journal

namespace Journal::Rows {

QStringList valueColumns() {
    QStringList widest;
    for (const Kept& k : kept())
        if (k.values.size() > widest.size())
            widest = k.values;
    return widest;
}

const Kept& keptFor(const EntityDescription& e, bool pictures) {
    for (const Kept& k : kept())
        if (k.entity == &e && k.pictures == pictures)
            return k;
    Q_UNREACHABLE();
}

QString prefixed(const QStringList& columns, const QString& prefix) {
    QStringList out;
    for (const QString& c : columns)
        out << prefix + c;
    return out.join(QLatin1Char(','));
}

QString inStep(const QString& alias) {
    return QStringLiteral("%1.seq BETWEEN ?1 * %2 + 1 AND ?1 * %2 + %3")
        .arg(alias)
        .arg(kRowsPerStep)
        .arg(kRowsPerStep - 1);
}

QString headerSeq(qint64 step) {
    return QString::number(step * kRowsPerStep);
}

Error failure(SqliteDatabase& db, const QString& doing) {
    return Error::because(db.errorCode(), db.errorMessage(), doing);
}

QString stepColumns(const QString& prefix) {
    return headerSql(QStringLiteral("%1seq / %2, %1{time}, %1{kind}, %1{subject}, %1{detail}, "
                                    "coalesce(%1{reverses}, 0), coalesce(%1{steps}, 1), %1{state}")
                         .arg(prefix)
                         .arg(kRowsPerStep));
}

StepInfo stepAt(SqliteStatement& st, int first) {
    StepInfo s;
    s.pk = st.columnInt(first);
    s.time = QDateTime::fromMSecsSinceEpoch(st.columnInt(first + 1));
    s.kind = st.columnText(first + 2);
    s.subject = st.columnText(first + 3);
    s.detail = st.columnText(first + 4);
    s.reverses = st.columnInt(first + 5);
    s.count = int(st.columnInt(first + 6));
    s.state = StepInfo::State(std::clamp<qint64>(st.columnInt(first + 7), 0, 3));
    return s;
}

Result<QList<StepInfo>> stepsWhere(SqliteDatabase& db, const QString& where,
                                   const std::function<void(SqliteStatement&)>& bind) {
    SqliteStatement& st =
        db.cached(QStringLiteral("SELECT %1 FROM main.Journal WHERE tbl = 0 AND %2")
                      .arg(stepColumns(), headerSql(where)));
    if (!st.isValid())
        return failure(db, QStringLiteral("reading the journal"));
    if (bind)
        bind(st);
    QList<StepInfo> out;
    int rc;
    while ((rc = st.step()) == SQLITE_ROW)
        out << stepAt(st, 0);
    st.reset();
    if (rc != SQLITE_DONE)
        return failure(db, QStringLiteral("reading the journal"));
    return out;
}

Result<void> walkBack(SqliteDatabase& db, const std::function<bool(const StepInfo&)>& visit) {
    SqliteStatement& before = db.cached(
        QStringLiteral("SELECT seq / %1 FROM main.Journal WHERE seq < ?1 ORDER BY seq DESC LIMIT 1")
            .arg(kRowsPerStep));
    qint64 bound = std::numeric_limits<qint64>::max();
    for (;;) {
        before.bindInt(1, bound);
        const int rc = before.step();
        const qint64 step = rc == SQLITE_ROW ? before.columnInt(0) : 0;
        before.reset();
        if (rc != SQLITE_ROW && rc != SQLITE_DONE)
            return failure(db, QStringLiteral("reading the journal"));
        if (rc == SQLITE_DONE)
            return {};
        bound = step * kRowsPerStep;
        static const QString headerAt =
            QStringLiteral("SELECT %1 FROM main.Journal WHERE seq = ?1 AND tbl = 0")
                .arg(stepColumns());
        SqliteStatement& header = db.cached(headerAt);
        header.bindInt(1, bound);
        const int found = header.step();
        const std::optional<StepInfo> s =
            found == SQLITE_ROW ? std::optional<StepInfo>(stepAt(header, 0)) : std::nullopt;
        header.reset();
        if (found != SQLITE_ROW && found != SQLITE_DONE)
            return failure(db, QStringLiteral("reading the journal"));
        // Rows whose header went (none should) are passed over.
        if (s && !visit(*s))
            return {};
    }
}

Result<std::optional<StepInfo>> firstOf(Result<QList<StepInfo>> found) {
    if (!found.ok())
        return found.error();
    if (found.value().isEmpty())
        return std::optional<StepInfo>();
    return std::optional<StepInfo>(found.value().first());
}

Result<qint64> reachFloor(SqliteDatabase& db) {
    // Restores are few and found by their own index.
    const Result<QList<StepInfo>> restores = stepsWhere(
        db, QStringLiteral("{kind} = 'Restore' AND {state} <> 0 ORDER BY seq DESC LIMIT 1"));
    if (!restores.ok())
        return restores.error();
    return restores.value().isEmpty() ? qint64(0) : restores.value().first().pk;
}

Result<qint64> firstStepSince(SqliteDatabase& db, qint64 time) {
    SqliteStatement& next = db.cached(
        QStringLiteral("SELECT seq / %1 FROM main.Journal WHERE seq >= ?1 ORDER BY seq LIMIT 1")
            .arg(kRowsPerStep));
    SqliteStatement& header = db.cached(
        headerSql(QStringLiteral("SELECT {time} FROM main.Journal WHERE seq = ?1 AND tbl = 0")));
    qint64 from = 0;
    for (;;) {
        next.bindInt(1, from);
        int rc = next.step();
        const qint64 step = rc == SQLITE_ROW ? next.columnInt(0) : 0;
        next.reset();
        if (rc == SQLITE_DONE)
            return qint64(0);
        if (rc != SQLITE_ROW)
            return failure(db, QStringLiteral("reading the journal"));
        header.bindInt(1, step * kRowsPerStep);
        rc = header.step();
        const bool since = rc == SQLITE_ROW && header.columnInt(0) >= time;
        header.reset();
        if (rc != SQLITE_ROW && rc != SQLITE_DONE)
            return failure(db, QStringLiteral("reading the journal"));
        if (since)
            return step;
        from = (step + 1) * kRowsPerStep;
    }
}

Error refusal(const QString& message) {
    Error e;
    e.message = message;
    return e;
}

// The row as it is now.
Result<Image> current(SqliteDatabase& db, const Kept& k, qint64 pk) {
    SqliteStatement& st = db.cached(QStringLiteral("SELECT %1 FROM main.%2 WHERE pk = ?1")
                                        .arg(k.columns.join(QLatin1Char(',')), quoted(k.table)));
    st.bindInt(1, pk);
    const int rc = st.step();
    Image out;
    if (rc == SQLITE_ROW)
        out = {true, valuesAt(st, k, 0)};
    st.reset();
    if (rc != SQLITE_ROW && rc != SQLITE_DONE)
        return failure(db, QStringLiteral("reading the journal"));
    return out;
}

Image imageAt(SqliteStatement& st, const Kept& k, int op, int first) {
    if (st.columnInt(op) == Inserted)
        return {};
    return {true, valuesAt(st, k, first)};
}

Result<Image> stateAt(SqliteDatabase& db, const Kept& k, qint64 pk, qint64 step) {
    SqliteStatement& st = db.cached(
        QStringLiteral("SELECT op, %1 FROM main.Journal WHERE seq > ?2 * %2 AND tbl = %3 AND "
                       "pk = ?1 ORDER BY seq LIMIT 1")
            .arg(k.values.join(QLatin1Char(',')))
            .arg(kRowsPerStep)
            .arg(k.code));
    st.bindInt(1, pk);
    st.bindInt(2, step);
    const int rc = st.step();
    Image out;
    if (rc == SQLITE_ROW)
        out = imageAt(st, k, 0, 1);
    st.reset();
    if (rc == SQLITE_DONE)
        return current(db, k, pk);
    if (rc != SQLITE_ROW)
        return failure(db, QStringLiteral("reading the journal"));
    return out;
}

// Writes a row back as the image holds it (none: the row goes).
bool writeImage(SqliteDatabase& db, const Kept& k, qint64 pk, const Image& image) {
    if (!image.exists) {
        SqliteStatement& st =
            db.cached(QStringLiteral("DELETE FROM main.%1 WHERE pk = ?1").arg(quoted(k.table)));
        st.bindInt(1, pk);
        const bool done = st.step() == SQLITE_DONE;
        st.reset();
        return done;
    }
    QStringList sets, marks;
    for (int c = 0; c < k.columns.size(); ++c) {
        sets << QStringLiteral("%1 = excluded.%1").arg(k.columns[c]);
        marks << QStringLiteral("?%1").arg(c + 2);
    }
    SqliteStatement& st = db.cached(
        k.pictures ? QStringLiteral("INSERT OR REPLACE INTO main.%1 (pk, %2) VALUES (?1, %3)")
                         .arg(quoted(k.table), k.columns.join(QLatin1Char(',')),
                              marks.join(QLatin1Char(',')))
                   : QStringLiteral("INSERT INTO main.%1 (pk, %2) VALUES (?1, %3) ON CONFLICT "
                                    "(pk) DO UPDATE SET %4")
                         .arg(quoted(k.table), k.columns.join(QLatin1Char(',')),
                              marks.join(QLatin1Char(',')), sets.join(QLatin1Char(','))));
    st.bindInt(1, pk);
    for (int c = 0; c < image.values.size(); ++c)
        st.bind(c + 2, image.values[c]);
    const bool done = st.step() == SQLITE_DONE;
    st.reset();
    return done;
}

QVariant valueOf(const Image& image, const Kept& k, const char* attribute) {
    const int at = k.entity->indexOf(QLatin1String(attribute));
    const qsizetype c = k.attributes.indexOf(at);
    return image.exists && c >= 0 ? image.values[c] : QVariant();
}

QString nameOf(const Image& image, const Kept& k) {
    if (k.entity == &Model::coins())
        return coinName(valueOf(image, k, "denomination").toString(),
                        valueOf(image, k, "year").toInt());
    return image.exists ? image.values.value(0).toString() : QString();
}

QList<FieldChange> differences(const Kept& k, const Image& before, const Image& after) {
    QList<FieldChange> out;
    for (int c = 0; c < k.columns.size(); ++c) {
        const QVariant b = before.exists ? before.values[c] : QVariant();
        const QVariant a = after.exists ? after.values[c] : QVariant();
        if (!same(a, b))
            out << FieldChange{k.entity->attributes[std::size_t(k.attributes[c])].name, b, a};
    }
    return out;
}

QVariantList valuesAt(SqliteStatement& st, const Kept& k, int first) {
    QVariantList out;
    for (int c = 0; c < k.columns.size(); ++c)
        out << columnValue(st, first + c, k.types[c]);
    return out;
}

} // namespace Journal::Rows
