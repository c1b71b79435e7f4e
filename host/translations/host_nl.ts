<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>&quot;%1&quot; heeft dit adres en deze poort al.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>Een adres bevat geen spaties.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>Dit is geen IPv6-adres en geen host met poort.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>Een IP-adres heeft vier getallen van 0 tot 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>De naam van een host bevat alleen letters, cijfers, punten en koppeltekens.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Een poort is een getal van 1 tot 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>Deze URL bevat geen leesbare host.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>er is geen IPv4-netwerk aangesloten</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>het systeem geeft geen socket: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
</context>
<context>
    <name>CameraSurvey</name>
    <message>
        <source>Nothing was written, because these passwords cannot be read: %1. Unlock your keychain, bring the key file back, or leave the passwords out.</source>
        <translation>Er is niets geschreven, omdat deze wachtwoorden niet kunnen worden gelezen: %1. Ontgrendel uw sleutelbos, zet het sleutelbestand terug of laat de wachtwoorden weg.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Er is geen database.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>meerdere apparaten hebben dit adres; geef type, poort en kanaal op</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>meerdere apparaten hebben deze naam; geef het adres op</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>het is een database en is niet gewijzigd.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 en nog %2</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>bevat besturingstekens</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>is langer dan 1024 tekens</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>bevat een regeleinde</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>bevat onzichtbare tekens</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>is geen getal van 0 tot 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>is geen getal van 1 tot 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>is niet yes, no, true, false, 1 of 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>is geen MAC-adres (twaalf hexadecimale cijfers)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>is niet IP device, URL camera of channel device, en geen getal</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>is geen getal</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 Het importeren is daar gestopt; alleen wat hier geteld is, is opgeslagen. Importeer het bestand opnieuw voor de rest.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 is de knooppuntdatabase zelf.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>%1 regels zijn onjuist; dit is geen lijst met camera&apos;s.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>De wachtwoorden in de lijst (op regel %1) kunnen niet worden opgeslagen, omdat de sleutel waarmee ze worden versleuteld ontbreekt. Ontgrendel uw sleutelbos, zet het sleutelbestand terug of maak uw configuratiemap beschrijfbaar. Er is niets geïmporteerd.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Het bestand is leeg.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>De eerste regel kan niet worden gelezen: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>apparaten van dit type kunnen hier niet worden toegevoegd</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>opnamemappen kunnen hier niet worden toegevoegd</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>het apparaat kon niet worden toegevoegd</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>wat zich op dit adres bevindt, is geen apparaat</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>het apparaat op dit adres heeft geen kanalen</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>het apparaat kon niet worden gewijzigd</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>Er zijn twee kolommen &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>De kolom &quot;address&quot; ontbreekt. De eerste regel moet de kolommen benoemen.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>er zijn meer cellen dan kolommen</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>%1 onjuist: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>er is geen naam en geen adres</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>een apparaat van dit type heeft geen kanalen</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>het is geen hostnaam en geen IP-adres</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>het bevat meer dan een host; poort, SSL en gebruiker hebben eigen kolommen</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>ze gaat over hetzelfde apparaat als regel %1 en zou wijzigen wat die aangeeft</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>het nieuwe apparaat zou geen naam hebben</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>De wachtwoorden van de lijst (in regel %1) kunnen niet worden opgeslagen, omdat deze computer de sleutel van de gedeelde database niet heeft. Geef eerst de wachtwoordzin op. Er is niets geïmporteerd.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschappen</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschappen van %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Eigenschappen van een knooppunt</numerusform>
            <numerusform>Eigenschappen van %n knooppunten</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Opnamemappen</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Opnamemap van %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Opnamemap van een camera</numerusform>
            <numerusform>Opnamemappen van %n camera&apos;s</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Gebruikers en wachtwoorden</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Gebruiker en wachtwoord van %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Gebruiker en wachtwoord van een knooppunt</numerusform>
            <numerusform>Gebruiker en wachtwoord van %n knooppunten</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Toevoegen van knooppunten</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Toevoegen van %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Toevoegen van een knooppunt</numerusform>
            <numerusform>Toevoegen van %n knooppunten</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Verwijderen van knooppunten</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Verwijderen van %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Verwijderen van een knooppunt</numerusform>
            <numerusform>Verwijderen van %n knooppunten</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>Geïmporteerde lijsten</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Import van %1</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>Gegevens van camera&apos;s</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>Gegevens van %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>Gegevens van een camera</numerusform>
            <numerusform>Gegevens van %n camera&apos;s</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Nieuwe adressen</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Nieuw adres van %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Nieuw adres van een apparaat</numerusform>
            <numerusform>Nieuwe adressen van %n apparaten</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Scans</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Een scan vond %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Een scan vond een apparaat</numerusform>
            <numerusform>Een scan vond %n apparaten</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Kenmerken van camera&apos;s</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Kenmerken van %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Kenmerken van een camera</numerusform>
            <numerusform>Kenmerken van %n camera&apos;s</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Globale proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Omgevingen</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Nieuwe database</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Teruggezette reservekopie</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Teruggedraaid</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Wijziging van een nieuwere versie</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Opnieuw gedaan: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Teruggedraaid: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Wachtwoorden opnieuw versleuteld</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>De cel tussen aanhalingstekens die begint in de record van regel %1 wordt nooit gesloten.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>De record die begint op regel %1 is langer dan 1 MiB.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>er volgt tekst na het afsluitende aanhalingsteken van een cel</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>Dit is geen tekstbestand (regel %1 bevat binaire gegevens). Sla het bestand op als UTF-8-tekst.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>Regel %1 is langer dan 1 MiB.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>Regel %1 is geen UTF-8-tekst. Sla het bestand op als UTF-8 en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Het bestand kan niet worden gelezen: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>het duurt te lang voordat het antwoordt</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>het adres is ongeldig</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>het spreekt geen ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>het zegt niet wie het is</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>het vraagt om een wachtwoord en er is er geen opgeslagen</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>het vraagt om een onversleuteld wachtwoord</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>het vraagt op een onbekende manier om het wachtwoord</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>het noemt geen beelden van dit kanaal</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>het heeft een ander eindpunt dan voorheen</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>het heeft een ander authenticatiedomein dan voorheen</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>het heeft een ander serienummer dan voorheen</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>daar is een ander wachtwoord geweigerd</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>geen tijdig antwoord</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>het antwoord is te lang</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>het verwijst door naar een andere plaats</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>het heeft een ander certificaat dan voorheen</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>Het bestand &quot;%1&quot; kan niet worden gebruikt: de naam is geen tekst in de codering van dit systeem. Hernoem het.</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>Gebruiker en wachtwoord ingevoerd</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadres</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxypoort</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Proxygebruiker</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Proxywachtwoord</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Proxywachtwoord opslaan</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Pan-/tiltkop</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Extern voorbeeld gebruiken</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Wachtwoord opslaan</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Voorbeeldmodus</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Standaard verbindingsgegevens</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Standaard beeldsnelheid</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Standaard JPEG-kwaliteit</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Standaard resolutie</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Standaard audio-instelling</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Standaardpad op de bestandsserver</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Standaardserver voor extern voorbeeld</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Actieve omgeving</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Proxy gebruiken</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Proxy-uitzonderingen</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Omgevingen</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Globale proxy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knooppunt</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Bekend apparaat</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(afwezig)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(verborgen)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>gewijzigd</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>Dat is al zo.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>Het is sindsdien gewijzigd.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>Het knooppunt is verwijderd.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>Anderen gebruiken het nu.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Dagen geschiedenis</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Megabytes geschiedenis</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>Standaard</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Item van onbekende soort &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Niveau %1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Programmalogboek</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Nieuw adres geaccepteerd</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Apparaat %1 verplaatst van adres %2 naar %3, waar het is gevonden.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Apparaten geïmporteerd</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Apparaten geïmporteerd uit %1: %2 toegevoegd, %3 gewijzigd, %4 regels geweigerd.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Gewijzigd zonder dialoogvenster</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Toegevoegd door het programma</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Verwijderd door het programma</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Instellingen gewijzigd</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Globale proxy gewijzigd</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Omgevingen gewijzigd</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Gevonden door een scan</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Nieuwe adressen geaccepteerd</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Vastgelegd waaraan camera&apos;s te herkennen zijn</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Gegevens van camera&apos;s ingevuld</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Lijst geïmporteerd</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Database aangemaakt</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Reservekopie teruggezet</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Gewijzigd door een nieuwere versie</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Opnamemappen gewijzigd</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Gebruikers en wachtwoorden gewijzigd</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Teruggedraaid</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Apparaat toegevoegd</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Apparaat verwijderd</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Onversleuteld wachtwoord toegestaan</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Ander apparaat geaccepteerd</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Apparaat met naam %1 toegevoegd.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Apparaat met naam %1 verwijderd.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Ander apparaat dan voorheen geaccepteerd als %1.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>Toegestaan om het wachtwoord van %1 onversleuteld te sturen.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>Geschiedenis uitgedund</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Details van wijzigingen tot en met nummer %1 uit de geschiedenis gehaald: %2 regels.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 en %n andere</numerusform>
            <numerusform>%1 en %n andere</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>Wachtwoorden opnieuw versleuteld</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>Wijzigingsset %1 is gewijzigd.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>Regel %1 van de wijzigingssets is gewijzigd.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>Item %1 van het auditlogboek is gewijzigd.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>Wijzigingsset %1 ontbreekt.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>Regel %1 van de wijzigingssets ontbreekt.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>Item %1 van het auditlogboek ontbreekt.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>Wijzigingsset %1 is door een ander programma ingevoegd.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>Regel %1 van de wijzigingssets is door een ander programma ingevoegd.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>Item %1 van het auditlogboek is door een ander programma ingevoegd.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>Vanaf wijzigingsset %1 is het logboek herschreven.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>Vanaf regel %1 van de wijzigingssets is het logboek herschreven.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>Vanaf item %1 van het auditlogboek is het logboek herschreven.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>Vanaf wijzigingsset %1 is het logboek met een andere sleutel verzegeld.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>Vanaf regel %1 van de wijzigingssets is het logboek met een andere sleutel verzegeld.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>Vanaf item %1 van het auditlogboek is het logboek met een andere sleutel verzegeld.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>Wat na wijzigingsset %1 kwam, is afgeknipt.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>Wat na regel %1 van de wijzigingssets kwam, is afgeknipt.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>Wat na item %1 van het auditlogboek kwam, is afgeknipt.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>Het is niet het logboek dat hier eerder is gezien.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>Een MAC-adres heeft twaalf hexadecimale cijfers, zoals 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>de Avahi-dienst is niet actief</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>de Avahi-dienst antwoordt niet</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>alle interfaces</translation>
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
        <translation>Softwareversie</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC-adres</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Huidige IP-adressen</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Fabrieks-IP-adres</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Livestream (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanalen</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Resoluties</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Pannen, kantelen, zoomen</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nee</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>Algemeen</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Apparaat</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Indelingsopties</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Opnamen</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL&apos;s</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Camera&apos;s</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>Opnamemap</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Weergave</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>IP-camera</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>URL-camera</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>Meerkanaalsapparaat</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Interne recorder</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Server voor extern voorbeeld</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Knooppunt van type %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Extern voorbeeld van %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Dit knooppunt is intussen verwijderd. Wijzigingen kunnen niet worden opgeslagen: sluit dit venster.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina&apos;s</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>het noemt geen adres van een beeld</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>het adres van het beeld bevat een onversleuteld wachtwoord</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>wat het stuurt is geen beeld</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>het weigert het beeld</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>het vraagt om een wachtwoord en er is er geen opgeslagen</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>de beelden hebben een ander authenticatiedomein dan het apparaat</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>het vraagt op een onbekende manier om het wachtwoord</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>het vraagt om een onversleuteld wachtwoord</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Pad:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>Pad ligt onder het standaardpad op de bestandsserver</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Poort:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Beveiligde verbinding (SSL)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bladeren...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Map selecteren</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(leeg)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(verschillend)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>&quot;%1&quot; is geen knooppuntdatabase maar een ander soort bestand. Het is niet gewijzigd. Kies uw databasebestand, of een nieuwe bestandsnaam om met een lege database te beginnen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>&quot;%1&quot; is een database van een ander programma en bevat geen knooppunten. Die is niet gewijzigd. Kies uw knooppuntdatabase, of een nieuwe bestandsnaam om met een lege database te beginnen.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>De tabellen van de knooppuntdatabase &quot;%1&quot; zijn door een ander programma gewijzigd en niet meer te vertrouwen. De database is niet gewijzigd. Vervang hem door een reservekopie.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; is leeg of verdwenen, maar het logboek of de reservekopieën zijn er nog. Er is niets gewijzigd. Zet een reservekopie terug, of kies een nieuwe bestandsnaam om met een lege database te beginnen.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; is beschadigd en is niet gewijzigd. Zet een reservekopie terug; die van dit programma staan in de map &quot;%1.backups&quot;.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; is geschreven door een nieuwere versie van dit programma. Installeer die versie op deze computer, of open de reservekopie die zij in dezelfde map heeft gemaakt.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; kan niet worden gewijzigd, omdat het bestand of de map voor u tegen schrijven is beveiligd. Vraag uw beheerder om schrijfrechten, of kopieer de database naar een eigen map en open de kopie.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; wordt door een ander programma vastgehouden. Sluit dat programma, of wacht tot de reservekopie ervan klaar is, en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>Er is geen ruimte meer voor de knooppuntdatabase &quot;%1&quot;. Verwijder bestanden die u niet nodig hebt van deze schijf en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; kan niet worden geopend. Controleer of de map bestaat, of de schijf of het netwerkstation is verbonden en of u het bestand mag lezen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>&quot;%1&quot; is een map, een apparaat of een pipe en kan geen knooppuntdatabase bevatten. Er is niets gewijzigd. Kies een ander bestand.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>&quot;%1&quot; is de knooppuntdatabase zelf en is niet gewijzigd. Kies een ander bestand voor de kopie.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Sommige wachtwoorden in de knooppuntdatabase &quot;%1&quot; kunnen niet worden gelezen en worden leeg weergegeven, omdat de sleutel waarmee ze zijn versleuteld ontbreekt. Ontgrendel uw sleutelbos of zet het sleutelbestand terug en start het programma opnieuw. Ze blijven in de database tot u nieuwe opgeeft.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Sommige wachtwoorden in de knooppuntdatabase &quot;%1&quot; zijn niet door dit programma gewijzigd en worden leeg weergegeven. Ze blijven in de database tot u nieuwe opgeeft. Ga na wie in het bestand kan schrijven, of ga terug naar een reservekopie.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>Wachtwoorden kunnen niet in de knooppuntdatabase &quot;%1&quot; worden opgeslagen, omdat de sleutel waarmee ze worden versleuteld noch in uw sleutelbos noch in een bestand te vinden is, en daar niet kan worden bewaard. Ontgrendel uw sleutelbos, zet het sleutelbestand terug of maak uw configuratiemap beschrijfbaar, en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; kan niet worden gelezen of geschreven. Controleer of de schijf of het netwerkstation is verbonden en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Sommige wachtwoorden van de gedeelde database in &quot;%1&quot; kunnen niet worden gelezen en worden leeg weergegeven, omdat deze computer de sleutel waarmee ze zijn versleuteld niet heeft. Klik in de statusbalk op de toestand van de verbinding, en geef de wachtwoordzin van de locatie op. Ze blijven in de database totdat u nieuwe opgeeft.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>Wachtwoorden kunnen niet worden opgeslagen in de gedeelde database in &quot;%1&quot;, omdat deze computer de sleutel van de locatie niet heeft. Klik in de statusbalk op de toestand van de verbinding, geef de wachtwoordzin van de locatie op, en probeer het opnieuw.</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>Camera&apos;s:</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>In deze weergave:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Camera&apos;s zoeken</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Camera&apos;s die niet in deze weergave staan</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Camera&apos;s in deze weergave</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Eruit halen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Omlaag</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>geen enkel netwerk accepteert multicast</translation>
    </message>
</context>
</TS>
