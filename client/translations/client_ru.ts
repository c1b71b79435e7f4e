<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Добавить и с&amp;ледующий</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Замечены по новому адресу</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Эти устройства, похоже, теперь отвечают по другому адресу. Принимайте только то, чего ожидаете: с этого момента имя пользователя и пароль отправляются на новый адрес.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Устройства</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Старый адрес</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Новый адрес</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC-адрес</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>&amp;Принять выбранные</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>Принять &amp;все</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Отклонить выбранные</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>Узел</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>До</translation>
    </message>
    <message>
        <source>After</source>
        <translation>После</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>База данных узлов</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>База данных узлов «%1» находится на сетевом диске. Две программы, одновременно использующие её там, могут её повредить. Переместите её на диск этого компьютера.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 относится к окнам, а здесь окна не открываются.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, строка %2: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>Столбец «%1» не используется.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>записано: %1</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>пропущено без имени и адреса: %1</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Использует этот язык, например de или pt_BR, независимо от других настроек.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Добавляет камеры из списка (CSV) и завершает работу. Окно не нужно.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Записывает все камеры в список (CSV) и завершает работу.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Не включает пароли в --export.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Копирует базу данных, которая может использоваться, в файл и завершает работу.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Помещает в базу данных, которая может использоваться, содержимое резервной копии и завершает работу. Текущее содержимое сохраняется как резервная копия.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Непредвиденный аргумент: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>Значение после --%1 пусто.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>Просмотрено записей: %1, старше цепочки: %2, звеньев без печати: %3</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Не удаётся записать %1.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Проверяет, не изменил ли кто-нибудь журналы базы данных, называет что и завершает работу.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>Подробности до изменения номер %1 убраны</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>Убрано подробностей: %1, до изменения номер %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>Не далее: история изменена. --verify-log называет что.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Убирает из истории то, что было до и после каждого изменения старше стольких дней, и завершает работу. Кто и когда что-то изменил, остаётся.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history требует числа дней.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Показывает, добавляет, изменяет и удаляет узлы системы видеонаблюдения.
