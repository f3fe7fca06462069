<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU" sourcelanguage="en_US">
<context>
    <name>CallConfirmation</name>
    <message>
        <source>Select</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Operate</source>
        <translation>Исполнить</translation>
    </message>
    <message>
        <source>Write a value</source>
        <translation>Записать значение</translation>
    </message>
    <message>
        <source>Create a data set</source>
        <translation>Создать набор данных</translation>
    </message>
    <message>
        <source>Delete a data set</source>
        <translation>Удалить набор данных</translation>
    </message>
    <message>
        <source>Delete a file</source>
        <translation>Удалить файл</translation>
    </message>
    <message>
        <source>Send a file</source>
        <translation>Передать файл</translation>
    </message>
    <message>
        <source>Configure a report control block</source>
        <translation>Настроить блок управления отчётом</translation>
    </message>
    <message>
        <source>Write settings</source>
        <translation>Записать уставки</translation>
    </message>
    <message>
        <source>Choose a setting group to edit</source>
        <translation>Выбрать изменяемую группу уставок</translation>
    </message>
    <message>
        <source>Make a setting group the active one</source>
        <translation>Сделать группу уставок активной</translation>
    </message>
    <message>
        <source>not supported</source>
        <translation>не поддерживается</translation>
    </message>
    <message>
        <source>bay control</source>
        <translation>управление с присоединения</translation>
    </message>
    <message>
        <source>station control</source>
        <translation>управление с подстанции</translation>
    </message>
    <message>
        <source>remote control</source>
        <translation>дистанционное управление</translation>
    </message>
    <message>
        <source>automatic bay</source>
        <translation>автоматика присоединения</translation>
    </message>
    <message>
        <source>automatic station</source>
        <translation>автоматика подстанции</translation>
    </message>
    <message>
        <source>automatic remote</source>
        <translation>удалённая автоматика</translation>
    </message>
    <message>
        <source>maintenance</source>
        <translation>техническое обслуживание</translation>
    </message>
    <message>
        <source>process</source>
        <translation>процесс</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>interlocking</source>
        <translation>блокировка</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>контроль синхронизма</translation>
    </message>
    <message>
        <source>synchrocheck and interlocking</source>
        <translation>контроль синхронизма и блокировка</translation>
    </message>
    <message>
        <source>Device:</source>
        <translation>Устройство:</translation>
    </message>
    <message>
        <source>Logical device:</source>
        <translation>Логическое устройство:</translation>
    </message>
    <message>
        <source>Object:</source>
        <translation>Объект:</translation>
    </message>
    <message>
        <source>Value:</source>
        <translation>Значение:</translation>
    </message>
    <message>
        <source>Current value:</source>
        <translation>Текущее значение:</translation>
    </message>
    <message>
        <source>as selected</source>
        <translation>как при выборе</translation>
    </message>
    <message>
        <source>Originator category:</source>
        <translation>Категория инициатора:</translation>
    </message>
    <message>
        <source>Checks:</source>
        <translation>Проверки:</translation>
    </message>
    <message>
        <source>Test:</source>
        <translation>Тест:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>Nothing was sent, since it was not confirmed.</source>
        <translation>Ничего не отправлено, так как подтверждения не было.</translation>
    </message>
</context>
<context>
    <name>ChangeJournal</name>
    <message>
        <source>The journal &quot;%1&quot; cannot be written: %2</source>
        <translation>Журнал «%1» не удаётся записать: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Успешно</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Операция</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Ссылка</translation>
    </message>
    <message>
        <source>Old value</source>
        <translation>Прежнее значение</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Новое значение</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>Additional cause</source>
        <translation>Дополнительная причина</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Say what is in an SCL file, as JSON, and exit: with 0 when it is without errors, 1 with errors, 2 when it cannot be used. Needs no display.</source>
        <translation>Сообщить в формате JSON, что содержит файл SCL, и завершить работу: с кодом 0, если ошибок нет, 1 при ошибках, 2, если файл непригоден. Экран не требуется.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ФАЙЛ</translation>
    </message>
    <message>
        <source>Take this IED of the file. The default asks when there are several; --check takes all.</source>
        <translation>Взять из файла это ИЭУ. По умолчанию, если их несколько, задаётся вопрос; --check берёт все.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>ИМЯ</translation>
    </message>
    <message>
        <source>Open each tool on the demonstration device, save a picture of it in DIR, exit.</source>
        <translation>Открыть каждый инструмент на демонстрационном устройстве, сохранить его снимок в ПАПКУ и завершить работу.</translation>
    </message>
    <message>
        <source>DIR</source>
        <translation>ПАПКА</translation>
    </message>
    <message>
        <source>Load the plug-in from DIR instead of the folder &quot;plugins&quot; beside the program.</source>
        <translation>Загрузить модуль из ПАПКИ вместо папки «plugins» рядом с программой.</translation>
    </message>
    <message>
        <source>Open the demonstration device.</source>
        <translation>Открыть демонстрационное устройство.</translation>
    </message>
    <message>
        <source>A small host for the IEC 61850 tools: opens devices from SCL files.</source>
        <translation>Небольшая оболочка для инструментов МЭК 61850: открывает устройства из файлов SCL.</translation>
    </message>
    <message>
        <source>SCL files to open.</source>
        <translation>Открываемые файлы SCL.</translation>
    </message>
    <message>
        <source>--check needs the name of a file.</source>
        <translation>Для --check нужно имя файла.</translation>
    </message>
    <message>
        <source>--tour needs the name of a folder.</source>
        <translation>Для --tour нужно имя папки.</translation>
    </message>
    <message>
        <source>--check takes one file, and nothing else can be done at the same time.</source>
        <translation>--check принимает один файл, и ничего другого одновременно делать нельзя.</translation>
    </message>
    <message>
        <source>--tour shows the demonstration device and opens no other file.</source>
        <translation>--tour показывает демонстрационное устройство и не открывает других файлов.</translation>
    </message>
</context>
<context>
    <name>ConfirmationDialog</name>
    <message>
        <source>Confirm</source>
        <translation>Подтверждение</translation>
    </message>
    <message>
        <source>&amp;Send to the device</source>
        <translation>От&amp;править на устройство</translation>
    </message>
