#pragma once
// The web search that asks what a coin is worth, opened from the edit and valuation screens.
#include <QString>
#include <QUrl>

namespace WebSearch {
// The search-results page for "how much is a <year> <denomination> worth". The query keeps the
// leading blank and the doubled one after "a"; blanks become "+" and then "++" becomes "+" in a
// single pass, so three blanks in a row still leave "++". Invalid when the text forms no address.
QUrl valuationQuery(const QString& year, const QString& denomination);
} // namespace WebSearch
