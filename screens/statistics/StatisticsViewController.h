#pragma once
// What the collection is worth over time and where its value lies: the value of the collection
// day by day over a chosen range, value and pieces by country and by denomination (the ten
// largest and the rest), pieces by decade, and the coins whose value changed the most. Every
// chart has its numbers in a table beside it, and can be saved as a picture or its data as CSV.
#include "model/Holdings.h"
#include "model/Records.h"
#include "model/ValueHistory.h"
#include "platform/kit/ViewController.h"

#include <QDate>
#include <optional>

class QBoxLayout;
class QChartView;
class QLabel;
class QPushButton;
class QTabWidget;
class QTableView;
class ManagedObjectContext;
class StatisticsTableModel;

class StatisticsViewController : public ViewController {
    Q_OBJECT
public:
    enum class Range { Month, Year, All };
    // The tabs, in order.
    enum Page { ValuePage, CountryPage, DenominationPage, DecadePage, ChangesPage, PageCount };

    explicit StatisticsViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void prepareForSegue(StoryboardSegue& segue, QObject* sender) override;

    void setRange(Range range);
    // "Save Chart…": the chart of the tab shown, as PNG.
    void SaveChart();
    // "Export Data…": the numbers of the tab shown, as CSV.
    void ExportData();
    // Opens the coin of a row of the largest changes.
    void OpenChange(int row);
    // The numbers of a tab as CSV, written from the table the tab shows (read first when it
    // has not been yet): a header line, then its rows.
    QByteArray csv(Page page);

    QPushButton *MonthButton, *YearButton, *AllButton;
    QLabel* SummaryLabel;
    QTabWidget* ChartTabs;
    QChartView* Charts[PageCount] = {}; // none for the largest changes
    QTableView* Tables[PageCount] = {};
    // What each table shows, and each CSV file holds.
    StatisticsTableModel* Models[PageCount] = {};
    Range range = Range::All;
    bool DarkMode = false;
    ManagedObjectContext* managedObjectContext = nullptr;
    // What the tables show, as read from the store.
    QList<ValueHistory::DayTotal> Series;
    QList<Holdings::Share> Countries, Denominations, Decades;
    QList<ValueHistory::Event> Changes;

protected:
    // Chart and table side by side in a wide window.
    int readableWidth() const override { return 1240; }
    void resizeEvent(QResizeEvent* event) override;

private:
    // Reads what the tab shows, once per appearance (and after a change of range).
    void load(int page);
    void fillValue();
    void fillShares(Page page, const QList<Holdings::Share>& shares, const QString& what);
    void fillDecades();
    void fillChanges();
    void applyTheme();
    std::optional<QDate> rangeStart() const;
    QWidget* page(Page page, const QString& title);
    QList<QBoxLayout*> pageLayouts_;
    bool loaded_[PageCount] = {};
    CoinPtr opened_; // handed to the history screen
};
