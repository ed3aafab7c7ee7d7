#pragma once
#include <QString>
#include <QStringList>

// What the command line asks of this run.
struct LaunchOptions {
    QString dataDir;          // --data-dir DIR: collection and preferences kept in DIR
    QString exportFile;       // --export FILE: write the exchange file and exit
    QString importFile;       // --import FILE: merge an exchange file and exit
    QString backupFile;       // --backup FILE: write an exact copy of the store and exit
    QString restoreFile;      // --restore FILE: replace the store with a backup and exit
    bool listBackups = false; // --backups: list the snapshots and exit
    bool stats = false;       // --stats: print the collection's totals and exit
    QString valueHistoryFile; // --value-history FILE: write the value per day as CSV and exit
    bool undo = false;        // --undo: undo the last step of the journal and exit
    bool changes = false;     // --changes: list the journal's last steps and exit
    QString grabFile;         // --grab PNG: save a picture of the window after start-up and exit
    bool dark = false;        // --dark: the dark appearance, whatever the desktop says
    bool openMenu = false;    // --open-menu: start with the menu opened (screenshots)
    QStringList report;       // --report KIND VALUE: write the PDF report of a group and exit
    QString pdfFile;          // --pdf FILE: where the report goes
    QString message;          // --help, --version: printed on stdout, then the program exits with 0
    QString error;            // set when the arguments make no sense: printed on stderr, exit 2
};

LaunchOptions parseLaunchOptions(const QStringList& given);
// The text --help prints: the usage line and one line per option.
QString launchHelpText();
// Points the store, the preferences, the documents and the pictures the program keeps at DIR
// (created if missing).
void useDataDirectory(const QString& dir);
