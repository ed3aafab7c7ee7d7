<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
    <context>
        <name>AddReferenceViewController</name>
        <message>
            <location filename="../screens/reference/AddReferenceViewController.cpp" line="+29" />
            <location line="+6" />
            <source>Record not Saved!</source>
            <translation>Eintrag nicht gespeichert!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Duplicates not allowed</source>
            <translation>Doppelte Einträge sind nicht erlaubt</translation>
        </message>
    </context>
    <context>
        <name>BreakdownTableViewController</name>
        <message>
            <location filename="../screens/groups/BreakdownTableViewController.cpp" line="+36" />
            <source>%1  Mint Mark: %2</source>
            <translation>%1  Münzzeichen: %2</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Denomination</source>
            <translation>Nominal</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Year</source>
            <translation>Nach Jahr sortieren und suchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the denomination</source>
            <translation>Münzen des Nominals</translation>
        </message>
        <message>
            <location line="+8" />
            <location line="+29" />
            <source>%1 Total Value: %2</source>
            <translation>%1 Gesamtwert: %2</translation>
        </message>
        <message>
            <location line="-15" />
            <source>Country</source>
            <translation>Land</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Denomination</source>
            <translation>Nach Nominal sortieren und suchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the country</source>
            <translation>Münzen des Landes</translation>
        </message>
        <message>
            <location line="+7" />
            <source>%1  Country: %2</source>
            <translation>%1  Land: %2</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Year</source>
            <translation>Jahr</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Search By Denomination</source>
            <translation>Nach Nominal suchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the year</source>
            <translation>Münzen des Jahres</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Year: %1  Mint Mark: %2</source>
            <translation>Jahr: %1  Münzzeichen: %2</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Qty: %1</source>
            <translation>Anz.: %1</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Value: %1 Total Value: %2</source>
            <translation>Wert: %1 Gesamtwert: %2</translation>
        </message>
        <message>
            <location line="+48" />
            <source>Share</source>
            <translation>Teilen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>Sortieren</translation>
        </message>
        <message>
            <location line="+2" />
            <source>View</source>
            <translation>Ansicht</translation>
        </message>
        <message>
            <location line="+99" />
            <source># of Coins: %1</source>
            <translation>Anzahl Münzen: %1</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Valuation for displayed coins: %1</source>
            <translation>Bewertung der angezeigten Münzen: %1</translation>
        </message>
        <message>
            <location line="+53" />
            <source>delete</source>
            <translation>löschen</translation>
        </message>
    </context>
    <context>
        <name>CoinHistoryViewController</name>
        <message>
            <location filename="../screens/statistics/CoinHistoryViewController.cpp" line="+56" />
            <source>Changes of quantity and value</source>
            <translation>Änderungen von Anzahl und Wert</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Date</source>
            <translation>Datum</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Change</source>
            <translation>Änderung</translation>
        </message>
        <message>
            <location line="+0" />
            <location line="+32" />
            <source>Quantity</source>
            <translation>Anzahl</translation>
        </message>
        <message>
            <location line="-32" />
            <location line="+32" />
            <source>Value</source>
            <translation>Wert</translation>
        </message>
        <message>
            <location line="-32" />
            <source>Total Value</source>
            <translation>Gesamtwert</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Earlier versions</source>
            <translation>Frühere Fassungen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Version</source>
            <translation>Fassung</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Differs from now</source>
            <translation>Abweichung vom jetzigen Stand</translation>
        </message>
        <message>
            <location line="+1" />
            <source>No earlier versions.</source>
            <translation>Keine früheren Fassungen.</translation>
        </message>
        <message>
            <location line="+1" />
            <location line="+59" />
            <source>Restore This Version</source>
            <translation>Diese Fassung wiederherstellen</translation>
        </message>
        <message>
            <location line="-58" />
            <source>History</source>
            <translation>Verlauf</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Front picture</source>
            <translation>Bild der Vorderseite</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back picture</source>
            <translation>Bild der Rückseite</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Country</source>
            <translation>Land</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Denomination</source>
            <translation>Nominal</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Jahr</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Mint Mark</source>
            <translation>Münzzeichen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade</source>
            <translation>Erhaltungsgrad</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Quantity and Value</source>
            <translation>Anzahl und Wert</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Earlier Versions</source>
            <translation>Frühere Fassungen</translation>
        </message>
        <message>
            <location line="+93" />
            <source>Versions Not Read</source>
            <translation>Fassungen nicht gelesen</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Before: %1</source>
            <translation>Vor: %1</translation>
        </message>
        <message>
            <location line="+25" />
            <source>Restore This Version?</source>
            <translation>Diese Fassung wiederherstellen?</translation>
        </message>
        <message>
            <location line="+1" />
            <source>The coin is written back as it was before the %1. The change can be undone in Recent Changes.</source>
            <translation>Die Münze wird so zurückgeschrieben, wie sie vor dem Schritt „%1“ war. Die Änderung lässt sich unter „Letzte Änderungen“ rückgängig machen.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Restore</source>
            <translation>Wiederherstellen</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Version Not Restored</source>
            <translation>Fassung nicht wiederhergestellt</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>DamagedStoreBanner</name>
        <message>
            <location filename="../screens/exchange/DamagedStoreBanner.cpp" line="+47" />
            <source>%1 at %2</source>
            <translation>%1 um %2</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Your collection file is damaged</source>
            <translation>Ihre Sammlungsdatei ist beschädigt</translation>
        </message>
        <message>
            <location line="+7" />
            <source>There is no whole snapshot to go back to. Restore a backup from Import / Export; the damaged file is moved aside, not deleted.</source>
            <translation>Es gibt keinen unbeschädigten Schnappschuss, zu dem zurückgekehrt werden kann. Stellen Sie unter „Import / Export“ eine Sicherung wieder her; die beschädigte Datei wird beiseitegelegt, nicht gelöscht.</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The newest whole snapshot is from %1 and holds %2. Restoring it moves the damaged file aside, not deleted.</source>
            <translation>Der neueste unbeschädigte Schnappschuss stammt vom %1 und enthält %2. Beim Wiederherstellen wird die beschädigte Datei beiseitegelegt, nicht gelöscht.</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Restore Snapshot…</source>
            <translation>Schnappschuss wiederherstellen …</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Restore the snapshot from %1</source>
            <translation>Schnappschuss vom %1 wiederherstellen</translation>
        </message>
    </context>
    <context>
        <name>ExportViewController</name>
        <message>
            <location filename="../screens/exchange/ExportViewController.cpp" line="+21" />
            <source>Create Export File</source>
            <translation>Exportdatei erstellen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save To Files</source>
            <translation>In Dateien sichern</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Email File</source>
            <translation>Datei per E-Mail senden</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Contents of the export file</source>
            <translation>Inhalt der Exportdatei</translation>
        </message>
        <message>
            <location line="+1" />
            <source>How to export</source>
            <translation>So wird exportiert</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>Münzen exportieren</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Step 1: Create the Export File
