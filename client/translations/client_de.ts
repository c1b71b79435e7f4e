<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Hinzufügen und &amp;nächster</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Unter neuer Adresse gesehen</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Diese Geräte scheinen jetzt unter einer anderen Adresse zu antworten. Übernehmen Sie nur, was Sie erwarten: Benutzername und Passwort werden ab dann an die neue Adresse gesendet.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Geräte</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Alte Adresse</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Neue Adresse</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>&amp;Auswahl übernehmen</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>A&amp;lle übernehmen</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>Auswahl &amp;verwerfen</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>Knotendatenbank</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>Die Knotendatenbank „%1“ liegt auf einem Netzlaufwerk. Zwei Programme, die sie dort gleichzeitig verwenden, können sie beschädigen. Verschieben Sie sie auf einen Datenträger dieses Computers.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 gilt nur für Fenster, hier wird aber keines geöffnet.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>Die Spalte „%1“ wird nicht verwendet.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>%1 ohne Name und Adresse ausgelassen</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Verwendet diese Sprache, z. B. de oder pt_BR, unabhängig von anderen Einstellungen.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Fügt die Kameras einer Liste (CSV) hinzu und endet. Es ist kein Fenster nötig.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Schreibt alle Kameras in eine Liste (CSV) und endet.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Lässt bei --export die Passwörter weg.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Kopiert die Datenbank, die in Gebrauch sein darf, in eine Datei und endet.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Gibt der Datenbank, die in Gebrauch sein darf, den Inhalt einer Sicherung und endet. Der bisherige Inhalt bleibt als Sicherung erhalten.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Unerwartetes Argument: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>Der Wert nach --%1 ist leer.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>%1 Einträge angesehen, %2 älter als die Kette, %3 Glieder ohne Siegel</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Sieht nach, ob jemand die Protokolle der Datenbank verändert hat, nennt, was, und endet.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>Einzelheiten bis zur Änderung Nummer %1 wurden entfernt</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>%1 Einzelheiten entfernt, bis zur Änderung Nummer %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>Nicht weiter: Der Verlauf wurde verändert. --verify-log nennt, was.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Entfernt aus dem Verlauf, was vor und nach jeder Änderung war, wo sie älter als so viele Tage ist, und endet. Wer wann etwas geändert hat, bleibt.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history braucht eine Anzahl von Tagen.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Zeigt, ergänzt, bearbeitet und entfernt die Knoten eines Videoüberwachungssystems.
Ohne eine Option, die etwas tut und endet, wie --import, wird ein Fenster geöffnet; dann gelten auch die Optionen des Toolkits (-platform, -style und andere).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Öffnet diese Knotendatenbank: eine Datei, die angelegt wird, wenn sie fehlt, oder eine gemeinsame, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Bringt die Datenbank mit ihrem Verlauf in eine leere auf einem Server, deren Adresse folgt (postgresql://user@host/database), und endet. Erneut aufgerufen, geht es weiter.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>Nach --share FILE folgt die Adresse einer Datenbank, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>In eine gemeinsame Datenbank kann keine Sicherung zurückgespielt werden.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>%1 hinzugefügt, %2 aktualisiert, %3 unverändert, %n Zeile mit Fehlern</numerusform>
            <numerusform>%1 hinzugefügt, %2 aktualisiert, %3 unverändert, %n Zeilen mit Fehlern</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Änderungsprotokoll</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>Im Verlauf zeigen...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (nichts wurde geändert)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Zurück zu</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Zeigt alle Knoten, wie sie waren, in einem eigenen Fenster. Dadurch wird nichts geändert; was dort gezeigt wird, kann zurückgenommen werden.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>Nicht später als:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Wie es war, nachdem dies getan wurde:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Was getan wurde</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>das Passwort kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>das Gerät verlangt kein Passwort</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>das Gerät wurde während der Prüfung geändert</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>Es werden bereits Kameras geprüft.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>Es gibt keine Kamera mit einer Adresse zum Prüfen.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>Einmal bei jeder ausprobieren?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>A&amp;usprobieren</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>Die Prüfung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>&amp;Bericht...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>%1 von %2 Kameras haben das Passwort angenommen.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>%1 von %2 Kameras antworten wie erwartet.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>Keine der ausgewählten Kameras wurde als anderes Gerät erkannt: Das ermittelt Netzwerk &gt; Kameras prüfen.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Andere Geräte akzeptieren</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>%n Gerät hat geantwortet, das nicht das bisher bekannte ist. Akzeptieren Sie es nur, wenn Sie den Grund kennen, etwa einen Austausch oder ein neues Zertifikat: Ab der nächsten Prüfung erhält es den gespeicherten Benutzernamen und das Passwort.</numerusform>
            <numerusform>%n Geräte haben geantwortet, die nicht die bisher bekannten sind. Akzeptieren Sie sie nur, wenn Sie den Grund kennen, etwa einen Austausch oder ein neues Zertifikat: Ab der nächsten Prüfung erhalten sie den gespeicherten Benutzernamen und das Passwort.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>A&amp;kzeptieren</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>%n Gerät akzeptiert.</numerusform>
            <numerusform>%n Geräte akzeptiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>&amp;Prüfen</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>Keine der ausgewählten Kameras verlangt ein Klartextpasswort: Das ermittelt Netzwerk &gt; Kameras prüfen.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n Gerät nimmt das Passwort nur im Klartext an. Ohne SSL kann jeder, der unterwegs mithört, es lesen und für alle Kameras verwenden, die dasselbe haben. Erlauben Sie es nur dort, wo das Netzwerk Ihr eigenes ist. Die Erlaubnis gilt, solange die Kamera ihre Adresse und ihren Port behält.</numerusform>
            <numerusform>%n Geräte nehmen das Passwort nur im Klartext an. Ohne SSL kann jeder, der unterwegs mithört, es lesen und für alle Kameras verwenden, die dasselbe haben. Erlauben Sie es nur dort, wo das Netzwerk Ihr eigenes ist. Die Erlaubnis gilt, solange die Kamera ihre Adresse und ihren Port behält.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Klartextpasswörter erlauben</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Erlauben</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>%n Gerät darf sein Passwort im Klartext gesendet werden.</numerusform>
            <numerusform>%n Geräten darf ihr Passwort im Klartext gesendet werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>Sobald die Kamera geprüft wurde (F5), ist hier ihr Bild zu sehen.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>Das Passwort kann nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Anderes Gerät als bisher</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Ausgesperrt</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Falsches Passwort</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Verlangt Klartextpasswort</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Nicht verstanden</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Nicht geprüft</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Antwortet</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>Von %1 an %2 entfernt. Was Sie hier eingeben, kann nicht gespeichert werden; Bearbeiten &gt; Verlauf holt den Knoten zurück.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Inzwischen von %1 an %2 geändert.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 an %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>Wird zurzeit auch von %1 bearbeitet.</translation>
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
        <translation>Geprüfte Kameras</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Abb&amp;rechen</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Diese Zeile ausblenden</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Geprüfte Kameras: %1 von %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Geprüfte Kameras</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>&amp;Auch antwortende auflisten</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>In &amp;Liste zeigen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Speichern unter...</translation>
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
            <numerusform>%n Knoten ausgelassen, der kein Gerät ist oder keine Adresse hat.</numerusform>
            <numerusform>%n Knoten ausgelassen, die keine Geräte sind oder keine Adresse haben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabellen (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 wurde nicht geschrieben: %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>Wenn der Server sie hat</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Immer, mit Prüfung des Zertifikats</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Mit gemeinsamer Datenbank verbinden</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Zuletzt:</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Server:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Datenbank:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Benutzer:</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>Pass&amp;wort:</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>&amp;Verschlüsselung:</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>Passwort &amp;merken</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbindung wird hergestellt...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>Die Datenbank kann gelesen und geändert werden.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>Die Datenbank kann gelesen, aber von Ihnen nicht geändert werden.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>Das Passwort kann nicht gemerkt werden, weil der Schlüssel fehlt, der Passwörter versiegelt. Sie werden beim nächsten Mal wieder danach gefragt.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Alles in dieser Datenbank wird durch den Inhalt von „%1“ ersetzt, für alle, die sie benutzen. Was jetzt darin ist, wird vorher als Sicherung aufbewahrt.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Neue Knotendatenbank</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>„%1“ gibt es schon. Öffnen Sie sie stattdessen, oder wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Die Datenbank wird kopiert...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>Die Datenbank wurde nach „%1“ kopiert.</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>Die Sicherung wird wiederhergestellt...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>Die Datenbank hat jetzt den Inhalt von „%1“.</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Eine geteilte Datenbank wird auf ihrem Server wiederhergestellt. Wenden Sie sich an dessen Verwalter.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>Nichts davon kann gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>%n Knoten davon kann noch gelesen werden.</numerusform>
            <numerusform>%n Knoten davon können noch gelesen werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>Es gibt keine brauchbare Sicherung.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>Die neueste brauchbare Sicherung stammt von %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Wenn Sie eines davon wählen, bleibt die beschädigte Datei unter einem anderen Namen erhalten. Andernfalls wird nichts geändert.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>Knotendatenbank</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>Die Knotendatenbank ist beschädigt. Es wird gesucht, was noch lesbar ist und welche Sicherungen es gibt...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>&amp;Andere öffnen...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>Mit &amp;leerer beginnen</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>&amp;Lesbares verwenden</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>&amp;Sicherung wiederherstellen</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>Die Knotendatenbank „%1“ ist beschädigt.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>Die Tabellen der Knotendatenbank „%1“ wurden von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>Die Knotendatenbank „%1“ ist leer oder fehlt, obwohl sie etwas enthielt.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>Die Knotendatenbank „%1“ ist beschädigt, oder an ihrer Stelle befindet sich eine andere Datei.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Knotendatenbank öffnen</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Knotendatenbanken (*.kodb);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>D&amp;etails</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>Zeigt neben der Liste, was der ausgewählte Knoten ist</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Wählen Sie einen Knoten in der Liste aus, um hier zu sehen, was er ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>%n Knoten ausgewählt</numerusform>
            <numerusform>%n Knoten ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>Was der erste davon hat:</numerusform>
            <numerusform>Was die ersten %n davon gemeinsam haben:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>verschieden</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>keine Adresse vorhanden</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>das Passwort kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>inzwischen entfernt</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>nicht abgefragt</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Zugriff auf Aufzeichnungen</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>Die Werks-IP-Adresse von %n der ausgewählten Kameras ist nicht bekannt:</numerusform>
            <numerusform>Die Werks-IP-Adresse von %n der ausgewählten Kameras ist nicht bekannt:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>Ihre Aufzeichnungen können über die Kamera wiedergegeben werden. Auf einem Dateiserver ist der Ordner einer Kamera jedoch nach dieser Adresse benannt: Mit dem Standardpfad würden sich diese Kameras einen Ordner ohne Namen teilen, mit einem eigenen Pfad würden sie ihren bisherigen Pfad verlieren. Eine Kamera, die antwortet und ihr Passwort annimmt, nennt, wonach ihr Ordner benannt werden kann.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>Kameras &amp;fragen...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Auslassen</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>Mit allen &amp;fortfahren</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Benutzer &amp; Passwort</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>Das %n ausgewählte Gerät hat nicht denselben Benutzernamen und dasselbe Passwort: Es gibt %1 Benutzernamen und %2 Passwörter.</numerusform>
            <numerusform>Die %n ausgewählten Geräte haben nicht denselben Benutzernamen und dasselbe Passwort: Es gibt %1 Benutzernamen und %2 Passwörter.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>Das nächste Fenster beginnt mit denen des ersten Geräts und gibt allen, was es beim Klick auf OK anzeigt:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>&amp;Allen dieselben geben...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n Gerät: Zugriff auf Aufzeichnungen eingestellt.</numerusform>
            <numerusform>%n Geräte: Zugriff auf Aufzeichnungen eingestellt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n wurde nicht verändert.</numerusform>
            <numerusform>%n wurden nicht verändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n Gerät: Benutzername und Passwort eingestellt.</numerusform>
            <numerusform>%n Geräte: Benutzername und Passwort eingestellt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n Gerät)</numerusform>
            <numerusform>%1 (%n Geräte)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>Nur IP-Kameras können gemeinsam eingestellt werden. Wählen Sie von den anderen jeweils eine aus.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschaften von %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>%n Knoten bearbeiten</numerusform>
            <numerusform>%n Knoten bearbeiten</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>Was Sie hier ändern, ändert sich bei allen diesen. Was nicht bei allen gleich ist, wird als verschieden gezeigt und bleibt, wenn Sie es nicht ändern.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Änderungen werden ermittelt...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Alle Knoten anzeigen</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>Die Knoten werden gelesen...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>In dieser Datenbank ist noch nichts vorhanden.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Kein Knoten entspricht der Suche.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Kameraliste importieren...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Geräte im Netzwerk suchen...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Kamera hinzufügen...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>Es wurde weder ein Name noch eine Adresse eingegeben.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>Es wurde kein Name eingegeben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>„%1“ hat diese Adresse, diesen Port und diesen Kanal bereits.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>Soll es so gespeichert werden?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>So &amp;speichern</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>Weiter &amp;bearbeiten</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>Umgebung: %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>Die Netzwerkumgebung des ganzen Programms</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>Die Umgebung des ganzen Programms ist jetzt „%1“.</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Zurück zu „%1“</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>Die Umgebung ist wieder „%1“.</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Ausfüllen</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>Auch e&amp;rsetzen, was möglicherweise von Hand eingegeben wurde</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Abgefragte Geräte</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>Angaben der Geräte</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>%n Gerät wird abgefragt. Noch wird nichts gespeichert.</numerusform>
            <numerusform>%n Geräte werden abgefragt. Noch wird nichts gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Es gibt nichts auszufüllen.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>Dies geben die Geräte an, und es ist noch nicht gespeichert. OK speichert, was angehakt ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n Gerät hat nichts angegeben:</numerusform>
            <numerusform>%n Geräte haben nichts angegeben:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>%n Gerät ausgefüllt.</numerusform>
            <numerusform>%n Geräte ausgefüllt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Danach</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Nur von „%1“</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Nur vom ausgewählten Knoten</numerusform>
            <numerusform>Nur von den %n ausgewählten Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Was getan wurde</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Was es änderte</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Es wird weiter gesucht...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>Es gibt mehr: blättern Sie nach unten.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>Das ist alles.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>eine ausgewählte Änderung</numerusform>
            <numerusform>%n ausgewählte Änderungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Zurückgenommen: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Nur, was bis zum Eintrag des Änderungsprotokolls getan wurde</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>Was getan wurde:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>Was es änderte:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Zurücknehmen...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Ausgewählte Änderungen zurücknehmen...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Zurück bis hier...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Aufbewahren...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>Die Einzelheiten wurden aus dem Verlauf entfernt: Es kann nicht zurückgenommen werden.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Verlauf exportieren</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Listen (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>Der Verlauf wurde nicht geschrieben: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>Der Verlauf wird exportiert...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>Knoten, Werte, was getan wurde</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle Arten</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Alle Eigenschaften</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Benutzer:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Eigenschaft:</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Bis:</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>Verlauf aufbewahren</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>Die Einzelheiten einer Änderung sind, was vor und nach ihr war. Ohne sie kann sie weder gezeigt noch zurückgenommen werden. Wer wann und wozu etwas geändert hat, bleibt immer erhalten, ebenso das Änderungsprotokoll.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Einzelheiten entfernen, die &amp;älter sind als</translation>
    </message>
    <message>
        <source> days</source>
        <translation> Tage</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>Die ältesten Einzelheiten entfernen, wenn es &amp;mehr sind als</translation>
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
        <translation>Das geschieht eine Minute nach dem Start des Programms und alle sechs Stunden.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Was getan wurde</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Nicht verwendete Spalten: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>Der Import wurde abgebrochen. Was bis dahin hinzugefügt wurde, bleibt erhalten.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Kameras importieren</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n Zeile mit Fehlern würde ausgelassen.</numerusform>
            <numerusform>%n Zeilen mit Fehlern würden ausgelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n Zeile ist vielleicht anders gemeint.</numerusform>
            <numerusform>%n Zeilen sind vielleicht anders gemeint.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>%1 hinzugefügt, %2 aktualisiert, %3 unverändert, %n Zeile mit Fehlern.</numerusform>
            <numerusform>%1 hinzugefügt, %2 aktualisiert, %3 unverändert, %n Zeilen mit Fehlern.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>Der Import dieser Liste würde %n Gerät hinzufügen, %1 ändern und %2 so lassen, wie sie sind.</numerusform>
            <numerusform>Der Import dieser Liste würde %n Geräte hinzufügen, %1 ändern und %2 so lassen, wie sie sind.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>Auf den Schlüsselbund wird gewartet. Entsperren Sie ihn, wenn er danach fragt.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Schlüsselbund</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>Auf Ihren Schlüsselbund wird gewartet.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>Er enthält den Schlüssel der gespeicherten Passwörter. Entsperren Sie ihn, wenn er danach fragt.

Ohne den Schlüssel werden gespeicherte Passwörter leer angezeigt, und neue können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>Ohne &amp;Passwörter fortfahren</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>S&amp;prache</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>&amp;Wie das System</translation>
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
        <translation>1 groß + 5</translation>
    </message>
    <message>
        <source>1 large + 7</source>
        <translation>1 groß + 7</translation>
    </message>
</context>
<context>
    <name>LogNotice</name>
    <message>
        <source>The log was altered</source>
        <translation>Das Protokoll wurde verändert</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>Und %n weitere; koclient --verify-log nennt ihn.</numerusform>
            <numerusform>Und %n weitere; koclient --verify-log nennt sie.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Jemand hat das Protokoll der Knotendatenbank mit einem anderen Programm verändert:</translation>
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
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Fügt die Kameras einer Standorterfassung (CSV) hinzu</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Schreibt alle Kameras in eine CSV-Datei</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>Aus&amp;wahl exportieren...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Schreibt die ausgewählten Kameras in eine CSV-Datei</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>Ei&amp;nstellungen...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Standardpfade und Bandbreite</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Schließt das Programm</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Knoten</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Fügt einen Knoten hinzu</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Entfernen...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Entfernt die ausgewählten Knoten</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>Eigen&amp;schaften</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Zeigt den ausgewählten Knoten, ohne ihn zu ändern</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>Benutzer &amp;&amp; &amp;Passwort...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Gibt den ausgewählten Geräten einen gemeinsamen Benutzernamen und ein Passwort</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Zugriff auf Auf&amp;zeichnungen...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>Von wo die Aufzeichnungen der ausgewählten Kameras wiedergegeben werden</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>Aus&amp;füllen...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Fragt die ausgewählten Geräte ab und speichert davon, was Sie auswählen</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Duplizieren...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Fügt einen Knoten hinzu, der dem ausgewählten gleicht</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>&amp;Webseite öffnen</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Öffnet die Seite des ausgewählten Geräts im Browser</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>Zei&amp;len kopieren</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Kopiert die ausgewählten Zeilen für eine Tabellenkalkulation</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>&amp;Adresse kopieren</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Kopiert die Adressen der ausgewählten Knoten</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Netzwerk</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>Netzwerk&amp;proxy...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>Der Proxyserver der Anwendung</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>&amp;Umgebungen...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>Die Netzwerkumgebungen</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>&amp;Geräte suchen...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Knoten, die während der Netzwerksuche eintreffen</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>Unter neuer Adresse ge&amp;sehen...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Geräte, die eine Suche unter einer anderen als der hier gespeicherten Adresse gefunden hat</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>&amp;Kameras prüfen</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Fragt die ausgewählten oder alle Kameras, wer sie sind, und probiert ihre Passwörter aus</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>Als diese Kamera &amp;akzeptieren...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Ein anderes Gerät als bisher ist ab jetzt diese Kamera</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Spalten...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Welche Spalten die Liste hat</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>&amp;Änderungsprotokoll...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Wer was wann geändert hat</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>Knoten&amp;datenbank...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Alles, was gespeichert ist</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Über die Kamera</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Standardpfad auf dem Dateiserver</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>%n Gerät unter neuer Adresse gesehen: Netzwerk &gt; Unter neuer Adresse gesehen</numerusform>
            <numerusform>%n Geräte unter neuer Adresse gesehen: Netzwerk &gt; Unter neuer Adresse gesehen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Knoten</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Wörter in beliebigen Spalten; „typ:kamera“ sucht in einer, „zustand:falsch|gesperrt“ nach einem von beiden, „-hof“ lässt aus</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Alle Typen</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> &amp;Typ: </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>Keine Kamera ausgewählt. Wählen Sie zuerst eine oder mehrere in der Liste aus.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>Knoten dieses Typs können nicht hinzugefügt werden.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>Dieser Knoten hat keine Adresse. Geräte erhalten ihre unter Knoten &gt; Bearbeiten.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n Zeile kopiert.</numerusform>
            <numerusform>%n Zeilen kopiert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>%n Adresse kopiert.</numerusform>
            <numerusform>%n Adressen kopiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Zeigt, ergänzt, bearbeitet und entfernt die Knoten eines Videoüberwachungssystems.&lt;/p&gt;&lt;p&gt;Freie Software unter der GNU LGPL 2.1 oder neuer.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>Klar&amp;textpasswort erlauben...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>Kameras, die es nicht anders annehmen, wird das Passwort für alle lesbar gesendet</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Zeigt, was zuletzt geändert wurde, und nimmt es zurück</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Wiederholt, was zuletzt rückgängig gemacht wurde</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Verlauf...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>Was von wem getan wurde; nimmt es zurück</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>Verlauf der &amp;Auswahl...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>Was mit den ausgewählten Knoten getan wurde</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>&amp;Zurück zu...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Zeigt alle Knoten, wie sie früher waren, und nimmt Änderungen zurück</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Ändert die ausgewählten Knoten</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>Änderungen an mehreren &amp;vorher zeigen</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Zeigt, was mit mehreren Knoten geschehen würde, bevor es gespeichert wird</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>%n Knoten bearbeitet.</numerusform>
            <numerusform>%n Knoten bearbeitet.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>&amp;Verbinden...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Öffnet eine Datenbank, die mit anderen Arbeitsplätzen geteilt wird</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>Ne&amp;u...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Legt eine leere Knotendatenbank an und öffnet sie</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Öffnen...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Öffnet eine andere Knotendatenbank</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>&amp;Sichern...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Kopiert die Knotendatenbank in eine Datei</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>Wieder&amp;herstellen...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Gibt der Knotendatenbank den Inhalt einer Sicherung</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>Standor&amp;t und Tags...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Wo die ausgewählten Geräte sind, und wie sie gruppiert werden</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Erklärt, wozu das Fenster im Vordergrund dient</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>„%1“ wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - Knotendatenbank</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Geräte: %1, andere Knoten: %2; angezeigt: %3, ausgewählt: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>„%1“ wurde geändert.</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Nur Knoten eines Typs können zusammen bearbeitet werden. „Typ“ über der Liste zeigt die von einem.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>Die Webseite von %1 konnte nicht geöffnet werden. Wählen Sie in den Einstellungen Ihres Desktops einen Browser aus.</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>Im Handbuch suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Seite des Handbuchs</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Keine Seite enthält alle diese Wörter.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>Das Handbuch ist auf Englisch. Menüs und Schaltflächen heißen darin wie im englischen Programm.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>Er wird im Hauptfenster unter „Datei &gt; Einstellungen“ festgelegt.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>Gemeint ist, was die „Eigenschaften“ als Werks-IP-Adresse der Kamera zeigen. „Knoten &gt; Ausfüllen“ im Hauptfenster fragt die Kamera danach.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Geben Sie einen Pfad ein, oder drücken Sie „Mehr...“ und wählen Sie einen der Ordner aus.</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Damals</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
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
        <source>Since Then</source>
        <translation>Seitdem</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>Wie es war, %1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>Die Knoten, wie sie am %1 nach „%2“ von %3 waren. Sie können hier angesehen und zurückgenommen, aber nicht bearbeitet werden.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Nur was jetzt anders ist</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Knoten:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Eigenschaften:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Knoten von damals</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Eigenschaften damals und jetzt</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>Was von dem seither Getanen gelesen ist</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Alles zurücknehmen...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Ausgewählte zurücknehmen...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Liest, was seither getan wurde...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>Auch Einstellungen oder Umgebungen sind anders.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n Änderung seither passt nicht zu dem, was jetzt da ist: Was vor ihr war, ist nicht bekannt.</numerusform>
            <numerusform>%n Änderungen seither passen nicht zu dem, was jetzt da ist: Was vor ihnen war, ist nicht bekannt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Zurück zu %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Zurückgenommen: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Damals %n Knoten, %1 jetzt anders; %2 angezeigt</numerusform>
            <numerusform>Damals %n Knoten, %1 jetzt anders; %2 angezeigt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(unbenannt)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>Was mit ihm getan wurde:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>Was das änderte:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Was getan wurde</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Was es änderte</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
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
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Letzte Änderung</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Knoten</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Knoten entfernen</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Knoten werden entfernt...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>%n Knoten entfernt.</numerusform>
            <numerusform>%n Knoten entfernt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Das Bild wird geholt...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Gesehen am %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Bild der Kamera</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Das Bild wird geholt...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Gesehen am %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Standort und Tags</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Standorte und Tags werden gespeichert...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n Gerät: Standort und Tags gesetzt.</numerusform>
            <numerusform>%n Geräte: Standort und Tags gesetzt.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Standort und Tags</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Wo ist das ausgewählte Gerät? Schreiben Sie es von außen nach innen, mit einem Schrägstrich dazwischen: Standort/Gebäude/Etage. Tags werden durch Kommas getrennt.</numerusform>
            <numerusform>Wo sind die %n ausgewählten Geräte? Schreiben Sie es von außen nach innen, mit einem Schrägstrich dazwischen: Standort/Gebäude/Etage. Tags werden durch Kommas getrennt.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Standort:</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>&amp;Tags:</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(verschieden, bleiben wie sie sind)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Standorte</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>Stand&amp;orte</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Zeigt Standorte, Gebäude und Etagen neben der Liste</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Standorte</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Alle Knoten</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Geräte ohne Standort</translation>
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
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>&amp;Standardpfad auf dem Dateiserver:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>Standardserver für die &amp;Fernvorschau:</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>&amp;Verbindung:</translation>
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
    <message>
        <source>Default File Server Path</source>
        <translation>Standardpfad auf dem Dateiserver</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Standort/Gebäude/Etage:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Tags, durch Kommas getrennt:</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: das würde sich ändern. OK nimmt zurück, was angehakt ist.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: davon kann nichts mehr zurückgenommen werden.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Was sich ändern würde</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Jemand anders hat dies inzwischen geändert; es bleibt, wie es jetzt ist:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Alles, was zurückgenommen werden kann</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: das würde sich ändern. OK ändert, was angehakt ist.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: es würde sich nichts ändern.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Alle Änderungen</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Wird zu</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Warum nicht</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>Was geändert wurde</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Liest, was geändert wurde...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>Sie dürfen diese gemeinsame Datenbank ansehen, aber nicht ändern. Ihr Administrator kann Ihnen die Rolle ko_editor geben.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Nur lesen</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Es wurde noch keine andere Datenbank geöffnet</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Knoten entfernen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>Diesen Knoten entfernen? Bearbeiten &gt; Rückgängig bringt ihn zurück.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Diesen Knoten entfernen? Bearbeiten &gt; Rückgängig bringt ihn zurück.</numerusform>
            <numerusform>Diese %n Knoten entfernen? Bearbeiten &gt; Rückgängig bringt sie zurück.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>%n Aufzeichnungsordner benutzt sonst niemand:</numerusform>
            <numerusform>%n Aufzeichnungsordner benutzt sonst niemand:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Auch die Aufzeichnungs&amp;ordner entfernen</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>&amp;Gespeicherte Suchen</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Gespeicherte Suchen</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Suchen, die einen Namen haben, und ein Name für diese</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>Diese Suche &amp;speichern...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Gibt dem, was jetzt gesucht wird, einen Namen</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>&amp;Umbenennen oder entfernen...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Gibt gespeicherten Suchen andere Namen und entfernt sie</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Suche speichern</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Name (einer, den es gibt, bekommt diese Suche):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Gespeicherte Suchen</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Gespeicherte Suchen</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Umbe&amp;nennen</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Entfernen...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Es gibt schon eine Suche dieses Namens, oder der Name ist leer. Er wurde gelassen, wie er war.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>Die Suche „%1“ entfernen? Die Knoten, die sie findet, bleiben.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Geräte suchen</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>Die Suche hat %n neues Gerät gefunden und zur Datenbank hinzugefügt:</numerusform>
            <numerusform>Die Suche hat %n neue Geräte gefunden und zur Datenbank hinzugefügt:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>Wieder &amp;herausnehmen</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>%n Gerät gefunden und hinzugefügt.</numerusform>
            <numerusform>%n Geräte gefunden und hinzugefügt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>%n Gerät wieder herausgenommen.</numerusform>
            <numerusform>%n Geräte wieder herausgenommen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: inaktiv</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 von %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: sucht</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: fertig</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: abgebrochen</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: nicht verfügbar (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Die Datei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>Der Verlauf von „%1“ sagt nicht, wie alles darin entstanden ist: Die Datei ist älter als der Verlauf, oder es wurde eine Sicherung zurückgespielt. Eine solche Datei kann nicht geteilt werden; importieren Sie ihre Kameras in eine neue.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>Sie dürfen den Standort „%1“ nicht ändern. Bitten Sie seinen Administrator um die Rolle ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>Der Standort „%1“ ist nicht leer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>„%1“ gehört zu einem anderen Standort als „%2“.</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>Der Standort weicht von der Datei ab: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>Datei oder Standort ändern sich ständig, daher konnten sie nicht verglichen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n Zeile mit ihrem Verlauf ist in „%1“ und dort die gleiche wie hier.</numerusform>
            <numerusform>%n Zeilen mit ihrem Verlauf sind in „%1“ und dort die gleichen wie hier.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>„%1“ enthält Passwörter einer älteren Version, die noch nicht verschlüsselt sind, weil der Schlüssel dieser Installation fehlt. Bringen Sie ihn zuerst zurück.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>„%1“ enthält Passwörter, für die der Schlüssel des Standorts nötig ist. Es wurde nichts gesendet.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Gemeinsame Datenbank</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Diese Ihrer Änderungen konnten nicht ausgeführt werden, weil jemand anderes den Knoten vorher entfernt hatte. Bearbeiten &gt; Verlauf holt einen entfernten Knoten zurück.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Nicht ausgeführte Änderungen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Entfernt von</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>Auswahl &amp;verwerfen</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>&amp;Neue Kopie...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 an %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Neue Kopie</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>Dieses Fenster schließen und eine neue Kopie dessen anlegen, was jetzt auf dem Server ist? Nicht gesendete Änderungen sind nicht darin; die jetzige Kopie, die sie enthält, bleibt im Ordner „%1“.</translation>
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
            <numerusform>%1, %n Änderung nicht ausgeführt</numerusform>
            <numerusform>%1, %n Änderungen nicht ausgeführt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, Passphrase nötig...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>Unter „%1“ liegt jetzt ein anderer Standort als der, von dem dies eine Kopie ist. Es wurde nichts dorthin gesendet. Wenn der Server neu eingerichtet wurde, bitten Sie seinen Administrator, den Standort zurückzubringen.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>Die Datenbank „%1“ enthält keinen Standort, oder Sie dürfen ihn nicht lesen. Bitten Sie ihren Administrator um die Rolle ko_viewer oder ko_editor; aus einer leeren Datenbank wird mit koclient --share ein Standort.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>Der Standort „%1“ wurde mit einer anderen Version dieses Programms angelegt. Installieren Sie diese Version auf diesem Computer, oder lassen Sie den Standort aktualisieren.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>Sie dürfen den Standort „%1“ nur lesen, aber auf diesem Computer gibt es Änderungen, die dort fehlen. Bitten Sie seinen Administrator um die Rolle ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>In diese Kopie des Standorts „%1“ wurde eine Sicherung zurückgespielt, was anderen Arbeitsplätzen nicht mitgeteilt werden kann. Sie wird nicht mehr gemeinsam benutzt.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>Nicht mehr gemeinsam...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Verbunden, nur lesen</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>%n Änderung wird gesendet</numerusform>
            <numerusform>%n Änderungen werden gesendet</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Wird abgeglichen</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Server nicht erreichbar seit %1, %n Änderung wartet</numerusform>
            <numerusform>Server nicht erreichbar seit %1, %n Änderungen warten</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Server nicht erreichbar seit %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>Der Server des Standorts „%1“ ist nicht erreichbar. Sie können weiterarbeiten: Was Sie ändern, wartet auf diesem Computer und wird gesendet, sobald der Server wieder da ist.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>Sie sehen den Standort „%1“, wie andere ihn ändern, und dürfen ihn selbst nicht ändern.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>Sie teilen den Standort „%1“ mit anderen.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>Der Standort „%1“ ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>Warten auf den Server...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Senden: noch %n Änderung</numerusform>
            <numerusform>Senden: noch %n Änderungen</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Empfangen: %1 von %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>Der Standort „%1“ stellt seine Vergangenheit anders dar, als er sie diesem Arbeitsplatz früher dargestellt hat: Sein Verlauf wurde auf dem Server verändert. Es wird nichts mehr an ihn gesendet oder von ihm übernommen. Zeigen Sie dies seinem Administrator; die Kopie auf diesem Computer hat den Verlauf, wie er war.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>Die Kopie des Standorts „%1“ auf diesem Computer kann nicht gelesen oder geschrieben werden. Prüfen Sie, ob der Datenträger funktioniert und Platz hat, und starten Sie das Programm neu.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>Der Server des Standorts „%1“ hat eine Anfrage dieses Computers abgelehnt. Änderungen, die er noch nicht erhalten hat, bleiben hier gespeichert. Zeigen Sie seinem Administrator, was der Server gemeldet hat, und starten Sie das Programm neu, wenn das Problem behoben ist.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Eine neue Passphrase für den Standort „%1“:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Noch einmal:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Die beiden Passphrasen sind nicht gleich.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>Die Passphrase des Standorts „%1“:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>Die Passphrase des Standorts wurde nicht angegeben. Passwörter werden nicht gelesen und können nicht gespeichert werden. Geben Sie sie in einem Terminal ein, oder setzen Sie die Variable KO_SITE_PASSPHRASE.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>Der Schlüssel kann auf diesem Computer nicht aufbewahrt werden, weil der Schlüssel dieser Installation fehlt. Sie werden beim nächsten Mal wieder nach der Passphrase gefragt.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>Das ist nicht die Passphrase des Standorts.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Eine Passphrase braucht mindestens %n Zeichen.</numerusform>
            <numerusform>Eine Passphrase braucht mindestens %n Zeichen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>Der Standort hat noch keinen Schlüssel.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Jemand anderes hat den Schlüssel oder seine Passphrase in diesem Moment geändert. Fragen Sie, welche Passphrase jetzt gilt.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Um den Schlüssel zu öffnen, ist mehr Speicher nötig, als dieser Computer hat oder von ihm verlangt werden darf.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Dieser Standort wurde eingerichtet, bevor seine Arbeitsplätze einen gemeinsamen Schlüssel hatten. Passwörter können erst gespeichert werden, wenn sein Administrator ihn mit koclient --share auf den neuesten Stand bringt.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>Dieser Computer hat den Schlüssel der Passwörter nicht. Sie werden leer angezeigt, und neue können nicht gespeichert werden, bis Sie die Passphrase des Standorts angeben.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>Der Standort hat noch keinen Schlüssel, mit dem seine Arbeitsplätze Passwörter verschlüsseln. Neue können erst gespeichert werden, wenn ihn jemand erzeugt.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Gemeinsame Datenbank</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Verbindung zu „%1“ wird hergestellt...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Passphrase ändern</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Passphrase des Standorts</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>Die Passwörter der Kameras an „%1“ sind mit einem Schlüssel verschlüsselt, den die Arbeitsplätze gemeinsam haben. Geben Sie die Passphrase des Standorts an, einmal auf diesem Computer. Ohne sie werden Passwörter leer angezeigt, und neue können nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>Der Standort „%1“ hat noch keinen Schlüssel, mit dem seine Arbeitsplätze die Passwörter der Kameras verschlüsseln. Denken Sie sich eine Passphrase aus mehreren Wörtern aus, und sagen Sie sie allen, die sie sehen sollen. Der Server bekommt sie nie: Wenn alle sie vergessen, können neue Arbeitsplätze die Passwörter nicht lesen.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>Arbeitsplätze, die den Schlüssel von „%1“ haben, behalten ihn, wenn nur die Passphrase geändert wird. Mit einem neuen Schlüssel werden alle Passwörter neu verschlüsselt, und jeder Arbeitsplatz wird nach der neuen Passphrase gefragt: Wählen Sie das, wenn ein Computer verloren ging.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Passphrase:</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>&amp;Bisherige Passphrase:</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Neue Passphrase:</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>&amp;Wiederholung:</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Auch einen neuen &amp;Schlüssel erzeugen</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>Die beiden neuen Passphrasen sind nicht gleich.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Einen Moment...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>Knotendatenbank</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Solange dieses Fenster geöffnet ist, geht keine Ihrer Eingaben verloren.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>Was als Ganzes noch gespeichert werden muss, gehört zu:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Änderungen sind nicht gespeichert</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>Änderungen &amp;verwerfen</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Alle Änderungen sind gespeichert.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Es gibt Änderungen, die nicht gespeichert werden konnten. Sie gehen verloren, wenn das Programm jetzt geschlossen wird.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>Knotendatenbank</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Änderungen werden gespeichert...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Kameralisten (*.csv);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Kameras importieren</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Kameras werden importiert...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Kameras exportieren</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>Auch die Passwörter schreiben? Wer die Datei lesen kann, kann dann jede Kamera darin verwenden.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Kameras werden exportiert...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>%n Kamera geschrieben.</numerusform>
            <numerusform>%n Kameras geschrieben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Die Liste wird gelesen...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>&amp;Rückgängig: „%1“</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>&amp;Wiederholen: „%1“</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Rückgängig...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>Was Sie eingegeben haben, ist noch nicht gespeichert.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>Weiter &amp;bearbeiten</translation>
    </message>
</context>
</TS>
