#pragma once
// The notes of the coin being viewed, on a screen of their own.
#include "model/Records.h"
#include "platform/kit/TextInput.h"
#include "platform/kit/ViewController.h"

#include <QPushButton>

class NotesViewController : public ViewController {
    Q_OBJECT
public:
    explicit NotesViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;
    void SaveButtonClicked();

    TextView* NotesTextView;
    QPushButton* SaveButton;
    ManagedObjectContext* managedObjectContext = nullptr;
    QList<CoinPtr> Results;
    int ResultsCount = 0;
};
