<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Camera</source>
        <translation>Adicionar câmera</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Ambiente:</translation>
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
        <translation>Adicionar %1</translation>
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
        <translation>Modo de controle:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Control Mode&lt;/b&gt;, you can protect your camera from unwanted configuration changes.&lt;br&gt;
&lt;b&gt;Full Control&lt;/b&gt;: Configuration is not restricted.&lt;br&gt;
&lt;b&gt;Image Mode&lt;/b&gt;: Configuration is restricted to image settings and PTZ.&lt;br&gt;
&lt;b&gt;Viewer Mode&lt;/b&gt;: Configuration is not allowed.</source>
        <translation>O &lt;b&gt;modo de controle&lt;/b&gt; protege a câmera contra alterações indesejadas da configuração.&lt;br&gt;
&lt;b&gt;Controle total&lt;/b&gt;: a configuração não é restrita.&lt;br&gt;
&lt;b&gt;Modo de imagem&lt;/b&gt;: a configuração é restrita aos ajustes de imagem e ao PTZ.&lt;br&gt;
&lt;b&gt;Modo de visualização&lt;/b&gt;: a configuração não é permitida.</translation>
    </message>
    <message>
        <source>Full Control</source>
        <translation>Controle total</translation>
    </message>
    <message>
        <source>Image Mode</source>
        <translation>Modo de imagem</translation>
    </message>
    <message>
        <source>Viewer Mode</source>
        <translation>Modo de visualização</translation>
    </message>
    <message>
        <source>Bandwidth:</source>
        <translation>Largura de banda:</translation>
    </message>
    <message>
        <source>By selecting a &lt;b&gt;Bandwidth&lt;/b&gt;, you can adjust image retrieval to the bandwidth of the connection used for accessing the cameras.&lt;br&gt;
&lt;b&gt;Slow Remote:&lt;/b&gt; Modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Fast Remote:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Slow Local:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Fast Local:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</source>
        <translation>A &lt;b&gt;largura de banda&lt;/b&gt; ajusta a obtenção de imagens à conexão usada para acessar as câmeras.&lt;br&gt;
&lt;b&gt;Remota lenta:&lt;/b&gt; modem, ISDN, GPRS, EDGE&lt;br&gt;
&lt;b&gt;Remota rápida:&lt;/b&gt; DSL, UMTS/3G&lt;br&gt;
&lt;b&gt;Local lenta:&lt;/b&gt; WLAN/WiFi, Ethernet&lt;br&gt;
&lt;b&gt;Local rápida:&lt;/b&gt; Fast Ethernet, Gigabit Ethernet</translation>
    </message>
    <message>
        <source>Slow Remote (Modem, ISDN, GPRS/2G, EDGE)</source>
        <translation>Remota lenta (modem, ISDN, GPRS/2G, EDGE)</translation>
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
        <translation>Usar proxy personalizado</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Edit Camera</source>
        <translation>Editar câmera</translation>
    </message>
    <message>
        <source>Environment:</source>
        <translation>Ambiente:</translation>
    </message>
    <message>
        <source>Proxy...</source>
        <translation>Proxy...</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Propriedades de %1</translation>
    </message>