</context>
<context>
    <name>DeviceConfiguration</name>
    <message>
        <source>The %1 has %2 octets; at most %3 are possible.</source>
        <translation>%1: %2 октетов, допустимо не более %3.</translation>
    </message>
    <message>
        <source>transport selector of the %1</source>
        <translation>Селектор транспортного уровня (%1)</translation>
    </message>
    <message>
        <source>session selector of the %1</source>
        <translation>Селектор сеансового уровня (%1)</translation>
    </message>
    <message>
        <source>presentation selector of the %1</source>
        <translation>Селектор уровня представления (%1)</translation>
    </message>
    <message>
        <source>The AP title &quot;%1&quot; of the %2 is no object identifier such as 1.1.1.999.1.</source>
        <translation>Заголовок AP (%2): «%1» не является идентификатором объекта вида 1.1.1.999.1.</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 does not fit 32 bits.</source>
        <translation>Квалификатор AE (%1): не помещается в 32 бита.</translation>
    </message>
    <message>
        <source>The time-out for %1 must be from %2 to %3 milliseconds.</source>
        <translation>Предел времени (%1) должен быть от %2 до %3 миллисекунд.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>%1 «%2» не существует.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the wrong form.</source>
        <translation>«%1» имеет неверный вид.</translation>
    </message>
    <message>
        <source>The device&apos;s number must be from 1 to %1.</source>
        <translation>Номер устройства должен быть от 1 до %1.</translation>
    </message>
    <message>
        <source>The device needs a name.</source>
        <translation>Устройству нужно имя.</translation>
    </message>
    <message>
        <source>The device needs an address or an SCL file.</source>
        <translation>Устройству нужен адрес или файл SCL.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no address or host name.</source>
        <translation>«%1» не является адресом или именем узла.</translation>
    </message>
    <message>
        <source>The port must be from 1 to 65535.</source>
        <translation>Порт должен быть от 1 до 65535.</translation>
    </message>
    <message>
        <source>SCL file</source>
        <translation>Файл SCL</translation>
    </message>
    <message>
        <source>client</source>
        <translation>клиент</translation>
    </message>
    <message>
        <source>device</source>
        <translation>устройство</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>установление связи</translation>
    </message>
    <message>
        <source>requests</source>
        <translation>запросы</translation>
    </message>
    <message>
        <source>operations</source>
        <translation>операции</translation>
    </message>
    <message>
        <source>The time-out for operations must not be shorter than the one for requests.</source>
        <translation>Предел времени для операций не должен быть меньше, чем для запросов.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding calls are possible.</source>
        <translation>Одновременно ожидающих запросов может быть от 1 до %1.</translation>
    </message>
    <message>
        <source>The PDU size must be from %1 to %2 octets.</source>
        <translation>Размер PDU должен быть от %1 до %2 октетов.</translation>
    </message>
    <message>
        <source>The polling interval must be 0 for none, or from %1 to %2 milliseconds.</source>
        <translation>Интервал опроса должен быть 0 (без опроса) или от %1 до %2 миллисекунд.</translation>
    </message>
    <message>
        <source>From 1 to %1 outstanding file reads are possible.</source>
        <translation>Одновременно ожидающих чтений файла может быть от 1 до %1.</translation>
    </message>
    <message>
        <source>The originator category must be from 0 to %1.</source>
        <translation>Категория инициатора должна быть от 0 до %1.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are possible.</source>
        <translation>Идентификатор инициатора содержит %1 октетов, допустимо не более %2.</translation>
    </message>
    <message>
        <source>Device %1 (%2)</source>
        <translation>Устройство %1 (%2)</translation>
    </message>
</context>
<context>
    <name>DeviceDialog</name>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Имя:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Адрес:</translation>
    </message>
    <message>
        <source>Host name, IPv4 or IPv6 address</source>
        <translation>Имя узла, адрес IPv4 или IPv6</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Порт:</translation>
    </message>
    <message>
        <source>&amp;SCL file:</source>
        <translation>Файл &amp;SCL:</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Обзор…</translation>
    </message>
    <message>
        <source>&amp;IED of the file:</source>
        <translation>И&amp;ЭУ из файла:</translation>
    </message>
    <message>
        <source>&amp;Connect when the workbench starts</source>
        <translation>Подключать при &amp;запуске рабочего стенда</translation>
    </message>
    <message>
        <source>Timing and Sizes</source>
        <translation>Время и размеры</translation>
    </message>
    <message>
        <source>Time-out for &amp;connecting:</source>
        <translation>Предел времени для &amp;подключения:</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> мс</translation>
    </message>
    <message>
        <source>Time-out for &amp;requests:</source>
        <translation>Предел времени для &amp;запросов:</translation>
    </message>
    <message>
        <source>Time-out for &amp;operations:</source>
        <translation>Предел времени для &amp;операций:</translation>
    </message>
    <message>
        <source>Re&amp;ad values without reports every:</source>
        <translation>&amp;Читать значения без отчётов каждые:</translation>
    </message>
    <message>
        <source>never</source>
        <translation>никогда</translation>
    </message>
    <message>
        <source>Outstanding ca&amp;lls:</source>
        <translation>Ожидающих з&amp;апросов:</translation>
    </message>
    <message>
        <source>Largest P&amp;DU:</source>
        <translation>Наибольший P&amp;DU:</translation>
    </message>
    <message>
        <source> octets</source>
        <translation> октетов</translation>
    </message>
    <message>
        <source>Outstanding &amp;file reads:</source>
        <translation>Ожидающих чтений &amp;файла:</translation>
    </message>
    <message>
        <source>Addressing</source>
        <translation>Адресация</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Клиент</translation>
    </message>
    <message>
        <source>Transport selector:</source>
        <translation>Селектор транспортного уровня:</translation>
    </message>
    <message>
        <source>Session selector:</source>
        <translation>Селектор сеансового уровня:</translation>
    </message>
    <message>
        <source>Presentation selector:</source>
        <translation>Селектор уровня представления:</translation>
    </message>
    <message>
        <source>AP title:</source>
        <translation>Заголовок AP:</translation>
    </message>
    <message>
        <source>AE qualifier:</source>
        <translation>Квалификатор AE:</translation>
    </message>
    <message>
        <source>Selectors are octets in hexadecimal, for example 00 01. An AP title is an object identifier, for example 1.1.1.999.1; empty fields are not sent.</source>
        <translation>Селекторы записываются октетами в шестнадцатеричном виде, например 00&#xa0;01. Заголовок AP — это идентификатор объекта, например 1.1.1.999.1; пустые поля не передаются.</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Безопасность</translation>
    </message>
    <message>
        <source>&amp;Password of the association:</source>
        <translation>&amp;Пароль ассоциации:</translation>
    </message>
    <message>
        <source>&amp;TLS (IEC 62351-3)</source>
        <translation>&amp;TLS (МЭК 62351-3)</translation>
    </message>
    <message>
        <source>&amp;Certificate:</source>
        <translation>&amp;Сертификат:</translation>
    </message>
    <message>
        <source>Private &amp;key:</source>
        <translation>&amp;Закрытый ключ:</translation>
    </message>
    <message>
        <source>Pa&amp;ssword of the key:</source>
        <translation>Пароль &amp;ключа:</translation>
    </message>
    <message>
        <source>&amp;Authorities:</source>
        <translation>&amp;Удостоверяющие центры:</translation>
    </message>
    <message>
        <source>&amp;Revocation lists:</source>
        <translation>Списки &amp;отзыва:</translation>
    </message>
    <message>
        <source>&amp;Fingerprints (SHA-256):</source>
        <translation>&amp;Отпечатки (SHA-256):</translation>
    </message>
    <message>
        <source>&amp;Name in the certificate:</source>
        <translation>&amp;Имя в сертификате:</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Управление</translation>
    </message>
    <message>
        <source>Originator &amp;category:</source>
        <translation>&amp;Категория инициатора:</translation>
    </message>
    <message>
        <source>Originator &amp;identification:</source>
        <translation>&amp;Идентификатор инициатора:</translation>
    </message>
    <message>
        <source>&amp;Test Connection</source>
        <translation>Проверить свя&amp;зь</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Добавить устройство</translation>
    </message>
    <message>
        <source>Edit Device %1</source>
        <translation>Изменить устройство %1</translation>
    </message>
    <message>
        <source>SCL File</source>
        <translation>Файл SCL</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Сертификат</translation>
    </message>
    <message>
        <source>Private Key</source>
        <translation>Закрытый ключ</translation>
    </message>
    <message>
        <source>Authorities</source>
        <translation>Удостоверяющие центры</translation>
    </message>
    <message>
        <source>Revocation Lists</source>
        <translation>Списки отзыва</translation>
    </message>
    <message>
        <source>the only one</source>
        <translation>единственное</translation>
    </message>
    <message>
        <source>The %1 of the %2 is not hexadecimal.</source>
        <translation>%1 (%2): не в шестнадцатеричном виде.</translation>
    </message>
    <message>
        <source>transport selector</source>
        <translation>Селектор транспортного уровня</translation>
    </message>
    <message>
        <source>session selector</source>
        <translation>Селектор сеансового уровня</translation>
    </message>
    <message>
        <source>presentation selector</source>
        <translation>Селектор уровня представления</translation>
    </message>
    <message>
        <source>The AE qualifier of the %1 is not a number.</source>
        <translation>Квалификатор AE (%1): не число.</translation>
    </message>
    <message>
        <source>client</source>
        <translation>клиент</translation>
    </message>
    <message>
        <source>device</source>
        <translation>устройство</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>У устройства нет адреса.</translation>
    </message>
    <message>
        <source>Connecting to %1…</source>
        <translation>Установление связи с %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Round trip: %2 ms; logical devices: %3</source>
        <translation>Связь установлена: %1. Время ответа: %2 мс; логических устройств: %3</translation>
    </message>
    <message>
        <source>a device that does not say what it is</source>
        <translation>устройство, которое себя не назвало</translation>
    </message>
