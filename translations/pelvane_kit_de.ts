<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AlertController</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>AlreadyOpen</name>
    <message>
        <source>Collection In Use</source>
        <translation>Sammlung in Benutzung</translation>
    </message>
    <message>
        <source>This collection is open in another Pelvane (named below). Carry on there, or start Pelvane again once it is closed.</source>
        <translation>Diese Sammlung ist in einem anderen Pelvane geöffnet (siehe unten). Arbeiten Sie dort weiter oder starten Sie Pelvane neu, sobald es geschlossen ist.</translation>
    </message>
</context>
<context>
    <name>AppMenuBar</name>
    <message>
        <source>Licence: GNU General Public License, version 3 or later (GPL-3.0-or-later), without warranty of any kind.</source>
        <translation>Lizenz: GNU General Public License, Version 3 oder später (GPL-3.0-or-later), ohne jegliche Garantie.</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>List Coins</source>
        <translation>Münzen auflisten</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Gruppieren nach</translation>
    </message>
    <message>
        <source>Coin Valuation</source>
        <translation>Münzbewertung</translation>
    </message>
    <message>
        <source>Reference Lists</source>
        <translation>Referenzlisten</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Recent Changes</source>
        <translation>Letzte Änderungen</translation>
    </message>
    <message>
        <source>Cannot Redo</source>
        <translation>Wiederherstellen nicht möglich</translation>
    </message>
    <message>
        <source>Cannot Undo</source>
        <translation>Rückgängig nicht möglich</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>%1 rückgängig</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>%1 wiederherstellen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Pelvane %1

A catalogue of a personal coin collection that keeps everything on your machine.

%2</source>
        <translation>Pelvane %1

Ein Katalog einer privaten Münzsammlung, der alles auf Ihrem Rechner behält.

%2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Import Coins…</source>
        <translation>Münzen importieren…</translation>
    </message>
    <message>
        <source>Export Coins…</source>
        <translation>Münzen exportieren…</translation>
    </message>
    <message>
        <source>Back Up Collection…</source>
        <translation>Sammlung sichern…</translation>
    </message>
    <message>
        <source>Restore From Backup…</source>
        <translation>Aus Sicherung wiederherstellen…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Recent Changes…</source>
        <translation>Letzte Änderungen…</translation>
    </message>
    <message>
        <source>Recently Deleted…</source>
        <translation>Zuletzt gelöscht…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Dunkles Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Pelvane Overview</source>
        <translation>Pelvane-Überblick</translation>
    </message>
    <message>
        <source>About Pelvane</source>
        <translation>Über Pelvane</translation>
    </message>
    <message>
        <source>Your collection and its photos are kept in %1.</source>
        <translation>Ihre Sammlung und ihre Fotos liegen in %1.</translation>
    </message>
</context>
<context>
    <name>AppStoryboard</name>
    <message>
        <source>Denomination</source>
        <translation>Nominal</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
