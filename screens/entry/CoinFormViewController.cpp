#include "screens/entry/CoinFormViewController.h"
#include "model/PrintedFetch.h"

#include "platform/Platform.h"
#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/Appearance.h"
#include "platform/kit/FileDrop.h"
#include "platform/kit/Symbols.h"
#include "screens/Application.h"
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

namespace {
const QString kDigits = QStringLiteral("0123456789");
const QString kDecimal = QStringLiteral(".0123456789");
const QString kNotes = QStringLiteral(".0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTU"
                                      "VWXYZ,;:-=?!@#$%&*()[]{}/<>_+~`' ");
} // namespace

CoinFormViewController::CoinFormViewController(QWidget* parent)
    : ViewController(parent)
    , StrikeCharacterPickerView(new PickerView(this))
    , GradePickerView(new PickerView(this))
    , EdgePickerView(new PickerView(this)) {
    auto* scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setAccessibleName(tr("Coin details"));
    auto* content = new QWidget(scroll);
    scroll->setWidget(content);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(scroll);
    auto* column = new QVBoxLayout(content);
    form_ = new QFormLayout;
    form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    // A field is read by its label's text; a required one says so to a reader as the red
    // label does on screen.
    auto labelled = [&](const QString& label, QWidget* input, bool required) {
        auto* l = new QLabel(label, content);
        l->setBuddy(input);
        input->setAccessibleName(label);
        if (required) {
            l->setStyleSheet(QStringLiteral("color: red;"));
            input->setAccessibleDescription(tr("Required"));
        }
        form_->addRow(l, input);
    };
    auto field = [&](const QString& label, const char* name, bool required = false) {
        auto* f = new TextField(content);
        f->setObjectName(QString::fromLatin1(name));
        labelled(label, f, required);
        return f;
    };
    DenominationTextField = field(tr("Denomination"), "DenominationTextField", true);
    YearTextField = field(tr("Year"), "YearTextField", true);
    QuantityTextField = field(tr("Quantity"), "QuantityTextField");
    CountryTextField = field(tr("Country"), "CountryTextField");
    MintMarkTextField = field(tr("Mint Mark"), "MintMarkTextField");
    MintLocationTextField = field(tr("Mint Location"), "MintLocationTextField");
    GradeNumberTextField = field(tr("Grade"), "GradeNumberTextField");
    StrikeCharacterTextField = field(tr("Strike"), "StrikeCharacterTextField");
    EdgeTextField = field(tr("Edge"), "EdgeTextField");
    ValueTextField = field(tr("Value"), "ValueTextField");
    DiameterTextField = field(tr("Diameter"), "DiameterTextField");
    WeightTextField = field(tr("Weight"), "WeightTextField");
    ThicknessTextField = field(tr("Thickness"), "ThicknessTextField");
    SerialNumberTextField = field(tr("Serial Number"), "SerialNumberTextField");
    PeriodTextField = field(tr("Period"), "PeriodTextField");
    DesignerTextField = field(tr("Designer"), "DesignerTextField");
    DescriptionTextField = field(tr("Description"), "DescriptionTextField");
    NotesTextView = new TextView(content);
    NotesTextView->setObjectName(QStringLiteral("NotesTextView"));
    NotesTextView->setMaximumHeight(80);
    labelled(tr("Notes"), NotesTextView, false);
    // Each filtered input says, just below it, which character it did not take; hidden until
    // one is refused.
    const QList<QWidget*> filtered = {YearTextField,     QuantityTextField, ValueTextField,
                                      DiameterTextField, WeightTextField,   ThicknessTextField,
                                      NotesTextView};
    for (QWidget* input : filtered) {
        auto* notice = new QLabel(content);
        notice->setObjectName(input->objectName() + QStringLiteral("Refused"));
        notice->setStyleSheet(QStringLiteral("color: #b00020;"));
        notice->setWordWrap(true);
        int row = 0;
        form_->getWidgetPosition(input, &row, nullptr);
        form_->insertRow(row + 1, notice);
        form_->setRowVisible(notice, false);
        refusedNotices_.insert(input, notice);
    }
    column->addLayout(form_);

    addPictures(content, column);
    SaveButton = namedButton(content, tr("Save"), "SaveButton");
    SaveButton->setMinimumHeight(44);
    column->addWidget(SaveButton);
    column->addStretch();
}

QPushButton* CoinFormViewController::namedButton(QWidget* parent, const QString& title,
                                                 const char* name, const QString& side) {
    auto* b = new QPushButton(title, parent);
    b->setObjectName(QString::fromLatin1(name));
    // Both sides show the same titles: a reader hears which side a button acts on.
    b->setAccessibleName(side.isEmpty() ? title : tr("%1: %2").arg(side, title));
    return b;
}

