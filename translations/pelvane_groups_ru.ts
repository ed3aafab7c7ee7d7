<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
    <context>
        <name>AddReferenceViewController</name>
        <message>
            <location filename="../screens/reference/AddReferenceViewController.cpp" line="+29" />
            <location line="+6" />
            <source>Record not Saved!</source>
            <translation>Запись не сохранена!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Duplicates not allowed</source>
            <translation>Повторы не допускаются</translation>
        </message>
    </context>
    <context>
        <name>BreakdownTableViewController</name>
        <message>
            <location filename="../screens/groups/BreakdownTableViewController.cpp" line="+36" />
            <source>%1  Mint Mark: %2</source>
            <translation>%1  Знак монетного двора: %2</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Denomination</source>
            <translation>Номинал</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Year</source>
            <translation>Сортировка и поиск по году</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the denomination</source>
            <translation>Монеты этого номинала</translation>
        </message>
        <message>
            <location line="+8" />
            <location line="+29" />
            <source>%1 Total Value: %2</source>
            <translation>%1 Общая стоимость: %2</translation>
        </message>
        <message>
            <location line="-15" />
            <source>Country</source>
            <translation>Страна</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort and Search By Denomination</source>
            <translation>Сортировка и поиск по номиналу</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the country</source>
            <translation>Монеты этой страны</translation>
        </message>
        <message>
            <location line="+7" />
            <source>%1  Country: %2</source>
            <translation>%1  Страна: %2</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Year</source>
            <translation>Год</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Search By Denomination</source>
            <translation>Поиск по номиналу</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Coins of the year</source>
            <translation>Монеты этого года</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Year: %1  Mint Mark: %2</source>
            <translation>Год: %1  Знак монетного двора: %2</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Qty: %1</source>
            <translation>Кол-во: %1</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Value: %1 Total Value: %2</source>
            <translation>Стоимость: %1 Общая стоимость: %2</translation>
        </message>
        <message>
            <location line="+48" />
            <source>Share</source>
            <translation>Поделиться</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>Сортировка</translation>
        </message>
        <message>
            <location line="+2" />
            <source>View</source>
            <translation>Вид</translation>
        </message>
        <message>
            <location line="+99" />
            <source># of Coins: %1</source>
            <translation>Количество монет: %1</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Valuation for displayed coins: %1</source>
            <translation>Оценка показанных монет: %1</translation>
        </message>
        <message>
            <location line="+53" />
            <source>delete</source>
            <translation>удалить</translation>
        </message>
    </context>
    <context>
        <name>CoinHistoryViewController</name>
        <message>
            <location filename="../screens/statistics/CoinHistoryViewController.cpp" line="+56" />
            <source>Changes of quantity and value</source>
            <translation>Изменения количества и стоимости</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Date</source>
            <translation>Дата</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Change</source>
            <translation>Изменение</translation>
        </message>
        <message>
            <location line="+0" />
            <location line="+32" />
            <source>Quantity</source>
            <translation>Количество</translation>
        </message>
        <message>
            <location line="-32" />
            <location line="+32" />
            <source>Value</source>
            <translation>Стоимость</translation>
        </message>
        <message>
            <location line="-32" />
            <source>Total Value</source>
            <translation>Общая стоимость</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Earlier versions</source>
            <translation>Прежние версии</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Version</source>
            <translation>Версия</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Differs from now</source>
            <translation>Отличия от текущей</translation>
        </message>
        <message>
            <location line="+1" />
            <source>No earlier versions.</source>
            <translation>Прежних версий нет.</translation>
        </message>
        <message>
            <location line="+1" />
            <location line="+59" />
            <source>Restore This Version</source>
            <translation>Восстановить эту версию</translation>
        </message>
        <message>
            <location line="-58" />
            <source>History</source>
            <translation>История</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Front picture</source>
            <translation>Изображение аверса</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back picture</source>
            <translation>Изображение реверса</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Country</source>
            <translation>Страна</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Denomination</source>
            <translation>Номинал</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Год</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Mint Mark</source>
            <translation>Знак монетного двора</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade</source>
            <translation>Сохранность</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Quantity and Value</source>
            <translation>Количество и стоимость</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Earlier Versions</source>
            <translation>Прежние версии</translation>
        </message>
        <message>
            <location line="+93" />
            <source>Versions Not Read</source>
            <translation>Версии не прочитаны</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Before: %1</source>
            <translation>До: %1</translation>
        </message>
        <message>
            <location line="+25" />
            <source>Restore This Version?</source>
            <translation>Восстановить эту версию?</translation>
        </message>
        <message>
            <location line="+1" />
            <source>The coin is written back as it was before the %1. The change can be undone in Recent Changes.</source>
            <translation>Монета будет записана такой, какой была до операции «%1». Изменение можно отменить в разделе «Последние изменения».</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Restore</source>
            <translation>Восстановить</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Version Not Restored</source>
            <translation>Версия не восстановлена</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>DamagedStoreBanner</name>
        <message>
            <location filename="../screens/exchange/DamagedStoreBanner.cpp" line="+47" />
            <source>%1 at %2</source>
            <translation>%1 в %2</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Your collection file is damaged</source>
            <translation>Файл вашей коллекции повреждён</translation>
        </message>
        <message>
            <location line="+7" />
            <source>There is no whole snapshot to go back to. Restore a backup from Import / Export; the damaged file is moved aside, not deleted.</source>
            <translation>Нет целого снимка, к которому можно вернуться. Восстановите резервную копию в разделе «Импорт / экспорт»; повреждённый файл будет отложен, а не удалён.</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The newest whole snapshot is from %1 and holds %2. Restoring it moves the damaged file aside, not deleted.</source>
            <translation>Самый новый целый снимок сделан %1 и содержит %2. При его восстановлении повреждённый файл будет отложен, а не удалён.</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Restore Snapshot…</source>
            <translation>Восстановить снимок…</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Restore the snapshot from %1</source>
            <translation>Восстановить снимок от %1</translation>
        </message>
    </context>
    <context>
        <name>ExportViewController</name>
        <message>
            <location filename="../screens/exchange/ExportViewController.cpp" line="+21" />
            <source>Create Export File</source>
            <translation>Создать файл экспорта</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save To Files</source>
            <translation>Сохранить в файлы</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Email File</source>
            <translation>Отправить файл по почте</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Contents of the export file</source>
            <translation>Содержимое файла экспорта</translation>
        </message>
        <message>
            <location line="+1" />
            <source>How to export</source>
            <translation>Как экспортировать</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>Экспорт монет</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Step 1: Create the Export File
