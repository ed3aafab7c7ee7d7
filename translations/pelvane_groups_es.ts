<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
    <context>
        <name>AddReferenceViewController</name>
        <message>
            <location filename="../screens/reference/AddReferenceViewController.cpp" line="+29" />
            <location line="+6" />
            <source>Record not Saved!</source>
            <translation>¡Registro no guardado!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Duplicates not allowed</source>
            <translation>No se permiten duplicados</translation>
        </message>
    </context>
    <context>
        <name>BreakdownTableViewController</name>
        <message>
            <location filename="../screens/groups/BreakdownTableViewController.cpp" line="+36" />
            <source>%1  Mint Mark: %2</source>
            <translation>%1  Marca de ceca: %2</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Denomination</source>
            <translation>Denominación</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Year</source>
            <translation>Ordenar y buscar por año</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the denomination</source>
            <translation>Monedas de la denominación</translation>
        </message>
        <message>
            <location line="+8" />
            <location line="+29" />
            <source>%1 Total Value: %2</source>
            <translation>%1 Valor total: %2</translation>
        </message>
        <message>
            <location line="-15" />
            <source>Country</source>
            <translation>País</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Denomination</source>
            <translation>Ordenar y buscar por denominación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the country</source>
            <translation>Monedas del país</translation>
        </message>
        <message>
            <location line="+7" />
            <source>%1  Country: %2</source>
            <translation>%1  País: %2</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Year</source>
            <translation>Año</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Search By Denomination</source>
            <translation>Buscar por denominación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the year</source>
            <translation>Monedas del año</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Year: %1  Mint Mark: %2</source>
            <translation>Año: %1  Marca de ceca: %2</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Qty: %1</source>
            <translation>Cant.: %1</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Value: %1 Total Value: %2</source>
            <translation>Valor: %1 Valor total: %2</translation>
        </message>
        <message>
            <location line="+48" />
            <source>Share</source>
            <translation>Compartir</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>Ordenar</translation>
        </message>
        <message>
            <location line="+2" />
            <source>View</source>
            <translation>Vista</translation>
        </message>
        <message>
            <location line="+99" />
            <source># of Coins: %1</source>
            <translation>N.º de monedas: %1</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Valuation for displayed coins: %1</source>
            <translation>Valoración de las monedas mostradas: %1</translation>
        </message>
        <message>
            <location line="+53" />
            <source>delete</source>
            <translation>eliminar</translation>
        </message>
    </context>
    <context>
        <name>CoinHistoryViewController</name>
        <message>
            <location filename="../screens/statistics/CoinHistoryViewController.cpp" line="+56" />
            <source>Changes of quantity and value</source>
            <translation>Cambios de cantidad y valor</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Date</source>
            <translation>Fecha</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Change</source>
            <translation>Cambio</translation>
        </message>
        <message>
            <location line="+0" />
            <location line="+32" />
            <source>Quantity</source>
            <translation>Cantidad</translation>
        </message>
        <message>
            <location line="-32" />
            <location line="+32" />
            <source>Value</source>
            <translation>Valor</translation>
        </message>
        <message>
            <location line="-32" />
            <source>Total Value</source>
            <translation>Valor total</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Earlier versions</source>
            <translation>Versiones anteriores</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Version</source>
            <translation>Versión</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Differs from now</source>
            <translation>Diferencias con el estado actual</translation>
        </message>
        <message>
            <location line="+1" />
            <source>No earlier versions.</source>
            <translation>No hay versiones anteriores.</translation>
        </message>
        <message>
            <location line="+1" />
            <location line="+59" />
            <source>Restore This Version</source>
            <translation>Restaurar esta versión</translation>
        </message>
        <message>
            <location line="-58" />
            <source>History</source>
            <translation>Historial</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Front picture</source>
            <translation>Imagen del anverso</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back picture</source>
            <translation>Imagen del reverso</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Country</source>
            <translation>País</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Denomination</source>
            <translation>Denominación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Año</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Mint Mark</source>
            <translation>Marca de ceca</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade</source>
            <translation>Grado de conservación</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Quantity and Value</source>
            <translation>Cantidad y valor</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Earlier Versions</source>
            <translation>Versiones anteriores</translation>
        </message>
        <message>
            <location line="+93" />
            <source>Versions Not Read</source>
            <translation>Versiones no leídas</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Before: %1</source>
            <translation>Antes de: %1</translation>
        </message>
        <message>
            <location line="+25" />
            <source>Restore This Version?</source>
            <translation>¿Restaurar esta versión?</translation>
        </message>
        <message>
            <location line="+1" />
            <source>The coin is written back as it was before the %1. The change can be undone in Recent Changes.</source>
            <translation>La moneda se vuelve a escribir tal como era antes de «%1». El cambio puede deshacerse en Cambios recientes.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Restore</source>
            <translation>Restaurar</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Version Not Restored</source>
            <translation>Versión no restaurada</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>DamagedStoreBanner</name>
        <message>
            <location filename="../screens/exchange/DamagedStoreBanner.cpp" line="+47" />
            <source>%1 at %2</source>
            <translation>%1 a las %2</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Your collection file is damaged</source>
            <translation>El archivo de su colección está dañado</translation>
        </message>
        <message>
            <location line="+7" />
            <source>There is no whole snapshot to go back to. Restore a backup from Import / Export; the damaged file is moved aside, not deleted.</source>
            <translation>No hay ninguna instantánea íntegra a la que volver. Restaure una copia de seguridad desde Importar / Exportar; el archivo dañado se aparta, no se elimina.</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The newest whole snapshot is from %1 and holds %2. Restoring it moves the damaged file aside, not deleted.</source>
            <translation>La instantánea íntegra más reciente es del %1 y contiene %2. Restaurarla aparta el archivo dañado, sin eliminarlo.</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Restore Snapshot…</source>
            <translation>Restaurar instantánea…</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Restore the snapshot from %1</source>
            <translation>Restaurar la instantánea del %1</translation>
        </message>
    </context>
    <context>
        <name>ExportViewController</name>
        <message>
            <location filename="../screens/exchange/ExportViewController.cpp" line="+21" />
            <source>Create Export File</source>
            <translation>Crear archivo de exportación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save To Files</source>
            <translation>Guardar en Archivos</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Email File</source>
            <translation>Enviar archivo por correo</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Contents of the export file</source>
            <translation>Contenido del archivo de exportación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>How to export</source>
            <translation>Cómo exportar</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>Exportar monedas</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Step 1: Create the Export File
