#pragma once
// A message with a title, a text and actions, shown over its screen's window (dimming it)
// without a nested event loop. Tests find the alert shown and trigger an action by title.
// While shown it takes the keyboard of its window as well as the mouse: nothing behind it can be
// reached, Enter triggers the focused action (at first the default one), Escape the cancel
// action (or the only one), Tab moves between its actions.
#include <QList>
#include <QPointer>
#include <QWidget>
#include <functional>

class QKeyEvent;
class QLabel;
class QVBoxLayout;
class QHBoxLayout;

class AlertController : public QWidget {
    Q_OBJECT
public:
    enum class Style { Alert, ActionSheet };
    enum class ActionStyle { Default, Cancel, Destructive };
    struct Action {
        QString title;
        ActionStyle style = ActionStyle::Default;
        std::function<void()> handler;
    };

    AlertController(const QString& title, const QString& message, Style style = Style::Alert);
    // The usual report of a failed check: the title, the message and one "OK" that only closes.
    static AlertController* okAlert(const QString& title, const QString& message);

    void addAction(const QString& title, ActionStyle style = ActionStyle::Default,
                   std::function<void()> handler = {});
    QString title() const { return title_; }
    QString message() const { return message_; }
    QStringList actionTitles() const;
    // Where a popover would point (kept for platforms that show one).
    void setSourceView(QWidget* view) { sourceView_ = view; }

    // Shows the alert over the window of `screen`.
    void showOver(QWidget* screen);
    // Closes the alert, then runs the action's handler, as a click on it does.
    bool triggerAction(const QString& title);
    // The alert shown last that is still on screen, anywhere in the program.
    static AlertController* current();
    // The alert shown last over `window` that is still on screen, if any.
    static AlertController* topmostOver(const QWidget* window);
    // The action Enter triggers at first, and the one Escape triggers (empty: none).
    QString defaultActionTitle() const;
    QString cancelActionTitle() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    friend class AlertKeyboard;
    // Keys that reach the alert or its window while it is on top; true when used up.
    bool handleKey(QKeyEvent* event, bool fromBehind);
    void focusAction(int step);
    void takeFocus();
    QList<class QPushButton*> buttons() const;

    QString title_, message_;
    Style style_;
    QList<Action> actions_;
    QWidget* panel_;
    QHBoxLayout* buttons_;
    QPointer<QWidget> sourceView_;
    // Where the keyboard was before the alert took it; it goes back there when the alert closes.
    QPointer<QWidget> previousFocus_;
};
