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
    <message>
        <source>Acc&amp;ess point of the IED:</source>
        <translation>&amp;Точка доступа ИЭУ:</translation>
    </message>
    <message>
        <source>Which of the IED&apos;s access points the device is, where the file describes several</source>
        <translation>Какая из точек доступа ИЭУ соответствует устройству, если в файле их описано несколько</translation>
    </message>
    <message>
        <source>Accept certificates that are made out to &amp;others</source>
        <translation>Принимать сертификаты, выданные на &amp;другие имена</translation>
    </message>
    <message>
        <source>Unsafe: whoever holds the key of any certificate of these authorities can pose as this device. Better enter the name that its certificate has, or its fingerprint.</source>
        <translation>Небезопасно: тот, у кого есть ключ любого сертификата этих удостоверяющих центров, может выдать себя за это устройство. Лучше укажите имя из сертификата устройства или отпечаток этого сертификата.</translation>
    </message>
    <message>
        <source>the one with the device&apos;s address</source>
        <translation>с адресом устройства</translation>
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
        <translation>«%1» не называет функциональную связь, которая нужна каждому элементу набора данных.</translation>
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
    <message>
        <source>A report control block could not be %1: %2</source>
        <translation>Блок управления отчётом: не удалось %1: %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>%1 (%2).</source>
        <translation>%1 (%2).</translation>
    </message>
    <message>
        <source>%1 (%2, %3).</source>
        <translation>%1 (%2, %3).</translation>
    </message>
    <message>
        <source>%1 (%2, %3, %4).</source>
        <translation>%1 (%2, %3, %4).</translation>
    </message>
    <message>
        <source>%1 bears the name of the issuer &quot;%2&quot;, but not its signature.</source>
        <translation>%1 содержит имя издателя «%2», но не его подпись.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; does not bear its signature.</source>
        <translation>%1 не удаётся проверить: список отзыва издателя «%2» не содержит его подписи.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is not valid yet.</source>
        <translation>%1 не удаётся проверить: список отзыва издателя «%2» ещё не действует.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: the revocation list of its issuer &quot;%2&quot; is out of date.</source>
        <translation>%1 не удаётся проверить: список отзыва издателя «%2» устарел.</translation>
    </message>
    <message>
        <source>%1 cannot be checked: there is no revocation list of its issuer &quot;%2&quot;.</source>
        <translation>%1 не удаётся проверить: нет списка отзыва издателя «%2».</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 не удаётся прочитать: %2.</translation>
    </message>
    <message>
        <source>%1 expired on %2.</source>
        <translation>%1: срок действия истёк (%2).</translation>
    </message>
    <message>
        <source>%1 has a key that is too short to be safe.</source>
        <translation>%1: ключ слишком короткий и потому ненадёжен.</translation>
    </message>
    <message>
        <source>%1 has a name that is none, or that something else has; it is left out.</source>
        <translation>%1: имя недопустимо или уже занято; элемент пропущен.</translation>
    </message>
    <message>
        <source>%1 has been revoked.</source>
        <translation>%1 отозван.</translation>
    </message>
    <message>
        <source>%1 has no %2.</source>
        <translation>%1: нет атрибута %2.</translation>
    </message>
    <message>
        <source>%1 is enabled already.</source>
        <translation>%1 уже включён.</translation>
    </message>
    <message>
        <source>%1 is in the device already, perhaps the only whole version that an upload before this one has left: save or delete it first. Nothing was changed on the device.</source>
        <translation>Файл %1 уже есть на устройстве; возможно, это единственная целая версия, оставшаяся от прежней передачи: сначала сохраните или удалите его. На устройстве ничего не изменено.</translation>
    </message>
    <message>
        <source>%1 is in the device and may be incomplete.</source>
        <translation>Файл %1 находится на устройстве и может быть неполным.</translation>
    </message>
    <message>
        <source>%1 is larger, or nested deeper, than what is taken; it is left out.</source>
        <translation>%1: размер или вложенность больше допустимого; пропущено.</translation>
    </message>
    <message>
        <source>%1 is no functional constraint.</source>
        <translation>%1 не является функциональной связью.</translation>
    </message>
    <message>
        <source>%1 is no name of data.</source>
        <translation>%1 не является именем данных.</translation>
    </message>
    <message>
        <source>%1 is not a reference: %2.</source>
        <translation>%1 не является ссылкой: %2.</translation>
    </message>
    <message>
        <source>%1 is not accepted: %2.</source>
        <translation>%1 не принимается: %2.</translation>
    </message>
    <message>
        <source>%1 is not in the device.</source>
        <translation>Файла %1 нет на устройстве.</translation>
    </message>
    <message>
        <source>%1 is not made out to the host that was asked for.</source>
        <translation>%1 выдан не на тот узел, к которому шло обращение.</translation>
    </message>
    <message>
        <source>%1 is not meant for this side of a TLS connection.</source>
        <translation>%1 не предназначен для этой стороны соединения TLS.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data object that can be controlled.</source>
        <translation>%1 не является именем объекта данных, которым можно управлять.</translation>
    </message>
    <message>
        <source>%1 is not the name of a data set.</source>
        <translation>%1 не является именем набора данных.</translation>
    </message>
    <message>
        <source>%1 is valid only from %2 on.</source>
        <translation>%1 ещё не действителен (начало срока: %2).</translation>
    </message>
    <message>
        <source>%1 may be in the device, incomplete.</source>
        <translation>Файл %1, возможно, есть на устройстве, но неполный.</translation>
    </message>
    <message>
        <source>%1 may be incomplete.</source>
        <translation>Файл %1 может быть неполным.</translation>
    </message>
    <message>
        <source>%1 of %2 cannot be written: %3.</source>
        <translation>%1 в %2 не удаётся записать: %3.</translation>
    </message>
    <message>
        <source>%1 of %2: %3.</source>
        <translation>%1 в %2: %3.</translation>
    </message>
    <message>
        <source>%1 of the control block cannot be %2.</source>
        <translation>Атрибут %1 блока управления: значение %2 недопустимо.</translation>
    </message>
    <message>
        <source>%1 of the member %2</source>
        <translation>%1 элемента %2</translation>
    </message>
    <message>
        <source>%1 was issued by &quot;%2&quot;, which is not trusted here.</source>
        <translation>%1 выдан издателем «%2», которому здесь не доверяют.</translation>
    </message>
    <message>
        <source>%1 was issued by itself and is not trusted here.</source>
        <translation>%1 является самоподписанным, и ему здесь не доверяют.</translation>
    </message>
    <message>
        <source>%1 was not touched.</source>
        <translation>Файл %1 не затронут.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, is left: delete it.</source>
        <translation>Файл %1 заменён, но осталась его вторая копия %2: удалите её.</translation>
    </message>
    <message>
        <source>%1 was replaced, but %2, a second copy of it, may be in the device still: delete it.</source>
        <translation>Файл %1 заменён, но на устройстве, возможно, ещё есть его вторая копия %2: удалите её.</translation>
    </message>
    <message>
        <source>%1, so the member &quot;%2&quot; does not exist.</source>
        <translation>%1, поэтому элемент «%2» не существует.</translation>
    </message>
    <message>
        <source>%1: %2 got an answer that does not match the question.</source>
        <translation>%1: ответ на %2 не соответствует запросу.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer within %3.</source>
        <translation>%1: нет ответа на %2 в течение %3.</translation>
    </message>
    <message>
        <source>%1: %2 got no answer: %3.</source>
        <translation>%1: нет ответа на %2: %3.</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1: a command of it cannot be cancelled.</source>
        <translation>%1: отмена команды невозможна.</translation>
    </message>
    <message>
        <source>%1: it shows its status and cannot be operated.</source>
        <translation>%1: показывает только состояние, управление невозможно.</translation>
    </message>
    <message>
        <source>%1: its control model knows no selection.</source>
        <translation>%1: модель управления не предусматривает выбора.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: %2.</source>
        <translation>%1: команда завершилась неуспешно: %2.</translation>
    </message>
    <message>
        <source>%1: the command ended without success: the device does not say why.</source>
        <translation>%1: команда завершилась неуспешно; устройство не сообщает причину.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command late.</source>
        <translation>%1: устройство приняло команду с опозданием.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but has not told within %2 how it ended.</source>
        <translation>%1: устройство приняло команду, но в течение %2 не сообщило, чем она завершилась.</translation>
    </message>
    <message>
        <source>%1: the device accepted the command, but the association ended before the command: %2.</source>
        <translation>%1: устройство приняло команду, но ассоциация завершилась раньше команды: %2.</translation>
    </message>
    <message>
        <source>%1: the device refuses %2: %3.</source>
        <translation>%1: устройство отклоняет %2: %3.</translation>
    </message>
    <message>
        <source>%1: the file ended after %2 of %3 octets.</source>
        <translation>%1: файл закончился после %2 из %3 октетов.</translation>
    </message>
    <message>
        <source>A UTC time has not 8 octets.</source>
        <translation>Длина времени UTC не равна 8 октетам.</translation>
    </message>
    <message>
        <source>A binary time has neither 4 nor 6 octets.</source>
        <translation>Длина двоичного времени не равна ни 4, ни 6 октетам.</translation>
    </message>
    <message>
        <source>A bit string does not say how many of its bits count.</source>
        <translation>В битовой строке не указано, сколько битов значимы.</translation>
    </message>
    <message>
        <source>A boolean has not one octet.</source>
        <translation>Длина логического значения не равна одному октету.</translation>
    </message>
    <message>
        <source>A certificate in the file &quot;%1&quot; cannot be read.</source>
        <translation>Сертификат в файле «%1» не удаётся прочитать.</translation>
    </message>
    <message>
        <source>A character is not allowed here, or does not belong to the file&apos;s encoding.</source>
        <translation>Символ здесь недопустим или не относится к кодировке файла.</translation>
    </message>
    <message>
        <source>A command is a structure, not %1.</source>
        <translation>Команда должна быть структурой, а не %1.</translation>
    </message>
    <message>
        <source>A constraint of the object does not allow this.</source>
        <translation>Ограничение объекта не допускает этого.</translation>
    </message>
    <message>
        <source>A data unit of transport class 0 has a header of another length than 3.</source>
        <translation>В блоке данных транспортного класса 0 длина заголовка не равна 3.</translation>
    </message>
    <message>
        <source>A file of this name exists already.</source>
        <translation>Файл с таким именем уже существует.</translation>
    </message>
    <message>
        <source>A floating-point number has neither 32 nor 64 bits.</source>
        <translation>Длина числа с плавающей запятой не равна ни 32, ни 64 битам.</translation>
    </message>
    <message>
        <source>A number of an object identifier is too large.</source>
        <translation>Число в идентификаторе объекта слишком велико.</translation>
    </message>
    <message>
        <source>A parameter of a transport unit is longer than the unit&apos;s header.</source>
        <translation>Параметр транспортного блока длиннее заголовка этого блока.</translation>
    </message>
    <message>
        <source>A presentation unit has no parameters of normal mode.</source>
        <translation>В блоке уровня представления нет параметров нормального режима.</translation>
    </message>
    <message>
        <source>A presentation unit has no user data.</source>
        <translation>В блоке уровня представления нет данных пользователя.</translation>
    </message>
    <message>
        <source>A presentation unit has too many values.</source>
        <translation>В блоке уровня представления слишком много значений.</translation>
    </message>
    <message>
        <source>A presentation value belongs to a context that was not agreed.</source>
        <translation>Значение уровня представления относится к несогласованному контексту.</translation>
    </message>
    <message>
        <source>A presentation value is encoded by rules that were not agreed.</source>
        <translation>Значение уровня представления закодировано по несогласованным правилам.</translation>
    </message>
    <message>
        <source>A presentation value is in a form that is not supported.</source>
        <translation>Значение уровня представления имеет неподдерживаемый вид.</translation>
    </message>
    <message>
        <source>A primitive element has no definite length.</source>
        <translation>У простого элемента нет определённой длины.</translation>
    </message>
    <message>
        <source>A primitive element stands where a group belongs.</source>
        <translation>На месте группы стоит простой элемент.</translation>
    </message>
    <message>
        <source>A session parameter group holds itself.</source>
        <translation>Группа параметров сеанса содержит сама себя.</translation>
    </message>
    <message>
        <source>A session parameter is longer than the unit around it.</source>
        <translation>Параметр сеанса длиннее блока, в котором он находится.</translation>
    </message>
    <message>
        <source>A session unit ends within a header.</source>
        <translation>Сеансовый блок обрывается внутри заголовка.</translation>
    </message>
    <message>
        <source>A session unit ends within a length.</source>
        <translation>Сеансовый блок обрывается внутри поля длины.</translation>
    </message>
    <message>
        <source>A session unit has the unknown code %1.</source>
        <translation>У сеансового блока неизвестный код %1.</translation>
    </message>
    <message>
        <source>A session unit is followed by octets that belong to nothing.</source>
        <translation>За сеансовым блоком следуют лишние октеты.</translation>
    </message>
    <message>
        <source>A setting group control stands in &quot;%1&quot; instead of the LLN0.</source>
        <translation>Управление группами уставок находится в «%1», а не в LLN0.</translation>
    </message>
    <message>
        <source>A tag number is too large.</source>
        <translation>Номер тега слишком велик.</translation>
    </message>
    <message>
        <source>A token unit is not followed by a data transfer.</source>
        <translation>За блоком маркера не следует передача данных.</translation>
    </message>
    <message>
        <source>A transport packet says that it is %1 octets long, which leaves no room for its content.</source>
        <translation>Длина транспортного пакета указана как %1 октетов: для содержимого не остаётся места.</translation>
    </message>
    <message>
        <source>A transport unit has the unknown code %1.</source>
        <translation>У транспортного блока неизвестный код %1.</translation>
    </message>
    <message>
        <source>A transport unit is followed by octets that belong to nothing.</source>
        <translation>За транспортным блоком следуют лишние октеты.</translation>
    </message>
    <message>
        <source>A transport unit needs at least two octets.</source>
        <translation>В транспортном блоке должно быть не менее двух октетов.</translation>
    </message>
    <message>
        <source>A unit of association control has an unknown tag.</source>
        <translation>У блока управления ассоциацией неизвестный тег.</translation>
    </message>
    <message>
        <source>Access to the file is denied.</source>
        <translation>В доступе к файлу отказано.</translation>
    </message>
    <message>
        <source>Access to the object is denied.</source>
        <translation>В доступе к объекту отказано.</translation>
    </message>
    <message>
        <source>Address already in use</source>
        <translation>Адрес уже используется</translation>
    </message>
    <message>
        <source>An association request has no application context name.</source>
        <translation>В запросе ассоциации нет имени прикладного контекста.</translation>
    </message>
    <message>
        <source>An association response has no result.</source>
        <translation>В ответе на запрос ассоциации нет результата.</translation>
    </message>
    <message>
        <source>An element is longer than the group that it is in.</source>
        <translation>Элемент длиннее группы, в которой он находится.</translation>
    </message>
    <message>
        <source>An element is longer than the message.</source>
        <translation>Элемент длиннее сообщения.</translation>
    </message>
    <message>
        <source>An element stands where a service belongs.</source>
        <translation>На месте службы стоит другой элемент.</translation>
    </message>
    <message>
        <source>An element that is empty by definition has content.</source>
        <translation>Элемент, который должен быть пустым, имеет содержимое.</translation>
    </message>
    <message>
        <source>An element that is no type stands where a type belongs.</source>
        <translation>На месте типа стоит другой элемент.</translation>
    </message>
    <message>
        <source>An element that is no value stands where a value belongs.</source>
        <translation>На месте значения стоит другой элемент.</translation>
    </message>
    <message>
        <source>An incomplete %1 is left in the device.</source>
        <translation>На устройстве остался неполный файл %1.</translation>
    </message>
    <message>
        <source>An integer has no octet or more than 8.</source>
        <translation>В целом числе нет октетов или их больше 8.</translation>
    </message>
    <message>
        <source>An integer is out of its range.</source>
        <translation>Целое число выходит за пределы диапазона.</translation>
    </message>
    <message>
        <source>An internal error ended the association.</source>
        <translation>Внутренняя ошибка завершила ассоциацию.</translation>
    </message>
    <message>
        <source>An internal error ended the association: %1.</source>
        <translation>Внутренняя ошибка завершила ассоциацию: %1.</translation>
    </message>
    <message>
        <source>An issuer&apos;s certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Сертификат издателя в файле «%1» непригоден (%2).</translation>
    </message>
    <message>
        <source>An object identifier ends within a number.</source>
        <translation>Идентификатор объекта обрывается внутри числа.</translation>
    </message>
    <message>
        <source>An object of this name exists already.</source>
        <translation>Объект с таким именем уже существует.</translation>
    </message>
    <message>
        <source>An unsigned integer has no octet or more than 64 bits.</source>
        <translation>В целом числе без знака нет октетов или больше 64 битов.</translation>
    </message>
    <message>
        <source>An unsigned integer is out of its range.</source>
        <translation>Целое число без знака выходит за пределы диапазона.</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>Соединение оборвано (Broken pipe)</translation>
    </message>
    <message>
        <source>Cannot allocate memory</source>
        <translation>Недостаточно памяти</translation>
    </message>
    <message>
        <source>Cannot assign requested address</source>
        <translation>Не удаётся назначить запрошенный адрес</translation>
    </message>
    <message>
        <source>Cannot listen on %1 port %2: %3.</source>
        <translation>Не удаётся принимать подключения на %1, порт %2: %3.</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>В соединении отказано</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>Соединение сброшено другой стороной</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Время ожидания соединения истекло</translation>
    </message>
    <message>
        <source>Each variable needs one value to write.</source>
        <translation>Для каждой переменной нужно одно записываемое значение.</translation>
    </message>
    <message>
        <source>Elements are nested deeper than %1 levels.</source>
        <translation>Элементы вложены глубже допустимого (уровней: %1).</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ошибка ввода-вывода</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Это каталог</translation>
    </message>
    <message>
        <source>It is not a logical node.</source>
        <translation>Это не логический узел.</translation>
    </message>
    <message>
        <source>It is not known whether %1 is in the device.</source>
        <translation>Неизвестно, есть ли на устройстве файл %1.</translation>
    </message>
    <message>
        <source>It is not known whether an incomplete %1 is left in the device.</source>
        <translation>Неизвестно, остался ли на устройстве неполный файл %1.</translation>
    </message>
    <message>
        <source>It is not known whether the device has a part of the file: look at %1.</source>
        <translation>Неизвестно, есть ли на устройстве часть файла: проверьте %1.</translation>
    </message>
    <message>
        <source>It is not known whether the file has its name: look at %1 and %2.</source>
        <translation>Неизвестно, получил ли файл своё имя: проверьте %1 и %2.</translation>
    </message>
    <message>
        <source>It is not known whether the file was replaced: look at %1.</source>
        <translation>Неизвестно, заменён ли файл: проверьте %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old %1 is still there.</source>
        <translation>Неизвестно, сохранился ли старый файл %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still there: look at %1.</source>
        <translation>Неизвестно, сохранился ли старый файл: проверьте %1.</translation>
    </message>
    <message>
        <source>It is not known whether the old file is still whole: look at %1.</source>
        <translation>Неизвестно, цел ли ещё старый файл: проверьте %1.</translation>
    </message>
    <message>
        <source>It is not known whether there is an old %1.</source>
        <translation>Неизвестно, есть ли старый файл %1.</translation>
    </message>
    <message>
        <source>It was not sent.</source>
        <translation>Не отправлено.</translation>
    </message>
    <message>
        <source>Modifiers of a request are not supported.</source>
        <translation>Модификаторы запроса не поддерживаются.</translation>
    </message>
    <message>
        <source>More than %1 name spaces are declared.</source>
        <translation>Объявленных пространств имён больше %1.</translation>
    </message>
    <message>
        <source>Neither an authority nor a fingerprint says which peers are trusted.</source>
        <translation>Ни удостоверяющий центр, ни отпечаток не указывает, каким удалённым сторонам доверять.</translation>
    </message>
    <message>
        <source>Network is down</source>
        <translation>Сеть не работает</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>Сеть недоступна</translation>
    </message>
    <message>
        <source>No connection to %1 port %2: %3.</source>
        <translation>Нет соединения с %1, порт %2: %3.</translation>
    </message>
    <message>
        <source>No file is given for %1.</source>
        <translation>Не указан файл: %1.</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>Нет маршрута к узлу</translation>
    </message>
    <message>
        <source>No session entity is attached to the transport selector.</source>
        <translation>К селектору транспортного уровня не присоединён сеансовый объект.</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>На носителе нет свободного места</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Нет такого файла или каталога</translation>
    </message>
    <message>
        <source>Nobody wants the association any more.</source>
        <translation>Ассоциация больше не нужна.</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Это не каталог</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s presentation selector.</source>
        <translation>К селектору уровня представления удалённой стороны ничего не присоединено.</translation>
    </message>
    <message>
        <source>Nothing is attached to the peer&apos;s session selector.</source>
        <translation>К селектору сеансового уровня удалённой стороны ничего не присоединено.</translation>
    </message>
    <message>
        <source>Nothing was changed on the device.</source>
        <translation>На устройстве ничего не изменено.</translation>
    </message>
    <message>
        <source>Operation canceled</source>
        <translation>Операция отменена</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Операция не разрешена</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>Отказано в доступе</translation>
    </message>
    <message>
        <source>Presentation user data is simply encoded, which is not supported.</source>
        <translation>Данные пользователя уровня представления закодированы простым способом, который не поддерживается.</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Файловая система доступна только для чтения</translation>
    </message>
    <message>
        <source>Reading the file was cancelled.</source>
        <translation>Чтение файла отменено.</translation>
    </message>
    <message>
        <source>Reading the file was stopped.</source>
        <translation>Чтение файла остановлено.</translation>
    </message>
    <message>
        <source>Revocation lists are of no use without the authorities that issued them.</source>
        <translation>Списки отзыва бесполезны без удостоверяющих центров, которые их выпустили.</translation>
    </message>
    <message>
        <source>Setting groups are counted from 1; 0 cannot become the active group.</source>
        <translation>Группы уставок нумеруются с 1; группа 0 не может стать активной.</translation>
    </message>
    <message>
        <source>Software caused connection abort</source>
        <translation>Соединение разорвано программой</translation>
    </message>
    <message>
        <source>Something stands behind the end of %1.</source>
        <translation>За концом %1 есть лишние данные.</translation>
    </message>
    <message>
        <source>TLS cannot be set up (%1).</source>
        <translation>TLS не удаётся настроить (%1).</translation>
    </message>
    <message>
        <source>TLS failed for an unknown reason.</source>
        <translation>Сбой TLS по неизвестной причине.</translation>
    </message>
    <message>
        <source>TLS failed: %1.</source>
        <translation>Сбой TLS: %1.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; contains itself; this element is left out.</source>
        <translation>%1 «%2» содержит сам себя; этот элемент пропущен.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; does not exist.</source>
        <translation>%1 «%2» не существует.</translation>
    </message>
    <message>
        <source>The %1 &quot;%2&quot; is defined again; the definition in line %3 is used.</source>
        <translation>%1 «%2» определён повторно; используется определение в строке %3.</translation>
    </message>
    <message>
        <source>The %1 has no id and cannot be used.</source>
        <translation>%1 не имеет id и не может использоваться.</translation>
    </message>
    <message>
        <source>The DOType has no common data class (attribute cdc).</source>
        <translation>У DOType не указан общий класс данных (атрибут cdc).</translation>
    </message>
    <message>
        <source>The EnumType &quot;%1&quot; does not exist.</source>
        <translation>EnumType «%1» не существует.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has more than %2 nodes of data.</source>
        <translation>В ИЭУ «%1» узлов данных больше %2.</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; has no access point &quot;%2&quot;.</source>
        <translation>У ИЭУ «%1» нет точки доступа «%2».</translation>
    </message>
    <message>
        <source>The IED &quot;%1&quot; is not in this file.</source>
        <translation>ИЭУ «%1» нет в этом файле.</translation>
    </message>
    <message>
        <source>The IED has no name.</source>
        <translation>У ИЭУ нет имени.</translation>
    </message>
    <message>
        <source>The LNodeType &quot;%1&quot; does not exist.</source>
        <translation>LNodeType «%1» не существует.</translation>
    </message>
    <message>
        <source>The LNodeType has no class (attribute lnClass).</source>
        <translation>У LNodeType не указан класс (атрибут lnClass).</translation>
    </message>
    <message>
        <source>The access point &quot;%1&quot; whose server is shared does not exist or has none.</source>
        <translation>Точка доступа «%1», сервер которой используется совместно, не существует или не имеет сервера.</translation>
    </message>
    <message>
        <source>The active setting group is %1, but there are %2; group 1 is used.</source>
        <translation>Активной указана группа уставок %1, а всего групп %2; используется группа 1.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>Адрес недействителен.</translation>
    </message>
    <message>
        <source>The answer cannot be read: %1.</source>
        <translation>Ответ не удаётся прочитать: %1.</translation>
    </message>
    <message>
        <source>The answer does not fit a message.</source>
        <translation>Ответ не помещается в сообщение.</translation>
    </message>
    <message>
        <source>The answer does not match the question.</source>
        <translation>Ответ не соответствует запросу.</translation>
    </message>
    <message>
        <source>The association is being concluded.</source>
        <translation>Ассоциация завершается.</translation>
    </message>
    <message>
        <source>The association was refused.</source>
        <translation>В ассоциации отказано.</translation>
    </message>
    <message>
        <source>The association was released.</source>
        <translation>Ассоциация завершена.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that holds the number of elements of &quot;%2&quot; has no value; the array is empty.</source>
        <translation>Атрибут «%1», задающий число элементов «%2», не имеет значения; массив пуст.</translation>
    </message>
    <message>
        <source>The attribute &quot;%1&quot; that should hold the number of array elements does not exist; the array is empty.</source>
        <translation>Атрибут «%1», который должен задавать число элементов массива, не существует; массив пуст.</translation>
    </message>
    <message>
        <source>The attribute has no basic type (attribute bType).</source>
        <translation>У атрибута нет базового типа (атрибут bType).</translation>
    </message>
    <message>
        <source>The attribute has no functional constraint (attribute fc) and cannot be addressed.</source>
        <translation>У атрибута нет функциональной связи (атрибут fc), поэтому к нему нельзя обратиться.</translation>
    </message>
    <message>
        <source>The attribute is an enumeration without a type (attribute type).</source>
        <translation>Атрибут является перечислением без типа (атрибут type).</translation>
    </message>
    <message>
        <source>The attributes of the object contradict each other.</source>
        <translation>Атрибуты объекта противоречат друг другу.</translation>
    </message>
    <message>
        <source>The authority in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Удостоверяющий центр в файле «%1» непригоден (%2).</translation>
    </message>
    <message>
        <source>The basic type is written &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Базовый тип записан как «%1» вместо «%2».</translation>
    </message>
    <message>
        <source>The block belongs to another association of this computer, %1.</source>
        <translation>Блок принадлежит другой ассоциации этого компьютера, %1.</translation>
    </message>
    <message>
        <source>The block belongs to the client %1.</source>
        <translation>Блок принадлежит клиенту %1.</translation>
    </message>
    <message>
        <source>The call can no longer be cancelled.</source>
        <translation>Запрос уже нельзя отменить.</translation>
    </message>
    <message>
        <source>The call cannot be cancelled.</source>
        <translation>Запрос нельзя отменить.</translation>
    </message>
    <message>
        <source>The call was cancelled.</source>
        <translation>Запрос отменён.</translation>
    </message>
    <message>
        <source>The certificate &quot;%1&quot; in the file &quot;%2&quot;</source>
        <translation>Сертификат «%1» в файле «%2»</translation>
    </message>
    <message>
        <source>The certificate in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Сертификат в файле «%1» непригоден (%2).</translation>
    </message>
    <message>
        <source>The class is &quot;%1&quot;, but the LNodeType &quot;%2&quot; is of class &quot;%3&quot;.</source>
        <translation>Указан класс «%1», но LNodeType «%2» имеет класс «%3».</translation>
    </message>
    <message>
        <source>The class of an LN0 is &quot;%1&quot; instead of &quot;LLN0&quot;.</source>
        <translation>Класс LN0 указан как «%1» вместо «LLN0».</translation>
    </message>
    <message>
        <source>The client is gone.</source>
        <translation>Клиент отключился.</translation>
    </message>
    <message>
        <source>The connection to the other application is lost.</source>
        <translation>Связь с другим приложением потеряна.</translation>
    </message>
    <message>
        <source>The content type of the file is not valid.</source>
        <translation>Вид содержимого файла недействителен.</translation>
    </message>
    <message>
        <source>The control block has no name.</source>
        <translation>У блока управления нет имени.</translation>
    </message>
    <message>
        <source>The control model of %1 cannot be read: %2.</source>
        <translation>Модель управления %1 не удаётся прочитать: %2.</translation>
    </message>
    <message>
        <source>The control model of %1 is %2, which is none.</source>
        <translation>Модель управления %1 указана как %2; такой модели нет.</translation>
    </message>
    <message>
        <source>The data below this element are nested deeper than %1 levels; the element is left out.</source>
        <translation>Данные под этим элементом вложены глубже допустимого (уровней: %1); элемент пропущен.</translation>
    </message>
    <message>
        <source>The data set &quot;%1&quot; of the control block does not exist in its logical node.</source>
        <translation>Набора данных «%1», указанного в блоке управления, нет в его логическом узле.</translation>
    </message>
    <message>
        <source>The data set has no members.</source>
        <translation>В наборе данных нет элементов.</translation>
    </message>
    <message>
        <source>The data set has no name.</source>
        <translation>У набора данных нет имени.</translation>
    </message>
    <message>
        <source>The definition of the object does not allow this.</source>
        <translation>Определение объекта не допускает этого.</translation>
    </message>
    <message>
        <source>The device answered another service.</source>
        <translation>Устройство ответило на другую службу.</translation>
    </message>
    <message>
        <source>The device cannot carry out the service.</source>
        <translation>Устройство не может выполнить службу.</translation>
    </message>
    <message>
        <source>The device cannot check interlocking.</source>
        <translation>Устройство не может проверить блокировку.</translation>
    </message>
    <message>
        <source>The device cannot check synchronism.</source>
        <translation>Устройство не может проверить синхронизм.</translation>
    </message>
    <message>
        <source>The device cannot operate at a given time.</source>
        <translation>Устройство не может исполнить команду в заданное время.</translation>
    </message>
    <message>
        <source>The device cannot test a command.</source>
        <translation>Устройство не поддерживает команды в режиме проверки.</translation>
    </message>
    <message>
        <source>The device cannot transfer the domain.</source>
        <translation>Устройство не может передать домен.</translation>
    </message>
    <message>
        <source>The device describes more than the %1 values in %2 octets that are taken; the rest is left out.</source>
        <translation>Устройство описывает больше допустимого (%1 значений в %2 октетах); остальное пропущено.</translation>
    </message>
    <message>
        <source>The device describes the originator as %1.</source>
        <translation>Устройство описывает инициатора команды как %1.</translation>
    </message>
    <message>
        <source>The device does not accept the syntax of the file name.</source>
        <translation>Устройство не принимает синтаксис имени файла.</translation>
    </message>
    <message>
        <source>The device does not answer any more.</source>
        <translation>Устройство больше не отвечает.</translation>
    </message>
    <message>
        <source>The device does not know the call to cancel.</source>
        <translation>Устройству неизвестен запрос, который нужно отменить.</translation>
    </message>
    <message>
        <source>The device does not know the capability.</source>
        <translation>Устройству неизвестна возможность (Capability).</translation>
    </message>
    <message>
        <source>The device does not know the state machine.</source>
        <translation>Устройству неизвестен конечный автомат.</translation>
    </message>
    <message>
        <source>The device does not let the data set %1 be deleted.</source>
        <translation>Устройство не позволяет удалить набор данных %1.</translation>
    </message>
    <message>
        <source>The device does not list its logical devices: %1.</source>
        <translation>Устройство не перечисляет свои логические устройства: %1.</translation>
    </message>
    <message>
        <source>The device does not say what belongs to the command.</source>
        <translation>Устройство не сообщает, из чего состоит команда.</translation>
    </message>
    <message>
        <source>The device does not support the time resolution.</source>
        <translation>Устройство не поддерживает такое разрешение по времени.</translation>
    </message>
    <message>
        <source>The device gave a reason for refusing a command that cannot be read: %1.</source>
        <translation>Устройство отклонило команду с причиной, которую не удаётся прочитать: %1.</translation>
    </message>
    <message>
        <source>The device gave up after its own time limit.</source>
        <translation>Устройство прекратило выполнение по собственному пределу времени.</translation>
    </message>
    <message>
        <source>The device gave up because of a deadlock.</source>
        <translation>Устройство прекратило выполнение из-за взаимной блокировки.</translation>
    </message>
    <message>
        <source>The device gave up the call.</source>
        <translation>Устройство прекратило выполнение запроса.</translation>
    </message>
    <message>
        <source>The device gives names without end.</source>
        <translation>Устройство бесконечно выдаёт имена.</translation>
    </message>
    <message>
        <source>The device has an operational problem.</source>
        <translation>В устройстве неполадка.</translation>
    </message>
    <message>
        <source>The device has more names than the %1 names and %2 octets that are taken; the others are left out.</source>
        <translation>Имён в устройстве больше допустимого (%1 имён в %2 октетах); остальные пропущены.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical devices; the others are left out.</source>
        <translation>Логических устройств в устройстве больше %1; остальные пропущены.</translation>
    </message>
    <message>
        <source>The device has more than %1 logical nodes; the others are left out.</source>
        <translation>Логических узлов в устройстве больше %1; остальные пропущены.</translation>
    </message>
    <message>
        <source>The device has neither %1 nor %2 any more.</source>
        <translation>На устройстве больше нет ни файла %1, ни файла %2.</translation>
    </message>
    <message>
        <source>The device has no free capability for this.</source>
        <translation>У устройства нет для этого свободной возможности (Capability).</translation>
    </message>
    <message>
        <source>The device has not enough computing time.</source>
        <translation>Устройству не хватает процессорного времени.</translation>
    </message>
    <message>
        <source>The device has not enough memory.</source>
        <translation>Устройству не хватает оперативной памяти.</translation>
    </message>
    <message>
        <source>The device has not enough storage.</source>
        <translation>Устройству не хватает места для хранения.</translation>
    </message>
    <message>
        <source>The device has not the resources for this.</source>
        <translation>Устройству не хватает для этого ресурсов.</translation>
    </message>
    <message>
        <source>The device has something to finish first.</source>
        <translation>Устройство должно сначала завершить другое действие.</translation>
    </message>
    <message>
        <source>The device has stopped fetching the file after %1 of %2 octets.</source>
        <translation>Устройство перестало забирать файл после %1 из %2 октетов.</translation>
    </message>
    <message>
        <source>The device is in a state that does not allow this.</source>
        <translation>Устройство находится в состоянии, которое этого не допускает.</translation>
    </message>
    <message>
        <source>The device lists its files without an end.</source>
        <translation>Устройство бесконечно перечисляет свои файлы.</translation>
    </message>
    <message>
        <source>The device refuses the association.</source>
        <translation>Устройство отказывает в ассоциации.</translation>
    </message>
    <message>
        <source>The device refuses the file operation.</source>
        <translation>Устройство отклоняет операцию с файлом.</translation>
    </message>
    <message>
        <source>The device refuses to conclude the association.</source>
        <translation>Устройство отказывается завершить ассоциацию.</translation>
    </message>
    <message>
        <source>The device refuses without giving a reason.</source>
        <translation>Устройство отказывает без указания причины.</translation>
    </message>
    <message>
        <source>The device rejects a cancel (%1).</source>
        <translation>Устройство отвергает отмену (Cancel): %1.</translation>
    </message>
    <message>
        <source>The device rejects a conclude (%1).</source>
        <translation>Устройство отвергает завершение (Conclude): %1.</translation>
    </message>
    <message>
        <source>The device rejects a message that it cannot read (%1).</source>
        <translation>Устройство отвергает сообщение, которое не может прочитать (%1).</translation>
    </message>
    <message>
        <source>The device rejects a request (%1).</source>
        <translation>Устройство отвергает запрос (%1).</translation>
    </message>
    <message>
        <source>The device rejects an answer (%1).</source>
        <translation>Устройство отвергает ответ (%1).</translation>
    </message>
    <message>
        <source>The device rejects an error (%1).</source>
        <translation>Устройство отвергает сообщение об ошибке (%1).</translation>
    </message>
    <message>
        <source>The device rejects an unconfirmed message (%1).</source>
        <translation>Устройство отвергает неподтверждаемое сообщение (%1).</translation>
    </message>
    <message>
        <source>The device rejects the answer to a cancel (%1).</source>
        <translation>Устройство отвергает ответ на отмену (Cancel): %1.</translation>
    </message>
    <message>
        <source>The device rejects the answer to a conclude (%1).</source>
        <translation>Устройство отвергает ответ на завершение (Conclude): %1.</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a cancel (%1).</source>
        <translation>Устройство отвергает отказ в отмене (Cancel): %1.</translation>
    </message>
    <message>
        <source>The device rejects the refusal of a conclude (%1).</source>
        <translation>Устройство отвергает отказ в завершении (Conclude): %1.</translation>
    </message>
    <message>
        <source>The device repeats the same page of names.</source>
        <translation>Устройство повторяет одну и ту же страницу имён.</translation>
    </message>
    <message>
        <source>The device reports a hardware fault.</source>
        <translation>Устройство сообщает об аппаратной неисправности.</translation>
    </message>
    <message>
        <source>The device reports the unknown data access error %1.</source>
        <translation>Устройство сообщает о неизвестной ошибке доступа к данным %1.</translation>
    </message>
    <message>
        <source>The device says that it has the file, but it has fetched only %1 of %2 octets.</source>
        <translation>Устройство сообщает, что файл получен, но забрало лишь %1 из %2 октетов.</translation>
    </message>
    <message>
        <source>The device sends empty blocks of the file without an end.</source>
        <translation>Устройство бесконечно отправляет пустые блоки файла.</translation>
    </message>
    <message>
        <source>The device took longer than %1 minutes to describe itself; what it had not told by then is left out.</source>
        <translation>Устройство описывало себя дольше, чем %1 мин; то, что оно не успело сообщить, пропущено.</translation>
    </message>
    <message>
        <source>The device uses another version of the protocol.</source>
        <translation>Устройство использует другую версию протокола.</translation>
    </message>
    <message>
        <source>The device wants %1 also as a whole number, but does not say by which scale (sVC).</source>
        <translation>Устройство требует значение %1 также в виде целого числа, но не сообщает масштаб (sVC).</translation>
    </message>
    <message>
        <source>The device wants a part %1 in the command, which is not known.</source>
        <translation>Устройство требует в команде неизвестную часть %1.</translation>
    </message>
    <message>
        <source>The device wants an unknown part %1 of the originator.</source>
        <translation>Устройство требует в данных инициатора неизвестную часть %1.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the question.</source>
        <translation>Ответ устройства не соответствует вопросу.</translation>
    </message>
    <message>
        <source>The device&apos;s answer does not match the request.</source>
        <translation>Ответ устройства не соответствует запросу.</translation>
    </message>
    <message>
        <source>The directory &quot;%1&quot; cannot be served: %2.</source>
        <translation>Каталог «%1» не удаётся предоставить: %2.</translation>
    </message>
    <message>
        <source>The discovery was cancelled.</source>
        <translation>Чтение модели отменено.</translation>
    </message>
    <message>
        <source>The element %1 is missing or of an unknown kind.</source>
        <translation>Элемент %1 отсутствует или имеет неизвестный вид.</translation>
    </message>
    <message>
        <source>The element %1 is missing.</source>
        <translation>Элемент %1 отсутствует.</translation>
    </message>
    <message>
        <source>The element %1 is not where it belongs.</source>
        <translation>Элемент %1 стоит не на своём месте.</translation>
    </message>
    <message>
        <source>The element does not name an access point.</source>
        <translation>Элемент не указывает точку доступа.</translation>
    </message>
    <message>
        <source>The element has no name and is left out.</source>
        <translation>У элемента нет имени, он пропущен.</translation>
    </message>
    <message>
        <source>The element has no type (attribute type).</source>
        <translation>У элемента нет типа (атрибут type).</translation>
    </message>
    <message>
        <source>The elements are nested too deeply.</source>
        <translation>Вложенность элементов слишком глубокая.</translation>
    </message>
    <message>
        <source>The encoding is declared as &quot;%1&quot;, but the file holds single bytes; it is read as UTF-8.</source>
        <translation>Объявлена кодировка «%1», но файл состоит из отдельных байтов; он читается как UTF-8.</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;ISO-8859-1&quot;.</source>
        <translation>Кодировка записана как «%1» вместо «ISO-8859-1».</translation>
    </message>
    <message>
        <source>The encoding is written &quot;%1&quot; instead of &quot;UTF-8&quot;; it is read as UTF-8.</source>
        <translation>Кодировка записана как «%1» вместо «UTF-8»; файл читается как UTF-8.</translation>
    </message>
    <message>
        <source>The entity &quot;%1&quot; is not declared.</source>
        <translation>Сущность «%1» не объявлена.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be opened: %2.</source>
        <translation>Файл «%1» не открывается: %2.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no certificate in PEM.</source>
        <translation>В файле «%1» нет сертификата в формате PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no private key in PEM.</source>
        <translation>В файле «%1» нет закрытого ключа в формате PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; holds no revocation list in PEM.</source>
        <translation>В файле «%1» нет списка отзыва в формате PEM.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; with %2 cannot be opened: %3.</source>
        <translation>Файл «%1» (%2) не открывается: %3.</translation>
    </message>
    <message>
        <source>The file became shorter while it was read.</source>
        <translation>Файл стал короче во время чтения.</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>Файл не удаётся прочитать до конца.</translation>
    </message>
    <message>
        <source>The file declares an entity, which is not accepted.</source>
        <translation>В файле объявлена сущность, это не принимается.</translation>
    </message>
    <message>
        <source>The file does not exist.</source>
        <translation>Файл не существует.</translation>
    </message>
    <message>
        <source>The file ends before its root element is complete.</source>
        <translation>Файл обрывается до конца корневого элемента.</translation>
    </message>
    <message>
        <source>The file ends within a character.</source>
        <translation>Файл обрывается внутри символа.</translation>
    </message>
    <message>
        <source>The file in the device may be incomplete: look at %1.</source>
        <translation>Файл на устройстве может быть неполным: проверьте %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>The file is in use.</source>
        <translation>Файл занят.</translation>
    </message>
    <message>
        <source>The file is larger than %1 bytes.</source>
        <translation>Размер файла в байтах больше %1.</translation>
    </message>
    <message>
        <source>The file is not well-formed XML: %1.</source>
        <translation>Файл не является корректным XML: %1.</translation>
    </message>
    <message>
        <source>The file name is ambiguous.</source>
        <translation>Имя файла неоднозначно.</translation>
    </message>
    <message>
        <source>The file refers to an external document type, which is not accepted.</source>
        <translation>Файл ссылается на внешний тип документа, это не принимается.</translation>
    </message>
    <message>
        <source>The file&apos;s encoding is not the one declared, or it is not known.</source>
        <translation>Кодировка файла отличается от объявленной или неизвестна.</translation>
    </message>
    <message>
        <source>The header of a transport unit is longer than the packet.</source>
        <translation>Заголовок транспортного блока длиннее пакета.</translation>
    </message>
    <message>
        <source>The import was cancelled.</source>
        <translation>Импорт отменён.</translation>
    </message>
    <message>
        <source>The instance has no name and is left out.</source>
        <translation>У экземпляра нет имени, он пропущен.</translation>
    </message>
    <message>
        <source>The instance is given twice; the first is used.</source>
        <translation>Экземпляр указан дважды; используется первый.</translation>
    </message>
    <message>
        <source>The issuer&apos;s certificate &quot;%1&quot;</source>
        <translation>Сертификат «%1» издателя</translation>
    </message>
    <message>
        <source>The length of an element is too large.</source>
        <translation>Длина элемента слишком велика.</translation>
    </message>
    <message>
        <source>The list cannot be continued after the given name.</source>
        <translation>Список нельзя продолжить после указанного имени.</translation>
    </message>
    <message>
        <source>The literal &quot;%1&quot; begins or ends with a blank.</source>
        <translation>Литерал «%1» начинается или заканчивается пробелом.</translation>
    </message>
    <message>
        <source>The logical device has no LN0.</source>
        <translation>В логическом устройстве нет LN0.</translation>
    </message>
    <message>
        <source>The logical device has no instance name (attribute inst).</source>
        <translation>У логического устройства нет имени экземпляра (атрибут inst).</translation>
    </message>
    <message>
        <source>The logical node has another setting group control; the first is used.</source>
        <translation>В логическом узле есть ещё одно управление группами уставок; используется первое.</translation>
    </message>
    <message>
        <source>The logical node has no class (attribute lnClass).</source>
        <translation>У логического узла нет класса (атрибут lnClass).</translation>
    </message>
    <message>
        <source>The logical node has no instance number (attribute inst).</source>
        <translation>У логического узла нет номера экземпляра (атрибут inst).</translation>
    </message>
    <message>
        <source>The logical node has no type (attribute lnType).</source>
        <translation>У логического узла нет типа (атрибут lnType).</translation>
    </message>
    <message>
        <source>The lowest version of TLS that is allowed is above the highest one.</source>
        <translation>Наименьшая допустимая версия TLS выше наибольшей.</translation>
    </message>
    <message>
        <source>The message ends within an element.</source>
        <translation>Сообщение обрывается внутри элемента.</translation>
    </message>
    <message>
        <source>The message holds more elements than allowed.</source>
        <translation>Элементов в сообщении больше допустимого.</translation>
    </message>
    <message>
        <source>The message is empty.</source>
        <translation>Сообщение пустое.</translation>
    </message>
    <message>
        <source>The message is longer than allowed.</source>
        <translation>Сообщение длиннее допустимого.</translation>
    </message>
    <message>
        <source>The message is no MMS PDU.</source>
        <translation>Сообщение не является MMS PDU.</translation>
    </message>
    <message>
        <source>The message size is too small for the device.</source>
        <translation>Размер сообщения слишком мал для устройства.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; cannot be resolved: %2.</source>
        <translation>Имя «%1» не удаётся преобразовать в адрес: %2.</translation>
    </message>
    <message>
        <source>The name &quot;%1&quot; was not resolved in time.</source>
        <translation>Имя «%1» не удалось вовремя преобразовать в адрес.</translation>
    </message>
    <message>
        <source>The name of the other application is not valid.</source>
        <translation>Имя другого приложения недействительно.</translation>
    </message>
    <message>
        <source>The name space prefix &quot;%1&quot; is not declared; its elements are skipped.</source>
        <translation>Префикс пространства имён «%1» не объявлен; его элементы пропущены.</translation>
    </message>
    <message>
        <source>The names</source>
        <translation>Имена</translation>
    </message>
    <message>
        <source>The names of %1</source>
        <translation>Имена %1</translation>
    </message>
    <message>
        <source>The names of the data</source>
        <translation>Имена данных</translation>
    </message>
    <message>
        <source>The names of the data of %1</source>
        <translation>Имена данных %1</translation>
    </message>
    <message>
        <source>The names of the data sets</source>
        <translation>Имена наборов данных</translation>
    </message>
    <message>
        <source>The names of the data sets of %1</source>
        <translation>Имена наборов данных %1</translation>
    </message>
    <message>
        <source>The nesting level does not suit the device.</source>
        <translation>Глубина вложенности не подходит устройству.</translation>
    </message>
    <message>
        <source>The network connection broke during the TLS handshake: %1.</source>
        <translation>Сетевое соединение оборвалось при установлении TLS: %1.</translation>
    </message>
    <message>
        <source>The network connection broke: %1.</source>
        <translation>Сетевое соединение оборвалось: %1.</translation>
    </message>
    <message>
        <source>The new file is in the device as %1.</source>
        <translation>Новый файл находится на устройстве под именем %1.</translation>
    </message>
    <message>
        <source>The number of instances is %1; %2 is used.</source>
        <translation>Число экземпляров равно %1; используется %2.</translation>
    </message>
    <message>
        <source>The number of outstanding calls does not suit the device.</source>
        <translation>Число ожидающих запросов не подходит устройству.</translation>
    </message>
    <message>
        <source>The number of outstanding calls of the device does not suit it.</source>
        <translation>Число собственных ожидающих запросов устройства ему не подходит.</translation>
    </message>
    <message>
        <source>The number of setting groups is 0; 1 is used.</source>
        <translation>Число групп уставок равно 0; используется 1.</translation>
    </message>
    <message>
        <source>The object cannot be accessed in this way.</source>
        <translation>К объекту нельзя обратиться таким способом.</translation>
    </message>
    <message>
        <source>The object cannot be accessed.</source>
        <translation>К объекту нельзя обратиться.</translation>
    </message>
    <message>
        <source>The object does not exist.</source>
        <translation>Объект не существует.</translation>
    </message>
    <message>
        <source>The object is in a state that does not allow this.</source>
        <translation>Объект находится в состоянии, которое этого не допускает.</translation>
    </message>
    <message>
        <source>The object is no longer valid.</source>
        <translation>Объект больше не действителен.</translation>
    </message>
    <message>
        <source>The object is not available at the moment.</source>
        <translation>Объект сейчас недоступен.</translation>
    </message>
    <message>
        <source>The object is not defined.</source>
        <translation>Объект не определён.</translation>
    </message>
    <message>
        <source>The old file had to be deleted before and is lost.</source>
        <translation>Старый файл пришлось удалить заранее, он утрачен.</translation>
    </message>
    <message>
        <source>The old file is still there.</source>
        <translation>Старый файл остался на месте.</translation>
    </message>
    <message>
        <source>The old file was deleted before.</source>
        <translation>Старый файл был удалён заранее.</translation>
    </message>
    <message>
        <source>The options offered do not suit the device.</source>
        <translation>Предложенные параметры не подходят устройству.</translation>
    </message>
    <message>
        <source>The ordinal %1 is given twice; the first literal is used.</source>
        <translation>Порядковый номер %1 указан дважды; используется первый литерал.</translation>
    </message>
    <message>
        <source>The originator identification has %1 octets; at most %2 are allowed.</source>
        <translation>Идентификатор инициатора содержит %1 октетов, допустимо не более %2.</translation>
    </message>
    <message>
        <source>The other application cannot be reached.</source>
        <translation>Другое приложение недоступно.</translation>
    </message>
    <message>
        <source>The other application does not support the context.</source>
        <translation>Другое приложение не поддерживает контекст.</translation>
    </message>
    <message>
        <source>The part %1 of the command cannot be %2.</source>
        <translation>Часть %1 команды: значение %2 недопустимо.</translation>
    </message>
    <message>
        <source>The peer %1 has %2 connections that are no associations yet, which is the limit.</source>
        <translation>Удалённая сторона %1: соединений без ассоциации уже %2, больше не допускается.</translation>
    </message>
    <message>
        <source>The peer aborted the association.</source>
        <translation>Удалённая сторона прервала ассоциацию.</translation>
    </message>
    <message>
        <source>The peer aborted the session.</source>
        <translation>Удалённая сторона прервала сеанс.</translation>
    </message>
    <message>
        <source>The peer accepted the session with an unsuitable version.</source>
        <translation>Удалённая сторона приняла сеанс с неподходящей версией.</translation>
    </message>
    <message>
        <source>The peer and this side have no cipher suite in common, or no certificate fits it.</source>
        <translation>У удалённой стороны и этой стороны нет общего набора шифров, или к нему не подходит ни один сертификат.</translation>
    </message>
    <message>
        <source>The peer and this side have no version of TLS in common.</source>
        <translation>У удалённой стороны и этой стороны нет общей версии TLS.</translation>
    </message>
    <message>
        <source>The peer answered the initiate request with something else.</source>
        <translation>Удалённая сторона ответила на запрос Initiate чем-то другим.</translation>
    </message>
    <message>
        <source>The peer answers for too many presentation contexts.</source>
        <translation>Удалённая сторона отвечает для слишком большого числа контекстов представления.</translation>
    </message>
    <message>
        <source>The peer asked for a transport class other than 0.</source>
        <translation>Удалённая сторона запросила транспортный класс, отличный от 0.</translation>
    </message>
    <message>
        <source>The peer asked for an application context other than MMS.</source>
        <translation>Удалённая сторона запросила прикладной контекст, отличный от MMS.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown presentation selector.</source>
        <translation>Удалённая сторона запросила неизвестный селектор уровня представления.</translation>
    </message>
    <message>
        <source>The peer asked for an unknown transport selector.</source>
        <translation>Удалённая сторона запросила неизвестный селектор транспортного уровня.</translation>
    </message>
    <message>
        <source>The peer asks for a certificate, and this side has none that it trusts.</source>
        <translation>Удалённая сторона требует сертификат, а у этой стороны нет такого, которому та доверяет.</translation>
    </message>
    <message>
        <source>The peer asks for a presentation mode other than normal mode.</source>
        <translation>Удалённая сторона запрашивает режим представления, отличный от нормального.</translation>
    </message>
    <message>
        <source>The peer asks for too many presentation contexts.</source>
        <translation>Удалённая сторона запрашивает слишком много контекстов представления.</translation>
    </message>
    <message>
        <source>The peer cannot read the presentation user data.</source>
        <translation>Удалённая сторона не может прочитать данные пользователя уровня представления.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake.</source>
        <translation>Удалённая сторона закрыла сетевое соединение вместо установления TLS.</translation>
    </message>
    <message>
        <source>The peer closed the network connection instead of a TLS handshake; it may not speak TLS on this port.</source>
        <translation>Удалённая сторона закрыла сетевое соединение вместо установления TLS; возможно, на этом порту она не использует TLS.</translation>
    </message>
    <message>
        <source>The peer closed the network connection.</source>
        <translation>Удалённая сторона закрыла сетевое соединение.</translation>
    </message>
    <message>
        <source>The peer confirmed a transport class other than 0.</source>
        <translation>Удалённая сторона подтвердила транспортный класс, отличный от 0.</translation>
    </message>
    <message>
        <source>The peer cuts session data into segments, which was not agreed.</source>
        <translation>Удалённая сторона делит данные сеанса на сегменты, это не согласовано.</translation>
    </message>
    <message>
        <source>The peer did not accept the presentation contexts of ACSE and MMS.</source>
        <translation>Удалённая сторона не приняла контексты представления ACSE и MMS.</translation>
    </message>
    <message>
        <source>The peer did not answer in time.</source>
        <translation>Удалённая сторона не ответила вовремя.</translation>
    </message>
    <message>
        <source>The peer did not answer the release in time.</source>
        <translation>Удалённая сторона не ответила вовремя на завершение ассоциации.</translation>
    </message>
    <message>
        <source>The peer did not ask for the presentation contexts of ACSE and MMS.</source>
        <translation>Удалённая сторона не запросила контексты представления ACSE и MMS.</translation>
    </message>
    <message>
        <source>The peer did not complete the TLS handshake in time.</source>
        <translation>Удалённая сторона не закончила вовремя установление TLS.</translation>
    </message>
    <message>
        <source>The peer did not complete the association in time.</source>
        <translation>Удалённая сторона не закончила вовремя установление ассоциации.</translation>
    </message>
    <message>
        <source>The peer does not conclude the association: %1.</source>
        <translation>Удалённая сторона не завершает ассоциацию: %1.</translation>
    </message>
    <message>
        <source>The peer does not know the presentation selector.</source>
        <translation>Удалённой стороне неизвестен селектор уровня представления.</translation>
    </message>
    <message>
        <source>The peer does not know the session selector.</source>
        <translation>Удалённой стороне неизвестен селектор сеансового уровня.</translation>
    </message>
    <message>
        <source>The peer does not know the transport selector.</source>
        <translation>Удалённой стороне неизвестен селектор транспортного уровня.</translation>
    </message>
    <message>
        <source>The peer does not read what it is sent.</source>
        <translation>Удалённая сторона не читает то, что ей отправлено.</translation>
    </message>
    <message>
        <source>The peer does not speak ISO transport over TCP: a packet begins with %1 instead of 3.</source>
        <translation>Удалённая сторона не использует транспорт ISO поверх TCP: пакет начинается с %1 вместо 3.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS, which is required here.</source>
        <translation>Удалённая сторона не использует TLS, а здесь он обязателен.</translation>
    </message>
    <message>
        <source>The peer does not speak TLS.</source>
        <translation>Удалённая сторона не использует TLS.</translation>
    </message>
    <message>
        <source>The peer does not support the default context.</source>
        <translation>Удалённая сторона не поддерживает контекст по умолчанию.</translation>
    </message>
    <message>
        <source>The peer does not support the proposed version of the session protocol.</source>
        <translation>Удалённая сторона не поддерживает предложенную версию сеансового протокола.</translation>
    </message>
    <message>
        <source>The peer does not support the version of the presentation protocol.</source>
        <translation>Удалённая сторона не поддерживает версию протокола представления.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection normally.</source>
        <translation>Удалённая сторона нормально завершила транспортное соединение.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection with reason %1.</source>
        <translation>Удалённая сторона завершила транспортное соединение с причиной %1.</translation>
    </message>
    <message>
        <source>The peer ended the transport connection without a reason.</source>
        <translation>Удалённая сторона завершила транспортное соединение без указания причины.</translation>
    </message>
    <message>
        <source>The peer has shown no certificate.</source>
        <translation>Удалённая сторона не предъявила сертификат.</translation>
    </message>
    <message>
        <source>The peer knows the certificate of this side and denies it access.</source>
        <translation>Удалённой стороне известен сертификат этой стороны, но в доступе она отказывает.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter code of the transport unit.</source>
        <translation>Удалённая сторона отклоняет код параметра транспортного блока.</translation>
    </message>
    <message>
        <source>The peer refuses a parameter value of the transport unit.</source>
        <translation>Удалённая сторона отклоняет значение параметра транспортного блока.</translation>
    </message>
    <message>
        <source>The peer refuses a transport unit without a reason.</source>
        <translation>Удалённая сторона отклоняет транспортный блок без указания причины.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being.</source>
        <translation>Удалённая сторона временно отказывает в ассоциации.</translation>
    </message>
    <message>
        <source>The peer refuses the association for the time being: %1.</source>
        <translation>Удалённая сторона временно отказывает в ассоциации: %1.</translation>
    </message>
    <message>
        <source>The peer refuses the association.</source>
        <translation>Удалённая сторона отказывает в ассоциации.</translation>
    </message>
    <message>
        <source>The peer refuses the association: %1.</source>
        <translation>Удалённая сторона отказывает в ассоциации: %1.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it does not trust its issuer.</source>
        <translation>Удалённая сторона отклоняет сертификат этой стороны, так как не доверяет его издателю.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has been revoked.</source>
        <translation>Удалённая сторона отклоняет сертификат этой стороны, так как он отозван.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it has expired or is not valid yet.</source>
        <translation>Удалённая сторона отклоняет сертификат этой стороны, так как его срок истёк или ещё не начался.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side because it is not of a kind that it takes.</source>
        <translation>Удалённая сторона отклоняет сертификат этой стороны, так как не принимает сертификаты такого вида.</translation>
    </message>
    <message>
        <source>The peer refuses the certificate of this side.</source>
        <translation>Удалённая сторона отклоняет сертификат этой стороны.</translation>
    </message>
    <message>
        <source>The peer refuses the handshake because a signature of this side does not fit.</source>
        <translation>Удалённая сторона отклоняет установление TLS, так как подпись этой стороны не подходит.</translation>
    </message>
    <message>
        <source>The peer refuses the initiate request.</source>
        <translation>Удалённая сторона отклоняет запрос Initiate.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection with reason %1.</source>
        <translation>Удалённая сторона отклоняет соединение уровня представления с причиной %1.</translation>
    </message>
    <message>
        <source>The peer refuses the presentation connection.</source>
        <translation>Удалённая сторона отклоняет соединение уровня представления.</translation>
    </message>
    <message>
        <source>The peer refuses the request on this network connection.</source>
        <translation>Удалённая сторона отклоняет запрос в этом сетевом соединении.</translation>
    </message>
    <message>
        <source>The peer refuses the session because it is busy.</source>
        <translation>Удалённая сторона отказывает в сеансе, так как занята.</translation>
    </message>
    <message>
        <source>The peer refuses the session with reason %1.</source>
        <translation>Удалённая сторона отказывает в сеансе с причиной %1.</translation>
    </message>
    <message>
        <source>The peer refuses the session without a reason.</source>
        <translation>Удалённая сторона отказывает в сеансе без указания причины.</translation>
    </message>
    <message>
        <source>The peer refuses the session.</source>
        <translation>Удалённая сторона отказывает в сеансе.</translation>
    </message>
    <message>
        <source>The peer refuses the type of the transport unit.</source>
        <translation>Удалённая сторона отклоняет тип транспортного блока.</translation>
    </message>
    <message>
        <source>The peer refuses to end the session.</source>
        <translation>Удалённая сторона отказывается завершить сеанс.</translation>
    </message>
    <message>
        <source>The peer reports an error in the transport protocol.</source>
        <translation>Удалённая сторона сообщает об ошибке транспортного протокола.</translation>
    </message>
    <message>
        <source>The peer reports an invalid header or parameter length.</source>
        <translation>Удалённая сторона сообщает о неверной длине заголовка или параметра.</translation>
    </message>
    <message>
        <source>The peer said nothing for %1 ms.</source>
        <translation>Удалённая сторона молчала %1 мс.</translation>
    </message>
    <message>
        <source>The peer saw a duplicate transport reference.</source>
        <translation>Удалённая сторона обнаружила повторную транспортную ссылку.</translation>
    </message>
    <message>
        <source>The peer saw mismatched transport references.</source>
        <translation>Удалённая сторона обнаружила несовпадающие транспортные ссылки.</translation>
    </message>
    <message>
        <source>The peer sent a message of more than %1 octets.</source>
        <translation>Удалённая сторона отправила сообщение длиннее допустимого (%1 октетов).</translation>
    </message>
    <message>
        <source>The peer sent a transport unit that does not belong here.</source>
        <translation>Удалённая сторона отправила неуместный здесь транспортный блок.</translation>
    </message>
    <message>
        <source>The peer sent a unit of association control that does not belong here.</source>
        <translation>Удалённая сторона отправила неуместный здесь блок управления ассоциацией.</translation>
    </message>
    <message>
        <source>The peer sent a wrong password.</source>
        <translation>Удалённая сторона отправила неверный пароль.</translation>
    </message>
    <message>
        <source>The peer sent no password.</source>
        <translation>Удалённая сторона не отправила пароль.</translation>
    </message>
    <message>
        <source>The peer sent the session unit &quot;%1&quot;, which does not belong here.</source>
        <translation>Удалённая сторона отправила неуместный здесь сеансовый блок «%1».</translation>
    </message>
    <message>
        <source>The peer speaks TLS, which is not configured here.</source>
        <translation>Удалённая сторона использует TLS, а здесь он не настроен.</translation>
    </message>
    <message>
        <source>The peer&apos;s PDU size of %1 octets is too small.</source>
        <translation>Размер PDU удалённой стороны слишком мал (%1 октетов).</translation>
    </message>
    <message>
        <source>The peer&apos;s association control aborted the association.</source>
        <translation>Управление ассоциацией удалённой стороны прервало ассоциацию.</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot;</source>
        <translation>Сертификат «%1» удалённой стороны</translation>
    </message>
    <message>
        <source>The peer&apos;s certificate &quot;%1&quot; is not one of those that are pinned; its fingerprint is %2.</source>
        <translation>Сертификата «%1» удалённой стороны нет среди закреплённых; его отпечаток: %2.</translation>
    </message>
    <message>
        <source>The peer&apos;s initiate answer cannot be read: %1.</source>
        <translation>Ответ удалённой стороны на Initiate не удаётся прочитать: %1.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted without a reason.</source>
        <translation>Уровень представления удалённой стороны прервал связь без указания причины.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer aborted.</source>
        <translation>Уровень представления удалённой стороны прервал связь.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a parameter and aborted.</source>
        <translation>Уровень представления удалённой стороны не ожидал параметра и прервал связь.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a session service and aborted.</source>
        <translation>Уровень представления удалённой стороны не ожидал службы сеанса и прервал связь.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer did not expect a unit and aborted.</source>
        <translation>Уровень представления удалённой стороны не ожидал блока и прервал связь.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a parameter and aborted.</source>
        <translation>Уровень представления удалённой стороны не распознал параметр и прервал связь.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer does not recognise a unit and aborted.</source>
        <translation>Уровень представления удалённой стороны не распознал блок и прервал связь.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer found an invalid parameter value and aborted.</source>
        <translation>Уровень представления удалённой стороны нашёл недопустимое значение параметра и прервал связь.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer has reached a limit of its own.</source>
        <translation>Уровень представления удалённой стороны достиг собственного предела.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer is congested.</source>
        <translation>Уровень представления удалённой стороны перегружен.</translation>
    </message>
    <message>
        <source>The peer&apos;s presentation layer refuses the connection without a reason.</source>
        <translation>Уровень представления удалённой стороны отказывает в соединении без указания причины.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer aborted the session.</source>
        <translation>Сеансовый уровень удалённой стороны прервал сеанс.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer is congested.</source>
        <translation>Сеансовый уровень удалённой стороны перегружен.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session because of a restriction of its own.</source>
        <translation>Сеансовый уровень удалённой стороны отказывает в сеансе из-за собственного ограничения.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer refuses the session.</source>
        <translation>Сеансовый уровень удалённой стороны отказывает в сеансе.</translation>
    </message>
    <message>
        <source>The peer&apos;s session layer reports an error in the protocol and aborted the session.</source>
        <translation>Сеансовый уровень удалённой стороны сообщает об ошибке протокола и прервал сеанс.</translation>
    </message>
    <message>
        <source>The peer&apos;s session request cannot be accepted.</source>
        <translation>Запрос сеанса от удалённой стороны нельзя принять.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport layer is congested.</source>
        <translation>Транспортный уровень удалённой стороны перегружен.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport references have overflowed.</source>
        <translation>У удалённой стороны закончились транспортные ссылки.</translation>
    </message>
    <message>
        <source>The peer&apos;s transport selector is congested.</source>
        <translation>Селектор транспортного уровня удалённой стороны перегружен.</translation>
    </message>
    <message>
        <source>The position is not within the file.</source>
        <translation>Позиция находится вне файла.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Закрытый ключ в файле «%1» непригоден (%2).</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not fit the certificate in the file &quot;%2&quot;.</source>
        <translation>Закрытый ключ в файле «%1» не подходит к сертификату в файле «%2».</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; does not open with the password that is given.</source>
        <translation>Закрытый ключ в файле «%1» не открывается указанным паролем.</translation>
    </message>
    <message>
        <source>The private key in the file &quot;%1&quot; is encrypted, and no password is given.</source>
        <translation>Закрытый ключ в файле «%1» зашифрован, а пароль не указан.</translation>
    </message>
    <message>
        <source>The report ends before its %1.</source>
        <translation>Отчёт обрывается перед полем %1.</translation>
    </message>
    <message>
        <source>The report has no value for its %1: %2.</source>
        <translation>В отчёте нет значения для поля %1: %2.</translation>
    </message>
    <message>
        <source>The report says that it brings %1 members, which are %2 values, but it has %3.</source>
        <translation>В отчёте указано элементов: %1, то есть значений: %2, но получено: %3.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is neither true nor false.</source>
        <translation>Поле %1 отчёта не является логическим значением.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a binary time.</source>
        <translation>Поле %1 отчёта не является двоичным временем.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a bit string.</source>
        <translation>Поле %1 отчёта не является битовой строкой.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a number of 32 bits without sign.</source>
        <translation>Поле %1 отчёта не является 32-битным числом без знака.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a string of octets.</source>
        <translation>Поле %1 отчёта не является строкой октетов.</translation>
    </message>
    <message>
        <source>The report&apos;s %1 is not a text.</source>
        <translation>Поле %1 отчёта не является текстом.</translation>
    </message>
    <message>
        <source>The request is longer than the negotiated PDU size of %1 octets.</source>
        <translation>Запрос длиннее согласованного размера PDU (%1 октетов).</translation>
    </message>
    <message>
        <source>The request was not sent: it waited for a place behind calls that the peer has not answered.</source>
        <translation>Запрос не отправлен: он ждал места за запросами, на которые удалённая сторона не ответила.</translation>
    </message>
    <message>
        <source>The revocation list in the file &quot;%1&quot; cannot be used (%2).</source>
        <translation>Список отзыва в файле «%1» непригоден (%2).</translation>
    </message>
    <message>
        <source>The root element is in no name space; it should be in &quot;%1&quot;.</source>
        <translation>Корневой элемент не относится ни к одному пространству имён; требуется «%1».</translation>
    </message>
    <message>
        <source>The root element is in the name space &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Корневой элемент относится к пространству имён «%1», а не к «%2».</translation>
    </message>
    <message>
        <source>The server was stopped.</source>
        <translation>Сервер остановлен.</translation>
    </message>
    <message>
        <source>The service was called out of sequence.</source>
        <translation>Служба вызвана не в том порядке.</translation>
    </message>
    <message>
        <source>The services offered do not suit the device.</source>
        <translation>Предложенные службы не подходят устройству.</translation>
    </message>
    <message>
        <source>The session parameter %1 has a wrong length.</source>
        <translation>Параметр сеанса %1 имеет неверную длину.</translation>
    </message>
    <message>
        <source>The size of transport units is not one of 128 to 8,192 octets.</source>
        <translation>Размер транспортных блоков не является одним из допустимых (от 128 до 8192 октетов).</translation>
    </message>
    <message>
        <source>The state of the device does not allow this.</source>
        <translation>Состояние устройства не допускает этого.</translation>
    </message>
    <message>
        <source>The transport classes of both sides do not match.</source>
        <translation>Транспортные классы двух сторон не совпадают.</translation>
    </message>
    <message>
        <source>The transport unit &quot;%1&quot; is shorter than its fixed part.</source>
        <translation>Транспортный блок «%1» короче своей постоянной части.</translation>
    </message>
    <message>
        <source>The truth value is written &quot;%1&quot; instead of &quot;true&quot; or &quot;false&quot;.</source>
        <translation>Логическое значение записано как «%1» вместо «true» или «false».</translation>
    </message>
    <message>
        <source>The type is not supported.</source>
        <translation>Тип не поддерживается.</translation>
    </message>
    <message>
        <source>The type of %1 cannot be read: %2.</source>
        <translation>Тип %1 не удаётся прочитать: %2.</translation>
    </message>
    <message>
        <source>The types do not agree.</source>
        <translation>Типы не совпадают.</translation>
    </message>
    <message>
        <source>The value %1 does not fit the type %2 of the device.</source>
        <translation>Значение %1 не подходит к типу %2 устройства.</translation>
    </message>
    <message>
        <source>The value &quot;%1&quot; differs in blanks or capitals from what is expected.</source>
        <translation>Значение «%1» отличается от ожидаемого пробелами или прописными буквами.</translation>
    </message>
    <message>
        <source>The value has not the type of the object.</source>
        <translation>Тип значения не совпадает с типом объекта.</translation>
    </message>
    <message>
        <source>The value is empty, so the attribute has none.</source>
        <translation>Значение пустое, поэтому у атрибута нет значения.</translation>
    </message>
    <message>
        <source>The value is given by its number &quot;%1&quot; instead of its text.</source>
        <translation>Значение указано номером «%1», а не текстом.</translation>
    </message>
    <message>
        <source>The value is not allowed for the object.</source>
        <translation>Значение недопустимо для объекта.</translation>
    </message>
    <message>
        <source>The value of the control block does not match its type %1.</source>
        <translation>Значение блока управления не соответствует своему типу %1.</translation>
    </message>
    <message>
        <source>There are %1 associations already, which is the limit.</source>
        <translation>Ассоциаций уже %1, больше не допускается.</translation>
    </message>
    <message>
        <source>There is a problem with the other application.</source>
        <translation>Неполадка в другом приложении.</translation>
    </message>
    <message>
        <source>There is another IED of the name &quot;%1&quot;.</source>
        <translation>Есть ещё одно ИЭУ с именем «%1».</translation>
    </message>
    <message>
        <source>There is another control block &quot;%1&quot;.</source>
        <translation>Есть ещё один блок управления «%1».</translation>
    </message>
    <message>
        <source>There is another data set &quot;%1&quot;.</source>
        <translation>Есть ещё один набор данных «%1».</translation>
    </message>
    <message>
        <source>There is another logical device &quot;%1&quot;.</source>
        <translation>Есть ещё одно логическое устройство «%1».</translation>
    </message>
    <message>
        <source>There is another logical node &quot;%1&quot;.</source>
        <translation>Есть ещё один логический узел «%1».</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot;</source>
        <translation>«%1» отсутствует</translation>
    </message>
    <message>
        <source>There is no association.</source>
        <translation>Ассоциации нет.</translation>
    </message>
    <message>
        <source>There is no data set %1.</source>
        <translation>Набора данных %1 нет.</translation>
    </message>
    <message>
        <source>There is no functional constraint (attribute fc)</source>
        <translation>Нет функциональной связи (атрибут fc)</translation>
    </message>
    <message>
        <source>There is no logical device &quot;%1&quot;</source>
        <translation>Нет логического устройства «%1»</translation>
    </message>
    <message>
        <source>There is no logical node &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Нет логического узла «%1» в «%2»</translation>
    </message>
    <message>
        <source>There is not enough memory to read the file.</source>
        <translation>Не хватает памяти для чтения файла.</translation>
    </message>
    <message>
        <source>There is not enough room for the file.</source>
        <translation>Не хватает места для файла.</translation>
    </message>
    <message>
        <source>There is nothing of functional constraint &quot;%1&quot; in &quot;%2&quot;</source>
        <translation>Нет ничего с функциональной связью «%1» в «%2»</translation>
    </message>
    <message>
        <source>This is no report control block: it has no RptEna.</source>
        <translation>Это не блок управления отчётом: нет RptEna.</translation>
    </message>
    <message>
        <source>This is no setting group control block: NumOfSG or ActSG is missing.</source>
        <translation>Это не блок управления группами уставок: нет NumOfSG или ActSG.</translation>
    </message>
    <message>
        <source>This is not a report but %1.</source>
        <translation>Это не отчёт, а %1.</translation>
    </message>
    <message>
        <source>This is not an SCL file: its root element is &quot;%1&quot;.</source>
        <translation>Это не файл SCL: его корневой элемент — «%1».</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Открыто слишком много файлов</translation>
    </message>
    <message>
        <source>User information is in a form that is not supported.</source>
        <translation>Информация пользователя имеет неподдерживаемый вид.</translation>
    </message>
    <message>
        <source>What the peer sent cannot be read: %1.</source>
        <translation>Не удаётся прочитать то, что прислала удалённая сторона: %1.</translation>
    </message>
    <message>
        <source>XML or text declaration not at start of entity</source>
        <translation>Объявление XML или текста стоит не в начале сущности</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist in type &quot;%2&quot;; what is given for it is left out.</source>
        <translation>«%1» нет в типе «%2»; заданное для него пропущено.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value, but it is a structure.</source>
        <translation>У «%1» есть значение, но это структура.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2</source>
        <translation>В «%1» нет элемента %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no element %2; what is given for it is left out.</source>
        <translation>В «%1» нет элемента %2; заданное для него пропущено.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a directory, not a file.</source>
        <translation>«%1» — каталог, а не файл.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is an array, and no element is given</source>
        <translation>«%1» является массивом, а элемент не указан</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice in its type; the first is used.</source>
        <translation>«%1» определено в своём типе дважды; используется первое определение.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither &quot;true&quot; nor &quot;false&quot;; %2 is used.</source>
        <translation>«%1» не равно ни «true», ни «false»; используется %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a SHA-256 fingerprint of 64 hexadecimal digits.</source>
        <translation>«%1» не является отпечатком SHA-256 из 64 шестнадцатеричных цифр.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a basic type of the standard; values are kept as texts.</source>
        <translation>«%1» не является базовым типом стандарта; значения хранятся как текст.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a directory.</source>
        <translation>«%1» не является каталогом.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a functional constraint.</source>
        <translation>«%1» не является функциональной связью.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name that a certificate can have.</source>
        <translation>«%1» не является именем узла, возможным в сертификате.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of array elements; the element is taken as a single one.</source>
        <translation>«%1» не является числом элементов массива; элемент считается одиночным.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number of milliseconds.</source>
        <translation>«%1» не является числом миллисекунд.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2 &quot;%3&quot;; the attribute has no value.</source>
        <translation>«%1» не является значением %2 «%3»; у атрибута нет значения.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; %3 is used.</source>
        <translation>«%1» не является значением %2; используется %3.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of %2; the attribute has no value.</source>
        <translation>«%1» не является значением %2; у атрибута нет значения.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of its type; the attribute has no value.</source>
        <translation>«%1» не является значением своего типа; у атрибута нет значения.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an address of a network interface.</source>
        <translation>«%1» не является адресом сетевого интерфейса.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array</source>
        <translation>«%1» не является массивом</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an array; the element number is ignored.</source>
        <translation>«%1» не является массивом; номер элемента не учитывается.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an ordinal; the literal is left out.</source>
        <translation>«%1» не является порядковым номером; литерал пропущен.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not the number of an array element.</source>
        <translation>«%1» не является номером элемента массива.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; names an attribute, which takes a DAI.</source>
        <translation>«%1» указывает на атрибут, для него нужен DAI.</translation>
    </message>
    <message>
        <source>a certificate</source>
        <translation>сертификат</translation>
    </message>
    <message>
        <source>a command is being executed already</source>
        <translation>команда уже выполняется</translation>
    </message>
    <message>
        <source>a parameter is being changed</source>
        <translation>изменяется параметр</translation>
    </message>
    <message>
        <source>a revocation list</source>
        <translation>список отзыва</translation>
    </message>
    <message>
        <source>additional cause %1</source>
        <translation>дополнительная причина %1</translation>
    </message>
    <message>
        <source>additional code %1</source>
        <translation>дополнительный код %1</translation>
    </message>
    <message>
        <source>an authentication is required</source>
        <translation>требуется аутентификация</translation>
    </message>
    <message>
        <source>an authentication mechanism is required</source>
        <translation>требуется механизм аутентификации</translation>
    </message>
    <message>
        <source>an authority</source>
        <translation>удостоверяющий центр</translation>
    </message>
    <message>
        <source>an unknown date</source>
        <translation>дата неизвестна</translation>
    </message>
    <message>
        <source>another object of the domain is being controlled</source>
        <translation>выполняется управление другим объектом той же области</translation>
    </message>
    <message>
        <source>blocked because the switching authority lies elsewhere (local or remote)</source>
        <translation>заблокировано: управление разрешено с другого места (местного или дистанционного)</translation>
    </message>
    <message>
        <source>blocked by an event of the process</source>
        <translation>заблокировано событием процесса</translation>
    </message>
    <message>
        <source>blocked by interlocking</source>
        <translation>заблокировано оперативной блокировкой</translation>
    </message>
    <message>
        <source>blocked by synchrocheck</source>
        <translation>заблокировано контролем синхронизма</translation>
    </message>
    <message>
        <source>blocked by the data object that blocks commands</source>
        <translation>заблокировано объектом данных, запрещающим команды</translation>
    </message>
    <message>
        <source>blocked by the health of the logical node</source>
        <translation>заблокировано состоянием (Health) логического узла</translation>
    </message>
    <message>
        <source>blocked by the mode of the logical node</source>
        <translation>заблокировано режимом (Mode) логического узла</translation>
    </message>
    <message>
        <source>control error %1</source>
        <translation>ошибка управления %1</translation>
    </message>
    <message>
        <source>duplicate attribute</source>
        <translation>повторный атрибут</translation>
    </message>
    <message>
        <source>ended because the position deviates from the command</source>
        <translation>завершено, так как положение не соответствует команде</translation>
    </message>
    <message>
        <source>ended beyond the wanted position</source>
        <translation>завершено за пределами заданного положения</translation>
    </message>
    <message>
        <source>ended by a cancel</source>
        <translation>завершено отменой (Cancel)</translation>
    </message>
    <message>
        <source>ended by a trip</source>
        <translation>завершено срабатыванием защиты</translation>
    </message>
    <message>
        <source>ended by the loss of the connection with the client that issued it</source>
        <translation>завершено из-за потери связи с клиентом, подавшим команду</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>ошибка %1</translation>
    </message>
    <message>
        <source>it gives no reason; another client may have selected the object.</source>
        <translation>причина не указана; возможно, объект выбран другим клиентом.</translation>
    </message>
    <message>
        <source>it has no address</source>
        <translation>у него нет адреса</translation>
    </message>
    <message>
        <source>it is not in a logical device.</source>
        <translation>не относится к логическому устройству.</translation>
    </message>
    <message>
        <source>it names more than one element of one array.</source>
        <translation>указывает более одного элемента одного массива.</translation>
    </message>
    <message>
        <source>it names several parts.</source>
        <translation>указывает несколько частей.</translation>
    </message>
    <message>
        <source>junk after document element</source>
        <translation>лишние данные после корневого элемента</translation>
    </message>
    <message>
        <source>locked by another client</source>
        <translation>заблокировано другим клиентом</translation>
    </message>
    <message>
        <source>mismatched tag</source>
        <translation>открывающий и закрывающий теги не совпадают</translation>
    </message>
    <message>
        <source>no cause</source>
        <translation>без причины</translation>
    </message>
    <message>
        <source>no error</source>
        <translation>ошибки нет</translation>
    </message>
    <message>
        <source>no reason given</source>
        <translation>причина не указана</translation>
    </message>
    <message>
        <source>nobody answers who knows names</source>
        <translation>служба имён не отвечает</translation>
    </message>
    <message>
        <source>nobody knows it</source>
        <translation>оно никому не известно</translation>
    </message>
    <message>
        <source>reason %1</source>
        <translation>причина %1</translation>
    </message>
    <message>
        <source>syntax error</source>
        <translation>синтаксическая ошибка</translation>
    </message>
    <message>
        <source>the application context is not supported</source>
        <translation>прикладной контекст не поддерживается</translation>
    </message>
    <message>
        <source>the authentication failed</source>
        <translation>аутентификация не удалась</translation>
    </message>
    <message>
        <source>the authentication mechanism is not recognised</source>
        <translation>механизм аутентификации не распознан</translation>
    </message>
    <message>
        <source>the called AE invocation identifier is not recognised</source>
        <translation>не распознан идентификатор вызова AE вызываемой стороны</translation>
    </message>
    <message>
        <source>the called AE qualifier is not recognised</source>
        <translation>не распознан квалификатор AE вызываемой стороны</translation>
    </message>
    <message>
        <source>the called AP invocation identifier is not recognised</source>
        <translation>не распознан идентификатор вызова AP вызываемой стороны</translation>
    </message>
    <message>
        <source>the called AP title is not recognised</source>
        <translation>не распознан заголовок AP вызываемой стороны</translation>
    </message>
    <message>
        <source>the calling AE invocation identifier is not recognised</source>
        <translation>не распознан идентификатор вызова AE вызывающей стороны</translation>
    </message>
    <message>
        <source>the calling AE qualifier is not recognised</source>
        <translation>не распознан квалификатор AE вызывающей стороны</translation>
    </message>
    <message>
        <source>the calling AP invocation identifier is not recognised</source>
        <translation>не распознан идентификатор вызова AP вызывающей стороны</translation>
    </message>
    <message>
        <source>the calling AP title is not recognised</source>
        <translation>не распознан заголовок AP вызывающей стороны</translation>
    </message>
    <message>
        <source>the client has no authority for it</source>
        <translation>у клиента нет на это полномочий</translation>
    </message>
    <message>
        <source>the functional constraint is missing.</source>
        <translation>не указана функциональная связь.</translation>
    </message>
    <message>
        <source>the name of the logical device is missing or wrong.</source>
        <translation>имя логического устройства отсутствует или неверно.</translation>
    </message>
    <message>
        <source>the name of the logical node is missing or wrong.</source>
        <translation>имя логического узла отсутствует или неверно.</translation>
    </message>
    <message>
        <source>the object is not selected</source>
        <translation>объект не выбран</translation>
    </message>
    <message>
        <source>the object is selected already</source>
        <translation>объект уже выбран</translation>
    </message>
    <message>
        <source>the operator test failed</source>
        <translation>проверка оператора не пройдена</translation>
    </message>
    <message>
        <source>the own certificate</source>
        <translation>собственный сертификат</translation>
    </message>
    <message>
        <source>the parameters of the service contradict those of the selection</source>
        <translation>параметры службы противоречат параметрам выбора</translation>
    </message>
    <message>
        <source>the position has been reached already</source>
        <translation>положение уже достигнуто</translation>
    </message>
    <message>
        <source>the position is not valid</source>
        <translation>положение недействительно</translation>
    </message>
    <message>
        <source>the private key</source>
        <translation>закрытый ключ</translation>
    </message>
    <message>
        <source>the selection failed</source>
        <translation>выбор не удался</translation>
    </message>
    <message>
        <source>the service is not supported</source>
        <translation>служба не поддерживается</translation>
    </message>
    <message>
        <source>the tap changer is at the end of its range</source>
        <translation>переключатель ответвлений находится в крайнем положении</translation>
    </message>
    <message>
        <source>the time for it is over</source>
        <translation>время для этого истекло</translation>
    </message>
    <message>
        <source>the time-out test failed</source>
        <translation>проверка предела времени не пройдена</translation>
    </message>
    <message>
        <source>there is no common version of association control</source>
        <translation>нет общей версии управления ассоциацией</translation>
    </message>
    <message>
        <source>unclosed CDATA section</source>
        <translation>незакрытая секция CDATA</translation>
    </message>
    <message>
        <source>unclosed token</source>
        <translation>незакрытая лексема</translation>
    </message>
    <message>
        <source>unknown cause</source>
        <translation>причина неизвестна</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>неизвестная ошибка</translation>
    </message>
    <message>
        <source>%1: the value does not have the form of its type.</source>
        <translation>%1: значение не соответствует своему типу.</translation>
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
    <message>
        <source>&amp;Undo Remove</source>
        <translation>Верн&amp;уть в список</translation>
    </message>
    <message>
        <source>Ctrl+Z</source>
        <translation>Ctrl+Z</translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation>Убрать устройство</translation>
    </message>
    <message>
        <source>Take %1 off the list?</source>
        <translation>Убрать %1 из списка?</translation>
    </message>
    <message>
        <source>Its connection ends, and windows that are open for it are no longer served.</source>
        <translation>Связь с устройством завершится, а открытые для него окна больше не будут обслуживаться.</translation>
    </message>
    <message>
        <source>Windows that are open for it are no longer served.</source>
        <translation>Открытые для него окна больше не будут обслуживаться.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Убрать</translation>
    </message>
    <message>
        <source>%1 was taken off the list; %2 puts it back.</source>
        <translation>%1: убрано из списка; чтобы вернуть: %2.</translation>
    </message>
    <message>
        <source>%1 was taken off the list; its file stays where it is, and %2 puts it back.</source>
        <translation>%1: убрано из списка; файл остаётся на месте; чтобы вернуть: %2.</translation>
    </message>
    <message>
        <source>&amp;Undo Remove of %1</source>
        <translation>Верн&amp;уть в список: %1</translation>
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
    <name>ToolWindows</name>
    <message>
        <source>%1 – %2</source>
        <translation>%1 – %2</translation>
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
        <source>The trace stayed empty.</source>
        <translation>Трассировка осталась пустой.</translation>
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
    <name>WaitingCalls</name>
    <message>
        <source>Waiting for %1</source>
        <translation>Ожидание: %1</translation>
    </message>
    <message>
        <source>%1 has not answered yet (%2).</source>
        <translation>%1: ответа пока нет (%2).</translation>
    </message>
    <message>
        <source>Cancelling. What the device was asked before may still be done.</source>
        <translation>Отмена. То, что уже было запрошено у устройства, ещё может быть выполнено.</translation>
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
