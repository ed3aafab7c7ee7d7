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
#include <QPushButton>

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
void onImportExport(Window& window, MainMenuViewController* menu,
                    const std::function<void(ImportExportViewController*)>& then) {
    go(window, menu, QStringLiteral("ImportExport"), [then](ViewController* screen) {
        if (auto* hub = qobject_cast<ImportExportViewController*>(screen))
            then(hub);
    });
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
    auto entry = [bar](QMenu* m, const QString& title, const QKeySequence& keys,
                       std::function<void()> action) {
        QAction* a = m->addAction(title);
        a->setShortcut(keys);
        if (action)
            QObject::connect(a, &QAction::triggered, bar, std::move(action));
        return a;
    };

    QMenu* file = bar->addMenu(QCoreApplication::translate("AppMenuBar", "&File"));
    entry(file, QCoreApplication::translate("AppMenuBar", "Import Coins…"), {},
          [w, start] { onImportExport(*w, start, [](auto* hub) { hub->ImportButton->click(); }); });
    entry(file, QCoreApplication::translate("AppMenuBar", "Export Coins…"), {},
          [w, start] { onImportExport(*w, start, [](auto* hub) { hub->ExportButton->click(); }); });
    file->addSeparator();
    entry(file, QCoreApplication::translate("AppMenuBar", "Back Up Collection…"), {},
          [w, start] { onImportExport(*w, start, [](auto* hub) { hub->BackupButton->click(); }); });
    entry(file, QCoreApplication::translate("AppMenuBar", "Restore From Backup…"), {}, [w, start] {
        onImportExport(*w, start, [](auto* hub) { hub->RestoreButton->click(); });
    });
    file->addSeparator();
    entry(file, QCoreApplication::translate("AppMenuBar", "Quit"),
          QKeySequence(QStringLiteral("Ctrl+Q")), [w] { w->close(); });

    QMenu* edit = bar->addMenu(QCoreApplication::translate("AppMenuBar", "&Edit"));
    edit->setObjectName(QStringLiteral("EditMenu"));
    QAction* undo = entry(edit, QCoreApplication::translate("AppMenuBar", "Undo"),
                          QKeySequence::Undo, [w] { undoOrRedo(*w, false); });
    undo->setObjectName(QStringLiteral("UndoAction"));
    QAction* redo =
        entry(edit, QCoreApplication::translate("AppMenuBar", "Redo"),
              QKeySequence(QStringLiteral("Ctrl+Shift+Z")), [w] { undoOrRedo(*w, true); });
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
    for (auto [title, presentation] :
         {std::pair{QT_TRANSLATE_NOOP("AppMenuBar", "Cards"), CoinListView::Presentation::Cards},
          std::pair{QT_TRANSLATE_NOOP("AppMenuBar", "Table"), CoinListView::Presentation::Table}}) {
        QAction* a =
            entry(view, trMenu(title), {}, [p = presentation] { CoinListView::choose(p); });
        a->setCheckable(true);
        views->addAction(a);
        // A list's own View button may have chosen since the menu was last open.
        QObject::connect(view, &QMenu::aboutToShow, a,
                         [a, p = presentation] { a->setChecked(CoinListView::chosen() == p); });
    }
    view->addSeparator();
    QAction* dark = entry(view, QCoreApplication::translate("AppMenuBar", "Dark Appearance"),
                          QKeySequence(QStringLiteral("Ctrl+Shift+D")), {});
    dark->setCheckable(true);
    dark->setChecked(Appearance::isDark());
    views->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
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
        entry(goMenu, trMenu(title), QKeySequence(QStringLiteral("Ctrl+%1").arg(number++)),
              [w, start, s = QString::fromLatin1(segue)] { go(*w, start, s); });

    QMenu* help = bar->addMenu(QCoreApplication::translate("AppMenuBar", "&Help"));
    entry(help, QCoreApplication::translate("AppMenuBar", "Pelvane Overview"),
          QKeySequence(QKeySequence::HelpContents),
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
