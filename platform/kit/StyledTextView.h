#pragma once
// A read-only view of styled text: fonts, colours, alignment and inline pictures, scrolled by
// touch as the lists are.
#include <QTextEdit>
#include <memory>

class StyledTextView : public QTextEdit {
    Q_OBJECT
public:
    explicit StyledTextView(QWidget* parent = nullptr);
    // Shows `document`, which the view keeps; the one shown before goes.
    void setAttributedText(std::unique_ptr<QTextDocument> document);
    void clear();
};
