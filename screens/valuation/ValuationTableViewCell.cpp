#include "screens/valuation/ValuationTableViewCell.h"

ValuationTableViewCell::ValuationTableViewCell(QWidget* parent)
    : CoinRowCell(QStringLiteral("ValuationCell"), 3, parent)
    , CoinImage(picture())
    , DenominationLabel(line(0))
    , SecondLabel(line(1))
    , ThirdLabel(line(2)) {
    // A long denomination and the year take two lines on a phone.
    DenominationLabel->setWordWrap(true);
}