Step 2: Option 1: Click 'Save To Files' button
             Option 2: Click the Email File button to email the file to yourself and then from your email save the file to your iCloud Drive. There are size limits to email attachments for most carriers.</source>
            <translation>Шаг 1: создайте файл экспорта
Шаг 2: вариант 1: нажмите кнопку «Сохранить в файлы»
             Вариант 2: нажмите «Отправить файл по почте», чтобы отправить файл себе, а затем сохраните его из письма на iCloud Drive. Большинство почтовых служб ограничивают размер вложений.</translation>
        </message>
        <message>
            <location line="+46" />
            <location line="+10" />
            <source>Data Export File</source>
            <translation>Файл экспорта данных</translation>
        </message>
        <message>
            <location line="-9" />
            <source>The collection cannot be read: %1</source>
            <translation>Не удаётся прочитать коллекцию: %1</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Process Complete - File Ready to Save To Files or Email</source>
            <translation>Готово — файл можно сохранить в файлы или отправить по почте</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Pelvane Update Text File</source>
            <translation>Текстовый файл обновления Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Attachment: Pelvane Text File</source>
            <translation>Вложение: текстовый файл Pelvane</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Sending Email</source>
            <translation>Отправка почты</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Email not Setup or Unavailable</source>
            <translation>Почта не настроена или недоступна</translation>
        </message>
    </context>
    <context>
        <name>GroupTableViewController</name>
        <message>
            <location filename="../screens/groups/GroupTableViewController.cpp" line="+24" />
            <source>Sort and Search By Denomination</source>
            <translation>Сортировка и поиск по номиналу</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by denomination</source>
            <translation>Группы по номиналу</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Denominations</source>
            <translation>
                <numerusform>%n номинал</numerusform>
                <numerusform>%n номинала</numerusform>
                <numerusform>%n номиналов</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Denomination</source>
            <translation>0 номиналов</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Search By Denomination</source>
            <translation>Поиск по номиналу</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Groups by country</source>
            <translation>Группы по стране</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Countries</source>
            <translation>
                <numerusform>%n страна</numerusform>
                <numerusform>%n страны</numerusform>
                <numerusform>%n стран</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Country</source>
            <translation>0 стран</translation>
        </message>
        <message>
            <location line="+8" />
            <source>Sort and Search By Year</source>
            <translation>Сортировка и поиск по году</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Groups by year</source>
            <translation>Группы по году</translation>
        </message>
        <message numerus="yes">
            <location line="+2" />
            <source>%n Years</source>
            <translation>
                <numerusform>%n год</numerusform>
                <numerusform>%n года</numerusform>
                <numerusform>%n лет</numerusform>
            </translation>
        </message>
        <message>
            <location line="+1" />
            <source>0 Year</source>
            <translation>0 лет</translation>
        </message>
        <message>
            <location line="+56" />
            <source>‹ Back</source>
            <translation>‹ Назад</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Sort</source>
            <translation>Сортировка</translation>
        </message>
        <message>
            <location line="+133" />
            <source>1 coin</source>
            <translation>1 монета</translation>
        </message>
        <message numerus="yes">
            <location line="+0" />
            <source>%n coins</source>
            <translation>
                <numerusform>%n монета</numerusform>
                <numerusform>%n монеты</numerusform>
                <numerusform>%n монет</numerusform>
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
            <translation>(нет значения)</translation>
        </message>
    </context>
    <context>
        <name>ImportExportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportExportViewController.cpp" line="+25" />
            <source>Pelvane backups (*.sqlite)</source>
            <translation>Резервные копии Pelvane (*.sqlite)</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All files (*)</source>
            <translation>Все файлы (*)</translation>
        </message>
        <message>
            <location line="+20" />
            <source>Export Coins</source>
            <translation>Экспорт монет</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import Coins</source>
            <translation>Импорт монет</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Back Up Collection…</source>
            <translation>Создать резервную копию…</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Restore From Backup…</source>
            <translation>Восстановить из копии…</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Move the whole collection to another device: export it here, import the file there.</source>
            <translation>Перенесите всю коллекцию на другое устройство: экспортируйте её здесь и импортируйте файл там.</translation>
        </message>
        <message>
            <location line="+9" />
            <source>Keep an exact copy of the collection, every picture included, or put one back.</source>
            <translation>Сохраните точную копию коллекции со всеми изображениями или верните сохранённую.</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Import / Export</source>
            <translation>Импорт / экспорт</translation>
        </message>
        <message>
            <location line="+50" />
            <source>Backup Complete</source>
            <translation>Резервная копия создана</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backed up %1 to %2</source>
            <translation>%1 сохранено в %2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Backup Failed</source>
            <translation>Не удалось создать резервную копию</translation>
        </message>
    </context>
    <context>
        <name>ImportViewController</name>
        <message>
            <location filename="../screens/exchange/ImportViewController.cpp" line="+98" />
            <source>Load File</source>
            <translation>Загрузить файл</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Import File</source>
            <translation>Импортировать файл</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Contents of the file</source>
            <translation>Содержимое файла</translation>
        </message>
        <message>
            <location line="+2" />
            <source>How to import</source>
            <translation>Как импортировать</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Import Coins</source>
            <translation>Импорт монет</translation>
        </message>
        <message>
            <location line="+9" />
            <source>YOU CAN ONLY IMPORT THE FILE CREATED BY THIS APP.
