#include "screens/statistics/CoinHistoryViewController.h"

#include "model/ValueHistory.h"
#include "platform/core/Console.h"
#include "reports/Currency.h"
#include "screens/Application.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTableWidget>
#include <QVBoxLayout>

CoinHistoryViewController::CoinHistoryViewController(QWidget* parent)
    : ViewController(parent)
    , CoinLabel(new QLabel(this))
    , HistoryTable(new QTableWidget(this)) {
    setTitle(QStringLiteral("History"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 12);
    CoinLabel->setObjectName(QStringLiteral("CoinLabel"));
    CoinLabel->setWordWrap(true);
    layout->addWidget(CoinLabel);
    HistoryTable->setObjectName(QStringLiteral("HistoryTable"));
    HistoryTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    HistoryTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    HistoryTable->verticalHeader()->hide();
    HistoryTable->setColumnCount(5);
    HistoryTable->setHorizontalHeaderLabels({QStringLiteral("Date"), QStringLiteral("Change"),
                                             QStringLiteral("Quantity"), QStringLiteral("Value"),
                                             QStringLiteral("Total Value")});
    HistoryTable->horizontalHeader()->setStretchLastSection(true);
    layout->addWidget(HistoryTable, 1);
}

void CoinHistoryViewController::viewWillAppear(bool) {
    HistoryTable->setRowCount(0);
    if (!detailItem)
        return;
    CoinLabel->setText(QStringLiteral("%1, %2 %3")
                           .arg(detailItem->denomination(), detailItem->country())
                           .arg(detailItem->year()));
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
