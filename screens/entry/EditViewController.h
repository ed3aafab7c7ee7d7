#pragma once
// Changing one coin, opened from the main list or a breakdown list; returns to whichever
// opened it.
#include "screens/DetailReceiver.h"
#include "screens/entry/CoinFormViewController.h"
#include "screens/feedback/ReviewService.h"

class EditViewController : public CoinFormViewController, public DetailReceiver {
    Q_OBJECT
public:
    explicit EditViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;
    // An undo changed the coin: the form shows it as it now is; a coin the undo took away
    // leaves the form.
    void storeChanged() override;
    void setDetailItem(const CoinPtr& coin) override { detailItem = coin; }
    void prepareForSegue(StoryboardSegue& segue, QObject* sender) override;

    void SaveButtonClicked();
    // Opens the notes; a form holding changes first asks to save or discard them (coming back
    // fills it from the coin again).
    void NotesButtonClicked();
    void RemoveFrontImage() { removeImage(true); }
    void RemoveBackImage() { removeImage(false); }
    void TapFrontImage();
    void checkValue();
    void shareButtonClicked();
    // The valuation search address for the form's year and denomination.
    QUrl valuationSearchUrl() const;

    QPushButton *NotesButton, *ShareButton;
    CoinPtr detailItem;
    QList<CoinPtr> Results;
    int ResultsCount = 0;
    QList<CoinPtr> CoinList;
    QImage ScreenShotImage;
    ReviewService reviewService;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class QTimer* longPress_ = nullptr;
    void fillForm();
    // Writes the form into the coin the main list noted, as Save does, without leaving.
    void saveForm();
    void removeImage(bool front);
};
