<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>AddViewController</name>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="17"/>
        <source>Add Coin</source>
        <translation>Ajouter une pièce</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="25"/>
        <source>Record not Saved!</source>
        <translation>Fiche non enregistrée !</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="26"/>
        <source>Required Fields in RED not Entered</source>
        <translation>Les champs obligatoires en ROUGE ne sont pas remplis</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="29"/>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
</context>
<context>
    <name>CoinFormViewController</name>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="40"/>
        <source>Coin details</source>
        <translation>Détails de la pièce</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="57"/>
        <source>Required</source>
        <translation>Obligatoire</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="67"/>
        <source>Denomination</source>
        <translation>Valeur faciale</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="68"/>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="69"/>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="70"/>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="71"/>
        <source>Mint Mark</source>
        <translation>Marque d’atelier</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="72"/>
        <source>Mint Location</source>
        <translation>Atelier monétaire</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="73"/>
        <source>Grade</source>
        <translation>État de conservation</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="74"/>
        <source>Strike</source>
        <translation>Frappe</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="75"/>
        <source>Edge</source>
        <translation>Tranche</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="76"/>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="77"/>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="78"/>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="79"/>
        <source>Thickness</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="80"/>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="81"/>
        <source>Period</source>
        <translation>Période</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="82"/>
        <source>Designer</source>
        <translation>Graveur</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="83"/>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="87"/>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="111"/>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="120"/>
        <source>Front picture</source>
        <translation>Image de l’avers</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="121"/>
        <source>Back picture</source>
        <translation>Image du revers</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Front</source>
        <translation>Avers</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Back</source>
        <translation>Revers</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="123"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="127"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="124"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="128"/>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="125"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="129"/>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="126"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="130"/>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="144"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="173"/>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="289"/>
        <source>A space is not accepted here</source>
        <translation>Une espace n’est pas acceptée ici</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="291"/>
        <source>A line break is not accepted here</source>
        <translation>Un saut de ligne n’est pas accepté ici</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="293"/>
        <source>“%1” is not accepted here</source>
        <translation>« %1 » n’est pas accepté ici</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>There is no camera available</source>
        <translation>Aucun appareil photo n’est disponible</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="414"/>
        <source>Photo Too Large</source>
        <translation>Photo trop grande</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="416"/>
        <source>The photo is larger than 64 megapixels or 50 MB. The coin keeps its 100 x 100 picture of it, without the photo itself.</source>
        <translation>La photo dépasse 64 mégapixels ou 50 Mo. La pièce garde son image de 100 x 100, sans la photo elle-même.</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="418"/>
        <source>The photo is larger than 64 megapixels, more than the catalogue reads.</source>
        <translation>La photo dépasse 64 mégapixels, plus que ce que le catalogue sait lire.</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>Pictures (*.jpg *.jpeg *.png)</source>
        <translation>Images (*.jpg *.jpeg *.png)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>Clipboard</source>
        <translation>Presse-papiers</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>There is no image in the Clipboard</source>
        <translation>Le presse-papiers ne contient aucune image</translation>
    </message>
</context>
<context>
    <name>CoinListView</name>
    <message>
        <location filename="../screens/CoinListView.cpp" line="55"/>
        <source>Denomination</source>
        <translation>Valeur faciale</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="56"/>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="57"/>
        <source>Mint Mark</source>
        <translation>Marque d’atelier</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="58"/>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="59"/>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="60"/>
        <source>Total Value</source>
        <translation>Valeur totale</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="61"/>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="101"/>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="102"/>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="129"/>
        <source>%1, %2, mint mark %3, quantity %4, value %5</source>
        <translation>%1, %2, marque d’atelier %3, quantité %4, valeur %5</translation>
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
        <translation>Affichage</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="149"/>
        <source>Cards</source>
        <translation>Fiches</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="150"/>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="161"/>
        <location filename="../screens/CoinListView.cpp" line="190"/>
        <source>Coins</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="191"/>
        <source>Column titles</source>
        <translation>Titres des colonnes</translation>
    </message>
