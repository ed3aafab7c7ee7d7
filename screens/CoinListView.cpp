#include "screens/CoinListView.h"

#include "platform/core/UserDefaults.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/ViewController.h"
#include "reports/Currency.h"
#include "screens/CoinPictureCache.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QListView>
#include <QMenu>
#include <QPixmap>
#include <QTableView>

namespace {
// Every view switch alive, so that a choice made on one list (or in the menu bar) shows on all.
QList<QPointer<CoinListViewSwitch>>& switches() {
    static QList<QPointer<CoinListViewSwitch>> all;
    return all;
}
} // namespace

namespace CoinListView {

std::optional<Presentation> chosen() {
    const QString value =
        UserDefaults::standard().objectForKey(QString::fromLatin1(kPreference)).toString();
    if (value == QLatin1String("Table"))
        return Presentation::Table;
    if (value == QLatin1String("Cards"))
        return Presentation::Cards;
    return std::nullopt;
}

void choose(Presentation presentation) {
    UserDefaults::standard().setObject(
        presentation == Presentation::Table ? QStringLiteral("Table") : QStringLiteral("Cards"),
        QString::fromLatin1(kPreference));
    for (const QPointer<CoinListViewSwitch>& s : std::as_const(switches()))
        if (s)
            s->apply();
    emit CoinListViewChanges::instance().changed();
}

Presentation forWindowWidth(int width) {
    if (const auto choice = chosen())
        return *choice;
    return width >= kTableFromWidth ? Presentation::Table : Presentation::Cards;
}

QStringList columnTitles() {
    return {QString(),
            QCoreApplication::translate("CoinListView", "Denomination"),
            QCoreApplication::translate("CoinListView", "Year"),
            QCoreApplication::translate("CoinListView", "Mint Mark"),
            QCoreApplication::translate("CoinListView", "Quantity"),
            QCoreApplication::translate("CoinListView", "Value"),
            QCoreApplication::translate("CoinListView", "Total Value"),
            QCoreApplication::translate("CoinListView", "Country")};
}

int columnWidth(int column) {
    switch (column) {
    case Picture:
        return TableView::kGridRowHeight + 8;
    case Denomination:
        return 0;
    case Year:
    case MintMark:
    case Quantity:
        return 90;
    case Country:
        return 180;
    default:
        return 120;
    }
}

QVariant cell(const Coins& coin, int column, int role, qint64 quantity,
              CoinPictureCache& pictures) {
    if (role == Qt::TextAlignmentRole) {
        const bool number =
            column == Year || column == Quantity || column == Value || column == TotalValue;
        return QVariant::fromValue(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
    }
    if (role == Qt::DecorationRole && column == Picture) {
        // A picture is drawn at its own size: it is made the line's height here.
        const QImage front = pictures.front(coin);
        constexpr int side = TableView::kGridRowHeight - 4;
        return front.isNull() ? QVariant()
                              : QVariant(QPixmap::fromImage(front.scaled(
                                    side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    }
    if (role == Qt::AccessibleDescriptionRole)
        return rowText(coin, quantity);
    if (role == Qt::AccessibleTextRole) {
        if (column == Picture)
            return pictures.front(coin).isNull()
                       ? QCoreApplication::translate("CoinListView", "No picture")
                       : QCoreApplication::translate("CoinListView", "Picture");
        role = Qt::DisplayRole;
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    switch (column) {
    case Denomination:
        return coin.denomination();
    case Year:
        return QString::number(coin.year());
    case MintMark:
        return coin.mintMark();
    case Quantity:
        return QString::number(quantity);
    case Value:
        return Currency::text(double(coin.value()));
    case TotalValue:
        return Currency::text(double(quantity) * double(coin.value()));
    case Country:
        return coin.country();
    default:
        return {};
    }
}

QString rowText(const Coins& coin, qint64 quantity) {
    QString text =
        QCoreApplication::translate("CoinListView", "%1, %2, mint mark %3, quantity %4, value %5")
            .arg(coin.denomination())
            .arg(coin.year())
            .arg(coin.mintMark())
            .arg(quantity)
            .arg(Currency::text(double(coin.value())));
    // The country closes the line as it closes the card; a coin without one says nothing.
    if (!coin.country().isEmpty())
        text += QCoreApplication::translate("CoinListView", ", %1").arg(coin.country());
    return text;
}

} // namespace CoinListView

CoinListViewChanges& CoinListViewChanges::instance() {
    static CoinListViewChanges changes;
    return changes;
}

CoinListViewSwitch::CoinListViewSwitch(ViewController* screen, TableView* table)
    : QObject(screen)
    , screen_(screen)
    , table_(table)
    , menu_(new QMenu(tr("View"), screen)) {
    auto* group = new QActionGroup(menu_);
    cards_ = menu_->addAction(tr("Cards"));
    grid_ = menu_->addAction(tr("Table"));
    for (QAction* a : {cards_, grid_}) {
        a->setCheckable(true);
        group->addAction(a);
    }
    connect(cards_, &QAction::triggered, this,
            [] { CoinListView::choose(CoinListView::Presentation::Cards); });
    connect(grid_, &QAction::triggered, this,
            [] { CoinListView::choose(CoinListView::Presentation::Table); });
    switches().removeAll(nullptr);
    switches().append(this);
    table->listView()->setAccessibleName(tr("Coins"));
}

void CoinListViewSwitch::apply() {
    QWidget* window = screen_->window();
    // Until a view is chosen, the list follows the width of its window.
    if (window != screen_ && window != watchedWindow_) {
        if (watchedWindow_)
            watchedWindow_->removeEventFilter(this);
        watchedWindow_ = window;
        window->installEventFilter(this);
    }
    show(CoinListView::forWindowWidth(window->width()));
}

bool CoinListViewSwitch::eventFilter(QObject* watched, QEvent* event) {
    if (watched == watchedWindow_ && event->type() == QEvent::Resize && screen_->isVisible() &&
        !CoinListView::chosen())
        show(CoinListView::forWindowWidth(watchedWindow_->width()));
    return false;
}

void CoinListViewSwitch::show(CoinListView::Presentation presentation) {
    const bool table = presentation == CoinListView::Presentation::Table;
    grid_->setChecked(table);
    cards_->setChecked(!table);
    const bool changed = table_->presentation() != presentation;
    table_->setPresentation(presentation);
    if (changed)
        emit CoinListViewChanges::instance().changed();
    // The table is made on first use; a reader hears it by the same name as the cards.
    if (table && table_->gridView()->accessibleName().isEmpty()) {
        table_->gridView()->setAccessibleName(tr("Coins"));
        table_->gridView()->horizontalHeader()->setAccessibleName(tr("Column titles"));
    }
    // The table takes the window's width; cards keep their readable column.
    if (NavigationController* nav = screen_->navigationController())
        nav->fitReadableWidth();
}
