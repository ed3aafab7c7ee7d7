#pragma once
// Renames the reference value chosen in its list. No checks: a value may become empty or equal
// another one.
#include "screens/reference/ReferenceValueViewController.h"

class EditReferenceViewController : public ReferenceValueViewController {
    Q_OBJECT
public:
    explicit EditReferenceViewController(const ReferenceValueKind& kind, QWidget* parent = nullptr);
    void viewDidLoad() override;
    void save() override;

    // The record the list handed over; shown, but the save looks the value up again.
    ObjectPtr detailItem;
    QList<ObjectPtr> Results;
    int ResultsCount = 0;
};
