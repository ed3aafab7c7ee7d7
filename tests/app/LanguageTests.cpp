// The program in the reader's language and within a reader's reach: every text of the window's
// own parts goes through the translation, every control has a name, the keyboard starts on a
// control of each screen, and a German desktop gets German while scripts get the same output.
#include "Program.h"
#include "app/Translations.h"
#include "screens/ScreenFixture.h"
#include "screens/Walks.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

namespace {
// The texts of a menu's entries that did not go through the translation (shortcuts aside).
QStringList unmarkedEntries(const QMenu* menu) {
    QStringList out;
    if (!menu->title().isEmpty() && !menu->title().contains(QChar(Walks::MarkingTranslator::kMark)))
        out << menu->title();
    for (const QAction* a : menu->actions())
        if (!a->isSeparator() && !a->text().contains(QChar(Walks::MarkingTranslator::kMark)))
            out << menu->title() + QStringLiteral(" > ") + a->text();
    return out;
}

// The navigation bar: the back button's row.
QWidget* navigationBar(Window& window) {
    return window.navigationController()->backButton()->parentWidget()->parentWidget();
}

bool isProductName(const QString& text) {
    return text == QLatin1String("Pelvane");
}
} // namespace

class MarkedMenuBarTest : public MenuBarScreenTest {
protected:
    void SetUp() override {
        // Before any widget is made: texts are translated when they are set.
        QCoreApplication::installTranslator(&marking);
        MenuBarScreenTest::SetUp();
    }
    void TearDown() override {
        MenuBarScreenTest::TearDown();
        QCoreApplication::removeTranslator(&marking);
    }
    Walks::MarkingTranslator marking;
};

TEST_F(MarkedMenuBarTest, TheWindowsOwnTextsAllGoThroughTheTranslation) {
    // Every menu and entry of the menu bar, the Edit menu named as it is when opened.
    QStringList unmarked;
    for (QMenu* m : bar->findChildren<QMenu*>()) {
        emit m->aboutToShow();
        unmarked += unmarkedEntries(m);
    }
    EXPECT_EQ(unmarked, QStringList());

    // The bar over a screen that can go back, from a screen without a title of its own.
    NavigationController* nav = window->navigationController();
    nav->pushViewController(new ViewController, false);
    nav->pushViewController(new ViewController, false);
    EXPECT_EQ(Walks::unmarkedTexts(navigationBar(*window), isProductName), QStringList());
    EXPECT_EQ(nav->backButton()->accessibleName(), QStringLiteral("\u00A7Back"));
    nav->popToRootViewController(false);

    // An alert of the menu bar (About), and the question before changes are thrown away.
    for (QAction* a : bar->findChildren<QAction*>())
        if (a->text().endsWith(QStringLiteral("About Pelvane")))
            a->trigger();
    AlertController* about = AlertController::current();
    ASSERT_TRUE(about);
    EXPECT_EQ(Walks::unmarkedTexts(about, [](const QString&) { return false; }), QStringList());
    dismissAlert();
    top()->confirmDiscard([] {});
    AlertController* discard = AlertController::current();
    ASSERT_TRUE(discard);
    EXPECT_EQ(Walks::unmarkedTexts(discard, [](const QString&) { return false; }), QStringList());
    dismissAlert();
}

TEST_F(MenuBarScreenTest, EveryControlOfTheStartScreenBarAndAlertsHasAName) {
    menu->HandleButtonClick(); // the entries shown as well
    EXPECT_EQ(Walks::unnamedControls(window.get()), QStringList());
    openList();
    EXPECT_EQ(Walks::unnamedControls(navigationBar(*window)), QStringList());
    for (QMenu* m : bar->findChildren<QMenu*>())
        for (const QAction* a : m->actions())
            EXPECT_TRUE(a->isSeparator() || !a->text().isEmpty()) << m->title().toStdString();

    // An alert is read out as an alert, by its title and message.
    top()->present(AlertController::okAlert(QStringLiteral("Title"), QStringLiteral("Message")));
    AlertController* alert = AlertController::current();
    ASSERT_TRUE(alert);
    QAccessibleInterface* read = QAccessible::queryAccessibleInterface(alert);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->role(), QAccessible::AlertMessage);
    EXPECT_EQ(read->text(QAccessible::Name), QStringLiteral("Title"));
    EXPECT_EQ(read->text(QAccessible::Description), QStringLiteral("Message"));
    EXPECT_EQ(Walks::unnamedControls(alert), QStringList());
    dismissAlert();
}

