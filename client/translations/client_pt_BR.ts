<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AddAndNext</name>
    <message>
        <source>Add and &amp;Next</source>
        <translation>Adicionar e pró&amp;ximo</translation>
    </message>
</context>
<context>
    <name>AddressChangesDialog</name>
    <message>
        <source>Seen at a New Address</source>
        <translation>Vistos em um novo endereço</translation>
    </message>
    <message>
        <source>These devices seem to answer at another address now. Accept only what you expect: user name and password are sent to the new address from then on.</source>
        <translation>Estes dispositivos parecem responder agora em outro endereço. Aceite apenas o que você espera: o nome de usuário e a senha serão enviados ao novo endereço a partir de então.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Dispositivos</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Old Address</source>
        <translation>Endereço antigo</translation>
    </message>
    <message>
        <source>New Address</source>
        <translation>Novo endereço</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>Endereço MAC</translation>
    </message>
    <message>
        <source>&amp;Accept Selected</source>
        <translation>&amp;Aceitar selecionados</translation>
    </message>
    <message>
        <source>Accept A&amp;ll</source>
        <translation>Aceitar &amp;todos</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Descartar selecionados</translation>
    </message>
</context>
<context>
    <name>AlterationModel</name>
    <message>
        <source>Node</source>
        <translation>Nó</translation>
    </message>
    <message>
        <source>What</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Depois</translation>
    </message>
</context>
<context>
    <name>Application</name>
    <message>
        <source>Node Database</source>
        <translation>Banco de dados de nós</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is on a network drive. Two programs that use it there at the same time may damage it. Move it to a disk of this computer.</source>
        <translation>O banco de dados de nós &quot;%1&quot; está em uma unidade de rede. Dois programas que o usem ali ao mesmo tempo podem danificá-lo. Mova-o para um disco deste computador.</translation>
    </message>
    <message>
        <source>%1 only applies to windows, and none is opened here.</source>
        <translation>%1 é para janelas, e nenhuma é aberta aqui.</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, linha %2: %3</translation>
    </message>
    <message>
        <source>Column &quot;%1&quot; is not used.</source>
        <translation>A coluna &quot;%1&quot; não é usada.</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 gravadas</translation>
    </message>
    <message>
        <source>%1 without name and address left out</source>
        <translation>%1 sem nome e endereço omitidas</translation>
    </message>
    <message>
        <source>Uses this language, such as de or pt_BR, whatever is chosen elsewhere.</source>
        <translation>Usa este idioma, como de ou pt_BR, não importa o que foi escolhido em outro lugar.</translation>
    </message>
    <message>
        <source>Adds the cameras of a list (CSV) and ends. No window is needed.</source>
        <translation>Adiciona as câmeras de uma lista (CSV) e termina. Nenhuma janela é necessária.</translation>
    </message>
    <message>
        <source>Writes all cameras into a list (CSV) and ends.</source>
        <translation>Grava todas as câmeras em uma lista (CSV) e termina.</translation>
    </message>
    <message>
        <source>Leaves the passwords out of --export.</source>
        <translation>Deixa as senhas fora de --export.</translation>
    </message>
    <message>
        <source>Copies the database, which may be in use, into a file and ends.</source>
        <translation>Copia o banco de dados, que pode estar em uso, para um arquivo e termina.</translation>
    </message>
    <message>
        <source>Restores the database, which may be in use, from a backup and ends. The present content is kept as a backup.</source>
        <translation>Dá ao banco de dados, que pode estar em uso, o conteúdo de um backup e termina. O conteúdo atual é mantido como backup.</translation>
    </message>
    <message>
        <source>Unexpected argument: %1</source>
        <translation>Argumento inesperado: %1</translation>
    </message>
    <message>
        <source>The value after --%1 is empty.</source>
        <translation>O valor após --%1 está vazio.</translation>
    </message>
    <message>
        <source>%1 entries looked at, %2 older than the chain, %3 links without a seal</source>
        <translation>%1 entradas examinadas, %2 anteriores à cadeia, %3 elos sem selo</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Não é possível gravar %1.</translation>
    </message>
    <message>
        <source>Checks whether anybody has altered the logs of the database, says what, and ends.</source>
        <translation>Verifica se alguém alterou os registros do banco de dados, diz o quê e termina.</translation>
    </message>
    <message>
        <source>Details up to change number %1 were taken out</source>
        <translation>Os detalhes até a alteração número %1 foram retirados</translation>
    </message>
    <message>
        <source>%1 details taken out, up to change number %2</source>
        <translation>%1 detalhes retirados, até a alteração número %2</translation>
    </message>
    <message>
        <source>Stopped: the history was altered. --verify-log says where.</source>
        <translation>Não além disso: o histórico foi alterado. --verify-log diz o quê.</translation>
    </message>
    <message>
        <source>Removes what was before and after each change from the history, where it is older than this many days, and ends. Who changed something, and when, is kept.</source>
        <translation>Retira do histórico o que havia antes e depois de cada alteração mais antiga que tantos dias e termina. Quem alterou algo, e quando, permanece.</translation>
    </message>
    <message>
        <source>--thin-history needs a number of days.</source>
        <translation>--thin-history requer um número de dias.</translation>
    </message>
    <message>
        <source>Shows, adds, edits and removes the nodes of a video-surveillance system.
Without an option that does something and ends, such as --import, it opens a window, and takes the toolkit&apos;s options (-platform, -style and others) too.</source>
        <translation>Mostra, adiciona, edita e remove os nós de um sistema de videomonitoramento.
Sem uma opção que faça algo e termine, como --import, abre uma janela e aceita também as opções do toolkit (-platform, -style e outras).</translation>
    </message>
    <message>
        <source>Opens this node database: a file, which is made if it is not there, or a shared one, postgresql://user@host/database.</source>
        <translation>Abre este banco de dados de nós: um arquivo, criado se não existir, ou um compartilhado, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>Copies the database with its history to an empty one on a server, whose address follows (postgresql://user@host/database), and ends. Called again, it continues.</source>
        <translation>Leva o banco de dados com seu histórico para um vazio em um servidor, cujo endereço vem a seguir (postgresql://user@host/database), e termina. Chamado de novo, continua.</translation>
    </message>
    <message>
        <source>After --share FILE comes the address of a database, postgresql://user@host/database.</source>
        <translation>Depois de --share FILE vem o endereço de um banco de dados, postgresql://user@host/database.</translation>
    </message>
    <message>
        <source>A backup cannot be restored into a shared database.</source>
        <translation>Não é possível restaurar um backup em um banco de dados compartilhado.</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors</source>
        <translation>
            <numerusform>%1 adicionadas, %2 atualizadas, %3 inalteradas, %n linha com erros</numerusform>
            <numerusform>%1 adicionadas, %2 atualizadas, %3 inalteradas, %n linhas com erros</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AuditLogDialog</name>
    <message>
        <source>Audit Log</source>
        <translation>Registro de auditoria</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Pesquisar:</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Show in History...</source>
        <translation>Mostrar no histórico...</translation>
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
        <translation>Usuário</translation>
    </message>
    <message>
        <source>What</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>%1 (nothing was changed)</source>
        <translation>%1 (nada foi alterado)</translation>
    </message>
</context>
<context>
    <name>BackToDialog</name>
    <message>
        <source>Back to</source>
        <translation>Voltar para</translation>
    </message>
    <message>
        <source>Shows all nodes as they were, in a window of its own. Nothing is changed by that; what is shown there can be put back.</source>
        <translation>Mostra todos os nós como eram, em uma janela própria. Isso não altera nada; o que é mostrado ali pode ser revertido.</translation>
    </message>
    <message>
        <source>Not later than:</source>
        <translation>Não depois de:</translation>
    </message>
    <message>
        <source>As it was after this was done:</source>
        <translation>Como era depois disto:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>O que foi feito</translation>
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
        <translation>a senha não pode ser lida</translation>
    </message>
    <message>
        <source>it asks for no password</source>
        <translation>não pede senha</translation>
    </message>
    <message>
        <source>it was changed while it was checked</source>
        <translation>foi alterado durante a verificação</translation>
    </message>
</context>
<context>
    <name>CameraChecking</name>
    <message>
        <source>Cameras are being checked already.</source>
        <translation>As câmeras já estão sendo verificadas.</translation>
    </message>
    <message>
        <source>There is no camera with an address to check.</source>
        <translation>Não há câmera com endereço para verificar.</translation>
    </message>
    <message>
        <source>Try it, once with each?</source>
        <translation>Testar uma vez em cada uma?</translation>
    </message>
    <message>
        <source>&amp;Try It</source>
        <translation>&amp;Testar</translation>
    </message>
    <message>
        <source>The check was cancelled.</source>
        <translation>A verificação foi cancelada.</translation>
    </message>
    <message>
        <source>&amp;Report...</source>
        <translation>Rela&amp;tório...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 cameras took the password.</source>
        <translation>%1 de %2 câmeras aceitaram a senha.</translation>
    </message>
    <message>
        <source>%1 of %2 cameras answer as they should.</source>
        <translation>%1 de %2 câmeras respondem como devem.</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to be another device: Network &gt; Check Cameras looks for that.</source>
        <translation>Nenhuma das câmeras selecionadas se revelou outro dispositivo: isso é determinado por Rede &gt; Verificar câmeras.</translation>
    </message>
    <message>
        <source>Accept Other Devices</source>
        <translation>Aceitar outros dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) answered that are not the ones known so far. Accept them only if you know why, as after an exchange or a new certificate: from the next check on they are sent what is stored as user name and password.</source>
        <translation>
            <numerusform>Respondeu %n dispositivo que não é o conhecido até agora. Aceite-o somente se souber por quê, como após uma troca ou um novo certificado: a partir da próxima verificação, ele receberá o nome de usuário e a senha armazenados.</numerusform>
            <numerusform>Responderam %n dispositivos que não são os conhecidos até agora. Aceite-os somente se souber por quê, como após uma troca ou um novo certificado: a partir da próxima verificação, eles receberão o nome de usuário e a senha armazenados.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Aceitar</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) accepted.</source>
        <translation>
            <numerusform>%n dispositivo aceito.</numerusform>
            <numerusform>%n dispositivos aceitos.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Check Them</source>
        <translation>&amp;Verificar</translation>
    </message>
    <message>
        <source>None of the selected cameras was found to want a clear password: Network &gt; Check Cameras looks for that.</source>
        <translation>Nenhuma das câmeras selecionadas pede a senha sem criptografia: isso é determinado por Rede &gt; Verificar câmeras.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) take the password only in the clear. Without SSL, whoever listens on the way can read it, and use it for all cameras that have the same. Allow it only where the network is your own. It holds as long as the camera keeps its address and port.</source>
        <translation>
            <numerusform>%n dispositivo só aceita a senha sem criptografia. Sem SSL, quem escutar no caminho pode lê-la e usá-la em todas as câmeras que tenham a mesma. Permita isso somente onde a rede for sua. A permissão vale enquanto a câmera mantiver o endereço e a porta.</numerusform>
            <numerusform>%n dispositivos só aceitam a senha sem criptografia. Sem SSL, quem escutar no caminho pode lê-la e usá-la em todas as câmeras que tenham a mesma. Permita isso somente onde a rede for sua. A permissão vale enquanto a câmera mantiver o endereço e a porta.</numerusform>
        </translation>
    </message>
    <message>
        <source>Allow Clear Passwords</source>
        <translation>Permitir senhas sem criptografia</translation>
    </message>
    <message>
        <source>&amp;Allow</source>
        <translation>&amp;Permitir</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) may be sent their passwords in the clear.</source>
        <translation>
            <numerusform>A senha pode ser enviada sem criptografia a %n dispositivo.</numerusform>
            <numerusform>As senhas podem ser enviadas sem criptografia a %n dispositivos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CameraPictures</name>
    <message>
        <source>Once the camera was checked (F5), its picture is here.</source>
        <translation>Depois que a câmera for verificada (F5), a imagem dela aparecerá aqui.</translation>
    </message>
    <message>
        <source>Its password cannot be read.</source>
        <translation>A senha não pode ser lida.</translation>
    </message>
