#pragma once
#include "screens/Application.h"

#include <memory>

// Owns the persistent container for the life of the process; creates it on first use.
class AppDelegate : public ApplicationDelegate {
public:
    AppDelegate();
    ~AppDelegate() override;
    // The launch callback: nothing else happens at launch.
    bool didFinishLaunching() { return true; }
    // Created and loaded on first access; a store that cannot be loaded ends the program.
    PersistentContainer& persistentContainer() override;
    // Saves the main context if it has changes; a failed save ends the program.
    void saveContext() override;

private:
    std::unique_ptr<PersistentContainer> container_;
};
