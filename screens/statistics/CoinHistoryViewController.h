#pragma once
// One coin, read-only: its main fields and pictures, every saved change of its quantity and
// value (oldest first), and its earlier versions, any of which can be written back. Opened by
// the edit screen's History button and by a row of the statistics' largest changes.
#include "model/Journal.h"
#include "platform/kit/ViewController.h"
#include "screens/DetailReceiver.h"

class ImageView;
class QLabel;
class QPushButton;
class QTableWidget;

class CoinHistoryViewController : public ViewController, public DetailReceiver {
    Q_OBJECT
public:
    explicit CoinHistoryViewController(QWidget* parent = nullptr);
    void setDetailItem(const CoinPtr& coin) override { detailItem = coin; }
    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;

    // Reads the coin, its value history and its versions again.
    void reload();
    // Asks, then writes the chosen version back as a step of its own.
    void RestoreThisVersion();

    CoinPtr detailItem;
    QLabel* CoinLabel;
    // The coin's main fields, one label each, in the order the block shows them.
    QLabel *CountryValue, *DenominationValue, *YearValue, *MintMarkValue, *QuantityValue,
        *ValueValue, *GradeValue;
    ImageView *FrontImage, *BackImage;
    QTableWidget* HistoryTable;
    QTableWidget* VersionsTable;
    QLabel* NoVersionsLabel;
    QPushButton* RestoreVersionButton;
    QList<Journal::CoinVersion> Versions;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showCoin();
    void fillValueHistory();
    void fillVersions();
};