</context>
<context>
    <name>CameraStates</name>
    <message>
        <source>Another device than before</source>
        <translation>Outro dispositivo</translation>
    </message>
    <message>
        <source>Locked out</source>
        <translation>Bloqueado</translation>
    </message>
    <message>
        <source>Wrong password</source>
        <translation>Senha incorreta</translation>
    </message>
    <message>
        <source>Wants a clear password</source>
        <translation>Pede senha sem criptografia</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sem resposta</translation>
    </message>
    <message>
        <source>Not understood</source>
        <translation>Não compreendido</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>Não verificada</translation>
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
        <translation>Removido por %1 em %2. O que você digitar aqui não pode ser gravado; Editar &gt; Histórico recupera o nó.</translation>
    </message>
    <message>
        <source>Changed by %1 at %2 meanwhile.</source>
        <translation>Alterado nesse meio-tempo por %1 em %2.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 em %2</translation>
    </message>
    <message>
        <source>Also being edited now by %1.</source>
        <translation>Também em edição agora por %1.</translation>
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
        <translation>Câmeras verificadas</translation>
    </message>
    <message>
        <source>Cance&amp;l</source>
        <translation>Cance&amp;lar</translation>
    </message>
    <message>
        <source>Hide this message</source>
        <translation>Ocultar esta linha</translation>
    </message>
    <message>
        <source>Cameras checked: %1 of %2</source>
        <translation>Câmeras verificadas: %1 de %2</translation>
    </message>
</context>
<context>
    <name>CheckReportDialog</name>
    <message>
        <source>Cameras Checked</source>
        <translation>Câmeras verificadas</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Câmeras</translation>
    </message>
    <message>
        <source>List also those that &amp;answer</source>
        <translation>&amp;Mostrar também as que respondem</translation>
    </message>
    <message>
        <source>S&amp;how Them</source>
        <translation>&amp;Ver na lista</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Salvar como...</translation>
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
            <numerusform>%n nó omitido, que não é um dispositivo ou não tem endereço.</numerusform>
            <numerusform>%n nós omitidos, que não são dispositivos ou não têm endereço.</numerusform>
        </translation>
    </message>
    <message>
        <source>Tables (*.csv);;All files (*)</source>
        <translation>Tabelas (*.csv);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 não foi gravado: %2</translation>
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
        <translation>Endereço</translation>
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
        <translation>Se o servidor oferecer</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message>
        <source>Always, and check the certificate</source>
        <translation>Sempre, verificando o certificado</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>Connect to a Shared Database</source>
        <translation>Conectar a um banco de dados compartilhado</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Recentes:</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>&amp;Servidor:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Porta:</translation>
    </message>
    <message>
        <source>&amp;Database:</source>
        <translation>&amp;Banco de dados:</translation>
    </message>
    <message>
        <source>&amp;User:</source>
        <translation>&amp;Usuário:</translation>
    </message>
    <message>
        <source>P&amp;assword:</source>
        <translation>Sen&amp;ha:</translation>
    </message>
    <message>
        <source>&amp;Encryption:</source>
        <translation>Criptogra&amp;fia:</translation>
    </message>
    <message>
        <source>&amp;Keep the password</source>
        <translation>&amp;Guardar a senha</translation>
    </message>
    <message>
        <source>&amp;Test</source>
        <translation>&amp;Testar</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>Conectando...</translation>
    </message>
    <message>
        <source>The database can be read and changed.</source>
        <translation>O banco de dados pode ser lido e alterado.</translation>
    </message>
    <message>
        <source>The database can be read, but not changed by you.</source>
        <translation>O banco de dados pode ser lido, mas você não pode alterá-lo.</translation>
    </message>
    <message>
        <source>The password cannot be kept, because the key that seals passwords is not there. You are asked for it again next time.</source>
        <translation>A senha não pode ser guardada, porque falta a chave que sela as senhas. Ela será pedida de novo na próxima vez.</translation>
    </message>
</context>
<context>
    <name>DatabaseCommands</name>
    <message>
        <source>Restore a Backup</source>
        <translation>Restaurar um backup</translation>
    </message>
    <message>
        <source>Everything in this database is replaced by what &quot;%1&quot; holds, for all who use it. What is there now is kept as a backup first.</source>
        <translation>Tudo neste banco de dados é substituído pelo conteúdo de &quot;%1&quot;, para todos que o usam. O que há agora é guardado antes como backup.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>New Node Database</source>
        <translation>Novo banco de dados de nós</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already. Open it instead, or choose another name.</source>
        <translation>&quot;%1&quot; já existe. Abra-o ou escolha outro nome.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Backup</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Copiando o banco de dados...</translation>
    </message>
    <message>
        <source>The database was copied to &quot;%1&quot;.</source>
        <translation>O banco de dados foi copiado para &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Restoring the backup...</source>
        <translation>Restaurando o backup...</translation>
    </message>
    <message>
        <source>The database was restored from &quot;%1&quot;.</source>
        <translation>O banco de dados tem agora o conteúdo de &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>A shared database is restored on its server. Ask its administrator.</source>
        <translation>Um banco de dados compartilhado é restaurado no servidor. Fale com o administrador.</translation>
    </message>
</context>
<context>
    <name>DatabaseRecovery</name>
    <message>
        <source>Nothing in it can be read.</source>
        <translation>Nada dele pode ser lido.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) in it can still be read.</source>
        <translation>
            <numerusform>Ainda pode ser lido %n nó dele.</numerusform>
            <numerusform>Ainda podem ser lidos %n nós dele.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no good backup.</source>
        <translation>Não há backup válido.</translation>
    </message>
    <message>
        <source>The newest good backup was made at %1.</source>
        <translation>O backup válido mais recente é de %1.</translation>
    </message>
    <message>
        <source>If you choose one of these, the damaged file is kept under another name. Otherwise nothing is changed.</source>
        <translation>Se você escolher uma destas opções, o arquivo danificado será mantido com outro nome. Caso contrário, nada será alterado.</translation>
    </message>
    <message>
        <source>Node Database</source>
        <translation>Banco de dados de nós</translation>
    </message>
    <message>
        <source>The node database is damaged. Looking for what can be read and for backups...</source>
        <translation>O banco de dados de nós está danificado. Procurando o que pode ser lido e backups...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;Open Another...</source>
        <translation>Abrir &amp;outro...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>&amp;Start an Empty One</source>
        <translation>&amp;Começar com um vazio</translation>
    </message>
    <message>
        <source>Use What &amp;Can Be Read</source>
        <translation>&amp;Usar o que pode ser lido</translation>
    </message>
    <message>
        <source>Restore the &amp;Backup</source>
        <translation>Restaurar o &amp;backup</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged.</source>
        <translation>O banco de dados de nós &quot;%1&quot; está danificado.</translation>
    </message>
    <message>
        <source>The tables of the node database &quot;%1&quot; were changed by another program.</source>
        <translation>As tabelas do banco de dados de nós &quot;%1&quot; foram alteradas por outro programa.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is empty or gone, although it held something.</source>
        <translation>O banco de dados de nós &quot;%1&quot; está vazio ou desapareceu, embora tivesse algo.</translation>
    </message>
    <message>
        <source>The node database &quot;%1&quot; is damaged, or another file is in its place.</source>
        <translation>O banco de dados de nós &quot;%1&quot; está danificado, ou outro arquivo está no lugar dele.</translation>
    </message>
    <message>
        <source>Open Node Database</source>
        <translation>Abrir banco de dados de nós</translation>
    </message>
    <message>
        <source>Node databases (*.kodb);;All files (*)</source>
        <translation>Bancos de dados de nós (*.kodb);;Todos os arquivos (*)</translation>
    </message>
</context>
<context>
    <name>DetailsDock</name>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>D&amp;etails</source>
        <translation>D&amp;etalhes</translation>
    </message>
    <message>
        <source>Shows beside the list what the selected node is</source>
        <translation>Mostra ao lado da lista o que é o nó selecionado</translation>
    </message>
    <message>
        <source>Select a node in the list to see here what it is.</source>
        <translation>Selecione um nó na lista para ver aqui o que ele é.</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) selected</source>
        <translation>
            <numerusform>%n nó selecionado</numerusform>
            <numerusform>%n nós selecionados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>What the first %n of them share:</source>
        <translation>
            <numerusform>O que o primeiro tem:</numerusform>
            <numerusform>O que os primeiros %n têm em comum:</numerusform>
        </translation>
    </message>
    <message>
        <source>different</source>
        <translation>diferente</translation>
    </message>
