#include "screens/statistics/StatisticsViewController.h"

#include "model/PrintedFetch.h"
#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/core/Files.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "reports/Currency.h"
#include "screens/Application.h"
#include "screens/DetailReceiver.h"
#include "screens/statistics/StatisticsCharts.h"
#include "screens/statistics/StatisticsCsv.h"
#include "screens/statistics/StatisticsTableModel.h"

#include <QBoxLayout>
#include <QBuffer>
#include <QButtonGroup>
#include <QChartView>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>

namespace {
// From this width on a chart and its table stand side by side.
constexpr int kWideFrom = 900;
// The largest countries and denominations shown one by one; the rest are summed as one.
constexpr int kLargest = 10;
// The largest changes listed.
constexpr int kChanges = 50;

const char* const kTabTitles[] = {QT_TRANSLATE_NOOP("StatisticsViewController", "Value"),
                                  QT_TRANSLATE_NOOP("StatisticsViewController", "Countries"),
                                  QT_TRANSLATE_NOOP("StatisticsViewController", "Denominations"),
                                  QT_TRANSLATE_NOOP("StatisticsViewController", "Decades"),
                                  QT_TRANSLATE_NOOP("StatisticsViewController", "Changes")};
// What a screen reader calls each tab's chart and table.
const char* const kChartNames[] = {
    QT_TRANSLATE_NOOP("StatisticsViewController", "Chart of the value over time"),
    QT_TRANSLATE_NOOP("StatisticsViewController", "Chart of the value by country"),
    QT_TRANSLATE_NOOP("StatisticsViewController", "Chart of the value by denomination"),
    QT_TRANSLATE_NOOP("StatisticsViewController", "Chart of the pieces by decade"), nullptr};
const char* const kTableNames[] = {
    QT_TRANSLATE_NOOP("StatisticsViewController", "Statistics: value by day"),
    QT_TRANSLATE_NOOP("StatisticsViewController", "Statistics: pieces and value by country"),
    QT_TRANSLATE_NOOP("StatisticsViewController", "Statistics: pieces and value by denomination"),
    QT_TRANSLATE_NOOP("StatisticsViewController", "Statistics: pieces and value by decade"),
    QT_TRANSLATE_NOOP("StatisticsViewController", "Statistics: largest changes")};
const char* const kFileNames[] = {"Pelvane-value", "Pelvane-countries", "Pelvane-denominations",
                                  "Pelvane-decades", "Pelvane-changes"};

} // namespace