void CoinFormViewController::setUpForm() {
    loadPickerLists();
    isFrontImage = isBackImage = false;
    const std::pair<PickerView*, TextField*> pickers[] = {
        {StrikeCharacterPickerView, StrikeCharacterTextField},
        {GradePickerView, GradeNumberTextField},
        {EdgePickerView, EdgeTextField}};
    int tag = 1;
    for (auto [picker, field] : pickers) {
        picker->setDataSource(this);
        picker->setTag(tag++);
        field->setInputView(picker);
    }
    // Whole numbers take digits only (tag 1); the decimal fields take digits and points.
    YearTextField->setTag(1);
    QuantityTextField->setTag(1);
    for (TextField* f : {YearTextField, QuantityTextField, ValueTextField, DiameterTextField,
                         WeightTextField, ThicknessTextField})
        f->setDelegate(this);
    for (TextField* f : {ValueTextField, DiameterTextField, WeightTextField, ThicknessTextField}) {
        f->removeEventFilter(this);
        f->installEventFilter(this);
    }
    NotesTextView->setDelegate(this);
    for (QPushButton* b :
         {FrontCameraButton, FrontFolderButton, FrontRemoveButton, FrontPasteButton,
          RearCameraButton, RearFolderButton, RearRemoveButton, RearPasteButton, SaveButton})
        Styling::round(b, 10, 2, Qt::black);
    // The picture buttons carry their symbol beside the title.
    for (const auto& [symbol, buttons] :
         {std::pair{"camera.fill", std::pair{FrontCameraButton, RearCameraButton}},
          {"folder.fill", {FrontFolderButton, RearFolderButton}},
          {"doc.on.clipboard.fill", {FrontPasteButton, RearPasteButton}},
          {"delete.left.fill", {FrontRemoveButton, FrontRemoveButton}},
          {"delete.right.fill", {RearRemoveButton, RearRemoveButton}}})
        for (QPushButton* b : {buttons.first, buttons.second}) {
            b->setIcon(Symbols::icon(QString::fromLatin1(symbol), b->palette()));
            b->setIconSize(QSize(20, 20));
        }
    // The empty picture slots show as frames.
    for (ImageView* v : {FrontImage, BackImage})
        Styling::round(v, 5, 1, Appearance::isDark() ? Qt::white : Qt::black);
    showInBar(SaveButton);
}

void CoinFormViewController::loadPickerLists() {
    ManagedObjectContext* context = Application::viewContext();
    auto load = [context](const char* entity, const char* key, QStringList& into) {
        FetchRequest request(QString::fromLatin1(entity));
        request.sortDescriptors = {{QString::fromLatin1(key), true}};
        request.returnsObjectsAsFaults = false;
        for (const ObjectPtr& record : fetchOrPrint(*context, request).valueOr({}))
            into.append(record->value(0).toString());
    };
    load("StrikeCharacters", "strike", StrikeCharacterList);
    load("GradeNumbers", "grade", GradeNumbersList);
    load("CoinEdge", "edge", EdgeList);
}

bool CoinFormViewController::shouldChangeCharacters(QObject* input, int start, int,
                                                    const QString& replacement) {
    if (replacement.isEmpty()) {
        showRefused(input, {});
        return true;
    }
    QString allowed = kNotes;
    auto* field = qobject_cast<TextField*>(input);
    if (field)
        allowed = field->tag() == 1 ? kDigits : kDecimal;
    if (TextInput::onlyCharactersFrom(replacement, allowed)) {
        showRefused(input, {});
        return true;
    }
    // The locale's decimal separator stands for the point the catalogue stores: a pasted
    // "2,50" becomes "2.50" (typed separators are turned into points before they get here).
    if (field && field->tag() != 1) {
        const QString separator = QLocale().decimalPoint();
        const QString mapped = QString(replacement).replace(separator, QStringLiteral("."));
        if (separator != QLatin1String(".") && TextInput::onlyCharactersFrom(mapped, allowed)) {
            showRefused(input, {});
            const QString edited = field->text();
            field->setText(edited.left(start) + mapped + edited.mid(start + replacement.size()));
            // The refused edit puts the cursor back at `start`; it belongs after the paste.
            const int cursor = start + int(mapped.size());
            QMetaObject::invokeMethod(
                field, [field, cursor] { field->setCursorPosition(cursor); }, Qt::QueuedConnection);
            return false;
        }
    }
    for (const QChar c : replacement)
        if (!allowed.contains(c)) {
            showRefused(input, QString(c));
            break;
        }
    return false;
}