Без параметра, который что-то делает и завершает работу, например --import, открывает окно и принимает также параметры графической библиотеки (-platform, -style и другие).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Открывает эту базу данных узлов: файл, который создаётся, если его нет, или общую базу, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Переносит базу данных с историей в пустую базу на сервере, адрес которой указан далее (postgresql://user@host/database), и завершает работу. При повторном вызове продолжает.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>После --share FILE указывается адрес базы данных, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>В общую базу данных нельзя восстановить резервную копию.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>добавлено %1, обновлено %2, без изменений %3, %n строка с ошибками</numerusform>
            <numerusform>добавлено %1, обновлено %2, без изменений %3, %n строки с ошибками</numerusform>
            <numerusform>добавлено %1, обновлено %2, без изменений %3, %n строк с ошибками</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Журнал аудита</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Записи</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Найти:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>Показать в истории...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (ничего не изменено)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Назад к</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Показывает все узлы такими, какими они были, в отдельном окне. Этим ничего не меняется; то, что там показано, можно вернуть.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>Не позже:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Как было после этого:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Что сделано</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Показать</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>не удаётся прочитать пароль</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>не требует пароля</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>изменено во время проверки</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>Камеры уже проверяются.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>Нет камеры с адресом для проверки.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>Попробовать по одному разу на каждом?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>Попро&amp;бовать</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>Проверка отменена.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>&amp;Отчёт...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>Камер, принявших пароль: %1 из %2.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>Камер, отвечающих как положено: %1 из %2.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>Ни одна из выбранных камер не оказалась другим устройством: это выясняет Сеть &gt; Проверить камеры.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Принять другие устройства</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>Ответило %n устройство, отличное от известного до сих пор. Принимайте его, только если знаете причину, например замену или новый сертификат: со следующей проверки ему отправляются сохранённые имя пользователя и пароль.</numerusform>
            <numerusform>Ответили %n устройства, отличные от известных до сих пор. Принимайте их, только если знаете причину, например замену или новый сертификат: со следующей проверки им отправляются сохранённые имя пользователя и пароль.</numerusform>
            <numerusform>Ответили %n устройств, отличных от известных до сих пор. Принимайте их, только если знаете причину, например замену или новый сертификат: со следующей проверки им отправляются сохранённые имя пользователя и пароль.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Принять</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>Принято %n устройство.</numerusform>
            <numerusform>Принято %n устройства.</numerusform>
            <numerusform>Принято %n устройств.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>Провер&amp;ить</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>Ни одна из выбранных камер не требует открытый пароль: это выясняет Сеть &gt; Проверить камеры.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n устройство принимает пароль только в открытом виде. Без SSL его может прочитать любой, кто слушает по пути, и использовать для всех камер с таким же паролем. Разрешайте это только там, где сеть ваша собственная. Разрешение действует, пока у камеры те же адрес и порт.</numerusform>
            <numerusform>%n устройства принимают пароль только в открытом виде. Без SSL его может прочитать любой, кто слушает по пути, и использовать для всех камер с таким же паролем. Разрешайте это только там, где сеть ваша собственная. Разрешение действует, пока у камеры те же адрес и порт.</numerusform>
            <numerusform>%n устройств принимают пароль только в открытом виде. Без SSL его может прочитать любой, кто слушает по пути, и использовать для всех камер с таким же паролем. Разрешайте это только там, где сеть ваша собственная. Разрешение действует, пока у камеры те же адрес и порт.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Разрешить открытые пароли</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Разрешить</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>Разрешено отправлять пароль в открытом виде %n устройству.</numerusform>
            <numerusform>Разрешено отправлять пароли в открытом виде %n устройствам.</numerusform>
            <numerusform>Разрешено отправлять пароли в открытом виде %n устройствам.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>После проверки камеры (F5) здесь будет её изображение.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>Не удаётся прочитать пароль.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Другое устройство, чем прежде</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Заблокирован вход</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Неверный пароль</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Требует открытый пароль</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Нет ответа</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Непонятный ответ</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Не проверено</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Отвечает</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>Удалено: %1 на %2. То, что вы здесь введёте, нельзя сохранить; Правка &gt; История возвращает узел.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Тем временем изменено: %1 на %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 на %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>Сейчас также редактирует: %1.</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>CheckPanel</name>
    <message>
        <source>Cameras checked</source>
        <translation>Проверенные камеры</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>От&amp;мена</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Убрать эту строку</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Проверено камер: %1 из %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Проверенные камеры</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Камеры</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>Показать и те, что &amp;отвечают</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>Показать в &amp;списке</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Копировать</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Со&amp;хранить как...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>; </source>
        <comment>between the parts of a list</comment>
        <translation>; </translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) left out, which are no devices or have no address.</source>
        <translation>
            <numerusform>Пропущен %n узел, который не является устройством или не имеет адреса.</numerusform>
            <numerusform>Пропущены %n узла, которые не являются устройствами или не имеют адреса.</numerusform>
            <numerusform>Пропущены %n узлов, которые не являются устройствами или не имеют адреса.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Таблицы (*.csv);;Все файлы (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 не записан: %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>Если сервер его предлагает</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Всегда</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Всегда, с проверкой сертификата</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Никогда</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Подключение к общей базе данных</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Недавние:</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Сервер:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Порт:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;База данных:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>П&amp;ользователь:</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>П&amp;ароль:</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>&amp;Шифрование:</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>&amp;Запомнить пароль</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>Про&amp;верить</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Подключение...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>Базу данных можно читать и изменять.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>Базу данных можно читать, но вам нельзя её изменять.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>Пароль нельзя запомнить, так как нет ключа, которым запечатываются пароли. В следующий раз он будет запрошен снова.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Восстановление резервной копии</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Всё в этой базе данных будет заменено содержимым «%1» для всех, кто ей пользуется. То, что в ней сейчас, сначала сохраняется как резервная копия.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Восстановить</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Новая база данных узлов</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>«%1» уже есть. Откройте её или выберите другое имя.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Резервная копия</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Копирование базы данных...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>База данных скопирована в «%1».</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>Восстановление резервной копии...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>Теперь в базе данных содержимое «%1».</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Общая база данных восстанавливается на своём сервере. Обратитесь к его администратору.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>Прочитать из неё ничего нельзя.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>Из неё ещё можно прочитать %n узел.</numerusform>
            <numerusform>Из неё ещё можно прочитать %n узла.</numerusform>
            <numerusform>Из неё ещё можно прочитать %n узлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>Исправной резервной копии нет.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>Последняя исправная резервная копия сделана %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Если выбрать один из этих вариантов, повреждённый файл сохраняется под другим именем. Иначе ничего не меняется.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>База данных узлов</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>База данных узлов повреждена. Идёт поиск читаемых данных и резервных копий...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>&amp;Открыть другую...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>&amp;Начать с пустой</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>&amp;Использовать читаемое</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>Восстановить &amp;копию</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>База данных узлов «%1» повреждена.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>Таблицы базы данных узлов «%1» изменены другой программой.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>База данных узлов «%1» пуста или исчезла, хотя в ней что-то было.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>База данных узлов «%1» повреждена, или на её месте другой файл.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Открыть базу данных узлов</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Базы данных узлов (*.kodb);;Все файлы (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>&amp;Подробности</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>Показывает рядом со списком, что это за выбранный узел</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Выберите узел в списке, чтобы увидеть здесь, что это.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>Выбран %n узел</numerusform>
            <numerusform>Выбрано %n узла</numerusform>
            <numerusform>Выбрано %n узлов</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>Что есть у первого %n из них:</numerusform>
            <numerusform>Что общего у первых %n из них:</numerusform>
            <numerusform>Что общего у первых %n из них:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>различается</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>нет адреса</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>не удаётся прочитать пароль</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>тем временем удалено</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>не опрошено</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Доступ к записям</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>Заводской IP-адрес неизвестен у %n из выбранных камер:</numerusform>
            <numerusform>Заводской IP-адрес неизвестен у %n из выбранных камер:</numerusform>
            <numerusform>Заводской IP-адрес неизвестен у %n из выбранных камер:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>Их записи можно воспроизводить через камеру. Однако на файловом сервере папка камеры называется по этому адресу: с путём по умолчанию у этих камер была бы одна общая папка без имени, с отдельным путём они потеряли бы имеющийся. Камера, которая отвечает и принимает свой пароль, сообщает, как можно назвать её папку.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>О&amp;просить камеры...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Исключить их</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>Продолжить со &amp;всеми</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Пользователь и пароль</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>У %n выбранного устройства не одинаковые имя пользователя и пароль: имён пользователя %1, паролей %2.</numerusform>
            <numerusform>У %n выбранных устройств не одинаковые имя пользователя и пароль: имён пользователя %1, паролей %2.</numerusform>
            <numerusform>У %n выбранных устройств не одинаковые имя пользователя и пароль: имён пользователя %1, паролей %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>Следующее окно начинается с данных первого устройства и по нажатию ОК задаёт всем то, что показывает:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>&amp;Задать всем одинаковые...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n устройство: доступ к записям задан.</numerusform>
            <numerusform>%n устройства: доступ к записям задан.</numerusform>
            <numerusform>%n устройств: доступ к записям задан.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n осталось без изменений.</numerusform>
            <numerusform>%n остались без изменений.</numerusform>
            <numerusform>%n остались без изменений.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n устройство: имя пользователя и пароль заданы.</numerusform>
            <numerusform>%n устройства: имя пользователя и пароль заданы.</numerusform>
            <numerusform>%n устройств: имя пользователя и пароль заданы.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n устройство)</numerusform>
            <numerusform>%1 (%n устройства)</numerusform>
            <numerusform>%1 (%n устройств)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>Вместе можно настраивать только IP-камеры. Остальные выбирайте по одной.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Свойства: %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>Изменение %n узла</numerusform>
            <numerusform>Изменение %n узлов</numerusform>
            <numerusform>Изменение %n узлов</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>Что вы измените здесь, изменится у всех этих узлов. Что не у всех одинаково, показано как различающееся и остаётся, если вы его не измените.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Определяется, что изменится...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Показать все узлы</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>Чтение узлов...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>В этой базе данных пока ничего нет.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Подходящих узлов нет.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Импортировать список камер...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Найти устройства в сети...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Добавить камеру...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>Не введены ни имя, ни адрес.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>Имя не введено.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>У «%1» уже такой адрес, порт и канал.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>Сохранить так?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>&amp;Сохранить так</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Продолжить правку</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>Среда: %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>Сетевая среда всей программы</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>Среда всей программы теперь «%1».</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Вернуться к «%1»</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>Среда снова «%1».</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Заполнить</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>&amp;Заменить и то, что могло быть введено вручную</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Опрошенные устройства</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>Ответы устройств</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>Опрашивается %n устройство. Пока ничего не сохраняется.</numerusform>
            <numerusform>Опрашиваются %n устройства. Пока ничего не сохраняется.</numerusform>
            <numerusform>Опрашиваются %n устройств. Пока ничего не сохраняется.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Заполнять нечего.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>Это сообщают устройства, и это ещё не сохранено. ОК сохраняет отмеченное.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n устройство ничего не сообщило:</numerusform>
            <numerusform>%n устройства ничего не сообщили:</numerusform>
            <numerusform>%n устройств ничего не сообщили:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>Заполнено %n устройство.</numerusform>
            <numerusform>Заполнено %n устройства.</numerusform>
            <numerusform>Заполнено %n устройств.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Затем</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Только «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Только %n выбранный узел</numerusform>
            <numerusform>Только %n выбранных узла</numerusform>
            <numerusform>Только %n выбранных узлов</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Что сделано</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Что изменено</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Идёт поиск...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Ничего не найдено.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>Есть ещё: прокрутите вниз.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>Это всё.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>%n выбранное изменение</numerusform>
            <numerusform>%n выбранных изменения</numerusform>
            <numerusform>%n выбранных изменений</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Возвращено: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Только сделанное до записи журнала аудита</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>Что сделано:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>Что изменено:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Вернуть...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Вернуть выбранные изменения...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Экспорт...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Назад сюда...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Хранение...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>Подробности убраны из истории: вернуть это нельзя.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Экспорт истории</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Списки (*.csv);;Все файлы (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>История не записана: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>Экспорт истории...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>Узлы, значения, что сделано</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Все виды</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Все свойства</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Найти:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Пользователь:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Вид:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Свойство:</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>С:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>По:</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>Хранение истории</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>Подробности изменения — это то, что было до и после него. Без них его нельзя ни показать, ни вернуть. Кто, когда и зачем что-то изменил, хранится всегда, как и журнал аудита.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Убирать подробности &amp;старше чем</translation>
    </message>
    <message>
        <source> days</source>
        <translation> дн.</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Дни</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>Убирать самые старые подробности, если их &amp;больше чем</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> МБ</translation>
    </message>
    <message>
        <source>Megabytes</source>
        <translation>Мегабайты</translation>
    </message>
    <message>
        <source>This is done a minute after the start of the program and every six hours.</source>
        <translation>Это делается через минуту после запуска программы и каждые шесть часов.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Станция</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Что сделано</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Узлы</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Строка %1: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Неиспользуемые столбцы: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>Импорт отменён. Всё добавленное до этого остаётся.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Импорт камер</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Подробности</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n строка с ошибками будет пропущена.</numerusform>
            <numerusform>%n строки с ошибками будут пропущены.</numerusform>
            <numerusform>%n строк с ошибками будет пропущено.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n строка, возможно, означает другое.</numerusform>
            <numerusform>%n строки, возможно, означают другое.</numerusform>
            <numerusform>%n строк, возможно, означают другое.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Импортировать</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>Добавлено %1, обновлено %2, без изменений %3, %n строка с ошибками.</numerusform>
            <numerusform>Добавлено %1, обновлено %2, без изменений %3, %n строки с ошибками.</numerusform>
            <numerusform>Добавлено %1, обновлено %2, без изменений %3, %n строк с ошибками.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>При импорте этого списка будет добавлено %n устройство, изменено: %1, оставлено без изменений: %2.</numerusform>
            <numerusform>При импорте этого списка будет добавлено %n устройства, изменено: %1, оставлено без изменений: %2.</numerusform>
            <numerusform>При импорте этого списка будет добавлено %n устройств, изменено: %1, оставлено без изменений: %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>Ожидание связки ключей. Разблокируйте её, если она попросит.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Связка ключей</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>Ожидание вашей связки ключей.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>В ней находится ключ сохранённых паролей. Разблокируйте её, если она попросит.

Без ключа сохранённые пароли показываются пустыми, а новые нельзя сохранить.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>&amp;Продолжить без паролей</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>&amp;Как в системе</translation>
    </message>
</context>
<context>
    <name>LayoutAdapter</name>
    <message>
        <source>1 x 1</source>
        <translation>1 x 1</translation>
    </message>
    <message>
        <source>2 x 2</source>
        <translation>2 x 2</translation>
    </message>
    <message>
        <source>3 x 3</source>
        <translation>3 x 3</translation>
    </message>
    <message>
        <source>4 x 4</source>
        <translation>4 x 4</translation>
    </message>
    <message>
        <source>1 large + 5</source>
        <translation>1 большое + 5</translation>
    </message>
    <message>
        <source>1 large + 7</source>
        <translation>1 большое + 7</translation>
    </message>
</context>
<context>
    <name>LogNotice</name>
    <message>
        <source>The log was altered</source>
        <translation>Журнал изменён</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>И ещё %n; их назовёт koclient --verify-log.</numerusform>
            <numerusform>И ещё %n; их назовёт koclient --verify-log.</numerusform>
            <numerusform>И ещё %n; их назовёт koclient --verify-log.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Кто-то изменил журнал базы данных узлов другой программой:</translation>
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
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Импорт...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Добавляет камеры из описи объекта (CSV)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Экспорт...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Записывает все камеры в файл CSV</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>Экспорт выб&amp;ранных...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Записывает выбранные камеры в файл CSV</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Настройки...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Пути по умолчанию и пропускная способность</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Закрывает программу</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Узел</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Добавить...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Добавляет узел</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Изменить...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Удалить...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Удаляет выбранные узлы</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Свойства</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Показывает выбранный узел, не изменяя его</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>&amp;Пользователь и пароль...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Задаёт выбранным устройствам общие имя пользователя и пароль</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Дос&amp;туп к записям...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>Откуда воспроизводятся записи выбранных камер</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>&amp;Заполнить...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Опрашивает выбранные устройства и сохраняет то, что вы выберете</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>Ду&amp;блировать...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Добавляет узел, подобный выбранному</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>Открыть &amp;веб-страницу</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Открывает страницу выбранного устройства в браузере</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>Копировать ст&amp;роки</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Копирует выбранные строки для электронной таблицы</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>Копировать &amp;адрес</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Копирует адреса выбранных узлов</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Сеть</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>Сетевой &amp;прокси...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>Прокси-сервер приложения</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>С&amp;реды...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>Сетевые среды</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>&amp;Найти устройства...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Узлы, появляющиеся во время поиска в сети</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>&amp;Замечены по новому адресу...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Устройства, найденные поиском по другому адресу, чем указан здесь</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>Про&amp;верить камеры</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Опрашивает выбранные или все камеры и проверяет их пароли</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>Принять &amp;как эту камеру...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Другое устройство, чем прежде, отныне является этой камерой</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Столбцы...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Какие столбцы есть в списке</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>&amp;Журнал аудита...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Кто, что и когда изменил</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>&amp;База данных узлов...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Всё, что сохранено</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Сп&amp;равка</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;О программе</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Через камеру</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Путь к файловому серверу по умолчанию</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>По новому адресу замечено %n устройство: Сеть &gt; Замечены по новому адресу</numerusform>
            <numerusform>По новому адресу замечены %n устройства: Сеть &gt; Замечены по новому адресу</numerusform>
            <numerusform>По новому адресу замечены %n устройств: Сеть &gt; Замечены по новому адресу</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Узлы</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Поиск (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Слова в любом столбце; «тип:камера» ищет в одном, «состояние:неверный|заблокирован» — любое из двух, «-двор» исключает</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Тип</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Все типы</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> &amp;Тип: </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Узлы</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>Камера не выбрана. Сначала выберите в списке одну или несколько.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>Узлы этого типа нельзя добавлять.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>У этого узла нет адреса. Адрес устройства задаётся в меню Узел &gt; Изменить.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>Скопирована %n строка.</numerusform>
            <numerusform>Скопированы %n строки.</numerusform>
            <numerusform>Скопировано %n строк.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>Скопирован %n адрес.</numerusform>
            <numerusform>Скопированы %n адреса.</numerusform>
            <numerusform>Скопировано %n адресов.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Показывает, добавляет, изменяет и удаляет узлы системы видеонаблюдения.&lt;/p&gt;&lt;p&gt;Свободное ПО на условиях GNU LGPL 2.1 или новее.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>Разрешить &amp;открытый пароль...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>Камерам, которые не принимают его иначе, пароль отправляется в виде, доступном всем</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Показывает последнее изменение и отменяет его</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Повторяет последнее отменённое</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;История...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>Что и кем сделано; отменяет это</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>История &amp;выбранных...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>Что сделано с выбранными узлами</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>&amp;Назад к...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Показывает все узлы такими, какими они были раньше, и возвращает их</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Изменяет выбранные узлы</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>Предварительный прос&amp;мотр изменений</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Показывает, что будет сделано с несколькими узлами, до сохранения</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>Изменён %n узел.</numerusform>
            <numerusform>Изменены %n узла.</numerusform>
            <numerusform>Изменено %n узлов.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>&amp;Подключить...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Открывает базу данных, общую с другими станциями</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Создать...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Создаёт пустую базу данных узлов и открывает её</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Открыть...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Открывает другую базу данных узлов</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>Резервная &amp;копия...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Копирует базу данных узлов в файл</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>&amp;Восстановить...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Возвращает базе данных узлов содержимое резервной копии</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>Мест&amp;о и метки...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Где находятся выбранные устройства и как они сгруппированы</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Руководство</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Объясняет, для чего служит окно на переднем плане</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>«%1»: добавлено.</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - База данных узлов</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Устройств: %1, других узлов: %2; показано: %3, выбрано: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>«%1»: изменено.</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Вместе можно изменять только узлы одного типа. «Тип» над списком показывает узлы одного.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>Не удалось открыть веб-страницу %1. Выберите браузер в настройках рабочего стола.</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Руководство</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>Поиск в руководстве (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Страницы</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Страница руководства</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Вперёд</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Ни на одной странице нет всех этих слов.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>Руководство на английском языке. Меню и кнопки названы в нём как в английской программе.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>Задаётся в «Файл &gt; Настройки» главного окна.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>Это то, что «Свойства» показывают как заводской IP-адрес камеры. «Узел &gt; Заполнить» главного окна спрашивает его у камеры.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Введите путь или нажмите «Больше...» и выберите одну из папок.</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Тогда</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Изменён</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Удалён</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Добавлен</translation>
    </message>
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
        <source>Since Then</source>
        <translation>С тех пор</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>Как было, %1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>Узлы, какими они были %1, после «%2» (%3). Здесь их можно просмотреть и вернуть, но не изменить.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Только то, что сейчас иначе</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Узлы:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Свойства:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Узлы того времени</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Свойства тогда и сейчас</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>Сколько прочитано из сделанного с тех пор</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Вернуть всё...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Вернуть выбранное...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Чтение того, что сделано с тех пор...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>Настройки или окружения тоже иные.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n изменение с тех пор не подходит к тому, что есть сейчас: что было до него, неизвестно.</numerusform>
            <numerusform>%n изменения с тех пор не подходят к тому, что есть сейчас: что было до них, неизвестно.</numerusform>
            <numerusform>%n изменений с тех пор не подходят к тому, что есть сейчас: что было до них, неизвестно.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Назад к %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Возвращено: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Тогда %n узел, сейчас иначе: %1, показано: %2</numerusform>
            <numerusform>Тогда %n узла, сейчас иначе: %1, показано: %2</numerusform>
            <numerusform>Тогда %n узлов, сейчас иначе: %1, показано: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(без имени)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
            <numerusform>и ещё %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>Что с ним сделано:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>Что это изменило:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Что сделано</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Что изменено</translation>
    </message>
    <message>
        <source>History</source>
        <translation>История</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Место</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
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
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Состояние</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Модель</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Версия</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Порт</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Пользователь</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Канал</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Место</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Метки</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Последнее изменение</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Узлы</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Удаление узлов</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Удаление узлов...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>Удалён %n узел.</numerusform>
            <numerusform>Удалено %n узла.</numerusform>
            <numerusform>Удалено %n узлов.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Получение изображения...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Снимок от %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Изображение с камеры</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Получение изображения...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Снимок от %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Место и метки</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Сохранение мест и меток...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n устройство: место и метки заданы.</numerusform>
            <numerusform>%n устройства: место и метки заданы.</numerusform>
            <numerusform>%n устройств: место и метки заданы.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Место и метки</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Где находится %n выбранное устройство? Напишите от внешнего к внутреннему через косую черту: Объект/Здание/Этаж. Метки разделяются запятыми.</numerusform>
            <numerusform>Где находятся %n выбранных устройства? Напишите от внешнего к внутреннему через косую черту: Объект/Здание/Этаж. Метки разделяются запятыми.</numerusform>
            <numerusform>Где находятся %n выбранных устройств? Напишите от внешнего к внутреннему через косую черту: Объект/Здание/Этаж. Метки разделяются запятыми.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Место:</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>М&amp;етки:</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(разные, остаются как есть)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Места</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>&amp;Места</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Показывает объекты, здания и этажи рядом со списком</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Места</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Все узлы</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Устройства без места</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>&amp;Путь к файловому серверу по умолчанию:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Обзор...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>&amp;Сервер удалённого предпросмотра по умолчанию:</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>Со&amp;единение:</translation>
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
    <message>
        <source>Default File Server Path</source>
        <translation>Путь к файловому серверу по умолчанию</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Объект/здание/этаж:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Метки, через запятую:</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Вернуть</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: вот что изменится. OK возвращает отмеченное.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: вернуть уже ничего нельзя.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Что изменится</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Кто-то другой тем временем изменил это; оно остаётся как есть:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Всё, что можно вернуть</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Предварительный просмотр</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: вот что изменится. OK изменяет отмеченное.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: ничего не изменится.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Все изменения</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>Узел</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Что</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Станет</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Почему нет</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>Что было изменено</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Чтение изменений...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>Эту общую базу данных можно просматривать, но не изменять. Её администратор может дать вам роль ko_editor.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Только чтение</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Открыть н&amp;едавнюю</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Другая база данных ещё не открывалась</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Удаление узлов</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>Удалить этот узел? Его вернёт Правка &gt; Отменить.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Удалить %n узел? Его вернёт Правка &gt; Отменить.</numerusform>
            <numerusform>Удалить эти %n узла? Их вернёт Правка &gt; Отменить.</numerusform>
            <numerusform>Удалить эти %n узлов? Их вернёт Правка &gt; Отменить.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>Больше никем не используется %n папка записей:</numerusform>
            <numerusform>Больше никем не используются %n папки записей:</numerusform>
            <numerusform>Больше никем не используются %n папок записей:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Удалить и &amp;папки записей</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>Со&amp;хранённые поиски</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Сохранённые поиски</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Поиски с именем и имя для этого</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>&amp;Сохранить этот поиск...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Даёт имя тому, что ищется сейчас</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>&amp;Переименовать или удалить...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Даёт сохранённым поискам другие имена и удаляет их</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Сохранить поиск</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Имя (существующее получит этот поиск):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Сохранённые поиски</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Сохранённые поиски</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Пере&amp;именовать</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Удалить...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Поиск с таким именем уже есть, или имя пусто. Оно осталось прежним.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>Удалить поиск «%1»? Узлы, которые он находит, останутся.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Удалить</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Найти устройства</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>Поиск нашёл %n новое устройство и добавил его в базу данных:</numerusform>
            <numerusform>Поиск нашёл %n новых устройства и добавил их в базу данных:</numerusform>
            <numerusform>Поиск нашёл %n новых устройств и добавил их в базу данных:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Оставить</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>&amp;Убрать</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>Найдено и добавлено %n устройство.</numerusform>
            <numerusform>Найдено и добавлено %n устройства.</numerusform>
            <numerusform>Найдено и добавлено %n устройств.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>Убрано %n устройство.</numerusform>
            <numerusform>Убрано %n устройства.</numerusform>
            <numerusform>Убрано %n устройств.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: бездействует</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 из %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: поиск</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: готово</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: отменено</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: недоступно (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Файла «%1» нет.</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>История файла «%1» не говорит, откуда взялось всё его содержимое: он старше истории, или в него восстановлена резервная копия. Такой файл нельзя сделать общим; импортируйте его камеры в новый.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>Вам нельзя изменять объект «%1». Попросите у его администратора роль ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>Объект «%1» не пуст.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>«%1» принадлежит другому объекту, а не «%2».</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>Объект отличается от файла: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>Файл или объект всё время изменяется, поэтому их не удалось сравнить.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n строка с историей находится в «%1» и там такая же, как здесь.</numerusform>
            <numerusform>%n строки с историей находятся в «%1» и там такие же, как здесь.</numerusform>
            <numerusform>%n строк с историей находится в «%1» и там такие же, как здесь.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>В «%1» есть пароли более старой версии, которые ещё не зашифрованы, потому что нет ключа этой установки. Сначала верните его.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>В «%1» есть пароли, для которых нужен ключ объекта. Ничего не отправлено.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Общая база данных</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Эти ваши изменения нельзя было выполнить, так как кто-то другой до этого удалил узел. Правка &gt; История возвращает удалённый узел.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Невыполненные изменения</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Изменение</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Узел</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Кем удалён</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Отклонить выбранные</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>&amp;Новая копия...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 на %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Новая копия</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>Закрыть это окно и создать новую копию того, что сейчас на сервере? Неотправленных изменений в ней не будет; нынешняя копия, в которой они есть, останется в папке «%1».</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>&amp;Парольная фраза...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n изменение не выполнено</numerusform>
            <numerusform>%1, %n изменения не выполнены</numerusform>
            <numerusform>%1, %n изменений не выполнено</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, нужна парольная фраза...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>По адресу «%1» теперь находится другой объект, а не тот, копией которого это является. Туда ничего не отправлено. Если сервер настроен заново, попросите его администратора вернуть объект.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>База данных «%1» не содержит объекта, или его нельзя читать. Попросите у её администратора роль ko_viewer или ko_editor; пустая база данных становится объектом командой koclient --share.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>Объект «%1» создан другой версией этой программы. Установите эту версию на этот компьютер или попросите обновить объект.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>Объект «%1» можно только читать, но на этом компьютере есть изменения, которых там нет. Попросите у его администратора роль ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>В эту копию объекта «%1» восстановлена резервная копия, о чём нельзя сообщить другим станциям. Она больше не общая.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>Больше не общая...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Подключено, только чтение</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Подключено</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>Отправляется %n изменение</numerusform>
            <numerusform>Отправляются %n изменения</numerusform>
            <numerusform>Отправляется %n изменений</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Идёт обновление</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Сервер недоступен с %1, ожидает %n изменение</numerusform>
            <numerusform>Сервер недоступен с %1, ожидают %n изменения</numerusform>
            <numerusform>Сервер недоступен с %1, ожидает %n изменений</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Сервер недоступен с %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>Сервер объекта «%1» недоступен. Можно продолжать: изменения ждут на этом компьютере и будут отправлены, когда сервер вернётся.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>Объект «%1» виден таким, каким его изменяют другие, но изменять его самому нельзя.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>Объект «%1» используется совместно с другими.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>Объект «%1» недоступен.</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>Ожидание сервера...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Отправка: осталось %n изменение</numerusform>
            <numerusform>Отправка: осталось %n изменения</numerusform>
            <numerusform>Отправка: осталось %n изменений</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Приём: %1 из %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>Объект «%1» представляет своё прошлое иначе, чем прежде этой станции: его история изменена на сервере. На него больше ничего не отправляется и с него ничего не принимается. Покажите это его администратору; в копии на этом компьютере история такая, какой была.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>Копию объекта «%1» на этом компьютере нельзя прочитать или записать. Проверьте, что диск исправен и на нём есть место, и запустите программу снова.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>Сервер объекта «%1» отклонил запрос этого компьютера. Изменения, которые он ещё не получил, сохранены здесь. Покажите администратору ответ сервера и запустите программу снова, когда неполадка будет устранена.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Новая парольная фраза для объекта «%1»:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Ещё раз:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Две парольные фразы не совпадают.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>Парольная фраза объекта «%1»:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>Парольная фраза объекта не указана. Пароли не читаются, и их нельзя сохранить. Введите её в терминале или задайте переменную KO_SITE_PASSPHRASE.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>Ключ нельзя сохранить на этом компьютере, потому что нет ключа этой установки. В следующий раз парольная фраза будет запрошена снова.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>Это не парольная фраза объекта.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Парольная фраза содержит не менее %n знака.</numerusform>
            <numerusform>Парольная фраза содержит не менее %n знаков.</numerusform>
            <numerusform>Парольная фраза содержит не менее %n знаков.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>У объекта ещё нет ключа.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Кто-то другой только что изменил ключ или его парольную фразу. Узнайте, какая парольная фраза действует теперь.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Для открытия ключа нужно больше памяти, чем есть у этого компьютера или чем можно от него требовать.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Этот объект создан до того, как у его станций появился общий ключ. Пароли нельзя сохранить, пока администратор не обновит его командой koclient --share.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>На этом компьютере нет ключа паролей. Они показываются пустыми, а новые нельзя сохранить, пока вы не укажете парольную фразу объекта.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>У объекта ещё нет ключа, которым его станции шифруют пароли. Новые нельзя сохранить, пока кто-нибудь его не создаст.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Общая база данных</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Подключение к «%1»...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Смена парольной фразы</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Парольная фраза объекта</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>Пароли камер в «%1» зашифрованы ключом, общим для его станций. Укажите парольную фразу объекта, один раз на этом компьютере. Без неё пароли показываются пустыми, а новые нельзя сохранить.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>У объекта «%1» ещё нет ключа, которым его станции шифруют пароли камер. Придумайте парольную фразу из нескольких слов и сообщите её всем, кто должен их видеть. Сервер никогда её не получает: если все её забудут, новые станции не смогут прочитать пароли.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>Станции, у которых есть ключ «%1», сохраняют его, когда меняется только парольная фраза. С новым ключом все пароли шифруются заново, и у каждой станции запрашивается новая парольная фраза: выберите это, если компьютер утрачен.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Парольная фраза:</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>&amp;Прежняя парольная фраза:</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Новая парольная фраза:</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>По&amp;вторение:</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Создать также новый &amp;ключ</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>Две новые парольные фразы не совпадают.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Минуту...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>База данных узлов</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Пока это окно открыто, введённое не пропадёт.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>То, что ждёт сохранения целиком или никак, относится к:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Изменения не сохранены</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>&amp;Отбросить изменения</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Все изменения сохранены.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Некоторые изменения не удалось сохранить. Они пропадут, если закрыть программу сейчас.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>База данных узлов</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Сохранение изменений...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Списки камер (*.csv);;Все файлы (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Импорт камер</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Импорт камер...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Экспорт камер</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>Записать и пароли? Тот, кто может прочитать файл, сможет использовать все камеры в нём.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Экспорт камер...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>Записана %n камера.</numerusform>
            <numerusform>Записаны %n камеры.</numerusform>
            <numerusform>Записано %n камер.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Чтение списка...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>&amp;Отменить «%1»</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Отменить</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>&amp;Повторить «%1»</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Отменено: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Повторено: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Отменить...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>Введённое ещё не сохранено.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Не сохранять</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Продолжить правку</translation>
    </message>
</context>
</TS>