</context>
<context>
    <name>EditViewController</name>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="22"/>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="23"/>
        <location filename="../screens/entry/EditViewController.cpp" line="60"/>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="50"/>
        <source>Edit Coin</source>
        <translation>Modifier la pièce</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="62"/>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Front Coin Image</source>
        <translation>Retirer l’image de l’avers</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Back Coin Image</source>
        <translation>Retirer l’image du revers</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="158"/>
        <source>Do You Want to Remove This Image?</source>
        <translation>Voulez-vous retirer cette image ?</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="159"/>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="182"/>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Save Changes?</source>
        <translation>Enregistrer les modifications ?</translation>
    </message>
    <message>
        <source>Coming back from the notes shows the coin as it is saved. Save what you changed here first?</source>
        <translation>Au retour des notes, le formulaire montre la pièce telle qu’elle est enregistrée. Enregistrer d’abord ce que vous avez modifié ici ?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Continuer la modification</translation>
    </message>
</context>
<context>
    <name>JournalText</name>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="28"/>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="44"/>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="45"/>
        <source>Denomination</source>
        <translation>Valeur faciale</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="46"/>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="47"/>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="48"/>
        <source>Mint Mark</source>
        <translation>Marque d’atelier</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="49"/>
        <source>Mint Location</source>
        <translation>Atelier monétaire</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="50"/>
        <location filename="../screens/journal/JournalText.cpp" line="65"/>
        <source>Grade</source>
        <translation>État de conservation</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="51"/>
        <location filename="../screens/journal/JournalText.cpp" line="66"/>
        <source>Strike</source>
        <translation>Frappe</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="52"/>
        <source>Edge</source>
        <translation>Tranche</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="53"/>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="54"/>
        <source>Total Value</source>
        <translation>Valeur totale</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="55"/>
        <source>Diameter</source>
        <translation>Diamètre</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="56"/>
        <source>Weight</source>
        <translation>Poids</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="57"/>
        <source>Thickness</source>
        <translation>Épaisseur</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="58"/>
        <source>Serial Number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="59"/>
        <source>Period</source>
        <translation>Période</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="60"/>
        <source>Designer</source>
        <translation>Graveur</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="61"/>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="62"/>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="63"/>
        <source>Record Number</source>
        <translation>Numéro de fiche</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="67"/>
        <source>Front picture</source>
        <translation>Image de l’avers</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="68"/>
        <source>Back picture</source>
        <translation>Image du revers</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="80"/>
        <source>%1 added</source>
        <translation>%1 ajouté</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="82"/>
        <source>%1 removed</source>
        <translation>%1 retiré</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="83"/>
        <source>%1 changed</source>
        <translation>%1 modifié</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="85"/>
        <source>%1: %2 → %3</source>
        <translation>%1 : %2 → %3</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="100"/>
        <source>Added</source>
        <translation>Ajoutée</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="102"/>
        <source>Deleted</source>
        <translation>Supprimée</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="104"/>
        <source>Changed</source>
        <translation>Modifiée</translation>
    </message>
</context>
<context>
    <name>MainListSorting</name>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="14"/>
        <source>By Name</source>
        <translation>Par valeur faciale</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="15"/>
        <source>Search by Denomination</source>
        <translation>Rechercher par valeur faciale</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="16"/>
        <source>By Year</source>
        <translation>Par année</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="17"/>
        <source>Search by Year</source>
        <translation>Rechercher par année</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="18"/>
        <source>By Quantity</source>
        <translation>Par quantité</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="19"/>
        <source>Search by Quantity</source>
        <translation>Rechercher par quantité</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="20"/>
        <source>By Value</source>
        <translation>Par valeur</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="21"/>
        <source>Search by Value</source>
        <translation>Rechercher par valeur</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="22"/>
        <source>By Country</source>
        <translation>Par pays</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="23"/>
        <source>Search by Country</source>
        <translation>Rechercher par pays</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="105"/>
        <source>Year: %1  Mint Mark: %2</source>
        <translation>Année : %1  Marque d’atelier : %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="115"/>
        <source>Qty: %1</source>
        <translation>Qté : %1</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="120"/>
        <source>Value: %1  Total Value: %2</source>
        <translation>Valeur : %1  Valeur totale : %2</translation>
    </message>
