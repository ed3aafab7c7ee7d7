<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
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
        <translation>Collection en cours d’utilisation</translation>
    </message>
    <message>
        <source>This collection is open in another Pelvane (named below). Carry on there, or start Pelvane again once it is closed.</source>
        <translation>Cette collection est ouverte dans un autre Pelvane (indiqué ci-dessous). Continuez-y, ou relancez Pelvane une fois celui-ci fermé.</translation>
    </message>
</context>
<context>
    <name>AppMenuBar</name>
    <message>
        <source>Licence: GNU General Public License, version 3 or later (GPL-3.0-or-later), without warranty of any kind.</source>
        <translation>Licence : GNU General Public License, version 3 ou ultérieure (GPL-3.0-or-later), sans aucune garantie.</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Fiches</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>List Coins</source>
        <translation>Liste des pièces</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Regrouper par</translation>
    </message>
    <message>
        <source>Coin Valuation</source>
        <translation>Estimation des pièces</translation>
    </message>
    <message>
        <source>Reference Lists</source>
        <translation>Listes de référence</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Recent Changes</source>
        <translation>Modifications récentes</translation>
    </message>
    <message>
        <source>Cannot Redo</source>
        <translation>Impossible de rétablir</translation>
    </message>
    <message>
        <source>Cannot Undo</source>
        <translation>Impossible d’annuler</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rétablir : %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Pelvane %1

A catalogue of a personal coin collection that keeps everything on your machine.

%2</source>
        <translation>Pelvane %1

Un catalogue de collection personnelle de monnaies qui garde tout sur votre machine.

%2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Import Coins…</source>
        <translation>Importer des pièces…</translation>
    </message>
    <message>
        <source>Export Coins…</source>
        <translation>Exporter les pièces…</translation>
    </message>
    <message>
        <source>Back Up Collection…</source>
        <translation>Sauvegarder la collection…</translation>
    </message>
    <message>
        <source>Restore From Backup…</source>
        <translation>Restaurer depuis une sauvegarde…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Recent Changes…</source>
        <translation>Modifications récentes…</translation>
    </message>
    <message>
        <source>Recently Deleted…</source>
        <translation>Supprimées récemment…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Apparence sombre</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>A&amp;ller</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Pelvane Overview</source>
        <translation>Présentation de Pelvane</translation>
    </message>
    <message>
        <source>About Pelvane</source>
        <translation>À propos de Pelvane</translation>
    </message>
    <message>
        <source>Your collection and its photos are kept in %1.</source>
        <translation>Votre collection et ses photos sont conservées dans %1.</translation>
    </message>
</context>
<context>
    <name>AppStoryboard</name>
    <message>
        <source>Denomination</source>
        <translation>Valeur faciale</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
</context>
<context>
    <name>CoinDocument</name>
    <message>
        <source>Coin Denomination: </source>
        <translation>Valeur faciale : </translation>
    </message>
    <message>
        <source>Coin Year: </source>
        <translation>Année de frappe : </translation>
    </message>
    <message>
        <source>Quantity: </source>
        <translation>Quantité : </translation>
    </message>
    <message>
        <source>Description: </source>
        <translation>Description : </translation>
    </message>
    <message>
        <source>Country: </source>
        <translation>Pays : </translation>
    </message>
    <message>
        <source>Diameter: </source>
        <translation>Diamètre : </translation>
    </message>
    <message>
        <source>Weight: </source>
        <translation>Poids : </translation>
    </message>
    <message>
        <source>Thickness: </source>
        <translation>Épaisseur : </translation>
    </message>
    <message>
        <source>Strike Character: </source>
        <translation>Qualité de frappe : </translation>
    </message>
    <message>
        <source>Grade #: </source>
        <translation>Degré de conservation n° : </translation>
    </message>
    <message>
        <source>Edge: </source>
        <translation>Tranche : </translation>
    </message>
    <message>
        <source>Mint Mark: </source>
        <translation>Marque d’atelier : </translation>
    </message>
    <message>
        <source>Mint Location: </source>
        <translation>Atelier monétaire : </translation>
    </message>
    <message>
        <source>Serial #: </source>
        <translation>N° de série : </translation>
    </message>
    <message>
        <source>Period: </source>
        <translation>Période : </translation>
    </message>
    <message>
        <source>Designer: </source>
        <translation>Graveur : </translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Valeur : </translation>
    </message>
    <message>
        <source>Notes: </source>
        <translation>Notes : </translation>
    </message>
    <message>
        <source>Year: </source>
        <translation>Année : </translation>
    </message>
    <message>
        <source>Qty: </source>
        <translation>Qté : </translation>
    </message>
    <message>
        <source>Total Value (Qty * Value): </source>
        <translation>Valeur totale (Qté × valeur) : </translation>
    </message>
    <message>
        <source>Denomination: </source>
        <translation>Valeur faciale : </translation>
    </message>
    <message>
        <source>Coins Filtered by Denomination: </source>
        <translation>Pièces par valeur faciale : </translation>
    </message>
    <message>
        <source>Coins Filtered by Country: </source>
        <translation>Pièces par pays : </translation>
    </message>
    <message>
        <source>Coins Filtered by Year: </source>
        <translation>Pièces par année : </translation>
    </message>
