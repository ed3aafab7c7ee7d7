#pragma once
// Every coin of the collection, with a sort menu, a search field whose meaning follows the sort,
// a count header, swipe-to-delete, and a tap that opens the edit screen.
#include "model/Records.h"
#include "platform/kit/SearchController.h"
#include "platform/kit/TableView.h"
#include "platform/kit/ViewController.h"
#include "screens/CoinListView.h"
#include "screens/CoinPictureCache.h"
#include "screens/list/MainListSorting.h"

#include <QMenu>
#include <optional>

class MainListTableViewController : public ViewController, public TableViewDataSource {
    Q_OBJECT
public:
    explicit MainListTableViewController(QWidget* parent = nullptr);

    void viewDidLoad() override;
    void viewDidAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;
    void viewDidDisappear(bool animated) override;
    void prepareForSegue(StoryboardSegue& segue, QObject* sender) override;

    // Refetches; every fetch flips the direction first, so the same sort twice reverses it.
    void fetchCoins();
    // One of the five sort choices, by its menu title ("By Name", ...).
    void chooseSort(const QString& menuTitle);
    void updateSearchResults(SearchController* search);

    int numberOfRows(TableView*, int section) override;
    TableViewCell* cellForRow(TableView* table, IndexPath path) override;
    int heightForRow(TableView*, IndexPath) override { return 100; }
    QString titleForHeader(TableView*, int section) override;
    void didSelectRow(TableView* table, IndexPath path) override;
    QList<SwipeAction> trailingSwipeActions(TableView* table, IndexPath path) override;
    // The table view: its columns, and a click on a title as the same choice of the Sort menu.
    QStringList columnTitles(TableView*) override { return CoinListView::columnTitles(); }
    int widthForColumn(TableView*, int column) override {
        return CoinListView::columnWidth(column);
    }
    QString accessibleTextForRow(TableView* table, IndexPath path) override;
    // Names the bar's "+" button for a reader.
    void nameAddButton();
    QVariant valueForColumn(TableView*, IndexPath path, int column, int role) override;
    void didClickColumnHeader(TableView*, int column) override;
    std::optional<std::pair<int, Qt::SortOrder>> sortColumn(TableView*) override;
    // The table takes the window's width.
    int readableWidth() const override;

    QList<CoinPtr> CoinList;
    QList<CoinPtr> FilteredCoinList;
    std::optional<QString> SortName;
    std::optional<bool> SortAsc;
    qint16 CoinCount = 0;
    qint16 Qty = 0;
    bool DarkMode = false;
    SearchController* searchController;
    TableView* tableView;
    QMenu* sortMenu;
    CoinListViewSwitch* viewSwitch;
    ManagedObjectContext* context = nullptr;
    ManagedObjectContext* managedObjectContext = nullptr;

private:
    bool searching() const;
    const QList<CoinPtr>& listInUse() const;
    // The coin opened last, shown as the current row again on the return.
    void showTappedCoin();
    CoinPtr tapped_;
    CoinPictureCache pictures_;
    // The key texts of CoinList for the current sort, made at the first keystroke after a
    // fetch.
    std::optional<MainListSorting::SearchIndex> searchIndex_;
};
