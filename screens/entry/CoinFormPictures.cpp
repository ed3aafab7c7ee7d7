// The coin form's pictures: their views and buttons; taken from the camera, a file, a drop or
// the clipboard, each kept with the photo it was made from; a stored picture shown from its
// original.
#include "model/PrintedFetch.h"
#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/FileDrop.h"
#include "platform/kit/Symbols.h"
#include "screens/Application.h"
#include "screens/entry/CoinFormViewController.h"
#include "screens/entry/OriginalPictures.h"
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFormLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

void CoinFormViewController::addPictures(QWidget* content, QVBoxLayout* column) {
    auto* pictures = new QGridLayout;
    auto button = [&](const QString& title, const char* name, const QString& side) {
        return namedButton(content, title, name, side);
    };
    FrontImage = new ImageView(content);
    BackImage = new ImageView(content);
    FrontImage->setObjectName(QStringLiteral("FrontImage"));
    BackImage->setObjectName(QStringLiteral("BackImage"));
    FrontImage->setFixedSize(120, 120);
    BackImage->setFixedSize(120, 120);
    FrontImage->setAccessibleName(tr("Front picture"));
    BackImage->setAccessibleName(tr("Back picture"));
    const QString front = tr("Front"), back = tr("Back");
    FrontCameraButton = button(tr("Camera"), "FrontCameraButton", front);
    FrontFolderButton = button(tr("Folder"), "FrontFolderButton", front);
    FrontPasteButton = button(tr("Paste"), "FrontPasteButton", front);
    FrontRemoveButton = button(tr("Remove"), "FrontRemoveButton", front);
    RearCameraButton = button(tr("Camera"), "RearCameraButton", back);
    RearFolderButton = button(tr("Folder"), "RearFolderButton", back);
    RearPasteButton = button(tr("Paste"), "RearPasteButton", back);
    RearRemoveButton = button(tr("Remove"), "RearRemoveButton", back);
    pictures->addWidget(new QLabel(front, content), 0, 0, Qt::AlignCenter);
    pictures->addWidget(new QLabel(back, content), 0, 1, Qt::AlignCenter);
    pictures->addWidget(FrontImage, 1, 0, Qt::AlignCenter);
    pictures->addWidget(BackImage, 1, 1, Qt::AlignCenter);
    int row = 2;
    for (auto [f, b] : {std::pair{FrontCameraButton, RearCameraButton},
                        {FrontFolderButton, RearFolderButton},
                        {FrontPasteButton, RearPasteButton},
                        {FrontRemoveButton, RearRemoveButton}}) {
        pictures->addWidget(f, row, 0);
        pictures->addWidget(b, row++, 1);
    }
    column->addLayout(pictures);

    connect(FrontCameraButton, &QPushButton::clicked, this,
            &CoinFormViewController::OpenFrontCamera);
    connect(RearCameraButton, &QPushButton::clicked, this, &CoinFormViewController::OpenBackCamera);
    connect(FrontFolderButton, &QPushButton::clicked, this,
            &CoinFormViewController::AttachFrontImage);
    connect(RearFolderButton, &QPushButton::clicked, this,
            &CoinFormViewController::AttachBackImage);
    connect(FrontPasteButton, &QPushButton::clicked, this, &CoinFormViewController::PasteFront);
    connect(RearPasteButton, &QPushButton::clicked, this, &CoinFormViewController::PasteRear);
    // A picture dropped on a side is taken as if chosen for it in the file dialog.
    for (ImageView* side : {FrontImage, BackImage})
        FileDrop::accept(side, FileDrop::isPicture,
                         [this, front = side == FrontImage](const QString& path) {
                             isFrontImage = front;
                             isBackImage = !front;
                             documentPicked(path);
                         });
    FrontImage->installEventFilter(this);
    BackImage->installEventFilter(this);
    describePictures();
}

void CoinFormViewController::describePictures() {
    for (ImageView* v : {FrontImage, BackImage})
        v->setAccessibleDescription(v->hasImage() ? QString() : tr("No picture"));
}

bool CoinFormViewController::event(QEvent* event) {
    if (event->type() == QEvent::Show)
        describePictures();
    return ViewController::event(event);
}

void CoinFormViewController::openCamera(bool front) {
    if (!Platform::imagePicker().isCameraAvailable()) {
        present(AlertController::okAlert(tr("Camera"), tr("There is no camera available")));
        return;
    }
    isFrontImage = front;
    isBackImage = !front;
    isFromCamera = true;
    QPointer<CoinFormViewController> self(this);
    Platform::imagePicker().presentCamera(
        this,
        [self](const QImage& image) {
            if (self)
                self->imageTaken(image);
        },
        [self] {
            if (self)
                self->isFromCamera = false;
        });
}

