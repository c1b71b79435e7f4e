<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>« %1 » a déjà cette adresse et ce port.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>Une adresse ne contient pas d&apos;espaces.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>Ce n&apos;est ni une adresse IPv6 ni un hôte avec un port.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>Une adresse IP comporte quatre nombres de 0 à 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>Un nom d&apos;hôte ne contient que des lettres, des chiffres, des points et des traits d&apos;union.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Un port est un nombre de 1 à 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>Cette URL ne contient pas d&apos;hôte lisible.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>aucun réseau IPv4 n&apos;est connecté</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>le système ne fournit pas de socket : %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>CameraSurvey</name>
    <message>
        <source>Nothing was written, because these passwords cannot be read: %1. Unlock your keychain, bring the key file back, or leave the passwords out.</source>
        <translation>Rien n&apos;a été écrit, car ces mots de passe sont illisibles : %1. Déverrouillez votre trousseau, restaurez le fichier de clé ou laissez de côté les mots de passe.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Il n&apos;y a pas de base de données.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>plusieurs appareils ont cette adresse ; indiquez le type, le port et le canal</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>plusieurs appareils portent ce nom ; indiquez l&apos;adresse</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>c&apos;est une base de données ; elle n&apos;a pas été modifiée.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit : %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>contient des caractères de contrôle</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>dépasse 1024 caractères</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>contient un saut de ligne</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>contient des caractères invisibles</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>n&apos;est pas un nombre de 0 à 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>n&apos;est pas un nombre de 1 à 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>n&apos;est pas yes, no, true, false, 1 ou 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>n&apos;est pas une adresse MAC (douze chiffres hexadécimaux)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>n&apos;est ni IP device, ni URL camera, ni channel device, ni un nombre</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 L&apos;importation s&apos;est arrêtée là ; seul ce qui est compté ici est enregistré. Importez à nouveau le fichier pour le reste.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 n&apos;est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 est la base de données des nœuds elle-même.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>%1 lignes sont incorrectes ; ce n&apos;est pas une liste de caméras.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>Les mots de passe de la liste (à la ligne %1) ne peuvent pas être enregistrés, car la clé qui les chiffre est absente. Déverrouillez votre trousseau, restaurez le fichier de clé ou rendez votre dossier de configuration accessible en écriture. Rien n&apos;a été importé.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>La première ligne ne peut pas être lue : %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>les appareils de ce type ne peuvent pas être ajoutés ici</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>les dossiers d&apos;enregistrement ne peuvent pas être ajoutés ici</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>l&apos;appareil n&apos;a pas pu être ajouté</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>ce qui se trouve à cette adresse n&apos;est pas un appareil</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>l&apos;appareil à cette adresse n&apos;a pas de canaux</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>l&apos;appareil n&apos;a pas pu être modifié</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>La colonne « %1 » existe deux fois.</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>La colonne « address » manque. La première ligne doit nommer les colonnes.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>il y a plus de cellules que de colonnes</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>%1 incorrect : %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>ni nom ni adresse</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>un appareil de ce type n&apos;a pas de canaux</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>ce n&apos;est ni un nom d&apos;hôte ni une adresse IP</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>elle contient plus qu&apos;un hôte ; port, SSL et utilisateur ont leurs propres colonnes</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>elle concerne le même appareil que la ligne %1 et changerait ce que celle-ci indique</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>le nouvel appareil n&apos;aurait pas de nom</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>Les mots de passe de la liste (à la ligne %1) ne peuvent pas être enregistrés, parce que cet ordinateur n&apos;a pas la clé de la base de données partagée. Donnez d&apos;abord sa phrase secrète. Rien n&apos;a été importé.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Propriétés de %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Propriétés d&apos;un nœud</numerusform>
            <numerusform>Propriétés de %n nœuds</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Dossiers d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Dossier d&apos;enregistrement de %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Dossier d&apos;enregistrement d&apos;une caméra</numerusform>
            <numerusform>Dossiers d&apos;enregistrement de %n caméras</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Utilisateurs et mots de passe</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Utilisateur et mot de passe de %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Utilisateur et mot de passe d&apos;un nœud</numerusform>
            <numerusform>Utilisateur et mot de passe de %n nœuds</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Ajouts de nœuds</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Ajout de %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Ajout d&apos;un nœud</numerusform>
            <numerusform>Ajout de %n nœuds</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Suppressions de nœuds</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Suppression de %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Suppression d&apos;un nœud</numerusform>
            <numerusform>Suppression de %n nœuds</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>Importations</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Importation de %1</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>Indications des caméras</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>Indications de %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>Indications d&apos;une caméra</numerusform>
            <numerusform>Indications de %n caméras</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Nouvelles adresses</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Nouvelle adresse de %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Nouvelle adresse d&apos;un appareil</numerusform>
            <numerusform>Nouvelles adresses de %n appareils</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Recherches</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Une recherche a trouvé %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Une recherche a trouvé un appareil</numerusform>
            <numerusform>Une recherche a trouvé %n appareils</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Signes distinctifs des caméras</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Signes distinctifs de %1</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Signes distinctifs d&apos;une caméra</numerusform>
            <numerusform>Signes distinctifs de %n caméras</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Proxy global</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Environnements</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Nouvelle base de données</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Sauvegarde restaurée</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Remis en l&apos;état</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Modification d&apos;une version plus récente</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Rétabli : %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Remis en l&apos;état : %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Mots de passe chiffrés à nouveau</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>La cellule entre guillemets qui commence dans l&apos;enregistrement de la ligne %1 n&apos;est jamais fermée.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>L&apos;enregistrement qui commence à la ligne %1 dépasse 1 Mio.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>du texte suit le guillemet fermant d&apos;une cellule</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>Ce n&apos;est pas un fichier texte (la ligne %1 contient des données binaires). Enregistrez le fichier en texte UTF-8.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>La ligne %1 dépasse 1 Mio.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>La ligne %1 n&apos;est pas du texte UTF-8. Enregistrez le fichier en UTF-8 et réessayez.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>Le fichier ne peut pas être lu : %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>l&apos;appareil met trop de temps à répondre</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>l&apos;adresse n&apos;est pas valide</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>l&apos;appareil ne parle pas ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>l&apos;appareil ne dit pas qui il est</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>l&apos;appareil demande un mot de passe et aucun n&apos;est enregistré</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>l&apos;appareil demande le mot de passe en clair</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>l&apos;appareil demande le mot de passe d&apos;une façon inconnue</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>l&apos;appareil n&apos;indique aucune image de ce canal</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>l&apos;appareil a un autre point de terminaison qu&apos;avant</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>l&apos;appareil a un autre domaine d&apos;authentification qu&apos;avant</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>l&apos;appareil a un autre numéro de série qu&apos;avant</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>un autre mot de passe y a été refusé</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>pas de réponse à temps</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>la réponse est trop longue</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>l&apos;appareil redirige ailleurs</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>l&apos;appareil a un autre certificat qu&apos;avant</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>Le fichier « %1 » ne peut pas être utilisé : son nom n&apos;est pas un texte dans l&apos;encodage de ce système. Renommez-le.</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