</context>
<context>
    <name>DeviceListModel</name>
    <message>
        <source>The demonstration device, a part of the workbench</source>
        <translation>Демонстрационное устройство, часть рабочего стенда</translation>
    </message>
    <message>
        <source>Demonstration</source>
        <translation>Демонстрация</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Загрузка…</translation>
    </message>
    <message>
        <source>Offline model</source>
        <translation>Модель без связи</translation>
    </message>
    <message>
        <source>Model cannot be read: %1</source>
        <translation>Модель не читается: %1</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>№</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Starting the simulation…</source>
        <translation>Запуск имитации…</translation>
    </message>
    <message>
        <source>Cannot be used: %1</source>
        <translation>Непригодно: %1</translation>
    </message>
    <message>
        <source>Simulation stopped</source>
        <translation>Имитация остановлена</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Нет связи</translation>
    </message>
    <message>
        <source>Not connected: %1</source>
        <translation>Нет связи: %1</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Установление связи…</translation>
    </message>
    <message>
        <source>Reading the model (%1 %)…</source>
        <translation>Чтение модели (%1 %)…</translation>
    </message>
    <message>
        <source>Reading the model…</source>
        <translation>Чтение модели…</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>На связи</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Будет повторная попытка: %1</translation>
    </message>
    <message>
        <source>Simulated demonstration</source>
        <translation>Имитация (демо)</translation>
    </message>
    <message>
        <source>Simulated: %1</source>
        <translation>Имитация: %1</translation>
    </message>
    <message>
        <source>Reached at %1, port %2</source>
        <translation>Адрес %1, порт %2</translation>
    </message>
    <message>
        <source>Since %1</source>
        <translation>С %1</translation>
    </message>
    <message>
        <source>Objects that the device did not describe: %1</source>
        <translation>Объектов, которые устройство не описало: %1</translation>
    </message>
    <message>
        <source>Vendor: %1
Model: %2
Revision: %3</source>
        <translation>Изготовитель: %1
Модель: %2
Версия: %3</translation>
    </message>
    <message>
        <source>Time from a request to its answer, measured last</source>
        <translation>Время от запроса до ответа, последнее измерение</translation>
    </message>
    <message>
        <source>PDUs sent: %1
PDUs received: %2
Reports: %3
Published values: %4
Connections: %5</source>
        <translation>Отправлено PDU: %1
Получено PDU: %2
Отчётов: %3
Опубликовано значений: %4
Подключений: %5</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Источник</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Идентификация</translation>
    </message>
    <message>
        <source>Round trip</source>
        <translation>Время ответа</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Отчёты</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Значения</translation>
    </message>
    <message>
        <source>Connected: %1</source>
        <translation>На связи: %1</translation>
    </message>
    <message>
        <source>Connected, values not current: %1</source>
        <translation>На связи, неактуальных значений: %1</translation>
    </message>
    <message>
        <source>Away since %1</source>
        <translation>Нет связи с %1</translation>
    </message>
    <message>
        <source>Values that are not current: %1, the oldest of %2</source>
        <translation>Неактуальных значений: %1, самое старое от %2</translation>
    </message>
    <message>
        <source>Values that the device denies: %1</source>
        <translation>Значений, в которых устройство отказывает: %1</translation>
    </message>
</context>
<context>
    <name>DeviceStore</name>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be read completely.</source>
        <translation>Список устройств в «%1» не удаётся прочитать полностью.</translation>
    </message>
    <message>
        <source>The list of devices cannot be saved in &quot;%1&quot; and will be as before at the next start.</source>
        <translation>Список устройств не удаётся сохранить в «%1»; при следующем запуске он будет прежним.</translation>
    </message>
</context>
<context>
    <name>EmbeddedDriver</name>
    <message>
        <source>The IED &quot;%1&quot; has no logical devices, so there is nothing to browse.</source>
        <translation>В ИЭУ «%1» нет логических устройств, просматривать нечего.</translation>
    </message>
</context>
<context>
    <name>ExtensionLoader</name>
    <message>
        <source>Replace the file by the one that was built together with this workbench.</source>
        <translation>Замените файл тем, который собран вместе с этим рабочим стендом.</translation>
    </message>
    <message>
        <source>The plug-in folder does not exist.</source>
        <translation>Папка модуля не существует.</translation>
    </message>
    <message>
        <source>Install the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Установите модуль туда или запустите рабочий стенд с --plugin-dir и папкой, в которой он находится.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Файл не существует.</translation>
    </message>
    <message>
        <source>Put the plug-in there, or start the workbench with --plugin-dir and the folder that holds it.</source>
        <translation>Поместите модуль туда или запустите рабочий стенд с --plugin-dir и папкой, в которой он находится.</translation>
    </message>
    <message>
        <source>The file is not a plug-in that this Qt can load: %1</source>
        <translation>Файл не является модулем, который может загрузить эта версия Qt: %1</translation>
    </message>
    <message>
        <source>The plug-in is of another kind: it offers &quot;%1&quot; where &quot;%2&quot; is needed.</source>
        <translation>Модуль другого вида: он предлагает «%1», а требуется «%2».</translation>
    </message>
    <message>
        <source>The plug-in does not carry the key &quot;%1&quot;.</source>
        <translation>Модуль не содержит ключа «%1».</translation>
    </message>
    <message>
        <source>The plug-in cannot be loaded: %1</source>
        <translation>Модуль не загружается: %1</translation>
    </message>
    <message>
        <source>Make sure that the libraries it needs are installed and belong to the same version.</source>
        <translation>Убедитесь, что нужные ему библиотеки установлены и относятся к той же версии.</translation>
    </message>
    <message>
        <source>The plug-in&apos;s object does not have the promised interface.</source>
        <translation>У объекта модуля нет обещанного интерфейса.</translation>
    </message>
    <message>
        <source>The plug-in does not serve IEC 61850 (protocol %1).</source>
        <translation>Модуль не обслуживает МЭК 61850 (протокол %1).</translation>
    </message>
    <message>
        <source>The plug-in says that it is not available.</source>
        <translation>Модуль сообщает, что он недоступен.</translation>
    </message>
    <message>
        <source>Try again later, or ask whoever supplied the plug-in.</source>
        <translation>Повторите попытку позже или обратитесь к поставщику модуля.</translation>
    </message>
    <message>
        <source>The plug-in offers no action.</source>
        <translation>Модуль не предлагает ни одного действия.</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>1 error</source>
        <translation>ошибок: 1</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>ошибок: %1</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>предупреждений: 1</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>предупреждений: %1</translation>
    </message>
    <message>
        <source>1 note</source>
        <translation>замечаний: 1</translation>
    </message>
    <message>
        <source>%1 notes</source>
        <translation>замечаний: %1</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Замечание</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Важность</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Строка</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Элемент</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Сообщение</translation>
    </message>
