<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
    <context>
        <name>AddReferenceViewController</name>
        <message>
            <location filename="../screens/reference/AddReferenceViewController.cpp" line="+29" />
            <location line="+6" />
            <source>Record not Saved!</source>
            <translation>Enregistrement non sauvegardé !</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Duplicates not allowed</source>
            <translation>Les doublons ne sont pas autorisés</translation>
        </message>
    </context>
    <context>
        <name>BreakdownTableViewController</name>
        <message>
            <location filename="../screens/groups/BreakdownTableViewController.cpp" line="+36" />
            <source>%1  Mint Mark: %2</source>
            <translation>%1  Marque d’atelier : %2</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Denomination</source>
            <translation>Valeur faciale</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Year</source>
            <translation>Trier et rechercher par année</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the denomination</source>
            <translation>Pièces de la valeur faciale</translation>
        </message>
        <message>
            <location line="+8" />
            <location line="+29" />
            <source>%1 Total Value: %2</source>
            <translation>%1 Valeur totale : %2</translation>
        </message>
        <message>
            <location line="-15" />
            <source>Country</source>
            <translation>Pays</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Denomination</source>
            <translation>Trier et rechercher par valeur faciale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the country</source>
            <translation>Pièces du pays</translation>
        </message>
        <message>
            <location line="+7" />
            <source>%1  Country: %2</source>
            <translation>%1  Pays : %2</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Year</source>
            <translation>Année</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Search By Denomination</source>
            <translation>Rechercher par valeur faciale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the year</source>
            <translation>Pièces de l’année</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Year: %1  Mint Mark: %2</source>
            <translation>Année : %1  Marque d’atelier : %2</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Qty: %1</source>
            <translation>Qté : %1</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Value: %1 Total Value: %2</source>
            <translation>Valeur : %1 Valeur totale : %2</translation>
        </message>
        <message>
            <location line="+48" />
            <source>Share</source>
            <translation>Partager</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>Trier</translation>
        </message>
        <message>
            <location line="+2" />
            <source>View</source>
            <translation>Affichage</translation>
        </message>
        <message>
            <location line="+99" />
            <source># of Coins: %1</source>
            <translation>Nombre de pièces : %1</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Valuation for displayed coins: %1</source>
            <translation>Estimation des pièces affichées : %1</translation>
        </message>
        <message>
            <location line="+53" />
            <source>delete</source>
            <translation>supprimer</translation>
        </message>
    </context>
    <context>
        <name>CoinHistoryViewController</name>
        <message>
            <location filename="../screens/statistics/CoinHistoryViewController.cpp" line="+56" />
            <source>Changes of quantity and value</source>
            <translation>Changements de quantité et de valeur</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Change</source>
            <translation>Changement</translation>
        </message>
        <message>
            <location line="+0" />
            <location line="+32" />
            <source>Quantity</source>
            <translation>Quantité</translation>
        </message>
        <message>
            <location line="-32" />
            <location line="+32" />
            <source>Value</source>
            <translation>Valeur</translation>
        </message>
        <message>
            <location line="-32" />
            <source>Total Value</source>
            <translation>Valeur totale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Earlier versions</source>
            <translation>Versions antérieures</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Version</source>
            <translation>Version</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Differs from now</source>
            <translation>Différences avec l’état actuel</translation>
        </message>
        <message>
            <location line="+1" />
            <source>No earlier versions.</source>
            <translation>Aucune version antérieure.</translation>
        </message>
        <message>
            <location line="+1" />
            <location line="+59" />
            <source>Restore This Version</source>
            <translation>Restaurer cette version</translation>
        </message>
        <message>
            <location line="-58" />
            <source>History</source>
            <translation>Historique</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Front picture</source>
            <translation>Image de l’avers</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back picture</source>
            <translation>Image du revers</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Country</source>
            <translation>Pays</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Denomination</source>
            <translation>Valeur faciale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Année</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Mint Mark</source>
            <translation>Marque d’atelier</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade</source>
            <translation>État de conservation</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Quantity and Value</source>
            <translation>Quantité et valeur</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Earlier Versions</source>
            <translation>Versions antérieures</translation>
        </message>
        <message>
            <location line="+93" />
            <source>Versions Not Read</source>
            <translation>Versions non lues</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Before: %1</source>
            <translation>Avant : %1</translation>
        </message>
        <message>
            <location line="+25" />
            <source>Restore This Version?</source>
            <translation>Restaurer cette version ?</translation>
        </message>
        <message>
            <location line="+1" />
            <source>The coin is written back as it was before the %1. The change can be undone in Recent Changes.</source>
            <translation>La pièce est réécrite telle qu’elle était avant « %1 ». La modification peut être annulée dans Modifications récentes.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Restore</source>
            <translation>Restaurer</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Version Not Restored</source>
            <translation>Version non restaurée</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
    </context>
    <context>
        <name>DamagedStoreBanner</name>
        <message>
            <location filename="../screens/exchange/DamagedStoreBanner.cpp" line="+47" />
            <source>%1 at %2</source>
            <translation>%1 à %2</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Your collection file is damaged</source>
            <translation>Votre fichier de collection est endommagé</translation>
        </message>
        <message>
            <location line="+7" />
            <source>There is no whole snapshot to go back to. Restore a backup from Import / Export; the damaged file is moved aside, not deleted.</source>
            <translation>Aucun instantané intact vers lequel revenir. Restaurez une sauvegarde depuis Import / Export ; le fichier endommagé est mis de côté, pas supprimé.</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The newest whole snapshot is from %1 and holds %2. Restoring it moves the damaged file aside, not deleted.</source>
            <translation>L’instantané intact le plus récent date du %1 et contient %2. Le restaurer met le fichier endommagé de côté, sans le supprimer.</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Restore Snapshot…</source>
            <translation>Restaurer l’instantané…</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Restore the snapshot from %1</source>
            <translation>Restaurer l’instantané du %1</translation>
        </message>
    </context>
    <context>
        <name>ExportViewController</name>
        <message>
            <location filename="../screens/exchange/ExportViewController.cpp" line="+21" />
            <source>Create Export File</source>
            <translation>Créer le fichier d’export</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save To Files</source>
            <translation>Enregistrer dans Fichiers</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Email File</source>
            <translation>Envoyer le fichier par e-mail</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Contents of the export file</source>
            <translation>Contenu du fichier d’export</translation>
        </message>
        <message>
            <location line="+1" />
            <source>How to export</source>
            <translation>Comment exporter</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>Exporter les pièces</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Step 1: Create the Export File
