#include "screens/journal/RecentlyDeletedViewController.h"

#include "platform/kit/AlertController.h"
#include "screens/Application.h"
#include "screens/StoreChanges.h"
#include "screens/journal/JournalText.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

RecentlyDeletedViewController::RecentlyDeletedViewController(QWidget* parent)
    : ViewController(parent)
    , DeletedTable(new QTableWidget(this))
    , EmptyLabel(new QLabel(tr("No coins were deleted in the last 90 days."), this))
    , PutBackButton(new QPushButton(tr("Put Back"), this)) {
    setTitle(tr("Recently Deleted"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 12);
    DeletedTable->setObjectName(QStringLiteral("DeletedTable"));
    DeletedTable->setAccessibleName(tr("Deleted coins, last deleted first"));
    DeletedTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    DeletedTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    DeletedTable->setSelectionMode(QAbstractItemView::SingleSelection);
    DeletedTable->verticalHeader()->hide();
    DeletedTable->setColumnCount(3);
    DeletedTable->setHorizontalHeaderLabels({tr("Coin"), tr("Country"), tr("Deleted")});
    DeletedTable->horizontalHeader()->setStretchLastSection(true);
    DeletedTable->horizontalHeader()->setAccessibleName(tr("Column titles"));
    layout->addWidget(DeletedTable, 1);
    EmptyLabel->setObjectName(QStringLiteral("EmptyLabel"));
    EmptyLabel->setAlignment(Qt::AlignCenter);
    EmptyLabel->setWordWrap(true);
    layout->addWidget(EmptyLabel, 1);
    PutBackButton->setObjectName(QStringLiteral("PutBackButton"));
    PutBackButton->setAccessibleName(tr("Put Back"));
    PutBackButton->setEnabled(false);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(PutBackButton);
    layout->addLayout(buttons);

    connect(DeletedTable, &QTableWidget::currentCellChanged, this,
            [this](int row, int, int, int) { PutBackButton->setEnabled(row >= 0); });
    connect(PutBackButton, &QPushButton::clicked, this, &RecentlyDeletedViewController::PutBack);
    // An undo elsewhere may delete a coin again or bring one back.
    connect(&StoreChanges::instance(), &StoreChanges::changed, this, [this] {
        if (isViewLoaded())
            reload();
    });
}

void RecentlyDeletedViewController::viewWillAppear(bool) {
    reload();
}

void RecentlyDeletedViewController::reload() {
    const Result<QList<Journal::DeletedCoin>> read =
        Journal::recentlyDeleted(*Application::viewContext(), kDays);
    if (!read.ok())
        present(AlertController::okAlert(tr("Deleted Coins Not Read"), read.error().message));
    Deleted = read.valueOr({});
    DeletedTable->setRowCount(int(Deleted.size()));
    for (int r = 0; r < Deleted.size(); ++r) {
        const Journal::DeletedCoin& d = Deleted[r];
        const QStringList cells = {d.name, d.country, JournalText::when(d.step.time)};
        for (int c = 0; c < cells.size(); ++c)
            DeletedTable->setItem(r, c, new QTableWidgetItem(cells[c]));
    }
    DeletedTable->resizeColumnsToContents();
    DeletedTable->setHidden(Deleted.isEmpty());
    EmptyLabel->setHidden(!Deleted.isEmpty());
    DeletedTable->setCurrentCell(Deleted.isEmpty() ? -1 : 0, 0);
    PutBackButton->setEnabled(!Deleted.isEmpty());
}

void RecentlyDeletedViewController::PutBack() {
    const int row = DeletedTable->currentRow();
    if (row < 0 || row >= Deleted.size())
        return;
    // This screen reads the list again with every other screen.
    StoreChanges::report(this, tr("Not Put Back"),
                         Journal::putBack(*Application::viewContext(), Deleted[row].pk));
}
