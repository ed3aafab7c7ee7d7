<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>AddViewController</name>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="17"/>
        <source>Add Coin</source>
        <translation>Añadir moneda</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="25"/>
        <source>Record not Saved!</source>
        <translation>¡Registro no guardado!</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="26"/>
        <source>Required Fields in RED not Entered</source>
        <translation>No se han rellenado los campos obligatorios en ROJO</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="29"/>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
</context>
<context>
    <name>CoinFormViewController</name>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="40"/>
        <source>Coin details</source>
        <translation>Datos de la moneda</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="57"/>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="67"/>
        <source>Denomination</source>
        <translation>Denominación</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="68"/>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="69"/>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="70"/>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="71"/>
        <source>Mint Mark</source>
        <translation>Marca de ceca</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="72"/>
        <source>Mint Location</source>
        <translation>Ceca</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="73"/>
        <source>Grade</source>
        <translation>Grado de conservación</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="74"/>
        <source>Strike</source>
        <translation>Acuñación</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="75"/>
        <source>Edge</source>
        <translation>Canto</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="76"/>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="77"/>
        <source>Diameter</source>
        <translation>Diámetro</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="78"/>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="79"/>
        <source>Thickness</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="80"/>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="81"/>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="82"/>
        <source>Designer</source>
        <translation>Diseñador</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="83"/>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="87"/>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="111"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="120"/>
        <source>Front picture</source>
        <translation>Imagen del anverso</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="121"/>
        <source>Back picture</source>
        <translation>Imagen del reverso</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Front</source>
        <translation>Anverso</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Back</source>
        <translation>Reverso</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="123"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="127"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="124"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="128"/>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="125"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="129"/>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="126"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="130"/>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="144"/>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="173"/>
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="289"/>
        <source>A space is not accepted here</source>
        <translation>Aquí no se admite un espacio</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="291"/>
        <source>A line break is not accepted here</source>
        <translation>Aquí no se admite un salto de línea</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="293"/>
        <source>“%1” is not accepted here</source>
        <translation>«%1» no se admite aquí</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>There is no camera available</source>
        <translation>No hay ninguna cámara disponible</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="414"/>
        <source>Photo Too Large</source>
        <translation>Foto demasiado grande</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="416"/>
        <source>The photo is larger than 64 megapixels or 50 MB. The coin keeps its 100 x 100 picture of it, without the photo itself.</source>
        <translation>La foto supera los 64 megapíxeles o los 50 MB. La moneda conserva su imagen de 100 x 100, sin la foto en sí.</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="418"/>
        <source>The photo is larger than 64 megapixels, more than the catalogue reads.</source>
        <translation>La foto supera los 64 megapíxeles, más de lo que el catálogo puede leer.</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>Pictures (*.jpg *.jpeg *.png)</source>
        <translation>Imágenes (*.jpg *.jpeg *.png)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>Clipboard</source>
        <translation>Portapapeles</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>There is no image in the Clipboard</source>
        <translation>No hay ninguna imagen en el portapapeles</translation>
    </message>
</context>
<context>
    <name>CoinListView</name>
    <message>
        <location filename="../screens/CoinListView.cpp" line="55"/>
        <source>Denomination</source>
        <translation>Denominación</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="56"/>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="57"/>
        <source>Mint Mark</source>
        <translation>Marca de ceca</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="58"/>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="59"/>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="60"/>
        <source>Total Value</source>
        <translation>Valor total</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="61"/>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="101"/>
        <source>No picture</source>
        <translation>Sin imagen</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="102"/>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="129"/>
        <source>%1, %2, mint mark %3, quantity %4, value %5</source>
        <translation>%1, %2, marca de ceca %3, cantidad %4, valor %5</translation>
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
        <translation>Vista</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="149"/>
        <source>Cards</source>
        <translation>Tarjetas</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="150"/>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="161"/>
        <location filename="../screens/CoinListView.cpp" line="190"/>
        <source>Coins</source>
        <translation>Monedas</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="191"/>
        <source>Column titles</source>
        <translation>Títulos de las columnas</translation>
    </message>