</context>
<context>
    <name>DesktopServices</name>
    <message>
        <source>Can&apos;t Open File</source>
        <translation>Impossible d’ouvrir le fichier</translation>
    </message>
    <message>
        <source>Can&apos;t Open Web Page</source>
        <translation>Impossible d’ouvrir la page web</translation>
    </message>
    <message>
        <source>No program is set up on this computer to open %1.</source>
        <translation>Aucun programme n’est configuré sur cet ordinateur pour ouvrir %1.</translation>
    </message>
    <message>
        <source>No web browser is set up on this computer to open %1.</source>
        <translation>Aucun navigateur web n’est configuré sur cet ordinateur pour ouvrir %1.</translation>
    </message>
    <message>
        <source>Can&apos;t Send Email</source>
        <translation>Impossible d’envoyer le courriel</translation>
    </message>
    <message>
        <source>The mail program of this computer could not be started.</source>
        <translation>Le programme de messagerie de cet ordinateur n’a pas pu être lancé.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Take Picture</source>
        <translation>Prendre une photo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Enjoying Pelvane?</source>
        <translation>Pelvane vous plaît ?</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
</context>
<context>
    <name>FatalMessage</name>
    <message>
        <source>Fatal error</source>
        <translation>Erreur fatale</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Addition of %1</source>
        <translation>Ajout de %1</translation>
    </message>
    <message>
        <source>Edit of %1</source>
        <translation>Modification de %1</translation>
    </message>
    <message>
        <source>Deletion of %1</source>
        <translation>Suppression de %1</translation>
    </message>
    <message>
        <source>Change of %1 records</source>
        <translation>Modification de %1 fiches</translation>
    </message>
    <message>
        <source>Revaluation of %1</source>
        <translation>Réévaluation de %1</translation>
    </message>
    <message>
        <source>Notes Edit of %1</source>
        <translation>Modification des notes de %1</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Importation de %1</translation>
    </message>
    <message>
        <source>Record Number Repair</source>
        <translation>Réparation des numéros de fiche</translation>
    </message>
    <message>
        <source>Filling of the Reference Lists</source>
        <translation>Remplissage des listes de référence</translation>
    </message>
    <message>
        <source>Restore of %1</source>
        <translation>Restauration de %1</translation>
    </message>
    <message>
        <source>Version Restore of %1</source>
        <translation>Restauration d’une version de %1</translation>
    </message>
    <message>
        <source>Put Back of %1</source>
        <translation>Remise en place de %1</translation>
    </message>
    <message>
        <source>The coin did not exist before that change.</source>
        <translation>La pièce n’existait pas avant cette modification.</translation>
    </message>
    <message>
        <source>That coin is not among the deleted coins.</source>
        <translation>Cette pièce ne figure pas parmi les pièces supprimées.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Il n’y a rien à annuler.</translation>
    </message>
    <message>
        <source>That change cannot be undone any more.</source>
        <translation>Cette modification ne peut plus être annulée.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Il n’y a rien à rétablir.</translation>
    </message>
    <message>
        <source>Undid %1 steps, back to the %2</source>
        <translation>%1 étapes annulées, jusqu’à : %2</translation>
    </message>
    <message>
        <source>Redid %1 steps, from the %2</source>
        <translation>%1 étapes rétablies, depuis : %2</translation>
    </message>
    <message>
        <source>Undid the %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message>
        <source>Redid the %1</source>
        <translation>Rétabli : %1</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>%1 ajouté(e)</translation>
    </message>
    <message>
        <source>Edited %1</source>
        <translation>%1 modifié(e)</translation>
    </message>
    <message>
        <source>Deleted %1</source>
        <translation>%1 supprimé(e)</translation>
    </message>
    <message>
        <source>Changed %1 records</source>
        <translation>%1 fiches modifiées</translation>
    </message>
    <message>
        <source>Revalued %1</source>
        <translation>%1 réévalué(e)</translation>
    </message>
    <message>
        <source>Edited the notes of %1</source>
        <translation>Notes de %1 modifiées</translation>
    </message>
    <message>
        <source>Imported %1</source>
        <translation>%1 importé(e)s</translation>
    </message>
    <message>
        <source>Repaired the record numbers of %1</source>
        <translation>Numéros de fiche de %1 réparés</translation>
    </message>
    <message>
        <source>Filled the reference lists with %1 values</source>
        <translation>Listes de référence remplies de %1 valeurs</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>%1 restauré(e)</translation>
    </message>
    <message>
        <source>Restored an earlier version of %1</source>
        <translation>Version antérieure de %1 restaurée</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>%1 remis(e) en place</translation>
    </message>
