#include "screens/groups/BreakdownTableViewController.h"

#include "model/PrintedFetch.h"
#include "platform/core/Files.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/Views.h"
#include "reports/Currency.h"
#include "reports/GroupReport.h"
#include "screens/Application.h"
#include "screens/DetailReceiver.h"
#include "screens/ProcessState.h"
#include "screens/groups/CountryBreakdownTableViewController.h"
#include "screens/groups/DenominationBreakdownTableViewController.h"
#include "screens/groups/PrintCoinsViewController.h"
#include "screens/groups/YearBreakdownTableViewController.h"

#include <QScopeGuard>
#include <QTextDocument>
#include <QVBoxLayout>
#include <algorithm>

namespace {
QString yearText(const Coins& c) {
    return QString::number(c.year());
}
QString lowerDenomination(const Coins& c) {
    return c.denomination().toLower();
}
bool byYear(const Coins& a, const Coins& b) {
    return a.year() < b.year();
}
bool byDenomination(const Coins& a, const Coins& b) {
    return PredicateDetail::compareText(a.denomination(), b.denomination()) < 0;
}
QString mintMarkLine(const Coins& c) {
    return BreakdownTableViewController::tr("%1  Mint Mark: %2").arg(yearText(c), c.mintMark());
}
QString money(const Coins& c) {
    return Currency::text(double(c.value()));
}
QString total(const Coins& c) {
    return Currency::text(double(c.quantity()) * double(c.value()));
}
} // namespace

// The differences among the three breakdown screens, side by side.
using Kind = BreakdownTableViewController::Kind;
const Kind& Kind::denomination() {
    static const Kind k{
        .group = GroupKind::Denomination,
        .title = QT_TRANSLATE_NOOP("BreakdownTableViewController", "Denomination"),
        .searchPlaceholder =
            QT_TRANSLATE_NOOP("BreakdownTableViewController", "Sort and Search By Year"),
        .listName = QT_TRANSLATE_NOOP("BreakdownTableViewController", "Coins of the denomination"),
        .searchText = yearText,
        .searchIgnoresCase = false,
        .sortsBefore = byYear,
        .label2 = mintMarkLine,
        .label3 = [](const Coins& c) { return QString::number(c.quantity()) + "  " + c.country(); },
        .label4 =
            [](const Coins& c) {
                return BreakdownTableViewController::tr("%1 Total Value: %2")
                    .arg(money(c), total(c));
            },
        .calledFromList = "DenominationBreakdown",
        .unwind = "unwindToDenominationTableView",
        .makeCell = []() -> BreakdownTableViewCell* {
            return new DenominationBreakdownTableViewCell;
        },
        .sortedColumn = CoinListView::Year};
    return k;
}
const Kind& Kind::country() {
    static const Kind k{
        .group = GroupKind::Country,
        .title = QT_TRANSLATE_NOOP("BreakdownTableViewController", "Country"),
        .searchPlaceholder =
            QT_TRANSLATE_NOOP("BreakdownTableViewController", "Sort and Search By Denomination"),
        .listName = QT_TRANSLATE_NOOP("BreakdownTableViewController", "Coins of the country"),
        .searchText = lowerDenomination,
        .searchIgnoresCase = true,
        .sortsBefore = byDenomination,
        .label2 = mintMarkLine,
        .label3 =
            [](const Coins& c) {
                return BreakdownTableViewController::tr("%1  Country: %2")
                    .arg(QString::number(c.quantity()), c.country());
            },
        .label4 =
            [](const Coins& c) {
                return BreakdownTableViewController::tr("%1 Total Value: %2")
                    .arg(money(c), total(c));
            },
        .calledFromList = "CountryBreakdown",
        .unwind = "unwindToCountryTableView",
        .makeCell = []() -> BreakdownTableViewCell* { return new CountryBreakdownTableViewCell; },
        .sortedColumn = CoinListView::Denomination};
    return k;
}
const Kind& Kind::year() {
    static const Kind k{
        .group = GroupKind::Year,
        .title = QT_TRANSLATE_NOOP("BreakdownTableViewController", "Year"),
        .searchPlaceholder =
            QT_TRANSLATE_NOOP("BreakdownTableViewController", "Search By Denomination"),
        .listName = QT_TRANSLATE_NOOP("BreakdownTableViewController", "Coins of the year"),
        .searchText = lowerDenomination,
        .searchIgnoresCase = true,
        .sortsBefore = byYear, // every row has the same year, so the rows keep their order
        .label2 =
            [](const Coins& c) {
                return BreakdownTableViewController::tr("Year: %1  Mint Mark: %2")
                    .arg(yearText(c), c.mintMark());
            },
        .label3 =
            [](const Coins& c) {
                return BreakdownTableViewController::tr("Qty: %1").arg(c.quantity());
            },
        .label4 =
            [](const Coins& c) {
                return BreakdownTableViewController::tr("Value: %1 Total Value: %2")
                    .arg(money(c), total(c));
            },
        .calledFromList = "YearBreakdown",
        .unwind = "unwindToYearTableView",
        .makeCell = []() -> BreakdownTableViewCell* { return new YearBreakdownTableViewCell; },
        .sortedColumn = CoinListView::Denomination};
    return k;
}

