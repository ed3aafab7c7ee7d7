#include "platform/kit/TextTableViewCell.h"

#include "platform/kit/Appearance.h"

#include <QHBoxLayout>

TextTableViewCell::TextTableViewCell(QWidget* parent)
    : TableViewCell(parent)
    , textLabel(new QLabel(this)) {
    setObjectName(QStringLiteral("TextCell"));
    Styling::round(this, 10, 2, Qt::black, Styling::rowColor());
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(12, 0, 12, 0);
    row->addWidget(textLabel, 1);
    setDarkMode(false);
}

void TextTableViewCell::setDarkMode(bool dark) {
    textLabel->setStyleSheet(
        QStringLiteral("border: none; padding: 0px; background: transparent;") +
        (dark ? QStringLiteral(" color: black;") : QString()));
}
