#include "screens/list/MainListTableViewCell.h"

MainListTableViewCell::MainListTableViewCell(QWidget* parent)
    : CoinRowCell(QStringLiteral("MainListCell"), 5, parent)
    , FrontImage(picture())
    , DenominationLabel(line(0))
    , Label2(line(1))
    , Label3(line(2))
    , Label4(line(3))
    , CountryLabel(line(4)) {}
