#pragma once
// The charts of the statistics screen, drawn with Qt Charts from what the store summed.
#include "model/Holdings.h"
#include "model/ValueHistory.h"

#include <optional>

class QChartView;
class QWidget;

namespace StatisticsCharts {
// A figures axis on round ticks: from `low` to `high` in steps of 1, 2, 2.5 or 5 times a power
// of ten, at most `most` of them; `decimals` shows each tick exactly.
struct Scale {
    double low = 0, high = 1, step = 1;
    int decimals = 0;
};
// The scale for figures from `low` to `high`; `whole` ones (pieces) never step below 1.
Scale scale(double low, double high, bool whole = false, int most = 6);
// An empty chart view, antialiased.
QChartView* makeView(QWidget* parent);
// The days of the series from `start` on (all without one), opened by the state the range
// starts with and closed by the state of `today`, so that the line spans the whole range.
QList<ValueHistory::DayTotal> inRange(const QList<ValueHistory::DayTotal>& series,
                                      std::optional<QDate> start, const QDate& today);
// The value of the collection as a line over time.
void showSeries(QChartView* view, const QList<ValueHistory::DayTotal>& days);
// One bar per share: its value, or its pieces; hovering a bar tells both.
void showShares(QChartView* view, const QList<Holdings::Share>& shares, const QString& what,
                bool byValue);
// As many dates under the value line as its width has room for.
void fitTicks(QChartView* view);
void applyTheme(QChartView* view, bool dark);
} // namespace StatisticsCharts
