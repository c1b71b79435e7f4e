<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Přidat kameru</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Prostředí:</translation>
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
        <translation>Přidat: %1</translation>
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
        <translation>Režim řízení:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>&lt;b&gt;Režim řízení&lt;/b&gt; chrání kameru před nežádoucími změnami konfigurace.&lt;br&gt;
&lt;b&gt;Plné řízení&lt;/b&gt;: konfigurace není omezena.&lt;br&gt;
&lt;b&gt;Režim obrazu&lt;/b&gt;: konfigurace je omezena na nastavení obrazu a PTZ.&lt;br&gt;
&lt;b&gt;Režim prohlížení&lt;/b&gt;: konfigurace není povolena.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Plné řízení</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Režim obrazu</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Režim prohlížení</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Šířka pásma:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>&lt;b&gt;Šířka pásma&lt;/b&gt; přizpůsobí získávání obrazu připojení, kterým se přistupuje ke kamerám.&lt;br&gt;
&lt;b&gt;Vzdálené pomalé:&lt;/b&gt; modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Vzdálené rychlé:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Místní pomalé:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Místní rychlé:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
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
</context>
<context>
    <name>CustomNetworkProxyWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Use custom proxy</source>
        <translation>Použít vlastní proxy</translation>
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
        <source>User name:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Upravit kameru</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Prostředí:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Vlastnosti: %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Síťová prostředí</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Klepnutím přidáte nové prostředí.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Klepnutím odeberete vybrané prostředí.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Bez názvu %1</translation>
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
        <translation>Typy uzlů</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>Obecný prohlížeč uzlů</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Typ uzlu:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Název uzlu:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Vlastnosti</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
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
        <translation>Verze softwaru:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>Adresa MAC:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Tovární adresa IP:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Aktuální adresy IP:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Aktuální adresy IP</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Neznámá&gt;</translation>
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
        <translation>Soubor s pokyny:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Vybrat soubor s pokyny</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Upřednostňované/poplachové rozložení:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Strategie zobrazení:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Minimální zpoždění</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Plynulé zobrazení</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Cesta zvuku:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Neurčeno</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>Vlastní</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>Soubor s pokyny</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Změněny vlastnosti zařízení</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Změněny vlastnosti zařízení s názvem %1.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Změněn název zařízení</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Název zařízení změněn z %1 na %2.</translation>
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
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>Síťová proxy</translation>
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
        <translation>Server proxy</translation>
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
        <source>User name:</source>
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>Nepoužívat proxy pro tyto hostitele a domény:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Oddělujte středníkem (;), např.: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Zadejte hostitele a domény, pro které se nemá používat proxy.&lt;br&gt;Oddělujte je středníkem (;); hvězdička (*) je zástupný znak, např.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Uživatel a heslo</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Zadejte uživatelské jméno a heslo pro&lt;br&gt;%1 k ověření:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Uživatelské jméno: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Heslo: </translation>
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
        <translation>Ukládá se uživatelské jméno a heslo...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>Databáze uzlů</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Uzly</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Upravit prostředí...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Přehled</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Uzly</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Hledání Bonjour</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>Hledání ARP</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Přidat ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>Upravit ...</translation>
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
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Vybrat vše</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Přidat...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Upravit...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Odebrat vybrané</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Odebrat vše</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
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
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Typ uzlu</translation>
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
        <translation>Citlivost:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Velmi krátká</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Krátká</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponenciální</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineární</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normální</translation>
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
        <translation>Ovládání joystickem:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Obrátit vodorovný směr</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Obrátit svislý směr</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Mechanický zoom:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Posílat příkaz zoomu přímo hlavici PTZ.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Mechanický zoom</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Adresa hlavice PTZ:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Platný rozsah: 1 až 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Logická adresa hlavice PTZ</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Bez otočné hlavice</translation>
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
        <translation>Živě (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Nejlépe funguje s průběžnými příkazy PTZ.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Nahoru:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>Dolů:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Doleva:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Doprava:</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>Přiblížit:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Oddálit:</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>Zastavit:</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>Neomezeno</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Přístup k záznamům</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Zvolte tuto možnost, chcete-li získávat záznamy přes kameru. Hodí se, pokud se nahrává na interní médium kamery nebo pokud souborový server není přímo přístupný.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Přes kameru</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Přímý přístup k výchozímu souborovému serveru z předvoleb.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Výchozí cesta souborového serveru (připojí se tovární adresa IP)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Zaškrtněte, chcete-li zadat cestu souborového serveru vlastní kameře.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Zvláštní cesta souborového serveru:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Zvláštní cesta souborového serveru</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Více...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Při připojení s malou šířkou pásma můžete pro přehrávání a vyhledávání videa použít KoTandem. Zvuková a obrazová data se vždy exportují z cíle záznamu vybraného výše.&lt;/p&gt;&lt;p&gt;KoTandem je serverový produkt, který se instaluje samostatně. Podrobnosti najdete na webu svého dodavatele.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Použít data náhledu pro přehrávání a vyhledávání videa</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Nastavení...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Složky záznamů</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Složky záznamů přiřazené jiným kamerám zde neuvidíte, pouze složky přiřazené této kameře a nepřiřazené složky.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Složky záznamů</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Cesta</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Vytvořit nový uzel záznamů.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Přidat...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Upravit uzel záznamů.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Upravit...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Odebrat uzel záznamů.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Přiřadit zaškrtnutou položku kameře.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Použít</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Přístup k záznamům: %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Žádná složka záznamů</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Méně...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Není vybrána žádná položka</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Vyberte položku.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Vybrat cestu složky záznamů</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Závažná chyba</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>Chybí ovladač uzlů (RecordingFolderNode).</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Neplatná akce</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>Interní rekordér nelze odebrat.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>Chystáte se odebrat uzel.
Tuto akci nelze vzít zpět.
Přesto pokračovat?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Odebrat uzel</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Výchozí cesta souborového serveru není nastavena</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Před volbou této možnosti určete výchozí cestu souborového serveru.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Tovární přípona není známa</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>Tuto možnost nelze použít, dokud není známa tovární přípona.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Není přiřazena žádná složka záznamů</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Přiřaďte kameře složku záznamů.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Přístup k záznamům</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Zvolte, jak má %2 přistupovat k záznamům těchto kamer:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Přes kameru</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Výchozí cesta souborového serveru (připojí se tovární adresa IP)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Zvláštní cesta souborového serveru (připojí se tovární IP):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>Zvláštní souborový server</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Cesta:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procházet...</translation>
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
        <source>Use preview data for playback and Video Search</source>
        <translation>Použít data náhledu pro přehrávání a vyhledávání videa</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Zvolte, jak má %2 přistupovat k záznamům:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Vybrat adresář souborového serveru</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Výchozí cesta souborového serveru není nastavena</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Před volbou této možnosti určete výchozí cestu souborového serveru.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Ukládá se, kde jsou záznamy...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Vlastní nastavení KoTandem</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Přizpůsobte nastavení náhledu pro tento zdroj videa nebo použijte hodnoty z &lt;b&gt;Možnosti&amp;nbsp;&amp;gt;&amp;nbsp;Výchozí&amp;nbsp;připojení&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Údaje připojení</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Použít vlastní údaje připojení</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Náhled z kamery</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Proud událostí</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Vzdálený náhled</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>Adresa IP:</translation>
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
        <translation>Uživatelské jméno:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Heslo:</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>Použít vlastní kvalitu JPEG</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Kvalita JPEG</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Použít vlastní snímkovou frekvenci</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Snímková frekvence</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>sn./s</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Použít vlastní rozlišení</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozlišení</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Šířka:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Výška:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Použít vlastní nastavení zvuku</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Povolit</translation>
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
        <translation>Přístup k záznamům:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Změnit...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Přes kameru</translation>
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
        <source>Channel:</source>
        <translation>Kanál:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>Nepoužívat proxy pro tuto kameru.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>Nepoužívat proxy</translation>
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
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>Na aktuální adresu se stále vztahují aktuální výjimky proxy:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>Zkontrolujte nastavení proxy!</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Nastavení proxy</translation>
    </message>
</context>
</TS>
