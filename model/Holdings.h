#pragma once
// What the stored coins hold, grouped: pieces and value per country, per denomination or per
// decade of their years, summed by the store in one query each. Reads see what is saved.
#include "platform/core/Error.h"

#include <QList>
#include <QString>

class ManagedObjectContext;

namespace Holdings {

enum class By { Country, Denomination, Decade };

struct Share {
    QString name;   // the country or denomination ("" where a coin has none), or the decade
    int decade = 0; // By::Decade: its first year (1960 for 1960 to 1969, -50 for -50 to -41)
    qint64 pieces = 0;
    double value = 0; // the sum of quantity × value per piece
};

// Countries and denominations largest value first (then by name); decades in order of time.
Result<QList<Share>> by(ManagedObjectContext& context, By by);
// The first `count` shares and one more, named `other`, that sums the rest (when there is one).
QList<Share> largest(const QList<Share>& shares, int count, const QString& other);
// A decade as a person reads it: "1960s", "-50s".
QString decadeName(int decade);

} // namespace Holdings