</context>
<context>
    <name>EditViewController</name>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="22"/>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="23"/>
        <location filename="../screens/entry/EditViewController.cpp" line="60"/>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="50"/>
        <source>Edit Coin</source>
        <translation>Editar moneda</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="62"/>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Front Coin Image</source>
        <translation>Quitar la imagen del anverso</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Back Coin Image</source>
        <translation>Quitar la imagen del reverso</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="158"/>
        <source>Do You Want to Remove This Image?</source>
        <translation>¿Quiere quitar esta imagen?</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="159"/>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="182"/>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Save Changes?</source>
        <translation>¿Guardar los cambios?</translation>
    </message>
    <message>
        <source>Coming back from the notes shows the coin as it is saved. Save what you changed here first?</source>
        <translation>Al volver de las notas, el formulario muestra la moneda tal como está guardada. ¿Guardar primero lo que ha cambiado aquí?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
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
<context>
    <name>JournalText</name>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="28"/>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="44"/>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="45"/>
        <source>Denomination</source>
        <translation>Denominación</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="46"/>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="47"/>
        <source>Quantity</source>
        <translation>Cantidad</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="48"/>
        <source>Mint Mark</source>
        <translation>Marca de ceca</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="49"/>
        <source>Mint Location</source>
        <translation>Ceca</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="50"/>
        <location filename="../screens/journal/JournalText.cpp" line="65"/>
        <source>Grade</source>
        <translation>Grado de conservación</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="51"/>
        <location filename="../screens/journal/JournalText.cpp" line="66"/>
        <source>Strike</source>
        <translation>Acuñación</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="52"/>
        <source>Edge</source>
        <translation>Canto</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="53"/>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="54"/>
        <source>Total Value</source>
        <translation>Valor total</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="55"/>
        <source>Diameter</source>
        <translation>Diámetro</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="56"/>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="57"/>
        <source>Thickness</source>
        <translation>Grosor</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="58"/>
        <source>Serial Number</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="59"/>
        <source>Period</source>
        <translation>Período</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="60"/>
        <source>Designer</source>
        <translation>Diseñador</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="61"/>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="62"/>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="63"/>
        <source>Record Number</source>
        <translation>Número de registro</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="67"/>
        <source>Front picture</source>
        <translation>Imagen del anverso</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="68"/>
        <source>Back picture</source>
        <translation>Imagen del reverso</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="80"/>
        <source>%1 added</source>
        <translation>%1 añadido</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="82"/>
        <source>%1 removed</source>
        <translation>%1 quitado</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="83"/>
        <source>%1 changed</source>
        <translation>%1 cambiado</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="85"/>
        <source>%1: %2 → %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="100"/>
        <source>Added</source>
        <translation>Añadida</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="102"/>
        <source>Deleted</source>
        <translation>Eliminada</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="104"/>
        <source>Changed</source>
        <translation>Modificada</translation>
    </message>
</context>
<context>
    <name>MainListSorting</name>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="14"/>
        <source>By Name</source>
        <translation>Por denominación</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="15"/>
        <source>Search by Denomination</source>
        <translation>Buscar por denominación</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="16"/>
        <source>By Year</source>
        <translation>Por año</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="17"/>
        <source>Search by Year</source>
        <translation>Buscar por año</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="18"/>
        <source>By Quantity</source>
        <translation>Por cantidad</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="19"/>
        <source>Search by Quantity</source>
        <translation>Buscar por cantidad</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="20"/>
        <source>By Value</source>
        <translation>Por valor</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="21"/>
        <source>Search by Value</source>
        <translation>Buscar por valor</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="22"/>
        <source>By Country</source>
        <translation>Por país</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="23"/>
        <source>Search by Country</source>
        <translation>Buscar por país</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="105"/>
        <source>Year: %1  Mint Mark: %2</source>
        <translation>Año: %1  Marca de ceca: %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="115"/>
        <source>Qty: %1</source>
        <translation>Cant.: %1</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="120"/>
        <source>Value: %1  Total Value: %2</source>
        <translation>Valor: %1  Valor total: %2</translation>
    </message>