</context>
<context>
    <name>LaunchOptions</name>
    <message>
        <source>Keep the collection and preferences in DIR.</source>
        <translation>Conserver la collection et les préférences dans DIR.</translation>
    </message>
    <message>
        <source>Write the exchange file of the collection to FILE and exit.</source>
        <translation>Écrire le fichier d’échange de la collection dans FILE et quitter.</translation>
    </message>
    <message>
        <source>Merge the exchange file FILE into the collection and exit.</source>
        <translation>Fusionner le fichier d’échange FILE dans la collection et quitter.</translation>
    </message>
    <message>
        <source>Write an exact copy of the whole collection, pictures and all, to FILE and exit.</source>
        <translation>Écrire une copie exacte de toute la collection, images comprises, dans FILE et quitter.</translation>
    </message>
    <message>
        <source>Replace the collection with the backup or snapshot FILE (the current one is kept as a snapshot first) and exit.</source>
        <translation>Remplacer la collection par la sauvegarde ou l’instantané FILE (l’actuelle est d’abord conservée comme instantané) et quitter.</translation>
    </message>
    <message>
        <source>List the snapshots taken automatically and exit.</source>
        <translation>Lister les instantanés pris automatiquement et quitter.</translation>
    </message>
    <message>
        <source>Print the number of coins, of pieces and the total value of the collection and exit.</source>
        <translation>Afficher le nombre de pièces, d’exemplaires et la valeur totale de la collection et quitter.</translation>
    </message>
    <message>
        <source>Write the collection&apos;s pieces and total value at the end of every day on which they changed to FILE, as CSV, and exit.</source>
        <translation>Écrire dans FILE, en CSV, le nombre d’exemplaires et la valeur totale de la collection à la fin de chaque jour où ils ont changé, et quitter.</translation>
    </message>
    <message>
        <source>Undo the last change made to the collection, say what it was and exit.</source>
        <translation>Annuler la dernière modification de la collection, dire laquelle et quitter.</translation>
    </message>
    <message>
        <source>List the last 50 changes made to the collection, newest first, and exit.</source>
        <translation>Lister les 50 dernières modifications de la collection, les plus récentes d’abord, et quitter.</translation>
    </message>
    <message>
        <source>Write the PDF report of a group and exit: KIND is denomination, country or year, followed by the group&apos;s VALUE.</source>
        <translation>Écrire le rapport PDF d’un groupe et quitter : KIND vaut denomination, country ou year, suivi de la valeur VALUE du groupe.</translation>
    </message>
    <message>
        <source>Write the report to FILE instead of the documents folder.</source>
        <translation>Écrire le rapport dans FILE au lieu du dossier des documents.</translation>
    </message>
    <message>
        <source>Use the dark appearance.</source>
        <translation>Utiliser l’apparence sombre.</translation>
    </message>
    <message>
        <source>Save a picture of the window to PNG and quit.</source>
        <translation>Enregistrer une image de la fenêtre dans PNG et quitter.</translation>
    </message>
    <message>
        <source>Start with the menu opened.</source>
        <translation>Démarrer avec le menu ouvert.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Afficher cette aide et quitter.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Afficher la version et quitter.</translation>
    </message>
    <message>
        <source>pelvane: %1