</context>
<context>
    <name>DeviceFilling</name>
    <message>
        <source>it has no address</source>
        <translation>não tem endereço</translation>
    </message>
    <message>
        <source>its password cannot be read</source>
        <translation>a senha não pode ser lida</translation>
    </message>
    <message>
        <source>it was removed meanwhile</source>
        <translation>foi removido nesse meio-tempo</translation>
    </message>
    <message>
        <source>it was not asked</source>
        <translation>não foi consultado</translation>
    </message>
</context>
<context>
    <name>DeviceSettings</name>
    <message>
        <source>Access Recordings</source>
        <translation>Acesso às gravações</translation>
    </message>
    <message numerus="yes">
        <source>The factory IP address of %n of the selected cameras is not known:</source>
        <translation>
            <numerusform>O endereço IP de fábrica de %n das câmeras selecionadas não é conhecido:</numerusform>
            <numerusform>O endereço IP de fábrica de %n das câmeras selecionadas não é conhecido:</numerusform>
        </translation>
    </message>
    <message>
        <source>Their recordings can be played via the camera. On a file server, however, the folder of a camera is named by this address: with the default path these cameras would share one folder without a name, with a specific path they would lose the path that they have. A camera that answers and takes its password tells what its folder can be named by.</source>
        <translation>As gravações delas podem ser reproduzidas pela câmera. Em um servidor de arquivos, porém, a pasta de uma câmera recebe o nome deste endereço: com o caminho padrão, estas câmeras compartilhariam uma pasta sem nome; com um caminho específico, perderiam o caminho que têm. Uma câmera que responde e aceita sua senha informa com que nome sua pasta pode ser chamada.</translation>
    </message>
    <message>
        <source>As&amp;k the Cameras...</source>
        <translation>&amp;Perguntar às câmeras...</translation>
    </message>
    <message>
        <source>&amp;Leave Them Out</source>
        <translation>&amp;Deixá-las de fora</translation>
    </message>
    <message>
        <source>Go On With &amp;All</source>
        <translation>&amp;Continuar com todas</translation>
    </message>
    <message>
        <source>User &amp; Password</source>
        <translation>Usuário e senha</translation>
    </message>
    <message numerus="yes">
        <source>The %n selected devices do not have the same user name and password: there are %1 user names and %2 passwords.</source>
        <translation>
            <numerusform>O %n dispositivo selecionado não tem o mesmo nome de usuário e senha: há %1 nomes de usuário e %2 senhas.</numerusform>
            <numerusform>Os %n dispositivos selecionados não têm o mesmo nome de usuário e senha: há %1 nomes de usuário e %2 senhas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The next window begins with those of the first device, and gives all of them what it shows when you press OK:</source>
        <translation>A próxima janela começa com os do primeiro dispositivo e dá a todos o que ela mostrar quando você pressionar OK:</translation>
    </message>
    <message>
        <source>&amp;Give All the Same...</source>
        <translation>&amp;Dar os mesmos a todos...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): access to recordings set.</source>
        <translation>
            <numerusform>%n dispositivo: acesso às gravações definido.</numerusform>
            <numerusform>%n dispositivos: acesso às gravações definido.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n left as they were.</source>
        <translation>
            <numerusform>%n ficou como estava.</numerusform>
            <numerusform>%n ficaram como estavam.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): user name and password set.</source>
        <translation>
            <numerusform>%n dispositivo: nome de usuário e senha definidos.</numerusform>
            <numerusform>%n dispositivos: nome de usuário e senha definidos.</numerusform>
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
        <translation>Somente câmeras IP podem ser definidas em conjunto. Selecione as outras uma de cada vez.</translation>
    </message>
</context>
<context>
    <name>EditNodeDialog</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propriedades de %1</translation>
    </message>
</context>
<context>
    <name>EditSeveralDialog</name>
    <message numerus="yes">
        <source>Edit %n Nodes</source>
        <translation>
            <numerusform>Editar %n nó</numerusform>
            <numerusform>Editar %n nós</numerusform>
        </translation>
    </message>
    <message>
        <source>What you change here changes in all of these. What is not the same in all of them is shown as different, and stays unless you change it.</source>
        <translation>O que você altera aqui muda em todos estes. O que não é igual em todos é mostrado como diferente e fica, a menos que você o altere.</translation>
    </message>
    <message>
        <source>Looking at what changes...</source>
        <translation>Verificando o que muda...</translation>
    </message>
</context>
<context>
    <name>EmptyState</name>
    <message>
        <source>Show All Nodes</source>
        <translation>Mostrar todos os nós</translation>
    </message>
    <message>
        <source>Reading the nodes...</source>
        <translation>Lendo os nós...</translation>
    </message>
    <message>
        <source>There is nothing in this database yet.</source>
        <translation>Ainda não há nada neste banco de dados.</translation>
    </message>
    <message>
        <source>No node matches the search.</source>
        <translation>Nenhum nó corresponde.</translation>
    </message>
    <message>
        <source>Import a List of Cameras...</source>
        <translation>Importar uma lista de câmeras...</translation>
    </message>
    <message>
        <source>Find Devices in the Network...</source>
        <translation>Localizar dispositivos na rede...</translation>
    </message>
    <message>
        <source>Add a Camera...</source>
        <translation>Adicionar uma câmera...</translation>
    </message>
</context>
<context>
    <name>EntryQuestions</name>
    <message>
        <source>Neither a name nor an address was entered.</source>
        <translation>Não foi informado nem nome nem endereço.</translation>
    </message>
    <message>
        <source>No name was entered.</source>
        <translation>Nenhum nome foi informado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has this address, port and channel already.</source>
        <translation>&quot;%1&quot; já tem este endereço, esta porta e este canal.</translation>
    </message>
    <message>
        <source>Store it anyway?</source>
        <translation>Salvar assim?</translation>
    </message>
    <message>
        <source>&amp;Store Anyway</source>
        <translation>&amp;Salvar assim</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Continuar editando</translation>
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
        <translation>O ambiente de rede de todo o programa</translation>
    </message>
</context>
<context>
    <name>EnvironmentNotice</name>
    <message>
        <source>The environment of the whole program is now &quot;%1&quot;.</source>
        <translation>O ambiente de todo o programa agora é &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Back to &quot;%1&quot;</source>
        <translation>Voltar para &quot;%1&quot;</translation>
    </message>
    <message>
        <source>The environment is &quot;%1&quot; again.</source>
        <translation>O ambiente é novamente &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>FillInDialog</name>
    <message>
        <source>Fill In</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>&amp;Replace also what may have been entered by hand</source>
        <translation>&amp;Substituir também o que pode ter sido digitado à mão</translation>
    </message>
    <message>
        <source>Devices that were asked</source>
        <translation>Dispositivos consultados</translation>
    </message>
    <message>
        <source>What the devices said</source>
        <translation>O que os dispositivos informaram</translation>
    </message>
    <message numerus="yes">
        <source>Asking %n device(s) what they are. Nothing is stored yet.</source>
        <translation>
            <numerusform>Consultando %n dispositivo. Nada é armazenado ainda.</numerusform>
            <numerusform>Consultando %n dispositivos. Nada é armazenado ainda.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is nothing to fill in.</source>
        <translation>Não há nada para preencher.</translation>
    </message>
    <message>
        <source>This is what the devices say and what is not stored yet. OK stores what is ticked.</source>
        <translation>Isto é o que os dispositivos informam e ainda não está armazenado. OK armazena o que está marcado.</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) said nothing:</source>
        <translation>
            <numerusform>%n dispositivo não informou nada:</numerusform>
            <numerusform>%n dispositivos não informaram nada:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) filled in.</source>
        <translation>
            <numerusform>%n dispositivo preenchido.</numerusform>
            <numerusform>%n dispositivos preenchidos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FillInModel</name>
    <message>
        <source>Camera</source>
        <translation>Câmera</translation>
    </message>
    <message>
        <source>What</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Depois</translation>
    </message>
</context>
<context>
    <name>HistoryDialog</name>
    <message>
        <source>Only of &quot;%1&quot;</source>
        <comment>node</comment>
        <translation>Somente de &quot;%1&quot;</translation>
    </message>
    <message numerus="yes">
        <source>Only of the %n selected node(s)</source>
        <translation>
            <numerusform>Somente do nó selecionado</numerusform>
            <numerusform>Somente dos %n nós selecionados</numerusform>
        </translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>O que foi feito</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>O que isso alterou</translation>
    </message>
    <message>
        <source>Looking for more...</source>
        <translation>Procurando mais...</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Nada foi encontrado.</translation>
    </message>
    <message>
        <source>There is more: scroll down to see it.</source>
        <translation>Há mais: role para baixo.</translation>
    </message>
    <message>
        <source>This is all.</source>
        <translation>Isto é tudo.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected change(s)</source>
        <translation>
            <numerusform>uma alteração selecionada</numerusform>
            <numerusform>%n alterações selecionadas</numerusform>
        </translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Revertido: %1</translation>
    </message>
    <message>
        <source>Only what was done up to the entry of the audit log</source>
        <translation>Somente o que foi feito até a entrada do registro de auditoria</translation>
    </message>
    <message>
        <source>What was done:</source>
        <translation>O que foi feito:</translation>
    </message>
    <message>
        <source>What it changed:</source>
        <translation>O que isso alterou:</translation>
    </message>
    <message>
        <source>Put Back...</source>
        <translation>Reverter...</translation>
    </message>
    <message>
        <source>Put Back Selected Changes...</source>
        <translation>Reverter as alterações selecionadas...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>Back to Here...</source>
        <translation>Voltar até aqui...</translation>
    </message>
    <message>
        <source>Keep...</source>
        <translation>Manter...</translation>
    </message>
    <message>
        <source>The details were taken out of the history: it cannot be put back.</source>
        <translation>Os detalhes foram retirados do histórico: não pode ser revertido.</translation>
    </message>
</context>
<context>
    <name>HistoryExport</name>
    <message>
        <source>Export History</source>
        <translation>Exportar histórico</translation>
    </message>
    <message>
        <source>Lists (*.csv);;All files (*)</source>
        <translation>Listas (*.csv);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>The history was not written: %1</source>
        <translation>O histórico não foi gravado: %1</translation>
    </message>
    <message>
        <source>Exporting the history...</source>
        <translation>Exportando o histórico...</translation>
    </message>
