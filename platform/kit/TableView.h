#pragma once
// A virtualised table: it asks its data source for counts, heights, header and footer titles
// and fills one reusable cell widget per drawn row; only visible rows are ever drawn. Rows
// have trailing swipe actions (drag a row left, or right-click / long press).
#include <QHash>
#include <QListView>
#include <QVariant>
#include <QWidget>
#include <functional>
#include <optional>

class QAbstractItemModel;
class QVBoxLayout;
class TableView;

struct IndexPath {
    int section = 0;
    int row = 0;
    bool operator==(const IndexPath&) const = default;
};

// A row layout: screens subclass it with their named labels and image views.
class TableViewCell : public QWidget {
    Q_OBJECT
public:
    explicit TableViewCell(QWidget* parent = nullptr);
    QString reuseIdentifier;
};

struct SwipeAction {
    QString title;
    bool destructive = true;
    std::function<void(IndexPath)> handler;
};

class TableViewDataSource {
public:
    virtual ~TableViewDataSource() = default;
    virtual int numberOfSections(TableView*) { return 1; }
    virtual int numberOfRows(TableView*, int section) = 0;
    virtual TableViewCell* cellForRow(TableView*, IndexPath) = 0;
    virtual int heightForRow(TableView*, IndexPath) { return 44; }
    virtual QString titleForHeader(TableView*, int /*section*/) { return {}; }
    virtual QString titleForFooter(TableView*, int /*section*/) { return {}; }
    virtual void didSelectRow(TableView*, IndexPath) {}
    virtual QList<SwipeAction> trailingSwipeActions(TableView*, IndexPath) { return {}; }
    // What a reader says for a drawn row (its cell is a picture to the accessibility tree).
    virtual QString accessibleTextForRow(TableView*, IndexPath) { return {}; }

    // The table presentation of a one-section list: one column per title, each cell's value
    // by Qt's item roles (text, picture, alignment). No titles: only cards are shown.
    virtual QStringList columnTitles(TableView*) { return {}; }
    virtual QVariant valueForColumn(TableView*, IndexPath, int /*column*/, int /*role*/) {
        return {};
    }
    // A column's starting width in pixels; 0 shares out what the others leave.
    virtual int widthForColumn(TableView*, int /*column*/) { return 0; }
    // A click on a column's title; the source sorts and reloads as it sees fit.
    virtual void didClickColumnHeader(TableView*, int /*column*/) {}
    // The column the rows are sorted by and its direction, marked on its title.
    virtual std::optional<std::pair<int, Qt::SortOrder>> sortColumn(TableView*) {
        return std::nullopt;
    }
};

class TableView : public QWidget {
    Q_OBJECT
public:
    explicit TableView(QWidget* parent = nullptr);
    ~TableView() override;

    void setDataSource(TableViewDataSource* source);
    TableViewDataSource* dataSource() const { return source_; }
    void reloadData();

    // Cells are made by the registered factory and reused by identifier.
    void registerCell(const QString& identifier, std::function<TableViewCell*()> factory);
    TableViewCell* dequeueReusableCell(const QString& identifier);

    // A widget above the rows (the search bar goes here).
    void setTableHeaderView(QWidget* view);
    QWidget* tableHeaderView() const { return header_; }
    // The fixed labels of a lone section's header and footer titles (hidden when empty).
    class QLabel* sectionHeaderLabel() const {
        return sectionHeader_;
    }
    class QLabel* sectionFooterLabel() const {
        return sectionFooter_;
    }
    // Header titles drawn centred in this point size.
    void setHeaderFontSize(qreal points) { headerPoints_ = points; }
    qreal headerFontSize() const { return headerPoints_; }
    // All rows share one height (the first row's), which keeps 30,000 rows cheap.
    void setUniformRowHeights(bool uniform);

    int numberOfRows(int section) const;
    // The title drawn above/below a section, as the data source gave it at the last reload.
    QString headerTitle(int section) const;
    // How many cells the data source was asked for so far: one per row drawn.
    int cellsRequested() const { return cellsRequested_; }
    QString footerTitle(int section) const;
    void deselectRow(IndexPath, bool animated = true);
    // Shows the first row at the top, also after a reload whose layout is still pending.
    void scrollToTop();
    void selectRow(IndexPath path); // as a tap does
    // Runs a row's swipe action by its title, as a click on the revealed button does.
    bool triggerSwipeAction(IndexPath path, const QString& title);
    // Removes one row after the data source already dropped it.
    void deleteRows(const QList<IndexPath>& paths);
    QListView* listView() const { return list_; }

    // Cards (one drawn cell per row) or a table of columns with one line per row.
    enum class Presentation { Cards, Table };
    void setPresentation(Presentation presentation);
    Presentation presentation() const { return presentation_; }
    // The table presentation's view (made on first use).
    class QTableView* gridView();
    // The view that shows the rows now, the list's or the table's.
    class QAbstractItemView* rowsView() const;
    // Makes a row the current one and brings it into view without opening it.
    void setCurrentRow(IndexPath path);
    // The table's line height: 25 lines and more in a window 800 pixels high.
    static constexpr int kGridRowHeight = 26;
    // Row of the list view for a path, and back; -1 / invalid for headers and footers.
    int listRow(IndexPath path) const;
    IndexPath pathForListRow(int row, bool* isRow = nullptr) const;
    // The row whose swipe actions are showing, if any.
    int revealedRow() const { return revealed_; }
    void setRevealedRow(int row);

    // Keyboard: arrows move the current row, Enter opens it as a tap, Delete offers its swipe
    // actions, typing goes on in the search field above, and Escape there clears it.
    bool focusSearchField();
    // The row the keyboard is on, if any.
    std::optional<IndexPath> currentRow() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(class QKeyEvent* event) override;

    // The width of one revealed swipe action.
    static constexpr int kActionWidth = 84;

private:
    bool handleListKey(class QKeyEvent* event);
    QObject* makeSwipeFilter();
    friend class TableDelegate;
    friend class TableModel;
    friend class SwipeFilter;
    void showActionsMenu(int listRow, QPoint globalPos);
    void showActionsMenuFor(IndexPath path, QPoint globalPos);
    friend class GridModel;
    void reloadGrid();
    IndexPath gridPath(int row) const { return {0, row}; }

    TableViewDataSource* source_ = nullptr;
    QVBoxLayout* layout_;
    QWidget* header_ = nullptr;
    class QBoxLayout* headerMargins_ = nullptr;
    class QLabel* sectionHeader_;
    class QLabel* sectionFooter_ = nullptr;
    QListView* list_;
    class TableModel* model_;
    // Gone before the rows' widgets, so that their last events never reach a half-destroyed table.
    QObject* swipeFilter_ = nullptr;
    QHash<QString, std::function<TableViewCell*()>> factories_;
    QHash<QString, TableViewCell*> reusable_;
    qreal headerPoints_ = 13;
    int revealed_ = -1;
    int cellsRequested_ = 0;
    // The current row is marked only once the keyboard moved it, not for mouse and touch.
    bool keyboardMark_ = false;
    Presentation presentation_ = Presentation::Cards;
    class QTableView* grid_ = nullptr;
    class GridModel* gridModel_ = nullptr;
    int widthsSetFor_ = -1;
    int gridScrolled_ = -1;
};
