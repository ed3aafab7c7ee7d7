// libFuzzer target: any bytes as a stored picture.
#include "fuzz/FuzzEntries.h"

#include <QGuiApplication>

#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    static QGuiApplication app(*argc, *argv);
    FuzzEntries::prepare();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    FuzzEntries::picture(data, size);
    return 0;
}
