#pragma once
// Figures of the whole collection, as the command line prints them.
#include "platform/core/Error.h"

#include <QString>

class ManagedObjectContext;

namespace Statistics {
struct Totals {
    qint64 coins = 0;  // coin records
    qint64 pieces = 0; // the sum of their quantities
    double value = 0;  // the sum of quantity × value, in double precision from the stored values
};
// The collection's totals, or why it could not be read.
Result<Totals> totals(ManagedObjectContext& context);
// "Coins: N", "Pieces: N" and "Total value: X" on three lines: X with two decimals, "." as the
// decimal mark, no grouping.
QString text(const Totals& totals);
// A money figure in that form.
QString amount(double value);
// The value history as CSV: the header "date,pieces,total_value", then one row per calendar day
// on which a change was saved (ISO date, the collection at the end of that day, numbers as
// text() writes them).
Result<QByteArray> valueHistoryCsv(ManagedObjectContext& context);
} // namespace Statistics
