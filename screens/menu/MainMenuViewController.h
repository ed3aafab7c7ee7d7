#pragma once
// The first screen: the menu of the program's parts, and the start-up housekeeping.
#include "platform/kit/ViewController.h"
#include "screens/menu/LaunchHousekeeping.h"

#include <QList>
#include <QPushButton>

class QGraphicsOpacityEffect;

class MainMenuViewController : public ViewController {
    Q_OBJECT
public:
    explicit MainMenuViewController(QWidget* parent = nullptr);

    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    void prepareForSegue(StoryboardSegue& segue, QObject* sender) override;
    // Opens or closes the menu.
    void HandleButtonClick();

    // The segue each entry performs, in entry order.
    static const QStringList EntrySegues;

    QList<QPushButton*> MainMenuButton;
    QPushButton* ControlButton;
    QPushButton *ListCoinsButton, *GroupByButton, *AddCoinButton, *RateShareButton,
        *CoinValuationButton, *PelvaneOverviewButton, *ImportExportButton, *ReferenceListButton,
        *StatisticsButton, *RecentChangesButton;
    ManagedObjectContext* managedObjectContext = nullptr;
    ManagedObjectContext* context = nullptr;
    qint16 CoinID = 0;
    LaunchHousekeeping housekeeping;

private:
    QWidget* entries_;
    QGraphicsOpacityEffect* fade_;
};
