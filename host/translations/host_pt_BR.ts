<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AddressGuard</name>
    <message>
        <source>&quot;%1&quot; has this address and port already.</source>
        <translation>&quot;%1&quot; já tem este endereço e esta porta.</translation>
    </message>
</context>
<context>
    <name>AddressText</name>
    <message>
        <source>An address cannot contain spaces.</source>
        <translation>Um endereço não contém espaços.</translation>
    </message>
    <message>
        <source>This is neither an IPv6 address nor a host with a port.</source>
        <translation>Não é um endereço IPv6 nem um host com porta.</translation>
    </message>
    <message>
        <source>An IP address has four numbers from 0 to 255.</source>
        <translation>Um endereço IP tem quatro números de 0 a 255.</translation>
    </message>
    <message>
        <source>A host name can contain only letters, digits, dots and hyphens.</source>
        <translation>O nome de um host contém apenas letras, dígitos, pontos e hifens.</translation>
    </message>
    <message>
        <source>A port is a number from 1 to 65535.</source>
        <translation>Uma porta é um número de 1 a 65535.</translation>
    </message>
    <message>
        <source>The host in this URL cannot be read.</source>
        <translation>Esta URL não contém um host legível.</translation>
    </message>
</context>
<context>
    <name>ArpScanner</name>
    <message>
        <source>no IPv4 network is attached</source>
        <translation>nenhuma rede IPv4 conectada</translation>
    </message>
    <message>
        <source>the system provides no socket: %1</source>
        <translation>o sistema não fornece um socket: %1</translation>
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
        <translation>Nada foi gravado, porque estas senhas não podem ser lidas: %1. Desbloqueie seu chaveiro, restaure o arquivo de chave ou deixe as senhas de fora.</translation>
    </message>
    <message>
        <source>There is no database.</source>
        <translation>Não há banco de dados.</translation>
    </message>
    <message>
        <source>several devices have this address; give type, port and channel</source>
        <translation>vários dispositivos têm este endereço; informe tipo, porta e canal</translation>
    </message>
    <message>
        <source>several devices have this name; give the address</source>
        <translation>vários dispositivos têm este nome; informe o endereço</translation>
    </message>
    <message>
        <source>it is a database and was left as it is.</source>
        <translation>é um banco de dados e não foi alterado.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 não pode ser gravado: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e mais %2</translation>
    </message>
    <message>
        <source>it contains control characters</source>
        <translation>contém caracteres de controle</translation>
    </message>
    <message>
        <source>it is longer than 1024 characters</source>
        <translation>tem mais de 1024 caracteres</translation>
    </message>
    <message>
        <source>it contains a line break</source>
        <translation>contém uma quebra de linha</translation>
    </message>
    <message>
        <source>it contains invisible characters</source>
        <translation>contém caracteres invisíveis</translation>
    </message>
    <message>
        <source>it is not a number from 0 to 65535</source>
        <translation>não é um número de 0 a 65535</translation>
    </message>
    <message>
        <source>it is not a number from 1 to 4</source>
        <translation>não é um número de 1 a 4</translation>
    </message>
    <message>
        <source>it is not one of yes, no, true, false, 1, 0</source>
        <translation>não é yes, no, true, false, 1 nem 0</translation>
    </message>
    <message>
        <source>it is not a MAC address (twelve hexadecimal digits)</source>
        <translation>não é um endereço MAC (doze dígitos hexadecimais)</translation>
    </message>
    <message>
        <source>it is neither a number nor one of IP device, URL camera, channel device</source>
        <translation>não é IP device, URL camera nem channel device, nem um número</translation>
    </message>
    <message>
        <source>it is not a number</source>
        <translation>não é um número</translation>
    </message>
    <message>
        <source>%1 The import has stopped there; only what is counted here is stored. Import the file again for the rest.</source>
        <translation>%1 A importação parou ali; só foi armazenado o que está contado aqui. Importe o arquivo novamente para o restante.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 não é um arquivo comum.</translation>
    </message>
    <message>
        <source>%1 is the node database itself.</source>
        <translation>%1 é o próprio banco de dados de nós.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 não pode ser lido: %2</translation>
    </message>
    <message>
        <source>%1 lines are bad; this is not a list of cameras.</source>
        <translation>%1 linhas estão erradas; isto não é uma lista de câmeras.</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because the key that seals them is not there. Unlock your keychain, bring the key file back, or make your configuration folder writable. Nothing was imported.</source>
        <translation>As senhas da lista (na linha %1) não podem ser armazenadas, porque falta a chave que as cifra. Desbloqueie seu chaveiro, restaure o arquivo de chave ou permita a gravação na sua pasta de configuração. Nada foi importado.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>The first line cannot be read: %1</source>
        <translation>A primeira linha não pode ser lida: %1</translation>
    </message>
    <message>
        <source>devices of this type cannot be added here</source>
        <translation>dispositivos deste tipo não podem ser adicionados aqui</translation>
    </message>
    <message>
        <source>recording folders cannot be added here</source>
        <translation>pastas de gravação não podem ser adicionadas aqui</translation>
    </message>
    <message>
        <source>the device could not be added</source>
        <translation>o dispositivo não pôde ser adicionado</translation>
    </message>
    <message>
        <source>what is at this address is not a device</source>
        <translation>o que está neste endereço não é um dispositivo</translation>
    </message>
    <message>
        <source>the device at this address has no channels</source>
        <translation>o dispositivo neste endereço não tem canais</translation>
    </message>
    <message>
        <source>the device could not be changed</source>
        <translation>o dispositivo não pôde ser alterado</translation>
    </message>
    <message>
        <source>There are two columns &quot;%1&quot;.</source>
        <translation>Há duas colunas &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>There is no column &quot;address&quot;. The first line must name the columns.</source>
        <translation>Falta a coluna &quot;address&quot;. A primeira linha deve nomear as colunas.</translation>
    </message>
    <message>
        <source>there are more cells than columns</source>
        <translation>há mais células do que colunas</translation>
    </message>
    <message>
        <source>bad %1: %2</source>
        <translation>%1 incorreto: %2</translation>
    </message>
    <message>
        <source>there is neither a name nor an address</source>
        <translation>não há nome nem endereço</translation>
    </message>
    <message>
        <source>a device of this type has no channels</source>
        <translation>um dispositivo deste tipo não tem canais</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>it is neither a host name nor an IP address</source>
        <translation>não é um nome de host nem um endereço IP</translation>
    </message>
    <message>
        <source>it contains more than a host; port, SSL and user have columns of their own</source>
        <translation>contém mais do que um host; porta, SSL e usuário têm colunas próprias</translation>
    </message>
    <message>
        <source>it is about the same device as line %1, and would change what that says</source>
        <translation>refere-se ao mesmo dispositivo que a linha %1 e mudaria o que esta indica</translation>
    </message>
    <message>
        <source>the new device would have no name</source>
        <translation>o novo dispositivo não teria nome</translation>
    </message>
    <message>
        <source>The passwords of the list (in line %1) cannot be stored, because this computer does not have the key of the shared database. Give its passphrase first. Nothing was imported.</source>
        <translation>As senhas da lista (na linha %1) não podem ser armazenadas, porque este computador não tem a chave do banco de dados compartilhado. Dê primeiro a frase secreta. Nada foi importado.</translation>
    </message>