</context>
<context>
    <name>EnvironmentDialog</name>
    <message>
        <source>Network Environments</source>
        <translation>Ambientes de rede</translation>
    </message>
    <message>
        <source>Click to add a new environment.</source>
        <translation>Clique para adicionar um novo ambiente.</translation>
    </message>
    <message>
        <source>Click to remove the selected environment.</source>
        <translation>Clique para remover o ambiente selecionado.</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <translation>Sem título %1</translation>
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
        <translation>Tipos de nó</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>Visualizador genérico de nós</translation>
    </message>
    <message>
        <source>Node type:</source>
        <translation>Tipo de nó:</translation>
    </message>
    <message>
        <source>Node name:</source>
        <translation>Nome do nó:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>Versão do software:</translation>
    </message>
    <message>
        <source>MAC address:</source>
        <translation>Endereço MAC:</translation>
    </message>
    <message>
        <source>Factory IP address:</source>
        <translation>Endereço IP de fábrica:</translation>
    </message>
    <message>
        <source>Current IP addresses:</source>
        <translation>Endereços IP atuais:</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Endereços IP atuais</translation>
    </message>
    <message>
        <source>&lt;Unknown&gt;</source>
        <translation>&lt;Desconhecido&gt;</translation>
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
        <translation>Arquivo de instruções:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the instruction file</source>
        <translation>Escolher o arquivo de instruções</translation>
    </message>
    <message>
        <source>Preferred/Alarm Layout:</source>
        <translation>Layout preferido/de alarme:</translation>
    </message>
    <message>
        <source>Display strategy:</source>
        <translation>Estratégia de exibição:</translation>
    </message>
    <message>
        <source>Minimum delay</source>
        <translation>Atraso mínimo</translation>
    </message>
    <message>
        <source>Smooth display</source>
        <translation>Exibição suave</translation>
    </message>
    <message>
        <source>Audio path:</source>
        <translation>Caminho de áudio:</translation>
    </message>
    <message>
        <source>Not defined</source>
        <translation>Não definido</translation>
    </message>
    <message>
        <source>Self</source>
        <translation>A própria</translation>
    </message>
    <message>
        <source>Instruction file</source>
        <translation>Arquivo de instruções</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Changed device properties</source>
        <translation>Propriedades do dispositivo alteradas</translation>
    </message>
    <message>
        <source>Changed properties of device with name %1.</source>
        <translation>Propriedades do dispositivo com o nome %1 alteradas.</translation>
    </message>
    <message>
        <source>Changed device name</source>
        <translation>Nome do dispositivo alterado</translation>
    </message>
    <message>
        <source>Changed name of device from %1 to %2.</source>
        <translation>Nome do dispositivo alterado de %1 para %2.</translation>
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
        <translation>Proxy de rede</translation>
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
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for these hosts and domains:</source>
        <translation>Não usar o proxy para estes hosts e domínios:</translation>
    </message>
    <message>
        <source>Use semicolon (;) as separator, e.g.: *.example.org; 10.*; 192.168.*</source>
        <translation>Separe com ponto e vírgula (;), por ex.: *.example.org; 10.*; 192.168.*</translation>
    </message>
    <message>
        <source>Enter hosts and domains for which proxy settings should not be used.&lt;br&gt;Use semicolon (;) as separator and asterisk (*) for wildcards, e.g.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</source>
        <translation>Informe os hosts e domínios para os quais o proxy não deve ser usado.&lt;br&gt;Separe com ponto e vírgula (;); o asterisco (*) serve de curinga, por ex.:&lt;br&gt;&lt;b&gt;*.example.org; 10.*; 192.168.*&lt;/b&gt;</translation>
    </message>
</context>
<context>
    <name>NodeAuthenticateDialog</name>
    <message>
        <source>User &amp; Password</source>
        <translation>Usuário e senha</translation>
    </message>
    <message>
        <source>Please enter user name and password for&lt;br&gt;%1 to authenticate:</source>
        <translation>Informe o nome de usuário e a senha para&lt;br&gt;%1 a fim de autenticar-se:</translation>
    </message>
    <message>
        <source>User name: </source>
        <translation>Nome de usuário: </translation>
    </message>
    <message>
        <source>Password: </source>
        <translation>Senha: </translation>
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
        <translation>Salvando nome de usuário e senha...</translation>
    </message>
</context>
<context>
    <name>NodeDBViewer</name>
    <message>
        <source>NodeDBViewer</source>
        <translation>Banco de dados de nós</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nós</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>NodeDialog</name>
    <message>
        <source>Edit Environments...</source>
        <translation>Editar ambientes...</translation>
    </message>
</context>
<context>
    <name>NodeOverviewDialog</name>
    <message>
        <source>Overview</source>
        <translation>Visão geral</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nós</translation>
    </message>
    <message>
        <source>Bonjour scan</source>
        <translation>Busca Bonjour</translation>
    </message>
    <message>
        <source>ARP scan</source>
        <translation>Busca ARP</translation>
    </message>
    <message>
        <source>Add ...</source>
        <translation>Adicionar ...</translation>
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
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Adicionar...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Remove selected</source>
        <translation>Remover selecionados</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Remover todos</translation>
    </message>
