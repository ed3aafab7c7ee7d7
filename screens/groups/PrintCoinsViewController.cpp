#include "screens/groups/PrintCoinsViewController.h"

#include "model/PrintedFetch.h"
#include "platform/Console.h"
#include "platform/Platform.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "screens/Application.h"
#include "screens/ProcessState.h"
#include "screens/groups/BreakdownTableViewController.h"
#include "screens/groups/CoinDocument.h"

#include <QTextDocument>
#include <QVBoxLayout>

using Kind = BreakdownTableViewController::Kind;

PrintCoinsViewController::PrintCoinsViewController(QWidget* parent)
    : ViewController(parent)
    , PrintButton(new QPushButton(QStringLiteral("Print"), this))
    , CreateFileButton(new QPushButton(QStringLiteral("Create File"), this))
    , FileTextView(new StyledTextView(this)) {
    PrintButton->setObjectName(QStringLiteral("PrintButton"));
    CreateFileButton->setObjectName(QStringLiteral("CreateFileButton"));
    FileTextView->setObjectName(QStringLiteral("FileTextView"));
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
    setTitle(QStringLiteral("Print Coins"));
    Styling::round(FileTextView, 10, 2, Qt::black, Qt::white);
    for (QPushButton* b : {PrintButton, CreateFileButton})
        Styling::round(b, 5, 1, Qt::black);
    fetch();
}

void PrintCoinsViewController::fetch() {
    FileTextView->clear();
    CoinString = nullptr;
    CoinList.clear();
    // Another origin fetches nothing.
    const Kind* kind = Kind::forOrigin(CalledFromList);
    if (!kind)
        return;
    FetchRequest request(QStringLiteral("Coins"));
    request.returnsObjectsAsFaults = false;
    request.predicate = Predicate::format(kind->predicate, kind->groupValue());
    // The direction last chosen on a group screen, not the breakdown list's own.
    request.sortDescriptors = {{QStringLiteral("denomination"), SortAscending}};
    CoinList = fetchOrPrint<Coins>(*managedObjectContext, request);
}

void PrintCoinsViewController::CreateFileClick() {
    const Kind* kind = Kind::forOrigin(CalledFromList);
    if (CoinList.isEmpty() || !kind) {
        PrintButton->hide();
        present(AlertController::okAlert(QStringLiteral("Empty Data Set!"),
                                         QStringLiteral("No Coins to Print!")));
        return;
    }
    std::unique_ptr<QTextDocument> listing =
        CoinDocument::listing(kind->reportTitle + kind->titleValue(*CoinList.first()), CoinList,
                              kind->listingLines, width() / 6.0);
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