</context>
<context>
    <name>ChangeSetTitle</name>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Properties of %1</source>
        <translation>Propriedades de %1</translation>
    </message>
    <message numerus="yes">
        <source>Properties of %n node(s)</source>
        <translation>
            <numerusform>Propriedades de um nó</numerusform>
            <numerusform>Propriedades de %n nós</numerusform>
        </translation>
    </message>
    <message>
        <source>Recording folders</source>
        <translation>Pastas de gravação</translation>
    </message>
    <message>
        <source>Recording folder of %1</source>
        <translation>Pasta de gravação de %1</translation>
    </message>
    <message numerus="yes">
        <source>Recording folders of %n camera(s)</source>
        <translation>
            <numerusform>Pasta de gravação de uma câmera</numerusform>
            <numerusform>Pastas de gravação de %n câmeras</numerusform>
        </translation>
    </message>
    <message>
        <source>Users and passwords</source>
        <translation>Usuários e senhas</translation>
    </message>
    <message>
        <source>User and password of %1</source>
        <translation>Usuário e senha de %1</translation>
    </message>
    <message numerus="yes">
        <source>User and password of %n node(s)</source>
        <translation>
            <numerusform>Usuário e senha de um nó</numerusform>
            <numerusform>Usuário e senha de %n nós</numerusform>
        </translation>
    </message>
    <message>
        <source>Adding nodes</source>
        <translation>Adição de nós</translation>
    </message>
    <message>
        <source>Adding %1</source>
        <translation>Adição de %1</translation>
    </message>
    <message numerus="yes">
        <source>Adding %n node(s)</source>
        <translation>
            <numerusform>Adição de um nó</numerusform>
            <numerusform>Adição de %n nós</numerusform>
        </translation>
    </message>
    <message>
        <source>Removing nodes</source>
        <translation>Remoção de nós</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Remoção de %1</translation>
    </message>
    <message numerus="yes">
        <source>Removing %n node(s)</source>
        <translation>
            <numerusform>Remoção de um nó</numerusform>
            <numerusform>Remoção de %n nós</numerusform>
        </translation>
    </message>
    <message>
        <source>Imports</source>
        <translation>Importações</translation>
    </message>
    <message>
        <source>Import of %1</source>
        <translation>Importação de %1</translation>
    </message>
    <message>
        <source>What cameras said</source>
        <translation>O que as câmeras informaram</translation>
    </message>
    <message>
        <source>What %1 said</source>
        <translation>O que %1 informou</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) said</source>
        <translation>
            <numerusform>O que uma câmera informou</numerusform>
            <numerusform>O que %n câmeras informaram</numerusform>
        </translation>
    </message>
    <message>
        <source>New addresses</source>
        <translation>Novos endereços</translation>
    </message>
    <message>
        <source>New address of %1</source>
        <translation>Novo endereço de %1</translation>
    </message>
    <message numerus="yes">
        <source>New addresses of %n device(s)</source>
        <translation>
            <numerusform>Novo endereço de um dispositivo</numerusform>
            <numerusform>Novos endereços de %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Scans</source>
        <translation>Buscas</translation>
    </message>
    <message>
        <source>A scan found %1</source>
        <translation>Uma busca encontrou %1</translation>
    </message>
    <message numerus="yes">
        <source>A scan found %n device(s)</source>
        <translation>
            <numerusform>Uma busca encontrou um dispositivo</numerusform>
            <numerusform>Uma busca encontrou %n dispositivos</numerusform>
        </translation>
    </message>
    <message>
        <source>What cameras are known by</source>
        <translation>Como as câmeras são reconhecidas</translation>
    </message>
    <message>
        <source>What %1 is known by</source>
        <translation>Como %1 é reconhecida</translation>
    </message>
    <message numerus="yes">
        <source>What %n camera(s) are known by</source>
        <translation>
            <numerusform>Como uma câmera é reconhecida</numerusform>
            <numerusform>Como %n câmeras são reconhecidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Proxy global</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Ambientes</translation>
    </message>
    <message>
        <source>New database</source>
        <translation>Novo banco de dados</translation>
    </message>
    <message>
        <source>Restored backup</source>
        <translation>Backup restaurado</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Revertido</translation>
    </message>
    <message>
        <source>Change of a newer version</source>
        <translation>Alteração de uma versão mais recente</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Refeito: %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Revertido: %1</translation>
    </message>
    <message>
        <source>Passwords sealed anew</source>
        <translation>Senhas cifradas de novo</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The quoted cell that begins in the record of line %1 is never closed.</source>
        <translation>A célula entre aspas que começa no registro da linha %1 nunca é fechada.</translation>
    </message>
    <message>
        <source>The record that begins in line %1 is longer than 1 MiB.</source>
        <translation>O registro que começa na linha %1 tem mais de 1 MiB.</translation>
    </message>
    <message>
        <source>text follows the closing quote of a cell</source>
        <translation>há texto após as aspas finais de uma célula</translation>
    </message>
    <message>
        <source>This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.</source>
        <translation>Não é um arquivo de texto (a linha %1 contém dados binários). Salve o arquivo como texto UTF-8.</translation>
    </message>
    <message>
        <source>Line %1 is longer than 1 MiB.</source>
        <translation>A linha %1 tem mais de 1 MiB.</translation>
    </message>
    <message>
        <source>Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.</source>
        <translation>A linha %1 não é texto UTF-8. Salve o arquivo como UTF-8 e tente novamente.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1</source>
        <translation>O arquivo não pode ser lido: %1</translation>
    </message>
