#include "platform/kit/ButtonKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>

namespace {
class EnterPressesButtons : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) || key->isAutoRepeat() ||
            (key->modifiers() & ~Qt::KeypadModifier))
            return false;
        auto* button = qobject_cast<QAbstractButton*>(watched);
        if (!button || !button->hasFocus() || !button->isEnabled() || !button->isVisible())
            return false;
        // A button with a menu opens it below itself, as a press of Space does (without a
        // loop of its own).
        if (auto* push = qobject_cast<QPushButton*>(button); push && push->menu())
            push->menu()->popup(push->mapToGlobal(QPoint(0, push->height())));
        else
            button->click();
        return true;
    }
};
} // namespace

namespace ButtonKeys {
void install() {
    static EnterPressesButtons* filter = nullptr;
    if (filter || !qApp)
        return;
    filter = new EnterPressesButtons(qApp);
    qApp->installEventFilter(filter);
}
} // namespace ButtonKeys
