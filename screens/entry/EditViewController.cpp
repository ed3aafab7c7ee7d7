#include "screens/entry/EditViewController.h"
#include "model/PrintedFetch.h"

#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/NavigationController.h"
#include "screens/Application.h"
#include "screens/ProcessState.h"
#include "screens/StoreChanges.h"
#include "screens/TextMessageAlert.h"
#include "screens/WebSearch.h"

#include <QFormLayout>
#include <QMouseEvent>
#include <QTimer>

EditViewController::EditViewController(QWidget* parent)
    : CoinFormViewController(parent)
    , NotesButton(new QPushButton(tr("Notes"), this))
    , ShareButton(new QPushButton(tr("Share"), this))
    , reviewService([this] {
        Platform::reviewRequester().requestReview(this);
        return true;
    }) {
    NotesButton->setObjectName(QStringLiteral("NotesButton"));
    form_->addRow(QString(), NotesButton);
    connect(SaveButton, &QPushButton::clicked, this, &EditViewController::SaveButtonClicked);
    addKeyCommand(QKeySequence::Save, [this] { SaveButtonClicked(); });
    connect(FrontRemoveButton, &QPushButton::clicked, this, &EditViewController::RemoveFrontImage);
    connect(RearRemoveButton, &QPushButton::clicked, this, &EditViewController::RemoveBackImage);
    connect(NotesButton, &QPushButton::clicked, this, &EditViewController::NotesButtonClicked);
    connect(ShareButton, &QPushButton::clicked, this, &EditViewController::shareButtonClicked);
    // Also when the coin's History, in front of the form, wrote an earlier version back: the
    // form must not save the version it showed before over it.
    connect(&StoreChanges::instance(), &StoreChanges::changed, this, [this] {
        if (isViewLoaded())
            storeChanged();
    });
    registerUnwindAction(QStringLiteral("unwindToEdit"), [this](StoryboardSegue&) {
        fillForm();
        rememberOpeningState();
    });
}

void EditViewController::viewDidLoad() {
    setTitle(tr("Edit Coin"));
    fillForm();
    setUpForm();
    Styling::round(NotesButton, 10, 2, Qt::black);
    // Double click on the front picture zooms; a long press on the back picture or the value
    // looks the coin up.
    FrontImage->installEventFilter(this);
    BackImage->installEventFilter(this);
    ValueTextField->installEventFilter(this);
    navigationItem().rightItems.prepend(
        {tr("Share"), [this] { shareButtonClicked(); }, nullptr, QStringLiteral("ShareButton")});
    // A desktop addition: the coin's saved changes of quantity and value.
    navigationItem().rightItems.prepend({tr("History"),
                                         [this] { performSegue(QStringLiteral("History")); },
                                         nullptr, QStringLiteral("HistoryButton")});
    ShareButton->hide();
    updateNavigationBar();
    // Asked five seconds after opening; nothing happens if the screen has gone by then.
    after(5000, [this] { reviewService.requestReview(); });
    rememberOpeningState();
}

bool EditViewController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick && watched == FrontImage) {
        TapFrontImage();
        return true;
    }
    if ((watched == BackImage || watched == ValueTextField) &&
        event->type() == QEvent::MouseButtonPress) {
        if (!longPress_) {
            longPress_ = new QTimer(this);
            longPress_->setSingleShot(true);
            longPress_->setInterval(1000);
            connect(longPress_, &QTimer::timeout, this, &EditViewController::checkValue);
        }
        longPress_->start();
    } else if (event->type() == QEvent::MouseButtonRelease && longPress_) {
        longPress_->stop();
    }
    return CoinFormViewController::eventFilter(watched, event);
}

void EditViewController::fillForm() {
    if (!detailItem)
        return;
    showTexts(CoinFormRules::textsFor(*detailItem));
    FrontImage->setImage(detailItem->hasValue(Coins::Attr::frontImage)
                             ? ImageCoding::decode(detailItem->frontImage())
                             : QImage());
    BackImage->setImage(detailItem->hasValue(Coins::Attr::backImage)
                            ? ImageCoding::decode(detailItem->backImage())
                            : QImage());
    noteOriginal(FrontImage, detailItem->frontImage());
    noteOriginal(BackImage, detailItem->backImage());
    if (ManagedObjectContext* context = detailItem->managedObjectContext()) {
        showOriginal(FrontImage, *context, detailItem->frontImage());
        showOriginal(BackImage, *context, detailItem->backImage());
    }
}

void EditViewController::storeChanged() {
    if (detailItem && !detailItem->managedObjectContext()) {
        if (navigationController() && navigationController()->topViewController() == this)
            goBack();
        return;
    }
    fillForm();
    rememberOpeningState();
}

void EditViewController::prepareForSegue(StoryboardSegue& segue, QObject*) {
    if (auto* receiver = dynamic_cast<DetailReceiver*>(segue.destination))
        receiver->setDetailItem(detailItem);
}

