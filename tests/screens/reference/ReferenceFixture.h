#pragma once
// A running program with helpers to read a reference list: what the store holds, what a list
// screen shows, and the buttons by name.
#include "../ScreenFixture.h"
#include "platform/kit/TextTableViewCell.h"
#include "screens/reference/ReferenceTableViewController.h"

class ReferenceScreenTest : public ScreenTest {
protected:
    // The stored values of an entity's one attribute, ascending.
    QStringList stored(const char* entity, const char* attribute) {
        FetchRequest all(QString::fromLatin1(entity));
        all.sortDescriptors = {{QString::fromLatin1(attribute), true}};
        QStringList out;
        for (const ObjectPtr& r : ctx().fetch(all))
            out << r->value(QString::fromLatin1(attribute)).toString();
        return out;
    }
    // What the table shows, row by row.
    static QStringList shown(ReferenceTableViewController* list) {
        QStringList out;
        for (int r = 0; r < list->tableView->numberOfRows(0); ++r)
            out << static_cast<TextTableViewCell*>(list->cellForRow(list->tableView, {0, r}))
                       ->textLabel->text();
        return out;
    }
    QPushButton* button(const char* name) {
        return window->findChild<QPushButton*>(QString::fromLatin1(name));
    }
};
