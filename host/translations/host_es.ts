<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>«%1» ya tiene esta dirección y este puerto.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>Una dirección no contiene espacios.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>No es una dirección IPv6 ni un host con puerto.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>Una dirección IP tiene cuatro números de 0 a 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>El nombre de un host solo contiene letras, cifras, puntos y guiones.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Un puerto es un número de 1 a 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>Esta URL no contiene un host legible.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>no hay ninguna red IPv4 conectada</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>el sistema no proporciona ningún socket: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>CameraSurvey</name>
    <message>
        <source>Nothing was written, because these passwords cannot be read: %1. Unlock your keychain, bring the key file back, or leave the passwords out.</source>
        <translation>No se ha escrito nada porque no se pueden leer estas contraseñas: %1. Desbloquee su llavero, restaure el archivo de clave u omita las contraseñas.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>No hay ninguna base de datos.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>varios dispositivos tienen esta dirección; indique el tipo, el puerto y el canal</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>varios dispositivos tienen este nombre; indique la dirección</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>es una base de datos y no se ha modificado.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>No se puede escribir %1: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>contiene caracteres de control</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>tiene más de 1024 caracteres</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>contiene un salto de línea</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>contiene caracteres invisibles</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>no es un número de 0 a 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>no es un número de 1 a 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>no es yes, no, true, false, 1 ni 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>no es una dirección MAC (doce cifras hexadecimales)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>no es IP device, URL camera ni channel device, ni un número</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>no es un número</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 La importación se ha detenido ahí; solo se ha guardado lo que aquí se cuenta. Importe de nuevo el archivo para el resto.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 no es un archivo normal.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 es la propia base de datos de nodos.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>No se puede leer %1: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>%1 líneas son incorrectas; no es una lista de cámaras.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>Las contraseñas de la lista (en la línea %1) no se pueden guardar porque falta la clave que las cifra. Desbloquee su llavero, restaure el archivo de clave o permita la escritura en su carpeta de configuración. No se ha importado nada.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>No se puede leer la primera línea: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>aquí no se pueden añadir dispositivos de este tipo</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>aquí no se pueden añadir carpetas de grabación</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>no se ha podido añadir el dispositivo</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>lo que hay en esta dirección no es un dispositivo</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>el dispositivo de esta dirección no tiene canales</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>no se ha podido modificar el dispositivo</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>Hay dos columnas «%1».</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>Falta la columna «address». La primera línea debe nombrar las columnas.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>hay más celdas que columnas</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>%1 incorrecto: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>no hay nombre ni dirección</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>un dispositivo de este tipo no tiene canales</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>no es un nombre de host ni una dirección IP</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>contiene más que un host; puerto, SSL y usuario tienen columnas propias</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>se refiere al mismo dispositivo que la línea %1 y cambiaría lo que esta indica</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>el nuevo dispositivo no tendría nombre</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>Las contraseñas de la lista (en la línea %1) no se pueden guardar, porque este equipo no tiene la clave de la base de datos compartida. Dé primero su frase de contraseña. No se ha importado nada.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Propiedades de %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Propiedades de un nodo</numerusform>
            <numerusform>Propiedades de %n nodos</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Carpetas de grabación</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Carpeta de grabación de %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Carpeta de grabación de una cámara</numerusform>
            <numerusform>Carpetas de grabación de %n cámaras</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Usuarios y contraseñas</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Usuario y contraseña de %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Usuario y contraseña de un nodo</numerusform>
            <numerusform>Usuario y contraseña de %n nodos</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Adición de nodos</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Adición de %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Adición de un nodo</numerusform>
            <numerusform>Adición de %n nodos</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Eliminación de nodos</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Eliminación de %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Eliminación de un nodo</numerusform>
            <numerusform>Eliminación de %n nodos</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>Importaciones</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Importación de %1</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>Lo que dijeron las cámaras</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>Lo que dijo %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>Lo que dijo una cámara</numerusform>
            <numerusform>Lo que dijeron %n cámaras</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Direcciones nuevas</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Dirección nueva de %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Dirección nueva de un dispositivo</numerusform>
            <numerusform>Direcciones nuevas de %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Búsquedas</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Una búsqueda encontró %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Una búsqueda encontró un dispositivo</numerusform>
            <numerusform>Una búsqueda encontró %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Cómo se reconocen las cámaras</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Cómo se reconoce %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Cómo se reconoce una cámara</numerusform>
            <numerusform>Cómo se reconocen %n cámaras</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Proxy global</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Entornos</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Base de datos nueva</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Copia de seguridad restaurada</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Revertido</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Cambio de una versión más reciente</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rehecho: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Revertido: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Contraseñas cifradas de nuevo</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>La celda entre comillas que empieza en el registro de la línea %1 no se cierra.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>El registro que empieza en la línea %1 supera 1 MiB.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>hay texto después de las comillas finales de una celda</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>No es un archivo de texto (la línea %1 contiene datos binarios). Guarde el archivo como texto UTF-8.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>La línea %1 supera 1 MiB.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>La línea %1 no es texto UTF-8. Guarde el archivo como UTF-8 e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>No se puede leer el archivo: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>tarda demasiado en responder</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>la dirección no es válida</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>no habla ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>no dice quién es</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>pide una contraseña y no hay ninguna guardada</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>pide la contraseña sin cifrar</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>pide la contraseña de una forma desconocida</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>no indica imágenes de este canal</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>tiene un punto de conexión distinto de antes</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>tiene un dominio de autenticación distinto de antes</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>tiene un número de serie distinto de antes</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>allí se rechazó otra contraseña</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>sin respuesta a tiempo</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>la respuesta es demasiado larga</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>redirige a otro lugar</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>tiene un certificado distinto de antes</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>No se puede usar el archivo «%1»: su nombre no es texto en la codificación de este sistema. Cámbiele el nombre.</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>Usuario y contraseña introducidos</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Dirección del proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Puerto del proxy</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Usuario del proxy</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Contraseña del proxy</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Guardar la contraseña del proxy</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Cabezal de giro/inclinación</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Usar vista previa remota</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Guardar la contraseña</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Modo de vista previa</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Datos de conexión predeterminados</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Frecuencia de imagen predeterminada</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Calidad JPEG predeterminada</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Resolución predeterminada</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Ajuste de audio predeterminado</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Ruta predeterminada del servidor de archivos</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Servidor de vista previa remota predeterminado</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Entorno activo</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Usar el proxy</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Excepciones de proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Entornos</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Proxy global</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nodo</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Dispositivo conocido</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(no existe)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(oculta)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>cambiada</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>Ya está así.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>Se cambió desde entonces.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>El nodo se eliminó.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>Otros lo usan ahora.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Días de historial</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Megabytes de historial</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Entrada de tipo desconocido «%1»</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Nivel %1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Registro del programa</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Dirección nueva aceptada</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Dispositivo %1 trasladado de la dirección %2 a %3, donde se encontró.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Dispositivos importados</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Dispositivos importados de %1: %2 añadidos, %3 modificados, %4 líneas rechazadas.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Cambiado sin cuadro de diálogo</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Añadido por el programa</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Eliminado por el programa</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Configuración cambiada</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Proxy global cambiado</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Entornos cambiados</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Encontrado por una búsqueda</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Direcciones nuevas aceptadas</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Anotado cómo se reconocen las cámaras</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Rellenado lo que dijeron las cámaras</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Lista importada</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Base de datos creada</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Copia de seguridad restaurada</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Cambiado por una versión más reciente</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Carpetas de grabación cambiadas</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Usuarios y contraseñas cambiados</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Revertido</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Dispositivo añadido</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Dispositivo eliminado</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Contraseña sin cifrar permitida</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Otro dispositivo aceptado</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Dispositivo con el nombre %1 añadido.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Dispositivo con el nombre %1 eliminado.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Aceptado como %1 otro dispositivo que antes.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>Se ha permitido enviar sin cifrar la contraseña de %1.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>Historial reducido</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Detalles de los cambios hasta el número %1 quitados del historial: %2 líneas.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 y %n más</numerusform>
            <numerusform>%1 y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>Cifró de nuevo contraseñas</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>El conjunto de cambios %1 fue alterado.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>La línea %1 de los conjuntos de cambios fue alterada.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>La entrada %1 del registro de auditoría fue alterada.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>Falta el conjunto de cambios %1.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>Falta la línea %1 de los conjuntos de cambios.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>Falta la entrada %1 del registro de auditoría.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>El conjunto de cambios %1 fue añadido por otro programa.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>La línea %1 de los conjuntos de cambios fue añadida por otro programa.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>La entrada %1 del registro de auditoría fue añadida por otro programa.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>A partir del conjunto de cambios %1, el registro se reescribió.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>A partir de la línea %1 de los conjuntos de cambios, el registro se reescribió.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>A partir de la entrada %1 del registro de auditoría, el registro se reescribió.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>A partir del conjunto de cambios %1, el registro está sellado con otra clave.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>A partir de la línea %1 de los conjuntos de cambios, el registro está sellado con otra clave.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>A partir de la entrada %1 del registro de auditoría, el registro está sellado con otra clave.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>Lo que seguía al conjunto de cambios %1 fue cortado.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>Lo que seguía a la línea %1 de los conjuntos de cambios fue cortado.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>Lo que seguía a la entrada %1 del registro de auditoría fue cortado.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>No es el registro que se vio aquí antes.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>Una dirección MAC tiene doce cifras hexadecimales, como 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>el servicio Avahi no está en ejecución</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>el servicio Avahi no responde</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>todas las interfaces</translation>
    </message>
