<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AddViewController</name>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="17"/>
        <source>Add Coin</source>
        <translation>Münze hinzufügen</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="25"/>
        <source>Record not Saved!</source>
        <translation>Eintrag nicht gespeichert!</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="26"/>
        <source>Required Fields in RED not Entered</source>
        <translation>Die ROT markierten Pflichtfelder sind nicht ausgefüllt</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="29"/>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
</context>
<context>
    <name>CoinFormViewController</name>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="40"/>
        <source>Coin details</source>
        <translation>Münzdaten</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="57"/>
        <source>Required</source>
        <translation>Pflichtfeld</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="67"/>
        <source>Denomination</source>
        <translation>Nominal</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="68"/>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="69"/>
        <source>Quantity</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="70"/>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="71"/>
        <source>Mint Mark</source>
        <translation>Münzzeichen</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="72"/>
        <source>Mint Location</source>
        <translation>Prägestätte</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="73"/>
        <source>Grade</source>
        <translation>Erhaltung</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="74"/>
        <source>Strike</source>
        <translation>Prägequalität</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="75"/>
        <source>Edge</source>
        <translation>Rand</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="76"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="77"/>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="78"/>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="79"/>
        <source>Thickness</source>
        <translation>Dicke</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="80"/>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="81"/>
        <source>Period</source>
        <translation>Epoche</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="82"/>
        <source>Designer</source>
        <translation>Entwerfer</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="83"/>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="87"/>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="111"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="120"/>
        <source>Front picture</source>
        <translation>Bild der Vorderseite</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="121"/>
        <source>Back picture</source>
        <translation>Bild der Rückseite</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Front</source>
        <translation>Vorderseite</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Back</source>
        <translation>Rückseite</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="123"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="127"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="124"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="128"/>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="125"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="129"/>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="126"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="130"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="144"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="173"/>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="289"/>
        <source>A space is not accepted here</source>
        <translation>Ein Leerzeichen ist hier nicht zulässig</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="291"/>
        <source>A line break is not accepted here</source>
        <translation>Ein Zeilenumbruch ist hier nicht zulässig</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="293"/>
        <source>“%1” is not accepted here</source>
        <translation>„%1“ ist hier nicht zulässig</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>There is no camera available</source>
        <translation>Es ist keine Kamera verfügbar</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="414"/>
        <source>Photo Too Large</source>
        <translation>Foto zu groß</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="416"/>
        <source>The photo is larger than 64 megapixels or 50 MB. The coin keeps its 100 x 100 picture of it, without the photo itself.</source>
        <translation>Das Foto ist größer als 64 Megapixel oder 50 MB. Die Münze behält ihr Bild von 100 x 100 Pixeln, ohne das Foto selbst.</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="418"/>
        <source>The photo is larger than 64 megapixels, more than the catalogue reads.</source>
        <translation>Das Foto ist größer als 64 Megapixel, mehr als der Katalog lesen kann.</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>Pictures (*.jpg *.jpeg *.png)</source>
        <translation>Bilder (*.jpg *.jpeg *.png)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>There is no image in the Clipboard</source>
        <translation>In der Zwischenablage ist kein Bild</translation>
    </message>
</context>
<context>
    <name>CoinListView</name>
    <message>
        <location filename="../screens/CoinListView.cpp" line="55"/>
        <source>Denomination</source>
        <translation>Nominal</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="56"/>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="57"/>
        <source>Mint Mark</source>
        <translation>Münzzeichen</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="58"/>
        <source>Quantity</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="59"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="60"/>
        <source>Total Value</source>
        <translation>Gesamtwert</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="61"/>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="101"/>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="102"/>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="129"/>
        <source>%1, %2, mint mark %3, quantity %4, value %5</source>
        <translation>%1, %2, Münzzeichen %3, Anzahl %4, Wert %5</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="137"/>
        <source>, %1</source>
        <translation>, %1</translation>
    </message>
</context>
<context>
    <name>CoinListViewSwitch</name>
    <message>
        <location filename="../screens/CoinListView.cpp" line="147"/>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="149"/>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="150"/>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="161"/>
        <location filename="../screens/CoinListView.cpp" line="190"/>
        <source>Coins</source>
        <translation>Münzen</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="191"/>
        <source>Column titles</source>
        <translation>Spaltentitel</translation>
    </message>
