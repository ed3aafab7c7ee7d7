#include "screens/statistics/StatisticsTableModel.h"

#include "reports/Currency.h"
#include "reports/Statistics.h"

#include <utility>

namespace {
struct Column {
    const char* title; // shown, translated
    QStringList csv;   // the file's titles for it
};

const QList<Column>& columnsOf(StatisticsTableModel::Kind kind) {
    using Kind = StatisticsTableModel::Kind;
    static const QList<Column> days = {
        {QT_TRANSLATE_NOOP("StatisticsViewController", "Date"), {QStringLiteral("date")}},
        {QT_TRANSLATE_NOOP("StatisticsViewController", "Pieces"), {QStringLiteral("pieces")}},
        {QT_TRANSLATE_NOOP("StatisticsViewController", "Value"), {QStringLiteral("total_value")}}};
    auto shares = [](const char* title, const QString& csv) {
        return QList<Column>{
            {title, {csv}},
            {QT_TRANSLATE_NOOP("StatisticsViewController", "Pieces"), {QStringLiteral("pieces")}},
            {QT_TRANSLATE_NOOP("StatisticsViewController", "Value"),
             {QStringLiteral("total_value")}}};
    };
    static const QList<Column> countries =
        shares(QT_TRANSLATE_NOOP("StatisticsViewController", "Country"), QStringLiteral("country"));
    static const QList<Column> denominations =
        shares(QT_TRANSLATE_NOOP("StatisticsViewController", "Denomination"),
               QStringLiteral("denomination"));
    static const QList<Column> decades =
        shares(QT_TRANSLATE_NOOP("StatisticsViewController", "Decade"), QStringLiteral("decade"));
    static const QList<Column> changes = {
        {QT_TRANSLATE_NOOP("StatisticsViewController", "Coin"),
         {QStringLiteral("denomination"), QStringLiteral("country"), QStringLiteral("year")}},
        {QT_TRANSLATE_NOOP("StatisticsViewController", "Before"), {QStringLiteral("total_before")}},
        {QT_TRANSLATE_NOOP("StatisticsViewController", "After"), {QStringLiteral("total_after")}},
        {QT_TRANSLATE_NOOP("StatisticsViewController", "Date"), {QStringLiteral("date")}},
        {QT_TRANSLATE_NOOP("StatisticsViewController", "Cause"), {QStringLiteral("cause")}}};
    switch (kind) {
    case Kind::Days:
        return days;
    case Kind::Countries:
        return countries;
    case Kind::Denominations:
        return denominations;
    case Kind::Decades:
        return decades;
    case Kind::Changes:
        break;
    }
    return changes;
}

QString nameOrNone(const QString& name) {
    return name.isEmpty() ? StatisticsTableModel::tr("(none)") : name;
}

QString coinName(const ValueHistory::Event& e) {
    return QStringLiteral("%1, %2 %3")
        .arg(nameOrNone(e.denomination), nameOrNone(e.country))
        .arg(e.year);
}
} // namespace

StatisticsTableModel::StatisticsTableModel(Kind kind, QObject* parent)
    : QAbstractTableModel(parent)
    , kind_(kind) {}

void StatisticsTableModel::setDays(QList<ValueHistory::DayTotal> days) {
    beginResetModel();
    days_ = std::move(days);
    endResetModel();
}

void StatisticsTableModel::setShares(QList<Holdings::Share> shares, bool rest) {
    beginResetModel();
    shares_ = std::move(shares);
    rest_ = rest && !shares_.isEmpty();
    endResetModel();
}

void StatisticsTableModel::setChanges(QList<ValueHistory::Event> changes) {
    beginResetModel();
    changes_ = std::move(changes);
    endResetModel();
}

int StatisticsTableModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid())
        return 0;
    switch (kind_) {
    case Kind::Days:
        return int(days_.size());
    case Kind::Changes:
        return int(changes_.size());
    default:
        return int(shares_.size());
    }
}

int StatisticsTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(columnsOf(kind_).size());
}

QVariant StatisticsTableModel::headerData(int section, Qt::Orientation orientation,
                                          int role) const {
    const QList<Column>& columns = columnsOf(kind_);
    if (orientation != Qt::Horizontal || section < 0 || section >= columns.size())
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::DisplayRole)
        return tr(columns[section].title);
    if (role == CsvRole)
        return columns[section].csv;
    return {};
}

QVariant StatisticsTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return shown(index.row(), index.column());
    case CsvRole:
        return written(index.row(), index.column());
    case Qt::TextAlignmentRole:
        // Numbers line up on the right; the first column names the row.
        if (index.column() > 0)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    default:
        return {};
    }
}

QString StatisticsTableModel::shown(int row, int column) const {
    switch (kind_) {
    case Kind::Days: {
        const ValueHistory::DayTotal& d = days_[row];
        const QString cells[] = {d.day.toString(Qt::ISODate), QString::number(d.pieces),
                                 Currency::text(d.value)};
        return cells[column];
    }
    case Kind::Changes: {
        const ValueHistory::Event& e = changes_[row];
        const QString cells[] = {coinName(e), Currency::text(e.totalBefore()),
                                 Currency::text(e.totalAfter()), e.day.toString(Qt::ISODate),
                                 e.cause};
        return cells[column];
    }
    default: {
        const Holdings::Share& s = shares_[row];
        // A decade always has a name; a country or denomination may be empty.
        const QString cells[] = {kind_ == Kind::Decades ? s.name : nameOrNone(s.name),
                                 QString::number(s.pieces), Currency::text(s.value)};
        return cells[column];
    }
    }
}

QStringList StatisticsTableModel::written(int row, int column) const {
    switch (kind_) {
    case Kind::Days: {
        const ValueHistory::DayTotal& d = days_[row];
        const QString cells[] = {d.day.toString(Qt::ISODate), QString::number(d.pieces),
                                 Statistics::amount(d.value)};
        return {cells[column]};
    }
    case Kind::Changes: {
        const ValueHistory::Event& e = changes_[row];
        if (column == 0)
            return {e.denomination, e.country, QString::number(e.year)};
        const QString cells[] = {{},
                                 Statistics::amount(e.totalBefore()),
                                 Statistics::amount(e.totalAfter()),
                                 e.day.toString(Qt::ISODate),
                                 e.cause};
        return {cells[column]};
    }
    default: {
        const Holdings::Share& s = shares_[row];
        // The rest keeps its English name in the file, whatever the screen calls it.
        const bool isRest = rest_ && row == shares_.size() - 1;
        const QString cells[] = {isRest ? QStringLiteral("Other") : s.name,
                                 QString::number(s.pieces), Statistics::amount(s.value)};
        return {cells[column]};
    }
    }
}
