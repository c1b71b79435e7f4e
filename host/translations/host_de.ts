<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>„%1“ hat bereits diese Adresse und diesen Port.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>Eine Adresse enthält keine Leerzeichen.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>Dies ist weder eine IPv6-Adresse noch ein Host mit Port.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>Eine IP-Adresse besteht aus vier Zahlen von 0 bis 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>Ein Hostname besteht nur aus Buchstaben, Ziffern, Punkten und Bindestrichen.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Ein Port ist eine Zahl von 1 bis 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>Diese URL enthält keinen lesbaren Host.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>kein IPv4-Netzwerk angeschlossen</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>das System stellt keinen Socket bereit: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>CameraSurvey</name>
    <message>
        <source>Nothing was written, because these passwords cannot be read: %1. Unlock your keychain, bring the key file back, or leave the passwords out.</source>
        <translation>Es wurde nichts geschrieben, weil diese Passwörter nicht gelesen werden können: %1. Entsperren Sie Ihren Schlüsselbund, stellen Sie die Schlüsseldatei wieder her oder lassen Sie die Passwörter weg.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Es ist keine Datenbank vorhanden.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>mehrere Geräte haben diese Adresse; geben Sie Typ, Port und Kanal an</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>mehrere Geräte haben diesen Namen; geben Sie die Adresse an</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>ist eine Datenbank und wurde nicht verändert.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>enthält Steuerzeichen</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>ist länger als 1024 Zeichen</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>enthält einen Zeilenumbruch</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>enthält unsichtbare Zeichen</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>ist keine Zahl von 0 bis 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>ist keine Zahl von 1 bis 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>ist nicht yes, no, true, false, 1 oder 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>ist keine MAC-Adresse (zwölf hexadezimale Ziffern)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>ist weder IP device, URL camera oder channel device noch eine Zahl</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>ist keine Zahl</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 Der Import wurde an dieser Stelle angehalten; gespeichert ist nur, was hier gezählt ist. Importieren Sie die Datei für den Rest noch einmal.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 ist keine normale Datei.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 ist die Knotendatenbank selbst.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>%1 Zeilen sind fehlerhaft; dies ist keine Kameraliste.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>Die Passwörter der Liste (in Zeile %1) können nicht gespeichert werden, weil der Schlüssel zum Verschlüsseln fehlt. Entsperren Sie Ihren Schlüsselbund, stellen Sie die Schlüsseldatei wieder her oder machen Sie Ihren Konfigurationsordner beschreibbar. Es wurde nichts importiert.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>Die erste Zeile kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>Geräte dieses Typs können hier nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>Aufzeichnungsordner können hier nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>das Gerät konnte nicht hinzugefügt werden</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>unter dieser Adresse befindet sich kein Gerät</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>das Gerät unter dieser Adresse hat keine Kanäle</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>das Gerät konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>Die Spalte „%1“ ist doppelt vorhanden.</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>Die Spalte „address“ fehlt. Die erste Zeile muss die Spalten benennen.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>es sind mehr Zellen als Spalten vorhanden</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>fehlerhafter Wert in %1: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>weder Name noch Adresse vorhanden</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>ein Gerät dieses Typs hat keine Kanäle</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>kein Hostname und keine IP-Adresse</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>sie enthält mehr als einen Host; Port, SSL und Benutzer haben eigene Spalten</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>sie betrifft dasselbe Gerät wie Zeile %1 und würde ändern, was diese angibt</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>das neue Gerät hätte keinen Namen</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>Die Passwörter der Liste (in Zeile %1) können nicht gespeichert werden, weil dieser Computer den Schlüssel der gemeinsamen Datenbank nicht hat. Geben Sie zuerst ihre Passphrase an. Es wurde nichts importiert.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschaften von %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Eigenschaften eines Knotens</numerusform>
            <numerusform>Eigenschaften von %n Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Aufzeichnungsordner</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Aufzeichnungsordner von %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Aufzeichnungsordner einer Kamera</numerusform>
            <numerusform>Aufzeichnungsordner von %n Kameras</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Benutzer und Passwörter</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Benutzer und Passwort von %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Benutzer und Passwort eines Knotens</numerusform>
            <numerusform>Benutzer und Passwort von %n Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Hinzufügen von Knoten</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Hinzufügen von %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Hinzufügen eines Knotens</numerusform>
            <numerusform>Hinzufügen von %n Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Entfernen von Knoten</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Entfernen von %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Entfernen eines Knotens</numerusform>
            <numerusform>Entfernen von %n Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>Importe</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Import von %1</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>Angaben von Kameras</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>Angaben von %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>Angaben einer Kamera</numerusform>
            <numerusform>Angaben von %n Kameras</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Neue Adressen</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Neue Adresse von %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Neue Adresse eines Geräts</numerusform>
            <numerusform>Neue Adressen von %n Geräten</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Eine Suche fand %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Eine Suche fand ein Gerät</numerusform>
            <numerusform>Eine Suche fand %n Geräte</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Erkennungsmerkmale von Kameras</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Erkennungsmerkmale von %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Erkennungsmerkmale einer Kamera</numerusform>
            <numerusform>Erkennungsmerkmale von %n Kameras</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Globaler Proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Umgebungen</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Neue Datenbank</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Wiederhergestellte Sicherung</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurückgenommen</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Änderung einer neueren Version</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Zurückgenommen: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Passwörter neu verschlüsselt</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>Die Zelle in Anführungszeichen, die im Datensatz von Zeile %1 beginnt, wird nie geschlossen.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>Der Datensatz, der in Zeile %1 beginnt, ist länger als 1 MiB.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>nach dem schließenden Anführungszeichen einer Zelle folgt Text</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>Dies ist keine Textdatei (Zeile %1 enthält Binärdaten). Speichern Sie die Datei als UTF-8-Text.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>Zeile %1 ist länger als 1 MiB.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>Zeile %1 ist kein UTF-8-Text. Speichern Sie die Datei als UTF-8 und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Die Datei kann nicht gelesen werden: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>das Gerät braucht zu lange für eine Antwort</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>die Adresse ist ungültig</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>das Gerät spricht kein ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>das Gerät gibt sich nicht zu erkennen</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>das Gerät verlangt ein Passwort, aber es ist keines gespeichert</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>das Gerät verlangt das Passwort im Klartext</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>das Gerät verlangt das Passwort in unbekannter Form</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>das Gerät nennt keine Bilder dieses Kanals</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>das Gerät hat einen anderen Endpunkt als bisher</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>das Gerät hat einen anderen Anmeldebereich als bisher</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>das Gerät hat eine andere Seriennummer als bisher</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>dort wurde bereits ein anderes Passwort abgelehnt</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>keine rechtzeitige Antwort</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>die Antwort ist zu lang</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>das Gerät verweist auf eine andere Stelle</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>das Gerät hat ein anderes Zertifikat als bisher</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>Die Datei „%1“ kann nicht verwendet werden: Ihr Name ist in der Zeichenkodierung dieses Systems kein Text. Benennen Sie sie um.</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>Benutzer und Passwort eingegeben</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Proxyadresse</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Proxyport</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Proxybenutzer</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Proxypasswort</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Proxypasswort speichern</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Schwenk-Neige-Kopf</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Fernvorschau verwenden</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Passwort speichern</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Vorschaumodus</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Standard-Verbindungsdaten</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Standard-Bildrate</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Standard-JPEG-Qualität</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Standardauflösung</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Standard-Audioeinstellung</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Standardpfad des Dateiservers</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Standard-Fernvorschau-Server</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Aktive Umgebung</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Proxy verwenden</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Proxyausnahmen</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Umgebungen</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Globaler Proxy</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Bekanntes Gerät</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(nicht vorhanden)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(verborgen)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>Es ist schon so.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>Es wurde seitdem geändert.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>Der Knoten wurde entfernt.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>Andere benutzen es jetzt.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Tage des Verlaufs</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Megabyte des Verlaufs</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Eintrag unbekannter Art „%1“</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Stufe %1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Programmprotokoll</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Neue Adresse übernommen</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Gerät %1 von Adresse %2 nach %3 verschoben, wo es gefunden wurde.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Geräte importiert</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Geräte aus %1 importiert: %2 hinzugefügt, %3 geändert, %4 Zeilen abgelehnt.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Ohne Dialog geändert</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Vom Programm hinzugefügt</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Vom Programm entfernt</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Einstellungen geändert</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Globalen Proxy geändert</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Umgebungen geändert</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Von einer Suche gefunden</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Neue Adressen übernommen</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Erkennungsmerkmale von Kameras vermerkt</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Angaben von Kameras eingetragen</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Liste importiert</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Datenbank angelegt</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Sicherung wiederhergestellt</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Von einer neueren Version geändert</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Aufzeichnungsordner geändert</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Benutzer und Passwörter geändert</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurückgenommen</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Gerät hinzugefügt</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Gerät entfernt</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Klartextpasswort erlaubt</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Anderes Gerät akzeptiert</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Gerät mit dem Namen %1 hinzugefügt.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Gerät mit dem Namen %1 entfernt.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Anderes Gerät als bisher als %1 akzeptiert.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>Es wurde erlaubt, das Passwort von %1 im Klartext zu senden.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>Verlauf ausgedünnt</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Einzelheiten der Änderungen bis Nummer %1 aus dem Verlauf entfernt: %2 Zeilen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 und %n weiterer Knoten</numerusform>
            <numerusform>%1 und %n weitere Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>Hat Passwörter neu verschlüsselt</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>Änderungssatz %1 wurde verändert.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>Zeile %1 der Änderungssätze wurde verändert.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>Eintrag %1 des Änderungsprotokolls wurde verändert.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>Änderungssatz %1 fehlt.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>Zeile %1 der Änderungssätze fehlt.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>Eintrag %1 des Änderungsprotokolls fehlt.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>Änderungssatz %1 wurde von einem anderen Programm eingefügt.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>Zeile %1 der Änderungssätze wurde von einem anderen Programm eingefügt.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>Eintrag %1 des Änderungsprotokolls wurde von einem anderen Programm eingefügt.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>Ab Änderungssatz %1 wurde das Protokoll neu geschrieben.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>Ab Zeile %1 der Änderungssätze wurde das Protokoll neu geschrieben.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>Ab Eintrag %1 des Änderungsprotokolls wurde das Protokoll neu geschrieben.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>Ab Änderungssatz %1 ist das Protokoll mit einem anderen Schlüssel versiegelt.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>Ab Zeile %1 der Änderungssätze ist das Protokoll mit einem anderen Schlüssel versiegelt.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>Ab Eintrag %1 des Änderungsprotokolls ist das Protokoll mit einem anderen Schlüssel versiegelt.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>Was nach Änderungssatz %1 kam, wurde abgeschnitten.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>Was nach Zeile %1 der Änderungssätze kam, wurde abgeschnitten.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>Was nach Eintrag %1 des Änderungsprotokolls kam, wurde abgeschnitten.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>Es ist nicht das Protokoll, das hier vorher gesehen wurde.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>Eine MAC-Adresse hat zwölf hexadezimale Ziffern, z. B. 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>der Avahi-Dienst läuft nicht</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>der Avahi-Dienst antwortet nicht</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>alle Schnittstellen</translation>
    </message>
