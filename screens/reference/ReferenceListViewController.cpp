#include "screens/reference/ReferenceListViewController.h"

#include "platform/kit/Appearance.h"
#include "screens/reference/ReferenceKinds.h"

#include <QVBoxLayout>

ReferenceListViewController::ReferenceListViewController(QWidget* parent)
    : ViewController(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 24);
    layout->setSpacing(16);
    layout->addStretch(1);
    auto button = [&](const ReferenceListKind& kind) {
        auto* b = new QPushButton(ReferenceKinds::tr(kind.hubTitle), this);
        b->setObjectName(kind.hubButton);
        b->setMinimumHeight(48);
        layout->addWidget(b);
        const QString segue = kind.listSegue;
        connect(b, &QPushButton::clicked, this, [this, segue] { performSegue(segue); });
        return b;
    };
    GradeNumberButton = button(ReferenceKinds::gradeList());
    StrikeCharacterButton = button(ReferenceKinds::strikeList());
    EdgeButton = button(ReferenceKinds::edgeList());
    layout->addStretch(2);
}

void ReferenceListViewController::viewDidLoad() {
    setTitle(tr("Reference Lists"));
    for (QPushButton* b : {GradeNumberButton, StrikeCharacterButton, EdgeButton})
        Styling::round(b, 10, 2, Qt::black);
}