</context>
<context>
    <name>GuideViewer</name>
    <message>
        <source>Operator Guide</source>
        <translation>Руководство оператора</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Найти в руководстве</translation>
    </message>
</context>
<context>
    <name>IedChooser</name>
    <message>
        <source>Choose the IED</source>
        <translation>Выбор ИЭУ</translation>
    </message>
    <message>
        <source>IED</source>
        <translation>ИЭУ</translation>
    </message>
    <message>
        <source>Logical devices</source>
        <translation>Логические устройства</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds %2 IEDs. Which of them do you want to open?</source>
        <translation>Число ИЭУ в «%1»: %2. Какие из них открыть?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>This IED has no logical devices, so there is nothing to browse.</source>
        <translation>В этом ИЭУ нет логических устройств, просматривать нечего.</translation>
    </message>
</context>
<context>
    <name>IedDriver</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1; and %2 more</source>
        <translation>%1; и ещё %2</translation>
    </message>
    <message>
        <source>Aborted by the operator.</source>
        <translation>Прервано оператором.</translation>
    </message>
    <message>
        <source>The operation was cancelled.</source>
        <translation>Операция отменена.</translation>
    </message>
    <message>
        <source>%1 has not finished the operation within %2 seconds.</source>
        <translation>%1: операция не завершена за %2 с.</translation>
    </message>
    <message>
        <source>%1 is not connected.</source>
        <translation>%1: нет связи.</translation>
    </message>
    <message>
        <source>%1 is not connected: %2.</source>
        <translation>%1: нет связи: %2.</translation>
    </message>
    <message>
        <source>The model of %1 is being read: %2 of %3.</source>
        <translation>Модель читается: %1, %2 из %3.</translation>
    </message>
    <message>
        <source>The device has not answered for %1 seconds.</source>
        <translation>Устройство не отвечает уже %1 с.</translation>
    </message>
    <message>
        <source>The SCL file is not used: %1</source>
        <translation>Файл SCL не используется: %1</translation>
    </message>
    <message>
        <source>Reading the model was cancelled.</source>
        <translation>Чтение модели отменено.</translation>
    </message>
    <message>
        <source>the value does not have the form of its type</source>
        <translation>значение не соответствует своему типу</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no kind of report control block.</source>
        <translation>«%1» не является видом блока управления отчётом.</translation>
    </message>
    <message>
        <source>A data set needs at least one member.</source>
        <translation>В наборе данных должен быть хотя бы один элемент.</translation>
    </message>
    <message>
        <source>There is no reference to be listed.</source>
        <translation>Не указано ссылок для перечисления.</translation>
    </message>
    <message>
        <source>Not connected to the device</source>
        <translation>Нет связи с устройством</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>На этом драйвере нет устройства %1.</translation>
    </message>
    <message>
        <source>The driver is read-only: nothing on %1 was changed.</source>
        <translation>Драйвер в режиме «только чтение»: ничего не изменено: %1.</translation>
    </message>
    <message>
        <source>Device %1</source>
        <translation>Устройство %1</translation>
    </message>
    <message>
        <source>Its logical device &quot;%1&quot; is online already as part of %2; live values could not be told apart.</source>
        <translation>Его логическое устройство «%1» уже на связи в составе «%2»; текущие значения нельзя было бы различить.</translation>
    </message>
    <message>
        <source>The capture cannot be written: %1</source>
        <translation>Запись обмена не удаётся сохранить: %1</translation>
    </message>
    <message>
        <source>The values cannot be written: %1</source>
        <translation>Значения не удаётся сохранить: %1</translation>
    </message>
    <message>
        <source>The device has no address.</source>
        <translation>У устройства нет адреса.</translation>
    </message>
    <message>
        <source>There is nothing to read.</source>
        <translation>Читать нечего.</translation>
    </message>
    <message>
        <source>The data set has %1 members, but %2 values came.</source>
        <translation>Элементов в наборе данных: %1, а значений получено: %2.</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type</source>
        <translation>%1: значение не соответствует своему типу</translation>
    </message>
    <message>
        <source>The device has no %1.</source>
        <translation>В устройстве нет %1.</translation>
    </message>
    <message>
        <source>The value to be written cannot be read.</source>
        <translation>Записываемое значение не читается.</translation>
    </message>
    <message>
        <source>Select the object first</source>
        <translation>Сначала выберите объект</translation>
    </message>
    <message>
        <source>%1 has the control model %2, but the command was made for %3: read the model of the device again.</source>
        <translation>%1: модель управления %2, а команда составлена для %3: прочитайте модель устройства заново.</translation>
    </message>
    <message>
        <source>The command is not the one that was selected.</source>
        <translation>Команда отличается от той, для которой сделан выбор.</translation>
    </message>
    <message>
        <source>The control request cannot be read.</source>
        <translation>Запрос управления не читается.</translation>
    </message>
    <message>
        <source>The control request is for %1, not for %2.</source>
        <translation>Запрос управления относится к %1, а не к %2.</translation>
    </message>
    <message>
        <source>The control value is no finite number.</source>
        <translation>Значение команды не является конечным числом.</translation>
    </message>
    <message>
        <source>%1 is no code of the check conditions.</source>
        <translation>%1 не является кодом условий проверки.</translation>
    </message>
    <message>
        <source>The test flag is 0 or 1, not %1.</source>
        <translation>Признак теста равен 0 или 1, а не %1.</translation>
    </message>
    <message>
        <source>interlock check</source>
        <translation>проверка блокировки</translation>
    </message>
    <message>
        <source>synchrocheck</source>
        <translation>контроль синхронизма</translation>
    </message>
    <message>
        <source>test</source>
        <translation>тест</translation>
    </message>
    <message>
        <source>The driver has not waited for the end of the operation.</source>
        <translation>Драйвер не дождался окончания операции.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not name a report control block.</source>
        <translation>«%1» не указывает на блок управления отчётом.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; of a report control block cannot be written.</source>
        <translation>Атрибут «%1» блока управления отчётом нельзя записать.</translation>
    </message>
    <message>
        <source>The value for %1 has %2 bytes instead of %3.</source>
        <translation>Длина значения для %1: %2 байт вместо %3.</translation>
    </message>
    <message>
        <source>%1 cannot be negative.</source>
        <translation>%1 не может быть отрицательным.</translation>
    </message>
    <message>
        <source>Buffer time and integrity period cannot be negative.</source>
        <translation>Время буферизации и период целостности не могут быть отрицательными.</translation>
    </message>
    <message>
        <source>enabled again after the association was lost</source>
        <translation>включить его снова после потери ассоциации</translation>
    </message>
    <message>
        <source>The report control block %1 has no data set.</source>
        <translation>У блока управления отчётом %1 нет набора данных.</translation>
    </message>
    <message>
        <source>The device has not enabled %1 although it said so.</source>
        <translation>Устройство не включило %1, хотя подтвердило это.</translation>
    </message>
    <message>
        <source>disabled</source>
        <translation>отключён</translation>
    </message>
    <message>
        <source>the driver is read-only.</source>
        <translation>драйвер в режиме «только чтение».</translation>
    </message>
    <message>
        <source>The report control block %1 could not be %2: %3</source>
        <translation>Блок управления отчётом %1: не удалось %2: %3</translation>
    </message>
    <message>
        <source>The device has disabled %1 by itself.</source>
        <translation>Устройство само отключило %1.</translation>
    </message>
    <message>
        <source>enabled again</source>
        <translation>включить его снова</translation>
    </message>
    <message>
        <source>A report of the device could not be read: %1</source>
        <translation>Отчёт устройства не удалось прочитать: %1</translation>
    </message>
    <message>
        <source>The reports of %1 have no value for %2: %3.</source>
        <translation>В отчётах %1 нет значения для %2: %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the reports of %2 does not have the form of its type.</source>
        <translation>Значение %1 в отчётах %2 не соответствует своему типу.</translation>
    </message>
    <message>
        <source>The buffer of %1 has overflown: older changes are lost.</source>
        <translation>Буфер %1 переполнился: более ранние изменения потеряны.</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>включён</translation>
    </message>
    <message>
        <source>The member %1 of the data set of %2 is no data of the device&apos;s model.</source>
        <translation>Элемента %1 набора данных %2 нет в модели устройства.</translation>
    </message>
    <message>
        <source>%1 is busy with another file: %2.</source>
        <translation>%1: идёт другая операция с файлом: %2.</translation>
    </message>
    <message>
        <source>listing &quot;%1&quot;</source>
        <translation>чтение каталога «%1»</translation>
    </message>
    <message>
        <source>fetching &quot;%1&quot;</source>
        <translation>получение «%1»</translation>
    </message>
    <message>
        <source>%1 is too large: at most %2 octets can be fetched.</source>
        <translation>%1: слишком большой размер, можно получить не более %2 октетов.</translation>
    </message>
    <message>
        <source>deleting &quot;%1&quot;</source>
        <translation>удаление «%1»</translation>
    </message>
    <message>
        <source>There is no name of a file.</source>
        <translation>Не указано имя файла.</translation>
    </message>
    <message>
        <source>There is no file to send.</source>
        <translation>Не указан файл для передачи.</translation>
    </message>
    <message>
        <source>There is no file &quot;%1&quot; on this computer.</source>
        <translation>На этом компьютере нет файла «%1».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2.</source>
        <translation>«%1» не читается: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is too large for a file of a device.</source>
        <translation>«%1»: слишком большой размер для файла устройства.</translation>
    </message>
    <message>
        <source>sending &quot;%1&quot;</source>
        <translation>передача «%1»</translation>
    </message>
    <message>
        <source>%1 (%2 octets)</source>
        <translation>%1 (октетов: %2)</translation>
    </message>
    <message>
        <source>The device has no logical device &quot;%1&quot;.</source>
        <translation>В устройстве нет логического устройства «%1».</translation>
    </message>
    <message>
        <source>%1 has no setting group control block.</source>
        <translation>В %1 нет блока управления группами уставок.</translation>
    </message>
    <message>
        <source>%1 has more setting groups than can be counted: %2.</source>
        <translation>%1: групп уставок больше, чем можно сосчитать: %2.</translation>
    </message>
    <message>
        <source>No setting group of %1 is being edited: select the group to edit first.</source>
        <translation>Ни одна группа уставок %1 не изменяется: сначала выберите изменяемую группу.</translation>
    </message>
    <message>
        <source>Settings are read under SG or SE, not under &quot;%1&quot;.</source>
        <translation>Уставки читаются под SG или SE, а не под «%1».</translation>
    </message>
    <message>
        <source>%1 has no setting %2.</source>
        <translation>В %1 нет уставки %2.</translation>
    </message>
    <message>
        <source>%1. The changes are not confirmed.</source>
        <translation>%1. Изменения не подтверждены.</translation>
    </message>
    <message>
        <source>%1 has the setting groups 1 to %2; there is no group %3.</source>
        <translation>В %1 группы уставок от 1 до %2; группы %3 нет.</translation>
    </message>
    <message>
        <source>Another window has selected the object since: select it here first.</source>
        <translation>Тем временем объект выбран в другом окне: сначала выберите его здесь.</translation>
    </message>
    <message>
        <source>The object was selected for different commands; which one is meant is not known: cancel the selection and select it again.</source>
        <translation>Объект был выбран для разных команд; какая из них имеется в виду, неизвестно: отмените выбор и выберите его снова.</translation>
    </message>
    <message>
        <source>%1 is no originator category; they go from 0 to 8.</source>
        <translation>%1 не является категорией инициатора; допустимы категории от 0 до 8.</translation>
    </message>
    <message>
        <source>category %1</source>
        <translation>категория %1</translation>
    </message>
    <message>
        <source>It is not known whether the object was selected.</source>
        <translation>Неизвестно, был ли выбран объект.</translation>
    </message>
    <message>
        <source>It is not known whether the command was carried out; look at the position.</source>
        <translation>Неизвестно, была ли исполнена команда; проверьте положение.</translation>
    </message>
    <message>
        <source>It is not known whether the command was cancelled; look at the position.</source>
        <translation>Неизвестно, была ли отменена команда; проверьте положение.</translation>
    </message>
    <message>
        <source>%1 (told late)</source>
        <translation>%1 (сообщено с опозданием)</translation>
    </message>
    <message>
        <source>%1: the command that was not answered in time was carried out.</source>
        <translation>%1: команда, на которую не было ответа вовремя, исполнена.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association.</source>
        <translation>Внутренняя ошибка драйвера завершила ассоциацию.</translation>
    </message>
    <message>
        <source>An internal error of the driver ended the association: %1.</source>
        <translation>Внутренняя ошибка драйвера завершила ассоциацию: %1.</translation>
    </message>
    <message>
        <source>The device has not answered earlier requests; the question whether it is there waits for a place behind them.</source>
        <translation>Устройство не ответило на прежние запросы; вопрос о том, доступно ли оно, ждёт места за ними.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has %2 characters; the name of a data set has at most %3.</source>
        <translation>«%1» содержит %2 символов; имя набора данных содержит не более %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names no functional constraint, which each member of a data set needs.</source>
        <translation>«%1» не называет функциональное ограничение, которое нужно каждому элементу набора данных.</translation>
    </message>
    <message>
        <source>This is not the device that the window was opened for: open it again.</source>
        <translation>Это не то устройство, для которого было открыто окно: откройте его снова.</translation>
    </message>
    <message>
        <source>The IED %1 of the file has no access point &quot;%2&quot; with a server.</source>
        <translation>У ИЭУ %1 из файла нет точки доступа «%2» с сервером.</translation>
    </message>
    <message>
        <source>The device has none of the logical devices that the file describes for %1, such as %2.</source>
        <translation>В устройстве нет ни одного из логических устройств, которые файл описывает для %1, например %2.</translation>
    </message>
    <message>
        <source>%1 stays open on the device, which has few open files: %2</source>
        <translation>%1 остаётся открытым на устройстве, которое допускает мало открытых файлов: %2</translation>
    </message>
    <message>
        <source>%1 comes too slowly: %2 octets so far, less than %3 in a second.</source>
        <translation>%1 поступает слишком медленно: пока %2 октетов, меньше %3 в секунду.</translation>
    </message>
    <message>
        <source>%1 events of the device were dropped, because they were not taken in time.</source>
        <translation>Отброшено событий устройства: %1, так как их не забрали вовремя.</translation>
    </message>
    <message>
        <source>The configuration of the device reserves %1; that cannot be changed.</source>
        <translation>%1 зарезервирован конфигурацией устройства; изменить это нельзя.</translation>
    </message>
    <message>
        <source>%1 was not enabled in time.</source>
        <translation>%1 не удалось включить вовремя.</translation>
    </message>
    <message>
        <source>%1 It was left alone.</source>
        <translation>%1 Он оставлен как есть.</translation>
    </message>
    <message>
        <source>without sequence numbers lost reports cannot be noticed</source>
        <translation>без порядковых номеров потерю отчётов заметить нельзя</translation>
    </message>
    <message>
        <source>%1 could not be enabled, and this was left behind as it was written: %2.</source>
        <translation>%1 не удалось включить, и вот что осталось так, как было записано: %2.</translation>
    </message>
    <message>
        <source>no longer waited for</source>
        <translation>ожидание прекращено</translation>
    </message>
    <message>
        <source>member %1</source>
        <translation>элемент %1</translation>
    </message>
    <message>
        <source>Reports of %1 are missing; its data set is read whole.</source>
        <translation>Не хватает отчётов %1; его набор данных читается целиком.</translation>
    </message>
    <message>
        <source>Parts of a report of %1 are missing; its data set is read whole.</source>
        <translation>Не хватает частей отчёта %1; его набор данных читается целиком.</translation>
    </message>
    <message>
        <source>The device does not know the last entry of %1 any more: changes since then may be lost, or come again.</source>
        <translation>Устройство больше не помнит последнюю запись %1: изменения с тех пор могут быть потеряны или прийти повторно.</translation>
    </message>
    <message>
        <source>A report of %1 is of another data set than the block had when it was enabled.</source>
        <translation>Отчёт %1 относится не к тому набору данных, который был у блока при включении.</translation>
    </message>
    <message>
        <source>A report of the device may be of %1 or of another block with other data; it was not taken.</source>
        <translation>Отчёт устройства может относиться к %1 или к другому блоку с другими данными; он не принят.</translation>
    </message>
    <message>
        <source>The device described %1 in parts only, so what the reports of %2 say of it cannot be understood; it is polled.</source>
        <translation>Устройство описало %1 лишь частично, поэтому то, что о нём сообщают отчёты %2, понять нельзя; значения читаются опросом.</translation>
    </message>
    <message>
        <source>The data set of %1 cannot be read: %2</source>
        <translation>Набор данных %1 не читается: %2</translation>
    </message>
    <message>
        <source>The data set of %1 has %2 members instead of %3.</source>
        <translation>Элементов в наборе данных %1: %2 вместо %3.</translation>
    </message>
    <message>
        <source>The data set of %1 has no value for %2: %3.</source>
        <translation>В наборе данных %1 нет значения для %2: %3.</translation>
    </message>
    <message>
        <source>A value of %1 in the data set of %2 does not have the form of its type.</source>
        <translation>Значение %1 в наборе данных %2 не соответствует своему типу.</translation>
    </message>
    <message>
        <source>%1 is enabled by another client, which the device does not name.</source>
        <translation>%1 включён другим клиентом, которого устройство не называет.</translation>
    </message>
    <message>
        <source>%1 is reserved by another client, which the device does not name.</source>
        <translation>%1 зарезервирован другим клиентом, которого устройство не называет.</translation>
    </message>
    <message>
        <source>%1 is enabled by the client %2.</source>
        <translation>%1 включён клиентом %2.</translation>
    </message>
    <message>
        <source>%1 is reserved by the client %2.</source>
        <translation>%1 зарезервирован клиентом %2.</translation>
    </message>
    <message>
        <source>%1 is enabled by another association of this computer (%2).</source>
        <translation>%1 включён другой ассоциацией этого компьютера (%2).</translation>
    </message>
    <message>
        <source>%1 is reserved by another association of this computer (%2).</source>
        <translation>%1 зарезервирован другой ассоциацией этого компьютера (%2).</translation>
    </message>
    <message>
        <source>Another client is editing group %1 of %2.</source>
        <translation>Другой клиент изменяет группу %1 в %2.</translation>
    </message>
    <message>
        <source>Group %1 of %2 was chosen for editing in another window: select the group to edit first.</source>
        <translation>Группа %1 в %2 выбрана для изменения в другом окне: сначала выберите изменяемую группу.</translation>
    </message>
    <message>
        <source>The device has given up the edit of group %1 of %2: select the group to edit again.</source>
        <translation>Устройство прекратило изменение группы %1 в %2: выберите изменяемую группу снова.</translation>
    </message>
    <message>
        <source>%1 has no settings that can be edited: the device describes none under SE.</source>
        <translation>В %1 нет уставок, которые можно изменять: под SE устройство не описывает ни одной.</translation>
    </message>
    <message>
        <source>%1 It is not known whether the changes of group %2 were taken over: select the group and look.</source>
        <translation>%1 Неизвестно, были ли приняты изменения группы %2: выберите эту группу и проверьте.</translation>
    </message>
    <message>
        <source>These are the settings of the active group; choose the group to edit first.</source>
        <translation>Это уставки активной группы; сначала выберите изменяемую группу.</translation>
    </message>
    <message>
        <source>%1 has accepted group %2, but group %3 is still the active one.</source>
        <translation>%1: группа %2 принята, но активной остаётся группа %3.</translation>
    </message>
    <message>
        <source>%1 Group %2 is the active one.</source>
        <translation>%1 Активна группа %2.</translation>
    </message>
    <message>
        <source>%1 It is not known whether group %2 became active: look at the active group.</source>
        <translation>%1 Неизвестно, стала ли активной группа %2: проверьте активную группу.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 It is not known whether the device is editing group %2: select the group to edit again.</source>
        <translation>%1 Неизвестно, находится ли группа %2 на устройстве в режиме изменения: выберите изменяемую группу снова.</translation>
    </message>
    <message>
        <source>%1; it is not known whether the setting was written.</source>
        <translation>%1; неизвестно, была ли записана уставка.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device does not answer when it is asked for %3.</source>
        <translation>Неактуальные значения с %1: %2. Устройство не отвечает на запрос %3.</translation>
    </message>
    <message>
        <source>Values that are not current since %1: %2. The device cannot give %3 for the moment.</source>
        <translation>Неактуальные значения с %1: %2. Устройство сейчас не может дать %3.</translation>
    </message>
    <message>
        <source>Values that the device refuses and that are not asked for again: %1 (%2).</source>
        <translation>Значения, в которых устройство отказывает и которые больше не запрашиваются: %1 (%2).</translation>
    </message>