</context>
<context>
    <name>DeviceCheck</name>
    <message>
        <source>it takes too long to answer</source>
        <translation>demora demais para responder</translation>
    </message>
    <message>
        <source>the address is not valid</source>
        <translation>o endereço não é válido</translation>
    </message>
    <message>
        <source>it does not speak ONVIF</source>
        <translation>não fala ONVIF</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>não informa quem é</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>pede uma senha e nenhuma está armazenada</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>pede a senha sem criptografia</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>pede a senha de uma forma desconhecida</translation>
    </message>
    <message>
        <source>it has no pictures of this channel</source>
        <translation>não indica imagens deste canal</translation>
    </message>
    <message>
        <source>it has another endpoint than before</source>
        <translation>tem um ponto de extremidade diferente de antes</translation>
    </message>
    <message>
        <source>it has another realm than before</source>
        <translation>tem um domínio de autenticação diferente de antes</translation>
    </message>
    <message>
        <source>it has another serial number than before</source>
        <translation>tem um número de série diferente de antes</translation>
    </message>
</context>
<context>
    <name>DeviceChecks</name>
    <message>
        <source>another password was refused there</source>
        <translation>outra senha foi recusada ali</translation>
    </message>
</context>
<context>
    <name>DeviceConnection</name>
    <message>
        <source>no answer in time</source>
        <translation>sem resposta a tempo</translation>
    </message>
    <message>
        <source>the answer is too long</source>
        <translation>a resposta é longa demais</translation>
    </message>
    <message>
        <source>it redirects to another address</source>
        <translation>redireciona para outro lugar</translation>
    </message>
    <message>
        <source>it has another certificate than before</source>
        <translation>tem um certificado diferente de antes</translation>
    </message>
