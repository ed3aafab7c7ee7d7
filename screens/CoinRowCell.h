#pragma once
// A coin row of a coin list: the front picture beside lines of text, on the pale row
// background with a rounded black border.
#include "platform/kit/TableView.h"
#include "platform/kit/Views.h"

#include <QLabel>
#include <QList>

class CoinRowCell : public TableViewCell {
    Q_OBJECT
public:
    // The first line is bold. The name is the one tests and style sheets find the row by.
    CoinRowCell(const QString& name, int lineCount, QWidget* parent = nullptr);
    ImageView* FrontImage;
    QList<QLabel*> lines;
    // Rows keep a pale background in both appearances, so their text is black in dark mode.
    void setDarkMode(bool dark);
};
