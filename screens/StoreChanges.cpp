#include "screens/StoreChanges.h"

StoreChanges& StoreChanges::instance() {
    static StoreChanges changes;
    return changes;
}