</context>
<context>
    <name>FileName</name>
    <message>
        <source>The file &quot;%1&quot; cannot be used: its name is not text in the encoding of this system. Rename it.</source>
        <translation>O arquivo &quot;%1&quot; não pode ser usado: o nome não é texto na codificação deste sistema. Renomeie-o.</translation>
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
        <translation>Usuário e senha informados</translation>
    </message>
    <message>
        <source>Proxy address</source>
        <translation>Endereço do proxy</translation>
    </message>
    <message>
        <source>Proxy port</source>
        <translation>Porta do proxy</translation>
    </message>
    <message>
        <source>Proxy user</source>
        <translation>Usuário do proxy</translation>
    </message>
    <message>
        <source>Proxy password</source>
        <translation>Senha do proxy</translation>
    </message>
    <message>
        <source>Save proxy password</source>
        <translation>Salvar a senha do proxy</translation>
    </message>
    <message>
        <source>Pan/tilt head</source>
        <translation>Cabeça pan/tilt</translation>
    </message>
    <message>
        <source>Use remote preview</source>
        <translation>Usar pré-visualização remota</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Câmera</translation>
    </message>
    <message>
        <source>Save password</source>
        <translation>Salvar a senha</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Preview mode</source>
        <translation>Modo de pré-visualização</translation>
    </message>
    <message>
        <source>Default connection data</source>
        <translation>Dados de conexão padrão</translation>
    </message>
    <message>
        <source>Default frame rate</source>
        <translation>Taxa de quadros padrão</translation>
    </message>
    <message>
        <source>Default JPEG quality</source>
        <translation>Qualidade JPEG padrão</translation>
    </message>
    <message>
        <source>Default resolution</source>
        <translation>Resolução padrão</translation>
    </message>
    <message>
        <source>Default audio setting</source>
        <translation>Configuração de áudio padrão</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Caminho padrão do servidor de arquivos</translation>
    </message>
    <message>
        <source>Default remote preview server</source>
        <translation>Servidor de pré-visualização remota padrão</translation>
    </message>
    <message>
        <source>Active environment</source>
        <translation>Ambiente ativo</translation>
    </message>
    <message>
        <source>Use proxy</source>
        <translation>Usar o proxy</translation>
    </message>
    <message>
        <source>Proxy exceptions</source>
        <translation>Exceções do proxy</translation>
    </message>
    <message>
        <source>Environments</source>
        <translation>Ambientes</translation>
    </message>
    <message>
        <source>Global proxy</source>
        <translation>Proxy global</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nó</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Known device</source>
        <translation>Dispositivo conhecido</translation>
    </message>
    <message>
        <source>(not there)</source>
        <translation>(ausente)</translation>
    </message>
    <message>
        <source>(hidden)</source>
        <translation>(oculta)</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>alterada</translation>
    </message>
    <message>
        <source>It is so already.</source>
        <translation>Já está assim.</translation>
    </message>
    <message>
        <source>It was changed since.</source>
        <translation>Foi alterado desde então.</translation>
    </message>
    <message>
        <source>The node was removed.</source>
        <translation>O nó foi removido.</translation>
    </message>
    <message>
        <source>Others use it now.</source>
        <translation>Outros o usam agora.</translation>
    </message>
    <message>
        <source>Days of history</source>
        <translation>Dias de histórico</translation>
    </message>
    <message>
        <source>Megabytes of history</source>
        <translation>Megabytes de histórico</translation>
    </message>
</context>
<context>
    <name>HostNodeDB</name>
    <message>
        <source>Default</source>
        <translation>Padrão</translation>
    </message>
