#include "platform/kit/TableView.h"

#include "platform/kit/Elide.h"

#include <QAbstractListModel>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScroller>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace {
constexpr int kHeaderHeight = 30;
} // namespace

TableViewCell::TableViewCell(QWidget* parent)
    : QWidget(parent) {
    // Cells are drawn into the table, never shown as windows of their own. Shown off screen they
    // still count as open windows, which kept the program running after its window closed.
    setAttribute(Qt::WA_DontShowOnScreen);
    setAttribute(Qt::WA_QuitOnClose, false);
}

// Flattens sections into list rows: [header] rows... [footer] per section.
class TableModel : public QAbstractListModel {
public:
    explicit TableModel(TableView* table)
        : QAbstractListModel(table)
        , table_(table) {}
    struct Section {
        int start = 0;
        bool header = false;
        int rows = 0;
        bool footer = false;
        QString headerTitle, footerTitle;
    };
    void rebuild() {
        beginResetModel();
        sections_.clear();
        total_ = 0;
        if (TableViewDataSource* s = table_->source_) {
            const int n = s->numberOfSections(table_);
            for (int i = 0; i < n; ++i) {
                Section sec;
                sec.start = total_;
                sec.headerTitle = s->titleForHeader(table_, i);
                sec.footerTitle = s->titleForFooter(table_, i);
                // A lone section's header stands above the list, as a plain table's floating
                // header does; it also keeps the rows of uniform height.
                sec.header = !sec.headerTitle.isEmpty() && n > 1;
                // Its footer stands below the list the same way.
                sec.footer = !sec.footerTitle.isEmpty() && n > 1;
                sec.rows = s->numberOfRows(table_, i);
                total_ += sec.rows + int(sec.header) + int(sec.footer);
                sections_.push_back(sec);
            }
        }
        endResetModel();
    }
    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : total_;
    }
    QVariant data(const QModelIndex& index, int role) const override {
        int section = 0, row = 0;
        if (role != Qt::AccessibleTextRole || !table_->source_ || !index.isValid() ||
            locate(index.row(), section, row) != 1)
            return {};
        return table_->source_->accessibleTextForRow(table_, {section, row});
    }
    // Headers and footers are passed over by the arrow keys.
    Qt::ItemFlags flags(const QModelIndex& index) const override {
        int section = 0, row = 0;
        return locate(index.row(), section, row) == 1 ? Qt::ItemIsEnabled | Qt::ItemIsSelectable
                                                      : Qt::NoItemFlags;
    }
    // kind: 0 header, 1 row, 2 footer
    int locate(int listRow, int& section, int& row) const {
        for (int i = int(sections_.size()) - 1; i >= 0; --i) {
            const Section& sec = sections_[std::size_t(i)];
            if (listRow < sec.start)
                continue;
            section = i;
            int r = listRow - sec.start;
            if (sec.header) {
                if (r == 0)
                    return 0;
                --r;
            }
            row = r;
            return r < sec.rows ? 1 : 2;
        }
        section = row = 0;
        return -1;
    }
    int listRow(IndexPath p) const {
        if (p.section < 0 || p.section >= int(sections_.size()))
            return -1;
        const Section& sec = sections_[std::size_t(p.section)];
        if (p.row < 0 || p.row >= sec.rows)
            return -1;
        return sec.start + int(sec.header) + p.row;
    }
    std::vector<Section> sections_;
    int total_ = 0;
    TableView* table_;
};

class TableDelegate : public QStyledItemDelegate {
public:
    explicit TableDelegate(TableView* table)
        : QStyledItemDelegate(table)
        , table_(table) {}
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const override {
        int section = 0, row = 0;
        const int kind = table_->model_->locate(index.row(), section, row);
        if (kind != 1)
            return QSize(100, kHeaderHeight);
        return QSize(100,
                     table_->source_ ? table_->source_->heightForRow(table_, {section, row}) : 44);
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        TableViewDataSource* source = table_->source_;
        if (!source)
            return;
        int section = 0, row = 0;
        const int kind = table_->model_->locate(index.row(), section, row);
        if (kind == 0 || kind == 2) {
            const auto& sec = table_->model_->sections_[std::size_t(section)];
            QFont f = option.font;
            f.setPointSizeF(table_->headerPoints_);
            painter->save();
            painter->setFont(f);
            painter->setPen(option.palette.color(QPalette::WindowText));
            painter->drawText(option.rect, Qt::AlignCenter,
                              kind == 0 ? sec.headerTitle : sec.footerTitle);
            painter->restore();
            return;
        }
        ++table_->cellsRequested_;
        TableViewCell* cell = source->cellForRow(table_, {section, row});
        if (!cell)
            return;
        const QRect r = option.rect.adjusted(4, 3, -4, -3);
        int shift = 0;
        if (table_->revealed_ == index.row()) {
            const auto actions = source->trailingSwipeActions(table_, {section, row});
            shift = TableView::kActionWidth * int(actions.size());
            int x = r.right() - shift + 1;
            painter->save();
            for (const SwipeAction& a : actions) {
                const QRect button(x, r.top(), TableView::kActionWidth, r.height());
                painter->fillRect(button,
                                  a.destructive ? QColor(220, 40, 40) : QColor(120, 120, 120));
                painter->setPen(Qt::white);
                painter->drawText(button, Qt::AlignCenter, a.title);
                x += TableView::kActionWidth;
            }
            painter->restore();
        }
        // Long texts get the row's width and end with an ellipsis instead of running off it.
        Elide::letLabelsShrink(cell);
        if (cell->layout())
            cell->layout()->activate();
        cell->resize(r.size());
        if (cell->isHidden())
            cell->show(); // activates its layout; it never reaches the screen
        if (cell->layout())
            cell->layout()->activate();
        const Elide::FittedLabels fitted(cell);
        // Rendered through a pixmap: rendering a widget straight onto the painter of another
        // widget's paint event picks up that widget's offset in the window a second time.
        const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        QPixmap image(r.size() * ratio);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::transparent);
        cell->render(&image, QPoint(), QRegion(),
                     QWidget::DrawWindowBackground | QWidget::DrawChildren);
        painter->save();
        painter->setClipRect(QRect(r.left(), r.top(), r.width() - shift, r.height()));
        painter->drawPixmap(r.left() - shift, r.top(), image);
        painter->restore();
        if (table_->keyboardMark_ && (option.state & QStyle::State_HasFocus))
            paintKeyboardMark(painter, option, r);
    }

private:
    // The row the arrow keys are on: a ring in the highlight colour around the cell.
    static void paintKeyboardMark(QPainter* painter, const QStyleOptionViewItem& option,
                                  const QRect& r) {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(QPen(option.palette.color(QPalette::Highlight), 3));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(r).adjusted(1.5, 1.5, -1.5, -1.5), 10, 10);
        painter->restore();
    }

    TableView* table_;
};

TableView::TableView(QWidget* parent)
    : QWidget(parent)
    , layout_(new QVBoxLayout(this))
    , sectionHeader_(new QLabel(this))
    , list_(new QListView(this))
    , model_(new TableModel(this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(0);
    sectionHeader_->setAlignment(Qt::AlignCenter);
    sectionHeader_->setFixedHeight(kHeaderHeight);
    sectionHeader_->hide();
    layout_->addWidget(sectionHeader_);
    layout_->addWidget(list_, 1);
    sectionFooter_ = new QLabel(this);
    sectionFooter_->setAlignment(Qt::AlignCenter);
    sectionFooter_->setFixedHeight(kHeaderHeight);
    sectionFooter_->hide();
    layout_->addWidget(sectionFooter_);
    list_->setModel(model_);
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
