<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Aggiungi telecamera</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Ambiente:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Aggiungi %1</translation>
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
        <translation>Modalità di controllo:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>La &lt;b&gt;modalità di controllo&lt;/b&gt; protegge la telecamera da modifiche involontarie della configurazione.&lt;br&gt;
&lt;b&gt;Controllo completo&lt;/b&gt;: la configurazione non è limitata.&lt;br&gt;
&lt;b&gt;Modalità immagine&lt;/b&gt;: la configurazione è limitata alle impostazioni dell&apos;immagine e al PTZ.&lt;br&gt;
&lt;b&gt;Modalità visualizzazione&lt;/b&gt;: la configurazione non è consentita.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Controllo completo</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Modalità immagine</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Modalità visualizzazione</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Larghezza di banda:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>La &lt;b&gt;larghezza di banda&lt;/b&gt; adatta il recupero delle immagini alla connessione usata per accedere alle telecamere.&lt;br&gt;
&lt;b&gt;Remota lenta:&lt;/b&gt; modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Remota veloce:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Locale lenta:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Locale veloce:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Remota lenta (modem, ISDN, GPRS/2G, EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>Remota veloce (DSL, UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>Locale lenta (WLAN/WiFi, Ethernet)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>Locale veloce (Fast Ethernet, Gigabit Ethernet)</translation>
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
        <translation>Usa un proxy personalizzato</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Modifica telecamera</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Ambiente:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Proprietà di %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Ambienti di rete</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Fare clic per aggiungere un nuovo ambiente.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Fare clic per rimuovere l&apos;ambiente selezionato.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Senza titolo %1</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Node types</source>
        <translation>Tipi di nodo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>Visualizzatore di nodi generico</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Tipo di nodo:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Nome del nodo:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
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
        <translation>Modello:</translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation>Versione software:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>Indirizzo MAC:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Indirizzo IP di fabbrica:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Indirizzi IP attuali:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Indirizzi IP attuali</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Sconosciuto&gt;</translation>
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
        <translation>File di istruzioni:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Scegli il file di istruzioni</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Layout preferito/di allarme:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Strategia di visualizzazione:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Ritardo minimo</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Visualizzazione fluida</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Percorso audio:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Non definito</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>Se stessa</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>File di istruzioni</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Proprietà del dispositivo modificate</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Proprietà del dispositivo con nome %1 modificate.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Nome del dispositivo modificato</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Nome del dispositivo cambiato da %1 a %2.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>Proxy di rete</translation>
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
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>Non usare il proxy per questi host e domini:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Separare con punto e virgola (;), ad es.: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Immettere gli host e i domini per i quali non usare il proxy.&lt;br&gt;Separarli con punto e virgola (;); l&apos;asterisco (*) è il carattere jolly, ad es.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Utente e password</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Immettere nome utente e password per&lt;br&gt;%1 per autenticarsi:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Nome utente: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Password: </translation>
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
        <translation>Salvataggio di nome utente e password...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>Database dei nodi</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Modifica ambienti...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Panoramica</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodi</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Ricerca Bonjour</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>Ricerca ARP</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Aggiungi ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>Modifica ...</translation>
    </message>
    <message>
        <source>Filter ...</source>
        <translation>Filtro ...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleziona tutto</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Aggiungi...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Rimuovi selezionati</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Rimuovi tutti</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Simbolo</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Tipo di nodo</translation>
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
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Sensitivity:</source>
        <translation>Sensibilità:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Molto breve</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Breve</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Esponenziale</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineare</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
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
        <translation>Controllo con joystick:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Inverti direzione orizzontale</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Inverti direzione verticale</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Zoom meccanico:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Invia il comando di zoom direttamente alla testa PTZ.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Zoom meccanico</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Indirizzo della testa PTZ:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Intervallo valido: da 1 a 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Indirizzo logico della testa PTZ</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Nessuna testa pan/tilt</translation>
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
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>Live (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Funziona al meglio con comandi PTZ continui.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Su:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>Giù:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Sinistra:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Destra:</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>Zoom avanti:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Zoom indietro:</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>Ferma:</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>Illimitato</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Accesso alle registrazioni</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Selezionare questa opzione per ottenere le registrazioni tramite la telecamera. È adatta se si registra sul supporto interno della telecamera o se il file server non è accessibile direttamente.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Tramite la telecamera</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Accedere direttamente al file server predefinito indicato nelle preferenze.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Percorso predefinito del file server (viene aggiunto l&apos;indirizzo IP di fabbrica)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Selezionare per indicare un percorso del file server specifico della telecamera.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Percorso specifico del file server:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Percorso specifico del file server</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Altro...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Per ottimizzare le connessioni a banda ridotta è possibile usare KoTandem per la riproduzione e la ricerca video. I dati audio e video vengono sempre esportati dalla destinazione di registrazione selezionata sopra.&lt;/p&gt;&lt;p&gt;KoTandem è un prodotto server da installare separatamente. Per i dettagli consultare il sito web del fornitore.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Usa i dati di anteprima per la riproduzione e la ricerca video</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Impostazioni...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Cartelle di registrazione</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Qui non appaiono le cartelle di registrazione assegnate ad altre telecamere, ma solo quelle assegnate a questa telecamera e quelle non assegnate.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Cartelle di registrazione</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Percorso</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Crea un nuovo nodo di registrazione.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Aggiungi...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Modifica il nodo di registrazione.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Rimuovi un nodo di registrazione.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Assegna alla telecamera la voce selezionata.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Accesso alle registrazioni di %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Nessuna cartella di registrazione</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Meno...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Nessuna voce selezionata</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Selezionare una voce.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Seleziona il percorso della cartella di registrazione</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Errore critico</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>Manca il driver dei nodi (RecordingFolderNode).</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Azione non valida</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>Non è possibile rimuovere il registratore interno.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>Si sta per rimuovere un nodo.
Questa azione non è reversibile.
Continuare comunque?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Rimuovi nodo</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Percorso predefinito del file server non impostato</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Definire il percorso predefinito del file server prima di scegliere questa opzione.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Estensione di fabbrica sconosciuta</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>Non è possibile usare questa opzione finché l&apos;estensione di fabbrica non è nota.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Nessuna cartella di registrazione assegnata</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Assegnare una cartella di registrazione alla telecamera.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Accesso alle registrazioni</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Scegliere come %2 deve accedere alle registrazioni delle telecamere seguenti:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Tramite la telecamera</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Percorso predefinito del file server (viene aggiunto l&apos;indirizzo IP di fabbrica)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Percorso specifico del file server (viene aggiunto l&apos;IP di fabbrica):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>File server specifico</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Percorso:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Usa i dati di anteprima per la riproduzione e la ricerca video</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Scegliere come %2 deve accedere alle registrazioni di:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Seleziona una cartella del file server</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Percorso predefinito del file server non impostato</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Definire il percorso predefinito del file server prima di scegliere questa opzione.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Salvataggio di dove sono le registrazioni...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Impostazioni KoTandem personalizzate</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Personalizzare le impostazioni di anteprima di questa sorgente video o usare i valori definiti in &lt;b&gt;Opzioni&amp;nbsp;&amp;gt;&amp;nbsp;Connessione&amp;nbsp;predefinita&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Dati di connessione</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Usa dati di connessione personalizzati</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Anteprima della telecamera</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Streamer di eventi</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Anteprima remota</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>Indirizzo IP:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
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
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>Usa qualità JPEG personalizzata</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualità JPEG</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Usa frequenza fotogrammi personalizzata</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Frequenza fotogrammi</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Usa risoluzione personalizzata</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Larghezza:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altezza:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Usa impostazione audio personalizzata</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Attiva</translation>
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
        <translation>Accesso alle registrazioni:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Cambia...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Tramite la telecamera</translation>
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
        <translation>Indirizzo:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Connessione sicura (SSL)</translation>
    </message>
    <message>
        <source>Channel:</source>
        <translation>Canale:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>Non usare il proxy per questa telecamera.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>Non usare il proxy</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome utente:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>L&apos;indirizzo attuale è ancora soggetto alle eccezioni del proxy attuali:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>Controllare le impostazioni del proxy!</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Impostazioni del proxy</translation>
    </message>
</context>
</TS>
