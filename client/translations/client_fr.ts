<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Ajouter et &amp;suivant</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Vus à une nouvelle adresse</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Ces appareils semblent maintenant répondre à une autre adresse. N&apos;acceptez que ce à quoi vous vous attendez : le nom d&apos;utilisateur et le mot de passe seront désormais envoyés à la nouvelle adresse.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Appareils</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Ancienne adresse</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Nouvelle adresse</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>Adresse MAC</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>&amp;Accepter la sélection</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>Accepter &amp;tout</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Rejeter la sélection</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>Nœud</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>Base de données des nœuds</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>La base de données de nœuds « %1 » se trouve sur un lecteur réseau. Deux programmes qui l&apos;y utilisent en même temps peuvent l&apos;endommager. Déplacez-la sur un disque de cet ordinateur.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 ne concerne que les fenêtres, et aucune n&apos;est ouverte ici.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, ligne %2 : %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>La colonne « %1 » n&apos;est pas utilisée.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 écrits</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>%1 sans nom ni adresse laissés de côté</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Utilise cette langue, par exemple de ou pt_BR, quel que soit le choix fait ailleurs.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Ajoute les caméras d&apos;une liste (CSV) et se termine. Aucune fenêtre n&apos;est nécessaire.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Écrit toutes les caméras dans une liste (CSV) et se termine.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Laisse les mots de passe hors de --export.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Copie la base de données, qui peut être en cours d&apos;utilisation, dans un fichier et se termine.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Donne à la base de données, qui peut être en cours d&apos;utilisation, le contenu d&apos;une sauvegarde et se termine. Le contenu actuel est conservé comme sauvegarde.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Argument inattendu : %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>La valeur après --%1 est vide.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>%1 entrées examinées, %2 antérieures à la chaîne, %3 maillons sans sceau</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Vérifie si quelqu&apos;un a modifié les journaux de la base de données, le signale et se termine.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>Les détails jusqu&apos;à la modification numéro %1 ont été retirés</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>%1 détails retirés, jusqu&apos;à la modification numéro %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>Pas plus loin : l&apos;historique a été modifié. --verify-log indique quoi.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Retire de l&apos;historique ce qu&apos;il y avait avant et après chaque modification plus ancienne que ce nombre de jours, puis se termine. Qui a modifié quelque chose et quand reste.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history attend un nombre de jours.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Affiche, ajoute, modifie et supprime les nœuds d&apos;un système de vidéosurveillance.
Sans option qui fait quelque chose puis se termine, comme --import, ouvre une fenêtre et accepte aussi les options de la boîte à outils (-platform, -style et autres).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Ouvre cette base de données de nœuds : un fichier, créé s&apos;il n&apos;existe pas, ou une base partagée, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Transfère la base de données et son historique dans une base vide d&apos;un serveur, dont l&apos;adresse suit (postgresql://user@host/database), et se termine. Un nouvel appel reprend le transfert.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>Après --share FILE vient l&apos;adresse d&apos;une base de données, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>Une sauvegarde ne peut pas être restaurée dans une base de données partagée.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>%1 ajoutés, %2 mis à jour, %3 inchangés, %n ligne avec des erreurs</numerusform>
            <numerusform>%1 ajoutés, %2 mis à jour, %3 inchangés, %n lignes avec des erreurs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Journal d&apos;audit</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Rechercher :</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>Afficher dans l&apos;historique...</translation>
    </message>
</context>
<context>
    <name>AuditLogModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (rien n&apos;a été modifié)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Revenir à</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Montre tous les nœuds tels qu&apos;ils étaient, dans une fenêtre à part. Rien n&apos;est modifié par là ; ce qui y est montré peut être remis en l&apos;état.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>Pas plus tard que :</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Tel que c&apos;était après ceci :</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Ce qui a été fait</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>CameraCheck</name>
    <message>
        <source>its password cannot be read</source>
        <translation>le mot de passe est illisible</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>l&apos;appareil ne demande pas de mot de passe</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>modifié pendant la vérification</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>Des caméras sont déjà en cours de vérification.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>Il n&apos;y a aucune caméra avec une adresse à vérifier.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>L&apos;essayer une fois avec chacune ?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>E&amp;ssayer</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>La vérification a été annulée.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>Rappor&amp;t...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>%1 caméras sur %2 ont accepté le mot de passe.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>%1 caméras sur %2 répondent comme prévu.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>Aucune des caméras sélectionnées n&apos;a été reconnue comme un autre appareil : c&apos;est Réseau &gt; Vérifier les caméras qui le détermine.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Accepter d&apos;autres appareils</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>%n appareil a répondu qui n&apos;est pas celui connu jusqu&apos;ici. Ne l&apos;acceptez que si vous savez pourquoi, par exemple après un remplacement ou un nouveau certificat : dès la prochaine vérification, il recevra le nom d&apos;utilisateur et le mot de passe enregistrés.</numerusform>
            <numerusform>%n appareils ont répondu qui ne sont pas ceux connus jusqu&apos;ici. Ne les acceptez que si vous savez pourquoi, par exemple après un remplacement ou un nouveau certificat : dès la prochaine vérification, ils recevront le nom d&apos;utilisateur et le mot de passe enregistrés.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>A&amp;ccepter</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>%n appareil accepté.</numerusform>
            <numerusform>%n appareils acceptés.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>&amp;Les vérifier</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>Aucune des caméras sélectionnées ne demande un mot de passe en clair : c&apos;est Réseau &gt; Vérifier les caméras qui le détermine.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n appareil n&apos;accepte le mot de passe qu&apos;en clair. Sans SSL, quiconque écoute en chemin peut le lire et s&apos;en servir pour toutes les caméras qui ont le même. Ne l&apos;autorisez que là où le réseau est le vôtre. L&apos;autorisation vaut tant que la caméra garde son adresse et son port.</numerusform>
            <numerusform>%n appareils n&apos;acceptent le mot de passe qu&apos;en clair. Sans SSL, quiconque écoute en chemin peut le lire et s&apos;en servir pour toutes les caméras qui ont le même. Ne l&apos;autorisez que là où le réseau est le vôtre. L&apos;autorisation vaut tant que la caméra garde son adresse et son port.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Autoriser les mots de passe en clair</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>Aut&amp;oriser</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>Le mot de passe peut être envoyé en clair à %n appareil.</numerusform>
            <numerusform>Les mots de passe peuvent être envoyés en clair à %n appareils.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>Une fois la caméra vérifiée (F5), son image s&apos;affiche ici.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>Le mot de passe est illisible.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Autre appareil qu&apos;avant</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Verrouillé</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Mot de passe incorrect</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Demande un mot de passe en clair</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Non compris</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Non vérifié</translation>
    </message>
    <message>
        <source>Answers</source>
        <translation>Répond</translation>
    </message>
</context>
<context>
    <name>ChangedMeanwhile</name>
    <message>
        <source>Removed by %1 at %2. What you enter here cannot be stored; Edit &gt; History puts the node back.</source>
        <translation>Supprimé par %1 sur %2. Ce que vous saisissez ici ne peut pas être enregistré ; Édition &gt; Historique rétablit le nœud.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Modifié entre-temps par %1 sur %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>Également en cours de modification par %1.</translation>
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
        <translation>Caméras vérifiées</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Masquer cette ligne</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Caméras vérifiées : %1 sur %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Caméras vérifiées</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>&amp;Lister aussi celles qui répondent</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>&amp;Montrer dans la liste</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Enregistrer sous...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>; </source>
        <comment>between the parts of a list</comment>
        <translation>; </translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) left out, which are no devices or have no address.</source>
        <translation>
            <numerusform>%n nœud laissé de côté, qui n&apos;est pas un appareil ou n&apos;a pas d&apos;adresse.</numerusform>
            <numerusform>%n nœuds laissés de côté, qui ne sont pas des appareils ou n&apos;ont pas d&apos;adresse.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tableaux (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 n&apos;a pas été écrit : %2</translation>
    </message>
</context>
<context>
    <name>CheckReportModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
</context>
<context>
    <name>ConnectDialog</name>
    <message>
        <source>When the server has it</source>
        <translation>Si le serveur le propose</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Toujours</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Toujours, en vérifiant le certificat</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Connexion à une base de données partagée</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Récentes :</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Serveur :</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port :</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Base de données :</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Utilisateur :</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>&amp;Mot de passe :</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>C&amp;hiffrement :</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>&amp;Garder le mot de passe</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Tester</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Connexion...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>La base de données peut être lue et modifiée.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>La base de données peut être lue, mais vous ne pouvez pas la modifier.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>Le mot de passe ne peut pas être gardé, car la clé qui scelle les mots de passe est absente. Il sera redemandé la prochaine fois.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Restaurer une sauvegarde</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Tout le contenu de cette base de données est remplacé par celui de « %1 », pour tous ceux qui l&apos;utilisent. Le contenu actuel est d&apos;abord conservé comme sauvegarde.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Nouvelle base de données des nœuds</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>« %1 » existe déjà. Ouvrez-la plutôt, ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Copie de la base de données...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>La base de données a été copiée dans « %1 ».</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>Restauration de la sauvegarde...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>La base de données a maintenant le contenu de « %1 ».</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Une base de données partagée se restaure sur son serveur. Adressez-vous à son administrateur.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>Rien n&apos;en est lisible.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>%n nœud en est encore lisible.</numerusform>
            <numerusform>%n nœuds en sont encore lisibles.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>Il n&apos;y a pas de bonne sauvegarde.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>La plus récente bonne sauvegarde date du %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Si vous choisissez l&apos;une de ces possibilités, le fichier endommagé est conservé sous un autre nom. Sinon, rien n&apos;est modifié.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>Base de données des nœuds</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>La base de données des nœuds est endommagée. Recherche de ce qui est lisible et des sauvegardes...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>&amp;Ouvrir une autre...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>&amp;Commencer à vide</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>&amp;Utiliser ce qui est lisible</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>Restaurer la &amp;sauvegarde</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>La base de données de nœuds « %1 » est endommagée.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>Les tables de la base de données de nœuds « %1 » ont été modifiées par un autre programme.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>La base de données de nœuds « %1 » est vide ou absente, alors qu&apos;elle contenait quelque chose.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>La base de données de nœuds « %1 » est endommagée, ou un autre fichier est à sa place.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Ouvrir une base de données de nœuds</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Bases de données de nœuds (*.kodb);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>Déta&amp;ils</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>Montre à côté de la liste ce qu&apos;est le nœud sélectionné</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Sélectionnez un nœud dans la liste pour voir ici ce que c&apos;est.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>%n nœud sélectionné</numerusform>
            <numerusform>%n nœuds sélectionnés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>Ce qu&apos;a le premier :</numerusform>
            <numerusform>Ce que les %n premiers ont en commun :</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>différent</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>pas d&apos;adresse</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>le mot de passe est illisible</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>supprimé entre-temps</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>non interrogé</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Accès aux enregistrements</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>L&apos;adresse IP d&apos;usine de %n des caméras sélectionnées n&apos;est pas connue :</numerusform>
            <numerusform>L&apos;adresse IP d&apos;usine de %n des caméras sélectionnées n&apos;est pas connue :</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>Leurs enregistrements peuvent être lus via la caméra. Sur un serveur de fichiers, cependant, le dossier d&apos;une caméra porte le nom de cette adresse : avec le chemin par défaut, ces caméras partageraient un dossier sans nom ; avec un chemin spécifique, elles perdraient leur chemin actuel. Une caméra qui répond et accepte son mot de passe indique d&apos;après quoi son dossier peut être nommé.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>&amp;Interroger les caméras...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Les laisser de côté</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>Continuer avec &amp;toutes</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Utilisateur &amp; mot de passe</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>Le %n appareil sélectionné n&apos;a pas le même nom d&apos;utilisateur et le même mot de passe : il y a %1 noms d&apos;utilisateur et %2 mots de passe.</numerusform>
            <numerusform>Les %n appareils sélectionnés n&apos;ont pas tous le même nom d&apos;utilisateur et le même mot de passe : il y a %1 noms d&apos;utilisateur et %2 mots de passe.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>La fenêtre suivante commence avec ceux du premier appareil, et donne à tous ce qu&apos;elle affiche quand vous cliquez sur OK :</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>&amp;Donner les mêmes à tous...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n appareil : accès aux enregistrements défini.</numerusform>
            <numerusform>%n appareils : accès aux enregistrements défini.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n est resté inchangé.</numerusform>
            <numerusform>%n sont restés inchangés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n appareil : nom d&apos;utilisateur et mot de passe définis.</numerusform>
            <numerusform>%n appareils : nom d&apos;utilisateur et mot de passe définis.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n device(s))</source>
        <translation>
            <numerusform>%1 (%n appareil)</numerusform>
            <numerusform>%1 (%n appareils)</numerusform>
        </translation>
    </message>
    <message>
        <source>Only IP cameras can be set together. Select one of the others at a time.</source>
        <translation>Seules les caméras IP peuvent être réglées ensemble. Sélectionnez les autres une par une.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propriétés de %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>Modifier %n nœud</numerusform>
            <numerusform>Modifier %n nœuds</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>Ce que vous modifiez ici change dans tous ceux-ci. Ce qui n&apos;est pas identique dans tous est affiché comme différent et reste tel quel, sauf si vous le modifiez.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Recherche de ce qui change...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Afficher tous les nœuds</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>Lecture des nœuds...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>Cette base de données ne contient encore rien.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Aucun nœud ne correspond.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Importer une liste de caméras...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Rechercher des appareils sur le réseau...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Ajouter une caméra...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>Ni nom ni adresse n&apos;ont été saisis.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>Aucun nom n&apos;a été saisi.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>« %1 » a déjà cette adresse, ce port et ce canal.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>Faut-il enregistrer ainsi ?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>&amp;Enregistrer ainsi</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Continuer la modification</translation>
    </message>
