<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AlertController</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>AlreadyOpen</name>
    <message>
        <source>Collection In Use</source>
        <translation>Colección en uso</translation>
    </message>
    <message>
        <source>This collection is open in another Pelvane (named below). Carry on there, or start Pelvane again once it is closed.</source>
        <translation>Esta colección está abierta en otro Pelvane (indicado abajo). Continúe allí o vuelva a iniciar Pelvane cuando se haya cerrado.</translation>
    </message>
</context>
<context>
    <name>AppMenuBar</name>
    <message>
        <source>Licence: GNU General Public License, version 3 or later (GPL-3.0-or-later), without warranty of any kind.</source>
        <translation>Licencia: GNU General Public License, versión 3 o posterior (GPL-3.0-or-later), sin garantía de ningún tipo.</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Fichas</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>List Coins</source>
        <translation>Lista de monedas</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Agrupar por</translation>
    </message>
    <message>
        <source>Coin Valuation</source>
        <translation>Valoración de monedas</translation>
    </message>
    <message>
        <source>Reference Lists</source>
        <translation>Listas de referencia</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Recent Changes</source>
        <translation>Cambios recientes</translation>
    </message>
    <message>
        <source>Cannot Redo</source>
        <translation>No se puede rehacer</translation>
    </message>
    <message>
        <source>Cannot Undo</source>
        <translation>No se puede deshacer</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Rehacer: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Pelvane %1

A catalogue of a personal coin collection that keeps everything on your machine.

%2</source>
        <translation>Pelvane %1

Un catálogo de una colección personal de monedas que guarda todo en su equipo.

%2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>Import Coins…</source>
        <translation>Importar monedas…</translation>
    </message>
    <message>
        <source>Export Coins…</source>
        <translation>Exportar monedas…</translation>
    </message>
    <message>
        <source>Back Up Collection…</source>
        <translation>Hacer copia de seguridad…</translation>
    </message>
    <message>
        <source>Restore From Backup…</source>
        <translation>Restaurar desde copia de seguridad…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Recent Changes…</source>
        <translation>Cambios recientes…</translation>
    </message>
    <message>
        <source>Recently Deleted…</source>
        <translation>Eliminadas recientemente…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Apariencia oscura</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>Pelvane Overview</source>
        <translation>Introducción a Pelvane</translation>
    </message>
    <message>
        <source>About Pelvane</source>
        <translation>Acerca de Pelvane</translation>
    </message>
    <message>
        <source>Your collection and its photos are kept in %1.</source>
        <translation>Su colección y sus fotos se guardan en %1.</translation>
    </message>
</context>
<context>
    <name>AppStoryboard</name>
    <message>
        <source>Denomination</source>
        <translation>Denominación</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