</context>
<context>
    <name>HistoryFilterBar</name>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Nodes, values, what was done</source>
        <translation>Nós, valores, o que foi feito</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>Todos os tipos</translation>
    </message>
    <message>
        <source>All properties</source>
        <translation>Todas as propriedades</translation>
    </message>
    <message>
        <source>Find:</source>
        <translation>Procurar:</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Usuário:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>Tipo:</translation>
    </message>
    <message>
        <source>Property:</source>
        <translation>Propriedade:</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>De:</translation>
    </message>
    <message>
        <source>To:</source>
        <translation>Até:</translation>
    </message>
</context>
<context>
    <name>HistoryLimitDialog</name>
    <message>
        <source>Keep History</source>
        <translation>Manter o histórico</translation>
    </message>
    <message>
        <source>The details of a change are what was before and after it. Without them it can be neither shown nor put back. Who changed something, when and what for is always kept, and so is the audit log.</source>
        <translation>Os detalhes de uma alteração são o que havia antes e depois dela. Sem eles ela não pode ser mostrada nem revertida. Quem alterou algo, quando e para quê é sempre mantido, assim como o registro de auditoria.</translation>
    </message>
    <message>
        <source>Take out details that are &amp;older than</source>
        <translation>Retirar detalhes mais &amp;antigos que</translation>
    </message>
    <message>
        <source> days</source>
        <translation> dias</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Dias</translation>
    </message>
    <message>
        <source>Take out the oldest details when there are &amp;more than</source>
        <translation>Retirar os detalhes mais antigos quando houver &amp;mais de</translation>
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
        <translation>Isso é feito um minuto após o início do programa e a cada seis horas.</translation>
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
        <translation>Usuário</translation>
    </message>
    <message>
        <source>Station</source>
        <translation>Estação</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>O que foi feito</translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nós</translation>
    </message>
</context>
<context>
    <name>ImportReportDialog</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Linha %1: %2</translation>
    </message>
    <message>
        <source>Columns that are not used: %1</source>
        <translation>Colunas não usadas: %1</translation>
    </message>
    <message>
        <source>The import was cancelled. What was added until then stays.</source>
        <translation>A importação foi cancelada. O que foi adicionado até então permanece.</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importar câmeras</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalhes</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between the parts of a list</comment>
        <translation>, </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) with errors would be left out.</source>
        <translation>
            <numerusform>%n linha com erros seria omitida.</numerusform>
            <numerusform>%n linhas com erros seriam omitidas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n line(s) may be meant differently.</source>
        <translation>
            <numerusform>%n linha talvez queira dizer outra coisa.</numerusform>
            <numerusform>%n linhas talvez queiram dizer outra coisa.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importar</translation>
    </message>
    <message numerus="yes">
        <source>%1 added, %2 updated, %3 unchanged, %n line(s) with errors.</source>
        <translation>
            <numerusform>%1 adicionadas, %2 atualizadas, %3 inalteradas, %n linha com erros.</numerusform>
            <numerusform>%1 adicionadas, %2 atualizadas, %3 inalteradas, %n linhas com erros.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Importing this list would add %n device(s), change %1 and leave %2 as they are.</source>
        <translation>
            <numerusform>A importação desta lista adicionaria %n dispositivo, mudaria %1 e deixaria %2 como estão.</numerusform>
            <numerusform>A importação desta lista adicionaria %n dispositivos, mudaria %1 e deixaria %2 como estão.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>KeychainNotice</name>
    <message>
        <source>Waiting for the keychain. Unlock it if it asks for that.</source>
        <translation>Aguardando o chaveiro. Desbloqueie-o se ele pedir.</translation>
    </message>
    <message>
        <source>Keychain</source>
        <translation>Chaveiro</translation>
    </message>
    <message>
        <source>Waiting for your keychain.</source>
        <translation>Aguardando seu chaveiro.</translation>
    </message>
    <message>
        <source>It has the key of the stored passwords. Unlock it if it asks for that.

Without the key, stored passwords are shown empty and new ones cannot be stored.</source>
        <translation>Ele contém a chave das senhas armazenadas. Desbloqueie-o se ele pedir.

