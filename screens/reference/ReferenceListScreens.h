#pragma once
// The three reference list screens, each its row of ReferenceKinds under its own names.
#include "screens/reference/ReferenceTableViewController.h"

class GradeNumberTableViewController : public ReferenceTableViewController {
    Q_OBJECT
public:
    explicit GradeNumberTableViewController(QWidget* parent = nullptr)
        : ReferenceTableViewController(ReferenceKinds::gradeList(), parent) {}
    QList<ObjectPtr>& ListOfGrades = List;
    QList<ObjectPtr>& FilteredListOfGrades = FilteredList;
    qint16& GradeCount = Count;
    void unwindToGradeTableViewWithSegue(StoryboardSegue& segue) { unwindToTableView(segue); }
};

class StrikeCharacterTableViewController : public ReferenceTableViewController {
    Q_OBJECT
public:
    explicit StrikeCharacterTableViewController(QWidget* parent = nullptr)
        : ReferenceTableViewController(ReferenceKinds::strikeList(), parent) {}
    QList<ObjectPtr>& ListOfStrike = List;
    QList<ObjectPtr>& FilteredListOfStrike = FilteredList;
    qint16& StrikeCount = Count;
    void unwindToStrikeTableViewWithSegue(StoryboardSegue& segue) { unwindToTableView(segue); }
};

class EdgeTableViewController : public ReferenceTableViewController {
    Q_OBJECT
public:
    explicit EdgeTableViewController(QWidget* parent = nullptr)
        : ReferenceTableViewController(ReferenceKinds::edgeList(), parent) {}
    QList<ObjectPtr>& ListOfEdges = List;
    QList<ObjectPtr>& FilteredListOfEdges = FilteredList;
    qint16& EdgeCount = Count;
    void unwindToEdgeTableViewWithSegue(StoryboardSegue& segue) { unwindToTableView(segue); }
};