</context>
<context>
    <name>CoinDocument</name>
    <message>
        <source>Coin Denomination: </source>
        <translation>Denominación de la moneda: </translation>
    </message>
    <message>
        <source>Coin Year: </source>
        <translation>Año de acuñación: </translation>
    </message>
    <message>
        <source>Quantity: </source>
        <translation>Cantidad: </translation>
    </message>
    <message>
        <source>Description: </source>
        <translation>Descripción: </translation>
    </message>
    <message>
        <source>Country: </source>
        <translation>País: </translation>
    </message>
    <message>
        <source>Diameter: </source>
        <translation>Diámetro: </translation>
    </message>
    <message>
        <source>Weight: </source>
        <translation>Peso: </translation>
    </message>
    <message>
        <source>Thickness: </source>
        <translation>Grosor: </translation>
    </message>
    <message>
        <source>Strike Character: </source>
        <translation>Calidad de acuñación: </translation>
    </message>
    <message>
        <source>Grade #: </source>
        <translation>Grado de conservación n.º: </translation>
    </message>
    <message>
        <source>Edge: </source>
        <translation>Canto: </translation>
    </message>
    <message>
        <source>Mint Mark: </source>
        <translation>Marca de ceca: </translation>
    </message>
    <message>
        <source>Mint Location: </source>
        <translation>Ceca: </translation>
    </message>
    <message>
        <source>Serial #: </source>
        <translation>N.º de serie: </translation>
    </message>
    <message>
        <source>Period: </source>
        <translation>Período: </translation>
    </message>
    <message>
        <source>Designer: </source>
        <translation>Diseñador: </translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Valor: </translation>
    </message>
    <message>
        <source>Notes: </source>
        <translation>Notas: </translation>
    </message>
    <message>
        <source>Year: </source>
        <translation>Año: </translation>
    </message>
    <message>
        <source>Qty: </source>
        <translation>Cant.: </translation>
    </message>
    <message>
        <source>Total Value (Qty * Value): </source>
        <translation>Valor total (Cant. × valor): </translation>
    </message>
    <message>
        <source>Denomination: </source>
        <translation>Denominación: </translation>
    </message>
    <message>
        <source>Coins Filtered by Denomination: </source>
        <translation>Monedas por denominación: </translation>
    </message>
    <message>
        <source>Coins Filtered by Country: </source>
        <translation>Monedas por país: </translation>
    </message>
    <message>
        <source>Coins Filtered by Year: </source>
        <translation>Monedas por año: </translation>
    </message>
</context>
<context>
    <name>DesktopServices</name>
    <message>
        <source>Can&apos;t Open File</source>
        <translation>No se puede abrir el archivo</translation>
    </message>
    <message>
        <source>Can&apos;t Open Web Page</source>
        <translation>No se puede abrir la página web</translation>
    </message>
    <message>
        <source>No program is set up on this computer to open %1.</source>
        <translation>No hay ningún programa configurado en este equipo para abrir %1.</translation>
    </message>
    <message>
        <source>No web browser is set up on this computer to open %1.</source>
        <translation>No hay ningún navegador web configurado en este equipo para abrir %1.</translation>
    </message>
    <message>
        <source>Can&apos;t Send Email</source>
        <translation>No se puede enviar el correo</translation>
    </message>
    <message>
        <source>The mail program of this computer could not be started.</source>
        <translation>No se pudo iniciar el programa de correo de este equipo.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Take Picture</source>
        <translation>Tomar foto</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Enjoying Pelvane?</source>
        <translation>¿Le gusta Pelvane?</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
