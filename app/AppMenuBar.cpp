#include "app/AppMenuBar.h"

#include "model/Journal.h"
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
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>

namespace {
// The licence the About box states; the project names no other.
const char* const kLicence =
    "Licence: this copy of Pelvane is provided as is, without warranty of any kind.";

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
QString trEdit(const char* text) {
    return QCoreApplication::translate("AppMenuBar", text);
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
        StoreChanges::report(front, redo ? trEdit("Cannot Redo") : trEdit("Cannot Undo"),
                             redo ? Journal::redo(*context) : Journal::undo(*context));
}

// The Edit menu's two commands name the step they would take back or bring back.
void nameUndoAndRedo(QAction* undo, QAction* redo) {
    ManagedObjectContext* context = Application::viewContext();
    const auto undoable = context ? Journal::undoable(*context).valueOr({}) : std::nullopt;
    const auto redoable = context ? Journal::redoable(*context).valueOr({}) : std::nullopt;
    undo->setText(undoable ? trEdit("Undo %1").arg(Journal::commandName(*undoable))
                           : trEdit("Undo"));
    redo->setText(redoable ? trEdit("Redo %1").arg(Journal::commandName(*redoable))
                           : trEdit("Redo"));
    undo->setEnabled(bool(undoable));
    redo->setEnabled(bool(redoable));
}
} // namespace

namespace AppMenuBar {

QString aboutText() {
    return QStringLiteral("Pelvane %1\n\nA catalogue of a personal coin collection that keeps "
                          "everything on your machine.\n\n%2")
        .arg(QStringLiteral(PELVANE_VERSION), QString::fromLatin1(kLicence));
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

    QMenu* file = bar->addMenu(QStringLiteral("&File"));
    entry(file, QStringLiteral("Import Coins\u2026"), {},
          [w, start] { onImportExport(*w, start, [](auto* hub) { hub->ImportButton->click(); }); });
    entry(file, QStringLiteral("Export Coins\u2026"), {},
          [w, start] { onImportExport(*w, start, [](auto* hub) { hub->ExportButton->click(); }); });
    file->addSeparator();
    entry(file, QStringLiteral("Back Up Collection\u2026"), {},
          [w, start] { onImportExport(*w, start, [](auto* hub) { hub->BackupButton->click(); }); });
    entry(file, QStringLiteral("Restore From Backup\u2026"), {}, [w, start] {
        onImportExport(*w, start, [](auto* hub) { hub->RestoreButton->click(); });
    });
    file->addSeparator();
    entry(file, QStringLiteral("Quit"), QKeySequence(QStringLiteral("Ctrl+Q")),
          [w] { w->close(); });

    QMenu* edit = bar->addMenu(trEdit("&Edit"));
    edit->setObjectName(QStringLiteral("EditMenu"));
    QAction* undo = entry(edit, trEdit("Undo"), QKeySequence::Undo, [w] { undoOrRedo(*w, false); });
    undo->setObjectName(QStringLiteral("UndoAction"));
    QAction* redo = entry(edit, trEdit("Redo"), QKeySequence(QStringLiteral("Ctrl+Shift+Z")),
                          [w] { undoOrRedo(*w, true); });
    redo->setObjectName(QStringLiteral("RedoAction"));
    edit->addSeparator();
    entry(edit, trEdit("Recent Changes\u2026"), {},
          [w, start] { go(*w, start, QStringLiteral("RecentChanges")); });
    entry(edit, trEdit("Recently Deleted\u2026"), {}, [w, start] {
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

    QMenu* view = bar->addMenu(QStringLiteral("&View"));
    auto* views = new QActionGroup(view);
    for (auto [title, presentation] :
         {std::pair{QStringLiteral("Cards"), CoinListView::Presentation::Cards},
          std::pair{QStringLiteral("Table"), CoinListView::Presentation::Table}}) {
        QAction* a = entry(view, title, {}, [p = presentation] { CoinListView::choose(p); });
        a->setCheckable(true);
        views->addAction(a);
        // A list's own View button may have chosen since the menu was last open.
        QObject::connect(view, &QMenu::aboutToShow, a,
                         [a, p = presentation] { a->setChecked(CoinListView::chosen() == p); });
    }
    view->addSeparator();
    QAction* dark = entry(view, QStringLiteral("Dark Appearance"),
                          QKeySequence(QStringLiteral("Ctrl+Shift+D")), {});
    dark->setCheckable(true);
    dark->setChecked(Appearance::isDark());
    views->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    QObject::connect(dark, &QAction::toggled, bar, [](bool on) {
        Appearance::setDark(on);
        UserDefaults::standard().setBool(on, QString::fromLatin1(kDarkPreference));
    });

    // The Go menu follows the start screen's buttons; a later screen takes the next number.
    QMenu* goMenu = bar->addMenu(QStringLiteral("&Go"));
    goMenu->setObjectName(QStringLiteral("GoMenu"));
    const std::pair<const char*, const char*> places[] = {
        {"List Coins", "ListCoins"},         {"Group By", "TabBarController"},
        {"Coin Valuation", "CoinValuation"}, {"Reference Lists", "ReferenceLists"},
        {"Statistics", "Statistics"},        {"Recent Changes", "RecentChanges"}};
    int number = 1;
    for (auto [title, segue] : places)
        entry(goMenu, QString::fromLatin1(title),
              QKeySequence(QStringLiteral("Ctrl+%1").arg(number++)),
              [w, start, s = QString::fromLatin1(segue)] { go(*w, start, s); });

    QMenu* help = bar->addMenu(QStringLiteral("&Help"));
    entry(help, QStringLiteral("Pelvane Overview"), QKeySequence(QKeySequence::HelpContents),
          [w, start] { go(*w, start, QStringLiteral("Overview")); });
    entry(help, QStringLiteral("About Pelvane"), {}, [w] {
        if (ViewController* screen = w->frontScreen())
            screen->present(AlertController::okAlert(QStringLiteral("About Pelvane"), aboutText()));
    });

    window.setMenuBar(bar);
    // The shortcuts work also while a phone-sized window hides the bar.
    for (QMenu* m : {file, edit, view, goMenu, help})
        window.addActions(m->actions());
    return bar;
}

} // namespace AppMenuBar