Sem a chave, as senhas armazenadas aparecem vazias e novas não podem ser armazenadas.</translation>
    </message>
    <message>
        <source>&amp;Continue Without Passwords</source>
        <translation>&amp;Continuar sem senhas</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
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
        <translation>&amp;Como o sistema</translation>
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
        <translation>O registro foi alterado</translation>
    </message>
    <message numerus="yes">
        <source>And %n more; koclient --verify-log names them.</source>
        <translation>
            <numerusform>E mais %n; koclient --verify-log a indica.</numerusform>
            <numerusform>E mais %n; koclient --verify-log as indica.</numerusform>
        </translation>
    </message>
    <message>
        <source>Somebody has altered the log of the node database with another program:</source>
        <translation>Alguém alterou o registro do banco de dados de nós com outro programa:</translation>
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
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Adds the cameras of a site survey (CSV)</source>
        <translation>Adiciona as câmeras de um levantamento do local (CSV)</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>Writes all cameras into a CSV file</source>
        <translation>Grava todas as câmeras em um arquivo CSV</translation>
    </message>
    <message>
        <source>Export &amp;Selected...</source>
        <translation>E&amp;xportar selecionadas...</translation>
    </message>
    <message>
        <source>Writes the selected cameras into a CSV file</source>
        <translation>Grava as câmeras selecionadas em um arquivo CSV</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferências...</translation>
    </message>
    <message>
        <source>Default paths and the bandwidth</source>
        <translation>Caminhos padrão e largura de banda</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>Closes the program</source>
        <translation>Fecha o programa</translation>
    </message>
    <message>
        <source>&amp;Node</source>
        <translation>&amp;Nó</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Adicionar...</translation>
    </message>
    <message>
        <source>Adds a node</source>
        <translation>Adiciona um nó</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Editar...</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Remover...</translation>
    </message>
    <message>
        <source>Removes the selected nodes</source>
        <translation>Remove os nós selecionados</translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation>&amp;Propriedades</translation>
    </message>
    <message>
        <source>Shows the selected node without changing it</source>
        <translation>Mostra o nó selecionado sem alterá-lo</translation>
    </message>
    <message>
        <source>&amp;User &amp;&amp; Password...</source>
        <translation>&amp;Usuário e senha...</translation>
    </message>
    <message>
        <source>Gives the selected devices one user name and password</source>
        <translation>Dá aos dispositivos selecionados um mesmo nome de usuário e senha</translation>
    </message>
    <message>
        <source>Access Re&amp;cordings...</source>
        <translation>Acesso às &amp;gravações...</translation>
    </message>
    <message>
        <source>Where the recordings of the selected cameras are played from</source>
        <translation>De onde são reproduzidas as gravações das câmeras selecionadas</translation>
    </message>
    <message>
        <source>&amp;Fill In...</source>
        <translation>Preenc&amp;her...</translation>
    </message>
    <message>
        <source>Asks the selected devices what they are, and stores what you choose of it</source>
        <translation>Pergunta aos dispositivos selecionados o que são e armazena o que você escolher</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Duplicar...</translation>
    </message>
    <message>
        <source>Adds a node that is like the selected one</source>
        <translation>Adiciona um nó igual ao selecionado</translation>
    </message>
    <message>
        <source>Open &amp;Web Page</source>
        <translation>Abrir página &amp;web</translation>
    </message>
    <message>
        <source>Opens the page of the selected device in the browser</source>
        <translation>Abre a página do dispositivo selecionado no navegador</translation>
    </message>
    <message>
        <source>Copy R&amp;ows</source>
        <translation>Copiar &amp;linhas</translation>
    </message>
    <message>
        <source>Copies the selected rows for a spreadsheet</source>
        <translation>Copia as linhas selecionadas para uma planilha</translation>
    </message>
    <message>
        <source>Copy Addre&amp;ss</source>
        <translation>&amp;Copiar endereço</translation>
    </message>
    <message>
        <source>Copies the addresses of the selected nodes</source>
        <translation>Copia os endereços dos nós selecionados</translation>
    </message>
    <message>
        <source>Net&amp;work</source>
        <translation>&amp;Rede</translation>
    </message>
    <message>
        <source>Network &amp;Proxy...</source>
        <translation>&amp;Proxy de rede...</translation>
    </message>
    <message>
        <source>The proxy server of the application</source>
        <translation>O servidor proxy do aplicativo</translation>
    </message>
    <message>
        <source>&amp;Environments...</source>
        <translation>&amp;Ambientes...</translation>
    </message>
    <message>
        <source>The network environments</source>
        <translation>Os ambientes de rede</translation>
    </message>
    <message>
        <source>&amp;Find Devices...</source>
        <translation>&amp;Localizar dispositivos...</translation>
    </message>
    <message>
        <source>Nodes that arrive while the network is scanned</source>
        <translation>Nós que chegam enquanto a rede é examinada</translation>
    </message>
    <message>
        <source>&amp;Seen at a New Address...</source>
        <translation>&amp;Vistos em um novo endereço...</translation>
    </message>
    <message>
        <source>Devices that a scan found at another address than they have here</source>
        <translation>Dispositivos que uma busca encontrou em um endereço diferente do que têm aqui</translation>
    </message>
    <message>
        <source>&amp;Check Cameras</source>
        <translation>V&amp;erificar câmeras</translation>
    </message>
    <message>
        <source>Asks the selected cameras, or all, who they are, and tries their passwords</source>
        <translation>Pergunta às câmeras selecionadas, ou a todas, quem são e testa suas senhas</translation>
    </message>
    <message>
        <source>&amp;Accept as This Camera...</source>
        <translation>A&amp;ceitar como esta câmera...</translation>
    </message>
    <message>
        <source>Treats the device that answers now as this camera from now on</source>
        <translation>Outro dispositivo passa a ser esta câmera a partir de agora</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <translation>&amp;Colunas...</translation>
    </message>
    <message>
        <source>Which columns the list has</source>
        <translation>Quais colunas a lista tem</translation>
    </message>
    <message>
        <source>&amp;Audit Log...</source>
        <translation>Registro de &amp;auditoria...</translation>
    </message>
    <message>
        <source>Who changed what, and when</source>
        <translation>Quem alterou o quê, e quando</translation>
    </message>
    <message>
        <source>Node &amp;Database...</source>
        <translation>Banco de &amp;dados de nós...</translation>
    </message>
    <message>
        <source>Everything that is stored</source>
        <translation>Tudo o que está armazenado</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Sobre</translation>
    </message>
    <message>
        <source>Via camera</source>
        <translation>Pela câmera</translation>
    </message>
    <message>
        <source>Default file server path</source>
        <translation>Caminho padrão do servidor de arquivos</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) seen at a new address: Network &gt; Seen at a New Address</source>
        <translation>
            <numerusform>%n dispositivo visto em um novo endereço: Rede &gt; Vistos em um novo endereço</numerusform>
            <numerusform>%n dispositivos vistos em um novo endereço: Rede &gt; Vistos em um novo endereço</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 - Nodes</source>
        <translation>%1 - Nós</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Pesquisar (Ctrl+F)</translation>
    </message>
    <message>
        <source>Words in any column; &quot;type:camera&quot; looks in one, &quot;state:wrong|locked&quot; for either, &quot;-yard&quot; leaves out</source>
        <translation>Palavras em qualquer coluna; &quot;tipo:câmera&quot; procura em uma, &quot;estado:incorreta|bloqueado&quot; uma das duas, &quot;-pátio&quot; exclui</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Todos os tipos</translation>
    </message>
    <message>
        <source> T&amp;ype: </source>
        <translation> Ti&amp;po: </translation>
    </message>
    <message>
        <source>Nodes</source>
        <translation>Nós</translation>
    </message>
    <message>
        <source>No camera is selected. Select one or more in the list first.</source>
        <translation>Nenhuma câmera selecionada. Selecione primeiro uma ou mais na lista.</translation>
    </message>
    <message>
        <source>Nodes of this type cannot be added.</source>
        <translation>Nós deste tipo não podem ser adicionados.</translation>
    </message>
    <message>
        <source>This node has no address. Devices get theirs in Node &gt; Edit.</source>
        <translation>Este nó não tem endereço. O dos dispositivos é definido em Nó &gt; Editar.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) copied.</source>
        <translation>
            <numerusform>%n linha copiada.</numerusform>
            <numerusform>%n linhas copiadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n address(es) copied.</source>
        <translation>
            <numerusform>%n endereço copiado.</numerusform>
            <numerusform>%n endereços copiados.</numerusform>
        </translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Shows, adds, edits and removes the nodes of a video-surveillance system.&lt;/p&gt;&lt;p&gt;Free software under the GNU LGPL 2.1 or later.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</source>
        <translation>&lt;h3&gt;%1 %2&lt;/h3&gt;&lt;p&gt;Mostra, adiciona, edita e remove os nós de um sistema de videomonitoramento.&lt;/p&gt;&lt;p&gt;Software livre sob a GNU LGPL 2.1 ou posterior.&lt;/p&gt;&lt;p&gt;Qt %3&lt;/p&gt;</translation>
    </message>
    <message>
        <source>A&amp;llow Clear Password...</source>
        <translation>Permitir &amp;senha sem criptografia...</translation>
    </message>
    <message>
        <source>Sends the password unencrypted to cameras that accept it in no other way</source>
        <translation>As câmeras que não a aceitam de outro modo recebem a senha legível por todos</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>Shows what was changed last, and puts it back</source>
        <translation>Mostra o que foi alterado por último e o reverte</translation>
    </message>
    <message>
        <source>Does again what was undone last</source>
        <translation>Refaz o que foi desfeito por último</translation>
    </message>
    <message>
        <source>&amp;History...</source>
        <translation>&amp;Histórico...</translation>
    </message>
    <message>
        <source>What was done, by whom, and puts it back</source>
        <translation>O que foi feito, por quem, e o reverte</translation>
    </message>
    <message>
        <source>History of &amp;Selected...</source>
        <translation>Histórico dos &amp;selecionados...</translation>
    </message>
    <message>
        <source>What was done to the selected nodes</source>
        <translation>O que foi feito com os nós selecionados</translation>
    </message>
    <message>
        <source>&amp;Back to...</source>
        <translation>&amp;Voltar para...</translation>
    </message>
    <message>
        <source>Shows all nodes as they were before, and puts them back</source>
        <translation>Mostra todos os nós como eram antes e os reverte</translation>
    </message>
    <message>
        <source>Changes the selected nodes</source>
        <translation>Altera os nós selecionados</translation>
    </message>
    <message>
        <source>Pre&amp;view Changes to Several</source>
        <translation>Pré&amp;via de alterações em vários</translation>
    </message>
    <message>
        <source>Shows what would be done to several nodes before it is stored</source>
        <translation>Mostra o que seria feito com vários nós antes de gravar</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) edited.</source>
        <translation>
            <numerusform>%n nó editado.</numerusform>
            <numerusform>%n nós editados.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Connect...</source>
        <translation>&amp;Conectar...</translation>
    </message>
    <message>
        <source>Opens a database that is shared with other desks</source>
        <translation>Abre um banco de dados compartilhado com outras estações</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;Novo...</translation>
    </message>
    <message>
        <source>Makes an empty node database and opens it</source>
        <translation>Cria um banco de dados de nós vazio e o abre</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Opens another node database</source>
        <translation>Abre outro banco de dados de nós</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>&amp;Backup...</translation>
    </message>
    <message>
        <source>Copies the node database into a file</source>
        <translation>Copia o banco de dados de nós para um arquivo</translation>
    </message>
    <message>
        <source>Res&amp;tore...</source>
        <translation>Res&amp;taurar...</translation>
    </message>
    <message>
        <source>Restores the node database from a backup</source>
        <translation>Dá ao banco de dados de nós o conteúdo de um backup</translation>
    </message>
    <message>
        <source>&amp;Location and Tags...</source>
        <translation>L&amp;ocal e etiquetas...</translation>
    </message>
    <message>
        <source>Where the selected devices are, and by what they are grouped</source>
        <translation>Onde estão os dispositivos selecionados e como são agrupados</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Explains what the window in front is for</source>
        <translation>Explica para que serve a janela em primeiro plano</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was added.</source>
        <translation>&quot;%1&quot; foi adicionado.</translation>
    </message>
    <message>
        <source>%1 - Node Database</source>
        <translation>%1 - Banco de dados de nós</translation>
    </message>
    <message>
        <source>Devices: %1, other nodes: %2; shown: %3, selected: %4</source>
        <translation>Dispositivos: %1, outros nós: %2; mostrados: %3, selecionados: %4</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed.</source>
        <translation>&quot;%1&quot; foi alterado.</translation>
    </message>
    <message>
        <source>Only nodes of one type can be edited together. &quot;Type&quot; above the list shows those of one.</source>
        <translation>Somente nós de um mesmo tipo podem ser editados juntos. &quot;Tipo&quot;, acima da lista, mostra os de um.</translation>
    </message>
    <message>
        <source>The web page of %1 could not be opened. Choose a browser in the settings of your desktop.</source>
        <translation>A página web de %1 não pôde ser aberta. Escolha um navegador nas configurações da sua área de trabalho.</translation>
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
        <translation>Pesquisar no manual (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Página do manual</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Voltar</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Avançar</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Nenhuma página contém todas estas palavras.</translation>
    </message>
    <message>
        <source>The manual is in English. Names of menus and buttons are those of the English program.</source>
        <translation>O manual está em inglês. Nele, menus e botões têm os nomes do programa em inglês.</translation>
    </message>
</context>
<context>
    <name>MessageHints</name>
    <message>
        <source>It is set in &quot;File &gt; Preferences&quot; of the main window.</source>
        <translation>É definido em &quot;Arquivo &gt; Preferências&quot; da janela principal.</translation>
    </message>
    <message>
        <source>It is what &quot;Properties&quot; shows as the factory IP address of the camera. &quot;Node &gt; Fill In&quot; of the main window asks the camera for it.</source>
        <translation>É o que &quot;Propriedades&quot; mostra como endereço IP de fábrica da câmera. &quot;Nó &gt; Preencher&quot; da janela principal o pergunta à câmera.</translation>
    </message>
    <message>
        <source>Type a path, or press &quot;More...&quot; and choose one of the folders.</source>
        <translation>Digite um caminho, ou pressione &quot;Mais...&quot; e escolha uma das pastas.</translation>
    </message>
</context>
<context>
    <name>MomentDetailsModel</name>
    <message>
        <source>What</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Then</source>
        <translation>Na época</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
</context>
<context>
    <name>MomentModel</name>
    <message>
        <source>Changed</source>
        <translation>Alterado</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Removido</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Adicionado</translation>
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
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Since Then</source>
        <translation>Desde então</translation>
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
        <translation>Os nós como eram em %1, depois de &quot;%2&quot; por %3. Aqui eles podem ser vistos e revertidos, mas não editados.</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Pesquisar</translation>
    </message>
    <message>
        <source>Only what is different now</source>
        <translation>Somente o que agora é diferente</translation>
    </message>
    <message>
        <source>Nodes:</source>
        <translation>Nós:</translation>
    </message>
    <message>
        <source>Properties:</source>
        <translation>Propriedades:</translation>
    </message>
    <message>
        <source>Nodes at that time</source>
        <translation>Nós da época</translation>
    </message>
    <message>
        <source>Properties then and now</source>
        <translation>Propriedades na época e agora</translation>
    </message>
    <message>
        <source>How much of the changes since then is read</source>
        <translation>O que já foi lido do que se fez desde então</translation>
    </message>
    <message>
        <source>Put Back All...</source>
        <translation>Reverter tudo...</translation>
    </message>
    <message>
        <source>Put Back Selected...</source>
        <translation>Reverter os selecionados...</translation>
    </message>
    <message>
        <source>Reading what was done since...</source>
        <translation>Lendo o que foi feito desde então...</translation>
    </message>
    <message>
        <source>Settings or environments are different, too.</source>
        <translation>Configurações ou ambientes também são diferentes.</translation>
    </message>
    <message numerus="yes">
        <source>%n change(s) since then do not fit what is there now: what was before them is not known.</source>
        <translation>
            <numerusform>%n alteração desde então não corresponde ao que existe agora: não se sabe o que havia antes dela.</numerusform>
            <numerusform>%n alterações desde então não correspondem ao que existe agora: não se sabe o que havia antes delas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Back to %1</source>
        <comment>time</comment>
        <translation>Voltar para %1</translation>
    </message>
    <message>
        <source>Put back: %1</source>
        <translation>Revertido: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) then, %1 different now; %2 shown</source>
        <translation>
            <numerusform>Na época %n nó, %1 agora diferentes; %2 mostrados</numerusform>
            <numerusform>Na época %n nós, %1 agora diferentes; %2 mostrados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NameList</name>
    <message>
        <source>(unnamed)</source>
        <translation>(sem nome)</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>NodeHistoryPage</name>
    <message>
        <source>What was done to it:</source>
        <translation>O que foi feito com ele:</translation>
    </message>
    <message>
        <source>What that changed:</source>
        <translation>O que isso alterou:</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>O que foi feito</translation>
    </message>
    <message>
        <source>What it changed</source>
        <translation>O que isso alterou</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
