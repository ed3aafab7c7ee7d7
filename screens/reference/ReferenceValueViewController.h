#pragma once
// What the add and edit screens of a reference value share: one text field with the focus, a
// save button, a tap outside the field that hides the keyboard, and the return to the list.
#include "model/ManagedObject.h"
#include "platform/kit/TextInput.h"
#include "platform/kit/ViewController.h"
#include "screens/reference/ReferenceKinds.h"

#include <QPushButton>

class ManagedObjectContext;

class ReferenceValueViewController : public ViewController, public TextInputDelegate {
    Q_OBJECT
public:
    const ReferenceValueKind& kind() const { return kind_; }
    // The save action (SaveGenre / SaveEdge).
    virtual void save() = 0;
    void dismissKeyboard();
    void viewDidAppear(bool animated) override;

    TextField* textField;
    QPushButton* SaveButton;
    ManagedObjectContext* managedObjectContext = nullptr;

protected:
    ReferenceValueViewController(const ReferenceValueKind& kind, const QString& fieldName,
                                 QWidget* parent);
    // The title, the field's delegate, focus and frame.
    void setUpField(const QString& title);
    // Saves the record's context; a failure goes to the log and changes nothing else.
    static void saveLogged(const ObjectPtr& record);
    void returnToList();
    int attribute() const { return attribute_; }
    void mousePressEvent(QMouseEvent* event) override;

private:
    const ReferenceValueKind& kind_;
    int attribute_;
};