</context>
<context>
    <name>HistoryWords</name>
    <message>
        <source>User and password entered</source>
        <translation>Utilisateur et mot de passe saisis</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Adresse du proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Port du proxy</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Utilisateur du proxy</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Mot de passe du proxy</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Enregistrer le mot de passe du proxy</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Tête panoramique/inclinable</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Utiliser l&apos;aperçu à distance</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Enregistrer le mot de passe</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Mode d&apos;aperçu</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Données de connexion par défaut</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Fréquence d&apos;images par défaut</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Qualité JPEG par défaut</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Résolution par défaut</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Paramètre audio par défaut</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Chemin du serveur de fichiers par défaut</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Serveur d&apos;aperçu à distance par défaut</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Environnement actif</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Utiliser le proxy</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Exceptions de proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Environnements</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Proxy global</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nœud</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Appareil connu</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(absent)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(masqué)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>C&apos;est déjà le cas.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>Modifié depuis.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>Le nœud a été supprimé.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>D&apos;autres l&apos;utilisent maintenant.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Jours d&apos;historique</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Mégaoctets d&apos;historique</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Entrée de type inconnu « %1 »</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Niveau %1 : %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Journal du programme</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Nouvelle adresse acceptée</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Appareil %1 déplacé de l&apos;adresse %2 à %3, où il a été trouvé.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Appareils importés</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Appareils importés de %1 : %2 ajoutés, %3 modifiés, %4 lignes refusées.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Modifié sans boîte de dialogue</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Ajouté par le programme</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Supprimé par le programme</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Paramètres modifiés</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Proxy global modifié</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Environnements modifiés</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Trouvé par une recherche</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Nouvelles adresses acceptées</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Signes distinctifs de caméras notés</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Rempli avec les indications des caméras</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Liste importée</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Base de données créée</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Sauvegarde restaurée</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Modifié par une version plus récente</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Dossiers d&apos;enregistrement modifiés</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Utilisateurs et mots de passe modifiés</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Remis en l&apos;état</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Appareil ajouté</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Appareil supprimé</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Mot de passe en clair autorisé</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Autre appareil accepté</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Appareil nommé %1 ajouté.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Appareil nommé %1 supprimé.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Autre appareil qu&apos;avant accepté comme %1.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>L&apos;envoi en clair du mot de passe de %1 a été autorisé.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>Historique allégé</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Détails des modifications jusqu&apos;au numéro %1 retirés de l&apos;historique : %2 lignes.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>A chiffré à nouveau des mots de passe</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>L&apos;ensemble de modifications %1 a été modifié.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>La ligne %1 des ensembles de modifications a été modifiée.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>L&apos;entrée %1 du journal d&apos;audit a été modifiée.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>L&apos;ensemble de modifications %1 manque.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>La ligne %1 des ensembles de modifications manque.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>L&apos;entrée %1 du journal d&apos;audit manque.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>L&apos;ensemble de modifications %1 a été ajouté par un autre programme.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>La ligne %1 des ensembles de modifications a été ajoutée par un autre programme.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>L&apos;entrée %1 du journal d&apos;audit a été ajoutée par un autre programme.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>À partir de l&apos;ensemble de modifications %1, le journal a été réécrit.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>À partir de la ligne %1 des ensembles de modifications, le journal a été réécrit.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>À partir de l&apos;entrée %1 du journal d&apos;audit, le journal a été réécrit.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>À partir de l&apos;ensemble de modifications %1, le journal est scellé avec une autre clé.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>À partir de la ligne %1 des ensembles de modifications, le journal est scellé avec une autre clé.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>À partir de l&apos;entrée %1 du journal d&apos;audit, le journal est scellé avec une autre clé.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>Ce qui suivait l&apos;ensemble de modifications %1 a été coupé.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>Ce qui suivait la ligne %1 des ensembles de modifications a été coupé.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>Ce qui suivait l&apos;entrée %1 du journal d&apos;audit a été coupé.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>Ce n&apos;est pas le journal qui a été vu ici auparavant.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>Une adresse MAC comporte douze chiffres hexadécimaux, p. ex. 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>le service Avahi ne fonctionne pas</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>le service Avahi ne répond pas</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>toutes les interfaces</translation>
    </message>
