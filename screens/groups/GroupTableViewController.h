#pragma once
// The three group tables: the whole collection grouped by one attribute of the coin, one row per
// distinct value with the number of coin records that carry it. One implementation; the three
// screens differ only by their Kind (GroupTableViewController.cpp holds the three side by side).
#include "model/Records.h"
#include "platform/kit/SearchController.h"
#include "platform/kit/TableView.h"
#include "platform/kit/ViewController.h"

#include <QHash>
#include <QLabel>
#include <optional>

// A group row: the value and its count.
class GroupTableViewCell : public TableViewCell {
    Q_OBJECT
public:
    explicit GroupTableViewCell(QWidget* parent = nullptr);
    QLabel* ValueLabel;
    QLabel* CountLabel;
    // The pale row background stays in both appearances, so the labels turn black in dark mode.
    void setDarkMode(bool dark);
};

class GroupTableViewController : public ViewController, public TableViewDataSource {
    Q_OBJECT
public:
    // What differs between the three group screens.
    struct Kind {
        // The texts shown are untranslated here and go through tr() where they are shown.
        const char* searchPlaceholder;
        const char* listName;           // what a screen reader calls the list
        QString countPredicate;         // counts the records of one value; names the grouping
        const char* pluralHeader;       // the header for n values, n not 0
        const char* singularHeader;     // the header for no value
        void (*select)(const QString&); // stores the tapped value where the screens read it
        // The group value the breakdown screen is handed for a tapped value.
        QString (*groupValue)(const QString& tapped);
        QString breakdownSegue;
        GroupTableViewCell* (*makeCell)();

        static const Kind& denomination();
        static const Kind& country();
        static const Kind& year();
    };

    explicit GroupTableViewController(const Kind& kind, QWidget* parent = nullptr);
    const Kind& kind() const { return kind_; }

    void viewDidLoad() override;
    // Hands the tapped value to the breakdown screen.
    void prepareForSegue(StoryboardSegue& segue, QObject* sender) override;

    // Adds the values not yet listed (the list is never emptied here) and sorts the list in
    // the direction of SortAsc.
    void load();
    void SortButtonTapped();
    void UnwindSegue();
    void updateSearchResultsForSearchController(SearchController* search);

    int numberOfRows(TableView*, int section) override;
    int heightForRow(TableView*, IndexPath) override { return 80; }
    QString titleForHeader(TableView*, int section) override;
    TableViewCell* cellForRow(TableView* table, IndexPath path) override;
    QString accessibleTextForRow(TableView*, IndexPath path) override;
    void didSelectRow(TableView* table, IndexPath path) override;
    // The number of coin records whose value is `value`; above 32767 is a fatal error.
    qint16 countOf(const QString& value);

    SearchController* searchController;
    TableView* tableView;
    ManagedObjectContext* context = nullptr;
    QList<CoinPtr> CardList;
    qint64 NumberOfCoins = 0;
    qint64 NumberOfValues = 0;
    QString ValueName;
    QStringList ValueList;
    QStringList FilteredValueList;
    qint64 ValueOfCoins = 0;
    std::optional<bool> SortAsc;
    bool DarkMode = false;

private:
    QString tapped_;
    bool searching() const { return !searchController->text().isEmpty(); }
    const QStringList& listInUse() const { return searching() ? FilteredValueList : ValueList; }
    static void sortInDirection(QStringList& list, bool ascending);
    void refreshCounts();

    const Kind& kind_;
    QString countKey_; // the attribute the count predicate names
    // Records per value, from one grouped count, kept while the store is unchanged.
    QHash<QString, qint64> counts_;
    std::optional<quint64> countsAt_;
    // The lower-case values of ValueList, made as a search starts.
    QStringList searchKeys_;
};
