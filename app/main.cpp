#include "app/AppDelegate.h"

#include <QApplication>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    AppDelegate delegate;
    delegate.didFinishLaunching();
    return 0;
}