</context>
<context>
    <name>NodeFacts</name>
    <message>
        <source>Model</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Software version</source>
        <translation>Version du logiciel</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>Adresse MAC</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Adresses IP actuelles</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Adresse IP d&apos;usine</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Flux en direct (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Résolutions</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Panoramique, inclinaison, zoom</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Options de disposition</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
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
        <translation>Caméras</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>Dossier d&apos;enregistrement</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>Caméra IP</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>Caméra URL</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>Appareil multicanal</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Enregistreur interne</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Serveur d&apos;aperçu à distance</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Nœud de type %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Aperçu à distance de %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Ce nœud a été supprimé entre-temps. Les modifications ne peuvent pas être enregistrées : fermez cette fenêtre.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>PictureFetch</name>
    <message>
        <source>it gives no address for a picture</source>
        <translation>l&apos;appareil n&apos;indique aucune adresse d&apos;image</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>l&apos;adresse de l&apos;image contient un mot de passe en clair</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>ce que l&apos;appareil envoie n&apos;est pas une image</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>l&apos;appareil refuse l&apos;image</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>l&apos;appareil demande un mot de passe et aucun n&apos;est enregistré</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>ses images ont un autre domaine d&apos;authentification que l&apos;appareil</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>l&apos;appareil demande le mot de passe d&apos;une façon inconnue</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>l&apos;appareil demande le mot de passe en clair</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Chemin :</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>Le chemin est sous le chemin par défaut du serveur de fichiers</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nom d&apos;utilisateur :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse :</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port :</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Connexion sécurisée (SSL)</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Choisir un dossier</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(vide)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(différents)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>« %1 » n&apos;est pas une base de données de nœuds mais un autre type de fichier. Il n&apos;a pas été modifié. Choisissez votre fichier de base de données, ou un nouveau nom de fichier pour commencer avec une base vide.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>« %1 » est la base de données d&apos;un autre programme et ne contient pas de nœuds. Elle n&apos;a pas été modifiée. Choisissez votre base de données de nœuds, ou un nouveau nom de fichier pour commencer avec une base vide.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>Les tables de la base de données de nœuds « %1 » ont été modifiées par un autre programme et ne sont plus fiables. Elle n&apos;a pas été modifiée. Remplacez-la par une copie de sauvegarde.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>La base de données de nœuds « %1 » est vide ou absente, mais son journal ou ses sauvegardes existent encore. Rien n&apos;a été modifié. Restaurez une sauvegarde, ou choisissez un nouveau nom de fichier pour commencer avec une base vide.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>La base de données de nœuds « %1 » est endommagée. Elle n&apos;a pas été modifiée. Restaurez une sauvegarde ; celles que ce programme a faites sont dans le dossier « %1.backups ».</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>La base de données de nœuds « %1 » a été écrite par une version plus récente de ce programme. Installez cette version sur cet ordinateur, ou ouvrez la copie de sauvegarde qu&apos;elle a faite dans le même dossier.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>La base de données de nœuds « %1 » ne peut pas être modifiée, car le fichier ou son dossier est protégé en écriture pour vous. Demandez à votre administrateur le droit d&apos;y écrire, ou copiez la base dans un dossier à vous et ouvrez la copie.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>La base de données de nœuds « %1 » est retenue par un autre programme. Fermez ce programme, ou attendez que sa sauvegarde ou sa copie soit terminée, puis réessayez.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>Il n&apos;y a plus de place pour la base de données de nœuds « %1 ». Supprimez de ce disque les fichiers dont vous n&apos;avez pas besoin, puis réessayez.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>La base de données de nœuds « %1 » ne peut pas être ouverte. Vérifiez que son dossier existe, que le disque ou le lecteur réseau est connecté et que vous avez le droit de lire le fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>« %1 » est un dossier, un périphérique ou un tube et ne peut pas contenir une base de données de nœuds. Rien n&apos;a été modifié. Choisissez un autre fichier.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>« %1 » est la base de données de nœuds elle-même et n&apos;a pas été modifiée. Choisissez un autre fichier pour la copie.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Certains mots de passe de la base de données de nœuds « %1 » sont illisibles et affichés vides, car la clé qui les a chiffrés est absente. Déverrouillez votre trousseau ou restaurez le fichier de clé, puis redémarrez le programme. Ils restent dans la base jusqu&apos;à ce que vous en donniez de nouveaux.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Certains mots de passe de la base de données de nœuds « %1 » n&apos;ont pas été modifiés par ce programme et sont affichés vides. Ils restent dans la base jusqu&apos;à ce que vous en donniez de nouveaux. Cherchez qui peut écrire dans le fichier, ou revenez à une sauvegarde.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>Les mots de passe ne peuvent pas être enregistrés dans la base de données de nœuds « %1 », car la clé qui les chiffre n&apos;est ni dans votre trousseau ni dans un fichier, et ne peut pas y être conservée. Déverrouillez votre trousseau, restaurez le fichier de clé ou rendez votre dossier de configuration accessible en écriture, puis réessayez.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>La base de données de nœuds « %1 » ne peut être ni lue ni écrite. Vérifiez que son disque ou lecteur réseau est connecté, puis réessayez.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Certains mots de passe de la base de données partagée dans « %1 » ne peuvent pas être lus et sont affichés vides, parce que cet ordinateur n&apos;a pas la clé avec laquelle ils ont été chiffrés. Cliquez sur l&apos;état de la connexion dans la barre d&apos;état, et donnez la phrase secrète du site. Ils restent dans la base de données jusqu&apos;à ce que vous en donniez de nouveaux.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>Les mots de passe ne peuvent pas être enregistrés dans la base de données partagée dans « %1 », parce que cet ordinateur n&apos;a pas la clé du site. Cliquez sur l&apos;état de la connexion dans la barre d&apos;état, donnez la phrase secrète du site et réessayez.</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>Caméras :</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>Dans cette vue :</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Rechercher des caméras</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Caméras qui ne sont pas dans cette vue</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Caméras de cette vue</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descendre</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>aucun réseau n&apos;accepte le multicast</translation>
    </message>
</context>
</TS>
