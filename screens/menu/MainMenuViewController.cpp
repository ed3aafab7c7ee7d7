#include "screens/menu/MainMenuViewController.h"

#include "platform/core/UserDefaults.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/NavigationController.h"
#include "screens/ProcessState.h"

#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QPropertyAnimation>
#include <QVBoxLayout>

const QStringList MainMenuViewController::EntrySegues = {
    "ListCoins", "TabBarController", "AddCoin",        "RateShare",  "CoinValuation",
    "Overview",  "ImportExport",     "ReferenceLists", "Statistics", "RecentChanges"};

MainMenuViewController::MainMenuViewController(QWidget* parent)
    : ViewController(parent)
    , housekeeping(UserDefaults::standard())
    , entries_(new QWidget(this))
    , fade_(new QGraphicsOpacityEffect(entries_)) {
    setTitle(tr("Pelvane"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 16, 24, 24);
    auto* name = new QLabel(tr("Pelvane"), this);
    QFont big = name->font();
    big.setPointSizeF(big.pointSizeF() * 2.6);
    big.setBold(true);
    name->setFont(big);
    name->setAlignment(Qt::AlignCenter);
    auto* tagline = new QLabel(tr("Your coin collection"), this);
    tagline->setAlignment(Qt::AlignCenter);
    ControlButton = new QPushButton(tr("\u2630  Menu"), this);
    ControlButton->setObjectName(QStringLiteral("ControlButton"));
    ControlButton->setMinimumHeight(48);
    layout->addStretch(1);
    layout->addWidget(name);
    layout->addWidget(tagline);
    layout->addSpacing(18);
    layout->addWidget(ControlButton);
    layout->addSpacing(10);

    auto* entryLayout = new QVBoxLayout(entries_);
    entryLayout->setContentsMargins(0, 0, 0, 0);
    entryLayout->setSpacing(10);
    // The English titles also name the buttons' objects.
    static const char* const titles[] = {
        QT_TR_NOOP("List Coins"),      QT_TR_NOOP("Group By"),
        QT_TR_NOOP("Add Coin"),        QT_TR_NOOP("Rate && Share"),
        QT_TR_NOOP("Coin Valuation"),  QT_TR_NOOP("Pelvane Overview"),
        QT_TR_NOOP("Import / Export"), QT_TR_NOOP("Reference Lists"),
        QT_TR_NOOP("Statistics"),      QT_TR_NOOP("Recent Changes")};
    for (int i = 0; i < int(std::size(titles)); ++i) {
        auto* button = new QPushButton(tr(titles[i]), entries_);
        button->setObjectName(QString::fromLatin1(titles[i]).remove(' ').remove('/').remove('&'));
        button->setMinimumHeight(44);
        entryLayout->addWidget(button);
        MainMenuButton.append(button);
        const QString segue = EntrySegues[i];
        connect(button, &QPushButton::clicked, this, [this, segue] { performSegue(segue); });
    }
    ListCoinsButton = MainMenuButton[0];
    GroupByButton = MainMenuButton[1];
    AddCoinButton = MainMenuButton[2];
    RateShareButton = MainMenuButton[3];
    CoinValuationButton = MainMenuButton[4];
    PelvaneOverviewButton = MainMenuButton[5];
    ImportExportButton = MainMenuButton[6];
    ReferenceListButton = MainMenuButton[7];
    // A desktop addition: what the collection is worth over time.
    StatisticsButton = MainMenuButton[8];
    // Every saved change, with undo back to any of them and the coins deleted lately.
    RecentChangesButton = MainMenuButton[9];
    entries_->setGraphicsEffect(fade_);
    layout->addWidget(entries_);
    layout->addStretch(2);
    connect(ControlButton, &QPushButton::clicked, this, &MainMenuViewController::HandleButtonClick);
    registerUnwindAction(QStringLiteral("unwindToMenu"), [](StoryboardSegue&) {});
}

void MainMenuViewController::viewDidLoad() {
    CalledFromList = QStringLiteral("MAINMENU");
    for (QPushButton* button : MainMenuButton) {
        Styling::round(button, 10, 2, Qt::black);
        // An entry whose segue the storyboard lacks (a test's partial storyboard) is disabled.
        button->setEnabled(Storyboard::hasSegue(EntrySegues[MainMenuButton.indexOf(button)]));
    }
    Styling::round(ControlButton, 10, 2, Qt::red);
    managedObjectContext = housekeeping.managedObjectContext;
    housekeeping.run();
    managedObjectContext = housekeeping.managedObjectContext;
}

void MainMenuViewController::viewWillAppear(bool animated) {
    for (QPushButton* button : MainMenuButton)
        button->setHidden(true);
    CalledFromList = QStringLiteral("MAINMENU");
    if (navigationController())
        navigationController()->setNavigationBarHidden(false, animated);
}

void MainMenuViewController::HandleButtonClick() {
    for (QPushButton* button : MainMenuButton)
        button->setHidden(!button->isHidden());
    // The add entry is reached from the list, never from the menu.
    AddCoinButton->setHidden(true);
    auto* animation = new QPropertyAnimation(fade_, "opacity", this);
    animation->setDuration(300);
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    animation->start(QAbstractAnimation::DeleteWhenStopped);
    layout()->activate();
}

void MainMenuViewController::prepareForSegue(StoryboardSegue& segue, QObject*) {
    if (segue.identifier == QLatin1String("TabBarController") && navigationController())
        navigationController()->setNavigationBarHidden(true, true);
}
