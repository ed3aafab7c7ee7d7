#pragma once
// The statistics screen's tables as CSV files.
#include <QByteArray>
#include <QString>

class QAbstractItemModel;

namespace StatisticsCsv {
// A field as the file holds it: quoted, its quotes doubled, when it holds a separator, a quote
// or a line break (line feed or carriage return).
QString field(const QString& text);
// A table as CSV, in UTF-8: a line of its columns' titles, then a line per row, each column
// giving the fields of its StatisticsTableModel::CsvRole; every line ends with a line feed.
QByteArray write(const QAbstractItemModel& model);
} // namespace StatisticsCsv
