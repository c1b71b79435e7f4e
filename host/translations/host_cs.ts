<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>„%1“ už má tuto adresu a port.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>Adresa neobsahuje mezery.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>Toto není adresa IPv6 ani hostitel s portem.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>Adresa IP má čtyři čísla od 0 do 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>Název hostitele obsahuje jen písmena, číslice, tečky a spojovníky.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Port je číslo od 1 do 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>Tato adresa URL neobsahuje čitelného hostitele.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>není připojena žádná síť IPv4</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>systém neposkytuje soket: %1</translation>
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
        <translation>Nic nebylo zapsáno, protože tato hesla nelze přečíst: %1. Odemkněte svou klíčenku, vraťte soubor s klíčem nebo hesla vynechejte.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Databáze neexistuje.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>tuto adresu má více zařízení; uveďte typ, port a kanál</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>tento název má více zařízení; uveďte adresu</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>je to databáze a nebyla změněna.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 nelze zapsat: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 a další: %2</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>obsahuje řídicí znaky</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>je delší než 1024 znaků</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>obsahuje zalomení řádku</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>obsahuje neviditelné znaky</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>není číslo od 0 do 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>není číslo od 1 do 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>není yes, no, true, false, 1 ani 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>není adresa MAC (dvanáct šestnáctkových číslic)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>není IP device, URL camera ani channel device, ani číslo</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>není číslo</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 Import se tam zastavil; uloženo je jen to, co je zde spočítáno. Zbytek přidáte opětovným importem souboru.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 není běžný soubor.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 je sama databáze uzlů.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 nelze přečíst: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>Chybných řádků: %1; toto není seznam kamer.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>Hesla ze seznamu (na řádku %1) nelze uložit, protože chybí klíč, který je šifruje. Odemkněte svou klíčenku, vraťte soubor s klíčem nebo povolte zápis do složky s konfigurací. Nic nebylo importováno.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Soubor je prázdný.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>První řádek nelze přečíst: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>zařízení tohoto typu zde nelze přidat</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>složky záznamů zde nelze přidat</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>zařízení se nepodařilo přidat</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>na této adrese není zařízení</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>zařízení na této adrese nemá kanály</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>zařízení se nepodařilo změnit</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>Sloupec „%1“ je zde dvakrát.</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>Chybí sloupec „address“. První řádek musí obsahovat názvy sloupců.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>je více buněk než sloupců</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>chybné %1: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>není uveden název ani adresa</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>zařízení tohoto typu nemá kanály</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>není to název hostitele ani IP adresa</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>obsahuje víc než hostitele; port, SSL a uživatel mají vlastní sloupce</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>týká se téhož zařízení jako řádek %1 a změnil by, co ten uvádí</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>nové zařízení by nemělo název</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>Hesla ze seznamu (na řádku %1) nelze uložit, protože tento počítač nemá klíč sdílené databáze. Nejprve zadejte její heslovou frázi. Nic nebylo importováno.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Vlastnosti</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Vlastnosti: %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Vlastnosti %n uzlu</numerusform>
            <numerusform>Vlastnosti %n uzlů</numerusform>
            <numerusform>Vlastnosti %n uzlů</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Složky záznamů</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Složka záznamů: %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Složky záznamů %n kamery</numerusform>
            <numerusform>Složky záznamů %n kamer</numerusform>
            <numerusform>Složky záznamů %n kamer</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Uživatelé a hesla</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Uživatel a heslo: %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Uživatel a heslo %n uzlu</numerusform>
            <numerusform>Uživatel a heslo %n uzlů</numerusform>
            <numerusform>Uživatel a heslo %n uzlů</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Přidání uzlů</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Přidání: %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Přidání %n uzlu</numerusform>
            <numerusform>Přidání %n uzlů</numerusform>
            <numerusform>Přidání %n uzlů</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Odebrání uzlů</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Odebrání: %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Odebrání %n uzlu</numerusform>
            <numerusform>Odebrání %n uzlů</numerusform>
            <numerusform>Odebrání %n uzlů</numerusform>
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
        <translation>Údaje od kamer</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>Údaje od: %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>Údaje od %n kamery</numerusform>
            <numerusform>Údaje od %n kamer</numerusform>
            <numerusform>Údaje od %n kamer</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Nové adresy</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Nová adresa: %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Nové adresy %n zařízení</numerusform>
            <numerusform>Nové adresy %n zařízení</numerusform>
            <numerusform>Nové adresy %n zařízení</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Hledání</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Hledání našlo: %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Hledání našlo %n zařízení</numerusform>
            <numerusform>Hledání našlo %n zařízení</numerusform>
            <numerusform>Hledání našlo %n zařízení</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Rozpoznávací znaky kamer</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Rozpoznávací znaky: %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Rozpoznávací znaky %n kamery</numerusform>
            <numerusform>Rozpoznávací znaky %n kamer</numerusform>
            <numerusform>Rozpoznávací znaky %n kamer</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Globální proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Prostředí</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Nová databáze</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Obnovená záloha</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Vráceno</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Změna novější verze</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Provedeno znovu: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Vráceno: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Hesla zašifrována znovu</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>Buňka v uvozovkách, která začíná v záznamu na řádku %1, není uzavřena.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>Záznam začínající na řádku %1 je delší než 1 MiB.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>za uzavírací uvozovkou buňky následuje text</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>Toto není textový soubor (řádek %1 obsahuje binární data). Uložte soubor jako text UTF-8.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>Řádek %1 je delší než 1 MiB.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>Řádek %1 není text UTF-8. Uložte soubor jako UTF-8 a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Soubor nelze přečíst: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>odpověď trvá příliš dlouho</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>adresa je neplatná</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>nepodporuje ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>neuvádí, co je zač</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>požaduje heslo a žádné není uloženo</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>požaduje heslo v otevřené podobě</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>požaduje heslo neznámým způsobem</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>neuvádí žádné obrazy tohoto kanálu</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>má jiný koncový bod než dříve</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>má jinou oblast ověření než dříve</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>má jiné sériové číslo než dříve</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>bylo tam odmítnuto jiné heslo</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>žádná odpověď včas</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>odpověď je příliš dlouhá</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>odkazuje jinam</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>má jiný certifikát než dříve</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>Soubor „%1“ nelze použít: jeho název není text v kódování tohoto systému. Přejmenujte jej.</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>Název:</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>Uživatel a heslo zadány</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresa proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port proxy</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Uživatel proxy</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Heslo proxy</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Uložit heslo proxy</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Otočná hlavice</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Použít vzdálený náhled</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Uložit heslo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Zvuk</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Režim náhledu</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Výchozí údaje připojení</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Výchozí snímková frekvence</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Výchozí kvalita JPEG</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Výchozí rozlišení</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Výchozí nastavení zvuku</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Výchozí cesta souborového serveru</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Výchozí server vzdáleného náhledu</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Aktivní prostředí</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Použít proxy</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Výjimky proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Prostředí</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Globální proxy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Uzel</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Vše</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Známé zařízení</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(není)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(skryto)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>změněno</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>Už to tak je.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>Mezitím se to změnilo.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>Uzel byl odebrán.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>Nyní to používají jiné.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Dny historie</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Megabajty historie</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>Výchozí</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Záznam neznámého druhu „%1“</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Úroveň %1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Protokol programu</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Přijata nová adresa</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Zařízení %1 přesunuto z adresy %2 na %3, kde bylo nalezeno.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Importována zařízení</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Importována zařízení z %1: přidáno %2, změněno %3, odmítnuto řádků %4.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Změněno bez dialogového okna</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Přidáno programem</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Odebráno programem</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Nastavení změněna</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Globální proxy změněna</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Prostředí změněna</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Nalezeno hledáním</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Přijaty nové adresy</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Zaznamenány rozpoznávací znaky kamer</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Doplněny údaje od kamer</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Importován seznam</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Vytvořena databáze</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Obnovena záloha</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Změněno novější verzí</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Změněny složky záznamů</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Změněni uživatelé a hesla</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Vráceno</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Přidáno zařízení</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Odebráno zařízení</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Povoleno otevřené heslo</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Přijato jiné zařízení</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Přidáno zařízení s názvem %1.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Odebráno zařízení s názvem %1.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Jako %1 přijato jiné zařízení než dříve.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>Povoleno odesílat heslo %1 v otevřené podobě.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>Historie zredukována</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Z historie odebrány podrobnosti změn do čísla %1: řádků %2.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 a %n další</numerusform>
            <numerusform>%1 a %n další</numerusform>
            <numerusform>%1 a %n dalších</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>Zašifroval hesla znovu</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>Sada změn %1 byla změněna.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>Řádek %1 sad změn byl změněn.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>Záznam %1 protokolu změn byl změněn.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>Sada změn %1 chybí.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>Řádek %1 sad změn chybí.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>Záznam %1 protokolu změn chybí.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>Sada změn %1 byla vložena jiným programem.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>Řádek %1 sad změn byl vložen jiným programem.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>Záznam %1 protokolu změn byl vložen jiným programem.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>Od sady změn %1 byl protokol přepsán.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>Od řádku %1 sad změn byl protokol přepsán.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>Od záznamu %1 protokolu změn byl protokol přepsán.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>Od sady změn %1 je protokol zapečetěn jiným klíčem.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>Od řádku %1 sad změn je protokol zapečetěn jiným klíčem.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>Od záznamu %1 protokolu změn je protokol zapečetěn jiným klíčem.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>To, co následovalo po sadě změn %1, bylo odříznuto.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>To, co následovalo po řádku %1 sad změn, bylo odříznuto.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>To, co následovalo po záznamu %1 protokolu změn, bylo odříznuto.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>Není to protokol, který tu byl dříve.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>Adresa MAC má dvanáct šestnáctkových číslic, např. 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>služba Avahi neběží</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>služba Avahi neodpovídá</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>všechna rozhraní</translation>
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
        <translation>Verze softwaru</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>Adresa MAC</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Aktuální adresy IP</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Tovární adresa IP</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Živý proud (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanály</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Rozlišení</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Otáčení, naklápění, zoom</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ano</translation>
    </message>
    <message>
        <source>no</source>
        <translation>ne</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Zařízení</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Možnosti rozložení</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Záznamy</translation>
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
        <translation>Složka záznamů</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Pohled</translation>
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
        <translation>Vícekanálové zařízení</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Interní rekordér</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Server vzdáleného náhledu</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Uzel typu %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Vzdálený náhled: %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Tento uzel byl mezitím odebrán. Změny nelze uložit: zavřete toto okno.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Stránky</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>neuvádí žádnou adresu obrazu</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>adresa obrazu obsahuje otevřené heslo</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>to, co odesílá, není obraz</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>odmítá poskytnout obraz</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>požaduje heslo a žádné není uloženo</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>jeho obrazy mají jinou oblast ověření než zařízení</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>požaduje heslo neznámým způsobem</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>požaduje heslo v otevřené podobě</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Cesta:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>Cesta leží pod výchozí cestou souborového serveru</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresa:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Zabezpečené připojení (SSL)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procházet...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Vybrat složku</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(prázdné)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(různé)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>„%1“ není databáze uzlů, ale soubor jiného druhu. Nebyl změněn. Vyberte svůj soubor databáze, nebo nový název souboru, chcete-li začít s prázdnou.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>„%1“ je databáze jiného programu a neobsahuje uzly. Nebyla změněna. Vyberte svou databázi uzlů, nebo nový název souboru, chcete-li začít s prázdnou.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>Tabulky databáze uzlů „%1“ změnil jiný program a nelze jim věřit. Databáze nebyla změněna. Nahraďte ji záložní kopií.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>Databáze uzlů „%1“ je prázdná nebo zmizela, ale její protokol nebo zálohy stále existují. Nic nebylo změněno. Obnovte zálohu, nebo zvolte nový název souboru, chcete-li začít s prázdnou.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>Databáze uzlů „%1“ je poškozena. Nebyla změněna. Obnovte zálohu; zálohy vytvořené tímto programem jsou ve složce „%1.backups“.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>Databázi uzlů „%1“ zapsala novější verze tohoto programu. Nainstalujte ji na tomto počítači, nebo otevřete záložní kopii, kterou vytvořila ve stejné složce.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>Databázi uzlů „%1“ nelze změnit, protože soubor nebo jeho složka jsou pro vás chráněny proti zápisu. Požádejte správce o právo zápisu, nebo databázi zkopírujte do vlastní složky a otevřete kopii.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>Databázi uzlů „%1“ drží jiný program. Zavřete jej, nebo počkejte, až dokončí zálohu či kopii, a zkuste to znovu.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>Pro databázi uzlů „%1“ už není místo. Smažte z tohoto disku soubory, které nepotřebujete, a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>Databázi uzlů „%1“ nelze otevřít. Zkontrolujte, zda její složka existuje, zda je připojen disk nebo síťová jednotka a zda smíte soubor číst.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>„%1“ je složka, zařízení nebo roura a nemůže obsahovat databázi uzlů. Nic nebylo změněno. Vyberte jiný soubor.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>„%1“ je sama databáze uzlů a nebyla změněna. Vyberte pro kopii jiný soubor.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Některá hesla v databázi uzlů „%1“ nelze přečíst a zobrazují se prázdná, protože chybí klíč, kterým byla zašifrována. Odemkněte svou klíčenku nebo vraťte soubor s klíčem a spusťte program znovu. Hesla zůstávají v databázi, dokud nezadáte nová.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Některá hesla v databázi uzlů „%1“ nezměnil tento program a zobrazují se prázdná. Zůstávají v databázi, dokud nezadáte nová. Zjistěte, kdo může do souboru zapisovat, nebo se vraťte k záloze.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>Hesla nelze uložit do databáze uzlů „%1“, protože klíč, který je šifruje, není ve vaší klíčence ani v souboru a nelze jej tam uložit. Odemkněte svou klíčenku, vraťte soubor s klíčem nebo povolte zápis do složky s konfigurací a zkuste to znovu.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>Databázi uzlů „%1“ nelze číst ani zapisovat. Zkontrolujte, zda je připojen její disk nebo síťová jednotka, a zkuste to znovu.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Některá hesla sdílené databáze v „%1“ nelze přečíst a zobrazují se prázdná, protože tento počítač nemá klíč, kterým byla zašifrována. Klepněte na stav spojení ve stavovém řádku a zadejte heslovou frázi objektu. Zůstanou v databázi, dokud nezadáte nová.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>Hesla nelze uložit do sdílené databáze v „%1“, protože tento počítač nemá klíč objektu. Klepněte na stav spojení ve stavovém řádku, zadejte heslovou frázi objektu a zkuste to znovu.</translation>
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
        <translation>V tomto zobrazení:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Hledat</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Hledat kamery</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Kamery, které v tomto zobrazení nejsou</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Kamery v tomto zobrazení</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Vyjmout</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nahoru</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dolů</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>žádná síť nepřijímá multicast</translation>
    </message>
</context>
</TS>
