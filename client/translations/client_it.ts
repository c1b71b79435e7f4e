<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Aggiungi e &amp;successivo</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Visti a un nuovo indirizzo</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Questi dispositivi sembrano rispondere ora a un altro indirizzo. Accettare solo ciò che ci si aspetta: da quel momento nome utente e password vengono inviati al nuovo indirizzo.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivi</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Vecchio indirizzo</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Nuovo indirizzo</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>Indirizzo MAC</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>&amp;Accetta selezionati</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>Accetta &amp;tutti</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Scarta selezionati</translation>
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
        <translation>Cosa</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Prima</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Dopo</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>Database dei nodi</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>Il database dei nodi &quot;%1&quot; si trova su un&apos;unità di rete. Due programmi che lo usano lì contemporaneamente possono danneggiarlo. Spostarlo su un disco di questo computer.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 vale per le finestre, e qui non ne viene aperta nessuna.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, riga %2: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>La colonna &quot;%1&quot; non viene usata.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 scritte</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>%1 senza nome e indirizzo escluse</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Usa questa lingua, ad esempio de o pt_BR, qualunque sia quella scelta altrove.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Aggiunge le telecamere di un elenco (CSV) e termina. Non serve alcuna finestra.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Scrive tutte le telecamere in un elenco (CSV) e termina.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Esclude le password da --export.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Copia il database, che può essere in uso, in un file e termina.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Dà al database, che può essere in uso, il contenuto di un backup e termina. Il contenuto attuale viene conservato come backup.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Argomento imprevisto: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>Il valore dopo --%1 è vuoto.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>%1 voci esaminate, %2 precedenti alla catena, %3 anelli senza sigillo</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Impossibile scrivere %1.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Controlla se qualcuno ha modificato i registri del database, indica che cosa e termina.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>I dettagli fino alla modifica numero %1 sono stati tolti</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>%1 dettagli tolti, fino alla modifica numero %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>Non oltre: la cronologia è stata modificata. --verify-log indica che cosa.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Toglie dalla cronologia ciò che c&apos;era prima e dopo ogni modifica più vecchia di tanti giorni e termina. Chi ha modificato qualcosa e quando rimane.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history richiede un numero di giorni.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Mostra, aggiunge, modifica e rimuove i nodi di un sistema di videosorveglianza.