</context>
<context>
    <name>CoinDocument</name>
    <message>
        <source>Coin Denomination: </source>
        <translation>Nominal der Münze: </translation>
    </message>
    <message>
        <source>Coin Year: </source>
        <translation>Prägejahr: </translation>
    </message>
    <message>
        <source>Quantity: </source>
        <translation>Anzahl: </translation>
    </message>
    <message>
        <source>Description: </source>
        <translation>Beschreibung: </translation>
    </message>
    <message>
        <source>Country: </source>
        <translation>Land: </translation>
    </message>
    <message>
        <source>Diameter: </source>
        <translation>Durchmesser: </translation>
    </message>
    <message>
        <source>Weight: </source>
        <translation>Gewicht: </translation>
    </message>
    <message>
        <source>Thickness: </source>
        <translation>Dicke: </translation>
    </message>
    <message>
        <source>Strike Character: </source>
        <translation>Prägequalität: </translation>
    </message>
    <message>
        <source>Grade #: </source>
        <translation>Erhaltungsgrad Nr.: </translation>
    </message>
    <message>
        <source>Edge: </source>
        <translation>Rand: </translation>
    </message>
    <message>
        <source>Mint Mark: </source>
        <translation>Münzzeichen: </translation>
    </message>
    <message>
        <source>Mint Location: </source>
        <translation>Prägestätte: </translation>
    </message>
    <message>
        <source>Serial #: </source>
        <translation>Seriennummer: </translation>
    </message>
    <message>
        <source>Period: </source>
        <translation>Epoche: </translation>
    </message>
    <message>
        <source>Designer: </source>
        <translation>Entwerfer: </translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Wert: </translation>
    </message>
    <message>
        <source>Notes: </source>
        <translation>Notizen: </translation>
    </message>
    <message>
        <source>Year: </source>
        <translation>Jahr: </translation>
    </message>
    <message>
        <source>Qty: </source>
        <translation>Anz.: </translation>
    </message>
    <message>
        <source>Total Value (Qty * Value): </source>
        <translation>Gesamtwert (Anz. × Wert): </translation>
    </message>
    <message>
        <source>Denomination: </source>
        <translation>Nominal: </translation>
    </message>
    <message>
        <source>Coins Filtered by Denomination: </source>
        <translation>Münzen nach Nominal: </translation>
    </message>
    <message>
        <source>Coins Filtered by Country: </source>
        <translation>Münzen nach Land: </translation>
    </message>
    <message>
        <source>Coins Filtered by Year: </source>
        <translation>Münzen nach Jahr: </translation>
    </message>
</context>
<context>
    <name>DesktopServices</name>
    <message>
        <source>Can&apos;t Open File</source>
        <translation>Datei kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Can&apos;t Open Web Page</source>
        <translation>Webseite kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>No program is set up on this computer to open %1.</source>
        <translation>Auf diesem Rechner ist kein Programm zum Öffnen von %1 eingerichtet.</translation>
    </message>
    <message>
        <source>No web browser is set up on this computer to open %1.</source>
        <translation>Auf diesem Rechner ist kein Webbrowser zum Öffnen von %1 eingerichtet.</translation>
    </message>
    <message>
        <source>Can&apos;t Send Email</source>
        <translation>E-Mail kann nicht gesendet werden</translation>
    </message>
    <message>
        <source>The mail program of this computer could not be started.</source>
        <translation>Das E-Mail-Programm dieses Rechners konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Take Picture</source>
        <translation>Foto aufnehmen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Enjoying Pelvane?</source>
        <translation>Gefällt Ihnen Pelvane?</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