</context>
<context>
    <name>EnvironmentMenu</name>
    <message>
        <source>Environment: %1</source>
        <translation>Environnement : %1</translation>
    </message>
    <message>
        <source>The network environment of the whole program</source>
        <translation>L&apos;environnement réseau de tout le programme</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>L&apos;environnement de tout le programme est maintenant « %1 ».</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Revenir à « %1 »</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>L&apos;environnement est de nouveau « %1 ».</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>&amp;Remplacer aussi ce qui a pu être saisi à la main</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Appareils interrogés</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>Réponses des appareils</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>%n appareil est interrogé. Rien n&apos;est encore enregistré.</numerusform>
            <numerusform>%n appareils sont interrogés. Rien n&apos;est encore enregistré.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Il n&apos;y a rien à remplir.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>Voici ce qu&apos;indiquent les appareils et qui n&apos;est pas encore enregistré. OK enregistre ce qui est coché.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n appareil n&apos;a rien indiqué :</numerusform>
            <numerusform>%n appareils n&apos;ont rien indiqué :</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>%n appareil rempli.</numerusform>
            <numerusform>%n appareils remplis.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Ensuite</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Seulement de « %1 »</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Seulement du nœud sélectionné</numerusform>
            <numerusform>Seulement des %n nœuds sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Ce qui a été fait</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Ce que cela a modifié</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Recherche en cours...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Rien n&apos;a été trouvé.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>Il y en a plus : faites défiler vers le bas.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>C&apos;est tout.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>une modification sélectionnée</numerusform>
            <numerusform>%n modifications sélectionnées</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Remis en l&apos;état : %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Seulement ce qui a été fait jusqu&apos;à l&apos;entrée du journal d&apos;audit</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>Ce qui a été fait :</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>Ce que cela a modifié :</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Remettre en l&apos;état...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Remettre en l&apos;état les modifications sélectionnées...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exporter...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Revenir ici...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Conserver...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>Les détails ont été retirés de l&apos;historique : la remise en l&apos;état est impossible.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Exporter l&apos;historique</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Listes (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>L&apos;historique n&apos;a pas été écrit : %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>Exportation de l&apos;historique...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>Du</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Au</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>Nœuds, valeurs, ce qui a été fait</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Tous les types</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Toutes les propriétés</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Rechercher :</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Utilisateur :</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Type :</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Propriété :</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Du :</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Au :</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>Conserver l&apos;historique</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>Les détails d&apos;une modification sont ce qu&apos;il y avait avant et après elle. Sans eux, elle ne peut être ni affichée ni remise en l&apos;état. Qui a modifié quelque chose, quand et pourquoi est toujours conservé, de même que le journal d&apos;audit.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Retirer les détails plus &amp;anciens que</translation>
    </message>
    <message>
        <source> days</source>
        <translation> jours</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>Retirer les détails les plus anciens s&apos;il y en a &amp;plus de</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>Megabytes</source>
        <translation>Mégaoctets</translation>
    </message>
    <message>
        <source>This is done a minute after the start of the program and every six hours.</source>
        <translation>Cela se fait une minute après le démarrage du programme et toutes les six heures.</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Poste</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Ce qui a été fait</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Colonnes non utilisées : %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>L&apos;importation a été annulée. Ce qui a été ajouté jusque-là est conservé.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importer des caméras</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n ligne avec des erreurs serait ignorée.</numerusform>
            <numerusform>%n lignes avec des erreurs seraient ignorées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n ligne a peut-être un autre sens.</numerusform>
            <numerusform>%n lignes ont peut-être un autre sens.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>%1 ajoutés, %2 mis à jour, %3 inchangés, %n ligne avec des erreurs.</numerusform>
            <numerusform>%1 ajoutés, %2 mis à jour, %3 inchangés, %n lignes avec des erreurs.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>L&apos;importation de cette liste ajouterait %n appareil, en modifierait %1 et en laisserait %2 tels quels.</numerusform>
            <numerusform>L&apos;importation de cette liste ajouterait %n appareils, en modifierait %1 et en laisserait %2 tels quels.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>En attente du trousseau. Déverrouillez-le s&apos;il le demande.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Trousseau</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>En attente de votre trousseau.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>Il contient la clé des mots de passe enregistrés. Déverrouillez-le s&apos;il le demande.

Sans la clé, les mots de passe enregistrés sont affichés vides et de nouveaux ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>&amp;Continuer sans mots de passe</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;As the System</source>
        <translation>&amp;Comme le système</translation>
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
        <translation>Le journal a été modifié</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>Et %n autre ; koclient --verify-log l&apos;indique.</numerusform>
            <numerusform>Et %n autres ; koclient --verify-log les indique.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Quelqu&apos;un a modifié le journal de la base de données des nœuds avec un autre programme :</translation>
    </message>
</context>
<context>
    <name>LongWork</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Ajoute les caméras d&apos;un relevé de site (CSV)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Écrit toutes les caméras dans un fichier CSV</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>Exporter la &amp;sélection...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Écrit les caméras sélectionnées dans un fichier CSV</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Chemins par défaut et bande passante</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Ferme le programme</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Nœud</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Ajouter...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Ajoute un nœud</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Supprimer...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Supprime les nœuds sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propriétés</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Affiche le nœud sélectionné sans le modifier</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>&amp;Utilisateur &amp;&amp; mot de passe...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Donne aux appareils sélectionnés un même nom d&apos;utilisateur et mot de passe</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Accès aux en&amp;registrements...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>D&apos;où sont lus les enregistrements des caméras sélectionnées</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>Remp&amp;lir...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Interroge les appareils sélectionnés et enregistre ce que vous choisissez</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Dupliquer...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Ajoute un nœud semblable au nœud sélectionné</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>Ouvrir la page &amp;web</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Ouvre la page de l&apos;appareil sélectionné dans le navigateur</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>Copier les li&amp;gnes</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Copie les lignes sélectionnées pour un tableur</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>&amp;Copier l&apos;adresse</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Copie les adresses des nœuds sélectionnés</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Réseau</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>&amp;Proxy réseau...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>Le serveur proxy de l&apos;application</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>&amp;Environnements...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>Les environnements réseau</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>&amp;Rechercher des appareils...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Nœuds qui arrivent pendant l&apos;analyse du réseau</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>Vus à une &amp;nouvelle adresse...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Appareils qu&apos;une recherche a trouvés à une autre adresse que celle enregistrée ici</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>&amp;Vérifier les caméras</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Demande aux caméras sélectionnées, ou à toutes, qui elles sont, et essaie leurs mots de passe</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>&amp;Accepter comme cette caméra...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Un autre appareil qu&apos;avant est désormais cette caméra</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Colonnes...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Les colonnes de la liste</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>&amp;Journal d&apos;audit...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Qui a modifié quoi, et quand</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>&amp;Base de données des nœuds...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Tout ce qui est enregistré</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Via la caméra</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Chemin par défaut du serveur de fichiers</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>%n appareil vu à une nouvelle adresse : Réseau &gt; Vus à une nouvelle adresse</numerusform>
            <numerusform>%n appareils vus à une nouvelle adresse : Réseau &gt; Vus à une nouvelle adresse</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Nœuds</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Rechercher (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Mots dans toutes les colonnes ; &quot;type:caméra&quot; cherche dans une seule, &quot;état:incorrect|verrouillé&quot; l&apos;un ou l&apos;autre, &quot;-cour&quot; exclut</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Tous les types</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> T&amp;ype : </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>Aucune caméra n&apos;est sélectionnée. Sélectionnez-en d&apos;abord une ou plusieurs dans la liste.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>Les nœuds de ce type ne peuvent pas être ajoutés.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>Ce nœud n&apos;a pas d&apos;adresse. Celle des appareils se règle dans Nœud &gt; Modifier.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n ligne copiée.</numerusform>
            <numerusform>%n lignes copiées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>%n adresse copiée.</numerusform>
            <numerusform>%n adresses copiées.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Affiche, ajoute, modifie et supprime les nœuds d&apos;un système de vidéosurveillance.&lt;/p&gt;&lt;p&gt;Logiciel libre sous la GNU LGPL 2.1 ou ultérieure.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>Aut&amp;oriser le mot de passe en clair...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>Les caméras qui ne l&apos;acceptent pas autrement reçoivent le mot de passe lisible par tous</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Montre ce qui a été modifié en dernier et le remet en l&apos;état</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Rétablit ce qui a été annulé en dernier</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Historique...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>Ce qui a été fait, par qui, et le remet en l&apos;état</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>Historique de la &amp;sélection...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>Ce qui a été fait aux nœuds sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>Re&amp;venir à...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Montre tous les nœuds tels qu&apos;ils étaient avant et les remet en l&apos;état</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Modifie les nœuds sélectionnés</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>Aperçu des modificati&amp;ons multiples</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Montre ce qui serait fait à plusieurs nœuds avant de l&apos;enregistrer</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>%n nœud modifié.</numerusform>
            <numerusform>%n nœuds modifiés.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>&amp;Connecter...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Ouvre une base de données partagée avec d&apos;autres postes</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Nouveau...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Crée une base de données des nœuds vide et l&apos;ouvre</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Ouvre une autre base de données des nœuds</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>Sau&amp;vegarder...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Copie la base de données des nœuds dans un fichier</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>Res&amp;taurer...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Donne à la base de données des nœuds le contenu d&apos;une sauvegarde</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>Emplacem&amp;ent et étiquettes...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Où se trouvent les appareils sélectionnés et comment ils sont regroupés</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Explique à quoi sert la fenêtre au premier plan</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>« %1 » a été ajouté.</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - Base de données des nœuds</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Appareils : %1, autres nœuds : %2 ; affichés : %3, sélectionnés : %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>« %1 » a été modifié.</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Seuls des nœuds d&apos;un même type peuvent être modifiés ensemble. « Type », au-dessus de la liste, montre ceux d&apos;un type.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>La page web de %1 n&apos;a pas pu être ouverte. Choisissez un navigateur dans les paramètres de votre bureau.</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Search the manual (Ctrl+F)</source>
        <translation>Rechercher dans le manuel (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Page du manuel</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Aucune page ne contient tous ces mots.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>Le manuel est en anglais. Les menus et les boutons y portent les noms du programme en anglais.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>Il se définit dans « Fichier &gt; Préférences » de la fenêtre principale.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>C&apos;est ce que les « Propriétés » montrent comme adresse IP d&apos;usine de la caméra. « Nœud &gt; Remplir » de la fenêtre principale la demande à la caméra.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Saisissez un chemin, ou appuyez sur « Plus... » et choisissez un des dossiers.</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Alors</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Actuel</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajouté</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Since Then</source>
        <translation>Depuis</translation>
    </message>
</context>
<context>
    <name>MomentWindow</name>
    <message>
        <source>As It Was, %1</source>
        <comment>time</comment>
        <translation>Tel que c&apos;était, %1</translation>
    </message>
    <message>
        <source>The nodes as they were on %1, after &quot;%2&quot; by %3. They can be looked at and put back, but not edited here.</source>
        <comment>time, what was done, user</comment>
        <translation>Les nœuds tels qu&apos;ils étaient le %1, après « %2 » par %3. On peut les regarder et les remettre en l&apos;état, mais pas les modifier ici.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Seulement ce qui est différent maintenant</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Nœuds :</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Propriétés :</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Nœuds d&apos;alors</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Propriétés alors et maintenant</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>Part lue de ce qui a été fait depuis</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Tout remettre en l&apos;état...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Remettre en l&apos;état la sélection...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Lecture de ce qui a été fait depuis...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>Des réglages ou des environnements sont différents aussi.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n modification depuis ne correspond pas à ce qui existe maintenant : l&apos;état antérieur n&apos;est pas connu.</numerusform>
            <numerusform>%n modifications depuis ne correspondent pas à ce qui existe maintenant : l&apos;état antérieur n&apos;est pas connu.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Retour à %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Remis en l&apos;état : %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Alors %n nœud, %1 différents maintenant ; %2 affichés</numerusform>
            <numerusform>Alors %n nœuds, %1 différents maintenant ; %2 affichés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(sans nom)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>Ce qui lui a été fait :</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>Ce que cela a modifié :</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Ce qui a été fait</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>Ce que cela a modifié</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
</context>
<context>
    <name>NodeListModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
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
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Dernière modification</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Supprimer des nœuds</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Suppression des nœuds...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>%n nœud supprimé.</numerusform>
            <numerusform>%n nœuds supprimés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Récupération de l&apos;image...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Vu le %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Image de la caméra</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Récupération de l&apos;image...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Vu le %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Emplacement et étiquettes</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Enregistrement des emplacements et des étiquettes...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n appareil : emplacement et étiquettes définis.</numerusform>
            <numerusform>%n appareils : emplacement et étiquettes définis.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Emplacement et étiquettes</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Où se trouve l&apos;appareil sélectionné (%n) ? Écrivez-le de l&apos;extérieur vers l&apos;intérieur, séparé par une barre oblique : Site/Bâtiment/Étage. Les étiquettes sont séparées par des virgules.</numerusform>
            <numerusform>Où se trouvent les %n appareils sélectionnés ? Écrivez-le de l&apos;extérieur vers l&apos;intérieur, séparé par une barre oblique : Site/Bâtiment/Étage. Les étiquettes sont séparées par des virgules.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Emplacement :</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>É&amp;tiquettes :</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(différents, laissés tels quels)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Emplacements</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>Emplacemen&amp;ts</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Montre les sites, bâtiments et étages à côté de la liste</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Emplacements</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Tous les nœuds</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Appareils sans emplacement</translation>
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
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>Chemin par défaut du &amp;serveur de fichiers :</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>Serveur d&apos;&amp;aperçu à distance par défaut :</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>&amp;Connexion :</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Distant lent (modem, RNIS, GPRS/2G, EDGE)</translation>
    </message>
    <message>
        <source>Fast Remote (DSL, UMTS/3G)</source>
        <translation>Distant rapide (DSL, UMTS/3G)</translation>
    </message>
    <message>
        <source>Slow Local (WLAN/WiFi, Ethernet)</source>
        <translation>Local lent (WLAN/WiFi, Ethernet)</translation>
    </message>
    <message>
        <source>Fast Local (Fast Ethernet, Gigabit Ethernet)</source>
        <translation>Local rapide (Fast Ethernet, Gigabit Ethernet)</translation>
    </message>
    <message>
        <source>Default File Server Path</source>
        <translation>Chemin par défaut du serveur de fichiers</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Site/bâtiment/étage :</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Étiquettes, séparées par des virgules :</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Remettre en l&apos;état</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1 : voici ce qui changerait. OK remet en l&apos;état ce qui est coché.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1 : plus rien ne peut être remis en l&apos;état.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Ce qui changerait</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Quelqu&apos;un d&apos;autre a modifié ceci entre-temps ; cela reste tel quel :</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Tout ce qui peut être remis en l&apos;état</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1 : voici ce qui changerait. OK modifie ce qui est coché.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1 : rien ne changerait.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Toutes les modifications</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>Nœud</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Quoi</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Deviendra</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Pourquoi non</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>Ce qui a été modifié</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Lecture de ce qui a été modifié...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>Vous pouvez consulter cette base de données partagée, mais pas la modifier. Son administrateur peut vous donner le rôle ko_editor.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Lecture seule</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un &amp;récent</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Aucune autre base de données n&apos;a encore été ouverte</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Supprimer des nœuds</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>Supprimer ce nœud ? Édition &gt; Annuler le fait revenir.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Supprimer ce nœud ? Édition &gt; Annuler le fait revenir.</numerusform>
            <numerusform>Supprimer ces %n nœuds ? Édition &gt; Annuler les fait revenir.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>%n dossier d&apos;enregistrement n&apos;est utilisé par aucun autre :</numerusform>
            <numerusform>%n dossiers d&apos;enregistrement ne sont utilisés par aucun autre :</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Supprimer aussi les &amp;dossiers d&apos;enregistrement</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>&amp;Recherches enregistrées</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Recherches enregistrées</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Les recherches qui ont un nom, et un nom pour celle-ci</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>&amp;Enregistrer cette recherche...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Donne un nom à ce qui est recherché maintenant</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>&amp;Renommer ou supprimer...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Donne d&apos;autres noms aux recherches enregistrées, et les supprime</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Enregistrer la recherche</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Nom (un nom existant reçoit cette recherche) :</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Recherches enregistrées</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Recherches enregistrées</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Re&amp;nommer</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Supprimer...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Il y a déjà une recherche de ce nom, ou le nom est vide. Il est resté tel quel.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>Supprimer la recherche « %1 » ? Les nœuds qu&apos;elle trouve restent.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Rechercher des appareils</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>La recherche a trouvé %n nouvel appareil et l&apos;a ajouté à la base de données :</numerusform>
            <numerusform>La recherche a trouvé %n nouveaux appareils et les a ajoutés à la base de données :</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Garder</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>%n appareil trouvé et ajouté.</numerusform>
            <numerusform>%n appareils trouvés et ajoutés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>%n appareil retiré.</numerusform>
            <numerusform>%n appareils retirés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1 : inactif</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1 : %2 sur %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1 : recherche</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1 : terminé</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1 : annulé</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1 : non disponible (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>Le fichier « %1 » n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>L&apos;historique de « %1 » ne dit pas d&apos;où vient tout son contenu : le fichier est plus ancien que l&apos;historique, ou une sauvegarde y a été restaurée. Un tel fichier ne peut pas être partagé ; importez ses caméras dans un nouveau.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>Vous ne pouvez pas modifier le site « %1 ». Demandez à son administrateur le rôle ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>Le site « %1 » n&apos;est pas vide.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>« %1 » appartient à un autre site que « %2 ».</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>Le site diffère du fichier : %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>Le fichier ou le site change sans cesse ; ils n&apos;ont pas pu être comparés.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n ligne avec son historique est dans « %1 », identique à celle d&apos;ici.</numerusform>
            <numerusform>%n lignes avec leur historique sont dans « %1 », identiques à celles d&apos;ici.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>« %1 » contient des mots de passe d&apos;une version plus ancienne qui ne sont pas encore chiffrés, parce que la clé de cette installation manque. Remettez-la d&apos;abord en place.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>« %1 » contient des mots de passe, qui demandent la clé du site. Rien n&apos;a été envoyé.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Base de données partagée</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Ces modifications de votre part n&apos;ont pas pu être effectuées, car quelqu&apos;un d&apos;autre avait supprimé le nœud auparavant. Édition &gt; Historique rétablit un nœud supprimé.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Modifications non effectuées</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nœud</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Supprimé par</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Rejeter la sélection</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>&amp;Nouvelle copie...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>Ré&amp;essayer</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Nouvelle copie</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>Fermer cette fenêtre et créer une nouvelle copie de ce qui est maintenant sur le serveur ? Les modifications non envoyées n&apos;y sont pas ; la copie actuelle, qui les contient, reste dans le dossier « %1 ».</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>&amp;Phrase secrète...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n modification non effectuée</numerusform>
            <numerusform>%1, %n modifications non effectuées</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, phrase secrète requise...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>À « %1 » se trouve maintenant un autre site que celui dont ceci est une copie. Rien ne lui a été envoyé. Si le serveur a été réinstallé, demandez à son administrateur de rétablir le site.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>La base de données « %1 » ne contient pas de site, ou vous ne pouvez pas le lire. Demandez à son administrateur le rôle ko_viewer ou ko_editor ; une base vide devient un site avec koclient --share.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>Le site « %1 » a été créé par une autre version de ce programme. Installez cette version sur cet ordinateur ou faites mettre le site à jour.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>Vous ne pouvez que lire le site « %1 », mais cet ordinateur contient des modifications qu&apos;il n&apos;a pas reçues. Demandez à son administrateur le rôle ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>Une sauvegarde a été restaurée dans cette copie du site « %1 », ce qui ne peut pas être communiqué aux autres postes. Elle n&apos;est plus partagée.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>N&apos;est plus partagée...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Connecté, lecture seule</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connecté</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>Envoi de %n modification</numerusform>
            <numerusform>Envoi de %n modifications</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Mise à jour en cours</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Serveur inaccessible depuis %1, %n modification en attente</numerusform>
            <numerusform>Serveur inaccessible depuis %1, %n modifications en attente</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Serveur inaccessible depuis %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>Le serveur du site « %1 » est inaccessible. Vous pouvez continuer : ce que vous modifiez attend sur cet ordinateur et sera envoyé au retour du serveur.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>Vous voyez le site « %1 » tel que d&apos;autres le modifient, sans pouvoir le modifier vous-même.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>Vous partagez le site « %1 » avec d&apos;autres.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>Le site « %1 » est inaccessible.</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>En attente du serveur...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Envoi : encore %n modification</numerusform>
            <numerusform>Envoi : encore %n modifications</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Réception : %1 sur %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>Le site « %1 » présente son passé autrement qu&apos;il ne l&apos;avait présenté à ce poste : son historique a été modifié sur le serveur. Plus rien ne lui est envoyé ni n&apos;en est repris. Montrez ceci à son administrateur ; la copie sur cet ordinateur contient l&apos;historique tel qu&apos;il était.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>La copie du site « %1 » sur cet ordinateur ne peut être ni lue ni écrite. Vérifiez que le disque fonctionne et qu&apos;il reste de la place, puis redémarrez le programme.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>Le serveur du site « %1 » a refusé une requête de cet ordinateur. Les modifications qu&apos;il n&apos;a pas encore reçues sont conservées ici. Montrez à son administrateur ce que le serveur a répondu, et redémarrez le programme une fois le problème résolu.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Une nouvelle phrase secrète pour le site « %1 » :</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Encore une fois :</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>Les deux phrases secrètes ne sont pas identiques.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>La phrase secrète du site « %1 » :</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>La phrase secrète du site n&apos;est pas donnée. Les mots de passe ne sont pas lus et ne peuvent pas être enregistrés. Saisissez-la dans un terminal, ou définissez la variable KO_SITE_PASSPHRASE.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>La clé ne peut pas être conservée sur cet ordinateur, parce que la clé de cette installation manque. La phrase secrète vous sera redemandée la prochaine fois.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>Ce n&apos;est pas la phrase secrète du site.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Une phrase secrète a au moins %n caractère.</numerusform>
            <numerusform>Une phrase secrète a au moins %n caractères.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>Le site n&apos;a pas encore de clé.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Quelqu&apos;un d&apos;autre vient de changer la clé ou sa phrase secrète. Demandez laquelle est valable maintenant.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Ouvrir la clé demande plus de mémoire que cet ordinateur n&apos;en a ou qu&apos;on ne peut lui en demander.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Ce site a été créé avant que ses postes ne partagent une clé. Les mots de passe ne peuvent pas être enregistrés tant que son administrateur ne l&apos;a pas mis à jour par koclient --share.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>Cet ordinateur n&apos;a pas la clé des mots de passe. Ils sont affichés vides et de nouveaux ne peuvent pas être enregistrés tant que vous n&apos;avez pas donné la phrase secrète du site.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>Le site n&apos;a pas encore de clé avec laquelle ses postes chiffrent les mots de passe. De nouveaux ne peuvent pas être enregistrés tant que personne ne la crée.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Base de données partagée</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Connexion à « %1 »...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Changer la phrase secrète</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Phrase secrète du site</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>Les mots de passe des caméras de « %1 » sont chiffrés avec une clé que ses postes partagent. Donnez la phrase secrète du site, une fois sur cet ordinateur. Sans elle, les mots de passe sont affichés vides et de nouveaux ne peuvent pas être enregistrés.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>Le site « %1 » n&apos;a pas encore de clé avec laquelle ses postes chiffrent les mots de passe des caméras. Trouvez une phrase secrète de plusieurs mots, et dites-la à tous ceux qui doivent les voir. Le serveur ne la reçoit jamais : si tous l&apos;oublient, de nouveaux postes ne peuvent pas lire les mots de passe.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>Les postes qui ont la clé de « %1 » la gardent quand seule la phrase secrète change. Avec une nouvelle clé, tous les mots de passe sont chiffrés à nouveau, et la nouvelle phrase secrète est demandée à chaque poste : choisissez cela quand un ordinateur a été perdu.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Phrase secrète :</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>Phrase secrète &amp;présente :</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Nouvelle phrase secrète :</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>&amp;Encore une fois :</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Créer aussi une nouvelle &amp;clé</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>Les deux nouvelles phrases secrètes ne sont pas identiques.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Un instant...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>Base de données des nœuds</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Rien de ce que vous avez saisi n&apos;est perdu tant que cette fenêtre est ouverte.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>Ce qui attend d&apos;être enregistré, en entier ou pas du tout, concerne :</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>&amp;Abandonner les modifications</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Toutes les modifications sont enregistrées.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Certaines modifications n&apos;ont pas pu être enregistrées. Elles sont perdues si le programme est fermé maintenant.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>Base de données des nœuds</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Enregistrement des modifications...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Listes de caméras (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importer des caméras</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Importation des caméras...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Exporter des caméras</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>Écrire aussi les mots de passe ? Quiconque peut lire le fichier pourra alors utiliser toutes les caméras qu&apos;il contient.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Exportation des caméras...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>%n caméra écrite.</numerusform>
            <numerusform>%n caméras écrites.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Lecture de la liste...</translation>
    </message>
</context>
<context>
    <name>SurveyProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>&amp;Undo &quot;%1&quot;</source>
        <translation>&amp;Annuler « %1 »</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>&amp;Rétablir « %1 »</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rétabli : %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Annuler...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>Ce que vous avez saisi n&apos;est pas encore enregistré.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Continuer la modification</translation>
    </message>
</context>
</TS>
