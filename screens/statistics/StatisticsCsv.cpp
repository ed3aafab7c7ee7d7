#include "screens/statistics/StatisticsCsv.h"

#include "screens/statistics/StatisticsTableModel.h"

#include <QStringList>

namespace StatisticsCsv {

QString field(const QString& text) {
    const bool plain = !text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) &&
                       !text.contains(QLatin1Char('\n')) && !text.contains(QLatin1Char('\r'));
    if (plain)
        return text;
    return QLatin1Char('"') + QString(text).replace(QLatin1String("\""), QLatin1String("\"\"")) +
           QLatin1Char('"');
}

QByteArray write(const QAbstractItemModel& model) {
    const int columns = model.columnCount();
    auto line = [&](auto fieldsOf) {
        QStringList fields;
        for (int c = 0; c < columns; ++c)
            for (const QString& f : fieldsOf(c))
                fields << field(f);
        return fields.join(QLatin1Char(','));
    };
    QStringList lines;
    lines << line([&](int c) {
        return model.headerData(c, Qt::Horizontal, StatisticsTableModel::CsvRole).toStringList();
    });
    for (int r = 0; r < model.rowCount(); ++r)
        lines << line([&](int c) {
            return model.data(model.index(r, c), StatisticsTableModel::CsvRole).toStringList();
        });
    return (lines.join(QLatin1Char('\n')) + QLatin1Char('\n')).toUtf8();
}

} // namespace StatisticsCsv