BreakdownTableViewCell::BreakdownTableViewCell(QWidget* parent)
    : CoinRowCell(QStringLiteral("BreakdownCell"), 4, parent)
    , FrontImage(picture())
    , DenominationLabel(line(0))
    , Label2(line(1))
    , Label3(line(2))
    , Label4(line(3)) {}

BreakdownTableViewController::BreakdownTableViewController(const Kind& kind, QWidget* parent)
    : ViewController(parent)
    , searchController(new SearchController(this))
    , tableView(new TableView(this))
    , outputFileURL(QUrl::fromLocalFile(Files::documentsDirectory() +
                                        GroupReport::of(kind.group).pdfFileName))
    , ProgressView_(new ProgressView(this))
    , viewSwitch(new CoinListViewSwitch(this, tableView))
    , kind_(kind) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(ProgressView_);
    layout->addWidget(tableView);
    tableView->listView()->setAccessibleName(tr(kind.listName));
    ProgressView_->hide();
    tableView->registerCell(QStringLiteral("Cell"), [&kind] { return kind.makeCell(); });
    registerUnwindAction(kind.unwind, [this](StoryboardSegue& s) { unwindToTableView(s); });
    context = managedObjectContext = Application::viewContext();
}

void BreakdownTableViewController::viewDidLoad() {
    setTitle(tr(kind_.title));
    searchController->placeAbove(
        tableView, tr(kind_.searchPlaceholder),
        [this](SearchController* s) { updateSearchResultsForSearchController(s); });
    searchController->setAccessibleName(tr(kind_.searchPlaceholder));
    SortAsc = true;
    tableView->setDataSource(this);
    load();
    navigationItem().rightItems = {
        {tr("Share"), [this] { ShareCoinButtonClicked(); }, nullptr, QStringLiteral("ShareButton"),
         QStringLiteral("square.and.arrow.up")},
        {tr("Print"), [this] { PrintButtonClicked(); }, nullptr, QStringLiteral("PrintButton"),
         QStringLiteral("printer")},
        {tr("Sort"), [this] { SortButtonTapped(); }, nullptr, QStringLiteral("SortButton"),
         QStringLiteral("arrow.up.arrow.down")},
        {tr("View"),
         {},
         viewSwitch->menu(),
         QStringLiteral("ViewButton"),
         QStringLiteral("tablecells")}};
    updateNavigationBar();
    updateShareButton();
    DarkMode = Appearance::isDark();
}

