#pragma once
#include <QDateTime>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <memory>

// The per-user preference store: booleans, dates and other values by key.
class UserDefaults {
public:
    // The process-wide store. Kept in the desktop's settings folder unless useFile() moved it.
    static UserDefaults& standard();
    // Keep the preferences in this INI file instead (--data-dir, tests). Replaces the store.
    static void useFile(const QString& path);

    bool boolForKey(const QString& key) const; // absent or not a bool reads false
    void setBool(bool value, const QString& key);
    QVariant objectForKey(const QString& key) const; // invalid when absent
    void setObject(const QVariant& value, const QString& key);
    void removeObjectForKey(const QString& key);
    bool synchronize(); // flush to disk now

private:
    explicit UserDefaults(std::unique_ptr<QSettings> settings);
    std::unique_ptr<QSettings> settings_;
};