Step 2: Option 1: Click 'Save To Files' button
             Option 2: Click the Email File button to email the file to yourself and then from your email save the file to your iCloud Drive. There are size limits to email attachments for most carriers.</source>
            <translation>Schritt 1: Exportdatei erstellen
Schritt 2: Möglichkeit 1: Auf „In Dateien sichern“ klicken
             Möglichkeit 2: Auf „Datei per E-Mail senden“ klicken, um die Datei an sich selbst zu schicken, und sie dann aus der E-Mail in Ihrem iCloud Drive sichern. Die meisten Anbieter begrenzen die Größe von E-Mail-Anhängen.</translation>
        </message>
        <message>
            <location line="+46" />
            <location line="+10" />
            <source>Data Export File</source>
            <translation>Datenexportdatei</translation>
        </message>
        <message>
            <location line="-9" />
            <source>The collection cannot be read: %1</source>
            <translation>Die Sammlung kann nicht gelesen werden: %1</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Process Complete - File Ready to Save To Files or Email</source>
            <translation>Vorgang abgeschlossen – Datei bereit zum Sichern in Dateien oder zum Senden per E-Mail</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Pelvane Update Text File</source>
            <translation>Pelvane-Aktualisierungsdatei</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Attachment: Pelvane Text File</source>
            <translation>Anhang: Pelvane-Textdatei</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Sending Email</source>
            <translation>E-Mail senden</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Email not Setup or Unavailable</source>
            <translation>E-Mail ist nicht eingerichtet oder nicht verfügbar</translation>
        </message>
    </context>
    <context>
        <name>GroupTableViewController</name>
        <message>
            <location filename="../screens/groups/GroupTableViewController.cpp" line="+24" />
            <source>Sort and Search By Denomination</source>
            <translation>Nach Nominal sortieren und suchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by denomination</source>
            <translation>Gruppen nach Nominal</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Denominations</source>
            <translation>
                <numerusform>%n Nominal</numerusform>
                <numerusform>%n Nominale</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Denomination</source>
            <translation>0 Nominale</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Search By Denomination</source>
            <translation>Nach Nominal suchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by country</source>
            <translation>Gruppen nach Land</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Countries</source>
            <translation>
                <numerusform>%n Land</numerusform>
                <numerusform>%n Länder</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Country</source>
            <translation>0 Länder</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Sort and Search By Year</source>
            <translation>Nach Jahr sortieren und suchen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Groups by year</source>
            <translation>Gruppen nach Jahr</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Years</source>
            <translation>
                <numerusform>%n Jahr</numerusform>
                <numerusform>%n Jahre</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Year</source>
            <translation>0 Jahre</translation>
        </message>
        <message>
            <location line="+56" />
            <source>‹ Back</source>
            <translation>‹ Zurück</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Sort</source>
            <translation>Sortieren</translation>
        </message>
        <message>
            <location line="+133" />
            <source>1 coin</source>
            <translation>1 Münze</translation>
        </message>
        <message numerus="yes">
            <location line="+0" />
            <source>%n coins</source>
            <translation>
                <numerusform>%n Münze</numerusform>
                <numerusform>%n Münzen</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>%1, %2</source>
            <translation>%1, %2</translation>
        </message>
        <message>
            <location line="+0" />
            <source>(no value)</source>
            <translation>(kein Wert)</translation>
        </message>
    </context>
    <context>
        <name>ImportExportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportExportViewController.cpp" line="+25" />
            <source>Pelvane backups (*.sqlite)</source>
            <translation>Pelvane-Sicherungen (*.sqlite)</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All files (*)</source>
            <translation>Alle Dateien (*)</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>Münzen exportieren</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import Coins</source>
            <translation>Münzen importieren</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back Up Collection…</source>
            <translation>Sammlung sichern …</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Restore From Backup…</source>
            <translation>Aus Sicherung wiederherstellen …</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Move the whole collection to another device: export it here, import the file there.</source>
            <translation>Die ganze Sammlung auf ein anderes Gerät übertragen: hier exportieren, dort die Datei importieren.</translation>
        </message>
        <message>
            <location line="+9" />
            <source>Keep an exact copy of the collection, every picture included, or put one back.</source>
            <translation>Eine genaue Kopie der Sammlung mit allen Bildern aufbewahren oder eine zurückspielen.</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Import / Export</source>
            <translation>Import / Export</translation>
        </message>
        <message>
            <location line="+50" />
            <source>Backup Complete</source>
            <translation>Sicherung abgeschlossen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backed up %1 to %2</source>
            <translation>%1 in %2 gesichert</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backup Failed</source>
            <translation>Sicherung fehlgeschlagen</translation>
        </message>
    </context>
    <context>
        <name>ImportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportViewController.cpp" line="+98" />
            <source>Load File</source>
            <translation>Datei laden</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import File</source>
            <translation>Datei importieren</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Contents of the file</source>
            <translation>Inhalt der Datei</translation>
        </message>
        <message>
            <location line="+2" />
            <source>How to import</source>
            <translation>So wird importiert</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Import Coins</source>
            <translation>Münzen importieren</translation>
        </message>
        <message>
            <location line="+9" />
            <source>YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.