</context>
<context>
    <name>FatalMessage</name>
    <message>
        <source>Fatal error</source>
        <translation>Schwerer Fehler</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Addition of %1</source>
        <translation>Hinzufügen von %1</translation>
    </message>
    <message>
        <source>Edit of %1</source>
        <translation>Bearbeitung von %1</translation>
    </message>
    <message>
        <source>Deletion of %1</source>
        <translation>Löschen von %1</translation>
    </message>
    <message>
        <source>Change of %1 records</source>
        <translation>Änderung von %1 Einträgen</translation>
    </message>
    <message>
        <source>Revaluation of %1</source>
        <translation>Neubewertung von %1</translation>
    </message>
    <message>
        <source>Notes Edit of %1</source>
        <translation>Notizen von %1 bearbeiten</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Import von %1</translation>
    </message>
    <message>
        <source>Record Number Repair</source>
        <translation>Reparatur der Eintragsnummern</translation>
    </message>
    <message>
        <source>Filling of the Reference Lists</source>
        <translation>Befüllen der Referenzlisten</translation>
    </message>
    <message>
        <source>Restore of %1</source>
        <translation>Wiederherstellung von %1</translation>
    </message>
    <message>
        <source>Version Restore of %1</source>
        <translation>Wiederherstellung einer Fassung von %1</translation>
    </message>
    <message>
        <source>Put Back of %1</source>
        <translation>Zurücklegen von %1</translation>
    </message>
    <message>
        <source>The coin did not exist before that change.</source>
        <translation>Die Münze gab es vor dieser Änderung nicht.</translation>
    </message>
    <message>
        <source>That coin is not among the deleted coins.</source>
        <translation>Diese Münze ist nicht unter den gelöschten Münzen.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>That change cannot be undone any more.</source>
        <translation>Diese Änderung kann nicht mehr rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>Undid %1 steps, back to the %2</source>
        <translation>%1 Schritte rückgängig gemacht, zurück bis: %2</translation>
    </message>
    <message>
        <source>Redid %1 steps, from the %2</source>
        <translation>%1 Schritte wiederhergestellt, ab: %2</translation>
    </message>
    <message>
        <source>Undid the %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Redid the %1</source>
        <translation>Wiederhergestellt: %1</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <source>Edited %1</source>
        <translation>%1 bearbeitet</translation>
    </message>
    <message>
        <source>Deleted %1</source>
        <translation>%1 gelöscht</translation>
    </message>
    <message>
        <source>Changed %1 records</source>
        <translation>%1 Einträge geändert</translation>
    </message>
    <message>
        <source>Revalued %1</source>
        <translation>%1 neu bewertet</translation>
    </message>
    <message>
        <source>Edited the notes of %1</source>
        <translation>Notizen von %1 bearbeitet</translation>
    </message>
    <message>
        <source>Imported %1</source>
        <translation>%1 importiert</translation>
    </message>
    <message>
        <source>Repaired the record numbers of %1</source>
        <translation>Eintragsnummern von %1 repariert</translation>
    </message>
    <message>
        <source>Filled the reference lists with %1 values</source>
        <translation>Referenzlisten mit %1 Werten befüllt</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>%1 wiederhergestellt</translation>
    </message>
    <message>
        <source>Restored an earlier version of %1</source>
        <translation>Frühere Fassung von %1 wiederhergestellt</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>%1 zurückgelegt</translation>
    </message>
</context>
<context>
    <name>LaunchOptions</name>
    <message>
        <source>Keep the collection and preferences in DIR.</source>
        <translation>Sammlung und Einstellungen in DIR aufbewahren.</translation>
    </message>
    <message>
        <source>Write the exchange file of the collection to FILE and exit.</source>
        <translation>Die Austauschdatei der Sammlung nach FILE schreiben und beenden.</translation>
    </message>
    <message>
        <source>Merge the exchange file FILE into the collection and exit.</source>
        <translation>Die Austauschdatei FILE in die Sammlung übernehmen und beenden.</translation>
    </message>
    <message>
        <source>Write an exact copy of the whole collection, pictures and all, to FILE and exit.</source>
        <translation>Eine genaue Kopie der ganzen Sammlung samt Bildern nach FILE schreiben und beenden.</translation>
    </message>
    <message>
        <source>Replace the collection with the backup or snapshot FILE (the current one is kept as a snapshot first) and exit.</source>
        <translation>Die Sammlung durch die Sicherung oder den Schnappschuss FILE ersetzen (die aktuelle wird zuvor als Schnappschuss behalten) und beenden.</translation>
    </message>
    <message>
        <source>List the snapshots taken automatically and exit.</source>
        <translation>Die automatisch angelegten Schnappschüsse auflisten und beenden.</translation>
    </message>
    <message>
        <source>Print the number of coins, of pieces and the total value of the collection and exit.</source>
        <translation>Anzahl der Münzen, der Stücke und den Gesamtwert der Sammlung ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Write the collection&apos;s pieces and total value at the end of every day on which they changed to FILE, as CSV, and exit.</source>
        <translation>Stückzahl und Gesamtwert der Sammlung am Ende jedes Tages, an dem sie sich änderten, als CSV nach FILE schreiben und beenden.</translation>
    </message>
    <message>
        <source>Undo the last change made to the collection, say what it was and exit.</source>
        <translation>Die letzte Änderung an der Sammlung rückgängig machen, sie nennen und beenden.</translation>
    </message>
    <message>
        <source>List the last 50 changes made to the collection, newest first, and exit.</source>
        <translation>Die letzten 50 Änderungen an der Sammlung auflisten, neueste zuerst, und beenden.</translation>
    </message>
    <message>
        <source>Write the PDF report of a group and exit: KIND is denomination, country or year, followed by the group&apos;s VALUE.</source>
        <translation>Den PDF-Bericht einer Gruppe schreiben und beenden: KIND ist denomination, country oder year, gefolgt vom Wert VALUE der Gruppe.</translation>
    </message>
    <message>
        <source>Write the report to FILE instead of the documents folder.</source>
        <translation>Den Bericht nach FILE statt in den Dokumentenordner schreiben.</translation>
    </message>
    <message>
        <source>Use the dark appearance.</source>
        <translation>Das dunkle Erscheinungsbild verwenden.</translation>
    </message>
    <message>
        <source>Save a picture of the window to PNG and quit.</source>
        <translation>Ein Bild des Fensters nach PNG speichern und beenden.</translation>
    </message>
    <message>
        <source>Start with the menu opened.</source>
        <translation>Mit geöffnetem Menü starten.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Diese Hilfe anzeigen und beenden.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Die Version anzeigen und beenden.</translation>
    </message>
    <message>
        <source>pelvane: %1
