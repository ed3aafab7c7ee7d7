#pragma once
// The three breakdown lists: the coins of the group value chosen on a group table, with their
// number and total value, search, sort, swipe delete and the way into the edit screen. One
// implementation; the three screens differ only by their Kind (BreakdownTableViewController.cpp
// holds the three side by side).
#include "model/Records.h"
#include "platform/kit/SearchController.h"
#include "platform/kit/TableView.h"
#include "platform/kit/ViewController.h"
#include "reports/CoinGroup.h"
#include "screens/CoinListView.h"
#include "screens/CoinPictureCache.h"
#include "screens/CoinRowCell.h"

#include <QUrl>
#include <memory>
#include <optional>

class ProgressView;
class QTextDocument;

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
    // What differs between the three breakdown screens; what their reports hold is the
    // GroupReport of their kind of group.
    struct Kind {
        GroupKind group;
        // The texts shown are untranslated here and go through tr() where they are shown.
        const char* title;
        const char* searchPlaceholder;
        const char* listName;                // what a screen reader calls the list
        QString (*searchText)(const Coins&); // what a search looks in
        bool searchIgnoresCase;
        // The order of the filtered rows when the sort button is tapped during a search.
        bool (*sortsBefore)(const Coins&, const Coins&);
        QString (*label2)(const Coins&);
        QString (*label3)(const Coins&);
        QString (*label4)(const Coins&);
        QString calledFromList; // the origin marker the edit screen returns by
        QString unwind;         // the unwind segue back here
        BreakdownTableViewCell* (*makeCell)();
        // The table's column that the fetch and the sort button order the group by.
        CoinListView::Column sortedColumn;

        static const Kind& denomination();
        static const Kind& country();
        static const Kind& year();
    };
    // From this many coins on, the report is drawn beside the screen, with its progress shown.
    static constexpr int ReportInBackgroundFrom = 300;

    explicit BreakdownTableViewController(const Kind& kind, QWidget* parent = nullptr);
    const Kind& kind() const { return kind_; }
    // The group to list, handed over by the group screen before the list loads. Without one
    // the list stays empty.
    void setGroup(const QString& value);
    const std::optional<CoinGroup>& group() const { return group_; }

    void viewDidLoad() override;
    void prepareForSegue(StoryboardSegue& segue, QObject* sender) override;

    // Fetches the group's coins and sums their quantity and value.
    void load();
    void SortButtonTapped();
    void updateSearchResultsForSearchController(SearchController* search);
    // Back from the edit screen: redrawn from the arrays as they are, without a fetch.
    void unwindToTableView(StoryboardSegue& segue);
    // The PDF list of the coins shown, written to outputFileURL and offered to the share sheet.
    void ShareCoinButtonClicked();
    void PrintButtonClicked();
    // True while a long report is drawn.
    bool isWritingReport() const { return reportRunning_; }

    int numberOfRows(TableView*, int section) override;
    int heightForRow(TableView*, IndexPath) override { return 100; }
    QString titleForHeader(TableView*, int section) override;
    QString titleForFooter(TableView*, int section) override;
    TableViewCell* cellForRow(TableView* table, IndexPath path) override;
    QString accessibleTextForRow(TableView*, IndexPath path) override;
    void didSelectRow(TableView* table, IndexPath path) override;
    QList<SwipeAction> trailingSwipeActions(TableView* table, IndexPath path) override;
    // The table view: its columns; a click on the sorted column's title is the sort button.
    QStringList columnTitles(TableView*) override { return CoinListView::columnTitles(); }
    int widthForColumn(TableView*, int column) override {
        return CoinListView::columnWidth(column);
    }
    QVariant valueForColumn(TableView*, IndexPath path, int column, int role) override;
    void didClickColumnHeader(TableView*, int column) override;
    std::optional<std::pair<int, Qt::SortOrder>> sortColumn(TableView*) override;
    int readableWidth() const override;
    void viewDidAppear(bool animated) override;

    SearchController* searchController;
    TableView* tableView;
    ManagedObjectContext* context = nullptr;
    ManagedObjectContext* managedObjectContext = nullptr;
    QList<CoinPtr> CoinList;
    QList<CoinPtr> FilteredCoinList;
    float value = 0;
    // Signed: a quantity read from an exchange file may be negative, and the sum says so.
    qint64 CoinCount = 0;
    std::optional<bool> SortAsc;
    bool DarkMode = false;
    std::unique_ptr<QTextDocument> CoinString;
    QUrl outputFileURL;
    ProgressView* ProgressView_;
    CoinListViewSwitch* viewSwitch;

private:
    bool searching() const { return !searchController->text().isEmpty(); }
    const QList<CoinPtr>& listInUse() const { return searching() ? FilteredCoinList : CoinList; }
    void deleteCoinAt(int row);
    void updateShareButton();
    // Writes the report's bytes and offers the file, whether it was written or not.
    void writePdf(const QByteArray& bytes);
    void shareReport();
    bool reportRunning_ = false;

    const Kind& kind_;
    std::optional<CoinGroup> group_;
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