void BreakdownTableViewController::load() {
    CoinList.clear();
    value = 0;
    CoinCount = 0;
    searchKeysAt_.reset();
    // A failed fetch leaves the list empty, as does a screen that was handed no group.
    if (group_) {
        group_->ascending = SortAsc.value_or(true);
        CoinList = fetchOrPrint<Coins>(*context, GroupReport::listRequest(*group_)).valueOr({});
    }
    for (const CoinPtr& coin : std::as_const(CoinList)) {
        value += coin->value() * float(coin->quantity());
        CoinCount += coin->quantity();
    }
    tableView->reloadData();
    if (!navigationItem().rightItems.isEmpty())
        updateShareButton();
}

void BreakdownTableViewController::SortButtonTapped() {
    if (!SortAsc)
        return;
    // The new order is shown from its first row, whichever way it is reloaded.
    const auto toTop = qScopeGuard([this] { tableView->scrollToTop(); });
    SortAsc = !*SortAsc;
    if (!searching()) {
        load();
        return;
    }
    const bool ascending = *SortAsc;
    filteredValue_.reset(); // summed again in the new order
    std::stable_sort(FilteredCoinList.begin(), FilteredCoinList.end(),
                     [this, ascending](const CoinPtr& a, const CoinPtr& b) {
                         return ascending ? kind_.sortsBefore(*a, *b) : kind_.sortsBefore(*b, *a);
                     });
    tableView->reloadData();
}

void BreakdownTableViewController::prepareSearch() {
    // The texts searched and each coin's value are worked out as a search starts, so that a
    // keystroke only compares; they are made again when the store has changed since.
    if (searchKeysAt_ == context->changeCount() && searchKeys_.size() == CoinList.size())
        return;
    searchKeys_.clear();
    searchKeys_.reserve(CoinList.size());
    coinValues_.clear();
    coinValues_.reserve(std::size_t(CoinList.size()));
    for (const CoinPtr& coin : std::as_const(CoinList)) {
        searchKeys_.append(kind_.searchText(*coin));
        coinValues_.push_back(coin->value() * float(coin->quantity()));
    }
    searchKeysAt_ = context->changeCount();
}

void BreakdownTableViewController::updateSearchResultsForSearchController(
    SearchController* search) {
    const QString text = search->text();
    if (search->isActive() || !text.isEmpty())
        prepareSearch();
    filteredValue_.reset();
    if (text.isEmpty()) {
        FilteredCoinList = CoinList;
        tableView->reloadData();
        updateShareButton();
        return;
    }
    const QString wanted = kind_.searchIgnoresCase ? text.toLower() : text;
    FilteredCoinList.clear();
    double sum = 0;
    for (qsizetype i = 0; i < CoinList.size(); ++i)
        if (searchKeys_[i].contains(wanted)) {
            FilteredCoinList.append(CoinList[i]);
            sum += double(coinValues_[std::size_t(i)]);
        }
    filteredValue_ = sum;
    filteredValueAt_ = context->changeCount();
    tableView->reloadData();
    updateShareButton();
}

void BreakdownTableViewController::unwindToTableView(StoryboardSegue&) {
    tableView->reloadData();
}

int BreakdownTableViewController::numberOfRows(TableView*, int) {
    return int(listInUse().size());
}

QString BreakdownTableViewController::titleForHeader(TableView*, int) {
    return tr("# of Coins: %1").arg(CoinCount);
}

QString BreakdownTableViewController::titleForFooter(TableView*, int) {
    double shown = double(value); // the running sum of the load
    if (searching()) {
        if (!filteredValue_ || filteredValueAt_ != context->changeCount()) {
            filteredValue_ = 0;
            for (const CoinPtr& coin : std::as_const(FilteredCoinList))
                *filteredValue_ += double(coin->value() * float(coin->quantity()));
            filteredValueAt_ = context->changeCount();
        }
        shown = *filteredValue_;
    }
    return tr("Valuation for displayed coins: %1").arg(Currency::text(shown));
}

