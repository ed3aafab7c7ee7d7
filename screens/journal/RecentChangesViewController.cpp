#include "screens/journal/RecentChangesViewController.h"

#include "platform/kit/AlertController.h"
#include "screens/Application.h"
#include "screens/StoreChanges.h"
#include "screens/journal/JournalText.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QTableWidget>

namespace {
// From this width on the list and the detail stand side by side.
constexpr int kWideFrom = 900;

bool isUndone(const Journal::StepInfo& step) {
    return step.state == Journal::StepInfo::State::Undone ||
           step.state == Journal::StepInfo::State::Redoable;
}
} // namespace

RecentChangesViewController::RecentChangesViewController(QWidget* parent)
    : ViewController(parent)
    , StepsTable(new QTableWidget(this))
    , DetailLabel(new QLabel(this))
    , ChangesList(new QListWidget(this))
    , UndoBackButton(new QPushButton(tr("Undo Back to Here"), this))
    , RecentlyDeletedButton(new QPushButton(tr("Recently Deleted"), this)) {
    setTitle(tr("Recent Changes"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 12);
    panes_ = new QBoxLayout(QBoxLayout::TopToBottom);
    layout->addLayout(panes_, 1);

    StepsTable->setObjectName(QStringLiteral("StepsTable"));
    StepsTable->setAccessibleName(tr("Changes, newest first"));
    StepsTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    StepsTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    StepsTable->setSelectionMode(QAbstractItemView::SingleSelection);
    StepsTable->verticalHeader()->hide();
    StepsTable->setColumnCount(3);
    StepsTable->setHorizontalHeaderLabels({tr("Date"), tr("Change"), tr("State")});
    StepsTable->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    StepsTable->horizontalHeader()->setAccessibleName(tr("Column titles"));
    panes_->addWidget(StepsTable, 3);

    auto* detail = new QWidget(this);
    auto* column = new QVBoxLayout(detail);
    column->setContentsMargins(0, 0, 0, 0);
    DetailLabel->setObjectName(QStringLiteral("DetailLabel"));
    DetailLabel->setWordWrap(true);
    QFont bold = DetailLabel->font();
    bold.setBold(true);
    DetailLabel->setFont(bold);
    column->addWidget(DetailLabel);
    ChangesList->setObjectName(QStringLiteral("ChangesList"));
    ChangesList->setAccessibleName(tr("What the change did"));
    ChangesList->setSelectionMode(QAbstractItemView::NoSelection);
    ChangesList->setWordWrap(true);
    column->addWidget(ChangesList, 1);
    panes_->addWidget(detail, 2);

    auto* buttons = new QHBoxLayout;
    UndoBackButton->setObjectName(QStringLiteral("UndoBackButton"));
    UndoBackButton->setAccessibleName(tr("Undo Back to Here"));
    UndoBackButton->setEnabled(false);
    RecentlyDeletedButton->setObjectName(QStringLiteral("RecentlyDeletedButton"));
    RecentlyDeletedButton->setAccessibleName(tr("Recently Deleted"));
    buttons->addWidget(UndoBackButton);
    buttons->addStretch(1);
    buttons->addWidget(RecentlyDeletedButton);
    layout->addLayout(buttons);

    connect(StepsTable, &QTableWidget::currentCellChanged, this,
            [this](int row, int, int, int) { showStep(row); });
    connect(UndoBackButton, &QPushButton::clicked, this,
            &RecentChangesViewController::UndoBackToHere);
    connect(RecentlyDeletedButton, &QPushButton::clicked, this,
            [this] { performSegue(QStringLiteral("RecentlyDeleted")); });
    // An undo made elsewhere (the Edit menu, a version restored) shows here at once.
    connect(&StoreChanges::instance(), &StoreChanges::changed, this, [this] {
        if (isViewLoaded())
            reload();
    });
}

void RecentChangesViewController::viewWillAppear(bool) {
    reload();
}

void RecentChangesViewController::reload() {
    const qint64 chosen =
        StepsTable->currentRow() >= 0 ? Steps.value(StepsTable->currentRow()).pk : 0;
    const Result<QList<Journal::StepInfo>> read =
        Journal::steps(*Application::viewContext(), kStepsShown);
    if (!read.ok())
        present(AlertController::okAlert(tr("Changes Not Read"), read.error().message));
    Steps = read.valueOr({});
    const QSignalBlocker quiet(StepsTable);
    StepsTable->setRowCount(int(Steps.size()));
    int current = Steps.isEmpty() ? -1 : 0;
    for (int r = 0; r < Steps.size(); ++r) {
        const Journal::StepInfo& s = Steps[r];
        const QStringList cells = {JournalText::when(s.time), Journal::describe(s),
                                   isUndone(s) ? tr("Undone") : QString()};
        for (int c = 0; c < cells.size(); ++c) {
            auto* item = new QTableWidgetItem(cells[c]);
            // An undone step reads as set aside.
            if (isUndone(s))
                item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
            StepsTable->setItem(r, c, item);
        }
        if (s.pk == chosen)
            current = r;
    }
    StepsTable->resizeColumnToContents(0);
    StepsTable->resizeColumnToContents(2);
    StepsTable->setCurrentCell(current, 0);
    showStep(current);
}

void RecentChangesViewController::showStep(int row) {
    ChangesList->clear();
    if (row < 0 || row >= Steps.size()) {
        DetailLabel->setText(Steps.isEmpty() ? tr("No changes have been saved yet.") : QString());
        UndoBackButton->setEnabled(false);
        return;
    }
    const Journal::StepInfo& step = Steps[row];
    DetailLabel->setText(Journal::describe(step));
    // A reversal is undone by Redo, not from here; an undone step is already undone.
    UndoBackButton->setEnabled(step.state == Journal::StepInfo::State::InPlace);
    const Result<Journal::StepChanges> changes =
        Journal::changesOf(*Application::viewContext(), step.pk, kRowsShown);
    if (!changes.ok()) {
        ChangesList->addItem(changes.error().message);
        return;
    }
    for (const Journal::RowChange& change : changes.value().rows) {
        auto* heading = new QListWidgetItem(
            tr("%1 — %2").arg(change.name, JournalText::kindName(change.kind)), ChangesList);
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        // What an added or deleted record held is the record itself; a change lists its fields.
        if (change.kind == Journal::RowChange::Kind::Changed)
            for (const QString& line : JournalText::fieldLines(change.fields))
                ChangesList->addItem(QStringLiteral("    ") + line);
    }
    const qint64 more = changes.value().total - changes.value().rows.size();
    if (more > 0)
        ChangesList->addItem(tr("and %1 more").arg(QLocale().toString(more)));
}

void RecentChangesViewController::UndoBackToHere() {
    const int row = StepsTable->currentRow();
    if (row < 0 || row >= Steps.size())
        return;
    const Journal::StepInfo step = Steps[row];
    // The rows above it are the newer steps, undone with it.
    auto* alert = new AlertController(
        tr("Undo Back to Here?"),
        (row == 0 ? tr("The %1 is undone. Redo brings it back.")
                  : tr("The %1 and every change after it are undone. Redo brings them back."))
            .arg(Journal::commandName(step)));
    alert->addAction(tr("Undo"), AlertController::ActionStyle::Destructive, [this, pk = step.pk] {
        // This screen reads the steps again with every other screen.
        StoreChanges::report(this, tr("Not Undone"),
                             Journal::undoBackTo(*Application::viewContext(), pk));
    });
    alert->addAction(tr("Cancel"), AlertController::ActionStyle::Cancel);
    present(alert);
}

void RecentChangesViewController::resizeEvent(QResizeEvent* event) {
    ViewController::resizeEvent(event);
    const auto direction = width() >= kWideFrom ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (panes_->direction() != direction)
        panes_->setDirection(direction);
}
