#pragma once
// Text fields and text views that ask their delegate before every change: typed keys, paste,
// drop and input-method commits all arrive as one replacement of a range, which the delegate
// may refuse. Input filters are written against that one question.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

#include "platform/kit/PickerView.h"

class TextInputDelegate {
public:
    virtual ~TextInputDelegate() = default;
    // `start`/`length` is the range replaced in the old text; an empty replacement deletes.
    virtual bool shouldChangeCharacters(QObject* /*input*/, int /*start*/, int /*length*/,
                                        const QString& /*replacement*/) {
        return true;
    }
    virtual void didBeginEditing(QObject* /*input*/) {}
    virtual void didEndEditing(QObject* /*input*/) {}
};

namespace TextInput {
// The single replacement that turns `before` into `after`.
void difference(const QString& before, const QString& after, int& start, int& length,
                QString& replacement);
// An input filter's usual answer: every character of the replacement is one of `allowed`
// (deleting is always allowed).
bool onlyCharactersFrom(const QString& replacement, const QString& allowed);
} // namespace TextInput

class TextField : public QLineEdit {
    Q_OBJECT
public:
    explicit TextField(QWidget* parent = nullptr);
    void setDelegate(TextInputDelegate* delegate) { delegate_ = delegate; }
    TextInputDelegate* delegate() const { return delegate_; }
    int tag() const { return tag_; }
    void setTag(int tag) { tag_ = tag; }
    // A picker as input view: focusing the field opens it; the field is edited by picking only.
    void setInputView(PickerView* picker);
    PickerView* inputView() const { return picker_; }
    // Sets the text as the program does (no question asked).
    void setTextProgrammatically(const QString& text) { setText(text); }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    // Down, Alt+Down, F4 or Space open a closed picker again.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void onEdited(const QString& text);
    TextInputDelegate* delegate_ = nullptr;
    QPointer<PickerView> picker_;
    QString accepted_;
    int tag_ = 0;
};

class TextView : public QPlainTextEdit {
    Q_OBJECT
public:
    explicit TextView(QWidget* parent = nullptr);
    void setDelegate(TextInputDelegate* delegate) { delegate_ = delegate; }
    QString text() const { return toPlainText(); }
    void setText(const QString& text);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void onChanged();
    TextInputDelegate* delegate_ = nullptr;
    QString accepted_;
    bool restoring_ = false;
};