Usage: pelvane [options]
Try &apos;pelvane --help&apos; for the options.</source>
        <translation>pelvane : %1
Usage : pelvane [options]
Essayez « pelvane --help » pour voir les options.</translation>
    </message>
    <message>
        <source>Usage: pelvane [options]
Pelvane, a catalogue of a coin collection. Without options it opens the catalogue&apos;s window.

Options:
</source>
        <translation>Usage : pelvane [options]
Pelvane, un catalogue de collection de monnaies. Sans option, il ouvre la fenêtre du catalogue.

Options :
</translation>
    </message>
    <message>
        <source>--%1 needs a %2, and the one given is empty.</source>
        <translation>--%1 attend un %2, et celui donné est vide.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argument inattendu « %1 ».</translation>
    </message>
    <message>
        <source>--pdf names where a --report goes, and there is no --report.</source>
        <translation>--pdf indique où va un --report, et il n’y a pas de --report.</translation>
    </message>
    <message>
        <source>%1 cannot be combined.</source>
        <translation>%1 ne peuvent pas être combinés.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
</context>
<context>
    <name>NavigationController</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Retour à %1</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
</context>
<context>
    <name>PickerView</name>
    <message>
        <source>Choices</source>
        <translation>Choix</translation>
    </message>
</context>
<context>
    <name>PrintController</name>
    <message>
        <source>The printer cannot be opened.</source>
        <translation>Impossible d’ouvrir l’imprimante.</translation>
    </message>
    <message>
        <source>The printer reported an error.</source>
        <translation>L’imprimante a signalé une erreur.</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>SearchController</name>
    <message>
        <source>Clear Search</source>
        <translation>Effacer la recherche</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
</context>
<context>
    <name>StoreCommands</name>
    <message>
        <source>No Snapshot Today</source>
        <translation>Pas d’instantané aujourd’hui</translation>
    </message>
    <message>
        <source>Pelvane could not keep today&apos;s snapshot of the collection: %1

The collection itself is unchanged. To keep a copy, back it up from Import / Export.</source>
        <translation>Pelvane n’a pas pu conserver l’instantané du jour de la collection : %1

La collection elle-même est inchangée. Pour en garder une copie, sauvegardez-la depuis Importer / Exporter.</translation>
    </message>
</context>
<context>
    <name>TabBarController</name>
    <message>
        <source>Sections</source>
        <translation>Sections</translation>
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
        <translation>Tableau</translation>
    </message>
    <message>
        <location filename="../platform/kit/TableViewGrid.cpp" line="92"/>
        <source>Column titles</source>
        <translation>Titres des colonnes</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Discard changes?</source>
        <translation>Abandonner les modifications ?</translation>
    </message>
    <message>
        <source>What you changed here has not been saved.</source>
        <translation>Vos modifications ici n’ont pas été enregistrées.</translation>
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
</TS>
