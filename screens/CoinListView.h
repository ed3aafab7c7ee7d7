#pragma once
// The coin lists' two views: today's cards, or a table of one line per coin whose columns sort
// by a click on their title. The view chosen last is kept for every list; until one is chosen,
// narrow windows show cards and wide ones the table.
#include "model/Records.h"
#include "platform/kit/TableView.h"

#include <QObject>
#include <QPointer>
#include <optional>

class CoinPictureCache;
class QAction;
class QMenu;
class ViewController;

namespace CoinListView {
using Presentation = TableView::Presentation;
// From this window width on, the table is the view of a list nobody chose one for.
constexpr int kTableFromWidth = 900;
// The preference the chosen view is kept under ("Cards" or "Table").
inline const char* const kPreference = "CoinListView";
std::optional<Presentation> chosen();
// Keeps the choice and shows it on every coin list open now.
void choose(Presentation presentation);
Presentation forWindowWidth(int width);

// The table's columns; the first holds the coin's picture.
enum Column { Picture, Denomination, Year, MintMark, Quantity, Value, TotalValue, Country };
QStringList columnTitles();
// The columns' widths; the denomination takes what they leave.
int columnWidth(int column);
// A cell of the table for Qt's item roles. `quantity` is the quantity the list shows for the
// coin (the main list counts a 0 as one coin), which also makes the total.
// A reader hears each cell's text (a picture cell says whether there is one) and, as the
// description, the whole line: rowText().
QVariant cell(const Coins& coin, int column, int role, qint64 quantity, CoinPictureCache& pictures);
// A coin's line as a reader says it, card or table alike: "1 Dollar Morgan, 1884, mint mark
// CC, quantity 1, value 385.00, United States".
QString rowText(const Coins& coin, qint64 quantity);
} // namespace CoinListView

// Says when the lists' view may have changed: a choice made anywhere, or a list that followed
// its window's width.
class CoinListViewChanges : public QObject {
    Q_OBJECT
public:
    static CoinListViewChanges& instance();
signals:
    void changed();
};

// A list screen's view switch: the "View" menu of its bar and the presentation of its table,
// following the choice made on any list (or the window's width while there is none).
class CoinListViewSwitch : public QObject {
    Q_OBJECT
public:
    CoinListViewSwitch(ViewController* screen, TableView* table);
    // "Cards" and "Table", the one shown checked; owned by the screen.
    QMenu* menu() const { return menu_; }
    // Shows the view the list should show now; called as the screen appears.
    void apply();
    bool showsTable() const { return table_->presentation() == CoinListView::Presentation::Table; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(CoinListView::Presentation presentation);
    ViewController* screen_;
    TableView* table_;
    QMenu* menu_;
    QAction *cards_, *grid_;
    QPointer<QWidget> watchedWindow_;
};