</context>
<context>
    <name>NodeFacts</name>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>Versión de software</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>Dirección MAC</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Direcciones IP actuales</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Dirección IP de fábrica</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Transmisión en vivo (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Resoluciones</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Giro, inclinación, zoom</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Opciones de diseño</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Cámaras</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>Carpeta de grabación</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>Cámara IP</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>Cámara URL</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>Dispositivo multicanal</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Grabador interno</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Servidor de vista previa remota</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Nodo de tipo %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Vista previa remota de %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Este nodo se ha eliminado entretanto. Los cambios no se pueden guardar: cierre esta ventana.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>no indica la dirección de ninguna imagen</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>la dirección de su imagen contiene una contraseña sin cifrar</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>lo que envía no es una imagen</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>deniega la imagen</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>pide una contraseña y no hay ninguna guardada</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>sus imágenes tienen otro dominio de autenticación que el dispositivo</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>pide la contraseña de una forma desconocida</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>pide la contraseña sin cifrar</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Ruta:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>La ruta está bajo la ruta predeterminada del servidor de archivos</translation>
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
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleccionar carpeta</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(vacío)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(distintos)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>«%1» no es una base de datos de nodos, sino un archivo de otro tipo. No se ha modificado. Elija su archivo de base de datos, o un nombre de archivo nuevo para empezar con una vacía.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>«%1» es la base de datos de otro programa y no contiene nodos. No se ha modificado. Elija su base de datos de nodos, o un nombre de archivo nuevo para empezar con una vacía.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>Otro programa ha modificado las tablas de la base de datos de nodos «%1», que ya no son fiables. No se ha modificado. Sustitúyala por una copia de seguridad.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>La base de datos de nodos «%1» está vacía o ha desaparecido, pero su registro o sus copias de seguridad siguen ahí. No se ha modificado nada. Restaure una copia de seguridad, o elija un nombre de archivo nuevo para empezar con una vacía.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>La base de datos de nodos «%1» está dañada. No se ha modificado. Restaure una copia de seguridad; las que hizo este programa están en la carpeta «%1.backups».</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>La base de datos de nodos «%1» fue escrita por una versión más reciente de este programa. Instale esa versión en este equipo, o abra la copia de seguridad que hizo en la misma carpeta.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>La base de datos de nodos «%1» no se puede modificar porque el archivo o su carpeta están protegidos contra escritura para usted. Pida a su administrador permiso de escritura, o copie la base de datos en una carpeta propia y abra la copia.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>Otro programa retiene la base de datos de nodos «%1». Cierre ese programa, o espere a que termine su copia de seguridad, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>No queda espacio para la base de datos de nodos «%1». Elimine de este disco los archivos que no necesite e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>No se puede abrir la base de datos de nodos «%1». Compruebe que su carpeta existe, que el disco o la unidad de red están conectados y que usted puede leer el archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>«%1» es una carpeta, un dispositivo o una tubería y no puede contener una base de datos de nodos. No se ha modificado. Elija otro archivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>«%1» es la propia base de datos de nodos y no se ha modificado. Elija otro archivo para la copia.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Algunas contraseñas de la base de datos de nodos «%1» no se pueden leer y se muestran vacías, porque falta la clave con la que se cifraron. Desbloquee su llavero o restaure el archivo de clave y reinicie el programa. Permanecen en la base de datos hasta que indique otras nuevas.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Algunas contraseñas de la base de datos de nodos «%1» no fueron modificadas por este programa y se muestran vacías. Permanecen en la base de datos hasta que indique otras nuevas. Averigüe quién puede escribir en el archivo, o vuelva a una copia de seguridad.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>No se pueden guardar contraseñas en la base de datos de nodos «%1», porque la clave que las cifra no está en su llavero ni en un archivo, ni se puede guardar allí. Desbloquee su llavero, restaure el archivo de clave o permita la escritura en su carpeta de configuración, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>La base de datos de nodos «%1» no se puede leer ni escribir. Compruebe que su disco o unidad de red está conectado e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Algunas contraseñas de la base de datos compartida en «%1» no se pueden leer y se muestran vacías, porque este equipo no tiene la clave con la que se cifraron. Haga clic en el estado de la conexión en la barra de estado y dé la frase de contraseña del sitio. Permanecen en la base de datos hasta que dé otras nuevas.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>No se pueden guardar contraseñas en la base de datos compartida en «%1», porque este equipo no tiene la clave del sitio. Haga clic en el estado de la conexión en la barra de estado, dé la frase de contraseña del sitio e inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>Cámaras:</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>En esta vista:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Buscar cámaras</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Cámaras que no están en esta vista</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Cámaras de esta vista</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bajar</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>ninguna red admite multidifusión</translation>
    </message>
</context>
</TS>
