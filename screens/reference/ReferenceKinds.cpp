#include "screens/reference/ReferenceKinds.h"

#include "screens/ProcessState.h"

#include <QCoreApplication>

namespace ReferenceKinds {

QString tr(const char* text) {
    return QCoreApplication::translate("ReferenceKinds", text);
}

// The list screens.
const ReferenceListKind& gradeList() {
    static const ReferenceListKind kind{
        .hubButton = "GradeNumberButton",
        .listSegue = "GradeNumberList",
        .hubTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Grade Numbers"),
        .entity = "GradeNumbers",
        .attribute = "grade",
        .title = QT_TRANSLATE_NOOP("ReferenceKinds", "Grade Number List"),
        .placeholder = QT_TRANSLATE_NOOP("ReferenceKinds", "Search by Grade Number"),
        .valueName = QT_TRANSLATE_NOOP("ReferenceKinds", "Grade Number"),
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
        .listSegue = "StrikeCharacterList",
        .hubTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Strike Characters"),
        .entity = "StrikeCharacters",
        .attribute = "strike",
        .title = QT_TRANSLATE_NOOP("ReferenceKinds", "Strike Character List"),
        .placeholder = QT_TRANSLATE_NOOP("ReferenceKinds", "Search by Strike Character"),
        .valueName = QT_TRANSLATE_NOOP("ReferenceKinds", "Strike Character"),
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
        .listSegue = "EdgeList",
        .hubTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Edges"),
        .entity = "CoinEdge",
        .attribute = "edge",
        .title = QT_TRANSLATE_NOOP("ReferenceKinds", "Edge List"),
        .placeholder = QT_TRANSLATE_NOOP("ReferenceKinds", "Search by Edge"),
        .valueName = QT_TRANSLATE_NOOP("ReferenceKinds", "Edge"),
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
        .addTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Add Grade Numbers"),
        .addField = "GradeTextField",
        .emptyMessage = QT_TRANSLATE_NOOP("ReferenceKinds", "Grade Number not Entered"),
        .editTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Edit Grade Numbers"),
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
        .addTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Add Strike Character"),
        .addField = "StrikeTextField",
        .emptyMessage = QT_TRANSLATE_NOOP("ReferenceKinds", "Strike Character not Entered"),
        .editTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Edit Strike Characters"),
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
        .addTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Add Edge"),
        .addField = "EdgeTextField",
        .emptyMessage = QT_TRANSLATE_NOOP("ReferenceKinds", "Edge not Entered"),
        .editTitle = QT_TRANSLATE_NOOP("ReferenceKinds", "Edit Edge"),
        .editField = "EdgeTextField",
        .lookupFormat = "edge = %@",
        .saveAction = "SaveEdge",
        .returnSegue = "unwindToEdgeTableView",
    };
    return kind;
}

} // namespace ReferenceKinds
