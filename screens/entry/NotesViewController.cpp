#include "screens/entry/NotesViewController.h"
#include "model/Journal.h"
#include "model/PrintedFetch.h"

#include "platform/kit/Appearance.h"
#include "screens/Application.h"
#include "screens/ProcessState.h"
#include "screens/entry/CoinFormRules.h"

#include <QVBoxLayout>

NotesViewController::NotesViewController(QWidget* parent)
    : ViewController(parent)
    , NotesTextView(new TextView(this))
    , SaveButton(new QPushButton(tr("Save"), this)) {
    NotesTextView->setObjectName(QStringLiteral("NotesTextView"));
    NotesTextView->setAccessibleName(tr("Notes"));
    SaveButton->setObjectName(QStringLiteral("SaveButton"));
    SaveButton->setMinimumHeight(44);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->addWidget(NotesTextView, 1);
    layout->addWidget(SaveButton);
    connect(SaveButton, &QPushButton::clicked, this, &NotesViewController::SaveButtonClicked);
    addKeyCommand(QKeySequence::Save, [this] { SaveButtonClicked(); });
}

void NotesViewController::viewDidLoad() {
    setTitle(tr("Notes"));
    Styling::round(NotesTextView, 5, 1, Appearance::isDark() ? Qt::white : Qt::black);
    Styling::round(SaveButton, 10, 2, Qt::black);
    showInBar(SaveButton);
    NotesTextView->setText(SelectedNotes);
}

void NotesViewController::SaveButtonClicked() {
    managedObjectContext = Application::viewContext();
    FetchRequest request(QStringLiteral("Coins"));
    // Found by denomination and year only: the first such coin gets the notes.
    request.predicate = Predicate::andPredicate(
        {Predicate::format(QStringLiteral("denomination = %@"), SelectedDenomination),
         Predicate::format(QStringLiteral("year = %@"), QString::number(SelectedYear))});
    request.returnsObjectsAsFaults = false;
    if (const Result<QList<CoinPtr>> found = fetchOrPrint<Coins>(*managedObjectContext, request);
        found.ok()) {
        Results = found.value();
        ResultsCount = int(Results.size());
    }
    if (ResultsCount >= 1) {
        const Journal::Step step(*managedObjectContext, Journal::Notes,
                                 Journal::coinName(SelectedDenomination, SelectedYear));
        Results.first()->setNotes(NotesTextView->text());
        managedObjectContext->save();
    }
    SelectedNotes = CoinFormRules::trimmed(NotesTextView->text());
    performUnwind(QStringLiteral("unwindToEdit"));
}