</context>
<context>
    <name>MainListTableViewController</name>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="35"/>
        <source>Coins</source>
        <translation>Pièces</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="41"/>
        <source>Search by Denomination</source>
        <translation>Rechercher par valeur faciale</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="43"/>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="58"/>
        <source>Sort by</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="59"/>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="79"/>
        <source>Add Coin</source>
        <translation>Ajouter une pièce</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="156"/>
        <source># Coins = %1 of %2</source>
        <translation>Pièces : %1 sur %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="193"/>
        <source>delete</source>
        <translation>supprimer</translation>
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
        <translation>Votre collection de pièces</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="33"/>
        <source>☰  Menu</source>
        <translation>☰  Menu</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>List Coins</source>
        <translation>Liste des pièces</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>Group By</source>
        <translation>Regrouper</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Add Coin</source>
        <translation>Ajouter une pièce</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Rate &amp;&amp; Share</source>
        <translation>Noter &amp;&amp; partager</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Coin Valuation</source>
        <translation>Estimation des pièces</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Pelvane Overview</source>
        <translation>Présentation de Pelvane</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Import / Export</source>
        <translation>Importer / Exporter</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Reference Lists</source>
        <translation>Listes de référence</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Recent Changes</source>
        <translation>Modifications récentes</translation>
    </message>
</context>
<context>
    <name>NotesViewController</name>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="15"/>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="17"/>
        <location filename="../screens/entry/NotesViewController.cpp" line="29"/>
        <source>Notes</source>
        <translation>Notes</translation>
    </message>
</context>
<context>
    <name>RecentChangesViewController</name>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="31"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="69"/>
        <source>Undo Back to Here</source>
        <translation>Annuler jusqu’ici</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="32"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="72"/>
        <source>Recently Deleted</source>
        <translation>Supprimées récemment</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="33"/>
        <source>Recent Changes</source>
        <translation>Modifications récentes</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="40"/>
        <source>Changes, newest first</source>
        <translation>Modifications, les plus récentes d’abord</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="48"/>
        <source>Column titles</source>
        <translation>Titres des colonnes</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="61"/>
        <source>What the change did</source>
        <translation>Ce que la modification a fait</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="101"/>
        <source>Changes Not Read</source>
        <translation>Modifications non lues</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="109"/>
        <source>Undone</source>
        <translation>Annulée</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="129"/>
        <source>No changes have been saved yet.</source>
        <translation>Aucune modification n’a encore été enregistrée.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="145"/>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="156"/>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="166"/>
        <source>Undo Back to Here?</source>
        <translation>Annuler jusqu’ici ?</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="167"/>
        <source>The %1 is undone. Redo brings it back.</source>
        <translation>« %1 » est annulé. Rétablir le fait revenir.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="168"/>
        <source>The %1 and every change after it are undone. Redo brings them back.</source>
        <translation>« %1 » et toutes les modifications suivantes sont annulés. Rétablir les fait revenir.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="170"/>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="172"/>
        <source>Not Undone</source>
        <translation>Non annulé</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="175"/>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>RecentlyDeletedViewController</name>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="17"/>
        <source>No coins were deleted in the last 90 days.</source>
        <translation>Aucune pièce n’a été supprimée ces 90 derniers jours.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="18"/>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="38"/>
        <source>Put Back</source>
        <translation>Remettre</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="19"/>
        <source>Recently Deleted</source>
        <translation>Supprimées récemment</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="23"/>
        <source>Deleted coins, last deleted first</source>
        <translation>Pièces supprimées, les dernières d’abord</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Coin</source>
        <translation>Pièce</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Deleted</source>
        <translation>Supprimée le</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="31"/>
        <source>Column titles</source>
        <translation>Titres des colonnes</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="63"/>
        <source>Deleted Coins Not Read</source>
        <translation>Pièces supprimées non lues</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="84"/>
        <source>Not Put Back</source>
        <translation>Non remise</translation>
    </message>
</context>
<context>
    <name>TextMessageAlert</name>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="11"/>
        <source>Can&apos;t Send Text Message</source>
        <translation>Impossible d’envoyer le SMS</translation>
    </message>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="12"/>
        <source>Your device is not able to send text messages.</source>
        <translation>Votre appareil ne peut pas envoyer de SMS.</translation>
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
        <translation>Image de l’avers</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="101"/>
        <source>Back picture</source>
        <translation>Image du revers</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="111"/>
        <source>Share</source>
        <translation>Partager</translation>
    </message>
</context>
</TS>
