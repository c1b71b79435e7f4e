<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Añadir cámara</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Entorno:</translation>
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
        <translation>Añadir %1</translation>
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
        <translation>Modo de control:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>El &lt;b&gt;modo de control&lt;/b&gt; permite proteger la cámara contra cambios no deseados de la configuración.&lt;br&gt;
&lt;b&gt;Control total&lt;/b&gt;: la configuración no está restringida.&lt;br&gt;
&lt;b&gt;Modo de imagen&lt;/b&gt;: la configuración se limita a los ajustes de imagen y PTZ.&lt;br&gt;
&lt;b&gt;Modo de visualización&lt;/b&gt;: no se permite la configuración.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Control total</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Modo de imagen</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Modo de visualización</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Ancho de banda:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>El &lt;b&gt;ancho de banda&lt;/b&gt; permite adaptar la obtención de imágenes a la conexión usada para acceder a las cámaras.&lt;br&gt;
&lt;b&gt;Remota lenta:&lt;/b&gt; módem, RDSI, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Remota rápida:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Local lenta:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Local rápida:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Remota lenta (módem, RDSI, GPRS/2G, EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>Remota rápida (DSL, UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>Local lenta (WLAN/WiFi, Ethernet)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>Local rápida (Fast Ethernet, Gigabit Ethernet)</translation>
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
        <translation>Usar un proxy propio</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Editar cámara</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Entorno:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Propiedades de %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Entornos de red</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Haga clic para añadir un entorno nuevo.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Haga clic para eliminar el entorno seleccionado.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Sin título %1</translation>
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
        <translation>Tipos de nodo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>Visor genérico de nodos</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Tipo de nodo:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Nombre del nodo:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>Modelo:</translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation>Versión de software:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>Dirección MAC:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Dirección IP de fábrica:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Direcciones IP actuales:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Direcciones IP actuales</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Desconocida&gt;</translation>
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
        <translation>Archivo de instrucciones:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Elegir el archivo de instrucciones</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Diseño preferido/de alarma:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Estrategia de visualización:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Retardo mínimo</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Visualización fluida</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Ruta de audio:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Sin definir</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>La propia</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>Archivo de instrucciones</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Propiedades del dispositivo modificadas</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Propiedades del dispositivo con el nombre %1 modificadas.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Nombre del dispositivo modificado</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Nombre del dispositivo cambiado de %1 a %2.</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>Proxy de red</translation>
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
        <translation>Servidor proxy</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>No usar el proxy para estos hosts y dominios:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Separe con punto y coma (;), p. ej.: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Introduzca los hosts y dominios para los que no se debe usar el proxy.&lt;br&gt;Sepárelos con punto y coma (;); el asterisco (*) sirve de comodín, p. ej.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Usuario y contraseña</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Introduzca el nombre de usuario y la contraseña para&lt;br&gt;%1 a fin de autenticarse:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Nombre de usuario: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Contraseña: </translation>
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
        <translation>Guardando nombre de usuario y contraseña...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>Base de datos de nodos</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Editar entornos...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Vista general</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodos</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Búsqueda Bonjour</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>Búsqueda ARP</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Añadir ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>Editar ...</translation>
    </message>
    <message>
        <source>Filter ...</source>
        <translation>Filtrar ...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Añadir...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Eliminar selección</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Eliminar todo</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Símbolo</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Tipo de nodo</translation>
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
        <translation>Sensibilidad:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Muy corta</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Corta</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponencial</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Lineal</translation>
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
        <translation>Control por joystick:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Invertir la dirección horizontal</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Invertir la dirección vertical</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Zoom mecánico:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Enviar la orden de zoom directamente al cabezal PTZ.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Zoom mecánico</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Dirección del cabezal PTZ:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Intervalo válido: de 1 a 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Dirección lógica del cabezal PTZ</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Sin cabezal de giro/inclinación</translation>
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
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>En vivo (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Funciona mejor con órdenes PTZ continuas.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Arriba:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>Abajo:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Izquierda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Derecha:</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>Acercar:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Alejar:</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>Parar:</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>Ilimitado</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Acceso a las grabaciones</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Seleccione esta opción para obtener las grabaciones a través de la cámara. Se puede usar si se graba en el soporte interno de la cámara o si no se puede acceder directamente al servidor de archivos.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>A través de la cámara</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Acceder directamente al servidor de archivos predeterminado indicado en las preferencias.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Ruta predeterminada del servidor de archivos (se añade la dirección IP de fábrica)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Marque para indicar una ruta de servidor de archivos propia de la cámara.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Ruta específica del servidor de archivos:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Ruta específica del servidor de archivos</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Más...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Para optimizar las conexiones de poco ancho de banda, puede usar KoTandem para la reproducción y la búsqueda de vídeo. Los datos de audio y vídeo se exportan siempre desde el destino de grabación seleccionado arriba.&lt;/p&gt;&lt;p&gt;KoTandem es un producto de servidor que debe instalarse por separado. Encontrará más información en el sitio web de su proveedor.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Usar datos de vista previa para la reproducción y la búsqueda de vídeo</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ajustes...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Carpetas de grabación</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Aquí no verá las carpetas de grabación asignadas a otras cámaras, solo las asignadas a esta cámara y las carpetas sin asignar.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Carpetas de grabación</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Crear un nodo de grabación nuevo.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Añadir...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Editar el nodo de grabación.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Eliminar un nodo de grabación.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Asignar la entrada marcada a la cámara.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Acceso a las grabaciones de %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Sin carpeta de grabación</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Menos...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Ninguna entrada seleccionada</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Seleccione una entrada.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Seleccionar la ruta de la carpeta de grabación</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Error crítico</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>Falta el controlador de nodos (RecordingFolderNode).</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Acción no válida</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>No se puede eliminar el grabador interno.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>Está a punto de eliminar un nodo.
Esta acción no se puede deshacer.
¿Desea continuar?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Eliminar nodo</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Ruta predeterminada del servidor de archivos sin definir</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Defina la ruta predeterminada del servidor de archivos antes de elegir esta opción.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Extensión de fábrica desconocida</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>No puede usar esta opción hasta que se conozca la extensión de fábrica.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Ninguna carpeta de grabación asignada</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Asigne una carpeta de grabación a la cámara.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Acceso a las grabaciones</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Seleccione cómo debe acceder %2 a las grabaciones de las cámaras siguientes:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>A través de la cámara</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Ruta predeterminada del servidor de archivos (se añade la dirección IP de fábrica)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Ruta específica del servidor de archivos (se añade la IP de fábrica):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>Servidor de archivos específico</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Ruta:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Usar datos de vista previa para la reproducción y la búsqueda de vídeo</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Seleccione cómo debe acceder %2 a las grabaciones de:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Seleccionar un directorio del servidor de archivos</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Ruta predeterminada del servidor de archivos sin definir</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Defina la ruta predeterminada del servidor de archivos antes de elegir esta opción.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Guardando dónde están las grabaciones...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Ajustes propios de KoTandem</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Personalice los ajustes de vista previa de esta fuente de vídeo o use los valores definidos en &lt;b&gt;Opciones&amp;nbsp;&amp;gt;&amp;nbsp;Conexión&amp;nbsp;predeterminada&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Datos de conexión</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Usar datos de conexión propios</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Vista previa de la cámara</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Transmisor de eventos</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Vista previa remota</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>Dirección IP:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
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
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>Usar una calidad JPEG propia</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Calidad JPEG</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Usar una frecuencia de imagen propia</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Frecuencia de imagen</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>ips</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Usar una resolución propia</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Ancho:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Alto:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Usar un ajuste de audio propio</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activar</translation>
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
        <translation>Acceso a las grabaciones:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Cambiar...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>A través de la cámara</translation>
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
        <translation>Dirección:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Conexión segura (SSL)</translation>
    </message>
    <message>
        <source>Channel:</source>
        <translation>Canal:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>No usar el proxy para esta cámara.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>No usar el proxy</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nombre de usuario:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>La dirección actual sigue afectada por las excepciones de proxy actuales:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>¡Compruebe la configuración del proxy!</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Configuración del proxy</translation>
    </message>
</context>
</TS>