</context>
<context>
    <name>JournalModel</name>
    <message>
        <source>OK</source>
        <translation>Успешно</translation>
    </message>
    <message>
        <source>Failed (%1)</source>
        <translation>Ошибка (%1)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 мс</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Операция</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Аргументы</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>IEC 61850 Workbench</source>
        <translation>Рабочий стенд МЭК 61850</translation>
    </message>
    <message>
        <source>T&amp;ry Again</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>&amp;Open SCL File…</source>
        <translation>&amp;Открыть файл SCL…</translation>
    </message>
    <message>
        <source>Open De&amp;monstration Device</source>
        <translation>Открыть де&amp;монстрационное устройство</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Device</source>
        <translation>&amp;Устройство</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Инструменты</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Замечания</translation>
    </message>
    <message>
        <source>Journal</source>
        <translation>Журнал</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Open &amp;Demonstration Device</source>
        <translation>Открыть &amp;демонстрационное устройство</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Read Model &amp;Again</source>
        <translation>Прочитать модель &amp;заново</translation>
    </message>
    <message>
        <source>F5</source>
        <translation>F5</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>У&amp;брать из списка</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>&amp;Clear Journal</source>
        <translation>О&amp;чистить журнал</translation>
    </message>
    <message>
        <source>&amp;Operator Guide</source>
        <translation>&amp;Руководство оператора</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>О &amp;программе</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Загрузка отменена.</translation>
    </message>
    <message>
        <source>No call to the driver yet. Every request that a tool makes is listed here.</source>
        <translation>Обращений к драйверу ещё не было. Здесь перечисляются все запросы инструментов.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Reading %1 (%2 files left)</source>
        <translation>Чтение %1 (осталось файлов: %2)</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Чтение %1</translation>
    </message>
    <message>
        <source>The IEC 61850 tools are not available.