Step 2: Option 1: Click 'Save To Files' button
             Option 2: Click the Email File button to email the file to yourself and then from your email save the file to your iCloud Drive. There are size limits to email attachments for most carriers.</source>
            <translation>Étape 1 : créer le fichier d’export
Étape 2 : option 1 : cliquer sur « Enregistrer dans Fichiers »
             Option 2 : cliquer sur « Envoyer le fichier par e-mail » pour vous l’envoyer, puis l’enregistrer depuis votre messagerie dans votre iCloud Drive. La plupart des fournisseurs limitent la taille des pièces jointes.</translation>
        </message>
        <message>
            <location line="+46" />
            <location line="+10" />
            <source>Data Export File</source>
            <translation>Fichier d’export des données</translation>
        </message>
        <message>
            <location line="-9" />
            <source>The collection cannot be read: %1</source>
            <translation>La collection ne peut pas être lue : %1</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Process Complete - File Ready to Save To Files or Email</source>
            <translation>Opération terminée – fichier prêt à être enregistré dans Fichiers ou envoyé par e-mail</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Pelvane Update Text File</source>
            <translation>Fichier texte de mise à jour Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Attachment: Pelvane Text File</source>
            <translation>Pièce jointe : fichier texte Pelvane</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Sending Email</source>
            <translation>Envoi d’e-mail</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Email not Setup or Unavailable</source>
            <translation>La messagerie n’est pas configurée ou indisponible</translation>
        </message>
    </context>
    <context>
        <name>GroupTableViewController</name>
        <message>
            <location filename="../screens/groups/GroupTableViewController.cpp" line="+24" />
            <source>Sort and Search By Denomination</source>
            <translation>Trier et rechercher par valeur faciale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by denomination</source>
            <translation>Groupes par valeur faciale</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Denominations</source>
            <translation>
                <numerusform>%n valeur faciale</numerusform>
                <numerusform>%n valeurs faciales</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Denomination</source>
            <translation>0 valeur faciale</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Search By Denomination</source>
            <translation>Rechercher par valeur faciale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by country</source>
            <translation>Groupes par pays</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Countries</source>
            <translation>
                <numerusform>%n pays</numerusform>
                <numerusform>%n pays</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Country</source>
            <translation>0 pays</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Sort and Search By Year</source>
            <translation>Trier et rechercher par année</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Groups by year</source>
            <translation>Groupes par année</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Years</source>
            <translation>
                <numerusform>%n année</numerusform>
                <numerusform>%n années</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Year</source>
            <translation>0 année</translation>
        </message>
        <message>
            <location line="+56" />
            <source>‹ Back</source>
            <translation>‹ Retour</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Sort</source>
            <translation>Trier</translation>
        </message>
        <message>
            <location line="+133" />
            <source>1 coin</source>
            <translation>1 pièce</translation>
        </message>
        <message numerus="yes">
            <location line="+0" />
            <source>%n coins</source>
            <translation>
                <numerusform>%n pièce</numerusform>
                <numerusform>%n pièces</numerusform>
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
            <translation>(sans valeur)</translation>
        </message>
    </context>
    <context>
        <name>ImportExportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportExportViewController.cpp" line="+25" />
            <source>Pelvane backups (*.sqlite)</source>
            <translation>Sauvegardes Pelvane (*.sqlite)</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All files (*)</source>
            <translation>Tous les fichiers (*)</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>Exporter les pièces</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import Coins</source>
            <translation>Importer des pièces</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back Up Collection…</source>
            <translation>Sauvegarder la collection…</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Restore From Backup…</source>
            <translation>Restaurer depuis une sauvegarde…</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Move the whole collection to another device: export it here, import the file there.</source>
            <translation>Transférer toute la collection sur un autre appareil : exportez-la ici, importez le fichier là-bas.</translation>
        </message>
        <message>
            <location line="+9" />
            <source>Keep an exact copy of the collection, every picture included, or put one back.</source>
            <translation>Conserver une copie exacte de la collection, images comprises, ou en remettre une en place.</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Import / Export</source>
            <translation>Import / Export</translation>
        </message>
        <message>
            <location line="+50" />
            <source>Backup Complete</source>
            <translation>Sauvegarde terminée</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backed up %1 to %2</source>
            <translation>%1 sauvegardées dans %2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backup Failed</source>
            <translation>Échec de la sauvegarde</translation>
        </message>
    </context>
    <context>
        <name>ImportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportViewController.cpp" line="+98" />
            <source>Load File</source>
            <translation>Charger le fichier</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import File</source>
            <translation>Importer le fichier</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Contents of the file</source>
            <translation>Contenu du fichier</translation>
        </message>
        <message>
            <location line="+2" />
            <source>How to import</source>
            <translation>Comment importer</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Import Coins</source>
            <translation>Importer des pièces</translation>
        </message>
        <message>
            <location line="+9" />
            <source>YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.
