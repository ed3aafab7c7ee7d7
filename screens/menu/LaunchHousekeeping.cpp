#include "screens/menu/LaunchHousekeeping.h"
#include "model/PrintedFetch.h"

#include "model/Journal.h"
#include "model/Originals.h"
#include "model/PersistentContainer.h"
#include "model/Snapshots.h"
#include "model/ValueHistory.h"
#include "platform/core/Console.h"
#include "platform/core/Fatal.h"
#include "platform/core/UserDefaults.h"
#include "screens/Application.h"

// "RY" stands before "RFY" on purpose, as collectors list them.
const QStringList LaunchHousekeeping::StrikeCharacterList = {
    "5DP", "5FS", "5PL", "6DP", "6FS", "6PL", "BN",  "BNB", "BNC", "BND", "BNM", "BNP", "BNS",
    "BNU", "CA",  "DFM", "DME", "DPL", "EH",  "EHD", "EHP", "EPF", "EU",  "FB",  "FBD", "FBL",
    "FBP", "FD",  "FDD", "FDP", "FH",  "FHD", "FHP", "FLD", "FLP", "FM",  "FT",  "FTD", "FTP",
    "MA",  "ME",  "PFM", "PL",  "PME", "RB",  "RBB", "RBC", "RBD", "RBM", "RBP", "RBS", "RBU",
    "RD",  "RDB", "RDC", "RDD", "RDM", "RDP", "RDS", "RDU", "RFD", "RY",  "RFY", "SA",  "UC"};

// Best to worst. "VG-1-" is stored exactly so; existing collections carry that text.
const QStringList LaunchHousekeeping::GradeNumbersList = {
    "MS/PF-70", "MS/PF-69", "MS/PF-68", "MS/PF-67", "MS/PF-66", "MS/PF-65", "MS/PF-64", "MS/PF-63",
    "MS/PF-62", "MS/PF-61", "MS/PF-60", "AU-58",    "AU-55",    "AU-53",    "AU-50",    "XF-45",
    "XF-40",    "VF-35",    "VF-30",    "VF-25",    "VF-20",    "F-15",     "F-12",     "VG-1-",
    "VG-8",     "G-6",      "G-4",      "AG-3",     "FR-2",     "PO-1"};

const QStringList LaunchHousekeeping::EdgeList = {"Plain",   "Ridged", "Smooth",
                                                  "Grooved", "Milled", "Reeded"};

LaunchHousekeeping::LaunchHousekeeping(UserDefaults& userDefaults)
    : userDefaults_(userDefaults) {}

void LaunchHousekeeping::run() {
    ManagedObjectContext& context = *Application::viewContext();
    // The journal keeps what an undo, a version or a coin put back may still need, no more.
    if (const Result<qint64> pruned = Journal::prune(context, ValueHistory::now()); !pruned.ok())
        Console::log(pruned.error().description());
    // Then the photos nothing can bring back any more: not the collection, its journal, nor a
    // snapshot.
    const QString store = Application::delegate().persistentContainer().storePath();
    QStringList snapshots;
    for (const Snapshots::Entry& e : Snapshots::list(store))
        snapshots << e.path;
    if (const Result<int> collected = Originals::collect(context, store, snapshots);
        !collected.ok())
        Console::log(collected.error().description());
    bool repair = false;
    if (!userDefaults_.boolForKey(AboutHasBeenLaunchedBeforeFlag)) {
        userDefaults_.setBool(true, AboutHasBeenLaunchedBeforeFlag);
        userDefaults_.synchronize();
        Console::print(QStringLiteral("First Launch"));
        {
            const Journal::Step step(context, Journal::Seed,
                                     QString::number(StrikeCharacterList.size() +
                                                     GradeNumbersList.size() + EdgeList.size()));
            seed(QStringLiteral("StrikeCharacters"), StrikeCharacterList);
            seed(QStringLiteral("GradeNumbers"), GradeNumbersList);
            seed(QStringLiteral("CoinEdge"), EdgeList);
        }
        repair = checkRepairFlag();
    } else {
        Console::print(QStringLiteral("Not First Launch"));
        repair = checkRepairFlag();
    }
    if (repair) {
        Console::print(QStringLiteral("Fixing ID's"));
        fixIDs();
    }
}

bool LaunchHousekeeping::checkRepairFlag() {
    // The flag is the switch for the repair: it is only ever rewritten as found, never set.
    const bool value = userDefaults_.boolForKey(IDFixedFlag);
    userDefaults_.setBool(value, IDFixedFlag);
    if (value)
        userDefaults_.synchronize();
    return value;
}

void LaunchHousekeeping::seed(const QString& entityName, const QStringList& values) {
    managedObjectContext = Application::viewContext();
    if (values.isEmpty())
        return;
    for (const QString& value : values) {
        FetchRequest unused(entityName); // built, never executed
        unused.returnsObjectsAsFaults = false;
        ObjectPtr record = managedObjectContext->insertNewObject(entityName);
        record->setValue(0, value);
        Application::saveRecord(record);
    }
}

void LaunchHousekeeping::fixIDs() {
    ManagedObjectContext* context = Application::viewContext();
    FetchRequest request(QStringLiteral("Coins"));
    request.returnsObjectsAsFaults = false;
    // Appended, not replaced: a second repair in the same life renumbers the earlier ones too.
    CoinList.append(fetchOrPrint<Coins>(*context, request).valueOr({}));
    const Journal::Step step(*context, Journal::Repair,
                             QStringLiteral("%1 coins").arg(CoinList.size()));
    qint16 counter = 0;
    for (const CoinPtr& coin : std::as_const(CoinList)) {
        if (counter == 32767)
            fatalError(QStringLiteral("Arithmetic overflow"), "Pelvane/MainMenuViewController",
                       __LINE__);
        if (QString::number(coin->id()).isEmpty()) {
            coin->setId(1);
            ++counter;
        } else {
            ++counter;
            coin->setId(counter);
        }
        Application::saveRecord(coin);
    }
}
