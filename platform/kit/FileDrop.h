#pragma once
// Files dropped from a file manager onto a widget: one local file at a time, offered to the
// widget only when `accepts` takes its path.
#include <QString>
#include <functional>

class QWidget;

namespace FileDrop {
void accept(QWidget* target, std::function<bool(const QString& path)> accepts,
            std::function<void(const QString& path)> dropped);
// JPEG and PNG files, by their names.
bool isPicture(const QString& path);
} // namespace FileDrop