StatisticsViewController::StatisticsViewController(QWidget* parent)
    : ViewController(parent)
    , MonthButton(new QPushButton(tr("Month"), this))
    , YearButton(new QPushButton(tr("Year"), this))
    , AllButton(new QPushButton(tr("All"), this))
    , SummaryLabel(new QLabel(this))
    , ChartTabs(new QTabWidget(this)) {
    setTitle(tr("Statistics"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 12);
    auto* top = new QHBoxLayout;
    auto* ranges = new QButtonGroup(this);
    // Named apart from their texts, which are translated.
    const std::tuple<QPushButton*, Range, const char*> buttons[] = {
        {MonthButton, Range::Month, "MonthButton"},
        {YearButton, Range::Year, "YearButton"},
        {AllButton, Range::All, "AllButton"}};
    for (const auto& [button, r, name] : buttons) {
        button->setCheckable(true);
        button->setObjectName(QString::fromLatin1(name));
        ranges->addButton(button);
        top->addWidget(button);
        connect(button, &QPushButton::clicked, this, [this, r = r] { setRange(r); });
    }
    AllButton->setChecked(true);
    SummaryLabel->setObjectName(QStringLiteral("SummaryLabel"));
    SummaryLabel->setWordWrap(true);
    top->addSpacing(12);
    top->addWidget(SummaryLabel, 1);
    layout->addLayout(top);
    ChartTabs->setObjectName(QStringLiteral("ChartTabs"));
    ChartTabs->setUsesScrollButtons(true);
    ChartTabs->setAccessibleName(tr("Statistics"));
    ChartTabs->tabBar()->setAccessibleName(tr("Statistics"));
    layout->addWidget(ChartTabs, 1);
    for (int p = 0; p < PageCount; ++p)
        ChartTabs->addTab(page(Page(p), QString::fromLatin1(kTabTitles[p])), tr(kTabTitles[p]));
    connect(ChartTabs, &QTabWidget::currentChanged, this, [this](int p) {
        load(p);
        navigationItem().rightItems[0].enabled = Charts[p] != nullptr;
        updateNavigationBar();
    });
    // Queued: the Enter that opened a row goes on to the window, and would answer at once the
    // alert a deleted coin shows.
    connect(
        Tables[ChangesPage], &QTableView::activated, this,
        [this](const QModelIndex& index) { OpenChange(index.row()); }, Qt::QueuedConnection);
    navigationItem().rightItems = {
        {tr("Save Chart…"), [this] { SaveChart(); }, nullptr, QStringLiteral("SaveChartButton")},
        {tr("Export Data…"), [this] { ExportData(); }, nullptr,
         QStringLiteral("ExportDataButton")}};
}

QWidget* StatisticsViewController::page(Page p, const QString& title) {
    auto* widget = new QWidget(ChartTabs);
    widget->setObjectName(title + QStringLiteral("Page"));
    auto* box = new QBoxLayout(QBoxLayout::TopToBottom, widget);
    box->setContentsMargins(0, 8, 0, 0);
    if (p != ChangesPage) {
        Charts[p] = StatisticsCharts::makeView(widget);
        Charts[p]->setObjectName(title + QStringLiteral("Chart"));
        // The chart takes focus through its viewport, which a reader names as the chart.
        Charts[p]->setAccessibleName(tr(kChartNames[p]));
        Charts[p]->viewport()->setAccessibleName(tr(kChartNames[p]));
        box->addWidget(Charts[p], 3);
    }
    using Kind = StatisticsTableModel::Kind;
    const Kind kinds[] = {Kind::Days, Kind::Countries, Kind::Denominations, Kind::Decades,
                          Kind::Changes};
    Models[p] = new StatisticsTableModel(kinds[p], this);
    auto* table = new QTableView(widget);
    table->setObjectName(title + QStringLiteral("Table"));
    table->setAccessibleName(tr(kTableNames[p]));
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setAccessibleName(tr("Columns"));
    table->setModel(Models[p]);
    Tables[p] = table;
    box->addWidget(table, 2);
    pageLayouts_.append(box);
    return widget;
}

void StatisticsViewController::viewDidLoad() {
    DarkMode = Appearance::isDark();
    updateNavigationBar();
}

void StatisticsViewController::viewWillAppear(bool) {
    managedObjectContext = Application::viewContext();
    // The collection may have changed while another screen was shown.
    std::fill(std::begin(loaded_), std::end(loaded_), false);
    applyTheme();
    load(ChartTabs->currentIndex());
}

void StatisticsViewController::setRange(Range r) {
    range = r;
    (r == Range::Month ? MonthButton : r == Range::Year ? YearButton : AllButton)->setChecked(true);
    loaded_[ValuePage] = loaded_[ChangesPage] = false;
    load(ChartTabs->currentIndex());
}

std::optional<QDate> StatisticsViewController::rangeStart() const {
    const QDate today = ValueHistory::now().date();
    switch (range) {
    case Range::Month:
        return today.addMonths(-1);
    case Range::Year:
        return today.addYears(-1);
    default:
        return std::nullopt;
    }
}

void StatisticsViewController::load(int p) {
    if (p < 0 || p >= PageCount || loaded_[p] || !managedObjectContext)
        return;
    loaded_[p] = true;
    auto read = [](auto result, auto& into) {
        if (!result.ok())
            Console::log(QStringLiteral("Could not read the statistics: %1")
                             .arg(result.error().description()));
        into = result.valueOr({});
    };
    // The summary and the countries come from one query.
    if (p == CountryPage || !loaded_[CountryPage]) {
        read(Holdings::by(*managedObjectContext, Holdings::By::Country), Countries);
        qint64 pieces = 0;
        double value = 0;
        for (const Holdings::Share& s : std::as_const(Countries)) {
            pieces += s.pieces;
            value += s.value;
        }
        SummaryLabel->setText(tr("%1 pieces, worth %2").arg(pieces).arg(Currency::text(value)));
    }
    switch (Page(p)) {
    case ValuePage:
        read(ValueHistory::series(*managedObjectContext), Series);
        fillValue();
        break;
    case CountryPage:
        fillShares(CountryPage, Countries, tr("Country"));
        break;
    case DenominationPage:
        read(Holdings::by(*managedObjectContext, Holdings::By::Denomination), Denominations);
        fillShares(DenominationPage, Denominations, tr("Denomination"));
        break;
    case DecadePage:
        read(Holdings::by(*managedObjectContext, Holdings::By::Decade), Decades);
        fillDecades();
        break;
    default:
        read(ValueHistory::largestChanges(*managedObjectContext, rangeStart(), kChanges), Changes);
        fillChanges();
        break;
    }
}

void StatisticsViewController::fillValue() {
    const QList<ValueHistory::DayTotal> shown =
        StatisticsCharts::inRange(Series, rangeStart(), ValueHistory::now().date());
    StatisticsCharts::showSeries(Charts[ValuePage], shown);
    Models[ValuePage]->setDays(shown);
}

void StatisticsViewController::fillShares(Page p, const QList<Holdings::Share>& all,
                                          const QString& what) {
    // The rest under a translated name on screen; the CSV file keeps "Other".
    const QList<Holdings::Share> shown = Holdings::largest(all, kLargest, tr("Other"));
    StatisticsCharts::showShares(Charts[p], shown, what, /*byValue*/ true);
    Models[p]->setShares(shown, shown.size() < all.size());
}

void StatisticsViewController::fillDecades() {
    StatisticsCharts::showShares(Charts[DecadePage], Decades, tr("Decade"),
                                 /*byValue*/ false);
    Models[DecadePage]->setShares(Decades, false);
}

void StatisticsViewController::fillChanges() {
    Models[ChangesPage]->setChanges(Changes);
    Tables[ChangesPage]->resizeColumnsToContents();
}

void StatisticsViewController::applyTheme() {
    DarkMode = Appearance::isDark();
    for (QChartView* chart : Charts)
        if (chart)
            StatisticsCharts::applyTheme(chart, DarkMode);
}

QByteArray StatisticsViewController::csv(Page p) {
    load(p);
    return StatisticsCsv::write(*Models[p]);
}

void StatisticsViewController::SaveChart() {
    const int p = ChartTabs->currentIndex();
    if (!Charts[p])
        return;
    Platform::documentPicker().save(
        this, Files::documentsDirectory() + QLatin1String(kFileNames[p]) + QStringLiteral(".png"),
        {tr("PNG pictures (*.png)")},
        [this, p](const QString& path) {
            QByteArray bytes;
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            Charts[p]->grab().save(&buffer, "PNG");
            if (const auto written = Files::writeAtomically(path, bytes); !written.ok())
                present(AlertController::okAlert(tr("Chart Not Saved"), written.error().message));
        },
        {});
}

void StatisticsViewController::ExportData() {
    const int p = ChartTabs->currentIndex();
    Platform::documentPicker().save(
        this, Files::documentsDirectory() + QLatin1String(kFileNames[p]) + QStringLiteral(".csv"),
        {tr("CSV files (*.csv)")},
        [this, p](const QString& path) {
            if (const auto written = Files::writeAtomically(path, csv(Page(p))); !written.ok())
                present(AlertController::okAlert(tr("Data Not Exported"), written.error().message));
        },
        {});
}

void StatisticsViewController::OpenChange(int row) {
    if (row < 0 || row >= Changes.size() || !managedObjectContext)
        return;
    opened_ = managedObjectContext->existing<Coins>(Changes[row].coin);
    if (!opened_) {
        present(AlertController::okAlert(
            tr("Coin Deleted"), tr("This coin has been deleted. It can be put back from Recently "
                                   "Deleted, on the Recent Changes screen.")));
        return;
    }
    // A figure to look into, not a form to edit: the coin opens read-only with its history.
    performSegue(QStringLiteral("History"));
}

void StatisticsViewController::prepareForSegue(StoryboardSegue& segue, QObject*) {
    if (auto* receiver = dynamic_cast<DetailReceiver*>(segue.destination))
        receiver->setDetailItem(opened_);
}

void StatisticsViewController::resizeEvent(QResizeEvent* event) {
    ViewController::resizeEvent(event);
    const auto direction = width() >= kWideFrom ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    for (QBoxLayout* box : std::as_const(pageLayouts_))
        if (box->direction() != direction)
            box->setDirection(direction);
    // The chart has its new width once the layout has run.
    after(0, [this] { StatisticsCharts::fitTicks(Charts[ValuePage]); });
}