1: Select the file you saved to your iCloud drive
2: Import the file into your device</source>
            <translation>VOUS NE POUVEZ IMPORTER QUE LE FICHIER CRÉÉ PAR CETTE APPLICATION.
1 : choisissez le fichier enregistré sur votre iCloud Drive
2 : importez le fichier sur votre appareil</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Exchange files (*.csv)</source>
            <translation>Fichiers d’échange (*.csv)</translation>
        </message>
        <message>
            <location line="+0" />
            <source>All files (*)</source>
            <translation>Tous les fichiers (*)</translation>
        </message>
        <message>
            <location line="+44" />
            <location line="+30" />
            <source>Data Import File</source>
            <translation>Fichier d’import des données</translation>
        </message>
        <message>
            <location line="-30" />
            <source>File Loaded and Ready to Import</source>
            <translation>Fichier chargé et prêt à être importé</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Data File Import Completed</source>
            <translation>Import du fichier de données terminé</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Data Import</source>
            <translation>Import des données</translation>
        </message>
        <message>
            <location line="+1" />
            <source>%1 Is The Incorrect Import File</source>
            <translation>%1 n’est pas le bon fichier d’import</translation>
        </message>
        <message>
            <location line="+1" />
            <source>OK</source>
            <translation>OK</translation>
        </message>
        <message numerus="yes">
            <source>%1 and %n more</source>
            <translation>
                <numerusform>%1 et %n autre</numerusform>
                <numerusform>%1 et %n autres</numerusform>
            </translation>
        </message>
        <message>
            <source>Too Many Pieces</source>
            <translation>Trop d’exemplaires</translation>
        </message>
        <message>
            <source>The collection now holds %1 pieces, more than the %2 the coin list and the valuation screen can count: they stop when they open. The coins of the file&apos;s lines %3 took it past. Edit &gt; Undo takes the whole import back.</source>
            <translation>La collection compte maintenant %1 exemplaires, plus que les %2 que la liste des pièces et l’écran d’évaluation savent compter : ils s’arrêtent à l’ouverture. Les pièces des lignes %3 du fichier ont dépassé la limite. Édition &gt; Annuler reprend toute l’importation.</translation>
        </message>
    </context>
    <context>
        <name>OverviewViewController</name>
        <message>
            <location filename="../screens/overview/OverviewViewController.cpp" line="+20" />
            <source>Pelvane Overview</source>
            <translation>Présentation de Pelvane</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Pelvane overview guide</source>
            <translation>Guide de présentation de Pelvane</translation>
        </message>
        <message>
            <location line="+22" />
            <source>%1 of %2</source>
            <translation>%1 sur %2</translation>
        </message>
    </context>
    <context>
        <name>PrintCoinsViewController</name>
        <message>
            <location filename="../screens/groups/PrintCoinsViewController.cpp" line="+17" />
            <source>Print</source>
            <translation>Imprimer</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Create File</source>
            <translation>Créer le fichier</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Coins to print</source>
            <translation>Pièces à imprimer</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Print Coins</source>
            <translation>Imprimer les pièces</translation>
        </message>
        <message>
            <location line="+23" />
            <source>Empty Data Set!</source>
            <translation>Aucune donnée !</translation>
        </message>
        <message>
            <location line="+0" />
            <source>No Coins to Print!</source>
            <translation>Aucune pièce à imprimer !</translation>
        </message>
    </context>
    <context>
        <name>RateShareTableViewController</name>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.cpp" line="+14" />
            <source>Rate Pelvane</source>
            <translation>Évaluer Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Share Pelvane</source>
            <translation>Partager Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Invite a Friend</source>
            <translation>Inviter un ami</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Visit the Pelvane Website</source>
            <translation>Visiter le site de Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Send Feedback</source>
            <translation>Envoyer un avis</translation>
        </message>
        <message>
            <location line="+24" />
            <location line="+5" />
            <source>Rate &amp; Share</source>
            <translation>Évaluer et partager</translation>
        </message>
        <message>
            <location line="+36" />
            <source>Can't Send Text Message</source>
            <translation>Impossible d’envoyer un SMS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send text messages.</source>
            <translation>Votre appareil ne peut pas envoyer de SMS.</translation>
        </message>
        <message>
            <location line="+11" />
            <source>&lt;p&gt;Enter your comments about the Pelvane app below: &lt;/p&gt;</source>
            <translation>&lt;p&gt;Saisissez ci-dessous vos commentaires sur Pelvane : &lt;/p&gt;</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Can't Send Email</source>
            <translation>Impossible d’envoyer un e-mail</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send Email.</source>
            <translation>Votre appareil ne peut pas envoyer d’e-mails.</translation>
        </message>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.h" line="+23" />
            <source>Click the following link to visit the Pelvane App website</source>
            <translation>Cliquez sur le lien suivant pour visiter le site de Pelvane</translation>
        </message>
    </context>
    <context>
        <name>ReferenceKinds</name>
        <message>
            <location filename="../screens/reference/ReferenceKinds.cpp" line="+18" />
            <source>Grade Numbers</source>
            <translation>Grades de conservation</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Grade Number List</source>
            <translation>Liste des grades de conservation</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Grade Number</source>
            <translation>Rechercher par grade de conservation</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Grade Number</source>
            <translation>Grade de conservation</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Strike Characters</source>
            <translation>Qualités de frappe</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Strike Character List</source>
            <translation>Liste des qualités de frappe</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Strike Character</source>
            <translation>Rechercher par qualité de frappe</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Strike Character</source>
            <translation>Qualité de frappe</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Edges</source>
            <translation>Tranches</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Edge List</source>
            <translation>Liste des tranches</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Edge</source>
            <translation>Rechercher par tranche</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edge</source>
            <translation>Tranche</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Add Grade Numbers</source>
            <translation>Ajouter un grade de conservation</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade Number not Entered</source>
            <translation>Aucun grade de conservation saisi</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Grade Numbers</source>
            <translation>Modifier le grade de conservation</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Strike Character</source>
            <translation>Ajouter une qualité de frappe</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Strike Character not Entered</source>
            <translation>Aucune qualité de frappe saisie</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Strike Characters</source>
            <translation>Modifier la qualité de frappe</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Edge</source>
            <translation>Ajouter une tranche</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Edge not Entered</source>
            <translation>Aucune tranche saisie</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Edge</source>
            <translation>Modifier la tranche</translation>
        </message>
    </context>
    <context>
        <name>ReferenceListViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceListViewController.cpp" line="+30" />
            <source>Reference Lists</source>
            <translation>Listes de référence</translation>
        </message>
    </context>
    <context>
        <name>ReferenceTableViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceTableViewController.cpp" line="+50" />
            <source>Add</source>
            <translation>Ajouter</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>Trier</translation>
        </message>
        <message>
            <location line="+131" />
            <source>delete</source>
            <translation>supprimer</translation>
        </message>
    </context>
    <context>
        <name>ReferenceValueViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceValueViewController.cpp" line="+15" />
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
    </context>
    <context>
        <name>RestoreFlow</name>
        <message>
            <location filename="../screens/exchange/RestoreFlow.cpp" line="+38" />
            <location line="+39" />
            <source>Restore Failed</source>
            <translation>Échec de la restauration</translation>
        </message>
        <message>
            <location line="-36" />
            <source>Restored %1.</source>
            <translation>%1 restaurées.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The damaged collection file was kept as %1.</source>
            <translation>Le fichier de collection endommagé a été conservé sous %1.</translation>
        </message>
        <message>
            <location line="+6" />
            <location line="+5" />
            <source>Restore Complete</source>
            <translation>Restauration terminée</translation>
        </message>
        <message>
            <location line="+5" />
            <source>coin</source>
            <translation>pièce</translation>
        </message>
        <message>
            <location line="+0" />
            <source>coins</source>
            <translation>pièces</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Restore From Backup?</source>
            <translation>Restaurer depuis la sauvegarde ?</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The backup holds %1; the collection cannot be read. Its file is moved aside whole, not deleted, and the backup takes its place.</source>
            <translation>La sauvegarde contient %1 ; la collection ne peut pas être lue. Son fichier est mis de côté intact, sans être supprimé, et la sauvegarde prend sa place.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The backup holds %1; the collection holds %2. The collection as it is now is kept as a snapshot in Backups/.</source>
            <translation>La sauvegarde contient %1 ; la collection contient %2. La collection dans son état actuel est conservée comme instantané dans Backups/.</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Restore</source>
            <translation>Restaurer</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Cancel</source>
            <translation>Annuler</translation>
        </message>
    </context>
    <context>
        <name>StatisticsCharts</name>
        <message>
            <location filename="../screens/statistics/StatisticsCharts.cpp" line="+69" />
            <location line="+37" />
            <source>Value</source>
            <translation>Valeur</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Pieces</source>
            <translation>Exemplaires</translation>
        </message>
        <message>
            <location line="+11" />
            <source>(none)</source>
            <translation>(aucun)</translation>
        </message>
        <message>
            <location line="+14" />
            <source>%1: %2 pieces, %3</source>
            <translation>%1 : %2 exemplaires, %3</translation>
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
            <translation>Valeur</translation>
        </message>
        <message>
            <location line="-126" />
            <source>Countries</source>
            <translation>Pays</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denominations</source>
            <translation>Valeurs faciales</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Decades</source>
            <translation>Décennies</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Changes</source>
            <translation>Changements</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Chart of the value over time</source>
            <translation>Graphique de la valeur dans le temps</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by country</source>
            <translation>Graphique de la valeur par pays</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by denomination</source>
            <translation>Graphique de la valeur par valeur faciale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the pieces by decade</source>
            <translation>Graphique des exemplaires par décennie</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Statistics: value by day</source>
            <translation>Statistiques : valeur par jour</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by country</source>
            <translation>Statistiques : exemplaires et valeur par pays</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by denomination</source>
            <translation>Statistiques : exemplaires et valeur par valeur faciale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by decade</source>
            <translation>Statistiques : exemplaires et valeur par décennie</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: largest changes</source>
            <translation>Statistiques : plus grands changements</translation>
        </message>
        <message>
            <location line="+5" />
            <source>(none)</source>
            <translation>(aucun)</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Month</source>
            <translation>Mois</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Année</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All</source>
            <translation>Tout</translation>
        </message>
        <message>
            <location line="+3" />
            <location line="+25" />
            <location line="+1" />
            <source>Statistics</source>
            <translation>Statistiques</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Save Chart…</source>
            <translation>Enregistrer le graphique…</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Export Data…</source>
            <translation>Exporter les données…</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Columns</source>
            <translation>Colonnes</translation>
        </message>
        <message>
            <location line="+2" />
            <location line="+4" />
            <source>Date</source>
            <translation>Date</translation>
        </message>
        <message>
            <location line="-4" />
            <location line="+1" />
            <location line="+1" />
            <location line="+1" />
            <source>Pieces</source>
            <translation>Exemplaires</translation>
        </message>
        <message>
            <location line="-2" />
            <location line="+71" />
            <source>Country</source>
            <translation>Pays</translation>
        </message>
        <message>
            <location line="-70" />
            <location line="+74" />
            <source>Denomination</source>
            <translation>Valeur faciale</translation>
        </message>
        <message>
            <location line="-73" />
            <location line="+112" />
            <source>Decade</source>
            <translation>Décennie</translation>
        </message>
        <message>
            <location line="-111" />
            <source>Coin</source>
            <translation>Pièce</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Before</source>
            <translation>Avant</translation>
        </message>
        <message>
            <location line="+0" />
            <source>After</source>
            <translation>Après</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Cause</source>
            <translation>Cause</translation>
        </message>
        <message>
            <location line="+60" />
            <source>%1 pieces, worth %2</source>
            <translation>%1 exemplaires, d’une valeur de %2</translation>
        </message>
        <message>
            <location line="+40" />
            <source>Other</source>
            <translation>Autres</translation>
        </message>
        <message>
            <location line="+91" />
            <source>PNG pictures (*.png)</source>
            <translation>Images PNG (*.png)</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Chart Not Saved</source>
            <translation>Graphique non enregistré</translation>
        </message>
        <message>
            <location line="+9" />
            <source>CSV files (*.csv)</source>
            <translation>Fichiers CSV (*.csv)</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Data Not Exported</source>
            <translation>Données non exportées</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Coin Deleted</source>
            <translation>Pièce supprimée</translation>
        </message>
        <message>
            <location line="+0" />
            <source>This coin has been deleted. It can be put back from Recently Deleted, on the Recent Changes screen.</source>
            <translation>Cette pièce a été supprimée. Elle peut être remise en place depuis Supprimées récemment, sur l’écran Modifications récentes.</translation>
        </message>
    </context>
    <context>
        <name>ValuationViewController</name>
        <message>
            <location filename="../screens/valuation/ValuationViewController.cpp" line="+74" />
            <source>Coins</source>
            <translation>Pièces</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Total Value</source>
            <translation>Valeur totale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Année</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denomination</source>
            <translation>Valeur faciale</translation>
        </message>
        <message>
            <location line="+1" />
            <source>New Value</source>
            <translation>Nouvelle valeur</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Search Web</source>
            <translation>Rechercher sur le Web</translation>
        </message>
        <message>
            <location line="+2" />
            <source>PCGS</source>
            <translation>PCGS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>PCGS price guide</source>
            <translation>Guide des prix PCGS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC</source>
            <translation>NGC</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC price guide</source>
            <translation>Guide des prix NGC</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save</source>
            <translation>Enregistrer</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save the new value</source>
            <translation>Enregistrer la nouvelle valeur</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Coins and their values</source>
            <translation>Pièces et leur valeur</translation>
        </message>
        <message>
            <location line="+16" />
            <source>Coin Valuation</source>
            <translation>Estimation des pièces</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Share</source>
            <translation>Partager</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Denomination: %1  Year: %2</source>
            <translation>Valeur faciale : %1  Année : %2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Quantity: %1</source>
            <translation>Quantité : %1</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Value: %1</source>
            <translation>Valeur : %1</translation>
        </message>
        <message>
            <location line="+31" />
            <source>No Search</source>
            <translation>Pas de recherche</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Required Fields Year and Denomination Not Entered</source>
            <translation>Les champs obligatoires Année et Valeur faciale ne sont pas remplis</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Record not Saved!</source>
            <translation>Enregistrement non sauvegardé !</translation>
        </message>
        <message>
            <location line="+0" />
            <source>New Value not Entered</source>
            <translation>Aucune nouvelle valeur saisie</translation>
        </message>
    </context>
</TS>
