<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>ControlCo</name>
    <message>
        <source>Control</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Control Object</source>
        <translation>Объект управления</translation>
    </message>
    <message>
        <source>Data Obj :</source>
        <translation>Объект данных:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Current Value :</source>
        <translation>Текущее значение:</translation>
    </message>
    <message>
        <source>Current value</source>
        <translation>Текущее значение</translation>
    </message>
    <message>
        <source>Control Value :</source>
        <translation>Значение команды:</translation>
    </message>
    <message>
        <source>Control value</source>
        <translation>Значение команды</translation>
    </message>
    <message>
        <source>Test :</source>
        <translation>Тест:</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>Тест</translation>
    </message>
    <message>
        <source>Category :</source>
        <translation>Категория:</translation>
    </message>
    <message>
        <source>Originator category</source>
        <translation>Категория инициатора</translation>
    </message>
    <message>
        <source>Check :</source>
        <translation>Проверка:</translation>
    </message>
    <message>
        <source>Check conditions</source>
        <translation>Условия проверки</translation>
    </message>
</context>
<context>
    <name>DatasetSelectWidget</name>
    <message>
        <source>Selete Datas</source>
        <translation>Выбор данных</translation>
    </message>
    <message>
        <source>DataSet Name : </source>
        <translation>Имя набора данных: </translation>
    </message>
    <message>
        <source>Data set name</source>
        <translation>Имя набора данных</translation>
    </message>
    <message>
        <source>Data set members</source>
        <translation>Элементы набора данных</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>No data selected. can`t create dataset</source>
        <translation>Данные не выбраны. Набор данных создать нельзя.</translation>
    </message>
    <message>
        <source>Please input dataset name</source>
        <translation>Введите имя набора данных.</translation>
    </message>
</context>
<context>
    <name>ExplanationTips</name>
    <message>
        <source>Data type:</source>
        <translation>Тип данных:</translation>
    </message>
    <message>
        <source>Enumeration:</source>
        <translation>Перечисление:</translation>
    </message>
    <message>
        <source>Functional constraint:</source>
        <translation>Функциональная связь:</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Наличие:</translation>
    </message>
    <message>
        <source>Transient:</source>
        <translation>Кратковременный:</translation>
    </message>
    <message>
        <source>Values:</source>
        <translation>Значения:</translation>
    </message>
    <message>
        <source>conditional (%1)</source>
        <translation>условно (%1)</translation>
    </message>
    <message>
        <source>mandatory</source>
        <translation>обязательно</translation>
    </message>
    <message>
        <source>optional</source>
        <translation>необязательно</translation>
    </message>
    <message>
        <source>true only for a moment</source>
        <translation>истина лишь на мгновение</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>The whole text, %1 lines:</source>
        <translation>Текст целиком, строк: %1:</translation>
    </message>
</context>
<context>
    <name>FileModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Размер</translation>
    </message>
</context>
<context>
    <name>FileServiceDialog</name>
    <message>
        <source>IED File Service</source>
        <translation>Файлы ИЭУ</translation>
    </message>
    <message>
        <source>Server Directory : </source>
        <translation>Каталог на ИЭУ: </translation>
    </message>
    <message>
        <source>Server directory</source>
        <translation>Каталог на ИЭУ</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>IED Directory</source>
        <translation>Каталог ИЭУ</translation>
    </message>
    <message>
        <source>IED directory</source>
        <translation>Каталог ИЭУ</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Скачать</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Upload File</source>
        <translation>Передача файла на ИЭУ</translation>
    </message>
    <message>
        <source>Select File : </source>
        <translation>Файл: </translation>
    </message>
    <message>
        <source>File to upload</source>
        <translation>Передаваемый файл</translation>
    </message>
    <message>
        <source>Select file</source>
        <translation>Выбрать файл</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Target File Name :</source>
        <translation>Имя на ИЭУ:</translation>
    </message>
    <message>
        <source>Target file name</source>
        <translation>Имя на ИЭУ</translation>
    </message>
    <message>
        <source>Upload</source>
        <translation>Передать</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>All Files(*.*)</source>
        <translation>Все файлы(*.*)</translation>
    </message>
    <message>
        <source>Fail to Read File: %1 error:%2</source>
        <translation>Не удалось прочитать файл %1: %2</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Успешно</translation>
    </message>
    <message>
        <source>Download Finished</source>
        <translation>Файл скачан</translation>
    </message>
    <message>
        <source>Fail to Delete %1 %2</source>
        <translation>Не удалось удалить %1: %2</translation>
    </message>
    <message>
        <source>Delete Finished</source>
        <translation>Удаление завершено</translation>
    </message>
    <message>
        <source>Fail to Upload File: %1 error:%2</source>
        <translation>Не удалось передать файл %1: %2</translation>
    </message>
    <message>
        <source>Upload Finished</source>
        <translation>Файл передан</translation>
    </message>
    <message>
        <source>Fail to readDirectory: Cannot connect to driver</source>
        <translation>Не удалось прочитать каталог: нет связи с драйвером</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Нет связи с драйвером</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Download File</source>
        <translation>Скачать файл</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 уже существует.
Заменить файл?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>«%1» не удаётся записать: %2</translation>
    </message>
</context>
<context>
    <name>IEC61850TaskExtention</name>
    <message>
        <source>IED Browser</source>
        <translation>Обозреватель ИЭУ</translation>
    </message>
    <message>
        <source>IED File Service</source>
        <translation>Файлы ИЭУ</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Прервать</translation>
    </message>
    <message>
        <source>Report Control</source>
        <translation>Управление отчётами</translation>
    </message>
</context>
<context>
    <name>IEDModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>(Deletable)</source>
        <translation>(удаляемый)</translation>
    </message>
</context>
<context>
    <name>IEDModelView</name>
    <message>
        <source>IED Browser</source>
        <translation>Обозреватель ИЭУ</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Прочитать</translation>
    </message>
    <message>
        <source>Write...</source>
        <translation>Записать...</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Исполнить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Развернуть всё</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Свернуть всё</translation>
    </message>
    <message>
        <source>Open Report Control</source>
        <translation>Открыть блок управления отчётом</translation>
    </message>
    <message>
        <source>Open Setting Group Control</source>
        <translation>Открыть блок управления группами уставок</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Create Persistent DataSet</source>
        <translation>Создать постоянный набор данных</translation>
    </message>
    <message>
        <source>Create Non-Persistent DataSet</source>
        <translation>Создать временный набор данных</translation>
    </message>
    <message>
        <source>Delete DataSet</source>
        <translation>Удалить набор данных</translation>
    </message>
    <message>
        <source>GetDataSet List</source>
        <translation>Список наборов данных</translation>
    </message>
    <message>
        <source>GetDataSet Directory</source>
        <translation>Состав набора данных</translation>
    </message>
    <message>
        <source>Get BRCB</source>
        <translation>Прочитать блок буферизованного отчёта (BRCB)</translation>
    </message>
    <message>
        <source>Get URCB</source>
        <translation>Прочитать блок небуферизованного отчёта (URCB)</translation>
    </message>
    <message>
        <source>Get SGCB</source>
        <translation>Прочитать блок групп уставок (SGCB)</translation>
    </message>
    <message>
        <source>GetServer Directory</source>
        <translation>Каталог сервера</translation>
    </message>
    <message>
        <source>GetLogicalDevice Directory</source>
        <translation>Каталог логического устройства</translation>
    </message>
    <message>
        <source>GetLogicalNode Directory</source>
        <translation>Каталог логического узла</translation>
    </message>
    <message>
        <source>GetData Directory</source>
        <translation>Каталог данных</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Нет связи с драйвером</translation>
    </message>
    <message>
        <source>The description of this device is not whole: the tree shows what could be read of it.</source>
        <translation>Описание этого устройства неполное: в дереве показано то, что удалось прочитать.</translation>
    </message>
</context>
<context>
    <name>OfflineSGCB</name>
    <message>
        <source>OfflineSGCB</source>
        <translation>Группы уставок (без связи)</translation>
    </message>
    <message>
        <source>Num of Setting Group : </source>
        <translation>Количество групп уставок: </translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Active Group : </source>
        <translation>Активная группа: </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>PropertyDelegate</name>
    <message>
        <source>%1 &quot;%2&quot; keeps its value.</source>
        <translation>%1 «%2» сохраняет своё значение.</translation>
    </message>
</context>
<context>
    <name>PropertyEditor</name>
    <message>
        <source>A whole number from %1 to %2 is needed.</source>
        <translation>Требуется целое число от %1 до %2.</translation>
    </message>
    <message>
        <source>A number with a decimal point is needed, such as 0.25 or 1e-3.</source>
        <translation>Требуется число с десятичной точкой, например 0.25 или 1e-3.</translation>
    </message>
    <message>
        <source>One character is needed.</source>
        <translation>Требуется один символ.</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Истина</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Ложь</translation>
    </message>
    <message>
        <source>The number is too large: the data type ends at %1.</source>
        <translation>Число слишком велико: предел этого типа данных — %1.</translation>
    </message>
    <message>
        <source>The number is too small: in this data type it would become 0.</source>
        <translation>Число слишком мало: в этом типе данных оно стало бы равным 0.</translation>
    </message>
    <message>
        <source>Not all that was typed was taken. Press Enter again if %1 is meant.</source>
        <translation>Принято не всё, что было введено. Нажмите Enter ещё раз, если имеется в виду %1.</translation>
    </message>
    <message>
        <source>The point in %1 is read as the decimal point. Press Enter again if this is meant.</source>
        <translation>Точка в %1 понимается как десятичная. Нажмите Enter ещё раз, если так и задумано.</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Свойство</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>ReportControl</name>
    <message>
        <source>Report Control Block</source>
        <translation>Блок управления отчётом</translation>
    </message>
    <message>
        <source>Report Name : </source>
        <translation>Имя отчёта: </translation>
    </message>
    <message>
        <source>....</source>
        <translation>....</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Включить</translation>
    </message>
    <message>
        <source>PurgeBuf</source>
        <translation>PurgeBuf</translation>
    </message>
    <message>
        <source>GI</source>
        <translation>GI</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Report Id :</source>
        <translation>ID отчёта:</translation>
    </message>
    <message>
        <source>Change the report id</source>
        <translation>Изменить ID отчёта</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Client: </source>
        <translation>Клиент: </translation>
    </message>
    <message>
        <source>DataSet :</source>
        <translation>Набор данных:</translation>
    </message>
    <message>
        <source>Data set</source>
        <translation>Набор данных</translation>
    </message>
    <message>
        <source>Change the data set</source>
        <translation>Изменить набор данных</translation>
    </message>
    <message>
        <source>Trigger Option</source>
        <translation>Условия запуска</translation>
    </message>
    <message>
        <source>Data Change</source>
        <translation>Изменение данных</translation>
    </message>
    <message>
        <source>Quality Change</source>
        <translation>Изменение качества</translation>
    </message>
    <message>
        <source>Data Update</source>
        <translation>Обновление данных</translation>
    </message>
    <message>
        <source>Integrity </source>
        <translation>Целостность </translation>
    </message>
    <message>
        <source>Change the trigger options</source>
        <translation>Изменить условия запуска</translation>
    </message>
    <message>
        <source>Optional Items</source>
        <translation>Дополнительные поля</translation>
    </message>
    <message>
        <source>Entry ID</source>
        <translation>ID записи</translation>
    </message>
    <message>
        <source>Configuration Revision</source>
        <translation>Версия конфигурации</translation>
    </message>
    <message>
        <source>Time Stamp</source>
        <translation>Метка времени</translation>
    </message>
    <message>
        <source>Data Reference</source>
        <translation>Ссылка на данные</translation>
    </message>
    <message>
        <source>Buffer Overflow</source>
        <translation>Переполнение буфера</translation>
    </message>
    <message>
        <source>Data Set Name</source>
        <translation>Имя набора данных</translation>
    </message>
    <message>
        <source>Reason for Inclusion</source>
        <translation>Причина включения</translation>
    </message>
    <message>
        <source>Sub Sequence</source>
        <translation>Сегмент</translation>
    </message>
    <message>
        <source>Sequence Number</source>
        <translation>Порядковый номер</translation>
    </message>
    <message>
        <source>Change the optional items</source>
        <translation>Изменить дополнительные поля</translation>
    </message>
    <message>
        <source>Etc</source>
        <translation>Прочее</translation>
    </message>
    <message>
        <source>Integrity Period:</source>
        <translation>Период целостности:</translation>
    </message>
    <message>
        <source>msec</source>
        <translation>мс</translation>
    </message>
    <message>
        <source>Change the integrity period</source>
        <translation>Изменить период целостности</translation>
    </message>
    <message>
        <source>Buffer Time:</source>
        <translation>Время буферизации:</translation>
    </message>
    <message>
        <source>Change the buffer time</source>
        <translation>Изменить время буферизации</translation>
    </message>
    <message>
        <source>Configuration Revision:</source>
        <translation>Версия конфигурации:</translation>
    </message>
    <message>
        <source>Reserved</source>
        <translation>Зарезервирован</translation>
    </message>
    <message>
        <source>Change the reservation</source>
        <translation>Изменить резервирование</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Нет связи с драйвером</translation>
    </message>
</context>
<context>
    <name>SGCBDialog</name>
    <message>
        <source>SGCB</source>
        <translation>Группы уставок (SGCB)</translation>
    </message>
    <message>
        <source>Name: </source>
        <translation>Имя: </translation>
    </message>
    <message>
        <source>Name of the setting group control block</source>
        <translation>Имя блока управления группами уставок</translation>
    </message>
    <message>
        <source>Select Group</source>
        <translation>Выбор группы</translation>
    </message>
    <message>
        <source>Active Group:</source>
        <translation>Активная группа:</translation>
    </message>
    <message>
        <source>Active group</source>
        <translation>Активная группа</translation>
    </message>
    <message>
        <source>   Edit Group:</source>
        <translation>   Изменяемая группа:</translation>
    </message>
    <message>
        <source>Edit group</source>
        <translation>Изменяемая группа</translation>
    </message>
    <message>
        <source>Setting Value</source>
        <translation>Уставки</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Выполнить</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Unsupported Type</source>
        <translation>Неподдерживаемый тип</translation>
    </message>
    <message>
        <source>Cannot connect to driver</source>
        <translation>Нет связи с драйвером</translation>
    </message>
</context>
<context>
    <name>SelectFCDialog</name>
    <message>
        <source>GetAllDataValues</source>
        <translation>Прочитать все значения</translation>
    </message>
    <message>
        <source>Select FC : </source>
        <translation>Функциональная связь: </translation>
    </message>
    <message>
        <source>Functional constraint</source>
        <translation>Функциональная связь</translation>
    </message>
</context>
<context>
    <name>TreeFinder</name>
    <message>
        <source>Not found</source>
        <translation>Не найдено</translation>
    </message>
    <message>
        <source>Find by name or reference</source>
        <translation>Поиск по имени или ссылке</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
</context>
</TS>
