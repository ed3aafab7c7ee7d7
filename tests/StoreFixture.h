#pragma once
#include "TestSupport.h"
#include "model/PersistentContainer.h"
#include "model/Records.h"

// A real store on disk in the test's own folder.
class StoreTest : public PelvaneTest {
protected:
    void SetUp() override {
        PelvaneTest::SetUp();
        PersistentContainer::setDefaultDirectory(dir());
        reopen();
    }
    void TearDown() override {
        container.reset();
        PelvaneTest::TearDown();
    }
    void reopen() {
        container.reset();
        container = std::make_unique<PersistentContainer>(QStringLiteral("Pelvane"));
        std::optional<Error> failure;
        container->loadPersistentStores(
            [&](const StoreDescription&, const std::optional<Error>& e) { failure = e; });
        ASSERT_FALSE(failure.has_value()) << failure->description().toStdString();
    }
    ManagedObjectContext& ctx() { return *container->viewContext(); }

    CoinPtr coin(const QString& country, const QString& denomination, int year,
                 const QString& mintMark = QString(), int quantity = 1, float value = 1) {
        auto c = ctx().insert<Coins>();
        c->setCountry(country);
        c->setDenomination(denomination);
        c->setYear(qint16(year));
        c->setMintMark(mintMark);
        c->setQuantity(qint16(quantity));
        c->setValue(value);
        return c;
    }
    QList<CoinPtr> fetch(const Predicate& p = {}, std::vector<SortDescriptor> sort = {}) {
        FetchRequest r(QStringLiteral("Coins"));
        r.predicate = p;
        r.sortDescriptors = std::move(sort);
        r.returnsObjectsAsFaults = false;
        return ctx().fetch<Coins>(r);
    }
    // The collection summed over its coins, as --stats sums it: pieces and quantity × value.
    std::pair<qint64, double> totals() {
        qint64 pieces = 0;
        double value = 0;
        for (const CoinPtr& c : fetch()) {
            pieces += c->quantity();
            value += double(c->quantity()) * double(c->value());
        }
        return {pieces, value};
    }
    static Predicate eq(const char* format, const QVariant& arg) {
        return Predicate::format(QString::fromLatin1(format), arg);
    }
    static QStringList denominations(const QList<CoinPtr>& list) {
        QStringList out;
        for (const auto& c : list)
            out << c->denomination();
        return out;
    }

    std::unique_ptr<PersistentContainer> container;
};