</context>
<context>
    <name>NodeViewModel</name>
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
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Símbolo</translation>
    </message>
    <message>
        <source>Node type</source>
        <translation>Tipo de nó</translation>
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
        <translation>Sensibilidade:</translation>
    </message>
    <message>
        <source>Ultra short</source>
        <translation>Muito curta</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Curta</translation>
    </message>
    <message>
        <source>Exponential</source>
        <translation>Exponencial</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
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
        <translation>Controle por joystick:</translation>
    </message>
    <message>
        <source>Invert horizontal direction</source>
        <translation>Inverter direção horizontal</translation>
    </message>
    <message>
        <source>Invert vertical direction</source>
        <translation>Inverter direção vertical</translation>
    </message>
    <message>
        <source>Mechanical zoom:</source>
        <translation>Zoom mecânico:</translation>
    </message>
    <message>
        <source>Send zoom command directly to PTZ head.</source>
        <translation>Enviar o comando de zoom diretamente ao cabeçote PTZ.</translation>
    </message>
    <message>
        <source>Mechanical zoom</source>
        <translation>Zoom mecânico</translation>
    </message>
    <message>
        <source>PTZ head address:</source>
        <translation>Endereço do cabeçote PTZ:</translation>
    </message>
    <message>
        <source>Valid range: 1 to 255.</source>
        <translation>Faixa válida: 1 a 255.</translation>
    </message>
    <message>
        <source>Logical address of the PTZ head</source>
        <translation>Endereço lógico do cabeçote PTZ</translation>
    </message>
    <message>
        <source>No pan/tilt head</source>
        <translation>Sem cabeçote de pan/tilt</translation>
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
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Live (M-JPEG):</source>
        <translation>Ao vivo (M-JPEG):</translation>
    </message>
    <message>
        <source>Works best with continuous PTZ commands.</source>
        <translation>Funciona melhor com comandos PTZ contínuos.</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>Up:</source>
        <translation>Para cima:</translation>
    </message>
    <message>
        <source>Down:</source>
        <translation>Para baixo:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Esquerda:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Direita:</translation>
    </message>
    <message>
        <source>Zoom in:</source>
        <translation>Aproximar:</translation>
    </message>
    <message>
        <source>Zoom out:</source>
        <translation>Afastar:</translation>
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
        <translation>Acesso às gravações</translation>
    </message>
    <message>
        <source>Select this option to obtain recording data via the camera. This option can be used if the data is recorded on internal storage media of the camera or if the file server is not directly accessible.</source>
        <translation>Selecione esta opção para obter as gravações pela câmera. Ela serve se a gravação é feita na mídia interna da câmera ou se o servidor de arquivos não pode ser acessado diretamente.</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Pela câmera</translation>
    </message>
    <message>
        <source>Directly access the default file server specified in the Preferences.</source>
        <translation>Acessar diretamente o servidor de arquivos padrão indicado nas preferências.</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Caminho padrão do servidor de arquivos (o endereço IP de fábrica é acrescentado)</translation>
    </message>
    <message>
        <source>Check to specify a camera-specific file server path.</source>
        <translation>Marque para indicar um caminho do servidor de arquivos próprio da câmera.</translation>
    </message>
    <message>
        <source>Specific file server path:</source>
        <translation>Caminho específico do servidor de arquivos:</translation>
    </message>
    <message>
        <source>Specific file server path</source>
        <translation>Caminho específico do servidor de arquivos</translation>
    </message>
    <message>
        <source>More...</source>
        <translation>Mais...</translation>
    </message>
    <message>
        <source>&lt;p&gt;To optimize low-bandwidth connections, you can use KoTandem for playback and Video Search. Audio/video data is always exported from the recording target selected above.&lt;/p&gt;&lt;p&gt;KoTandem is a server product that must be installed separately. For details, please see the web site of your supplier.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Para otimizar conexões de baixa largura de banda, você pode usar o KoTandem para reprodução e busca de vídeo. Os dados de áudio e vídeo são sempre exportados do destino de gravação selecionado acima.&lt;/p&gt;&lt;p&gt;O KoTandem é um produto de servidor que deve ser instalado separadamente. Para mais detalhes, consulte o site do seu fornecedor.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Usar dados de visualização prévia para reprodução e busca de vídeo</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Configurações...</translation>
    </message>
    <message>
        <source>Recording Folders</source>
        <translation>Pastas de gravação</translation>
    </message>
    <message>
        <source>&lt;p&gt;You will not see recording folders assigned to other cameras here, only the folders assigned to this camera and unassigned folders.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Aqui não aparecem as pastas de gravação atribuídas a outras câmeras, apenas as atribuídas a esta câmera e as não atribuídas.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Pastas de gravação</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
    </message>
    <message>
        <source>NodeID</source>
        <translation>NodeID</translation>
    </message>
    <message>
        <source>Create a new recording node.</source>
        <translation>Criar um novo nó de gravação.</translation>
    </message>
    <message>
        <source>Add...</source>
        <translation>Adicionar...</translation>
    </message>
    <message>
        <source>Edit the recording node.</source>
        <translation>Editar o nó de gravação.</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Remove a recording node.</source>
        <translation>Remover um nó de gravação.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Assign the checked entry to the camera.</source>
        <translation>Atribuir o item marcado à câmera.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Access Recordings of %1</source>
        <translation>Acesso às gravações de %1</translation>
    </message>
    <message>
        <source>No recording folder</source>
        <translation>Nenhuma pasta de gravação</translation>
    </message>
    <message>
        <source>Less...</source>
        <translation>Menos...</translation>
    </message>
    <message>
        <source>No entry selected</source>
        <translation>Nenhum item selecionado</translation>
    </message>
    <message>
        <source>Please select an entry.</source>
        <translation>Selecione um item.</translation>
    </message>
    <message>
        <source>Select path of recording folder</source>
        <translation>Selecionar o caminho da pasta de gravação</translation>
    </message>
    <message>
        <source>Critical error</source>
        <translation>Erro crítico</translation>
    </message>
    <message>
        <source>Node driver (RecordingFolderNode) is missing.</source>
        <translation>O driver de nós (RecordingFolderNode) não foi encontrado.</translation>
    </message>
    <message>
        <source>Invalid action</source>
        <translation>Ação inválida</translation>
    </message>
    <message>
        <source>You cannot remove the internal recorder.</source>
        <translation>Não é possível remover o gravador interno.</translation>
    </message>
    <message>
        <source>You are going to remove a node.
