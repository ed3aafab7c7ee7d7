<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AlertController</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
</context>
<context>
    <name>AlreadyOpen</name>
    <message>
        <source>Collection In Use</source>
        <translation>Коллекция уже открыта</translation>
    </message>
    <message>
        <source>This collection is open in another Pelvane (named below). Carry on there, or start Pelvane again once it is closed.</source>
        <translation>Эта коллекция открыта в другом окне Pelvane (указано ниже). Продолжите работу там или запустите Pelvane снова, когда оно будет закрыто.</translation>
    </message>
</context>
<context>
    <name>AppMenuBar</name>
    <message>
        <source>Licence: GNU General Public License, version 3 or later (GPL-3.0-or-later), without warranty of any kind.</source>
        <translation>Лицензия: GNU General Public License версии 3 или более поздней (GPL-3.0-or-later), без каких-либо гарантий.</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Карточки</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <source>List Coins</source>
        <translation>Список монет</translation>
    </message>
    <message>
        <source>Group By</source>
        <translation>Группировать по</translation>
    </message>
    <message>
        <source>Coin Valuation</source>
        <translation>Оценка монет</translation>
    </message>
    <message>
        <source>Reference Lists</source>
        <translation>Справочники</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Статистика</translation>
    </message>
    <message>
        <source>Recent Changes</source>
        <translation>Последние изменения</translation>
    </message>
    <message>
        <source>Cannot Redo</source>
        <translation>Невозможно повторить</translation>
    </message>
    <message>
        <source>Cannot Undo</source>
        <translation>Невозможно отменить</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Отменить: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Повторить: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Pelvane %1

A catalogue of a personal coin collection that keeps everything on your machine.

%2</source>
        <translation>Pelvane %1

Каталог личной коллекции монет, который хранит всё на вашем компьютере.

%2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>Import Coins…</source>
        <translation>Импортировать монеты…</translation>
    </message>
    <message>
        <source>Export Coins…</source>
        <translation>Экспортировать монеты…</translation>
    </message>
    <message>
        <source>Back Up Collection…</source>
        <translation>Создать резервную копию…</translation>
    </message>
    <message>
        <source>Restore From Backup…</source>
        <translation>Восстановить из резервной копии…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>Recent Changes…</source>
        <translation>Последние изменения…</translation>
    </message>
    <message>
        <source>Recently Deleted…</source>
        <translation>Недавно удалённые…</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>Dark Appearance</source>
        <translation>Тёмное оформление</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>П&amp;ереход</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Pelvane Overview</source>
        <translation>Обзор Pelvane</translation>
    </message>
    <message>
        <source>About Pelvane</source>
        <translation>О Pelvane</translation>
    </message>
    <message>
        <source>Your collection and its photos are kept in %1.</source>
        <translation>Ваша коллекция и её фотографии хранятся в %1.</translation>
    </message>
</context>
<context>
    <name>AppStoryboard</name>
    <message>
        <source>Denomination</source>
        <translation>Номинал</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Страна</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Год</translation>
    </message>
