#pragma once
// The hub of the reference lists: one styled button per list, each opening its list screen.
#include "platform/kit/ViewController.h"

#include <QPushButton>

class ReferenceListViewController : public ViewController {
    Q_OBJECT
public:
    explicit ReferenceListViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;

    QPushButton *GradeNumberButton, *StrikeCharacterButton, *EdgeButton;
};
