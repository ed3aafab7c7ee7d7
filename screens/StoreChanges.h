#pragma once
// Tells the open screens that the collection changed behind their records (an undo, a redo, a
// version or a coin put back): each shows the result at once, as it would on coming back.
#include <QObject>

class StoreChanges : public QObject {
    Q_OBJECT
public:
    static StoreChanges& instance();
    // Said after the journal wrote a step of its own.
    static void notify() { emit instance().changed(); }

signals:
    void changed();
};
