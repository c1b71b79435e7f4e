<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Dodaj i &amp;następny</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Widziane pod nowym adresem</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Te urządzenia zdają się teraz odpowiadać pod innym adresem. Przyjmij tylko te, których się spodziewasz: nazwa użytkownika i hasło będą odtąd wysyłane na nowy adres.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Urządzenia</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Stary adres</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Nowy adres</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>Adres MAC</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>&amp;Przyjmij zaznaczone</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>Przyjmij &amp;wszystkie</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Odrzuć zaznaczone</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>Węzeł</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Przedtem</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Potem</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>Baza danych węzłów</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>Baza danych węzłów „%1” leży na dysku sieciowym. Dwa programy używające jej tam jednocześnie mogą ją uszkodzić. Przenieś ją na dysk tego komputera.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 dotyczy okien, a tutaj żadne nie jest otwierane.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, wiersz %2: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>Kolumna „%1” nie jest używana.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>Zapisano: %1</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>Pominięto bez nazwy i adresu: %1</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Używa tego języka, np. de lub pt_BR, niezależnie od innych ustawień.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Dodaje kamery z listy (CSV) i kończy pracę. Okno nie jest potrzebne.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Zapisuje wszystkie kamery na liście (CSV) i kończy pracę.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Pomija hasła przy --export.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Kopiuje bazę danych, która może być w użyciu, do pliku i kończy pracę.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Nadaje bazie danych, która może być w użyciu, zawartość kopii zapasowej i kończy pracę. Obecna zawartość jest zachowywana jako kopia zapasowa.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Nieoczekiwany argument: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>Wartość po --%1 jest pusta.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>Sprawdzone wpisy: %1, starsze niż łańcuch: %2, ogniwa bez pieczęci: %3</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Nie można zapisać %1.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Sprawdza, czy ktoś zmienił dzienniki bazy danych, wskazuje co i kończy pracę.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>Usunięto szczegóły do zmiany numer %1</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>Usunięto szczegółów: %1, do zmiany numer %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>Nie dalej: historię zmieniono. --verify-log wskazuje co.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Usuwa z historii to, co było przed każdą zmianą starszą niż podana liczba dni i po niej, i kończy pracę. Kto i kiedy coś zmienił, pozostaje.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history wymaga liczby dni.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Pokazuje, dodaje, edytuje i usuwa węzły systemu monitoringu wizyjnego.
Bez opcji, która coś robi i kończy pracę, jak --import, otwiera okno i przyjmuje też opcje biblioteki graficznej (-platform, -style i inne).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Otwiera tę bazę danych węzłów: plik, który zostanie utworzony, jeśli go nie ma, lub bazę współdzieloną, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Przenosi bazę danych z historią do pustej bazy na serwerze, której adres następuje (postgresql://user@host/database), i kończy pracę. Wywołane ponownie, kontynuuje.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>Po --share FILE podaje się adres bazy danych, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>Nie można przywrócić kopii zapasowej do współdzielonej bazy danych.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>dodano %1, zaktualizowano %2, bez zmian %3, %n wiersz z błędami</numerusform>
            <numerusform>dodano %1, zaktualizowano %2, bez zmian %3, %n wiersze z błędami</numerusform>
            <numerusform>dodano %1, zaktualizowano %2, bez zmian %3, %n wierszy z błędami</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Dziennik zmian</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Wpisy</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Szukaj:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiuj</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>Pokaż w historii...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (nic nie zmieniono)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Powrót do</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Pokazuje wszystkie węzły takimi, jakie były, w osobnym oknie. Niczego to nie zmienia; do tego, co tam widać, można wrócić.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>Nie później niż:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Tak jak było po tym:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Co zrobiono</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Pokaż</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>nie można odczytać hasła</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>urządzenie nie wymaga hasła</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>zmieniono podczas sprawdzania</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>Kamery są już sprawdzane.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>Nie ma kamery z adresem do sprawdzenia.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>Wypróbować raz na każdym?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>Wyp&amp;róbuj</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>Sprawdzanie anulowano.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>&amp;Raport...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>Hasło przyjęło %1 z %2 kamer.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>Prawidłowo odpowiada %1 z %2 kamer.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>Żadna z zaznaczonych kamer nie okazała się innym urządzeniem: ustala to Sieć &gt; Sprawdź kamery.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Przyjmij inne urządzenia</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>Odpowiedziało %n urządzenie inne niż dotąd znane. Przyjmij je tylko, jeśli znasz powód, np. wymianę lub nowy certyfikat: od następnego sprawdzenia otrzyma zapisaną nazwę użytkownika i hasło.</numerusform>
            <numerusform>Odpowiedziały %n urządzenia inne niż dotąd znane. Przyjmij je tylko, jeśli znasz powód, np. wymianę lub nowy certyfikat: od następnego sprawdzenia otrzymają zapisaną nazwę użytkownika i hasło.</numerusform>
            <numerusform>Odpowiedziało %n urządzeń innych niż dotąd znane. Przyjmij je tylko, jeśli znasz powód, np. wymianę lub nowy certyfikat: od następnego sprawdzenia otrzymają zapisaną nazwę użytkownika i hasło.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Przyjmij</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>Przyjęto %n urządzenie.</numerusform>
            <numerusform>Przyjęto %n urządzenia.</numerusform>
            <numerusform>Przyjęto %n urządzeń.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>Sp&amp;rawdź</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>Żadna z zaznaczonych kamer nie wymaga jawnego hasła: ustala to Sieć &gt; Sprawdź kamery.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n urządzenie przyjmuje hasło tylko jawnym tekstem. Bez SSL każdy, kto podsłuchuje po drodze, może je odczytać i użyć do wszystkich kamer z tym samym hasłem. Należy na to zezwalać tylko we własnej sieci. Zezwolenie obowiązuje, dopóki kamera zachowuje swój adres i port.</numerusform>
            <numerusform>%n urządzenia przyjmują hasło tylko jawnym tekstem. Bez SSL każdy, kto podsłuchuje po drodze, może je odczytać i użyć do wszystkich kamer z tym samym hasłem. Należy na to zezwalać tylko we własnej sieci. Zezwolenie obowiązuje, dopóki kamera zachowuje swój adres i port.</numerusform>
            <numerusform>%n urządzeń przyjmuje hasło tylko jawnym tekstem. Bez SSL każdy, kto podsłuchuje po drodze, może je odczytać i użyć do wszystkich kamer z tym samym hasłem. Należy na to zezwalać tylko we własnej sieci. Zezwolenie obowiązuje, dopóki kamera zachowuje swój adres i port.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Zezwól na jawne hasła</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Zezwól</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>Zezwolono na wysyłanie jawnego hasła do %n urządzenia.</numerusform>
            <numerusform>Zezwolono na wysyłanie jawnych haseł do %n urządzeń.</numerusform>
            <numerusform>Zezwolono na wysyłanie jawnych haseł do %n urządzeń.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>Po sprawdzeniu kamery (F5) będzie tu widoczny jej obraz.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>Nie można odczytać hasła.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Inne urządzenie niż poprzednio</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Zablokowano</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Błędne hasło</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Wymaga jawnego hasła</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Brak odpowiedzi</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Niezrozumiałe</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Niesprawdzona</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Odpowiada</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>Usunięte przez %1 na %2. Tego, co tu wpiszesz, nie można zapisać; Edycja &gt; Historia przywraca węzeł.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Zmienione w międzyczasie przez %1 na %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 na %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>W tej chwili edytuje to także: %1.</translation>
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
        <translation>Sprawdzone kamery</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>An&amp;uluj</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Ukryj ten wiersz</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Sprawdzone kamery: %1 z %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Sprawdzone kamery</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kamery</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>Pokaż też te, które &amp;odpowiadają</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>Pokaż na &amp;liście</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiuj</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Zapisz jako...</translation>
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
            <numerusform>Pominięto %n węzeł, który nie jest urządzeniem lub nie ma adresu.</numerusform>
            <numerusform>Pominięto %n węzły, które nie są urządzeniami lub nie mają adresu.</numerusform>
            <numerusform>Pominięto %n węzłów, które nie są urządzeniami lub nie mają adresu.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabele (*.csv);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>Nie zapisano %1: %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Powód</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>Gdy serwer je oferuje</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Zawsze</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Zawsze, ze sprawdzeniem certyfikatu</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nigdy</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Połącz ze współdzieloną bazą danych</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Ostatnie:</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Serwer:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Baza danych:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Użytkownik:</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>&amp;Hasło:</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>Szy&amp;frowanie:</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>&amp;Zapamiętaj hasło</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testuj</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Łączenie...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>Bazę danych można odczytywać i zmieniać.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>Bazę danych można odczytywać, ale nie można jej zmieniać.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>Nie można zapamiętać hasła, ponieważ brakuje klucza, który pieczętuje hasła. Następnym razem trzeba je będzie podać ponownie.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Przywracanie kopii zapasowej</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Cała zawartość tej bazy danych zostanie zastąpiona zawartością „%1”, u wszystkich, którzy jej używają. Obecna zawartość zostanie najpierw zachowana jako kopia zapasowa.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>P&amp;rzywróć</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Nowa baza danych węzłów</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>„%1” już istnieje. Otwórz tę bazę albo wybierz inną nazwę.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Kopia zapasowa</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Kopiowanie bazy danych...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>Bazę danych skopiowano do „%1”.</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>Przywracanie kopii zapasowej...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>Baza danych ma teraz zawartość „%1”.</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Współdzieloną bazę danych przywraca się na jej serwerze. Zwróć się do administratora.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>Niczego z niej nie można odczytać.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>Można z niej jeszcze odczytać %n węzeł.</numerusform>
            <numerusform>Można z niej jeszcze odczytać %n węzły.</numerusform>
            <numerusform>Można z niej jeszcze odczytać %n węzłów.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>Nie ma dobrej kopii zapasowej.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>Najnowsza dobra kopia zapasowa pochodzi z %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Jeśli wybierzesz jedną z tych możliwości, uszkodzony plik zostanie zachowany pod inną nazwą. W przeciwnym razie nic się nie zmieni.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>Baza danych węzłów</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>Baza danych węzłów jest uszkodzona. Wyszukiwanie danych do odczytu i kopii zapasowych...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>&amp;Otwórz inną...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>Zacznij od p&amp;ustej</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>Użyj &amp;czytelnych danych</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>Przywróć &amp;kopię zapasową</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>Baza danych węzłów „%1” jest uszkodzona.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>Tabele bazy danych węzłów „%1” zostały zmienione przez inny program.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>Baza danych węzłów „%1” jest pusta lub zniknęła, choć coś zawierała.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>Baza danych węzłów „%1” jest uszkodzona lub na jej miejscu jest inny plik.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Otwórz bazę danych węzłów</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Bazy danych węzłów (*.kodb);;Wszystkie pliki (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>&amp;Szczegóły</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>Pokazuje obok listy, czym jest zaznaczony węzeł</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Zaznacz węzeł na liście, aby zobaczyć tutaj, czym jest.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>Zaznaczono %n węzeł</numerusform>
            <numerusform>Zaznaczono %n węzły</numerusform>
            <numerusform>Zaznaczono %n węzłów</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>Co ma pierwszy z nich:</numerusform>
            <numerusform>Co mają wspólnego pierwsze %n z nich:</numerusform>
            <numerusform>Co ma wspólnego pierwszych %n z nich:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>różne</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>brak adresu</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>nie można odczytać hasła</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>usunięto w międzyczasie</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>nie odpytano</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Dostęp do nagrań</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>Fabryczny adres IP %n z zaznaczonych kamer nie jest znany:</numerusform>
            <numerusform>Fabryczne adresy IP %n z zaznaczonych kamer nie są znane:</numerusform>
            <numerusform>Fabryczne adresy IP %n z zaznaczonych kamer nie są znane:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>Ich nagrania można odtwarzać przez kamerę. Na serwerze plików folder kamery jest jednak nazwany od tego adresu: przy ścieżce domyślnej kamery te dzieliłyby jeden folder bez nazwy, a przy osobnej ścieżce straciłyby obecną. Kamera, która odpowiada i przyjmuje swoje hasło, podaje, jak można nazwać jej folder.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>Odpytaj &amp;kamery...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Pomiń je</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>Kontynuuj ze &amp;wszystkimi</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Użytkownik i hasło</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>%n zaznaczone urządzenie nie ma tej samej nazwy użytkownika i hasła: nazw użytkownika jest %1, a haseł %2.</numerusform>
            <numerusform>%n zaznaczone urządzenia nie mają tej samej nazwy użytkownika i hasła: nazw użytkownika jest %1, a haseł %2.</numerusform>
            <numerusform>%n zaznaczonych urządzeń nie ma tej samej nazwy użytkownika i hasła: nazw użytkownika jest %1, a haseł %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>Następne okno zaczyna od danych pierwszego urządzenia i po naciśnięciu OK nadaje wszystkim to, co pokazuje:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>Nadaj wszystkim &amp;te same...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n urządzenie: ustawiono dostęp do nagrań.</numerusform>
            <numerusform>%n urządzenia: ustawiono dostęp do nagrań.</numerusform>
            <numerusform>%n urządzeń: ustawiono dostęp do nagrań.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n pozostało bez zmian.</numerusform>
            <numerusform>%n pozostały bez zmian.</numerusform>
            <numerusform>%n pozostało bez zmian.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n urządzenie: ustawiono nazwę użytkownika i hasło.</numerusform>
            <numerusform>%n urządzenia: ustawiono nazwę użytkownika i hasło.</numerusform>
            <numerusform>%n urządzeń: ustawiono nazwę użytkownika i hasło.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n urządzenie)</numerusform>
            <numerusform>%1 (%n urządzenia)</numerusform>
            <numerusform>%1 (%n urządzeń)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>Tylko kamery IP można ustawiać razem. Pozostałe zaznaczaj pojedynczo.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Właściwości: %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>Edycja %n węzła</numerusform>
            <numerusform>Edycja %n węzłów</numerusform>
            <numerusform>Edycja %n węzłów</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>Co tu zmienisz, zmieni się we wszystkich poniższych. Co nie jest wszędzie takie samo, jest pokazane jako różne i pozostaje, jeśli tego nie zmienisz.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Ustalanie zmian...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Pokaż wszystkie węzły</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>Wczytywanie węzłów...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>W tej bazie danych nie ma jeszcze niczego.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Żaden węzeł nie pasuje.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Importuj listę kamer...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Znajdź urządzenia w sieci...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Dodaj kamerę...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>Nie podano nazwy ani adresu.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>Nie podano nazwy.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>„%1” ma już ten adres, port i kanał.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>Czy tak zapisać?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>&amp;Zapisz tak</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Kontynuuj edycję</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>Środowisko: %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>Środowisko sieciowe całego programu</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>Środowiskiem całego programu jest teraz „%1”.</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Wróć do „%1”</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>Środowiskiem jest znowu „%1”.</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Uzupełnij</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>&amp;Zastąp też to, co mogło zostać wpisane ręcznie</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Odpytane urządzenia</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>Co podały urządzenia</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>Odpytywanie %n urządzenia. Nic nie jest jeszcze zapisywane.</numerusform>
            <numerusform>Odpytywanie %n urządzeń. Nic nie jest jeszcze zapisywane.</numerusform>
            <numerusform>Odpytywanie %n urządzeń. Nic nie jest jeszcze zapisywane.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Nie ma czego uzupełniać.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>To podają urządzenia, a nie jest jeszcze zapisane. OK zapisuje to, co zaznaczono.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n urządzenie niczego nie podało:</numerusform>
            <numerusform>%n urządzenia niczego nie podały:</numerusform>
            <numerusform>%n urządzeń niczego nie podało:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>Uzupełniono %n urządzenie.</numerusform>
            <numerusform>Uzupełniono %n urządzenia.</numerusform>
            <numerusform>Uzupełniono %n urządzeń.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Potem</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Tylko „%1”</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Tylko %n zaznaczony węzeł</numerusform>
            <numerusform>Tylko %n zaznaczone węzły</numerusform>
            <numerusform>Tylko %n zaznaczonych węzłów</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Co zrobiono</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Co to zmieniło</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Trwa wyszukiwanie...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nic nie znaleziono.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>Jest tego więcej: przewiń w dół.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>To wszystko.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>%n zaznaczona zmiana</numerusform>
            <numerusform>%n zaznaczone zmiany</numerusform>
            <numerusform>%n zaznaczonych zmian</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Cofnięto: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Tylko to, co zrobiono do wpisu w dzienniku audytu</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>Co zrobiono:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>Co to zmieniło:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Cofnij...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Cofnij zaznaczone zmiany...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Eksportuj...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Powrót do tego miejsca...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Przechowuj...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>Szczegóły usunięto z historii: nie można tego cofnąć.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Eksport historii</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Listy (*.csv);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>Historia nie została zapisana: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>Eksportowanie historii...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>Węzły, wartości, co zrobiono</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Wszystkie rodzaje</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Wszystkie właściwości</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Szukaj:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Użytkownik:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Rodzaj:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Właściwość:</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Od:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Do:</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>Przechowywanie historii</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>Szczegóły zmiany to stan przed nią i po niej. Bez nich nie można jej pokazać ani cofnąć. Kto, kiedy i w jakim celu coś zmienił, jest zawsze przechowywane, podobnie jak dziennik zmian.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Usuwaj szczegóły &amp;starsze niż</translation>
    </message>
    <message>
        <source> days</source>
        <translation> dni</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dni</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>Usuwaj najstarsze szczegóły, gdy jest ich &amp;więcej niż</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Megabytes</source>
        <translation>Megabajty</translation>
    </message>
    <message>
        <source>This is done a minute after the start of the program and every six hours.</source>
        <translation>Dzieje się to minutę po uruchomieniu programu i co sześć godzin.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Stanowisko</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Co zrobiono</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Węzły</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Wiersz %1: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Nieużywane kolumny: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>Import anulowano. To, co dodano do tej chwili, pozostaje.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importuj kamery</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Szczegóły</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n wiersz z błędami zostanie pominięty.</numerusform>
            <numerusform>%n wiersze z błędami zostaną pominięte.</numerusform>
            <numerusform>%n wierszy z błędami zostanie pominiętych.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n wiersz może mieć inne znaczenie.</numerusform>
            <numerusform>%n wiersze mogą mieć inne znaczenie.</numerusform>
            <numerusform>%n wierszy może mieć inne znaczenie.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importuj</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>Dodano %1, zaktualizowano %2, bez zmian %3, %n wiersz z błędami.</numerusform>
            <numerusform>Dodano %1, zaktualizowano %2, bez zmian %3, %n wiersze z błędami.</numerusform>
            <numerusform>Dodano %1, zaktualizowano %2, bez zmian %3, %n wierszy z błędami.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>Import tej listy doda %n urządzenie, zmieni: %1, a pozostawi bez zmian: %2.</numerusform>
            <numerusform>Import tej listy doda %n urządzenia, zmieni: %1, a pozostawi bez zmian: %2.</numerusform>
            <numerusform>Import tej listy doda %n urządzeń, zmieni: %1, a pozostawi bez zmian: %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>Oczekiwanie na pęk kluczy. Odblokuj go, jeśli o to poprosi.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Pęk kluczy</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>Oczekiwanie na pęk kluczy.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>Zawiera klucz zapisanych haseł. Odblokuj go, jeśli o to poprosi.

Bez klucza zapisane hasła są pokazywane jako puste, a nowych nie można zapisać.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>&amp;Kontynuuj bez haseł</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Zakończ</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Język</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>&amp;Jak w systemie</translation>
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
        <translation>1 duży + 5</translation>
    </message>
    <message>
        <source>1 large + 7</source>
        <translation>1 duży + 7</translation>
    </message>
</context>
<context>
    <name>LogNotice</name>
    <message>
        <source>The log was altered</source>
        <translation>Dziennik został zmieniony</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>I jeszcze %n; koclient --verify-log ją wskaże.</numerusform>
            <numerusform>I jeszcze %n; koclient --verify-log je wskaże.</numerusform>
            <numerusform>I jeszcze %n; koclient --verify-log je wskaże.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Ktoś zmienił dziennik bazy danych węzłów innym programem:</translation>
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
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importuj...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Dodaje kamery ze spisu obiektu (CSV)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Eksportuj...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Zapisuje wszystkie kamery w pliku CSV</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>Eksportuj z&amp;aznaczone...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Zapisuje zaznaczone kamery w pliku CSV</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferencje...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Domyślne ścieżki i przepustowość</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Zamyka program</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Węzeł</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Dodaj...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Dodaje węzeł</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Edytuj...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Usuń...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Usuwa zaznaczone węzły</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Właściwości</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Pokazuje zaznaczony węzeł bez zmieniania go</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>Użytkownik i &amp;hasło...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Nadaje zaznaczonym urządzeniom jedną nazwę użytkownika i hasło</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Dostęp do &amp;nagrań...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>Skąd odtwarzane są nagrania zaznaczonych kamer</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>Uzu&amp;pełnij...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Odpytuje zaznaczone urządzenia i zapisuje z tego to, co wybierzesz</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>Dup&amp;likuj...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Dodaje węzeł taki jak zaznaczony</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>Otwó&amp;rz stronę WWW</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Otwiera stronę zaznaczonego urządzenia w przeglądarce</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>Kopiuj w&amp;iersze</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Kopiuje zaznaczone wiersze do arkusza kalkulacyjnego</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>&amp;Kopiuj adres</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Kopiuje adresy zaznaczonych węzłów</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Sieć</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>&amp;Proxy sieciowe...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>Serwer proxy aplikacji</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>Ś&amp;rodowiska...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>Środowiska sieciowe</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>&amp;Znajdź urządzenia...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Węzły pojawiające się podczas skanowania sieci</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>&amp;Widziane pod nowym adresem...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Urządzenia, które skanowanie znalazło pod innym adresem niż zapisany tutaj</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>&amp;Sprawdź kamery</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Pyta zaznaczone kamery lub wszystkie, czym są, i wypróbowuje ich hasła</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>Prz&amp;yjmij jako tę kamerę...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Inne urządzenie niż poprzednio jest odtąd tą kamerą</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Wi&amp;dok</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Kolumny...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Które kolumny ma lista</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>Dziennik &amp;zmian...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Kto, co i kiedy zmienił</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>&amp;Baza danych węzłów...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Wszystko, co jest zapisane</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Po&amp;moc</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;O programie</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Przez kamerę</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Domyślna ścieżka serwera plików</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>Pod nowym adresem widziano %n urządzenie: Sieć &gt; Widziane pod nowym adresem</numerusform>
            <numerusform>Pod nowym adresem widziano %n urządzenia: Sieć &gt; Widziane pod nowym adresem</numerusform>
            <numerusform>Pod nowym adresem widziano %n urządzeń: Sieć &gt; Widziane pod nowym adresem</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Węzły</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Szukaj (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Słowa w dowolnej kolumnie; „typ:kamera” szuka w jednej, „stan:błędne|zablokowano” jednego z dwóch, „-podwórze” pomija</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Wszystkie typy</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> &amp;Typ: </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Węzły</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>Nie zaznaczono żadnej kamery. Najpierw zaznacz jedną lub kilka na liście.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>Węzłów tego typu nie można dodawać.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>Ten węzeł nie ma adresu. Adres urządzenia podaje się w Węzeł &gt; Edytuj.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>Skopiowano %n wiersz.</numerusform>
            <numerusform>Skopiowano %n wiersze.</numerusform>
            <numerusform>Skopiowano %n wierszy.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>Skopiowano %n adres.</numerusform>
            <numerusform>Skopiowano %n adresy.</numerusform>
            <numerusform>Skopiowano %n adresów.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Pokazuje, dodaje, edytuje i usuwa węzły systemu monitoringu wizyjnego.&lt;/p&gt;&lt;p&gt;Wolne oprogramowanie na licencji GNU LGPL 2.1 lub nowszej.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>Zezwól na &amp;jawne hasło...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>Kamerom, które nie przyjmują go inaczej, hasło jest wysyłane w postaci czytelnej dla wszystkich</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Pokazuje ostatnią zmianę i ją cofa</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Ponawia to, co ostatnio cofnięto</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Historia...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>Co i kto zrobił; cofa to</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>Historia &amp;zaznaczonych...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>Co zrobiono z zaznaczonymi węzłami</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>Po&amp;wrót do...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Pokazuje wszystkie węzły takimi, jakie były wcześniej, i cofa zmiany</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Zmienia wybrane węzły</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>Pod&amp;gląd zmian wielu węzłów</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Pokazuje, co stanie się z wieloma węzłami, zanim zostanie to zapisane</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>Zmieniono %n węzeł.</numerusform>
            <numerusform>Zmieniono %n węzły.</numerusform>
            <numerusform>Zmieniono %n węzłów.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>Po&amp;łącz...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Otwiera bazę danych współdzieloną z innymi stanowiskami</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Nowa...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Tworzy pustą bazę danych węzłów i otwiera ją</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Otwórz...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Otwiera inną bazę danych węzłów</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>&amp;Kopia zapasowa...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Kopiuje bazę danych węzłów do pliku</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>P&amp;rzywróć...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Nadaje bazie danych węzłów zawartość kopii zapasowej</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>Lokalizacja i zna&amp;czniki...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Gdzie są zaznaczone urządzenia i jak są pogrupowane</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Podręcznik</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Wyjaśnia, do czego służy okno na pierwszym planie</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>Dodano „%1”.</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - Baza danych węzłów</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Urządzenia: %1, inne węzły: %2; pokazane: %3, zaznaczone: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>Zmieniono „%1”.</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Razem można edytować tylko węzły jednego typu. „Typ” nad listą pokazuje węzły jednego.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>Nie udało się otworzyć strony WWW %1. Wybierz przeglądarkę w ustawieniach pulpitu.</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Podręcznik</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>Szukaj w podręczniku (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Strony</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Strona podręcznika</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Wstecz</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Dalej</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Żadna strona nie zawiera wszystkich tych słów.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>Podręcznik jest w języku angielskim. Menu i przyciski noszą w nim nazwy z programu po angielsku.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>Ustawia się ją w „Plik &gt; Preferencje” głównego okna.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>To, co „Właściwości” pokazują jako fabryczny adres IP kamery. „Węzeł &gt; Uzupełnij” głównego okna pyta o niego kamerę.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Wpisz ścieżkę albo naciśnij „Więcej...” i wybierz jeden z folderów.</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Wtedy</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Zmieniono</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Usunięto</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Dodano</translation>
    </message>
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
        <source>Since Then</source>
        <translation>Od tamtej pory</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>Jak było, %1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>Węzły takie, jakie były %1, po „%2” (%3). Można je tu obejrzeć i cofnąć, ale nie edytować.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Szukaj</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Tylko to, co teraz jest inne</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Węzły:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Właściwości:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Węzły z tamtej chwili</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Właściwości wtedy i teraz</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>Ile odczytano z tego, co zrobiono od tamtej pory</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Cofnij wszystko...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Cofnij zaznaczone...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Odczytywanie tego, co zrobiono od tamtej pory...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>Inne są też ustawienia lub środowiska.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n zmiana od tamtej pory nie pasuje do tego, co jest teraz: nie wiadomo, co było przed nią.</numerusform>
            <numerusform>%n zmiany od tamtej pory nie pasują do tego, co jest teraz: nie wiadomo, co było przed nimi.</numerusform>
            <numerusform>%n zmian od tamtej pory nie pasuje do tego, co jest teraz: nie wiadomo, co było przed nimi.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Powrót do %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Cofnięto: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Wtedy %n węzeł, teraz innych: %1, pokazano: %2</numerusform>
            <numerusform>Wtedy %n węzły, teraz innych: %1, pokazano: %2</numerusform>
            <numerusform>Wtedy %n węzłów, teraz innych: %1, pokazano: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(bez nazwy)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
            <numerusform>i jeszcze %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>Co z nim zrobiono:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>Co to zmieniło:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Co zrobiono</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Co to zmieniło</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historia</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Lokalizacja</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
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
        <source>Recording</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Użytkownik</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanał</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lokalizacja</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Znaczniki</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Ostatnia zmiana</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Węzły</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Usuń węzły</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Usuwanie węzłów...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>Usunięto %n węzeł.</numerusform>
            <numerusform>Usunięto %n węzły.</numerusform>
            <numerusform>Usunięto %n węzłów.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Pobieranie obrazu...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Widziane %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Obraz z kamery</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Pobieranie obrazu...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Widziane %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Lokalizacja i znaczniki</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Zapisywanie lokalizacji i znaczników...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n urządzenie: ustawiono lokalizację i znaczniki.</numerusform>
            <numerusform>%n urządzenia: ustawiono lokalizację i znaczniki.</numerusform>
            <numerusform>%n urządzeń: ustawiono lokalizację i znaczniki.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Lokalizacja i znaczniki</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Gdzie jest zaznaczone urządzenie? Napisz od zewnątrz do środka, z ukośnikiem pomiędzy: Obiekt/Budynek/Piętro. Znaczniki oddziela się przecinkami.</numerusform>
            <numerusform>Gdzie są %n zaznaczone urządzenia? Napisz od zewnątrz do środka, z ukośnikiem pomiędzy: Obiekt/Budynek/Piętro. Znaczniki oddziela się przecinkami.</numerusform>
            <numerusform>Gdzie jest %n zaznaczonych urządzeń? Napisz od zewnątrz do środka, z ukośnikiem pomiędzy: Obiekt/Budynek/Piętro. Znaczniki oddziela się przecinkami.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Lokalizacja:</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>&amp;Znaczniki:</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(różne, pozostaną bez zmian)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Lokalizacje</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>&amp;Lokalizacje</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Pokazuje obiekty, budynki i piętra obok listy</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Lokalizacje</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Wszystkie węzły</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Urządzenia bez lokalizacji</translation>
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
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>Domyślna ś&amp;cieżka serwera plików:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Przeglądaj...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>Domyślny &amp;serwer podglądu zdalnego:</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>P&amp;ołączenie:</translation>
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
    <message>
        <source>Default File Server Path</source>
        <translation>Domyślna ścieżka serwera plików</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Obiekt/budynek/piętro:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Znaczniki, oddzielone przecinkami:</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: to się zmieni. OK cofa to, co zaznaczono.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: niczego nie można już cofnąć.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Co się zmieni</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Ktoś inny zmienił to w międzyczasie; pozostaje bez zmian:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Wszystko, co można cofnąć</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: to się zmieni. OK zmienia to, co zaznaczono.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: nic się nie zmieni.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Wszystkie zmiany</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>Węzeł</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Będzie</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Dlaczego nie</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>Co zmieniono</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Odczytywanie, co zmieniono...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>Można przeglądać tę współdzieloną bazę danych, ale nie można jej zmieniać. Jej administrator może nadać rolę ko_editor.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Tylko do odczytu</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Os&amp;tatnio otwarte</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Nie otwarto jeszcze innej bazy danych</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Usuń węzły</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>Usunąć ten węzeł? Edycja &gt; Cofnij go przywróci.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Usunąć %n węzeł? Edycja &gt; Cofnij go przywróci.</numerusform>
            <numerusform>Usunąć te %n węzły? Edycja &gt; Cofnij je przywróci.</numerusform>
            <numerusform>Usunąć te %n węzłów? Edycja &gt; Cofnij je przywróci.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>Nikt inny nie używa %n folderu nagrań:</numerusform>
            <numerusform>Nikt inny nie używa %n folderów nagrań:</numerusform>
            <numerusform>Nikt inny nie używa %n folderów nagrań:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Usuń też &amp;foldery nagrań</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>Zapisane &amp;wyszukiwania</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Zapisane wyszukiwania</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Wyszukiwania, które mają nazwę, i nazwa dla tego</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>&amp;Zapisz to wyszukiwanie...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Nadaje nazwę temu, co jest teraz wyszukiwane</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>Zmień &amp;nazwę lub usuń...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Zmienia nazwy zapisanych wyszukiwań i usuwa je</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Zapisz wyszukiwanie</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Nazwa (istniejąca otrzyma to wyszukiwanie):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Zapisane wyszukiwania</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Zapisane wyszukiwania</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Zmień &amp;nazwę</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Usuń...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Jest już wyszukiwanie o tej nazwie albo nazwa jest pusta. Pozostała bez zmian.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>Usunąć wyszukiwanie „%1”? Węzły, które znajduje, pozostaną.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Usuń</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Znajdź urządzenia</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>Wyszukiwanie znalazło %n nowe urządzenie i dodało je do bazy danych:</numerusform>
            <numerusform>Wyszukiwanie znalazło %n nowe urządzenia i dodało je do bazy danych:</numerusform>
            <numerusform>Wyszukiwanie znalazło %n nowych urządzeń i dodało je do bazy danych:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Zachowaj</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>&amp;Usuń ponownie</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>Znaleziono i dodano %n urządzenie.</numerusform>
            <numerusform>Znaleziono i dodano %n urządzenia.</numerusform>
            <numerusform>Znaleziono i dodano %n urządzeń.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>Ponownie usunięto %n urządzenie.</numerusform>
            <numerusform>Ponownie usunięto %n urządzenia.</numerusform>
            <numerusform>Ponownie usunięto %n urządzeń.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: bezczynne</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 z %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: wyszukiwanie</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: gotowe</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: anulowano</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: niedostępne (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Plik „%1” nie istnieje.</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>Historia pliku „%1” nie mówi, skąd wzięła się cała jego zawartość: plik jest starszy niż historia albo przywrócono do niego kopię zapasową. Takiego pliku nie można współdzielić; zaimportuj jego kamery do nowego.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>Nie można zmieniać obiektu „%1”. Poproś jego administratora o rolę ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>Obiekt „%1” nie jest pusty.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>„%1” należy do innego obiektu niż „%2”.</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>Obiekt różni się od pliku: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>Plik lub obiekt ciągle się zmienia, więc nie można było ich porównać.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n wiersz z historią jest w „%1” i jest tam taki sam jak tutaj.</numerusform>
            <numerusform>%n wiersze z historią są w „%1” i są tam takie same jak tutaj.</numerusform>
            <numerusform>%n wierszy z historią jest w „%1” i są tam takie same jak tutaj.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>„%1” zawiera hasła ze starszej wersji, które nie są jeszcze zaszyfrowane, ponieważ brakuje klucza tej instalacji. Najpierw go przywróć.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>„%1” zawiera hasła, które wymagają klucza obiektu. Niczego nie wysłano.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Współdzielona baza danych</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Tych zmian nie można było wykonać, ponieważ ktoś inny wcześniej usunął węzeł. Edycja &gt; Historia przywraca usunięty węzeł.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Niewykonane zmiany</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Czas</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Zmiana</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Węzeł</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Usunięty przez</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Odrzuć zaznaczone</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>&amp;Nowa kopia...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 na %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Nowa kopia</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>Zamknąć to okno i utworzyć nową kopię tego, co jest teraz na serwerze? Niewysłanych zmian w niej nie będzie; obecna kopia, która je zawiera, pozostanie w folderze „%1”.</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>&amp;Fraza hasłowa...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n zmiana niewykonana</numerusform>
            <numerusform>%1, %n zmiany niewykonane</numerusform>
            <numerusform>%1, %n zmian niewykonanych</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, potrzebna fraza hasłowa...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>Pod adresem „%1” jest teraz inny obiekt niż ten, którego to jest kopia. Nic do niego nie wysłano. Jeśli serwer skonfigurowano od nowa, poproś jego administratora o przywrócenie obiektu.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>Baza danych „%1” nie zawiera obiektu albo nie można go odczytać. Poproś jej administratora o rolę ko_viewer lub ko_editor; pusta baza danych staje się obiektem po użyciu koclient --share.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>Obiekt „%1” utworzono w innej wersji tego programu. Zainstaluj tę wersję na tym komputerze albo poproś o aktualizację obiektu.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>Obiekt „%1” można tylko odczytywać, ale na tym komputerze są zmiany, których on nie ma. Poproś jego administratora o rolę ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>Do tej kopii obiektu „%1” przywrócono kopię zapasową, czego nie można przekazać innym stanowiskom. Nie jest już współdzielona.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>Już nie współdzielona...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Połączono, tylko do odczytu</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Połączono</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>Wysyłanie %n zmiany</numerusform>
            <numerusform>Wysyłanie %n zmian</numerusform>
            <numerusform>Wysyłanie %n zmian</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Trwa aktualizacja</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Serwer niedostępny od %1, czeka %n zmiana</numerusform>
            <numerusform>Serwer niedostępny od %1, czekają %n zmiany</numerusform>
            <numerusform>Serwer niedostępny od %1, czeka %n zmian</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Serwer niedostępny od %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>Serwer obiektu „%1” jest nieosiągalny. Można pracować dalej: zmiany czekają na tym komputerze i zostaną wysłane, gdy serwer wróci.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>Obiekt „%1” jest widoczny tak, jak zmieniają go inni, ale nie można go zmieniać samemu.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>Obiekt „%1” jest współdzielony z innymi.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>Obiekt „%1” jest nieosiągalny.</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>Oczekiwanie na serwer...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Wysyłanie: pozostała %n zmiana</numerusform>
            <numerusform>Wysyłanie: pozostały %n zmiany</numerusform>
            <numerusform>Wysyłanie: pozostało %n zmian</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Odbieranie: %1 z %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>Obiekt „%1” przedstawia swoją przeszłość inaczej niż wcześniej temu stanowisku: jego historię zmieniono na serwerze. Nic więcej nie jest do niego wysyłane ani z niego pobierane. Należy to pokazać jego administratorowi; kopia na tym komputerze ma historię taką, jaka była.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>Kopii obiektu „%1” na tym komputerze nie można odczytać ani zapisać. Sprawdź, czy dysk działa i ma wolne miejsce, i uruchom program ponownie.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>Serwer obiektu „%1” odrzucił żądanie z tego komputera. Zmiany, których jeszcze nie otrzymał, są zachowane tutaj. Pokaż administratorowi odpowiedź serwera i uruchom program ponownie, gdy problem zostanie usunięty.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Nowa fraza hasłowa dla obiektu „%1”:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Jeszcze raz:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Te dwie frazy hasłowe nie są takie same.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>Fraza hasłowa obiektu „%1”:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>Nie podano frazy hasłowej obiektu. Hasła nie są odczytywane i nie można ich zapisać. Wpisz ją w terminalu albo ustaw zmienną KO_SITE_PASSPHRASE.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>Klucza nie można przechować na tym komputerze, ponieważ brakuje klucza tej instalacji. Następnym razem pojawi się ponownie pytanie o frazę hasłową.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>To nie jest fraza hasłowa tego obiektu.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Fraza hasłowa ma co najmniej %n znak.</numerusform>
            <numerusform>Fraza hasłowa ma co najmniej %n znaki.</numerusform>
            <numerusform>Fraza hasłowa ma co najmniej %n znaków.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>Obiekt nie ma jeszcze klucza.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Ktoś inny właśnie zmienił klucz lub jego frazę hasłową. Zapytaj, która fraza hasłowa teraz obowiązuje.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Otwarcie klucza wymaga więcej pamięci, niż ten komputer ma lub niż można od niego żądać.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Ten obiekt utworzono, zanim jego stanowiska miały wspólny klucz. Haseł nie można zapisać, dopóki administrator nie zaktualizuje go przez koclient --share.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>Ten komputer nie ma klucza haseł. Są pokazywane jako puste, a nowych nie można zapisać, dopóki nie podasz frazy hasłowej obiektu.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>Obiekt nie ma jeszcze klucza, którym jego stanowiska szyfrują hasła. Nowych nie można zapisać, dopóki ktoś go nie utworzy.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Współdzielona baza danych</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Łączenie z „%1”...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Zmiana frazy hasłowej</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Fraza hasłowa obiektu</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>Hasła kamer w „%1” są zaszyfrowane kluczem wspólnym dla jego stanowisk. Podaj frazę hasłową obiektu, raz na tym komputerze. Bez niej hasła są pokazywane jako puste, a nowych nie można zapisać.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>Obiekt „%1” nie ma jeszcze klucza, którym jego stanowiska szyfrują hasła kamer. Wymyśl frazę hasłową z kilku słów i przekaż ją wszystkim, którzy mają je widzieć. Serwer nigdy jej nie dostaje: jeśli wszyscy ją zapomną, nowe stanowiska nie odczytają haseł.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>Stanowiska, które mają klucz „%1”, zachowują go, gdy zmienia się tylko fraza hasłowa. Z nowym kluczem wszystkie hasła są szyfrowane na nowo, a każde stanowisko pyta o nową frazę hasłową: wybierz to, gdy utracono komputer.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Fraza hasłowa:</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>O&amp;becna fraza hasłowa:</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Nowa fraza hasłowa:</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>&amp;Powtórzenie:</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Utwórz też nowy &amp;klucz</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>Te dwie nowe frazy hasłowe nie są takie same.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Chwileczkę...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>Baza danych węzłów</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Dopóki to okno jest otwarte, nic z wprowadzonych danych nie przepadnie.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>To, co czeka na zapisanie, w całości albo wcale, dotyczy:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Zmiany nie są zapisane</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>&amp;Odrzuć zmiany</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Wszystkie zmiany są zapisane.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Są zmiany, których nie udało się zapisać. Przepadną, jeśli program zostanie teraz zamknięty.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>Baza danych węzłów</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Zapisywanie zmian...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Listy kamer (*.csv);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importuj kamery</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Importowanie kamer...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Eksportuj kamery</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>Zapisać też hasła? Kto może odczytać plik, będzie mógł używać wszystkich kamer, które zawiera.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Eksportowanie kamer...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>Zapisano %n kamerę.</numerusform>
            <numerusform>Zapisano %n kamery.</numerusform>
            <numerusform>Zapisano %n kamer.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Odczyt listy...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>&amp;Cofnij „%1”</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Cofnij</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>&amp;Ponów „%1”</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ponów</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Cofnięto: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Ponowiono: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Cofnij...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>Wprowadzone dane nie zostały jeszcze zapisane.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Odrzuć</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Kontynuuj edycję</translation>
    </message>
</context>
</TS>
