#include "app/AppMenuBar.h"

#include "model/Journal.h"
#include "model/PersistentContainer.h"
#include "platform/core/UserDefaults.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/NavigationController.h"
#include "platform/kit/Window.h"
#include "screens/Application.h"
#include "screens/CoinListView.h"
#include "screens/StoreChanges.h"
#include "screens/exchange/ImportExportViewController.h"
#include "screens/menu/MainMenuViewController.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QPointer>
#include <QResizeEvent>

namespace {
QString trMenu(const char* text) {
    return QCoreApplication::translate("AppMenuBar", text);
}

// The licence the About box states; the project names no other.
const char* const kLicence =
    QT_TRANSLATE_NOOP("AppMenuBar", "Licence: GNU General Public License, version 3 or later "
                                    "(GPL-3.0-or-later), without warranty of any kind.");

// Back to the start screen, then on by the segue its button performs; `then` runs on the
// screen that segue opened.
void go(Window& window, MainMenuViewController* menu, const QString& segue,
        const std::function<void(ViewController*)>& then = {}, bool asked = false) {
    // Leaving a form that holds changes asks first, as Escape and closing the window do.
    if (ViewController* front = window.frontScreen();
        !asked && front && window.hasUnsavedScreens()) {
        front->confirmDiscard(
            [w = &window, menu, segue, then] { go(*w, menu, segue, then, true); });
        return;
    }
    NavigationController* nav = window.navigationController();
    nav->popToRootViewController(false);
    if (!Storyboard::hasSegue(segue))
        return;
    menu->performSegue(segue);
    if (then && nav->topViewController() != menu)
        then(nav->topViewController());
}
// The Import / Export screen's own action: on the screen in front when it is that screen (a
// backup under way there keeps it disabled), else on the screen opened from the start screen.
using HubAction = QAction* ImportExportViewController::*;
void onImportExport(Window& window, MainMenuViewController* menu, HubAction action) {
    if (auto* hub = qobject_cast<ImportExportViewController*>(window.frontScreen())) {
        (hub->*action)->trigger();
        return;
    }
    go(window, menu, QStringLiteral("ImportExport"), [action](ViewController* screen) {
        if (auto* hub = qobject_cast<ImportExportViewController*>(screen))
            (hub->*action)->trigger();
    });
}

// Runs `then` whenever the widget changes size.
class OnResize : public QObject {
public:
    OnResize(QWidget* watched, std::function<void()> then)
        : QObject(watched)
        , then_(std::move(then)) {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize)
            then_();
        return false;
    }

private:
    std::function<void()> then_;
};

// The platform's keys for a command, with the one the program documents among them.
QList<QKeySequence> standardKeys(QKeySequence::StandardKey key, const char* documented) {
    QList<QKeySequence> keys = QKeySequence::keyBindings(key);
    const QKeySequence ours(QString::fromLatin1(documented));
    if (!keys.contains(ours))
        keys.prepend(ours);
    return keys;
}

// Undo or Redo from the Edit menu: a form with unsaved changes asks first, since it is filled
// again with what the store then holds; the screens in front show the result at once.
void undoOrRedo(Window& window, bool redo, bool asked = false) {
    ManagedObjectContext* context = Application::viewContext();
    if (!context)
        return;
    const Result<std::optional<Journal::StepInfo>> target =
        redo ? Journal::redoable(*context) : Journal::undoable(*context);
    if (!target.ok() || !target.value())
        return; // nothing to undo: as in any editor, the key does nothing
    if (ViewController* front = window.frontScreen();
        !asked && front && window.hasUnsavedScreens()) {
        front->confirmDiscard([w = &window, redo] { undoOrRedo(*w, redo, true); });
        return;
    }
    if (ViewController* front = window.frontScreen())
        StoreChanges::report(front,
                             redo ? QCoreApplication::translate("AppMenuBar", "Cannot Redo")
                                  : QCoreApplication::translate("AppMenuBar", "Cannot Undo"),
                             redo ? Journal::redo(*context) : Journal::undo(*context));
}

// The Edit menu's two commands name the step they would take back or bring back.
void nameUndoAndRedo(QAction* undo, QAction* redo) {
    ManagedObjectContext* context = Application::viewContext();
    const auto undoable = context ? Journal::undoable(*context).valueOr({}) : std::nullopt;
    const auto redoable = context ? Journal::redoable(*context).valueOr({}) : std::nullopt;
    undo->setText(undoable ? QCoreApplication::translate("AppMenuBar", "Undo %1")
                                 .arg(Journal::commandName(*undoable))
                           : QCoreApplication::translate("AppMenuBar", "Undo"));
    redo->setText(redoable ? QCoreApplication::translate("AppMenuBar", "Redo %1")
                                 .arg(Journal::commandName(*redoable))
                           : QCoreApplication::translate("AppMenuBar", "Redo"));
    undo->setEnabled(bool(undoable));
    redo->setEnabled(bool(redoable));
}
} // namespace

