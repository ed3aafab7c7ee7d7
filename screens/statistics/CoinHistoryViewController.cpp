#include "screens/statistics/CoinHistoryViewController.h"

#include "model/ValueHistory.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/Views.h"
#include "reports/Currency.h"
#include "screens/Application.h"
#include "screens/StoreChanges.h"
#include "screens/journal/JournalText.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {
// The pictures as a thumbnail beside the fields: the coin is recognised, not studied.
constexpr int kPictureSide = 72;

QTableWidget* makeTable(QWidget* parent, const char* name, const QString& accessibleName,
                        const QStringList& headers) {
    auto* table = new QTableWidget(parent);
    table->setObjectName(QString::fromLatin1(name));
    table->setAccessibleName(accessibleName);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->verticalHeader()->hide();
    table->setColumnCount(int(headers.size()));
    table->setHorizontalHeaderLabels(headers);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

QLabel* heading(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}
} // namespace

CoinHistoryViewController::CoinHistoryViewController(QWidget* parent)
    : ViewController(parent)
    , CoinLabel(new QLabel(this))
    , FrontImage(new ImageView(this))
    , BackImage(new ImageView(this))
    , HistoryTable(
          makeTable(this, "HistoryTable", tr("Changes of quantity and value"),
                    {tr("Date"), tr("Change"), tr("Quantity"), tr("Value"), tr("Total Value")}))
    , VersionsTable(makeTable(this, "VersionsTable", tr("Earlier versions"),
                              {tr("Version"), tr("Differs from now")}))
    , NoVersionsLabel(new QLabel(tr("No earlier versions."), this))
    , RestoreVersionButton(new QPushButton(tr("Restore This Version"), this)) {
    setTitle(tr("History"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 12);
    CoinLabel->setObjectName(QStringLiteral("CoinLabel"));
    CoinLabel->setWordWrap(true);
    QFont big = CoinLabel->font();
    big.setPointSizeF(big.pointSizeF() * 1.2);
    big.setBold(true);
    CoinLabel->setFont(big);
    layout->addWidget(CoinLabel);

    // The coin as it is now: pictures, then the fields in two columns of label and value.
    auto* coin = new QHBoxLayout;
    for (auto [view, name, side] : {std::tuple{FrontImage, "FrontImage", tr("Front picture")},
                                    std::tuple{BackImage, "BackImage", tr("Back picture")}}) {
        view->setObjectName(QString::fromLatin1(name));
        view->setAccessibleName(side);
        view->setFixedSize(kPictureSide, kPictureSide);
        coin->addWidget(view, 0, Qt::AlignTop);
    }
    coin->addSpacing(8);
    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(10);
    fields->setVerticalSpacing(2);
    const std::pair<QLabel**, const char*> rows[] = {
        {&CountryValue, QT_TR_NOOP("Country")},   {&DenominationValue, QT_TR_NOOP("Denomination")},
        {&YearValue, QT_TR_NOOP("Year")},         {&MintMarkValue, QT_TR_NOOP("Mint Mark")},
        {&QuantityValue, QT_TR_NOOP("Quantity")}, {&ValueValue, QT_TR_NOOP("Value")},
        {&GradeValue, QT_TR_NOOP("Grade")}};
    int at = 0;
    for (const auto& [value, caption] : rows) {
        auto* label = new QLabel(tr(caption), this);
        label->setForegroundRole(QPalette::PlaceholderText);
        *value = new QLabel(this);
        (*value)->setObjectName(QString::fromLatin1(caption).remove(QLatin1Char(' ')) +
                                QStringLiteral("Value"));
        (*value)->setAccessibleName(tr(caption));
        (*value)->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setBuddy(*value);
        const int row = at % 4, column = at / 4 * 2;
        fields->addWidget(label, row, column);
        fields->addWidget(*value, row, column + 1);
        ++at;
    }
    fields->setColumnStretch(1, 1);
    fields->setColumnStretch(3, 1);
    coin->addLayout(fields, 1);
    layout->addLayout(coin);

    layout->addSpacing(6);
    layout->addWidget(heading(tr("Quantity and Value"), this));
    layout->addWidget(HistoryTable, 1);
    layout->addSpacing(6);
    layout->addWidget(heading(tr("Earlier Versions"), this));
    layout->addWidget(VersionsTable, 1);
    NoVersionsLabel->setObjectName(QStringLiteral("NoVersionsLabel"));
    layout->addWidget(NoVersionsLabel);
    RestoreVersionButton->setObjectName(QStringLiteral("RestoreVersionButton"));
    RestoreVersionButton->setAccessibleName(tr("Restore This Version"));
    RestoreVersionButton->setEnabled(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(RestoreVersionButton);
    layout->addLayout(buttons);

    connect(VersionsTable, &QTableWidget::currentCellChanged, this,
            [this](int row, int, int, int) { RestoreVersionButton->setEnabled(row >= 0); });
    connect(RestoreVersionButton, &QPushButton::clicked, this,
            &CoinHistoryViewController::RestoreThisVersion);
    // An undo elsewhere may have changed this coin.
    connect(&StoreChanges::instance(), &StoreChanges::changed, this, [this] {
        if (isViewLoaded())
            reload();
    });
}

void CoinHistoryViewController::viewDidLoad() {
    // The empty picture slots show as frames.
    for (ImageView* v : {FrontImage, BackImage})
        Styling::round(v, 5, 1, Appearance::isDark() ? Qt::white : Qt::black);
}

void CoinHistoryViewController::viewWillAppear(bool) {
    reload();
}

void CoinHistoryViewController::reload() {
    showCoin();
    fillValueHistory();
    fillVersions();
}

void CoinHistoryViewController::showCoin() {
    if (!detailItem) {
        CoinLabel->clear();
        return;
    }
    const Coins& c = *detailItem;
    CoinLabel->setText(
        QStringLiteral("%1, %2 %3").arg(c.denomination(), c.country()).arg(c.year()));
    CountryValue->setText(c.country());
    DenominationValue->setText(c.denomination());
    YearValue->setText(QString::number(c.year()));
    MintMarkValue->setText(c.mintMark());
    QuantityValue->setText(QString::number(c.quantity()));
    ValueValue->setText(Currency::text(c.value()));
    GradeValue->setText(c.gradeNumber());
    FrontImage->setImage(ImageCoding::decode(c.frontImage()));
    BackImage->setImage(ImageCoding::decode(c.backImage()));
}

void CoinHistoryViewController::fillValueHistory() {
    HistoryTable->setRowCount(0);
    if (!detailItem)
        return;
    // A coin not saved yet has no history.
    const Result<QList<ValueHistory::Event>> events =
        detailItem->objectID()
            ? ValueHistory::eventsOf(*Application::viewContext(), detailItem->objectID())
            : QList<ValueHistory::Event>();
    if (!events.ok())
        Console::log(events.error().description());
    const QList<ValueHistory::Event> list = events.valueOr({});
    HistoryTable->setRowCount(int(list.size()));
    auto arrow = [](const QString& before, const QString& after) {
        return before == after ? after : before + QStringLiteral(" → ") + after;
    };
    for (int r = 0; r < list.size(); ++r) {
        const ValueHistory::Event& e = list[r];
        const QStringList cells = {
            QLocale().toString(e.time, QLocale::ShortFormat), e.cause,
            arrow(QString::number(e.quantityBefore), QString::number(e.quantityAfter)),
            arrow(Currency::text(e.valueBefore), Currency::text(e.valueAfter)),
            arrow(Currency::text(e.totalBefore()), Currency::text(e.totalAfter()))};
        for (int c = 0; c < cells.size(); ++c)
            HistoryTable->setItem(r, c, new QTableWidgetItem(cells[c]));
    }
    HistoryTable->resizeColumnsToContents();
}

void CoinHistoryViewController::fillVersions() {
    Versions.clear();
    if (detailItem && detailItem->objectID()) {
        const Result<QList<Journal::CoinVersion>> read =
            Journal::versionsOf(*Application::viewContext(), detailItem->objectID());
        if (!read.ok())
            present(AlertController::okAlert(tr("Versions Not Read"), read.error().message));
        Versions = read.valueOr({});
    }
    VersionsTable->setRowCount(int(Versions.size()));
    for (int r = 0; r < Versions.size(); ++r) {
        const Journal::CoinVersion& v = Versions[r];
        // The version and its date in one column, so that a narrow window leaves the
        // differences room.
        const QStringList cells = {tr("Before: %1").arg(Journal::describe(v.step)) +
                                       QLatin1Char('\n') + JournalText::when(v.step.time),
                                   JournalText::fieldLines(v.fromNow).join(QLatin1Char('\n'))};
        for (int c = 0; c < cells.size(); ++c) {
            auto* item = new QTableWidgetItem(cells[c]);
            // The whole text, when the cell is too narrow for it.
            item->setToolTip(cells[c]);
            item->setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
            VersionsTable->setItem(r, c, item);
        }
    }
    VersionsTable->resizeColumnToContents(0);
    // One line per field that differs.
    VersionsTable->resizeRowsToContents();
    NoVersionsLabel->setHidden(!Versions.isEmpty());
    VersionsTable->setCurrentCell(-1, -1);
    RestoreVersionButton->setEnabled(false);
}

void CoinHistoryViewController::RestoreThisVersion() {
    const int row = VersionsTable->currentRow();
    if (!detailItem || row < 0 || row >= Versions.size())
        return;
    const Journal::StepInfo step = Versions[row].step;
    auto* alert = new AlertController(
        tr("Restore This Version?"),
        tr("The coin is written back as it was before the %1. The change can be undone in "
           "Recent Changes.")
            .arg(Journal::commandName(step)));
    alert->addAction(tr("Restore"), AlertController::ActionStyle::Destructive,
                     [this, coin = detailItem->objectID(), pk = step.pk] {
                         // This screen reads the coin again with every other screen.
                         StoreChanges::report(
                             this, tr("Version Not Restored"),
                             Journal::restoreVersion(*Application::viewContext(), coin, pk));
                     });
    alert->addAction(tr("Cancel"), AlertController::ActionStyle::Cancel);
    present(alert);
}

void CoinHistoryViewController::resizeEvent(QResizeEvent* event) {
    ViewController::resizeEvent(event);
    // The lines of the differences wrap anew at the table's new width, once it has it.
    after(0, [this] { VersionsTable->resizeRowsToContents(); });
}
