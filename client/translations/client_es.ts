<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Añadir y &amp;siguiente</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Vistos en una dirección nueva</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Estos dispositivos parecen responder ahora en otra dirección. Acepte solo lo que espera: el nombre de usuario y la contraseña se enviarán en adelante a la dirección nueva.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Dirección anterior</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Dirección nueva</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>Dirección MAC</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>&amp;Aceptar selección</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>Aceptar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Descartar selección</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>Nodo</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>Base de datos de nodos</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>La base de datos de nodos «%1» está en una unidad de red. Dos programas que la usen allí a la vez pueden dañarla. Muévala a un disco de este equipo.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 es para ventanas, y aquí no se abre ninguna.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, línea %2: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>La columna «%1» no se usa.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 escritas</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>%1 sin nombre ni dirección omitidas</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Usa este idioma, como de o pt_BR, sin importar lo que se haya elegido en otra parte.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Añade las cámaras de una lista (CSV) y termina. No se necesita ninguna ventana.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Escribe todas las cámaras en una lista (CSV) y termina.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Omite las contraseñas en --export.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Copia la base de datos, que puede estar en uso, en un archivo y termina.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Da a la base de datos, que puede estar en uso, el contenido de una copia de seguridad y termina. El contenido actual se conserva como copia de seguridad.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Argumento inesperado: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>El valor después de --%1 está vacío.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>%1 entradas examinadas, %2 anteriores a la cadena, %3 eslabones sin sello</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Comprueba si alguien ha alterado los registros de la base de datos, indica qué y termina.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>Se quitaron los detalles hasta el cambio número %1</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>%1 detalles quitados, hasta el cambio número %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>No más allá: el historial fue alterado. --verify-log indica qué.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Quita del historial lo que había antes y después de cada cambio más antiguo que ese número de días y termina. Quién cambió algo y cuándo permanece.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history requiere un número de días.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Muestra, añade, edita y elimina los nodos de un sistema de videovigilancia.
Sin una opción que haga algo y termine, como --import, abre una ventana y acepta también las opciones de la biblioteca gráfica (-platform, -style y otras).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Abre esta base de datos de nodos: un archivo, que se crea si no existe, o una compartida, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Lleva la base de datos con su historial a una vacía en un servidor, cuya dirección sigue (postgresql://user@host/database), y termina. Si se llama de nuevo, continúa.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>Después de --share FILE va la dirección de una base de datos, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>No se puede restaurar una copia de seguridad en una base de datos compartida.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>%1 añadidas, %2 actualizadas, %3 sin cambios, %n línea con errores</numerusform>
            <numerusform>%1 añadidas, %2 actualizadas, %3 sin cambios, %n líneas con errores</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Registro de auditoría</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>Mostrar en el historial...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (no se cambió nada)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Volver a</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Muestra todos los nodos como eran, en una ventana aparte. Eso no cambia nada; lo que se muestra allí se puede revertir.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>No más tarde de:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Como era después de esto:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Lo que se hizo</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>su contraseña no se puede leer</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>no pide contraseña</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>se ha modificado durante la comprobación</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>Ya se están comprobando cámaras.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>No hay ninguna cámara con dirección que comprobar.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>¿Probarla una vez con cada una?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>&amp;Probar</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>La comprobación se ha cancelado.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>&amp;Informe...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>%1 de %2 cámaras aceptaron la contraseña.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>%1 de %2 cámaras responden como deben.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>Ninguna de las cámaras seleccionadas resultó ser otro dispositivo: eso lo determina Red &gt; Comprobar cámaras.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Aceptar otros dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>Ha respondido %n dispositivo que no es el conocido hasta ahora. Acéptelo solo si sabe por qué, por ejemplo tras una sustitución o un certificado nuevo: desde la próxima comprobación se le enviarán el nombre de usuario y la contraseña guardados.</numerusform>
            <numerusform>Han respondido %n dispositivos que no son los conocidos hasta ahora. Acéptelos solo si sabe por qué, por ejemplo tras una sustitución o un certificado nuevo: desde la próxima comprobación se les enviarán el nombre de usuario y la contraseña guardados.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>A&amp;ceptar</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>%n dispositivo aceptado.</numerusform>
            <numerusform>%n dispositivos aceptados.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>&amp;Comprobar</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>Ninguna de las cámaras seleccionadas pide una contraseña sin cifrar: eso lo determina Red &gt; Comprobar cámaras.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n dispositivo solo admite la contraseña sin cifrar. Sin SSL, quien escuche por el camino puede leerla y usarla en todas las cámaras que tengan la misma. Permítalo solo donde la red sea suya. El permiso vale mientras la cámara conserve su dirección y su puerto.</numerusform>
            <numerusform>%n dispositivos solo admiten la contraseña sin cifrar. Sin SSL, quien escuche por el camino puede leerla y usarla en todas las cámaras que tengan la misma. Permítalo solo donde la red sea suya. El permiso vale mientras la cámara conserve su dirección y su puerto.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Permitir contraseñas sin cifrar</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Permitir</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>Se permite enviar la contraseña sin cifrar a %n dispositivo.</numerusform>
            <numerusform>Se permite enviar las contraseñas sin cifrar a %n dispositivos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>Cuando se haya comprobado la cámara (F5), su imagen aparecerá aquí.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>Su contraseña no se puede leer.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Otro dispositivo que antes</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Contraseña incorrecta</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Pide contraseña sin cifrar</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sin respuesta</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>No se entiende</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Sin comprobar</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Responde</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>Eliminado por %1 en %2. Lo que introduzca aquí no se puede guardar; Editar &gt; Historial recupera el nodo.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Cambiado entretanto por %1 en %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>En este momento también lo edita: %1.</translation>
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
        <translation>Cámaras comprobadas</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Quitar esta línea</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Cámaras comprobadas: %1 de %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Cámaras comprobadas</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Cámaras</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>&amp;Mostrar también las que responden</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>&amp;Ver en la lista</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Guardar como...</translation>
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
            <numerusform>Se ha omitido %n nodo, que no es un dispositivo o no tiene dirección.</numerusform>
            <numerusform>Se han omitido %n nodos, que no son dispositivos o no tienen dirección.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tablas (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>No se ha escrito %1: %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>Si el servidor lo ofrece</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Siempre</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Siempre, y comprobar el certificado</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Conectar con una base de datos compartida</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Recientes:</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Servidor:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Puerto:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Base de datos:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Usuario:</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>Con&amp;traseña:</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>Ci&amp;frado:</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>&amp;Guardar la contraseña</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>Pr&amp;obar</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>La base de datos se puede leer y modificar.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>La base de datos se puede leer, pero usted no puede modificarla.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>No se puede guardar la contraseña porque falta la clave que sella las contraseñas. Se le pedirá de nuevo la próxima vez.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Restaurar una copia de seguridad</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Todo lo que hay en esta base de datos se sustituye por el contenido de «%1», para todos los que la usan. Lo que hay ahora se guarda antes como copia de seguridad.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Nueva base de datos de nodos</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>«%1» ya existe. Ábrala en su lugar o elija otro nombre.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Copia de seguridad</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Copiando la base de datos...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>La base de datos se copió en «%1».</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>Restaurando la copia de seguridad...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>La base de datos tiene ahora el contenido de «%1».</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Una base de datos compartida se restaura en su servidor. Consulte a su administrador.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>No se puede leer nada de ella.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>Aún se puede leer %n nodo de ella.</numerusform>
            <numerusform>Aún se pueden leer %n nodos de ella.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>No hay ninguna copia de seguridad válida.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>La copia de seguridad válida más reciente es de %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Si elige una de estas opciones, el archivo dañado se conserva con otro nombre. De lo contrario, no se modifica nada.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>Base de datos de nodos</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>La base de datos de nodos está dañada. Buscando lo que se puede leer y copias de seguridad...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>Abrir &amp;otra...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>&amp;Empezar con una vacía</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>&amp;Usar lo que se puede leer</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>Restaurar la &amp;copia</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>La base de datos de nodos «%1» está dañada.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>Otro programa ha modificado las tablas de la base de datos de nodos «%1».</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>La base de datos de nodos «%1» está vacía o ha desaparecido, aunque contenía algo.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>La base de datos de nodos «%1» está dañada, o hay otro archivo en su lugar.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Abrir base de datos de nodos</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Bases de datos de nodos (*.kodb);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>Detall&amp;es</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>Muestra junto a la lista qué es el nodo seleccionado</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Seleccione un nodo de la lista para ver aquí qué es.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>%n nodo seleccionado</numerusform>
            <numerusform>%n nodos seleccionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>Lo que tiene el primero:</numerusform>
            <numerusform>Lo que los primeros %n tienen en común:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>distinto</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>no tiene dirección</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>su contraseña no se puede leer</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>se ha eliminado entretanto</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>no se le ha preguntado</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Acceso a las grabaciones</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>No se conoce la dirección IP de fábrica de %n de las cámaras seleccionadas:</numerusform>
            <numerusform>No se conoce la dirección IP de fábrica de %n de las cámaras seleccionadas:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>Sus grabaciones se pueden reproducir a través de la cámara. En un servidor de archivos, sin embargo, la carpeta de una cámara lleva el nombre de esta dirección: con la ruta predeterminada, estas cámaras compartirían una carpeta sin nombre; con una ruta específica, perderían la que tienen. Una cámara que responde y acepta su contraseña indica con qué se puede nombrar su carpeta.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>&amp;Preguntar a las cámaras...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Omitirlas</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>&amp;Seguir con todas</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Usuario y contraseña</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>El %n dispositivo seleccionado no tiene el mismo nombre de usuario y contraseña: hay %1 nombres de usuario y %2 contraseñas.</numerusform>
            <numerusform>Los %n dispositivos seleccionados no tienen el mismo nombre de usuario y contraseña: hay %1 nombres de usuario y %2 contraseñas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>La ventana siguiente empieza con los del primer dispositivo y da a todos lo que muestre al pulsar Aceptar:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>&amp;Dar los mismos a todos...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n dispositivo: acceso a las grabaciones definido.</numerusform>
            <numerusform>%n dispositivos: acceso a las grabaciones definido.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n ha quedado como estaba.</numerusform>
            <numerusform>%n han quedado como estaban.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n dispositivo: nombre de usuario y contraseña definidos.</numerusform>
            <numerusform>%n dispositivos: nombre de usuario y contraseña definidos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n dispositivo)</numerusform>
            <numerusform>%1 (%n dispositivos)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>Solo las cámaras IP se pueden ajustar juntas. Seleccione las demás de una en una.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propiedades de %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>Editar %n nodo</numerusform>
            <numerusform>Editar %n nodos</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>Lo que cambie aquí cambia en todos estos. Lo que no es igual en todos se muestra como distinto y se conserva si no lo cambia.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Comprobando qué cambia...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Mostrar todos los nodos</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>Leyendo los nodos...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>Aún no hay nada en esta base de datos.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Ningún nodo coincide.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Importar una lista de cámaras...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Buscar dispositivos en la red...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Añadir una cámara...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>No se introdujo ni nombre ni dirección.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>No se introdujo ningún nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>«%1» ya tiene esta dirección, este puerto y este canal.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>¿Guardarlo así?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>&amp;Guardar así</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Seguir editando</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>Entorno: %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>El entorno de red de todo el programa</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>El entorno de todo el programa es ahora «%1».</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Volver a «%1»</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>El entorno vuelve a ser «%1».</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Rellenar</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>&amp;Reemplazar también lo que pueda haberse introducido a mano</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Dispositivos consultados</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>Lo que indican los dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>Consultando a %n dispositivo. Aún no se guarda nada.</numerusform>
            <numerusform>Consultando a %n dispositivos. Aún no se guarda nada.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>No hay nada que rellenar.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>Esto es lo que indican los dispositivos y aún no está guardado. Aceptar guarda lo marcado.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n dispositivo no ha indicado nada:</numerusform>
            <numerusform>%n dispositivos no han indicado nada:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>%n dispositivo rellenado.</numerusform>
            <numerusform>%n dispositivos rellenados.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Después</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Solo de «%1»</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Solo del nodo seleccionado</numerusform>
            <numerusform>Solo de los %n nodos seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Lo que se hizo</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Lo que cambió</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Buscando más...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>No se encontró nada.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>Hay más: desplácese hacia abajo.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>Esto es todo.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>un cambio seleccionado</numerusform>
            <numerusform>%n cambios seleccionados</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Revertido: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Solo lo hecho hasta la entrada del registro de auditoría</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>Lo que se hizo:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>Lo que cambió:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Revertir...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Revertir los cambios seleccionados...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Volver hasta aquí...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Conservar...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>Los detalles se quitaron del historial: no se puede revertir.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Exportar el historial</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Listas (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>El historial no se ha escrito: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>Exportando el historial...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>Nodos, valores, lo que se hizo</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Todos los tipos</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Todas las propiedades</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Buscar:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Usuario:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Propiedad:</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Desde:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Hasta:</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>Conservar el historial</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>Los detalles de un cambio son lo que había antes y después de él. Sin ellos no se puede mostrar ni revertir. Quién cambió algo, cuándo y para qué se conserva siempre, igual que el registro de auditoría.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Quitar los detalles más &amp;antiguos que</translation>
    </message>
    <message>
        <source> days</source>
        <translation> días</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Días</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>Quitar los detalles más antiguos si hay &amp;más de</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Megabytes</source>
        <translation>Megabytes</translation>
    </message>
    <message>
        <source>This is done a minute after the start of the program and every six hours.</source>
        <translation>Se hace un minuto después de iniciar el programa y cada seis horas.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Puesto</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Lo que se hizo</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodos</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Columnas no usadas: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>La importación se ha cancelado. Se conserva lo añadido hasta entonces.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importar cámaras</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>Se omitiría %n línea con errores.</numerusform>
            <numerusform>Se omitirían %n líneas con errores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n línea quizá quiera decir otra cosa.</numerusform>
            <numerusform>%n líneas quizá quieran decir otra cosa.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>%1 añadidas, %2 actualizadas, %3 sin cambios, %n línea con errores.</numerusform>
            <numerusform>%1 añadidas, %2 actualizadas, %3 sin cambios, %n líneas con errores.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>La importación de esta lista añadiría %n dispositivo, cambiaría %1 y dejaría %2 como están.</numerusform>
            <numerusform>La importación de esta lista añadiría %n dispositivos, cambiaría %1 y dejaría %2 como están.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>Esperando al llavero. Desbloquéelo si lo pide.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Llavero</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>Esperando a su llavero.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>Contiene la clave de las contraseñas guardadas. Desbloquéelo si lo pide.

Sin la clave, las contraseñas guardadas se muestran vacías y no se pueden guardar otras nuevas.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>&amp;Continuar sin contraseñas</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>&amp;Como el sistema</translation>
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
        <translation>1 grande + 5</translation>
    </message>
    <message>
        <source>1 large + 7</source>
        <translation>1 grande + 7</translation>
    </message>
</context>
<context>
    <name>LogNotice</name>
    <message>
        <source>The log was altered</source>
        <translation>El registro fue alterado</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>Y %n más; koclient --verify-log lo indica.</numerusform>
            <numerusform>Y %n más; koclient --verify-log los indica.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Alguien ha alterado el registro de la base de datos de nodos con otro programa:</translation>
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
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Añade las cámaras de un levantamiento del sitio (CSV)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Escribe todas las cámaras en un archivo CSV</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>E&amp;xportar selección...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Escribe las cámaras seleccionadas en un archivo CSV</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferencias...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Rutas predeterminadas y ancho de banda</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Cierra el programa</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Nodo</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Añadir...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Añade un nodo</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Editar...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>E&amp;liminar...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Elimina los nodos seleccionados</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propiedades</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Muestra el nodo seleccionado sin modificarlo</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>&amp;Usuario y contraseña...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Da a los dispositivos seleccionados un mismo nombre de usuario y contraseña</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Acceso a las &amp;grabaciones...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>Desde dónde se reproducen las grabaciones de las cámaras seleccionadas</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>&amp;Rellenar...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Pregunta a los dispositivos seleccionados y guarda lo que usted elija</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Duplicar...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Añade un nodo igual al seleccionado</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>Abrir página &amp;web</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Abre la página del dispositivo seleccionado en el navegador</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>Copiar &amp;filas</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Copia las filas seleccionadas para una hoja de cálculo</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>&amp;Copiar dirección</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Copia las direcciones de los nodos seleccionados</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Red</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>&amp;Proxy de red...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>El servidor proxy de la aplicación</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>&amp;Entornos...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>Los entornos de red</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>&amp;Buscar dispositivos...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Nodos que llegan mientras se explora la red</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>&amp;Vistos en una dirección nueva...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Dispositivos que una búsqueda encontró en una dirección distinta de la que tienen aquí</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>&amp;Comprobar cámaras</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Pregunta a las cámaras seleccionadas, o a todas, quiénes son y prueba sus contraseñas</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>&amp;Aceptar como esta cámara...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Otro dispositivo que antes es desde ahora esta cámara</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Columnas...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Qué columnas tiene la lista</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>Registro de &amp;auditoría...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Quién cambió qué y cuándo</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>Base de &amp;datos de nodos...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Todo lo que está guardado</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Acerca de</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>A través de la cámara</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Ruta predeterminada del servidor de archivos</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>%n dispositivo visto en una dirección nueva: Red &gt; Vistos en una dirección nueva</numerusform>
            <numerusform>%n dispositivos vistos en una dirección nueva: Red &gt; Vistos en una dirección nueva</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Nodos</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Buscar (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Palabras en cualquier columna; &quot;tipo:cámara&quot; busca en una, &quot;estado:incorrecta|bloqueado&quot; cualquiera de las dos, &quot;-patio&quot; excluye</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Todos los tipos</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> &amp;Tipo: </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodos</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>No hay ninguna cámara seleccionada. Seleccione antes una o varias en la lista.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>No se pueden añadir nodos de este tipo.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>Este nodo no tiene dirección. La de los dispositivos se indica en Nodo &gt; Editar.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n fila copiada.</numerusform>
            <numerusform>%n filas copiadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>%n dirección copiada.</numerusform>
            <numerusform>%n direcciones copiadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Muestra, añade, edita y elimina los nodos de un sistema de videovigilancia.&lt;/p&gt;&lt;p&gt;Software libre bajo la GNU LGPL 2.1 o posterior.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>Permi&amp;tir contraseña sin cifrar...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>A las cámaras que no la admiten de otro modo se les envía la contraseña legible para todos</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Muestra lo último que se cambió y lo revierte</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Rehace lo último que se deshizo</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Historial...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>Qué se hizo y quién; lo revierte</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>Historial de la &amp;selección...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>Lo que se hizo con los nodos seleccionados</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>&amp;Volver a...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Muestra todos los nodos como eran antes y los revierte</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Cambia los nodos seleccionados</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>&amp;Vista previa de cambios múltiples</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Muestra lo que se haría con varios nodos antes de guardarlo</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>%n nodo editado.</numerusform>
            <numerusform>%n nodos editados.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>C&amp;onectar...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Abre una base de datos compartida con otros puestos</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Nueva...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Crea una base de datos de nodos vacía y la abre</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Abre otra base de datos de nodos</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>&amp;Copia de seguridad...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Copia la base de datos de nodos en un archivo</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>Res&amp;taurar...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Da a la base de datos de nodos el contenido de una copia de seguridad</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>Ubicació&amp;n y etiquetas...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Dónde están los dispositivos seleccionados y cómo se agrupan</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Explica para qué sirve la ventana activa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>Se añadió «%1».</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - Base de datos de nodos</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Dispositivos: %1, otros nodos: %2; mostrados: %3, seleccionados: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>Se cambió «%1».</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Solo se pueden editar juntos nodos de un mismo tipo. «Tipo», encima de la lista, muestra los de uno.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>No se ha podido abrir la página web de %1. Elija un navegador en los ajustes de su escritorio.</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>Buscar en el manual (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Página del manual</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Ninguna página contiene todas estas palabras.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>El manual está en inglés. Los menús y botones llevan en él los nombres del programa en inglés.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>Se define en «Archivo &gt; Preferencias» de la ventana principal.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>Es lo que «Propiedades» muestra como dirección IP de fábrica de la cámara. «Nodo &gt; Rellenar» de la ventana principal se la pregunta a la cámara.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Escriba una ruta, o pulse «Más...» y elija una de las carpetas.</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Entonces</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Cambiado</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Eliminado</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Añadido</translation>
    </message>
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
        <source>Since Then</source>
        <translation>Desde entonces</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>Como era, %1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>Los nodos como eran el %1, después de «%2» por %3. Se pueden mirar y revertir, pero no editar aquí.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Solo lo que ahora es distinto</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Nodos:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Propiedades:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Nodos de entonces</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Propiedades entonces y ahora</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>Lo que se ha leído de lo hecho desde entonces</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Revertir todo...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Revertir lo seleccionado...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Leyendo lo que se hizo desde entonces...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>También son distintos ajustes o entornos.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n cambio desde entonces no concuerda con lo que hay ahora: no se sabe qué había antes.</numerusform>
            <numerusform>%n cambios desde entonces no concuerdan con lo que hay ahora: no se sabe qué había antes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Volver a %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Revertido: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Entonces %n nodo, %1 distintos ahora; %2 mostrados</numerusform>
            <numerusform>Entonces %n nodos, %1 distintos ahora; %2 mostrados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(sin nombre)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>Lo que se le hizo:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>Lo que eso cambió:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Lo que se hizo</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Lo que cambió</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
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
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ubicación</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Último cambio</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Nodos</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Eliminar nodos</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Eliminando nodos...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>%n nodo eliminado.</numerusform>
            <numerusform>%n nodos eliminados.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Obteniendo la imagen...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Visto el %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Imagen de la cámara</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Obteniendo la imagen...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Visto el %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Ubicación y etiquetas</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Guardando ubicaciones y etiquetas...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n dispositivo: ubicación y etiquetas definidas.</numerusform>
            <numerusform>%n dispositivos: ubicación y etiquetas definidas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Ubicación y etiquetas</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>¿Dónde está el dispositivo seleccionado? Escríbalo de fuera hacia dentro, con una barra en medio: Sitio/Edificio/Planta. Las etiquetas se separan con comas.</numerusform>
            <numerusform>¿Dónde están los %n dispositivos seleccionados? Escríbalo de fuera hacia dentro, con una barra en medio: Sitio/Edificio/Planta. Las etiquetas se separan con comas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Ubicación:</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>&amp;Etiquetas:</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(diferentes, se dejan como están)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>&amp;Ubicaciones</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Muestra los sitios, edificios y plantas junto a la lista</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Ubicaciones</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Todos los nodos</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Dispositivos sin ubicación</translation>
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
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>&amp;Ruta predeterminada del servidor de archivos:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Examinar...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>&amp;Servidor de vista previa remota predeterminado:</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>&amp;Conexión:</translation>
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
    <message>
        <source>Default File Server Path</source>
        <translation>Ruta predeterminada del servidor de archivos</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Sitio/edificio/planta:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Etiquetas, separadas por comas:</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Revertir</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: esto es lo que cambiaría. Aceptar revierte lo que está marcado.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: ya no se puede revertir nada.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Lo que cambiaría</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Otra persona ha cambiado esto entretanto; se queda como está:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Todo lo que se puede revertir</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: esto es lo que cambiaría. Aceptar cambia lo que está marcado.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: no cambiaría nada.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Todos los cambios</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>Nodo</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Qué</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Será</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Por qué no</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>Qué se cambió</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Leyendo qué se cambió...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>Puede ver esta base de datos compartida, pero no modificarla. Su administrador puede darle el rol ko_editor.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Solo lectura</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Todavía no se ha abierto otra base de datos</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Eliminar nodos</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>¿Eliminar este nodo? Editar &gt; Deshacer lo recupera.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>¿Eliminar este nodo? Editar &gt; Deshacer lo recupera.</numerusform>
            <numerusform>¿Eliminar estos %n nodos? Editar &gt; Deshacer los recupera.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>Nadie más usa %n carpeta de grabación:</numerusform>
            <numerusform>Nadie más usa %n carpetas de grabación:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Eliminar también las &amp;carpetas de grabación</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>&amp;Búsquedas guardadas</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Búsquedas guardadas</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Las búsquedas que tienen nombre, y un nombre para esta</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>&amp;Guardar esta búsqueda...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Da un nombre a lo que se busca ahora</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>&amp;Renombrar o eliminar...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Da otros nombres a las búsquedas guardadas, y las elimina</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Guardar búsqueda</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Nombre (uno que ya existe recibe esta búsqueda):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Búsquedas guardadas</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Búsquedas guardadas</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Re&amp;nombrar</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Eliminar...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Ya hay una búsqueda con este nombre, o el nombre está vacío. Se ha dejado como estaba.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>¿Eliminar la búsqueda «%1»? Los nodos que encuentra se quedan.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Eliminar</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Buscar dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>La búsqueda ha encontrado %n dispositivo nuevo y lo ha añadido a la base de datos:</numerusform>
            <numerusform>La búsqueda ha encontrado %n dispositivos nuevos y los ha añadido a la base de datos:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Conservar</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>&amp;Quitar de nuevo</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>%n dispositivo encontrado y añadido.</numerusform>
            <numerusform>%n dispositivos encontrados y añadidos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>%n dispositivo quitado de nuevo.</numerusform>
            <numerusform>%n dispositivos quitados de nuevo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: inactivo</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 de %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: buscando</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: terminado</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: cancelado</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: no disponible (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>No existe el archivo «%1».</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>El historial de «%1» no indica cómo llegó todo lo que contiene: es anterior al historial o se restauró en él una copia de seguridad. Un archivo así no se puede compartir; importe sus cámaras en uno nuevo.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>No puede modificar el sitio «%1». Pida a su administrador el rol ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>El sitio «%1» no está vacío.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>«%1» pertenece a otro sitio que «%2».</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>El sitio difiere del archivo: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>El archivo o el sitio cambian continuamente, por lo que no se pudieron comparar.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n fila con su historial está en «%1» y es igual allí y aquí.</numerusform>
            <numerusform>%n filas con su historial están en «%1» y son iguales allí y aquí.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>«%1» tiene contraseñas de una versión anterior que aún no están cifradas, porque falta la clave de esta instalación. Recupérela primero.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>«%1» tiene contraseñas, que necesitan la clave del sitio. No se ha enviado nada.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Base de datos compartida</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Estos cambios suyos no se pudieron realizar porque otra persona había eliminado antes el nodo. Editar &gt; Historial recupera un nodo eliminado.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Cambios no realizados</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambio</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nodo</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Eliminado por</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Descartar selección</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>&amp;Nueva copia...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 en %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Nueva copia</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>¿Cerrar esta ventana y crear una copia nueva de lo que hay ahora en el servidor? Los cambios no enviados no están en ella; la copia actual, que los contiene, permanece en la carpeta «%1».</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>&amp;Frase de contraseña...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n cambio no realizado</numerusform>
            <numerusform>%1, %n cambios no realizados</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, falta la frase de contraseña...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>En «%1» hay ahora otro sitio distinto de aquel del que esto es una copia. No se le ha enviado nada. Si el servidor se ha instalado de nuevo, pida a su administrador que restablezca el sitio.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>La base de datos «%1» no contiene ningún sitio o usted no puede leerlo. Pida a su administrador el rol ko_viewer o ko_editor; una base de datos vacía se convierte en un sitio con koclient --share.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>El sitio «%1» se creó con otra versión de este programa. Instale esa versión en este equipo o haga actualizar el sitio.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>Solo puede leer el sitio «%1», pero en este equipo hay cambios que no ha recibido. Pida a su administrador el rol ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>En esta copia del sitio «%1» se restauró una copia de seguridad, lo que no se puede comunicar a otros puestos. Ya no se comparte.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>Ya no se comparte...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Conectado, solo lectura</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>Enviando %n cambio</numerusform>
            <numerusform>Enviando %n cambios</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Poniéndose al día</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Servidor inaccesible desde %1, %n cambio en espera</numerusform>
            <numerusform>Servidor inaccesible desde %1, %n cambios en espera</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Servidor inaccesible desde %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>No se puede acceder al servidor del sitio «%1». Puede continuar: lo que cambie espera en este equipo y se envía cuando vuelva el servidor.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>Ve el sitio «%1» tal como otros lo cambian, pero no puede cambiarlo.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>Comparte el sitio «%1» con otros.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>No se puede acceder al sitio «%1».</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>Esperando al servidor...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Enviando: queda %n cambio</numerusform>
            <numerusform>Enviando: quedan %n cambios</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Recibiendo: %1 de %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>El sitio «%1» presenta su pasado de otro modo que antes a este puesto: su historial se alteró en el servidor. Ya no se le envía ni se toma nada de él. Muestre esto a su administrador; la copia de este equipo tiene el historial tal como era.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>La copia del sitio «%1» en este equipo no se puede leer ni escribir. Compruebe que el disco funciona y tiene espacio, y vuelva a iniciar el programa.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>El servidor del sitio «%1» ha rechazado una petición de este equipo. Los cambios que aún no ha recibido se conservan aquí. Muestre a su administrador lo que ha respondido el servidor y vuelva a iniciar el programa cuando el problema esté resuelto.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Una nueva frase de contraseña para el sitio «%1»:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Otra vez:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Las dos frases de contraseña no son iguales.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>La frase de contraseña del sitio «%1»:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>No se ha dado la frase de contraseña del sitio. Las contraseñas no se leen y no se pueden guardar. Escríbala en un terminal o defina la variable KO_SITE_PASSPHRASE.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>La clave no se puede conservar en este equipo, porque falta la clave de esta instalación. La próxima vez se le pedirá de nuevo la frase de contraseña.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>Esa no es la frase de contraseña del sitio.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Una frase de contraseña tiene al menos %n carácter.</numerusform>
            <numerusform>Una frase de contraseña tiene al menos %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>El sitio aún no tiene clave.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Otra persona acaba de cambiar la clave o su frase de contraseña. Pregunte cuál es la válida ahora.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Abrir la clave requiere más memoria de la que este equipo tiene o se le puede pedir.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Este sitio se creó antes de que sus puestos compartieran una clave. No se pueden guardar contraseñas hasta que su administrador lo actualice con koclient --share.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>Este equipo no tiene la clave de las contraseñas. Se muestran vacías y no se pueden guardar otras nuevas hasta que dé la frase de contraseña del sitio.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>El sitio aún no tiene una clave con la que sus puestos cifren las contraseñas. No se pueden guardar otras nuevas hasta que alguien la cree.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Base de datos compartida</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Conectando con «%1»...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Cambiar la frase de contraseña</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Frase de contraseña del sitio</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>Las contraseñas de las cámaras de «%1» están cifradas con una clave que comparten sus puestos. Dé la frase de contraseña del sitio, una vez en este equipo. Sin ella, las contraseñas se muestran vacías y no se pueden guardar otras nuevas.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>El sitio «%1» aún no tiene una clave con la que sus puestos cifren las contraseñas de las cámaras. Piense una frase de contraseña de varias palabras y dígasela a todos los que deban verlas. El servidor nunca la recibe: si todos la olvidan, los puestos nuevos no pueden leer las contraseñas.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>Los puestos que tienen la clave de «%1» la conservan cuando solo cambia la frase de contraseña. Con una clave nueva, todas las contraseñas se cifran de nuevo y a cada puesto se le pide la nueva frase de contraseña: elija esto cuando se haya perdido un equipo.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Frase de contraseña:</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>Frase de contraseña ac&amp;tual:</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Nueva frase de contraseña:</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>&amp;Repetición:</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Crear también una cla&amp;ve nueva</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>Las dos frases de contraseña nuevas no son iguales.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Un momento...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>Base de datos de nodos</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Nada de lo introducido se pierde mientras esta ventana esté abierta.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>Lo que espera a guardarse, todo o nada, pertenece a:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>&amp;Descartar cambios</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Todos los cambios están guardados.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Hay cambios que no se han podido guardar. Se perderán si el programa se cierra ahora.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>Base de datos de nodos</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Guardando cambios...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Listas de cámaras (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importar cámaras</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Importando cámaras...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Exportar cámaras</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>¿Escribir también las contraseñas? Quien pueda leer el archivo podrá usar todas las cámaras que contiene.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Exportando cámaras...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>%n cámara escrita.</numerusform>
            <numerusform>%n cámaras escritas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Leyendo la lista...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>&amp;Deshacer «%1»</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>&amp;Rehacer «%1»</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rehecho: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Deshacer...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>Lo que ha introducido aún no está guardado.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Seguir editando</translation>
    </message>
</context>
</TS>