void EditViewController::NotesButtonClicked() {
    if (!hasUnsavedChanges()) {
        performSegue(QStringLiteral("Notes"));
        return;
    }
    // Coming back from the notes fills the form from the coin again: changes not saved by then
    // would be lost without a word.
    auto* alert = new AlertController(tr("Save Changes?"),
                                      tr("Coming back from the notes shows the coin as it is "
                                         "saved. Save what you changed here first?"));
    alert->addAction(tr("Save"), AlertController::ActionStyle::Default, [this] {
        saveForm();
        performSegue(QStringLiteral("Notes"));
    });
    alert->addAction(tr("Discard"), AlertController::ActionStyle::Destructive, [this] {
        fillForm();
        rememberOpeningState();
        performSegue(QStringLiteral("Notes"));
    });
    alert->addAction(tr("Keep Editing"), AlertController::ActionStyle::Cancel);
    present(alert);
}

void EditViewController::saveForm() {
    managedObjectContext = Application::viewContext();
    FetchRequest request(QStringLiteral("Coins"));
    // The record saved to is the one whose id the main list noted, whichever list opened us.
    request.predicate = Predicate::andPredicate(
        {Predicate::format(QStringLiteral("id = %@"), QString::number(SelectedCoinID))});
    request.returnsObjectsAsFaults = false;
    Results = fetchOrPrint<Coins>(*managedObjectContext, request).valueOr({});
    ResultsCount = int(Results.size());
    if (ResultsCount > 0) {
        const CoinFormTexts texts = formTexts();
        keepOriginals(*managedObjectContext, texts);
        CoinFormRules::applyEditForm(*Results.first(), texts);
        managedObjectContext->save(); // a failure is dropped: the edit screen reports none
    }
    // What the form shows now is what was saved.
    rememberOpeningState();
}

void EditViewController::SaveButtonClicked() {
    saveForm();
    Console::log(CalledFromList);
    static const QList<std::pair<QString, QString>> returns = {
        {"MAINCOINLIST", "unwindToList"},
        {"DenominationBreakdown", "unwindToDenominationTableView"},
        {"CountryBreakdown", "unwindToCountryTableView"},
        {"YearBreakdown", "unwindToYearTableView"}};
    for (const auto& [origin, unwind] : returns)
        if (CalledFromList == origin) {
            performUnwind(unwind);
            return;
        }
}

void EditViewController::removeImage(bool front) {
    auto* alert =
        new AlertController(front ? tr("Remove Front Coin Image") : tr("Remove Back Coin Image"),
                            tr("Do You Want to Remove This Image?"));
    alert->addAction(tr("Yes"), AlertController::ActionStyle::Default, [this, front] {
        // Found by the values the opening list noted, not by the form's texts.
        std::vector<Predicate> terms = {
            Predicate::format(QStringLiteral("denomination = %@"), SelectedDenomination),
            Predicate::format(QStringLiteral("year = %@"), QString::number(SelectedYear))};
        if (!SelectedSerialNumber.isEmpty())
            terms.push_back(
                Predicate::format(QStringLiteral("serialNumber == %@"), SelectedSerialNumber));
        else
            terms.push_back(Predicate::format(QStringLiteral("mintMark == %@"), SelectedMintMark));
        FetchRequest request(QStringLiteral("Coins"));
        request.predicate = Predicate::andPredicate(terms);
        request.returnsObjectsAsFaults = false;
        const QList<CoinPtr> found =
            fetchOrPrint<Coins>(*Application::viewContext(), request).valueOr({});
        if (found.isEmpty())
            return;
        found.first()->setValue(front ? Coins::Attr::frontImage : Coins::Attr::backImage,
                                QVariant());
        Application::saveRecord(found.first());
        (front ? FrontImage : BackImage)->setImage({});
        rememberShownPicture(front);
    });
    alert->addAction(tr("No"), AlertController::ActionStyle::Cancel);
    present(alert);
}

void EditViewController::TapFrontImage() {
    performSegue(QStringLiteral("Zoom"));
}

QUrl EditViewController::valuationSearchUrl() const {
    return WebSearch::valuationQuery(YearTextField->text(), DenominationTextField->text());
}

void EditViewController::checkValue() {
    const QUrl url = valuationSearchUrl();
    if (url.isValid())
        Platform::browser().openInApp(url);
}

void EditViewController::shareButtonClicked() {
    if (!Platform::messages().canSendText()) {
        TextMessageAlert::presentLater(this);
        return;
    }
    const QImage shot = grab().toImage();
    if (!shot.isNull()) {
        Platform::photoLibrary().save(shot);
        ScreenShotImage = ImageCoding::decode(ImageCoding::jpeg(shot, 1.0));
    }
    ShareItem item;
    item.image = ScreenShotImage;
    Platform::shareSheet().present({item}, {}, this);
}
