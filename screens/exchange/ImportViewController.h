#pragma once
// "Import Coins": loads an exchange file through the document picker and merges it into the
// collection.
#include "platform/kit/TextInput.h"
#include "platform/kit/ViewController.h"

#include <QPushButton>
#include <memory>
#include <optional>

class ManagedObjectContext;
class ProgressView;
namespace Exchange {
class Merge;
}

class ImportViewController : public ViewController {
    Q_OBJECT
public:
    explicit ImportViewController(QWidget* parent = nullptr);
    ~ImportViewController() override;
    void viewDidLoad() override;

    void LoadFile();
    // The document picker's answer: the file is read on a worker thread; the "loaded" alert
    // comes when it is done.
    void documentPicked(const QString& path);
    // Merges a few lines per turn of the event loop, so the window repaints and shows progress.
    void ImportTextFile();
    // Reading or merging is under way.
    bool isBusy() const { return busy_; }

    QPushButton *LoadFileButton, *ImportButton;
    TextView *ImportTextView, *HelpTextView;
    ProgressView* ImportProgressView;
    // The file's text as UTF-8 bytes, the form the merge reads: a large file is held once.
    std::optional<QByteArray> document;
    std::optional<QString> filename;
    ManagedObjectContext* managedObjectContext = nullptr;
    std::optional<bool> wrongFile;
    bool DarkMode = false;
    // Lines merged per turn of the event loop.
    int linesPerStep = 50;

    // What reading a file gives (defined beside the reading).
    struct Loaded;

private:
    void fileRead(const Loaded& loaded);
    void mergeStep();
    void finishImport();
    // "Data File Import Completed" (or the wrong file), and back to the menu.
    void reportDone();
    qint64 piecesBefore_ = 0;
    void setBusy(bool busy);
    bool busy_ = false;
    std::unique_ptr<Exchange::Merge> merge_;
};