</context>
<context>
    <name>LogEntry</name>
    <message>
        <source>Entry of unknown kind &quot;%1&quot;</source>
        <translation>Entrada de tipo desconhecido &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Level %1: %2</source>
        <translation>Nível %1: %2</translation>
    </message>
    <message>
        <source>Program log</source>
        <translation>Registro do programa</translation>
    </message>
    <message>
        <source>Accepted new address</source>
        <translation>Novo endereço aceito</translation>
    </message>
    <message>
        <source>Moved device %1 from address %2 to %3, where it was found.</source>
        <translation>Dispositivo %1 movido do endereço %2 para %3, onde foi encontrado.</translation>
    </message>
    <message>
        <source>Imported devices</source>
        <translation>Dispositivos importados</translation>
    </message>
    <message>
        <source>Imported devices from %1: %2 added, %3 changed, %4 lines refused.</source>
        <translation>Dispositivos importados de %1: %2 adicionados, %3 alterados, %4 linhas recusadas.</translation>
    </message>
    <message>
        <source>Changed without a dialog</source>
        <translation>Alterado sem caixa de diálogo</translation>
    </message>
    <message>
        <source>Added by the program</source>
        <translation>Adicionado pelo programa</translation>
    </message>
    <message>
        <source>Removed by the program</source>
        <translation>Removido pelo programa</translation>
    </message>
    <message>
        <source>Changed settings</source>
        <translation>Configurações alteradas</translation>
    </message>
    <message>
        <source>Changed the global proxy</source>
        <translation>Proxy global alterado</translation>
    </message>
    <message>
        <source>Changed environments</source>
        <translation>Ambientes alterados</translation>
    </message>
    <message>
        <source>Found by a scan</source>
        <translation>Encontrado por uma busca</translation>
    </message>
    <message>
        <source>Accepted new addresses</source>
        <translation>Novos endereços aceitos</translation>
    </message>
    <message>
        <source>Noted what cameras are known by</source>
        <translation>Anotado como as câmeras são reconhecidas</translation>
    </message>
    <message>
        <source>Filled in what cameras said</source>
        <translation>Preenchido o que as câmeras informaram</translation>
    </message>
    <message>
        <source>Imported a list</source>
        <translation>Lista importada</translation>
    </message>
    <message>
        <source>Made the database</source>
        <translation>Banco de dados criado</translation>
    </message>
    <message>
        <source>Restored a backup</source>
        <translation>Backup restaurado</translation>
    </message>
    <message>
        <source>Changed by a newer version</source>
        <translation>Alterado por uma versão mais recente</translation>
    </message>
    <message>
        <source>Changed recordings</source>
        <translation>Pastas de gravação alteradas</translation>
    </message>
    <message>
        <source>Changed users and passwords</source>
        <translation>Usuários e senhas alterados</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Revertido</translation>
    </message>
    <message>
        <source>Added device</source>
        <translation>Dispositivo adicionado</translation>
    </message>
    <message>
        <source>Removed device</source>
        <translation>Dispositivo removido</translation>
    </message>
    <message>
        <source>Allowed a clear password</source>
        <translation>Senha sem criptografia permitida</translation>
    </message>
    <message>
        <source>Accepted another device</source>
        <translation>Outro dispositivo aceito</translation>
    </message>
    <message>
        <source>Added device with name %1.</source>
        <translation>Dispositivo com o nome %1 adicionado.</translation>
    </message>
    <message>
        <source>Removed device with name %1.</source>
        <translation>Dispositivo com o nome %1 removido.</translation>
    </message>
    <message>
        <source>Accepted another device than before as %1.</source>
        <translation>Outro dispositivo que não o anterior aceito como %1.</translation>
    </message>
    <message>
        <source>Allowed to send the password of %1 in the clear.</source>
        <translation>Permitido enviar a senha de %1 sem criptografia.</translation>
    </message>
    <message>
        <source>Thinned history</source>
        <translation>Histórico reduzido</translation>
    </message>
    <message>
        <source>Took the details of changes up to number %1 out of the history: %2 lines.</source>
        <translation>Detalhes das alterações até o número %1 retirados do histórico: %2 linhas.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other(s)</source>
        <translation>
            <numerusform>%1 e mais %n</numerusform>
            <numerusform>%1 e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Sealed passwords anew</source>
        <translation>Cifrou senhas de novo</translation>
    </message>
