<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>&quot;%1&quot; ha già questo indirizzo e questa porta.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>Un indirizzo non contiene spazi.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>Non è un indirizzo IPv6 né un host con una porta.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>Un indirizzo IP ha quattro numeri da 0 a 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>Il nome di un host contiene solo lettere, cifre, punti e trattini.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Una porta è un numero da 1 a 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>Questo URL non contiene un host leggibile.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>nessuna rete IPv4 collegata</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>il sistema non fornisce un socket: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
</context>
<context>
    <name>CameraSurvey</name>
    <message>
        <source>Nothing was written, because these passwords cannot be read: %1. Unlock your keychain, bring the key file back, or leave the passwords out.</source>
        <translation>Non è stato scritto nulla perché queste password non possono essere lette: %1. Sbloccare il portachiavi, ripristinare il file della chiave o escludere le password.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Non c&apos;è alcun database.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>più dispositivi hanno questo indirizzo; indicare tipo, porta e canale</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>più dispositivi hanno questo nome; indicare l&apos;indirizzo</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>è un database e non è stato modificato.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossibile scrivere %1: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>contiene caratteri di controllo</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>supera i 1024 caratteri</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>contiene un&apos;interruzione di riga</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>contiene caratteri invisibili</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>non è un numero da 0 a 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>non è un numero da 1 a 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>non è yes, no, true, false, 1 o 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>non è un indirizzo MAC (dodici cifre esadecimali)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>non è IP device, URL camera o channel device, né un numero</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>non è un numero</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 L&apos;importazione si è fermata lì; è salvato solo ciò che è contato qui. Importare di nuovo il file per il resto.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 non è un file normale.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 è il database dei nodi stesso.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossibile leggere %1: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>%1 righe sono errate; questo non è un elenco di telecamere.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>Le password dell&apos;elenco (alla riga %1) non possono essere salvate perché manca la chiave che le cifra. Sbloccare il portachiavi, ripristinare il file della chiave o rendere scrivibile la cartella di configurazione. Non è stato importato nulla.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>Impossibile leggere la prima riga: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>i dispositivi di questo tipo non possono essere aggiunti qui</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>le cartelle di registrazione non possono essere aggiunte qui</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>impossibile aggiungere il dispositivo</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>ciò che si trova a questo indirizzo non è un dispositivo</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>il dispositivo a questo indirizzo non ha canali</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>impossibile modificare il dispositivo</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>La colonna &quot;%1&quot; è presente due volte.</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>Manca la colonna &quot;address&quot;. La prima riga deve contenere i nomi delle colonne.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>ci sono più celle che colonne</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>%1 errato: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>mancano sia il nome sia l&apos;indirizzo</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>un dispositivo di questo tipo non ha canali</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>non è né un nome host né un indirizzo IP</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>contiene più di un host; porta, SSL e utente hanno colonne proprie</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>riguarda lo stesso dispositivo della riga %1 e cambierebbe ciò che questa indica</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>il nuovo dispositivo non avrebbe un nome</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>Le password dell&apos;elenco (alla riga %1) non possono essere salvate, perché questo computer non ha la chiave del database condiviso. Indicarne prima la passphrase. Non è stato importato nulla.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Proprietà</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Proprietà di %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Proprietà di un nodo</numerusform>
            <numerusform>Proprietà di %n nodi</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Cartelle di registrazione</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Cartella di registrazione di %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Cartella di registrazione di una telecamera</numerusform>
            <numerusform>Cartelle di registrazione di %n telecamere</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Utenti e password</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Utente e password di %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Utente e password di un nodo</numerusform>
            <numerusform>Utente e password di %n nodi</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Aggiunta di nodi</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Aggiunta di %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Aggiunta di un nodo</numerusform>
            <numerusform>Aggiunta di %n nodi</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Rimozione di nodi</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Rimozione di %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Rimozione di un nodo</numerusform>
            <numerusform>Rimozione di %n nodi</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>Importazioni</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Importazione di %1</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>Dati delle telecamere</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>Dati di %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>Dati di una telecamera</numerusform>
            <numerusform>Dati di %n telecamere</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Nuovi indirizzi</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Nuovo indirizzo di %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Nuovo indirizzo di un dispositivo</numerusform>
            <numerusform>Nuovi indirizzi di %n dispositivi</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Ricerche</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Una ricerca ha trovato %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Una ricerca ha trovato un dispositivo</numerusform>
            <numerusform>Una ricerca ha trovato %n dispositivi</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Da cosa si riconoscono le telecamere</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Da cosa si riconosce %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Da cosa si riconosce una telecamera</numerusform>
            <numerusform>Da cosa si riconoscono %n telecamere</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Proxy globale</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Ambienti</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Nuovo database</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Backup ripristinato</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Ripristinato</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Modifica di una versione più recente</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Ripetuto: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Ripristinato: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Password cifrate di nuovo</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>La cella tra virgolette che inizia nel record della riga %1 non viene mai chiusa.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>Il record che inizia alla riga %1 supera 1 MiB.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>c&apos;è del testo dopo le virgolette di chiusura di una cella</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>Questo non è un file di testo (la riga %1 contiene dati binari). Salvare il file come testo UTF-8.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>La riga %1 supera 1 MiB.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>La riga %1 non è testo UTF-8. Salvare il file come UTF-8 e riprovare.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Impossibile leggere il file: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>impiega troppo tempo a rispondere</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>l&apos;indirizzo non è valido</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>non parla ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>non dice chi è</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>chiede una password e nessuna è salvata</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>chiede la password in chiaro</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>chiede la password in un modo sconosciuto</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>non indica immagini di questo canale</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>ha un endpoint diverso da prima</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>ha un&apos;area di autenticazione diversa da prima</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>ha un numero di serie diverso da prima</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>lì è stata rifiutata un&apos;altra password</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>nessuna risposta in tempo</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>la risposta è troppo lunga</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>rimanda a un altro luogo</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>ha un certificato diverso da prima</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>Il file &quot;%1&quot; non può essere usato: il suo nome non è un testo nella codifica di questo sistema. Rinominarlo.</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>Utente e password inseriti</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Indirizzo del proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Porta del proxy</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Utente del proxy</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Password del proxy</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Salva la password del proxy</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Testa pan/tilt</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Usa l&apos;anteprima remota</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Telecamera</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Salva la password</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Modalità di anteprima</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Dati di connessione predefiniti</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Frequenza fotogrammi predefinita</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Qualità JPEG predefinita</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Risoluzione predefinita</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Impostazione audio predefinita</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Percorso predefinito del file server</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Server di anteprima remota predefinito</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Ambiente attivo</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Usa il proxy</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Eccezioni del proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Ambienti</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Proxy globale</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nodo</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Dispositivo noto</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(assente)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(nascosta)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modificata</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>È già così.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>È stato modificato nel frattempo.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>Il nodo è stato rimosso.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>Ora lo usano altri.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Giorni di cronologia</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Megabyte di cronologia</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Voce di tipo sconosciuto &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Livello %1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Registro del programma</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Nuovo indirizzo accettato</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Dispositivo %1 spostato dall&apos;indirizzo %2 a %3, dove è stato trovato.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Dispositivi importati</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Dispositivi importati da %1: %2 aggiunti, %3 modificati, %4 righe rifiutate.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Modificato senza finestra di dialogo</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Aggiunto dal programma</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Rimosso dal programma</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Impostazioni modificate</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Proxy globale modificato</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Ambienti modificati</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Trovato da una ricerca</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Nuovi indirizzi accettati</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Annotato da cosa si riconoscono le telecamere</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Compilato con i dati delle telecamere</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Elenco importato</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Database creato</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Backup ripristinato</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Modificato da una versione più recente</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Cartelle di registrazione modificate</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Utenti e password modificati</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Ripristinato</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Dispositivo aggiunto</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Dispositivo rimosso</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Password in chiaro consentita</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Altro dispositivo accettato</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Dispositivo con nome %1 aggiunto.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Dispositivo con nome %1 rimosso.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Accettato come %1 un dispositivo diverso da prima.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>Consentito l&apos;invio in chiaro della password di %1.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>Cronologia sfoltita</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Dettagli delle modifiche fino al numero %1 tolti dalla cronologia: %2 righe.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 e %n altro</numerusform>
            <numerusform>%1 e altri %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>Ha cifrato di nuovo le password</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>L&apos;insieme di modifiche %1 è stato modificato.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>La riga %1 degli insiemi di modifiche è stata modificata.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>La voce %1 del registro di controllo è stata modificata.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>Manca l&apos;insieme di modifiche %1.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>Manca la riga %1 degli insiemi di modifiche.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>Manca la voce %1 del registro di controllo.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>L&apos;insieme di modifiche %1 è stato inserito da un altro programma.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>La riga %1 degli insiemi di modifiche è stata inserita da un altro programma.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>La voce %1 del registro di controllo è stata inserita da un altro programma.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>A partire dall&apos;insieme di modifiche %1 il registro è stato riscritto.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>A partire dalla riga %1 degli insiemi di modifiche il registro è stato riscritto.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>A partire dalla voce %1 del registro di controllo il registro è stato riscritto.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>A partire dall&apos;insieme di modifiche %1 il registro è sigillato con un&apos;altra chiave.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>A partire dalla riga %1 degli insiemi di modifiche il registro è sigillato con un&apos;altra chiave.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>A partire dalla voce %1 del registro di controllo il registro è sigillato con un&apos;altra chiave.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>Ciò che seguiva l&apos;insieme di modifiche %1 è stato tagliato.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>Ciò che seguiva la riga %1 degli insiemi di modifiche è stato tagliato.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>Ciò che seguiva la voce %1 del registro di controllo è stato tagliato.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>Non è il registro visto qui in precedenza.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>Un indirizzo MAC ha dodici cifre esadecimali, come 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>il servizio Avahi non è in esecuzione</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>il servizio Avahi non risponde</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>tutte le interfacce</translation>
    </message>
