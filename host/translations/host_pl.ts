<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>„%1” ma już ten adres i port.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>Adres nie zawiera spacji.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>To nie jest adres IPv6 ani host z portem.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>Adres IP składa się z czterech liczb od 0 do 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>Nazwa hosta zawiera tylko litery, cyfry, kropki i łączniki.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Port to liczba od 1 do 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>Ten adres URL nie zawiera czytelnego hosta.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>nie jest podłączona żadna sieć IPv4</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>system nie udostępnia gniazda: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
</context>
<context>
    <name>CameraSurvey</name>
    <message>
        <source>Nothing was written, because these passwords cannot be read: %1. Unlock your keychain, bring the key file back, or leave the passwords out.</source>
        <translation>Nic nie zapisano, ponieważ nie można odczytać tych haseł: %1. Odblokuj pęk kluczy, przywróć plik klucza lub pomiń hasła.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Nie ma bazy danych.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>kilka urządzeń ma ten adres; podaj typ, port i kanał</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>kilka urządzeń ma tę nazwę; podaj adres</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>to jest baza danych; nie została zmieniona.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Nie można zapisać %1: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 i jeszcze %2</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>zawiera znaki sterujące</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>jest dłuższe niż 1024 znaki</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>zawiera podział wiersza</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>zawiera niewidoczne znaki</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>nie jest liczbą od 0 do 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>nie jest liczbą od 1 do 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>nie jest żadnym z: yes, no, true, false, 1, 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>nie jest adresem MAC (dwanaście cyfr szesnastkowych)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>nie jest to IP device, URL camera ani channel device, ani liczba</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>nie jest liczbą</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 Import zatrzymał się w tym miejscu; zapisano tylko to, co tu policzono. Zaimportuj plik ponownie, aby dodać resztę.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 nie jest zwykłym plikiem.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 to sama baza danych węzłów.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Nie można odczytać %1: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>Błędnych wierszy: %1; to nie jest lista kamer.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>Haseł z listy (w wierszu %1) nie można zapisać, ponieważ brakuje szyfrującego je klucza. Odblokuj pęk kluczy, przywróć plik klucza lub zezwól na zapis w folderze konfiguracji. Niczego nie zaimportowano.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>Nie można odczytać pierwszego wiersza: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>urządzeń tego typu nie można tutaj dodać</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>folderów nagrań nie można tutaj dodać</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>nie udało się dodać urządzenia</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>pod tym adresem nie ma urządzenia</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>urządzenie pod tym adresem nie ma kanałów</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>nie udało się zmienić urządzenia</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>Są dwie kolumny „%1”.</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>Brak kolumny „address”. Pierwszy wiersz musi zawierać nazwy kolumn.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>jest więcej komórek niż kolumn</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>błędne %1: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>nie ma ani nazwy, ani adresu</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>urządzenie tego typu nie ma kanałów</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>to nie jest nazwa hosta ani adres IP</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>zawiera więcej niż hosta; port, SSL i użytkownik mają własne kolumny</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>dotyczy tego samego urządzenia co wiersz %1 i zmieniłby to, co ten podaje</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>nowe urządzenie nie miałoby nazwy</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>Haseł z listy (w wierszu %1) nie można zapisać, ponieważ ten komputer nie ma klucza współdzielonej bazy danych. Najpierw podaj jej frazę hasłową. Niczego nie zaimportowano.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Właściwości</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Właściwości: %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Właściwości %n węzła</numerusform>
            <numerusform>Właściwości %n węzłów</numerusform>
            <numerusform>Właściwości %n węzłów</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Foldery nagrań</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Folder nagrań: %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Foldery nagrań %n kamery</numerusform>
            <numerusform>Foldery nagrań %n kamer</numerusform>
            <numerusform>Foldery nagrań %n kamer</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Użytkownicy i hasła</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Użytkownik i hasło: %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Użytkownik i hasło %n węzła</numerusform>
            <numerusform>Użytkownik i hasło %n węzłów</numerusform>
            <numerusform>Użytkownik i hasło %n węzłów</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Dodawanie węzłów</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Dodanie: %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Dodanie %n węzła</numerusform>
            <numerusform>Dodanie %n węzłów</numerusform>
            <numerusform>Dodanie %n węzłów</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Usuwanie węzłów</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Usunięcie: %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Usunięcie %n węzła</numerusform>
            <numerusform>Usunięcie %n węzłów</numerusform>
            <numerusform>Usunięcie %n węzłów</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>Importy</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Import: %1</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>Dane podane przez kamery</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>Dane podane przez: %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>Dane podane przez %n kamerę</numerusform>
            <numerusform>Dane podane przez %n kamery</numerusform>
            <numerusform>Dane podane przez %n kamer</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Nowe adresy</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Nowy adres: %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Nowe adresy %n urządzenia</numerusform>
            <numerusform>Nowe adresy %n urządzeń</numerusform>
            <numerusform>Nowe adresy %n urządzeń</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Skanowania</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Skanowanie znalazło: %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Skanowanie znalazło %n urządzenie</numerusform>
            <numerusform>Skanowanie znalazło %n urządzenia</numerusform>
            <numerusform>Skanowanie znalazło %n urządzeń</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Cechy rozpoznawcze kamer</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Cechy rozpoznawcze: %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Cechy rozpoznawcze %n kamery</numerusform>
            <numerusform>Cechy rozpoznawcze %n kamer</numerusform>
            <numerusform>Cechy rozpoznawcze %n kamer</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Globalne proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Środowiska</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Nowa baza danych</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Przywrócona kopia zapasowa</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Cofnięto</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Zmiana w nowszej wersji</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Ponowiono: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Cofnięto: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Hasła zaszyfrowane na nowo</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>Komórka w cudzysłowie rozpoczynająca się w rekordzie z wiersza %1 nie jest zamknięta.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>Rekord rozpoczynający się w wierszu %1 jest dłuższy niż 1 MiB.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>po cudzysłowie zamykającym komórkę następuje tekst</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>To nie jest plik tekstowy (wiersz %1 zawiera dane binarne). Zapisz plik jako tekst UTF-8.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>Wiersz %1 jest dłuższy niż 1 MiB.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>Wiersz %1 nie jest tekstem UTF-8. Zapisz plik jako UTF-8 i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Nie można odczytać pliku: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>urządzenie odpowiada zbyt długo</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>adres jest nieprawidłowy</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>urządzenie nie obsługuje ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>urządzenie nie podaje, czym jest</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>urządzenie wymaga hasła, a żadne nie jest zapisane</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>urządzenie wymaga hasła jawnym tekstem</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>urządzenie wymaga hasła w nieznany sposób</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>urządzenie nie podaje obrazów tego kanału</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>urządzenie ma inny punkt końcowy niż poprzednio</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>urządzenie ma inny obszar uwierzytelniania niż poprzednio</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>urządzenie ma inny numer seryjny niż poprzednio</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>odrzucono tam inne hasło</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>brak odpowiedzi na czas</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>odpowiedź jest zbyt długa</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>urządzenie odsyła w inne miejsce</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>urządzenie ma inny certyfikat niż poprzednio</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>Nie można użyć pliku „%1”: jego nazwa nie jest tekstem w kodowaniu tego systemu. Zmień nazwę.</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>Nazwa:</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>Podano użytkownika i hasło</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adres proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port proxy</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Użytkownik proxy</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Hasło proxy</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Zapisz hasło proxy</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Głowica obrotowa</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Używaj zdalnego podglądu</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Zapisz hasło</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Tryb podglądu</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Domyślne dane połączenia</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Domyślna liczba klatek</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Domyślna jakość JPEG</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Domyślna rozdzielczość</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Domyślne ustawienie dźwięku</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Domyślna ścieżka serwera plików</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Domyślny serwer zdalnego podglądu</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Aktywne środowisko</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Używaj proxy</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Wyjątki proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Środowiska</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Globalne proxy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Węzeł</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Wszystkie</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Znane urządzenie</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(nie ma)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(ukryte)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>zmienione</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>Już tak jest.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>Zmieniono to później.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>Węzeł usunięto.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>Teraz używają tego inne.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Dni historii</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Megabajty historii</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>Domyślne</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Wpis nieznanego rodzaju „%1”</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Poziom %1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Dziennik programu</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Przyjęto nowy adres</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Przeniesiono urządzenie %1 z adresu %2 na %3, gdzie je znaleziono.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Zaimportowano urządzenia</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Zaimportowano urządzenia z %1: dodano %2, zmieniono %3, odrzucono wierszy: %4.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Zmieniono bez okna dialogowego</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Dodane przez program</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Usunięte przez program</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Zmieniono ustawienia</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Zmieniono globalne proxy</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Zmieniono środowiska</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Znalezione przez skanowanie</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Przyjęto nowe adresy</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Zapisano cechy rozpoznawcze kamer</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Wpisano dane podane przez kamery</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Zaimportowano listę</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Utworzono bazę danych</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Przywrócono kopię zapasową</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Zmieniono w nowszej wersji programu</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Zmieniono foldery nagrań</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Zmieniono użytkowników i hasła</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Cofnięto</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Dodano urządzenie</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Usunięto urządzenie</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Zezwolono na jawne hasło</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Przyjęto inne urządzenie</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Dodano urządzenie o nazwie %1.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Usunięto urządzenie o nazwie %1.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Jako %1 przyjęto inne urządzenie niż poprzednio.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>Zezwolono na wysyłanie hasła %1 jawnym tekstem.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>Przerzedzono historię</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Usunięto z historii szczegóły zmian do numeru %1: %2 wierszy.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 i %n inny</numerusform>
            <numerusform>%1 i %n inne</numerusform>
            <numerusform>%1 i %n innych</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>Zaszyfrowano hasła na nowo</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>Zestaw zmian %1 został zmieniony.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>Wiersz %1 zestawów zmian został zmieniony.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>Wpis %1 dziennika zmian został zmieniony.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>Brakuje zestawu zmian %1.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>Brakuje wiersza %1 zestawów zmian.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>Brakuje wpisu %1 dziennika zmian.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>Zestaw zmian %1 został wstawiony przez inny program.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>Wiersz %1 zestawów zmian został wstawiony przez inny program.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>Wpis %1 dziennika zmian został wstawiony przez inny program.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>Od zestawu zmian %1 dziennik został napisany na nowo.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>Od wiersza %1 zestawów zmian dziennik został napisany na nowo.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>Od wpisu %1 dziennika zmian dziennik został napisany na nowo.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>Od zestawu zmian %1 dziennik jest zapieczętowany innym kluczem.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>Od wiersza %1 zestawów zmian dziennik jest zapieczętowany innym kluczem.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>Od wpisu %1 dziennika zmian dziennik jest zapieczętowany innym kluczem.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>To, co następowało po zestawie zmian %1, zostało odcięte.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>To, co następowało po wierszu %1 zestawów zmian, zostało odcięte.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>To, co następowało po wpisie %1 dziennika zmian, zostało odcięte.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>To nie jest dziennik, który widziano tu wcześniej.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>Adres MAC ma dwanaście cyfr szesnastkowych, np. 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>usługa Avahi nie działa</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>usługa Avahi nie odpowiada</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>wszystkie interfejsy</translation>
    </message>
