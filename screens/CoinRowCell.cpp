#include "screens/CoinRowCell.h"

#include "platform/kit/Appearance.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

CoinRowCell::CoinRowCell(const QString& name, int lines, QWidget* parent, int darkened)
    : TableViewCell(parent)
    , picture_(new ImageView(this))
    , darkened_(darkened < 0 ? lines : darkened) {
    setObjectName(name);
    Styling::round(this, 10, 2, Qt::black, Styling::rowColor());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    picture_->setFixedSize(84, 84);
    row->addWidget(picture_);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    for (int i = 0; i < lines; ++i) {
        auto* label = new QLabel(this);
        if (i == 0) {
            QFont bold = label->font();
            bold.setBold(true);
            label->setFont(bold);
        }
        column->addWidget(label);
        lines_.append(label);
    }
    row->addLayout(column, 1);
    setDarkMode(false);
}

void CoinRowCell::setDarkMode(bool dark) {
    for (qsizetype i = 0; i < lines_.size(); ++i)
        lines_[i]->setStyleSheet(
            QStringLiteral("border: none; padding: 0px; background: transparent; ") +
            (dark && i < darkened_ ? QStringLiteral("color: black;") : QString()));
}