void CoinFormViewController::imageTaken(const QImage& image) {
    // The camera hands over a picture, not a file: its original is that picture as a JPEG.
    if (isFrontImage) {
        chosenFrontImage = image;
        FrontImage->setImage(image);
        takeOriginal(FrontImage, ImageCoding::jpeg(image, 0.92));
        isFrontImage = false;
    } else if (isBackImage) {
        chosenBackImage = image;
        BackImage->setImage(image);
        takeOriginal(BackImage, ImageCoding::jpeg(image, 0.92));
        isBackImage = false;
    }
    isFromCamera = false;
    describePictures();
}

void CoinFormViewController::takeOriginal(ImageView* view, const QByteArray& bytes) {
    SideOriginal& side = originalOf(view);
    side = {};
    const std::optional<QSize> size = ImageCoding::shownSize(bytes);
    if (!size)
        return; // no picture: the view says so by staying empty
    if (!Originals::keepable(bytes.size(), *size)) {
        present(AlertController::okAlert(
            tr("Photo Too Large"),
            view->hasImage()
                ? tr("The photo is larger than 64 megapixels or 50 MB. The coin keeps its 100 x "
                     "100 picture of it, without the photo itself.")
                : tr("The photo is larger than 64 megapixels, more than the catalogue reads.")));
        return;
    }
    if (view->hasImage())
        side = {view->image().cacheKey(), bytes, *size, std::nullopt};
}

void CoinFormViewController::noteOriginal(ImageView* view, const QByteArray& stored) {
    SideOriginal& side = originalOf(view);
    side = {};
    if (!view->hasImage())
        return;
    if (auto o = Originals::of(*Application::viewContext(), stored))
        side = {view->image().cacheKey(), {}, o->size, o};
}

void CoinFormViewController::keepOriginals(ManagedObjectContext& context,
                                           const CoinFormTexts& texts) {
    for (ImageView* view : {FrontImage, BackImage}) {
        SideOriginal& side = originalOf(view);
        const std::optional<QByteArray>& picture =
            view == FrontImage ? texts.frontImage : texts.backImage;
        // A picture changed or removed since leaves its original behind.
        if (!picture || side.imageKey == 0 || view->image().cacheKey() != side.imageKey)
            continue;
        if (!side.kept) {
            const Result<Originals::Original> kept =
                Originals::keep(context, side.bytes, side.size);
            if (!kept.ok()) {
                Console::log(kept.error().description());
                continue;
            }
            side.kept = kept.value();
            side.bytes.clear();
        }
        if (const Result<void> linked = Originals::link(context, *picture, *side.kept);
            !linked.ok())
            Console::log(linked.error().description());
    }
}

void CoinFormViewController::attach(bool front) {
    isFrontImage = front;
    isBackImage = !front;
    QPointer<CoinFormViewController> self(this);
    Platform::documentPicker().open(this,
                                    {tr("Pictures (*.jpg *.jpeg *.png)"), tr("All files (*)")},
                                    [self](const QString& path) {
                                        if (self)
                                            self->documentPicked(path);
                                    },
                                    {});
}

void CoinFormViewController::documentPicked(const QString& path) {
    Console::log(QStringLiteral("Chosen"));
    if (path.isEmpty())
        return;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    // Bytes that are no picture (a PDF, say) leave the view empty.
    const QByteArray bytes = file.readAll();
    ImageView* view = isFrontImage ? FrontImage : BackImage;
    view->setImage(ImageCoding::decode(bytes));
    describePictures();
    takeOriginal(view, bytes);
}

void CoinFormViewController::paste(ImageView* view) {
    const QImage image = QApplication::clipboard()->image();
    if (!image.isNull()) {
        view->setImage(image);
        describePictures();
        takeOriginal(view, ImageCoding::jpeg(image, 0.92));
        return;
    }
    present(AlertController::okAlert(tr("Clipboard"), tr("There is no image in the Clipboard")));
}

void CoinFormViewController::showOriginal(ImageView* view, ManagedObjectContext& context,
                                          const QByteArray& picture) {
    if (picture.isEmpty())
        return;
    const std::optional<Originals::Original> original = Originals::of(context, picture);
    if (!original)
        return;
    // A picture set in the meantime (another coin, a pasted photo) is not covered over.
    const int generation = view->generation();
    const QSize box = (QSizeF(view->size()) * view->devicePixelRatioF() * 2).toSize();
    OriginalPictures::load(view, *original, {box},
                           [view, generation](int, const QList<QImage>& pictures) {
                               if (view->generation() == generation)
                                   view->setShownOriginal(pictures.first());
                           });
}