</context>
<context>
    <name>LogFinding</name>
    <message>
        <source>Change set %1 was altered.</source>
        <translation>O conjunto de alterações %1 foi alterado.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was altered.</source>
        <translation>A linha %1 dos conjuntos de alterações foi alterada.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was altered.</source>
        <translation>A entrada %1 do registro de auditoria foi alterada.</translation>
    </message>
    <message>
        <source>Change set %1 is missing.</source>
        <translation>Falta o conjunto de alterações %1.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets is missing.</source>
        <translation>Falta a linha %1 dos conjuntos de alterações.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log is missing.</source>
        <translation>Falta a entrada %1 do registro de auditoria.</translation>
    </message>
    <message>
        <source>Change set %1 was put in by another program.</source>
        <translation>O conjunto de alterações %1 foi inserido por outro programa.</translation>
    </message>
    <message>
        <source>Line %1 of the change sets was put in by another program.</source>
        <translation>A linha %1 dos conjuntos de alterações foi inserida por outro programa.</translation>
    </message>
    <message>
        <source>Entry %1 of the audit log was put in by another program.</source>
        <translation>A entrada %1 do registro de auditoria foi inserida por outro programa.</translation>
    </message>
    <message>
        <source>From change set %1 on the log was rewritten.</source>
        <translation>A partir do conjunto de alterações %1, o registro foi reescrito.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log was rewritten.</source>
        <translation>A partir da linha %1 dos conjuntos de alterações, o registro foi reescrito.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log was rewritten.</source>
        <translation>A partir da entrada %1 do registro de auditoria, o registro foi reescrito.</translation>
    </message>
    <message>
        <source>From change set %1 on the log is sealed with another key.</source>
        <translation>A partir do conjunto de alterações %1, o registro está selado com outra chave.</translation>
    </message>
    <message>
        <source>From line %1 of the change sets on the log is sealed with another key.</source>
        <translation>A partir da linha %1 dos conjuntos de alterações, o registro está selado com outra chave.</translation>
    </message>
    <message>
        <source>From entry %1 of the audit log on the log is sealed with another key.</source>
        <translation>A partir da entrada %1 do registro de auditoria, o registro está selado com outra chave.</translation>
    </message>
    <message>
        <source>What came after change set %1 was cut off.</source>
        <translation>O que vinha depois do conjunto de alterações %1 foi cortado.</translation>
    </message>
    <message>
        <source>What came after line %1 of the change sets was cut off.</source>
        <translation>O que vinha depois da linha %1 dos conjuntos de alterações foi cortado.</translation>
    </message>
    <message>
        <source>What came after entry %1 of the audit log was cut off.</source>
        <translation>O que vinha depois da entrada %1 do registro de auditoria foi cortado.</translation>
    </message>
    <message>
        <source>It is not the log that was seen here before.</source>
        <translation>Não é o registro visto aqui antes.</translation>
    </message>
</context>
<context>
    <name>MacGuard</name>
    <message>
        <source>A MAC address has twelve hexadecimal digits, such as 00:00:5E:12:34:AB.</source>
        <translation>Um endereço MAC tem doze dígitos hexadecimais, como 00:00:5E:12:34:AB.</translation>
    </message>
</context>
<context>
    <name>MdnsScanner</name>
    <message>
        <source>the Avahi daemon is not running</source>
        <translation>o serviço Avahi não está em execução</translation>
    </message>
    <message>
        <source>the Avahi daemon does not answer</source>
        <translation>o serviço Avahi não responde</translation>
    </message>
    <message>
        <source>all interfaces</source>
        <translation>todas as interfaces</translation>
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
        <translation>Versão do software</translation>
    </message>
    <message>
        <source>MAC address</source>
        <translation>Endereço MAC</translation>
    </message>
    <message>
        <source>Current IP addresses</source>
        <translation>Endereços IP atuais</translation>
    </message>
    <message>
        <source>Factory IP address</source>
        <translation>Endereço IP de fábrica</translation>
    </message>
    <message>
        <source>Live stream (M-JPEG)</source>
        <translation>Transmissão ao vivo (M-JPEG)</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message>
        <source>Resolutions</source>
        <translation>Resoluções</translation>
    </message>
    <message>
        <source>Pan, tilt, zoom</source>
        <translation>Pan, tilt, zoom</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sim</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>Layout options</source>
        <translation>Opções de layout</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Gravações</translation>
    </message>
    <message>
        <source>PTZ</source>
        <translation>PTZ</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URLs</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Câmeras</translation>
    </message>