%1
%2 %3</source>
        <translation>Инструменты МЭК 61850 недоступны.
%1
%2 %3</translation>
    </message>
    <message>
        <source>Select a device to see what was noticed while its file was read.</source>
        <translation>Выберите устройство, чтобы увидеть, что было замечено при чтении его файла.</translation>
    </message>
    <message>
        <source>Findings: %1</source>
        <translation>Замечания: %1</translation>
    </message>
    <message>
        <source>Findings: %1 (%2)</source>
        <translation>Замечания: %1 (%2)</translation>
    </message>
    <message>
        <source>No findings: everything in the file of this device was understood.</source>
        <translation>Замечаний нет: всё содержимое файла этого устройства распознано.</translation>
    </message>
    <message>
        <source>The model cannot be read. %1
Read it again with %2, or remove the device from the list.</source>
        <translation>Модель не читается. %1
Прочитайте её заново с помощью %2 или уберите устройство из списка.</translation>
    </message>
    <message>
        <source>Open SCL File</source>
        <translation>Открыть файл SCL</translation>
    </message>
    <message>
        <source>SCL files (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</source>
        <translation>Файлы SCL (*.icd *.cid *.iid *.scd *.sed *.ssd *.ICD *.CID *.IID *.SCD *.SED *.SSD *.xml)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
    <message>
        <source>Further files that cannot be used: %1</source>
        <translation>Других непригодных файлов: %1</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is.</source>
        <translation>%1: убрано из списка; файл остаётся на месте.</translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>IEC 61850 Workbench %1

A small host for the IEC 61850 tools: it lists devices, loads the plug-in and shows every request that its tools make.

Apache License 2.0</source>
        <translation>Рабочий стенд МЭК 61850 %1

Небольшая оболочка для инструментов МЭК 61850: ведёт список устройств, загружает модуль и показывает каждый запрос его инструментов.

Apache License 2.0</translation>
    </message>
    <message>
        <source>No device yet: add one, or open an SCL file</source>
        <translation>Устройств пока нет: добавьте устройство или откройте файл SCL</translation>
    </message>
    <message>
        <source>&amp;Add Device…</source>
        <translation>&amp;Добавить устройство…</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Изменения</translation>
    </message>
    <message>
        <source>Add a device from an SCL file, without a connection</source>
        <translation>Добавить устройство из файла SCL, без связи</translation>
    </message>
    <message>
        <source>&amp;Start Simulated Device…</source>
        <translation>Запустить &amp;имитацию устройства…</translation>
    </message>
    <message>
        <source>Simulate a device of an SCL file and connect to it</source>
        <translation>Имитировать устройство из файла SCL и подключиться к нему</translation>
    </message>
    <message>
        <source>Add &amp;Device…</source>
        <translation>&amp;Добавить устройство…</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>Добавить устройство</translation>
    </message>
    <message>
        <source>Add a device that is reached over the network</source>
        <translation>Добавить устройство, доступное по сети</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>&amp;Edit Device…</source>
        <translation>&amp;Изменить устройство…</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>&amp;Connect</source>
        <translation>&amp;Подключить</translation>
    </message>
    <message>
        <source>Connect to the selected device, now and at the next start</source>
        <translation>Установить связь с выбранным устройством сейчас и при следующем запуске</translation>
    </message>
    <message>
        <source>Leave the selected device, until it is connected again</source>
        <translation>Завершить связь с выбранным устройством до следующего подключения</translation>
    </message>
    <message>
        <source>&amp;Start Simulation</source>
        <translation>Запустить и&amp;митацию</translation>
    </message>
    <message>
        <source>S&amp;top Simulation</source>
        <translation>О&amp;становить имитацию</translation>
    </message>
    <message>
        <source>End the simulated device, as if it had lost its power</source>
        <translation>Остановить имитируемое устройство, как при потере питания</translation>
    </message>
    <message>
        <source>&amp;PDU Trace…</source>
        <translation>&amp;Трассировка PDU…</translation>
    </message>
    <message>
        <source>Show what is exchanged with the selected device</source>
        <translation>Показать обмен с выбранным устройством</translation>
    </message>
    <message>
        <source>Sa&amp;ve Capture…</source>
        <translation>Со&amp;хранить запись обмена…</translation>
    </message>
    <message>
        <source>Save what was exchanged with the selected device for a protocol analyser</source>
        <translation>Сохранить обмен с выбранным устройством для анализатора протокола</translation>
    </message>
    <message>
        <source>E&amp;xport Values…</source>
        <translation>&amp;Экспорт значений…</translation>
    </message>
    <message>
        <source>Save the values of the selected device as a table</source>
        <translation>Сохранить значения выбранного устройства в виде таблицы</translation>
    </message>
    <message>
        <source>Refuse everything that changes something on a device</source>
        <translation>Отклонять всё, что меняет что-либо на устройстве</translation>
    </message>
    <message>
        <source>Open &amp;Folder of the Change Journal</source>
        <translation>Открыть &amp;папку журнала изменений</translation>
    </message>
    <message>
        <source>Nothing was changed on a device yet. Every write, command and transfer is listed here%1.</source>
        <translation>На устройствах ещё ничего не менялось. Все записи значений, команды и передачи файлов перечисляются здесь%1.</translation>
    </message>
    <message>
        <source> and kept in
%1</source>
        <translation> и сохраняются в файле
%1</translation>
    </message>
    <message>
        <source>Read-only: nothing is changed on devices</source>
        <translation>Только чтение: на устройствах ничего не меняется</translation>
    </message>
    <message>
        <source>Reading the model of %1</source>
        <translation>Чтение модели: %1</translation>
    </message>
    <message>
        <source>This device has no SCL file; its model is read from the device itself.</source>
        <translation>У этого устройства нет файла SCL; его модель читается из самого устройства.</translation>
    </message>
    <message>
        <source>Start Simulated Device</source>
        <translation>Запустить имитацию устройства</translation>
    </message>
    <message>
        <source>%1 was taken off the list.</source>
        <translation>%1: убрано из списка.</translation>
    </message>
    <message>
        <source>Disco&amp;nnect</source>
        <translation>&amp;Отключить</translation>
    </message>
    <message>
        <source>Read-On&amp;ly</source>
        <translation>Только &amp;чтение</translation>
    </message>
    <message>
        <source>Save Capture</source>
        <translation>Сохранить запись обмена</translation>
    </message>
    <message>
        <source>Captures (*.pcapng)</source>
        <translation>Записи обмена (*.pcapng)</translation>
    </message>
    <message>
        <source>Export Values</source>
        <translation>Экспорт значений</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Таблицы (*.csv)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be written: %2</source>
        <translation>«%1» не удаётся записать: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was written.</source>
        <translation>«%1»: записано.</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Подключить</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Отключить</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Только чтение</translation>
    </message>
    <message>
        <source>The SCL file of this device was only compared with the device. Open it as an SCL file to see its findings.</source>
        <translation>Файл SCL этого устройства только сравнивался с самим устройством. Чтобы увидеть замечания к нему, откройте его как файл SCL.</translation>
    </message>
    <message>
        <source>Con&amp;firm</source>
        <translation>Подт&amp;верждать</translation>
    </message>
    <message>
        <source>&amp;Commands before they are sent</source>
        <translation>&amp;Команды перед отправкой</translation>
    </message>
    <message>
        <source>&amp;Everything that changes a device</source>
        <translation>&amp;Всё, что меняет устройство</translation>
    </message>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Ничего</translation>
    </message>
    <message>
        <source>%1 is away since %2</source>
        <translation>%1: нет связи с %2</translation>
    </message>
    <message>
        <source>Devices away: %1, the first since %2</source>
        <translation>Устройств без связи: %1, первое с %2</translation>
    </message>
</context>
<context>
    <name>OfflineDriverService</name>
    <message>
        <source>Not connected to the device</source>
        <translation>Нет связи с устройством</translation>
    </message>
    <message>
        <source>There is no device %1 on this driver.</source>
        <translation>На этом драйвере нет устройства %1.</translation>
    </message>
</context>
<context>
    <name>SclImport</name>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Файл «%1» не открывается: %2.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
    <message>
        <source>The file describes no IED.</source>
        <translation>В файле не описано ни одного ИЭУ.</translation>
    </message>
    <message>
        <source>There is no IED &quot;%1&quot; in the file.</source>
        <translation>В файле нет ИЭУ «%1».</translation>
    </message>
    <message>
        <source>The file describes several IEDs; one must be chosen.</source>
        <translation>В файле описано несколько ИЭУ; нужно выбрать одно.</translation>
    </message>
</context>
<context>
    <name>SimulatedDevice</name>
    <message>
        <source>The files of the simulated device cannot be written to &quot;%1&quot;.</source>
        <translation>Файлы имитируемого устройства не удаётся записать в «%1».</translation>
    </message>
    <message>
        <source>The device cannot be simulated: %1</source>
        <translation>Устройство не удаётся имитировать: %1</translation>
    </message>
</context>
<context>
    <name>TableView</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
</context>
<context>
    <name>Tour</name>
    <message>
        <source>a message: &quot;%1: %2&quot;</source>
        <translation>сообщение: «%1: %2»</translation>
    </message>
    <message>
        <source>the window &quot;%1&quot;</source>
        <translation>окно «%1»</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; cannot be made.</source>
        <translation>Папку «%1» не удаётся создать.</translation>
    </message>
    <message>
        <source>The plug-in &quot;%1&quot; is not available: %2</source>
        <translation>Модуль «%1» недоступен: %2</translation>
    </message>
    <message>
        <source>The demonstration device was not read in time.</source>
        <translation>Демонстрационное устройство не было прочитано вовремя.</translation>
    </message>
    <message>
        <source>The demonstration device cannot be read.</source>
        <translation>Демонстрационное устройство не читается.</translation>
    </message>
    <message>
        <source>The second device cannot be read.</source>
        <translation>Второе устройство не читается.</translation>
    </message>
    <message>
        <source>The plug-in offers no tool number %1 for the demonstration device.</source>
        <translation>Модуль не предлагает инструмента номер %1 для демонстрационного устройства.</translation>
    </message>
    <message>
        <source>Instead of the IED browser came %1.</source>
        <translation>Вместо обозревателя ИЭУ появилось: %1.</translation>
    </message>
    <message>
        <source>The IED browser did not appear.</source>
        <translation>Обозреватель ИЭУ не появился.</translation>
    </message>
    <message>
        <source>The IED browser has no tree.</source>
        <translation>В обозревателе ИЭУ нет дерева.</translation>
    </message>
    <message>
        <source>The demonstration device has no switch.</source>
        <translation>В демонстрационном устройстве нет коммутационного аппарата.</translation>
    </message>
    <message>
        <source>The context menu did not appear.</source>
        <translation>Контекстное меню не появилось.</translation>
    </message>
    <message>
        <source>The window &quot;%1&quot; did not appear.</source>
        <translation>Окно «%1» не появилось.</translation>
    </message>
    <message>
        <source>The journal stayed empty.</source>
        <translation>Журнал остался пустым.</translation>
    </message>
    <message>
        <source>Instead of &quot;%1&quot; came %2.</source>
        <translation>Вместо «%1» появилось: %2.</translation>
    </message>
    <message>
        <source>The IED browser has no entry &quot;%1&quot;.</source>
        <translation>В обозревателе ИЭУ нет пункта «%1».</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; cannot be saved.</source>
        <translation>Снимок «%1» не удаётся сохранить.</translation>
    </message>
    <message>
        <source>The simulated device was not connected in time.</source>
        <translation>Связь с имитируемым устройством не установлена вовремя.</translation>
    </message>
</context>
<context>
    <name>TraceDialog</name>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Пауза</translation>
    </message>
    <message>
        <source>PDU Trace: %1</source>
        <translation>Трассировка PDU: %1</translation>
    </message>
    <message>
        <source>Nothing was exchanged with this device yet.</source>
        <translation>Обмена с этим устройством ещё не было.</translation>
    </message>
    <message>
        <source>&amp;Save Capture…</source>
        <translation>&amp;Сохранить запись обмена…</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Очистить</translation>
    </message>
</context>
<context>
    <name>TraceModel</name>
    <message>
        <source>sent</source>
        <translation>отправлено</translation>
    </message>
    <message>
        <source>received</source>
        <translation>получено</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Направление</translation>
    </message>
    <message>
        <source>PDU</source>
        <translation>PDU</translation>
    </message>
</context>
<context>
    <name>ValueConversion</name>
    <message>
        <source>%1 does not fit %2.</source>
        <translation>%1 не подходит для %2.</translation>
    </message>
    <message>
        <source>%1 is no finite number.</source>
        <translation>%1 не является конечным числом.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds characters that %2 does not have.</source>
        <translation>«%1» содержит символы, недопустимые для %2.</translation>
    </message>
    <message>
        <source>There is no value to write.</source>
        <translation>Нет значения для записи.</translation>
    </message>
    <message>
        <source>A value of type %1 cannot be written as a whole.</source>
        <translation>Значение типа %1 нельзя записать целиком.</translation>
    </message>
    <message>
        <source>The text of %1 is longer than can be shown, so it can only be read.</source>
        <translation>Текст %1 длиннее, чем можно показать, поэтому его можно только читать.</translation>
    </message>
    <message>
        <source>%1 holds octets that are no text, so it can only be read.</source>
        <translation>%1 содержит октеты, не являющиеся текстом, поэтому доступно только чтение.</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be used: %2</source>
        <translation>Файл «%1» непригоден: %2</translation>
    </message>
    <message>
        <source>Logical devices: %1, logical nodes: %2, data attributes: %3</source>
        <translation>Логических устройств: %1, логических узлов: %2, атрибутов данных: %3</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Загрузка отменена.</translation>
    </message>
    <message>
        <source>Another workbench uses the list of devices in &quot;%1&quot;: what is changed in this one is not kept.</source>
        <translation>Список устройств в «%1» использует другой рабочий стенд: изменения в этом стенде не сохраняются.</translation>
    </message>
    <message>
        <source>The list of devices in &quot;%1&quot; cannot be locked: what is changed is not kept.</source>
        <translation>Список устройств в «%1» не удаётся заблокировать: изменения не сохраняются.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The standard output cannot be written.</source>
        <translation>В стандартный вывод не удаётся записать.</translation>
    </message>
</context>
</TS>