</context>
<context>
    <name>NodeFacts</name>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>Wersja oprogramowania</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>Adres MAC</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Bieżące adresy IP</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Fabryczny adres IP</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Strumień na żywo (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanały</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Rozdzielczości</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Obrót, pochylenie, zoom</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>tak</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nie</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Urządzenie</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Opcje układu</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Nagrania</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>Adresy URL</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kamery</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>Folder nagrań</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Widok</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>Kamera IP</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>Kamera URL</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>Urządzenie wielokanałowe</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Rejestrator wewnętrzny</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Serwer podglądu zdalnego</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Węzeł typu %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Podgląd zdalny: %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Ten węzeł został w międzyczasie usunięty. Zmian nie można zapisać: zamknij to okno.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>urządzenie nie podaje adresu obrazu</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>adres obrazu zawiera jawne hasło</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>to, co wysyła urządzenie, nie jest obrazem</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>urządzenie odmawia przesłania obrazu</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>urządzenie wymaga hasła, a żadne nie jest zapisane</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>obrazy mają inny obszar uwierzytelniania niż urządzenie</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>urządzenie wymaga hasła w nieznany sposób</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>urządzenie wymaga hasła jawnym tekstem</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Ścieżka:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>Ścieżka leży poniżej domyślnej ścieżki serwera plików</translation>
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
        <source>Browse...</source>
        <translation>Przeglądaj...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Wybierz folder</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(puste)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(różne)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>„%1” nie jest bazą danych węzłów, lecz plikiem innego rodzaju. Nie został zmieniony. Wybierz plik swojej bazy danych lub nową nazwę pliku, aby rozpocząć od pustej.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>„%1” jest bazą danych innego programu i nie zawiera węzłów. Nie została zmieniona. Wybierz swoją bazę danych węzłów lub nową nazwę pliku, aby rozpocząć od pustej.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>Tabele bazy danych węzłów „%1” zostały zmienione przez inny program i nie można im ufać. Baza nie została zmieniona. Zastąp ją kopią zapasową.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>Baza danych węzłów „%1” jest pusta lub zniknęła, ale jej dziennik lub kopie zapasowe nadal istnieją. Niczego nie zmieniono. Przywróć kopię zapasową lub wybierz nową nazwę pliku, aby rozpocząć od pustej.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>Baza danych węzłów „%1” jest uszkodzona. Nie została zmieniona. Przywróć kopię zapasową; kopie utworzone przez ten program są w folderze „%1.backups”.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>Bazę danych węzłów „%1” zapisała nowsza wersja tego programu. Zainstaluj tę wersję na tym komputerze lub otwórz kopię zapasową, którą utworzyła w tym samym folderze.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>Bazy danych węzłów „%1” nie można zmienić, ponieważ plik lub jego folder jest dla Ciebie chroniony przed zapisem. Poproś administratora o prawo zapisu lub skopiuj bazę danych do własnego folderu i otwórz kopię.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>Baza danych węzłów „%1” jest zajęta przez inny program. Zamknij ten program lub poczekaj na zakończenie tworzenia przez niego kopii i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>Brak miejsca dla bazy danych węzłów „%1”. Usuń z tego dysku niepotrzebne pliki i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>Nie można otworzyć bazy danych węzłów „%1”. Sprawdź, czy jej folder istnieje, czy dysk lub dysk sieciowy jest podłączony i czy masz prawo odczytu pliku.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>„%1” jest folderem, urządzeniem lub potokiem i nie może zawierać bazy danych węzłów. Niczego nie zmieniono. Wybierz inny plik.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>„%1” to sama baza danych węzłów; nie została zmieniona. Wybierz inny plik na kopię.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Niektórych haseł w bazie danych węzłów „%1” nie można odczytać i są pokazane jako puste, ponieważ brakuje klucza, którym je zaszyfrowano. Odblokuj pęk kluczy lub przywróć plik klucza i uruchom program ponownie. Hasła pozostają w bazie danych, dopóki nie podasz nowych.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Niektóre hasła w bazie danych węzłów „%1” nie zostały zmienione przez ten program i są pokazane jako puste. Pozostają w bazie danych, dopóki nie podasz nowych. Ustal, kto może zapisywać w pliku, lub wróć do kopii zapasowej.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>Haseł nie można zapisać w bazie danych węzłów „%1”, ponieważ szyfrującego je klucza nie ma ani w pęku kluczy, ani w pliku i nie można go tam przechować. Odblokuj pęk kluczy, przywróć plik klucza lub zezwól na zapis w folderze konfiguracji i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>Nie można odczytać ani zapisać bazy danych węzłów „%1”. Sprawdź, czy jej dysk lub dysk sieciowy jest podłączony, i spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Niektórych haseł współdzielonej bazy danych w „%1” nie można odczytać i są pokazywane jako puste, ponieważ ten komputer nie ma klucza, którym je zaszyfrowano. Kliknij stan połączenia na pasku stanu i podaj frazę hasłową obiektu. Pozostają w bazie danych, dopóki nie podasz nowych.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>Haseł nie można zapisać we współdzielonej bazie danych w „%1”, ponieważ ten komputer nie ma klucza obiektu. Kliknij stan połączenia na pasku stanu, podaj frazę hasłową obiektu i spróbuj ponownie.</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>Kamery:</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>W tym widoku:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Szukaj kamer</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Kamery, których nie ma w tym widoku</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Kamery w tym widoku</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Wyjmij</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>W górę</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>W dół</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>żadna sieć nie przyjmuje multicastu</translation>
    </message>
</context>
</TS>