</context>
<context>
    <name>CoinDocument</name>
    <message>
        <source>Coin Denomination: </source>
        <translation>Номинал монеты: </translation>
    </message>
    <message>
        <source>Coin Year: </source>
        <translation>Год чеканки: </translation>
    </message>
    <message>
        <source>Quantity: </source>
        <translation>Количество: </translation>
    </message>
    <message>
        <source>Description: </source>
        <translation>Описание: </translation>
    </message>
    <message>
        <source>Country: </source>
        <translation>Страна: </translation>
    </message>
    <message>
        <source>Diameter: </source>
        <translation>Диаметр: </translation>
    </message>
    <message>
        <source>Weight: </source>
        <translation>Вес: </translation>
    </message>
    <message>
        <source>Thickness: </source>
        <translation>Толщина: </translation>
    </message>
    <message>
        <source>Strike Character: </source>
        <translation>Качество чеканки: </translation>
    </message>
    <message>
        <source>Grade #: </source>
        <translation>Степень сохранности №: </translation>
    </message>
    <message>
        <source>Edge: </source>
        <translation>Гурт: </translation>
    </message>
    <message>
        <source>Mint Mark: </source>
        <translation>Знак монетного двора: </translation>
    </message>
    <message>
        <source>Mint Location: </source>
        <translation>Монетный двор: </translation>
    </message>
    <message>
        <source>Serial #: </source>
        <translation>Серийный №: </translation>
    </message>
    <message>
        <source>Period: </source>
        <translation>Период: </translation>
    </message>
    <message>
        <source>Designer: </source>
        <translation>Автор рисунка: </translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Стоимость: </translation>
    </message>
    <message>
        <source>Notes: </source>
        <translation>Заметки: </translation>
    </message>
    <message>
        <source>Year: </source>
        <translation>Год: </translation>
    </message>
    <message>
        <source>Qty: </source>
        <translation>Кол-во: </translation>
    </message>
    <message>
        <source>Total Value (Qty * Value): </source>
        <translation>Общая стоимость (кол-во × стоимость): </translation>
    </message>
    <message>
        <source>Denomination: </source>
        <translation>Номинал: </translation>
    </message>
    <message>
        <source>Coins Filtered by Denomination: </source>
        <translation>Монеты по номиналу: </translation>
    </message>
    <message>
        <source>Coins Filtered by Country: </source>
        <translation>Монеты по стране: </translation>
    </message>
    <message>
        <source>Coins Filtered by Year: </source>
        <translation>Монеты по году: </translation>
    </message>
</context>
<context>
    <name>DesktopServices</name>
    <message>
        <source>Can&apos;t Open File</source>
        <translation>Не удаётся открыть файл</translation>
    </message>
    <message>
        <source>Can&apos;t Open Web Page</source>
        <translation>Не удаётся открыть веб-страницу</translation>
    </message>
    <message>
        <source>No program is set up on this computer to open %1.</source>
        <translation>На этом компьютере не настроена программа для открытия %1.</translation>
    </message>
    <message>
        <source>No web browser is set up on this computer to open %1.</source>
        <translation>На этом компьютере не настроен веб-браузер для открытия %1.</translation>
    </message>
    <message>
        <source>Can&apos;t Send Email</source>
        <translation>Не удаётся отправить письмо</translation>
    </message>
    <message>
        <source>The mail program of this computer could not be started.</source>
        <translation>Не удалось запустить почтовую программу этого компьютера.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Сохранить как...</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Сохранить как</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Не удаётся записать %1: %2</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Take Picture</source>
        <translation>Сделать снимок</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Enjoying Pelvane?</source>
        <translation>Нравится Pelvane?</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Не сейчас</translation>
    </message>