1: Select the file you saved to your iCloud drive
2: Import the file into your device</source>
            <translation>SIE KÖNNEN NUR DIE VON DIESER APP ERSTELLTE DATEI IMPORTIEREN.
1: Wählen Sie die Datei, die Sie in Ihrem iCloud Drive gesichert haben
2: Importieren Sie die Datei auf Ihr Gerät</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Exchange files (*.csv)</source>
            <translation>Austauschdateien (*.csv)</translation>
        </message>
        <message>
            <location line="+0" />
            <source>All files (*)</source>
            <translation>Alle Dateien (*)</translation>
        </message>
        <message>
            <location line="+44" />
            <location line="+30" />
            <source>Data Import File</source>
            <translation>Datenimportdatei</translation>
        </message>
        <message>
            <location line="-30" />
            <source>File Loaded and Ready to Import</source>
            <translation>Datei geladen und bereit zum Import</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Data File Import Completed</source>
            <translation>Import der Datendatei abgeschlossen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Data Import</source>
            <translation>Datenimport</translation>
        </message>
        <message>
            <location line="+1" />
            <source>%1 Is The Incorrect Import File</source>
            <translation>%1 ist nicht die richtige Importdatei</translation>
        </message>
        <message>
            <location line="+1" />
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message numerus="yes">
            <source>%1 and %n more</source>
            <translation>
                <numerusform>%1 und %n weitere</numerusform>
                <numerusform>%1 und %n weitere</numerusform>
            </translation>
        </message>
        <message>
            <source>Too Many Pieces</source>
            <translation>Zu viele Stücke</translation>
        </message>
        <message>
            <source>The collection now holds %1 pieces, more than the %2 the coin list and the valuation screen can count: they stop when they open. The coins of the file&apos;s lines %3 took it past. Edit &gt; Undo takes the whole import back.</source>
            <translation>Die Sammlung umfasst jetzt %1 Stück, mehr als die %2, die die Münzliste und die Bewertung zählen können: Sie brechen beim Öffnen ab. Die Münzen der Zeilen %3 der Datei haben die Grenze überschritten. Bearbeiten &gt; Rückgängig nimmt den ganzen Import zurück.</translation>
        </message>
    </context>
    <context>
        <name>OverviewViewController</name>
        <message>
            <location filename="../screens/overview/OverviewViewController.cpp" line="+20" />
            <source>Pelvane Overview</source>
            <translation>Pelvane-Überblick</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Pelvane overview guide</source>
            <translation>Pelvane-Einführung</translation>
        </message>
        <message>
            <location line="+22" />
            <source>%1 of %2</source>
            <translation>%1 von %2</translation>
        </message>
    </context>
    <context>
        <name>PrintCoinsViewController</name>
        <message>
            <location filename="../screens/groups/PrintCoinsViewController.cpp" line="+17" />
            <source>Print</source>
            <translation>Drucken</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Create File</source>
            <translation>Datei erstellen</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Coins to print</source>
            <translation>Zu druckende Münzen</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Print Coins</source>
            <translation>Münzen drucken</translation>
        </message>
        <message>
            <location line="+23" />
            <source>Empty Data Set!</source>
            <translation>Keine Daten!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>No Coins to Print!</source>
            <translation>Keine Münzen zum Drucken!</translation>
        </message>
    </context>
    <context>
        <name>RateShareTableViewController</name>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.cpp" line="+14" />
            <source>Rate Pelvane</source>
            <translation>Pelvane bewerten</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Share Pelvane</source>
            <translation>Pelvane teilen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Invite a Friend</source>
            <translation>Freunde einladen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Visit the Pelvane Website</source>
            <translation>Pelvane-Website besuchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Send Feedback</source>
            <translation>Rückmeldung senden</translation>
        </message>
        <message>
            <location line="+24" />
            <location line="+5" />
            <source>Rate &amp; Share</source>
            <translation>Bewerten &amp; Teilen</translation>
        </message>
        <message>
            <location line="+36" />
            <source>Can't Send Text Message</source>
            <translation>Textnachricht kann nicht gesendet werden</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send text messages.</source>
            <translation>Ihr Gerät kann keine Textnachrichten senden.</translation>
        </message>
        <message>
            <location line="+11" />
            <source>&lt;p&gt;Enter your comments about the Pelvane app below: &lt;/p&gt;</source>
            <translation>&lt;p&gt;Geben Sie unten Ihre Anmerkungen zu Pelvane ein: &lt;/p&gt;</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Can't Send Email</source>
            <translation>E-Mail kann nicht gesendet werden</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send Email.</source>
            <translation>Ihr Gerät kann keine E-Mails senden.</translation>
        </message>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.h" line="+23" />
            <source>Click the following link to visit the Pelvane App website</source>
            <translation>Klicken Sie auf den folgenden Link, um die Website von Pelvane zu besuchen</translation>
        </message>
    </context>
    <context>
        <name>ReferenceKinds</name>
        <message>
            <location filename="../screens/reference/ReferenceKinds.cpp" line="+18" />
            <source>Grade Numbers</source>
            <translation>Erhaltungsgrade</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Grade Number List</source>
            <translation>Liste der Erhaltungsgrade</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Grade Number</source>
            <translation>Nach Erhaltungsgrad suchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Grade Number</source>
            <translation>Erhaltungsgrad</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Strike Characters</source>
            <translation>Prägequalitäten</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Strike Character List</source>
            <translation>Liste der Prägequalitäten</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Strike Character</source>
            <translation>Nach Prägequalität suchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Strike Character</source>
            <translation>Prägequalität</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Edges</source>
            <translation>Ränder</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Edge List</source>
            <translation>Liste der Ränder</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Edge</source>
            <translation>Nach Rand suchen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edge</source>
            <translation>Rand</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Add Grade Numbers</source>
            <translation>Erhaltungsgrad hinzufügen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade Number not Entered</source>
            <translation>Kein Erhaltungsgrad eingegeben</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Grade Numbers</source>
            <translation>Erhaltungsgrad bearbeiten</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Strike Character</source>
            <translation>Prägequalität hinzufügen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Strike Character not Entered</source>
            <translation>Keine Prägequalität eingegeben</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Strike Characters</source>
            <translation>Prägequalität bearbeiten</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Edge</source>
            <translation>Rand hinzufügen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Edge not Entered</source>
            <translation>Kein Rand eingegeben</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Edge</source>
            <translation>Rand bearbeiten</translation>
        </message>
    </context>
    <context>
        <name>ReferenceListViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceListViewController.cpp" line="+30" />
            <source>Reference Lists</source>
            <translation>Nachschlagelisten</translation>
        </message>
    </context>
    <context>
        <name>ReferenceTableViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceTableViewController.cpp" line="+50" />
            <source>Add</source>
            <translation>Hinzufügen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>Sortieren</translation>
        </message>
        <message>
            <location line="+131" />
            <source>delete</source>
            <translation>löschen</translation>
        </message>
    </context>
    <context>
        <name>ReferenceValueViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceValueViewController.cpp" line="+15" />
            <source>Save</source>
            <translation>Sichern</translation>
        </message>
    </context>
    <context>
        <name>RestoreFlow</name>
        <message>
            <location filename="../screens/exchange/RestoreFlow.cpp" line="+38" />
            <location line="+39" />
            <source>Restore Failed</source>
            <translation>Wiederherstellung fehlgeschlagen</translation>
        </message>
        <message>
            <location line="-36" />
            <source>Restored %1.</source>
            <translation>%1 wiederhergestellt.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The damaged collection file was kept as %1.</source>
            <translation>Die beschädigte Sammlungsdatei wurde als %1 aufbewahrt.</translation>
        </message>
        <message>
            <location line="+6" />
            <location line="+5" />
            <source>Restore Complete</source>
            <translation>Wiederherstellung abgeschlossen</translation>
        </message>
        <message>
            <location line="+5" />
            <source>coin</source>
            <translation>Münze</translation>
        </message>
        <message>
            <location line="+0" />
            <source>coins</source>
            <translation>Münzen</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Restore From Backup?</source>
            <translation>Aus Sicherung wiederherstellen?</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The backup holds %1; the collection cannot be read. Its file is moved aside whole, not deleted, and the backup takes its place.</source>
            <translation>Die Sicherung enthält %1; die Sammlung kann nicht gelesen werden. Ihre Datei wird unverändert beiseitegelegt, nicht gelöscht, und die Sicherung tritt an ihre Stelle.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The backup holds %1; the collection holds %2. The collection as it is now is kept as a snapshot in Backups/.</source>
            <translation>Die Sicherung enthält %1, die Sammlung %2. Die Sammlung in ihrem jetzigen Stand wird als Schnappschuss in Backups/ aufbewahrt.</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Restore</source>
            <translation>Wiederherstellen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Cancel</source>
            <translation>Abbrechen</translation>
        </message>
    </context>
    <context>
        <name>StatisticsCharts</name>
        <message>
            <location filename="../screens/statistics/StatisticsCharts.cpp" line="+69" />
            <location line="+37" />
            <source>Value</source>
            <translation>Wert</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Pieces</source>
            <translation>Stück</translation>
        </message>
        <message>
            <location line="+11" />
            <source>(none)</source>
            <translation>(keine Angabe)</translation>
        </message>
        <message>
            <location line="+14" />
            <source>%1: %2 pieces, %3</source>
            <translation>%1: %2 Stück, %3</translation>
        </message>
    </context>
    <context>
        <name>StatisticsViewController</name>
        <message>
            <location filename="../screens/statistics/StatisticsViewController.cpp" line="+34" />
            <location line="+124" />
            <location line="+1" />
            <location line="+1" />
            <location line="+1" />
            <source>Value</source>
            <translation>Wert</translation>
        </message>
        <message>
            <location line="-126" />
            <source>Countries</source>
            <translation>Länder</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denominations</source>
            <translation>Nominale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Decades</source>
            <translation>Jahrzehnte</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Changes</source>
            <translation>Änderungen</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Chart of the value over time</source>
            <translation>Diagramm des Werts im Zeitverlauf</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by country</source>
            <translation>Diagramm des Werts nach Land</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by denomination</source>
            <translation>Diagramm des Werts nach Nominal</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the pieces by decade</source>
            <translation>Diagramm der Stückzahl nach Jahrzehnt</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Statistics: value by day</source>
            <translation>Statistik: Wert nach Tag</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by country</source>
            <translation>Statistik: Stückzahl und Wert nach Land</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by denomination</source>
            <translation>Statistik: Stückzahl und Wert nach Nominal</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by decade</source>
            <translation>Statistik: Stückzahl und Wert nach Jahrzehnt</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: largest changes</source>
            <translation>Statistik: größte Änderungen</translation>
        </message>
        <message>
            <location line="+5" />
            <source>(none)</source>
            <translation>(keine Angabe)</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Month</source>
            <translation>Monat</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Jahr</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All</source>
            <translation>Alles</translation>
        </message>
        <message>
            <location line="+3" />
            <location line="+25" />
            <location line="+1" />
            <source>Statistics</source>
            <translation>Statistik</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Save Chart…</source>
            <translation>Diagramm sichern …</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Export Data…</source>
            <translation>Daten exportieren …</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Columns</source>
            <translation>Spalten</translation>
        </message>
        <message>
            <location line="+2" />
            <location line="+4" />
            <source>Date</source>
            <translation>Datum</translation>
        </message>
        <message>
            <location line="-4" />
            <location line="+1" />
            <location line="+1" />
            <location line="+1" />
            <source>Pieces</source>
            <translation>Stück</translation>
        </message>
        <message>
            <location line="-2" />
            <location line="+71" />
            <source>Country</source>
            <translation>Land</translation>
        </message>
        <message>
            <location line="-70" />
            <location line="+74" />
            <source>Denomination</source>
            <translation>Nominal</translation>
        </message>
        <message>
            <location line="-73" />
            <location line="+112" />
            <source>Decade</source>
            <translation>Jahrzehnt</translation>
        </message>
        <message>
            <location line="-111" />
            <source>Coin</source>
            <translation>Münze</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Before</source>
            <translation>Vorher</translation>
        </message>
        <message>
            <location line="+0" />
            <source>After</source>
            <translation>Nachher</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Cause</source>
            <translation>Ursache</translation>
        </message>
        <message>
            <location line="+60" />
            <source>%1 pieces, worth %2</source>
            <translation>%1 Stück im Wert von %2</translation>
        </message>
        <message>
            <location line="+40" />
            <source>Other</source>
            <translation>Sonstige</translation>
        </message>
        <message>
            <location line="+91" />
            <source>PNG pictures (*.png)</source>
            <translation>PNG-Bilder (*.png)</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Chart Not Saved</source>
            <translation>Diagramm nicht gesichert</translation>
        </message>
        <message>
            <location line="+9" />
            <source>CSV files (*.csv)</source>
            <translation>CSV-Dateien (*.csv)</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Data Not Exported</source>
            <translation>Daten nicht exportiert</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Coin Deleted</source>
            <translation>Münze gelöscht</translation>
        </message>
        <message>
            <location line="+0" />
            <source>This coin has been deleted. It can be put back from Recently Deleted, on the Recent Changes screen.</source>
            <translation>Diese Münze wurde gelöscht. Sie lässt sich unter „Zuletzt gelöscht“ auf dem Bildschirm „Letzte Änderungen“ zurückholen.</translation>
        </message>
    </context>
    <context>
        <name>ValuationViewController</name>
        <message>
            <location filename="../screens/valuation/ValuationViewController.cpp" line="+74" />
            <source>Coins</source>
            <translation>Münzen</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Total Value</source>
            <translation>Gesamtwert</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Jahr</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denomination</source>
            <translation>Nominal</translation>
        </message>
        <message>
            <location line="+1" />
            <source>New Value</source>
            <translation>Neuer Wert</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Search Web</source>
            <translation>Im Web suchen</translation>
        </message>
        <message>
            <location line="+2" />
            <source>PCGS</source>
            <translation>PCGS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>PCGS price guide</source>
            <translation>PCGS-Preisführer</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC</source>
            <translation>NGC</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC price guide</source>
            <translation>NGC-Preisführer</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save</source>
            <translation>Sichern</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save the new value</source>
            <translation>Neuen Wert sichern</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Coins and their values</source>
            <translation>Münzen und ihre Werte</translation>
        </message>
        <message>
            <location line="+16" />
            <source>Coin Valuation</source>
            <translation>Münzbewertung</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Share</source>
            <translation>Teilen</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Denomination: %1  Year: %2</source>
            <translation>Nominal: %1  Jahr: %2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Quantity: %1</source>
            <translation>Anzahl: %1</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Value: %1</source>
            <translation>Wert: %1</translation>
        </message>
        <message>
            <location line="+31" />
            <source>No Search</source>
            <translation>Keine Suche</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Required Fields Year and Denomination Not Entered</source>
            <translation>Die Pflichtfelder Jahr und Nominal sind nicht ausgefüllt</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Record not Saved!</source>
            <translation>Eintrag nicht gespeichert!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>New Value not Entered</source>
            <translation>Kein neuer Wert eingegeben</translation>
        </message>
    </context>
</TS>
