#pragma once
// The three add and three edit screens of the reference lists, each its row of ReferenceKinds
// under its own names.
#include "screens/reference/AddReferenceViewController.h"
#include "screens/reference/EditReferenceViewController.h"

class AddGradeNumberViewController : public AddReferenceViewController {
    Q_OBJECT
public:
    explicit AddGradeNumberViewController(QWidget* parent = nullptr)
        : AddReferenceViewController(ReferenceKinds::grade(), parent) {}
    TextField*& GradeTextField = textField;
    QStringList& ListOfGrades = StoredValues;
    void SaveGenre() { save(); }
};

class AddStrikeCharacterViewController : public AddReferenceViewController {
    Q_OBJECT
public:
    explicit AddStrikeCharacterViewController(QWidget* parent = nullptr)
        : AddReferenceViewController(ReferenceKinds::strike(), parent) {}
    TextField*& StrikeTextField = textField;
    QStringList& ListOfStrike = StoredValues;
    void SaveGenre() { save(); }
};

class AddEdgeViewController : public AddReferenceViewController {
    Q_OBJECT
public:
    explicit AddEdgeViewController(QWidget* parent = nullptr)
        : AddReferenceViewController(ReferenceKinds::edge(), parent) {}
    TextField*& EdgeTextField = textField;
    QStringList& ListOfEdges = StoredValues;
    void SaveEdge() { save(); }
};

class EditGradeNumberViewController : public EditReferenceViewController {
    Q_OBJECT
public:
    explicit EditGradeNumberViewController(QWidget* parent = nullptr)
        : EditReferenceViewController(ReferenceKinds::grade(), parent) {}
    TextField*& GradeNumberTextField = textField;
    void SaveGenre() { save(); }
};

class EditStrikeCharacterViewController : public EditReferenceViewController {
    Q_OBJECT
public:
    explicit EditStrikeCharacterViewController(QWidget* parent = nullptr)
        : EditReferenceViewController(ReferenceKinds::strike(), parent) {}
    TextField*& StrikeCharacterTextField = textField;
    void SaveGenre() { save(); }
};

class EditEdgeViewController : public EditReferenceViewController {
    Q_OBJECT
public:
    explicit EditEdgeViewController(QWidget* parent = nullptr)
        : EditReferenceViewController(ReferenceKinds::edge(), parent) {}
    TextField*& EdgeTextField = textField;
    void SaveEdge() { save(); }
};
