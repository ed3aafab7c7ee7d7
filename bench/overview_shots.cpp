// Grabs the overview screen to PNG files for looking at it: overview_shots OUT_DIR
// Light and dark, at phone and desktop width: as it opens, scrolled on, and zoomed in.
#include "BenchProgram.h"
#include "platform/PdfViewer.h"
#include "platform/kit/Appearance.h"
#include "screens/overview/OverviewViewController.h"

#include <QScrollBar>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc != 2)
        return 2;
    const QString out = QString::fromLocal8Bit(argv[1]);
    QTemporaryDir dir;
    BenchProgram::Running program(dir.path());
    for (const bool dark : {false, true}) {
        // The screen takes its colours when it opens.
        Appearance::setDark(dark);
        program.menu->performSegue("Overview");
        auto* screen = static_cast<OverviewViewController*>(program.nav()->topViewController());
        PdfViewer* viewer = screen->pdfView;
        for (const int width : {390, 1280}) {
            program.window.resize(width, width > 400 ? 800 : 844);
            const QString suffix = QStringLiteral("-%1%2").arg(width).arg(dark ? "-dark" : "");
            auto shot = [&](const char* name) {
                // Pages are drawn by a worker thread; give it time.
                BenchProgram::settle(1500);
                program.window.grab().save(out + "/" + name + suffix + ".png");
            };
            viewer->setAutoScales(true);
            viewer->verticalScrollBar()->setValue(0);
            shot("overview");
            viewer->verticalScrollBar()->setValue(viewer->verticalScrollBar()->maximum() * 2 / 7);
            shot("overview-scrolled");
            viewer->zoomBy(2.0, QPointF(0, 0));
            shot("overview-zoomed");
        }
        program.nav()->popToRootViewController(false);
    }
    return 0;
}
