#include "screens/reference/ReferenceValueViewController.h"

#include "model/ManagedObjectContext.h"
#include "platform/core/Console.h"
#include "platform/kit/Appearance.h"

#include <QApplication>
#include <QVBoxLayout>

ReferenceValueViewController::ReferenceValueViewController(const ReferenceValueKind& kind,
                                                           const QString& fieldName,
                                                           QWidget* parent)
    : ViewController(parent)
    , textField(new TextField(this))
    , SaveButton(new QPushButton(tr("Save"), this))
    , kind_(kind)
    , attribute_(Model::entity(kind.list->entity)->indexOf(kind.list->attribute)) {
    textField->setObjectName(fieldName);
    textField->setAccessibleName(ReferenceKinds::tr(kind.list->valueName));
    textField->setMinimumHeight(40);
    SaveButton->setObjectName(kind.saveAction);
    SaveButton->setMinimumHeight(44);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addWidget(textField);
    layout->addWidget(SaveButton);
    layout->addStretch();
    connect(SaveButton, &QPushButton::clicked, this, [this] { save(); });
    addKeyCommand(QKeySequence::Save, [this] { save(); });
}

void ReferenceValueViewController::setUpField(const QString& title) {
    setTitle(title);
    textField->setDelegate(this);
    textField->setFocus();
    Styling::round(textField, 5, 1, Appearance::isDark() ? Qt::white : Qt::black);
    Styling::round(SaveButton, 10, 2, Qt::black);
    showInBar(SaveButton);
}

void ReferenceValueViewController::viewDidAppear(bool) {
    // Again once shown: the bar button that opened the screen goes with the old bar and hands
    // its focus on to the next control.
    textField->setFocus();
}

void ReferenceValueViewController::dismissKeyboard() {
    if (QWidget* focus = QApplication::focusWidget(); focus && isAncestorOf(focus))
        focus->clearFocus();
}

void ReferenceValueViewController::mousePressEvent(QMouseEvent* event) {
    ViewController::mousePressEvent(event);
    dismissKeyboard();
}

void ReferenceValueViewController::saveLogged(const ObjectPtr& record) {
    ManagedObjectContext* context = record->managedObjectContext();
    if (!context)
        return;
    if (const auto error = context->save(); !error.ok())
        Console::log(error.error().description());
}

void ReferenceValueViewController::returnToList() {
    performUnwind(kind_.returnSegue);
}
