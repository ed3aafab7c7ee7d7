#include "screens/reference/EditReferenceViewController.h"

#include "model/ManagedObjectContext.h"
#include "model/Predicate.h"
#include "model/PrintedFetch.h"
#include "screens/Application.h"
#include "screens/entry/CoinFormRules.h"

EditReferenceViewController::EditReferenceViewController(const ReferenceValueKind& kind,
                                                         QWidget* parent)
    : ReferenceValueViewController(kind, kind.editField, parent) {}

void EditReferenceViewController::viewDidLoad() {
    if (detailItem)
        textField->setText(detailItem->value(attribute()).toString());
    setUpField(ReferenceKinds::tr(kind().editTitle));
}

void EditReferenceViewController::save() {
    managedObjectContext = Application::viewContext();
    // Looked up by the value chosen in the list, not by detailItem; the first match is renamed.
    FetchRequest request(kind().list->entity);
    request.predicate = Predicate::format(kind().lookupFormat, *kind().list->selection);
    Results = fetchOrPrint(*managedObjectContext, request).valueOr({});
    ResultsCount = int(Results.size());
    if (ResultsCount >= 1) {
        const ObjectPtr& record = Results.first();
        const QString text = textField->text();
        // Cleared, the value becomes the empty text, never "no value".
        record->setValue(attribute(),
                         text.isEmpty() ? QStringLiteral("") : CoinFormRules::trimmed(text));
        saveLogged(record);
    }
    returnToList();
}