</context>
<context>
    <name>NodeFacts</name>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>Softwareversion</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Aktuelle IP-Adressen</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Werks-IP-Adresse</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Livestream (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Auflösungen</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Schwenken, Neigen, Zoomen</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Layoutoptionen</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URLs</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>Aufzeichnungsordner</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>IP-Kamera</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>URL-Kamera</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>Mehrkanalgerät</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Interner Rekorder</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Fernvorschau-Server</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Knoten vom Typ %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Fernvorschau von %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Dieser Knoten wurde inzwischen entfernt. Änderungen können nicht gespeichert werden: Schließen Sie dieses Fenster.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>das Gerät nennt keine Adresse eines Bildes</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>die Adresse des Bildes enthält ein Klartextpasswort</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>was das Gerät sendet, ist kein Bild</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>das Gerät verweigert das Bild</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>das Gerät verlangt ein Passwort, aber es ist keines gespeichert</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>die Bilder haben einen anderen Anmeldebereich als das Gerät</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>das Gerät verlangt das Passwort in unbekannter Form</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>das Gerät verlangt das Passwort im Klartext</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Pfad:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>Pfad liegt unter dem Standardpfad auf dem Dateiserver</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Sichere Verbindung (SSL)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Ordner auswählen</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(verschieden)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>„%1“ ist keine Knotendatenbank, sondern eine Datei anderer Art. Sie wurde nicht verändert. Wählen Sie Ihre Datenbankdatei oder einen neuen Dateinamen, um mit einer leeren zu beginnen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>„%1“ ist die Datenbank eines anderen Programms und enthält keine Knoten. Sie wurde nicht verändert. Wählen Sie Ihre Knotendatenbank oder einen neuen Dateinamen, um mit einer leeren zu beginnen.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>Die Tabellen der Knotendatenbank „%1“ wurden von einem anderen Programm geändert und sind nicht mehr vertrauenswürdig. Sie wurde nicht verändert. Ersetzen Sie sie durch eine Sicherungskopie.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>Die Knotendatenbank „%1“ ist leer oder fehlt, aber ihr Protokoll oder ihre Sicherungen sind noch vorhanden. Es wurde nichts geändert. Stellen Sie eine Sicherung wieder her oder wählen Sie einen neuen Dateinamen, um mit einer leeren zu beginnen.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>Die Knotendatenbank „%1“ ist beschädigt. Sie wurde nicht verändert. Stellen Sie eine Sicherung wieder her; die Sicherungen dieses Programms liegen im Ordner „%1.backups“.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>Die Knotendatenbank „%1“ wurde von einer neueren Version dieses Programms geschrieben. Installieren Sie diese Version auf diesem Computer oder öffnen Sie die Sicherungskopie, die sie im selben Ordner angelegt hat.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>Die Knotendatenbank „%1“ kann nicht geändert werden, weil die Datei oder ihr Ordner für Sie schreibgeschützt ist. Bitten Sie Ihren Administrator um Schreibrechte oder kopieren Sie die Datenbank in einen eigenen Ordner und öffnen Sie die Kopie.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>Die Knotendatenbank „%1“ wird von einem anderen Programm festgehalten. Schließen Sie dieses Programm oder warten Sie, bis dessen Sicherung oder Kopie fertig ist, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>Für die Knotendatenbank „%1“ ist kein Platz mehr. Löschen Sie nicht benötigte Dateien von diesem Datenträger und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>Die Knotendatenbank „%1“ kann nicht geöffnet werden. Prüfen Sie, ob ihr Ordner vorhanden ist, der Datenträger oder das Netzlaufwerk verbunden ist und Sie die Datei lesen dürfen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>„%1“ ist ein Ordner, ein Gerät oder eine Pipe und kann keine Knotendatenbank enthalten. Es wurde nichts verändert. Wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>„%1“ ist die Knotendatenbank selbst und wurde nicht verändert. Wählen Sie eine andere Datei für die Kopie.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Einige Passwörter in der Knotendatenbank „%1“ können nicht gelesen werden und werden leer angezeigt, weil der Schlüssel fehlt, mit dem sie verschlüsselt wurden. Entsperren Sie Ihren Schlüsselbund oder stellen Sie die Schlüsseldatei wieder her und starten Sie das Programm neu. Die Passwörter bleiben in der Datenbank, bis Sie neue vergeben.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Einige Passwörter in der Knotendatenbank „%1“ wurden nicht von diesem Programm geändert und werden leer angezeigt. Sie bleiben in der Datenbank, bis Sie neue vergeben. Finden Sie heraus, wer in die Datei schreiben kann, oder kehren Sie zu einer Sicherung zurück.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>Passwörter können in der Knotendatenbank „%1“ nicht gespeichert werden, weil der Schlüssel zum Verschlüsseln weder in Ihrem Schlüsselbund noch in einer Datei gefunden oder dort abgelegt werden kann. Entsperren Sie Ihren Schlüsselbund, stellen Sie die Schlüsseldatei wieder her oder machen Sie Ihren Konfigurationsordner beschreibbar und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>Die Knotendatenbank „%1“ kann nicht gelesen oder geschrieben werden. Prüfen Sie, ob ihr Datenträger oder Netzlaufwerk verbunden ist, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Einige Passwörter der gemeinsamen Datenbank in „%1“ können nicht gelesen werden und werden leer angezeigt, weil dieser Computer den Schlüssel nicht hat, mit dem sie verschlüsselt wurden. Klicken Sie in der Statusleiste auf den Zustand der Verbindung, und geben Sie die Passphrase des Standorts an. Sie bleiben in der Datenbank, bis Sie neue angeben.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>Passwörter können in der gemeinsamen Datenbank in „%1“ nicht gespeichert werden, weil dieser Computer den Schlüssel des Standorts nicht hat. Klicken Sie in der Statusleiste auf den Zustand der Verbindung, geben Sie die Passphrase des Standorts an, und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>Kameras:</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>In dieser Ansicht:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Kameras suchen</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Kameras, die nicht in dieser Ansicht sind</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Kameras in dieser Ansicht</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Herausnehmen</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Nach unten</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>kein Netzwerk nimmt Multicast an</translation>
    </message>
</context>
</TS>
