#pragma once
// A row of one line of text on the pale row background (corner radius 10, black border 2).
#include "platform/kit/TableView.h"

#include <QLabel>

class TextTableViewCell : public TableViewCell {
    Q_OBJECT
public:
    explicit TextTableViewCell(QWidget* parent = nullptr);
    QLabel* textLabel;
    // Rows keep their pale background in both appearances, so their text is black in dark mode.
    void setDarkMode(bool dark);
};
