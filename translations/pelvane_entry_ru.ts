<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AddViewController</name>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="17"/>
        <source>Add Coin</source>
        <translation>Добавить монету</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="25"/>
        <source>Record not Saved!</source>
        <translation>Запись не сохранена!</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="26"/>
        <source>Required Fields in RED not Entered</source>
        <translation>Не заполнены обязательные поля, выделенные КРАСНЫМ</translation>
    </message>
    <message>
        <location filename="../screens/entry/AddViewController.cpp" line="29"/>
        <source>Saved</source>
        <translation>Сохранено</translation>
    </message>
</context>
<context>
    <name>CoinFormViewController</name>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="40"/>
        <source>Coin details</source>
        <translation>Сведения о монете</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="57"/>
        <source>Required</source>
        <translation>Обязательное поле</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="67"/>
        <source>Denomination</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="68"/>
        <source>Year</source>
        <translation>Год</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="69"/>
        <source>Quantity</source>
        <translation>Количество</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="70"/>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="71"/>
        <source>Mint Mark</source>
        <translation>Знак монетного двора</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="72"/>
        <source>Mint Location</source>
        <translation>Монетный двор</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="73"/>
        <source>Grade</source>
        <translation>Сохранность</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="74"/>
        <source>Strike</source>
        <translation>Чекан</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="75"/>
        <source>Edge</source>
        <translation>Гурт</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="76"/>
        <source>Value</source>
        <translation>Стоимость</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="77"/>
        <source>Diameter</source>
        <translation>Диаметр</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="78"/>
        <source>Weight</source>
        <translation>Вес</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="79"/>
        <source>Thickness</source>
        <translation>Толщина</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="80"/>
        <source>Serial Number</source>
        <translation>Серийный номер</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="81"/>
        <source>Period</source>
        <translation>Период</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="82"/>
        <source>Designer</source>
        <translation>Автор дизайна</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="83"/>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="87"/>
        <source>Notes</source>
        <translation>Заметки</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="111"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="120"/>
        <source>Front picture</source>
        <translation>Изображение аверса</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="121"/>
        <source>Back picture</source>
        <translation>Изображение реверса</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Front</source>
        <translation>Аверс</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="122"/>
        <source>Back</source>
        <translation>Реверс</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="123"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="127"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="124"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="128"/>
        <source>Folder</source>
        <translation>Папка</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="125"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="129"/>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="126"/>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="130"/>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="144"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="173"/>
        <source>No picture</source>
        <translation>Нет изображения</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="289"/>
        <source>A space is not accepted here</source>
        <translation>Пробел здесь не допускается</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="291"/>
        <source>A line break is not accepted here</source>
        <translation>Перевод строки здесь не допускается</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="293"/>
        <source>“%1” is not accepted here</source>
        <translation>«%1» здесь не допускается</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="370"/>
        <source>There is no camera available</source>
        <translation>Камера недоступна</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="414"/>
        <source>Photo Too Large</source>
        <translation>Фото слишком большое</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="416"/>
        <source>The photo is larger than 64 megapixels or 50 MB. The coin keeps its 100 x 100 picture of it, without the photo itself.</source>
        <translation>Фото больше 64 мегапикселей или 50 МБ. У монеты останется изображение 100 x 100, без самого фото.</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="418"/>
        <source>The photo is larger than 64 megapixels, more than the catalogue reads.</source>
        <translation>Фото больше 64 мегапикселей — каталог не может его прочитать.</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>Pictures (*.jpg *.jpeg *.png)</source>
        <translation>Изображения (*.jpg *.jpeg *.png)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="464"/>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>Clipboard</source>
        <translation>Буфер обмена</translation>
    </message>
    <message>
        <location filename="../screens/entry/CoinFormViewController.cpp" line="495"/>
        <source>There is no image in the Clipboard</source>
        <translation>В буфере обмена нет изображения</translation>
    </message>
</context>
<context>
    <name>CoinListView</name>
    <message>
        <location filename="../screens/CoinListView.cpp" line="55"/>
        <source>Denomination</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="56"/>
        <source>Year</source>
        <translation>Год</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="57"/>
        <source>Mint Mark</source>
        <translation>Знак монетного двора</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="58"/>
        <source>Quantity</source>
        <translation>Количество</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="59"/>
        <source>Value</source>
        <translation>Стоимость</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="60"/>
        <source>Total Value</source>
        <translation>Общая стоимость</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="61"/>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="101"/>
        <source>No picture</source>
        <translation>Нет изображения</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="102"/>
        <source>Picture</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="129"/>
        <source>%1, %2, mint mark %3, quantity %4, value %5</source>
        <translation>%1, %2, знак монетного двора %3, количество %4, стоимость %5</translation>
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
        <translation>Вид</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="149"/>
        <source>Cards</source>
        <translation>Карточки</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="150"/>
        <source>Table</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="161"/>
        <location filename="../screens/CoinListView.cpp" line="190"/>
        <source>Coins</source>
        <translation>Монеты</translation>
    </message>
    <message>
        <location filename="../screens/CoinListView.cpp" line="191"/>
        <source>Column titles</source>
        <translation>Заголовки столбцов</translation>
    </message>