</context>
<context>
    <name>EditViewController</name>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="22"/>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="23"/>
        <location filename="../screens/entry/EditViewController.cpp" line="60"/>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="50"/>
        <source>Edit Coin</source>
        <translation>Münze bearbeiten</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="62"/>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Front Coin Image</source>
        <translation>Bild der Vorderseite entfernen</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Back Coin Image</source>
        <translation>Bild der Rückseite entfernen</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="158"/>
        <source>Do You Want to Remove This Image?</source>
        <translation>Möchten Sie dieses Bild entfernen?</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="159"/>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="182"/>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Save Changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
    <message>
        <source>Coming back from the notes shows the coin as it is saved. Save what you changed here first?</source>
        <translation>Nach den Notizen zeigt das Formular die Münze so, wie sie gespeichert ist. Zuerst speichern, was Sie hier geändert haben?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
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
<context>
    <name>JournalText</name>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="28"/>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="44"/>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="45"/>
        <source>Denomination</source>
        <translation>Nominal</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="46"/>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="47"/>
        <source>Quantity</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="48"/>
        <source>Mint Mark</source>
        <translation>Münzzeichen</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="49"/>
        <source>Mint Location</source>
        <translation>Prägestätte</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="50"/>
        <location filename="../screens/journal/JournalText.cpp" line="65"/>
        <source>Grade</source>
        <translation>Erhaltung</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="51"/>
        <location filename="../screens/journal/JournalText.cpp" line="66"/>
        <source>Strike</source>
        <translation>Prägequalität</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="52"/>
        <source>Edge</source>
        <translation>Rand</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="53"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="54"/>
        <source>Total Value</source>
        <translation>Gesamtwert</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="55"/>
        <source>Diameter</source>
        <translation>Durchmesser</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="56"/>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="57"/>
        <source>Thickness</source>
        <translation>Dicke</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="58"/>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="59"/>
        <source>Period</source>
        <translation>Epoche</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="60"/>
        <source>Designer</source>
        <translation>Entwerfer</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="61"/>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="62"/>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="63"/>
        <source>Record Number</source>
        <translation>Eintragsnummer</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="67"/>
        <source>Front picture</source>
        <translation>Bild der Vorderseite</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="68"/>
        <source>Back picture</source>
        <translation>Bild der Rückseite</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="80"/>
        <source>%1 added</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="82"/>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="83"/>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="85"/>
        <source>%1: %2 → %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="100"/>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="102"/>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="104"/>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
</context>
<context>
    <name>MainListSorting</name>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="14"/>
        <source>By Name</source>
        <translation>Nach Nominal</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="15"/>
        <source>Search by Denomination</source>
        <translation>Nach Nominal suchen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="16"/>
        <source>By Year</source>
        <translation>Nach Jahr</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="17"/>
        <source>Search by Year</source>
        <translation>Nach Jahr suchen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="18"/>
        <source>By Quantity</source>
        <translation>Nach Anzahl</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="19"/>
        <source>Search by Quantity</source>
        <translation>Nach Anzahl suchen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="20"/>
        <source>By Value</source>
        <translation>Nach Wert</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="21"/>
        <source>Search by Value</source>
        <translation>Nach Wert suchen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="22"/>
        <source>By Country</source>
        <translation>Nach Land</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="23"/>
        <source>Search by Country</source>
        <translation>Nach Land suchen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="105"/>
        <source>Year: %1  Mint Mark: %2</source>
        <translation>Jahr: %1  Münzzeichen: %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="115"/>
        <source>Qty: %1</source>
        <translation>Anz.: %1</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="120"/>
        <source>Value: %1  Total Value: %2</source>
        <translation>Wert: %1  Gesamtwert: %2</translation>
    </message>
</context>
<context>
    <name>MainListTableViewController</name>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="35"/>
        <source>Coins</source>
        <translation>Münzen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="41"/>
        <source>Search by Denomination</source>
        <translation>Nach Nominal suchen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="43"/>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="58"/>
        <source>Sort by</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="59"/>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="79"/>
        <source>Add Coin</source>
        <translation>Münze hinzufügen</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="156"/>
        <source># Coins = %1 of %2</source>
        <translation>Münzen: %1 von %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="193"/>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