</context>
<context>
    <name>NodeInspector</name>
    <message>
        <source>Location</source>
        <translation>Local</translation>
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
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Gravação</translation>
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
        <translation>Versão</translation>
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
        <translation>Usuário</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Local</translation>
    </message>
    <message>
        <source>Tags</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Last Change</source>
        <translation>Última alteração</translation>
    </message>
</context>
<context>
    <name>NodeListView</name>
    <message>
        <source>Nodes</source>
        <translation>Nós</translation>
    </message>
</context>
<context>
    <name>NodeRemoval</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Remover nós</translation>
    </message>
    <message>
        <source>Removing nodes...</source>
        <translation>Removendo nós...</translation>
    </message>
    <message numerus="yes">
        <source>%n node(s) removed.</source>
        <translation>
            <numerusform>%n nó removido.</numerusform>
            <numerusform>%n nós removidos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PictureTip</name>
    <message>
        <source>Fetching the picture...</source>
        <translation>Obtendo a imagem...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Visto em %1</translation>
    </message>
</context>
<context>
    <name>PictureView</name>
    <message>
        <source>Picture of the camera</source>
        <translation>Imagem da câmera</translation>
    </message>
    <message>
        <source>Fetching the picture...</source>
        <translation>Obtendo a imagem...</translation>
    </message>
    <message>
        <source>Seen %1</source>
        <translation>Visto em %1</translation>
    </message>
</context>
<context>
    <name>PlaceCommands</name>
    <message>
        <source>Location and Tags</source>
        <translation>Local e etiquetas</translation>
    </message>
    <message>
        <source>Storing locations and tags...</source>
        <translation>Salvando locais e etiquetas...</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s): location and tags set.</source>
        <translation>
            <numerusform>%n dispositivo: local e etiquetas definidos.</numerusform>
            <numerusform>%n dispositivos: local e etiquetas definidos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PlaceDialog</name>
    <message>
        <source>Location and Tags</source>
        <translation>Local e etiquetas</translation>
    </message>
    <message numerus="yes">
        <source>Where are the %n selected device(s)? Write it from outside to inside, with a slash between: Site/Building/Floor. Separate tags with commas.</source>
        <translation>
            <numerusform>Onde está o dispositivo selecionado (%n)? Escreva de fora para dentro, com uma barra no meio: Local/Prédio/Andar. As etiquetas são separadas por vírgulas.</numerusform>
            <numerusform>Onde estão os %n dispositivos selecionados? Escreva de fora para dentro, com uma barra no meio: Local/Prédio/Andar. As etiquetas são separadas por vírgulas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Local:</translation>
    </message>
    <message>
        <source>&amp;Tags:</source>
        <translation>&amp;Etiquetas:</translation>
    </message>
    <message>
        <source>(different, left as they are)</source>
        <translation>(diferentes, mantidos como estão)</translation>
    </message>
</context>
<context>
    <name>PlaceDock</name>
    <message>
        <source>Locations</source>
        <translation>Locais</translation>
    </message>
    <message>
        <source>L&amp;ocations</source>
        <translation>&amp;Locais</translation>
    </message>
    <message>
        <source>Shows the sites, buildings and floors beside the list</source>
        <translation>Mostra locais, prédios e andares ao lado da lista</translation>
    </message>
</context>
<context>
    <name>PlaceTree</name>
    <message>
        <source>Locations</source>
        <translation>Locais</translation>
    </message>
    <message>
        <source>All nodes</source>
        <translation>Todos os nós</translation>
    </message>
    <message>
        <source>Devices without a location</source>
        <translation>Dispositivos sem local</translation>
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
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Default file server &amp;path:</source>
        <translation>Caminho padrão do &amp;servidor de arquivos:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Procurar...</translation>
    </message>
    <message>
        <source>Default remote preview &amp;server:</source>
        <translation>Servidor padrão de &amp;visualização remota:</translation>
    </message>
    <message>
        <source>&amp;Connection:</source>
        <translation>&amp;Conexão:</translation>
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
    <message>
        <source>Default File Server Path</source>
        <translation>Caminho padrão do servidor de arquivos</translation>
    </message>
</context>
<context>
    <name>PropertyFormPage</name>
    <message>
        <source>Site/building/floor:</source>
        <translation>Local/prédio/andar:</translation>
    </message>
    <message>
        <source>Tags, separated by commas:</source>
        <translation>Etiquetas, separadas por vírgulas:</translation>
    </message>
</context>
<context>
    <name>PutBackDialog</name>
    <message>
        <source>Put Back</source>
        <translation>Reverter</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK puts back what is ticked.</source>
        <translation>%1: isto é o que mudaria. OK reverte o que está marcado.</translation>
    </message>
    <message>
        <source>%1: nothing of it can be put back any more.</source>
        <translation>%1: nada mais pode ser revertido.</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>O que mudaria</translation>
    </message>
    <message>
        <source>Somebody else changed this meanwhile, and it stays as it is now:</source>
        <translation>Outra pessoa alterou isto nesse meio-tempo; fica como está:</translation>
    </message>
    <message>
        <source>All that can be put back</source>
        <translation>Tudo o que pode ser revertido</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Prévia</translation>
    </message>
    <message>
        <source>%1: this is what would change. OK changes what is ticked.</source>
        <translation>%1: isto é o que mudaria. OK altera o que está marcado.</translation>
    </message>
    <message>
        <source>%1: nothing would change.</source>
        <translation>%1: nada mudaria.</translation>
    </message>
    <message>
        <source>All changes</source>
        <translation>Todas as alterações</translation>
    </message>
</context>
<context>
    <name>PutBackModel</name>
    <message>
        <source>Node</source>
        <translation>Nó</translation>
    </message>
    <message>
        <source>What</source>
        <translation>O quê</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Agora</translation>
    </message>
    <message>
        <source>Will become</source>
        <translation>Será</translation>
    </message>
    <message>
        <source>Why not</source>
        <translation>Por que não</translation>
    </message>
</context>
<context>
    <name>ReadAlterations</name>
    <message>
        <source>What Was Changed</source>
        <translation>O que foi alterado</translation>
    </message>
    <message>
        <source>Reading what was changed...</source>
        <translation>Lendo o que foi alterado...</translation>
    </message>
</context>
<context>
    <name>ReadOnlyNotice</name>
    <message>
        <source>You may look at this shared database but not change it. Its administrator can give you the role ko_editor.</source>
        <translation>Você pode ver este banco de dados compartilhado, mas não alterá-lo. O administrador dele pode lhe dar o papel ko_editor.</translation>
    </message>
    <message>
        <source>Read-Only</source>
        <translation>Somente leitura</translation>
    </message>
</context>
<context>
    <name>RecentMenu</name>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;recente</translation>
    </message>
    <message>
        <source>No other database was opened yet</source>
        <translation>Nenhum outro banco de dados foi aberto ainda</translation>
    </message>
</context>
<context>
    <name>RemoveNodesBox</name>
    <message>
        <source>Remove Nodes</source>
        <translation>Remover nós</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>Remove this node? Edit &gt; Undo brings it back.</source>
        <translation>Remover este nó? Editar &gt; Desfazer o traz de volta.</translation>
    </message>
    <message numerus="yes">
        <source>Remove these %n nodes? Edit &gt; Undo brings them back.</source>
        <translation>
            <numerusform>Remover este nó? Editar &gt; Desfazer o traz de volta.</numerusform>
            <numerusform>Remover estes %n nós? Editar &gt; Desfazer os traz de volta.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nobody else uses %n recording folder(s):</source>
        <translation>
            <numerusform>Ninguém mais usa %n pasta de gravação:</numerusform>
            <numerusform>Ninguém mais usa %n pastas de gravação:</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove the recording &amp;folders too</source>
        <translation>Remover também as &amp;pastas de gravação</translation>
    </message>
</context>
<context>
    <name>SavedSearchMenu</name>
    <message>
        <source>Saved &amp;Searches</source>
        <translation>&amp;Pesquisas salvas</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Pesquisas salvas</translation>
    </message>
    <message>
        <source>Saved searches, and a name for this one</source>
        <translation>Pesquisas que têm nome, e um nome para esta</translation>
    </message>
    <message>
        <source>&amp;Save This Search...</source>
        <translation>&amp;Salvar esta pesquisa...</translation>
    </message>
    <message>
        <source>Gives what is looked for now a name</source>
        <translation>Dá um nome ao que se procura agora</translation>
    </message>
    <message>
        <source>&amp;Rename or Remove...</source>
        <translation>&amp;Renomear ou remover...</translation>
    </message>
    <message>
        <source>Gives saved searches other names, and removes them</source>
        <translation>Dá outros nomes às pesquisas salvas, e as remove</translation>
    </message>
    <message>
        <source>Save Search</source>
        <translation>Salvar pesquisa</translation>
    </message>
    <message>
        <source>Name (an existing one gets this search):</source>
        <translation>Nome (um que já existe recebe esta pesquisa):</translation>
    </message>