</context>
<context>
    <name>EditViewController</name>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="22"/>
        <source>Notes</source>
        <translation>Заметки</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="23"/>
        <location filename="../screens/entry/EditViewController.cpp" line="60"/>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="50"/>
        <source>Edit Coin</source>
        <translation>Изменить монету</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="62"/>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Front Coin Image</source>
        <translation>Удалить изображение аверса</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="157"/>
        <source>Remove Back Coin Image</source>
        <translation>Удалить изображение реверса</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="158"/>
        <source>Do You Want to Remove This Image?</source>
        <translation>Удалить это изображение?</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="159"/>
        <source>Yes</source>
        <translation>Да</translation>
    </message>
    <message>
        <location filename="../screens/entry/EditViewController.cpp" line="182"/>
        <source>No</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>Save Changes?</source>
        <translation>Сохранить изменения?</translation>
    </message>
    <message>
        <source>Coming back from the notes shows the coin as it is saved. Save what you changed here first?</source>
        <translation>После заметок форма снова покажет монету такой, какой она сохранена. Сначала сохранить то, что вы здесь изменили?</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Отменить изменения</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Продолжить правку</translation>
    </message>
</context>
<context>
    <name>JournalText</name>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="28"/>
        <source>(none)</source>
        <translation>(нет)</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="44"/>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="45"/>
        <source>Denomination</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="46"/>
        <source>Year</source>
        <translation>Год</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="47"/>
        <source>Quantity</source>
        <translation>Количество</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="48"/>
        <source>Mint Mark</source>
        <translation>Знак монетного двора</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="49"/>
        <source>Mint Location</source>
        <translation>Монетный двор</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="50"/>
        <location filename="../screens/journal/JournalText.cpp" line="65"/>
        <source>Grade</source>
        <translation>Сохранность</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="51"/>
        <location filename="../screens/journal/JournalText.cpp" line="66"/>
        <source>Strike</source>
        <translation>Чекан</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="52"/>
        <source>Edge</source>
        <translation>Гурт</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="53"/>
        <source>Value</source>
        <translation>Стоимость</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="54"/>
        <source>Total Value</source>
        <translation>Общая стоимость</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="55"/>
        <source>Diameter</source>
        <translation>Диаметр</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="56"/>
        <source>Weight</source>
        <translation>Вес</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="57"/>
        <source>Thickness</source>
        <translation>Толщина</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="58"/>
        <source>Serial Number</source>
        <translation>Серийный номер</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="59"/>
        <source>Period</source>
        <translation>Период</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="60"/>
        <source>Designer</source>
        <translation>Автор дизайна</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="61"/>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="62"/>
        <source>Notes</source>
        <translation>Заметки</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="63"/>
        <source>Record Number</source>
        <translation>Номер записи</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="67"/>
        <source>Front picture</source>
        <translation>Изображение аверса</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="68"/>
        <source>Back picture</source>
        <translation>Изображение реверса</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="80"/>
        <source>%1 added</source>
        <translation>%1: добавлено</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="82"/>
        <source>%1 removed</source>
        <translation>%1: удалено</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="83"/>
        <source>%1 changed</source>
        <translation>%1: изменено</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="85"/>
        <source>%1: %2 → %3</source>
        <translation>%1: %2 → %3</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="100"/>
        <source>Added</source>
        <translation>Добавлена</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="102"/>
        <source>Deleted</source>
        <translation>Удалена</translation>
    </message>
    <message>
        <location filename="../screens/journal/JournalText.cpp" line="104"/>
        <source>Changed</source>
        <translation>Изменена</translation>
    </message>
</context>
<context>
    <name>MainListSorting</name>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="14"/>
        <source>By Name</source>
        <translation>По номиналу</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="15"/>
        <source>Search by Denomination</source>
        <translation>Поиск по номиналу</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="16"/>
        <source>By Year</source>
        <translation>По году</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="17"/>
        <source>Search by Year</source>
        <translation>Поиск по году</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="18"/>
        <source>By Quantity</source>
        <translation>По количеству</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="19"/>
        <source>Search by Quantity</source>
        <translation>Поиск по количеству</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="20"/>
        <source>By Value</source>
        <translation>По стоимости</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="21"/>
        <source>Search by Value</source>
        <translation>Поиск по стоимости</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="22"/>
        <source>By Country</source>
        <translation>По стране</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="23"/>
        <source>Search by Country</source>
        <translation>Поиск по стране</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="105"/>
        <source>Year: %1  Mint Mark: %2</source>
        <translation>Год: %1  Знак двора: %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="115"/>
        <source>Qty: %1</source>
        <translation>Кол-во: %1</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListSorting.cpp" line="120"/>
        <source>Value: %1  Total Value: %2</source>
        <translation>Стоимость: %1  Всего: %2</translation>
    </message>
