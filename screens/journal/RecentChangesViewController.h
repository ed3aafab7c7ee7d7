#pragma once
// The journal's steps, newest first, and what the chosen one changed, record by record and
// field by field; any step still in place can be undone together with every step after it.
#include "model/Journal.h"
#include "platform/kit/ViewController.h"

class QBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;
class QTableWidget;

class RecentChangesViewController : public ViewController {
    Q_OBJECT
public:
    explicit RecentChangesViewController(QWidget* parent = nullptr);
    void viewWillAppear(bool animated) override;

    // Reads the steps again, keeping the chosen one chosen when it is still listed.
    void reload();
    // Asks, then undoes every step from the newest back to the chosen one.
    void UndoBackToHere();

    QTableWidget* StepsTable;
    QLabel* DetailLabel;
    QListWidget* ChangesList;
    QPushButton* UndoBackButton;
    QPushButton* RecentlyDeletedButton;
    // What the table shows, newest first.
    QList<Journal::StepInfo> Steps;

    // The steps read at most: enough to find a morning's work.
    static constexpr int kStepsShown = 200;
    // The records of one step listed at most.
    static constexpr int kRowsShown = 50;

protected:
    // List and detail side by side in a wide window.
    int readableWidth() const override { return 1240; }
    void resizeEvent(QResizeEvent* event) override;

private:
    void showStep(int row);
    QBoxLayout* panes_;
};
