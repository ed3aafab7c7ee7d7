#include "platform/core/UserDefaults.h"

namespace {
std::unique_ptr<UserDefaults>& instance() {
    static std::unique_ptr<UserDefaults> defaults;
    return defaults;
}
} // namespace

UserDefaults::UserDefaults(std::unique_ptr<QSettings> settings)
    : settings_(std::move(settings)) {}

UserDefaults& UserDefaults::standard() {
    auto& d = instance();
    if (!d)
        d.reset(new UserDefaults(
            std::make_unique<QSettings>(QStringLiteral("Pelvane"), QStringLiteral("Pelvane"))));
    return *d;
}

void UserDefaults::useFile(const QString& path) {
    instance().reset(new UserDefaults(std::make_unique<QSettings>(path, QSettings::IniFormat)));
}

bool UserDefaults::boolForKey(const QString& key) const {
    const QVariant v = settings_->value(key);
    if (!v.isValid())
        return false;
    // INI files hand booleans back as the texts "true"/"false".
    if (v.typeId() == QMetaType::QString) {
        const QString s = v.toString();
        return s == QLatin1String("true") || s == QLatin1String("1");
    }
    return v.toBool();
}

void UserDefaults::setBool(bool value, const QString& key) {
    settings_->setValue(key, value);
}

QVariant UserDefaults::objectForKey(const QString& key) const {
    return settings_->value(key);
}

void UserDefaults::setObject(const QVariant& value, const QString& key) {
    settings_->setValue(key, value);
}

void UserDefaults::removeObjectForKey(const QString& key) {
    settings_->remove(key);
}

bool UserDefaults::synchronize() {
    settings_->sync();
    return settings_->status() == QSettings::NoError;
}
