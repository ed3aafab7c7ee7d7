#pragma once
// One row of the main list: the front picture and five lines of text.
#include "screens/CoinRowCell.h"

class MainListTableViewCell : public CoinRowCell {
    Q_OBJECT
public:
    explicit MainListTableViewCell(QWidget* parent = nullptr);
    QLabel *DenominationLabel, *Label2, *Label3, *Label4, *CountryLabel;
};
