#include "screens/CoinRowCell.h"

#include "platform/kit/Appearance.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace {
const QString kPlainLabel = QStringLiteral("border: none; padding: 0px; background: transparent;");
}

CoinRowCell::CoinRowCell(const QString& name, int lineCount, QWidget* parent)
    : TableViewCell(parent)
    , FrontImage(new ImageView(this)) {
    setObjectName(name);
    Styling::round(this, 10, 2, Qt::black, Styling::rowColor());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 4, 8, 4);
    FrontImage->setFixedSize(84, 84);
    row->addWidget(FrontImage);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    for (int i = 0; i < lineCount; ++i) {
        auto* label = new QLabel(this);
        label->setStyleSheet(kPlainLabel);
        if (i == 0) {
            QFont bold = label->font();
            bold.setBold(true);
            label->setFont(bold);
        }
        column->addWidget(label);
        lines.append(label);
    }
    row->addLayout(column, 1);
}

void CoinRowCell::setDarkMode(bool dark) {
    const QString colour = dark ? QStringLiteral(" color: black;") : QString();
    for (QLabel* l : std::as_const(lines))
        l->setStyleSheet(kPlainLabel + colour);
}
