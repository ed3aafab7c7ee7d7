#pragma once
// A list of choices that opens under a text field when the field takes focus; picking a row
// tells the delegate, which writes the field. Pickers are told apart by their tag.
#include <QPointer>
#include <QWidget>

class QListWidget;
class PickerView;

class PickerViewDataSource {
public:
    virtual ~PickerViewDataSource() = default;
    virtual int numberOfRows(PickerView* picker) = 0;
    virtual QString titleForRow(PickerView* picker, int row) = 0;
    virtual void didSelectRow(PickerView* /*picker*/, int /*row*/) {}
};

class PickerView : public QWidget {
    Q_OBJECT
public:
    explicit PickerView(QWidget* parent = nullptr);
    void setDataSource(PickerViewDataSource* source) { source_ = source; }
    int tag() const { return tag_; }
    void setTag(int tag) { tag_ = tag; }
    void openFor(QWidget* field);
    void close();
    bool isOpen() const;
    // Picks a row as a tap on it does (also for tests).
    void pick(int row);
    QStringList titles() const;

protected:
    // Tab leaves the picker for the next field, as it would from the field itself.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    PickerViewDataSource* source_ = nullptr;
    QListWidget* list_;
    QPointer<QWidget> field_;
    int tag_ = 0;
};