This action is not reversible.
Continue anyway?</source>
        <translation>Você está prestes a remover um nó.
Esta ação não pode ser desfeita.
Continuar mesmo assim?</translation>
    </message>
    <message>
        <source>Remove node</source>
        <translation>Remover nó</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Caminho padrão do servidor de arquivos não definido</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Defina o caminho padrão do servidor de arquivos antes de escolher esta opção.</translation>
    </message>
    <message>
        <source>Factory extension unknown</source>
        <translation>Extensão de fábrica desconhecida</translation>
    </message>
    <message>
        <source>You cannot use this option until the factory extension is known.</source>
        <translation>Não é possível usar esta opção até que a extensão de fábrica seja conhecida.</translation>
    </message>
    <message>
        <source>No recording folder assigned</source>
        <translation>Nenhuma pasta de gravação atribuída</translation>
    </message>
    <message>
        <source>Please assign a recording folder to the camera.</source>
        <translation>Atribua uma pasta de gravação à câmera.</translation>
    </message>
</context>
<context>
    <name>RecordingFolderMassAssignmentDialog</name>
    <message>
        <source>Access Recordings</source>
        <translation>Acesso às gravações</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of the following cameras:&lt;/b&gt;&lt;/p&gt;%1</source>
        <translation>&lt;p&gt;&lt;b&gt;Selecione como o %2 deve acessar as gravações das seguintes câmeras:&lt;/b&gt;&lt;/p&gt;%1</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Pela câmera</translation>
    </message>
    <message>
        <source>Default file server path (factory IP address will be appended)</source>
        <translation>Caminho padrão do servidor de arquivos (o endereço IP de fábrica é acrescentado)</translation>
    </message>
    <message>
        <source>Specific file server path (factory IP will be appended):</source>
        <translation>Caminho específico do servidor de arquivos (o IP de fábrica é acrescentado):</translation>
    </message>
    <message>
        <source>Specific File Server</source>
        <translation>Servidor de arquivos específico</translation>
    </message>
    <message>
        <source>Path:</source>
        <translation>Caminho:</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Use preview data for playback and Video Search</source>
        <translation>Usar dados de visualização prévia para reprodução e busca de vídeo</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Select how %2 should access the recordings of:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Selecione como o %2 deve acessar as gravações de:&lt;/b&gt;&lt;/p&gt;&lt;ul&gt;%1&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>Select File Server Directory</source>
        <translation>Selecionar diretório do servidor de arquivos</translation>
    </message>
    <message>
        <source>Default file server path not set</source>
        <translation>Caminho padrão do servidor de arquivos não definido</translation>
    </message>
    <message>
        <source>Please define the default file server path before setting this option.</source>
        <translation>Defina o caminho padrão do servidor de arquivos antes de escolher esta opção.</translation>
    </message>
    <message>
        <source>Storing where the recordings are...</source>
        <translation>Salvando onde estão as gravações...</translation>
    </message>
