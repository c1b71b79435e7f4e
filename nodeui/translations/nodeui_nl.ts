<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Camera toevoegen</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Omgeving:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 toevoegen</translation>
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
        <translation>Beheermodus:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>Met de &lt;b&gt;beheermodus&lt;/b&gt; beschermt u de camera tegen ongewenste wijzigingen van de configuratie.&lt;br&gt;
&lt;b&gt;Volledig beheer&lt;/b&gt;: de configuratie is niet beperkt.&lt;br&gt;
&lt;b&gt;Beeldmodus&lt;/b&gt;: de configuratie is beperkt tot beeldinstellingen en PTZ.&lt;br&gt;
&lt;b&gt;Kijkmodus&lt;/b&gt;: configuratie is niet toegestaan.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Volledig beheer</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Beeldmodus</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Kijkmodus</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Bandbreedte:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>Met de &lt;b&gt;bandbreedte&lt;/b&gt; past u het ophalen van beelden aan de verbinding aan waarmee de camera&apos;s worden benaderd.&lt;br&gt;
&lt;b&gt;Extern, langzaam:&lt;/b&gt; modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Extern, snel:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Lokaal, langzaam:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Lokaal, snel:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Extern, langzaam (modem, ISDN, GPRS/2G, EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>Extern, snel (DSL, UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>Lokaal, langzaam (WLAN/WiFi, Ethernet)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>Lokaal, snel (Fast Ethernet, Gigabit Ethernet)</translation>
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
        <translation>Eigen proxy gebruiken</translation>
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
        <source>User name:</source>
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Camera bewerken</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Omgeving:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschappen van %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Netwerkomgevingen</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Klik om een nieuwe omgeving toe te voegen.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Klik om de geselecteerde omgeving te verwijderen.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Naamloos %1</translation>
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
        <translation>Knooppunttypen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>Algemene knooppuntweergave</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Knooppunttype:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Knooppuntnaam:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschappen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
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
        <translation>Softwareversie:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>MAC-adres:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Fabrieks-IP-adres:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Huidige IP-adressen:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Huidige IP-adressen</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Onbekend&gt;</translation>
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
        <translation>Instructiebestand:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Kies het instructiebestand</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Voorkeurs-/alarmindeling:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Weergavestrategie:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Minimale vertraging</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Vloeiende weergave</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Audiopad:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Niet gedefinieerd</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>Zichzelf</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>Instructiebestand</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Apparaateigenschappen gewijzigd</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Eigenschappen van apparaat met naam %1 gewijzigd.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Apparaatnaam gewijzigd</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Naam van apparaat gewijzigd van %1 in %2.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>Netwerkproxy</translation>
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
        <translation>Adres:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Poort:</translation>
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
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>Proxy omzeilen voor deze hosts en domeinen:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Scheid met puntkomma&apos;s (;), bijv.: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Voer hosts en domeinen in waarvoor de proxy niet moet worden gebruikt.&lt;br&gt;Scheid ze met puntkomma&apos;s (;); een sterretje (*) is een jokerteken, bijv.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Gebruiker &amp; wachtwoord</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Voer gebruikersnaam en wachtwoord in voor&lt;br&gt;%1 om u aan te melden:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Gebruikersnaam: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Wachtwoord: </translation>
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
        <translation>Gebruikersnaam en wachtwoord worden opgeslagen...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>Knooppuntdatabase</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knooppunten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Omgevingen bewerken...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knooppunten</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Bonjour-scan</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>ARP-scan</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Toevoegen ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>Bewerken ...</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles selecteren</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Toevoegen...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bewerken...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Selectie verwijderen</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alles verwijderen</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbool</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Knooppunttype</translation>
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
        <translation>Type:</translation>
    </message>
    <message>
        <source>Sensitivity:</source>
        <translation>Gevoeligheid:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Zeer kort</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kort</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponentieel</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineair</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normaal</translation>
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
        <translation>Joystickbediening:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Horizontale richting omkeren</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Verticale richting omkeren</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Mechanische zoom:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Zoomopdracht rechtstreeks naar de PTZ-kop sturen.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Mechanische zoom</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Adres van PTZ-kop:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Geldig bereik: 1 tot 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Logisch adres van de PTZ-kop</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Geen pan-/tiltkop</translation>
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
        <translation>Beeld</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>Live (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Werkt het best met continue PTZ-opdrachten.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Omhoog:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>Omlaag:</translation>
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
        <translation>Inzoomen:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Uitzoomen:</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>Stop:</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>Onbeperkt</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Toegang tot opnamen</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Kies deze optie om opnamen via de camera op te halen. Dit kan als op interne opslagmedia van de camera wordt opgenomen of als de bestandsserver niet rechtstreeks bereikbaar is.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Via de camera</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Rechtstreeks toegang tot de standaardbestandsserver uit de voorkeuren.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Standaardpad op de bestandsserver (fabrieks-IP-adres wordt toegevoegd)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Schakel in om een eigen bestandsserverpad voor de camera op te geven.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Specifiek bestandsserverpad:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Specifiek bestandsserverpad</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Meer...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Voor verbindingen met een lage bandbreedte kunt u KoTandem gebruiken voor afspelen en video zoeken. Audio- en videogegevens worden altijd geëxporteerd vanaf het hierboven gekozen opnamedoel.&lt;/p&gt;&lt;p&gt;KoTandem is een serverproduct dat apart moet worden geïnstalleerd. Zie voor meer informatie de website van uw leverancier.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Voorbeeldgegevens gebruiken voor afspelen en video zoeken</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Instellingen...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Opnamemappen</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;U ziet hier geen opnamemappen die aan andere camera&apos;s zijn toegewezen, alleen de mappen van deze camera en niet-toegewezen mappen.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Opnamemappen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pad</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Nieuw opnameknooppunt maken.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Toevoegen...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Opnameknooppunt bewerken.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bewerken...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Opnameknooppunt verwijderen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Het gemarkeerde item aan de camera toewijzen.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Toegang tot opnamen van %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Geen opnamemap</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Minder...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Geen item geselecteerd</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Selecteer een item.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Pad van opnamemap selecteren</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Kritieke fout</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>Knooppuntstuurprogramma (RecordingFolderNode) ontbreekt.</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Ongeldige actie</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>U kunt de interne recorder niet verwijderen.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>U staat op het punt een knooppunt te verwijderen.
Dit kan niet ongedaan worden gemaakt.
Toch doorgaan?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Knooppunt verwijderen</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Standaardpad op de bestandsserver niet ingesteld</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Stel het standaardpad op de bestandsserver in voordat u deze optie kiest.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Fabrieksextensie onbekend</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>U kunt deze optie pas gebruiken als de fabrieksextensie bekend is.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Geen opnamemap toegewezen</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Wijs een opnamemap toe aan de camera.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Toegang tot opnamen</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Kies hoe %2 toegang krijgt tot de opnamen van de volgende camera&apos;s:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Via de camera</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Standaardpad op de bestandsserver (fabrieks-IP-adres wordt toegevoegd)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Specifiek bestandsserverpad (fabrieks-IP wordt toegevoegd):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>Specifieke bestandsserver</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Pad:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Bladeren...</translation>
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
        <source>Use preview data for playback and Video Search</source>
        <translation>Voorbeeldgegevens gebruiken voor afspelen en video zoeken</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Kies hoe %2 toegang krijgt tot de opnamen van:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Map op bestandsserver selecteren</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Standaardpad op de bestandsserver niet ingesteld</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Stel het standaardpad op de bestandsserver in voordat u deze optie kiest.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Opslaan waar de opnamen zijn...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Eigen KoTandem-instellingen</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Pas de voorbeeldinstellingen voor deze videobron aan of gebruik de standaardwaarden uit &lt;b&gt;Opties&amp;nbsp;&amp;gt;&amp;nbsp;Standaardverbinding&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Verbindingsgegevens</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Eigen verbindingsgegevens gebruiken</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Cameravoorbeeld</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Gebeurtenisstreamer</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Extern voorbeeld</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>IP-adres:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Poort:</translation>
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
        <translation>Gebruikersnaam:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>Eigen JPEG-kwaliteit gebruiken</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>JPEG-kwaliteit</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Eigen beeldsnelheid gebruiken</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Beeldsnelheid</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>b/s</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Eigen resolutie gebruiken</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breedte:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hoogte:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Eigen audio-instelling gebruiken</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Inschakelen</translation>
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
        <translation>Toegang tot opnamen:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Wijzigen...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Via de camera</translation>
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
        <translation>Poort:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Beveiligde verbinding (SSL)</translation>
    </message>
    <message>
        <source>Channel:</source>
        <translation>Kanaal:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>Proxy omzeilen voor deze camera.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>Proxy omzeilen</translation>
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
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>Het huidige adres valt nog onder de huidige proxy-uitzonderingen:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>Controleer de proxyinstellingen!</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Proxyinstellingen</translation>
    </message>
</context>
</TS>