Step 2: Option 1: Click 'Save To Files' button
             Option 2: Click the Email File button to email the file to yourself and then from your email save the file to your iCloud Drive. There are size limits to email attachments for most carriers.</source>
            <translation>Paso 1: Crear el archivo de exportación
Paso 2: Opción 1: Pulsar el botón «Guardar en Archivos»
             Opción 2: Pulsar «Enviar archivo por correo» para enviárselo a usted mismo y luego guardarlo desde el correo en su iCloud Drive. La mayoría de los proveedores limitan el tamaño de los adjuntos.</translation>
        </message>
        <message>
            <location line="+46" />
            <location line="+10" />
            <source>Data Export File</source>
            <translation>Archivo de exportación de datos</translation>
        </message>
        <message>
            <location line="-9" />
            <source>The collection cannot be read: %1</source>
            <translation>No se puede leer la colección: %1</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Process Complete - File Ready to Save To Files or Email</source>
            <translation>Proceso completado: archivo listo para guardar en Archivos o enviar por correo</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Pelvane Update Text File</source>
            <translation>Archivo de texto de actualización de Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Attachment: Pelvane Text File</source>
            <translation>Adjunto: archivo de texto de Pelvane</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Sending Email</source>
            <translation>Envío de correo</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Email not Setup or Unavailable</source>
            <translation>El correo no está configurado o no está disponible</translation>
        </message>
    </context>
    <context>
        <name>GroupTableViewController</name>
        <message>
            <location filename="../screens/groups/GroupTableViewController.cpp" line="+24" />
            <source>Sort and Search By Denomination</source>
            <translation>Ordenar y buscar por denominación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by denomination</source>
            <translation>Grupos por denominación</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Denominations</source>
            <translation>
                <numerusform>%n denominación</numerusform>
                <numerusform>%n denominaciones</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Denomination</source>
            <translation>0 denominaciones</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Search By Denomination</source>
            <translation>Buscar por denominación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by country</source>
            <translation>Grupos por país</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Countries</source>
            <translation>
                <numerusform>%n país</numerusform>
                <numerusform>%n países</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Country</source>
            <translation>0 países</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Sort and Search By Year</source>
            <translation>Ordenar y buscar por año</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Groups by year</source>
            <translation>Grupos por año</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Years</source>
            <translation>
                <numerusform>%n año</numerusform>
                <numerusform>%n años</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Year</source>
            <translation>0 años</translation>
        </message>
        <message>
            <location line="+56" />
            <source>‹ Back</source>
            <translation>‹ Atrás</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Sort</source>
            <translation>Ordenar</translation>
        </message>
        <message>
            <location line="+133" />
            <source>1 coin</source>
            <translation>1 moneda</translation>
        </message>
        <message numerus="yes">
            <location line="+0" />
            <source>%n coins</source>
            <translation>
                <numerusform>%n moneda</numerusform>
                <numerusform>%n monedas</numerusform>
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
            <translation>(sin valor)</translation>
        </message>
    </context>
    <context>
        <name>ImportExportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportExportViewController.cpp" line="+25" />
            <source>Pelvane backups (*.sqlite)</source>
            <translation>Copias de seguridad de Pelvane (*.sqlite)</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All files (*)</source>
            <translation>Todos los archivos (*)</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>Exportar monedas</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import Coins</source>
            <translation>Importar monedas</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back Up Collection…</source>
            <translation>Hacer copia de la colección…</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Restore From Backup…</source>
            <translation>Restaurar desde copia…</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Move the whole collection to another device: export it here, import the file there.</source>
            <translation>Lleve toda la colección a otro dispositivo: expórtela aquí e importe el archivo allí.</translation>
        </message>
        <message>
            <location line="+9" />
            <source>Keep an exact copy of the collection, every picture included, or put one back.</source>
            <translation>Guarde una copia exacta de la colección, con todas las imágenes, o restaure una.</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Import / Export</source>
            <translation>Importar / Exportar</translation>
        </message>
        <message>
            <location line="+50" />
            <source>Backup Complete</source>
            <translation>Copia de seguridad completada</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backed up %1 to %2</source>
            <translation>%1 copiadas en %2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backup Failed</source>
            <translation>Error en la copia de seguridad</translation>
        </message>
    </context>
    <context>
        <name>ImportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportViewController.cpp" line="+98" />
            <source>Load File</source>
            <translation>Cargar archivo</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import File</source>
            <translation>Importar archivo</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Contents of the file</source>
            <translation>Contenido del archivo</translation>
        </message>
        <message>
            <location line="+2" />
            <source>How to import</source>
            <translation>Cómo importar</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Import Coins</source>
            <translation>Importar monedas</translation>
        </message>
        <message>
            <location line="+9" />
            <source>YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.
