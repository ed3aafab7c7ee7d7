#pragma once
// A virtualised table: it asks its data source for counts, heights, header and footer titles
// and fills one reusable cell widget per drawn row; only visible rows are ever drawn. Rows
// have trailing swipe actions (drag a row left, or right-click / long press).
#include <QHash>
#include <QListView>
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

    TableViewDataSource* source_ = nullptr;
    QVBoxLayout* layout_;
    QWidget* header_ = nullptr;
    QVBoxLayout* headerMargins_ = nullptr;
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
};
