#pragma once
// The start-up housekeeping the main menu runs on every load: seeding the three reference
// lists on the very first launch and the record-number repair while its preference says so.
#include "model/Records.h"

#include <QStringList>

class UserDefaults;

class LaunchHousekeeping {
public:
    explicit LaunchHousekeeping(UserDefaults& userDefaults);

    // The whole sequence: first-launch check, seeding, repair-flag check, repair.
    void run();
    // Reads the repair flag, writes the value read back under the same key, returns it.
    bool checkRepairFlag();
    // Numbers every coin 1, 2, 3, ... in store order, saving after each coin.
    void fixIDs();

    const QString AboutHasBeenLaunchedBeforeFlag = QStringLiteral("AboutHasBeenLaunchedBeforeFlag");
    const QString IDFixedFlag = QStringLiteral("IDHasBeenFixedFlag");
    static const QStringList StrikeCharacterList;
    static const QStringList GradeNumbersList;
    static const QStringList EdgeList;

    ManagedObjectContext* managedObjectContext = nullptr;
    QList<CoinPtr> CoinList;

private:
    void seed(const QString& entityName, const QStringList& values);
    UserDefaults& userDefaults_;
};