TableViewCell* BreakdownTableViewController::cellForRow(TableView* table, IndexPath path) {
    auto* cell = static_cast<BreakdownTableViewCell*>(table->dequeueReusableCell("Cell"));
    cell->setDarkMode(DarkMode);
    const Coins& coin = *listInUse().at(path.row);
    cell->FrontImage->setImage(pictures_.front(coin));
    cell->DenominationLabel->setText(coin.denomination());
    cell->Label2->setText(kind_.label2(coin));
    cell->Label3->setText(kind_.label3(coin));
    cell->Label4->setText(kind_.label4(coin));
    return cell;
}

QString BreakdownTableViewController::accessibleTextForRow(TableView*, IndexPath path) {
    // The lines of the row, in the order they are drawn.
    const Coins& coin = *listInUse().at(path.row);
    return QStringList{coin.denomination(), kind_.label2(coin), kind_.label3(coin),
                       kind_.label4(coin)}
        .join(QStringLiteral(", "));
}

void BreakdownTableViewController::didSelectRow(TableView* table, IndexPath path) {
    copyIntoCurrentCoin(*listInUse().at(path.row));
    selectedRow_ = path.row;
    table->deselectRow(path);
    if (Storyboard::hasSegue(QStringLiteral("Grouped")))
        performSegue(QStringLiteral("Grouped"), this);
}

void BreakdownTableViewController::setGroup(const QString& value) {
    group_ = CoinGroup{kind_.group, value, SortAsc.value_or(true)};
}

void BreakdownTableViewController::prepareForSegue(StoryboardSegue& segue, QObject*) {
    CalledFromList = kind_.calledFromList;
    // The print screen lists the group in the direction last chosen on a group screen.
    if (auto* print = dynamic_cast<PrintCoinsViewController*>(segue.destination)) {
        if (group_)
            print->setGroup(CoinGroup{group_->kind, group_->value, SortAscending});
        return;
    }
    if (segue.identifier != QLatin1String("Grouped") || !selectedRow_)
        return;
    const QList<CoinPtr>& list = listInUse();
    if (*selectedRow_ >= list.size())
        return;
    if (auto* receiver = dynamic_cast<DetailReceiver*>(segue.destination))
        receiver->setDetailItem(list.at(*selectedRow_));
}

QList<SwipeAction> BreakdownTableViewController::trailingSwipeActions(TableView*, IndexPath) {
    return {{tr("delete"), true, [this](IndexPath p) { deleteCoinAt(p.row); }}};
}

void BreakdownTableViewController::deleteCoinAt(int row) {
    // Always the coin at that position of the whole group, even while a search shows fewer
    // rows: a swipe on a filtered row can delete another coin than the one it shows.
    if (row < 0 || row >= CoinList.size())
        return;
    const CoinPtr coin = CoinList.takeAt(row);
    context->deleteObject(coin);
    Application::delegate().saveContext();
    // The swiped row leaves the table, and a deleted coin is never shown. The count, the
    // value and the header stay as the load left them.
    filteredValue_.reset();
    if (searching()) {
        if (row < FilteredCoinList.size())
            FilteredCoinList.removeAt(row);
        FilteredCoinList.removeOne(coin);
    }
    tableView->deleteRows({{0, row}});
    updateShareButton();
}

void BreakdownTableViewController::viewDidAppear(bool) {
    viewSwitch->apply();
}

int BreakdownTableViewController::readableWidth() const {
    return viewSwitch->showsTable() ? QWIDGETSIZE_MAX : kReadableWidth;
}

QVariant BreakdownTableViewController::valueForColumn(TableView*, IndexPath path, int column,
                                                      int role) {
    const Coins& coin = *listInUse().at(path.row);
    return CoinListView::cell(coin, column, role, coin.quantity(), pictures_);
}

void BreakdownTableViewController::didClickColumnHeader(TableView*, int column) {
    if (column == kind_.sortedColumn)
        SortButtonTapped();
}

std::optional<std::pair<int, Qt::SortOrder>> BreakdownTableViewController::sortColumn(TableView*) {
    if (!SortAsc)
        return std::nullopt;
    return std::pair{int(kind_.sortedColumn), *SortAsc ? Qt::AscendingOrder : Qt::DescendingOrder};
}