</context>
<context>
    <name>MainMenuViewController</name>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="22"/>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="25"/>
        <source>Pelvane</source>
        <translation>Pelvane</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="31"/>
        <source>Your coin collection</source>
        <translation>Ihre Münzsammlung</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="33"/>
        <source>☰  Menu</source>
        <translation>☰  Menü</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>List Coins</source>
        <translation>Münzen anzeigen</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>Group By</source>
        <translation>Gruppieren</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Add Coin</source>
        <translation>Münze hinzufügen</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Rate &amp;&amp; Share</source>
        <translation>Bewerten &amp;&amp; Teilen</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Coin Valuation</source>
        <translation>Münzbewertung</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Pelvane Overview</source>
        <translation>Pelvane im Überblick</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Import / Export</source>
        <translation>Import / Export</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Reference Lists</source>
        <translation>Referenzlisten</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Recent Changes</source>
        <translation>Letzte Änderungen</translation>
    </message>
</context>
<context>
    <name>NotesViewController</name>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="15"/>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="17"/>
        <location filename="../screens/entry/NotesViewController.cpp" line="29"/>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
</context>
<context>
    <name>RecentChangesViewController</name>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="31"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="69"/>
        <source>Undo Back to Here</source>
        <translation>Bis hierher rückgängig</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="32"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="72"/>
        <source>Recently Deleted</source>
        <translation>Zuletzt gelöscht</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="33"/>
        <source>Recent Changes</source>
        <translation>Letzte Änderungen</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="40"/>
        <source>Changes, newest first</source>
        <translation>Änderungen, neueste zuerst</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="48"/>
        <source>Column titles</source>
        <translation>Spaltentitel</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="61"/>
        <source>What the change did</source>
        <translation>Was die Änderung bewirkt hat</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="101"/>
        <source>Changes Not Read</source>
        <translation>Änderungen nicht gelesen</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="109"/>
        <source>Undone</source>
        <translation>Rückgängig gemacht</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="129"/>
        <source>No changes have been saved yet.</source>
        <translation>Es wurden noch keine Änderungen gespeichert.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="145"/>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="156"/>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="166"/>
        <source>Undo Back to Here?</source>
        <translation>Bis hierher rückgängig machen?</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="167"/>
        <source>The %1 is undone. Redo brings it back.</source>
        <translation>„%1“ wird rückgängig gemacht. Wiederholen stellt es wieder her.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="168"/>
        <source>The %1 and every change after it are undone. Redo brings them back.</source>
        <translation>„%1“ und alle Änderungen danach werden rückgängig gemacht. Wiederholen stellt sie wieder her.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="170"/>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="172"/>
        <source>Not Undone</source>
        <translation>Nicht rückgängig gemacht</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="175"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>RecentlyDeletedViewController</name>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="17"/>
        <source>No coins were deleted in the last 90 days.</source>
        <translation>In den letzten 90 Tagen wurden keine Münzen gelöscht.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="18"/>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="38"/>
        <source>Put Back</source>
        <translation>Zurücklegen</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="19"/>
        <source>Recently Deleted</source>
        <translation>Zuletzt gelöscht</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="23"/>
        <source>Deleted coins, last deleted first</source>
        <translation>Gelöschte Münzen, zuletzt gelöschte zuerst</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Coin</source>
        <translation>Münze</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Deleted</source>
        <translation>Gelöscht am</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="31"/>
        <source>Column titles</source>
        <translation>Spaltentitel</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="63"/>
        <source>Deleted Coins Not Read</source>
        <translation>Gelöschte Münzen nicht gelesen</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="84"/>
        <source>Not Put Back</source>
        <translation>Nicht zurückgelegt</translation>
    </message>
</context>
<context>
    <name>TextMessageAlert</name>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="11"/>
        <source>Can&apos;t Send Text Message</source>
        <translation>SMS kann nicht gesendet werden</translation>
    </message>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="12"/>
        <source>Your device is not able to send text messages.</source>
        <translation>Ihr Gerät kann keine SMS senden.</translation>
    </message>
</context>
<context>
    <name>ZoomViewController</name>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="81"/>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="101"/>
        <source>Front picture</source>
        <translation>Bild der Vorderseite</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="101"/>
        <source>Back picture</source>
        <translation>Bild der Rückseite</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="111"/>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
</context>
</TS>