</context>
<context>
    <name>FatalMessage</name>
    <message>
        <source>Fatal error</source>
        <translation>Error grave</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Addition of %1</source>
        <translation>Alta de %1</translation>
    </message>
    <message>
        <source>Edit of %1</source>
        <translation>Edición de %1</translation>
    </message>
    <message>
        <source>Deletion of %1</source>
        <translation>Eliminación de %1</translation>
    </message>
    <message>
        <source>Change of %1 records</source>
        <translation>Cambio de %1 registros</translation>
    </message>
    <message>
        <source>Revaluation of %1</source>
        <translation>Revalorización de %1</translation>
    </message>
    <message>
        <source>Notes Edit of %1</source>
        <translation>Edición de las notas de %1</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Importación de %1</translation>
    </message>
    <message>
        <source>Record Number Repair</source>
        <translation>Reparación de los números de registro</translation>
    </message>
    <message>
        <source>Filling of the Reference Lists</source>
        <translation>Relleno de las listas de referencia</translation>
    </message>
    <message>
        <source>Restore of %1</source>
        <translation>Restauración de %1</translation>
    </message>
    <message>
        <source>Version Restore of %1</source>
        <translation>Restauración de una versión de %1</translation>
    </message>
    <message>
        <source>Put Back of %1</source>
        <translation>Recuperación de %1</translation>
    </message>
    <message>
        <source>The coin did not exist before that change.</source>
        <translation>La moneda no existía antes de ese cambio.</translation>
    </message>
    <message>
        <source>That coin is not among the deleted coins.</source>
        <translation>Esa moneda no está entre las monedas eliminadas.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>No hay nada que deshacer.</translation>
    </message>
    <message>
        <source>That change cannot be undone any more.</source>
        <translation>Ese cambio ya no se puede deshacer.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>No hay nada que rehacer.</translation>
    </message>
    <message>
        <source>Undid %1 steps, back to the %2</source>
        <translation>Se deshicieron %1 pasos, hasta: %2</translation>
    </message>
    <message>
        <source>Redid %1 steps, from the %2</source>
        <translation>Se rehicieron %1 pasos, desde: %2</translation>
    </message>
    <message>
        <source>Undid the %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Redid the %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>Se añadió %1</translation>
    </message>
    <message>
        <source>Edited %1</source>
        <translation>Se editó %1</translation>
    </message>
    <message>
        <source>Deleted %1</source>
        <translation>Se eliminó %1</translation>
    </message>
    <message>
        <source>Changed %1 records</source>
        <translation>Se cambiaron %1 registros</translation>
    </message>
    <message>
        <source>Revalued %1</source>
        <translation>Se revalorizó %1</translation>
    </message>
    <message>
        <source>Edited the notes of %1</source>
        <translation>Se editaron las notas de %1</translation>
    </message>
    <message>
        <source>Imported %1</source>
        <translation>Se importó %1</translation>
    </message>
    <message>
        <source>Repaired the record numbers of %1</source>
        <translation>Se repararon los números de registro de %1</translation>
    </message>
    <message>
        <source>Filled the reference lists with %1 values</source>
        <translation>Se llenaron las listas de referencia con %1 valores</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>Se restauró %1</translation>
    </message>
    <message>
        <source>Restored an earlier version of %1</source>
        <translation>Se restauró una versión anterior de %1</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>Se recuperó %1</translation>
    </message>
</context>
<context>
    <name>LaunchOptions</name>
    <message>
        <source>Keep the collection and preferences in DIR.</source>
        <translation>Guardar la colección y las preferencias en DIR.</translation>
    </message>
    <message>
        <source>Write the exchange file of the collection to FILE and exit.</source>
        <translation>Escribir el archivo de intercambio de la colección en FILE y salir.</translation>
    </message>
    <message>
        <source>Merge the exchange file FILE into the collection and exit.</source>
        <translation>Combinar el archivo de intercambio FILE con la colección y salir.</translation>
    </message>
    <message>
        <source>Write an exact copy of the whole collection, pictures and all, to FILE and exit.</source>
        <translation>Escribir una copia exacta de toda la colección, con imágenes, en FILE y salir.</translation>
    </message>
    <message>
        <source>Replace the collection with the backup or snapshot FILE (the current one is kept as a snapshot first) and exit.</source>
        <translation>Sustituir la colección por la copia de seguridad o instantánea FILE (la actual se guarda antes como instantánea) y salir.</translation>
    </message>
    <message>
        <source>List the snapshots taken automatically and exit.</source>
        <translation>Listar las instantáneas tomadas automáticamente y salir.</translation>
    </message>
    <message>
        <source>Print the number of coins, of pieces and the total value of the collection and exit.</source>
        <translation>Mostrar el número de monedas, de piezas y el valor total de la colección y salir.</translation>
    </message>
    <message>
        <source>Write the collection&apos;s pieces and total value at the end of every day on which they changed to FILE, as CSV, and exit.</source>
        <translation>Escribir en FILE, como CSV, las piezas y el valor total de la colección al final de cada día en que cambiaron, y salir.</translation>
    </message>
    <message>
        <source>Undo the last change made to the collection, say what it was and exit.</source>
        <translation>Deshacer el último cambio de la colección, indicar cuál fue y salir.</translation>
    </message>
    <message>
        <source>List the last 50 changes made to the collection, newest first, and exit.</source>
        <translation>Listar los últimos 50 cambios de la colección, los más recientes primero, y salir.</translation>
    </message>
    <message>
        <source>Write the PDF report of a group and exit: KIND is denomination, country or year, followed by the group&apos;s VALUE.</source>
        <translation>Escribir el informe PDF de un grupo y salir: KIND es denomination, country o year, seguido del valor VALUE del grupo.</translation>
    </message>
    <message>
        <source>Write the report to FILE instead of the documents folder.</source>
        <translation>Escribir el informe en FILE en lugar de en la carpeta de documentos.</translation>
    </message>
    <message>
        <source>Use the dark appearance.</source>
        <translation>Usar la apariencia oscura.</translation>
    </message>
    <message>
        <source>Save a picture of the window to PNG and quit.</source>
        <translation>Guardar una imagen de la ventana en PNG y salir.</translation>
    </message>
    <message>
        <source>Start with the menu opened.</source>
        <translation>Iniciar con el menú abierto.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Mostrar esta ayuda y salir.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Mostrar la versión y salir.</translation>
    </message>
    <message>
        <source>pelvane: %1