</context>
<context>
    <name>FatalMessage</name>
    <message>
        <source>Fatal error</source>
        <translation>Критическая ошибка</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Addition of %1</source>
        <translation>Добавление: %1</translation>
    </message>
    <message>
        <source>Edit of %1</source>
        <translation>Правка: %1</translation>
    </message>
    <message>
        <source>Deletion of %1</source>
        <translation>Удаление: %1</translation>
    </message>
    <message>
        <source>Change of %1 records</source>
        <translation>Изменение записей: %1</translation>
    </message>
    <message>
        <source>Revaluation of %1</source>
        <translation>Переоценка: %1</translation>
    </message>
    <message>
        <source>Notes Edit of %1</source>
        <translation>Правка заметок: %1</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Импорт: %1</translation>
    </message>
    <message>
        <source>Record Number Repair</source>
        <translation>Исправление номеров записей</translation>
    </message>
    <message>
        <source>Filling of the Reference Lists</source>
        <translation>Заполнение справочников</translation>
    </message>
    <message>
        <source>Restore of %1</source>
        <translation>Восстановление: %1</translation>
    </message>
    <message>
        <source>Version Restore of %1</source>
        <translation>Восстановление версии: %1</translation>
    </message>
    <message>
        <source>Put Back of %1</source>
        <translation>Возврат: %1</translation>
    </message>
    <message>
        <source>The coin did not exist before that change.</source>
        <translation>До этого изменения монеты не существовало.</translation>
    </message>
    <message>
        <source>That coin is not among the deleted coins.</source>
        <translation>Этой монеты нет среди удалённых.</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Нечего отменять.</translation>
    </message>
    <message>
        <source>That change cannot be undone any more.</source>
        <translation>Это изменение больше нельзя отменить.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Нечего повторять.</translation>
    </message>
    <message>
        <source>Undid %1 steps, back to the %2</source>
        <translation>Отменено шагов: %1, до: %2</translation>
    </message>
    <message>
        <source>Redid %1 steps, from the %2</source>
        <translation>Повторено шагов: %1, начиная с: %2</translation>
    </message>
    <message>
        <source>Undid the %1</source>
        <translation>Отменено: %1</translation>
    </message>
    <message>
        <source>Redid the %1</source>
        <translation>Повторено: %1</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>Добавлено: %1</translation>
    </message>
    <message>
        <source>Edited %1</source>
        <translation>Изменено: %1</translation>
    </message>
    <message>
        <source>Deleted %1</source>
        <translation>Удалено: %1</translation>
    </message>
    <message>
        <source>Changed %1 records</source>
        <translation>Изменено записей: %1</translation>
    </message>
    <message>
        <source>Revalued %1</source>
        <translation>Переоценено: %1</translation>
    </message>
    <message>
        <source>Edited the notes of %1</source>
        <translation>Изменены заметки: %1</translation>
    </message>
    <message>
        <source>Imported %1</source>
        <translation>Импортировано: %1</translation>
    </message>
    <message>
        <source>Repaired the record numbers of %1</source>
        <translation>Исправлены номера записей: %1</translation>
    </message>
    <message>
        <source>Filled the reference lists with %1 values</source>
        <translation>Справочники заполнены значениями: %1</translation>
    </message>
    <message>
        <source>Restored %1</source>
        <translation>Восстановлено: %1</translation>
    </message>
    <message>
        <source>Restored an earlier version of %1</source>
        <translation>Восстановлена прежняя версия: %1</translation>
    </message>
    <message>
        <source>Put back %1</source>
        <translation>Возвращено: %1</translation>
    </message>
</context>
<context>
    <name>LaunchOptions</name>
    <message>
        <source>Keep the collection and preferences in DIR.</source>
        <translation>Хранить коллекцию и настройки в DIR.</translation>
    </message>
    <message>
        <source>Write the exchange file of the collection to FILE and exit.</source>
        <translation>Записать файл обмена коллекции в FILE и выйти.</translation>
    </message>
    <message>
        <source>Merge the exchange file FILE into the collection and exit.</source>
        <translation>Объединить файл обмена FILE с коллекцией и выйти.</translation>
    </message>
    <message>
        <source>Write an exact copy of the whole collection, pictures and all, to FILE and exit.</source>
        <translation>Записать точную копию всей коллекции вместе с изображениями в FILE и выйти.</translation>
    </message>
    <message>
        <source>Replace the collection with the backup or snapshot FILE (the current one is kept as a snapshot first) and exit.</source>
        <translation>Заменить коллекцию резервной копией или снимком FILE (текущая сначала сохраняется как снимок) и выйти.</translation>
    </message>
    <message>
        <source>List the snapshots taken automatically and exit.</source>
        <translation>Показать автоматически созданные снимки и выйти.</translation>
    </message>
    <message>
        <source>Print the number of coins, of pieces and the total value of the collection and exit.</source>
        <translation>Вывести число монет, экземпляров и общую стоимость коллекции и выйти.</translation>
    </message>
    <message>
        <source>Write the collection&apos;s pieces and total value at the end of every day on which they changed to FILE, as CSV, and exit.</source>
        <translation>Записать в FILE в формате CSV число экземпляров и общую стоимость коллекции на конец каждого дня, когда они менялись, и выйти.</translation>
    </message>
    <message>
        <source>Undo the last change made to the collection, say what it was and exit.</source>
        <translation>Отменить последнее изменение коллекции, сообщить, какое, и выйти.</translation>
    </message>
    <message>
        <source>List the last 50 changes made to the collection, newest first, and exit.</source>
        <translation>Показать последние 50 изменений коллекции, начиная с новых, и выйти.</translation>
    </message>
    <message>
        <source>Write the PDF report of a group and exit: KIND is denomination, country or year, followed by the group&apos;s VALUE.</source>
        <translation>Записать PDF-отчёт по группе и выйти: KIND — denomination, country или year, за ним значение группы VALUE.</translation>
    </message>
    <message>
        <source>Write the report to FILE instead of the documents folder.</source>
        <translation>Записать отчёт в FILE вместо папки документов.</translation>
    </message>
    <message>
        <source>Use the dark appearance.</source>
        <translation>Использовать тёмное оформление.</translation>
    </message>
    <message>
        <source>Save a picture of the window to PNG and quit.</source>
        <translation>Сохранить снимок окна в PNG и выйти.</translation>
    </message>
    <message>
        <source>Start with the menu opened.</source>
        <translation>Запустить с открытым меню.</translation>
    </message>
    <message>
        <source>Show this help and exit.</source>
        <translation>Показать эту справку и выйти.</translation>
    </message>
    <message>
        <source>Show the version and exit.</source>
        <translation>Показать версию и выйти.</translation>
    </message>
    <message>
        <source>pelvane: %1