Senza un&apos;opzione che fa qualcosa e termina, come --import, apre una finestra e accetta anche le opzioni del toolkit (-platform, -style e altre).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Apre questo database dei nodi: un file, che viene creato se non esiste, o uno condiviso, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Porta il database con la sua cronologia in uno vuoto su un server, il cui indirizzo segue (postgresql://user@host/database), e termina. Richiamato, prosegue.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>Dopo --share FILE va l&apos;indirizzo di un database, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>Non si può ripristinare un backup in un database condiviso.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>%1 aggiunte, %2 aggiornate, %3 invariate, %n riga con errori</numerusform>
            <numerusform>%1 aggiunte, %2 aggiornate, %3 invariate, %n righe con errori</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Registro di controllo</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Voci</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Cerca:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>Mostra nella cronologia...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Cosa</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (non è stato modificato nulla)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Torna a</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Mostra tutti i nodi com&apos;erano, in una finestra a parte. Questo non modifica nulla; ciò che vi è mostrato può essere ripristinato.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>Non più tardi di:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Com&apos;era dopo questa operazione:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Che cosa è stato fatto</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>la password non può essere letta</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>non chiede alcuna password</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>è stato modificato durante il controllo</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>È già in corso un controllo delle telecamere.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>Non c&apos;è alcuna telecamera con un indirizzo da controllare.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>Provarla una volta con ciascuna?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>&amp;Prova</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>Il controllo è stato annullato.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>Rapp&amp;orto...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>%1 telecamere su %2 hanno accettato la password.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>%1 telecamere su %2 rispondono come previsto.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>Nessuna delle telecamere selezionate è risultata un altro dispositivo: lo determina Rete &gt; Controlla telecamere.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Accetta altri dispositivi</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>Ha risposto %n dispositivo che non è quello conosciuto finora. Accettarlo solo se si sa perché, ad esempio dopo una sostituzione o un nuovo certificato: dal prossimo controllo riceverà il nome utente e la password salvati.</numerusform>
            <numerusform>Hanno risposto %n dispositivi che non sono quelli conosciuti finora. Accettarli solo se si sa perché, ad esempio dopo una sostituzione o un nuovo certificato: dal prossimo controllo riceveranno il nome utente e la password salvati.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accetta</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>%n dispositivo accettato.</numerusform>
            <numerusform>%n dispositivi accettati.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>&amp;Controllali</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>Nessuna delle telecamere selezionate chiede la password in chiaro: lo determina Rete &gt; Controlla telecamere.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n dispositivo accetta la password solo in chiaro. Senza SSL, chi è in ascolto lungo il percorso può leggerla e usarla per tutte le telecamere che hanno la stessa. Consentirlo solo dove la rete è la propria. Il consenso vale finché la telecamera mantiene indirizzo e porta.</numerusform>
            <numerusform>%n dispositivi accettano la password solo in chiaro. Senza SSL, chi è in ascolto lungo il percorso può leggerla e usarla per tutte le telecamere che hanno la stessa. Consentirlo solo dove la rete è la propria. Il consenso vale finché la telecamera mantiene indirizzo e porta.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Consenti password in chiaro</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Consenti</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>A %n dispositivo può essere inviata la password in chiaro.</numerusform>
            <numerusform>A %n dispositivi possono essere inviate le password in chiaro.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>Dopo il controllo della telecamera (F5), qui appare la sua immagine.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>La password non può essere letta.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Dispositivo diverso da prima</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Bloccato</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Password errata</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Chiede la password in chiaro</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Nessuna risposta</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Non compreso</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Non controllata</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Risponde</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>Rimosso da %1 su %2. Ciò che si inserisce qui non può essere memorizzato; Modifica &gt; Cronologia ripristina il nodo.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Modificato nel frattempo da %1 su %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 su %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>In questo momento anche in modifica da parte di %1.</translation>
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
        <translation>Telecamere controllate</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Annu&amp;lla</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Nascondi questa riga</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Telecamere controllate: %1 di %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Telecamere controllate</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Telecamere</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>&amp;Elenca anche quelle che rispondono</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>&amp;Mostra nell&apos;elenco</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Salva con nome...</translation>
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
            <numerusform>Escluso %n nodo, che non è un dispositivo o non ha indirizzo.</numerusform>
            <numerusform>Esclusi %n nodi, che non sono dispositivi o non hanno indirizzo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabelle (*.csv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 non è stato scritto: %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Motivo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>Se il server la offre</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Sempre, verificando il certificato</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Connetti a un database condiviso</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Recenti:</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Server:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Porta:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Database:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utente:</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>Pass&amp;word:</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>Cri&amp;ttografia:</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>&amp;Memorizza la password</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>Pro&amp;va</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connessione in corso...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>Il database può essere letto e modificato.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>Il database può essere letto, ma non può essere modificato da lei.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>La password non può essere memorizzata, perché manca la chiave che sigilla le password. Verrà chiesta di nuovo la prossima volta.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Ripristina un backup</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Tutto in questo database viene sostituito dal contenuto di &quot;%1&quot;, per tutti quelli che lo usano. Ciò che contiene ora viene prima conservato come backup.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Ripristina</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Nuovo database dei nodi</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>&quot;%1&quot; esiste già. Aprirlo, oppure scegliere un altro nome.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Copia del database...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>Il database è stato copiato in &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>Ripristino del backup...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>Il database ha ora il contenuto di &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Un database condiviso si ripristina sul suo server. Rivolgersi al suo amministratore.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>Non se ne può leggere nulla.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>Se ne può ancora leggere %n nodo.</numerusform>
            <numerusform>Se ne possono ancora leggere %n nodi.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>Non c&apos;è alcun backup valido.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>Il backup valido più recente è del %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Scegliendo una di queste opzioni, il file danneggiato viene conservato con un altro nome. Altrimenti non viene modificato nulla.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>Database dei nodi</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>Il database dei nodi è danneggiato. Ricerca di ciò che è leggibile e dei backup...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Es&amp;ci</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>Apri un &amp;altro...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>&amp;Inizia con uno vuoto</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>&amp;Usa ciò che è leggibile</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>Ripristina il &amp;backup</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>Il database dei nodi &quot;%1&quot; è danneggiato.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>Le tabelle del database dei nodi &quot;%1&quot; sono state modificate da un altro programma.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>Il database dei nodi &quot;%1&quot; è vuoto o assente, anche se conteneva qualcosa.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>Il database dei nodi &quot;%1&quot; è danneggiato, o al suo posto c&apos;è un altro file.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Apri database dei nodi</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Database dei nodi (*.kodb);;Tutti i file (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>D&amp;ettagli</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>Mostra accanto all&apos;elenco che cos&apos;è il nodo selezionato</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Selezionare un nodo nell&apos;elenco per vedere qui che cos&apos;è.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>%n nodo selezionato</numerusform>
            <numerusform>%n nodi selezionati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>Che cosa ha il primo:</numerusform>
            <numerusform>Che cosa hanno in comune i primi %n:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>diverso</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>non ha un indirizzo</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>la password non può essere letta</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>è stato rimosso nel frattempo</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>non è stato interrogato</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Accesso alle registrazioni</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>L&apos;indirizzo IP di fabbrica di %n delle telecamere selezionate non è noto:</numerusform>
            <numerusform>L&apos;indirizzo IP di fabbrica di %n delle telecamere selezionate non è noto:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>Le loro registrazioni possono essere riprodotte tramite la telecamera. Su un file server, però, la cartella di una telecamera prende il nome da questo indirizzo: con il percorso predefinito queste telecamere condividerebbero una cartella senza nome, con un percorso specifico perderebbero quello che hanno. Una telecamera che risponde e accetta la sua password indica come può essere chiamata la sua cartella.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>&amp;Interroga le telecamere...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Escludile</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>&amp;Continua con tutte</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Utente e password</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>Il %n dispositivo selezionato non ha lo stesso nome utente e la stessa password: ci sono %1 nomi utente e %2 password.</numerusform>
            <numerusform>I %n dispositivi selezionati non hanno lo stesso nome utente e la stessa password: ci sono %1 nomi utente e %2 password.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>La finestra successiva inizia con quelli del primo dispositivo e dà a tutti ciò che mostra quando si preme OK:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>&amp;Dai gli stessi a tutti...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n dispositivo: accesso alle registrazioni impostato.</numerusform>
            <numerusform>%n dispositivi: accesso alle registrazioni impostato.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n è rimasto com&apos;era.</numerusform>
            <numerusform>%n sono rimasti com&apos;erano.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n dispositivo: nome utente e password impostati.</numerusform>
            <numerusform>%n dispositivi: nome utente e password impostati.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n dispositivo)</numerusform>
            <numerusform>%1 (%n dispositivi)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>Solo le telecamere IP possono essere impostate insieme. Selezionare le altre una alla volta.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Proprietà di %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>Modifica %n nodo</numerusform>
            <numerusform>Modifica %n nodi</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>Ciò che modifichi qui cambia in tutti questi. Ciò che non è uguale in tutti è mostrato come diverso e rimane, a meno che non lo modifichi.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Verifica di ciò che cambia...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Mostra tutti i nodi</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>Lettura dei nodi...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>In questo database non c&apos;è ancora nulla.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Nessun nodo corrisponde.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Importa un elenco di telecamere...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Cerca dispositivi in rete...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Aggiungi una telecamera...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>Non è stato inserito né un nome né un indirizzo.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>Non è stato inserito alcun nome.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>&quot;%1&quot; ha già questo indirizzo, questa porta e questo canale.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>Salvare così?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>&amp;Salva così</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Continua a modificare</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>Ambiente: %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>L&apos;ambiente di rete di tutto il programma</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>L&apos;ambiente dell&apos;intero programma è ora &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Torna a &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>L&apos;ambiente è di nuovo &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Compila</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>&amp;Sostituisci anche ciò che può essere stato immesso a mano</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Dispositivi interrogati</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>Risposte dei dispositivi</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>Interrogazione di %n dispositivo. Non viene ancora salvato nulla.</numerusform>
            <numerusform>Interrogazione di %n dispositivi. Non viene ancora salvato nulla.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Non c&apos;è nulla da compilare.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>Questo è ciò che indicano i dispositivi e che non è ancora salvato. OK salva ciò che è selezionato.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n dispositivo non ha indicato nulla:</numerusform>
            <numerusform>%n dispositivi non hanno indicato nulla:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>%n dispositivo compilato.</numerusform>
            <numerusform>%n dispositivi compilati.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>Telecamera</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Cosa</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Dopo</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Solo di &quot;%1&quot;</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Solo del nodo selezionato</numerusform>
            <numerusform>Solo dei %n nodi selezionati</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Che cosa è stato fatto</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Che cosa ha modificato</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Ricerca in corso...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Non è stato trovato nulla.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>C&apos;è dell&apos;altro: scorrere verso il basso.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>Questo è tutto.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>una modifica selezionata</numerusform>
            <numerusform>%n modifiche selezionate</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Ripristinato: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Solo ciò che è stato fatto fino alla voce del registro di controllo</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>Che cosa è stato fatto:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>Che cosa ha modificato:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Ripristina...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Ripristina le modifiche selezionate...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Esporta...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Torna fino a qui...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Conserva...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>I dettagli sono stati tolti dalla cronologia: non si può ripristinare.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Esporta cronologia</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Elenchi (*.csv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>La cronologia non è stata scritta: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>Esportazione della cronologia...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>Dal</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Al</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>Nodi, valori, che cosa è stato fatto</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Tutti i tipi</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Tutte le proprietà</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Trova:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Utente:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Proprietà:</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Dal:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Al:</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>Conserva la cronologia</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>I dettagli di una modifica sono ciò che c&apos;era prima e dopo. Senza di essi non può essere né mostrata né ripristinata. Chi ha modificato qualcosa, quando e perché è sempre conservato, e così il registro di controllo.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Togli i dettagli più &amp;vecchi di</translation>
    </message>
    <message>
        <source> days</source>
        <translation> giorni</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Giorni</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>Togli i dettagli più vecchi quando sono &amp;più di</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Megabytes</source>
        <translation>Megabyte</translation>
    </message>
    <message>
        <source>This is done a minute after the start of the program and every six hours.</source>
        <translation>Avviene un minuto dopo l&apos;avvio del programma e ogni sei ore.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Postazione</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Che cosa è stato fatto</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodi</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Colonne non usate: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>L&apos;importazione è stata annullata. Ciò che era stato aggiunto rimane.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importa telecamere</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Dettagli</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n riga con errori verrebbe tralasciata.</numerusform>
            <numerusform>%n righe con errori verrebbero tralasciate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n riga forse intende altro.</numerusform>
            <numerusform>%n righe forse intendono altro.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importa</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>%1 aggiunte, %2 aggiornate, %3 invariate, %n riga con errori.</numerusform>
            <numerusform>%1 aggiunte, %2 aggiornate, %3 invariate, %n righe con errori.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>L&apos;importazione di questo elenco aggiungerebbe %n dispositivo, ne modificherebbe %1 e ne lascerebbe %2 come sono.</numerusform>
            <numerusform>L&apos;importazione di questo elenco aggiungerebbe %n dispositivi, ne modificherebbe %1 e ne lascerebbe %2 come sono.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>In attesa del portachiavi. Sbloccarlo se lo chiede.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Portachiavi</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>In attesa del portachiavi.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>Contiene la chiave delle password salvate. Sbloccarlo se lo chiede.

Senza la chiave le password salvate appaiono vuote e non se ne possono salvare di nuove.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>Continua &amp;senza password</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Es&amp;ci</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Lingua</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>&amp;Come il sistema</translation>
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
        <translation>Il registro è stato modificato</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>E un&apos;altra (%n); koclient --verify-log la indica.</numerusform>
            <numerusform>E altre %n; koclient --verify-log le indica.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Qualcuno ha modificato il registro del database dei nodi con un altro programma:</translation>
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
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importa...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Aggiunge le telecamere di un rilievo del sito (CSV)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Esporta...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Scrive tutte le telecamere in un file CSV</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>Esporta &amp;selezionate...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Scrive le telecamere selezionate in un file CSV</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferenze...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Percorsi predefiniti e larghezza di banda</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Es&amp;ci</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Chiude il programma</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Nodo</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Aggiungi...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Aggiunge un nodo</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Modifica...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Rimuovi...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Rimuove i nodi selezionati</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Proprietà</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Mostra il nodo selezionato senza modificarlo</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>&amp;Utente e password...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Assegna ai dispositivi selezionati un unico nome utente e password</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Accesso alle re&amp;gistrazioni...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>Da dove vengono riprodotte le registrazioni delle telecamere selezionate</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>C&amp;ompila...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Interroga i dispositivi selezionati e salva ciò che si sceglie</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Duplica...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Aggiunge un nodo uguale a quello selezionato</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>Apri pagina &amp;web</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Apre la pagina del dispositivo selezionato nel browser</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>Copia rig&amp;he</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Copia le righe selezionate per un foglio di calcolo</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>&amp;Copia indirizzo</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Copia gli indirizzi dei nodi selezionati</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Rete</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>&amp;Proxy di rete...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>Il server proxy dell&apos;applicazione</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>&amp;Ambienti...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>Gli ambienti di rete</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>&amp;Cerca dispositivi...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Nodi che arrivano durante la scansione della rete</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>&amp;Visti a un nuovo indirizzo...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Dispositivi che una ricerca ha trovato a un indirizzo diverso da quello che hanno qui</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>C&amp;ontrolla telecamere</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Chiede alle telecamere selezionate, o a tutte, chi sono e prova le loro password</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>Acce&amp;tta come questa telecamera...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Un dispositivo diverso da prima è d&apos;ora in poi questa telecamera</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Colonne...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Quali colonne ha l&apos;elenco</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>&amp;Registro di controllo...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Chi ha modificato cosa e quando</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>&amp;Database dei nodi...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Tutto ciò che è salvato</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Tramite la telecamera</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Percorso predefinito del file server</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>%n dispositivo visto a un nuovo indirizzo: Rete &gt; Visti a un nuovo indirizzo</numerusform>
            <numerusform>%n dispositivi visti a un nuovo indirizzo: Rete &gt; Visti a un nuovo indirizzo</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Nodi</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Cerca (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Parole in qualsiasi colonna; &quot;tipo:telecamera&quot; cerca in una, &quot;stato:errata|bloccato&quot; una delle due, &quot;-cortile&quot; esclude</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Tutti i tipi</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> &amp;Tipo: </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nodi</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>Nessuna telecamera selezionata. Selezionarne prima una o più nell&apos;elenco.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>I nodi di questo tipo non possono essere aggiunti.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>Questo nodo non ha un indirizzo. Quello dei dispositivi si imposta in Nodo &gt; Modifica.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n riga copiata.</numerusform>
            <numerusform>%n righe copiate.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>%n indirizzo copiato.</numerusform>
            <numerusform>%n indirizzi copiati.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Mostra, aggiunge, modifica e rimuove i nodi di un sistema di videosorveglianza.&lt;/p&gt;&lt;p&gt;Software libero con licenza GNU LGPL 2.1 o successiva.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>Consenti password &amp;in chiaro...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>Alle telecamere che non la accettano altrimenti la password è inviata leggibile da tutti</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Mostra l&apos;ultima modifica e la annulla</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Ripete l&apos;ultima cosa annullata</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Cronologia...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>Che cosa è stato fatto, da chi, e lo ripristina</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>Cronologia dei &amp;selezionati...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>Che cosa è stato fatto ai nodi selezionati</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>&amp;Torna a...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Mostra tutti i nodi com&apos;erano prima e li ripristina</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Modifica i nodi selezionati</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>A&amp;nteprima delle modifiche multiple</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Mostra ciò che si farebbe a più nodi prima di salvarlo</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>%n nodo modificato.</numerusform>
            <numerusform>%n nodi modificati.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>C&amp;onnetti...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Apre un database condiviso con altre postazioni</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Nuovo...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Crea un database dei nodi vuoto e lo apre</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Apri...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Apre un altro database dei nodi</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>&amp;Backup...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Copia il database dei nodi in un file</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>Ripris&amp;tina...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Dà al database dei nodi il contenuto di un backup</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>Pos&amp;izione ed etichette...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Dove sono i dispositivi selezionati e come sono raggruppati</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuale</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Spiega a cosa serve la finestra in primo piano</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>&quot;%1&quot; è stato aggiunto.</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - Database dei nodi</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Dispositivi: %1, altri nodi: %2; mostrati: %3, selezionati: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>&quot;%1&quot; è stato modificato.</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Si possono modificare insieme solo nodi dello stesso tipo. &quot;Tipo&quot;, sopra l&apos;elenco, mostra quelli di uno.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>Impossibile aprire la pagina web di %1. Scegliere un browser nelle impostazioni del desktop.</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>Cerca nel manuale (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Pagina del manuale</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Avanti</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Nessuna pagina contiene tutte queste parole.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>Il manuale è in inglese. I menu e i pulsanti hanno i nomi del programma inglese.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>Si imposta in &quot;File &gt; Preferenze&quot; della finestra principale.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>È ciò che &quot;Proprietà&quot; mostra come indirizzo IP di fabbrica della telecamera. &quot;Nodo &gt; Compila&quot; della finestra principale lo chiede alla telecamera.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Digitare un percorso, oppure premere &quot;Altro...&quot; e scegliere una delle cartelle.</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>Che cosa</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Allora</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ora</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Modificato</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Rimosso</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Aggiunto</translation>
    </message>
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
        <source>Since Then</source>
        <translation>Da allora</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>Com&apos;era, %1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>I nodi com&apos;erano il %1, dopo &quot;%2&quot; di %3. Qui si possono guardare e ripristinare, ma non modificare.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Solo ciò che ora è diverso</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Nodi:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Proprietà:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Nodi di allora</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Proprietà allora e ora</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>Quanto è stato letto di ciò che è stato fatto da allora</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Ripristina tutto...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Ripristina la selezione...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Lettura di ciò che è stato fatto da allora...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>Anche impostazioni o ambienti sono diversi.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n modifica da allora non corrisponde a ciò che c&apos;è ora: non si sa che cosa c&apos;era prima.</numerusform>
            <numerusform>%n modifiche da allora non corrispondono a ciò che c&apos;è ora: non si sa che cosa c&apos;era prima.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Torna a %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Ripristinato: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Allora %n nodo, %1 ora diversi; %2 mostrati</numerusform>
            <numerusform>Allora %n nodi, %1 ora diversi; %2 mostrati</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(senza nome)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e %n altro</numerusform>
            <numerusform>e altri %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>Che cosa gli è stato fatto:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>Che cosa ha modificato:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Che cosa è stato fatto</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Che cosa ha modificato</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Cronologia</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Posizione</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
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
        <source>Recording</source>
        <translation>Registrazione</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canale</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etichette</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Ultima modifica</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Nodi</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Rimuovi nodi</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Rimozione dei nodi...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>%n nodo rimosso.</numerusform>
            <numerusform>%n nodi rimossi.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Recupero dell&apos;immagine...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Visto il %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Immagine della telecamera</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Recupero dell&apos;immagine...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Visto il %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Posizione ed etichette</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Salvataggio di posizioni ed etichette...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n dispositivo: posizione ed etichette impostate.</numerusform>
            <numerusform>%n dispositivi: posizione ed etichette impostate.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Posizione ed etichette</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Dov&apos;è il dispositivo selezionato? Scriverlo dall&apos;esterno all&apos;interno, separato da una barra: Sito/Edificio/Piano. Le etichette sono separate da virgole.</numerusform>
            <numerusform>Dove sono i %n dispositivi selezionati? Scriverlo dall&apos;esterno all&apos;interno, separato da una barra: Sito/Edificio/Piano. Le etichette sono separate da virgole.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Posizione:</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>&amp;Etichette:</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(diversi, lasciati come sono)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Posizioni</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>&amp;Posizioni</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Mostra siti, edifici e piani accanto alla lista</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Posizioni</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Tutti i nodi</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Dispositivi senza posizione</translation>
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
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>&amp;Percorso predefinito del file server:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>S&amp;foglia...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>&amp;Server di anteprima remota predefinito:</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>&amp;Connessione:</translation>
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
    <message>
        <source>Default File Server Path</source>
        <translation>Percorso predefinito del file server</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Sito/edificio/piano:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Etichette, separate da virgole:</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: questo è ciò che cambierebbe. OK ripristina ciò che è selezionato.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: non si può più ripristinare nulla.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Che cosa cambierebbe</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Qualcun altro ha modificato questo nel frattempo; resta com&apos;è:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Tutto ciò che si può ripristinare</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: questo è ciò che cambierebbe. OK modifica ciò che è selezionato.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: non cambierebbe nulla.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Tutte le modifiche</translation>
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
        <translation>Cosa</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Diventerà</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Perché no</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>Che cosa è cambiato</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Lettura di ciò che è cambiato...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>Può consultare questo database condiviso, ma non modificarlo. Il suo amministratore può assegnarle il ruolo ko_editor.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Sola lettura</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Apri &amp;recente</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Non è ancora stato aperto un altro database</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Rimuovi nodi</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>Rimuovere questo nodo? Modifica &gt; Annulla lo riporta.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Rimuovere questo nodo? Modifica &gt; Annulla lo riporta.</numerusform>
            <numerusform>Rimuovere questi %n nodi? Modifica &gt; Annulla li riporta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>Nessun altro usa %n cartella di registrazione:</numerusform>
            <numerusform>Nessun altro usa %n cartelle di registrazione:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Rimuovi anche le &amp;cartelle di registrazione</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>Ricerche &amp;salvate</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Ricerche salvate</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Le ricerche che hanno un nome, e un nome per questa</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>&amp;Salva questa ricerca...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Dà un nome a ciò che si cerca ora</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>&amp;Rinomina o rimuovi...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Dà altri nomi alle ricerche salvate, e le rimuove</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Salva ricerca</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Nome (uno che esiste già riceve questa ricerca):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Ricerche salvate</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Ricerche salvate</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Ri&amp;nomina</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Rimuovi...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Esiste già una ricerca con questo nome, oppure il nome è vuoto. È rimasto com&apos;era.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>Rimuovere la ricerca &quot;%1&quot;? I nodi che trova restano.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Rimuovi</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Cerca dispositivi</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>La ricerca ha trovato %n nuovo dispositivo e lo ha aggiunto al database:</numerusform>
            <numerusform>La ricerca ha trovato %n nuovi dispositivi e li ha aggiunti al database:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Mantieni</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>&amp;Togli di nuovo</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>%n dispositivo trovato e aggiunto.</numerusform>
            <numerusform>%n dispositivi trovati e aggiunti.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>%n dispositivo tolto di nuovo.</numerusform>
            <numerusform>%n dispositivi tolti di nuovo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: inattivo</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 di %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: ricerca in corso</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: terminato</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: annullato</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: non disponibile (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Il file &quot;%1&quot; non esiste.</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>La cronologia di &quot;%1&quot; non dice come è nato tutto il suo contenuto: il file è più vecchio della cronologia oppure vi è stato ripristinato un backup. Un file simile non può essere condiviso; importare le sue telecamere in uno nuovo.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>Il sito &quot;%1&quot; non può essere modificato da lei. Chiedere al suo amministratore il ruolo ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>Il sito &quot;%1&quot; non è vuoto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; appartiene a un sito diverso da &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>Il sito differisce dal file: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>Il file o il sito cambia di continuo, quindi non è stato possibile confrontarli.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n riga con la sua cronologia è in &quot;%1&quot;, uguale a quella di qui.</numerusform>
            <numerusform>%n righe con la loro cronologia sono in &quot;%1&quot;, uguali a quelle di qui.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>&quot;%1&quot; contiene password di una versione precedente non ancora cifrate, perché manca la chiave di questa installazione. Ripristinarla prima.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>&quot;%1&quot; contiene password, che richiedono la chiave del sito. Non è stato inviato nulla.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Database condiviso</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Queste modifiche non sono state eseguite, perché qualcun altro aveva rimosso prima il nodo. Modifica &gt; Cronologia ripristina un nodo rimosso.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Modifiche non eseguite</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nodo</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Rimosso da</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Scarta selezionati</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>&amp;Nuova copia...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 su %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Nuova copia</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>Chiudere questa finestra e creare una nuova copia di ciò che ora è sul server? Le modifiche non inviate non vi sono; la copia attuale, che le contiene, resta nella cartella &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>&amp;Passphrase...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n modifica non eseguita</numerusform>
            <numerusform>%1, %n modifiche non eseguite</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, passphrase necessaria...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>In &quot;%1&quot; ora c&apos;è un sito diverso da quello di cui questa è una copia. Non gli è stato inviato nulla. Se il server è stato reinstallato, chiedere al suo amministratore di ripristinare il sito.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>Il database &quot;%1&quot; non contiene alcun sito oppure non è permesso leggerlo. Chiedere al suo amministratore il ruolo ko_viewer o ko_editor; un database vuoto diventa un sito con koclient --share.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>Il sito &quot;%1&quot; è stato creato con un&apos;altra versione di questo programma. Installare quella versione su questo computer o far aggiornare il sito.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>Il sito &quot;%1&quot; può solo essere letto, ma su questo computer ci sono modifiche che non ha ricevuto. Chiedere al suo amministratore il ruolo ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>In questa copia del sito &quot;%1&quot; è stato ripristinato un backup, cosa che non si può comunicare alle altre postazioni. Non è più condivisa.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>Non più condiviso...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Connesso, sola lettura</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connesso</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>Invio di %n modifica</numerusform>
            <numerusform>Invio di %n modifiche</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Aggiornamento in corso</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Server non raggiungibile da %1, %n modifica in attesa</numerusform>
            <numerusform>Server non raggiungibile da %1, %n modifiche in attesa</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Server non raggiungibile da %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>Il server del sito &quot;%1&quot; non è raggiungibile. Si può continuare: le modifiche attendono su questo computer e vengono inviate quando il server torna.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>Vede il sito &quot;%1&quot; come altri lo modificano, ma non può modificarlo.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>Il sito &quot;%1&quot; è condiviso con altri.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>Il sito &quot;%1&quot; non è raggiungibile.</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>In attesa del server...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Invio: ancora %n modifica</numerusform>
            <numerusform>Invio: ancora %n modifiche</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Ricezione: %1 di %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>Il sito &quot;%1&quot; presenta il suo passato diversamente da come lo aveva presentato a questa postazione: la sua cronologia è stata alterata sul server. Non gli viene più inviato nulla e nulla viene più ripreso da esso. Mostrare questo messaggio al suo amministratore; la copia su questo computer ha la cronologia com&apos;era.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>La copia del sito &quot;%1&quot; su questo computer non può essere letta o scritta. Verificare che il disco funzioni e abbia spazio, quindi riavviare il programma.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>Il server del sito &quot;%1&quot; ha rifiutato una richiesta di questo computer. Le modifiche che non ha ancora ricevuto sono conservate qui. Mostrare al suo amministratore la risposta del server e riavviare il programma quando il problema è risolto.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Una nuova passphrase per il sito &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Di nuovo:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Le due passphrase non sono uguali.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>La passphrase del sito &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>La passphrase del sito non è stata indicata. Le password non vengono lette e non possono essere salvate. Digitarla in un terminale o impostare la variabile KO_SITE_PASSPHRASE.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>La chiave non può essere conservata su questo computer, perché manca la chiave di questa installazione. La prossima volta la passphrase verrà chiesta di nuovo.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>Questa non è la passphrase del sito.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Una passphrase ha almeno %n carattere.</numerusform>
            <numerusform>Una passphrase ha almeno %n caratteri.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>Il sito non ha ancora una chiave.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Qualcun altro ha appena cambiato la chiave o la sua passphrase. Chiedere quale passphrase vale ora.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Per aprire la chiave serve più memoria di quanta questo computer ne abbia o gliene si possa chiedere.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Questo sito è stato creato prima che le sue postazioni condividessero una chiave. Le password non possono essere salvate finché il suo amministratore non lo aggiorna con koclient --share.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>Questo computer non ha la chiave delle password. Appaiono vuote e non se ne possono salvare di nuove finché non si indica la passphrase del sito.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>Il sito non ha ancora una chiave con cui le sue postazioni cifrano le password. Non se ne possono salvare di nuove finché qualcuno non la crea.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Database condiviso</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Connessione a &quot;%1&quot;...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Cambia passphrase</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Passphrase del sito</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>Le password delle telecamere di &quot;%1&quot; sono cifrate con una chiave che le sue postazioni condividono. Indicare la passphrase del sito, una volta su questo computer. Senza di essa le password appaiono vuote e non se ne possono salvare di nuove.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>Il sito &quot;%1&quot; non ha ancora una chiave con cui le sue postazioni cifrano le password delle telecamere. Pensare a una passphrase di più parole e comunicarla a tutti coloro che devono vederle. Il server non la riceve mai: se tutti la dimenticano, le nuove postazioni non possono leggere le password.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>Le postazioni che hanno la chiave di &quot;%1&quot; la conservano quando cambia solo la passphrase. Con una nuova chiave tutte le password vengono cifrate di nuovo e a ogni postazione viene chiesta la nuova passphrase: sceglierlo quando un computer è andato perduto.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Passphrase:</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>&amp;Passphrase attuale:</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Nuova passphrase:</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>&amp;Ripetizione:</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Crea anche una nuova &amp;chiave</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>Le due nuove passphrase non sono uguali.</translation>
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
        <translation>Database dei nodi</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Finché questa finestra è aperta, nulla di quanto immesso va perso.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>Ciò che attende di essere salvato, tutto o niente, appartiene a:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Modifiche non salvate</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Riprova</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>&amp;Scarta modifiche</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Tutte le modifiche sono salvate.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Alcune modifiche non sono state salvate. Se il programma viene chiuso ora, vanno perse.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>Database dei nodi</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Salvataggio delle modifiche...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Elenchi di telecamere (*.csv);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importa telecamere</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Importazione delle telecamere...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Esporta telecamere</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>Scrivere anche le password? Chi può leggere il file potrà poi usare tutte le telecamere che contiene.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Esportazione delle telecamere...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>%n telecamera scritta.</numerusform>
            <numerusform>%n telecamere scritte.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Lettura dell&apos;elenco...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>A&amp;nnulla &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>A&amp;nnulla</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>&amp;Ripeti &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Annullato: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Ripetuto: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Annulla...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>Ciò che è stato inserito non è ancora memorizzato.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Scarta</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Continua a modificare</translation>
    </message>
</context>
</TS>
