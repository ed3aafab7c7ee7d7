#pragma once
// What a screen reader and a translator would find on a screen: the controls a user can reach
// that have no accessible name, and the texts shown that did not go through the translation.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleInterface>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QTranslator>
#include <QWidget>

namespace Walks {

// A control a user acts on (by pointer, keyboard or reader).
inline bool interactive(const QWidget* w) {
    return qobject_cast<const QAbstractButton*>(w) || qobject_cast<const QLineEdit*>(w) ||
           qobject_cast<const QTextEdit*>(w) || qobject_cast<const QPlainTextEdit*>(w) ||
           qobject_cast<const QComboBox*>(w) || qobject_cast<const QAbstractItemView*>(w) ||
           w->focusPolicy() != Qt::NoFocus;
}

// "ClassName (objectName)" of every visible interactive control under `root` whose accessible
// interface has no name; an empty list when a reader can name them all.
inline QStringList unnamedControls(QWidget* root) {
    QStringList out;
    QList<QWidget*> all = root->findChildren<QWidget*>();
    all.prepend(root);
    for (QWidget* w : all) {
        if (!w->isVisibleTo(root) || !interactive(w))
            continue;
        QAccessibleInterface* a = QAccessible::queryAccessibleInterface(w);
        if (!a || a->text(QAccessible::Name).trimmed().isEmpty())
            out << QStringLiteral("%1 (%2)").arg(QString::fromLatin1(w->metaObject()->className()),
                                                 w->objectName());
    }
    return out;
}

// A translator that marks every text it is asked for: installed, any text on screen without the
// mark never went through tr().
class MarkingTranslator : public QTranslator {
public:
    static constexpr char16_t kMark = u'\u00A7'; // "§"
    QString translate(const char*, const char* source, const char* = nullptr,
                      int = -1) const override {
        return QString(QChar(kMark)) + QString::fromUtf8(source);
    }
    bool isEmpty() const override { return false; }
};

// Visible texts under `root` (labels, buttons, line edit placeholders, window titles) that carry
// no mark. Texts that are data (numbers, a coin's own values) are the caller's to leave out
// through `isData`.
template <typename IsData> QStringList unmarkedTexts(QWidget* root, IsData isData) {
    QStringList out;
    auto check = [&](const QString& text, const QWidget* w) {
        const QString t = text.trimmed();
        if (t.isEmpty() || t.contains(QChar(MarkingTranslator::kMark)) || isData(t))
            return;
        out << QStringLiteral("%1 (%2): %3")
                   .arg(QString::fromLatin1(w->metaObject()->className()), w->objectName(), t);
    };
    QList<QWidget*> all = root->findChildren<QWidget*>();
    all.prepend(root);
    for (QWidget* w : all) {
        if (!w->isVisibleTo(root))
            continue;
        if (auto* l = qobject_cast<QLabel*>(w))
            check(l->text(), w);
        else if (auto* b = qobject_cast<QAbstractButton*>(w))
            check(b->text(), w);
        else if (auto* e = qobject_cast<QLineEdit*>(w))
            check(e->placeholderText(), w);
    }
    return out;
}

} // namespace Walks
