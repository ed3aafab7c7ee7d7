#include "screens/reference/AddReferenceViewController.h"

#include "model/ManagedObjectContext.h"
#include "model/PrintedFetch.h"
#include "platform/core/Fatal.h"
#include "platform/kit/AlertController.h"
#include "screens/Application.h"
#include "screens/entry/CoinFormRules.h"

AddReferenceViewController::AddReferenceViewController(const ReferenceValueKind& kind,
                                                       QWidget* parent)
    : ReferenceValueViewController(kind, kind.addField, parent) {}

void AddReferenceViewController::viewDidLoad() {
    setUpField(ReferenceKinds::tr(kind().addTitle));
    FetchRequest request(kind().list->entity);
    request.returnsObjectsAsFaults = false;
    for (const ObjectPtr& record : fetchOrPrint(*Application::viewContext(), request).valueOr({})) {
        if (!record->hasValue(attribute()))
            fatalError(QStringLiteral("A stored reference value is missing"),
                       "Pelvane/AddReferenceViewController", __LINE__);
        StoredValues.append(record->value(attribute()).toString());
    }
}

void AddReferenceViewController::save() {
    const QString text = textField->text();
    if (text.isEmpty()) {
        present(AlertController::okAlert(tr("Record not Saved!"),
                                         ReferenceKinds::tr(kind().emptyMessage)));
        return;
    }
    // Deliberately the text as typed against the stored (trimmed) values: " VF" passes.
    if (StoredValues.contains(text)) {
        present(AlertController::okAlert(tr("Record not Saved!"), tr("Duplicates not allowed")));
        return;
    }
    managedObjectContext = Application::viewContext();
    const ObjectPtr record = managedObjectContext->insertNewObject(kind().list->entity);
    record->setValue(attribute(), CoinFormRules::trimmed(text));
    saveLogged(record);
    returnToList();
}
