#pragma once
// The numbers of one statistics tab as a table. The screen shows it and the CSV file is written
// from it, so the two always hold the same rows. Each cell has the text shown and the fields it
// gives the CSV file: the same value, there as plain data (names as stored, amounts with "." and
// two decimals).
#include "model/Holdings.h"
#include "model/ValueHistory.h"

#include <QAbstractTableModel>
#include <QCoreApplication>

class StatisticsTableModel : public QAbstractTableModel {
    // Its words are the statistics screen's.
    Q_DECLARE_TR_FUNCTIONS(StatisticsViewController)
public:
    // A cell's fields in the CSV file, as a QStringList (a change's coin is three: denomination,
    // country and year); a column title's likewise.
    static constexpr int CsvRole = Qt::UserRole + 1;
    // What the rows are.
    enum class Kind { Days, Countries, Denominations, Decades, Changes };

    explicit StatisticsTableModel(Kind kind, QObject* parent = nullptr);

    void setDays(QList<ValueHistory::DayTotal> days);
    // With `rest`, the last share sums the rest: shown by its name, written as "Other".
    void setShares(QList<Holdings::Share> shares, bool rest);
    void setChanges(QList<ValueHistory::Event> changes);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString shown(int row, int column) const;
    QStringList written(int row, int column) const;

    Kind kind_;
    QList<ValueHistory::DayTotal> days_;
    QList<Holdings::Share> shares_;
    bool rest_ = false;
    QList<ValueHistory::Event> changes_;
};
