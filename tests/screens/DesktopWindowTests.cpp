// The window as a desktop program: its menu bar, Enter on buttons, the review banner inside the
// window, pictures and exchange files dropped from a file manager, the window's place kept.
#include "ScreenFixture.h"
#include "app/AppMenuBar.h"
#include "platform/DesktopServices.h"
#include "platform/core/UserDefaults.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/TabBarController.h"
#include "screens/entry/AddViewController.h"
#include "screens/entry/EditViewController.h"
#include "screens/exchange/ImportExportViewController.h"
#include "screens/exchange/ImportViewController.h"
#include "screens/valuation/ValuationViewController.h"
#include <QFileInfo>

#include <QActionGroup>
#include <QDropEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>
#include <QTemporaryDir>

namespace {
QAction* entry(QMenuBar* bar, const QString& menu, const QString& title) {
    for (QAction* m : bar->actions())
        if (m->text().remove('&') == menu)
            for (QAction* a : m->menu()->actions())
                if (a->text() == title)
                    return a;
    return nullptr;
}
// A drop of one file from a file manager; true when the target took it.
bool dropFile(QWidget* target, const QString& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPointF at(target->width() / 2.0, target->height() / 2.0);
    QDragEnterEvent enter(at.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return drop.isAccepted();
}
} // namespace

class DesktopWindowTest : public MenuBarScreenTest {
protected:
    // The height of a window's title bar, which the window's own geometry leaves out.
    static int titleBar(const QWidget& window) {
        return window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    }
    void settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    // The alert a worker's result brings, once it is there.
    static QString alertShown() {
        EXPECT_TRUE(waitUntil([] { return AlertController::current() != nullptr; }, 5000));
        return alertText();
    }
};

TEST_F(DesktopWindowTest, TheMenuBarLeadsWhereTheStartScreensButtonsDo) {
    addCoin("Dime", 1964);
    EXPECT_TRUE(bar->isVisible());
    QStringList menus;
    for (QAction* m : bar->actions())
        menus << m->text().remove('&');
    EXPECT_EQ(menus, QStringList({"File", "Edit", "View", "Go", "Help"}));

    entry(bar, "Go", "List Coins")->trigger();
    ASSERT_NE(topAs<MainListTableViewController>(), nullptr);
    // Each place is one step from the start screen, whatever screen shows.
    entry(bar, "Go", "Group By")->trigger();
    ASSERT_NE(topAs<TabBarController>(), nullptr);
    EXPECT_EQ(window->navigationController()->viewControllers().size(), 2);
    QTest::keyClick(window.get(), Qt::Key_3, Qt::ControlModifier);
    ASSERT_NE(topAs<ValuationViewController>(), nullptr);
    QTest::keyClick(window.get(), Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(top()->title(), "Reference Lists");
    QTest::keyClick(window.get(), Qt::Key_1, Qt::ControlModifier);
    ASSERT_NE(topAs<MainListTableViewController>(), nullptr);

    // A form holding changes asks before the menu bar leads away from it.
    topAs<MainListTableViewController>()->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    ASSERT_NE(add, nullptr);
    add->DenominationTextField->setFocus();
    QTest::keyClicks(add->DenominationTextField, "Nickel");
    entry(bar, "Go", "Coin Valuation")->trigger();
    EXPECT_TRUE(alertText().startsWith("Discard changes?")) << alertText().toStdString();
    AlertController::current()->triggerAction("Keep Editing");
    EXPECT_EQ(top(), add);
    entry(bar, "Go", "Coin Valuation")->trigger();
    AlertController::current()->triggerAction("Discard");
    ASSERT_NE(topAs<ValuationViewController>(), nullptr);
    EXPECT_TRUE(all<Coins>().size() == 1);
    QTest::keyClick(window.get(), Qt::Key_1, Qt::ControlModifier);

    // Import and export open their screens behind the Import / Export screen, as its buttons do.
    entry(bar, "File", "Import Coins\u2026")->trigger();
    ASSERT_NE(topAs<ImportViewController>(), nullptr);
    const auto stack = window->navigationController()->viewControllers();
    EXPECT_NE(dynamic_cast<ImportExportViewController*>(stack.value(stack.size() - 2)), nullptr);
    ASSERT_NE(entry(bar, "File", "Back Up Collection\u2026"), nullptr);
    ASSERT_NE(entry(bar, "File", "Restore From Backup\u2026"), nullptr);

    entry(bar, "Help", "Pelvane Overview")->trigger();
    EXPECT_EQ(top()->title(), "Pelvane Overview");
    entry(bar, "Help", "About Pelvane")->trigger();
    EXPECT_TRUE(
        QRegularExpression("^About Pelvane / Pelvane \\d+\\.\\d+\n").match(alertText()).hasMatch())
        << alertText().toStdString();
    EXPECT_TRUE(alertText().contains("Licence: GNU General Public License, version 3 or later"));
    EXPECT_TRUE(alertText().contains(
        "kept in " + QFileInfo(delegate->persistentContainer().storePath()).absolutePath() + "."));
    dismissAlert();

    // View: the lists' view for every list, and the appearance, both kept for the next start.
    entry(bar, "View", "Table")->trigger();
    EXPECT_EQ(UserDefaults::standard().objectForKey("CoinListView").toString(), "Table");
    QAction* dark = entry(bar, "View", "Dark Appearance");
    dark->trigger();
    EXPECT_TRUE(Appearance::isDark());
    EXPECT_TRUE(UserDefaults::standard().boolForKey(AppMenuBar::kDarkPreference));
    dark->trigger();
    EXPECT_FALSE(Appearance::isDark());

    // A phone-sized window has no bar; its shortcuts still work.
    window->resize(390, 800);
    settle();
    EXPECT_FALSE(bar->isVisible());
    QTest::keyClick(window.get(), Qt::Key_1, Qt::ControlModifier);
    ASSERT_NE(topAs<MainListTableViewController>(), nullptr);
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window->isVisible());
}

// The File menu presses the Import / Export screen's own actions: a backup and a restore from
// the menu run as from the buttons, and while one runs the menu's entries are disabled with the
// buttons. The commands carry the platform's standard keys.
TEST_F(DesktopWindowTest, TheFileMenuActsThroughTheScreensOwnActions) {
    addCoin("Dime", 1964);
    auto* file = qobject_cast<QMenu*>(entry(bar, "File", "Quit")->parent());
    ASSERT_NE(file, nullptr);
    fakes.documentPicker->next = path("menu.sqlite");
    entry(bar, "File", "Back Up Collection\u2026")->trigger();
    auto* hub = topAs<ImportExportViewController>();
    ASSERT_NE(hub, nullptr);
    ASSERT_TRUE(hub->isBusy());
    emit file->aboutToShow();
    for (const char* title : {"Import Coins\u2026", "Export Coins\u2026",
                              "Back Up Collection\u2026", "Restore From Backup\u2026"})
        EXPECT_FALSE(entry(bar, "File", title)->isEnabled()) << title;
    EXPECT_FALSE(hub->BackupButton->isEnabled());
    // A second press while the first runs does nothing: the screen's action is disabled.
    fakes.documentPicker->suggested.clear();
    entry(bar, "File", "Back Up Collection\u2026")->trigger();
    EXPECT_TRUE(fakes.documentPicker->suggested.isEmpty());
    emit file->aboutToHide();
    EXPECT_EQ(alertShown(), "Backup Complete / Backed up 1 coin to " + path("menu.sqlite"));
    dismissAlert();
    emit file->aboutToShow();
    EXPECT_TRUE(entry(bar, "File", "Restore From Backup\u2026")->isEnabled());
    EXPECT_TRUE(hub->RestoreButton->isEnabled());
    emit file->aboutToHide();

    writeFile(path("notes.txt"), "no collection at all");
    fakes.documentPicker->next = path("notes.txt");
    entry(bar, "File", "Restore From Backup\u2026")->trigger();
    EXPECT_EQ(top(), hub); // the screen in front, not a new one
    EXPECT_EQ(alertShown(), "Restore Failed / " + path("notes.txt") +
                                " is not a Pelvane backup: it is no SQLite database");
    dismissAlert();
    entry(bar, "File", "Export Coins\u2026")->trigger();
    EXPECT_EQ(top()->metaObject()->className(), QByteArray("ExportViewController"));

    auto keys = [this](const char* menu, const char* title) {
        return entry(bar, menu, title)->shortcuts();
    };
    EXPECT_TRUE(keys("File", "Quit").contains(QKeySequence("Ctrl+Q")));
    EXPECT_TRUE(keys("Edit", "Undo").contains(QKeySequence("Ctrl+Z")));
    EXPECT_TRUE(keys("Edit", "Redo").contains(QKeySequence("Ctrl+Shift+Z")));
    EXPECT_TRUE(keys("Help", "Pelvane Overview").contains(QKeySequence("F1")));
    using Command = std::tuple<const char*, const char*, QKeySequence::StandardKey>;
    for (auto [menu, title, standard] :
         {Command{"File", "Quit", QKeySequence::Quit}, Command{"Edit", "Undo", QKeySequence::Undo},
          Command{"Edit", "Redo", QKeySequence::Redo},
          Command{"Help", "Pelvane Overview", QKeySequence::HelpContents}})
        for (const QKeySequence& k : QKeySequence::keyBindings(standard))
            EXPECT_TRUE(keys(menu, title).contains(k)) << title;
}

// The View menu's check mark shows the lists' view, whoever switched it: the menu, a list's own
// View button, or the window's width while nobody has chosen.
TEST_F(DesktopWindowTest, TheViewMenuMarksTheViewTheListsShow) {
    addCoin("Dime", 1964);
    QAction* cards = entry(bar, "View", "Cards");
    QAction* table = entry(bar, "View", "Table");
    ASSERT_TRUE(cards && table);
    EXPECT_TRUE(cards->isCheckable() && table->isCheckable());
    EXPECT_EQ(cards->actionGroup(), table->actionGroup());
    EXPECT_EQ(cards->actionGroup()->exclusionPolicy(), QActionGroup::ExclusionPolicy::Exclusive);
    // Nobody has chosen: a window 1280 pixels wide shows the table, a narrow one cards.
    EXPECT_TRUE(table->isChecked());
    window->resize(800, 800);
    settle();
    EXPECT_TRUE(cards->isChecked());
    EXPECT_FALSE(table->isChecked());
    window->resize(1280, 800);
    settle();
    EXPECT_TRUE(table->isChecked());

    entry(bar, "Go", "List Coins")->trigger();
    auto* list = topAs<MainListTableViewController>();
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->viewSwitch->showsTable());
    // The list's own View button chooses cards: the menu bar follows.
    for (QAction* a : list->viewSwitch->menu()->actions())
        if (a->text() == "Cards")
            a->trigger();
    EXPECT_FALSE(list->viewSwitch->showsTable());
    EXPECT_TRUE(cards->isChecked());
    EXPECT_FALSE(table->isChecked());
    // And the menu bar's choice shows on the list and in its own menu.
    table->trigger();
    EXPECT_TRUE(list->viewSwitch->showsTable());
    EXPECT_TRUE(table->isChecked());
    EXPECT_FALSE(cards->isChecked());
    for (QAction* a : list->viewSwitch->menu()->actions())
        EXPECT_EQ(a->isChecked(), a->text() == "Table") << qPrintable(a->text());
    // A choice holds at any width.
    window->resize(800, 800);
    settle();
    EXPECT_TRUE(table->isChecked());
}