Usage: pelvane [options]
Try &apos;pelvane --help&apos; for the options.</source>
        <translation>pelvane: %1
Aufruf: pelvane [Optionen]
„pelvane --help“ zeigt die Optionen.</translation>
    </message>
    <message>
        <source>Usage: pelvane [options]
Pelvane, a catalogue of a coin collection. Without options it opens the catalogue&apos;s window.

Options:
</source>
        <translation>Aufruf: pelvane [Optionen]
Pelvane, ein Katalog einer Münzsammlung. Ohne Optionen öffnet es das Fenster des Katalogs.

Optionen:
</translation>
    </message>
    <message>
        <source>--%1 needs a %2, and the one given is empty.</source>
        <translation>--%1 braucht ein %2, und das angegebene ist leer.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>--pdf names where a --report goes, and there is no --report.</source>
        <translation>--pdf gibt an, wohin ein --report geht, aber es gibt kein --report.</translation>
    </message>
    <message>
        <source>%1 cannot be combined.</source>
        <translation>%1 können nicht kombiniert werden.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
</context>
<context>
    <name>NavigationController</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Zurück zu %1</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
</context>
<context>
    <name>PickerView</name>
    <message>
        <source>Choices</source>
        <translation>Auswahl</translation>
    </message>
</context>
<context>
    <name>PrintController</name>
    <message>
        <source>The printer cannot be opened.</source>
        <translation>Der Drucker kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The printer reported an error.</source>
        <translation>Der Drucker hat einen Fehler gemeldet.</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>SearchController</name>
    <message>
        <source>Clear Search</source>
        <translation>Suche leeren</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>StoreCommands</name>
    <message>
        <source>No Snapshot Today</source>
        <translation>Heute kein Schnappschuss</translation>
    </message>
    <message>
        <source>Pelvane could not keep today&apos;s snapshot of the collection: %1

The collection itself is unchanged. To keep a copy, back it up from Import / Export.</source>
        <translation>Pelvane konnte den heutigen Schnappschuss der Sammlung nicht anlegen: %1

Die Sammlung selbst ist unverändert. Um eine Kopie zu behalten, sichern Sie sie unter Import / Export.</translation>
    </message>
</context>
<context>
    <name>TabBarController</name>
    <message>
        <source>Sections</source>
        <translation>Bereiche</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <location filename="../platform/kit/TableViewGrid.cpp" line="92"/>
        <source>Column titles</source>
        <translation>Spaltentitel</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Discard changes?</source>
        <translation>Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>What you changed here has not been saved.</source>
        <translation>Ihre Änderungen hier wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
</context>
</TS>