</context>
<context>
    <name>NodeTypes</name>
    <message>
        <source>Recording Folder</source>
        <translation>Pasta de gravação</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visão</translation>
    </message>
    <message>
        <source>IP Camera</source>
        <translation>Câmera IP</translation>
    </message>
    <message>
        <source>URL Camera</source>
        <translation>Câmera URL</translation>
    </message>
    <message>
        <source>Multi-Channel Device</source>
        <translation>Dispositivo multicanal</translation>
    </message>
    <message>
        <source>Internal Recorder</source>
        <translation>Gravador interno</translation>
    </message>
    <message>
        <source>Remote Preview Server</source>
        <translation>Servidor de visualização remota</translation>
    </message>
    <message>
        <source>Node of type %1</source>
        <translation>Nó do tipo %1</translation>
    </message>
    <message>
        <source>Remote preview of %1</source>
        <translation>Visualização remota de %1</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message>
        <source>This node has been removed meanwhile. Changes cannot be stored: close this window.</source>
        <translation>Este nó foi removido nesse meio-tempo. As alterações não podem ser armazenadas: feche esta janela.</translation>
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
        <translation>não indica o endereço de nenhuma imagem</translation>
    </message>
    <message>
        <source>the address of its picture holds a password in the clear</source>
        <translation>o endereço da imagem contém uma senha sem criptografia</translation>
    </message>
    <message>
        <source>what it sends is not a picture</source>
        <translation>o que ele envia não é uma imagem</translation>
    </message>
    <message>
        <source>it refuses the picture</source>
        <translation>recusa a imagem</translation>
    </message>
    <message>
        <source>it asks for a password, and none is stored</source>
        <translation>pede uma senha e nenhuma está armazenada</translation>
    </message>
    <message>
        <source>its pictures have another realm than the device</source>
        <translation>suas imagens têm outro domínio de autenticação que não o do dispositivo</translation>
    </message>
    <message>
        <source>it asks for the password in an unknown way</source>
        <translation>pede a senha de uma forma desconhecida</translation>
    </message>
    <message>
        <source>it asks for the password in the clear</source>
        <translation>pede a senha sem criptografia</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Path:</source>
        <translation>Caminho:</translation>
    </message>
    <message>
        <source>Path is below the default file server path</source>
        <translation>O caminho está abaixo do caminho padrão do servidor de arquivos</translation>
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
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
    </message>
</context>
<context>
    <name>SharedEditor</name>
    <message>
        <source>(empty)</source>
        <translation>(vazio)</translation>
    </message>
    <message>
        <source>(different)</source>
        <translation>(diferentes)</translation>
    </message>
