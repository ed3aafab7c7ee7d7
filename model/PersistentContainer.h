#pragma once
// The persistent container: one SQLite file "<name>.sqlite" in the application data folder and
// the one main context over it.
#include "model/ManagedObjectContext.h"
#include "model/StoreError.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>

class SqliteDatabase;

struct StoreDescription {
    QString path;
};

class PersistentContainer {
public:
    // The schema this build writes; a store with a newer one is refused, not touched.
    static constexpr int SchemaVersion = 2;

    explicit PersistentContainer(QString name);
    ~PersistentContainer();

    using Completion =
        std::function<void(const StoreDescription&, const std::optional<StoreError>&)>;
    void loadPersistentStores(const Completion& completion);
    ManagedObjectContext* viewContext() const { return context_.get(); }
    QString name() const { return name_; }

    // Where stores live: QStandardPaths::AppDataLocation unless set (--data-dir, tests).
    static void setDefaultDirectory(const QString& dir);
    static QString defaultDirectory();

private:
    std::optional<StoreError> open(const QString& path);

    QString name_;
    std::unique_ptr<SqliteDatabase> db_;
    std::unique_ptr<ManagedObjectContext> context_;
};
