<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Toevoegen en v&amp;olgende</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Gezien op een nieuw adres</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Deze apparaten lijken nu op een ander adres te antwoorden. Accepteer alleen wat u verwacht: gebruikersnaam en wachtwoord worden vanaf dan naar het nieuwe adres gestuurd.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Apparaten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Oud adres</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Nieuw adres</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC-adres</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>Selectie &amp;accepteren</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>A&amp;lles accepteren</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>Selectie &amp;negeren</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>Knooppunt</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Wat</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Voorheen</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Daarna</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>Knooppuntdatabase</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; staat op een netwerkstation. Twee programma&apos;s die hem daar tegelijk gebruiken, kunnen hem beschadigen. Verplaats hem naar een schijf van deze computer.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 is voor vensters, en hier wordt er geen geopend.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, regel %2: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>De kolom &quot;%1&quot; wordt niet gebruikt.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschreven</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>%1 zonder naam en adres weggelaten</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Gebruikt deze taal, bijvoorbeeld de of pt_BR, ongeacht wat elders is gekozen.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Voegt de camera&apos;s van een lijst (CSV) toe en stopt. Er is geen venster nodig.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Schrijft alle camera&apos;s naar een lijst (CSV) en stopt.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Laat de wachtwoorden weg bij --export.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Kopieert de database, die in gebruik mag zijn, naar een bestand en stopt.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Geeft de database, die in gebruik mag zijn, de inhoud van een reservekopie en stopt. De huidige inhoud wordt als reservekopie bewaard.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Onverwacht argument: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>De waarde na --%1 is leeg.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>%1 items bekeken, %2 ouder dan de keten, %3 schakels zonder zegel</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Kijkt of iemand de logboeken van de database heeft gewijzigd, noemt wat en stopt.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>Details tot en met wijziging nummer %1 zijn verwijderd</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>%1 details verwijderd, tot en met wijziging nummer %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>Niet verder: de geschiedenis is gewijzigd. --verify-log noemt wat.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Haalt uit de geschiedenis wat er voor en na elke wijziging was die ouder is dan zoveel dagen, en stopt. Wie iets heeft gewijzigd en wanneer blijft.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history verwacht een aantal dagen.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Toont, voegt toe, bewerkt en verwijdert de knooppunten van een videobewakingssysteem.
Zonder een optie die iets doet en stopt, zoals --import, wordt een venster geopend en gelden ook de opties van de toolkit (-platform, -style en andere).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Opent deze knooppuntdatabase: een bestand, dat wordt gemaakt als het er niet is, of een gedeelde, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Brengt de database met zijn geschiedenis naar een lege op een server, waarvan het adres volgt (postgresql://user@host/database), en stopt. Opnieuw aangeroepen gaat het verder.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>Na --share FILE komt het adres van een database, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>In een gedeelde database kan geen back-up worden teruggezet.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>%1 toegevoegd, %2 bijgewerkt, %3 ongewijzigd, %n regel met fouten</numerusform>
            <numerusform>%1 toegevoegd, %2 bijgewerkt, %3 ongewijzigd, %n regels met fouten</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Auditlogboek</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Items</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Zoeken:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>In geschiedenis tonen...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Gebruiker</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Wat</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (er is niets gewijzigd)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Terug naar</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Toont alle knooppunten zoals ze waren, in een eigen venster. Daardoor wordt niets gewijzigd; wat daar wordt getoond, kan worden teruggedraaid.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>Niet later dan:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Zoals het was nadat dit was gedaan:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Wat er is gedaan</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Tonen</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>het wachtwoord kan niet worden gelezen</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>het vraagt niet om een wachtwoord</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>het is tijdens de controle gewijzigd</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>Er worden al camera&apos;s gecontroleerd.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>Er is geen camera met een adres om te controleren.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>Bij elke één keer proberen?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>&amp;Proberen</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>De controle is geannuleerd.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>&amp;Rapport...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>%1 van %2 camera&apos;s accepteerden het wachtwoord.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>%1 van %2 camera&apos;s antwoorden zoals het hoort.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>Geen van de geselecteerde camera&apos;s bleek een ander apparaat te zijn: Netwerk &gt; Camera&apos;s controleren stelt dat vast.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Andere apparaten accepteren</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>Er antwoordde %n apparaat dat niet het tot nu toe bekende is. Accepteer het alleen als u weet waarom, bijvoorbeeld na een vervanging of een nieuw certificaat: vanaf de volgende controle ontvangt het de opgeslagen gebruikersnaam en het wachtwoord.</numerusform>
            <numerusform>Er antwoordden %n apparaten die niet de tot nu toe bekende zijn. Accepteer ze alleen als u weet waarom, bijvoorbeeld na een vervanging of een nieuw certificaat: vanaf de volgende controle ontvangen ze de opgeslagen gebruikersnaam en het wachtwoord.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accepteren</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>%n apparaat geaccepteerd.</numerusform>
            <numerusform>%n apparaten geaccepteerd.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>&amp;Controleren</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>Geen van de geselecteerde camera&apos;s wil een onversleuteld wachtwoord: Netwerk &gt; Camera&apos;s controleren stelt dat vast.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n apparaat accepteert het wachtwoord alleen onversleuteld. Zonder SSL kan wie onderweg meeluistert het lezen en gebruiken voor alle camera&apos;s met hetzelfde wachtwoord. Sta het alleen toe waar het netwerk van uzelf is. Het geldt zolang de camera zijn adres en poort houdt.</numerusform>
            <numerusform>%n apparaten accepteren het wachtwoord alleen onversleuteld. Zonder SSL kan wie onderweg meeluistert het lezen en gebruiken voor alle camera&apos;s met hetzelfde wachtwoord. Sta het alleen toe waar het netwerk van uzelf is. Het geldt zolang de camera zijn adres en poort houdt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Onversleutelde wachtwoorden toestaan</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Toestaan</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>Naar %n apparaat mag het wachtwoord onversleuteld worden gestuurd.</numerusform>
            <numerusform>Naar %n apparaten mogen de wachtwoorden onversleuteld worden gestuurd.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>Zodra de camera is gecontroleerd (F5), staat hier het beeld.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>Het wachtwoord kan niet worden gelezen.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Ander apparaat dan voorheen</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Geblokkeerd</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Onjuist wachtwoord</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Wil een onversleuteld wachtwoord</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Geen antwoord</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Niet begrepen</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Niet gecontroleerd</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Antwoordt</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>Verwijderd door %1 op %2. Wat u hier invoert kan niet worden opgeslagen; Bewerken &gt; Geschiedenis zet het knooppunt terug.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Intussen gewijzigd door %1 op %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 op %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>Wordt nu ook bewerkt door %1.</translation>
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
        <translation>Gecontroleerde camera&apos;s</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Ann&amp;uleren</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Deze regel verbergen</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Gecontroleerde camera&apos;s: %1 van %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Gecontroleerde camera&apos;s</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Camera&apos;s</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>Ook die &amp;antwoorden tonen</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>In &amp;lijst tonen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopiëren</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Opslaan als...</translation>
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
            <numerusform>%n knooppunt weggelaten, dat geen apparaat is of geen adres heeft.</numerusform>
            <numerusform>%n knooppunten weggelaten, die geen apparaten zijn of geen adres hebben.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabellen (*.csv);;Alle bestanden (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 is niet geschreven: %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Reden</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>Als de server die heeft</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Altijd</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Altijd, met controle van het certificaat</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nooit</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Verbinden met een gedeelde database</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Recent:</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Server:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Poort:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Database:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Gebruiker:</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>&amp;Wachtwoord:</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>&amp;Versleuteling:</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>Wachtwoord &amp;onthouden</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testen</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Verbinding wordt gemaakt...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>De database kan worden gelezen en gewijzigd.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>De database kan worden gelezen, maar niet door u worden gewijzigd.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>Het wachtwoord kan niet worden onthouden, omdat de sleutel die wachtwoorden verzegelt ontbreekt. De volgende keer wordt er weer om gevraagd.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Reservekopie terugzetten</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Alles in deze database wordt vervangen door de inhoud van &quot;%1&quot;, voor iedereen die hem gebruikt. Wat er nu in staat, wordt eerst als reservekopie bewaard.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Terugzetten</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Nieuwe knooppuntdatabase</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>&quot;%1&quot; bestaat al. Open die in plaats daarvan of kies een andere naam.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Reservekopie maken</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>De database wordt gekopieerd...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>De database is gekopieerd naar &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>De reservekopie wordt teruggezet...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>De database heeft nu de inhoud van &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Een gedeelde database wordt op de server teruggezet. Vraag de beheerder ervan.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>Er kan niets van worden gelezen.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>Er kan nog %n knooppunt van worden gelezen.</numerusform>
            <numerusform>Er kunnen nog %n knooppunten van worden gelezen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>Er is geen goede reservekopie.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>De nieuwste goede reservekopie is gemaakt op %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Als u een van deze kiest, wordt het beschadigde bestand onder een andere naam bewaard. Anders wordt niets gewijzigd.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>Knooppuntdatabase</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>De knooppuntdatabase is beschadigd. Er wordt gezocht naar wat leesbaar is en naar reservekopieën...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>Een andere &amp;openen...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>O&amp;pnieuw</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>&amp;Leeg beginnen</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>Leesbare ge&amp;bruiken</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>&amp;Reservekopie terugzetten</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; is beschadigd.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>De tabellen van de knooppuntdatabase &quot;%1&quot; zijn door een ander programma gewijzigd.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; is leeg of verdwenen, hoewel er iets in stond.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>De knooppuntdatabase &quot;%1&quot; is beschadigd, of er staat een ander bestand op zijn plaats.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Knooppuntdatabase openen</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Knooppuntdatabases (*.kodb);;Alle bestanden (*)</translation>
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
        <translation>Toont naast de lijst wat het geselecteerde knooppunt is</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Selecteer een knooppunt in de lijst om hier te zien wat het is.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>%n knooppunt geselecteerd</numerusform>
            <numerusform>%n knooppunten geselecteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>Wat het eerste heeft:</numerusform>
            <numerusform>Wat de eerste %n gemeen hebben:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>verschillend</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>het heeft geen adres</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>het wachtwoord kan niet worden gelezen</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>het is intussen verwijderd</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>het is niet gevraagd</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Toegang tot opnamen</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>Het fabrieks-IP-adres van %n van de geselecteerde camera&apos;s is niet bekend:</numerusform>
            <numerusform>Het fabrieks-IP-adres van %n van de geselecteerde camera&apos;s is niet bekend:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>Hun opnamen kunnen via de camera worden afgespeeld. Op een bestandsserver wordt de map van een camera echter naar dit adres genoemd: met het standaardpad zouden deze camera&apos;s één map zonder naam delen, met een specifiek pad zouden ze hun huidige pad verliezen. Een camera die antwoordt en zijn wachtwoord accepteert, meldt waarnaar zijn map kan worden genoemd.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>Camera&apos;s &amp;vragen...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Weglaten</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>&amp;Doorgaan met alle</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Gebruiker &amp; wachtwoord</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>Het %n geselecteerde apparaat heeft niet dezelfde gebruikersnaam en hetzelfde wachtwoord: er zijn %1 gebruikersnamen en %2 wachtwoorden.</numerusform>
            <numerusform>De %n geselecteerde apparaten hebben niet dezelfde gebruikersnaam en hetzelfde wachtwoord: er zijn %1 gebruikersnamen en %2 wachtwoorden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>Het volgende venster begint met die van het eerste apparaat en geeft ze allemaal wat het toont wanneer u op OK klikt:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>Alle &amp;hetzelfde geven...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n apparaat: toegang tot opnamen ingesteld.</numerusform>
            <numerusform>%n apparaten: toegang tot opnamen ingesteld.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n is niet gewijzigd.</numerusform>
            <numerusform>%n zijn niet gewijzigd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n apparaat: gebruikersnaam en wachtwoord ingesteld.</numerusform>
            <numerusform>%n apparaten: gebruikersnaam en wachtwoord ingesteld.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n apparaat)</numerusform>
            <numerusform>%1 (%n apparaten)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>Alleen IP-camera&apos;s kunnen samen worden ingesteld. Selecteer de andere één voor één.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Eigenschappen van %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>%n knooppunt bewerken</numerusform>
            <numerusform>%n knooppunten bewerken</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>Wat u hier wijzigt, wijzigt bij al deze. Wat niet bij alle gelijk is, wordt als verschillend getoond en blijft, tenzij u het wijzigt.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Wijzigingen worden bepaald...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Alle knooppunten tonen</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>De knooppunten worden gelezen...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>Er staat nog niets in deze database.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Geen knooppunt voldoet daaraan.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Een lijst met camera&apos;s importeren...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Apparaten in het netwerk zoeken...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Een camera toevoegen...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>Er is geen naam en geen adres ingevuld.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>Er is geen naam ingevuld.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>&quot;%1&quot; heeft dit adres, deze poort en dit kanaal al.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>Zo opslaan?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>Zo &amp;opslaan</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>Verder be&amp;werken</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>Omgeving: %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>De netwerkomgeving van het hele programma</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>De omgeving van het hele programma is nu &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Terug naar &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>De omgeving is weer &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Invullen</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>&amp;Ook vervangen wat misschien met de hand is ingevoerd</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Gevraagde apparaten</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>Wat de apparaten meldden</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>%n apparaat wordt gevraagd. Er wordt nog niets opgeslagen.</numerusform>
            <numerusform>%n apparaten worden gevraagd. Er wordt nog niets opgeslagen.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Er is niets in te vullen.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>Dit melden de apparaten en is nog niet opgeslagen. OK slaat op wat is aangevinkt.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n apparaat meldde niets:</numerusform>
            <numerusform>%n apparaten meldden niets:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>%n apparaat ingevuld.</numerusform>
            <numerusform>%n apparaten ingevuld.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Wat</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Straks</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Alleen van &quot;%1&quot;</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Alleen van het geselecteerde knooppunt</numerusform>
            <numerusform>Alleen van de %n geselecteerde knooppunten</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Wat er is gedaan</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Wat dat heeft gewijzigd</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Er wordt verder gezocht...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Niets gevonden.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>Er is meer: schuif omlaag.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>Dit is alles.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>een geselecteerde wijziging</numerusform>
            <numerusform>%n geselecteerde wijzigingen</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Teruggedraaid: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Alleen wat tot en met het item van het auditlogboek is gedaan</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>Wat er is gedaan:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>Wat dat heeft gewijzigd:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Terugdraaien...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Geselecteerde wijzigingen terugdraaien...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exporteren...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Terug tot hier...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Bewaren...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>De details zijn uit de geschiedenis gehaald: terugdraaien is niet mogelijk.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Geschiedenis exporteren</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Lijsten (*.csv);;Alle bestanden (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>De geschiedenis is niet geschreven: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>De geschiedenis wordt geëxporteerd...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Tot</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>Knooppunten, waarden, wat er is gedaan</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Alle soorten</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Alle eigenschappen</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Zoeken:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Gebruiker:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Soort:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Eigenschap:</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Van:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Tot:</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>Geschiedenis bewaren</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>De details van een wijziging zijn wat er ervoor en erna was. Zonder die kan ze niet worden getoond of teruggedraaid. Wie iets heeft gewijzigd, wanneer en waarvoor blijft altijd bewaard, net als het auditlogboek.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Details verwijderen die &amp;ouder zijn dan</translation>
    </message>
    <message>
        <source> days</source>
        <translation> dagen</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dagen</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>De oudste details verwijderen als er &amp;meer zijn dan</translation>
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
        <translation>Dit gebeurt een minuut na het starten van het programma en om de zes uur.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Gebruiker</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Werkstation</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Wat er is gedaan</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knooppunten</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Regel %1: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Niet-gebruikte kolommen: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>Het importeren is geannuleerd. Wat tot dan toe is toegevoegd, blijft behouden.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Camera&apos;s importeren</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n regel met fouten zou worden weggelaten.</numerusform>
            <numerusform>%n regels met fouten zouden worden weggelaten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n regel is misschien anders bedoeld.</numerusform>
            <numerusform>%n regels zijn misschien anders bedoeld.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importeren</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>%1 toegevoegd, %2 bijgewerkt, %3 ongewijzigd, %n regel met fouten.</numerusform>
            <numerusform>%1 toegevoegd, %2 bijgewerkt, %3 ongewijzigd, %n regels met fouten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>Het importeren van deze lijst zou %n apparaat toevoegen, %1 wijzigen en %2 laten zoals ze zijn.</numerusform>
            <numerusform>Het importeren van deze lijst zou %n apparaten toevoegen, %1 wijzigen en %2 laten zoals ze zijn.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>Wachten op de sleutelbos. Ontgrendel hem als hij daarom vraagt.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Sleutelbos</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>Wachten op uw sleutelbos.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>Hij bevat de sleutel van de opgeslagen wachtwoorden. Ontgrendel hem als hij daarom vraagt.

Zonder de sleutel worden opgeslagen wachtwoorden leeg weergegeven en kunnen geen nieuwe worden opgeslagen.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>&amp;Doorgaan zonder wachtwoorden</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Taal</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>&amp;Zoals het systeem</translation>
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
        <translation>1 groot + 5</translation>
    </message>
    <message>
        <source>1 large + 7</source>
        <translation>1 groot + 7</translation>
    </message>
</context>
<context>
    <name>LogNotice</name>
    <message>
        <source>The log was altered</source>
        <translation>Het logboek is gewijzigd</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>En nog %n; koclient --verify-log noemt die.</numerusform>
            <numerusform>En nog %n; koclient --verify-log noemt ze.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Iemand heeft het logboek van de knooppuntdatabase met een ander programma gewijzigd:</translation>
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
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importeren...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Voegt de camera&apos;s van een locatie-inventarisatie (CSV) toe</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporteren...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Schrijft alle camera&apos;s naar een CSV-bestand</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>&amp;Selectie exporteren...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Schrijft de geselecteerde camera&apos;s naar een CSV-bestand</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Voorkeuren...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Standaardpaden en bandbreedte</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Afsluiten</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Sluit het programma</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Knooppunt</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Toevoegen...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Voegt een knooppunt toe</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bewerken...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Verwijderen...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Verwijdert de geselecteerde knooppunten</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Eigenschappen</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Toont het geselecteerde knooppunt zonder het te wijzigen</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>&amp;Gebruiker &amp;&amp; wachtwoord...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Geeft de geselecteerde apparaten één gebruikersnaam en wachtwoord</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Toegang tot &amp;opnamen...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>Waarvandaan de opnamen van de geselecteerde camera&apos;s worden afgespeeld</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>&amp;Invullen...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Vraagt de geselecteerde apparaten wat ze zijn en slaat op wat u daarvan kiest</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Dupliceren...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Voegt een knooppunt toe dat gelijk is aan het geselecteerde</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>&amp;Webpagina openen</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Opent de pagina van het geselecteerde apparaat in de browser</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>&amp;Rijen kopiëren</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Kopieert de geselecteerde rijen voor een spreadsheet</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>&amp;Adres kopiëren</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Kopieert de adressen van de geselecteerde knooppunten</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Netwerk</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>Netwerk&amp;proxy...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>De proxyserver van de toepassing</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>&amp;Omgevingen...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>De netwerkomgevingen</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>Apparaten &amp;zoeken...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Knooppunten die binnenkomen terwijl het netwerk wordt gescand</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>&amp;Gezien op een nieuw adres...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Apparaten die een scan op een ander adres heeft gevonden dan ze hier hebben</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>&amp;Camera&apos;s controleren</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Vraagt de geselecteerde camera&apos;s, of alle, wie ze zijn en probeert hun wachtwoorden</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>&amp;Accepteren als deze camera...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Een ander apparaat dan voorheen is vanaf nu deze camera</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Bee&amp;ld</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Kolommen...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Welke kolommen de lijst heeft</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>&amp;Auditlogboek...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Wie wat wanneer heeft gewijzigd</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>Knooppunt&amp;database...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Alles wat is opgeslagen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Over</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Via de camera</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Standaardpad op de bestandsserver</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>%n apparaat gezien op een nieuw adres: Netwerk &gt; Gezien op een nieuw adres</numerusform>
            <numerusform>%n apparaten gezien op een nieuw adres: Netwerk &gt; Gezien op een nieuw adres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Knooppunten</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Zoeken (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Woorden in elke kolom; &quot;type:camera&quot; zoekt in één, &quot;status:onjuist|geblokkeerd&quot; naar een van beide, &quot;-binnenplaats&quot; laat weg</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Alle typen</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> T&amp;ype: </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Knooppunten</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>Er is geen camera geselecteerd. Selecteer eerst een of meer in de lijst.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>Knooppunten van dit type kunnen niet worden toegevoegd.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>Dit knooppunt heeft geen adres. Apparaten krijgen het onder Knooppunt &gt; Bewerken.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n rij gekopieerd.</numerusform>
            <numerusform>%n rijen gekopieerd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>%n adres gekopieerd.</numerusform>
            <numerusform>%n adressen gekopieerd.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>Over</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Toont, voegt toe, bewerkt en verwijdert de knooppunten van een videobewakingssysteem.&lt;/p&gt;&lt;p&gt;Vrije software onder de GNU LGPL 2.1 of later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>O&amp;nversleuteld wachtwoord toestaan...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>Camera&apos;s die het niet anders accepteren krijgen het wachtwoord voor iedereen leesbaar toegestuurd</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Toont wat het laatst is gewijzigd en draait het terug</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Doet opnieuw wat het laatst ongedaan is gemaakt</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Geschiedenis...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>Wat er door wie is gedaan, en draait het terug</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>Geschiedenis van &amp;selectie...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>Wat er met de geselecteerde knooppunten is gedaan</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>&amp;Terug naar...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Toont alle knooppunten zoals ze eerder waren en draait ze terug</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Wijzigt de geselecteerde knooppunten</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>Voorbeeld bij wi&amp;jziging van meerdere</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Toont wat er met meerdere knooppunten zou gebeuren voordat het wordt opgeslagen</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>%n knooppunt bewerkt.</numerusform>
            <numerusform>%n knooppunten bewerkt.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>Ver&amp;binden...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Opent een database die met andere werkstations wordt gedeeld</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Nieuw...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Maakt een lege knooppuntdatabase en opent die</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Openen...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Opent een andere knooppuntdatabase</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>Reserve&amp;kopie maken...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Kopieert de knooppuntdatabase naar een bestand</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>&amp;Terugzetten...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Geeft de knooppuntdatabase de inhoud van een reservekopie</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>&amp;Locatie en tags...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Waar de geselecteerde apparaten zijn en hoe ze gegroepeerd zijn</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handleiding</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Legt uit waar het voorste venster voor dient</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>&quot;%1&quot; is toegevoegd.</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - Knooppuntdatabase</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Apparaten: %1, andere knooppunten: %2; getoond: %3, geselecteerd: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>&quot;%1&quot; is gewijzigd.</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Alleen knooppunten van één type kunnen samen worden bewerkt. &quot;Type&quot; boven de lijst toont die van één type.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>De webpagina van %1 kon niet worden geopend. Kies een browser in de instellingen van uw bureaublad.</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Handleiding</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>Zoeken in de handleiding (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina&apos;s</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Pagina van de handleiding</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Terug</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vooruit</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Geen enkele pagina bevat al deze woorden.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>De handleiding is in het Engels. Menu&apos;s en knoppen heten daarin zoals in het Engelse programma.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>Het wordt ingesteld in &quot;Bestand &gt; Voorkeuren&quot; van het hoofdvenster.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>Dit is wat &quot;Eigenschappen&quot; toont als fabrieks-IP-adres van de camera. &quot;Knooppunt &gt; Invullen&quot; van het hoofdvenster vraagt het aan de camera.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Typ een pad, of druk op &quot;Meer...&quot; en kies een van de mappen.</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>Wat</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Toen</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Gewijzigd</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Verwijderd</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Toegevoegd</translation>
    </message>
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
        <source>Since Then</source>
        <translation>Sindsdien</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>Zoals het was, %1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>De knooppunten zoals ze waren op %1, na &quot;%2&quot; door %3. Ze kunnen hier worden bekeken en teruggedraaid, maar niet bewerkt.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Alleen wat nu anders is</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Knooppunten:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Eigenschappen:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Knooppunten van toen</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Eigenschappen toen en nu</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>Wat is gelezen van wat sindsdien is gedaan</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Alles terugdraaien...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Selectie terugdraaien...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Lezen wat sindsdien is gedaan...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>Ook instellingen of omgevingen zijn anders.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n wijziging sindsdien past niet bij wat er nu is: wat daarvoor was, is niet bekend.</numerusform>
            <numerusform>%n wijzigingen sindsdien passen niet bij wat er nu is: wat daarvoor was, is niet bekend.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Terug naar %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Teruggedraaid: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Toen %n knooppunt, %1 nu anders; %2 getoond</numerusform>
            <numerusform>Toen %n knooppunten, %1 nu anders; %2 getoond</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(naamloos)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>en nog %n</numerusform>
            <numerusform>en nog %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>Wat ermee is gedaan:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>Wat dat heeft gewijzigd:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Wat er is gedaan</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Wat dat heeft gewijzigd</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Geschiedenis</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
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
        <source>Recording</source>
        <translation>Opname</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versie</translation>
    </message>
    <message>
        <source>MAC</source>
        <translation>MAC</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Poort</translation>
    </message>
    <message>
        <source>SSL</source>
        <translation>SSL</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Gebruiker</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanaal</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Tags</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Laatste wijziging</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Knooppunten</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Knooppunten verwijderen</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Knooppunten worden verwijderd...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>%n knooppunt verwijderd.</numerusform>
            <numerusform>%n knooppunten verwijderd.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Het beeld wordt opgehaald...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Gezien op %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Beeld van de camera</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Het beeld wordt opgehaald...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Gezien op %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Locatie en tags</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Locaties en tags worden opgeslagen...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n apparaat: locatie en tags ingesteld.</numerusform>
            <numerusform>%n apparaten: locatie en tags ingesteld.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Locatie en tags</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Waar is het geselecteerde apparaat? Schrijf het van buiten naar binnen, met een schuine streep ertussen: Locatie/Gebouw/Verdieping. Tags worden gescheiden door komma&apos;s.</numerusform>
            <numerusform>Waar zijn de %n geselecteerde apparaten? Schrijf het van buiten naar binnen, met een schuine streep ertussen: Locatie/Gebouw/Verdieping. Tags worden gescheiden door komma&apos;s.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Locatie:</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>&amp;Tags:</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(verschillend, blijven zoals ze zijn)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Locaties</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>&amp;Locaties</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Toont locaties, gebouwen en verdiepingen naast de lijst</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Locaties</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Alle knooppunten</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Apparaten zonder locatie</translation>
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
        <translation>Voorkeuren</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>Standaard&amp;pad op de bestandsserver:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Bladeren...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>Standaard&amp;server voor extern voorbeeld:</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>&amp;Verbinding:</translation>
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
    <message>
        <source>Default File Server Path</source>
        <translation>Standaardpad op de bestandsserver</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Locatie/gebouw/verdieping:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Tags, gescheiden door komma&apos;s:</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Terugdraaien</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: dit zou er wijzigen. OK draait terug wat is aangevinkt.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: hiervan kan niets meer worden teruggedraaid.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Wat er zou wijzigen</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Iemand anders heeft dit intussen gewijzigd; het blijft zoals het is:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Alles wat kan worden teruggedraaid</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: dit zou er wijzigen. OK wijzigt wat is aangevinkt.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: er zou niets wijzigen.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Alle wijzigingen</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>Knooppunt</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Wat</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Wordt</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Waarom niet</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>Wat er gewijzigd is</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Lezen wat er gewijzigd is...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>U mag deze gedeelde database bekijken, maar niet wijzigen. De beheerder kan u de rol ko_editor geven.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Alleen lezen</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Recent openen</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Er is nog geen andere database geopend</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Knooppunten verwijderen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Verwijderen</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>Dit knooppunt verwijderen? Bewerken &gt; Ongedaan maken haalt het terug.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Dit knooppunt verwijderen? Bewerken &gt; Ongedaan maken haalt het terug.</numerusform>
            <numerusform>Deze %n knooppunten verwijderen? Bewerken &gt; Ongedaan maken haalt ze terug.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>Niemand anders gebruikt %n opnamemap:</numerusform>
            <numerusform>Niemand anders gebruikt %n opnamemappen:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Ook de opname&amp;mappen verwijderen</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>&amp;Opgeslagen zoekopdrachten</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Opgeslagen zoekopdrachten</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Zoekopdrachten met een naam, en een naam voor deze</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>Deze zoekopdracht &amp;opslaan...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Geeft waarnaar nu wordt gezocht een naam</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>&amp;Hernoemen of verwijderen...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Geeft opgeslagen zoekopdrachten andere namen, en verwijdert ze</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Zoekopdracht opslaan</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Naam (een bestaande krijgt deze zoekopdracht):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Opgeslagen zoekopdrachten</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Opgeslagen zoekopdrachten</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Her&amp;noemen</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Verwijderen...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Er is al een zoekopdracht met deze naam, of de naam is leeg. Die is gelaten zoals hij was.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>De zoekopdracht &quot;%1&quot; verwijderen? De knooppunten die ze vindt blijven.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Verwijderen</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Apparaten zoeken</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>De scan heeft %n nieuw apparaat gevonden en aan de database toegevoegd:</numerusform>
            <numerusform>De scan heeft %n nieuwe apparaten gevonden en aan de database toegevoegd:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Behouden</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>Er weer &amp;uithalen</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>%n apparaat gevonden en toegevoegd.</numerusform>
            <numerusform>%n apparaten gevonden en toegevoegd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>%n apparaat er weer uitgehaald.</numerusform>
            <numerusform>%n apparaten er weer uitgehaald.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: inactief</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 van %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: zoekt</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: klaar</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: geannuleerd</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: niet beschikbaar (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Het bestand &quot;%1&quot; bestaat niet.</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>De geschiedenis van &quot;%1&quot; vertelt niet hoe alles erin is gekomen: het bestand is ouder dan de geschiedenis, of er is een back-up in teruggezet. Zo&apos;n bestand kan niet worden gedeeld; importeer de camera&apos;s in een nieuw bestand.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>U mag de locatie &quot;%1&quot; niet wijzigen. Vraag de beheerder om de rol ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>De locatie &quot;%1&quot; is niet leeg.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; hoort bij een andere locatie dan &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>De locatie wijkt af van het bestand: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>Het bestand of de locatie verandert voortdurend, dus ze konden niet worden vergeleken.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n rij met haar geschiedenis staat op &quot;%1&quot;, en is daar gelijk aan hier.</numerusform>
            <numerusform>%n rijen met hun geschiedenis staan op &quot;%1&quot;, en zijn daar gelijk aan hier.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>&quot;%1&quot; bevat wachtwoorden van een oudere versie die nog niet versleuteld zijn, omdat de sleutel van deze installatie ontbreekt. Breng die eerst terug.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>&quot;%1&quot; bevat wachtwoorden, waarvoor de sleutel van de locatie nodig is. Er is niets verzonden.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Gedeelde database</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Deze wijzigingen van u konden niet worden uitgevoerd, omdat iemand anders het knooppunt al had verwijderd. Bewerken &gt; Geschiedenis zet een verwijderd knooppunt terug.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Niet uitgevoerde wijzigingen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tijd</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Wijziging</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knooppunt</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Verwijderd door</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>Selectie &amp;negeren</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>Nieuwe &amp;kopie...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Opnieuw proberen</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 op %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Nieuwe kopie</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>Dit venster sluiten en een nieuwe kopie maken van wat nu op de server staat? Niet verzonden wijzigingen zitten er niet in; de huidige kopie, die ze bevat, blijft in de map &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>&amp;Wachtwoordzin...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n wijziging niet uitgevoerd</numerusform>
            <numerusform>%1, %n wijzigingen niet uitgevoerd</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, wachtwoordzin nodig...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>Op &quot;%1&quot; staat nu een andere locatie dan die waarvan dit een kopie is. Er is niets naartoe gestuurd. Als de server opnieuw is ingericht, vraag dan de beheerder de locatie terug te zetten.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>De database &quot;%1&quot; bevat geen locatie, of u mag die niet lezen. Vraag de beheerder om de rol ko_viewer of ko_editor; een lege database wordt een locatie met koclient --share.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>De locatie &quot;%1&quot; is met een andere versie van dit programma gemaakt. Installeer die versie op deze computer, of laat de locatie bijwerken.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>U mag de locatie &quot;%1&quot; alleen lezen, maar op deze computer zijn wijzigingen die daar ontbreken. Vraag de beheerder om de rol ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>In deze kopie van de locatie &quot;%1&quot; is een back-up teruggezet, wat andere werkstations niet kan worden meegedeeld. Ze wordt niet meer gedeeld.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>Niet meer gedeeld...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Verbonden, alleen lezen</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbonden</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>%n wijziging wordt verzonden</numerusform>
            <numerusform>%n wijzigingen worden verzonden</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Wordt bijgewerkt</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Server onbereikbaar sinds %1, %n wijziging wacht</numerusform>
            <numerusform>Server onbereikbaar sinds %1, %n wijzigingen wachten</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Server onbereikbaar sinds %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>De server van de locatie &quot;%1&quot; is niet bereikbaar. U kunt doorgaan: wat u wijzigt wacht op deze computer en wordt verzonden zodra de server er weer is.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>U ziet de locatie &quot;%1&quot; zoals anderen die wijzigen, en mag die zelf niet wijzigen.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>U deelt de locatie &quot;%1&quot; met anderen.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>De locatie &quot;%1&quot; is niet bereikbaar.</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>Wachten op de server...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Verzenden: nog %n wijziging</numerusform>
            <numerusform>Verzenden: nog %n wijzigingen</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Ontvangen: %1 van %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>De locatie &quot;%1&quot; geeft haar verleden anders weer dan ze eerder aan dit werkstation deed: haar geschiedenis is op de server gewijzigd. Er wordt niets meer naar verzonden of van overgenomen. Laat dit aan de beheerder zien; de kopie op deze computer heeft de geschiedenis zoals ze was.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>De kopie van de locatie &quot;%1&quot; op deze computer kan niet worden gelezen of geschreven. Controleer of de schijf werkt en ruimte heeft, en start het programma opnieuw.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>De server van de locatie &quot;%1&quot; heeft een verzoek van deze computer geweigerd. Wijzigingen die hij nog niet heeft ontvangen, blijven hier bewaard. Laat de beheerder zien wat de server meldde en start het programma opnieuw zodra het probleem is verholpen.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Een nieuwe wachtwoordzin voor de locatie &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Nogmaals:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>De twee wachtwoordzinnen zijn niet gelijk.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>De wachtwoordzin van de locatie &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>De wachtwoordzin van de locatie is niet opgegeven. Wachtwoorden worden niet gelezen en kunnen niet worden opgeslagen. Typ hem in een terminal, of stel de variabele KO_SITE_PASSPHRASE in.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>De sleutel kan op deze computer niet worden bewaard, omdat de sleutel van deze installatie ontbreekt. De volgende keer wordt u opnieuw om de wachtwoordzin gevraagd.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>Dat is niet de wachtwoordzin van de locatie.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Een wachtwoordzin heeft ten minste %n teken.</numerusform>
            <numerusform>Een wachtwoordzin heeft ten minste %n tekens.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>De locatie heeft nog geen sleutel.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Iemand anders heeft de sleutel of de wachtwoordzin zojuist gewijzigd. Vraag welke wachtwoordzin nu geldt.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Het openen van de sleutel vraagt meer geheugen dan deze computer heeft of dan ervan gevraagd mag worden.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Deze locatie is gemaakt voordat haar werkstations een sleutel deelden. Wachtwoorden kunnen pas worden opgeslagen als de beheerder haar met koclient --share bijwerkt.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>Deze computer heeft de sleutel van de wachtwoorden niet. Ze worden leeg weergegeven en nieuwe kunnen niet worden opgeslagen, totdat u de wachtwoordzin van de locatie opgeeft.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>De locatie heeft nog geen sleutel waarmee haar werkstations wachtwoorden versleutelen. Nieuwe kunnen pas worden opgeslagen als iemand hem maakt.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Gedeelde database</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Verbinding met &quot;%1&quot; wordt gemaakt...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Wachtwoordzin wijzigen</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Wachtwoordzin van de locatie</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>De wachtwoorden van de camera&apos;s op &quot;%1&quot; zijn versleuteld met een sleutel die de werkstations delen. Geef de wachtwoordzin van de locatie op, één keer op deze computer. Zonder die zin worden wachtwoorden leeg weergegeven en kunnen geen nieuwe worden opgeslagen.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>De locatie &quot;%1&quot; heeft nog geen sleutel waarmee haar werkstations de wachtwoorden van camera&apos;s versleutelen. Bedenk een wachtwoordzin van meerdere woorden, en vertel hem aan iedereen die ze mag zien. De server krijgt hem nooit: als iedereen hem vergeet, kunnen nieuwe werkstations de wachtwoorden niet lezen.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>Werkstations die de sleutel van &quot;%1&quot; hebben, houden die als alleen de wachtwoordzin wijzigt. Met een nieuwe sleutel worden alle wachtwoorden opnieuw versleuteld en wordt elk werkstation om de nieuwe wachtwoordzin gevraagd: kies dat als een computer verloren is gegaan.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Wachtwoordzin:</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>&amp;Huidige wachtwoordzin:</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Nieuwe wachtwoordzin:</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>He&amp;rhaling:</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Ook een nieuwe &amp;sleutel maken</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>De twee nieuwe wachtwoordzinnen zijn niet gelijk.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Een ogenblik...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>Knooppuntdatabase</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Zolang dit venster open is, gaat niets van uw invoer verloren.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>Wat nog moet worden opgeslagen, alles of niets, hoort bij:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Wijzigingen zijn niet opgeslagen</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>O&amp;pnieuw</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>Wijzigingen &amp;verwerpen</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Alle wijzigingen zijn opgeslagen.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Er zijn wijzigingen die niet konden worden opgeslagen. Ze gaan verloren als het programma nu wordt gesloten.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>Knooppuntdatabase</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Wijzigingen worden opgeslagen...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Lijsten met camera&apos;s (*.csv);;Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Camera&apos;s importeren</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Camera&apos;s importeren...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Camera&apos;s exporteren</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>Ook de wachtwoorden schrijven? Wie het bestand kan lezen, kan dan elke camera erin gebruiken.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Camera&apos;s exporteren...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>%n camera geschreven.</numerusform>
            <numerusform>%n camera&apos;s geschreven.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>De lijst wordt gelezen...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>&amp;Ongedaan maken: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Ongedaan maken</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>O&amp;pnieuw: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>O&amp;pnieuw</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Ongedaan gemaakt: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Opnieuw gedaan: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Ongedaan maken...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>Wat u hebt ingevoerd, is nog niet opgeslagen.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>Ver&amp;werpen</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>Verder be&amp;werken</translation>
    </message>
</context>
</TS>
