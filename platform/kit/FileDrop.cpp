#include "platform/kit/FileDrop.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QWidget>

namespace {
class DropFilter : public QObject {
public:
    DropFilter(QWidget* target, std::function<bool(const QString&)> accepts,
               std::function<void(const QString&)> dropped)
        : QObject(target)
        , accepts_(std::move(accepts))
        , dropped_(std::move(dropped)) {}

    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            auto* drag = static_cast<QDropEvent*>(event);
            if (!pathOf(drag->mimeData()).isEmpty())
                drag->acceptProposedAction();
            else
                drag->ignore();
            return true;
        }
        case QEvent::Drop: {
            auto* drop = static_cast<QDropEvent*>(event);
            const QString path = pathOf(drop->mimeData());
            if (path.isEmpty()) {
                drop->ignore();
                return true;
            }
            drop->acceptProposedAction();
            dropped_(path);
            return true;
        }
        default:
            return false;
        }
    }

private:
    // One local file the target takes, or nothing.
    QString pathOf(const QMimeData* data) const {
        if (!data || !data->hasUrls() || data->urls().size() != 1)
            return {};
        const QUrl url = data->urls().constFirst();
        if (!url.isLocalFile())
            return {};
        const QString path = url.toLocalFile();
        return QFileInfo(path).isFile() && accepts_(path) ? path : QString();
    }
    std::function<bool(const QString&)> accepts_;
    std::function<void(const QString&)> dropped_;
};
} // namespace

namespace FileDrop {
void accept(QWidget* target, std::function<bool(const QString&)> accepts,
            std::function<void(const QString&)> dropped) {
    target->setAcceptDrops(true);
    target->installEventFilter(new DropFilter(target, std::move(accepts), std::move(dropped)));
}

bool isPicture(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    return suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg") ||
           suffix == QLatin1String("png");
}
} // namespace FileDrop
