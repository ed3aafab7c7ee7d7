#include "screens/list/MainListTableViewController.h"
#include "model/PrintedFetch.h"

#include "platform/core/Console.h"
#include "platform/core/Fatal.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/Appearance.h"
#include "screens/Application.h"
#include "screens/CoinCount.h"
#include "screens/DetailReceiver.h"
#include "screens/ProcessState.h"
#include "screens/list/MainListSorting.h"
#include "screens/list/MainListTableViewCell.h"

#include <QPushButton>
#include <QVBoxLayout>

MainListTableViewController::MainListTableViewController(QWidget* parent)
    : ViewController(parent)
    , searchController(new SearchController(this))
    , tableView(new TableView(this))
    , sortMenu(new QMenu(QStringLiteral("..."), this))
    , viewSwitch(new CoinListViewSwitch(this, tableView)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tableView);
    tableView->registerCell(QStringLiteral("Cell"), [] { return new MainListTableViewCell; });
    registerUnwindAction(QStringLiteral("unwindToList"), [this](StoryboardSegue&) {
        fetchCoins();
        showTappedCoin();
    });
}

void MainListTableViewController::viewDidLoad() {
    setTitle(tr("Coins"));
    searchController->searchResultsUpdater = [this](SearchController* s) {
        updateSearchResults(s);
    };
    searchController->obscuresBackgroundDuringPresentation = false;
    searchController->hidesNavigationBarDuringPresentation = false;
    searchController->setPlaceholderText(tr("Search by Denomination"));
    tableView->setTableHeaderView(searchController);
    searchController->setAccessibleName(tr("Search"));
    ZoomImages.clear();
    SortAsc = true;
    tableView->setDataSource(this);
    fetchCoins();
    CalledFromList = QStringLiteral("MAINCOINLIST");
    DarkMode = Appearance::isDark();
    for (const SortChoice& choice : MainListSorting::choices()) {
        const QString title = choice.menuTitle;
        sortMenu->addAction(MainListSorting::shown(title), this,
                            [this, title] { chooseSort(title); });
    }
    navigationItem().rightItems = {{QStringLiteral("+"),
                                    [this] { performSegue(QStringLiteral("AddCoin")); }, nullptr,
                                    QStringLiteral("AddButton")},
                                   {tr("Sort by"), {}, sortMenu, QStringLiteral("SortButton")},
                                   {tr("View"),
                                    {},
                                    viewSwitch->menu(),
                                    QStringLiteral("ViewButton"),
                                    QStringLiteral("tablecells")}};
    updateNavigationBar();
    nameAddButton();
}

void MainListTableViewController::viewDidAppear(bool) {
    CalledFromList = QStringLiteral("MAINCOINLIST");
    viewSwitch->apply();
    nameAddButton();
}

void MainListTableViewController::nameAddButton() {
    // The bar shows "+"; a reader says what it does. The bar makes its buttons anew for each
    // screen it shows, so this follows every return to the list.
    if (QWidget* w = window())
        if (auto* add = w->findChild<QPushButton*>(QStringLiteral("AddButton")))
            add->setAccessibleName(tr("Add Coin"));
}

int MainListTableViewController::readableWidth() const {
    return viewSwitch->showsTable() ? QWIDGETSIZE_MAX : kReadableWidth;
}
void MainListTableViewController::viewWillDisappear(bool) {
    searchController->dismiss(false);
}
void MainListTableViewController::viewDidDisappear(bool) {
    searchController->setActive(false);
}

void MainListTableViewController::chooseSort(const QString& menuTitle) {
    for (const SortChoice& choice : MainListSorting::choices()) {
        if (choice.menuTitle != menuTitle)
            continue;
        Console::print(choice.consoleLine);
        SortName = choice.sortName;
        searchController->setPlaceholderText(MainListSorting::shown(choice.placeholder));
        fetchCoins();
        tableView->scrollToTop(); // the new order is shown from its first row
    }
}

void MainListTableViewController::fetchCoins() {
    searchIndex_.reset();
    // The coins shown so far stay alive until the new fetch has them: a re-sort then finds
    // them in memory instead of reading and building 30,000 objects again.
    const QList<CoinPtr> shown = std::exchange(CoinList, {});
    FilteredCoinList.clear();
    if (!SortAsc)
        fatalError(QStringLiteral("The list has no sort direction"),
                   "Pelvane/MainListTableViewController", __LINE__);
    // This fetch sorts in the direction held so far and leaves the opposite for the next one:
    // the first display is in store order, the first sort descends, and every later fetch
    // (another choice, or the return from the edit screen) reverses.
    const bool ascending = *SortAsc;
    SortAsc = !*SortAsc;
    managedObjectContext = Application::viewContext();
    FetchRequest request(QStringLiteral("Coins"));
    request.returnsObjectsAsFaults = false;
    if (const SortChoice* choice = MainListSorting::choiceFor(SortName.value_or(QString())))
        request.sortDescriptors = {{choice->key, ascending}};
    const QList<CoinPtr> fetched = fetchOrPrint<Coins>(*managedObjectContext, request).valueOr({});
    CoinCount = 0;
    for (const CoinPtr& coin : fetched) {
        CoinList.append(coin);
        CoinCount = CoinCount::add(CoinCount, coin->quantity(),
                                   "Pelvane/MainListTableViewController", __LINE__);
    }
    tableView->reloadData();
}

