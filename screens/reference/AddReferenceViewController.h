#pragma once
// Adds one value to a reference list after two checks: not empty, not already stored as typed.
#include "screens/reference/ReferenceValueViewController.h"

#include <QStringList>

class AddReferenceViewController : public ReferenceValueViewController {
    Q_OBJECT
public:
    explicit AddReferenceViewController(const ReferenceValueKind& kind, QWidget* parent = nullptr);
    void viewDidLoad() override;
    void save() override;

    // Every stored value, as loaded with the screen.
    QStringList StoredValues;
};
