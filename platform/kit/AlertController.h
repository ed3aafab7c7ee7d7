#pragma once
// A message with a title, a text and actions, shown over its screen's window (dimming it)
// without a nested event loop. Tests find the alert shown and trigger an action by title.
#include <QList>
#include <QPointer>
#include <QWidget>
#include <functional>

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

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString title_, message_;
    Style style_;
    QList<Action> actions_;
    QWidget* panel_;
    QHBoxLayout* buttons_;
    QPointer<QWidget> sourceView_;
};