</context>
<context>
    <name>SavedSearchesDialog</name>
    <message>
        <source>Saved Searches</source>
        <translation>Pesquisas salvas</translation>
    </message>
    <message>
        <source>Saved searches</source>
        <translation>Pesquisas salvas</translation>
    </message>
    <message>
        <source>Re&amp;name</source>
        <translation>Re&amp;nomear</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Remover...</translation>
    </message>
    <message>
        <source>There is already a search of this name, or the name is empty. The search keeps its old name.</source>
        <translation>Já existe uma pesquisa com este nome, ou o nome está vazio. Ele ficou como estava.</translation>
    </message>
    <message>
        <source>Remove the search &quot;%1&quot;? The nodes that it finds stay.</source>
        <translation>Remover a pesquisa &quot;%1&quot;? Os nós que ela encontra ficam.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
</context>
<context>
    <name>ScanFindings</name>
    <message>
        <source>Find Devices</source>
        <translation>Localizar dispositivos</translation>
    </message>
    <message numerus="yes">
        <source>The scan has found %n new device(s) and added them to the database:</source>
        <translation>
            <numerusform>A busca encontrou %n dispositivo novo e o adicionou ao banco de dados:</numerusform>
            <numerusform>A busca encontrou %n dispositivos novos e os adicionou ao banco de dados:</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Keep Them</source>
        <translation>&amp;Manter</translation>
    </message>
    <message>
        <source>&amp;Take Them Out Again</source>
        <translation>&amp;Retirar de novo</translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) found and added.</source>
        <translation>
            <numerusform>%n dispositivo encontrado e adicionado.</numerusform>
            <numerusform>%n dispositivos encontrados e adicionados.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n device(s) taken out again.</source>
        <translation>
            <numerusform>%n dispositivo retirado de novo.</numerusform>
            <numerusform>%n dispositivos retirados de novo.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ScannerStatus</name>
    <message>
        <source>%1: idle</source>
        <translation>%1: inativo</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 de %3</translation>
    </message>
    <message>
        <source>%1: searching</source>
        <translation>%1: procurando</translation>
    </message>
    <message>
        <source>%1: done</source>
        <translation>%1: concluído</translation>
    </message>
    <message>
        <source>%1: cancelled</source>
        <translation>%1: cancelado</translation>
    </message>
    <message>
        <source>%1: not available (%2)</source>
        <translation>%1: não disponível (%2)</translation>
    </message>
</context>
<context>
    <name>ShareCommand</name>
    <message>
        <source>There is no file &quot;%1&quot;.</source>
        <translation>O arquivo &quot;%1&quot; não existe.</translation>
    </message>
    <message>
        <source>The history of &quot;%1&quot; does not tell how everything in it came: it is older than the history, or a backup was restored into it. Such a file cannot be shared; import its cameras into a new one.</source>
        <translation>O histórico de &quot;%1&quot; não diz como surgiu tudo o que há nele: é mais antigo que o histórico, ou um backup foi restaurado nele. Um arquivo assim não pode ser compartilhado; importe suas câmeras em um novo.</translation>
    </message>
    <message>
        <source>You may not change the site &quot;%1&quot;. Ask its administrator for the role ko_editor.</source>
        <translation>Você não pode alterar o local &quot;%1&quot;. Peça ao administrador o papel ko_editor.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; is not empty.</source>
        <translation>O local &quot;%1&quot; não está vazio.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; belongs to another site than &quot;%2&quot;.</source>
        <translation>&quot;%1&quot; pertence a um local diferente de &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The site differs from the file: %1</source>
        <translation>O local difere do arquivo: %1</translation>
    </message>
    <message>
        <source>The file or the site changes all the time, so they could not be compared.</source>
        <translation>O arquivo ou o local muda o tempo todo, por isso não puderam ser comparados.</translation>
    </message>
    <message numerus="yes">
        <source>%n row(s) with their history are at &quot;%1&quot;, and the same there as here.</source>
        <translation>
            <numerusform>%n linha com seu histórico está em &quot;%1&quot; e é igual lá e aqui.</numerusform>
            <numerusform>%n linhas com seu histórico estão em &quot;%1&quot; e são iguais lá e aqui.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords of an older version that are not sealed yet, because the key of this installation is not there. Bring it back first.</source>
        <translation>&quot;%1&quot; tem senhas de uma versão anterior que ainda não estão cifradas, porque falta a chave desta instalação. Recupere-a primeiro.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has passwords, which take the key of the site. Nothing was sent.</source>
        <translation>&quot;%1&quot; tem senhas, que precisam da chave do local. Nada foi enviado.</translation>
    </message>
</context>
<context>
    <name>SharingDialog</name>
    <message>
        <source>Shared Database</source>
        <translation>Banco de dados compartilhado</translation>
    </message>
    <message>
        <source>These changes of yours could not be made, because somebody else had removed the node before. Edit &gt; History puts a removed node back.</source>
        <translation>Estas suas alterações não puderam ser feitas, porque outra pessoa já tinha removido o nó. Editar &gt; Histórico recupera um nó removido.</translation>
    </message>
    <message>
        <source>Changes that could not be made</source>
        <translation>Alterações não feitas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Alteração</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Nó</translation>
    </message>
    <message>
        <source>Removed By</source>
        <translation>Removido por</translation>
    </message>
    <message>
        <source>&amp;Dismiss Selected</source>
        <translation>&amp;Descartar selecionados</translation>
    </message>
    <message>
        <source>&amp;New Copy...</source>
        <translation>&amp;Nova cópia...</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Tentar de novo</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <comment>user, computer</comment>
        <translation>%1 em %2</translation>
    </message>
    <message>
        <source>New Copy</source>
        <translation>Nova cópia</translation>
    </message>
    <message>
        <source>Close this window and make a new copy of what is at the server now? Changes that were not sent are not in it; the present copy, which has them, stays in the folder &quot;%1&quot;.</source>
        <translation>Fechar esta janela e criar uma nova cópia do que está agora no servidor? As alterações não enviadas não estão nela; a cópia atual, que as contém, fica na pasta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&amp;Passphrase...</source>
        <translation>&amp;Frase secreta...</translation>
    </message>
</context>
<context>
    <name>SharingStatus</name>
    <message numerus="yes">
        <source>%1, %n change(s) could not be made</source>
        <translation>
            <numerusform>%1, %n alteração não feita</numerusform>
            <numerusform>%1, %n alterações não feitas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, passphrase needed...</source>
        <translation>%1, frase secreta necessária...</translation>
    </message>
</context>
<context>
    <name>SharingWords</name>
    <message>
        <source>There is now another site at &quot;%1&quot; than the one this is a copy of. Nothing was sent to it. If the server was set up anew, ask its administrator to bring the site back.</source>
        <translation>Em &quot;%1&quot; há agora outro local, diferente daquele de que isto é uma cópia. Nada foi enviado a ele. Se o servidor foi reinstalado, peça ao administrador que restabeleça o local.</translation>
    </message>
    <message>
        <source>The database &quot;%1&quot; holds no site, or you may not read it. Ask its administrator for the role ko_viewer or ko_editor; an empty database becomes a site by koclient --share.</source>
        <translation>O banco de dados &quot;%1&quot; não contém um local ou você não pode lê-lo. Peça ao administrador o papel ko_viewer ou ko_editor; um banco de dados vazio torna-se um local com koclient --share.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; was made by another version of this program. Install that version on this computer, or have the site brought up to date.</source>
        <translation>O local &quot;%1&quot; foi criado por outra versão deste programa. Instale essa versão neste computador ou mande atualizar o local.</translation>
    </message>
    <message>
        <source>You may only read the site &quot;%1&quot;, but there are changes on this computer that it has not got. Ask its administrator for the role ko_editor.</source>
        <translation>Você só pode ler o local &quot;%1&quot;, mas neste computador há alterações que ele não recebeu. Peça ao administrador o papel ko_editor.</translation>
    </message>
    <message>
        <source>A backup was restored into this copy of the site &quot;%1&quot;, which other desks cannot be told. It is not shared any more.</source>
        <translation>Nesta cópia do local &quot;%1&quot; foi restaurado um backup, o que não pode ser comunicado a outras estações. Ela não é mais compartilhada.</translation>
    </message>
    <message>
        <source>Not shared any more...</source>
        <translation>Não é mais compartilhado...</translation>
    </message>
    <message>
        <source>Connected, read-only</source>
        <translation>Conectado, somente leitura</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectado</translation>
    </message>
    <message numerus="yes">
        <source>Sending %n change(s)</source>
        <translation>
            <numerusform>Enviando %n alteração</numerusform>
            <numerusform>Enviando %n alterações</numerusform>
        </translation>
    </message>
    <message>
        <source>Catching up</source>
        <translation>Atualizando</translation>
    </message>
    <message numerus="yes">
        <source>Server away since %1, %n change(s) waiting</source>
        <translation>
            <numerusform>Servidor inacessível desde %1, %n alteração em espera</numerusform>
            <numerusform>Servidor inacessível desde %1, %n alterações em espera</numerusform>
        </translation>
    </message>
    <message>
        <source>Server away since %1</source>
        <translation>Servidor inacessível desde %1</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; cannot be reached. You can go on: what you change waits on this computer and is sent when the server is back.</source>
        <translation>Não é possível acessar o servidor do local &quot;%1&quot;. Você pode continuar: o que alterar espera neste computador e é enviado quando o servidor voltar.</translation>
    </message>
    <message>
        <source>You see the site &quot;%1&quot; as others change it, and may not change it yourself.</source>
        <translation>Você vê o local &quot;%1&quot; como outros o alteram, mas não pode alterá-lo.</translation>
    </message>
    <message>
        <source>You share the site &quot;%1&quot; with others.</source>
        <translation>Você compartilha o local &quot;%1&quot; com outros.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; cannot be reached.</source>
        <translation>Não é possível acessar o local &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Waiting for the server...</source>
        <translation>Aguardando o servidor...</translation>
    </message>
    <message numerus="yes">
        <source>Sending: %n change(s) left</source>
        <translation>
            <numerusform>Enviando: falta %n alteração</numerusform>
            <numerusform>Enviando: faltam %n alterações</numerusform>
        </translation>
    </message>
    <message>
        <source>Receiving: %1 of %2</source>
        <translation>Recebendo: %1 de %2</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; gives another account of its past than it gave before: its history was altered on the server. Nothing more is sent to it or taken from it. Show this to its administrator; the copy on this computer has the history as it was.</source>
        <translation>O local &quot;%1&quot; apresenta seu passado de modo diferente do que apresentou antes a esta estação: seu histórico foi alterado no servidor. Nada mais é enviado a ele nem recebido dele. Mostre isto ao administrador; a cópia neste computador tem o histórico como era.</translation>
    </message>
    <message>
        <source>The copy of the site &quot;%1&quot; on this computer cannot be read or written. Check that its disk works and has room, and start the program again.</source>
        <translation>A cópia do local &quot;%1&quot; neste computador não pode ser lida nem gravada. Verifique se o disco funciona e tem espaço e inicie o programa novamente.</translation>
    </message>
    <message>
        <source>The server of the site &quot;%1&quot; refused a request from this computer. Changes it has not received yet are kept here. Show its administrator what the server said, and start the program again when the problem is fixed.</source>
        <translation>O servidor do local &quot;%1&quot; recusou uma solicitação deste computador. As alterações que ele ainda não recebeu são mantidas aqui. Mostre ao administrador o que o servidor respondeu e inicie o programa novamente quando o problema estiver resolvido.</translation>
    </message>