</context>
<context>
    <name>NodeFacts</name>
    <message>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>Versione software</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>Indirizzo MAC</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Indirizzi IP attuali</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Indirizzo IP di fabbrica</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Streaming live (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Risoluzioni</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Pan, tilt, zoom</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
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
        <translation>Generale</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Opzioni di layout</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Registrazioni</translation>
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
        <translation>Telecamere</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>Cartella di registrazione</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>Telecamera IP</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>Telecamera URL</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>Dispositivo multicanale</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Registratore interno</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Server di anteprima remota</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Nodo di tipo %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Anteprima remota di %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Questo nodo è stato rimosso nel frattempo. Le modifiche non possono essere salvate: chiudere questa finestra.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>non indica alcun indirizzo di un&apos;immagine</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>l&apos;indirizzo della sua immagine contiene una password in chiaro</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>ciò che invia non è un&apos;immagine</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>rifiuta l&apos;immagine</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>chiede una password e nessuna è salvata</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>le sue immagini hanno un&apos;area di autenticazione diversa da quella del dispositivo</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>chiede la password in un modo sconosciuto</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>chiede la password in chiaro</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Percorso:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>Il percorso è sotto il percorso predefinito del file server</translation>
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
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleziona cartella</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(vuoto)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(diversi)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>&quot;%1&quot; non è un database dei nodi ma un file di altro tipo. Non è stato modificato. Scegliere il file del proprio database, o un nuovo nome di file per iniziare con uno vuoto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>&quot;%1&quot; è il database di un altro programma e non contiene nodi. Non è stato modificato. Scegliere il proprio database dei nodi, o un nuovo nome di file per iniziare con uno vuoto.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>Le tabelle del database dei nodi &quot;%1&quot; sono state modificate da un altro programma e non sono più affidabili. Non è stato modificato. Sostituirlo con una copia di backup.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>Il database dei nodi &quot;%1&quot; è vuoto o assente, ma il suo registro o i suoi backup ci sono ancora. Non è stato modificato nulla. Ripristinare un backup, o scegliere un nuovo nome di file per iniziare con uno vuoto.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>Il database dei nodi &quot;%1&quot; è danneggiato. Non è stato modificato. Ripristinare un backup; quelli creati da questo programma sono nella cartella &quot;%1.backups&quot;.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>Il database dei nodi &quot;%1&quot; è stato scritto da una versione più recente di questo programma. Installare quella versione su questo computer, o aprire la copia di backup che ha creato nella stessa cartella.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>Il database dei nodi &quot;%1&quot; non può essere modificato perché il file o la sua cartella sono protetti da scrittura. Chiedere all&apos;amministratore il permesso di scrittura, o copiare il database in una propria cartella e aprire la copia.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>Il database dei nodi &quot;%1&quot; è trattenuto da un altro programma. Chiudere quel programma, o attendere che il suo backup o la sua copia siano terminati, e riprovare.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>Non c&apos;è più spazio per il database dei nodi &quot;%1&quot;. Eliminare da questo disco i file non necessari e riprovare.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>Impossibile aprire il database dei nodi &quot;%1&quot;. Controllare che la sua cartella esista, che il disco o l&apos;unità di rete sia collegata e di poter leggere il file.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>&quot;%1&quot; è una cartella, un dispositivo o una pipe e non può contenere un database dei nodi. Non è stato modificato nulla. Scegliere un altro file.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>&quot;%1&quot; è il database dei nodi stesso e non è stato modificato. Scegliere un altro file per la copia.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Alcune password del database dei nodi &quot;%1&quot; non possono essere lette e appaiono vuote, perché manca la chiave con cui sono state cifrate. Sbloccare il portachiavi o ripristinare il file della chiave e riavviare il programma. Restano nel database finché non se ne impostano di nuove.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Alcune password del database dei nodi &quot;%1&quot; non sono state modificate da questo programma e appaiono vuote. Restano nel database finché non se ne impostano di nuove. Scoprire chi può scrivere nel file, o tornare a un backup.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>Non è possibile salvare password nel database dei nodi &quot;%1&quot;, perché la chiave che le cifra non si trova né nel portachiavi né in un file, e non può esservi conservata. Sbloccare il portachiavi, ripristinare il file della chiave o rendere scrivibile la cartella di configurazione, e riprovare.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>Il database dei nodi &quot;%1&quot; non può essere letto o scritto. Controllare che il disco o l&apos;unità di rete sia collegata e riprovare.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Alcune password del database condiviso in &quot;%1&quot; non possono essere lette e appaiono vuote, perché questo computer non ha la chiave con cui sono state cifrate. Fare clic sullo stato della connessione nella barra di stato e indicare la passphrase del sito. Restano nel database finché non se ne indicano di nuove.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>Le password non possono essere salvate nel database condiviso in &quot;%1&quot;, perché questo computer non ha la chiave del sito. Fare clic sullo stato della connessione nella barra di stato, indicare la passphrase del sito e riprovare.</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>Telecamere:</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>In questa vista:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Cerca telecamere</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Telecamere che non sono in questa vista</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Telecamere di questa vista</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Togli</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>nessuna rete accetta il multicast</translation>
    </message>
</context>
</TS>
