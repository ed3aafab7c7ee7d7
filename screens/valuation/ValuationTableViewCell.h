#pragma once
// One row of the valuation screen: the front picture (or the plain coin) and three lines.
#include "screens/CoinRowCell.h"

class ValuationTableViewCell : public CoinRowCell {
    Q_OBJECT
public:
    explicit ValuationTableViewCell(QWidget* parent = nullptr);
    ImageView* CoinImage;
    QLabel *DenominationLabel, *SecondLabel, *ThirdLabel;
};
