#include "screens/list/MainListTableViewCell.h"

MainListTableViewCell::MainListTableViewCell(QWidget* parent)
    // In dark mode the four text lines turn black; the country keeps the appearance's colour.
    : CoinRowCell(QStringLiteral("MainListCell"), 5, parent, 4)
    , FrontImage(picture())
    , DenominationLabel(line(0))
    , Label2(line(1))
    , Label3(line(2))
    , Label4(line(3))
    , CountryLabel(line(4)) {}
