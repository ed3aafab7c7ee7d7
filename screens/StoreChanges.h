#pragma once
// Tells the open screens that the collection changed behind their records (an undo, a redo, a
// version or a coin put back): each shows the result at once, as it would on coming back.
#include "platform/core/Error.h"
#include "platform/kit/AlertController.h"
#include "platform/kit/ViewController.h"

#include <QObject>

class StoreChanges : public QObject {
    Q_OBJECT
public:
    static StoreChanges& instance();
    // Said after the journal wrote a step of its own.
    static void notify() { emit instance().changed(); }
    // What came of such a write made from `screen`: a failure in an alert titled `failed`, a
    // success shown by every screen.
    template <typename T>
    static void report(ViewController* screen, const QString& failed, const Result<T>& done) {
        if (!done.ok()) {
            screen->present(AlertController::okAlert(failed, done.error().message));
            return;
        }
        notify();
    }

signals:
    void changed();
};
