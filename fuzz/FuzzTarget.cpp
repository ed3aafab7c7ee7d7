// A libFuzzer target over one entry point, chosen when it is built (FUZZ_ENTRY): fuzz_merge
// merges any bytes as an exchange file into a temporary store and exports it, fuzz_picture
// takes any bytes as a stored picture.
#include "fuzz/FuzzEntries.h"

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    FuzzEntries::startApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzEntries::FUZZ_ENTRY(data, size);
    return 0;
}
