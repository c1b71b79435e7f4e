<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>«%1» уже имеет этот адрес и порт.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>В адресе не бывает пробелов.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>Это не IPv6-адрес и не хост с портом.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>IP-адрес состоит из четырёх чисел от 0 до 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>Имя хоста содержит только буквы, цифры, точки и дефисы.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Порт — это число от 1 до 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>В этом URL нет читаемого хоста.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>нет подключённой сети IPv4</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>система не предоставляет сокет: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
    </message>
</context>
<context>
    <name>CameraSurvey</name>
    <message>
        <source>Nothing was written, because these passwords cannot be read: %1. Unlock your keychain, bring the key file back, or leave the passwords out.</source>
        <translation>Ничего не записано, потому что не удаётся прочитать эти пароли: %1. Разблокируйте связку ключей, верните файл ключа или исключите пароли.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Базы данных нет.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>этот адрес есть у нескольких устройств; укажите тип, порт и канал</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>это имя есть у нескольких устройств; укажите адрес</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>это база данных; она не изменена.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Не удаётся записать %1: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 и ещё %2</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>содержит управляющие символы</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>длиннее 1024 символов</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>содержит разрыв строки</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>содержит невидимые символы</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>не число от 0 до 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>не число от 1 до 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>не yes, no, true, false, 1 или 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>не MAC-адрес (двенадцать шестнадцатеричных цифр)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>не IP device, URL camera или channel device и не число</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>не число</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 Импорт на этом остановлен; сохранено только то, что здесь посчитано. Для остального импортируйте файл ещё раз.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 — не обычный файл.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 — сама база данных узлов.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Не удаётся прочитать %1: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>Ошибочных строк: %1; это не список камер.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>Пароли из списка (в строке %1) нельзя сохранить, потому что нет ключа для их шифрования. Разблокируйте связку ключей, верните файл ключа или разрешите запись в папку конфигурации. Ничего не импортировано.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>Не удаётся прочитать первую строку: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>устройства этого типа здесь нельзя добавить</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>папки записей здесь нельзя добавить</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>не удалось добавить устройство</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>по этому адресу находится не устройство</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>у устройства по этому адресу нет каналов</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>не удалось изменить устройство</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>Столбец «%1» встречается дважды.</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>Нет столбца «address». Первая строка должна содержать имена столбцов.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>ячеек больше, чем столбцов</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>неверно %1: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>нет ни имени, ни адреса</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>у устройства этого типа нет каналов</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>это не имя узла сети и не IP-адрес</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>содержит не только узел; для порта, SSL и пользователя есть свои столбцы</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>относится к тому же устройству, что и строка %1, и изменит указанное в ней</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>у нового устройства не будет имени</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>Пароли списка (в строке %1) нельзя сохранить, потому что на этом компьютере нет ключа общей базы данных. Сначала укажите её парольную фразу. Ничего не импортировано.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Свойства: %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Свойства %n узла</numerusform>
            <numerusform>Свойства %n узлов</numerusform>
            <numerusform>Свойства %n узлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Папки записей</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Папка записей: %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Папки записей %n камеры</numerusform>
            <numerusform>Папки записей %n камер</numerusform>
            <numerusform>Папки записей %n камер</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Пользователи и пароли</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Пользователь и пароль: %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Пользователь и пароль %n узла</numerusform>
            <numerusform>Пользователь и пароль %n узлов</numerusform>
            <numerusform>Пользователь и пароль %n узлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Добавление узлов</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Добавление: %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Добавление %n узла</numerusform>
            <numerusform>Добавление %n узлов</numerusform>
            <numerusform>Добавление %n узлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Удаление узлов</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Удаление: %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Удаление %n узла</numerusform>
            <numerusform>Удаление %n узлов</numerusform>
            <numerusform>Удаление %n узлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Импорт: %1</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>Данные от камер</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>Данные от: %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>Данные от %n камеры</numerusform>
            <numerusform>Данные от %n камер</numerusform>
            <numerusform>Данные от %n камер</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Новые адреса</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Новый адрес: %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Новые адреса %n устройства</numerusform>
            <numerusform>Новые адреса %n устройств</numerusform>
            <numerusform>Новые адреса %n устройств</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Поиски</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Поиск нашёл: %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Поиск нашёл %n устройство</numerusform>
            <numerusform>Поиск нашёл %n устройства</numerusform>
            <numerusform>Поиск нашёл %n устройств</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Признаки камер</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Признаки: %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Признаки %n камеры</numerusform>
            <numerusform>Признаки %n камер</numerusform>
            <numerusform>Признаки %n камер</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Общий прокси</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Среды</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Новая база данных</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Восстановленная резервная копия</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Возвращено</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Изменение более новой версии</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Повторено: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Возвращено: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Пароли зашифрованы заново</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>Ячейка в кавычках, начинающаяся в записи строки %1, не закрыта.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>Запись, начинающаяся в строке %1, длиннее 1 МиБ.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>после закрывающей кавычки ячейки есть текст</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>Это не текстовый файл (в строке %1 двоичные данные). Сохраните файл как текст UTF-8.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>Строка %1 длиннее 1 МиБ.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>Строка %1 — не текст UTF-8. Сохраните файл в UTF-8 и повторите попытку.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Не удаётся прочитать файл: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>слишком долго нет ответа</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>недопустимый адрес</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>не поддерживает ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>не сообщает, что это за устройство</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>требует пароль, а он не сохранён</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>требует пароль в открытом виде</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>требует пароль неизвестным способом</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>не сообщает об изображениях этого канала</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>конечная точка отличается от прежней</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>область авторизации отличается от прежней</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>серийный номер отличается от прежнего</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>там был отклонён другой пароль</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>нет своевременного ответа</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>ответ слишком длинный</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>перенаправляет в другое место</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>сертификат отличается от прежнего</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>Файл «%1» нельзя использовать: его имя не является текстом в кодировке этой системы. Переименуйте его.</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>Имя:</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>Пользователь и пароль введены</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Адрес прокси</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Порт прокси</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Пользователь прокси</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Пароль прокси</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Сохранять пароль прокси</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Поворотная головка</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Использовать удалённый просмотр</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Сохранять пароль</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Звук</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Режим просмотра</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Данные подключения по умолчанию</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Частота кадров по умолчанию</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Качество JPEG по умолчанию</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Разрешение по умолчанию</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Настройка звука по умолчанию</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Путь файлового сервера по умолчанию</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Сервер удалённого просмотра по умолчанию</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Активная среда</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Использовать прокси</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Исключения прокси</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Среды</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Общий прокси</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Узел</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Известное устройство</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(отсутствует)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(скрыт)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>изменён</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>Уже так.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>С тех пор изменено.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>Узел удалён.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>Теперь его используют другие.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Дни истории</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Мегабайты истории</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>По умолчанию</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Запись неизвестного вида «%1»</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Уровень %1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Журнал программы</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Принят новый адрес</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Устройство %1 перенесено с адреса %2 на %3, где оно найдено.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Импортированы устройства</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Импортированы устройства из %1: добавлено %2, изменено %3, отклонено строк: %4.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Изменено без диалога</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Добавлено программой</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Удалено программой</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Изменены настройки</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Изменён общий прокси</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Изменены среды</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Найдено поиском</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Приняты новые адреса</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Записаны признаки камер</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Внесены данные, полученные от камер</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Импортирован список</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Создана база данных</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Восстановлена резервная копия</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Изменено более новой версией</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Изменены папки записей</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Изменены пользователи и пароли</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Возвращено</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Добавлено устройство</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Удалено устройство</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Разрешён открытый пароль</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Принято другое устройство</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Добавлено устройство с именем %1.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Удалено устройство с именем %1.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Принято другое устройство, чем прежде, как %1.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>Разрешено отправлять пароль %1 в открытом виде.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>История прорежена</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Из истории убраны подробности изменений до номера %1: строк %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 и ещё %n узел</numerusform>
            <numerusform>%1 и ещё %n узла</numerusform>
            <numerusform>%1 и ещё %n узлов</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>Пароли зашифрованы заново</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>Набор изменений %1 изменён.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>Строка %1 наборов изменений изменена.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>Запись %1 журнала аудита изменена.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>Набор изменений %1 отсутствует.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>Строка %1 наборов изменений отсутствует.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>Запись %1 журнала аудита отсутствует.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>Набор изменений %1 вставлен другой программой.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>Строка %1 наборов изменений вставлена другой программой.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>Запись %1 журнала аудита вставлена другой программой.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>Начиная с набора изменений %1 журнал переписан.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>Начиная с строки %1 наборов изменений журнал переписан.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>Начиная с записи %1 журнала аудита журнал переписан.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>Начиная с набора изменений %1 журнал запечатан другим ключом.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>Начиная с строки %1 наборов изменений журнал запечатан другим ключом.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>Начиная с записи %1 журнала аудита журнал запечатан другим ключом.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>То, что следовало после набора изменений %1, отрезано.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>То, что следовало после строки %1 наборов изменений, отрезано.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>То, что следовало после записи %1 журнала аудита, отрезано.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>Это не тот журнал, который был здесь раньше.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>MAC-адрес состоит из двенадцати шестнадцатеричных цифр, например 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>служба Avahi не запущена</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>служба Avahi не отвечает</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>все интерфейсы</translation>
    </message>
