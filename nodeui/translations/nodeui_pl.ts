<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Dodaj kamerę</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Środowisko:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Dodaj: %1</translation>
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
        <translation>Tryb sterowania:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>&lt;b&gt;Tryb sterowania&lt;/b&gt; chroni kamerę przed niepożądanymi zmianami konfiguracji.&lt;br&gt;
&lt;b&gt;Pełna kontrola&lt;/b&gt;: konfiguracja nie jest ograniczona.&lt;br&gt;
&lt;b&gt;Tryb obrazu&lt;/b&gt;: konfiguracja jest ograniczona do ustawień obrazu i PTZ.&lt;br&gt;
&lt;b&gt;Tryb podglądu&lt;/b&gt;: konfiguracja nie jest dozwolona.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Pełna kontrola</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Tryb obrazu</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Tryb podglądu</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Przepustowość:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>&lt;b&gt;Przepustowość&lt;/b&gt; dostosowuje pobieranie obrazów do łącza używanego do połączeń z kamerami.&lt;br&gt;
&lt;b&gt;Zdalne wolne:&lt;/b&gt; modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Zdalne szybkie:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Lokalne wolne:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Lokalne szybkie:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Zdalne wolne (modem, ISDN, GPRS/2G, EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>Zdalne szybkie (DSL, UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>Lokalne wolne (WLAN/WiFi, Ethernet)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>Lokalne szybkie (Fast Ethernet, Gigabit Ethernet)</translation>
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
        <translation>Użyj własnego proxy</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Edytuj kamerę</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Środowisko:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Właściwości: %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Środowiska sieciowe</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Kliknij, aby dodać nowe środowisko.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Kliknij, aby usunąć wybrane środowisko.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Bez nazwy %1</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Node types</source>
        <translation>Typy węzłów</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>Ogólna przeglądarka węzłów</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Typ węzła:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Nazwa węzła:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wartość</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
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
        <translation>Model:</translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation>Wersja oprogramowania:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>Adres MAC:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Fabryczny adres IP:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Bieżące adresy IP:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Bieżące adresy IP</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Nieznany&gt;</translation>
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
        <translation>Plik instrukcji:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Wybierz plik instrukcji</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Układ preferowany/alarmowy:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Strategia wyświetlania:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Minimalne opóźnienie</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Płynne wyświetlanie</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Ścieżka audio:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Nie określono</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>Własna</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>Plik instrukcji</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Zmieniono właściwości urządzenia</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Zmieniono właściwości urządzenia o nazwie %1.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Zmieniono nazwę urządzenia</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Zmieniono nazwę urządzenia z %1 na %2.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>Proxy sieciowe</translation>
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
        <translation>Serwer proxy</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>Nie używaj proxy dla tych hostów i domen:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Oddzielaj średnikami (;), np.: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Wprowadź hosty i domeny, dla których proxy nie ma być używane.&lt;br&gt;Oddzielaj je średnikami (;); gwiazdka (*) jest symbolem wieloznacznym, np.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Użytkownik i hasło</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Wprowadź nazwę użytkownika i hasło dla&lt;br&gt;%1 w celu uwierzytelnienia:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Nazwa użytkownika: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Hasło: </translation>
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
        <translation>Zapisywanie nazwy użytkownika i hasła...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>Baza danych węzłów</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Węzły</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Edytuj środowiska...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Przegląd</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Węzły</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Skanowanie Bonjour</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>Skanowanie ARP</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Dodaj ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>Edytuj ...</translation>
    </message>
    <message>
        <source>Filter ...</source>
        <translation>Filtr ...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Zaznacz wszystko</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Dodaj...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edytuj...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Usuń zaznaczone</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Usuń wszystkie</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Typ węzła</translation>
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
        <translation>Typ:</translation>
    </message>
    <message>
        <source>Sensitivity:</source>
        <translation>Czułość:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Bardzo krótka</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Krótka</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Wykładnicza</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Liniowa</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normalna</translation>
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
        <translation>Sterowanie joystickiem:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Odwróć kierunek poziomy</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Odwróć kierunek pionowy</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Zoom mechaniczny:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Wysyłaj polecenie zoomu bezpośrednio do głowicy PTZ.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Zoom mechaniczny</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Adres głowicy PTZ:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Dozwolony zakres: od 1 do 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Adres logiczny głowicy PTZ</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Brak głowicy obrotowej</translation>
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
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>Na żywo (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Działa najlepiej z ciągłymi poleceniami PTZ.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>W górę:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>W dół:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>W lewo:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>W prawo:</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>Przybliż:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Oddal:</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>Zatrzymaj:</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>Bez ograniczeń</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Dostęp do nagrań</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Wybierz tę opcję, aby pobierać nagrania przez kamerę. Można jej użyć, gdy nagrania są zapisywane na wewnętrznym nośniku kamery lub gdy serwer plików nie jest bezpośrednio dostępny.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Przez kamerę</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Bezpośredni dostęp do domyślnego serwera plików podanego w preferencjach.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Domyślna ścieżka serwera plików (dołączany jest fabryczny adres IP)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Zaznacz, aby podać ścieżkę serwera plików właściwą dla kamery.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Osobna ścieżka serwera plików:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Osobna ścieżka serwera plików</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Więcej...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Przy łączach o małej przepustowości można używać KoTandem do odtwarzania i wyszukiwania wideo. Dane audio i wideo są zawsze eksportowane z wybranego powyżej miejsca nagrywania.&lt;/p&gt;&lt;p&gt;KoTandem jest produktem serwerowym, który trzeba zainstalować osobno. Szczegóły znajdują się na stronie internetowej dostawcy.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Używaj danych podglądu do odtwarzania i wyszukiwania wideo</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ustawienia...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Foldery nagrań</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Nie ma tu folderów nagrań przypisanych do innych kamer, są tylko foldery przypisane do tej kamery i nieprzypisane.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Foldery nagrań</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ścieżka</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Utwórz nowy węzeł nagrań.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Dodaj...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Edytuj węzeł nagrań.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edytuj...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Usuń węzeł nagrań.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Przypisz zaznaczoną pozycję do kamery.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Zastosuj</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Dostęp do nagrań: %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Brak folderu nagrań</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Mniej...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Nie wybrano pozycji</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Wybierz pozycję.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Wybierz ścieżkę folderu nagrań</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Błąd krytyczny</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>Brak sterownika węzłów (RecordingFolderNode).</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Nieprawidłowa czynność</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>Nie można usunąć wewnętrznego rejestratora.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>Zamierzasz usunąć węzeł.
Tej czynności nie można cofnąć.
Czy mimo to kontynuować?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Usuń węzeł</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Nie określono domyślnej ścieżki serwera plików</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Przed wybraniem tej opcji określ domyślną ścieżkę serwera plików.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Nieznane rozszerzenie fabryczne</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>Tej opcji nie można użyć, dopóki rozszerzenie fabryczne nie jest znane.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Nie przypisano folderu nagrań</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Przypisz kamerze folder nagrań.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Dostęp do nagrań</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Wybierz, jak %2 ma uzyskiwać dostęp do nagrań następujących kamer:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Przez kamerę</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Domyślna ścieżka serwera plików (dołączany jest fabryczny adres IP)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Osobna ścieżka serwera plików (dołączany jest fabryczny adres IP):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>Osobny serwer plików</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Ścieżka:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Przeglądaj...</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Używaj danych podglądu do odtwarzania i wyszukiwania wideo</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Wybierz, jak %2 ma uzyskiwać dostęp do nagrań:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Wybierz katalog na serwerze plików</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Nie określono domyślnej ścieżki serwera plików</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Przed wybraniem tej opcji określ domyślną ścieżkę serwera plików.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Zapisywanie, gdzie są nagrania...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Własne ustawienia KoTandem</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Dostosuj ustawienia podglądu dla tego źródła wideo lub użyj wartości z &lt;b&gt;Opcje&amp;nbsp;&amp;gt;&amp;nbsp;Domyślne&amp;nbsp;połączenie&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Dane połączenia</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Użyj własnych danych połączenia</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Podgląd z kamery</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Strumień zdarzeń</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Podgląd zdalny</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>Adres IP:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
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
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>Użyj własnej jakości JPEG</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Jakość JPEG</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Użyj własnej liczby klatek</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Liczba klatek</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>kl./s</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Użyj własnej rozdzielczości</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Szerokość:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Wysokość:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Użyj własnego ustawienia audio</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Włącz</translation>
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
        <translation>Dostęp do nagrań:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Zmień...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Przez kamerę</translation>
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
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Bezpieczne połączenie (SSL)</translation>
    </message>
    <message>
        <source>Channel:</source>
        <translation>Kanał:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>Nie używaj proxy dla tej kamery.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>Nie używaj proxy</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nazwa użytkownika:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Hasło:</translation>
    </message>
    <message>
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>Bieżącego adresu nadal dotyczą obecne wyjątki proxy:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>Sprawdź ustawienia proxy!</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Ustawienia proxy</translation>
    </message>
</context>
</TS>