TEST_F(MenuBarScreenTest, TheKeyboardStartsOnAControlOfEachScreenAndEnterActs) {
    // At start: Enter opens the menu without a Tab first.
    auto* first = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    ASSERT_TRUE(first);
    EXPECT_TRUE(menu->isAncestorOf(first));
    EXPECT_TRUE(window->testAttribute(Qt::WA_KeyboardFocusChange)); // the focus frame shows
    EXPECT_TRUE(menu->ListCoinsButton->isHidden());
    QTest::keyClick(first, Qt::Key_Return);
    EXPECT_FALSE(menu->ListCoinsButton->isHidden());

    // Into the list and back by the keyboard: the keyboard is on a control of the start screen
    // again, never on the bar or nowhere, and Enter there acts at once.
    menu->ListCoinsButton->setFocus();
    QTest::keyClick(menu->ListCoinsButton, Qt::Key_Return);
    ASSERT_TRUE(topAs<MainListTableViewController>());
    QWidget* inList = QApplication::focusWidget();
    ASSERT_TRUE(inList);
    EXPECT_TRUE(top()->isAncestorOf(inList));
    QTest::keyClick(inList, Qt::Key_Escape);
    ASSERT_EQ(top(), menu);
    auto* back = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    ASSERT_TRUE(back);
    EXPECT_TRUE(menu->isAncestorOf(back));
    const bool shownBefore = !menu->ListCoinsButton->isHidden();
    QTest::keyClick(back, Qt::Key_Return);
    EXPECT_NE(!menu->ListCoinsButton->isHidden(), shownBefore);
}

TEST(Translations, TheFirstLanguageTheProgramKnowsIsChosenAndEnglishEndsTheSearch) {
    // This test program holds no translations of its own: only English is known here.
    EXPECT_EQ(Translations::chooseLanguage({QStringLiteral("de-DE"), QStringLiteral("en")}),
              QString());
    EXPECT_EQ(Translations::chooseLanguage({QStringLiteral("en-GB"), QStringLiteral("de")}),
              QString());
    EXPECT_EQ(Translations::chooseLanguage({QStringLiteral("C")}), QString());
}

namespace {
ProgramRun runIn(const QMap<QString, QString>& environment, const QStringList& arguments) {
    QProcess program;
    QMap<QString, QString> env = environment;
    // Only what the test gives chooses the language.
    for (const char* name : {"LANGUAGE", "LANG", "LC_ALL", "LC_MESSAGES"})
        if (!env.contains(QLatin1String(name)))
            env.insert(QLatin1String(name), QString());
    QProcessEnvironment processEnv = programEnvironment(env);
    for (const char* name : {"LANGUAGE", "LANG", "LC_ALL", "LC_MESSAGES"})
        if (processEnv.value(QLatin1String(name)).isEmpty())
            processEnv.remove(QLatin1String(name));
    program.setProcessEnvironment(processEnv);
    program.start(QStringLiteral(PELVANE_BINARY), arguments);
    return finishRun(program);
}
const QMap<QString, QString> kGerman = {{"LANGUAGE", "de"}, {"LANG", "de_DE.UTF-8"}};
const QMap<QString, QString> kEnglish = {{"LANGUAGE", "en"}, {"LANG", "en_US.UTF-8"}};
const QMap<QString, QString> kC = {{"LANG", "C"}};
} // namespace

TEST_F(PelvaneTest, AGermanDesktopGetsGermanHelpWhileScriptsGetTheSameOutput) {
    const ProgramRun german = runIn(kGerman, {"--help"});
    EXPECT_EQ(german.exitCode, 0);
    EXPECT_TRUE(german.output.startsWith(QStringLiteral("Aufruf: pelvane [Optionen]\n")))
        << german.output.toStdString();
    EXPECT_TRUE(german.output.contains(QStringLiteral("Diese Hilfe anzeigen und beenden.")));
    EXPECT_TRUE(german.output.contains(QStringLiteral("--data-dir DIR")));
    const ProgramRun wrongGerman = runIn(kGerman, {"--stats", "--changes"});
    EXPECT_EQ(wrongGerman.exitCode, 2);
    EXPECT_TRUE(wrongGerman.errors.contains(QStringLiteral("können nicht kombiniert werden")))
        << wrongGerman.errors.toStdString();

    // English and the C locale: the texts as written, byte for byte.
    for (const QStringList& arguments : {QStringList{"--help"}, QStringList{"--stats", "--undo"}}) {
        const ProgramRun english = runIn(kEnglish, arguments);
        const ProgramRun c = runIn(kC, arguments);
        EXPECT_EQ(c.output, english.output);
        EXPECT_EQ(c.errors, english.errors);
    }
    EXPECT_TRUE(runIn(kC, {"--help"})
                    .output.startsWith(QStringLiteral(
                        "Usage: pelvane [options]\nPelvane, a catalogue of a coin collection.")));

    // What scripts read stays as it is in any language.
    for (const QStringList& command :
         {QStringList{"--stats"}, QStringList{"--changes"}, QStringList{"--backups"}}) {
        const QStringList arguments = QStringList{"--data-dir", dir()} + command;
        const ProgramRun inGerman = runIn(kGerman, arguments);
        const ProgramRun inC = runIn(kC, arguments);
        EXPECT_EQ(inGerman.exitCode, 0) << command.join(' ').toStdString();
        EXPECT_EQ(inGerman.output, inC.output) << command.join(' ').toStdString();
        EXPECT_EQ(inGerman.errors, inC.errors) << command.join(' ').toStdString();
    }
}