void CoinFormViewController::showRefused(QObject* input, const QString& character) {
    QLabel* notice = refusedNotices_.value(input);
    if (!notice)
        return;
    if (character.isEmpty()) {
        form_->setRowVisible(notice, false);
        return;
    }
    // Characters that show as nothing are named instead.
    if (character == QLatin1String(" "))
        notice->setText(tr("A space is not accepted here"));
    else if (character.front().isSpace())
        notice->setText(tr("A line break is not accepted here"));
    else
        notice->setText(tr("\u201C%1\u201D is not accepted here").arg(character));
    form_->setRowVisible(notice, true);
    // A reader hears the notice as it comes, not only when it reaches the label.
    QAccessibleEvent alert(notice, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

bool CoinFormViewController::eventFilter(QObject* watched, QEvent* event) {
    // A picture set or removed anywhere (the edit screen's removal included) is told to a reader
    // by the time it is drawn.
    if (event->type() == QEvent::Paint && (watched == FrontImage || watched == BackImage))
        describePictures();
    // A typed decimal separator of the locale is taken as the point the catalogue stores, so
    // "2,50" typed under a German locale is the same value as "2.50".
    auto* field = qobject_cast<TextField*>(watched);
    if (event->type() == QEvent::KeyPress && field && field->delegate() == this &&
        field->tag() != 1) {
        auto* key = static_cast<QKeyEvent*>(event);
        const QString separator = QLocale().decimalPoint();
        if (separator != QLatin1String(".") && key->text() == separator) {
            QKeyEvent point(QEvent::KeyPress, Qt::Key_Period, key->modifiers(), QStringLiteral("."),
                            key->isAutoRepeat(), ushort(key->count()));
            QCoreApplication::sendEvent(watched, &point);
            return true;
        }
    }
    return ViewController::eventFilter(watched, event);
}

int CoinFormViewController::numberOfRows(PickerView* picker) {
    switch (picker->tag()) {
    case 1:
        return int(StrikeCharacterList.size());
    case 2:
        return int(GradeNumbersList.size());
    case 3:
        return int(EdgeList.size());
    default:
        return 0;
    }
}

QString CoinFormViewController::titleForRow(PickerView* picker, int row) {
    switch (picker->tag()) {
    case 1:
        return StrikeCharacterList.value(row);
    case 2:
        return GradeNumbersList.value(row);
    case 3:
        return EdgeList.value(row);
    default:
        return {};
    }
}

void CoinFormViewController::didSelectRow(PickerView* picker, int row) {
    const QString value = titleForRow(picker, row);
    if (picker->tag() == 1)
        StrikeCharacterTextField->setText(value);
    else if (picker->tag() == 2)
        GradeNumberTextField->setText(value);
    else if (picker->tag() == 3)
        EdgeTextField->setText(value);
}

void CoinFormViewController::mousePressEvent(QMouseEvent* event) {
    dismissKeyboard();
    ViewController::mousePressEvent(event);
}

void CoinFormViewController::dismissKeyboard() {
    if (QWidget* focus = QApplication::focusWidget())
        focus->clearFocus();
}

CoinFormViewController::Shown CoinFormViewController::shown() const {
    Shown now;
    for (const TextField* f : findChildren<TextField*>())
        now.texts.append(f->text());
    now.texts.append(NotesTextView->text());
    now.front = FrontImage->image();
    now.back = BackImage->image();
    return now;
}

void CoinFormViewController::rememberOpeningState() {
    opened_ = shown();
}

void CoinFormViewController::rememberShownPicture(bool front) {
    if (opened_)
        (front ? opened_->front : opened_->back) = (front ? FrontImage : BackImage)->image();
}

bool CoinFormViewController::hasUnsavedChanges() const {
    return opened_ && shown() != *opened_;
}

CoinFormTexts CoinFormViewController::formTexts() const {
    CoinFormTexts t;
    t.denomination = DenominationTextField->text();
    t.year = YearTextField->text();
    t.quantity = QuantityTextField->text();
    t.descrip = DescriptionTextField->text();
    t.country = CountryTextField->text();
    t.diameter = DiameterTextField->text();
    t.weight = WeightTextField->text();
    t.thickness = ThicknessTextField->text();
    t.edge = EdgeTextField->text();
    t.value = ValueTextField->text();
    t.strikeCharacter = StrikeCharacterTextField->text();
    t.gradeNumber = GradeNumberTextField->text();
    t.mintMark = MintMarkTextField->text();
    t.mintLocation = MintLocationTextField->text();
    t.serialNumber = SerialNumberTextField->text();
    t.period = PeriodTextField->text();
    t.designer = DesignerTextField->text();
    t.notes = NotesTextView->text();
    if (FrontImage->hasImage())
        t.frontImage = ImageCoding::coinPictureData(FrontImage->image());
    if (BackImage->hasImage())
        t.backImage = ImageCoding::coinPictureData(BackImage->image());
    return t;
}

void CoinFormViewController::showTexts(const CoinFormTexts& t) {
    DenominationTextField->setText(t.denomination);
    YearTextField->setText(t.year);
    QuantityTextField->setText(t.quantity);
    DescriptionTextField->setText(t.descrip);
    CountryTextField->setText(t.country);
    DiameterTextField->setText(t.diameter);
    WeightTextField->setText(t.weight);
    ThicknessTextField->setText(t.thickness);
    EdgeTextField->setText(t.edge);
    ValueTextField->setText(t.value);
    StrikeCharacterTextField->setText(t.strikeCharacter);
    GradeNumberTextField->setText(t.gradeNumber);
    MintMarkTextField->setText(t.mintMark);
    MintLocationTextField->setText(t.mintLocation);
    SerialNumberTextField->setText(t.serialNumber);
    PeriodTextField->setText(t.period);
    DesignerTextField->setText(t.designer);
    NotesTextView->setText(t.notes);
}