Usage: pelvane [options]
Try &apos;pelvane --help&apos; for the options.</source>
        <translation>pelvane: %1
Использование: pelvane [параметры]
Список параметров: «pelvane --help».</translation>
    </message>
    <message>
        <source>Usage: pelvane [options]
Pelvane, a catalogue of a coin collection. Without options it opens the catalogue&apos;s window.

Options:
</source>
        <translation>Использование: pelvane [параметры]
Pelvane — каталог коллекции монет. Без параметров открывает окно каталога.

Параметры:
</translation>
    </message>
    <message>
        <source>--%1 needs a %2, and the one given is empty.</source>
        <translation>Для --%1 нужен %2, а указанный пуст.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Неожиданный аргумент «%1».</translation>
    </message>
    <message>
        <source>--pdf names where a --report goes, and there is no --report.</source>
        <translation>--pdf указывает, куда записать --report, но --report не задан.</translation>
    </message>
    <message>
        <source>%1 cannot be combined.</source>
        <translation>%1 нельзя использовать вместе.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> и </translation>
    </message>
</context>
<context>
    <name>NavigationController</name>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Back to %1</source>
        <translation>Назад: %1</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>Document</source>
        <translation>Документ</translation>
    </message>
</context>
<context>
    <name>PickerView</name>
    <message>
        <source>Choices</source>
        <translation>Варианты</translation>
    </message>
</context>
<context>
    <name>PrintController</name>
    <message>
        <source>The printer cannot be opened.</source>
        <translation>Не удаётся открыть принтер.</translation>
    </message>
    <message>
        <source>The printer reported an error.</source>
        <translation>Принтер сообщил об ошибке.</translation>
    </message>
</context>
<context>
    <name>ProgressView</name>
    <message>
        <source>Progress</source>
        <translation>Ход выполнения</translation>
    </message>
</context>
<context>
    <name>SearchController</name>
    <message>
        <source>Clear Search</source>
        <translation>Очистить поиск</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
</context>
<context>
    <name>StoreCommands</name>
    <message>
        <source>No Snapshot Today</source>
        <translation>Сегодня снимок не создан</translation>
    </message>
    <message>
        <source>Pelvane could not keep today&apos;s snapshot of the collection: %1

The collection itself is unchanged. To keep a copy, back it up from Import / Export.</source>
        <translation>Pelvane не удалось сохранить сегодняшний снимок коллекции: %1

Сама коллекция не изменилась. Чтобы сохранить копию, создайте резервную копию в разделе «Импорт / экспорт».</translation>
    </message>
</context>
<context>
    <name>TabBarController</name>
    <message>
        <source>Sections</source>
        <translation>Разделы</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>List</source>
        <translation>Список</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Таблица</translation>
    </message>
    <message>
        <location filename="../platform/kit/TableViewGrid.cpp" line="92"/>
        <source>Column titles</source>
        <translation>Заголовки столбцов</translation>
    </message>
</context>
<context>
    <name>ViewController</name>
    <message>
        <source>Discard changes?</source>
        <translation>Отменить изменения?</translation>
    </message>
    <message>
        <source>What you changed here has not been saved.</source>
        <translation>Внесённые здесь изменения не сохранены.</translation>
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
</TS>
