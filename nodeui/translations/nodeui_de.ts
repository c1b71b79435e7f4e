<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Kamera hinzufügen</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Umgebung:</translation>
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
        <translation>%1 hinzufügen</translation>
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
        <translation>Zugriffsmodus:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>Mit dem &lt;b&gt;Zugriffsmodus&lt;/b&gt; schützen Sie Ihre Kamera vor ungewollten Änderungen der Konfiguration.&lt;br&gt;
&lt;b&gt;Voller Zugriff&lt;/b&gt;: Die Konfiguration ist nicht eingeschränkt.&lt;br&gt;
&lt;b&gt;Bildmodus&lt;/b&gt;: Die Konfiguration ist auf Bildeinstellungen und PTZ beschränkt.&lt;br&gt;
&lt;b&gt;Betrachtermodus&lt;/b&gt;: Keine Konfiguration möglich.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Voller Zugriff</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Bildmodus</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Betrachtermodus</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Bandbreite:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>Mit der &lt;b&gt;Bandbreite&lt;/b&gt; passen Sie den Bildabruf an die Verbindung an, über die auf die Kameras zugegriffen wird.&lt;br&gt;
&lt;b&gt;Entfernt, langsam:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Entfernt, schnell:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Lokal, langsam:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Lokal, schnell:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Entfernt, langsam (Modem, ISDN, GPRS/2G, EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>Entfernt, schnell (DSL, UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>Lokal, langsam (WLAN/WiFi, Ethernet)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>Lokal, schnell (Fast Ethernet, Gigabit Ethernet)</translation>
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
        <translation>Eigenen Proxy verwenden</translation>
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
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Kamera bearbeiten</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Umgebung:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschaften von %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Netzwerkumgebungen</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Klicken Sie, um eine neue Umgebung hinzuzufügen.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Klicken Sie, um die ausgewählte Umgebung zu entfernen.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Unbenannt %1</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Node types</source>
        <translation>Knotentypen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>Allgemeine Knotenansicht</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Knotentyp:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Knotenname:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <translation>Modell:</translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation>Softwareversion:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>MAC-Adresse:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Werks-IP-Adresse:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Aktuelle IP-Adressen:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Aktuelle IP-Adressen</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Unbekannt&gt;</translation>
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
        <translation>Anweisungsdatei:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Anweisungsdatei auswählen</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Bevorzugtes/Alarm-Layout:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Anzeigestrategie:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Minimale Verzögerung</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Flüssige Anzeige</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Audiopfad:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Nicht festgelegt</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>Selbst</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>Anweisungsdatei</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Geräteeigenschaften geändert</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Eigenschaften des Geräts mit dem Namen %1 geändert.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Gerätename geändert</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Name des Geräts von %1 in %2 geändert.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>Netzwerkproxy</translation>
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
        <translation>Proxyserver</translation>
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
        <source>User name:</source>
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>Proxy für diese Hosts und Domänen umgehen:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Trennen Sie mit Semikolon (;), z. B.: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Geben Sie Hosts und Domänen ein, für die der Proxy nicht verwendet werden soll.&lt;br&gt;Trennen Sie mit Semikolon (;); der Stern (*) dient als Platzhalter, z. B.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Benutzer &amp; Passwort</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Bitte geben Sie Benutzername und Passwort ein, um sich bei&lt;br&gt;%1 anzumelden:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Benutzername: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Passwort: </translation>
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
        <translation>Benutzername und Passwort werden gespeichert...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>Knotendatenbank</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Umgebungen bearbeiten...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Bonjour-Suche</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>ARP-Suche</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Hinzufügen ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>Bearbeiten ...</translation>
    </message>
    <message>
        <source>Filter ...</source>
        <translation>Filter ...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Hinzufügen...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Auswahl entfernen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Knotentyp</translation>
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
        <translation>Empfindlichkeit:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Sehr kurz</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kurz</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponentiell</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
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
        <translation>Joysticksteuerung:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Horizontale Richtung umkehren</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Vertikale Richtung umkehren</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Mechanischer Zoom:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Zoombefehl direkt an den PTZ-Kopf senden.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Mechanischer Zoom</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Adresse des PTZ-Kopfs:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Gültiger Bereich: 1 bis 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Logische Adresse des PTZ-Kopfs</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Kein Schwenk-Neige-Kopf</translation>
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
        <translation>Bild</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>Live (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Am besten geeignet für kontinuierliche PTZ-Befehle.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Auf:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>Ab:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>Zoom +:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Zoom −:</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>Stopp:</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>Unbegrenzt</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Zugriff auf Aufzeichnungen</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Wählen Sie diese Option, um Aufzeichnungen über die Kamera abzurufen. Sie eignet sich, wenn auf internen Speichermedien der Kamera aufgezeichnet wird oder der Dateiserver nicht direkt erreichbar ist.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Über die Kamera</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Direkt auf den in den Einstellungen festgelegten Standard-Dateiserver zugreifen.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Standardpfad auf dem Dateiserver (die Werks-IP-Adresse wird angehängt)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Aktivieren Sie diese Option, um einen eigenen Dateiserverpfad für die Kamera anzugeben.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Eigener Dateiserverpfad:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Eigener Dateiserverpfad</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Mehr...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Bei Verbindungen mit geringer Bandbreite können Sie KoTandem für Wiedergabe und Videosuche verwenden. Audio- und Videodaten werden immer vom oben gewählten Aufzeichnungsziel exportiert.&lt;/p&gt;&lt;p&gt;KoTandem ist ein Serverprodukt, das separat installiert werden muss. Näheres finden Sie auf der Website Ihres Lieferanten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Vorschaudaten für Wiedergabe und Videosuche verwenden</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Aufzeichnungsordner</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Hier sehen Sie keine Aufzeichnungsordner, die anderen Kameras zugewiesen sind, sondern nur die dieser Kamera zugewiesenen und die nicht zugewiesenen Ordner.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Aufzeichnungsordner</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Neuen Aufzeichnungsknoten anlegen.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Hinzufügen...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Aufzeichnungsknoten bearbeiten.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Aufzeichnungsknoten entfernen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Markierten Eintrag der Kamera zuweisen.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Zugriff auf Aufzeichnungen von %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Kein Aufzeichnungsordner</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Weniger...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Kein Eintrag ausgewählt</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Bitte wählen Sie einen Eintrag aus.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Pfad des Aufzeichnungsordners auswählen</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Schwerer Fehler</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>Der Knotentreiber (RecordingFolderNode) fehlt.</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Ungültige Aktion</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>Der interne Rekorder kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>Sie sind dabei, einen Knoten zu entfernen.
Dies kann nicht rückgängig gemacht werden.
Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Knoten entfernen</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Standardpfad auf dem Dateiserver nicht festgelegt</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Bitte legen Sie den Standardpfad auf dem Dateiserver fest, bevor Sie diese Option wählen.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Werkserweiterung unbekannt</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>Diese Option kann erst verwendet werden, wenn die Werkserweiterung bekannt ist.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Kein Aufzeichnungsordner zugewiesen</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Bitte weisen Sie der Kamera einen Aufzeichnungsordner zu.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Zugriff auf Aufzeichnungen</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Wählen Sie, wie %2 auf die Aufzeichnungen der folgenden Kameras zugreifen soll:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Über die Kamera</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Standardpfad auf dem Dateiserver (die Werks-IP-Adresse wird angehängt)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Eigener Dateiserverpfad (die Werks-IP wird angehängt):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>Eigener Dateiserver</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Pfad:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
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
        <source>Use preview data for playback and Video Search</source>
        <translation>Vorschaudaten für Wiedergabe und Videosuche verwenden</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Wählen Sie, wie %2 auf die Aufzeichnungen zugreifen soll von:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Verzeichnis auf dem Dateiserver auswählen</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Standardpfad auf dem Dateiserver nicht festgelegt</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Bitte legen Sie den Standardpfad auf dem Dateiserver fest, bevor Sie diese Option wählen.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Es wird gespeichert, wo die Aufzeichnungen sind...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Eigene KoTandem-Einstellungen</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Passen Sie die Vorschaueinstellungen für diese Videoquelle an oder verwenden Sie die Vorgaben unter &lt;b&gt;Optionen&amp;nbsp;&amp;gt;&amp;nbsp;Verbindungsvorgaben&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Verbindungsdaten</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Eigene Verbindungsdaten verwenden</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Kameravorschau</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Ereignisstreamer</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Fernvorschau</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>IP-Adresse:</translation>
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
        <translation>Benutzername:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>Eigene JPEG-Qualität verwenden</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG-Qualität</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Eigene Bildrate verwenden</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>B/s</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Eigene Auflösung verwenden</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Eigene Audioeinstellung verwenden</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Aktivieren</translation>
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
        <translation>Zugriff auf Aufzeichnungen:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Ändern...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Über die Kamera</translation>
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
        <source>Channel:</source>
        <translation>Kanal:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>Proxy für diese Kamera umgehen.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>Proxy umgehen</translation>
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
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>Die aktuelle Adresse ist weiterhin von diesen Proxyausnahmen betroffen:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>Bitte prüfen Sie die Proxyeinstellungen!</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Proxyeinstellungen</translation>
    </message>
</context>
</TS>
