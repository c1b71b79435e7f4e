<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Ajouter une caméra</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Environnement :</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Type :</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Ajouter : %1</translation>
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
        <translation>Mode de contrôle :</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>Le &lt;b&gt;mode de contrôle&lt;/b&gt; permet de protéger la caméra contre les modifications involontaires de sa configuration.&lt;br&gt;
&lt;b&gt;Contrôle total&lt;/b&gt; : la configuration n&apos;est pas limitée.&lt;br&gt;
&lt;b&gt;Mode image&lt;/b&gt; : la configuration est limitée aux réglages de l&apos;image et au PTZ.&lt;br&gt;
&lt;b&gt;Mode visualisation&lt;/b&gt; : la configuration n&apos;est pas autorisée.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Contrôle total</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Mode image</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Mode visualisation</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Bande passante :</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>La &lt;b&gt;bande passante&lt;/b&gt; permet d&apos;adapter la récupération des images à la connexion utilisée pour accéder aux caméras.&lt;br&gt;
&lt;b&gt;Distant lent :&lt;/b&gt; modem, RNIS, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Distant rapide :&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Local lent :&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Local rapide :&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
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
</context>
<context>
    <name>CustomNetworkProxyWidget</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Use custom proxy</source>
        <translation>Utiliser un proxy personnalisé</translation>
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
        <source>User name:</source>
        <translation>Nom d&apos;utilisateur :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Modifier la caméra</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Environnement :</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Propriétés de %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Environnements réseau</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Cliquez pour ajouter un nouvel environnement.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Cliquez pour supprimer l&apos;environnement sélectionné.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Sans titre %1</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Node types</source>
        <translation>Types de nœuds</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>GenericNodeViewer</name>
    <message>
        <source>Generic node viewer</source>
        <translation>Visionneuse de nœuds générique</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Type de nœud :</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Nom du nœud :</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
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
        <translation>Modèle :</translation>
    </message>
    <message>
        <source>Software version:</source>
        <translation>Version du logiciel :</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>Adresse MAC :</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Adresse IP d&apos;usine :</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Adresses IP actuelles :</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Adresses IP actuelles</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Inconnue&gt;</translation>
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
        <translation>Fichier d&apos;instructions :</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Choisir le fichier d&apos;instructions</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Disposition préférée/d&apos;alarme :</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Stratégie d&apos;affichage :</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Délai minimal</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Affichage fluide</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Chemin audio :</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Non défini</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>Elle-même</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>Fichier d&apos;instructions</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Propriétés de l&apos;appareil modifiées</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Propriétés de l&apos;appareil nommé %1 modifiées.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Nom de l&apos;appareil modifié</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Nom de l&apos;appareil modifié de %1 en %2.</translation>
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
    <name>NetworkProxyDialog</name>
    <message>
        <source>Network Proxy</source>
        <translation>Proxy réseau</translation>
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
        <translation>Serveur proxy</translation>
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
        <source>User name:</source>
        <translation>Nom d&apos;utilisateur :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>Ne pas utiliser le proxy pour ces hôtes et domaines :</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Séparer par des points-virgules (;), p. ex. : *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Saisissez les hôtes et domaines pour lesquels le proxy ne doit pas être utilisé.&lt;br&gt;Séparez-les par des points-virgules (;) ; l&apos;astérisque (*) sert de caractère générique, p. ex. :&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Utilisateur &amp; mot de passe</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Veuillez saisir le nom d&apos;utilisateur et le mot de passe pour&lt;br&gt;%1 afin de vous authentifier :</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Nom d&apos;utilisateur : </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Mot de passe : </translation>
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
        <translation>Enregistrement du nom d&apos;utilisateur et du mot de passe...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>Base de données des nœuds</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Modifier les environnements...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Vue d&apos;ensemble</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nœuds</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Recherche Bonjour</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>Recherche ARP</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Ajouter ...</translation>
    </message>
    <message>
        <source>Edit ...</source>
        <translation>Modifier ...</translation>
    </message>
    <message>
        <source>Filter ...</source>
        <translation>Filtrer ...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Ajouter...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Supprimer la sélection</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout supprimer</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
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
        <source>Symbol</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Type de nœud</translation>
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
        <translation>Type :</translation>
    </message>
    <message>
        <source>Sensitivity:</source>
        <translation>Sensibilité :</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Très courte</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Courte</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponentielle</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linéaire</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Fast Patch:</source>
        <translation>Fast Patch :</translation>
    </message>
    <message>
        <source>Fast Patch</source>
        <translation>Fast Patch</translation>
    </message>
    <message>
        <source>Joystick control:</source>
        <translation>Commande par joystick :</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Inverser la direction horizontale</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Inverser la direction verticale</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Zoom mécanique :</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Envoyer la commande de zoom directement à la tête PTZ.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Zoom mécanique</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Adresse de la tête PTZ :</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Plage valide : 1 à 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Adresse logique de la tête PTZ</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Pas de tête panoramique/inclinable</translation>
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
        <translation>Image</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>Direct (M-JPEG) :</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Idéal avec des commandes PTZ continues.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Haut :</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>Bas :</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Gauche :</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite :</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>Zoom avant :</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Zoom arrière :</translation>
    </message>
    <message>
        <source>Stop:</source>
        <translation>Arrêt :</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Unlimited</source>
        <translation>Illimité</translation>
    </message>