</context>
<context>
    <name>NodeFacts</name>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>Версия ПО</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC-адрес</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Текущие IP-адреса</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Заводской IP-адрес</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Прямой поток (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Каналы</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Разрешения</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Поворот, наклон, зум</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Устройство</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Параметры раскладки</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Записи</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Прокси</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Камеры</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>Папка записей</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>IP-камера</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>URL-камера</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>Многоканальное устройство</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Внутренний регистратор</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Сервер удалённого предпросмотра</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Узел типа %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Удалённый предпросмотр: %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Этот узел тем временем удалён. Изменения нельзя сохранить: закройте это окно.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>не сообщает адрес изображения</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>адрес изображения содержит открытый пароль</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>то, что оно отправляет, не является изображением</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>отказывает в изображении</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>требует пароль, а он не сохранён</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>у изображений другая область авторизации, чем у устройства</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>требует пароль неизвестным способом</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>требует пароль в открытом виде</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Путь:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>Путь находится внутри пути к файловому серверу по умолчанию</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Адрес:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Защищённое соединение (SSL)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Выберите папку</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(пусто)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(различаются)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>«%1» — не база данных узлов, а файл другого вида. Он не изменён. Выберите файл своей базы данных или новое имя файла, чтобы начать с пустой.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>«%1» — база данных другой программы, узлов в ней нет. Она не изменена. Выберите свою базу данных узлов или новое имя файла, чтобы начать с пустой.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>Таблицы базы данных узлов «%1» изменены другой программой, и им нельзя доверять. База не изменена. Замените её резервной копией.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>База данных узлов «%1» пуста или исчезла, но её журнал или резервные копии сохранились. Ничего не изменено. Восстановите резервную копию или выберите новое имя файла, чтобы начать с пустой.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>База данных узлов «%1» повреждена. Она не изменена. Восстановите резервную копию; копии, сделанные этой программой, находятся в папке «%1.backups».</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>База данных узлов «%1» записана более новой версией этой программы. Установите эту версию на данный компьютер или откройте резервную копию, которую она сделала в той же папке.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>Базу данных узлов «%1» нельзя изменить, потому что файл или его папка защищены от записи. Попросите администратора дать право записи или скопируйте базу в свою папку и откройте копию.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>База данных узлов «%1» занята другой программой. Закройте её или дождитесь окончания резервного копирования и повторите попытку.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>Для базы данных узлов «%1» нет места. Удалите с этого диска ненужные файлы и повторите попытку.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>Не удаётся открыть базу данных узлов «%1». Проверьте, что её папка существует, диск или сетевой диск подключён и вы вправе читать файл.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>«%1» — папка, устройство или канал и не может содержать базу данных узлов. Ничего не изменено. Выберите другой файл.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>«%1» — сама база данных узлов; она не изменена. Выберите для копии другой файл.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Некоторые пароли в базе данных узлов «%1» не удаётся прочитать, и они показаны пустыми, потому что нет ключа, которым они зашифрованы. Разблокируйте связку ключей или верните файл ключа и перезапустите программу. Пароли остаются в базе, пока вы не зададите новые.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Некоторые пароли в базе данных узлов «%1» изменены не этой программой и показаны пустыми. Они остаются в базе, пока вы не зададите новые. Выясните, кто может записывать в файл, или вернитесь к резервной копии.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>Пароли нельзя сохранить в базе данных узлов «%1», потому что ключа для их шифрования нет ни в связке ключей, ни в файле и сохранить его там нельзя. Разблокируйте связку ключей, верните файл ключа или разрешите запись в папку конфигурации и повторите попытку.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>Не удаётся прочитать или записать базу данных узлов «%1». Проверьте, что её диск или сетевой диск подключён, и повторите попытку.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Некоторые пароли общей базы данных в «%1» нельзя прочитать, и они показываются пустыми, потому что на этом компьютере нет ключа, которым они были зашифрованы. Щёлкните состояние соединения в строке состояния и укажите парольную фразу объекта. Они остаются в базе данных, пока вы не укажете новые.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>Пароли нельзя сохранить в общей базе данных в «%1», потому что на этом компьютере нет ключа объекта. Щёлкните состояние соединения в строке состояния, укажите парольную фразу объекта и повторите попытку.</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>Камеры:</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>В этом виде:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Поиск камер</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Камеры не из этого вида</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Камеры этого вида</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>ни одна сеть не принимает многоадресную рассылку</translation>
    </message>
</context>
</TS>
