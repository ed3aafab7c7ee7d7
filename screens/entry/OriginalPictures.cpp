#include "screens/entry/OriginalPictures.h"

#include "platform/core/Console.h"
#include "platform/graphics/ImageCoding.h"

#include <QFutureWatcher>
#include <QPointer>
#include <QPromise>
#include <QtConcurrent>

namespace OriginalPictures {

namespace {
// What the pool hands back for one box: the pictures, or why there are none.
struct Step {
    int index = 0;
    QList<QImage> pictures;
    QString error;
};
} // namespace

void load(QObject* receiver, const Originals::Original& original, const QList<QSize>& boxes,
          std::function<void(int, const QList<QImage>&)> shown,
          std::function<QList<QImage>(int, const QImage&)> extra) {
    // The watcher is the receiver's child: a receiver gone takes its answers with it, while
    // the pool finishes a decode nobody waits for.
    auto* watcher = new QFutureWatcher<Step>(receiver);
    QObject::connect(watcher, &QFutureWatcher<Step>::resultReadyAt, receiver,
                     [watcher, shown](int at) {
                         const Step step = watcher->resultAt(at);
                         if (!step.error.isEmpty())
                             Console::log(step.error);
                         else
                             shown(step.index, step.pictures);
                     });
    QObject::connect(watcher, &QFutureWatcher<Step>::finished, watcher, &QObject::deleteLater);
    QFuture<Step> future = QtConcurrent::run([original, boxes, extra](QPromise<Step>& promise) {
        const Result<QByteArray> bytes = Originals::read(original);
        if (!bytes.ok()) {
            promise.addResult(Step{0, {}, bytes.error().description()});
            return;
        }
        for (int i = 0; i < boxes.size(); ++i) {
            if (promise.isCanceled())
                return;
            const QImage picture = ImageCoding::decodeToFit(bytes.value(), boxes[i]);
            if (picture.isNull()) {
                promise.addResult(Step{
                    i,
                    {},
                    QStringLiteral("The original photo %1 cannot be read").arg(original.path)});
                return;
            }
            promise.addResult(Step{i, extra ? extra(i, picture) : QList<QImage>{picture}, {}});
        }
    });
    watcher->setFuture(future);
    // Nobody left to show them to: the sizes not yet drawn are not drawn.
    QObject::connect(watcher, &QObject::destroyed, [future]() mutable { future.cancel(); });
}

QList<QImage> halvings(const QImage& picture, const QSize& smallest) {
    QList<QImage> out{picture};
    while (out.last().width() / 2 >= smallest.width() &&
           out.last().height() / 2 >= smallest.height() && out.last().width() >= 2 &&
           out.last().height() >= 2)
        out << out.last().scaled(out.last().size() / 2, Qt::IgnoreAspectRatio,
                                 Qt::SmoothTransformation);
    return out;
}

} // namespace OriginalPictures
