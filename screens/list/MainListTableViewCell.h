#pragma once
// One row of the main list: the front picture and five lines of text.
#include "platform/kit/TableView.h"
#include "platform/kit/Views.h"

#include <QLabel>

class MainListTableViewCell : public TableViewCell {
    Q_OBJECT
public:
    explicit MainListTableViewCell(QWidget* parent = nullptr);
    ImageView* FrontImage;
    QLabel *DenominationLabel, *Label2, *Label3, *Label4, *CountryLabel;
    // Rows keep a pale background in both appearances, so their text is black in dark mode.
    void setDarkMode(bool dark);
};
