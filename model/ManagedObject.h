#pragma once
// A stored record: its entity, its identity (the row id, 0 until first saved), its attribute
// values and the context that owns it. Pictures (data attributes) are read from the store on
// first access, so that long lists do not hold every picture in memory.
#include "model/Entity.h"

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <memory>
#include <vector>

class ManagedObjectContext;

class ManagedObject : public std::enable_shared_from_this<ManagedObject> {
public:
    explicit ManagedObject(const EntityDescription& entity);
    virtual ~ManagedObject();
    ManagedObject(const ManagedObject&) = delete;
    ManagedObject& operator=(const ManagedObject&) = delete;

    const EntityDescription& entity() const { return *entity_; }
    qint64 objectID() const { return rowId_; }
    // The owning context; nullptr once deleted and saved, or when the context has gone.
    ManagedObjectContext* managedObjectContext() const { return context_; }

    // Generic access by attribute name (a programming error for an unknown name).
    // Absent texts and data read as an invalid QVariant. Numbers are never absent: one never
    // set, or set to "no value", holds 0 and is stored as 0.
    QVariant value(const QString& key) const;
    void setValue(const QString& key, const QVariant& value);
    // By position in the entity's attribute table.
    QVariant value(int attribute) const;
    void setValue(int attribute, const QVariant& value);
    // True when the attribute holds a value; always true for a number.
    bool hasValue(int attribute) const;
    // A text given as its UTF-8 bytes (valid UTF-8; empty bytes clear it) and held as such
    // until it is read: a huge imported field is then held once and written to the store as it
    // is, rather than also as UTF-16 and again as UTF-8 for the store.
    void setText(int attribute, const QByteArray& utf8);
    // The bytes a text was given as by setText(), or nullptr.
    const QByteArray* textBytes(int attribute) const;

    // Lets go of the pictures read from the store, which are read again when next asked; one
    // changed and not saved yet is kept. A pass over many records' pictures then holds a few
    // at a time.
    void releaseData();

    bool isInserted() const { return state_ == State::Inserted; }
    bool isUpdated() const { return state_ == State::Updated; }
    bool isDeleted() const { return state_ == State::Deleted || state_ == State::Gone; }

private:
    friend class ManagedObjectContext;
    enum class State : quint8 { Clean, Inserted, Updated, Deleted, Gone };

    void loadDataIfNeeded() const;
    const QByteArray* utf8Text(std::size_t slot) const;
    void dropUtf8Text(std::size_t slot);

    const EntityDescription* entity_;
    ManagedObjectContext* context_ = nullptr;
    qint64 rowId_ = 0;
    quint64 insertSeq_ = 0; // order of unsaved inserts
    std::vector<QString> texts_;
    // Texts held as UTF-8 instead (by slot): only what setText() gave, so mostly empty.
    std::vector<std::pair<std::size_t, QByteArray>> utf8Texts_;
    mutable std::vector<QByteArray> data_;
    std::vector<double> numbers_;
    quint32 present_ = 0;            // bit per attribute: holds a value
    mutable quint32 dataLoaded_ = 0; // bit per attribute: picture read from the store
    quint32 dirty_ = 0;              // bit per attribute: changed since the last save
    // What made the pending change of quantity or value (the context's cause at the time), for
    // the value history: a change left pending is still named by what made it.
    QString changeCause_;
    State state_ = State::Clean;
};

using ObjectPtr = std::shared_ptr<ManagedObject>;
