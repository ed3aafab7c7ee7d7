#include "screens/groups/PrintCoinsViewController.h"

#include "model/PrintedFetch.h"
#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "reports/GroupReport.h"
#include "screens/Application.h"
#include "screens/ProcessState.h"

#include <QTextDocument>
#include <QVBoxLayout>

PrintCoinsViewController::PrintCoinsViewController(QWidget* parent)
    : ViewController(parent)
    , PrintButton(new QPushButton(tr("Print"), this))
    , CreateFileButton(new QPushButton(tr("Create File"), this))
    , FileTextView(new StyledTextView(this)) {
    PrintButton->setObjectName(QStringLiteral("PrintButton"));
    CreateFileButton->setObjectName(QStringLiteral("CreateFileButton"));
    FileTextView->setObjectName(QStringLiteral("FileTextView"));
    FileTextView->setAccessibleName(tr("Coins to print"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->addWidget(FileTextView, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(CreateFileButton);
    buttons->addWidget(PrintButton);
    layout->addLayout(buttons);
    for (QPushButton* b : {PrintButton, CreateFileButton})
        b->setMinimumHeight(44);
    connect(CreateFileButton, &QPushButton::clicked, this,
            &PrintCoinsViewController::CreateFileClick);
    connect(PrintButton, &QPushButton::clicked, this, &PrintCoinsViewController::EmailFileClick);
    managedObjectContext = Application::viewContext();
}

void PrintCoinsViewController::viewDidLoad() {
    setTitle(tr("Print Coins"));
    Styling::round(FileTextView, 10, 2, Qt::black, Qt::white);
    for (QPushButton* b : {PrintButton, CreateFileButton})
        Styling::round(b, 5, 1, Qt::black);
    fetch();
}

void PrintCoinsViewController::fetch() {
    FileTextView->clear();
    CoinString = nullptr;
    CoinList.clear();
    // Opened from anywhere but a breakdown list, it fetches nothing.
    if (!group_)
        return;
    // In the direction last chosen on a group screen, which the group carries, not the
    // breakdown list's own.
    CoinList = fetchOrPrint<Coins>(*managedObjectContext, GroupReport::listingRequest(*group_))
                   .valueOr({});
}

void PrintCoinsViewController::CreateFileClick() {
    if (CoinList.isEmpty() || !group_) {
        PrintButton->hide();
        present(AlertController::okAlert(tr("Empty Data Set!"), tr("No Coins to Print!")));
        return;
    }
    std::unique_ptr<QTextDocument> listing = GroupReport::listing(
        *group_, CoinList, width() / 6.0, CoinDocument::originalsIn(*managedObjectContext));
    CoinString = listing.get();
    FileTextView->setAttributedText(std::move(listing));
}

void PrintCoinsViewController::EmailFileClick() {
    PrintInfo info;
    info.outputType = PrintInfo::General;
    Platform::printController().present(*FileTextView->document(), info, true, this,
                                        [](bool completed, const QString& error) {
                                            if (!error.isEmpty()) {
                                                Console::log(error);
                                                return;
                                            }
                                            if (completed)
                                                Console::print(QStringLiteral("Image is Printed"));
                                        });
}

void PrintCoinsViewController::viewDidDisappear(bool) {
    dismiss();
}
