// The table presentation: the same rows as one line each under column titles, a click on a
// title sorting as the data source says. Only the rows in view are ever asked for.
#include "platform/kit/TableView.h"

#include <QAbstractTableModel>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>

class GridModel : public QAbstractTableModel {
public:
    explicit GridModel(TableView* table)
        : QAbstractTableModel(table)
        , table_(table) {}
    void rebuild() {
        beginResetModel();
        TableViewDataSource* s = table_->source_;
        titles_ = s ? s->columnTitles(table_) : QStringList();
        rows_ = titles_.isEmpty() ? 0 : table_->numberOfRows(0);
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : rows_;
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : int(titles_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        TableViewDataSource* s = table_->source_;
        if (!s || !index.isValid() || index.row() >= rows_)
            return {};
        return s->valueForColumn(table_, table_->gridPath(index.row()), index.column(), role);
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
            return titles_.value(section);
        return {};
    }

private:
    TableView* table_;
    QStringList titles_;
    int rows_ = 0;
};

namespace {
// A right-click on a line offers its actions, as on a card.
class GridView : public QTableView {
public:
    explicit GridView(TableView* table)
        : QTableView(table) {}
    std::function<void(int row, QPoint globalPos)> onContextMenu;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override {
        const QModelIndex index = indexAt(event->pos());
        if (index.isValid() && onContextMenu) {
            setCurrentIndex(index);
            onContextMenu(index.row(), event->globalPos());
        }
    }
};
} // namespace

QTableView* TableView::gridView() {
    if (grid_)
        return grid_;
    auto* grid = new GridView(this);
    grid_ = grid;
    gridModel_ = new GridModel(this);
    grid_->setModel(gridModel_);
    grid_->setObjectName(QStringLiteral("TableGrid"));
    grid_->setAccessibleName(tr("Table"));
    grid_->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid_->setSelectionMode(QAbstractItemView::SingleSelection);
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setAlternatingRowColors(true);
    grid_->setShowGrid(false);
    grid_->setWordWrap(false);
    grid_->setIconSize(QSize(kGridRowHeight - 4, kGridRowHeight - 4));
    grid_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    grid_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // One height for every line: the view then never measures 30,000 rows.
    grid_->verticalHeader()->hide();
    grid_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid_->verticalHeader()->setDefaultSectionSize(kGridRowHeight);
    grid_->verticalHeader()->setMinimumSectionSize(kGridRowHeight);
    QHeaderView* titles = grid_->horizontalHeader();
    titles->setAccessibleName(tr("Column titles"));
    titles->setSectionsClickable(true);
    titles->setSortIndicatorShown(true);
    titles->setHighlightSections(false);
    titles->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(titles, &QHeaderView::sectionClicked, this, [this](int column) {
        if (source_)
            source_->didClickColumnHeader(this, column);
        reloadGrid(); // the mark stays where the source's sort is, whatever the click did
    });
    connect(grid_, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.isValid())
            selectRow(gridPath(index.row()));
    });
    grid->onContextMenu = [this](int row, QPoint at) { showActionsMenuFor(gridPath(row), at); };
    grid_->installEventFilter(this);
    grid_->viewport()->installEventFilter(this);
    // Between the fixed header and footer labels, where the cards' list stands.
    layout_->insertWidget(layout_->indexOf(list_), grid_, 1);
    grid_->hide();
    reloadGrid();
    return grid_;
}

void TableView::setPresentation(Presentation presentation) {
    if (presentation == presentation_ && (presentation == Presentation::Cards || grid_))
        return;
    const bool hadFocus = rowsView()->hasFocus();
    presentation_ = presentation;
    const bool table = presentation == Presentation::Table;
    if (table)
        gridView();
    if (grid_)
        grid_->setVisible(table);
    list_->setVisible(!table);
    if (table)
        reloadGrid();
    // The table gives its lines the height of the count: it stands beside the search field.
    if (headerMargins_) {
        headerMargins_->setSpacing(12);
        if (table)
            headerMargins_->addWidget(sectionHeader_);
        else
            layout_->insertWidget(1, sectionHeader_);
    }
    if (hadFocus)
        rowsView()->setFocus(Qt::OtherFocusReason);
}

QAbstractItemView* TableView::rowsView() const {
    if (presentation_ == Presentation::Table && grid_)
        return grid_;
    return list_;
}

void TableView::reloadGrid() {
    if (!grid_ || presentation_ != Presentation::Table)
        return;
    // A reload keeps the line the user was on and where the table was scrolled to.
    const int scrolled = grid_->verticalScrollBar()->value();
    const int current = grid_->currentIndex().row();
    const int column = std::max(0, grid_->currentIndex().column());
    gridModel_->rebuild();
    const auto sorted = source_ ? source_->sortColumn(this) : std::nullopt;
    grid_->horizontalHeader()->setSortIndicator(sorted ? sorted->first : -1,
                                                sorted ? sorted->second : Qt::AscendingOrder);
    // Columns of a given width keep it (the user may drag it); the others share the rest.
    QHeaderView* titles = grid_->horizontalHeader();
    if (titles->count() != widthsSetFor_) {
        widthsSetFor_ = titles->count();
        for (int c = 0; c < gridModel_->columnCount(); ++c) {
            const int width = source_ ? source_->widthForColumn(this, c) : 0;
            titles->setSectionResizeMode(c, width > 0 ? QHeaderView::Interactive
                                                      : QHeaderView::Stretch);
            if (width > 0)
                titles->resizeSection(c, width);
        }
    }
    if (current >= 0 && current < gridModel_->rowCount())
        grid_->setCurrentIndex(gridModel_->index(current, column));
    grid_->verticalScrollBar()->setValue(scrolled);
}

void TableView::setCurrentRow(IndexPath path) {
    if (listRow(path) < 0)
        return;
    if (QAbstractItemView* view = rowsView(); view == grid_) {
        const QModelIndex index = gridModel_->index(path.row, 0);
        grid_->setCurrentIndex(index);
        grid_->scrollTo(index);
    } else {
        const QModelIndex index = list_->model()->index(listRow(path), 0);
        list_->setCurrentIndex(index);
        list_->scrollTo(index);
    }
}
