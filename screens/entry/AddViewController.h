#pragma once
// Entering a new coin.
#include "screens/entry/CoinFormViewController.h"

class AddViewController : public CoinFormViewController {
    Q_OBJECT
public:
    explicit AddViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;
    void SaveNewCardButtonClicked();
    void RemoveFrontImage() { FrontImage->setImage({}); }
    void RemoveBackImage() { BackImage->setImage({}); }
    // Every new coin is stored with record number 0; the launch repair numbers them.
    const qint16 CoinID = 0;
};
