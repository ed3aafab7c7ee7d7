#pragma once
// The three breakdown lists: the coins of the group value chosen on a group table, with their
// number and total value, search, sort, swipe delete and the way into the edit screen. One
// implementation; the three screens differ only by their Kind (BreakdownTableViewController.cpp
// holds the three side by side).
#include "model/Records.h"
#include "platform/kit/SearchController.h"
#include "platform/kit/TableView.h"
#include "platform/kit/ViewController.h"
#include "screens/CoinPictureCache.h"
#include "screens/CoinRowCell.h"

#include <QUrl>
#include <optional>

class BreakdownTableViewCell : public CoinRowCell {
    Q_OBJECT
public:
    explicit BreakdownTableViewCell(QWidget* parent = nullptr);
    ImageView* FrontImage;
    QLabel *DenominationLabel, *Label2, *Label3, *Label4;
};

class BreakdownTableViewController : public ViewController, public TableViewDataSource {
    Q_OBJECT
public:
    // What differs between the three breakdown screens.
    struct Kind {
        QString title;
        QString searchPlaceholder;
        QString predicate;       // the fetch's predicate format
        QString (*groupValue)(); // its argument: the value chosen on the group screen
        QString firstSortKey, secondSortKey;
        QString (*searchText)(const Coins&); // what a search looks in
        bool searchIgnoresCase;
        // The order of the filtered rows when the sort button is tapped during a search.
        bool (*sortsBefore)(const Coins&, const Coins&);
        QString (*label2)(const Coins&);
        QString (*label3)(const Coins&);
        QString (*label4)(const Coins&);
        QString calledFromList; // the origin marker the edit screen returns by
        QString unwind;         // the unwind segue back here
        QString pdfFileName;
        BreakdownTableViewCell* (*makeCell)();

        static const Kind& denomination();
        static const Kind& country();
        static const Kind& year();
    };

    explicit BreakdownTableViewController(const Kind& kind, QWidget* parent = nullptr);
    const Kind& kind() const { return kind_; }

    void viewDidLoad() override;
    void prepareForSegue(StoryboardSegue& segue, QObject* sender) override;

    // Fetches the group's coins and sums their quantity and value.
    void load();
    void SortButtonTapped();
    void updateSearchResultsForSearchController(SearchController* search);
    // Back from the edit screen: redrawn from the arrays as they are, without a fetch.
    void unwindToTableView(StoryboardSegue& segue);
    // The PDF list of the group and the print screen are not part of this build: their buttons
    // are shown disabled and these do nothing yet.
    void ShareCoinButtonClicked() {}
    void PrintButtonClicked() {}

    int numberOfRows(TableView*, int section) override;
    int heightForRow(TableView*, IndexPath) override { return 100; }
    QString titleForHeader(TableView*, int section) override;
    QString titleForFooter(TableView*, int section) override;
    TableViewCell* cellForRow(TableView* table, IndexPath path) override;
    void didSelectRow(TableView* table, IndexPath path) override;
    QList<SwipeAction> trailingSwipeActions(TableView* table, IndexPath path) override;

    SearchController* searchController;
    TableView* tableView;
    ManagedObjectContext* context = nullptr;
    ManagedObjectContext* managedObjectContext = nullptr;
    QList<CoinPtr> CoinList;
    QList<CoinPtr> FilteredCoinList;
    float value = 0;
    quint64 CoinCount = 0;
    std::optional<bool> SortAsc;
    bool DarkMode = false;
    QString CoinString;
    QUrl outputFileURL;

private:
    bool searching() const { return !searchController->text().isEmpty(); }
    const QList<CoinPtr>& listInUse() const { return searching() ? FilteredCoinList : CoinList; }
    void deleteCoinAt(int row);

    const Kind& kind_;
    std::optional<int> selectedRow_;
    CoinPictureCache pictures_;
    void prepareSearch();
    // What a search looks in and each coin's value times its quantity, one per coin of
    // CoinList, made as a search starts and kept while the store is unchanged.
    QStringList searchKeys_;
    std::vector<float> coinValues_;
    std::optional<quint64> searchKeysAt_;
    // The footer's sum over FilteredCoinList while a search shows it.
    std::optional<double> filteredValue_;
    quint64 filteredValueAt_ = 0;
};
