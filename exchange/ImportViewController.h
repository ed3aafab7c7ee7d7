#pragma once
// "Import Coins": loads an exchange file through the document picker and merges it into the
// collection.
#include "platform/kit/TextInput.h"
#include "platform/kit/ViewController.h"

#include <QPushButton>
#include <optional>

class ManagedObjectContext;

class ImportViewController : public ViewController {
    Q_OBJECT
public:
    explicit ImportViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;

    void LoadFile();
    // The document picker's answer.
    void documentPicked(const QString& path);
    void ImportTextFile();

    QPushButton *LoadFileButton, *ImportButton;
    TextView *ImportTextView, *HelpTextView;
    std::optional<QString> document;
    std::optional<QString> filename;
    ManagedObjectContext* managedObjectContext = nullptr;
    std::optional<bool> wrongFile;
    bool DarkMode = false;
};

// The menu's entry: a choice between the export and the import screen.
class ImportExportViewController : public ViewController {
    Q_OBJECT
public:
    explicit ImportExportViewController(QWidget* parent = nullptr);
    void viewDidLoad() override;
    QPushButton *ExportButton, *ImportButton;
};
