#pragma once
// A fresh application per test: its own store folder, preferences, delegate and process state.
#include "TestSupport.h"
#include "app/AppDelegate.h"
#include "model/Records.h"
#include "platform/core/Files.h"
#include "screens/ProcessState.h"

class AppTest : public PelvaneTest {
protected:
    void SetUp() override {
        PelvaneTest::SetUp();
        PersistentContainer::setDefaultDirectory(dir());
        Files::setDocumentsDirectory(dir() + QStringLiteral("/Documents"));
        resetProcessState();
        delegate = std::make_unique<AppDelegate>();
    }
    void TearDown() override {
        delegate.reset();
        PelvaneTest::TearDown();
    }
    // Starts the program again on the same folder.
    void relaunch() {
        delegate.reset();
        resetProcessState();
        delegate = std::make_unique<AppDelegate>();
    }
    ManagedObjectContext& ctx() { return *delegate->persistentContainer().viewContext(); }
    template <typename T> QList<std::shared_ptr<T>> all(const char* sortKey = nullptr) {
        FetchRequest r(T::entityName());
        if (sortKey)
            r.sortDescriptors = {{QString::fromLatin1(sortKey), true}};
        return ctx().fetch<T>(r);
    }

    std::unique_ptr<AppDelegate> delegate;
};