</context>
<context>
    <name>MainListTableViewController</name>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="35"/>
        <source>Coins</source>
        <translation>Monedas</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="41"/>
        <source>Search by Denomination</source>
        <translation>Buscar por denominación</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="43"/>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="58"/>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="59"/>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="79"/>
        <source>Add Coin</source>
        <translation>Añadir moneda</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="156"/>
        <source># Coins = %1 of %2</source>
        <translation>Monedas: %1 de %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="193"/>
        <source>delete</source>
        <translation>eliminar</translation>
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
        <translation>Su colección de monedas</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="33"/>
        <source>☰  Menu</source>
        <translation>☰  Menú</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>List Coins</source>
        <translation>Lista de monedas</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>Group By</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Add Coin</source>
        <translation>Añadir moneda</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Rate &amp;&amp; Share</source>
        <translation>Valorar &amp;&amp; compartir</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Coin Valuation</source>
        <translation>Tasación de monedas</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Pelvane Overview</source>
        <translation>Presentación de Pelvane</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Import / Export</source>
        <translation>Importar / Exportar</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Reference Lists</source>
        <translation>Listas de referencia</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Recent Changes</source>
        <translation>Cambios recientes</translation>
    </message>
</context>
<context>
    <name>NotesViewController</name>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="15"/>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="17"/>
        <location filename="../screens/entry/NotesViewController.cpp" line="29"/>
        <source>Notes</source>
        <translation>Notas</translation>
    </message>
</context>
<context>
    <name>RecentChangesViewController</name>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="31"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="69"/>
        <source>Undo Back to Here</source>
        <translation>Deshacer hasta aquí</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="32"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="72"/>
        <source>Recently Deleted</source>
        <translation>Eliminadas recientemente</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="33"/>
        <source>Recent Changes</source>
        <translation>Cambios recientes</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="40"/>
        <source>Changes, newest first</source>
        <translation>Cambios, los más recientes primero</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="48"/>
        <source>Column titles</source>
        <translation>Títulos de las columnas</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="61"/>
        <source>What the change did</source>
        <translation>Lo que hizo el cambio</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="101"/>
        <source>Changes Not Read</source>
        <translation>No se leyeron los cambios</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="109"/>
        <source>Undone</source>
        <translation>Deshecho</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="129"/>
        <source>No changes have been saved yet.</source>
        <translation>Todavía no se ha guardado ningún cambio.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="145"/>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="156"/>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="166"/>
        <source>Undo Back to Here?</source>
        <translation>¿Deshacer hasta aquí?</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="167"/>
        <source>The %1 is undone. Redo brings it back.</source>
        <translation>Se deshace «%1». Rehacer lo recupera.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="168"/>
        <source>The %1 and every change after it are undone. Redo brings them back.</source>
        <translation>Se deshacen «%1» y todos los cambios posteriores. Rehacer los recupera.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="170"/>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="172"/>
        <source>Not Undone</source>
        <translation>No se deshizo</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="175"/>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RecentlyDeletedViewController</name>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="17"/>
        <source>No coins were deleted in the last 90 days.</source>
        <translation>No se ha eliminado ninguna moneda en los últimos 90 días.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="18"/>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="38"/>
        <source>Put Back</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="19"/>
        <source>Recently Deleted</source>
        <translation>Eliminadas recientemente</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="23"/>
        <source>Deleted coins, last deleted first</source>
        <translation>Monedas eliminadas, las últimas primero</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Coin</source>
        <translation>Moneda</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Country</source>
        <translation>País</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Deleted</source>
        <translation>Eliminada el</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="31"/>
        <source>Column titles</source>
        <translation>Títulos de las columnas</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="63"/>
        <source>Deleted Coins Not Read</source>
        <translation>No se leyeron las monedas eliminadas</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="84"/>
        <source>Not Put Back</source>
        <translation>No se restauró</translation>
    </message>
</context>
<context>
    <name>TextMessageAlert</name>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="11"/>
        <source>Can&apos;t Send Text Message</source>
        <translation>No se puede enviar el mensaje de texto</translation>
    </message>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="12"/>
        <source>Your device is not able to send text messages.</source>
        <translation>Su dispositivo no puede enviar mensajes de texto.</translation>
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
        <translation>Imagen del anverso</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="101"/>
        <source>Back picture</source>
        <translation>Imagen del reverso</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="111"/>
        <source>Share</source>
        <translation>Compartir</translation>
    </message>
</context>
</TS>
