<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Добавить камеру</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Среда:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Прокси...</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Добавить: %1</translation>
    </message>
</context>
<context>
    <name>ControlDataWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Control Mode:</source>
        <translation>Режим управления:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>&lt;b&gt;Режим управления&lt;/b&gt; защищает камеру от нежелательных изменений конфигурации.&lt;br&gt;
&lt;b&gt;Полное управление&lt;/b&gt;: конфигурация не ограничена.&lt;br&gt;
&lt;b&gt;Режим изображения&lt;/b&gt;: конфигурация ограничена настройками изображения и PTZ.&lt;br&gt;
&lt;b&gt;Режим просмотра&lt;/b&gt;: конфигурация не разрешена.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Полное управление</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Режим изображения</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Режим просмотра</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Пропускная способность:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>&lt;b&gt;Пропускная способность&lt;/b&gt; подстраивает получение изображений под соединение, через которое ведётся доступ к камерам.&lt;br&gt;
&lt;b&gt;Медленное удалённое:&lt;/b&gt; модем, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Быстрое удалённое:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Медленное локальное:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Быстрое локальное:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Медленное удалённое (модем, ISDN, GPRS/2G, EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>Быстрое удалённое (DSL, UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>Медленное локальное (WLAN/WiFi, Ethernet)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>Быстрое локальное (Fast Ethernet, Gigabit Ethernet)</translation>
    </message>
</context>
<context>
    <name>CustomNetworkProxyWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Use custom proxy</source>
        <translation>Использовать собственный прокси</translation>
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
        <source>User name:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Изменить камеру</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Среда:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Прокси...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Свойства: %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Сетевые среды</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Нажмите, чтобы добавить новую среду.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Нажмите, чтобы удалить выбранную среду.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Без имени %1</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter</source>
        <translation>Фильтр</translation>
    </message>
    <message>
        <source>Node types</source>
        <translation>Типы узлов</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>Универсальный просмотр узлов</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Тип узла:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Имя узла:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Свойства</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Значение</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>InfoWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Модель:</translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation>Версия ПО:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>MAC-адрес:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Заводской IP-адрес:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Текущие IP-адреса:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Текущие IP-адреса</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Неизвестен&gt;</translation>
    </message>
</context>
<context>
    <name>LayoutOptionsWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Instruction file:</source>
        <translation>Файл инструкций:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Выбрать файл инструкций</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Предпочтительная/тревожная раскладка:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Стратегия отображения:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Минимальная задержка</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Плавное отображение</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Аудиотракт:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Не задано</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>Собственный</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>Файл инструкций</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Изменены свойства устройства</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Изменены свойства устройства с именем %1.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Изменено имя устройства</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Имя устройства изменено с %1 на %2.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>Сетевой прокси</translation>
    </message>
</context>
<context>
    <name>NetworkProxyWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Proxy Server</source>
        <translation>Прокси-сервер</translation>
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
        <source>User name:</source>
        <translation>Имя пользователя:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Пароль:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>Не использовать прокси для этих хостов и доменов:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Разделяйте точкой с запятой (;), например: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Введите хосты и домены, для которых не следует использовать прокси.&lt;br&gt;Разделяйте их точкой с запятой (;); звёздочка (*) служит подстановочным знаком, например:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Пользователь и пароль</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Введите имя пользователя и пароль для&lt;br&gt;%1 для авторизации:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Имя пользователя: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Пароль: </translation>
    </message>
    <message>
        <source>    - </source>
        <translation>    - </translation>
    </message>
    <message>
        <source>&lt;br&gt;</source>
        <translation>&lt;br&gt;</translation>
    </message>
    <message>
        <source>    ...&lt;br&gt;</source>
        <translation>    ...&lt;br&gt;</translation>
    </message>
    <message>
        <source>Storing user name and password...</source>
        <translation>Сохранение имени пользователя и пароля...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>База данных узлов</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Узлы</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Изменить среды...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Обзор</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Узлы</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Поиск Bonjour</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>Поиск ARP</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Добавить ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>Изменить ...</translation>
    </message>
    <message>
        <source>Filter ...</source>
        <translation>Фильтр ...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Добавить...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Изменить...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Удалить выбранные</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Удалить все</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Значок</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Тип узла</translation>
    </message>
</context>
<context>
    <name>PTZRotorControlWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <source>Sensitivity:</source>
        <translation>Чувствительность:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Сверхкороткая</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Короткая</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Экспоненциальная</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Линейная</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Обычная</translation>
    </message>
    <message>
        <source>Fast Patch:</source>
        <translation>Fast Patch:</translation>
    </message>
    <message>
        <source>Fast Patch</source>
        <translation>Fast Patch</translation>
    </message>
    <message>
        <source>Joystick control:</source>
        <translation>Управление джойстиком:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Обратить горизонтальное направление</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Обратить вертикальное направление</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Механический зум:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Отправлять команду зума прямо поворотному устройству.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Механический зум</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Адрес поворотного устройства:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Допустимый диапазон: от 1 до 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Логический адрес поворотного устройства</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Без поворотного устройства</translation>
    </message>
    <message>
        <source>Videotronic SN-15AH</source>
        <translation>Videotronic SN-15AH</translation>
    </message>
    <message>
        <source>Provitek</source>
        <translation>Provitek</translation>
    </message>
    <message>
        <source>VPT42/VPT501</source>
        <translation>VPT42/VPT501</translation>
    </message>
    <message>
        <source>Provitek PT2</source>
        <translation>Provitek PT2</translation>
    </message>
    <message>
        <source>Provitek PT3</source>
        <translation>Provitek PT3</translation>
    </message>
    <message>
        <source>Provitek PT4</source>
        <translation>Provitek PT4</translation>
    </message>
    <message>
        <source>Pelco D</source>
        <translation>Pelco D</translation>
    </message>
</context>
<context>
    <name>PTZUrlsWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Изображение</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>Прямая трансляция (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Лучше всего работает с непрерывными командами PTZ.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Вверх:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>Вниз:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Влево:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Вправо:</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>Приблизить:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Отдалить:</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>Стоп:</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>Без ограничений</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Доступ к записям</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Выберите этот вариант, чтобы получать записи через камеру. Он подходит, если запись ведётся на внутренний носитель камеры или если файловый сервер недоступен напрямую.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Через камеру</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Прямой доступ к файловому серверу по умолчанию, указанному в настройках.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Путь к файловому серверу по умолчанию (добавляется заводской IP-адрес)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Отметьте, чтобы указать для камеры отдельный путь к файловому серверу.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Отдельный путь к файловому серверу:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Отдельный путь к файловому серверу</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Больше...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;При низкой пропускной способности для воспроизведения и поиска видео можно использовать KoTandem. Аудио- и видеоданные всегда экспортируются из выбранного выше места записи.&lt;/p&gt;&lt;p&gt;KoTandem — серверный продукт, который устанавливается отдельно. Подробности — на сайте вашего поставщика.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Использовать данные предпросмотра для воспроизведения и поиска видео</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Настройки...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Папки записей</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Здесь не показаны папки записей, назначенные другим камерам, — только папки этой камеры и неназначенные папки.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Папки записей</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Путь</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Создать новый узел записей.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Добавить...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Изменить узел записей.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Изменить...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Удалить узел записей.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Назначить отмеченный элемент камере.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Доступ к записям: %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Нет папки записей</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Меньше...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Элемент не выбран</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Выберите элемент.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Выберите путь к папке записей</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Критическая ошибка</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>Отсутствует драйвер узлов (RecordingFolderNode).</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Недопустимое действие</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>Внутренний регистратор нельзя удалить.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>Вы собираетесь удалить узел.
Это действие необратимо.
Всё равно продолжить?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Удаление узла</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Путь к файловому серверу по умолчанию не задан</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Задайте путь к файловому серверу по умолчанию, прежде чем выбирать этот вариант.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Заводское расширение неизвестно</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>Этот вариант нельзя использовать, пока не известно заводское расширение.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Папка записей не назначена</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Назначьте камере папку записей.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Доступ к записям</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Выберите, как %2 получает доступ к записям следующих камер:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Через камеру</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Путь к файловому серверу по умолчанию (добавляется заводской IP-адрес)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Отдельный путь к файловому серверу (добавляется заводской IP):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>Отдельный файловый сервер</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Путь:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Обзор...</translation>
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
        <source>Use preview data for playback and Video Search</source>
        <translation>Использовать данные предпросмотра для воспроизведения и поиска видео</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Выберите, как %2 получает доступ к записям:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Выберите каталог на файловом сервере</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Путь к файловому серверу по умолчанию не задан</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Задайте путь к файловому серверу по умолчанию, прежде чем выбирать этот вариант.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Сохранение места записей...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Собственные настройки KoTandem</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Настройте предпросмотр для этого источника видео или используйте значения из &lt;b&gt;Параметры&amp;nbsp;&amp;gt;&amp;nbsp;Соединение&amp;nbsp;по&amp;nbsp;умолчанию&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Данные соединения</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Использовать собственные данные соединения</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Предпросмотр с камеры</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Поток событий</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Удалённый предпросмотр</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>IP-адрес:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Порт:</translation>
    </message>
    <message>
        <source>00000; </source>
        <translation>00000; </translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
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
        <source>Use custom JPEG quality</source>
        <translation>Использовать собственное качество JPEG</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Качество JPEG</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Использовать собственную частоту кадров</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Частота кадров</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>к/с</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Использовать собственное разрешение</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Ширина:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Высота:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Использовать собственную настройку звука</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Включить</translation>
    </message>
</context>
<context>
    <name>StorageLocationWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Access recordings:</source>
        <translation>Доступ к записям:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Изменить...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Через камеру</translation>
    </message>
</context>
<context>
    <name>UserDataWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
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
        <source>Channel:</source>
        <translation>Канал:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>Не использовать прокси для этой камеры.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>Не использовать прокси</translation>
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
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>Текущий адрес по-прежнему подпадает под исключения прокси:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>Проверьте настройки прокси!</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Настройки прокси</translation>
    </message>
</context>
</TS>
