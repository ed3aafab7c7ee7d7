#pragma once
// A coin list row: the coin's picture beside a few lines of text, on the pale rounded row.
// The lists' named cells are this row with their own names for the picture and the lines.
#include "platform/kit/TableView.h"
#include "platform/kit/Views.h"

#include <QLabel>

class CoinRowCell : public TableViewCell {
    Q_OBJECT
public:
    // `name` identifies the row for its style sheet; the first line is bold. In dark mode the
    // first `darkened` lines turn black (all of them when -1).
    CoinRowCell(const QString& name, int lines, QWidget* parent = nullptr, int darkened = -1);
    ImageView* picture() const { return picture_; }
    QLabel* line(int i) const { return lines_.at(i); }
    // Rows keep a pale background in both appearances, so their text is black in dark mode.
    void setDarkMode(bool dark);

private:
    ImageView* picture_;
    QList<QLabel*> lines_;
    int darkened_;
};