1: Select the file you saved to your iCloud drive
2: Import the file into your device</source>
            <translation>SOLO PUEDE IMPORTAR EL ARCHIVO CREADO POR ESTA APLICACIÓN.
1: Seleccione el archivo que guardó en su iCloud Drive
2: Importe el archivo en su dispositivo</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Exchange files (*.csv)</source>
            <translation>Archivos de intercambio (*.csv)</translation>
        </message>
        <message>
            <location line="+0" />
            <source>All files (*)</source>
            <translation>Todos los archivos (*)</translation>
        </message>
        <message>
            <location line="+44" />
            <location line="+30" />
            <source>Data Import File</source>
            <translation>Archivo de importación de datos</translation>
        </message>
        <message>
            <location line="-30" />
            <source>File Loaded and Ready to Import</source>
            <translation>Archivo cargado y listo para importar</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Data File Import Completed</source>
            <translation>Importación del archivo de datos completada</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Data Import</source>
            <translation>Importación de datos</translation>
        </message>
        <message>
            <location line="+1" />
            <source>%1 Is The Incorrect Import File</source>
            <translation>%1 no es el archivo de importación correcto</translation>
        </message>
        <message>
            <location line="+1" />
            <source>OK</source>
            <translation>Aceptar</translation>
        </message>
        <message numerus="yes">
            <source>%1 and %n more</source>
            <translation>
                <numerusform>%1 y %n más</numerusform>
                <numerusform>%1 y %n más</numerusform>
            </translation>
        </message>
        <message>
            <source>Too Many Pieces</source>
            <translation>Demasiadas piezas</translation>
        </message>
        <message>
            <source>The collection now holds %1 pieces, more than the %2 the coin list and the valuation screen can count: they stop when they open. The coins of the file&apos;s lines %3 took it past. Edit &gt; Undo takes the whole import back.</source>
            <translation>La colección tiene ahora %1 piezas, más de las %2 que la lista de monedas y la pantalla de valoración pueden contar: se detienen al abrirse. Las monedas de las líneas %3 del archivo superaron el límite. Editar &gt; Deshacer revierte toda la importación.</translation>
        </message>
    </context>
    <context>
        <name>OverviewViewController</name>
        <message>
            <location filename="../screens/overview/OverviewViewController.cpp" line="+20" />
            <source>Pelvane Overview</source>
            <translation>Introducción a Pelvane</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Pelvane overview guide</source>
            <translation>Guía de introducción a Pelvane</translation>
        </message>
        <message>
            <location line="+22" />
            <source>%1 of %2</source>
            <translation>%1 de %2</translation>
        </message>
    </context>
    <context>
        <name>PrintCoinsViewController</name>
        <message>
            <location filename="../screens/groups/PrintCoinsViewController.cpp" line="+17" />
            <source>Print</source>
            <translation>Imprimir</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Create File</source>
            <translation>Crear archivo</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Coins to print</source>
            <translation>Monedas para imprimir</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Print Coins</source>
            <translation>Imprimir monedas</translation>
        </message>
        <message>
            <location line="+23" />
            <source>Empty Data Set!</source>
            <translation>¡No hay datos!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>No Coins to Print!</source>
            <translation>¡No hay monedas para imprimir!</translation>
        </message>
    </context>
    <context>
        <name>RateShareTableViewController</name>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.cpp" line="+14" />
            <source>Rate Pelvane</source>
            <translation>Valorar Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Share Pelvane</source>
            <translation>Compartir Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Invite a Friend</source>
            <translation>Invitar a un amigo</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Visit the Pelvane Website</source>
            <translation>Visitar el sitio web de Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Send Feedback</source>
            <translation>Enviar comentarios</translation>
        </message>
        <message>
            <location line="+24" />
            <location line="+5" />
            <source>Rate &amp; Share</source>
            <translation>Valorar y compartir</translation>
        </message>
        <message>
            <location line="+36" />
            <source>Can't Send Text Message</source>
            <translation>No se puede enviar el mensaje</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send text messages.</source>
            <translation>Su dispositivo no puede enviar mensajes de texto.</translation>
        </message>
        <message>
            <location line="+11" />
            <source>&lt;p&gt;Enter your comments about the Pelvane app below: &lt;/p&gt;</source>
            <translation>&lt;p&gt;Escriba abajo sus comentarios sobre Pelvane: &lt;/p&gt;</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Can't Send Email</source>
            <translation>No se puede enviar el correo</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send Email.</source>
            <translation>Su dispositivo no puede enviar correo electrónico.</translation>
        </message>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.h" line="+23" />
            <source>Click the following link to visit the Pelvane App website</source>
            <translation>Pulse el siguiente enlace para visitar el sitio web de Pelvane</translation>
        </message>
    </context>
    <context>
        <name>ReferenceKinds</name>
        <message>
            <location filename="../screens/reference/ReferenceKinds.cpp" line="+18" />
            <source>Grade Numbers</source>
            <translation>Grados de conservación</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Grade Number List</source>
            <translation>Lista de grados de conservación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Grade Number</source>
            <translation>Buscar por grado de conservación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Grade Number</source>
            <translation>Grado de conservación</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Strike Characters</source>
            <translation>Calidades de acuñación</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Strike Character List</source>
            <translation>Lista de calidades de acuñación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Strike Character</source>
            <translation>Buscar por calidad de acuñación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Strike Character</source>
            <translation>Calidad de acuñación</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Edges</source>
            <translation>Cantos</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Edge List</source>
            <translation>Lista de cantos</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Edge</source>
            <translation>Buscar por canto</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edge</source>
            <translation>Canto</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Add Grade Numbers</source>
            <translation>Añadir grado de conservación</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade Number not Entered</source>
            <translation>No se ha introducido el grado de conservación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Grade Numbers</source>
            <translation>Editar grado de conservación</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Strike Character</source>
            <translation>Añadir calidad de acuñación</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Strike Character not Entered</source>
            <translation>No se ha introducido la calidad de acuñación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Strike Characters</source>
            <translation>Editar calidad de acuñación</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Edge</source>
            <translation>Añadir canto</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Edge not Entered</source>
            <translation>No se ha introducido el canto</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Edge</source>
            <translation>Editar canto</translation>
        </message>
    </context>
    <context>
        <name>ReferenceListViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceListViewController.cpp" line="+30" />
            <source>Reference Lists</source>
            <translation>Listas de referencia</translation>
        </message>
    </context>
    <context>
        <name>ReferenceTableViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceTableViewController.cpp" line="+50" />
            <source>Add</source>
            <translation>Añadir</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>Ordenar</translation>
        </message>
        <message>
            <location line="+131" />
            <source>delete</source>
            <translation>eliminar</translation>
        </message>
    </context>
    <context>
        <name>ReferenceValueViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceValueViewController.cpp" line="+15" />
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
    </context>
    <context>
        <name>RestoreFlow</name>
        <message>
            <location filename="../screens/exchange/RestoreFlow.cpp" line="+38" />
            <location line="+39" />
            <source>Restore Failed</source>
            <translation>Error al restaurar</translation>
        </message>
        <message>
            <location line="-36" />
            <source>Restored %1.</source>
            <translation>%1 restauradas.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The damaged collection file was kept as %1.</source>
            <translation>El archivo dañado de la colección se conservó como %1.</translation>
        </message>
        <message>
            <location line="+6" />
            <location line="+5" />
            <source>Restore Complete</source>
            <translation>Restauración completada</translation>
        </message>
        <message>
            <location line="+5" />
            <source>coin</source>
            <translation>moneda</translation>
        </message>
        <message>
            <location line="+0" />
            <source>coins</source>
            <translation>monedas</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Restore From Backup?</source>
            <translation>¿Restaurar desde la copia de seguridad?</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The backup holds %1; the collection cannot be read. Its file is moved aside whole, not deleted, and the backup takes its place.</source>
            <translation>La copia contiene %1; no se puede leer la colección. Su archivo se aparta entero, sin eliminarlo, y la copia ocupa su lugar.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The backup holds %1; the collection holds %2. The collection as it is now is kept as a snapshot in Backups/.</source>
            <translation>La copia contiene %1; la colección contiene %2. La colección tal como está ahora se conserva como instantánea en Backups/.</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Restore</source>
            <translation>Restaurar</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Cancel</source>
            <translation>Cancelar</translation>
        </message>
    </context>
    <context>
        <name>StatisticsCharts</name>
        <message>
            <location filename="../screens/statistics/StatisticsCharts.cpp" line="+69" />
            <location line="+37" />
            <source>Value</source>
            <translation>Valor</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Pieces</source>
            <translation>Piezas</translation>
        </message>
        <message>
            <location line="+11" />
            <source>(none)</source>
            <translation>(ninguno)</translation>
        </message>
        <message>
            <location line="+14" />
            <source>%1: %2 pieces, %3</source>
            <translation>%1: %2 piezas, %3</translation>
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
            <translation>Valor</translation>
        </message>
        <message>
            <location line="-126" />
            <source>Countries</source>
            <translation>Países</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denominations</source>
            <translation>Denominaciones</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Decades</source>
            <translation>Décadas</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Changes</source>
            <translation>Cambios</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Chart of the value over time</source>
            <translation>Gráfico del valor a lo largo del tiempo</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by country</source>
            <translation>Gráfico del valor por país</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by denomination</source>
            <translation>Gráfico del valor por denominación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the pieces by decade</source>
            <translation>Gráfico de piezas por década</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Statistics: value by day</source>
            <translation>Estadísticas: valor por día</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by country</source>
            <translation>Estadísticas: piezas y valor por país</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by denomination</source>
            <translation>Estadísticas: piezas y valor por denominación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by decade</source>
            <translation>Estadísticas: piezas y valor por década</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: largest changes</source>
            <translation>Estadísticas: mayores cambios</translation>
        </message>
        <message>
            <location line="+5" />
            <source>(none)</source>
            <translation>(ninguno)</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Month</source>
            <translation>Mes</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Año</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All</source>
            <translation>Todo</translation>
        </message>
        <message>
            <location line="+3" />
            <location line="+25" />
            <location line="+1" />
            <source>Statistics</source>
            <translation>Estadísticas</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Save Chart…</source>
            <translation>Guardar gráfico…</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Export Data…</source>
            <translation>Exportar datos…</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Columns</source>
            <translation>Columnas</translation>
        </message>
        <message>
            <location line="+2" />
            <location line="+4" />
            <source>Date</source>
            <translation>Fecha</translation>
        </message>
        <message>
            <location line="-4" />
            <location line="+1" />
            <location line="+1" />
            <location line="+1" />
            <source>Pieces</source>
            <translation>Piezas</translation>
        </message>
        <message>
            <location line="-2" />
            <location line="+71" />
            <source>Country</source>
            <translation>País</translation>
        </message>
        <message>
            <location line="-70" />
            <location line="+74" />
            <source>Denomination</source>
            <translation>Denominación</translation>
        </message>
        <message>
            <location line="-73" />
            <location line="+112" />
            <source>Decade</source>
            <translation>Década</translation>
        </message>
        <message>
            <location line="-111" />
            <source>Coin</source>
            <translation>Moneda</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Before</source>
            <translation>Antes</translation>
        </message>
        <message>
            <location line="+0" />
            <source>After</source>
            <translation>Después</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Cause</source>
            <translation>Causa</translation>
        </message>
        <message>
            <location line="+60" />
            <source>%1 pieces, worth %2</source>
            <translation>%1 piezas, con un valor de %2</translation>
        </message>
        <message>
            <location line="+40" />
            <source>Other</source>
            <translation>Otros</translation>
        </message>
        <message>
            <location line="+91" />
            <source>PNG pictures (*.png)</source>
            <translation>Imágenes PNG (*.png)</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Chart Not Saved</source>
            <translation>Gráfico no guardado</translation>
        </message>
        <message>
            <location line="+9" />
            <source>CSV files (*.csv)</source>
            <translation>Archivos CSV (*.csv)</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Data Not Exported</source>
            <translation>Datos no exportados</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Coin Deleted</source>
            <translation>Moneda eliminada</translation>
        </message>
        <message>
            <location line="+0" />
            <source>This coin has been deleted. It can be put back from Recently Deleted, on the Recent Changes screen.</source>
            <translation>Esta moneda se ha eliminado. Puede recuperarse desde Eliminadas recientemente, en la pantalla Cambios recientes.</translation>
        </message>
    </context>
    <context>
        <name>ValuationViewController</name>
        <message>
            <location filename="../screens/valuation/ValuationViewController.cpp" line="+74" />
            <source>Coins</source>
            <translation>Monedas</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Total Value</source>
            <translation>Valor total</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Año</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denomination</source>
            <translation>Denominación</translation>
        </message>
        <message>
            <location line="+1" />
            <source>New Value</source>
            <translation>Nuevo valor</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Search Web</source>
            <translation>Buscar en la web</translation>
        </message>
        <message>
            <location line="+2" />
            <source>PCGS</source>
            <translation>PCGS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>PCGS price guide</source>
            <translation>Guía de precios de PCGS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC</source>
            <translation>NGC</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC price guide</source>
            <translation>Guía de precios de NGC</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save</source>
            <translation>Guardar</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save the new value</source>
            <translation>Guardar el nuevo valor</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Coins and their values</source>
            <translation>Monedas y sus valores</translation>
        </message>
        <message>
            <location line="+16" />
            <source>Coin Valuation</source>
            <translation>Valoración de monedas</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Share</source>
            <translation>Compartir</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Denomination: %1  Year: %2</source>
            <translation>Denominación: %1  Año: %2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Quantity: %1</source>
            <translation>Cantidad: %1</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Value: %1</source>
            <translation>Valor: %1</translation>
        </message>
        <message>
            <location line="+31" />
            <source>No Search</source>
            <translation>Sin búsqueda</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Required Fields Year and Denomination Not Entered</source>
            <translation>No se han rellenado los campos obligatorios Año y Denominación</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Record not Saved!</source>
            <translation>¡Registro no guardado!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>New Value not Entered</source>
            <translation>No se ha introducido el nuevo valor</translation>
        </message>
    </context>
</TS>
