#pragma once
// What the add and edit screens share: the form's fields and their input filters, the three
// pickers fed by the reference lists, and the picture actions of both sides.
#include "model/Originals.h"
#include "model/Records.h"
#include "platform/kit/PickerView.h"
#include "platform/kit/TextInput.h"
#include "platform/kit/ViewController.h"
#include "platform/kit/Views.h"
#include "screens/entry/CoinFormRules.h"

#include <QHash>
#include <QPushButton>

#include <optional>

class QFormLayout;
class QLabel;

class CoinFormViewController : public ViewController,
                               public TextInputDelegate,
                               public PickerViewDataSource {
    Q_OBJECT
public:
    explicit CoinFormViewController(QWidget* parent = nullptr);

    TextField *DenominationTextField, *YearTextField, *QuantityTextField, *DescriptionTextField,
        *CountryTextField, *DiameterTextField, *WeightTextField, *ThicknessTextField,
        *StrikeCharacterTextField, *GradeNumberTextField, *EdgeTextField, *MintMarkTextField,
        *MintLocationTextField, *SerialNumberTextField, *PeriodTextField, *DesignerTextField,
        *ValueTextField;
    TextView* NotesTextView;
    ImageView *FrontImage, *BackImage;
    QPushButton *FrontCameraButton, *FrontFolderButton, *FrontRemoveButton, *FrontPasteButton,
        *RearCameraButton, *RearFolderButton, *RearRemoveButton, *RearPasteButton, *SaveButton;
    PickerView *StrikeCharacterPickerView, *GradePickerView, *EdgePickerView;
    ManagedObjectContext* managedObjectContext = nullptr;
    QStringList StrikeCharacterList, GradeNumbersList, EdgeList;
    bool isFrontImage = false, isBackImage = false, isFromCamera = false;
    QImage chosenFrontImage, chosenBackImage;

    // Input filters: digits for tag-1 fields, ".0123456789" for the other numeric fields,
    // the notes' 91 characters.
    bool shouldChangeCharacters(QObject* input, int start, int length,
                                const QString& replacement) override;
    int numberOfRows(PickerView* picker) override;
    QString titleForRow(PickerView* picker, int row) override;
    void didSelectRow(PickerView* picker, int row) override;

    void OpenFrontCamera() { openCamera(true); }
    void OpenBackCamera() { openCamera(false); }
    void AttachFrontImage() { attach(true); }
    void AttachBackImage() { attach(false); }
    void PasteFront() { paste(FrontImage); }
    void PasteRear() { paste(BackImage); }
    // The image picker's and document picker's answers.
    void imageTaken(const QImage& image);
    void documentPicked(const QString& path);
    void dismissKeyboard();
    // A field or picture differs from what the form showed when it opened (or was last saved
    // or filled again).
    bool hasUnsavedChanges() const override;
    // The notice below a filtered input telling which character it refused (hidden when none).
    QLabel* refusedNotice(QObject* input) const { return refusedNotices_.value(input); }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    // The picture views tell a reader when they are empty.
    void describePictures();
    // A click on the form outside its fields ends editing.
    void mousePressEvent(QMouseEvent* event) override;
    // A button of the form; `side` names the picture it acts on to a reader.
    QPushButton* namedButton(QWidget* parent, const QString& title, const char* name,
                             const QString& side = {});
    // The two picture views with their buttons, below the fields.
    void addPictures(QWidget* content, class QVBoxLayout* column);
    // Loads the picker lists, wires the filters and pickers, styles the buttons.
    void setUpForm();
    void loadPickerLists();
    CoinFormTexts formTexts() const;
    void showTexts(const CoinFormTexts& texts);
    // What the form shows now becomes what it opened with.
    void rememberOpeningState();
    // A picture removed from the store at once is no change left to lose.
    void rememberShownPicture(bool front);
    // The photo a view's picture was made from, kept with the coin when it is saved: bytes that
    // are too large to keep are refused with a notice, and the coin keeps its 100 x 100 picture.
    void takeOriginal(ImageView* view, const QByteArray& bytes);
    // The original the store links to a picture the form shows, kept through a save.
    void noteOriginal(ImageView* view, const QByteArray& stored);
    // Before the coin is saved: each side's original kept (written and synced) and linked to
    // the 100 x 100 picture the save stores, so that no saved coin lacks its original.
    void keepOriginals(ManagedObjectContext& context, const CoinFormTexts& texts);
    // Shows the original of the stored `picture` in `view` once it is decoded (off the UI
    // thread, at twice the view's pixels); the view shows its 100 x 100 until then, and for
    // good when the original is missing or damaged.
    void showOriginal(ImageView* view, ManagedObjectContext& context, const QByteArray& picture);
    QFormLayout* form_;

private:
    QHash<QObject*, QLabel*> refusedNotices_;
    // Shows which character `input` refused, or hides its notice when `character` is empty.
    void showRefused(QObject* input, const QString& character);
    // A side's original, for as long as the view shows the picture made from it.
    struct SideOriginal {
        qint64 imageKey = 0;
        QByteArray bytes; // a new photo, not kept yet
        QSize size;
        std::optional<Originals::Original> kept;
    };
    SideOriginal originals_[2];
    SideOriginal& originalOf(ImageView* view) { return originals_[view == FrontImage ? 0 : 1]; }
    struct Shown {
        QStringList texts;
        QImage front, back;
        bool operator==(const Shown&) const = default;
    };
    Shown shown() const;
    std::optional<Shown> opened_;
    void openCamera(bool front);
    void attach(bool front);
    void paste(ImageView* view);
};