1: Select the file you saved to your iCloud drive
2: Import the file into your device</source>
            <translation>МОЖНО ИМПОРТИРОВАТЬ ТОЛЬКО ФАЙЛ, СОЗДАННЫЙ ЭТОЙ ПРОГРАММОЙ.
1: выберите файл, сохранённый на iCloud Drive
2: импортируйте файл на устройство</translation>
        </message>
        <message>
            <location line="+6" />
            <source>Exchange files (*.csv)</source>
            <translation>Файлы обмена (*.csv)</translation>
        </message>
        <message>
            <location line="+0" />
            <source>All files (*)</source>
            <translation>Все файлы (*)</translation>
        </message>
        <message>
            <location line="+44" />
            <location line="+30" />
            <source>Data Import File</source>
            <translation>Файл импорта данных</translation>
        </message>
        <message>
            <location line="-30" />
            <source>File Loaded and Ready to Import</source>
            <translation>Файл загружен и готов к импорту</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Data File Import Completed</source>
            <translation>Импорт файла данных завершён</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Data Import</source>
            <translation>Импорт данных</translation>
        </message>
        <message>
            <location line="+1" />
            <source>%1 Is The Incorrect Import File</source>
            <translation>%1 — неверный файл импорта</translation>
        </message>
        <message>
            <location line="+1" />
            <source>OK</source>
            <translation>ОК</translation>
        </message>
        <message numerus="yes">
            <source>%1 and %n more</source>
            <translation>
                <numerusform>%1 и ещё %n</numerusform>
                <numerusform>%1 и ещё %n</numerusform>
                <numerusform>%1 и ещё %n</numerusform>
            </translation>
        </message>
        <message>
            <source>Too Many Pieces</source>
            <translation>Слишком много экземпляров</translation>
        </message>
        <message>
            <source>The collection now holds %1 pieces, more than the %2 the coin list and the valuation screen can count: they stop when they open. The coins of the file&apos;s lines %3 took it past. Edit &gt; Undo takes the whole import back.</source>
            <translation>Теперь в коллекции %1 экземпляров, больше, чем %2, которые могут сосчитать список монет и экран оценки: при открытии они остановятся. Предел превысили монеты из строк файла %3. Правка &gt; Отменить отменяет весь импорт.</translation>
        </message>
    </context>
    <context>
        <name>OverviewViewController</name>
        <message>
            <location filename="../screens/overview/OverviewViewController.cpp" line="+20" />
            <source>Pelvane Overview</source>
            <translation>Обзор Pelvane</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Pelvane overview guide</source>
            <translation>Руководство по Pelvane</translation>
        </message>
        <message>
            <location line="+22" />
            <source>%1 of %2</source>
            <translation>%1 из %2</translation>
        </message>
    </context>
    <context>
        <name>PrintCoinsViewController</name>
        <message>
            <location filename="../screens/groups/PrintCoinsViewController.cpp" line="+17" />
            <source>Print</source>
            <translation>Печать</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Create File</source>
            <translation>Создать файл</translation>
        </message>
        <message>
            <location line="+5" />
            <source>Coins to print</source>
            <translation>Монеты для печати</translation>
        </message>
        <message>
            <location line="+17" />
            <source>Print Coins</source>
            <translation>Печать монет</translation>
        </message>
        <message>
            <location line="+23" />
            <source>Empty Data Set!</source>
            <translation>Нет данных!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>No Coins to Print!</source>
            <translation>Нет монет для печати!</translation>
        </message>
    </context>
    <context>
        <name>RateShareTableViewController</name>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.cpp" line="+14" />
            <source>Rate Pelvane</source>
            <translation>Оценить Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Share Pelvane</source>
            <translation>Поделиться Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Invite a Friend</source>
            <translation>Пригласить друга</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Visit the Pelvane Website</source>
            <translation>Открыть сайт Pelvane</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Send Feedback</source>
            <translation>Отправить отзыв</translation>
        </message>
        <message>
            <location line="+24" />
            <location line="+5" />
            <source>Rate &amp; Share</source>
            <translation>Оценить и поделиться</translation>
        </message>
        <message>
            <location line="+36" />
            <source>Can't Send Text Message</source>
            <translation>Не удаётся отправить сообщение</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send text messages.</source>
            <translation>Ваше устройство не может отправлять сообщения.</translation>
        </message>
        <message>
            <location line="+11" />
            <source>&lt;p&gt;Enter your comments about the Pelvane app below: &lt;/p&gt;</source>
            <translation>&lt;p&gt;Напишите ниже свои замечания о Pelvane: &lt;/p&gt;</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Can't Send Email</source>
            <translation>Не удаётся отправить письмо</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Your Device is not able to send Email.</source>
            <translation>Ваше устройство не может отправлять почту.</translation>
        </message>
        <message>
            <location filename="../screens/feedback/RateShareTableViewController.h" line="+23" />
            <source>Click the following link to visit the Pelvane App website</source>
            <translation>Перейдите по ссылке ниже, чтобы открыть сайт Pelvane</translation>
        </message>
    </context>
    <context>
        <name>ReferenceKinds</name>
        <message>
            <location filename="../screens/reference/ReferenceKinds.cpp" line="+18" />
            <source>Grade Numbers</source>
            <translation>Степени сохранности</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Grade Number List</source>
            <translation>Список степеней сохранности</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Grade Number</source>
            <translation>Поиск по степени сохранности</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Grade Number</source>
            <translation>Степень сохранности</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Strike Characters</source>
            <translation>Качества чекана</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Strike Character List</source>
            <translation>Список качеств чекана</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Strike Character</source>
            <translation>Поиск по качеству чекана</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Strike Character</source>
            <translation>Качество чекана</translation>
        </message>
        <message>
            <location line="+13" />
            <source>Edges</source>
            <translation>Гурты</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Edge List</source>
            <translation>Список гуртов</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Search by Edge</source>
            <translation>Поиск по гурту</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edge</source>
            <translation>Гурт</translation>
        </message>
        <message>
            <location line="+14" />
            <source>Add Grade Numbers</source>
            <translation>Добавить степень сохранности</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Grade Number not Entered</source>
            <translation>Степень сохранности не введена</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Grade Numbers</source>
            <translation>Изменить степень сохранности</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Strike Character</source>
            <translation>Добавить качество чекана</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Strike Character not Entered</source>
            <translation>Качество чекана не введено</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Strike Characters</source>
            <translation>Изменить качество чекана</translation>
        </message>
        <message>
            <location line="+12" />
            <source>Add Edge</source>
            <translation>Добавить гурт</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Edge not Entered</source>
            <translation>Гурт не введён</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Edit Edge</source>
            <translation>Изменить гурт</translation>
        </message>
    </context>
    <context>
        <name>ReferenceListViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceListViewController.cpp" line="+30" />
            <source>Reference Lists</source>
            <translation>Справочники</translation>
        </message>
    </context>
    <context>
        <name>ReferenceTableViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceTableViewController.cpp" line="+50" />
            <source>Add</source>
            <translation>Добавить</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Sort</source>
            <translation>Сортировка</translation>
        </message>
        <message>
            <location line="+131" />
            <source>delete</source>
            <translation>удалить</translation>
        </message>
    </context>
    <context>
        <name>ReferenceValueViewController</name>
        <message>
            <location filename="../screens/reference/ReferenceValueViewController.cpp" line="+15" />
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
    </context>
    <context>
        <name>RestoreFlow</name>
        <message>
            <location filename="../screens/exchange/RestoreFlow.cpp" line="+38" />
            <location line="+39" />
            <source>Restore Failed</source>
            <translation>Не удалось восстановить</translation>
        </message>
        <message>
            <location line="-36" />
            <source>Restored %1.</source>
            <translation>Восстановлено: %1.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The damaged collection file was kept as %1.</source>
            <translation>Повреждённый файл коллекции сохранён как %1.</translation>
        </message>
        <message>
            <location line="+6" />
            <location line="+5" />
            <source>Restore Complete</source>
            <translation>Восстановление завершено</translation>
        </message>
        <message>
            <location line="+5" />
            <source>coin</source>
            <translation>монета</translation>
        </message>
        <message>
            <location line="+0" />
            <source>coins</source>
            <translation>монет</translation>
        </message>
        <message>
            <location line="+22" />
            <source>Restore From Backup?</source>
            <translation>Восстановить из резервной копии?</translation>
        </message>
        <message>
            <location line="+2" />
            <source>The backup holds %1; the collection cannot be read. Its file is moved aside whole, not deleted, and the backup takes its place.</source>
            <translation>В резервной копии: %1; коллекцию прочитать не удаётся. Её файл будет целиком отложен, а не удалён, и копия займёт его место.</translation>
        </message>
        <message>
            <location line="+3" />
            <source>The backup holds %1; the collection holds %2. The collection as it is now is kept as a snapshot in Backups/.</source>
            <translation>В резервной копии: %1; в коллекции: %2. Текущее состояние коллекции будет сохранено как снимок в Backups/.</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Restore</source>
            <translation>Восстановить</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Cancel</source>
            <translation>Отмена</translation>
        </message>
    </context>
    <context>
        <name>StatisticsCharts</name>
        <message>
            <location filename="../screens/statistics/StatisticsCharts.cpp" line="+69" />
            <location line="+37" />
            <source>Value</source>
            <translation>Стоимость</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Pieces</source>
            <translation>Экземпляры</translation>
        </message>
        <message>
            <location line="+11" />
            <source>(none)</source>
            <translation>(нет)</translation>
        </message>
        <message>
            <location line="+14" />
            <source>%1: %2 pieces, %3</source>
            <translation>%1: %2 шт., %3</translation>
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
            <translation>Стоимость</translation>
        </message>
        <message>
            <location line="-126" />
            <source>Countries</source>
            <translation>Страны</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denominations</source>
            <translation>Номиналы</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Decades</source>
            <translation>Десятилетия</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Changes</source>
            <translation>Изменения</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Chart of the value over time</source>
            <translation>График стоимости во времени</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by country</source>
            <translation>Диаграмма стоимости по странам</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the value by denomination</source>
            <translation>Диаграмма стоимости по номиналам</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Chart of the pieces by decade</source>
            <translation>Диаграмма количества по десятилетиям</translation>
        </message>
        <message>
            <location line="+2" />
            <source>Statistics: value by day</source>
            <translation>Статистика: стоимость по дням</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by country</source>
            <translation>Статистика: количество и стоимость по странам</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by denomination</source>
            <translation>Статистика: количество и стоимость по номиналам</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: pieces and value by decade</source>
            <translation>Статистика: количество и стоимость по десятилетиям</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Statistics: largest changes</source>
            <translation>Статистика: крупнейшие изменения</translation>
        </message>
        <message>
            <location line="+5" />
            <source>(none)</source>
            <translation>(нет)</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Month</source>
            <translation>Месяц</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Год</translation>
        </message>
        <message>
            <location line="+1" />
            <source>All</source>
            <translation>Всё</translation>
        </message>
        <message>
            <location line="+3" />
            <location line="+25" />
            <location line="+1" />
            <source>Statistics</source>
            <translation>Статистика</translation>
        </message>
        <message>
            <location line="+15" />
            <source>Save Chart…</source>
            <translation>Сохранить диаграмму…</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Export Data…</source>
            <translation>Экспортировать данные…</translation>
        </message>
        <message>
            <location line="+24" />
            <source>Columns</source>
            <translation>Столбцы</translation>
        </message>
        <message>
            <location line="+2" />
            <location line="+4" />
            <source>Date</source>
            <translation>Дата</translation>
        </message>
        <message>
            <location line="-4" />
            <location line="+1" />
            <location line="+1" />
            <location line="+1" />
            <source>Pieces</source>
            <translation>Экземпляры</translation>
        </message>
        <message>
            <location line="-2" />
            <location line="+71" />
            <source>Country</source>
            <translation>Страна</translation>
        </message>
        <message>
            <location line="-70" />
            <location line="+74" />
            <source>Denomination</source>
            <translation>Номинал</translation>
        </message>
        <message>
            <location line="-73" />
            <location line="+112" />
            <source>Decade</source>
            <translation>Десятилетие</translation>
        </message>
        <message>
            <location line="-111" />
            <source>Coin</source>
            <translation>Монета</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Before</source>
            <translation>До</translation>
        </message>
        <message>
            <location line="+0" />
            <source>After</source>
            <translation>После</translation>
        </message>
        <message>
            <location line="+0" />
            <source>Cause</source>
            <translation>Причина</translation>
        </message>
        <message>
            <location line="+60" />
            <source>%1 pieces, worth %2</source>
            <translation>%1 шт. стоимостью %2</translation>
        </message>
        <message>
            <location line="+40" />
            <source>Other</source>
            <translation>Прочие</translation>
        </message>
        <message>
            <location line="+91" />
            <source>PNG pictures (*.png)</source>
            <translation>Изображения PNG (*.png)</translation>
        </message>
        <message>
            <location line="+7" />
            <source>Chart Not Saved</source>
            <translation>Диаграмма не сохранена</translation>
        </message>
        <message>
            <location line="+9" />
            <source>CSV files (*.csv)</source>
            <translation>Файлы CSV (*.csv)</translation>
        </message>
        <message>
            <location line="+3" />
            <source>Data Not Exported</source>
            <translation>Данные не экспортированы</translation>
        </message>
        <message>
            <location line="+11" />
            <source>Coin Deleted</source>
            <translation>Монета удалена</translation>
        </message>
        <message>
            <location line="+0" />
            <source>This coin has been deleted. It can be put back from Recently Deleted, on the Recent Changes screen.</source>
            <translation>Эта монета удалена. Её можно вернуть из раздела «Недавно удалённые» на экране «Последние изменения».</translation>
        </message>
    </context>
    <context>
        <name>ValuationViewController</name>
        <message>
            <location filename="../screens/valuation/ValuationViewController.cpp" line="+74" />
            <source>Coins</source>
            <translation>Монеты</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Total Value</source>
            <translation>Общая стоимость</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Year</source>
            <translation>Год</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Denomination</source>
            <translation>Номинал</translation>
        </message>
        <message>
            <location line="+1" />
            <source>New Value</source>
            <translation>Новая стоимость</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Search Web</source>
            <translation>Искать в интернете</translation>
        </message>
        <message>
            <location line="+2" />
            <source>PCGS</source>
            <translation>PCGS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>PCGS price guide</source>
            <translation>Каталог цен PCGS</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC</source>
            <translation>NGC</translation>
        </message>
        <message>
            <location line="+1" />
            <source>NGC price guide</source>
            <translation>Каталог цен NGC</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save</source>
            <translation>Сохранить</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Save the new value</source>
            <translation>Сохранить новую стоимость</translation>
        </message>
        <message>
            <location line="+4" />
            <source>Coins and their values</source>
            <translation>Монеты и их стоимость</translation>
        </message>
        <message>
            <location line="+16" />
            <source>Coin Valuation</source>
            <translation>Оценка монет</translation>
        </message>
        <message>
            <location line="+10" />
            <source>Share</source>
            <translation>Поделиться</translation>
        </message>
        <message>
            <location line="+41" />
            <source>Denomination: %1  Year: %2</source>
            <translation>Номинал: %1  Год: %2</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Quantity: %1</source>
            <translation>Количество: %1</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Value: %1</source>
            <translation>Стоимость: %1</translation>
        </message>
        <message>
            <location line="+31" />
            <source>No Search</source>
            <translation>Поиск невозможен</translation>
        </message>
        <message>
            <location line="+1" />
            <source>Required Fields Year and Denomination Not Entered</source>
            <translation>Не заполнены обязательные поля «Год» и «Номинал»</translation>
        </message>
        <message>
            <location line="+30" />
            <source>Record not Saved!</source>
            <translation>Запись не сохранена!</translation>
        </message>
        <message>
            <location line="+0" />
            <source>New Value not Entered</source>
            <translation>Новая стоимость не введена</translation>
        </message>
    </context>
</TS>
