#pragma once
// The menu's entry "Import / Export": the export and import screens, and exact copies of the
// whole collection (a backup written to a file, a backup or snapshot put back).
#include "platform/kit/ViewController.h"

#include <QPushButton>

class ProgressView;
class QAction;

class ImportExportViewController : public ViewController {
    Q_OBJECT
public:
    explicit ImportExportViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;

    // Asks where to write the backup, then writes it on a worker with progress shown.
    void BackUpCollection();
    // Asks for the file, checks it, says what each side holds and replaces the collection
    // only when told to.
    void RestoreFromBackup();
    // A backup or restore is under way.
    bool isBusy() const { return busy_; }

    // What the buttons do, shared with the menu bar's File menu: disabled while a backup or
    // restore runs, for the buttons and the menu alike.
    QAction *ExportAction, *ImportAction, *BackupAction, *RestoreAction;
    QPushButton *ExportButton, *ImportButton, *BackupButton, *RestoreButton;
    ProgressView* BackupProgressView;

private:
    void backUpTo(const QString& file);
    void checkBeforeRestoring(const QString& file);
    void setBusy(bool busy);
    bool busy_ = false;
};
