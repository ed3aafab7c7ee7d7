#include "screens/reference/ReferenceKinds.h"

#include "screens/ProcessState.h"

namespace ReferenceKinds {

// The list screens.
const ReferenceListKind& gradeList() {
    static const ReferenceListKind kind{
        .hubButton = "GradeNumberButton",
        .hubTitle = "Grade Numbers",
        .listSegue = "GradeNumberList",
        .entity = "GradeNumbers",
        .attribute = "grade",
        .title = "Grade Number List",
        .placeholder = "Search by Grade Number",
        .editSegue = "showGrade",
        .addSegue = "AddGradeNumber",
        .unwind = "unwindToGradeTableView",
        .selection = &SelectedGrade,
    };
    return kind;
}

const ReferenceListKind& strikeList() {
    static const ReferenceListKind kind{
        .hubButton = "StrikeCharacterButton",
        .hubTitle = "Strike Characters",
        .listSegue = "StrikeCharacterList",
        .entity = "StrikeCharacters",
        .attribute = "strike",
        .title = "Strike Character List",
        .placeholder = "Search by Strike Character",
        .editSegue = "showStrike",
        .addSegue = "AddStrikeCharacter",
        .unwind = "unwindToStrikeTableView",
        .selection = &SelectedStrikeCharacter,
    };
    return kind;
}

const ReferenceListKind& edgeList() {
    static const ReferenceListKind kind{
        .hubButton = "EdgeButton",
        .hubTitle = "Edges",
        .listSegue = "EdgeList",
        .entity = "CoinEdge",
        .attribute = "edge",
        .title = "Edge List",
        .placeholder = "Search by Edge",
        .editSegue = "showEdge",
        .addSegue = "AddEdge",
        .unwind = "unwindToEdgeTableView",
        .selection = &SelectedEdge,
    };
    return kind;
}

// The add and edit screens. The grade and strike screens' save action is "SaveGenre" on
// purpose.
const ReferenceValueKind& grade() {
    static const ReferenceValueKind kind{
        .list = &gradeList(),
        .addTitle = "Add Grade Numbers",
        .addField = "GradeTextField",
        .emptyMessage = "Grade Number not Entered",
        .editTitle = "Edit Grade Numbers",
        .editField = "GradeNumberTextField",
        .lookupFormat = "grade = %@",
        .saveAction = "SaveGenre",
        .returnSegue = "unwindToGradeTableView",
    };
    return kind;
}

const ReferenceValueKind& strike() {
    static const ReferenceValueKind kind{
        .list = &strikeList(),
        .addTitle = "Add Strike Character",
        .addField = "StrikeTextField",
        .emptyMessage = "Strike Character not Entered",
        .editTitle = "Edit Strike Characters",
        .editField = "StrikeCharacterTextField",
        .lookupFormat = "strike = %@",
        .saveAction = "SaveGenre",
        .returnSegue = "unwindToStrikeTableView",
    };
    return kind;
}

const ReferenceValueKind& edge() {
    static const ReferenceValueKind kind{
        .list = &edgeList(),
        .addTitle = "Add Edge",
        .addField = "EdgeTextField",
        .emptyMessage = "Edge not Entered",
        .editTitle = "Edit Edge",
        .editField = "EdgeTextField",
        .lookupFormat = "edge = %@",
        .saveAction = "SaveEdge",
        .returnSegue = "unwindToEdgeTableView",
    };
    return kind;
}

} // namespace ReferenceKinds