</context>
<context>
    <name>MainListTableViewController</name>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="35"/>
        <source>Coins</source>
        <translation>Монеты</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="41"/>
        <source>Search by Denomination</source>
        <translation>Поиск по номиналу</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="43"/>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="58"/>
        <source>Sort by</source>
        <translation>Сортировка</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="59"/>
        <source>View</source>
        <translation>Вид</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="79"/>
        <source>Add Coin</source>
        <translation>Добавить монету</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="156"/>
        <source># Coins = %1 of %2</source>
        <translation>Монет: %1 из %2</translation>
    </message>
    <message>
        <location filename="../screens/list/MainListTableViewController.cpp" line="193"/>
        <source>delete</source>
        <translation>удалить</translation>
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
        <translation>Ваша коллекция монет</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="33"/>
        <source>☰  Menu</source>
        <translation>☰  Меню</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>List Coins</source>
        <translation>Список монет</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="48"/>
        <source>Group By</source>
        <translation>Группировка</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Add Coin</source>
        <translation>Добавить монету</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="49"/>
        <source>Rate &amp;&amp; Share</source>
        <translation>Оценить &amp;&amp; поделиться</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Coin Valuation</source>
        <translation>Оценка монет</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="50"/>
        <source>Pelvane Overview</source>
        <translation>Обзор Pelvane</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Import / Export</source>
        <translation>Импорт / Экспорт</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="51"/>
        <source>Reference Lists</source>
        <translation>Справочники</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Statistics</source>
        <translation>Статистика</translation>
    </message>
    <message>
        <location filename="../screens/menu/MainMenuViewController.cpp" line="52"/>
        <source>Recent Changes</source>
        <translation>Последние изменения</translation>
    </message>
</context>
<context>
    <name>NotesViewController</name>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="15"/>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <location filename="../screens/entry/NotesViewController.cpp" line="17"/>
        <location filename="../screens/entry/NotesViewController.cpp" line="29"/>
        <source>Notes</source>
        <translation>Заметки</translation>
    </message>
</context>
<context>
    <name>RecentChangesViewController</name>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="31"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="69"/>
        <source>Undo Back to Here</source>
        <translation>Отменить до этого места</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="32"/>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="72"/>
        <source>Recently Deleted</source>
        <translation>Недавно удалённые</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="33"/>
        <source>Recent Changes</source>
        <translation>Последние изменения</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="40"/>
        <source>Changes, newest first</source>
        <translation>Изменения, сначала новые</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>Change</source>
        <translation>Изменение</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="46"/>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="48"/>
        <source>Column titles</source>
        <translation>Заголовки столбцов</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="61"/>
        <source>What the change did</source>
        <translation>Что сделало изменение</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="101"/>
        <source>Changes Not Read</source>
        <translation>Изменения не прочитаны</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="109"/>
        <source>Undone</source>
        <translation>Отменено</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="129"/>
        <source>No changes have been saved yet.</source>
        <translation>Изменения ещё не сохранялись.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="145"/>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="156"/>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="166"/>
        <source>Undo Back to Here?</source>
        <translation>Отменить до этого места?</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="167"/>
        <source>The %1 is undone. Redo brings it back.</source>
        <translation>«%1» будет отменено. Повтор вернёт его.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="168"/>
        <source>The %1 and every change after it are undone. Redo brings them back.</source>
        <translation>«%1» и все последующие изменения будут отменены. Повтор вернёт их.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="170"/>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="172"/>
        <source>Not Undone</source>
        <translation>Не отменено</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentChangesViewController.cpp" line="175"/>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>RecentlyDeletedViewController</name>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="17"/>
        <source>No coins were deleted in the last 90 days.</source>
        <translation>За последние 90 дней монеты не удалялись.</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="18"/>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="38"/>
        <source>Put Back</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="19"/>
        <source>Recently Deleted</source>
        <translation>Недавно удалённые</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="23"/>
        <source>Deleted coins, last deleted first</source>
        <translation>Удалённые монеты, сначала последние</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Coin</source>
        <translation>Монета</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="29"/>
        <source>Deleted</source>
        <translation>Удалена</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="31"/>
        <source>Column titles</source>
        <translation>Заголовки столбцов</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="63"/>
        <source>Deleted Coins Not Read</source>
        <translation>Удалённые монеты не прочитаны</translation>
    </message>
    <message>
        <location filename="../screens/journal/RecentlyDeletedViewController.cpp" line="84"/>
        <source>Not Put Back</source>
        <translation>Не возвращено</translation>
    </message>
</context>
<context>
    <name>TextMessageAlert</name>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="11"/>
        <source>Can&apos;t Send Text Message</source>
        <translation>Не удаётся отправить SMS</translation>
    </message>
    <message>
        <location filename="../screens/TextMessageAlert.cpp" line="12"/>
        <source>Your device is not able to send text messages.</source>
        <translation>Ваше устройство не может отправлять SMS.</translation>
    </message>
</context>
<context>
    <name>ZoomViewController</name>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="81"/>
        <source>Zoom</source>
        <translation>Увеличение</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="101"/>
        <source>Front picture</source>
        <translation>Изображение аверса</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="101"/>
        <source>Back picture</source>
        <translation>Изображение реверса</translation>
    </message>
    <message>
        <location filename="../screens/entry/ZoomViewController.cpp" line="111"/>
        <source>Share</source>
        <translation>Поделиться</translation>
    </message>
</context>
</TS>
