<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Přidat a &amp;další</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Viděno na nové adrese</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Tato zařízení nyní zřejmě odpovídají na jiné adrese. Přijměte jen to, co očekáváte: uživatelské jméno a heslo se od té chvíle posílají na novou adresu.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Zařízení</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Stará adresa</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Nová adresa</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>Adresa MAC</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>&amp;Přijmout vybrané</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>Přijmout &amp;vše</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Zahodit vybrané</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>Uzel</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Předtím</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Potom</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>Databáze uzlů</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>Databáze uzlů „%1“ leží na síťové jednotce. Dva programy, které ji tam používají současně, ji mohou poškodit. Přesuňte ji na disk tohoto počítače.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 platí pro okna, a zde se žádné neotevírá.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, řádek %2: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>Sloupec „%1“ se nepoužívá.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>zapsáno: %1</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>vynecháno bez názvu a adresy: %1</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Použije tento jazyk, např. de nebo pt_BR, bez ohledu na jiná nastavení.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Přidá kamery ze seznamu (CSV) a skončí. Okno není potřeba.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Zapíše všechny kamery do seznamu (CSV) a skončí.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Vynechá hesla z --export.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Zkopíruje databázi, která se může používat, do souboru a skončí.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Dá databázi, která se může používat, obsah zálohy a skončí. Současný obsah se uchová jako záloha.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Neočekávaný argument: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>Hodnota za --%1 je prázdná.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>Prohlédnuté záznamy: %1, starší než řetěz: %2, články bez pečeti: %3</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 nelze zapsat.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Zjistí, zda někdo změnil protokoly databáze, uvede co a skončí.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>Podrobnosti do změny číslo %1 byly odebrány</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>Odebráno podrobností: %1, do změny číslo %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>Dále ne: historie byla změněna. --verify-log uvede co.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Odebere z historie, co bylo před každou změnou starší než tolik dnů a po ní, a skončí. Kdo a kdy něco změnil, zůstává.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history vyžaduje počet dnů.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Zobrazuje, přidává, upravuje a odebírá uzly kamerového systému.
Bez volby, která něco udělá a skončí, jako --import, otevře okno a přijímá i volby grafické knihovny (-platform, -style a další).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Otevře tuto databázi uzlů: soubor, který se vytvoří, pokud neexistuje, nebo sdílenou databázi, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Přenese databázi s historií do prázdné databáze na serveru, jejíž adresa následuje (postgresql://user@host/database), a skončí. Při dalším spuštění pokračuje.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>Za --share FILE následuje adresa databáze, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>Do sdílené databáze nelze obnovit zálohu.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>přidáno %1, aktualizováno %2, beze změny %3, %n řádek s chybami</numerusform>
            <numerusform>přidáno %1, aktualizováno %2, beze změny %3, %n řádky s chybami</numerusform>
            <numerusform>přidáno %1, aktualizováno %2, beze změny %3, %n řádků s chybami</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Protokol změn</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Hledat:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>Zobrazit v historii...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Uživatel</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (nic se nezměnilo)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Zpět k</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Ukáže všechny uzly tak, jak byly, v samostatném okně. Nic se tím nezmění; co se tam ukazuje, lze vrátit.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>Ne později než:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Jak to bylo po tomto:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Co bylo provedeno</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zobrazit</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>heslo nelze přečíst</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>nepožaduje heslo</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>během kontroly bylo změněno</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>Kamery se již kontrolují.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>Není žádná kamera s adresou ke kontrole.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>Vyzkoušet jednou u každého?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>&amp;Vyzkoušet</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>Kontrola byla zrušena.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>Z&amp;práva...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>Heslo přijalo %1 z %2 kamer.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>Správně odpovídá %1 z %2 kamer.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>U žádné z vybraných kamer nebylo zjištěno jiné zařízení: zjišťuje to Síť &gt; Zkontrolovat kamery.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Přijmout jiná zařízení</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>Odpovědělo %n zařízení, které není to dosud známé. Přijměte je jen tehdy, když víte proč, např. po výměně nebo s novým certifikátem: od příští kontroly mu bude posláno uložené uživatelské jméno a heslo.</numerusform>
            <numerusform>Odpověděla %n zařízení, která nejsou ta dosud známá. Přijměte je jen tehdy, když víte proč, např. po výměně nebo s novým certifikátem: od příští kontroly jim bude posláno uložené uživatelské jméno a heslo.</numerusform>
            <numerusform>Odpovědělo %n zařízení, která nejsou ta dosud známá. Přijměte je jen tehdy, když víte proč, např. po výměně nebo s novým certifikátem: od příští kontroly jim bude posláno uložené uživatelské jméno a heslo.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Přijmout</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>Přijato %n zařízení.</numerusform>
            <numerusform>Přijata %n zařízení.</numerusform>
            <numerusform>Přijato %n zařízení.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>Z&amp;kontrolovat</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>U žádné z vybraných kamer nebylo zjištěno, že požaduje otevřené heslo: zjišťuje to Síť &gt; Zkontrolovat kamery.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n zařízení přijímá heslo pouze v otevřené podobě. Bez SSL je může přečíst každý, kdo cestou naslouchá, a použít pro všechny kamery se stejným heslem. Povolte to jen tam, kde je síť vaše vlastní. Platí to, dokud si kamera ponechá svou adresu a port.</numerusform>
            <numerusform>%n zařízení přijímají heslo pouze v otevřené podobě. Bez SSL je může přečíst každý, kdo cestou naslouchá, a použít pro všechny kamery se stejným heslem. Povolte to jen tam, kde je síť vaše vlastní. Platí to, dokud si kamera ponechá svou adresu a port.</numerusform>
            <numerusform>%n zařízení přijímá heslo pouze v otevřené podobě. Bez SSL je může přečíst každý, kdo cestou naslouchá, a použít pro všechny kamery se stejným heslem. Povolte to jen tam, kde je síť vaše vlastní. Platí to, dokud si kamera ponechá svou adresu a port.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Povolit otevřená hesla</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Povolit</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>Povoleno odesílat otevřené heslo %n zařízení.</numerusform>
            <numerusform>Povoleno odesílat otevřená hesla %n zařízením.</numerusform>
            <numerusform>Povoleno odesílat otevřená hesla %n zařízením.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>Po zkontrolování kamery (F5) se zde zobrazí její obraz.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>Heslo nelze přečíst.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Jiné zařízení než dříve</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Zablokováno</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Chybné heslo</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Požaduje otevřené heslo</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Žádná odpověď</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Nesrozumitelné</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Nezkontrolováno</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Odpovídá</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>Odebral %1 na %2. Co zde zadáte, nelze uložit; Úpravy &gt; Historie uzel vrátí.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Mezitím změnil %1 na %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 na %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>Právě upravuje také: %1.</translation>
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
        <translation>Zkontrolované kamery</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Z&amp;rušit</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Skrýt tento řádek</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Zkontrolované kamery: %1 z %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Zkontrolované kamery</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kamery</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>Zobrazit i ty, které &amp;odpovídají</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>Zobrazit v &amp;seznamu</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopírovat</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Uložit jako...</translation>
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
            <numerusform>Vynechán %n uzel, který není zařízení nebo nemá adresu.</numerusform>
            <numerusform>Vynechány %n uzly, které nejsou zařízení nebo nemají adresu.</numerusform>
            <numerusform>Vynecháno %n uzlů, které nejsou zařízení nebo nemají adresu.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabulky (*.csv);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 nebylo zapsáno: %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Důvod</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>Když je server nabízí</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Vždy</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Vždy, s ověřením certifikátu</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nikdy</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Připojit ke sdílené databázi</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Nedávné:</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Server:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Databáze:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Uživatel:</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>&amp;Heslo:</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>Ši&amp;frování:</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>&amp;Zapamatovat heslo</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Vyzkoušet</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Připojování...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>Databázi lze číst i měnit.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>Databázi lze číst, ale vy ji měnit nesmíte.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>Heslo nelze zapamatovat, protože chybí klíč, kterým se hesla pečetí. Příště budete znovu požádáni o jeho zadání.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Obnovit zálohu</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Vše v této databázi se nahradí obsahem „%1“, pro všechny, kdo ji používají. Současný obsah se nejdříve uchová jako záloha.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Obnovit</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Nová databáze uzlů</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>„%1“ už existuje. Otevřete ji, nebo zvolte jiný název.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Zálohovat</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Databáze se kopíruje...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>Databáze byla zkopírována do „%1“.</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>Záloha se obnovuje...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>Databáze má nyní obsah „%1“.</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Sdílená databáze se obnovuje na svém serveru. Obraťte se na jeho správce.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>Nelze z ní nic přečíst.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>Lze z ní ještě přečíst %n uzel.</numerusform>
            <numerusform>Lze z ní ještě přečíst %n uzly.</numerusform>
            <numerusform>Lze z ní ještě přečíst %n uzlů.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>Není žádná dobrá záloha.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>Nejnovější dobrá záloha je z %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Zvolíte-li některou z těchto možností, poškozený soubor se uchová pod jiným názvem. Jinak se nic nezmění.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>Databáze uzlů</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>Databáze uzlů je poškozena. Hledá se, co lze přečíst, a zálohy...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Konec</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>&amp;Otevřít jinou...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Zkusit znovu</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>Začít s &amp;prázdnou</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>Použí&amp;t čitelné</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>Obnovit zá&amp;lohu</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>Databáze uzlů „%1“ je poškozena.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>Tabulky databáze uzlů „%1“ změnil jiný program.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>Databáze uzlů „%1“ je prázdná nebo zmizela, ačkoli něco obsahovala.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>Databáze uzlů „%1“ je poškozena, nebo je na jejím místě jiný soubor.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Otevřít databázi uzlů</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Databáze uzlů (*.kodb);;Všechny soubory (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>&amp;Podrobnosti</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>Ukazuje vedle seznamu, co je vybraný uzel</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Vyberte uzel v seznamu a zde uvidíte, co to je.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>Vybrán %n uzel</numerusform>
            <numerusform>Vybrány %n uzly</numerusform>
            <numerusform>Vybráno %n uzlů</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>Co má první z nich:</numerusform>
            <numerusform>Co mají společné první %n z nich:</numerusform>
            <numerusform>Co má společné prvních %n z nich:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>různé</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>nemá adresu</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>heslo nelze přečíst</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>mezitím odebráno</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>nedotázáno</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Přístup k záznamům</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>Tovární adresa IP %n z vybraných kamer není známa:</numerusform>
            <numerusform>Tovární adresy IP %n z vybraných kamer nejsou známy:</numerusform>
            <numerusform>Tovární adresy IP %n z vybraných kamer nejsou známy:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>Jejich záznamy lze přehrávat přes kameru. Na souborovém serveru je však složka kamery pojmenována podle této adresy: s výchozí cestou by tyto kamery sdílely jednu složku bez názvu, se zvláštní cestou by přišly o tu, kterou mají. Kamera, která odpovídá a přijme své heslo, sdělí, podle čeho lze její složku pojmenovat.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>&amp;Dotázat se kamer...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Vynechat je</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>&amp;Pokračovat se všemi</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Uživatel a heslo</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>%n vybrané zařízení nemá stejné uživatelské jméno a heslo: uživatelských jmen je %1 a hesel %2.</numerusform>
            <numerusform>%n vybraná zařízení nemají stejné uživatelské jméno a heslo: uživatelských jmen je %1 a hesel %2.</numerusform>
            <numerusform>%n vybraných zařízení nemá stejné uživatelské jméno a heslo: uživatelských jmen je %1 a hesel %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>Další okno začíná údaji prvního zařízení a po stisknutí OK dá všem to, co zobrazuje:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>&amp;Dát všem stejné...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n zařízení: přístup k záznamům nastaven.</numerusform>
            <numerusform>%n zařízení: přístup k záznamům nastaven.</numerusform>
            <numerusform>%n zařízení: přístup k záznamům nastaven.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n zůstalo beze změny.</numerusform>
            <numerusform>%n zůstala beze změny.</numerusform>
            <numerusform>%n zůstalo beze změny.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n zařízení: uživatelské jméno a heslo nastaveny.</numerusform>
            <numerusform>%n zařízení: uživatelské jméno a heslo nastaveny.</numerusform>
            <numerusform>%n zařízení: uživatelské jméno a heslo nastaveny.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n zařízení)</numerusform>
            <numerusform>%1 (%n zařízení)</numerusform>
            <numerusform>%1 (%n zařízení)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>Společně lze nastavit jen kamery IP. Ostatní vybírejte po jedné.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Vlastnosti: %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>Upravit %n uzel</numerusform>
            <numerusform>Upravit %n uzly</numerusform>
            <numerusform>Upravit %n uzlů</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>Co zde změníte, změní se u všech těchto. Co není u všech stejné, je zobrazeno jako různé a zůstane, pokud to nezměníte.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Zjišťuje se, co se změní...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Zobrazit všechny uzly</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>Načítají se uzly...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>V této databázi zatím nic není.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Žádný uzel nevyhovuje.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Importovat seznam kamer...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Najít zařízení v síti...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Přidat kameru...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>Nebyl zadán název ani adresa.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>Nebyl zadán název.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>„%1“ už má tuto adresu, port a kanál.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>Má se to tak uložit?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>&amp;Uložit tak</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Pokračovat v úpravách</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>Prostředí: %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>Síťové prostředí celého programu</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>Prostředí celého programu je nyní „%1“.</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Zpět na „%1“</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>Prostředí je opět „%1“.</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Doplnit</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>&amp;Nahradit i to, co mohlo být zadáno ručně</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Dotázaná zařízení</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>Co zařízení sdělila</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>Dotazuje se %n zařízení. Zatím se nic neukládá.</numerusform>
            <numerusform>Dotazují se %n zařízení. Zatím se nic neukládá.</numerusform>
            <numerusform>Dotazuje se %n zařízení. Zatím se nic neukládá.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Není co doplnit.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>Toto zařízení sdělují a není to zatím uloženo. OK uloží zaškrtnuté.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n zařízení nic nesdělilo:</numerusform>
            <numerusform>%n zařízení nic nesdělila:</numerusform>
            <numerusform>%n zařízení nic nesdělilo:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>Doplněno %n zařízení.</numerusform>
            <numerusform>Doplněna %n zařízení.</numerusform>
            <numerusform>Doplněno %n zařízení.</numerusform>
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
        <translation>Nyní</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Potom</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Jen „%1“</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Jen %n vybraný uzel</numerusform>
            <numerusform>Jen %n vybrané uzly</numerusform>
            <numerusform>Jen %n vybraných uzlů</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Co bylo provedeno</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Co to změnilo</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Hledá se dál...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nic nebylo nalezeno.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>Je toho víc: posuňte se dolů.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>To je vše.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>%n vybraná změna</numerusform>
            <numerusform>%n vybrané změny</numerusform>
            <numerusform>%n vybraných změn</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Vráceno: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Jen co bylo provedeno do záznamu v protokolu změn</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>Co bylo provedeno:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>Co to změnilo:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Vrátit...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Vrátit vybrané změny...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportovat...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Zpět až sem...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Uchovávat...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>Podrobnosti byly z historie odebrány: nelze to vrátit.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Exportovat historii</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Seznamy (*.csv);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>Historie nebyla zapsána: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>Historie se exportuje...</translation>
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
        <translation>Uzly, hodnoty, co bylo provedeno</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Všechny druhy</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Všechny vlastnosti</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Hledat:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Uživatel:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Druh:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Vlastnost:</translation>
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
        <translation>Uchovávání historie</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>Podrobnosti změny jsou to, co bylo před ní a po ní. Bez nich ji nelze zobrazit ani vrátit. Kdo, kdy a proč něco změnil, se uchovává vždy, stejně jako protokol změn.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Odebírat podrobnosti &amp;starší než</translation>
    </message>
    <message>
        <source> days</source>
        <translation> dnů</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dny</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>Odebírat nejstarší podrobnosti, je-li jich &amp;více než</translation>
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
        <translation>Děje se to minutu po spuštění programu a každých šest hodin.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Uživatel</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Stanice</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Co bylo provedeno</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Uzly</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Řádek %1: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Nepoužité sloupce: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>Import byl zrušen. Co bylo do té doby přidáno, zůstává.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importovat kamery</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Podrobnosti</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n řádek s chybami bude vynechán.</numerusform>
            <numerusform>%n řádky s chybami budou vynechány.</numerusform>
            <numerusform>%n řádků s chybami bude vynecháno.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n řádek je možná míněn jinak.</numerusform>
            <numerusform>%n řádky jsou možná míněny jinak.</numerusform>
            <numerusform>%n řádků je možná míněno jinak.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importovat</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>Přidáno %1, aktualizováno %2, beze změny %3, %n řádek s chybami.</numerusform>
            <numerusform>Přidáno %1, aktualizováno %2, beze změny %3, %n řádky s chybami.</numerusform>
            <numerusform>Přidáno %1, aktualizováno %2, beze změny %3, %n řádků s chybami.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>Import tohoto seznamu přidá %n zařízení, změní: %1 a ponechá beze změny: %2.</numerusform>
            <numerusform>Import tohoto seznamu přidá %n zařízení, změní: %1 a ponechá beze změny: %2.</numerusform>
            <numerusform>Import tohoto seznamu přidá %n zařízení, změní: %1 a ponechá beze změny: %2.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>Čeká se na klíčenku. Odemkněte ji, pokud o to požádá.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Klíčenka</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>Čeká se na vaši klíčenku.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>Obsahuje klíč uložených hesel. Odemkněte ji, pokud o to požádá.

Bez klíče se uložená hesla zobrazují prázdná a nová nelze uložit.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>&amp;Pokračovat bez hesel</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Konec</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Jazyk</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>&amp;Podle systému</translation>
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
        <translation>1 velká + 5</translation>
    </message>
    <message>
        <source>1 large + 7</source>
        <translation>1 velká + 7</translation>
    </message>
</context>
<context>
    <name>LogNotice</name>
    <message>
        <source>The log was altered</source>
        <translation>Protokol byl změněn</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>A ještě %n; koclient --verify-log ji uvede.</numerusform>
            <numerusform>A ještě %n; koclient --verify-log je uvede.</numerusform>
            <numerusform>A ještě %n; koclient --verify-log je uvede.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Někdo změnil protokol databáze uzlů jiným programem:</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>S&amp;oubor</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importovat...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Přidá kamery ze soupisu lokality (CSV)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportovat...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Zapíše všechny kamery do souboru CSV</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>Exportovat &amp;vybrané...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Zapíše vybrané kamery do souboru CSV</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Předvolby...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Výchozí cesty a šířka pásma</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Konec</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Zavře program</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Uzel</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Přidat...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Přidá uzel</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Upravit...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Odebrat...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Odebere vybrané uzly</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Vlastnosti</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Zobrazí vybraný uzel, aniž by jej změnil</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>Uživatel a &amp;heslo...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Dá vybraným zařízením jedno uživatelské jméno a heslo</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Přístup k &amp;záznamům...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>Odkud se přehrávají záznamy vybraných kamer</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>Dop&amp;lnit...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Dotáže se vybraných zařízení a uloží z toho, co zvolíte</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Duplikovat...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Přidá uzel stejný jako vybraný</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>Otevřít &amp;webovou stránku</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Otevře stránku vybraného zařízení v prohlížeči</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>Kopírovat řádk&amp;y</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Zkopíruje vybrané řádky pro tabulkový kalkulátor</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>&amp;Kopírovat adresu</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Zkopíruje adresy vybraných uzlů</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Síť</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>Síťová &amp;proxy...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>Server proxy aplikace</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>P&amp;rostředí...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>Síťová prostředí</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>&amp;Najít zařízení...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Uzly, které přicházejí během hledání v síti</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>&amp;Viděno na nové adrese...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Zařízení, která hledání našlo na jiné adrese, než mají zde</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>&amp;Zkontrolovat kamery</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Zeptá se vybraných kamer, nebo všech, co jsou zač, a vyzkouší jejich hesla</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>Přijmout &amp;jako tuto kameru...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Jiné zařízení než dříve je odteď touto kamerou</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Zobrazit</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Sloupce...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Které sloupce má seznam</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>Protokol &amp;změn...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Kdo, co a kdy změnil</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>&amp;Databáze uzlů...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Vše, co je uloženo</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;O programu</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Přes kameru</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Výchozí cesta souborového serveru</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>Na nové adrese bylo viděno %n zařízení: Síť &gt; Viděno na nové adrese</numerusform>
            <numerusform>Na nové adrese byla viděna %n zařízení: Síť &gt; Viděno na nové adrese</numerusform>
            <numerusform>Na nové adrese bylo viděno %n zařízení: Síť &gt; Viděno na nové adrese</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Uzly</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Hledat (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Slova v libovolném sloupci; „typ:kamera“ hledá v jednom, „stav:chybné|zablokováno“ jedno z obou, „-dvůr“ vynechá</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Všechny typy</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> &amp;Typ: </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Uzly</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>Není vybrána žádná kamera. Nejprve jednu nebo více vyberte v seznamu.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>Uzly tohoto typu nelze přidat.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>Tento uzel nemá adresu. Adresa zařízení se zadává v Uzel &gt; Upravit.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>Zkopírován %n řádek.</numerusform>
            <numerusform>Zkopírovány %n řádky.</numerusform>
            <numerusform>Zkopírováno %n řádků.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>Zkopírována %n adresa.</numerusform>
            <numerusform>Zkopírovány %n adresy.</numerusform>
            <numerusform>Zkopírováno %n adres.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Zobrazuje, přidává, upravuje a odebírá uzly kamerového systému.&lt;/p&gt;&lt;p&gt;Svobodný software pod GNU LGPL 2.1 nebo novější.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>Povoli&amp;t otevřené heslo...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>Kamerám, které je jinak nepřijmou, se heslo odesílá čitelné pro všechny</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Úp&amp;ravy</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Ukáže poslední změnu a vrátí ji</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Provede znovu, co bylo naposledy vráceno</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Historie...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>Co kdo provedl; vrátí to</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>Historie &amp;vybraných...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>Co bylo provedeno s vybranými uzly</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>Zpě&amp;t k...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Ukáže všechny uzly tak, jak byly dříve, a vrátí je</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Změní vybrané uzly</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>&amp;Náhled změn více uzlů</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Ukáže, co by se stalo s více uzly, než se to uloží</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>Upraven %n uzel.</numerusform>
            <numerusform>Upraveny %n uzly.</numerusform>
            <numerusform>Upraveno %n uzlů.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>Připo&amp;jit...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Otevře databázi sdílenou s jinými stanicemi</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Nová...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Vytvoří prázdnou databázi uzlů a otevře ji</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Otevřít...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Otevře jinou databázi uzlů</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>&amp;Zálohovat...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Zkopíruje databázi uzlů do souboru</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>O&amp;bnovit...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Dá databázi uzlů obsah zálohy</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>Umís&amp;tění a štítky...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Kde jsou vybraná zařízení a podle čeho se seskupují</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Příručka</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Vysvětlí, k čemu je okno v popředí</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>Přidáno: „%1“.</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - Databáze uzlů</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Zařízení: %1, jiné uzly: %2; zobrazeno: %3, vybráno: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>Změněno: „%1“.</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Společně lze upravovat jen uzly jednoho typu. „Typ“ nad seznamem zobrazí uzly jednoho.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>Webovou stránku %1 se nepodařilo otevřít. Vyberte prohlížeč v nastavení plochy.</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Příručka</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>Hledat v příručce (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Stránky</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Stránka příručky</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vpřed</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Žádná stránka nemá všechna tato slova.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>Příručka je v angličtině. Názvy nabídek a tlačítek jsou názvy anglického programu.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>Nastavuje se v „Soubor &gt; Předvolby“ hlavního okna.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>Je to, co „Vlastnosti“ ukazují jako tovární IP adresu kamery. „Uzel &gt; Doplnit“ hlavního okna se na ni kamery zeptá.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Zadejte cestu, nebo stiskněte „Více...“ a vyberte jednu ze složek.</translation>
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
        <translation>Tehdy</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Změněno</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Odebráno</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Přidáno</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Since Then</source>
        <translation>Od té doby</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>Jak to bylo, %1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>Uzly tak, jak byly %1, po „%2“ (%3). Zde si je lze prohlédnout a vrátit, ale ne upravit.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Jen co je teď jiné</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Uzly:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Vlastnosti:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Tehdejší uzly</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Vlastnosti tehdy a nyní</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>Kolik je přečteno z toho, co se od té doby provedlo</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Vrátit vše...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Vrátit vybrané...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Čte se, co se od té doby provedlo...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>Jiná jsou i nastavení nebo prostředí.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n změna od té doby neodpovídá tomu, co je nyní: co bylo před ní, není známo.</numerusform>
            <numerusform>%n změny od té doby neodpovídají tomu, co je nyní: co bylo před nimi, není známo.</numerusform>
            <numerusform>%n změn od té doby neodpovídá tomu, co je nyní: co bylo před nimi, není známo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Zpět k %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Vráceno: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Tehdy %n uzel, nyní jiných: %1, zobrazeno: %2</numerusform>
            <numerusform>Tehdy %n uzly, nyní jiných: %1, zobrazeno: %2</numerusform>
            <numerusform>Tehdy %n uzlů, nyní jiných: %1, zobrazeno: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(bez názvu)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>a %n další</numerusform>
            <numerusform>a %n další</numerusform>
            <numerusform>a %n dalších</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>Co se s ním provedlo:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>Co to změnilo:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Co bylo provedeno</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Co to změnilo</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historie</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Umístění</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Záznam</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stav</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Verze</translation>
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
        <translation>Uživatel</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanál</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Umístění</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Štítky</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Poslední změna</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Uzly</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Odebrat uzly</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Odebírání uzlů...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>Odebrán %n uzel.</numerusform>
            <numerusform>Odebrány %n uzly.</numerusform>
            <numerusform>Odebráno %n uzlů.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Načítání obrazu...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Viděno %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Obraz kamery</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Načítání obrazu...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Viděno %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Umístění a štítky</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Ukládají se umístění a štítky...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n zařízení: umístění a štítky nastaveny.</numerusform>
            <numerusform>%n zařízení: umístění a štítky nastaveny.</numerusform>
            <numerusform>%n zařízení: umístění a štítky nastaveny.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Umístění a štítky</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Kde je vybrané zařízení? Napište to zvenčí dovnitř, oddělené lomítkem: Areál/Budova/Patro. Štítky se oddělují čárkami.</numerusform>
            <numerusform>Kde jsou %n vybraná zařízení? Napište to zvenčí dovnitř, oddělené lomítkem: Areál/Budova/Patro. Štítky se oddělují čárkami.</numerusform>
            <numerusform>Kde je %n vybraných zařízení? Napište to zvenčí dovnitř, oddělené lomítkem: Areál/Budova/Patro. Štítky se oddělují čárkami.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Umístění:</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>Ští&amp;tky:</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(různé, zůstanou jak jsou)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Umístění</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>&amp;Umístění</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Ukáže areály, budovy a patra vedle seznamu</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Umístění</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Všechny uzly</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Zařízení bez umístění</translation>
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
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>Výchozí &amp;cesta souborového serveru:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Procházet...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>Výchozí &amp;server vzdáleného náhledu:</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>Př&amp;ipojení:</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Vzdálené pomalé (modem, ISDN, GPRS/2G, EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>Vzdálené rychlé (DSL, UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>Místní pomalé (WLAN/WiFi, Ethernet)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>Místní rychlé (Fast Ethernet, Gigabit Ethernet)</translation>
    </message>
    <message>
        <source>Default File Server Path</source>
        <translation>Výchozí cesta souborového serveru</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Areál/budova/patro:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Štítky, oddělené čárkami:</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Vrátit</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: toto se změní. OK vrátí, co je zaškrtnuto.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: už nic nelze vrátit.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Co se změní</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Někdo jiný to mezitím změnil; zůstává to tak:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Vše, co lze vrátit</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Náhled</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: toto se změní. OK změní, co je zaškrtnuto.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: nic se nezmění.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Všechny změny</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>Uzel</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Co</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nyní</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Bude</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Proč ne</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>Co se změnilo</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Čte se, co se změnilo...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>Tuto sdílenou databázi smíte prohlížet, ale ne měnit. Její správce vám může dát roli ko_editor.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Jen pro čtení</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Otevřít ne&amp;dávné</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Zatím nebyla otevřena jiná databáze</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Odebrat uzly</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Odebrat</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>Odebrat tento uzel? Úpravy &gt; Zpět jej vrátí.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Odebrat %n uzel? Úpravy &gt; Zpět jej vrátí.</numerusform>
            <numerusform>Odebrat tyto %n uzly? Úpravy &gt; Zpět je vrátí.</numerusform>
            <numerusform>Odebrat těchto %n uzlů? Úpravy &gt; Zpět je vrátí.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>Nikdo jiný nepoužívá %n složku záznamů:</numerusform>
            <numerusform>Nikdo jiný nepoužívá %n složky záznamů:</numerusform>
            <numerusform>Nikdo jiný nepoužívá %n složek záznamů:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Odebrat i &amp;složky záznamů</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>Uložená &amp;hledání</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Uložená hledání</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Hledání, která mají název, a název pro toto</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>&amp;Uložit toto hledání...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Pojmenuje to, co se nyní hledá</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>&amp;Přejmenovat nebo odebrat...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Mění názvy uložených hledání a odebírá je</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Uložit hledání</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Název (existující dostane toto hledání):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Uložená hledání</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Uložená hledání</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Přejme&amp;novat</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Odebrat...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Hledání s tímto názvem už existuje, nebo je název prázdný. Zůstal, jak byl.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>Odebrat hledání „%1“? Uzly, které najde, zůstanou.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Odebrat</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Najít zařízení</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>Hledání našlo %n nové zařízení a přidalo je do databáze:</numerusform>
            <numerusform>Hledání našlo %n nová zařízení a přidalo je do databáze:</numerusform>
            <numerusform>Hledání našlo %n nových zařízení a přidalo je do databáze:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Ponechat</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>Zase &amp;odebrat</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>Nalezeno a přidáno %n zařízení.</numerusform>
            <numerusform>Nalezena a přidána %n zařízení.</numerusform>
            <numerusform>Nalezeno a přidáno %n zařízení.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>Zase odebráno %n zařízení.</numerusform>
            <numerusform>Zase odebrána %n zařízení.</numerusform>
            <numerusform>Zase odebráno %n zařízení.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: nečinné</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 z %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: hledá se</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: hotovo</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: zrušeno</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: není k dispozici (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Soubor „%1“ neexistuje.</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>Historie souboru „%1“ neříká, jak vzniklo vše, co v něm je: je starší než historie, nebo do něj byla obnovena záloha. Takový soubor nelze sdílet; importujte jeho kamery do nového.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>Objekt „%1“ nesmíte měnit. Požádejte jeho správce o roli ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>Objekt „%1“ není prázdný.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>„%1“ patří k jinému objektu než „%2“.</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>Objekt se liší od souboru: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>Soubor nebo objekt se stále mění, takže je nebylo možné porovnat.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n řádek s historií je v „%1“ a je tam stejný jako zde.</numerusform>
            <numerusform>%n řádky s historií jsou v „%1“ a jsou tam stejné jako zde.</numerusform>
            <numerusform>%n řádků s historií je v „%1“ a jsou tam stejné jako zde.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>„%1“ obsahuje hesla starší verze, která ještě nejsou zašifrována, protože chybí klíč této instalace. Nejprve jej vraťte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>„%1“ obsahuje hesla, která vyžadují klíč objektu. Nic nebylo odesláno.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Sdílená databáze</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Tyto vaše změny nebylo možné provést, protože někdo jiný uzel předtím odebral. Úpravy &gt; Historie vrátí odebraný uzel.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Neprovedené změny</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Změna</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Uzel</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Odebral</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Zahodit vybrané</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>&amp;Nová kopie...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Opakovat</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 na %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Nová kopie</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>Zavřít toto okno a vytvořit novou kopii toho, co je teď na serveru? Neodeslané změny v ní nebudou; nynější kopie, která je obsahuje, zůstane ve složce „%1“.</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>&amp;Heslová fráze...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n změna neprovedena</numerusform>
            <numerusform>%1, %n změny neprovedeny</numerusform>
            <numerusform>%1, %n změn neprovedeno</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, je třeba heslová fráze...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>Na adrese „%1“ je teď jiný objekt než ten, jehož je toto kopie. Nic se tam neodeslalo. Pokud byl server zřízen znovu, požádejte jeho správce, aby objekt vrátil.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>Databáze „%1“ neobsahuje žádný objekt nebo ho nesmíte číst. Požádejte jejího správce o roli ko_viewer nebo ko_editor; z prázdné databáze se objekt stane příkazem koclient --share.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>Objekt „%1“ byl vytvořen jinou verzí tohoto programu. Nainstalujte tu verzi na tento počítač, nebo nechte objekt aktualizovat.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>Objekt „%1“ smíte jen číst, ale na tomto počítači jsou změny, které tam chybějí. Požádejte jeho správce o roli ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>Do této kopie objektu „%1“ byla obnovena záloha, což nelze sdělit jiným stanicím. Už se nesdílí.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>Už se nesdílí...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Připojeno, jen pro čtení</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Připojeno</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>Odesílá se %n změna</numerusform>
            <numerusform>Odesílají se %n změny</numerusform>
            <numerusform>Odesílá se %n změn</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Doplňují se změny</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Server nedostupný od %1, čeká %n změna</numerusform>
            <numerusform>Server nedostupný od %1, čekají %n změny</numerusform>
            <numerusform>Server nedostupný od %1, čeká %n změn</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Server nedostupný od %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>Server objektu „%1“ není dostupný. Můžete pokračovat: co změníte, čeká na tomto počítači a odešle se, až bude server zpět.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>Objekt „%1“ vidíte tak, jak ho mění ostatní, ale sami ho měnit nesmíte.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>Objekt „%1“ sdílíte s ostatními.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>Objekt „%1“ není dostupný.</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>Čeká se na server...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Odesílání: zbývá %n změna</numerusform>
            <numerusform>Odesílání: zbývají %n změny</numerusform>
            <numerusform>Odesílání: zbývá %n změn</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Příjem: %1 z %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>Objekt „%1“ uvádí svou minulost jinak, než ji dříve uváděl této stanici: jeho historie byla na serveru změněna. Nic dalšího se na něj neodesílá ani se z něj nepřebírá. Ukažte to jeho správci; kopie v tomto počítači má historii takovou, jaká byla.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>Kopii objektu „%1“ na tomto počítači nelze číst ani zapisovat. Zkontrolujte, zda disk funguje a je na něm místo, a spusťte program znovu.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>Server objektu „%1“ odmítl požadavek tohoto počítače. Změny, které zatím neobdržel, zůstávají uloženy zde. Ukažte správci, co server ohlásil, a po odstranění problému spusťte program znovu.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Nová heslová fráze pro objekt „%1“:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Ještě jednou:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Obě heslové fráze nejsou stejné.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>Heslová fráze objektu „%1“:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>Heslová fráze objektu nebyla zadána. Hesla se nečtou a nelze je uložit. Zadejte ji v terminálu nebo nastavte proměnnou KO_SITE_PASSPHRASE.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>Klíč nelze na tomto počítači uchovat, protože chybí klíč této instalace. Příště budete na heslovou frázi dotázáni znovu.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>To není heslová fráze tohoto objektu.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Heslová fráze má alespoň %n znak.</numerusform>
            <numerusform>Heslová fráze má alespoň %n znaky.</numerusform>
            <numerusform>Heslová fráze má alespoň %n znaků.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>Objekt ještě nemá klíč.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Někdo jiný právě změnil klíč nebo jeho heslovou frázi. Zeptejte se, která heslová fráze nyní platí.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Otevření klíče vyžaduje více paměti, než tento počítač má nebo než lze po něm žádat.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Tento objekt vznikl dříve, než jeho stanice měly společný klíč. Hesla nelze uložit, dokud jej správce neaktualizuje příkazem koclient --share.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>Tento počítač nemá klíč hesel. Zobrazují se prázdná a nová nelze uložit, dokud nezadáte heslovou frázi objektu.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>Objekt ještě nemá klíč, kterým jeho stanice šifrují hesla. Nová nelze uložit, dokud jej někdo nevytvoří.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Sdílená databáze</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Připojování k „%1“...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Změna heslové fráze</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Heslová fráze objektu</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>Hesla kamer v „%1“ jsou zašifrována klíčem, který jeho stanice sdílejí. Zadejte heslovou frázi objektu, jednou na tomto počítači. Bez ní se hesla zobrazují prázdná a nová nelze uložit.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>Objekt „%1“ ještě nemá klíč, kterým jeho stanice šifrují hesla kamer. Vymyslete heslovou frázi z několika slov a sdělte ji všem, kdo je mají vidět. Server ji nikdy nedostane: pokud ji všichni zapomenou, nové stanice hesla nepřečtou.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>Stanice, které mají klíč „%1“, si jej ponechají, když se změní jen heslová fráze. S novým klíčem se všechna hesla zašifrují znovu a každá stanice se zeptá na novou heslovou frázi: zvolte to, když se ztratil počítač.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Heslová fráze:</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>&amp;Dosavadní heslová fráze:</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Nová heslová fráze:</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>Opa&amp;kování:</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Vytvořit také nový k&amp;líč</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>Obě nové heslové fráze nejsou stejné.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Okamžik...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>Databáze uzlů</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Dokud je toto okno otevřené, nic z toho, co jste zadali, se neztratí.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>Co čeká na uložení, vše nebo nic, patří k:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Změny nejsou uloženy</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Zkusit znovu</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>Zah&amp;odit změny</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Všechny změny jsou uloženy.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Některé změny se nepodařilo uložit. Pokud program nyní zavřete, ztratí se.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>Databáze uzlů</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Ukládají se změny...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Seznamy kamer (*.csv);;Všechny soubory (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importovat kamery</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Importují se kamery...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Exportovat kamery</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>Zapsat i hesla? Kdo může soubor číst, může pak používat všechny kamery v něm.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Exportují se kamery...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>Zapsána %n kamera.</numerusform>
            <numerusform>Zapsány %n kamery.</numerusform>
            <numerusform>Zapsáno %n kamer.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Čtení seznamu...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>&amp;Zpět „%1“</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Zpět</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>Z&amp;novu „%1“</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Z&amp;novu</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Vráceno: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Provedeno znovu: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Zpět...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>Zadané údaje ještě nejsou uloženy.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Za&amp;hodit</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Pokračovat v úpravách</translation>
    </message>
</context>
</TS>
