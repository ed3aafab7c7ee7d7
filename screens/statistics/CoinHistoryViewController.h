#pragma once
// Every saved change of one coin's quantity and value, oldest first, opened by the edit
// screen's History button.
#include "platform/kit/ViewController.h"
#include "screens/DetailReceiver.h"

class QLabel;
class QTableWidget;

class CoinHistoryViewController : public ViewController, public DetailReceiver {
    Q_OBJECT
public:
    explicit CoinHistoryViewController(QWidget* parent = nullptr);
    void setDetailItem(const CoinPtr& coin) override { detailItem = coin; }
    void viewWillAppear(bool animated) override;

    CoinPtr detailItem;
    QLabel* CoinLabel;
    QTableWidget* HistoryTable;
};
