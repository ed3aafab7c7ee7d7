#include "screens/list/MainListTableViewCell.h"

MainListTableViewCell::MainListTableViewCell(QWidget* parent)
    : CoinRowCell(QStringLiteral("MainListCell"), 5, parent)
    , DenominationLabel(lines[0])
    , Label2(lines[1])
    , Label3(lines[2])
    , Label4(lines[3])
    , CountryLabel(lines[4]) {}
