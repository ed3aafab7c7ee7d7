#include "screens/entry/AddViewController.h"

#include "platform/core/Console.h"
#include "platform/kit/AlertController.h"
#include "screens/Application.h"
#include "screens/ProcessState.h"

AddViewController::AddViewController(QWidget* parent)
    : CoinFormViewController(parent) {
    connect(SaveButton, &QPushButton::clicked, this, &AddViewController::SaveNewCardButtonClicked);
    addKeyCommand(QKeySequence::Save, [this] { SaveNewCardButtonClicked(); });
    connect(FrontRemoveButton, &QPushButton::clicked, this, &AddViewController::RemoveFrontImage);
    connect(RearRemoveButton, &QPushButton::clicked, this, &AddViewController::RemoveBackImage);
}

void AddViewController::viewDidLoad() {
    setTitle(tr("Add Coin"));
    setUpForm();
    rememberOpeningState();
}

void AddViewController::SaveNewCardButtonClicked() {
    const CoinFormTexts texts = formTexts();
    if (!CoinFormRules::hasRequiredFields(texts)) {
        present(AlertController::okAlert(tr("Record not Saved!"),
                                         tr("Required Fields in RED not Entered")));
        return;
    }
    SaveButton->setText(tr("Saved"));
    managedObjectContext = Application::viewContext();
    auto coin = managedObjectContext->insert<Coins>();
    CoinFormRules::applyAddForm(*coin, texts, CoinID);
    keepOriginals(*managedObjectContext, texts);
    if (const auto error = managedObjectContext->save(); !error.ok())
        Console::log(error.error().description());
    Console::log(QStringLiteral("Back button Clicked"));
    Console::log(CalledFromList);
    performUnwind(QStringLiteral("unwindToList"));
}