</context>
<context>
    <name>StoreError</name>
    <message>
        <source>&quot;%1&quot; is not a node database but some other kind of file. It was left as it is. Choose your database file, or a new file name to start an empty one.</source>
        <translation>&quot;%1&quot; não é um banco de dados de nós, mas um arquivo de outro tipo. Não foi alterado. Escolha o arquivo do seu banco de dados, ou um novo nome de arquivo para começar com um vazio.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a database of another program and holds no nodes. It was left as it is. Choose your node database, or a new file name to start an empty one.</source>
        <translation>&quot;%1&quot; é o banco de dados de outro programa e não contém nós. Não foi alterado. Escolha seu banco de dados de nós, ou um novo nome de arquivo para começar com um vazio.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program and cannot be trusted. It was left as it is. Put a backup copy in its place.</source>
        <translation>As tabelas do banco de dados de nós &quot;%1&quot; foram alteradas por outro programa e não são mais confiáveis. Ele não foi alterado. Substitua-o por uma cópia de backup.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, but its log or its backups are still there. Nothing was changed. Restore a backup of it, or choose a new file name to start an empty one.</source>
        <translation>O banco de dados de nós &quot;%1&quot; está vazio ou desapareceu, mas seu registro ou seus backups ainda existem. Nada foi alterado. Restaure um backup, ou escolha um novo nome de arquivo para começar com um vazio.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged. It was left as it is. Restore a backup of it; those that this program made are in the folder &quot;%1.backups&quot;.</source>
        <translation>O banco de dados de nós &quot;%1&quot; está danificado. Não foi alterado. Restaure um backup; os que este programa fez estão na pasta &quot;%1.backups&quot;.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; was written by a newer version of this program. Install that version on this computer, or open the backup copy that it made in the same folder.</source>
        <translation>O banco de dados de nós &quot;%1&quot; foi gravado por uma versão mais nova deste programa. Instale essa versão neste computador, ou abra a cópia de backup que ela fez na mesma pasta.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be changed, because the file or its folder is write-protected for you. Ask your administrator for the right to write there, or copy the database into a folder of your own and open the copy.</source>
        <translation>O banco de dados de nós &quot;%1&quot; não pode ser alterado, porque o arquivo ou sua pasta está protegido contra gravação para você. Peça permissão de gravação ao administrador, ou copie o banco de dados para uma pasta sua e abra a cópia.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is held by another program. Close that program, or wait until its backup or copy is finished, and try again.</source>
        <translation>O banco de dados de nós &quot;%1&quot; está retido por outro programa. Feche esse programa, ou espere até que o backup ou a cópia dele termine, e tente novamente.</translation>
    </message>
    <message>
        <source>There is no space left for the node database &quot;%1&quot;. Delete files that you do not need from this disk, and try again.</source>
        <translation>Não há mais espaço para o banco de dados de nós &quot;%1&quot;. Exclua deste disco os arquivos de que não precisa e tente novamente.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be opened. Check that its folder exists, that the disk or network drive is connected, and that you may read the file.</source>
        <translation>O banco de dados de nós &quot;%1&quot; não pode ser aberto. Verifique se a pasta existe, se o disco ou a unidade de rede está conectada e se você pode ler o arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder, a device or a pipe and cannot hold a node database. It was left as it is. Choose another file.</source>
        <translation>&quot;%1&quot; é uma pasta, um dispositivo ou um pipe e não pode conter um banco de dados de nós. Nada foi alterado. Escolha outro arquivo.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is the node database itself and was left as it is. Choose another file for the copy.</source>
        <translation>&quot;%1&quot; é o próprio banco de dados de nós e não foi alterado. Escolha outro arquivo para a cópia.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; cannot be read and are shown empty, because the key that they were sealed with is not there. Unlock your keychain or bring the key file back, and start the program again. They stay in the database until you give new ones.</source>
        <translation>Algumas senhas do banco de dados de nós &quot;%1&quot; não podem ser lidas e aparecem vazias, porque falta a chave com que foram cifradas. Desbloqueie seu chaveiro ou restaure o arquivo de chave e reinicie o programa. Elas permanecem no banco de dados até que você informe novas.</translation>
    </message>
    <message>
        <source>Some passwords in the node database &quot;%1&quot; were changed by something other than this program, and are shown empty. They stay in the database until you give new ones. Find out who can write to the file, or go back to a backup.</source>
        <translation>Algumas senhas do banco de dados de nós &quot;%1&quot; não foram alteradas por este programa e aparecem vazias. Elas permanecem no banco de dados até que você informe novas. Descubra quem pode gravar no arquivo, ou volte a um backup.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the node database &quot;%1&quot;, because the key that seals them can be found neither in your keychain nor in a file, nor kept there. Unlock your keychain, bring the key file back, or make your configuration folder writable, and try again.</source>
        <translation>Não é possível armazenar senhas no banco de dados de nós &quot;%1&quot;, porque a chave que as cifra não está no seu chaveiro nem em um arquivo, e não pode ser guardada ali. Desbloqueie seu chaveiro, restaure o arquivo de chave ou permita a gravação na sua pasta de configuração, e tente novamente.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; cannot be read or written. Check that its disk or network drive is connected, and try again.</source>
        <translation>O banco de dados de nós &quot;%1&quot; não pode ser lido nem gravado. Verifique se o disco ou a unidade de rede está conectada e tente novamente.</translation>
    </message>
    <message>
        <source>Some passwords of the shared database in &quot;%1&quot; cannot be read and are shown empty, because this computer does not have the key that they were sealed with. Click on the state of the connection in the status bar, and give the passphrase of the site. They stay in the database until you give new ones.</source>
        <translation>Algumas senhas do banco de dados compartilhado em &quot;%1&quot; não podem ser lidas e aparecem vazias, porque este computador não tem a chave com a qual foram cifradas. Clique no estado da conexão na barra de status e dê a frase secreta do local. Elas ficam no banco de dados até que você dê novas.</translation>
    </message>
    <message>
        <source>Passwords cannot be stored in the shared database in &quot;%1&quot;, because this computer does not have the key of the site. Click on the state of the connection in the status bar, give the passphrase of the site, and try again.</source>
        <translation>As senhas não podem ser armazenadas no banco de dados compartilhado em &quot;%1&quot;, porque este computador não tem a chave do local. Clique no estado da conexão na barra de status, dê a frase secreta do local e tente de novo.</translation>
    </message>
</context>
<context>
    <name>ViewPage</name>
    <message>
        <source>Cameras:</source>
        <translation>Câmeras:</translation>
    </message>
    <message>
        <source>In this view:</source>
        <translation>Nesta vista:</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Pesquisar câmeras</translation>
    </message>
    <message>
        <source>Cameras that are not in this view</source>
        <translation>Câmeras que não estão nesta vista</translation>
    </message>
    <message>
        <source>Cameras in this view</source>
        <translation>Câmeras desta vista</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Take Out</source>
        <translation>Retirar</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Descer</translation>
    </message>
</context>
<context>
    <name>WsDiscoveryScanner</name>
    <message>
        <source>no network supports multicast</source>
        <translation>nenhuma rede aceita multicast</translation>
    </message>
</context>
</TS>
