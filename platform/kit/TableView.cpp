// The view: the list of rows with a header view and fixed section titles above and below it.
// Its model (TableViewModel), its drawing (TableViewDelegate), its table presentation
// (TableViewGrid), keys (TableViewKeys) and swipes (TableViewSwipe) are beside it.
#include "platform/kit/TableView.h"

#include "platform/kit/TableViewDelegate.h"
#include "platform/kit/TableViewModel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScroller>
#include <QTableView>
#include <QVBoxLayout>

TableViewCell::TableViewCell(QWidget* parent)
    : QWidget(parent) {
    // Cells are drawn into the table, never shown as windows of their own. Shown off screen they
    // still count as open windows, which kept the program running after its window closed.
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_QuitOnClose, false);
}

TableView::TableView(QWidget* parent)
    : QWidget(parent)
    , layout_(new QVBoxLayout(this))
    , sectionHeader_(new QLabel(this))
    , list_(new QListView(this))
    , model_(new TableModel(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(0);
    sectionHeader_->setAlignment(Qt::AlignCenter);
    sectionHeader_->setFixedHeight(TableModel::HeaderHeight);
    sectionHeader_->hide();
    layout_->addWidget(sectionHeader_);
    layout_->addWidget(list_, 1);
    sectionFooter_ = new QLabel(this);
    sectionFooter_->setAlignment(Qt::AlignCenter);
    sectionFooter_->setFixedHeight(TableModel::HeaderHeight);
    sectionFooter_->hide();
    layout_->addWidget(sectionFooter_);
    list_->setModel(model_);
    list_->setAccessibleName(tr("List"));
    list_->setItemDelegate(new TableDelegate(this));
    list_->setUniformItemSizes(true);
    list_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list_->setSelectionMode(QAbstractItemView::NoSelection);
    list_->setFrameShape(QFrame::NoFrame);
    swipeFilter_ = makeSwipeFilter();
    list_->viewport()->installEventFilter(swipeFilter_);
    list_->installEventFilter(this);
    list_->viewport()->installEventFilter(this);
    QScroller::grabGesture(list_->viewport(), QScroller::TouchGesture);
}

TableView::~TableView() {
    delete swipeFilter_;
    qDeleteAll(reusable_);
}

void TableView::setDataSource(TableViewDataSource* source) {
    source_ = source;
    reloadData();
}

void TableView::reloadData() {
    revealed_ = -1;
    model_->rebuild();
    // A lone section's titles stand in fixed labels above and below the rows.
    auto showFixed = [this](QLabel* label, QString TableModel::Section::*title) {
        const bool shown =
            model_->sections_.size() == 1 && !(model_->sections_.front().*title).isEmpty();
        label->setVisible(shown);
        if (!shown)
            return;
        QFont f = label->font();
        f.setPointSizeF(headerPoints_);
        label->setFont(f);
        label->setText(model_->sections_.front().*title);
    };
    showFixed(sectionHeader_, &TableModel::Section::headerTitle);
    showFixed(sectionFooter_, &TableModel::Section::footerTitle);
    list_->viewport()->update();
    reloadGrid();
}

void TableView::setUniformRowHeights(bool uniform) {
    list_->setUniformItemSizes(uniform);
}

void TableView::registerCell(const QString& identifier, std::function<TableViewCell*()> factory) {
    factories_.insert(identifier, std::move(factory));
}

TableViewCell* TableView::dequeueReusableCell(const QString& identifier) {
    if (TableViewCell* cell = reusable_.value(identifier))
        return cell;
    auto factory = factories_.value(identifier);
    if (!factory)
        return nullptr;
    TableViewCell* cell = factory();
    cell->reuseIdentifier = identifier;
    reusable_.insert(identifier, cell);
    return cell;
}

void TableView::setTableHeaderView(QWidget* view) {
    if (header_)
        layout_->removeWidget(header_);
    delete headerMargins_;
    headerMargins_ = nullptr;
    header_ = view;
    if (!view)
        return;
    // The header keeps clear of the window's edges, as the rows do.
    headerMargins_ = new QHBoxLayout;
    headerMargins_->setContentsMargins(8, 6, 8, 4);
    headerMargins_->addWidget(view, 1);
    layout_->insertLayout(0, headerMargins_);
    // A new search shows its first match, not where the last list was scrolled to; connected
    // after the search's own reporting, so it follows the reload.
    if (auto* search = qobject_cast<QLineEdit*>(view))
        connect(search, &QLineEdit::textChanged, this, &TableView::scrollToTop,
                Qt::UniqueConnection);
}

int TableView::numberOfRows(int section) const {
    return section >= 0 && section < int(model_->sections_.size())
               ? model_->sections_[std::size_t(section)].rows
               : 0;
}

QString TableView::headerTitle(int section) const {
    return section >= 0 && section < int(model_->sections_.size())
               ? model_->sections_[std::size_t(section)].headerTitle
               : QString();
}

QString TableView::footerTitle(int section) const {
    return section >= 0 && section < int(model_->sections_.size())
               ? model_->sections_[std::size_t(section)].footerTitle
               : QString();
}

int TableView::listRow(IndexPath path) const {
    return model_->listRow(path);
}

IndexPath TableView::pathForListRow(int row, bool* isRow) const {
    int section = 0, r = 0;
    const int kind = model_->locate(row, section, r);
    if (isRow)
        *isRow = kind == 1;
    return {section, r};
}

void TableView::scrollToTop() {
    // The pending layout of a reload would put the old scroll position back.
    list_->doItemsLayout();
    list_->scrollToTop();
    if (grid_)
        grid_->scrollToTop();
}

void TableView::deselectRow(IndexPath, bool) {
    list_->clearSelection();
}

void TableView::selectRow(IndexPath path) {
    if (source_ && listRow(path) >= 0)
        source_->didSelectRow(this, path);
}

bool TableView::triggerSwipeAction(IndexPath path, const QString& title) {
    if (!source_ || listRow(path) < 0)
        return false;
    for (const SwipeAction& a : source_->trailingSwipeActions(this, path))
        if (a.title == title) {
            setRevealedRow(-1);
            if (a.handler)
                a.handler(path);
            return true;
        }
    return false;
}

void TableView::deleteRows(const QList<IndexPath>&) {
    reloadData();
}

void TableView::setRevealedRow(int row) {
    if (revealed_ == row)
        return;
    revealed_ = row;
    list_->viewport()->update();
}