namespace AppMenuBar {

QString aboutText() {
    return QCoreApplication::translate(
               "AppMenuBar", "Pelvane %1\n\nA catalogue of a personal coin collection that keeps "
                             "everything on your machine.\n\n%2")
        .arg(QStringLiteral(PELVANE_VERSION),
             trMenu(kLicence) + QStringLiteral("\n\n") +
                 trMenu("Your collection and its photos are kept in %1.")
                     .arg(QDir::toNativeSeparators(
                         QFileInfo(Application::delegate().persistentContainer().storePath())
                             .absolutePath())));
}

QMenuBar* install(Window& window, MainMenuViewController* menu) {
    auto* bar = new QMenuBar(&window);
    bar->setObjectName(QStringLiteral("MenuBar"));
    QPointer<MainMenuViewController> start(menu);
    Window* w = &window;
    auto entry = [bar](QMenu* m, const QString& title, const QList<QKeySequence>& keys,
                       std::function<void()> action) {
        QAction* a = m->addAction(title);
        a->setShortcuts(keys);
        if (action)
            QObject::connect(a, &QAction::triggered, bar, std::move(action));
        return a;
    };

    QMenu* file = bar->addMenu(QCoreApplication::translate("AppMenuBar", "&File"));
    const std::pair<const char*, HubAction> hubEntries[] = {
        {QT_TRANSLATE_NOOP("AppMenuBar", "Import Coins…"),
         &ImportExportViewController::ImportAction},
        {QT_TRANSLATE_NOOP("AppMenuBar", "Export Coins…"),
         &ImportExportViewController::ExportAction},
        {nullptr, nullptr},
        {QT_TRANSLATE_NOOP("AppMenuBar", "Back Up Collection…"),
         &ImportExportViewController::BackupAction},
        {QT_TRANSLATE_NOOP("AppMenuBar", "Restore From Backup…"),
         &ImportExportViewController::RestoreAction}};
    QList<std::pair<QAction*, HubAction>> fileActions;
    for (auto [title, action] : hubEntries) {
        if (!title) {
            file->addSeparator();
            continue;
        }
        fileActions.append({entry(file, trMenu(title), {},
                                  [w, start, a = action] { onImportExport(*w, start, a); }),
                            action});
    }
    // Enabled as the screen's own actions are while that screen is in front.
    QObject::connect(file, &QMenu::aboutToShow, bar, [w, fileActions] {
        auto* hub = qobject_cast<ImportExportViewController*>(w->frontScreen());
        for (auto [entryAction, action] : fileActions)
            entryAction->setEnabled(!hub || (hub->*action)->isEnabled());
    });
    QObject::connect(file, &QMenu::aboutToHide, bar, [fileActions] {
        for (auto [entryAction, action] : fileActions)
            entryAction->setEnabled(true);
    });
    file->addSeparator();
    entry(file, QCoreApplication::translate("AppMenuBar", "Quit"),
          standardKeys(QKeySequence::Quit, "Ctrl+Q"), [w] { w->close(); });

    QMenu* edit = bar->addMenu(QCoreApplication::translate("AppMenuBar", "&Edit"));
    edit->setObjectName(QStringLiteral("EditMenu"));
    QAction* undo =
        entry(edit, QCoreApplication::translate("AppMenuBar", "Undo"),
              standardKeys(QKeySequence::Undo, "Ctrl+Z"), [w] { undoOrRedo(*w, false); });
    undo->setObjectName(QStringLiteral("UndoAction"));
    QAction* redo =
        entry(edit, QCoreApplication::translate("AppMenuBar", "Redo"),
              standardKeys(QKeySequence::Redo, "Ctrl+Shift+Z"), [w] { undoOrRedo(*w, true); });
    redo->setObjectName(QStringLiteral("RedoAction"));
    edit->addSeparator();
    entry(edit, QCoreApplication::translate("AppMenuBar", "Recent Changes…"), {},
          [w, start] { go(*w, start, QStringLiteral("RecentChanges")); });
    entry(edit, QCoreApplication::translate("AppMenuBar", "Recently Deleted…"), {}, [w, start] {
        go(*w, start, QStringLiteral("RecentChanges"), [](ViewController* screen) {
            if (Storyboard::hasSegue(QStringLiteral("RecentlyDeleted")))
                screen->performSegue(QStringLiteral("RecentlyDeleted"));
        });
    });
    // Named when the menu opens; the keys work whatever the menu last showed, and do nothing
    // when there is nothing to take back.
    QObject::connect(edit, &QMenu::aboutToShow, undo,
                     [undo, redo] { nameUndoAndRedo(undo, redo); });
    QObject::connect(edit, &QMenu::aboutToHide, undo, [undo, redo] {
        undo->setEnabled(true);
        redo->setEnabled(true);
    });
    // A change the journal wrote itself is shown by the screen in front at once, as it would
    // be on coming back to it.
    QObject::connect(&StoreChanges::instance(), &StoreChanges::changed, bar, [w] {
        if (ViewController* front = w->frontScreen())
            front->storeChanged();
    });

    QMenu* view = bar->addMenu(QCoreApplication::translate("AppMenuBar", "&View"));
    auto* views = new QActionGroup(view);
    views->setExclusionPolicy(QActionGroup::ExclusionPolicy::Exclusive);
    QList<std::pair<QAction*, CoinListView::Presentation>> viewActions;
    for (auto [title, presentation] :
         {std::pair{QT_TRANSLATE_NOOP("AppMenuBar", "Cards"), CoinListView::Presentation::Cards},
          std::pair{QT_TRANSLATE_NOOP("AppMenuBar", "Table"), CoinListView::Presentation::Table}}) {
        QAction* a =
            entry(view, trMenu(title), {}, [p = presentation] { CoinListView::choose(p); });
        a->setCheckable(true);
        views->addAction(a);
        viewActions.append({a, presentation});
    }
    // The check mark shows the view the lists show: the one chosen (here or by a list's own
    // View button), else the one the window's width gives.
    auto markView = [w, viewActions] {
        const CoinListView::Presentation shown = CoinListView::forWindowWidth(w->width());
        for (auto [a, presentation] : viewActions)
            if (presentation == shown)
                a->setChecked(true);
    };
    markView();
    QObject::connect(&CoinListViewChanges::instance(), &CoinListViewChanges::changed, bar,
                     markView);
    QObject::connect(view, &QMenu::aboutToShow, bar, markView);
    new OnResize(w, markView);
    view->addSeparator();
    QAction* dark = entry(view, QCoreApplication::translate("AppMenuBar", "Dark Appearance"),
                          {QKeySequence(QStringLiteral("Ctrl+Shift+D"))}, {});
    dark->setCheckable(true);
    dark->setChecked(Appearance::isDark());
    QObject::connect(dark, &QAction::toggled, bar, [](bool on) {
        Appearance::setDark(on);
        UserDefaults::standard().setBool(on, QString::fromLatin1(kDarkPreference));
    });

    // The Go menu follows the start screen's buttons; a later screen takes the next number.
    QMenu* goMenu = bar->addMenu(QCoreApplication::translate("AppMenuBar", "&Go"));
    goMenu->setObjectName(QStringLiteral("GoMenu"));
    const std::pair<const char*, const char*> places[] = {
        {QT_TRANSLATE_NOOP("AppMenuBar", "List Coins"), "ListCoins"},
        {QT_TRANSLATE_NOOP("AppMenuBar", "Group By"), "TabBarController"},
        {QT_TRANSLATE_NOOP("AppMenuBar", "Coin Valuation"), "CoinValuation"},
        {QT_TRANSLATE_NOOP("AppMenuBar", "Reference Lists"), "ReferenceLists"},
        {QT_TRANSLATE_NOOP("AppMenuBar", "Statistics"), "Statistics"},
        {QT_TRANSLATE_NOOP("AppMenuBar", "Recent Changes"), "RecentChanges"}};
    int number = 1;
    for (auto [title, segue] : places)
        entry(goMenu, trMenu(title), {QKeySequence(QStringLiteral("Ctrl+%1").arg(number++))},
              [w, start, s = QString::fromLatin1(segue)] { go(*w, start, s); });

    QMenu* help = bar->addMenu(QCoreApplication::translate("AppMenuBar", "&Help"));
    entry(help, QCoreApplication::translate("AppMenuBar", "Pelvane Overview"),
          standardKeys(QKeySequence::HelpContents, "F1"),
          [w, start] { go(*w, start, QStringLiteral("Overview")); });
    entry(help, QCoreApplication::translate("AppMenuBar", "About Pelvane"), {}, [w] {
        if (ViewController* screen = w->frontScreen())
            screen->present(AlertController::okAlert(
                QCoreApplication::translate("AppMenuBar", "About Pelvane"), aboutText()));
    });

    window.setMenuBar(bar);
    // The shortcuts work also while a phone-sized window hides the bar.
    for (QMenu* m : {file, edit, view, goMenu, help})
        window.addActions(m->actions());
    return bar;
}

} // namespace AppMenuBar
