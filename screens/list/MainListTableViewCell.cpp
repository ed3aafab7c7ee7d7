#include "screens/list/MainListTableViewCell.h"

#include "platform/kit/Appearance.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

MainListTableViewCell::MainListTableViewCell(QWidget* parent)
    : TableViewCell(parent)
    , FrontImage(new ImageView(this))
    , DenominationLabel(new QLabel(this))
    , Label2(new QLabel(this))
    , Label3(new QLabel(this))
    , Label4(new QLabel(this))
    , CountryLabel(new QLabel(this)) {
    setObjectName(QStringLiteral("MainListCell"));
    Styling::round(this, 10, 2, Qt::black, Styling::rowColor());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    FrontImage->setFixedSize(84, 84);
    row->addWidget(FrontImage);
    auto* lines = new QVBoxLayout;
    lines->setSpacing(0);
    QFont bold = DenominationLabel->font();
    bold.setBold(true);
    DenominationLabel->setFont(bold);
    for (QLabel* l : {DenominationLabel, Label2, Label3, Label4, CountryLabel}) {
        l->setStyleSheet(QStringLiteral("border: none; padding: 0px; background: transparent;"));
        lines->addWidget(l);
    }
    row->addLayout(lines, 1);
}

void MainListTableViewCell::setDarkMode(bool dark) {
    // The pale row background stays in both appearances, so the four text lines turn dark on
    // it; the country label keeps the appearance's colour.
    const QString colour = dark ? QStringLiteral("color: black;") : QString();
    for (QLabel* l : {DenominationLabel, Label2, Label3, Label4})
        l->setStyleSheet(QStringLiteral("border: none; padding: 0px; background: transparent; ") +
                         colour);
}