</context>
<context>
    <name>RecordingFolderAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Accès aux enregistrements</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Sélectionnez cette option pour obtenir les enregistrements par la caméra. Elle convient si les données sont enregistrées sur le support interne de la caméra ou si le serveur de fichiers n&apos;est pas directement accessible.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Via la caméra</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Accéder directement au serveur de fichiers par défaut indiqué dans les préférences.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Chemin par défaut du serveur de fichiers (l&apos;adresse IP d&apos;usine est ajoutée)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Cochez pour indiquer un chemin de serveur de fichiers propre à la caméra.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Chemin spécifique du serveur de fichiers :</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Chemin spécifique du serveur de fichiers</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Plus...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Pour optimiser les connexions à faible bande passante, vous pouvez utiliser KoTandem pour la lecture et la recherche vidéo. Les données audio et vidéo sont toujours exportées depuis la cible d&apos;enregistrement sélectionnée ci-dessus.&lt;/p&gt;&lt;p&gt;KoTandem est un produit serveur à installer séparément. Pour plus de détails, consultez le site web de votre fournisseur.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Utiliser les données d&apos;aperçu pour la lecture et la recherche vidéo</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Dossiers d&apos;enregistrement</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Les dossiers d&apos;enregistrement affectés à d&apos;autres caméras n&apos;apparaissent pas ici, seulement ceux affectés à cette caméra et les dossiers non affectés.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Dossiers d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Créer un nouveau nœud d&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Ajouter...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Modifier le nœud d&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Supprimer un nœud d&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Affecter l&apos;entrée cochée à la caméra.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Accès aux enregistrements de %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Aucun dossier d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Moins...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Aucune entrée sélectionnée</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Veuillez sélectionner une entrée.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Choisir le chemin du dossier d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Erreur critique</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>Le pilote de nœud (RecordingFolderNode) est introuvable.</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Action non valide</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>Vous ne pouvez pas supprimer l&apos;enregistreur interne.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>Vous êtes sur le point de supprimer un nœud.
Cette action est irréversible.
Continuer quand même ?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Supprimer le nœud</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Chemin par défaut du serveur de fichiers non défini</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Veuillez définir le chemin par défaut du serveur de fichiers avant de choisir cette option.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Extension d&apos;usine inconnue</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>Vous ne pouvez pas utiliser cette option tant que l&apos;extension d&apos;usine n&apos;est pas connue.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Aucun dossier d&apos;enregistrement affecté</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Veuillez affecter un dossier d&apos;enregistrement à la caméra.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Accès aux enregistrements</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Choisissez comment %2 doit accéder aux enregistrements des caméras suivantes :&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Via la caméra</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Chemin par défaut du serveur de fichiers (l&apos;adresse IP d&apos;usine est ajoutée)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Chemin spécifique du serveur de fichiers (l&apos;IP d&apos;usine est ajoutée) :</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>Serveur de fichiers spécifique</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Chemin :</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
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
        <source>Use preview data for playback and Video Search</source>
        <translation>Utiliser les données d&apos;aperçu pour la lecture et la recherche vidéo</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Choisissez comment %2 doit accéder aux enregistrements de :&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Choisir un répertoire du serveur de fichiers</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Chemin par défaut du serveur de fichiers non défini</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Veuillez définir le chemin par défaut du serveur de fichiers avant de choisir cette option.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Enregistrement de l&apos;emplacement des enregistrements...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Réglages KoTandem personnalisés</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Personnalisez les réglages d&apos;aperçu de cette source vidéo ou utilisez les valeurs définies dans &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connexion&amp;nbsp;par&amp;nbsp;défaut&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Données de connexion</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Utiliser des données de connexion personnalisées</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Aperçu de la caméra</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Diffuseur d&apos;événements</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Aperçu à distance</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>Adresse IP :</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Port :</translation>
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
        <translation>Nom d&apos;utilisateur :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>Utiliser une qualité JPEG personnalisée</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualité JPEG</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Utiliser une fréquence d&apos;images personnalisée</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Fréquence d&apos;images</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>i/s</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Utiliser une résolution personnalisée</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Largeur :</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur :</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Utiliser un réglage audio personnalisé</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Activer</translation>
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
        <translation>Accès aux enregistrements :</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Via la caméra</translation>
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
        <source>Channel:</source>
        <translation>Canal :</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>Ne pas utiliser le proxy pour cette caméra.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>Ne pas utiliser le proxy</translation>
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
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>L&apos;adresse actuelle est encore concernée par les exceptions de proxy actuelles :&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>Veuillez vérifier les paramètres du proxy !</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Paramètres du proxy</translation>
    </message>
</context>
</TS>