void MainListTableViewController::updateSearchResults(SearchController* search) {
    const QString text = search->text();
    // The key texts are made as the search starts, so that keystrokes only compare.
    if ((search->isActive() || !text.isEmpty()) && !searchIndex_)
        searchIndex_ = MainListSorting::searchIndex(CoinList, SortName.value_or(QString()));
    FilteredCoinList =
        text.isEmpty() ? CoinList : MainListSorting::filter(CoinList, *searchIndex_, text);
    tableView->reloadData();
}

bool MainListTableViewController::searching() const {
    return searchController->isActive() && !searchController->text().isEmpty();
}

const QList<CoinPtr>& MainListTableViewController::listInUse() const {
    return searching() ? FilteredCoinList : CoinList;
}

int MainListTableViewController::numberOfRows(TableView*, int) {
    return int(listInUse().size());
}

QString MainListTableViewController::titleForHeader(TableView*, int) {
    return tr("# Coins = %1 of %2").arg(listInUse().size()).arg(CoinList.size());
}

TableViewCell* MainListTableViewController::cellForRow(TableView* table, IndexPath path) {
    auto* cell = static_cast<MainListTableViewCell*>(table->dequeueReusableCell("Cell"));
    const Coins& coin = *listInUse().at(path.row);
    cell->setDarkMode(DarkMode);
    cell->FrontImage->setImage(pictures_.front(coin));
    cell->DenominationLabel->setText(coin.denomination());
    cell->Label2->setText(MainListSorting::yearLine(coin));
    Qty = MainListSorting::shownQuantity(coin);
    cell->Label3->setText(MainListSorting::quantityLine(coin));
    cell->Label4->setText(MainListSorting::valueLine(coin));
    cell->CountryLabel->setText(coin.country());
    return cell;
}

void MainListTableViewController::didSelectRow(TableView* table, IndexPath path) {
    const CoinPtr coin = listInUse().at(path.row);
    copyIntoCurrentCoin(*coin);
    if (!QString::number(coin->id()).isEmpty())
        SelectedCoinID = coin->id();
    table->deselectRow(path);
    tapped_ = coin;
    if (Storyboard::hasSegue(QStringLiteral("showDetails")))
        performSegue(QStringLiteral("showDetails"), this);
}

void MainListTableViewController::prepareForSegue(StoryboardSegue& segue, QObject*) {
    if (segue.identifier == QLatin1String("showDetails")) {
        CalledFromList = QStringLiteral("MAINCOINLIST");
        if (auto* receiver = dynamic_cast<DetailReceiver*>(segue.destination))
            receiver->setDetailItem(tapped_);
    }
}

QList<SwipeAction> MainListTableViewController::trailingSwipeActions(TableView*, IndexPath) {
    return {{tr("delete"), true, [this](IndexPath p) {
                 QList<CoinPtr>& list = searching() ? FilteredCoinList : CoinList;
                 const CoinPtr coin = list.at(p.row);
                 Application::viewContext()->deleteObject(coin);
                 Application::delegate().saveContext();
                 list.removeAt(p.row);
                 searchIndex_.reset();
                 tableView->deleteRows({p});
             }}};
}

QString MainListTableViewController::accessibleTextForRow(TableView*, IndexPath path) {
    const Coins& coin = *listInUse().at(path.row);
    return CoinListView::rowText(coin, MainListSorting::shownQuantity(coin));
}

QVariant MainListTableViewController::valueForColumn(TableView*, IndexPath path, int column,
                                                     int role) {
    const Coins& coin = *listInUse().at(path.row);
    return CoinListView::cell(coin, column, role, MainListSorting::shownQuantity(coin), pictures_);
}

namespace {
// The Sort menu's choice behind each sortable column.
QString sortChoiceOfColumn(int column) {
    switch (column) {
    case CoinListView::Denomination:
        return QStringLiteral("By Name");
    case CoinListView::Year:
        return QStringLiteral("By Year");
    case CoinListView::Quantity:
        return QStringLiteral("By Quantity");
    case CoinListView::Value:
        return QStringLiteral("By Value");
    case CoinListView::Country:
        return QStringLiteral("By Country");
    default:
        return {};
    }
}
} // namespace

void MainListTableViewController::didClickColumnHeader(TableView*, int column) {
    if (const QString choice = sortChoiceOfColumn(column); !choice.isEmpty())
        chooseSort(choice);
}

std::optional<std::pair<int, Qt::SortOrder>> MainListTableViewController::sortColumn(TableView*) {
    for (int column = 0; column < CoinListView::columnTitles().size(); ++column) {
        const SortChoice* choice = MainListSorting::choiceFor(SortName.value_or(QString()));
        if (!choice || !SortAsc || sortChoiceOfColumn(column) != choice->menuTitle)
            continue;
        // Each fetch leaves the opposite direction for the next one: the list shows the other.
        return std::pair{column, *SortAsc ? Qt::DescendingOrder : Qt::AscendingOrder};
    }
    return std::nullopt;
}

void MainListTableViewController::showTappedCoin() {
    if (!tapped_ || !viewSwitch->showsTable())
        return;
    if (const qsizetype row = listInUse().indexOf(tapped_); row >= 0)
        tableView->setCurrentRow({0, int(row)});
}