</context>
<context>
    <name>RecordingTransponderCustomSettingsDialog</name>
    <message>
        <source>KoTandem Custom Settings</source>
        <translation>Configurações personalizadas do KoTandem</translation>
    </message>
    <message>
        <source>Customize any preview setting for this video source or use the defaults defined in &lt;b&gt;Options&amp;nbsp;&amp;gt;&amp;nbsp;Connection&amp;nbsp;Defaults&lt;/b&gt;.</source>
        <translation>Personalize as configurações de visualização prévia desta fonte de vídeo ou use os valores definidos em &lt;b&gt;Opções&amp;nbsp;&amp;gt;&amp;nbsp;Conexão&amp;nbsp;padrão&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>Connection Data</source>
        <translation>Dados de conexão</translation>
    </message>
    <message>
        <source>Use custom connection data</source>
        <translation>Usar dados de conexão personalizados</translation>
    </message>
    <message>
        <source>Camera Preview</source>
        <translation>Visualização da câmera</translation>
    </message>
    <message>
        <source>Event Streamer</source>
        <translation>Transmissor de eventos</translation>
    </message>
    <message>
        <source>Remote Preview</source>
        <translation>Visualização remota</translation>
    </message>
    <message>
        <source>IP address:</source>
        <translation>Endereço IP:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
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
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Use custom JPEG quality</source>
        <translation>Usar qualidade JPEG personalizada</translation>
    </message>
    <message>
        <source>JPEG quality</source>
        <translation>Qualidade JPEG</translation>
    </message>
    <message>
        <source>Use custom frame rate</source>
        <translation>Usar taxa de quadros personalizada</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Taxa de quadros</translation>
    </message>
    <message>
        <source>F/s</source>
        <translation>qps</translation>
    </message>
    <message>
        <source>Use custom resolution</source>
        <translation>Usar resolução personalizada</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Largura:</translation>
    </message>
    <message>
        <source>0000; </source>
        <translation>0000; </translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Altura:</translation>
    </message>
    <message>
        <source>Use custom audio setting</source>
        <translation>Usar configuração de áudio personalizada</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>Ativar</translation>
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
        <translation>Acesso às gravações:</translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Alterar...</translation>
    </message>
    <message>
        <source>(KoTandem)</source>
        <translation>(KoTandem)</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Pela câmera</translation>
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
        <translation>Endereço:</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Porta:</translation>
    </message>
    <message>
        <source>Secure connection (SSL)</source>
        <translation>Conexão segura (SSL)</translation>
    </message>
    <message>
        <source>Channel:</source>
        <translation>Canal:</translation>
    </message>
    <message>
        <source>Bypass proxy settings for this camera.</source>
        <translation>Não usar o proxy para esta câmera.</translation>
    </message>
    <message>
        <source>Bypass proxy</source>
        <translation>Não usar o proxy</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Nome de usuário:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>The current address is still affected by the current proxy exceptions:&lt;br&gt;</source>
        <translation>O endereço atual ainda é afetado pelas exceções de proxy atuais:&lt;br&gt;</translation>
    </message>
    <message>
        <source>Please check the proxy settings!</source>
        <translation>Verifique as configurações do proxy!</translation>
    </message>
    <message>
        <source>Proxy Settings</source>
        <translation>Configurações do proxy</translation>
    </message>
</context>
</TS>
