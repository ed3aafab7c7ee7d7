#pragma once
// One screen: a widget with a load/appear/disappear lifecycle, a title and bar items shown by
// its navigation controller, segues by identifier, named unwind actions, modal presentation
// and alerts. Nothing here runs a nested event loop.
#include "platform/kit/Storyboard.h"

#include <QHash>
#include <QKeySequence>
#include <QList>
#include <QPointer>
#include <QWidget>
#include <functional>

class NavigationController;
class AlertController;
class QMenu;
class QPushButton;

struct BarButtonItem {
    QString title;
    std::function<void()> action; // run on click, unless a menu is given
    QMenu* menu = nullptr;        // shown on click when set (owned by the screen)
    QString objectName;           // lets tests find the button
    QString symbol = {};          // a symbol image of the resources shown instead of the title
    bool enabled = true;
};

struct NavigationItem {
    QList<BarButtonItem> rightItems;
    // Beside the back button, or in its place on a stack's first screen.
    QList<BarButtonItem> leftItems;
    bool hidesBackButton = false;
};

class ViewController : public QWidget {
    Q_OBJECT
public:
    explicit ViewController(QWidget* parent = nullptr);
    ~ViewController() override;

    // Runs viewDidLoad once, before the screen is first shown.
    void loadViewIfNeeded();
    bool isViewLoaded() const { return loaded_; }
    virtual void viewDidLoad() {}
    virtual void viewWillAppear(bool /*animated*/) {}
    virtual void viewDidAppear(bool /*animated*/) {}
    virtual void viewWillDisappear(bool /*animated*/) {}
    virtual void viewDidDisappear(bool /*animated*/) {}
    // The collection changed behind the screen's back (an undo) while it is in front: it shows
    // what the store now holds, as on coming back to it.
    virtual void storeChanged() {
        viewWillAppear(false);
        viewDidAppear(false);
    }

    QString title() const { return title_; }
    void setTitle(const QString& title);
    NavigationItem& navigationItem() { return navigationItem_; }
    // Call after changing navigationItem() so the bar shows it.
    void updateNavigationBar();

    NavigationController* navigationController() const;
    // The screen that presented this one's stack modally, if any.
    ViewController* presentingViewController() const;

    void performSegue(const QString& identifier, QObject* sender = nullptr);
    virtual void prepareForSegue(StoryboardSegue& /*segue*/, QObject* /*sender*/) {}

    void registerUnwindAction(const QString& name, std::function<void(StoryboardSegue&)> action);
    bool ownsUnwindAction(const QString& name) const { return unwinds_.contains(name); }
    // Walks back through the navigation stacks (and modal presentations) to the first screen
    // that owns the action, runs it and returns to that screen. False when none owns it.
    bool performUnwind(const QString& name);

    // Shows the screen in a stack of its own over this one's window.
    void present(ViewController* screen);
    // Closes the modal stack this screen is in.
    void dismiss();
    void present(AlertController* alert);
    // The alert this screen presented that is still shown, if any.
    AlertController* presentedAlert() const;

    // Runs f on the main thread after ms milliseconds, unless the screen has gone by then.
    void after(int ms, std::function<void()> f);

    // The widest the screen is laid out at; wider windows centre it, so a desktop window
    // does not stretch a phone layout. A screen with a wide arrangement of its own asks more.
    static constexpr int kReadableWidth = 720;
    virtual int readableWidth() const { return kReadableWidth; }
    // Puts a form's button in the top bar as well, reachable without scrolling: the same
    // title and action, enabled while the button is. Call after setting the right items.
    void showInBar(QPushButton* button);

    // Keyboard. A key nothing inside the screen used comes here: first the screen's own
    // commands (Ctrl+S for a form's Save), then Ctrl+F to the search field, then Escape and
    // Alt+Left back where the back button would go. True when the key was used.
    void addKeyCommand(QKeySequence::StandardKey key, std::function<void()> action);
    bool handleKeyCommand(class QKeyEvent* event);
    // Goes back as the visible back button of the screen's bar would; false when there is none.
    // A screen with unsaved changes first asks whether to discard them.
    bool goBack();
    // A form changed since it opened says so: the bar's back button, Escape, Alt+Left and
    // closing the window then ask before throwing the changes away.
    virtual bool hasUnsavedChanges() const { return false; }
    // Asks "Discard changes?": Discard runs `discard`, Keep Editing (or Escape) leaves all as is.
    void confirmDiscard(std::function<void()> discard);
    static QString discardTitle();
    // Where the keyboard goes when the screen comes to the front: its list, if it has one.
    virtual QWidget* preferredFocusWidget();
    // Gives the keyboard to the screen, unless an alert holds it.
    void takeKeyboardFocus();
    // Before the screen is hidden: the keyboard waits in `holder` for the next screen.
    void releaseKeyboardFocus(QWidget* holder);

protected:
    void keyPressEvent(class QKeyEvent* event) override;

private:
    friend class NavigationController;
    bool loaded_ = false;
    QString title_;
    NavigationItem navigationItem_;
    QHash<QString, std::function<void(StoryboardSegue&)>> unwinds_;
    QPointer<AlertController> alert_;
    QList<std::pair<QKeySequence::StandardKey, std::function<void()>>> keyCommands_;
};
