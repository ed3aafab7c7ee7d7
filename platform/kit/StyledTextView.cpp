#include "platform/kit/StyledTextView.h"

#include <QPointer>
#include <QScroller>
#include <QTextDocument>

StyledTextView::StyledTextView(QWidget* parent)
    : QTextEdit(parent) {
    setReadOnly(true);
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
}

void StyledTextView::setAttributedText(std::unique_ptr<QTextDocument> document) {
    // The editor deletes a document of its own itself; one given to it stays with its parent.
    const QPointer<QTextDocument> before = QTextEdit::document();
    document->setParent(this);
    setDocument(document.release());
    if (before && before->parent() == this)
        before->deleteLater();
}

void StyledTextView::clear() {
    setAttributedText(std::make_unique<QTextDocument>());
}