Usage: pelvane [options]
Try &apos;pelvane --help&apos; for the options.</source>
        <translation>pelvane: %1
Uso: pelvane [opciones]
Pruebe «pelvane --help» para ver las opciones.</translation>
    </message>
    <message>
        <source>Usage: pelvane [options]
Pelvane, a catalogue of a coin collection. Without options it opens the catalogue&apos;s window.

Options:
</source>
        <translation>Uso: pelvane [opciones]
Pelvane, un catálogo de una colección de monedas. Sin opciones abre la ventana del catálogo.

Opciones:
</translation>
    </message>
    <message>
        <source>--%1 needs a %2, and the one given is empty.</source>
        <translation>--%1 necesita un %2, y el indicado está vacío.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argumento inesperado «%1».</translation>
    </message>
    <message>
        <source>--pdf names where a --report goes, and there is no --report.</source>
        <translation>--pdf indica adónde va un --report, y no hay ningún --report.</translation>
    </message>
    <message>
        <source>%1 cannot be combined.</source>
        <translation>%1 no se pueden combinar.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> y </translation>
    </message>
</context>
<context>
    <name>NavigationController</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Volver a %1</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
</context>
<context>
    <name>PickerView</name>
    <message>
        <source>Choices</source>
        <translation>Opciones</translation>
    </message>
</context>
<context>
    <name>PrintController</name>
    <message>
        <source>The printer cannot be opened.</source>
        <translation>No se puede abrir la impresora.</translation>
    </message>
    <message>
        <source>The printer reported an error.</source>
        <translation>La impresora ha notificado un error.</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>SearchController</name>
    <message>
        <source>Clear Search</source>
        <translation>Borrar búsqueda</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>StoreCommands</name>
    <message>
        <source>No Snapshot Today</source>
        <translation>Sin instantánea hoy</translation>
    </message>
    <message>
        <source>Pelvane could not keep today&apos;s snapshot of the collection: %1

The collection itself is unchanged. To keep a copy, back it up from Import / Export.</source>
        <translation>Pelvane no pudo guardar la instantánea de hoy de la colección: %1

La colección no ha cambiado. Para conservar una copia, haga una copia de seguridad desde Importar / Exportar.</translation>
    </message>
</context>
<context>
    <name>TabBarController</name>
    <message>
        <source>Sections</source>
        <translation>Secciones</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <location filename="../platform/kit/TableViewGrid.cpp" line="92"/>
        <source>Column titles</source>
        <translation>Títulos de las columnas</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Discard changes?</source>
        <translation>¿Descartar los cambios?</translation>
    </message>
    <message>
        <source>What you changed here has not been saved.</source>
        <translation>Los cambios que hizo aquí no se han guardado.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Seguir editando</translation>
    </message>
</context>
</TS>
