#include "screens/statistics/StatisticsCharts.h"

#include "reports/Currency.h"

#include <QBarCategoryAxis>
#include <QBarSet>
#include <QChart>
#include <QChartView>
#include <QCoreApplication>
#include <QCursor>
#include <QDateTimeAxis>
#include <QHorizontalBarSeries>
#include <QLineSeries>
#include <QToolTip>
#include <QValueAxis>
#include <algorithm>
#include <cmath>

namespace StatisticsCharts {

Scale scale(double low, double high, bool whole, int most) {
    if (!(high > low))
        high = low + 1;
    // The smallest step of 1, 2, 2.5 or 5 times a power of ten that needs no more than `most`
    // steps from a multiple of it below `low` to one above `high`.
    const double rough = (high - low) / std::max(most, 1);
    double power = std::pow(10.0, std::floor(std::log10(rough)));
    Scale s;
    for (;; power *= 10) {
        bool found = false;
        for (const double factor : {1.0, 2.0, 2.5, 5.0}) {
            s.step = factor * power;
            if (whole && s.step < 1)
                continue;
            s.low = std::floor(low / s.step) * s.step;
            s.high = std::ceil(high / s.step) * s.step;
            if ((s.high - s.low) / s.step <= most + 1e-9) {
                found = true;
                break;
            }
        }
        if (found)
            break;
    }
    // 2.5 needs one decimal more than its power of ten shows.
    const double shown = s.step / std::pow(10.0, std::floor(std::log10(s.step)));
    s.decimals = std::max(0, -int(std::floor(std::log10(s.step))) + (shown == 2.5 ? 1 : 0));
    return s;
}

namespace {
// A chart's axes, the figures' one on round ticks around `low` to `high`, and the series on
// them.
void placeOnAxes(QChart* chart, QAbstractSeries* series, QAbstractAxis* other, Qt::Alignment side,
                 double low, double high, bool whole) {
    auto* figures = new QValueAxis;
    const Scale s = scale(low, high, whole);
    figures->setRange(s.low, s.high);
    figures->setTickType(QValueAxis::TicksDynamic);
    figures->setTickAnchor(0);
    figures->setTickInterval(s.step);
    figures->setLabelFormat(QStringLiteral("%.") + QString::number(s.decimals) +
                            QStringLiteral("f"));
    // Figures as the language writes them: "2,500" in English, "2.500" in German.
    chart->setLocalizeNumbers(true);
    chart->setLocale(QLocale());
    chart->addAxis(other, side);
    chart->addAxis(figures, side == Qt::AlignBottom ? Qt::AlignLeft : Qt::AlignBottom);
    series->attachAxis(other);
    series->attachAxis(figures);
}
} // namespace

QChartView* makeView(QWidget* parent) {
    auto* view = new QChartView(new QChart, parent);
    view->setRenderHint(QPainter::Antialiasing);
    view->setMinimumHeight(220);
    view->chart()->legend()->hide();
    return view;
}

QList<ValueHistory::DayTotal> inRange(const QList<ValueHistory::DayTotal>& series,
                                      std::optional<QDate> start, const QDate& today) {
    QList<ValueHistory::DayTotal> out;
    ValueHistory::DayTotal before;
    bool hadBefore = false;
    for (const ValueHistory::DayTotal& d : series) {
        if (start && d.day < *start) {
            before = d;
            hadBefore = true;
            continue;
        }
        if (out.isEmpty() && hadBefore && d.day > *start)
            out.append({*start, before.pieces, before.value});
        out.append(d);
    }
    if (out.isEmpty() && hadBefore)
        out.append({*start, before.pieces, before.value});
    if (!out.isEmpty() && out.last().day < today)
        out.append({today, out.last().pieces, out.last().value});
    return out;
}

void showSeries(QChartView* view, const QList<ValueHistory::DayTotal>& days) {
    QChart* chart = view->chart();
    chart->removeAllSeries();
    for (QAbstractAxis* axis : chart->axes())
        chart->removeAxis(axis);
    auto* line = new QLineSeries;
    line->setName(QCoreApplication::translate("StatisticsCharts", "Value"));
    QList<QPointF> points;
    points.reserve(days.size());
    double low = 0, high = 0;
    for (const ValueHistory::DayTotal& d : days) {
        points.append({double(d.day.startOfDay().toMSecsSinceEpoch()), d.value});
        low = std::min(low, d.value);
        high = std::max(high, d.value);
    }
    line->replace(points);
    line->setPointsVisible(days.size() <= 40);
    chart->addSeries(line);
    auto* time = new QDateTimeAxis;
    // Months over a long range, days over a short one: a label short enough for a phone.
    const bool long_ = !days.isEmpty() && days.first().day.daysTo(days.last().day) > 62;
    time->setFormat(long_ ? QStringLiteral("MMM yyyy") : QStringLiteral("d MMM"));
    if (!days.isEmpty())
        time->setRange(days.first().day.startOfDay(),
                       std::max(days.last().day, days.first().day.addDays(1)).startOfDay());
    placeOnAxes(chart, line, time, Qt::AlignBottom, low, high, false);
    fitTicks(view);
    QObject::connect(line, &QLineSeries::hovered, view, [](const QPointF& p, bool on) {
        if (on)
            QToolTip::showText(
                QCursor::pos(),
                QStringLiteral("%1: %2").arg(
                    QDateTime::fromMSecsSinceEpoch(qint64(p.x())).date().toString(Qt::ISODate),
                    Currency::text(p.y())));
    });
}

void showShares(QChartView* view, const QList<Holdings::Share>& shares, const QString& what,
                bool byValue) {
    QChart* chart = view->chart();
    chart->removeAllSeries();
    for (QAbstractAxis* axis : chart->axes())
        chart->removeAxis(axis);
    auto* set = new QBarSet(byValue ? QCoreApplication::translate("StatisticsCharts", "Value")
                                    : QCoreApplication::translate("StatisticsCharts", "Pieces"));
    QStringList names;
    double low = 0, high = 0;
    // Largest at the top: a horizontal bar chart draws its first category at the bottom.
    for (qsizetype i = shares.size() - 1; i >= 0; --i) {
        const Holdings::Share& s = shares[i];
        const double figure = byValue ? s.value : double(s.pieces);
        *set << figure;
        low = std::min(low, figure);
        high = std::max(high, figure);
        // Categories must differ: an empty name is shown as such.
        names << (s.name.isEmpty() ? QCoreApplication::translate("StatisticsCharts", "(none)")
                                   : s.name);
    }
    auto* series = new QHorizontalBarSeries;
    series->append(set);
    chart->addSeries(series);
    auto* categories = new QBarCategoryAxis;
    categories->append(names);
    categories->setTitleText(what);
    placeOnAxes(chart, series, categories, Qt::AlignLeft, low, high, !byValue);
    QObject::connect(set, &QBarSet::hovered, view, [shares](bool on, int index) {
        const qsizetype i = shares.size() - 1 - index;
        if (on && i >= 0 && i < shares.size())
            QToolTip::showText(QCursor::pos(),
                               QCoreApplication::translate("StatisticsCharts", "%1: %2 pieces, %3")
                                   .arg(shares[i].name)
                                   .arg(shares[i].pieces)
                                   .arg(Currency::text(shares[i].value)));
    });
}

void fitTicks(QChartView* view) {
    for (QAbstractAxis* axis : view->chart()->axes(Qt::Horizontal))
        if (auto* time = qobject_cast<QDateTimeAxis*>(axis))
            time->setTickCount(std::clamp(
                std::min(view->width() / 120, int(time->min().daysTo(time->max())) + 1), 2, 7));
}

void applyTheme(QChartView* view, bool dark) {
    QChart* chart = view->chart();
    const auto theme = dark ? QChart::ChartThemeDark : QChart::ChartThemeLight;
    if (chart->theme() != theme)
        chart->setTheme(theme);
}

} // namespace StatisticsCharts