TEST_F(DesktopWindowTest, EnterAndKeypadEnterPressTheFocusedButton) {
    menu->ControlButton->setFocus();
    QTest::keyClick(menu->ControlButton, Qt::Key_Return);
    ASSERT_TRUE(menu->ListCoinsButton->isVisible()); // the menu opened
    menu->ListCoinsButton->setFocus();
    QTest::keyClick(menu->ListCoinsButton, Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_NE(topAs<MainListTableViewController>(), nullptr);
    window->navigationController()->popViewController(false);
    settle();
    // Space keeps working.
    menu->GroupByButton->setFocus();
    QTest::keyClick(menu->GroupByButton, Qt::Key_Space);
    EXPECT_NE(topAs<TabBarController>(), nullptr);
    // A disabled button stays unpressed.
    window->navigationController()->popToRootViewController(false);
    menu->HandleButtonClick();
    menu->ListCoinsButton->setEnabled(false);
    menu->ListCoinsButton->setFocus();
    QTest::keyClick(menu->ListCoinsButton, Qt::Key_Return);
    EXPECT_EQ(top(), menu);
}

TEST_F(DesktopWindowTest, TheReviewPromptIsABannerOfTheScreenItCameWith) {
    addCoin("Dime", 1964);
    openList()->tableView->selectRow({0, 0});
    auto* edit = topAs<EditViewController>();
    ASSERT_NE(edit, nullptr);
    const int windows = QApplication::topLevelWidgets().size();
    DesktopReviewRequester requester;
    requester.requestReview(edit);
    settle();
    QWidget* banner = window->banner();
    ASSERT_NE(banner, nullptr);
    EXPECT_TRUE(banner->isVisible());
    EXPECT_EQ(banner->window(), window.get());
    EXPECT_EQ(QApplication::topLevelWidgets().size(), windows);
    // Above the screens, which move down for it.
    EXPECT_LE(banner->geometry().bottom(), window->navigationController()->geometry().top());
    auto* notNow = banner->findChild<QPushButton*>("NotNowButton");
    ASSERT_NE(notNow, nullptr);
    EXPECT_EQ(notNow->text(), "Not Now");
    notNow->click();
    settle();
    EXPECT_EQ(window->banner(), nullptr);

    // Leaving the screen takes the banner away.
    requester.requestReview(edit);
    settle();
    ASSERT_NE(window->banner(), nullptr);
    window->navigationController()->goBack();
    settle();
    EXPECT_EQ(window->banner(), nullptr);
    EXPECT_EQ(window->findChild<QWidget*>("ReviewBanner"), nullptr);
}

TEST_F(DesktopWindowTest, PicturesAndExchangeFilesDroppedFromAFileManager) {
    QTemporaryDir dir;
    const QString jpeg = dir.filePath("front.JPG"), png = dir.filePath("back.png"),
                  text = dir.filePath("notes.txt");
    QImage red(40, 40, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(jpeg, "JPEG"));
    ASSERT_TRUE(red.save(png, "PNG"));
    QFile(text).open(QIODevice::WriteOnly);

    openList()->performSegue("AddCoin");
    auto* add = topAs<AddViewController>();
    ASSERT_NE(add, nullptr);
    EXPECT_FALSE(dropFile(add->FrontImage, text)); // not a picture: refused
    EXPECT_FALSE(add->FrontImage->hasImage());
    EXPECT_TRUE(dropFile(add->FrontImage, jpeg));
    EXPECT_TRUE(add->FrontImage->hasImage());
    EXPECT_FALSE(add->BackImage->hasImage());
    EXPECT_TRUE(dropFile(add->BackImage, png));
    EXPECT_TRUE(add->BackImage->hasImage());
    EXPECT_EQ(add->BackImage->image().pixelColor(5, 5), QColor(Qt::red));

    // The import screen loads a dropped exchange file as Load File does.
    window->navigationController()->popToRootViewController(false);
    menu->performSegue("ImportExport");
    top()->performSegue("ImportCoins");
    auto* import = topAs<ImportViewController>();
    ASSERT_NE(import, nullptr);
    EXPECT_TRUE(dropFile(import, PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv"));
    QTRY_VERIFY_WITH_TIMEOUT(import->ImportButton->isEnabled(), 10000);
    EXPECT_TRUE(import->document.has_value());
    // Once a file is loaded, another drop is refused, as the Load File button is.
    EXPECT_FALSE(dropFile(import, PELVANE_SOURCE_DIR "/samples/Pelvane-sample.csv"));
}

TEST_F(DesktopWindowTest, TheWindowOpensWhereItWasClosed) {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    {
        Window first(new ViewController);
        first.rememberGeometry("WindowGeometry");
        first.show();
        first.setGeometry(area.x() + 30, area.y() + 40, 700, 500);
        settle();
        first.close();
    }
    Window second(new ViewController);
    second.rememberGeometry("WindowGeometry");
    EXPECT_EQ(second.geometry(), QRect(area.x() + 30, area.y() + 40, 700, 500));

    // Kept maximised, it opens maximised.
    UserDefaults::standard().setObject(
        QVariantMap{{"x", 10}, {"y", 10}, {"width", 600}, {"height", 400}, {"maximized", true}},
        "WindowGeometry");
    Window maximised(new ViewController);
    maximised.rememberGeometry("WindowGeometry");
    EXPECT_TRUE(maximised.windowState() & Qt::WindowMaximized);

    // Off every screen (a monitor unplugged since): centred on the primary one.
    UserDefaults::standard().setObject(
        QVariantMap{{"x", 40000}, {"y", 40000}, {"width", 500}, {"height", 400}}, "WindowGeometry");
    Window lost(new ViewController);
    lost.rememberGeometry("WindowGeometry");
    EXPECT_EQ(lost.size(), QSize(500, 400));
    // Centred with its title bar above it.
    const QRect below = area.adjusted(0, titleBar(lost), 0, 0);
    EXPECT_NEAR(lost.geometry().center().x(), below.center().x(), 1);
    EXPECT_NEAR(lost.geometry().center().y(), below.center().y(), 1);
}

// The first start opens as large as the table of coins wants, as far as the screen has room
// (title bar included), centred; a window kept on a larger screen is made to fit a smaller one.
TEST_F(DesktopWindowTest, TheWindowFitsTheScreenItOpensOn) {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    UserDefaults::standard().removeObjectForKey("WindowGeometry");
    Window first(new ViewController);
    first.rememberGeometry("WindowGeometry");
    // Below its title bar, within the screen's free area.
    const QRect below = area.adjusted(0, titleBar(first), 0, 0);
    EXPECT_TRUE(below.contains(first.geometry()));
    EXPECT_EQ(first.size(), Window::kFirstSize.boundedTo(below.size()));
    EXPECT_NEAR(first.geometry().center().x(), below.center().x(), 1);
    EXPECT_NEAR(first.geometry().center().y(), below.center().y(), 1);
    first.show();
    settle();
    EXPECT_EQ(first.size(), Window::kFirstSize.boundedTo(below.size()));
    // Wide enough for the table in place of the cards.
    EXPECT_GE(first.width(), 800);

    // Kept at 1600 x 1200 on a screen since replaced by a smaller one.
    UserDefaults::standard().setObject(
        QVariantMap{{"x", area.x() + 100}, {"y", area.y() + 50}, {"width", 1600}, {"height", 1200}},
        "WindowGeometry");
    Window kept(new ViewController);
    kept.rememberGeometry("WindowGeometry");
    EXPECT_EQ(kept.geometry(), below);

    // One that fits keeps its place and size.
    UserDefaults::standard().setObject(
        QVariantMap{{"x", area.x() + 20}, {"y", area.y() + 60}, {"width", 420}, {"height", 300}},
        "WindowGeometry");
    Window small(new ViewController);
    small.rememberGeometry("WindowGeometry");
    EXPECT_EQ(small.geometry(), QRect(area.x() + 20, area.y() + 60, 420, 300));
}

// The bar's symbols (the View button's table) are drawn in the text colour of the appearance in
// use, also after View > Dark Appearance changed it while the screen was shown.
TEST_F(DesktopWindowTest, TheBarsSymbolsFollowTheAppearance) {
    openList();
    // The lightness of the symbol's drawn strokes.
    auto symbolLightness = [&] {
        auto* view = window->navigationController()->findChild<QPushButton*>("ViewButton");
        EXPECT_NE(view, nullptr);
        const QImage drawn = view->icon().pixmap(22, 22).toImage();
        int lightest = 0, darkest = 255;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                if (const QColor c = drawn.pixelColor(x, y); c.alpha() > 200) {
                    lightest = std::max(lightest, c.lightness());
                    darkest = std::min(darkest, c.lightness());
                }
        EXPECT_LE(darkest, lightest) << "nothing drawn";
        return (lightest + darkest) / 2;
    };
    EXPECT_LT(symbolLightness(), 100);
    Appearance::setDark(true);
    settle();
    EXPECT_GT(symbolLightness(), 155);
    Appearance::setDark(false);
    settle();
    EXPECT_LT(symbolLightness(), 100);
}
