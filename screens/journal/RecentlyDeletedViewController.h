#pragma once
// The coins deleted in the last 90 days and not back since; the chosen one can be put back,
// under its own record, pictures and all.
#include "model/Journal.h"
#include "platform/kit/ViewController.h"

class QLabel;
class QPushButton;
class QTableWidget;

class RecentlyDeletedViewController : public ViewController {
    Q_OBJECT
public:
    explicit RecentlyDeletedViewController(QWidget* parent = nullptr);
    void viewWillAppear(bool animated) override;

    void reload();
    // Puts the chosen coin back as a step of its own.
    void PutBack();

    QTableWidget* DeletedTable;
    QLabel* EmptyLabel;
    QPushButton* PutBackButton;
    QList<Journal::DeletedCoin> Deleted;

    // How far back a deleted coin is offered.
    static constexpr int kDays = 90;
};