</context>
<context>
    <name>SiteKeyPrompt</name>
    <message>
        <source>A new passphrase for the site &quot;%1&quot;:</source>
        <translation>Uma nova frase secreta para o local &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>Again:</source>
        <translation>Outra vez:</translation>
    </message>
    <message>
        <source>The two passphrases are not the same.</source>
        <translation>As duas frases secretas não são iguais.</translation>
    </message>
    <message>
        <source>The passphrase of the site &quot;%1&quot;:</source>
        <translation>A frase secreta do local &quot;%1&quot;:</translation>
    </message>
    <message>
        <source>The passphrase of the site is not given. Passwords are not read, and cannot be stored. Type it at a terminal, or set the variable KO_SITE_PASSPHRASE.</source>
        <translation>A frase secreta do local não foi dada. As senhas não são lidas e não podem ser armazenadas. Digite-a em um terminal ou defina a variável KO_SITE_PASSPHRASE.</translation>
    </message>
</context>
<context>
    <name>SiteKeyWords</name>
    <message>
        <source>The key cannot be kept on this computer, because the key of this installation is not there. You are asked for the passphrase again next time.</source>
        <translation>A chave não pode ser guardada neste computador, porque falta a chave desta instalação. A frase secreta será pedida de novo da próxima vez.</translation>
    </message>
    <message>
        <source>That is not the passphrase of the site.</source>
        <translation>Essa não é a frase secreta do local.</translation>
    </message>
    <message numerus="yes">
        <source>A passphrase needs at least %n character(s).</source>
        <translation>
            <numerusform>Uma frase secreta tem pelo menos %n caractere.</numerusform>
            <numerusform>Uma frase secreta tem pelo menos %n caracteres.</numerusform>
        </translation>
    </message>
    <message>
        <source>The site has no key yet.</source>
        <translation>O local ainda não tem chave.</translation>
    </message>
    <message>
        <source>Somebody else has just changed the key or its passphrase. Ask which passphrase is valid now.</source>
        <translation>Outra pessoa acabou de alterar a chave ou a frase secreta. Pergunte qual frase secreta vale agora.</translation>
    </message>
    <message>
        <source>Opening the key takes more memory than this computer has or may be asked for.</source>
        <translation>Abrir a chave exige mais memória do que este computador tem ou do que se pode pedir a ele.</translation>
    </message>
    <message>
        <source>This site was made before its desks shared a key. Passwords cannot be stored until its administrator brings it up to date by koclient --share.</source>
        <translation>Este local foi criado antes que suas estações compartilhassem uma chave. As senhas não podem ser armazenadas até que o administrador o atualize com koclient --share.</translation>
    </message>
    <message>
        <source>This computer does not have the key of the passwords. They are shown empty, and new ones cannot be stored, until you give the passphrase of the site.</source>
        <translation>Este computador não tem a chave das senhas. Elas aparecem vazias e novas não podem ser armazenadas até que você dê a frase secreta do local.</translation>
    </message>
    <message>
        <source>The site has no key yet with which its desks seal passwords. New ones cannot be stored until somebody makes it.</source>
        <translation>O local ainda não tem uma chave com a qual suas estações cifram as senhas. Novas não podem ser armazenadas até que alguém a crie.</translation>
    </message>
</context>
<context>
    <name>SiteOpening</name>
    <message>
        <source>Shared Database</source>
        <translation>Banco de dados compartilhado</translation>
    </message>
    <message>
        <source>Connecting to &quot;%1&quot;...</source>
        <translation>Conectando a &quot;%1&quot;...</translation>
    </message>
</context>
<context>
    <name>SitePassphraseDialog</name>
    <message>
        <source>Change Passphrase</source>
        <translation>Alterar frase secreta</translation>
    </message>
    <message>
        <source>Passphrase of the Site</source>
        <translation>Frase secreta do local</translation>
    </message>
    <message>
        <source>The passwords of cameras at &quot;%1&quot; are sealed with a key that its desks share. Give the passphrase of the site, once on this computer. Without it, passwords are shown empty and new ones cannot be stored.</source>
        <translation>As senhas das câmeras de &quot;%1&quot; são cifradas com uma chave que suas estações compartilham. Dê a frase secreta do local, uma vez neste computador. Sem ela, as senhas aparecem vazias e novas não podem ser armazenadas.</translation>
    </message>
    <message>
        <source>The site &quot;%1&quot; has no key yet with which its desks seal the passwords of cameras. Think of a passphrase of several words, and tell it to everybody who may see them. The server never gets it: if all forget it, new desks cannot read the passwords.</source>
        <translation>O local &quot;%1&quot; ainda não tem uma chave com a qual suas estações cifram as senhas das câmeras. Pense em uma frase secreta de várias palavras e conte-a a todos que devem vê-las. O servidor nunca a recebe: se todos a esquecerem, novas estações não poderão ler as senhas.</translation>
    </message>
    <message>
        <source>Desks that have the key of &quot;%1&quot; keep it when only the passphrase changes. With a new key, all passwords are sealed anew, and each desk is asked for the new passphrase: choose that when a computer was lost.</source>
        <translation>As estações que têm a chave de &quot;%1&quot; ficam com ela quando só a frase secreta muda. Com uma chave nova, todas as senhas são cifradas de novo e cada estação pede a nova frase secreta: escolha isso quando um computador foi perdido.</translation>
    </message>
    <message>
        <source>&amp;Passphrase:</source>
        <translation>&amp;Frase secreta:</translation>
    </message>
    <message>
        <source>&amp;Present passphrase:</source>
        <translation>Frase secreta a&amp;tual:</translation>
    </message>
    <message>
        <source>&amp;New passphrase:</source>
        <translation>&amp;Nova frase secreta:</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>&amp;Repetição:</translation>
    </message>
    <message>
        <source>Make a new &amp;key, too</source>
        <translation>Criar também uma nova cha&amp;ve</translation>
    </message>
    <message>
        <source>The two new passphrases are not the same.</source>
        <translation>As duas novas frases secretas não são iguais.</translation>
    </message>
    <message>
        <source>One moment...</source>
        <translation>Um momento...</translation>
    </message>
</context>
<context>
    <name>StoreNotice</name>
    <message>
        <source>Node Database</source>
        <translation>Banco de dados de nós</translation>
    </message>
    <message>
        <source>Nothing you entered is lost while this window is open.</source>
        <translation>Nada do que você digitou se perde enquanto esta janela estiver aberta.</translation>
    </message>
    <message>
        <source>What waits to be stored, all of it or nothing, belongs to:</source>
        <translation>O que espera para ser armazenado, tudo ou nada, pertence a:</translation>
    </message>
    <message>
        <source>Changes Are Not Stored</source>
        <translation>Alterações não armazenadas</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Repetir</translation>
    </message>
    <message>
        <source>&amp;Discard Changes</source>
        <translation>&amp;Descartar alterações</translation>
    </message>
    <message>
        <source>All changes are stored.</source>
        <translation>Todas as alterações foram armazenadas.</translation>
    </message>
    <message>
        <source>There are changes that could not be stored. They are lost when the program is closed now.</source>
        <translation>Há alterações que não puderam ser armazenadas. Elas se perdem se o programa for fechado agora.</translation>
    </message>
</context>
<context>
    <name>StoreProgress</name>
    <message>
        <source>Node Database</source>
        <translation>Banco de dados de nós</translation>
    </message>
    <message>
        <source>Storing changes...</source>
        <translation>Salvando alterações...</translation>
    </message>
</context>
<context>
    <name>SurveyCommands</name>
    <message>
        <source>Lists of cameras (*.csv);;All files (*)</source>
        <translation>Listas de câmeras (*.csv);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Import Cameras</source>
        <translation>Importar câmeras</translation>
    </message>
    <message>
        <source>Importing cameras...</source>
        <translation>Importando câmeras...</translation>
    </message>
    <message>
        <source>Export Cameras</source>
        <translation>Exportar câmeras</translation>
    </message>
    <message>
        <source>Write the passwords too? Whoever can read the file can then use every camera in it.</source>
        <translation>Gravar também as senhas? Quem puder ler o arquivo poderá usar todas as câmeras que estão nele.</translation>
    </message>
    <message>
        <source>Exporting cameras...</source>
        <translation>Exportando câmeras...</translation>
    </message>
    <message numerus="yes">
        <source>%n camera(s) written.</source>
        <translation>
            <numerusform>%n câmera gravada.</numerusform>
            <numerusform>%n câmeras gravadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Lendo a lista...</translation>
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
        <translation>&amp;Desfazer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo &quot;%1&quot;</source>
        <translation>&amp;Refazer &quot;%1&quot;</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Desfeito: %1</translation>
    </message>
    <message>
        <source>Redone: %1</source>
        <translation>Refeito: %1</translation>
    </message>
</context>
<context>
    <name>UndoNotice</name>
    <message>
        <source>Undo...</source>
        <translation>Desfazer...</translation>
    </message>
</context>
<context>
    <name>UnsavedEdits</name>
    <message>
        <source>What you have entered is not stored yet.</source>
        <translation>O que foi inserido ainda não está salvo.</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>&amp;Go On Editing</source>
        <translation>&amp;Continuar editando</translation>
    </message>
</context>
</TS>
