#include "platform/kit/TextInput.h"

#include "platform/kit/PickerView.h"

#include <QKeyEvent>
#include <QTextCursor>

namespace TextInput {
void difference(const QString& before, const QString& after, int& start, int& length,
                QString& replacement) {
    int prefix = 0;
    const int maxPrefix = int(std::min(before.size(), after.size()));
    while (prefix < maxPrefix && before[prefix] == after[prefix])
        ++prefix;
    int suffix = 0;
    while (suffix < maxPrefix - prefix &&
           before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix])
        ++suffix;
    start = prefix;
    length = int(before.size()) - prefix - suffix;
    replacement = after.mid(prefix, after.size() - prefix - suffix);
}

bool onlyCharactersFrom(const QString& replacement, const QString& allowed) {
    for (QChar c : replacement)
        if (!allowed.contains(c))
            return false;
    return true;
}
} // namespace TextInput

TextField::TextField(QWidget* parent)
    : QLineEdit(parent) {
    // Watching the text after each user edit catches every way in (keys, paste, drop, input
    // method) in one place; a refused edit is rolled back before anything else sees it.
    connect(this, &QLineEdit::textEdited, this, &TextField::onEdited);
    // Programmatic changes are accepted as they come; the current text, not the signal's
    // argument, since a rolled-back edit may still announce its refused text.
    connect(this, &QLineEdit::textChanged, this, [this] { accepted_ = text(); });
}

void TextField::onEdited(const QString& text) {
    int start = 0, length = 0;
    QString replacement;
    TextInput::difference(accepted_, text, start, length, replacement);
    if (delegate_ && !delegate_->shouldChangeCharacters(this, start, length, replacement)) {
        const QString old = accepted_;
        setText(old);
        setCursorPosition(std::min(start, int(old.size())));
        return;
    }
    accepted_ = text;
}

void TextField::setInputView(PickerView* picker) {
    picker_ = picker;
    setReadOnly(picker != nullptr);
}

void TextField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (delegate_)
        delegate_->didBeginEditing(this);
    // Focus coming back from the closing picker itself must not open it again.
    if (picker_ && event->reason() != Qt::PopupFocusReason)
        picker_->openFor(this);
}

void TextField::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    if (picker_ && !picker_->isOpen())
        picker_->openFor(this);
}

void TextField::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (picker_ && !picker_->isOpen() &&
        (key == Qt::Key_Down || key == Qt::Key_F4 || key == Qt::Key_Space)) {
        picker_->openFor(this);
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void TextField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (delegate_)
        delegate_->didEndEditing(this);
}

TextView::TextView(QWidget* parent)
    : QPlainTextEdit(parent) {
    connect(this, &QPlainTextEdit::textChanged, this, &TextView::onChanged);
}

void TextView::setText(const QString& text) {
    restoring_ = true;
    setPlainText(text);
    accepted_ = text;
    restoring_ = false;
}

void TextView::onChanged() {
    if (restoring_)
        return;
    const QString now = toPlainText();
    int start = 0, length = 0;
    QString replacement;
    TextInput::difference(accepted_, now, start, length, replacement);
    if (delegate_ && !delegate_->shouldChangeCharacters(this, start, length, replacement)) {
        restoring_ = true;
        setPlainText(accepted_);
        QTextCursor c = textCursor();
        c.setPosition(std::min(start, int(accepted_.size())));
        setTextCursor(c);
        restoring_ = false;
        return;
    }
    accepted_ = now;
}

void TextView::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    if (delegate_)
        delegate_->didBeginEditing(this);
}

void TextView::focusOutEvent(QFocusEvent* event) {
    QPlainTextEdit::focusOutEvent(event);
    if (delegate_)
        delegate_->didEndEditing(this);
}
